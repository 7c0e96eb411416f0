#pragma once

#include <QDialog>
#include <array>
#include <cstdint>
#include <memory>

#include "link/station.h"
#include "widgets/own_form.h"

class QLabel;
class QLineEdit;

namespace Ui {
class Etalonnage;
}

namespace bornika {

/// The controls of one calibration point.
struct RangeePoint {
    QLabel* Labeltextepressionreelle;
    QLineEdit* ValeurPressionReelle;
    QLabel* Labelpressionreelle;
    QLabel* Labeltextepressionlue;
    QLabel* ValeurPressionLue;
    QLabel* Labelpressionlue;

    std::array<QWidget*, 6> Controles() const;
};

/// The form of the calibration: its controls and which point is being taken.
class Etalonnage : public QDialog, public FicheDuProgramme {
    Q_OBJECT
  public:
    /// Ties the controls to the operations of calibration.h.
    explicit Etalonnage(Poste& poste, QWidget* parent = nullptr);
    ~Etalonnage() override;

    /// The controls of the first point (`rang` 0) or of the second (1).
    RangeePoint Rangee(int rang) const;

    std::unique_ptr<Ui::Etalonnage> ui;
    /// The link, for calibration_exchange.h; what is shown needs the main form alone.
    Poste& poste;
    MainScreen& ecran;
    /// 0 while the first point is being taken, 1 while the second is.
    std::int16_t DeuxiemePoint = 0;

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
};

}  // namespace bornika
