#include "logger/schedule_reading.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"
#include "simulator/device_time.h"

namespace bornika::essai {
namespace {

class LectureCalendrier : public SurFormulaire {
  protected:
    LectureParametres lecture{banc.poste};

    void SetUp() override {
        PreparerEnregistreur(enregistreur);
        banc.lien.OuvreUSB(ecran.etat.UsbID);
    }
};

TEST_F(LectureCalendrier, TheStartIsKeptAsTheNumberThatWasRead) {
    EXPECT_EQ(LireDemarrage(lecture), Suite::Continuer);
    EXPECT_EQ(lecture.DateDemarrageLue, simulateur::TempsAppareil(2026, 3, 1, 8, 15, 30));
}

TEST_F(LectureCalendrier, AStartBeyond31BitsIsKeptWhole) {
    enregistreur.memoire.EcrireDoubleMot(simulateur::adresse::demarrage, 4294967295U);
    EXPECT_EQ(LireDemarrage(lecture), Suite::Continuer);
    EXPECT_EQ(lecture.DateDemarrageLue, 4294967295.0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(LectureCalendrier, TheComputersClockIsNotedBesideTheLoggers) {
    banc.etabli.horloge.Pause(61000);
    EXPECT_EQ(LireDateCourante(lecture), Suite::Continuer);
    EXPECT_EQ(lecture.DateLectureLocale, QDateTime(QDate(2026, 3, 5), QTime(14, 8, 10), Qt::UTC));
    EXPECT_EQ(Clair(ui.DateCourante->text()), "05/03/2026 14:07:01");
}

TEST_F(LectureCalendrier, AWrongEchoNotesNeither) {
    enregistreur.pannes.Ordonner(
        {simulateur::toutesCommandes, simulateur::GenrePanne::mauvaisEcho, 1, simulateur::sansFin});
    EXPECT_EQ(LireDemarrage(lecture), Suite::Continuer);
    EXPECT_EQ(LireDateCourante(lecture), Suite::Continuer);
    EXPECT_EQ(lecture.DateDemarrageLue, 0);
    EXPECT_FALSE(lecture.DateLectureLocale.isValid());
}

TEST_F(LectureCalendrier, SilenceEndsTheReading) {
    enregistreur.pannes.Ordonner(
        {simulateur::toutesCommandes, simulateur::GenrePanne::silence, 1, simulateur::sansFin});
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("k-Pod absent"));
    EXPECT_EQ(LireDateCourante(lecture), Suite::Terminer);
    EXPECT_FALSE(lecture.DateLectureLocale.isValid());
}

}  // namespace
}  // namespace bornika::essai
