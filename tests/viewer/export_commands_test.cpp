#include "viewer/export_commands.h"

#include <gtest/gtest.h>

#include <QPointer>

#include "viewer/export_scene.h"

namespace bornika::essai {
namespace {

using ExportViewer = Sorties;

TEST_F(ExportViewer, ExportAsksForACsvOfTheProgramsFolder) {
    ChargerMesures("a.txt");
    v.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    Cliquer(v.Ui().Export);
    ASSERT_EQ(v.etabli.dialogues.demandes.size(), 2U);
    const DemandeFichier& demande = v.etabli.dialogues.demandes[1];
    EXPECT_EQ(demande.nom, QString());
    EXPECT_EQ(demande.suffixe, "*.csv");
    EXPECT_EQ(demande.filtre, "csv (*.csv)|*.csv");
    EXPECT_EQ(demande.dossier, v.etabli.systeme.dossier);
    EXPECT_FALSE(demande.plusieurs);
}

TEST_F(ExportViewer, SelectionAsksForATextFileOfTheProgramsFolder) {
    ChargerMesures("a.txt");
    v.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    Cliquer(v.Ui().EnregistrerSelection);
    ASSERT_EQ(v.etabli.dialogues.demandes.size(), 2U);
    const DemandeFichier& demande = v.etabli.dialogues.demandes[1];
    EXPECT_EQ(demande.nom, QString());
    EXPECT_EQ(demande.suffixe, "*.txt");
    EXPECT_EQ(demande.filtre, "txt (*.txt)|*.txt");
    EXPECT_EQ(demande.dossier, v.etabli.systeme.dossier);
}

TEST_F(ExportViewer, CancelledNothingIsWrittenAndTheDialogsNameIsEmpty) {
    ChargerMesures("a.txt");
    const QStringList fichiers = v.etabli.Fichiers();
    for (QPushButton* bouton : {v.Ui().Export, v.Ui().EnregistrerSelection}) {
        v.Fiche().NomDialogue = "x";
        v.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
        Cliquer(bouton);
        EXPECT_EQ(v.Fiche().NomDialogue, QString());
        EXPECT_TRUE(bouton->isEnabled());
    }
    EXPECT_EQ(v.etabli.Fichiers(), fichiers);
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("a.txt"));
}

TEST_F(ExportViewer, WholeViewGivesTheSameFilesWhateverEndsTheLinesOfTheSource) {
    for (const QString source : {"source_crlf.txt", "source_lf.txt", "source_cr.txt"}) {
        // The loader wants line feeds; the view of a source without any is that of its twin.
        Charger(source == "source_cr.txt" ? "source_lf.txt" : source);
        CopierDonnee(source);
        v.Fiche().NomFichierCourant = v.etabli.Chemin(source);
        v.Ui().Commentaires->setPlainText("Réseau n° 7\nvanne fermée à 22 h");
        Exporter("out.csv");
        Enregistrer("out.txt");
        EXPECT_EQ(v.etabli.Lire("out.csv"), Donnee("whole.csv")) << source.toStdString();
        EXPECT_EQ(v.etabli.Lire("out.txt"), Donnee("whole.txt")) << source.toStdString();
        EXPECT_EQ(v.etabli.Lire("out.Cmt"), Donnee("comments.Cmt")) << source.toStdString();
    }
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(ExportViewer, ZoomedViewGivesTheLinesOfItsSpanAlone) {
    Charger("source_crlf.txt");
    v.Modele().MontrerPlage({1700000001250, 1700000004000});
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.csv"), Donnee("zoomed.csv"));
    EXPECT_EQ(v.etabli.Lire("out.txt"), Donnee("zoomed.txt"));
}

TEST_F(ExportViewer, WhatTheMouseHasZoomedToIsWhatGoesOut) {
    ChargerMesures("a.txt");
    ZoomerALaSouris();
    const PointsVisibles visibles = v.Modele().Visibles(0);
    ASSERT_GT(visibles.premier, 0);
    ASSERT_LT(visibles.dernier, 299);
    Enregistrer("out.txt");
    const QByteArrayList lignes = Lignes("out.txt");
    EXPECT_EQ(lignes.size(), 1 + visibles.dernier - visibles.premier + 1);
    EXPECT_TRUE(lignes[1].startsWith(QByteArray::number(1000 + visibles.premier) + "000;"));
    EXPECT_TRUE(lignes.last().startsWith(QByteArray::number(1000 + visibles.dernier) + "000;"));
}

TEST_F(ExportViewer, CurvesSwitchedOffInTheLegendCountTheSame) {
    ChargerMesures("a.txt");
    VueGraphe& vue = *v.Ui().TChart1;
    for (int serie = 0; serie < 4; ++serie) {
        if (!v.Modele().Serie(serie).active) continue;
        const QRect ligne = vue.legend->item(serie)->rect();
        QTest::mouseClick(&vue, Qt::LeftButton, {}, QPoint(ligne.left() + 6, ligne.center().y()));
        ASSERT_FALSE(v.Modele().Serie(serie).active) << serie;
    }
    Exporter("out.csv");
    EXPECT_EQ(Lignes("out.csv").size(), 301);
}

TEST_F(ExportViewer, CsvTitleIsOfTheProgramsLanguage) {
    v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, "English");
    ChargerMesures("a.txt", 2);
    Exporter("out.csv");
    EXPECT_EQ(Lignes("out.csv").front(), "Time;Pression;M3/sec.");
}

TEST_F(ExportViewer, HeaderOfMoreThanSevenFieldsTakesTheFlowSettings) {
    Charger("nine_fields.txt");
    v.Ui().CoefImpulsion->setText("2,5");
    v.Ui().UniteImpulsion->setText("m³");
    v.Ui().ListeTemps->Choisir(1);
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.csv"), Donnee("nine_fields.csv"));
    EXPECT_EQ(v.etabli.Lire("out.txt"), Donnee("nine_fields_selection.txt"));
    // The loader looks for them one field before: such a file brings no coefficient back.
    v.Ui().CoefImpulsion->setText("7");
    v.Ouvrir("out.txt");
    EXPECT_EQ(v.Ui().CoefImpulsion->text(), "7");
    EXPECT_EQ(v.Ui().ListeTemps->Index(), -1);
    EXPECT_EQ(v.Ui().UniteImpulsion->text(), "Imp/sec. (2,5)");
}

TEST_F(ExportViewer, CaptionNamesTheTargetAndTheViewStaysThatOfItsSource) {
    ChargerMesures("a.txt");
    v.Modele().MontrerPlage({1100000, 1109000});
    Enregistrer("out.txt");
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("out.txt"));
    EXPECT_EQ(v.Fiche().NomDialogue, v.etabli.Chemin("out.txt"));
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    Exporter("out.csv");
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("out.csv"));
    Rafraichir();
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
    v.Ouvrir("out.txt");
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 10);
}

TEST_F(ExportViewer, RefreshOfSeveralFilesReloadsThemAfterAnExport) {
    v.EcrireEnregistrement("a.txt", 30);
    v.EcrireEnregistrement("b.txt", 20);
    ChargerPlusieurs({"a.txt", "b.txt"});
    Exporter("out.csv");
    Rafraichir();
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(v.Modele().Serie(2).Nombre(), 20);
}

/// Notes each time the button changes, and whether the target was there already.
class Guet : public QObject {
  public:
    Guet(QPushButton& bouton, QString cible) : bouton_(bouton), cible_(std::move(cible)) {
        bouton.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() == QEvent::EnabledChange)
            vus.push_back({bouton_.isEnabled(), QFile::exists(cible_)});
        return false;
    }
    std::vector<std::pair<bool, bool>> vus;

  private:
    QPushButton& bouton_;
    QString cible_;
};

TEST_F(ExportViewer, TheButtonIsDisabledFromTheChoiceToTheEnd) {
    ChargerMesures("a.txt");
    Guet surExport(*v.Ui().Export, v.etabli.Chemin("out.csv"));
    Guet surSelection(*v.Ui().EnregistrerSelection, v.etabli.Chemin("out.Cmt"));
    v.etabli.dialogues.pendantDemande = [this](const DemandeFichier&) {
        EXPECT_TRUE(v.Ui().Export->isEnabled());
        EXPECT_TRUE(v.Ui().EnregistrerSelection->isEnabled());
    };
    Exporter("out.csv");
    Enregistrer("out.txt");
    const std::vector<std::pair<bool, bool>> attendu = {{false, false}, {true, true}};
    EXPECT_EQ(surExport.vus, attendu);
    EXPECT_EQ(surSelection.vus, attendu);
}

TEST_F(ExportViewer, AFormClosedWhileTheDialogStandsWritesWhatWasChosenAndGoes) {
    ChargerMesures("a.txt");
    const QPointer<Trace> fiche = &v.Fiche();
    v.etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        fiche->close();
        QCoreApplication::processEvents();
        EXPECT_TRUE(fiche);
    };
    Exporter("out.csv");
    EXPECT_EQ(Lignes("out.csv").size(), 301);
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST_F(ExportViewer, AFormClosedWhileTheDialogStandsStoresItsCommentsToo) {
    ChargerMesures("a.txt");
    v.Ui().Commentaires->setPlainText("note");
    const QPointer<Trace> fiche = &v.Fiche();
    v.etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        fiche->close();
        QCoreApplication::processEvents();
        EXPECT_TRUE(fiche);
    };
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.txt"), v.etabli.Lire("a.txt"));
    EXPECT_EQ(v.etabli.Lire("out.Cmt"), "note\r\n");
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST_F(ExportViewer, EachSourceOfSeveralAddsItsHeaderAndItsLines) {
    v.EcrireEnregistrement("a.txt", 2);
    v.EcrireEnregistrement("b.txt", 1, "Temps;Date Heure;Valeur;Force;N;comptage;M3/sec.");
    ChargerPlusieurs({"a.txt", "b.txt"});
    v.etabli.Ecrire("out.csv", "old\r\n");
    v.Ui().Commentaires->setPlainText("note");
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.csv"),
              "Temps;Pression;M3/sec.\r\n01/01/1970 00:1000:000;4;1 ;\r\n"
              "01/01/1970 00:1001:000;4.01;2 ;\r\n"
              "Temps;Force;M3/sec.\r\n01/01/1970 00:1000:000;4;1 ;\r\n");
    EXPECT_EQ(v.etabli.Lire("out.txt"), v.etabli.Lire("a.txt") + v.etabli.Lire("b.txt"));
    EXPECT_EQ(v.etabli.Lire("out.Cmt"), "note\r\nnote\r\n");
}

TEST_F(ExportViewer, ALineIsKeptIfItFallsWithinTheSpanOfAnotherFilesCurve) {
    v.EcrireEnregistrement("a.txt", 20);
    // No point of its own: its lines go out by the curve of the other file.
    v.etabli.Ecrire("b.txt", Visionneuse::enteteAppareil +
                                 "\r\n999000;d;1;abc;;0;\r\n1005000;d;1;abc;;0;\r\n"
                                 "1019000;d;1;abc;;0;\r\n1020000;d;1;abc;;0;\r\n");
    ChargerPlusieurs({"a.txt", "b.txt"});
    Enregistrer("out.txt");
    const QByteArrayList lignes = Lignes("out.txt");
    ASSERT_EQ(lignes.size(), 21 + 3);
    EXPECT_EQ(lignes[22], "1005000;d;1;abc;;0;");
    EXPECT_EQ(lignes[23], "1019000;d;1;abc;;0;");
}

TEST_F(ExportViewer, SourcesGoOutInTheOrderOfTheChoiceEachWithAHeaderOfItsOwnForm) {
    CopierDonnee("nine_fields.txt");
    v.EcrireEnregistrement("a.txt", 1);
    ChargerPlusieurs({"nine_fields.txt", "a.txt"});
    v.Ui().CoefImpulsion->setText("2,5");
    v.Ui().UniteImpulsion->setText("m³");
    v.Ui().ListeTemps->Choisir(1);
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(
        v.etabli.Lire("out.csv"),
        Donnee("nine_fields.csv") + "Temps;Pression;M3/sec.\r\n01/01/1970 00:1000:000;4;1 ;\r\n");
    EXPECT_EQ(v.etabli.Lire("out.txt"),
              Donnee("nine_fields_selection.txt") + v.etabli.Lire("a.txt"));
}

TEST_F(ExportViewer, ASourceWithoutALineInTheSpanGivesItsHeaderAlone) {
    v.EcrireEnregistrement("a.txt", 20);
    v.etabli.Ecrire("b.txt",
                    Visionneuse::enteteAppareil + "\r\n5000000;d;1;4;;0;\r\n5001000;d;1;4;;0;\r\n");
    ChargerPlusieurs({"a.txt", "b.txt"});
    v.Modele().MontrerPlage({1005000, 1007000});
    Enregistrer("out.txt");
    const QByteArrayList lignes = Lignes("out.txt");
    ASSERT_EQ(lignes.size(), 1 + 3 + 1);
    EXPECT_TRUE(lignes[1].startsWith("1005000;"));
    EXPECT_TRUE(lignes[3].startsWith("1007000;"));
    EXPECT_EQ(lignes[4], Visionneuse::enteteAppareil);
}

TEST_F(ExportViewer, AZoomBetweenTwoPointsGivesTheHeaderAlone) {
    ChargerMesures("a.txt", 20);
    v.Modele().MontrerPlage({1005200, 1005800});
    Exporter("out.csv");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.csv"), "Temps;Pression;M3/sec.\r\n");
    EXPECT_EQ(v.etabli.Lire("out.txt"), Visionneuse::enteteAppareil + "\r\n");
    EXPECT_TRUE(Fautes().empty());
}

TEST_F(ExportViewer, LinesOutsideTheFirstAndLastPointStayEvenUnzoomed) {
    v.etabli.Ecrire("a.txt", Visionneuse::enteteAppareil +
                                 "\r\n1000;d;1;abc;;0;\r\n2000;d;1;4;;0;\r\n3000;d;1;5;;0;\r\n"
                                 "4000;d;1;abc;;0;\r\n");
    v.Fiche().show();
    v.Ouvrir("a.txt");
    Enregistrer("out.txt");
    EXPECT_EQ(Lignes("out.txt").mid(1), (QByteArrayList{"2000;d;1;4;;0;", "3000;d;1;5;;0;"}));
}

TEST_F(ExportViewer, RecordingWhoseTimesJumpBackGoesOutWhole) {
    QByteArray contenu = Visionneuse::enteteAppareil + "\r\n";
    for (const int seconde : {5000, 9000, 1000, 4000})
        contenu += QByteArray::number(seconde) + ";d;1;4;;0;\r\n";
    v.etabli.Ecrire("a.txt", contenu);
    v.Fiche().show();
    v.Ouvrir("a.txt");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.txt"), contenu);
}

TEST_F(ExportViewer, HugeRecordingOfWhichTheChartKeepsOneLineInElevenGoesOutLineByLine) {
    QByteArray contenu = Visionneuse::enteteAppareil + "\r\n";
    int lignes = 0;
    for (; contenu.size() <= 20'000'000; ++lignes)
        contenu += QByteArray::number(1'000'000 + lignes) + ";01/01/1970 00:00:00:000;512;4.692;" +
                   QByteArray(200, 'x') + ";0;\r\n";
    v.etabli.Ecrire("a.txt", contenu);
    v.Fiche().show();
    v.etabli.respiration.ReglerPas(std::chrono::hours(1));
    v.Ouvrir("a.txt");
    ASSERT_EQ(v.Modele().Serie(0).Nombre(), (lignes + 10) / 11);
    Enregistrer("out.txt");
    // All lines up to the last one that has a point.
    EXPECT_EQ(Lignes("out.txt").size(), 1 + (lignes - 1) / 11 * 11 + 1);
}

TEST_F(ExportViewer, CommentsOfANameWithoutTxtGetCmtBehind) {
    ChargerMesures("a.txt", 3);
    v.Ui().Commentaires->setPlainText("note");
    Enregistrer("out.dat");
    EXPECT_EQ(v.etabli.Lire("out.dat.Cmt"), "note\r\n");
    EXPECT_EQ(v.etabli.Lire("out.dat"), v.etabli.Lire("a.txt"));
    EXPECT_FALSE(QFile::exists(v.etabli.Chemin("out.Cmt")));
}

TEST_F(ExportViewer, EmptyCommentsAreAFileOfOneLineEnd) {
    ChargerMesures("a.txt", 3);
    v.Ui().Commentaires->clear();
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.Cmt"), "\r\n");
}

TEST_F(ExportViewer, OlderFilesOfTheTargetsNamesAreReplaced) {
    ChargerMesures("a.txt", 3);
    v.etabli.Ecrire("out.txt", QByteArray(5000, 'x'));
    v.etabli.Ecrire("out.Cmt", QByteArray(5000, 'x'));
    v.Ui().Commentaires->setPlainText("note");
    Enregistrer("out.txt");
    EXPECT_EQ(v.etabli.Lire("out.txt"), v.etabli.Lire("a.txt"));
    EXPECT_EQ(v.etabli.Lire("out.Cmt"), "note\r\n");
}

TEST_F(ExportViewer, HiddenCommandMakesNothingAndEndsInTheFaultOfAFileThatCannotBeRead) {
    ChargerMesures("a.txt", 3);
    EXPECT_FALSE(v.Ui().Command1->isVisible());
    const QStringList fichiers = v.etabli.Fichiers();
    v.Ui().Command1->click();
    EXPECT_EQ(v.etabli.fautes, std::vector<int>{numero_faute::accesRefuse});
    EXPECT_EQ(v.etabli.Fichiers(), fichiers);
}

TEST_F(ExportViewer, UpdateWorksPressuresOutAnewFromTheirPoints) {
    v.etabli.Ecrire("a.txt",
                    "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n"
                    "1000;\xE9;512;0;;0.5 ;\r\n2000;b;1023;4.4;;0;end\r\n3000;c;0;1\r\n");
    MettreAJourFichier(v.Fiche(), "a.txt");
    EXPECT_EQ(v.etabli.Lire("MAJ_a.txt"),
              "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n"
              "1000;\xE9;512;8.;;0.5 ;\r2000;b;1023;15.984;;0;\r3000;c;0;\r");
}

TEST_F(ExportViewer, UpdateNeedsPointsInEachLine) {
    v.etabli.Ecrire("a.txt", "Temps\r\n1000;a;512\r\n");
    EXPECT_THROW(MettreAJourFichier(v.Fiche(), "a.txt"), FauteExecution);
    v.etabli.Ecrire("a.txt", "Temps\r\n1000;a;x;4\r\n");
    EXPECT_THROW(MettreAJourFichier(v.Fiche(), "a.txt"), FauteExecution);
}

}  // namespace
}  // namespace bornika::essai
