#include "widgets/kept_place.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QVBoxLayout>

namespace bornika {
namespace {

TEST(PlaceGardee, OfAHiddenControlStaysFree) {
    QWidget fiche;
    auto* disposition = new QVBoxLayout(&fiche);
    QLabel premier(QStringLiteral("premier"));
    QLabel second(QStringLiteral("second"));
    disposition->addWidget(&premier);
    disposition->addWidget(&second);
    const QSize avant = fiche.sizeHint();
    second.hide();
    disposition->activate();
    EXPECT_LT(fiche.sizeHint().height(), avant.height());
    GarderLaPlace(second);
    disposition->activate();
    EXPECT_EQ(fiche.sizeHint(), avant);
}

}  // namespace
}  // namespace bornika
