#include "simulator/card_files.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <sstream>

#include "exchange_support.h"
#include "simulator/device_time.h"
#include "simulator/recordings.h"

namespace bornika::simulateur {
namespace {

using essai::maintenant;

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

const std::uint32_t t0 = 1700000000;  // 14 November 2023, 22:13:20

const std::vector<MesureEnFlash> mesures = {MesurePeriodique(t0, 64), MesureImpulsion(t0 + 1, 4, 3),
                                            MesureImpulsion(t0 + 3, 4, 3)};

std::string Contenu(const std::vector<FichierCarte>& carte, const std::string& nom) {
    const auto fichier =
        std::find_if(carte.begin(), carte.end(), [&](const auto& f) { return f.nom == nom; });
    return fichier == carte.end() ? "missing" : fichier->contenu;
}

std::vector<std::string> Lignes(const std::string& texte) {
    std::vector<std::string> lignes;
    std::istringstream flux(texte);
    for (std::string ligne; std::getline(flux, ligne);)
        lignes.push_back(ligne);
    return lignes;
}

TEST(CardText, HasSevenFieldsALineAndTheRateOfPulses) {
    EXPECT_EQ(TexteCarte(mesures),
              "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n"
              "1700000000000;14/11/2023 22:13:20:000;64;1.000;;0;\r\n"
              "1700000001500;14/11/2023 22:13:21:500;3;0.047;;0;\r\n"
              "1700000003500;14/11/2023 22:13:23:500;3;0.047;;0.5000;\r\n");
}

TEST(CardText, ComesInTheShapesOfOtherFirmware) {
    const std::span<const MesureEnFlash> une(mesures.data(), 1);
    EXPECT_THAT(Lignes(TexteCarte(une, FormeCarte::huitChamps)),
                ElementsAre("Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.;Batterie\r",
                            "1700000000000;14/11/2023 22:13:20:000;64;1.000;;0;;4.00\r"));
    EXPECT_THAT(Lignes(TexteCarte(une, FormeCarte::sixChamps)),
                ElementsAre("Temps;Date Heure;Valeur;Pression;bar;comptage\r",
                            "1700000000000;14/11/2023 22:13:20:000;64;1.000;;0\r"));
    EXPECT_THAT(Lignes(TexteCarte(une, FormeCarte::coefficient)),
                ElementsAre("Temps;Date Heure;Valeur;Pression;bar;comptage (2.5);m3/HRS\r",
                            "1700000000000;14/11/2023 22:13:20:000;64;1.000;;0;\r"));
    EXPECT_EQ(TexteCarte(une, FormeCarte::septChamps, "\n").find('\r'), std::string::npos);
}

TEST(CardText, WritesTheDateThatTheLoggerMeans) {
    EXPECT_EQ(TexteDate(TempsAppareil(2026, 3, 5, 14, 7, 9)), "05/03/2026 14:07:09");
    // A leap year's count is one day ahead from 29 February on.
    EXPECT_EQ(TexteDate(TempsAppareil(2024, 2, 28)), "28/02/2024 00:00:00");
    EXPECT_EQ(TexteDate(TempsAppareil(2024, 2, 29, 23, 59, 59)), "29/02/2024 23:59:59");
    EXPECT_EQ(TexteDate(TempsAppareil(2024, 3, 1)), "01/03/2024 00:00:00");
    EXPECT_EQ(TexteDate(TempsAppareil(2024, 12, 30)), "30/12/2024 00:00:00");
    EXPECT_EQ(TexteDate(TempsAppareil(2023, 12, 31)), "31/12/2023 00:00:00");
}

TEST(Card, HoldsOneRecordingInTwoFilesThatBothHaveAHeader) {
    const auto carte = FichiersCarte(maintenant, 3600);
    const auto premier = Lignes(Contenu(carte, "LOG00001.TXT"));
    const auto second = Lignes(Contenu(carte, "LOG00002.TXT"));
    EXPECT_THAT(premier.front(), StartsWith("Temps;"));
    EXPECT_THAT(second.front(), StartsWith("Temps;"));
    EXPECT_LT(premier.back(), second.at(1));
    const ReseauEau reseau{.debut = maintenant - 3600, .duree = 3600};
    EXPECT_EQ(premier.size() + second.size() - 2, MesuresReseauEau(reseau).size());
}

TEST(Card, HoldsTheOddFilesTooAllInCapitalLetters) {
    const auto carte = FichiersCarte(maintenant, 3600);
    std::vector<std::string> noms;
    for (const FichierCarte& fichier : carte)
        noms.push_back(fichier.nom);
    EXPECT_THAT(noms, ElementsAre("LOG00001.TXT", "LOG00002.TXT", "EIGHT.TXT", "SIX.TXT",
                                  "METER.TXT", "UNIX.TXT", "EMPTY.TXT", "STARTLOG.TXT"));
    EXPECT_EQ(Contenu(carte, "EMPTY.TXT"), "");
    EXPECT_EQ(Contenu(carte, "STARTLOG.TXT"), "Start;05/03/2026 13:07:09;k-Pod 33;2.120\r\n");
    EXPECT_THAT(Contenu(carte, "UNIX.TXT"), EndsWith(";\n"));
}

TEST(Card, IsLaidIntoANewFolderAndLeftAsItIsFromThenOn) {
    QTemporaryDir lieu;
    const QDir dossier(lieu.filePath(QStringLiteral("CARD")));
    PoserCarte(dossier.path(), maintenant);
    EXPECT_EQ(dossier.entryList(QDir::Files).size(), 8);
    QFile fichier(dossier.filePath(QStringLiteral("LOG00002.TXT")));
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    EXPECT_EQ(fichier.readAll().toStdString(), Contenu(FichiersCarte(maintenant), "LOG00002.TXT"));

    ASSERT_TRUE(fichier.remove());
    PoserCarte(dossier.path(), maintenant);
    EXPECT_EQ(dossier.entryList(QDir::Files).size(), 7);
}

TEST(Card, ThatCannotBeLaidIsNoFailure) {
    PoserCarte(QStringLiteral("/proc/CARD"), maintenant);
    EXPECT_FALSE(QDir(QStringLiteral("/proc/CARD")).exists());
}

}  // namespace
}  // namespace bornika::simulateur
