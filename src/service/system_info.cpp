#include "service/system_info.h"

#include <QFileInfo>

#include "platform/dialogs.h"

namespace bornika {

std::optional<QString> SansRegistre::GetKeyValue(const QString&, const QString&) {
    return std::nullopt;
}

bool SansRegistre::FichierPresent(const QString& chemin) {
    return QFileInfo(chemin).isFile();
}

std::optional<QString> CheminInfoSysteme(RegistreMachine& registre) {
    if (const auto outil = registre.GetKeyValue(
            QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"), QStringLiteral("PATH")))
        return outil;
    const auto dossier = registre.GetKeyValue(
        QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"), QStringLiteral("MSINFO"));
    if (!dossier) return std::nullopt;
    const QString outil = *dossier + QStringLiteral("\\MSINFO32.EXE");
    return registre.FichierPresent(outil) ? std::optional(outil) : std::nullopt;
}

void StartSysInfo(RegistreMachine& registre, Dialogues& dialogues, const Lanceur& lancer) {
    const auto outil = CheminInfoSysteme(registre);
    if (outil && lancer(*outil, QString())) return;
    // This text does not go through the catalogue.
    dialogues.Boite(Icone::Aucune, Boutons::Ok, QString(),
                    QStringLiteral("System Information Is Unavailable At This Time"));
}

}  // namespace bornika
