#pragma once

namespace bornika::essai {

/// What the kernel's side of the mock devices has seen and still holds.
struct ComptesUsb {
    /// Device nodes open now, interfaces claimed now, requests not fetched yet.
    int ouvertures = 0;
    int reclamations = 0;
    int enCours = 0;
    /// Drivers of the system that sit on an interface now.
    int pilotes = 0;
    /// Since the beginning: requests, those of interrupt endpoints, those that were taken back,
    /// halts cleared, claims refused.
    int demandes = 0;
    int interruptions = 0;
    int abandons = 0;
    int calagesLeves = 0;
    int refus = 0;
};

}  // namespace bornika::essai
