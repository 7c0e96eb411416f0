#pragma once

#include <QString>

#include "link/station.h"

/// Who a logger is: each operation is a short conversation of its own with the logger `UsbID`,
/// which opens the link and closes it again. None of them shows a message.
namespace bornika {

/// Firmware version as a number: the decimal texts of both parts joined, in thousandths. 2 and 110
/// are 2.11, but 2 and 89 are 0.289.
double NumeroVersion(int haut, int bas);

/// Serial number in decimal; "" on failure and for a number beyond 2147483647. Does not clear
/// `TimeOut`: while it stands, nothing is asked.
QString LitNumeroSerieKpod(Poste& poste);

/// "k-Pod = 1 2-110", "" on failure. `ok` becomes true on a good answer and is left alone
/// otherwise. Sets `VersionLogiciel` on a good answer. Clears `TimeOut` first.
QString LitVersionKpod(Poste& poste, bool& ok);

/// Product type in decimal, "" on failure. Clears `TimeOut` first. The argument has no effect.
QString LitTypeKpod(Poste& poste, bool sansEffet = false);

}  // namespace bornika
