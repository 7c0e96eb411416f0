#pragma once

namespace bornika {

struct Poste;

/// Ties the controls of the service panel, and what belongs to them in the menu, to their
/// operations.
void BrancherService(Poste& poste);

}  // namespace bornika
