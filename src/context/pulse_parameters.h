#pragma once

#include "link/station.h"

/// Pulse weight and flow time base in the logger's internal memory: single-precision numbers, least
/// significant byte first.
namespace bornika {

/// Number of those four bytes.
float SimpleDepuisOctets(const Octets& octets);
/// The four bytes of that number.
Octets OctetsDepuisSimple(float valeur);

/// Read the pulse weight (address 112) and the time base in seconds (address 125), opening and
/// closing the link. A logger that does not answer shows "k-Pod Absent" and sets `TimeOut`;
/// `valeur` is then 0, as it is when `TimeOut` was set before.
void LitPoidsImpulsion(Poste& poste, float& valeur);
void LitTempsDebit(Poste& poste, float& valeur);

/// Write them byte after byte; the caller holds the link open. A logger that does not answer shows
/// "k-Pod Absent" once and sets `TimeOut`.
void EcritPoidsImpulsion(Poste& poste, float valeur);
void EcritTempsDebit(Poste& poste, float valeur);

}  // namespace bornika
