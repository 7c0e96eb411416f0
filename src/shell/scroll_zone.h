#pragma once

#include <QScrollArea>

namespace bornika {

/// Shows its content at the size that it asks for; where the screen is too low for it, the rest is
/// scrolled to.
class ZoneDefilante : public QScrollArea {
    Q_OBJECT
  public:
    explicit ZoneDefilante(QWidget* parent = nullptr);

    /// The height that there is room for; 0, as at first, for no limit.
    void LimiterHauteur(int pixels);

    QSize sizeHint() const override;
    /// Never less than asked for: what is scrolled to is what the limit takes away.
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    /// Lets the window take the size that the content asks for now.
    void Suivre();

    int limite_ = 0;
};

}  // namespace bornika
