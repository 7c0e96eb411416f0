#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>

#include "platform/regional.h"

/// Conversions between texts and numbers. They know the locale only through `Regional`.
namespace bornika {

/// Number in general form with up to 15 significant digits: 16 is "16", 0.1 + 0.2 is "0.3", 1E15 is
/// "1E+15", 0.00001 is "1E-05".
QString TexteGeneral(double valeur, const Regional& regional);

/// Shortest decimal text that gives back the same single-precision number: 0.1f is "0.1".
QString TexteCourt(float valeur, const Regional& regional);

/// "True" or "False", never translated.
QString TexteBooleen(bool valeur);

/// Longest leading decimal number of the text, with a point whatever the locale: leading blanks are
/// skipped, "2.112_x" is 2.112, "" and "abc" are 0.
double ValeurDebut(QStringView texte);

/// True when the whole text is a number typed by a user of that locale: outer blanks, one sign in
/// front, digits with at most one separator, an optional exponent. No group separators: "1,5" typed
/// where the separator is a point must not become 15.
bool EstNumerique(QStringView texte, const Regional& regional);

/// The number of such a text; leading and trailing white space, line ends included, is skipped.
/// Fault 13 when it is no number.
double EnDouble(QStringView texte, const Regional& regional);

/// Rounds half to even.
double ArrondiPair(double valeur);

/// Rounds half to even into 16 or 32 bits signed, or into a byte. Fault 6 outside their range.
std::int16_t EnEntier16(double valeur);
std::int32_t EnEntier32(double valeur);
std::uint8_t EnOctet(double valeur);

/// The same from a text, read by `EnDouble`.
std::int16_t EnEntier16(QStringView texte, const Regional& regional);
std::int32_t EnEntier32(QStringView texte, const Regional& regional);

/// The nearest single-precision number. Fault 6 beyond their range.
float EnSimple(double valeur);

/// Quotient, with fault 11 for a divisor of 0 (6 for 0/0), where plain arithmetic would go on with
/// an infinity.
double Diviser(double dividende, double diviseur);

}  // namespace bornika
