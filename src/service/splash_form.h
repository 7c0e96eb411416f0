#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "widgets/own_form.h"

namespace Ui {
class frmSplash;
}

namespace bornika {

/// The picture shown at the start of the program. It closes itself on a click on the picture, on a
/// key, or when `Timer1` fires; who shows it sets the timer.
class frmSplash : public QWidget, public FicheDuProgramme {
    Q_OBJECT
  public:
    explicit frmSplash(QWidget* parent = nullptr);
    ~frmSplash() override;

    std::unique_ptr<Ui::frmSplash> ui;
    /// Not running until the caller starts it; fires once.
    QTimer Timer1;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
};

}  // namespace bornika
