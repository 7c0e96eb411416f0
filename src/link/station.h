#pragma once

#include "link/multi_usb.h"
#include "shell/main_screen.h"

namespace bornika {

/// What every device operation works on: the main form with the program's state, and the link.
struct Poste {
    MainScreen& ecran;
    MULTIUSB& lien;
};

}  // namespace bornika
