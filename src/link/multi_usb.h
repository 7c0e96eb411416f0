#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "link/bytes.h"
#include "platform/usb_interface.h"

namespace bornika {

class MainScreen;

/// The only code that touches the device: one pair of handles to one logger, opened for one action
/// of the user. It reads and sets `TimeOut` of the main form's state.
class MULTIUSB {
  public:
    explicit MULTIUSB(MainScreen& ecran);

    /// Closes whatever is open, then opens both handles on `id`. False if one of them failed;
    /// nothing is undone then. Does not clear `TimeOut`.
    bool OuvreUSB(IdentifiantUsb id);
    /// Cancels pending input and closes both handles; harmless when nothing is open.
    void FermeUSB();
    /// Sends the first `longueur` values, in at most three attempts. The caller is told nothing: a
    /// failure shows at the next read. Fault 6 for a value outside 0 to 255.
    void UsbWrite(std::span<const int> trame, int longueur);
    /// Reads up to `longueur` bytes into as many values. With `TimeOut` set: zeros at once. When no
    /// byte comes: handles closed, `message` in a box titled `titre` if `erreur`, then `TimeOut`
    /// set.
    Octets UsbRead(int longueur, const QString& message, bool erreur, bool sansEffet,
                   const QString& titre);
    /// The same with a message that is only made when it is to be shown.
    Octets UsbRead(int longueur, const std::function<QString()>& message, bool erreur,
                   bool sansEffet, const QString& titre);
    /// Looks at the platform's last error and drops it: the place for a log.
    void TraceErreurUSB(const QString& operation);
    /// The platform's text of an error number, less its line end; "" for two characters or fewer.
    QString TexteErreurWin(std::uint32_t code);

    PoigneeUsb WriteHandle = 0;
    PoigneeUsb ReadHandle = 0;

  private:
    void FermerPoignees();

    MainScreen& ecran_;
    // Bytes on their way, kept so that a long download asks for no memory.
    std::vector<std::uint8_t> tampon_;
};

}  // namespace bornika
