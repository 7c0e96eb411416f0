#include <gtest/gtest.h>

#include <QGroupBox>
#include <cmath>
#include <random>

#include "viewer/viewer_bench.h"

namespace bornika {
namespace {

using essai::Visionneuse;

/// A day of a water network: the daily swing, noise, some hammers, and the pulses of a meter.
QByteArray JourneeReseau(int lignes) {
    std::mt19937 hasard(7);
    std::normal_distribution<double> bruit(0, 0.012);
    QByteArray contenu = "Temps;Date Heure;Valeur;Pression (bar);bar;comptage (0.01);m3/HRS\r\n";
    const qint64 debut = 1772668800;
    for (int i = 0; i < lignes; ++i) {
        const qint64 t = debut + qint64(i) * 86400 / lignes;
        const double heure = double(t - debut) / 3600;
        double pression = 4.6 - 0.7 * std::exp(-std::pow(heure - 7.5, 2) / 3) -
                          0.55 * std::exp(-std::pow(heure - 19, 2) / 5) + bruit(hasard);
        for (const double choc : {3.2, 9.7, 13.4, 21.1}) {
            const double apres = (heure - choc) * 3600;
            if (apres > 0 && apres < 400)
                pression += 1.6 * std::exp(-apres / 70) * std::sin(apres / 9);
        }
        const double debit = 0.6 + 1.8 * std::exp(-std::pow(heure - 7.5, 2) / 3) +
                             1.3 * std::exp(-std::pow(heure - 19, 2) / 5) + 4 * bruit(hasard);
        const QDateTime instant = QDateTime::fromSecsSinceEpoch(t, Qt::UTC);
        contenu += QByteArray::number(t) + "000;" +
                   instant.toString("dd/MM/yyyy HH:mm:ss").toLatin1() + ":000;300;" +
                   QByteArray::number(pression, 'f', 3) + ";;" +
                   QByteArray::number(std::max(debit, 0.0), 'f', 4) + " ;\r\n";
    }
    return contenu;
}

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
    VueGraphe& vue = *v.Ui().TChart1;
    vue.animation.animee = false;
    const QRect cadre = vue.axisRect()->rect();
    vue.ZoomerSur(QRect(cadre.left() + int(cadre.width() * 0.40), cadre.top(), cadre.width() / 200,
                        cadre.height()));
    QCoreApplication::processEvents();
    Photographier("trace-zoom");
    RienNEstCoupe();
}

}  // namespace
}  // namespace bornika
