#pragma once

#include <optional>

#include "calibration/calibration_messages.h"
#include "link/station.h"

namespace bornika {

/// What is said between the calibration and its logger, in values, without a form. Each question
/// that stays unanswered shows "k-Pod Absent", sets `TimeOut` and closes the link.
class EchangeEtalonnage {
  public:
    explicit EchangeEtalonnage(Poste& poste) : poste_(poste) {}

    void OuvrirLien();
    void FermerLien();

    /// The reply itself: what is sent later carries some of its bytes.
    std::optional<Tampon> DemanderVersion();
    std::optional<DateEtalonnage> DemanderDate();
    std::optional<PointEtalonnage> DemanderPoint(int selecteur);
    /// Takes the logger out of calibration. False when it did not answer.
    bool DemanderFin();
    /// A frame that is more than a code. False when nothing came back.
    bool EnvoyerTrame(const Octets& trame);

  private:
    std::optional<Tampon> DemanderReponse(int code, int combien, int extracode = 0);

    Poste& poste_;
};

}  // namespace bornika
