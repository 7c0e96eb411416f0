#include "app/fault_exit.h"

#include "platform/dialogs.h"
#include "platform/text_file.h"
#include "shell/application_state.h"

namespace bornika {

void FinirSurFaute(const FauteExecution& faute, Dialogues& dialogues,
                   const std::function<void()>& fermerLien,
                   const std::function<void(int)>& sortir) {
    dialogues.Boite(
        Icone::Critique, Boutons::Ok, QString::fromLatin1(titreApplication),
        QStringLiteral("Run-time error '%1':\n\n%2").arg(faute.numero()).arg(faute.texte()));
    fermerLien();
    FichierTexteEcrit::ViderTous();
    sortir(1);
}

}  // namespace bornika
