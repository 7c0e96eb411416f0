#include "widgets/pointer_shape.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "platform/fault.h"

namespace bornika {
namespace {

TEST(Pointeur, TakesTheShapeOfItsNumberAndGivesItBack) {
    QWidget fiche;
    EXPECT_EQ(PointeurSouris(fiche), pointeur::defaut);
    FixerPointeurSouris(fiche, pointeur::sablier);
    EXPECT_EQ(fiche.cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(PointeurSouris(fiche), 11);
    FixerPointeurSouris(fiche, pointeur::fleche);
    EXPECT_EQ(fiche.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(PointeurSouris(fiche), 1);
    FixerPointeurSouris(fiche, pointeur::defaut);
    EXPECT_EQ(PointeurSouris(fiche), 0);
    EXPECT_THROW(FixerPointeurSouris(fiche, 12), FauteExecution);
}

}  // namespace
}  // namespace bornika
