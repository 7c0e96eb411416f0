#pragma once

class QWidget;

namespace bornika {

/// What every form of this program is besides a window. Boxes and common dialogs are the toolkit's
/// and are none, even where a class of this program refines them.
class FicheDuProgramme {
  public:
    FicheDuProgramme() = default;
    virtual ~FicheDuProgramme() = default;
    FicheDuProgramme(const FicheDuProgramme&) = delete;
    FicheDuProgramme& operator=(const FicheDuProgramme&) = delete;
};

/// Whether a window is one of these forms.
bool EstFicheDuProgramme(const QWidget& fenetre);

}  // namespace bornika
