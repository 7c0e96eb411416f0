// The block of a production report, from values alone.

#include "service/production_block.h"

#include <gtest/gtest.h>

#include <QList>

#include "platform/fault.h"

namespace bornika::essai {
namespace {

RapportProduction RapportComplet() {
    return {.date = QStringLiteral("05/03/2026 14:07:09"),
            .commande = {QStringLiteral("N° de commande"), QStringLiteral("CDE-17")},
            .version = {QStringLiteral("Version"), QStringLiteral("(20) 2.120")},
            .TypekPod = 1,
            .drapeau = false,
            .numeroSerie = {QStringLiteral("N° de série"), QStringLiteral("12345")},
            .dateCourante = {QStringLiteral("Date courante"), QStringLiteral("--")},
            .tensionPile = {QStringLiteral("Tension pile"), QStringLiteral("3.60 V.")},
            .capteur = {QStringLiteral("Capteur"), QStringLiteral("0 - 16 bar")},
            .resumes = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                        QStringLiteral("d"), QStringLiteral("e")},
            .commentaire = {QStringLiteral("Commentaires (14)"), QStringLiteral("FORAGE 3")},
            .commentaires = QStringLiteral("joint changé")};
}

QList<QByteArray> Lignes(const RapportProduction& rapport) {
    QByteArray bloc = BlocProduction(rapport);
    EXPECT_TRUE(bloc.endsWith("\r\n"));
    bloc.chop(2);
    return bloc.replace("\r\n", "\n").split('\n');
}

TEST(BlocProduction, IsTwentyTwoLinesOfEightBitText) {
    EXPECT_EQ(BlocProduction(RapportComplet()).toStdString(),
              " \r\n"
              "------------------------------------------\r\n"
              "05/03/2026 14:07:09\r\n"
              " \r\n"
              "N\xB0 de commande CDE-17\r\n"
              " \r\n"
              "Version : k-Pod 33 2.120\r\n"
              "N\xB0 de s\xE9rie : 12345\r\n"
              "Date courante : --\r\n"
              "Tension pile : 3.60 V.\r\n"
              "Capteur : 0 - 16 bar\r\n"
              " \r\n"
              "a\r\nb\r\nc\r\nd\r\ne\r\n"
              "Commentaires (14)\r\n"
              "FORAGE 3\r\n"
              " \r\n"
              "joint chang\xE9\r\n"
              " \r\n");
}

TEST(BlocProduction, OfNoValuesHasAllItsLinesToo) {
    const QList<QByteArray> lignes = Lignes({});
    ASSERT_EQ(lignes.size(), 22);
    EXPECT_EQ(lignes[1], QByteArray(42, '-'));
    EXPECT_EQ(lignes[4], " ");
    EXPECT_EQ(lignes[7], " : ");
}

TEST(BlocProduction, KeepsTheLinesOfTheCommentAndDropsNone) {
    RapportProduction rapport = RapportComplet();
    rapport.commentaires = QStringLiteral("un\n\ndeux Ω\n");
    const QList<QByteArray> lignes = Lignes(rapport);
    ASSERT_EQ(lignes.size(), 25);
    EXPECT_EQ(lignes.mid(20), (QList<QByteArray>{"un", "", "deux ?", "", " "}));
}

TEST(BlocProduction, NamesTheProductOfItsEdition) {
    RapportProduction rapport = RapportComplet();
    rapport.version.valeur = QStringLiteral("--");
    EXPECT_EQ(Lignes(rapport)[6], "Version : k-Pod--");
    rapport.drapeau = true;
    EXPECT_EQ(Lignes(rapport)[6], "Version : Z907PT--");
    rapport.drapeau = false;
    rapport.version.valeur = QStringLiteral("k-Pod 33 = 20 2-120");
    rapport.TypekPod = 20;
    EXPECT_EQ(Lignes(rapport)[6], "Version : k-Pod 33 k-Pod 33 = 20 2-120");
}

TEST(BlocProduction, OfATypeBeyond32BitsIsAFault) {
    RapportProduction rapport = RapportComplet();
    rapport.version.valeur = QStringLiteral("(9999999999) 2.1");
    try {
        BlocProduction(rapport);
        FAIL() << "no fault";
    } catch (const FauteExecution& faute) {
        EXPECT_EQ(faute.numero(), numero_faute::depassement);
    }
}

}  // namespace
}  // namespace bornika::essai
