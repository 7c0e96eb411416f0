#pragma once

#include <QAbstractButton>
#include <QPointer>

#include "widgets/pointer_shape.h"

/// What shows that an operation runs, for as long as an object lives: a way out of the operation in
/// the middle leaves nothing behind.
namespace bornika {

/// Gives a form another pointer and brings back the one that it had. The form may go meanwhile.
class PointeurPendant {
  public:
    PointeurPendant(QWidget& fiche, int forme) : fiche_(&fiche), avant_(PointeurSouris(fiche)) {
        FixerPointeurSouris(fiche, forme);
    }
    ~PointeurPendant() { Rendre(); }
    PointeurPendant(const PointeurPendant&) = delete;
    PointeurPendant& operator=(const PointeurPendant&) = delete;

    /// Brings the pointer back now rather than at the end.
    void Rendre() {
        if (fiche_) FixerPointeurSouris(*fiche_, avant_);
        fiche_ = nullptr;
    }

  private:
    QPointer<QWidget> fiche_;
    int avant_;
};

/// Disables a button and enables it again. The button may go meanwhile.
class BoutonOccupe {
  public:
    explicit BoutonOccupe(QAbstractButton& bouton) : bouton_(&bouton) { bouton.setEnabled(false); }
    ~BoutonOccupe() { Rendre(); }
    BoutonOccupe(const BoutonOccupe&) = delete;
    BoutonOccupe& operator=(const BoutonOccupe&) = delete;

    /// Enables it now rather than at the end.
    void Rendre() {
        if (bouton_) bouton_->setEnabled(true);
        bouton_ = nullptr;
    }
    /// Leaves it disabled for good.
    void Laisser() { bouton_ = nullptr; }

  private:
    QPointer<QAbstractButton> bouton_;
};

}  // namespace bornika
