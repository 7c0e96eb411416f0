#include "logger/parameter_replies.h"

#include <gtest/gtest.h>

#include "link/command_table.h"

namespace bornika::essai {
namespace {

TEST(ReponsesDesParametres, VersionBatteryAndMemorySize) {
    const Octets reponse{9, 20, 2, 7, 120, 1, 150, 4, 0};
    const auto lue = VersionLueDe(reponse);
    ASSERT_TRUE(lue.has_value());
    EXPECT_EQ(lue->type, 20);
    EXPECT_EQ(lue->haut, 2);
    EXPECT_EQ(lue->bas, 120);
    EXPECT_EQ(lue->pile, 406);
    EXPECT_EQ(lue->codeTaille, 4);
}

TEST(ReponsesDesParametres, TheSerialNumberHasNoSign) {
    EXPECT_EQ(NumeroSerieDe(Octets{6, 1, 2, 255, 254, 253, 252, 0}), 4294901244.0);
}

TEST(ReponsesDesParametres, TheCalibratedSensorIsRoundedHalfToEven) {
    const auto lu = CapteurEtalonneDe(Octets{28, 0, 1, 0, 2, 0x38, 0, 0});
    ASSERT_TRUE(lu.has_value());
    EXPECT_EQ(lu->date, 65538);
    EXPECT_EQ(lu->echelle, 4);
}

TEST(ReponsesDesParametres, ACalibrationPointComesWithTheStateOfTheCalibration) {
    const PointLu lu = PointLuDe(Octets{26, 1, 64, 1, 60, 2, 0, 0});
    EXPECT_EQ(lu.issue, PointLu::Issue::Point);
    EXPECT_EQ(lu.point.valeur, 320);
    EXPECT_EQ(lu.point.mesure, 316);
    EXPECT_EQ(lu.etat, 2);
}

TEST(ReponsesDesParametres, NextMeasureAndStart) {
    const auto lue = ProchaineMesureDe(Octets{2, 0, 0, 1, 1, 28, 32, 9});
    ASSERT_TRUE(lue.has_value());
    EXPECT_EQ(lue->date, 257);
    EXPECT_EQ(lue->periode, 7200);
    EXPECT_EQ(lue->nombreAvant, 9);
    EXPECT_EQ(DemarrageDe(Octets{17, 255, 255, 255, 255, 0, 0, 0}), 4294967295.0);
}

TEST(ReponsesDesParametres, TheClockWithThePeriodAfterTheTriggerAndTheCard) {
    const auto lue = HorlogeLueDe(Octets{8, 0, 0, 0, 7, 0, 16, 1});
    ASSERT_TRUE(lue.has_value());
    EXPECT_EQ(lue->date, 7);
    EXPECT_EQ(lue->periodeTrigger, 16);
    EXPECT_TRUE(lue->carte);
}

TEST(ReponsesDesParametres, OnlyAOneTellsOfACardWhateverTheEcho) {
    EXPECT_TRUE(EstCartePresente(Octets{99, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_FALSE(EstCartePresente(Octets{8, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(EstCartePresente(Octets{8, 0, 0, 0, 0, 0, 0, 255}));
}

TEST(ReponsesDesParametres, ModeThresholdsScaleAndUnit) {
    const auto lu = ModeLuDe(Octets{4, 138, 1, 175, 2, 175, 0x31, 0});
    ASSERT_TRUE(lu.has_value());
    EXPECT_EQ(lu->mode, (ModeEnregistrement{2, false, true, false, true}));
    EXPECT_EQ(lu->seuil1, 431);
    EXPECT_EQ(lu->seuil2, 687);
    EXPECT_EQ(lu->echelle, 3);
    EXPECT_EQ(lu->unite, 1);
}

TEST(ReponsesDesParametres, SevenCharactersOfTheCommentWhateverTheEcho) {
    EXPECT_EQ(MoitieCommentaireDe(Octets{0, 'F', 'o', 0xEA, ' ', 0, '6', '7'}),
              QByteArray("Fo\xEA \0"
                         "67",
                         7));
}

TEST(ReponsesDesParametres, APointerIsThatOfItsCommand) {
    const auto lu = PointeurLuDe(Octets{22, 1, 44, 1, 1, 1, 0, 0}, CMD_POINTEUR_LECTURE);
    ASSERT_TRUE(lu.has_value());
    EXPECT_EQ(lu->page, 300);
    EXPECT_EQ(lu->offset, 257);
    EXPECT_EQ(lu->r5, 1);
    EXPECT_FALSE(PointeurLuDe(Octets{22, 1, 44, 1, 1, 1, 0, 0}, CMD_POINTEUR_ECRITURE));
}

TEST(ReponsesDesParametres, NothingComesOfAnAnswerToAnotherCommand) {
    const Octets reponse{99, 1, 1, 1, 1, 1, 1, 1};
    EXPECT_FALSE(VersionLueDe(reponse));
    EXPECT_FALSE(NumeroSerieDe(reponse));
    EXPECT_FALSE(CapteurEtalonneDe(reponse));
    EXPECT_FALSE(ProchaineMesureDe(reponse));
    EXPECT_FALSE(DemarrageDe(reponse));
    EXPECT_FALSE(HorlogeLueDe(reponse));
    EXPECT_FALSE(ModeLuDe(reponse));
    EXPECT_EQ(PointLuDe(reponse).issue, PointLu::Issue::AutreEcho);
}

}  // namespace
}  // namespace bornika::essai
