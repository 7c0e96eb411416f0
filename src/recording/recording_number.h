#pragma once

#include <QByteArrayView>

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

/// Reads the numbers of a recording in the user's locale, in place. Plain ones, that is nearly all,
/// are read from the bytes as they stand; the others go through the conversions of the platform and
/// give the same numbers, only slower.
///
/// Each operation takes the start of a field, which ends at ";" or at `fin`, and moves it to that
/// end.
class LecteurNombres {
  public:
    explicit LecteurNombres(const Regional& regional);

    /// A time stamp: the separator of the locale, and no other.
    NombreLu LireTemps(const char*& place, const char* fin) const;
    /// A value: "." and "," both count as the separator of the locale, "--" as "-". In a locale
    /// with a third separator nothing is a number.
    NombreLu LireValeur(const char*& place, const char* fin) const;

  private:
    NombreLu LireLentement(const QString& texte) const;

    Regional regional_;
    char separateur_;
    char autre_;
};

}  // namespace bornika
