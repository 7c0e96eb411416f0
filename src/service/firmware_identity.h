#pragma once

namespace bornika {

/// Whether the logger gave its version once the tool had it no more.
enum class Relecture {
    /// A time-out stood: it was not asked.
    PasDemandee,
    SansReponse,
    Lue,
};

/// What is known of the logger before and after a firmware update.
struct BilanFirmware {
    /// The tool was started.
    bool transferee = false;
    /// 0 for a logger that was absent.
    double ancienneVersion = 0;
    /// A serial number was read before.
    bool numeroConnu = false;
    Relecture relecture = Relecture::PasDemandee;
    /// Another logger was chosen meanwhile.
    bool autreEnregistreur = false;
    /// As it stands afterwards, whether or not it was read again.
    double nouvelleVersion = 0;
};

/// What an update leaves to be done for the serial number.
struct SuiteNumeroSerie {
    /// The operator gets the number: the logger may have lost it.
    bool signaler = false;
    /// The number goes back to the logger.
    bool rendre = false;

    bool operator==(const SuiteNumeroSerie&) const = default;
};

/// A logger that comes from below 2.098 and has reached it gets its number back, known or not; one
/// that was not asked, or is another one, does not. The number is told when the same logger has not
/// given its version, if it is known and the tool was started on a logger that may lose it.
SuiteNumeroSerie SuiteDeMiseAJour(const BilanFirmware& bilan);

}  // namespace bornika
