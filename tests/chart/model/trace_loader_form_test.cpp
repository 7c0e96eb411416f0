#include <gtest/gtest.h>

#include "chart/model/loader_form_double.h"
#include "chart/model/trace_loader.h"

namespace bornika::essai {
namespace {

/// What the loading does to the controls of its form.
class ChargementFiche : public ::testing::Test {
  protected:
    void Charger(const QByteArray& contenu, bool Reload = false) {
        fiche.etabli.Ecrire("a.txt", contenu);
        double Mini = 0;
        double Maxi = 0;
        ignorer([&] {
            TraceCourbe(fiche, fiche.etabli.Chemin("a.txt"), true, false, Mini, Maxi, Reload);
        });
    }
    void ChargerEntete(const QByteArray& champ5, const QByteArray& champ6, bool Reload = false) {
        Charger("t;d;v;P;u;" + champ5 + ";" + champ6 + "\r\n1;d;0;1;;2;\r\n", Reload);
    }
    double Debit() { return fiche.graphe.Serie(1).Y()[0]; }

    FicheNotee fiche;
};

TEST_F(ChargementFiche, DeviceHeaderClearsTheTimeUnitAndShowsTheRawRate) {
    fiche.coefficient = "5";
    fiche.indexTemps = 1;
    Charger(entete + "1;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.choixTemps, std::vector<int>{-1});
    EXPECT_EQ(fiche.unite, "M3/sec.");
    EXPECT_EQ(fiche.coefficient, "5");
    EXPECT_EQ(Debit(), 2);
    EXPECT_EQ(fiche.graphe.Serie(1).titre, "M3/sec.");
}

TEST_F(ChargementFiche, RefreshKeepsTheSettingsOfTheForm) {
    fiche.coefficient = "5";
    fiche.unite = "m3";
    fiche.indexTemps = 1;
    Charger(entete + "1;d;0;1;;2;\r\n", true);
    EXPECT_TRUE(fiche.choixTemps.empty());
    EXPECT_EQ(Debit(), 600);
    EXPECT_EQ(fiche.graphe.Serie(1).titre, "m3/Min");
    EXPECT_EQ(fiche.graphe.droite.titre, "m3/Min");
    EXPECT_EQ(fiche.curseur[2], "m3/Min");
    ChargerEntete("comptage (9)", "l/DAY", true);
    EXPECT_EQ(fiche.coefficient, "5");
    EXPECT_EQ(fiche.unite, "m3");
}

TEST_F(ChargementFiche, CoefficientHeaderSetsCoefficientUnitAndTimeUnit) {
    ChargerEntete("comptage (2.5)", " m3 / hrs ");
    EXPECT_EQ(fiche.coefficient, "2.5");
    EXPECT_EQ(fiche.unite, "m3");
    EXPECT_EQ(fiche.indexTemps, 2);
    EXPECT_EQ(Debit(), 2 * 2.5 * 3600);
    EXPECT_EQ(fiche.graphe.Serie(1).titre, "m3/Hrs");
}

TEST_F(ChargementFiche, EachTimeUnitHasItsPosition) {
    int position = 0;
    for (const char* unite : {"l/Sec", "l/mIn", "l/HRS", "l/day"}) {
        ChargerEntete("(1)", unite);
        EXPECT_EQ(fiche.indexTemps, position++) << unite;
    }
}

TEST_F(ChargementFiche, UnknownTimeUnitLeavesTheSelection) {
    fiche.indexTemps = 3;
    ChargerEntete("comptage (2)", "m3/XYZ");
    EXPECT_EQ(fiche.indexTemps, 3);
    EXPECT_TRUE(fiche.choixTemps.empty());
    EXPECT_EQ(fiche.unite, "m3");
}

TEST_F(ChargementFiche, ParenthesisAfterTheCoefficientIsRemoved) {
    ChargerEntete("x(2.5))", "l/SEC");
    EXPECT_EQ(fiche.coefficient, "2.5");
}

TEST_F(ChargementFiche, ThreePartsAreNoCoefficientHeader) {
    fiche.indexTemps = 1;
    ChargerEntete("a(b(c", "m3/HRS");
    EXPECT_EQ(fiche.indexTemps, -1);
    EXPECT_EQ(fiche.unite, "m3/HRS");
    EXPECT_EQ(fiche.coefficient, "");
    ChargerEntete("a(2)", "m3/HRS/x");
    EXPECT_EQ(fiche.unite, "m3/HRS/x");
}

TEST_F(ChargementFiche, ShortHeaderChangesNoFlowSetting) {
    fiche.indexTemps = 1;
    Charger("t;d;v;P;u;comptage\r\n1;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.indexTemps, 1);
    EXPECT_EQ(fiche.unite, "Imp.");
}

TEST_F(ChargementFiche, CoefficientThatIsNoNumberShowsTheRawRate) {
    fiche.coefficient = "abc";
    fiche.indexTemps = 1;
    Charger(entete + "1;d;0;1;;2;\r\n", true);
    EXPECT_EQ(Debit(), 2);
}

TEST_F(ChargementFiche, TitleIsTheWholeCommentBelowThreeLines) {
    for (const auto& [commentaire, titre] :
         std::vector<std::pair<QString, QString>>{{"one", "one"},
                                                  {"one\r\ntwo", "onetwo"},
                                                  {"one\r\ntwo\r\nthree", "one"},
                                                  {"one\r\ntwo\r\n", "one"},
                                                  {"", ""}}) {
        fiche.commentaires = commentaire;
        fiche.graphe.titre = QStringList{"old", "lines"};
        Charger(entete);
        EXPECT_EQ(fiche.graphe.titre, QStringList{titre});
    }
}

TEST_F(ChargementFiche, EmptyCommentTakesTheNameOfTheEvent) {
    fiche.nomEvenement = "Burst";
    Charger(entete);
    EXPECT_EQ(fiche.lecturesCommentaires, 1);
    EXPECT_EQ(fiche.commentaires, "Burst");
    EXPECT_EQ(fiche.graphe.titre, QStringList{"Burst"});
    fiche.nomEvenement = "Other";
    Charger(entete);
    EXPECT_EQ(fiche.commentaires, "Burst");
}

TEST_F(ChargementFiche, EmptyCommentTakesTheNameOfTheEventWithoutAFileToo) {
    fiche.nomEvenement = "Burst";
    double Mini = 0;
    double Maxi = 0;
    ignorer([&] {
        TraceCourbe(fiche, fiche.etabli.Chemin("none.txt"), true, false, Mini, Maxi, false);
    });
    EXPECT_EQ(fiche.commentaires, "Burst");
    EXPECT_TRUE(fiche.graphe.titre.isEmpty());
}

TEST_F(ChargementFiche, BarAdvancesByTheLengthsOfTheLines) {
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.maximumBarre, entete.size() + 2 * 13);
    EXPECT_EQ(fiche.valeurBarre, 2 * 11);
}

TEST_F(ChargementFiche, BarShowsTheLineThatEndedTheLoad) {
    Charger(entete + "1;d;0;1;;2;\r\nabc;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.valeurBarre, 11 + 13);
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0\r\n");
    EXPECT_EQ(fiche.valeurBarre, 11);
}

TEST_F(ChargementFiche, BarStopsBelowItsMaximum) {
    Charger("h;;;P\n1;d;0;1;;2;");
    EXPECT_EQ(fiche.maximumBarre, 17);
    EXPECT_EQ(fiche.valeurBarre, 11);
    fiche.pendantCession = [this] { fiche.maximumBarre = 10; };
    Charger("h;;;P\n1;d;0;1;;2;");
    EXPECT_EQ(fiche.valeurBarre, 0);
}

TEST_F(ChargementFiche, YieldsTwiceForEachLine) {
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n3;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.cessions, 6);
}

TEST_F(ChargementFiche, CurveGrowsWhileTheFileLoads) {
    fiche.graphe.pasRedessin = std::chrono::milliseconds(0);
    std::vector<int> dessines;
    fiche.graphe.quandRedessiner = [&] { dessines.push_back(fiche.graphe.Serie(0).Nombre()); };
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n3;d;0;1;;2;\r\n");
    EXPECT_EQ(dessines, (std::vector<int>{0, 0, 1, 1, 2, 2}));
}

TEST_F(ChargementFiche, RedrawsComeNoMoreOftenThanTheirStep) {
    EXPECT_EQ(fiche.graphe.pasRedessin, std::chrono::milliseconds(50));
    fiche.graphe.pasRedessin = std::chrono::seconds(20);
    int dessins = 0;
    fiche.graphe.quandRedessiner = [&] { ++dessins; };
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n3;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.cessions, 6);
    EXPECT_EQ(dessins, 1);
}

TEST_F(ChargementFiche, SettingsChangedDuringTheLoadCountFromTheNextLineOn) {
    fiche.coefficient = "1";
    fiche.indexTemps = 0;
    fiche.pendantCession = [this] {
        if (fiche.cessions == 3) fiche.coefficient = "10";
    };
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n", true);
    const auto y = fiche.graphe.Serie(1).Y();
    EXPECT_EQ(std::vector<double>(y.begin(), y.end()), (std::vector<double>{2, 20}));
}

TEST_F(ChargementFiche, ClosingTheFormEndsTheLoadAtTheNextYield) {
    fiche.pendantCession = [this] { fiche.fermeture = fiche.cessions >= 3; };
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n3;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.cessions, 3);
    EXPECT_EQ(fiche.graphe.NombreSeries(), 2);
    EXPECT_EQ(fiche.graphe.Serie(0).Nombre(), 1);
}

TEST_F(ChargementFiche, SeriesTakenAwayDuringTheLoadEndIt) {
    fiche.pendantCession = [this] {
        if (fiche.cessions == 3) fiche.graphe.RetirerTout();
    };
    Charger(entete + "1;d;0;1;;2;\r\n2;d;0;1;;2;\r\n3;d;0;1;;2;\r\n");
    EXPECT_EQ(fiche.cessions, 4);
    EXPECT_EQ(fiche.graphe.NombreSeries(), 0);
}

}  // namespace
}  // namespace bornika::essai
