#pragma once

/// Captions of the two threshold boxes, each with the display unit behind it.
namespace bornika {

class MainScreen;

/// Shows the stored text of one threshold.
void MontrerTexteSeuil(MainScreen& ecran);
/// Looks the texts of the two limits up again and keeps them. Fault 91 without the configuration.
void ChercherTextesLimites(MainScreen& ecran);
/// Shows the stored texts of the lower and the upper limit.
void MontrerTextesLimites(MainScreen& ecran);

}  // namespace bornika
