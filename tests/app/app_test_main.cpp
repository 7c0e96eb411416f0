#include <gtest/gtest.h>

#include "app/application.h"

// These tests run under the program's own application, with its last net.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleTest(&argc, argv);
    bornika::Application application(argc, argv);
    bornika::PreparerApplication();
    application.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
