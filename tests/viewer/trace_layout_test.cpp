#include <gtest/gtest.h>

#include <QGroupBox>

#include "viewer/network_day.h"
#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::JourneeReseau;
using essai::Visionneuse;

class TraceAspect : public ::testing::Test {
  protected:
    void Montrer(const QString& langue) {
        v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, langue);
        v.etabli.respiration.ReglerPas(std::chrono::milliseconds(5));
        v.etabli.Ecrire("2026-3-5-14-7-9.txt", JourneeReseau(30000));
        v.Fiche().show();
        v.Ui().Commentaires->setPlainText("Réseau nord, vanne V12");
        v.Ouvrir("2026-3-5-14-7-9.txt");
        v.Ui().Check_advanced->setChecked(true);
        QCoreApplication::processEvents();
    }
    /// Set the variable to a folder to look at the forms.
    void Photographier(const char* nom) {
        const QString dossier = qEnvironmentVariable("BORNIKA_PICTURES");
        if (!dossier.isEmpty()) v.Fiche().grab().save(dossier + "/" + nom + ".png");
    }
    void RienNEstCoupe() {
        for (const QWidget* controle : v.Fiche().findChildren<QWidget*>()) {
            if (!controle->isVisible() || controle->objectName().isEmpty() ||
                controle->objectName().startsWith("qt_") || controle->parentWidget() == nullptr)
                continue;
            const std::string nom = controle->objectName().toStdString();
            EXPECT_TRUE(controle->parentWidget()->rect().contains(controle->geometry())) << nom;
            const auto* etiquette = qobject_cast<const QLabel*>(controle);
            // Pictures are scaled to their place.
            const bool parle = (etiquette && !etiquette->hasScaledContents()) ||
                               qobject_cast<const QPushButton*>(controle) ||
                               qobject_cast<const QCheckBox*>(controle);
            EXPECT_GE(controle->width(), parle ? controle->minimumSizeHint().width() : 0) << nom;
        }
    }
    void RienNeSeRecouvre() {
        for (QWidget* bandeau : {v.Ui().BandeauHaut, v.Ui().BandeauBas})
            EXPECT_FALSE(bandeau->geometry().intersects(v.Ui().TChart1->geometry()));
        EXPECT_FALSE(v.Ui().Commentaires->geometry().intersects(v.Ui().BandeauBas->geometry()));
        EXPECT_FALSE(
            v.Ui().LabelCommentaires->geometry().intersects(v.Ui().Commentaires->geometry()));
    }

    Visionneuse v;
};

TEST_F(TraceAspect, NothingIsCutOffOrCoveredAtTheDesignedSize) {
    for (const char* langue : {"Français", "English"}) {
        Montrer(langue);
        Photographier(langue[0] == 'F' ? "trace-fr" : "trace-en");
        RienNEstCoupe();
        RienNeSeRecouvre();
        v.Fiche().close();
    }
}

TEST_F(TraceAspect, NothingIsCutOffOnAWideScreen) {
    Montrer("Français");
    v.Fiche().resize(1600, 950);
    QCoreApplication::processEvents();
    Photographier("trace-wide");
    RienNEstCoupe();
    RienNeSeRecouvre();
}

TEST_F(TraceAspect, AllStatesOfTheFormStayWhole) {
    v.Fiche().show();
    Photographier("trace-empty");
    RienNEstCoupe();
    Montrer("Français");
    v.Ui().Pages->setChecked(true);
    for (QWidget* boite : {v.Ui().Min, v.Ui().Max, v.Ui().Moy})
        boite->show();
    for (QWidget* etiquette : {v.Ui().LabelMin, v.Ui().LabelMax, v.Ui().LabelMoyenne})
        etiquette->show();
    QCoreApplication::processEvents();
    Photographier("trace-pages");
    RienNEstCoupe();
    v.Ui().Pages->setChecked(false);
    v.Ui().TChart1->FixerAnimation({});
    const QRect cadre = v.Regard().Cadre();
    v.Regard().ZoomerSur(QRect(cadre.left() + int(cadre.width() * 0.40), cadre.top(),
                               cadre.width() / 200, cadre.height()));
    QCoreApplication::processEvents();
    Photographier("trace-zoom");
    RienNEstCoupe();
}

TEST_F(TraceAspect, ALongUnitPushesNothingOutOfTheForm) {
    Montrer("Français");
    v.Ui().UniteImpulsion->setText("impulsion comptée");
    v.Ui().Command_Refresh->click();
    v.Ui().Curseur->Choisir(2);
    QTest::mouseMove(&v.Regard().Surface(), v.Regard().Cadre().center());
    QCoreApplication::processEvents();
    ASSERT_EQ(v.Ui().LabelPression->text(), "impulsion comptée/Hrs");
    Photographier("aids-long");
    RienNEstCoupe();
    v.Ui().UniteImpulsion->setText("une unité que personne n'attend, d'une longueur folle");
    v.Ui().Command_Refresh->click();
    v.Ui().Curseur->Choisir(2);
    QTest::mouseMove(&v.Regard().Surface(), v.Regard().Cadre().center() / 2);
    QCoreApplication::processEvents();
    Photographier("aids-longer");
    EXPECT_LE(v.Ui().BandeauHaut->geometry().right(), v.Fiche().width());
}

TEST_F(TraceAspect, TheReadingAidsStayWholeInEachLanguage) {
    for (const char* langue : {"Français", "English"}) {
        Montrer(langue);
        v.Ui().MinMaxMoy->setChecked(true);
        for (const int index : {0, 1, 2, 3}) {
            v.Ui().Curseur->Choisir(index);
            const QRect cadre = v.Regard().Cadre();
            QTest::mouseMove(&v.Regard().Surface(),
                             cadre.center() + QPoint(40 * (index + 1), 10 * index));
            QCoreApplication::processEvents();
            Photographier(qPrintable(QString("aids-%1-%2").arg(langue[0]).arg(index)));
            RienNEstCoupe();
            RienNeSeRecouvre();
        }
        v.Fiche().close();
    }
}

}  // namespace
}  // namespace bornika
