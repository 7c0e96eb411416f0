#pragma once

#include <functional>

#include "platform/fault.h"

namespace bornika {

class Dialogues;

/// The general failure of the program: the standard box with the fault's number and text, then
/// `fermerLien`, then every open text file brought to the disk, then `sortir` with status 1.
void FinirSurFaute(const FauteExecution& faute, Dialogues& dialogues,
                   const std::function<void()>& fermerLien, const std::function<void(int)>& sortir);

}  // namespace bornika
