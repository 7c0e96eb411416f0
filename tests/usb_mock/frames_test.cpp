// Frames and answers over the wire, and what may go wrong on it.

#include <gmock/gmock.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "usb_mock/bare_usb.h"
#include "usb_mock/loggers_fixture.h"

namespace bornika {
namespace {

using essai::FicheUsb;
using essai::PanneUsb;
using essai::Trame;
using essai::version;
using simulateur::GenrePanne;
using testing::IsEmpty;
using Horloge_ = std::chrono::steady_clock;

const Trame date = {8, 0, 0, 0, 0, 0, 0, 0};
const Trame identite = {240, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
const Trame mesures = {10, 1};

struct Trames : essai::BancEnregistreurs {
    /// One logger, opened.
    void Preparer(const FicheUsb& fiche = {}) {
        port = Brancher(fiche);
        Ouvrir();
    }
    int port = 0;
};

struct Chemin {
    bool interruption;
    std::uint16_t paquet;
    bool videFinal;
};

std::string NomDe(const Chemin& chemin) {
    return std::string(chemin.interruption ? "Interrupt" : "Bulk") + std::to_string(chemin.paquet) +
           (chemin.videFinal ? "WithEmptyEnd" : "");
}

void PrintTo(const Chemin& chemin, std::ostream* sortie) {
    *sortie << NomDe(chemin);
}

struct TramesParChemin : Trames, testing::WithParamInterface<Chemin> {};

TEST_P(TramesParChemin, Of2And8And12BytesAreAnswered) {
    Preparer({.interruption = GetParam().interruption,
              .paquet = GetParam().paquet,
              .paquetVideFinal = GetParam().videFinal});
    banc->Regler(port, [](auto& appareil) {
        appareil.enregistreur->Stocker(simulateur::MesureEnFlash{1, 2, 3, 4, 5, 6, 7, 8});
    });
    for (int tour = 0; tour < 3; ++tour) {
        EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
        EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
        EXPECT_EQ(Echanger(identite, 6), Attendu(port, identite));
        EXPECT_EQ(Echanger(mesures, 10), Attendu(port, mesures));
    }
    banc->Regler(port, [](auto& appareil) {
        EXPECT_EQ(appareil.enregistreur->journal.DeCode(10).front(), mesures);
        EXPECT_EQ(appareil.enregistreur->journal.DeCode(9).front(), version);
        EXPECT_EQ(appareil.enregistreur->journal.DeCode(240).front(), identite);
    });
    Fermer();
    EXPECT_EQ(banc->Comptes().enCours, 0);
    EXPECT_EQ(banc->Comptes().interruptions > 0, GetParam().interruption);
}

INSTANTIATE_TEST_SUITE_P(OverEachWire, TramesParChemin,
                         testing::Values(Chemin{false, 64, false}, Chemin{true, 64, false},
                                         Chemin{false, 8, false}, Chemin{true, 8, false},
                                         Chemin{false, 8, true}, Chemin{true, 8, true}),
                         [](const auto& cas) { return NomDe(cas.param); });

TEST_F(Trames, AreReadInPartWithoutAnOverflow) {
    Preparer();
    EXPECT_EQ(Echanger(version, 3).size(), 3U);
    EXPECT_EQ(usb().DerniereErreur(), 0U);
    // The rest belongs to the answer that was read, and is gone.
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, WithAShortAnswerGiveWhatCame) {
    Preparer();
    banc->Ordonner(port, {.genre = GenrePanne::reponseCourte, .parametre = 3});
    Trame debut = Attendu(port, version);
    debut.resize(3);
    EXPECT_EQ(Echanger(version, 9), debut);
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

TEST_F(Trames, WithAnEmptyAnswerGiveNothingAndTheNextOneIsRight) {
    Preparer();
    banc->Ordonner(port, PanneUsb::paquetVide);
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, WithAStalledAnswerGiveNothingAndTheHaltIsCleared) {
    Preparer();
    banc->Ordonner(port, PanneUsb::calageEntree);
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(EPIPE));
    EXPECT_EQ(banc->Comptes().calagesLeves, 1);
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, ThatMeetAStallGoOutAtTheNextAttempt) {
    Preparer();
    banc->Ordonner(port, PanneUsb::calageSortie);
    EXPECT_FALSE(usb().Ecrire(ecriture, version));
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(EPIPE));
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

TEST_F(Trames, WithAnOverflowingAnswerGiveNothingAndTheNextOneIsRight) {
    Preparer();
    banc->Ordonner(port, PanneUsb::debordement);
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(EOVERFLOW));
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, ToASilentLoggerEndWithTheTimeOutOfTheProduct) {
    reglages.front().Delai = 60;
    Preparer();
    banc->Ordonner(port, {.genre = GenrePanne::silence});
    ASSERT_TRUE(usb().Ecrire(ecriture, version));
    const auto debut = Horloge_::now();
    EXPECT_THAT(Lire(9), IsEmpty());
    EXPECT_GE(Horloge_::now() - debut, std::chrono::milliseconds(59));
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(ETIMEDOUT));
    EXPECT_EQ(banc->Comptes().enCours, 0);
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

TEST_F(Trames, AnsweredTooLateDoNotAnswerTheNextOne) {
    reglages.front().Delai = 20;
    Preparer();
    banc->Ordonner(port, PanneUsb::retard);
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    banc->Liberer(port);
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

TEST_F(Trames, AnsweredTooLateDoNotAnswerTheNextOneAfterAnotherOpening) {
    reglages.front().Delai = 20;
    Preparer();
    banc->Ordonner(port, PanneUsb::retard, 2);
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    Fermer();
    banc->Liberer(port);
    Ouvrir();
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, AnsweredInPartBeforeTheTimeOutGiveWhatCame) {
    // One full packet, then nothing: the transfer is not over, but eight bytes are there.
    reglages.front().Delai = 40;
    Preparer({.paquet = 8});
    banc->Ordonner(port, {.genre = GenrePanne::reponseCourte, .parametre = 8});
    Trame debut = Attendu(port, version);
    debut.resize(8);
    EXPECT_EQ(Echanger(version, 9), debut);
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, LeftByAProgramThatEndedInTheMiddleDoNotAnswerTheFirstOne) {
    port = Brancher();
    {
        essai::UsbNu autre;
        libusb_device_handle* poignee = autre.Ouvrir(banc->Adresse(port));
        ASSERT_NE(poignee, nullptr);
        ASSERT_EQ(autre.Ecrire(poignee, version), 0);
        libusb_close(poignee);
    }
    ASSERT_EQ(banc->ComptesFermes().ouvertures, 0);
    Ouvrir();
    EXPECT_EQ(Echanger(date, 8), Attendu(port, date));
}

TEST_F(Trames, InAReadEndAtOnceWhenTheLoggerIsPulledOut) {
    reglages.front().Delai = 60'000;
    Preparer();
    banc->Ordonner(port, {.genre = GenrePanne::silence});
    ASSERT_TRUE(usb().Ecrire(ecriture, version));
    std::thread main([this] {
        while (banc->Comptes().enCours == 0)
            std::this_thread::yield();
        banc->Debrancher(port);
    });
    const auto debut = Horloge_::now();
    EXPECT_THAT(Lire(9), IsEmpty());
    EXPECT_LT(Horloge_::now() - debut, std::chrono::seconds(20));
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(ENODEV));
    main.join();
    Fermer();
    EXPECT_EQ(banc->ComptesFermes().ouvertures, 0);
}

TEST_F(Trames, EndAtOnceWhenTheLoggerIsPulledOutByTheFrameItself) {
    reglages.front().Delai = 60'000;
    Preparer();
    banc->Ordonner(port, {.genre = GenrePanne::debranchement});
    EXPECT_THAT(Echanger(version, 9), IsEmpty());
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(ENODEV));
    Fermer();
    EXPECT_EQ(usb().Compte(), 0);
}

TEST_F(Trames, FailWhenTheLoggerWasPulledOutBetweenThem) {
    Preparer();
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
    banc->Debrancher(port);
    EXPECT_FALSE(usb().Ecrire(ecriture, date));
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(ENODEV));
    EXPECT_THAT(Lire(8), IsEmpty());
    usb().Annuler(lecture);
    Fermer();
    EXPECT_EQ(banc->ComptesFermes().ouvertures, 0);
    EXPECT_EQ(banc->Comptes().enCours, 0);
}

TEST_F(Trames, OfTwoLoggersDoNotMix) {
    const int un = Brancher({.serie = "11"});
    const int deux = Brancher({.serie = "22"});
    const auto numeroter = [this](int ou, std::uint32_t numero) {
        banc->Regler(ou, [numero](auto& a) { a.enregistreur->ReglerNumeroSerie(numero); });
    };
    numeroter(un, 1111);
    numeroter(deux, 2222);
    const Trame numero = {6, 0, 0, 0, 0, 0, 0, 0};
    ASSERT_EQ(usb().Compte(), 2);
    Ouvrir(11);
    const PoigneeUsb ecritureUn = ecriture;
    const PoigneeUsb lectureUn = lecture;
    Ouvrir(22);
    // Both are asked before one is read.
    EXPECT_TRUE(usb().Ecrire(ecritureUn, numero));
    EXPECT_EQ(Echanger(numero, 8), Attendu(deux, numero));
    lecture = lectureUn;
    EXPECT_EQ(Lire(8), Attendu(un, numero));
    EXPECT_NE(Attendu(un, numero), Attendu(deux, numero));
}

}  // namespace
}  // namespace bornika
