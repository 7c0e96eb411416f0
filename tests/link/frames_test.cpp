#include "link/frames.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "link/command_table.h"
#include "platform/fault.h"
#include "support/fault_number.h"

namespace bornika {
namespace {

struct Rangee {
    const char* nom;
    Octets trame;
    Octets attendu;
};

constexpr std::int32_t date = 0x01020304;
const std::vector<int> valeurs{200, 1, 2, 3, 4, 5, 6, 7};
const std::vector<int> reste{91, 92, 93, 94};

/// Every command of the logger with its frame, byte for byte.
std::vector<Rangee> Table() {
    return {
        {"CMD_ECRIT_DEMARRAGE", TrameEcritDemarrage(date, 7200), {1, 1, 2, 3, 4, 28, 32, 0}},
        {"CMD_LIT_PROCHAINE_MESURE",
         TrameEntete(CMD_LIT_PROCHAINE_MESURE),
         {2, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_ECRIT_MODE", TrameEcritMode(0x9D, 1023, 256, 0x31, 1), {3, 157, 3, 255, 1, 0, 49, 1}},
        {"CMD_LIT_MODE", TrameEntete(CMD_LIT_MODE), {4, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_ECRIT_NUMERO_SERIE", TrameEcritNumeroSerie(date), {5, 1, 2, 3, 4, 32, 32, 32}},
        {"CMD_LIT_NUMERO_SERIE", TrameEntete(CMD_LIT_NUMERO_SERIE), {6, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_ECRIT_DATE_COURANTE",
         TrameEcritDateCourante(date, 4800),
         {7, 1, 2, 3, 4, 18, 192, 32}},
        {"CMD_LIT_DATE_COURANTE", TrameEntete(CMD_LIT_DATE_COURANTE), {8, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_LIT_VERSION", TrameEntete(CMD_LIT_VERSION), {9, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_LIT_MESURES", TrameLitMesures(true), {10, 1}},
        {"CMD_ECRIT_COMMENTAIRE_1",
         TrameEcritCommentaire(1, "Puits 12"),
         {11, 'P', 'u', 'i', 't', 's', ' ', '1'}},
        {"CMD_ECRIT_COMMENTAIRE_2",
         TrameEcritCommentaire(2, "Puits 12"),
         {12, '2', 32, 32, 32, 32, 32, 32}},
        {"CMD_LIT_COMMENTAIRE_1", TrameEntete(CMD_LIT_COMMENTAIRE_1), {13, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_LIT_COMMENTAIRE_2", TrameEntete(CMD_LIT_COMMENTAIRE_2), {14, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_RAZ", TrameRaz(), {15, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_LIT_DEMARRAGE", TrameEntete(CMD_LIT_DEMARRAGE), {17, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_FLASH_TAMPON", TrameFlashTampon(valeurs), {200, 1, 2, 3, 4, 5, 6, 0}},
        {"CMD_FLASH_ECRIT", TrameFlashEcrit(8191, 526), {19, 31, 255, 2, 14, 32, 32, 32}},
        {"CMD_FLASH_LIT", TrameFlashLit(8191, 526), {20, 31, 255, 2, 14, 32, 32, 32}},
        {"CMD_TEST_DEBIT", TrameTestDebit(true), {20, 1, 32, 32, 32, 32, 32, 32}},
        {"CMD_POINTEUR_ECRITURE", TrameEntete(CMD_POINTEUR_ECRITURE), {21, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_POINTEUR_LECTURE", TrameEntete(CMD_POINTEUR_LECTURE), {22, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_ECRIT_POINT_ETALONNAGE",
         TrameEcritPointEtalonnage(1000, 2, reste),
         {24, 3, 232, 2, 91, 92, 93, 94}},
        {"CMD_FIN_ETALONNAGE", TrameEntete(CMD_FIN_ETALONNAGE), {25, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_LIT_POINT_ETALONNAGE",
         TrameEntete(CMD_LIT_POINT_ETALONNAGE, 2),
         {26, 2, 0, 0, 0, 0, 0, 0}},
        {"CMD_ECRIT_DATE_ETALONNAGE",
         TrameEcritDateEtalonnage(date, 0x31, reste),
         {27, 1, 2, 3, 4, 49, 91, 92}},
        {"CMD_LIT_DATE_ETALONNAGE",
         TrameEntete(CMD_LIT_DATE_ETALONNAGE),
         {28, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_LIT_EEPROM", TrameLitEeprom(1016), {29, 3, 248, 32, 32, 32, 32, 32}},
        {"CMD_TEST", TrameEntete(CMD_TEST), {29, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_ECRIT_EEPROM", TrameEcritEeprom(1016, 200), {30, 3, 248, 200, 32, 32, 32, 32}},
        {"CMD_ECRIT_CORRECTION", TrameEcritCorrection(date), {31, 4, 3, 2, 1, 0, 0, 0}},
        {"CMD_LIT_DETECTION", TrameLitDetection(), {32, 0, 0, 0, 0, 0, 0, 0}},
        {"CMD_FORCE_CONTEXTE", TrameForceContexte(), {99, 32, 32, 32, 32, 32, 32, 32}},
        {"CMD_IDENTIFIE", TrameIdentifie(), {240, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    };
}

TEST(Frames, AllThirtyFourCommandsByteForByte) {
    const std::vector<Rangee> table = Table();
    EXPECT_EQ(table.size(), 34u);
    std::set<std::string> noms;
    for (const Rangee& rangee : table) {
        EXPECT_EQ(rangee.trame, rangee.attendu) << rangee.nom;
        noms.insert(rangee.nom);
    }
    EXPECT_EQ(noms.size(), 34u);
}

TEST(Frames, CodesSixteenAndTwentyThreeAreFreeAndTwoCodesServeTwice) {
    std::map<int, int> fois;
    for (const Rangee& rangee : Table())
        ++fois[rangee.trame.front()];
    EXPECT_EQ(fois.count(16), 0u);
    EXPECT_EQ(fois.count(23), 0u);
    for (const auto& [code, nombre] : fois)
        EXPECT_EQ(nombre, code == CMD_FLASH_LIT || code == CMD_LIT_EEPROM ? 2 : 1) << code;
    EXPECT_EQ(CMD_FLASH_TAMPON, 18) << "the one code that its own frame does not show";
}

TEST(Frames, OnlyTwoCommandsAreNotEightBytesLong) {
    for (const Rangee& rangee : Table()) {
        const int code = rangee.trame.front();
        const int longueur = code == CMD_LIT_MESURES ? longueurTrameMesures
                             : code == CMD_IDENTIFIE ? longueurTrameIdentifie
                                                     : longueurTrame;
        EXPECT_EQ(rangee.trame.size(), static_cast<std::size_t>(longueur)) << rangee.nom;
    }
    EXPECT_EQ(longueurTrame, 8);
    EXPECT_EQ(longueurTrameMesures, 2);
    EXPECT_EQ(longueurTrameIdentifie, 12);
}

TEST(Frames, TheOtherValueOfEachSwitch) {
    EXPECT_EQ(TrameLitMesures(false), (Octets{10, 0}));
    EXPECT_EQ(TrameTestDebit(false), (Octets{20, 0, 32, 32, 32, 32, 32, 32}));
    EXPECT_EQ(TrameEcritMode(0, 0, 0, 0, 0), (Octets{3, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(Frames, NegativeNumbersGoInTwosComplement) {
    EXPECT_EQ(TrameEcritCorrection(-2), (Octets{31, 254, 255, 255, 255, 0, 0, 0}));
}

TEST(Frames, ANegativeSerialNumberHasValuesThatNoLinkSends) {
    EXPECT_EQ(TrameEcritNumeroSerie(-1), (Octets{5, 0, 0, 0, -1, 32, 32, 32}));
    EXPECT_EQ(TrameEcritNumeroSerie(-16777216), (Octets{5, -1, 0, 0, 0, 32, 32, 32}));
    EXPECT_EQ(TrameEcritNumeroSerie(-2147483647 - 1), (Octets{5, -128, 0, 0, 0, 32, 32, 32}));
    EXPECT_EQ(TrameEcritNumeroSerie(2147483647), (Octets{5, 127, 255, 255, 255, 32, 32, 32}));
}

TEST(Frames, CommentIsCutAtFourteenCharactersAndPaddedWithBlanks) {
    EXPECT_EQ(TrameEcritCommentaire(1, ""), (Octets{11, 32, 32, 32, 32, 32, 32, 32}));
    EXPECT_EQ(TrameEcritCommentaire(2, "1234567"), (Octets{12, 32, 32, 32, 32, 32, 32, 32}));
    EXPECT_EQ(TrameEcritCommentaire(2, "1234567abcdefghi"),
              (Octets{12, 'a', 'b', 'c', 'd', 'e', 'f', 'g'}));
    EXPECT_EQ(TrameEcritCommentaire(1, "\xE9"), (Octets{11, 233, 32, 32, 32, 32, 32, 32}));
}

using essai::NumeroDeFaute;

TEST(Frames, WordsBeyondSixteenBitsAreFaults) {
    EXPECT_EQ(NumeroDeFaute([] { TrameEcritDemarrage(0, 65536); }), numero_faute::depassement);
    EXPECT_EQ(NumeroDeFaute([] { TrameEcritMode(0, -1, 0, 0, 0); }), numero_faute::depassement);
    EXPECT_EQ(NumeroDeFaute([] { TrameLitEeprom(70000); }), numero_faute::depassement);
}

TEST(Frames, BufferFrameNeedsSevenValues) {
    const std::vector<int> six{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(NumeroDeFaute([&] { TrameFlashTampon(six); }), numero_faute::indice);
    const std::vector<int> un{1};
    EXPECT_EQ(NumeroDeFaute([&] { TrameEcritPointEtalonnage(1, 1, un); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { TrameEcritDateEtalonnage(date, 1, un); }), numero_faute::indice);
}

}  // namespace
}  // namespace bornika
