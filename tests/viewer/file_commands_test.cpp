#include "viewer/file_commands.h"

#include <gtest/gtest.h>

#include <QPointer>

#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Visionneuse;

TEST(CommandOpen, AsksForOneOrSeveralTextFilesOfTheProgramsFolder) {
    Visionneuse v;
    v.etabli.dialogues.AnnoncerOuverture(std::nullopt);
    v.Ui().CommandOpen->click();
    ASSERT_EQ(v.etabli.dialogues.demandes.size(), 1U);
    const DemandeFichier& demande = v.etabli.dialogues.demandes[0];
    EXPECT_EQ(demande.nom, QString());
    EXPECT_EQ(demande.suffixe, "*.txt");
    EXPECT_EQ(demande.filtre, "txt (*.txt)|*.txt");
    EXPECT_EQ(demande.dossier, v.etabli.systeme.dossier);
    EXPECT_TRUE(demande.plusieurs);
}

TEST(CommandOpen, LoadsThePickedFileAndNamesTheFormAfterIt) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    v.Ouvrir("a.txt");
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Fiche().NomDialogue, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
}

TEST(CommandOpen, CancelledKeepsWhatIsOnTheScreenAndEmptiesTheDialogsName) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    v.Ouvrir("a.txt");
    const std::uint64_t revision = v.Modele().RevisionSeries();
    v.etabli.dialogues.AnnoncerOuverture(std::nullopt);
    v.Ui().CommandOpen->click();
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Fiche().NomDialogue, QString());
    EXPECT_EQ(v.Modele().RevisionSeries(), revision);
}

TEST(CommandOpen, LoadsSeveralFilesIntoOneViewAndNamesTheFormAfterTheirFolder) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt", 30);
    v.EcrireEnregistrement("b.txt", 20);
    v.Fiche().show();
    v.OuvrirPlusieurs({"b.txt", "a.txt"});
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.Plusieurs({"b.txt", "a.txt"}));
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.systeme.dossier);
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 20);
    EXPECT_EQ(v.Modele().Serie(2).Nombre(), 30);
}

TEST(CommandOpen, ShowsTheNewFileInPlaceOfTheOldOne) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt", 30);
    v.EcrireEnregistrement("b.txt", 20);
    v.Fiche().show();
    v.Ouvrir("a.txt");
    const int series = v.Modele().NombreSeries();
    v.Ouvrir("b.txt");
    EXPECT_EQ(v.Modele().NombreSeries(), series);
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 20);
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("b.txt"));
}

TEST(CommandOpen, OfAFormClosedWhileTheDialogStandsLetsTheFormGo) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    const QPointer<Trace> fiche = &v.Fiche();
    fiche->show();
    v.etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        fiche->close();
        QCoreApplication::processEvents();
        EXPECT_TRUE(fiche);
    };
    v.etabli.dialogues.AnnoncerOuverture(v.etabli.Chemin("a.txt"));
    fiche->ui->CommandOpen->click();
    EXPECT_TRUE(v.etabli.fautes.empty());
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST(CommandOpen, FindsUpperCaseNames) {
    Visionneuse v;
    v.EcrireEnregistrement("REC.TXT");
    v.Fiche().show();
    v.Ouvrir("REC.TXT");
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
}

}  // namespace
}  // namespace bornika
