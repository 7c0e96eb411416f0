#include <gtest/gtest.h>

#include "shell/captions.h"
#include "viewer/trace_captions.h"
#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Visionneuse;

/// The viewer form and the delivered configuration file: every text that it asks for is there.
class CatalogueTrace : public ::testing::Test {
  protected:
    static QStringList Langues() {
        Visionneuse v;
        QStringList langues;
        for (int i = 0; i < v.ecran.ui->ListeLangues->Nombre(); ++i)
            langues.append(v.ecran.ui->ListeLangues->TexteA(i));
        return langues;
    }
    static void Regler(Visionneuse& v, const QString& langue) {
        v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, langue);
        ASSERT_EQ(v.ecran.Langue(), langue);
        v.ecran.etat.AideValide = true;
    }
    static QByteArray Fichier(const Visionneuse& v) { return v.etabli.Lire("config.xml"); }
};

TEST_F(CatalogueTrace, OpeningTheFormWithHelpLeavesTheConfigurationByteForByteInEachLanguage) {
    const QStringList langues = Langues();
    ASSERT_GE(langues.size(), 2);
    for (const QString& langue : langues) {
        Visionneuse v;
        Regler(v, langue);
        const QByteArray avant = Fichier(v);
        v.Fiche().show();
        EXPECT_TRUE(Fichier(v) == avant) << langue.toStdString();
    }
}

TEST_F(CatalogueTrace, LoadsChangeNothingInTheConfigurationButTheThreeFlowSettings) {
    const QStringList reglages{"CoefImpulsion", "UniteImpulsion", "IndexListeTemps"};
    for (const QString& langue : Langues()) {
        Visionneuse v;
        Regler(v, langue);
        const QByteArray avant = Fichier(v);
        QStringList valeurs;
        for (const QString& cle : reglages)
            valeurs.append(v.Reglage(cle));
        v.EcrireEnregistrement("a.txt", 20);
        v.EcrireEnregistrement("b.txt", 20, Visionneuse::enteteCoefficient);
        v.etabli.Ecrire("c.txt", "");
        v.Fiche().show();
        for (const char* nom : {"a.txt", "b.txt", "c.txt", "absent.txt"})
            v.Ouvrir(nom);
        v.Ui().Command_Refresh->click();
        EXPECT_FALSE(Fichier(v) == avant);
        for (int i = 0; i < 3; ++i)
            v.ecran.configuration.EcritConfig(valeurs[i], reglages[i]);
        EXPECT_TRUE(Fichier(v) == avant) << langue.toStdString();
    }
}

TEST_F(CatalogueTrace, EachHelpTextIsOneOfItsOwnAndNotTheNameOfTheControl) {
    for (const QString& langue : Langues()) {
        Visionneuse v;
        Regler(v, langue);
        int bulles = 0;
        for (QObject* controle : ControlesDe(v.Fiche())) {
            if (!controle->isWidgetType()) continue;
            const QString bulle = static_cast<QWidget*>(controle)->toolTip();
            const std::string nom = controle->objectName().toStdString();
            EXPECT_EQ(!bulle.isEmpty(), aBulle(*controle)) << nom;
            EXPECT_NE(bulle, CleDe(*controle)) << nom;
            bulles += bulle.isEmpty() ? 0 : 1;
        }
        EXPECT_EQ(bulles, 25) << langue.toStdString();
    }
}

TEST_F(CatalogueTrace, SwitchingHelpOffEmptiesTheToolTipOfEveryControl) {
    Visionneuse v;
    Regler(v, "English");
    v.Ui().LabelTemps->setToolTip("not one of the six kinds");
    AfficheAide(v.Fiche(), "English", true);
    EXPECT_NE(v.Ui().LabelTemps->toolTip(), QString());
    AfficheAide(v.Fiche(), "English", false);
    for (const QWidget* controle : v.Fiche().findChildren<QWidget*>())
        EXPECT_EQ(controle->toolTip(), QString()) << controle->objectName().toStdString();
}

TEST_F(CatalogueTrace, WithoutAnyTextTheCaptionsAreThoseOfTheDesignAndBecomeEntries) {
    const std::vector<std::pair<const char*, const char*>> attendues{
        {"CommandOpen", "Open Graphics"},
        {"Export", "csv Export"},
        {"EnregistrerSelection", "Enregistrer sélection"},
        {"Enregistrer", "Enregistrer"},
        {"Detruire", "Détruire"},
        {"Imprimer", "Imprimer"},
        {"Sortir", "Quitter"},
        {"Command1", "Command1"},
        {"LabelCommentaires", "Commentaires"},
        {"LabelNomFichier", "Nom fichier"},
        {"LabelTemps", "Temps"},
        {"LabelPression", "Pression"},
        {"Pages", "Pages"},
        {"FrameDebit", "Débit"},
        {"Check_advanced", "Advanced Options"},
        {"LabelCoefImpulsion", "Coefficient de l'impulsion"},
        {"LabelUniteImpulsion", "Unité de l'impulsion"},
        {"LabelUniteTemps", "Unité de temps"},
        {"Command_Refresh", "Refresh"},
        {"MinMaxMoy", "Min/Max"},
        {"LabelMin", "Min"},
        {"LabelMax", "Max"},
        {"LabelMoyenne", "Moy."},
        {"LabelCurseur", "Curseur"},
        {"LabelLissage", "Lissage"}};
    Visionneuse v;
    QByteArray catalogue = Fichier(v);
    v.etabli.Ecrire("config.xml", catalogue.replace("<Cle>", "<Cle>other "));
    for (const char* ouverture : {"first", "second"}) {
        for (const auto& [nom, caption] : attendues)
            EXPECT_EQ(Caption(*v.Fiche().findChild<QWidget*>(nom)), caption) << ouverture << nom;
        v.Fiche().close();
    }
    EXPECT_TRUE(Fichier(v).contains("<Cle>LabelNomFichier</Cle><Texte>Nom fichier</Texte>"));
}

TEST_F(CatalogueTrace, WhatTheFormCannotDoYetStaysDisabledAfterALoad) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt", 20);
    v.Fiche().show();
    v.Ouvrir("a.txt");
    EXPECT_FALSE(v.Ui().Enregistrer->isEnabled());
    for (const char* nom :
         {"CommandOpen", "Export", "EnregistrerSelection", "Detruire", "Imprimer", "Sortir",
          "Couleurs", "Pages", "Check_advanced", "Curseur", "MinMaxMoy", "Lissage"})
        EXPECT_TRUE(v.Fiche().findChild<QWidget*>(nom)->isEnabled()) << nom;
}

}  // namespace
}  // namespace bornika
