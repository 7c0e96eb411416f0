#include "chart/model/trace_loader.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "chart/model/loader_form_double.h"
#include "platform/dates.h"
#include "support/fault_number.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
namespace {

class TraceCourbeEssai : public ::testing::Test {
  protected:
    /// Loads a file of that content; returns the number of the fault that ended it, 0 for none.
    int Charger(const QByteArray& contenu, bool Multi = false, bool init = true,
                bool Reload = false) {
        fiche.etabli.Ecrire(nom, contenu);
        return ChargerFichier(fiche.etabli.Chemin(nom), Multi, init, Reload);
    }
    int ChargerFichier(const QString& chemin, bool Multi = false, bool init = true,
                       bool Reload = false) {
        return essai::NumeroDeFaute(
            [&] { TraceCourbe(fiche, chemin, init, Multi, Mini, Maxi, Reload); });
    }
    const SerieGraphe& Serie(int position) { return fiche.graphe.Serie(position); }
    std::vector<double> Y(int position) {
        const auto y = Serie(position).Y();
        return {y.begin(), y.end()};
    }

    FicheNotee fiche;
    QString nom = QStringLiteral("2026-03-05.txt");
    double Mini = 0;
    double Maxi = 0;
};

TEST_F(TraceCourbeEssai, DeviceFileGivesFourSeriesInOrder) {
    ASSERT_EQ(Charger(entete + "1000;d1;512;8.008;;0;\r\n2000;d2;513;8.5;;0.5 ;\r\n"), 0);
    ASSERT_EQ(fiche.graphe.NombreSeries(), 4);
    EXPECT_EQ(Serie(0).titre, "Pression");
    EXPECT_EQ(Serie(1).titre, "M3/sec.");
    EXPECT_EQ(Serie(2).titre, QString::fromUtf8("<(Lissée)> Pression"));
    EXPECT_EQ(Serie(3).titre, QString::fromUtf8("<(Lissée)> M3/sec."));
    EXPECT_EQ(fiche.curseur, (QStringList{"<Pas de curseur>", Serie(0).titre, Serie(1).titre,
                                          Serie(2).titre, Serie(3).titre}));
    EXPECT_EQ(fiche.graphe.gauche.titre, "Pression");
    EXPECT_EQ(fiche.graphe.droite.titre, "M3/sec.");
    EXPECT_EQ(fiche.labelPression, "Pression");
    EXPECT_TRUE(fiche.frameDebit);
    EXPECT_EQ(fiche.lissages, (std::vector<int>{10, 10}));
}

TEST_F(TraceCourbeEssai, SeriesHaveTheirAxesAndColours) {
    Charger(entete + "1000;d1;512;8.008;;1;\r\n");
    EXPECT_EQ(Serie(0).axe, SerieGraphe::Axe::Gauche);
    EXPECT_EQ(Serie(1).axe, SerieGraphe::Axe::Droite);
    EXPECT_EQ(Serie(2).axe, SerieGraphe::Axe::Gauche);
    EXPECT_EQ(Serie(3).axe, SerieGraphe::Axe::Droite);
    EXPECT_FALSE(Serie(0).couleur.has_value());
    EXPECT_EQ(VersQColor(*Serie(1).couleur), QColor(128, 255, 0));
    EXPECT_EQ(Serie(2).couleur, Couleur{65535});
    EXPECT_EQ(Serie(3).couleur, Couleur{0xFF0000});
}

TEST_F(TraceCourbeEssai, BothAxesAreMadeAutomaticWithLevelTitles) {
    for (AxeGraphe* axe : {&fiche.graphe.gauche, &fiche.graphe.droite})
        *axe = AxeGraphe{
            .titre = "old", .angleTitre = 90, .increment = 2, .maximumAutomatique = false};
    Charger(entete + "1000;d1;512;8.008;;1;\r\n");
    for (const AxeGraphe* axe : {&fiche.graphe.gauche, &fiche.graphe.droite}) {
        EXPECT_EQ(axe->angleTitre, 0);
        EXPECT_EQ(axe->increment, 0);
        EXPECT_TRUE(axe->maximumAutomatique);
        EXPECT_NE(axe->titre, "old");
    }
}

TEST_F(TraceCourbeEssai, PressureAndSmoothedFlowAreActiveWhenThereIsAFlow) {
    Charger(entete + "1000;d1;512;8.008;;1;\r\n");
    EXPECT_TRUE(Serie(0).active);
    EXPECT_FALSE(Serie(1).active);
    EXPECT_FALSE(Serie(2).active);
    EXPECT_TRUE(Serie(3).active);
}

TEST_F(TraceCourbeEssai, SixFieldsGiveAnEmptyInactiveFlow) {
    ASSERT_EQ(Charger(entete + "1000;d1;512;8.008;;1\r\n2000;d2;512;8.1;;1\r\n"), 0);
    ASSERT_EQ(fiche.graphe.NombreSeries(), 4);
    EXPECT_EQ(Serie(0).Nombre(), 2);
    EXPECT_EQ(Serie(1).Nombre(), 0);
    EXPECT_FALSE(Serie(1).active);
    EXPECT_FALSE(Serie(3).active);
    EXPECT_EQ(Serie(3).Nombre(), 0);
}

TEST_F(TraceCourbeEssai, SmoothingSeriesDeriveFromTheRawOnes) {
    QByteArray contenu = entete;
    for (int i = 0; i < 50; ++i)
        contenu += QByteArray::number(1000 * i) + ";d;0;" + QByteArray::number(i) + ";;" +
                   QByteArray::number(2 * i + 1) + ";\r\n";
    Charger(contenu);
    EXPECT_EQ(Serie(2).Periode(), 10);
    EXPECT_EQ(Serie(3).TypeFonction(), 18);
    ASSERT_EQ(Serie(2).Nombre(), 50);
    EXPECT_NEAR(Serie(2).Y()[25], 25, 1e-12);
    EXPECT_NEAR(Serie(3).Y()[25], 51, 1e-12);
}

TEST_F(TraceCourbeEssai, SeveralFilesGiveRawPairsWithoutSmoothing) {
    Charger(entete + "1000;d1;512;1;;1;\r\n", true, true);
    nom = QStringLiteral("second.txt");
    Charger(entete + "500;d2;512;2;;3;\r\n", true, false);
    ASSERT_EQ(fiche.graphe.NombreSeries(), 4);
    EXPECT_EQ(fiche.curseur.size(), 5);
    EXPECT_FALSE(fiche.curseur.join(QString()).contains(QString::fromUtf8("Lissée")));
    EXPECT_EQ(Y(2), std::vector<double>{2});
    EXPECT_EQ(Y(3), std::vector<double>{3});
    EXPECT_TRUE(Serie(1).active);
    EXPECT_EQ(Mini, 500);
    EXPECT_EQ(Maxi, 1000);
    EXPECT_TRUE(fiche.lissages.empty());
}

TEST_F(TraceCourbeEssai, SecondLoadStartsFromAnEmptyChart) {
    Charger(entete + "1000;d1;512;1;;1;\r\n");
    Charger(entete + "2000;d1;512;1;;1;\r\n");
    EXPECT_EQ(fiche.graphe.NombreSeries(), 4);
    EXPECT_EQ(fiche.curseur.size(), 5);
    EXPECT_EQ(Mini, 2000);
}

TEST_F(TraceCourbeEssai, LabelIsTheDateFieldInTheCodePage) {
    Charger(entete + "1000;31/12/2024 23:59:59:000 \xE9;512;1;;1;\r\n");
    EXPECT_EQ(fiche.graphe.Etiquette(0, 0), QString::fromUtf8("31/12/2024 23:59:59:000 é"));
    EXPECT_EQ(fiche.graphe.Etiquette(1, 0), fiche.graphe.Etiquette(0, 0));
}

TEST_F(TraceCourbeEssai, LimitsStartAtNowAndZeroAndTakeInLinesWithoutAPoint) {
    const double maintenant =
        1000.0 * DateVersEpoch(VersDateOrdinateur(fiche.etabli.horloge.Maintenant()));
    Charger(entete);
    EXPECT_EQ(Mini, maintenant);
    EXPECT_EQ(Maxi, 0);
    Charger(entete + "5;d;0;abc;;0;\r\n9;d;0;abc;;0;\r\n7;d;0;1;;0;\r\n");
    EXPECT_EQ(Mini, 5);
    EXPECT_EQ(Maxi, 9);
    EXPECT_EQ(Serie(0).Nombre(), 1);
}

TEST_F(TraceCourbeEssai, ZeroOrMissingCountLeavesAGapInTheFlow) {
    for (const char* compte : {"0", "0 ", "", "0.0", "-0", "abc", "--0"}) {
        Charger(entete + "1;d;0;1;;" + compte + ";\r\n");
        EXPECT_EQ(Serie(0).Nombre(), 1) << compte;
        EXPECT_EQ(Serie(1).Nombre(), 0) << compte;
    }
}

TEST_F(TraceCourbeEssai, PressureThatIsNoNumberAddsNothing) {
    Charger(entete + "1;d;0;abc;;5;\r\n2;d;0;;;5;\r\n");
    EXPECT_EQ(Serie(0).Nombre(), 0);
    EXPECT_EQ(Serie(1).Nombre(), 0);
    EXPECT_TRUE(Serie(3).active);
}

TEST_F(TraceCourbeEssai, DoubledMinusIsReadAsOneInBothFields) {
    Charger(entete + "1;d;0;--1.5;;--2.5;\r\n");
    EXPECT_EQ(Y(0), std::vector<double>{-1.5});
    EXPECT_EQ(Y(1), std::vector<double>{-2.5});
}

TEST_F(TraceCourbeEssai, PressureKeepsFiveDecimals) {
    Charger(entete + "1;d;0;1.2345678;;0;\r\n");
    EXPECT_EQ(Y(0), std::vector<double>{1.23457});
}

TEST_F(TraceCourbeEssai, BothSeparatorsAreReadInBothLocales) {
    for (const char* separateur : {".", ","}) {
        fiche.etabli.systeme.regional.separateur = QLatin1String(separateur);
        ASSERT_EQ(Charger(entete + "1;d;0;1.5;;2.5;\r\n2;d;0;1,5;;2,5;\r\n"), 0);
        EXPECT_EQ(Y(0), (std::vector<double>{1.5, 1.5}));
        EXPECT_EQ(Y(1), (std::vector<double>{2.5, 2.5}));
    }
}

TEST_F(TraceCourbeEssai, TimeStampGetsNoTreatmentOfItsSeparator) {
    EXPECT_EQ(Charger(entete + "1,5;d;0;1.5;;0;\r\n"), numero_faute::typeIncompatible);
    fiche.etabli.systeme.regional.separateur = QStringLiteral(",");
    EXPECT_EQ(Charger(entete + "1.5;d;0;1.5;;0;\r\n"), numero_faute::typeIncompatible);
    EXPECT_EQ(Charger(entete + "1,5;d;0;1.5;;0;\r\n"), 0);
    EXPECT_EQ(Maxi, 1.5);
}

TEST_F(TraceCourbeEssai, ThirdSeparatorLosesTheValues) {
    fiche.etabli.systeme.regional.separateur = QString(QChar(0x066B));
    EXPECT_EQ(Charger(entete + "1;d;0;1.5;;2;\r\n"), 0);
    EXPECT_EQ(Serie(0).Nombre(), 0);
    EXPECT_EQ(Maxi, 1);
}

TEST_F(TraceCourbeEssai, LineHoldingTimeInACommentIsDropped) {
    Charger(entete + "1;d;0;1;;0;\r\n2;d;0;2;;0;Time off\r\n3;d;0;3;;0;\r\n");
    EXPECT_EQ(Y(0), (std::vector<double>{1, 3}));
}

TEST_F(TraceCourbeEssai, WordInPlaceOfAPressureRemovesTheFlowAndTheNextNumberEndsTheLoad) {
    EXPECT_EQ(Charger(entete + "1;d;0;1;;0\r\n2;d;0;abc;;0\r\n3;d;0;3;;0\r\n4;d;0;4;;0\r\n"),
              numero_faute::indice);
    ASSERT_EQ(fiche.graphe.NombreSeries(), 1);
    EXPECT_EQ(Y(0), std::vector<double>{1});
    EXPECT_EQ(Maxi, 2);
}

TEST_F(TraceCourbeEssai, RemovedFlowAtTheEndOfTheFileLeavesAnUntitledSmoothing) {
    EXPECT_EQ(Charger(entete + "1;d;0;1;;0\r\n2;d;0;abc;;0\r\n3;d;0;abc;;0\r\n"),
              numero_faute::indice);
    ASSERT_EQ(fiche.graphe.NombreSeries(), 2);
    EXPECT_EQ(Serie(1).TypeFonction(), 18);
    EXPECT_EQ(Serie(1).titre, "");
}

TEST_F(TraceCourbeEssai, FlowIsNotRemovedFromAChartOfSeveralFiles) {
    Charger(entete + "1;d;0;1;;0;\r\n", true, true);
    nom = QStringLiteral("second.txt");
    EXPECT_EQ(Charger(entete + "1;d;0;abc;;0\r\n2;d;0;1;;0\r\n", true, false), 0);
    EXPECT_EQ(fiche.graphe.NombreSeries(), 4);
}

TEST_F(TraceCourbeEssai, FaultsKeepThePointsSoFarAndMakeNoSmoothing) {
    const QByteArray debut = entete + "1;d;0;1;;0;\r\n";
    const std::vector<std::pair<QByteArray, int>> cas = {
        {"2;d;0;2;\r\n", numero_faute::indice},
        {"\r\n", numero_faute::indice},
        {"abc;d;0;2;;0;\r\n", numero_faute::typeIncompatible},
        {"abc;d;0;abc;;0;\r\n", numero_faute::typeIncompatible},
        {";d;0;2;;0;\r\n", numero_faute::typeIncompatible}};
    for (const auto& [ligne, numero] : cas) {
        EXPECT_EQ(Charger(debut + ligne + "3;d;0;3;;0;\r\n"), numero) << ligne.toStdString();
        EXPECT_EQ(fiche.graphe.NombreSeries(), 2);
        EXPECT_EQ(Y(0), std::vector<double>{1});
        EXPECT_EQ(fiche.curseur.size(), 3);
        EXPECT_EQ(Maxi, 1);
    }
}

TEST_F(TraceCourbeEssai, MissingFileLeavesTheChartAsItWas) {
    Charger(entete + "1;d;0;1;;0;\r\n");
    EXPECT_EQ(ChargerFichier(fiche.etabli.Chemin("none.txt")), numero_faute::fichierIntrouvable);
    EXPECT_EQ(fiche.graphe.NombreSeries(), 4);
    EXPECT_EQ(Maxi, 1);
    EXPECT_FALSE(QFile::exists(fiche.etabli.Chemin("none.err")));
}

TEST_F(TraceCourbeEssai, FolderInPlaceOfAFileIsRefused) {
    QDir(fiche.etabli.systeme.dossier).mkdir("folder.txt");
    EXPECT_EQ(ChargerFichier(fiche.etabli.Chemin("folder.txt")), numero_faute::accesRefuse);
}

TEST_F(TraceCourbeEssai, EmptyFileOrFirstLineReturnsWithTheChartAsItWas) {
    Charger(entete + "1;d;0;1;;0;\r\n");
    for (const QByteArray& contenu : {QByteArray(), "\r\n" + entete, "\n" + entete}) {
        fiche.chargement = true;
        fiche.fleches = 0;
        EXPECT_EQ(Charger(contenu), 0);
        EXPECT_FALSE(fiche.chargement);
        EXPECT_EQ(fiche.fleches, 1);
        EXPECT_EQ(fiche.graphe.NombreSeries(), 4);
        EXPECT_EQ(Y(0), std::vector<double>{1});
    }
}

TEST_F(TraceCourbeEssai, HeaderOfFewerThanFourFieldsEndsTheLoadWithUntitledSeries) {
    EXPECT_EQ(Charger("Temps;Date;Valeur\r\n1;d;0;1;;0;\r\n"), numero_faute::indice);
    EXPECT_EQ(fiche.graphe.NombreSeries(), 2);
    EXPECT_EQ(fiche.curseur.size(), 1);
}

TEST_F(TraceCourbeEssai, CompanionIsMadeEmptyAndAnExistingOneStays) {
    Charger(entete + "1;d;0;1;;0;\r\n");
    EXPECT_TRUE(QFile::exists(fiche.etabli.Chemin("2026-03-05.err")));
    EXPECT_EQ(fiche.etabli.Lire("2026-03-05.err"), "");
    fiche.etabli.Ecrire("2026-03-05.err", "End Parity Control");
    Charger(entete + "1;d;0;1;;0;\r\n");
    EXPECT_EQ(fiche.etabli.Lire("2026-03-05.err"), "End Parity Control");
}

TEST_F(TraceCourbeEssai, CompanionInOtherLettersIsTheCompanion) {
    fiche.etabli.Ecrire("2026-03-05.ERR", "old");
    Charger(entete + "1;d;0;1;;0;\r\n");
    EXPECT_EQ(fiche.etabli.Lire("2026-03-05.ERR"), "old");
    EXPECT_FALSE(QFile::exists(fiche.etabli.Chemin("2026-03-05.err")));
}

TEST_F(TraceCourbeEssai, CompanionIsMadeForAnEmptyFileToo) {
    Charger("");
    EXPECT_TRUE(QFile::exists(fiche.etabli.Chemin("2026-03-05.err")));
}

TEST_F(TraceCourbeEssai, CompanionRuleTouchesTheFileNameOnly) {
    const QString dossier = fiche.etabli.Chemin("old.txt files");
    QDir().mkpath(dossier);
    nom = QStringLiteral("old.txt files/a.txt");
    ASSERT_EQ(Charger(entete), 0);
    EXPECT_EQ(QDir(dossier).entryList(QDir::Files, QDir::Name), (QStringList{"a.err", "a.txt"}));
}

TEST_F(TraceCourbeEssai, FileWithoutTxtHasNoCompanion) {
    nom = QStringLiteral("data.csv");
    const auto avant = fiche.etabli.Fichiers();
    ASSERT_EQ(Charger(entete + "1;d;0;1;;0;\r\n"), 0);
    EXPECT_EQ(fiche.etabli.Fichiers().size(), avant.size() + 1);
    EXPECT_EQ(fiche.etabli.Lire(nom), entete + "1;d;0;1;;0;\r\n");
}

TEST_F(TraceCourbeEssai, CompanionThatCannotBeMadeIsIgnored) {
    // A dangling link cannot be opened for writing by anybody.
    QFile::link("/nonexistent/folder/x.err", fiche.etabli.Chemin("2026-03-05.err"));
    EXPECT_EQ(Charger(entete + "1;d;0;1;;0;\r\n"), 0);
    EXPECT_EQ(fiche.graphe.NombreSeries(), 4);
}

TEST_F(TraceCourbeEssai, UpperCaseNamesAreFoundByAnyCase) {
    nom = QStringLiteral("REC.TXT");
    ASSERT_EQ(Charger(entete + "1;d;0;1;;0;\r\n"), 0);
    EXPECT_TRUE(QFile::exists(fiche.etabli.Chemin("REC.err")));
    ASSERT_EQ(ChargerFichier(fiche.etabli.Chemin("rec.txt")), 0);
    EXPECT_EQ(Y(0), std::vector<double>{1});
    EXPECT_FALSE(QFile::exists(fiche.etabli.Chemin("rec.err")));
}

TEST_F(TraceCourbeEssai, FilesOfTwentyMillionBytesAreKeptWhole) {
    const QByteArray ligne = "1700000000000;14/11/2023 22:13:20:000;512;8.008;;0;\r\n";
    QByteArray contenu = entete;
    while (contenu.size() + 2 * ligne.size() <= 20'000'000)
        contenu += ligne;
    QByteArray derniere = ligne;
    derniere.insert(ligne.indexOf(";512"), 20'000'000 - contenu.size() - ligne.size(), ' ');
    contenu += derniere;
    ASSERT_EQ(contenu.size(), 20'000'000);
    const int lignes = static_cast<int>(contenu.count('\n')) - 1;
    ASSERT_EQ(Charger(contenu), 0);
    EXPECT_EQ(Serie(0).Nombre(), lignes);
    contenu.insert(contenu.size() - derniere.size(), "\x20");
    contenu.remove(contenu.size() - derniere.size() - 1, 1);
    contenu.insert(contenu.indexOf(";512"), ' ');
    ASSERT_EQ(contenu.size(), 20'000'001);
    ASSERT_EQ(Charger(contenu), 0);
    EXPECT_EQ(Serie(0).Nombre(), (lignes + 10) / 11);
}

}  // namespace
}  // namespace bornika::essai
