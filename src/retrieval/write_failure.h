#pragma once

#include <QString>
#include <optional>

#include "platform/fault.h"

namespace bornika {

/// The first failure among the writes of one operation. It is the one that is told: the logger
/// still holds what could not be written, and what fails behind it says nothing new.
class EchecEcriture {
  public:
    /// Runs one statement that writes. A fault of it is kept, unless there was one before.
    template <class Instruction>
    void Garder(Instruction&& instruction) {
        try {
            instruction();
        } catch (const FauteExecution& faute) {
            if (!texte_) texte_ = faute.texte();
        }
    }

    bool EstSurvenu() const { return texte_.has_value(); }
    /// File and reason; nothing as long as all is well.
    const std::optional<QString>& Texte() const { return texte_; }

  private:
    std::optional<QString> texte_;
};

}  // namespace bornika
