#include "chart/view/chart_view_text.h"

#include <QFontMetrics>
#include <algorithm>

namespace bornika {

TexteGraphe::TexteGraphe(QCustomPlot* dessin, Qt::AlignmentFlag cote) : QCPTextElement(dessin) {
    setTextFlags(cote | Qt::AlignVCenter | Qt::TextWordWrap);
}

QSize TexteGraphe::minimumOuterSizeHint() const {
    const int cotes = mMargins.left() + mMargins.right();
    const int largeur = std::max(mParentPlot->viewport().width() - cotes, 1);
    const QRect place = QFontMetrics(mFont).boundingRect(
        QRect(0, 0, largeur, 0), Qt::TextDontClip | Qt::TextWordWrap, mText);
    return {std::min(place.width(), largeur) + cotes,
            place.height() + mMargins.top() + mMargins.bottom()};
}

QSize TexteGraphe::maximumOuterSizeHint() const {
    return {QWIDGETSIZE_MAX, minimumOuterSizeHint().height()};
}

}  // namespace bornika
