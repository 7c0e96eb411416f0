#pragma once

#include <gtest/gtest.h>

#include "support/fault_number.h"
#include "support/form_stand.h"

namespace bornika::essai {

using Trames = std::vector<std::vector<std::uint8_t>>;

/// A main form with one simulated logger chosen, for operations that hold one conversation each.
class SurPaillasse : public testing::Test, protected BancSimule {
  protected:
    using GenreAppel = simulateur::GenreAppel;
    using GenrePanne = simulateur::GenrePanne;

    EnregistreurSimule& enregistreur = bus.Brancher(EnregistreurSimule());

    void SetUp() override {
        ecran.etat.UsbID = enregistreur.identite.usb;
        ecran.etat.NomKpod = QStringLiteral("k-Pod 7");
    }

    void Panne(int code, GenrePanne genre, int parametre = 0) {
        enregistreur.pannes.Ordonner({.code = code, .genre = genre, .parametre = parametre});
    }
    const std::vector<DialoguesNotes::Boite_>& Boites() const { return etabli.dialogues.Boites(); }
    /// Lengths that were asked for, in order.
    std::vector<int> Lectures() const {
        std::vector<int> longueurs;
        for (const auto& appel : bus.Appels()) {
            if (appel.genre == GenreAppel::lire) longueurs.push_back(appel.argument);
        }
        return longueurs;
    }
    /// Two handles were opened and closed again, and nothing was said.
    void AttendreConversation() {
        ASSERT_EQ(enregistreur.lien.size(), 4U);
        EXPECT_TRUE(enregistreur.lien[0].ouverture && enregistreur.lien[1].ouverture);
        EXPECT_EQ(bus.PoigneesOuvertes(), 0);
        EXPECT_TRUE(Boites().empty());
    }
    /// The operator was told once that the logger is absent, after that many questions, and forgets
    /// it again.
    void AttendreAbsent(std::size_t questions = 0) {
        ASSERT_EQ(Boites().size(), questions + 1);
        EXPECT_EQ(Boites().back().titre, QString());
        EXPECT_EQ(Boites().back().texte, ecran.Texte(QStringLiteral("k-Pod Absent")));
        EXPECT_TRUE(ecran.etat.TimeOut);
        EXPECT_EQ(bus.PoigneesOuvertes(), 0);
        etabli.dialogues.OublierBoites();
        ecran.etat.TimeOut = false;
    }
    /// Runs an operation on a logger that is silent, whose answer is lost, that takes no frame,
    /// that cannot be opened, that is pulled out in the exchange, and that is gone; `verifier`
    /// looks at the rest. It asks that many `questions` first.
    template <class Operation, class Verification>
    void ChaqueAbsence(int code, Operation operation, Verification verifier,
                       std::size_t questions = 0) {
        for (const GenrePanne genre : {GenrePanne::silence, GenrePanne::reponsePerdue}) {
            Panne(code, genre);
            operation();
            AttendreAbsent(questions);
            verifier();
        }
        enregistreur.pannes.OrdonnerEchecsEcriture(3);
        operation();
        AttendreAbsent(questions);
        verifier();
        enregistreur.pannes.OrdonnerEchecOuverture(2);
        operation();
        AttendreAbsent(questions);
        verifier();
        Panne(code, GenrePanne::debranchement);
        for (int fois = 0; fois < 2; ++fois) {
            operation();
            AttendreAbsent(questions);
            verifier();
        }
    }
};

}  // namespace bornika::essai
