#include "chart/view/chart_picture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <random>

#include "chart/view/chart_paper.h"
#include "chart/view/chart_scene.h"
#include "platform/dialogs.h"
#include "viewer/paper_reader.h"
#include "widgets/print_preview.h"

namespace bornika {
namespace {

using essai::Papier;
using essai::Part;
using essai::Scene;

double Luminance(const QColor& couleur) {
    const auto lineaire = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
           0.0722 * lineaire(couleur.blueF());
}
double ContrasteSurBlanc(const QColor& couleur) {
    return 1.05 / (Luminance(couleur) + 0.05);
}
bool Proche(const QColor& une, const QColor& autre) {
    return std::abs(une.red() - autre.red()) < 24 && std::abs(une.green() - autre.green()) < 24 &&
           std::abs(une.blue() - autre.blue()) < 24;
}

/// The chart of a recording with everything that a chart can show.
struct SceneComplete : Scene {
    explicit SceneComplete(int points = 1000) : Scene(points) {
        modele.titre = {"burst main"};
        modele.gauche.titre = "Pression (bar)";
        modele.droite.titre = "m3/Hrs";
        modele.couleursEtiquettes = {0xFF00, 0xFF00};
        modele.Serie(1).couleur = 0x00FF80;
        for (int source = 0; source < 2; ++source) {
            SerieGraphe& lissee = modele.AjouterSerie();
            modele.FixerFonction(2 + source, SerieGraphe::fonctionLissage, source);
            lissee.FixerPeriode(100);
            lissee.axe = modele.Serie(source).axe;
            lissee.titre = "(Lissee) " + modele.Serie(source).titre;
            lissee.couleur = source == 0 ? 0x00FFFF : 0xFF0000;
        }
        vue.Repaint();
    }
    Papier Pdf(const QString& titre = "essai") {
        QFile fichier(dossier.filePath("chart.pdf"));
        EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(PdfGraphe(graphe, titre));
        fichier.close();
        return Papier(fichier.fileName());
    }
    QTemporaryDir dossier;
};

TEST(Encre, EveryColourIsReadableOnWhite) {
    for (int rouge = 0; rouge < 256; rouge += 51)
        for (int vert = 0; vert < 256; vert += 51)
            for (int bleu = 0; bleu < 256; bleu += 51)
                EXPECT_GE(ContrasteSurBlanc(Encre(QColor(rouge, vert, bleu))), 3.95);
}

TEST(Encre, KeepsTheHueAndWhatIsDarkEnough) {
    for (const QColor& sombre : {QColor(0, 0, 255), QColor(200, 0, 0), QColor(0, 0, 0)})
        EXPECT_EQ(Encre(sombre), sombre);
    for (const QColor& claire : {QColor(255, 255, 0), QColor(128, 255, 0), QColor(79, 195, 247)})
        EXPECT_LE(std::abs(Encre(claire).hue() - claire.hue()), 12);
    EXPECT_EQ(Encre(Qt::white).saturation(), 0);
}

TEST(Encre, KeepsTheColoursOfOneLoadApart) {
    const QColor encres[] = {Encre(QColor(255, 110, 90)), Encre(QColor(128, 255, 0)),
                             Encre(QColor(255, 255, 0)), Encre(QColor(0, 0, 255))};
    for (const QColor& une : encres)
        for (const QColor& autre : encres)
            EXPECT_EQ(Proche(une, autre), &une == &autre);
}

TEST(ApparencePapier, IsWhiteWithDarkTextsAndTheFontsOfTheScreen) {
    Apparence ecran;
    ecran.police = "DejaVu Serif";
    ecran.tailleTitre = 17;
    const Apparence papier = ApparencePapier(ecran);
    EXPECT_EQ(papier.panneau, QColor(Qt::white));
    EXPECT_EQ(papier.cadre, QColor(Qt::white));
    EXPECT_EQ(papier.police, "DejaVu Serif");
    EXPECT_EQ(papier.tailleTitre, 17);
    for (const QColor& texte : {papier.texteAxes, papier.titreAxes, papier.titre, papier.legende})
        EXPECT_GT(ContrasteSurBlanc(texte), 12);
    EXPECT_EQ(papier.trait(0x00FFFF), Encre(QColor(255, 255, 0)));
    EXPECT_EQ(ecran.trait(0x00FFFF), QColor(255, 255, 0));
}

TEST(ImageGraphe, HasTheSizeOfTheScreenWithTwiceThePixels) {
    SceneComplete scene;
    const QImage image = ImageGraphe(scene.graphe);
    EXPECT_EQ(image.size(), scene.vue.size() * 2);
    // As wide on paper as on the screen.
    EXPECT_NEAR(image.width() / (image.dotsPerMeterX() * 0.0254),
                double(scene.vue.width()) / scene.vue.logicalDpiX(), 0.01);
}

TEST(ImageGraphe, ShowsEveryCurveInItsInkOnWhite) {
    SceneComplete scene;
    const QImage image = ImageGraphe(scene.graphe);
    EXPECT_GT(Part(image, [](const QColor& c) { return c == QColor(Qt::white); }), 0.7);
    for (const int serie : {0, 2, 3}) {
        const QColor encre = Encre(VersQColor(scene.vue.CouleurSerie(serie)));
        EXPECT_GT(Part(image, [&](const QColor& c) { return Proche(c, encre); }), 0.0005) << serie;
    }
    EXPECT_EQ(Part(image, [](const QColor& c) { return c == QColor(255, 255, 0); }), 0);
}

TEST(ImageGraphe, IsReadBackFromItsPng) {
    SceneComplete scene;
    const QByteArray octets = PngGraphe(scene.graphe);
    EXPECT_EQ(QImage::fromData(octets, "PNG"), ImageGraphe(scene.graphe));
}

TEST(ImageGraphe, ShowsTheLinesOfTheStatisticsAndTheAnnotation) {
    SceneComplete scene;
    OutilGraphe ligne;
    ligne.genre = OutilGraphe::Genre::LigneCouleur;
    ligne.crayon = 0xFF00FF;
    ligne.valeur = 4;
    scene.modele.AjouterOutil(ligne);
    OutilGraphe annotation;
    annotation.genre = OutilGraphe::Genre::Annotation;
    annotation.texte = "Pression : Min= 3.00";
    scene.modele.AjouterOutil(annotation);
    const QImage image = ImageGraphe(scene.graphe);
    EXPECT_GT(Part(image, [](const QColor& c) { return Proche(c, Encre(Qt::magenta)); }), 0.001);
    EXPECT_TRUE(scene.Pdf().texte.contains("Pression : Min= 3.00"));
}

TEST(ImageGraphe, ValuesThatAreNoNumbersAreGapsInTheCurve) {
    Scene scene;
    scene.modele.RetirerTout();
    SerieGraphe& serie = scene.modele.AjouterSerie();
    for (int i = 0; i < 100; ++i)
        serie.AjouterPoint(i, i < 40 || i > 60 ? 1 + i * 0.01 : NAN, QString());
    scene.modele.FixerPlage(0, 99);
    scene.vue.RemettreEchelles();
    const QImage image = ImageGraphe(scene.graphe);
    const QRect cadre = scene.Cadre().adjusted(2, 2, -2, -2);
    const QColor encre = Encre(VersQColor(scene.vue.CouleurSerie(0)));
    const auto part = [&](double de, double a) {
        const QRect bande(cadre.left() + int(cadre.width() * de), cadre.top(),
                          int(cadre.width() * (a - de)), cadre.height());
        return Part(image.copy(QRect(bande.topLeft() * 2, bande.size() * 2)),
                    [&](const QColor& c) { return Proche(c, encre); });
    };
    EXPECT_GT(part(0.1, 0.3), 0.001);
    EXPECT_EQ(part(0.45, 0.55), 0);
    EXPECT_GT(part(0.7, 0.9), 0.001);
}

TEST(ImageGraphe, LeavesTheCursorOnTheScreen) {
    SceneComplete scene;
    const QImage sans = ImageGraphe(scene.graphe);
    OutilGraphe curseur;
    curseur.genre = OutilGraphe::Genre::Curseur;
    curseur.crayon = 0xFFFFFF;
    curseur.suitSouris = true;
    curseur.serie = 0;
    scene.modele.AjouterOutil(curseur);
    scene.vue.Repaint();
    QTest::mouseMove(&scene.vue, scene.Dans(0.5, 0.5));
    QCoreApplication::processEvents();
    EXPECT_EQ(ImageGraphe(scene.graphe), sans);
}

TEST(ImageGraphe, OfAnEmptyChartIsAnEmptyFrame) {
    Scene scene;
    scene.modele.RetirerTout();
    scene.modele.FixerPlage(10, 0);
    scene.vue.RemettreEchelles();
    const QImage image = ImageGraphe(scene.graphe);
    EXPECT_GT(Part(image, [](const QColor& c) { return c == QColor(Qt::white); }), 0.9);
    const VueGraphe sansModele;
    EXPECT_FALSE(ImageGraphe(sansModele).isNull());
}

TEST(PdfGraphe, IsOnePageOfTheChartsSizeMadeOfVectors) {
    SceneComplete scene;
    const Papier papier = scene.Pdf("2026-3-5-14-7-9");
    EXPECT_EQ(papier.pages, 1);
    EXPECT_EQ(papier.titre, "2026-3-5-14-7-9");
    EXPECT_NEAR(papier.taille.width(), scene.vue.width() * 72.0 / scene.vue.logicalDpiX(), 1);
    EXPECT_NEAR(papier.taille.height(), scene.vue.height() * 72.0 / scene.vue.logicalDpiX(), 1);
    EXPECT_EQ(papier.Bitmaps(), 0);
    for (const char* mot : {"burst main", "Pression (bar)", "m3/Hrs", "(Lissee) Pression", "t480"})
        EXPECT_TRUE(papier.texte.contains(mot)) << mot << papier.texte.toStdString();
    RienNEstCoupeNiRecouvert(papier);
}

TEST(PdfGraphe, ShowsEveryCurveInItsInk) {
    SceneComplete scene;
    const QImage image = scene.Pdf().Image(192);
    for (const int serie : {0, 2, 3}) {
        const QColor encre = Encre(VersQColor(scene.vue.CouleurSerie(serie)));
        EXPECT_GT(Part(image, [&](const QColor& c) { return Proche(c, encre); }), 0.0005) << serie;
    }
}

TEST(PdfGraphe, ListsWhatIsDrawnAndNoCheckBoxes) {
    SceneComplete scene;
    scene.vue.BasculerSerie(3);
    const Papier papier = scene.Pdf();
    EXPECT_TRUE(papier.texte.contains("(Lissee) Pression"));
    EXPECT_FALSE(papier.texte.contains("(Lissee) m3"));
    DessinGraphe copie;
    copie.Reproduire(scene.vue, ApparencePapier(scene.vue.ApparencePresente()));
    ASSERT_EQ(copie.legend->itemCount(), 3);
    EXPECT_LT(copie.legend->item(0)->minimumOuterSizeHint().width(),
              scene.vue.legend->item(0)->minimumOuterSizeHint().width());
}

TEST(PdfGraphe, KeepsALongTitleAndManyCurvesOnThePage) {
    SceneComplete scene;
    QStringList mots;
    for (int i = 0; i < 60; ++i)
        mots << QStringLiteral("word%1").arg(i);
    scene.modele.titre = {mots.join(' ')};
    for (int i = 0; i < 8; ++i) {
        scene.modele.AjouterSerie().titre =
            QStringLiteral("Pression relative amont (bar) %1").arg(i);
        scene.modele.Serie(4 + i).AjouterPoint(i, 4, QString());
    }
    scene.vue.Repaint();
    const Papier papier = scene.Pdf();
    for (const QString& mot : mots)
        EXPECT_TRUE(papier.texte.contains(mot)) << mot.toStdString();
    RienNEstCoupeNiRecouvert(papier);
}

TEST(PdfGraphe, OfANarrowChartListsItsCurvesInFewerColumns) {
    SceneComplete scene;
    for (int i = 0; i < 4; ++i)
        scene.modele.Serie(i).titre = QStringLiteral("Pression relative amont (bar) %1").arg(i);
    scene.graphe.resize(600, 480);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.legend->columnCount(), 2);
    RienNEstCoupeNiRecouvert(scene.Pdf());
    scene.graphe.resize(1400, 480);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.legend->columnCount(), 4);
    RienNEstCoupeNiRecouvert(scene.Pdf());
    scene.graphe.resize(120, 480);
    EXPECT_EQ(ImageGraphe(scene.graphe).width(), 240);
}

TEST(PdfGraphe, WritesNumbersAsTheScreenDoes) {
    SceneComplete scene;
    Regional virgule;
    virgule.separateur = QStringLiteral(",");
    scene.vue.FixerRegional(virgule);
    scene.vue.Repaint();
    EXPECT_TRUE(scene.Pdf().texte.contains("4,5"));
    EXPECT_FALSE(scene.Pdf().texte.contains("4.5"));
}

TEST(PdfGraphe, ShowsTheMarksOfTheScreen) {
    SceneComplete scene(20);
    EXPECT_FALSE(scene.Pdf().texte.contains("4.2377"));
    scene.modele.Serie(0).marques = true;
    scene.vue.Repaint();
    EXPECT_TRUE(scene.Pdf().texte.contains("4.2377"));
    RienNEstCoupeNiRecouvert(scene.Pdf());
}

TEST(PeindreGraphe, APageWithFourCurvesOf450000PointsIsAtMostOneMegabyte) {
    constexpr int points = 450'000;
    ModeleGraphe modele;
    std::mt19937 tirage(3);
    std::normal_distribution<double> bruit(0, 0.05);
    for (int courbe = 0; courbe < 2; ++courbe) {
        SerieGraphe& serie = modele.AjouterSerie();
        serie.axe = courbe == 0 ? SerieGraphe::Axe::Gauche : SerieGraphe::Axe::Droite;
        serie.Reserver(points);
        for (int i = 0; i < points; ++i)
            serie.AjouterPoint(i * 250.0, 4 + std::sin(i / 9000.0 + courbe) + bruit(tirage),
                               MagasinEtiquettes::vide);
    }
    for (int source = 0; source < 2; ++source) {
        modele.AjouterSerie().axe = modele.Serie(source).axe;
        modele.FixerFonction(2 + source, SerieGraphe::fonctionLissage, source);
        modele.Serie(2 + source).FixerPeriode(10);
    }
    modele.FixerPlage(0, (points - 1) * 250.0);
    VueGraphe graphe;
    graphe.Lier(modele);
    graphe.resize(1200, 700);
    graphe.show();

    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath("page.pdf");
    DemandeApercu demande;
    demande.paysage = true;
    {
        ImprimantePage page(demande);
        page.setOutputFormat(QPrinter::PdfFormat);
        page.setOutputFileName(chemin);
        PeindreGraphe(graphe, page);
    }
    EXPECT_EQ(Papier(chemin).Bitmaps(), 0);
    EXPECT_GT(QFileInfo(chemin).size(), 10'000);
    EXPECT_LE(QFileInfo(chemin).size(), 1'000'000);
}

}  // namespace
}  // namespace bornika
