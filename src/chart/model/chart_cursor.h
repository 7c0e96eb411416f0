#pragma once

#include <span>

#include "chart/model/visible_range.h"

namespace bornika {

class ModeleGraphe;
struct OutilGraphe;

/// The cursor tool that follows the hand: the last tool, when it is one and its series exists.
/// Nothing otherwise.
OutilGraphe* CurseurMobile(ModeleGraphe& modele);
const OutilGraphe* CurseurMobile(const ModeleGraphe& modele);

/// Position of the visible point of a series that is nearest in time to `x`, the first of several;
/// points whose value is no number are passed over. -1 for none.
int PointProche(const ModeleGraphe& modele, int serie, double x);

/// Puts the cursor on the point of its series nearest in time to `x`. False, and the cursor stays,
/// without cursor or point.
bool DeplacerCurseur(ModeleGraphe& modele, double x);

/// A step of the cursor along the points of its series.
enum class PasCurseur { Precedent, Suivant, PremierVisible, DernierVisible };

/// Takes the cursor one step further; a cursor that is not on a visible point goes to the nearest
/// one, or to the middle when it stood nowhere. With `horsVue` the next point may lie beyond what
/// is shown, as long as the times are in order. False, and the cursor stays, at the last point,
/// without cursor or without point.
bool AvancerCurseur(ModeleGraphe& modele, PasCurseur pas, bool horsVue);

}  // namespace bornika
