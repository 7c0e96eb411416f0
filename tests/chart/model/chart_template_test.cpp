#include "chart/model/chart_template.h"

#include <gtest/gtest.h>

#include <QFile>

#include "support/fake_system.h"
#include "support/fault_number.h"

namespace bornika {
namespace {

using essai::Etabli;
using Genre = OutilGraphe::Genre;

int FauteDe(const Etabli& etabli, const QByteArray& contenu) {
    etabli.Ecrire(QStringLiteral("essai.TEE"), contenu);
    return essai::NumeroDeFaute([&] { LireGabarit(etabli.Chemin(QStringLiteral("essai.TEE"))); });
}

TEST(ChartTemplate, TheDeliveredOneHoldsTheSixToolsInTheirOrder) {
    const Etabli etabli;
    const Gabarit gabarit = LireGabarit(etabli.Chemin(QStringLiteral("BORNIKA.TEE")));
    const std::vector<Genre> attendus{Genre::Reserve,      Genre::Annotation,   Genre::LigneCouleur,
                                      Genre::LigneCouleur, Genre::LigneCouleur, Genre::Curseur};
    std::vector<Genre> lus;
    for (const OutilGraphe& outil : gabarit.outils)
        lus.push_back(outil.genre);
    EXPECT_EQ(lus, attendus);
}

TEST(ChartTemplate, TheDeliveredLinesHaveHiddenPensOfThreeColours) {
    const Etabli etabli;
    const Gabarit gabarit = LireGabarit(etabli.Chemin(QStringLiteral("BORNIKA.TEE")));
    ASSERT_EQ(gabarit.outils.size(), 6U);
    EXPECT_EQ(gabarit.outils[2].crayon, 0x00A5FFU);
    EXPECT_EQ(gabarit.outils[3].crayon, 0xFF9D5BU);
    EXPECT_EQ(gabarit.outils[4].crayon, 0x303BFFU);
    for (std::size_t i = 2; i < 5; ++i)
        EXPECT_FALSE(gabarit.outils[i].crayonVisible) << i;
}

TEST(ChartTemplate, TheDeliveredAnnotationIsInactiveAndEmptyAndTheCursorFollowsTheMouse) {
    const Etabli etabli;
    const Gabarit gabarit = LireGabarit(etabli.Chemin(QStringLiteral("BORNIKA.TEE")));
    ASSERT_EQ(gabarit.outils.size(), 6U);
    EXPECT_FALSE(gabarit.outils[1].actif);
    EXPECT_EQ(gabarit.outils[1].texte, QString());
    EXPECT_EQ(gabarit.outils[5].crayon, 0U);
    EXPECT_EQ(gabarit.outils[5].serie, -1);
    EXPECT_TRUE(gabarit.outils[5].suitSouris);
}

TEST(ChartTemplate, TheDeliveredColoursStandOutFromTheirBackground) {
    const Etabli etabli;
    const Apparence lue = LireGabarit(etabli.Chemin(QStringLiteral("BORNIKA.TEE"))).apparence;
    for (const QColor& couleur : {lue.texteAxes, lue.titreAxes, lue.titre, lue.legende})
        EXPECT_GT(couleur.lightness() - lue.panneau.lightness(), 100)
            << couleur.name().toStdString();
}

TEST(ChartTemplate, CurvesWithoutAColourTakeThoseOfThePaletteInTurn) {
    Apparence apparence;
    apparence.palette = {1, 2, 3};
    EXPECT_EQ(apparence.CouleurSerie(0), 1U);
    EXPECT_EQ(apparence.CouleurSerie(2), 3U);
    EXPECT_EQ(apparence.CouleurSerie(4), 2U);
}

TEST(ChartTemplate, WhatAFileDoesNotSayKeepsItsDefault) {
    const Etabli etabli;
    etabli.Ecrire(QStringLiteral("essai.TEE"), "<Graphe><Cadre couleur='#102030'/></Graphe>");
    const Gabarit gabarit = LireGabarit(etabli.Chemin(QStringLiteral("essai.TEE")));
    EXPECT_EQ(gabarit.apparence.cadre, QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(gabarit.apparence.panneau, Apparence{}.panneau);
    EXPECT_TRUE(gabarit.outils.empty());
}

TEST(ChartTemplate, AMissingFileIsAFault) {
    const Etabli etabli;
    EXPECT_EQ(
        essai::NumeroDeFaute([&] { LireGabarit(etabli.Chemin(QStringLiteral("absent.TEE"))); }),
        numero_faute::fichierIntrouvable);
}

TEST(ChartTemplate, AMalformedFileIsAFault) {
    const Etabli etabli;
    for (const char* contenu :
         {"", "not a template", "<Graphe><Outils>", "<Autre/>",
          "<Graphe><Outils><Outil genre='inconnu'/></Outils></Graphe>",
          "<Graphe><Cadre couleur='rougeatre'/></Graphe>", "<Graphe><Axes taille='900'/></Graphe>"})
        EXPECT_EQ(FauteDe(etabli, contenu), numero_faute::formatDeFichier) << contenu;
}

}  // namespace
}  // namespace bornika
