#include "logger/memory_pointers.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"

namespace bornika::essai {
namespace {

using simulateur::GenrePanne;

constexpr double capacite = 540606;
constexpr double page = 526;

TEST(OctetsOccupes, AreTheDistanceOfThePointers) {
    EXPECT_EQ(OctetsOccupes(11 * page, 10 * page, false, capacite, capacite), 526);
    EXPECT_EQ(OctetsOccupes(10 * page, 11 * page, false, capacite, capacite), 526);
}

TEST(OctetsOccupes, EqualPointersAreEmptyOrFullByTheirFlag) {
    EXPECT_EQ(OctetsOccupes(page, page, true, capacite, capacite), 0);
    EXPECT_EQ(OctetsOccupes(page, page, false, capacite, capacite), capacite * 8 - 1);
}

TEST(OctetsOccupes, FreeSpaceEqualToTheBarsMaximumCountsOneLess) {
    EXPECT_EQ(OctetsOccupes(7 * capacite, 0, false, capacite, capacite), 7 * capacite + 1);
    EXPECT_EQ(OctetsOccupes(7 * capacite, 0, false, capacite, capacite - 1), 7 * capacite);
    EXPECT_EQ(OctetsOccupes(page, page, true, capacite, 8 * capacite), 1);
}

EnregistreurSimule::Identite Version(int haute, int basse) {
    EnregistreurSimule::Identite identite;
    identite.versionHaute = static_cast<std::uint8_t>(haute);
    identite.versionBasse = static_cast<std::uint8_t>(basse);
    return identite;
}

struct Pointeurs : BancEnregistreur {
    explicit Pointeurs(int haute = 2, int basse = 110)
        : BancEnregistreur(QStringLiteral("Français"), Version(haute, basse)) {
        ui.ValeurCapacite->setText(QStringLiteral("avant"));
        ui.Capacite->setText(QStringLiteral("avant"));
        ui.ProgressBar2->FixerMaximum(77);
        ui.ProgressBar1->FixerValeur(33);
    }
    void Placer(EnregistreurSimule::Pointeur ecriture, EnregistreurSimule::Pointeur lecture) {
        enregistreur.ReglerEcriture(ecriture);
        enregistreur.ReglerLecture(lecture);
    }
    void LirePointeurs() { Lecture_Pointeurs(poste); }
};

TEST(LecturePointeurs, ShowsBothPlaces) {
    Pointeurs banc;
    banc.Placer({300, 257}, {299, 8});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.PageEcriture->text()), "300");
    EXPECT_EQ(Clair(banc.ui.BufferEcriture->text()), "257");
    EXPECT_EQ(Clair(banc.ui.PageLecture->text()), "299");
    EXPECT_EQ(Clair(banc.ui.BufferLecture->text()), "8");
}

TEST(LecturePointeurs, AnEmptyMemoryShowsZeroOnNewFirmware) {
    Pointeurs banc;
    banc.Placer({5, 16}, {5, 16});
    banc.enregistreur.octetVide = 1;
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "0");
    EXPECT_EQ(Clair(banc.ui.Capacite->text()), "Enregistrements");
    EXPECT_EQ(banc.ui.ProgressBar1->Valeur(), 0);
    EXPECT_EQ(banc.ui.ProgressBar2->Minimum(), 0);
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 0);
}

TEST(LecturePointeurs, AnEmptyMemoryDoesNotTurnTheBarBusy) {
    Pointeurs banc;
    banc.Placer({5, 16}, {5, 16});
    banc.LirePointeurs();
    const QProgressBar& barre = *banc.ui.ProgressBar2;
    EXPECT_LT(barre.QProgressBar::minimum(), barre.QProgressBar::maximum());
}

TEST(LecturePointeurs, AnEmptyMemoryShowsTheCapacityTooOnOldFirmware) {
    Pointeurs banc(2, 100);
    banc.Placer({5, 16}, {5, 16});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "0 / 540606");
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 0);
    EXPECT_EQ(Clair(banc.ui.Capacite->text()), "avant");
}

TEST(LecturePointeurs, APageHoldsSixtySixMeasuresOnNewFirmware) {
    Pointeurs banc;
    banc.Placer({11, 0}, {10, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "66");
    EXPECT_EQ(banc.ui.ProgressBar1->Valeur(), 66);
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 66);
}

TEST(LecturePointeurs, OldFirmwareCountsEightMore) {
    Pointeurs banc(2, 100);
    banc.Placer({11, 0}, {10, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "74 / 540606");
    EXPECT_EQ(banc.ui.ProgressBar1->Valeur(), 74);
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 74);
}

TEST(LecturePointeurs, TheOrderOfThePointersDoesNotMatter) {
    Pointeurs banc;
    banc.Placer({10, 0}, {11, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "66");
}

TEST(LecturePointeurs, HalvesRoundToEven) {
    Pointeurs banc;
    banc.Placer({10, 4}, {10, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "0");
    banc.Placer({10, 12}, {10, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "2");
}

TEST(LecturePointeurs, AFullMemoryShowsTheCapacity) {
    Pointeurs banc;
    banc.Placer({5, 16}, {5, 16});
    banc.enregistreur.octetVide = 0;
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "540606");
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), capacite);

    Pointeurs ancien(2, 100);
    ancien.Placer({5, 16}, {5, 16});
    ancien.enregistreur.octetVide = 0;
    ancien.LirePointeurs();
    EXPECT_EQ(Clair(ancien.ui.ValeurCapacite->text()), "540606 / 540606");
}

TEST(LecturePointeurs, TheDisplayStopsAtTheBarsMaximum) {
    Pointeurs banc;
    banc.ui.ProgressBar1->FixerMaximum(50);
    banc.Placer({11, 0}, {10, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "50");
    EXPECT_EQ(banc.ui.ProgressBar1->Valeur(), 50);
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 50);
}

TEST(LecturePointeurs, SevenEighthsHeldTakesTheFreeSpaceOneLower) {
    Pointeurs banc;
    banc.Placer({7194, 198}, {0, 0});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "473030");
}

TEST(LecturePointeurs, FirmwareDecidesOnTheMemoryFrame) {
    struct {
        int haute, basse;
        bool coche, attendu;
    } const cas[] = {{2, 109, true, true},   {2, 109, false, false}, {2, 110, true, false},
                     {2, 110, false, false}, {2, 112, true, false},  {2, 89, true, true}};
    for (const auto& c : cas) {
        SCOPED_TRACE(testing::Message() << c.haute << ' ' << c.basse << ' ' << c.coche);
        Pointeurs banc(c.haute, c.basse);
        banc.ui.Check_advanced->setChecked(c.coche);
        banc.ui.Frame2->setVisible(c.basse >= 110);
        banc.LirePointeurs();
        EXPECT_EQ(!banc.ui.Frame2->isHidden(), c.attendu);
    }
}

TEST(LecturePointeurs, OldFirmwareHidesNoMemoryFrame) {
    Pointeurs banc(2, 109);
    banc.ui.Frame2->setVisible(true);
    ASSERT_FALSE(banc.ui.Check_advanced->isChecked());
    banc.LirePointeurs();
    EXPECT_FALSE(banc.ui.Frame2->isHidden());
}

TEST(LecturePointeurs, CapacityKeepsItsNewCaptionForOlderFirmware) {
    Pointeurs banc;
    banc.LirePointeurs();
    banc.enregistreur.identite.versionBasse = 100;
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.Capacite->text()), "Enregistrements");
}

void AttendreInchange(const Pointeurs& banc) {
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "avant");
    EXPECT_EQ(banc.ui.ProgressBar1->Valeur(), 33);
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 77);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(LecturePointeurs, SilenceIsToldAndTheDisplaysKeepTheirValues) {
    for (const int code : {21, 22}) {
        SCOPED_TRACE(code);
        Pointeurs banc;
        banc.Placer({300, 257}, {299, 8});
        banc.enregistreur.pannes.Ordonner({code, GenrePanne::silence});
        banc.LirePointeurs();
        AttendreInchange(banc);
        EXPECT_TRUE(banc.ecran.etat.TimeOut);
        EXPECT_EQ(Clair(banc.ui.PageEcriture->text()), code == 21 ? "" : "300");
        EXPECT_EQ(Clair(banc.ui.PageLecture->text()), "");
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
        EXPECT_EQ(Clair(banc.etabli.dialogues.Boites()[0].texte), "k-Pod absent");
        EXPECT_EQ(Clair(banc.etabli.dialogues.Boites()[0].titre), "");
    }
}

TEST(LecturePointeurs, AWrongEchoEndsItWithoutAWord) {
    for (const int code : {21, 22}) {
        SCOPED_TRACE(code);
        Pointeurs banc;
        banc.Placer({300, 257}, {299, 8});
        banc.enregistreur.pannes.Ordonner({code, GenrePanne::mauvaisEcho});
        banc.LirePointeurs();
        AttendreInchange(banc);
        EXPECT_FALSE(banc.ecran.etat.TimeOut);
        EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
        EXPECT_EQ(banc.ui.PageEcriture->text().isEmpty(), code == 21);
        EXPECT_EQ(banc.ui.PageLecture->text().isEmpty(), true);
    }
}

TEST(LecturePointeurs, ASilentVersionLeavesTheFirmwareAsItWasKnown) {
    Pointeurs banc(2, 110);
    banc.ecran.etat.VersionLogiciel = 2.1;
    banc.Placer({11, 0}, {10, 0});
    banc.enregistreur.pannes.Ordonner({9, GenrePanne::silence});
    banc.LirePointeurs();
    EXPECT_EQ(Clair(banc.ui.ValeurCapacite->text()), "74 / 540606");
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(LecturePointeurs, LeavesTheLinkClosed) {
    Pointeurs banc;
    banc.LirePointeurs();
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(banc.enregistreur.journal.Codes(), (std::vector<int>{21, 22, 9}));
}

}  // namespace
}  // namespace bornika::essai
