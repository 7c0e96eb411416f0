#pragma once

#include <QString>
#include <optional>

#include "platform/external_program.h"

namespace bornika {

class Dialogues;

/// Where the system information tool of the machine is looked for.
class RegistreMachine {
  public:
    virtual ~RegistreMachine() = default;

    /// Text of a value under a key of the local machine, nothing when there is none.
    virtual std::optional<QString> GetKeyValue(const QString& cle, const QString& valeur) = 0;

    /// True when a file stands at that path.
    virtual bool FichierPresent(const QString& chemin) = 0;
};

/// A machine without a registry, as all are that this program runs on: it has no value of any key.
class SansRegistre : public RegistreMachine {
  public:
    std::optional<QString> GetKeyValue(const QString& cle, const QString& valeur) override;
    bool FichierPresent(const QString& chemin) override;
};

/// Path of the tool: the one that stands under its own key; without that, the tool in the folder
/// that the common key names, if the folder has it. Nothing when it is not to be found.
std::optional<QString> CheminInfoSysteme(RegistreMachine& registre);

/// Starts the tool and does not wait for it. One that is not to be found, or does not start, is
/// told in a box.
void StartSysInfo(RegistreMachine& registre, Dialogues& dialogues, const Lanceur& lancer);

}  // namespace bornika
