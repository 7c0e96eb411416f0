#include "setup/pressure_scale.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"
#include "support/fault_number.h"

namespace bornika::essai {
namespace {

constexpr EchellePression seizeBar{0, 16};
constexpr double bar = 10000;
constexpr double psi = 145038;

TEST(PressionDePoints, TiesRoundAwayFromZero) {
    EXPECT_EQ(PressionDePoints(4, seizeBar, bar, false), 0.063);
    EXPECT_EQ(PressionDePoints(-4, seizeBar, bar, false), -0.063);
    EXPECT_EQ(PressionDePoints(12, seizeBar, bar, false), 0.188);
}

TEST(PressionDePoints, AScaleHas1024Steps) {
    EXPECT_EQ(PressionDePoints(0, {-1, 9}, bar, false), -1);
    EXPECT_EQ(PressionDePoints(1024, {-1, 9}, bar, false), 9);
    EXPECT_EQ(PressionDePoints(512, {-1, 9}, bar, false), 4);
}

TEST(PressionDePoints, PointsOutsideTheScaleGivePressuresOutsideIt) {
    EXPECT_EQ(PressionDePoints(2048, seizeBar, bar, false), 32);
    EXPECT_EQ(PressionDePoints(-64, seizeBar, bar, false), -1);
}

TEST(PressionDePoints, AbsoluteReadingIsLowerByOneAtmosphere) {
    EXPECT_EQ(PressionDePoints(0, seizeBar, bar, true), -1.024);
    EXPECT_EQ(PressionDePoints(0, {-1, 9}, bar, true), -2.024);
    EXPECT_EQ(PressionDePoints(0, seizeBar, psi, true), -14.852);
}

TEST(PressionDePoints, ResultsHaveAtMostThreeDecimals) {
    EXPECT_EQ(PressionDePoints(1, seizeBar, psi, false), 0.227);
    EXPECT_EQ(PressionDePoints(1, {0, 0.6}, bar, false), 0.001);
}

TEST(CorrigerPoints, OneHighFigureOfZeroMeansTheShiftOfTheLowPoint) {
    Etalonnage7 etalonnage{100, 104, 0, 900, 0, 2, 50};
    EXPECT_EQ(CorrigerPoints(10, etalonnage), 6);
    etalonnage = {100, 104, 900, 0, 0, 2, 50};
    EXPECT_EQ(CorrigerPoints(10, etalonnage), 6);
    etalonnage = {100, 104, 0, 0, 77, 2, 50};
    EXPECT_EQ(CorrigerPoints(10, etalonnage), 6);
}

TEST(CorrigerPoints, TwoPointsUseSlopeAndOffset) {
    const Etalonnage7 etalonnage{100, 104, 900, 904, 33, 2, 50};
    EXPECT_EQ(CorrigerPoints(10, etalonnage), 70);
}

TEST(PointsDePression, AboveTheScaleItIsTheTopAndTheCallersValueIsClamped) {
    double pression = 20;
    EXPECT_EQ(PointsDePression(pression, seizeBar, bar, false), 1024);
    EXPECT_EQ(pression, 16);
}

TEST(PointsDePression, BelowTheScaleItIsTheBottomAndTheCallersValueIsClamped) {
    double pression = -3;
    EXPECT_EQ(PointsDePression(pression, {-1, 9}, bar, false), 0);
    EXPECT_EQ(pression, -1);
}

TEST(PointsDePression, TheCallersValueComesBackInBaseUnits) {
    double pression = 14.5038;
    EXPECT_EQ(PointsDePression(pression, seizeBar, psi, false), 64);
    EXPECT_DOUBLE_EQ(pression, 1);
}

TEST(PointsDePression, AbsolutePressureAddsOneAtmosphere) {
    double pression = 0;
    EXPECT_EQ(PointsDePression(pression, seizeBar, bar, true), 65.536);
    EXPECT_EQ(pression, 1.024);
}

TEST(PointsDePression, PointsKeepThreeDecimals) {
    double pression = 1.0 / 3;
    EXPECT_EQ(PointsDePression(pression, seizeBar, bar, false), 21.333);
}

TEST(PointsDePression, ACoefficientOfZeroIsADivisionFault) {
    double pression = 1;
    EXPECT_EQ(NumeroDeFaute([&] { PointsDePression(pression, seizeBar, 0, false); }),
              numero_faute::divisionParZero);
}

TEST(PointsDePression, AnEmptyScaleIsAFault) {
    double pression = 5;
    EXPECT_NE(NumeroDeFaute([&] { PointsDePression(pression, {4, 4}, bar, false); }), 0);
}

TEST(LimiteSeuil, HasOneDecimal) {
    EXPECT_EQ(LimiteSeuil(16, bar), 16);
    EXPECT_EQ(LimiteSeuil(16, psi), 232.1);
    EXPECT_EQ(LimiteSeuil(0.6, bar), 0.6);
}

using EchelleDuFormulaire = SurFormulaire;

TEST_F(EchelleDuFormulaire, ConversionsUseScaleUnitAndCalibrationOfTheForm) {
    EXPECT_EQ(Donne_Pression(ecran, 4, false, false), 0.063);
    ecran.etat.etalonnage = {100, 104, 0, 0, -4, 0, 0};
    EXPECT_EQ(Donne_Pression(ecran, 8, true, false), 0.063);
    EXPECT_EQ(Donne_Pression(ecran, 4, false, false), 0.063);
    ecran.etat.etalonnage = {100, 104, 900, 904, 0, 2, 4};
    EXPECT_EQ(Donne_Pression(ecran, 30, true, false), 1);
    EXPECT_EQ(Donne_Pression(ecran, 0, false, true), -1.024);
}

TEST_F(EchelleDuFormulaire, ThresholdPointsAreUncorrected) {
    ecran.etat.etalonnage = {100, 104, 900, 904, 0, 2, 4};
    double pression = 1;
    EXPECT_EQ(Donne_Points(ecran, pression, false), 64);
}

TEST_F(EchelleDuFormulaire, TheLocaleHasNoPartInTheConversions) {
    banc.ReglerSeparateur(QStringLiteral(","));
    EXPECT_EQ(Donne_Pression(ecran, 4, false, false), 0.063);
    double pression = 1.5;
    EXPECT_EQ(Donne_Points(ecran, pression, true), 161.536);
}

TEST_F(EchelleDuFormulaire, WithoutAUnitTheConversionIsAFault) {
    ui.ListeUnites->Choisir(-1);
    banc.etabli.fautes.clear();
    double pression = 1;
    EXPECT_NE(NumeroDeFaute([&] { Donne_Pression(ecran, 4, false, false); }), 0);
    EXPECT_NE(NumeroDeFaute([&] { Donne_Points(ecran, pression, false); }), 0);
}

TEST_F(EchelleDuFormulaire, ChoosingAScaleReadsItsLimits) {
    ui.ListeEchelles->Choisir(6);
    EXPECT_EQ(ecran.etat.Mini, -1);
    EXPECT_EQ(ecran.etat.Maxi, 9);
    ui.ListeEchelles->Choisir(2);
    EXPECT_EQ(ecran.etat.Mini, 0);
    EXPECT_EQ(ecran.etat.Maxi, 2.5);
}

TEST_F(EchelleDuFormulaire, ChoosingAScaleClearsThresholdsBeforeItsLimitsAreRead) {
    ui.PressionAbsolue->setChecked(true);
    ui.Seuil1->setText(QStringLiteral("3"));
    ui.Seuil2->setText(QStringLiteral("4"));
    std::vector<double> maximums;
    QObject::connect(ui.Seuil1, &QLineEdit::textChanged, &ecran,
                     [&] { maximums.push_back(ecran.etat.Maxi); });
    QObject::connect(ui.Seuil2, &QLineEdit::textChanged, &ecran,
                     [&] { maximums.push_back(ecran.etat.Maxi); });
    ui.ListeEchelles->Choisir(1);
    EXPECT_EQ(maximums, (std::vector<double>{16, 16}));
    EXPECT_EQ(ecran.etat.Maxi, 1);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "0");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "0");
    EXPECT_FALSE(ui.PressionAbsolue->isChecked());
}

TEST_F(EchelleDuFormulaire, AMissingScaleKeepsTheLimits) {
    ui.ListeEchelles->Choisir(6);
    ui.ListeEchelles->Choisir(-1);
    EXPECT_EQ(ecran.etat.Mini, -1);
    EXPECT_EQ(ecran.etat.Maxi, 9);
}

TEST_F(EchelleDuFormulaire, ChoosingAUnitClearsThresholdsAndRefreshesTheSummary) {
    ui.Seuil1->setText(QStringLiteral("3"));
    ui.Seuil2->setText(QStringLiteral("4"));
    ui.ResumeAcquisition->clear();
    ui.ListeUnites->Choisir(0);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "0");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "0");
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 15 minutes");
}

TEST_F(EchelleDuFormulaire, AUnitChangeRefreshesTheSummaryAlsoWhenThresholdsStayZero) {
    ui.ResumeAcquisition->clear();
    ui.ListeUnites->Choisir(0);
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
}

TEST_F(EchelleDuFormulaire, OneThresholdShowsItsStoredTextWithTheUnit) {
    ui.UnSeuil->setChecked(true);
    ecran.textes.TexteSeuil = QStringLiteral("Gardé");
    ui.ListeUnites->Choisir(2);
    EXPECT_EQ(Clair(ui.LabelSeuil1->text()), "Gardé (mbar)");
}

TEST_F(EchelleDuFormulaire, TwoThresholdsLookTheirTextsUpAgain) {
    ui.DeuxSeuils->setChecked(true);
    ecran.textes.TexteLimiteBasse = QStringLiteral("vieux");
    ecran.textes.TexteLimiteHaute = QStringLiteral("vieux");
    ui.ListeUnites->Choisir(0);
    EXPECT_EQ(Clair(ui.LabelSeuil1->text()), "Limite basse (psi)");
    EXPECT_EQ(Clair(ui.LabelSeuil2->text()), "Limite haute (psi)");
    EXPECT_EQ(Clair(ecran.textes.TexteLimiteBasse), "Limite basse");
    EXPECT_EQ(Clair(ecran.textes.TexteLimiteHaute), "Limite haute");
}

TEST_F(EchelleDuFormulaire, WithoutThresholdsTheCaptionsStay) {
    ui.LabelSeuil1->setText(QStringLiteral("un"));
    ui.LabelSeuil2->setText(QStringLiteral("deux"));
    ui.ListeUnites->Choisir(0);
    EXPECT_EQ(Clair(ui.LabelSeuil1->text()), "un");
    EXPECT_EQ(Clair(ui.LabelSeuil2->text()), "deux");
}

}  // namespace
}  // namespace bornika::essai
