#pragma once

#include <QString>

#include "platform/fault.h"

namespace bornika {

/// Runs one statement that works on a file; a fault of it goes on with the file's name before its
/// text: whoever has to do something about it must know which file it is.
template <class Instruction>
void nommer(const QString& fichier, Instruction&& instruction) {
    try {
        instruction();
    } catch (const FauteExecution& faute) {
        throw FauteExecution(faute.numero(), fichier + QStringLiteral(" : ") + faute.texte());
    }
}

}  // namespace bornika
