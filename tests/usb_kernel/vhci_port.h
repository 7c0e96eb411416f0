#pragma once

namespace bornika::essai {

/// Gives the kernel's virtual host controller the end `prise` of a stream socket, behind which a
/// full-speed device speaks USB/IP. Returns the port that it is plugged into. A
/// `std::runtime_error` when there is no controller or no free port.
int BrancherAuControleur(int prise);

/// Orders the controller to drop what is plugged into the port.
void DetacherDuControleur(int port);

/// Waits until the port is free again; a `std::runtime_error` after a minute.
void AttendrePortLibre(int port);

}  // namespace bornika::essai
