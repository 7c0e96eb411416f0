#pragma once

#include "platform/fault.h"

namespace bornika::essai {

/// The fault that ends an instruction, with its text; number 0 for none.
template <class Instruction>
FauteExecution FauteDe(Instruction&& instruction) {
    try {
        instruction();
    } catch (const FauteExecution& faute) {
        return faute;
    }
    return FauteExecution(0);
}

/// Its number alone, 0 for none.
template <class Instruction>
int NumeroDeFaute(Instruction&& instruction) {
    return FauteDe(instruction).numero();
}

}  // namespace bornika::essai
