#pragma once

/// The firmware versions at which loggers behave differently, as numbers (2.11 for "2-110").
namespace bornika::version {

/// The last firmware that knows one calibration point only.
inline constexpr double unPoint = 2.089;
/// From here on the count of resets is kept in the internal memory; the flash held it before.
inline constexpr double resetsInternes = 2.096;
/// An update that comes from below and reaches it loses the serial number.
inline constexpr double numeroSerie = 2.098;
/// From here on a logger records to a card, and tells the number of its measures by itself.
inline constexpr double carte = 2.11;
/// The first firmware of a card logger of type 19.
inline constexpr double premiereCarte = 2.112;
/// The first one of type 20; from here on a logger has to be told to take its context over.
inline constexpr double contexte = 2.12;

}  // namespace bornika::version
