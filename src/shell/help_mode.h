#pragma once

#include <QString>

class QWidget;

namespace bornika {

class MainScreen;

/// Help texts of a form as tool tips in `langue`, for the product of the main form. With `actif`,
/// text boxes, buttons, combo boxes, options, check boxes and date pickers get theirs and other
/// controls are left alone; without it every tool tip is emptied. A later change of language does
/// not repeat it.
void AfficheAide(QWidget& fiche, MainScreen& ecran, const QString& langue, bool actif);

/// The same for the main form itself.
void AfficheAide(MainScreen& ecran, const QString& langue, bool actif);

}  // namespace bornika
