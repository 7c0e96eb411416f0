#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QSizeF>
#include <QTemporaryDir>
#include <vector>

namespace bornika::essai {

/// A PDF document read back by programs that know nothing of ours. Set BORNIKA_PICTURES to a folder
/// to look at what the tests read.
class Papier {
  public:
    explicit Papier(const QString& chemin) : chemin_(chemin) {
        const QString dossier = qEnvironmentVariable("BORNIKA_PICTURES");
        const auto* essai = testing::UnitTest::GetInstance()->current_test_info();
        if (!dossier.isEmpty()) QFile::copy(chemin, dossier + "/" + essai->name() + ".pdf");
        const QString fiche = Sortie("pdfinfo", {chemin});
        pages = Trouver(fiche, "Pages:\\s+(\\d+)").toInt();
        titre = Trouver(fiche, "Title:\\s+(.*)");
        taille = {Trouver(fiche, "Page size:\\s+([\\d.]+) x").toDouble(),
                  Trouver(fiche, "Page size:\\s+[\\d.]+ x ([\\d.]+)").toDouble()};
        texte = Sortie("pdftotext", {"-layout", chemin, "-"});
    }

    /// The first page with so many dots an inch.
    QImage Image(int finesse = 96) const {
        const QTemporaryDir dossier;
        Sortie("pdftoppm", {"-png", "-singlefile", "-r", QString::number(finesse), chemin_,
                            dossier.filePath("page")});
        return QImage(dossier.filePath("page.png"));
    }
    /// Number of pictures made of pixels in it.
    int Bitmaps() const {
        // Two lines of heading.
        return static_cast<int>(
            Sortie("pdfimages", {"-list", chemin_}).split('\n', Qt::SkipEmptyParts).size() - 2);
    }
    struct Mot {
        QString texte;
        QRectF place;
    };
    /// Every word with the place that it takes, in points.
    std::vector<Mot> Mots() const {
        std::vector<Mot> mots;
        const QRegularExpression forme(
            "<word xMin=\"([\\d.-]+)\" yMin=\"([\\d.-]+)\" xMax=\"([\\d.-]+)\" "
            "yMax=\"([\\d.-]+)\">(.*?)</word>");
        auto trouves = forme.globalMatch(Sortie("pdftotext", {"-bbox", chemin_, "-"}));
        while (trouves.hasNext()) {
            const auto mot = trouves.next();
            const auto nombre = [&](int i) { return mot.captured(i).toDouble(); };
            mots.push_back({mot.captured(5),
                            QRectF(QPointF(nombre(1), nombre(2)), QPointF(nombre(3), nombre(4)))});
        }
        return mots;
    }

    int pages = 0;
    QSizeF taille;
    QString titre;
    QString texte;

  private:
    static QString Sortie(const QString& programme, const QStringList& arguments) {
        QProcess lecteur;
        lecteur.start(programme, arguments);
        EXPECT_TRUE(lecteur.waitForFinished()) << programme.toStdString();
        EXPECT_EQ(lecteur.exitCode(), 0) << lecteur.readAllStandardError().toStdString();
        return QString::fromUtf8(lecteur.readAllStandardOutput());
    }
    static QString Trouver(const QString& texte, const char* forme) {
        return QRegularExpression(forme).match(texte).captured(1);
    }

    QString chemin_;
};

/// Part of the picture whose pixels satisfy a rule.
template <class Regle>
double Part(const QImage& image, Regle regle) {
    qint64 nombre = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            nombre += regle(image.pixelColor(x, y)) ? 1 : 0;
    return image.isNull() ? 0 : double(nombre) / (double(image.width()) * image.height());
}

/// Every word stands whole on the page and none lies on another.
inline void RienNEstCoupeNiRecouvert(const Papier& papier) {
    const auto mots = papier.Mots();
    const QRectF page(QPointF(0, 0), papier.taille);
    for (std::size_t i = 0; i < mots.size(); ++i) {
        EXPECT_TRUE(page.contains(mots[i].place)) << mots[i].texte.toStdString();
        for (std::size_t j = i + 1; j < mots.size(); ++j) {
            const QRectF commun = mots[i].place & mots[j].place;
            // The boxes of neighbouring lines touch.
            EXPECT_FALSE(commun.width() > 1 && commun.height() > 2)
                << mots[i].texte.toStdString() << " / " << mots[j].texte.toStdString();
        }
    }
}

}  // namespace bornika::essai
