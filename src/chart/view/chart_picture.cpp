#include "chart/view/chart_picture.h"

#include <QBuffer>
#include <QPdfWriter>

#include "chart/view/chart_paper.h"
#include "chart/view/chart_plot.h"
#include "chart/view/chart_view.h"

namespace bornika {

namespace {

constexpr int pixelsParPixel = 2;
constexpr double pointsParPouce = 72;
constexpr double poucesParMetre = 1 / 0.0254;

void PeindreSupport(const VueGraphe& vue, QPaintDevice& support, QSize taille,
                    QCPPainter::PainterModes modes) {
    DessinGraphe papier;
    papier.Reproduire(vue.Toile(), ApparencePapier(vue.ApparencePresente()));
    QCPPainter peintre(&support);
    // Hair lines of one dot would vanish in print.
    peintre.setModes(modes | QCPPainter::pmNoCaching | QCPPainter::pmNonCosmetic);
    papier.toPainter(&peintre, taille.width(), taille.height());
}

}  // namespace

void PeindreGraphe(const VueGraphe& vue, QPagedPaintDevice& page) {
    PeindreSupport(vue, page, QSize(page.width(), page.height()), QCPPainter::pmVectorized);
}

QImage ImageGraphe(const VueGraphe& vue) {
    QImage image(vue.size() * pixelsParPixel, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelsParPixel);
    PeindreSupport(vue, image, vue.size(), QCPPainter::pmDefault);
    // Documents place it in the size that it had on the screen.
    const int parMetre = qRound(vue.logicalDpiX() * pixelsParPixel * poucesParMetre);
    image.setDotsPerMeterX(parMetre);
    image.setDotsPerMeterY(parMetre);
    return image;
}

QByteArray PngGraphe(const VueGraphe& vue) {
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    ImageGraphe(vue).save(&tampon, "PNG");
    return octets;
}

QByteArray PdfGraphe(const VueGraphe& vue, const QString& titre) {
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    QPdfWriter document(&tampon);
    document.setTitle(titre);
    document.setCreator(QStringLiteral("BORNIKA"));
    document.setResolution(vue.logicalDpiX());
    const QSizeF taille = QSizeF(vue.size()) * pointsParPouce / vue.logicalDpiX();
    document.setPageLayout(
        QPageLayout(QPageSize(taille, QPageSize::Point, QString(), QPageSize::ExactMatch),
                    QPageLayout::Portrait, QMarginsF()));
    PeindreGraphe(vue, document);
    return octets;
}

}  // namespace bornika
