#pragma once

#include <utility>

#include "platform/fault.h"
#include "platform/guard.h"

namespace bornika {

/// Runs one statement that fills a control during the reading of the parameters. A fault of it, or
/// of a handler that it raises, leaves the control as it was and the reading goes on: a logger with
/// erased thresholds must not end the program.
template <class Instruction>
void afficher(Instruction&& instruction) {
    const FautesIgnorees fautesIgnorees;
    ignorer(std::forward<Instruction>(instruction));
}

}  // namespace bornika
