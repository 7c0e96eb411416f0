#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>

class QWidget;

namespace bornika {

class MainScreen;
class frmSplash;

/// What an activation of the main form does: the splash once a start, the width that the
/// maintenance setting asks for, and the end of a download that another form interrupted.
class Activation {
  public:
    explicit Activation(MainScreen& ecran);
    ~Activation();

    void Activer();

    /// The splash of this start while it is shown.
    frmSplash* Splash() const;

  private:
    MainScreen& ecran_;
    QPointer<frmSplash> splash_;
};

/// Tells when the main form becomes the active form of this program: for the first time, or after
/// another form of it. Message boxes, common dialogs and other programs do not count, or each box
/// would cancel a running download.
///
/// A hand on the main form counts at once: what the window system says of it may come after the
/// click has begun a download, and would end that one.
class SuiviActivation : public QObject {
    Q_OBJECT
  public:
    SuiviActivation(QWidget& principale, std::function<void()> activer);

    /// A window of the program became the active one.
    void FenetreActive(QWidget* fenetre);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    QWidget& principale_;
    std::function<void()> activer_;
    QPointer<QWidget> derniereFiche_;
    bool dejaActivee_ = false;
};

}  // namespace bornika
