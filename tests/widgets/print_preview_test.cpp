#include "widgets/print_preview.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTimer>

#include "platform/fault.h"
#include "support/fake_system.h"
#include "widgets/toolkit_dialogs.h"

namespace bornika {
namespace {

/// Does something with the preview as soon as it stands.
void DesQueLApercuEstLa(const std::function<void(QPrintPreviewDialog&)>& action) {
    QTimer::singleShot(0, qApp, [action] {
        auto* apercu = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        if (apercu == nullptr)
            DesQueLApercuEstLa(action);
        else
            action(*apercu);
    });
}

DemandeApercu Demande(std::function<void(QPagedPaintDevice&)> peindre) {
    DemandeApercu demande;
    demande.titre = QStringLiteral("BORNIKA k-Pod");
    demande.paysage = true;
    demande.marges = 10;
    demande.peindre = std::move(peindre);
    return demande;
}

TEST(Apercu, ShowsOnePageLyingWithTheTitleAndTheMarginsAskedFor) {
    int peintes = 0;
    const DemandeApercu demande = Demande([&](QPagedPaintDevice& page) {
        ++peintes;
        const QPageLayout miseEnPage = page.pageLayout();
        EXPECT_EQ(miseEnPage.orientation(), QPageLayout::Landscape);
        EXPECT_EQ(miseEnPage.margins(QPageLayout::Millimeter), QMarginsF(10, 10, 10, 10));
        EXPECT_GT(page.width(), page.height());
        QPainter(&page).drawText(20, 20, QStringLiteral("page"));
    });
    int pages = 0;
    QString titre;
    DesQueLApercuEstLa([&](QPrintPreviewDialog& apercu) {
        titre = apercu.windowTitle();
        pages = apercu.findChild<QPrintPreviewWidget*>()->pageCount();
        apercu.reject();
    });
    DialoguesQt().Apercu(demande);
    EXPECT_EQ(titre, "BORNIKA k-Pod");
    EXPECT_EQ(pages, 1);
    EXPECT_GE(peintes, 1);
}

TEST(Apercu, PaintsAnewForAnotherPageSetUp) {
    std::vector<QPageLayout::Orientation> vues;
    const DemandeApercu demande = Demande([&](QPagedPaintDevice& page) {
        vues.push_back(page.pageLayout().orientation());
        QPainter(&page).drawText(20, 20, QStringLiteral("page"));
    });
    DesQueLApercuEstLa([&](QPrintPreviewDialog& apercu) {
        apercu.findChild<QPrintPreviewWidget*>()->setPortraitOrientation();
        apercu.reject();
    });
    DialoguesQt().Apercu(demande);
    ASSERT_GE(vues.size(), 2U);
    EXPECT_EQ(vues.front(), QPageLayout::Landscape);
    EXPECT_EQ(vues.back(), QPageLayout::Portrait);
}

TEST(Apercu, AFaultOfThePaintingGoesToTheGuardAndNotThroughTheDialog) {
    essai::Etabli etabli;
    const DemandeApercu demande = Demande([](QPagedPaintDevice&) { LeverFaute(9); });
    DesQueLApercuEstLa([&](QPrintPreviewDialog& apercu) { apercu.reject(); });
    DialoguesQt().Apercu(demande);
    ASSERT_FALSE(etabli.fautes.empty());
    EXPECT_EQ(etabli.fautes.front(), 9);
}

TEST(ImprimantePage, HasTheResolutionOfTheScreenAndTheTitleAsItsName) {
    const ImprimantePage imprimante(Demande({}));
    EXPECT_EQ(imprimante.resolution(), QWidget().logicalDpiX());
    EXPECT_EQ(imprimante.docName(), "BORNIKA k-Pod");
    DemandeApercu debout = Demande({});
    debout.paysage = false;
    debout.marges = 15;
    const ImprimantePage autre(debout);
    EXPECT_EQ(autre.pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_EQ(autre.pageLayout().margins(QPageLayout::Millimeter), QMarginsF(15, 15, 15, 15));
}

}  // namespace
}  // namespace bornika
