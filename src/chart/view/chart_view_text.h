#pragma once

#include <qcustomplot.h>

namespace bornika {

/// A text over the whole width of the chart that goes on in a new line where it would be cut off.
class TexteGraphe : public QCPTextElement {
  public:
    TexteGraphe(QCustomPlot* dessin, Qt::AlignmentFlag cote);

  protected:
    QSize minimumOuterSizeHint() const override;
    QSize maximumOuterSizeHint() const override;
};

}  // namespace bornika
