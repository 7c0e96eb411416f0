#pragma once

#include <qcustomplot.h>

#include <QObject>
#include <QTimer>
#include <functional>

#include "chart/view/zoom_settings.h"

namespace bornika {

/// What the three axes show at one moment.
struct Etendues {
    QCPRange bas;
    QCPRange gauche;
    QCPRange droite;
};

/// The ranges between two views, `part` from 0 (start) to 1 (target).
Etendues Entre(const Etendues& depart, const Etendues& cible, double part);

/// Moves the view to another one in a number of equal steps, or at once when it is switched off.
class AnimationZoom : public QObject {
    Q_OBJECT
  public:
    explicit AnimationZoom(QObject* parent = nullptr);

    ReglageAnimation reglage;

    /// Starts; `appliquer` receives each intermediate view and last the target itself, `fin` is
    /// called once after it. One that runs is brought to its end first.
    void Demarrer(const Etendues& depart, const Etendues& cible,
                  std::function<void(const Etendues&)> appliquer, std::function<void()> fin = {});
    /// One step; the timer calls it.
    void Avancer();
    /// Goes to the target now.
    void Terminer();
    /// Forgets the target.
    void Abandonner();
    bool EnCours() const { return chrono_.isActive(); }
    const Etendues& Cible() const { return cible_; }

  private:
    QTimer chrono_;
    Etendues depart_;
    Etendues cible_;
    int fait_ = 0;
    std::function<void(const Etendues&)> appliquer_;
    std::function<void()> fin_;
};

/// The rectangle that follows the mouse while a zoom is drawn: a light veil that stays visible on a
/// dark chart and costs no redraw of the curves.
class BandeZoom : public QWidget {
  public:
    explicit BandeZoom(QWidget* parent);

    void Commencer(QPoint origine);
    void Suivre(QPoint position);
    QRect Zone() const { return QRect(origine_, position_).normalized(); }
    QPoint Origine() const { return origine_; }

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    QPoint origine_;
    QPoint position_;
};

}  // namespace bornika
