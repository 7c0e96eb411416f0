#pragma once

#include <QByteArrayView>
#include <cstdint>

#include "platform/regional.h"

namespace bornika {

/// A number field of a recording.
struct NombreLu {
    bool numerique = false;
    double valeur = 0;
    /// The same number rounded to five decimal places, half away from zero: what the chart shows of
    /// a pressure.
    double arrondie = 0;
};

/// Reads the numbers of a recording in the user's locale. Plain ones, that is nearly all, are read
/// from the bytes as they stand; the others go through the conversions of the platform and give the
/// same numbers, only slower.
class LecteurNombres {
  public:
    explicit LecteurNombres(const Regional& regional);

    /// A time stamp: the separator of the locale, and no other. No number: `numerique` is false.
    NombreLu LireTemps(QByteArrayView champ) const;
    /// A value: "." and "," both count as the separator of the locale, "--" as "-". In a locale
    /// with a third separator nothing is a number.
    NombreLu LireValeur(QByteArrayView champ) const;

  private:
    NombreLu LireLentement(const QString& texte) const;

    Regional regional_;
    char separateur_ = 0;
    char autre_ = 0;
};

}  // namespace bornika
