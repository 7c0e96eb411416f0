#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstdio>

#include "usb_mock/mock/usb_testbed.h"

// Without mock ports there is nothing to test on: neither passed nor failed, which is 77.
int main(int argc, char** argv) {
    constexpr int sansObjet = 77;
    testing::InitGoogleTest(&argc, argv);
    if (!GTEST_FLAG_GET(list_tests) && !bornika::essai::BancUsb::Possible()) {
        std::puts("Skipped: there is no mock environment. Run this under umockdev-wrapper.");
        return sansObjet;
    }
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
