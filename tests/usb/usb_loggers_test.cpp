#include "usb/usb_loggers.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>

#include "usb/usb_library.h"

// What holds without a device at the other end.
namespace bornika {
namespace {

TEST(EnregistreursUsb, WithoutAProductFindNoneAndSayWhy) {
    for (const auto& reglages : {std::vector<ReglageUsb>(), std::vector<ReglageUsb>(2)}) {
        EnregistreursUsb usb(reglages);
        EXPECT_EQ(usb.Absence(), AbsenceUsb::SansReglage);
        EXPECT_EQ(usb.Compte(), 0);
        EXPECT_EQ(usb.DerniereErreur(), 0u);
        EXPECT_EQ(usb.Absence(), AbsenceUsb::SansReglage);
        EXPECT_EQ(usb.Identifiant(0), 0);
        EXPECT_EQ(usb.Ouvrir(1), -1);
        EXPECT_EQ(usb.DerniereErreur(), static_cast<std::uint32_t>(ENODEV));
    }
}

TEST(EnregistreursUsb, WithAProductBlameNoMissingSetting) {
    EnregistreursUsb usb({{.Vendeur = 1, .Produit = 2}});
    EXPECT_NE(usb.Absence(), AbsenceUsb::SansReglage);
}

TEST(EnregistreursUsb, AnswerZeroOutsideTheCount) {
    EnregistreursUsb usb({});
    for (const int index : {-1, 0, 1, 1000000})
        EXPECT_EQ(usb.Identifiant(index), 0);
}

TEST(EnregistreursUsb, SufferNoHarmFromHandlesThatAreNotOpen) {
    EnregistreursUsb usb({});
    std::array<std::uint8_t, 8> octets{1, 2, 3};
    for (const PoigneeUsb poignee : {0, -1, 1, 4711}) {
        EXPECT_FALSE(usb.Ecrire(poignee, octets));
        EXPECT_NE(usb.DerniereErreur(), 0u);
        EXPECT_EQ(usb.Lire(poignee, octets), 0);
        EXPECT_NE(usb.DerniereErreur(), 0u);
        usb.Annuler(poignee);
        EXPECT_EQ(usb.DerniereErreur(), 0u);
        usb.Fermer(poignee);
        EXPECT_EQ(usb.DerniereErreur(), 0u);
    }
    EXPECT_EQ(octets[1], 2);
}

TEST(EnregistreursUsb, EndTheTextOfAnErrorWithALineEnd) {
    EnregistreursUsb usb({});
    const QString parti = usb.TexteErreur(ENODEV);
    EXPECT_TRUE(parti.endsWith(QStringLiteral("\r\n")));
    EXPECT_GT(parti.size(), 4);
    EXPECT_LE(parti.size(), 128);
    EXPECT_NE(parti, usb.TexteErreur(ETIMEDOUT));
    EXPECT_EQ(usb.TexteErreur(0), QString());
}

TEST(NumeroSysteme, IsTheSystemsOwnForEachNumberOfTheLibrary) {
    const std::pair<int, int> paires[] = {{LIBUSB_SUCCESS, 0},
                                          {LIBUSB_ERROR_IO, EIO},
                                          {LIBUSB_ERROR_INVALID_PARAM, EINVAL},
                                          {LIBUSB_ERROR_ACCESS, EACCES},
                                          {LIBUSB_ERROR_NO_DEVICE, ENODEV},
                                          {LIBUSB_ERROR_NOT_FOUND, ENOENT},
                                          {LIBUSB_ERROR_BUSY, EBUSY},
                                          {LIBUSB_ERROR_TIMEOUT, ETIMEDOUT},
                                          {LIBUSB_ERROR_OVERFLOW, EOVERFLOW},
                                          {LIBUSB_ERROR_PIPE, EPIPE},
                                          {LIBUSB_ERROR_INTERRUPTED, EINTR},
                                          {LIBUSB_ERROR_NO_MEM, ENOMEM},
                                          {LIBUSB_ERROR_NOT_SUPPORTED, EOPNOTSUPP},
                                          {LIBUSB_ERROR_OTHER, EIO},
                                          {-4711, EIO}};
    for (const auto& [erreur, attendu] : paires)
        EXPECT_EQ(NumeroSysteme(erreur), static_cast<std::uint32_t>(attendu)) << erreur;
}

}  // namespace
}  // namespace bornika
