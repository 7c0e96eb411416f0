#include "setup/form_rules.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"

namespace bornika::essai {
namespace {

using RegleFormulaire = SurFormulaire;

TEST_F(RegleFormulaire, TheNumberOfMeasuresFitsAByte) {
    struct {
        const char* saisi;
        const char* montre;
    } const cas[] = {{"255", "255"}, {"256", "255"}, {"300", "255"}, {"abc", ""},
                     {"", ""},       {"0", "0"},     {"-4", "-4"},   {"255.9", "255.9"}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.saisi);
        ui.NbMesures->setText(QStringLiteral("7"));
        ui.NbMesures->setText(QString::fromLatin1(c.saisi));
        EXPECT_EQ(Clair(ui.NbMesures->text()), c.montre);
    }
}

TEST_F(RegleFormulaire, ACircularMemoryHasNoEndOfRecording) {
    EXPECT_TRUE(ui.BufferTournant->isChecked());
    ui.ResumeBuffer->clear();
    ui.BufferNonTournant->setChecked(true);
    EXPECT_FALSE(ui.Label5->isHidden());
    EXPECT_FALSE(ui.DerniereMesure->isHidden());
    EXPECT_FALSE(ui.ResumeBuffer->text().isEmpty());
    ui.ResumeBuffer->clear();
    ui.BufferTournant->setChecked(true);
    EXPECT_TRUE(ui.Label5->isHidden());
    EXPECT_TRUE(ui.DerniereMesure->isHidden());
    EXPECT_FALSE(ui.ResumeBuffer->text().isEmpty());
}

TEST_F(RegleFormulaire, AdvancedOptionsShowTheirFrames) {
    for (const std::int32_t type : {1, 19, 20, 5}) {
        for (const bool seuil : {false, true}) {
            for (const bool coche : {true, false}) {
                SCOPED_TRACE(testing::Message() << type << ' ' << seuil << ' ' << coche);
                ui.Check_advanced->setChecked(!coche);
                ecran.etat.TypekPod = type;
                (seuil ? ui.UnSeuil : ui.PasDeSeuil)->setChecked(true);
                ui.Check_advanced->setChecked(coche);
                EXPECT_EQ(!ui.Frame1->isHidden(), coche && seuil);
                for (const QWidget* cadre : {ui.Frame2, ui.Frame3, ui.Frame4, ui.Frame5}) {
                    EXPECT_EQ(!cadre->isHidden(), coche) << Clair(cadre->objectName());
                }
                EXPECT_EQ(!ui.FrameFlowParameter->isHidden(), coche && (type == 19 || type == 20));
            }
        }
    }
}

}  // namespace
}  // namespace bornika::essai
