#pragma once

#include <gtest/gtest.h>

#include "viewer/viewer_fixture.h"

namespace bornika::essai {

/// A viewer whose file buttons are clicked.
class Sorties : public ::testing::Test {
  protected:
    static QByteArray Donnee(const QString& nom) {
        QFile fichier(QStringLiteral(BORNIKA_TEST_DATA "/viewer/data/export/") + nom);
        if (!fichier.open(QIODevice::ReadOnly)) qFatal("no such test file");
        return fichier.readAll();
    }
    void CopierDonnee(const QString& nom) const { v.etabli.Ecrire(nom, Donnee(nom)); }

    /// Loads a copy of the sample.
    void Charger(const QString& nom) {
        CopierDonnee(nom);
        Montrer(nom);
    }
    /// Loads a recording of `lignes` measures, one a second from second 1000 on.
    void ChargerMesures(const QString& nom, int lignes = 300) {
        v.EcrireEnregistrement(nom, lignes);
        Montrer(nom);
    }
    void Montrer(const QString& nom) {
        v.Fiche().show();
        v.Ouvrir(nom);
        v.Ui().TChart1->FixerAnimation({});
    }
    void ChargerPlusieurs(const QStringList& noms) {
        v.Fiche().show();
        v.OuvrirPlusieurs(noms);
    }

    static void Cliquer(QPushButton* bouton) {
        ASSERT_TRUE(bouton->isVisible());
        Operateur::Cliquer(bouton);
    }
    /// Clicks the button and answers with that file of the program's folder.
    void Exporter(const QString& cible) {
        v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin(cible));
        Cliquer(v.Ui().Export);
    }
    void Enregistrer(const QString& cible) {
        v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin(cible));
        Cliquer(v.Ui().EnregistrerSelection);
    }
    void Rafraichir() {
        if (!v.Ui().Check_advanced->isChecked()) Operateur::Cliquer(v.Ui().Check_advanced);
        Cliquer(v.Ui().Command_Refresh);
    }
    /// Draws a rubber band over the middle of the chart.
    void ZoomerALaSouris() {
        const RegardGraphe regard = v.Regard();
        QWidget& surface = regard.Surface();
        const QRect cadre = regard.Cadre();
        const QPoint de = cadre.topLeft() + QPoint(cadre.width() / 4, cadre.height() / 4);
        QTest::mousePress(&surface, Qt::LeftButton, {}, de);
        QTest::mouseMove(&surface, cadre.center());
        QTest::mouseRelease(&surface, Qt::LeftButton, {}, cadre.center());
    }
    /// Lines of a file, whose ends must all be CR LF.
    QByteArrayList Lignes(const QString& nom) const {
        QByteArray contenu = v.etabli.Lire(nom);
        EXPECT_TRUE(contenu.endsWith("\r\n")) << nom.toStdString();
        contenu.chop(2);
        QByteArrayList lignes = contenu.replace("\r\n", "\r").split('\r');
        for (const QByteArray& ligne : lignes)
            EXPECT_FALSE(ligne.contains('\n')) << nom.toStdString();
        return lignes;
    }
    std::vector<int>& Fautes() { return v.etabli.fautes; }

    Visionneuse v;
};

}  // namespace bornika::essai
