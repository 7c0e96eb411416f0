#include "retrieval/retrieval_fixture.h"

#include "app/form_events.h"
#include "platform/guard.h"
#include "shell/language_switch.h"
#include "simulator/device_time.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {

namespace {

simulateur::PtrEnregistreur Ordinaire() {
    return simulateur::Simple(1, 2, 100, simulateur::TempsAppareil(2026, 3, 5, 14, 7, 9));
}

}  // namespace

BancLecture::BancLecture(simulateur::PtrEnregistreur prepare, const QString& langue)
    : enregistreur(bus.Brancher(prepare ? std::move(prepare) : Ordinaire())),
      etabli(&bus),
      ecran(etabli.systeme),
      ui(*ecran.ui),
      lien(ecran),
      poste{ecran, lien} {
    ChangeTextes(ecran, langue, true);
    BrancherFormulaire(ecran);
    ecran.etat.Connected = true;
    ecran.etat.UsbID = enregistreur.identite.usb;
    ecran.etat.TypekPod = enregistreur.identite.type;
    ecran.etat.NomKpod = QStringLiteral("k-Pod");
    ui.ProgressBar1->FixerMaximum(ecran.etat.CapaciteMemoire);
    suite.commenter = [this](const QString& texte, const QString& fichier) {
        if (fauteCommentaires != 0) throw FauteExecution(fauteCommentaires, "No space left");
        commentaires = {texte, fichier};
    };
    suite.montrer = [this](const QString& fichier) { montres.push_back(fichier); };
    brancher(ui.LireValeurs, &QPushButton::clicked, &ecran, [this] { LireValeurs(poste, suite); });
    etabli.respiration.ReglerEvenements([this] {
        ++tours;
        for (const auto& [tour, geste] : gestes_)
            if (tour == tours) geste();
        QApplication::processEvents();
    });
    // Each download tells where its values are.
    etabli.dialogues.TolererInformations();
    // A shape that the download does not use itself: it has to come back at each end.
    FixerPointeurSouris(ecran, pointeur::sablier);
    ecran.show();
}

void BancLecture::AuTour(int tour, std::function<void()> geste) {
    gestes_.emplace_back(tour, std::move(geste));
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
