#pragma once

class QWidget;

namespace bornika {

/// Keeps a control's place free while it is hidden, so that a form does not jump when it comes and
/// goes.
void GarderLaPlace(QWidget& controle);

}  // namespace bornika
