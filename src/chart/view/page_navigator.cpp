#include "chart/view/page_navigator.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace bornika {

QToolButton* NavigateurPages::Bouton(const QString& texte, int (NavigateurPages::*cible)() const) {
    auto* bouton = new QToolButton(this);
    bouton->setText(texte);
    bouton->setAutoRaise(true);
    connect(bouton, &QToolButton::clicked, this,
            [this, cible] { Q_EMIT PageDemandee((this->*cible)()); });
    return bouton;
}

NavigateurPages::NavigateurPages(QWidget* parent) : QWidget(parent) {
    premiere = Bouton(QStringLiteral("|◀"), &NavigateurPages::Debut);
    precedente = Bouton(QStringLiteral("◀"), &NavigateurPages::Avant);
    etiquette_ = new QLabel(this);
    etiquette_->setAlignment(Qt::AlignCenter);
    etiquette_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("99999 / 99999")));
    suivante = Bouton(QStringLiteral("▶"), &NavigateurPages::Apres);
    derniere = Bouton(QStringLiteral("▶|"), &NavigateurPages::Fin);

    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 0, 0, 0);
    rangee->setSpacing(2);
    for (QWidget* element : {static_cast<QWidget*>(premiere), static_cast<QWidget*>(precedente),
                             static_cast<QWidget*>(etiquette_), static_cast<QWidget*>(suivante),
                             static_cast<QWidget*>(derniere)})
        rangee->addWidget(element);
    Montrer(0, 1);
}

void NavigateurPages::Montrer(int page, int nombre) {
    nombre_ = qMax(1, nombre);
    page_ = qBound(0, page, nombre_ - 1);
    etiquette_->setText(QStringLiteral("%1 / %2").arg(page_ + 1).arg(nombre_));
    premiere->setEnabled(page_ > 0);
    precedente->setEnabled(page_ > 0);
    suivante->setEnabled(page_ < nombre_ - 1);
    derniere->setEnabled(page_ < nombre_ - 1);
}

QString NavigateurPages::Texte() const {
    return etiquette_->text();
}

}  // namespace bornika
