#pragma once

#include <QLineEdit>

namespace bornika {

/// Hands a corrected box back to the user: the focus, with its text selected. A box that is
/// disabled or not shown keeps the focus where it is.
inline void DonnerFocus(QLineEdit& boite) {
    if (boite.isEnabled() && boite.isVisibleTo(boite.window())) boite.setFocus();
    boite.selectAll();
}

}  // namespace bornika
