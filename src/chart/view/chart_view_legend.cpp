#include "chart/view/chart_view_legend.h"

#include <QFontMetrics>

namespace bornika {

namespace {

constexpr int longueurTrait = 22;
constexpr int ecartCase = 6;

}  // namespace

ElementLegende::ElementLegende(QCPLegend* legende, int serie, bool avecCase)
    : QCPAbstractLegendItem(legende), serie_(serie), avecCase_(avecCase) {
    setMargins(QMargins(2, 1, 8, 1));
}

bool ElementLegende::Regler(const QString& titre, const QColor& couleur, bool actif) {
    if (titre == titre_ && couleur == couleur_ && actif == actif_) return false;
    titre_ = titre;
    couleur_ = couleur;
    actif_ = actif;
    image_ = {};
    tailleVoulue_ = {};
    return true;
}

void ElementLegende::Habiller(const QFont& police, const QColor& texte) {
    setFont(police);
    setTextColor(texte);
    image_ = {};
    tailleVoulue_ = {};
}

int ElementLegende::Cote() const {
    return qMax(11, QFontMetrics(mFont).ascent());
}

QSize ElementLegende::minimumOuterSizeHint() const {
    if (tailleVoulue_.isValid()) return tailleVoulue_;
    const QFontMetrics mesures(mFont);
    tailleVoulue_ = {(avecCase_ ? Cote() + ecartCase : 0) + longueurTrait + 2 * ecartCase +
                         mesures.horizontalAdvance(titre_) + mMargins.left() + mMargins.right(),
                     qMax(Cote() + 2, mesures.height()) + mMargins.top() + mMargins.bottom()};
    return tailleVoulue_;
}

void ElementLegende::draw(QCPPainter* peintre) {
    if (peintre->modes().testFlag(QCPPainter::pmNoCaching))
        Peindre(*peintre, mRect);
    else
        peintre->drawPixmap(mRect.topLeft(), Image(parentPlot()->bufferDevicePixelRatio()));
}

const QPixmap& ElementLegende::Image(double rapport) {
    const QSize taille = minimumOuterSizeHint();
    if (image_.isNull() || image_.devicePixelRatio() != rapport) {
        image_ = QPixmap(taille * rapport);
        image_.setDevicePixelRatio(rapport);
        image_.fill(Qt::transparent);
        QPainter peintre(&image_);
        Peindre(peintre, QRect(QPoint(0, 0), QSize(taille.width(), mRect.height())));
    }
    return image_;
}

QColor ElementLegende::CouleurTexte() const {
    QColor texte = mTextColor;
    if (!actif_) texte.setAlphaF(0.65F);
    return texte;
}

void ElementLegende::PeindreCase(QPainter& peintre, const QRect& boite) const {
    const int cote = boite.width();
    peintre.setPen(QPen(CouleurTexte(), 1));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRect(boite);
    if (actif_) {
        peintre.setRenderHint(QPainter::Antialiasing, true);
        peintre.setPen(QPen(mTextColor, 2));
        const QPointF coche[] = {QPointF(boite.left() + cote * 0.2, boite.top() + cote * 0.55),
                                 QPointF(boite.left() + cote * 0.42, boite.top() + cote * 0.78),
                                 QPointF(boite.left() + cote * 0.85, boite.top() + cote * 0.25)};
        peintre.drawPolyline(coche, 3);
        peintre.setRenderHint(QPainter::Antialiasing, false);
    }
}

void ElementLegende::Peindre(QPainter& peintre, const QRect& zone) const {
    const int cote = Cote();
    const QRect boite(zone.left() + 1, zone.center().y() - cote / 2, cote, cote);
    if (avecCase_) PeindreCase(peintre, boite);
    const int debut = avecCase_ ? boite.right() + ecartCase : zone.left();
    QColor trait = couleur_;
    if (!actif_) trait.setAlphaF(0.5F);
    peintre.setPen(QPen(trait, 3));
    const QPointF depart(debut, zone.center().y());
    peintre.drawLine(depart, depart + QPointF(longueurTrait, 0));
    peintre.setPen(CouleurTexte());
    peintre.setFont(mFont);
    peintre.drawText(zone.adjusted(debut + longueurTrait + ecartCase - zone.left(), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, titre_);
}

std::vector<ElementLegende*> ElementsLegende(const QCPLegend& legende) {
    std::vector<ElementLegende*> elements;
    for (int i = 0; i < legende.itemCount(); ++i)
        if (auto* element = qobject_cast<ElementLegende*>(legende.item(i)))
            elements.push_back(element);
    return elements;
}

int SerieSousLegende(const QCPLegend& legende, QPointF position) {
    if (!legende.realVisibility() || !legende.outerRect().contains(position.toPoint())) return -1;
    for (const ElementLegende* element : ElementsLegende(legende))
        if (element->outerRect().contains(position.toPoint())) return element->Serie();
    return -1;
}

}  // namespace bornika
