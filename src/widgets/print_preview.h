#pragma once

#include <QPrinter>

namespace bornika {

struct DemandeApercu;

/// A printer set up as a preview is asked for: one page of the default size, in pixels of the
/// screen's resolution. At a printer's own resolution texts would be laid out with the measures of
/// the screen and drawn with others; the page is made of vectors and comes out sharp in any case.
class ImprimantePage : public QPrinter {
  public:
    explicit ImprimantePage(const DemandeApercu& demande);
};

}  // namespace bornika
