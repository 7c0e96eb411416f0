// The guided tour, on loggers that answer at once: the pictures of the manual come from it.

#include "app/tour.h"

#include <gtest/gtest.h>

#include <QImage>

#include "app/demo_bus.h"
#include "support/fake_system.h"
#include "widgets/toolkit_dialogs.h"

namespace bornika {
namespace {

/// Neither a missing picture nor one of a single colour.
bool EstUnePhoto(const QString& chemin) {
    const QImage image(chemin);
    if (image.isNull()) return false;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0)) return true;
    return false;
}

TEST(Tour, WalksTheRoadAndLeavesTheRecordingAndThePictures) {
    essai::Etabli etabli;
    const std::unique_ptr<BusSimule> bus = BusDeDemonstration(etabli.horloge, Allure::Immediate);
    DialoguesQt dialogues;
    Respiration respiration;
    Systeme systeme{etabli.horloge, dialogues,  *bus,
                    respiration,    Regional{}, etabli.systeme.dossier};
    QStringList recit;
    ASSERT_TRUE(FaireVisite(systeme, [&](const QString& ligne) { recit << ligne; }))
        << recit.join(QLatin1Char('\n')).toStdString();

    EXPECT_EQ(recit.filter(QStringLiteral("attached: ")).size(), 4);
    QStringList photos;
    for (const QString& fichier : etabli.Fichiers())
        if (fichier.endsWith(QStringLiteral(".png"))) {
            photos << fichier.section(QLatin1Char('-'), 1);
            EXPECT_TRUE(EstUnePhoto(etabli.Chemin(fichier))) << fichier.toStdString();
        }
    for (const char* nom : {"select.png", "main.png", "box.png", "curve.png", "zoom.png",
                            "calibration.png", "service.png"})
        EXPECT_TRUE(photos.contains(QLatin1String(nom))) << nom;
    EXPECT_GT(etabli.Lire(QStringLiteral("2026-03-05-14-07-09.txt")).size(), 1'000'000);
}

}  // namespace
}  // namespace bornika
