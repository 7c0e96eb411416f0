#pragma once

#include <QApplication>

namespace bornika {

/// The toolkit's application with the last net: a fault that passed every guard is shown and ends
/// the program in good order; it never ends by an uncaught exception.
class Application : public QApplication {
    Q_OBJECT
  public:
    using QApplication::QApplication;
    bool notify(QObject* receveur, QEvent* evenement) override;
};

/// Name, icon and pictures of the application, before any form is made.
void PreparerApplication();

}  // namespace bornika
