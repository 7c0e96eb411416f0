#include "retrieval/download_stand.h"

#include <QApplication>

#include "app/form_events.h"
#include "platform/guard.h"
#include "shell/language_switch.h"

namespace bornika::essai {

BancTelechargement::BancTelechargement(InterfaceUsb& usb, const QString& langue,
                                       int toursParAffichage)
    : BancFormulaire(usb) {
    ChangeTextes(ecran, langue, true);
    BrancherFormulaire(ecran);
    // Each download tells where its values are.
    etabli.dialogues.TolererInformations();
    ui.ProgressBar1->FixerMaximum(ecran.etat.CapaciteMemoire);
    suite.commenter = [this](const QString& texte, const QString& fichier) {
        if (fauteCommentaires != 0) throw FauteExecution(fauteCommentaires, "No space left");
        commentaires.insert(commentaires.end(), {texte, fichier});
    };
    suite.montrer = [this](const QString& fichier) { montres.push_back(fichier); };
    brancher(ui.LireValeurs, &QPushButton::clicked, &ecran, [this] { LireValeurs(poste, suite); });
    etabli.respiration.ReglerEvenements([this, toursParAffichage] {
        ++tours;
        for (const auto& [tour, geste] : gestes_)
            if (tour == tours) geste();
        if (tours % toursParAffichage == 0) QApplication::processEvents();
    });
}

}  // namespace bornika::essai
