#pragma once

#include "link/station.h"

namespace bornika {

/// Number of bytes of the recording memory that hold measures.
/// `ecriture` and `lecture` are linear positions (page x 526 + offset); `vide` decides what equal
/// pointers mean: nothing held, or everything. `maximumBarre` is the maximum of the fill bar: free
/// space of exactly that many bytes is taken one lower.
double OctetsOccupes(double ecriture, double lecture, bool vide, double CapaciteMemoire,
                     double maximumBarre);

/// Asks the logger where it writes and where the next reading begins, and shows the fill level.
/// `ProgressBar2` gets the number of measures to download as its maximum. Opens and closes the
/// link; on no answer ("k-Pod Absent" is shown) or a wrong echo the controls keep what they had.
void Lecture_Pointeurs(Poste& poste);

}  // namespace bornika
