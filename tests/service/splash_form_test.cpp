#include "service/splash_form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QtTest>

#include "ui_splash_form.h"

namespace bornika {
namespace {

TEST(FrmSplash, ShowsAPictureAndDoesNotRunItsTimerByItself) {
    frmSplash splash;
    EXPECT_FALSE(splash.ui->Image1->pixmap().isNull());
    EXPECT_FALSE(splash.Timer1.isActive());
    EXPECT_FALSE(splash.isModal());
}

TEST(FrmSplash, StandsInTheMiddleOfTheScreenInTheSizeOfItsPicture) {
    frmSplash splash;
    splash.show();
    EXPECT_EQ(splash.size(), splash.ui->Image1->pixmap().size());
    EXPECT_EQ(splash.geometry().center(), splash.screen()->availableGeometry().center());
}

TEST(FrmSplash, ClosesOnAClickOnThePicture) {
    frmSplash splash;
    splash.show();
    ASSERT_TRUE(splash.isVisible());
    QTest::mouseClick(splash.ui->Image1, Qt::LeftButton);
    EXPECT_FALSE(splash.isVisible());
}

TEST(FrmSplash, ClosesOnAKey) {
    frmSplash splash;
    splash.show();
    QTest::keyClick(&splash, Qt::Key_Space);
    EXPECT_FALSE(splash.isVisible());
}

TEST(FrmSplash, ClosesWhenItsTimerFires) {
    frmSplash splash;
    splash.show();
    splash.Timer1.start(2000);
    EXPECT_EQ(splash.Timer1.interval(), 2000);
    splash.Timer1.start(0);
    QCoreApplication::processEvents();
    EXPECT_FALSE(splash.isVisible());
}

}  // namespace
}  // namespace bornika
