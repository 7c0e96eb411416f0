#include "calibration/calibration_messages.h"

#include <gtest/gtest.h>

namespace bornika {
namespace {

Tampon TamponDe(std::initializer_list<int> octets) {
    Tampon tampon{};
    std::size_t i = 1;
    for (const int octet : octets)
        tampon[i++] = static_cast<std::uint8_t>(octet);
    return tampon;
}

TEST(CalibrationVersion, JoinsTheTextsOfFourBytes) {
    EXPECT_DOUBLE_EQ(VersionEtalonnage(TamponDe({9, 0, 2, 0, 89, 1, 150, 4, 0})), 2.089);
    EXPECT_DOUBLE_EQ(VersionEtalonnage(TamponDe({9, 1, 2, 0, 89})), 12.089);
    EXPECT_DOUBLE_EQ(VersionEtalonnage(TamponDe({9, 0, 0, 0, 0})), 0);
    EXPECT_DOUBLE_EQ(VersionEtalonnage(TamponDe({9, 255, 255, 255, 255})), 255255255.255);
    EXPECT_DOUBLE_EQ(VersionEtalonnage(TamponDe({9, 1, 0, 8, 9})), 1.089);
}

TEST(CalibrationVersion, IsOldUpToItsLimit) {
    EXPECT_TRUE(EstAncienFirmware(TamponDe({9, 0, 2, 0, 89})));
    EXPECT_FALSE(EstAncienFirmware(TamponDe({9, 0, 2, 0, 90})));
    EXPECT_TRUE(EstAncienFirmware(TamponDe({9, 0, 0, 2, 88})));
}

TEST(CalibrationVersion, IsNewForEveryOrdinaryProduct) {
    EXPECT_FALSE(EstAncienFirmware(TamponDe({9, 1, 2, 0, 89})));
    EXPECT_FALSE(EstAncienFirmware(TamponDe({9, 19, 2, 0, 89})));
}

TEST(CalibrationVersion, IsNewBehindAnotherEcho) {
    EXPECT_FALSE(EstAncienFirmware(TamponDe({8, 0, 2, 0, 89})));
    EXPECT_FALSE(EstAncienFirmware(TamponDe({0, 0, 0, 0, 0})));
}

TEST(CalibrationDate, HasSecondsWithoutSignScaleAndUnit) {
    const DateEtalonnage date = DateDe(TamponDe({28, 0xFF, 0xA9, 0x8E, 0x0D, 0x31, 0, 0}));
    EXPECT_EQ(date.secondes, 4289302029.0);
    EXPECT_EQ(date.echelle, 3);
    EXPECT_EQ(date.unite, 1);
}

TEST(CalibrationDate, TakesTheWholePartOfTheScale) {
    // 0x1F is 1.94 sixteenths: the scale of a reading would be rounded to 2.
    EXPECT_EQ(DateDe(TamponDe({28, 0, 0, 0, 1, 0x1F})).echelle, 1);
    EXPECT_EQ(DateDe(TamponDe({28, 0, 0, 0, 1, 0x1F})).unite, 15);
    EXPECT_EQ(DateDe(TamponDe({28, 0, 0, 0, 1, 0xF0})).echelle, 15);
}

TEST(CalibrationPair, IsReferenceThenMeasureWhateverTheEcho) {
    for (const int echo : {26, 7}) {
        const PointEtalonnage point = PointDe(TamponDe({echo, 0x01, 0x40, 0x01, 0x3C, 0, 0, 0}));
        EXPECT_EQ(point.valeur, 320);
        EXPECT_EQ(point.mesure, 316);
    }
}

TEST(CalibrationPair, IsKeptWithoutTouchingWhatIsMadeOfIt) {
    Etalonnage7 etalonnage{1, 2, 3, 4, 5, 6, 7};
    RetenirPaireBasse(etalonnage, {320, 316});
    RetenirPaireHaute(etalonnage, {768, 770});
    EXPECT_EQ(etalonnage.valeur_etalonnage_bas, 320);
    EXPECT_EQ(etalonnage.mesure_etalonnage_bas, 316);
    EXPECT_EQ(etalonnage.valeur_etalonnage_haut, 768);
    EXPECT_EQ(etalonnage.mesure_etalonnage_haut, 770);
    EXPECT_EQ(etalonnage.correction_etalonnage, 5);
    EXPECT_EQ(etalonnage.pente_etalonnage, 6);
    EXPECT_EQ(etalonnage.offset_etalonnage, 7);
}

TEST(CalibrationPair, OfTwoZerosIsNone) {
    EXPECT_TRUE(AUnPoint({1, 2, 0, 0, 5, 6, 7}));
    EXPECT_FALSE(AUnPoint({1, 2, 3, 0, 5, 6, 7}));
    EXPECT_FALSE(AUnPoint({1, 2, 0, 4, 5, 6, 7}));
}

TEST(CalibrationRequest, CarriesTheBytesOfTheVersionReplyBehindItsOwn) {
    const Tampon version = TamponDe({9, 1, 2, 7, 110, 1, 150, 4, 99});
    EXPECT_EQ(TramePoint(320, 1, version), (Octets{24, 1, 64, 1, 7, 110, 1, 150}));
    EXPECT_EQ(TrameDate(1772719629, 3, 2, version),
              (Octets{27, 0x69, 0xA9, 0x8E, 0x0D, 0x32, 1, 150}));
}

TEST(CalibrationRequest, RoundsThePointsHalfToEven) {
    const Tampon version{};
    EXPECT_EQ(TramePoint(255.5, 2, version), (Octets{24, 1, 0, 2, 0, 0, 0, 0}));
    EXPECT_EQ(TramePoint(256.5, 2, version), (Octets{24, 1, 0, 2, 0, 0, 0, 0}));
    EXPECT_EQ(TramePoint(1024, 2, version), (Octets{24, 4, 0, 2, 0, 0, 0, 0}));
}

TEST(CalibrationCaption, TakesItsNumberAndLosesItAgainWithoutGrowing) {
    const QString nu = QStringLiteral("Pression réelle");
    EXPECT_EQ(AvecNumero(nu, 1), QStringLiteral("Pression réelle  1 "));
    QString caption = nu;
    for (int i = 0; i < 5; ++i) {
        caption = AvecNumero(SansNumero(caption), 2);
        EXPECT_EQ(caption, QStringLiteral("Pression réelle  2 "));
    }
    EXPECT_EQ(SansNumero(caption), nu);
    EXPECT_EQ(SansNumero(AvecNumero(nu, 1)), nu);
}

TEST(CalibrationCaption, LosesNoNumberThatIsNone) {
    EXPECT_EQ(SansNumero(QStringLiteral(" P1 2e ")), QStringLiteral("P1 2e"));
    EXPECT_EQ(SansNumero(QStringLiteral("a 1 b 2 c")), QStringLiteral("abc"));
}

}  // namespace
}  // namespace bornika
