#include "exchange_support.h"

namespace bornika::essai {
namespace {

/// Date and scale byte, as the calibration form sends them behind a point.
void EnvoyerDate(EnregistreurSimule& logger) {
    Reponse(logger, {27, 0x69, 0xA9, 0x0D, 0x1D, 0x31, 0, 0});
}

TEST(CalibrationStates, NeverCalibratedMeansDateZero) {
    EnregistreurSimule logger;
    EXPECT_EQ(ReponseA(logger, 28), Octets8({28, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(CalibrationStates, DateAndScaleAreHeldLowByteFirst) {
    EnregistreurSimule logger;
    EnvoyerDate(logger);
    EXPECT_EQ(ReponseA(logger, 28), Octets8({28, 0x69, 0xA9, 0x0D, 0x1D, 0x31, 0, 0}));
    EXPECT_EQ(Memoire(logger, 76, 5), Octets8({0x1D, 0x0D, 0xA9, 0x69, 0x31}));
}

TEST(CalibrationStates, ReferencePointsAreHeldLowByteFirst) {
    EnregistreurSimule logger;
    Reponse(logger, {24, 0x01, 0x40, 1, 0, 0, 0, 0});
    Reponse(logger, {24, 0x03, 0x20, 2, 0, 0, 0, 0});
    EXPECT_EQ(Memoire(logger, 68, 2), Octets8({0x40, 0x01}));
    EXPECT_EQ(Memoire(logger, 72, 2), Octets8({0x20, 0x03}));
}

TEST(CalibrationStates, OnePointIsMeasuredOffTheCordAndEnded) {
    EnregistreurSimule logger;
    Reponse(logger, {24, 0x01, 0x40, 1, 0, 0, 0, 0});
    EnvoyerDate(logger);
    EXPECT_EQ(logger.memoire.Octet(67), 1);
    logger.MettreSurCapteur(317);
    // In calibration until the end command: selectors 0 and 1 say so.
    EXPECT_EQ(Reponse(logger, {26, 0, 0, 0, 0, 0, 0, 0}),
              Octets8({26, 0x01, 0x40, 0x01, 0x3D, 1, 0, 0}));
    EXPECT_EQ(Reponse(logger, {26, 1, 0, 0, 0, 0, 0, 0}).at(5), 1);
    ReponseA(logger, 25);
    EXPECT_EQ(Reponse(logger, {26, 1, 0, 0, 0, 0, 0, 0}),
              Octets8({26, 0x01, 0x40, 0x01, 0x3D, 0, 0, 0}));
    EXPECT_EQ(Reponse(logger, {26, 2, 0, 0, 0, 0, 0, 0}), Octets8({26, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(CalibrationStates, TheSecondPointIsInCalibrationUnderItsOwnSelector) {
    EnregistreurSimule logger;
    Reponse(logger, {24, 0, 102, 1, 0, 0, 0, 0});
    logger.MettreSurCapteur(104);
    Reponse(logger, {24, 0x03, 0x34, 2, 0, 0, 0, 0});
    logger.MettreSurCapteur(815);
    EXPECT_EQ(Reponse(logger, {26, 1, 0, 0, 0, 0, 0, 0}), Octets8({26, 0, 102, 0, 104, 2, 0, 0}));
    EXPECT_EQ(Reponse(logger, {26, 2, 0, 0, 0, 0, 0, 0}),
              Octets8({26, 0x03, 0x34, 0x03, 0x2F, 2, 0, 0}));
    ReponseA(logger, 25);
    EXPECT_EQ(Reponse(logger, {26, 2, 0, 0, 0, 0, 0, 0}).at(5), 0);
}

TEST(CalibrationStates, WithoutAStayOnTheSensorTheNextCommandMeasuresWhatTheSensorSees) {
    EnregistreurSimule logger;
    logger.pointsCapteur = 10;
    Reponse(logger, {24, 0, 102, 1, 0, 0, 0, 0});
    EnvoyerDate(logger);
    logger.pointsCapteur = 99;
    ReponseA(logger, 9);
    EXPECT_EQ(logger.memoire.Mot(70), 99);
    logger.pointsCapteur = 500;
    ReponseA(logger, 9);
    EXPECT_EQ(logger.memoire.Mot(70), 99) << "measured once";
}

TEST(CalibrationStates, OnAReferenceTheSensorIsUnderThePressureOfEachPoint) {
    EnregistreurSimule logger;
    logger.BrancherReference([](int reference) { return 2 * reference; });
    Reponse(logger, {24, 0, 102, 1, 0, 0, 0, 0});
    ReponseA(logger, 9);
    Reponse(logger, {24, 1, 0, 2, 0, 0, 0, 0});
    ReponseA(logger, 9);
    EXPECT_EQ(logger.memoire.Mot(70), 204);
    EXPECT_EQ(logger.memoire.Mot(74), 512);
}

TEST(CalibrationStates, ANewFirstPointGivesUpTheSecondOne) {
    EnregistreurSimule logger;
    logger.ReglerEtalonnage(1000, 0x01, 102, 104, 820, 815);
    Reponse(logger, {24, 0, 50, 1, 0, 0, 0, 0});
    EXPECT_EQ(Memoire(logger, 72, 4), Octets8({0, 0, 0, 0}));
}

}  // namespace
}  // namespace bornika::essai
