#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

#include "simulator/simulated_logger.h"

// Loggers with a sensible set-up: running for three days, period 15 s, 0 - 16 bar in bar, circular
// buffer without threshold, battery 4.00 V, no measures unless said. `maintenant` is the present
// moment in device seconds; nothing here reads a clock. All types answer alike apart from what is
// named.

namespace bornika::simulateur {

using PtrEnregistreur = std::unique_ptr<EnregistreurSimule>;

/// Pause of an exchange that makes the demo download last some ten seconds.
inline constexpr std::chrono::microseconds cadenceDemo{300};

/// A logger of that type and of the version r2, r4, never calibrated.
PtrEnregistreur Simple(std::uint8_t type, std::uint8_t versionHaute, std::uint8_t versionBasse,
                       std::uint32_t maintenant);

/// k-Pod of version (2,89), which reads as 0.289: one calibration point.
PtrEnregistreur KPodAncien(std::uint32_t maintenant);
/// k-Pod (2,100) = 2.100, two calibration points.
PtrEnregistreur KPod2100(std::uint32_t maintenant);
/// k-Pod (20,89) = 2.089, the last one-point version, and (20,98) = 2.098.
PtrEnregistreur KPod2089(std::uint32_t maintenant);
PtrEnregistreur KPod2098(std::uint32_t maintenant);
/// k-Pod (2,110) = 2.110: its data are read from the card.
PtrEnregistreur KPod2110(std::uint32_t maintenant);
/// Card family, type 19, (2,112), with a card.
PtrEnregistreur KPodType19(std::uint32_t maintenant);
/// Card family, type 20, (2,120) = 2.120.
PtrEnregistreur KPod33(std::uint32_t maintenant, bool carte = true);
/// Siblings: type 5; type 14, whose name is empty; type 99, unknown to the table.
PtrEnregistreur KTide(std::uint32_t maintenant);
PtrEnregistreur SansNom(std::uint32_t maintenant);
PtrEnregistreur Inconnu(std::uint32_t maintenant);
/// k-Pod 2.100 with that serial number: 0, 2147483647 and 2147483648 are the odd ones.
PtrEnregistreur AvecNumeroSerie(std::uint32_t numero, std::uint32_t maintenant);
/// Answers the version command with a wrong first byte, always.
PtrEnregistreur MauvaisEchoVersion(std::uint32_t maintenant);
/// Never answers.
PtrEnregistreur Silencieux(std::uint32_t maintenant);

/// k-Pod 2.100 with the water network's recording of the last three days.
PtrEnregistreur KPodReseauEau(std::uint32_t maintenant);

/// The family for trying the program out: the k-Pod with the recording, an old one-point k-Pod with
/// a short one, a k-Pod 33 with its card, a k-Tide. Whoever calibrates one has put it under the
/// pressure that he types; its sensor is a little off.
std::vector<PtrEnregistreur> FamilleDemo(std::uint32_t maintenant);

}  // namespace bornika::simulateur
