#include "recording/recording_reader.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <random>

#include "platform/format_pattern.h"
#include "platform/numbers.h"
#include "recording/decimal_separator.h"

namespace bornika {
namespace {

using Raison = IssueLecture::Raison;

const Regional point{QStringLiteral("."), QStringLiteral("dd/MM/yyyy")};
const Regional virgule{QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};
const Regional arabe{QString(QChar(0x066B)), QStringLiteral("dd/MM/yyyy")};

NombreLu LireValeur(const Regional& regional, const QByteArray& champ) {
    const char* place = champ.data();
    const NombreLu nombre = LecteurNombres(regional).LireValeur(place, champ.data() + champ.size());
    EXPECT_TRUE(place == champ.data() + champ.size()) << champ.toStdString();
    return nombre;
}

NombreLu LireTemps(const Regional& regional, const QByteArray& champ) {
    const char* place = champ.data();
    return LecteurNombres(regional).LireTemps(place, champ.data() + champ.size());
}

struct Lecture {
    QStringList entete;
    std::vector<LigneMesure> lignes;
    std::vector<QByteArray> etiquettes;
    IssueLecture issue;
};

Lecture Lire(QByteArray octets, const Regional& regional = point, int pas = 1) {
    QBuffer source(&octets);
    source.open(QIODevice::ReadOnly);
    LecteurEnregistrement lecteur(source, regional, pas);
    Lecture lecture;
    lecture.entete = lecteur.LireEntete();
    LigneMesure ligne;
    while (lecteur.Suivante(ligne)) {
        lecture.lignes.push_back(ligne);
        lecture.etiquettes.push_back(ligne.etiquette.toByteArray());
    }
    lecture.issue = lecteur.Issue();
    return lecture;
}

const QByteArray entete = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n";

TEST(LecteurEnregistrement, ReadsTheFieldsThatTheChartUses) {
    const auto lecture =
        Lire(entete + "1700000000125;14/11/2023 22:13:20:125;512;8.008;;0.5 ;\r\n");
    EXPECT_EQ(lecture.entete.size(), 7);
    EXPECT_EQ(lecture.entete[4], "bar");
    ASSERT_EQ(lecture.lignes.size(), 1U);
    const LigneMesure& ligne = lecture.lignes[0];
    EXPECT_DOUBLE_EQ(ligne.temps.valeur, 1700000000125.0);
    EXPECT_EQ(lecture.etiquettes[0], "14/11/2023 22:13:20:125");
    EXPECT_DOUBLE_EQ(ligne.pression.valeur, 8.008);
    EXPECT_DOUBLE_EQ(ligne.comptage.valeur, 0.5);
    EXPECT_TRUE(ligne.debit);
    EXPECT_EQ(ligne.longueur, 54);
    EXPECT_EQ(lecture.issue.raison, Raison::FinDuFichier);
}

TEST(LecteurEnregistrement, SixFieldsHaveNoFlowAndMoreThanSevenDo) {
    const auto lecture = Lire("h\r\n1;a;0;1;;9\r\n2;b;0;1;;9;x;y;z\r\n");
    ASSERT_EQ(lecture.lignes.size(), 2U);
    EXPECT_FALSE(lecture.lignes[0].debit);
    EXPECT_TRUE(lecture.lignes[1].debit);
}

TEST(LecteurEnregistrement, FewerThanSixFieldsEndTheReadingAndSayWhere) {
    for (const char* ligne : {"1;a;0;1;;", "1;a;0;1;"}) {
        const auto lecture =
            Lire(QByteArray("h\r\n1;a;0;1;;0;\r\n") + ligne + "\r\n2;b;0;1;;0;\r\n");
        const bool assez = QByteArray(ligne).count(';') >= 5;
        EXPECT_EQ(lecture.issue.raison, assez ? Raison::FinDuFichier : Raison::ChampsManquants);
        EXPECT_EQ(lecture.issue.ligne, assez ? 4 : 3) << ligne;
        EXPECT_EQ(lecture.lignes.size(), assez ? 3U : 1U);
    }
}

TEST(LecteurEnregistrement, BlankLineEndsTheReading) {
    const auto lecture = Lire("h\r\n1;a;0;1;;0;\r\n\r\n2;b;0;1;;0;\r\n");
    EXPECT_EQ(lecture.lignes.size(), 1U);
    EXPECT_EQ(lecture.issue.raison, Raison::ChampsManquants);
    EXPECT_EQ(lecture.issue.ligne, 3);
}

TEST(LecteurEnregistrement, LinesHoldingTempsOrTimeArePassedOver) {
    const auto lecture = Lire(entete + "1;a;0;1;;0;\r\n" + entete + "2;b;0;1;;0;Time of day\r\n" +
                              "3;Tuesday;0;1;;0;\r\n4;temps, TIME;0;1;;0;\r\n");
    ASSERT_EQ(lecture.lignes.size(), 3U);
    EXPECT_EQ(lecture.etiquettes[1], "Tuesday");
    EXPECT_EQ(lecture.etiquettes[2], "temps, TIME");
}

TEST(LecteurEnregistrement, LineAfterAPassedTimeLineIsNotLookedAtForTempsAgain) {
    const auto lecture = Lire("h\r\n1;Time;0;1;;0;\r\n2;Temps;0;1;;0;\r\n");
    ASSERT_EQ(lecture.lignes.size(), 1U);
    EXPECT_EQ(lecture.etiquettes[0], "Temps");
}

TEST(LecteurEnregistrement, FileMayEndWithAPassedLine) {
    const auto lecture = Lire("h\r\n1;a;0;1;;0;\r\n" + entete);
    EXPECT_EQ(lecture.lignes.size(), 1U);
    EXPECT_EQ(lecture.issue.raison, Raison::FinDuFichier);
}

TEST(LecteurEnregistrement, StepOfTenKeepsOneLineInEleven) {
    QByteArray octets = "h\r\n";
    for (int i = 0; i < 34; ++i)
        octets += QByteArray::number(i) + ";a;0;1;;0;\r\n";
    const auto lecture = Lire(octets, point, 10);
    ASSERT_EQ(lecture.lignes.size(), 4U);
    EXPECT_EQ(lecture.lignes[0].temps.valeur, 0);
    EXPECT_EQ(lecture.lignes[1].temps.valeur, 11);
    EXPECT_EQ(lecture.lignes[3].temps.valeur, 33);
}

TEST(LecteurEnregistrement, SkippedLinesAreNotLookedAt) {
    QByteArray octets = "h\r\n1;a;0;1;;0;\r\n";
    for (int i = 0; i < 10; ++i)
        octets += i % 2 ? "\r\n" : "Temps\r\n";
    octets += "2;b;0;1;;0;\r\n";
    EXPECT_EQ(Lire(octets, point, 10).lignes.size(), 2U);
}

TEST(LecteurEnregistrement, LineFeedsAloneAndAMissingLastLineEndAreAccepted) {
    const auto lecture = Lire("h\n1;a;0;1;;0;\n2;b;0;1.5;;3");
    ASSERT_EQ(lecture.lignes.size(), 2U);
    EXPECT_FALSE(lecture.lignes[1].debit);
    EXPECT_DOUBLE_EQ(lecture.lignes[1].pression.valeur, 1.5);
}

TEST(LecteurEnregistrement, EmptyMeansNoByteOrALineEndFirst) {
    for (const auto& [octets, vide] : std::vector<std::pair<QByteArray, bool>>{
             {"", true}, {"\r\n1;a", true}, {"\n", true}, {" \r\n", false}}) {
        QByteArray copie = octets;
        QBuffer source(&copie);
        source.open(QIODevice::ReadOnly);
        EXPECT_EQ(LecteurEnregistrement(source, point, 1).EstVide(), vide) << octets.toStdString();
    }
}

TEST(LecteurEnregistrement, LinesLongerThanAnyPieceAndAcrossPiecesAreReadWhole) {
    const QByteArray longue(700'000, 'x');
    QByteArray octets = "h\r\n";
    for (int i = 0; i < 40'000; ++i)
        octets += QByteArray::number(i) + ";Tic;0;1.25;;0;\r\n";
    octets += "40000;" + longue + ";0;1;;0;\r\n40001;a;0;1;;0;\r\n";
    const auto lecture = Lire(octets);
    ASSERT_EQ(lecture.lignes.size(), 40'002U);
    for (std::size_t i = 0; i < lecture.lignes.size(); ++i)
        ASSERT_EQ(lecture.lignes[i].temps.valeur, static_cast<double>(i));
    EXPECT_EQ(lecture.etiquettes[39'999], "Tic");
    EXPECT_EQ(lecture.etiquettes[40'000], longue);
}

TEST(LecteurNombres, BothSeparatorsAreReadInBothLocales) {
    for (const Regional& regional : {point, virgule})
        for (const char* texte : {"1.25", "1,25"}) {
            const NombreLu nombre = LireValeur(regional, texte);
            EXPECT_TRUE(nombre.numerique);
            EXPECT_DOUBLE_EQ(nombre.valeur, 1.25);
        }
}

TEST(LecteurNombres, TimeStampTakesTheSeparatorOfTheLocaleOnly) {
    EXPECT_DOUBLE_EQ(LireTemps(point, "12.5").valeur, 12.5);
    EXPECT_FALSE(LireTemps(point, "12,5").numerique);
    EXPECT_DOUBLE_EQ(LireTemps(virgule, "12,5").valeur, 12.5);
    EXPECT_FALSE(LireTemps(virgule, "12.5").numerique);
    EXPECT_DOUBLE_EQ(LireTemps(arabe, "12").valeur, 12);
    EXPECT_FALSE(LireTemps(arabe, "1 2").numerique);
    EXPECT_FALSE(LireTemps(point, "").numerique);
    EXPECT_FALSE(LireTemps(point, "abc").numerique);
}

TEST(LecteurNombres, ThirdSeparatorLosesEveryValue) {
    EXPECT_FALSE(LireValeur(arabe, "1.5").numerique);
    EXPECT_FALSE(LireValeur(arabe, "1").numerique);
}

TEST(LecteurNombres, DoubledMinusIsOne) {
    EXPECT_DOUBLE_EQ(LireValeur(point, "--1.5").valeur, -1.5);
    EXPECT_DOUBLE_EQ(LireValeur(virgule, "--1.5").valeur, -1.5);
    EXPECT_DOUBLE_EQ(LireValeur(point, "1E--2").valeur, 0.01);
    EXPECT_FALSE(LireValeur(point, "---1").numerique);
}

TEST(LecteurNombres, FieldEndsAtTheSeparator) {
    for (const QByteArray champs : {"12.5;7", "+12.5;7", " 12.5 ;7"}) {
        const char* place = champs.data();
        const NombreLu nombre =
            LecteurNombres(point).LireValeur(place, champs.data() + champs.size());
        EXPECT_DOUBLE_EQ(nombre.valeur, 12.5);
        EXPECT_STREQ(place, ";7");
    }
}

TEST(LecteurNombres, NumberThatNoDoubleHoldsIsNone) {
    EXPECT_FALSE(LireValeur(point, "1E999").numerique);
    EXPECT_FALSE(LireTemps(point, "1E999").numerique);
}

TEST(LecteurNombres, WhatIsNoNumber) {
    for (const char* texte : {"", " ", "-", ".", "abc", "1 2", "1.2.3", "1,2.3", "5-", "$5"})
        EXPECT_FALSE(LireValeur(point, texte).numerique) << texte;
}

TEST(LecteurNombres, PressureIsRoundedToFivePlacesHalfAway) {
    EXPECT_EQ(LireValeur(point, "1.000005").arrondie, 1.00001);
    EXPECT_EQ(LireValeur(point, "-1.000005").arrondie, -1.00001);
    EXPECT_EQ(LireValeur(point, "1.0000049").arrondie, 1.0);
    EXPECT_EQ(LireValeur(point, "0.000004").arrondie, 0.0);
    EXPECT_FALSE(std::signbit(LireValeur(point, "-0.000004").arrondie));
    EXPECT_EQ(LireValeur(point, "3.12345678901234567").arrondie, 3.12346);
}

TEST(LecteurNombres, FastRoadGivesWhatTheConversionsOfThePlatformGive) {
    std::mt19937_64 tirage(11);
    for (int essai = 0; essai < 20'000; ++essai) {
        const auto chiffres = static_cast<qint64>(tirage() >> (tirage() % 60 + 1));
        QByteArray texte = QByteArray::number(chiffres);
        texte.insert(static_cast<qsizetype>(tirage() % static_cast<unsigned>(texte.size() + 1)),
                     tirage() % 2 ? '.' : ',');
        if (tirage() % 3 == 0) texte.prepend('-');
        if (tirage() % 3 == 0) texte.append(' ');
        const QString ecrit = TraiteSeparateur(QString::fromLatin1(texte), point);
        const NombreLu nombre = LireValeur(point, texte);
        ASSERT_EQ(nombre.numerique, EstNumerique(ecrit, point)) << texte.toStdString();
        const double valeur = EnDouble(ecrit, point);
        ASSERT_EQ(nombre.valeur, valeur) << texte.toStdString();
        ASSERT_EQ(nombre.arrondie, EnDouble(Format(valeur, "0.0####", point), point))
            << texte.toStdString();
    }
}

TEST(TraiteSeparateur, FitsTheTextToTheLocale) {
    EXPECT_EQ(TraiteSeparateur("1,5;2.5", point), "1.5;2.5");
    EXPECT_EQ(TraiteSeparateur("1,5;2.5", virgule), "1,5;2,5");
    EXPECT_EQ(TraiteSeparateur("1.5", arabe), "");
}

}  // namespace
}  // namespace bornika
