#pragma once

/// The threshold boxes and the choice of none, one or two thresholds.
namespace bornika {

class MainScreen;

/// A threshold box changed: held at the scale's top, dragging the other one along with two
/// thresholds. Fault 6 for a number beyond 16 bits.
void Seuil1_Change(MainScreen& ecran);
void Seuil2_Change(MainScreen& ecran);
/// A threshold box got the focus: its whole text is selected.
void Seuil_Focus(MainScreen& ecran);

/// No threshold: the frame of the trigger is hidden.
void PasDeSeuil_Click(MainScreen& ecran);
/// One threshold: the frame shows one box, its caption looked up again. Fault 91 without the
/// configuration.
void UnSeuil_Click(MainScreen& ecran);
/// Two thresholds: the frame shows both boxes, and the sense of the trigger speaks of the band.
/// Ignores every fault, statement by statement.
void DeuxSeuils_Click(MainScreen& ecran);

/// Sense of the trigger and one-shot: the summary.
void AuDessus_Click(MainScreen& ecran);
void AuDessous_Click(MainScreen& ecran);
void OneShot_Click(MainScreen& ecran);

}  // namespace bornika
