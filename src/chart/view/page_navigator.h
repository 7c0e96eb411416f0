#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace bornika {

/// Four buttons and a page label: first, previous, next and last page of the chart.
/// It only asks; who owns the pages answers by `Montrer`.
class NavigateurPages : public QWidget {
    Q_OBJECT
  public:
    explicit NavigateurPages(QWidget* parent = nullptr);

    /// Shows page `page` (from 0) of `nombre`; buttons that lead nowhere are disabled.
    void Montrer(int page, int nombre);

    int Page() const { return page_; }
    int Nombre() const { return nombre_; }
    QString Texte() const;

    QToolButton* premiere;
    QToolButton* precedente;
    QToolButton* suivante;
    QToolButton* derniere;

  Q_SIGNALS:
    /// The operator wants that page, from 0.
    void PageDemandee(int page);

  private:
    QToolButton* Bouton(const QString& texte, int (NavigateurPages::*cible)() const);
    int Debut() const { return 0; }
    int Avant() const { return page_ - 1; }
    int Apres() const { return page_ + 1; }
    int Fin() const { return nombre_ - 1; }

    QLabel* etiquette_;
    int page_ = 0;
    int nombre_ = 1;
};

}  // namespace bornika
