#pragma once

#include "platform/fault.h"

namespace bornika::essai {

/// Number of the fault that ends an instruction, 0 for none.
template <class Instruction>
int NumeroDeFaute(Instruction&& instruction) {
    try {
        instruction();
    } catch (const FauteExecution& faute) {
        return faute.numero();
    }
    return 0;
}

}  // namespace bornika::essai
