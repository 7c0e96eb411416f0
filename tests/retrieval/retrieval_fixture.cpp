#include "retrieval/retrieval_fixture.h"

#include "simulator/device_time.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {

namespace {

simulateur::PtrEnregistreur Ordinaire() {
    return simulateur::Simple(1, 2, 100, simulateur::TempsAppareil(2026, 3, 5, 14, 7, 9));
}

}  // namespace

BancLecture::BancLecture(simulateur::PtrEnregistreur prepare, const QString& langue)
    : BancTelechargement(bus, langue),
      enregistreur(bus.Brancher(prepare ? std::move(prepare) : Ordinaire())) {
    Choisir(enregistreur.identite.usb, enregistreur.identite.type);
    // A shape that the download does not use itself: it has to come back at each end.
    FixerPointeurSouris(ecran, pointeur::sablier);
    ecran.show();
}

void BancLecture::Panne(simulateur::GenrePanne genre, int occurrence, int combien, int parametre) {
    enregistreur.pannes.Ordonner({.code = 10,
                                  .genre = genre,
                                  .occurrence = occurrence,
                                  .combien = combien,
                                  .parametre = parametre});
}

std::vector<int> BancLecture::Drapeaux() const {
    std::vector<int> drapeaux;
    for (const auto& trame : enregistreur.journal.DeCode(10))
        drapeaux.push_back(trame.at(1));
    return drapeaux;
}

}  // namespace bornika::essai
