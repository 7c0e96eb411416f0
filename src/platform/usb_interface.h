#pragma once

#include <QString>
#include <cstdint>
#include <span>

namespace bornika {

/// Identifier of a logger: 1 to 2147483647, never shared by two attached loggers.
using IdentifiantUsb = std::int32_t;

/// A handle on one logger: above 0 when open, 0 for none, -1 for a failed open.
using PoigneeUsb = std::int32_t;

/// Why loggers may be missing from a count although they are plugged in: no product's USB numbers
/// are known, this user has no right to open one that is there, or one has neither the interface
/// nor the endpoints that the setting of its product names.
enum class AbsenceUsb { Aucune, SansReglage, SansDroits, SansPoints };

/// The narrow interface to whatever carries the bytes: real loggers or simulated ones.
///
/// A handle is one direction of one logger; `Ouvrir` is called twice for one logger and gives two
/// independent handles. Everything blocks the caller, and `Lire` ends by itself on a silent logger:
/// how long that takes is the affair of the implementation.
class InterfaceUsb {
  public:
    virtual ~InterfaceUsb() = default;

    /// Number of loggers attached now.
    virtual int Compte() = 0;

    /// Unique identifier of the logger at `index` (0 to `Compte() - 1`); 0 beyond. Stable from one
    /// call to the next as long as nothing is plugged or unplugged.
    virtual IdentifiantUsb Identifiant(int index) = 0;

    /// What is known, after a `Compte`, of loggers missing from it.
    virtual AbsenceUsb Absence() { return AbsenceUsb::Aucune; }

    /// A handle on the logger `id`, or -1.
    virtual PoigneeUsb Ouvrir(IdentifiantUsb id) = 0;

    /// Sends the bytes in one piece. False when they could not be sent, also for handles 0 and -1.
    virtual bool Ecrire(PoigneeUsb poignee, std::span<const std::uint8_t> octets) = 0;

    /// Reads up to `octets.size()` bytes into `octets`. Returns how many came; 0 for a silent or
    /// lost logger and for handles 0 and -1.
    virtual int Lire(PoigneeUsb poignee, std::span<std::uint8_t> octets) = 0;

    /// Drops a pending read. Harmless on 0 and -1.
    virtual void Annuler(PoigneeUsb poignee) = 0;

    /// Closes. Harmless on 0 and -1.
    virtual void Fermer(PoigneeUsb poignee) = 0;

    /// Error number of the call just made, 0 for none, and the platform's text of such a number.
    virtual std::uint32_t DerniereErreur() const = 0;
    virtual QString TexteErreur(std::uint32_t code) const = 0;
};

}  // namespace bornika
