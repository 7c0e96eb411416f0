#pragma once

/// Captions of the two threshold boxes, each with the display unit behind it.
namespace bornika {

class MainScreen;

/// Shows the stored text of one threshold.
void MontrerTexteSeuil(MainScreen& ecran);
/// Look the text of one limit up again and keep it. Fault 91 without the configuration.
void ChercherTexteLimiteBasse(MainScreen& ecran);
void ChercherTexteLimiteHaute(MainScreen& ecran);
/// Shows the stored texts of the lower and the upper limit.
void MontrerTextesLimites(MainScreen& ecran);

}  // namespace bornika
