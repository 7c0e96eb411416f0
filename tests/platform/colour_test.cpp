#include "platform/colour.h"

#include <gtest/gtest.h>

#include <QColor>

namespace bornika {
namespace {

TEST(Couleur, HoldsRedInItsLowByte) {
    EXPECT_EQ(VersQColor(255), QColor(Qt::red));
    EXPECT_EQ(VersQColor(65535), QColor(Qt::yellow));
    EXPECT_EQ(VersQColor(0xFF00), QColor(0, 255, 0));
    EXPECT_EQ(VersQColor(0xFF0000), QColor(Qt::blue));
    EXPECT_EQ(VersQColor(0xFFFFFF), QColor(Qt::white));
    EXPECT_EQ(DepuisQColor(QColor(128, 255, 0)), 0x00FF80U);
    for (const Couleur couleur : {0U, 0x123456U, 0xFFFFFFU})
        EXPECT_EQ(DepuisQColor(VersQColor(couleur)), couleur);
}

}  // namespace
}  // namespace bornika
