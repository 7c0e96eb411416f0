#pragma once

namespace bornika {

/// Whether that error number of the system says that the disk, or the user's share of it, is full.
bool EstDisquePlein(int erreur);

/// Number of the fault that a file which could not be opened raises: the disk is full, the way to
/// it does not exist, its name is too long, or it may not be written.
int NumeroOuverture(int erreur);

/// Number of the fault that a failed write to an open file raises.
int NumeroEcriture(int erreur);

}  // namespace bornika
