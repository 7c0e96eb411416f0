#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QPointer>
#include <filesystem>

#include "platform/guard.h"
#include "support/limits.h"
#include "viewer/export_scene.h"

namespace bornika::essai {
namespace {

/// What goes wrong on the way, and what must be left of the operator's files then.
class ExportFaults : public Sorties {
  protected:
    /// A recording whose third measure is that line.
    void ChargerAvec(const QByteArray& ligne) {
        v.etabli.Ecrire("a.txt", Visionneuse::enteteAppareil +
                                     "\r\n1000;d;1;4;;1 ;\r\n2000;d;1;5;;1 ;\r\n" + ligne +
                                     "\r\n3000;d;1;6;;1 ;\r\n");
        Montrer("a.txt");
    }
    QString Chemin(const QString& nom) const { return v.etabli.Chemin(nom); }
};

TEST_F(ExportFaults, TheLinesWrittenSoFarStay) {
    for (const auto& [ligne, faute] :
         {std::pair<QByteArray, int>{"", numero_faute::indice},
          {"abc;d;1;4;;1 ;", numero_faute::typeIncompatible},
          {Visionneuse::enteteAppareil, numero_faute::typeIncompatible}}) {
        ChargerAvec(ligne);
        Fautes().clear();
        Exporter("out.csv");
        Enregistrer("out.txt");
        EXPECT_EQ(Fautes(), (std::vector<int>{faute, faute})) << ligne.toStdString();
        EXPECT_EQ(v.etabli.Lire("out.csv"), "Temps;Pression;M3/sec.\r\nd;4;1 ;\r\nd;5;1 ;\r\n");
        EXPECT_EQ(v.etabli.Lire("out.txt"),
                  Visionneuse::enteteAppareil + "\r\n1000;d;1;4;;1 ;\r\n2000;d;1;5;;1 ;\r\n");
        EXPECT_FALSE(QFile::exists(Chemin("out.Cmt")));
        v.Ui().Export->setEnabled(true);
        v.Ui().EnregistrerSelection->setEnabled(true);
    }
}

TEST_F(ExportFaults, LineWithTooFewFieldsEndsACsvAndNoSelection) {
    ChargerAvec("1500;d;1");
    Exporter("out.csv");
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::indice});
    EXPECT_EQ(Lignes("out.csv").size(), 3);
    Enregistrer("out.txt");
    EXPECT_EQ(Lignes("out.txt").last(), "1500;d;1");
    EXPECT_EQ(Fautes().size(), 1U);
}

TEST_F(ExportFaults, RecordingThatWasCutOffGoesOutWithoutItsHalfLine) {
    ChargerMesures("a.txt", 20);
    QByteArray contenu = v.etabli.Lire("a.txt");
    contenu.chop(9);
    v.etabli.Ecrire("a.txt", contenu);
    v.Ouvrir("a.txt");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.txt"), contenu.left(contenu.lastIndexOf('\n') + 1));
    EXPECT_TRUE(Fautes().empty());
}

TEST_F(ExportFaults, EmptyRecordingCostsNoOlderFile) {
    v.etabli.Ecrire("a.txt", "");
    v.etabli.Ecrire("out.csv", "old");
    Montrer("a.txt");
    Exporter("out.csv");
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::indice});
    EXPECT_EQ(v.etabli.Lire("out.csv"), "old");
}

TEST_F(ExportFaults, SourceThatIsGoneCostsNoOlderFile) {
    ChargerMesures("a.txt", 20);
    ASSERT_TRUE(QFile::remove(Chemin("a.txt")));
    v.etabli.Ecrire("out.csv", "old");
    v.etabli.Ecrire("out.txt", "old");
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(Fautes(), std::vector<int>(2, numero_faute::fichierIntrouvable));
    EXPECT_EQ(v.etabli.Lire("out.csv"), "old");
    EXPECT_EQ(v.etabli.Lire("out.txt"), "old");
    EXPECT_FALSE(QFile::exists(Chemin("out.Cmt")));
}

TEST_F(ExportFaults, SecondSourceThatIsGoneLeavesTheFirstInTheTarget) {
    v.EcrireEnregistrement("a.txt", 20);
    v.EcrireEnregistrement("b.txt", 20);
    ChargerPlusieurs({"a.txt", "b.txt"});
    ASSERT_TRUE(QFile::remove(Chemin("b.txt")));
    v.Ui().Commentaires->setPlainText("note");
    Enregistrer("out.txt");
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::fichierIntrouvable});
    EXPECT_EQ(v.etabli.Lire("out.txt"), v.etabli.Lire("a.txt"));
    EXPECT_EQ(v.etabli.Lire("out.Cmt"), "note\r\n");
}

TEST_F(ExportFaults, TargetThatCannotBeMadeIsAFault) {
    ChargerMesures("a.txt", 20);
    Exporter("missing/out.csv");
    ASSERT_TRUE(QDir().mkdir(Chemin("folder.csv")));
    v.Ui().Export->setEnabled(true);
    Exporter("folder.csv");
    EXPECT_EQ(Fautes(),
              (std::vector<int>{numero_faute::cheminIntrouvable, numero_faute::accesRefuse}));
}

TEST_F(ExportFaults, ProtectedTargetIsKept) {
    ChargerMesures("a.txt", 20);
    v.etabli.Ecrire("out.csv", "old");
    // The folder and its settings are everybody's, so that this file alone is protected.
    const std::pair<const char*, mode_t> droits[] = {
        {".", 0777}, {"config.xml", 0666}, {"out.csv", 0444}};
    for (const auto& [nom, droit] : droits)
        ASSERT_EQ(::chmod(QFile::encodeName(Chemin(nom)).constData(), droit), 0) << nom;
    {
        const SansPrivilege ordinaire;
        Exporter("out.csv");
    }
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::accesRefuse});
    EXPECT_EQ(v.etabli.Lire("out.csv"), "old");
}

TEST_F(ExportFaults, FullDiskIsAFault) {
    ChargerMesures("a.txt", 2000);
    ASSERT_TRUE(QFile::link("/dev/full", Chemin("out.csv")));
    ASSERT_TRUE(QFile::link("/dev/full", Chemin("out.Cmt")));
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(Fautes(), std::vector<int>(2, numero_faute::disquePlein));
    EXPECT_EQ(v.etabli.Lire("out.txt"), v.etabli.Lire("a.txt"));
}

TEST_F(ExportFaults, TheFaultNamesTheFileThatItIsAbout) {
    QStringList textes;
    InstallerTraitementFaute([&](const FauteExecution& faute) { textes << faute.texte(); });
    ChargerAvec("abc;d");
    Exporter("out.csv");
    v.Ui().Export->setEnabled(true);
    ASSERT_TRUE(QFile::link("/dev/full", Chemin("full.csv")));
    v.etabli.Ecrire("a.txt", Visionneuse::enteteAppareil + "\r\n1000;d;1;4;;1 ;\r\n");
    Exporter("full.csv");
    EXPECT_EQ(textes, (QStringList{Chemin("a.txt") + " : Type mismatch (line 4)",
                                   Chemin("full.csv") + " : No space left on device"}));
}

using ExportOntoItself = ExportFaults;

TEST_F(ExportOntoItself, TheSelectionTakesThePlaceOfItsOwnSource) {
    ChargerMesures("a.txt");
    const QByteArray tout = v.etabli.Lire("a.txt");
    v.Modele().MontrerPlage({1100000, 1109000});
    v.Ui().Commentaires->setPlainText("note");
    Enregistrer("a.txt");
    EXPECT_EQ(Lignes("a.txt").size(), 11);
    EXPECT_EQ(v.etabli.Lire("a.Cmt"), "note\r\n");
    EXPECT_TRUE(v.Ui().EnregistrerSelection->isEnabled());
    Rafraichir();
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 10);
    EXPECT_TRUE(tout.contains(v.etabli.Lire("a.txt").sliced(200, 200)));
}

TEST_F(ExportOntoItself, AFaultLeavesTheSourceWhole) {
    ChargerAvec("abc;d;1;4;;1 ;");
    const QByteArray tout = v.etabli.Lire("a.txt");
    Enregistrer("a.txt");
    Exporter("a.txt");
    EXPECT_EQ(Fautes().size(), 2U);
    EXPECT_EQ(v.etabli.Lire("a.txt"), tout);
}

TEST_F(ExportOntoItself, IsSeenThroughALink) {
    ChargerAvec("abc;d;1;4;;1 ;");
    const QByteArray tout = v.etabli.Lire("a.txt");
    ASSERT_TRUE(QFile::link("a.txt", Chemin("link.txt")));
    std::filesystem::create_hard_link(Chemin("a.txt").toStdString(),
                                      Chemin("hard.txt").toStdString());
    Enregistrer("link.txt");
    v.Ui().EnregistrerSelection->setEnabled(true);
    Enregistrer("hard.txt");
    EXPECT_EQ(Fautes().size(), 2U);
    EXPECT_EQ(v.etabli.Lire("a.txt"), tout);
}

TEST_F(ExportOntoItself, ALaterSourceAsTargetIsReadBeforeItIsReplaced) {
    v.EcrireEnregistrement("a.txt", 20);
    v.EcrireEnregistrement("b.txt", 30);
    const QByteArray tout = v.etabli.Lire("a.txt") + v.etabli.Lire("b.txt");
    ChargerPlusieurs({"a.txt", "b.txt"});
    v.Ui().Commentaires->setPlainText("note");
    Enregistrer("b.txt");
    EXPECT_EQ(v.etabli.Lire("b.txt"), tout);
    EXPECT_EQ(v.etabli.Lire("b.Cmt"), "note\r\nnote\r\n");
    EXPECT_TRUE(Fautes().empty());
}

TEST_F(ExportOntoItself, NoRecordingOfTheViewGoesUnderTheComments) {
    ChargerMesures("a.Cmt", 20);
    const QByteArray tout = v.etabli.Lire("a.Cmt");
    v.Ui().Commentaires->setPlainText("note");
    Enregistrer("a.txt");
    EXPECT_EQ(v.etabli.Lire("a.Cmt"), tout);
    EXPECT_EQ(v.etabli.Lire("a.txt"), tout);
    EXPECT_EQ(v.etabli.Lire("a.txt.Cmt"), "note\r\n");
}

class Destruction : public ExportFaults {
  protected:
    void Detruire(Reponse reponse = Reponse::Oui) {
        v.etabli.dialogues.AnnoncerQuestion(reponse, v.Fiche().NomFichierCourant);
        Cliquer(v.Ui().Detruire);
    }
};

TEST_F(Destruction, WithoutAFileShowsTheWarningAlone) {
    ChargerMesures("a.txt", 20);
    v.Fiche().NomFichierCourant.clear();
    Cliquer(v.Ui().Detruire);
    ASSERT_EQ(v.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = v.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Exclamation);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(boite.titre, "k-Pod");
    EXPECT_EQ(boite.texte, "Vous devez sélectionner un fichier");
    EXPECT_TRUE(QFile::exists(Chemin("a.txt")));
}

TEST_F(Destruction, OfSeveralFilesShowsTheWarningAlone) {
    v.EcrireEnregistrement("a.txt", 20);
    v.EcrireEnregistrement("b.txt", 20);
    ChargerPlusieurs({"a.txt", "b.txt"});
    Cliquer(v.Ui().Detruire);
    ASSERT_EQ(v.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(v.etabli.dialogues.Boites()[0].icone, Icone::Exclamation);
    EXPECT_TRUE(QFile::exists(Chemin("a.txt")));
    EXPECT_TRUE(QFile::exists(Chemin("b.txt")));
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.Plusieurs({"a.txt", "b.txt"}));
}

TEST_F(Destruction, AsksWithTheNameOfTheFileAndNoKeepsIt) {
    ChargerMesures("a.txt", 20);
    Detruire(Reponse::Non);
    ASSERT_EQ(v.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = v.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Question);
    EXPECT_EQ(boite.boutons, Boutons::OuiNon);
    EXPECT_EQ(boite.titre, "k-Pod");
    EXPECT_EQ(boite.texte, "Voulez-vous détruire le fichier " + Chemin("a.txt") + " ?");
    EXPECT_TRUE(QFile::exists(Chemin("a.txt")));
    EXPECT_EQ(v.Fiche().NomFichierCourant, Chemin("a.txt"));
}

TEST_F(Destruction, SpeaksTheLanguageOfTheProgram) {
    v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, "English");
    ChargerMesures("a.txt", 20);
    Detruire(Reponse::Non);
    v.Fiche().NomFichierCourant.clear();
    Cliquer(v.Ui().Detruire);
    ASSERT_EQ(v.etabli.dialogues.Boites().size(), 2U);
    EXPECT_EQ(v.etabli.dialogues.Boites()[0].texte, "Delete the file " + Chemin("a.txt") + " ?");
    EXPECT_EQ(v.etabli.dialogues.Boites()[1].texte, "Select a file");
}

TEST_F(Destruction, YesDeletesTheFileAloneAndTheCurvesStay) {
    ChargerMesures("a.txt", 20);
    v.etabli.Ecrire("a.Cmt", "note");
    Detruire();
    EXPECT_FALSE(QFile::exists(Chemin("a.txt")));
    EXPECT_TRUE(QFile::exists(Chemin("a.Cmt")));
    EXPECT_EQ(v.Fiche().NomFichierCourant, QString());
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 20);
    EXPECT_TRUE(v.Ui().TChart1->isVisible());
}

TEST_F(Destruction, AfterwardsARefreshDoesNothingAndASecondClickWarns) {
    ChargerMesures("a.txt", 20);
    Detruire();
    const std::uint64_t revision = v.Modele().RevisionSeries();
    Rafraichir();
    EXPECT_EQ(v.Modele().RevisionSeries(), revision);
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 20);
    Cliquer(v.Ui().Detruire);
    EXPECT_EQ(v.etabli.dialogues.Boites().back().icone, Icone::Exclamation);
}

TEST_F(Destruction, AfterwardsAnExportHasNothingToReadAndCostsNoOlderFile) {
    ChargerMesures("a.txt", 20);
    Detruire();
    v.etabli.Ecrire("out.csv", "old");
    Exporter("out.csv");
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::fichierIntrouvable});
    EXPECT_EQ(v.etabli.Lire("out.csv"), "old");
}

TEST_F(Destruction, TakesAProtectedFileToo) {
    ChargerMesures("a.txt", 20);
    ASSERT_TRUE(QFile::setPermissions(Chemin("a.txt"), QFile::ReadOwner));
    Detruire();
    EXPECT_FALSE(QFile::exists(Chemin("a.txt")));
    EXPECT_TRUE(Fautes().empty());
}

TEST_F(Destruction, OfAFileThatIsGoneIsAFault) {
    ChargerMesures("a.txt", 20);
    v.EcrireEnregistrement("A.TXT", 20);
    ASSERT_TRUE(QFile::remove(Chemin("a.txt")));
    Detruire();
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::fichierIntrouvable});
    // A name that differs in its letters is another file.
    EXPECT_TRUE(QFile::exists(Chemin("A.TXT")));
}

TEST_F(Destruction, OfWhatMayNotBeDeletedIsAFaultAndTheViewKeepsItsName) {
    ChargerMesures("a.txt", 20);
    // A folder is refused whoever asks.
    ASSERT_TRUE(QDir().mkdir(Chemin("folder.txt")));
    v.Fiche().NomFichierCourant = Chemin("folder.txt");
    Detruire();
    EXPECT_EQ(Fautes(), std::vector<int>{numero_faute::accesRefuse});
    EXPECT_TRUE(QFileInfo(Chemin("folder.txt")).isDir());
    EXPECT_EQ(v.Fiche().NomFichierCourant, Chemin("folder.txt"));
}

TEST_F(Destruction, AFormClosedWhileTheQuestionStandsIsKeptUntilTheAnswer) {
    ChargerMesures("a.txt", 20);
    const QPointer<Trace> fiche = &v.Fiche();
    v.etabli.dialogues.pendantBoite = [&](const auto&) {
        fiche->close();
        QCoreApplication::processEvents();
        EXPECT_TRUE(fiche);
    };
    Detruire();
    EXPECT_FALSE(QFile::exists(Chemin("a.txt")));
    EXPECT_TRUE(Fautes().empty());
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST_F(Destruction, DeletesTheFileThatWasAskedAbout) {
    ChargerMesures("a.txt", 20);
    v.EcrireEnregistrement("b.txt", 10);
    v.etabli.dialogues.pendantBoite = [this](const auto&) { v.Ouvrir("b.txt"); };
    Detruire();
    EXPECT_FALSE(QFile::exists(Chemin("a.txt")));
    EXPECT_TRUE(QFile::exists(Chemin("b.txt")));
    EXPECT_EQ(v.Fiche().NomFichierCourant, Chemin("b.txt"));
}

}  // namespace
}  // namespace bornika::essai
