#pragma once

#include <QListWidget>

namespace bornika {

/// The list of loggers. While it is empty it shows a plug that hangs loose, so that one sees at
/// once that nothing is attached, in any language.
class ListeAppareils : public QListWidget {
    Q_OBJECT
  public:
    explicit ListeAppareils(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace bornika
