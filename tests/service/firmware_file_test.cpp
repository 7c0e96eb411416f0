#include "service/firmware_file.h"

#include <gtest/gtest.h>

#include <QSet>

#include "support/plain_text.h"

namespace bornika {
namespace {

using essai::q;

struct CasNom {
    std::int32_t type;
    bool drapeau;
    const char* chemin;
    bool accepte;
};

TEST(NomFirmware, IsShownInTheFormOfTypeOneOrOfTheCardLogger) {
    EXPECT_EQ(FormeNomFirmware(1, false), q("K-POD_VX.XXX.HEX"));
    EXPECT_EQ(FormeNomFirmware(1, true), q("Z907PT_VX.XXX.HEX"));
    for (const int type : {19, 20, 0, 2, 5, 99}) {
        EXPECT_EQ(FormeNomFirmware(type, false), q("K-POD-33_VX.XXX.HEX")) << type;
        EXPECT_EQ(FormeNomFirmware(type, true), q("Z907FPT_VX.XXX.HEX")) << type;
    }
}

TEST(NomFirmware, MustHoldThePartOfItsTypeAndEdition) {
    const CasNom cas[] = {
        {1, false, "/f/K-POD_V2.100.HEX", true},     {1, false, "/f/Z907PT_V2.100.HEX", false},
        {1, false, "/f/K-POD-33_V2.100.HEX", false}, {1, true, "/f/Z907PT_V2.100.HEX", true},
        {1, true, "/f/K-POD_V2.100.HEX", false},     {1, true, "/f/Z907FPT_V2.100.HEX", false},
        {19, false, "/f/K-POD-33_V2.112.HEX", true}, {19, false, "/f/K-POD_V2.112.HEX", false},
        {19, false, "/f/Z907FPT_V2.112.HEX", false}, {19, true, "/f/Z907FPT_V2.112.HEX", true},
        {19, true, "/f/K-POD-33_V2.112.HEX", false}, {19, true, "/f/Z907PT_V2.112.HEX", false},
        {20, false, "/f/K-POD-33_V2.120.HEX", true}, {20, false, "/f/K-POD_V2.120.HEX", false},
        {20, true, "/f/Z907FPT_V2.120.HEX", true},   {20, true, "/f/K-POD-33_V2.120.HEX", false},
    };
    for (const CasNom& c : cas)
        EXPECT_EQ(EstFirmwarePour(q(c.chemin), c.type, c.drapeau), c.accepte)
            << c.chemin << " for type " << c.type << (c.drapeau ? ", Z907" : "");
}

TEST(NomFirmware, CountsInAnyCaseAndAnywhereInThePath) {
    EXPECT_TRUE(EstFirmwarePour(q("/f/k-pod_v2.100.hex"), 1, false));
    EXPECT_TRUE(EstFirmwarePour(q("/f/My K-Pod_v2_100 tested.Hex"), 1, false));
    EXPECT_TRUE(EstFirmwarePour(q("/k-pod_v2.100/flash.hex"), 1, false));
    EXPECT_TRUE(EstFirmwarePour(q("/z907fpt_v2.120.hex"), 20, true));
}

TEST(NomFirmware, MustTellAVersionWithinTheBoundsOfItsType) {
    const CasNom cas[] = {
        {1, false, "K-POD_V2.109.HEX", true},      {1, false, "K-POD_V2.1099.HEX", true},
        {1, false, "K-POD_V2.11.HEX", false},      {1, false, "K-POD_V2.110.HEX", false},
        {1, false, "K-POD_V2.112.HEX", false},     {1, false, "K-POD_V0.001.HEX", true},
        {1, false, "K-POD_V12.HEX", false},        {19, false, "K-POD-33_V2.111.HEX", false},
        {19, false, "K-POD-33_V2.11.HEX", false},  {19, false, "K-POD-33_V2.112.HEX", true},
        {19, false, "K-POD-33_V2.12.HEX", true},   {19, false, "K-POD-33_V9.HEX", true},
        {20, false, "K-POD-33_V2.112.HEX", false}, {20, false, "K-POD-33_V2.119.HEX", false},
        {20, false, "K-POD-33_V2.12.HEX", true},   {20, false, "K-POD-33_V2.120.HEX", true},
        {20, false, "K-POD-33_V3.000.HEX", true},  {1, true, "Z907PT_V2.11.HEX", false},
        {19, true, "Z907FPT_V2.112.HEX", true},    {20, true, "Z907FPT_V2.119.HEX", false},
    };
    for (const CasNom& c : cas)
        EXPECT_EQ(EstFirmwarePour(q(c.chemin), c.type, c.drapeau), c.accepte)
            << c.chemin << " for type " << c.type;
}

// Every type of the family and some beyond it, in both editions, with every name and a ladder of
// versions around each bound.
TEST(NomFirmware, IsHeldAgainstTypeEditionNameAndVersionTogether) {
    const char* const noms[] = {"K-POD", "K-POD-33", "Z907PT", "Z907FPT"};
    const char* const echelle[] = {"0.289", "2.098", "2.109", "2.1099", "2.11",   "2.1101",
                                   "2.111", "2.112", "2.119", "2.1199", "2.12",   "2.1201",
                                   "2.2",   "3",     "10.1",  "0",      "2.1119", "2.113"};
    // What each type with a rule takes, spelled out.
    const QSet<QString> bas{"0.289", "2.098", "2.109", "2.1099", "0"};
    const QSet<QString> des2112{"2.112",  "2.113", "2.119", "2.1199", "2.12",
                                "2.1201", "2.2",   "3",     "10.1"};
    const QSet<QString> des2120{"2.12", "2.1201", "2.2", "3", "10.1"};
    for (int type = 0; type <= 24; ++type)
        for (const bool z907 : {false, true})
            for (const char* nom : noms)
                for (const char* version : echelle) {
                    bool attendu = true;
                    if (type == 1)
                        attendu = q(nom) == q(z907 ? "Z907PT" : "K-POD") && bas.contains(version);
                    if (type == 19 || type == 20)
                        attendu = q(nom) == q(z907 ? "Z907FPT" : "K-POD-33") &&
                                  (type == 19 ? des2112 : des2120).contains(version);
                    const QString chemin = QStringLiteral("/f/%1_V%2.HEX").arg(nom, version);
                    EXPECT_EQ(EstFirmwarePour(chemin, type, z907), attendu)
                        << chemin.toStdString() << " for type " << type << (z907 ? ", Z907" : "");
                }
}

TEST(NomFirmware, WithoutAVersionInItCountsAsVersionZero) {
    EXPECT_TRUE(EstFirmwarePour(q("K-POD_Vnew.HEX"), 1, false));
    EXPECT_FALSE(EstFirmwarePour(q("K-POD-33_Vnew.HEX"), 19, false));
    EXPECT_TRUE(EstFirmwarePour(q("K-POD_V"), 1, false));
}

TEST(NomFirmware, IsFreeForAllOtherTypes) {
    for (const int type : {1, 19, 20})
        EXPECT_TRUE(AUneRegleFirmware(type)) << type;
    for (const int type : {0, 2, 5, 14, 18, 21, 99}) {
        EXPECT_FALSE(AUneRegleFirmware(type)) << type;
        for (const char* chemin : {"/f/x.HEX", "", "K-POD_V9.9.HEX", "/f/K-POD-33_V0.1.HEX"})
            EXPECT_TRUE(EstFirmwarePour(q(chemin), type, type % 2 == 0)) << type << chemin;
    }
}

TEST(VersionFirmware, StandsBetweenTheFirstMarkAndTheExtension) {
    EXPECT_EQ(TexteVersionFirmware(q("/f/K-POD_V2.100.HEX")), q("2.100"));
    EXPECT_EQ(TexteVersionFirmware(q("/f/k-pod-33_v2.112.hex")), q("2.112"));
    EXPECT_EQ(TexteVersionFirmware(q("/f/K-POD_V2.100.HEX_V3.HEX")), q("2.100.HEX.V3"));
}

TEST(VersionFirmware, TakesAnUnderscoreForAPoint) {
    EXPECT_EQ(TexteVersionFirmware(q("/f/K-POD_V2_100.HEX")), q("2.100"));
    EXPECT_EQ(TexteVersionFirmware(q("/f/K-POD_V2.100_b_2.HEX")), q("2.100.b.2"));
    EXPECT_FALSE(EstFirmwarePour(q("/f/K-POD_V2_11.HEX"), 1, false));
    EXPECT_TRUE(EstFirmwarePour(q("/f/K-POD-33_V2_112.HEX"), 19, false));
}

TEST(VersionFirmware, IsSoughtInFolderNamesToo) {
    const QString chemin = q("/home/me/fw_v3/K-POD-33_V2.112.HEX");
    EXPECT_EQ(TexteVersionFirmware(chemin), q("3/K-POD-33.V2.112"));
    EXPECT_TRUE(EstFirmwarePour(chemin, 20, false));
    EXPECT_FALSE(EstFirmwarePour(q("/home/me/new_versions/K-POD-33_V2.112.HEX"), 19, false));
    EXPECT_TRUE(EstFirmwarePour(q("/home/me/new_versions/K-POD_V2.112.HEX"), 1, false));
}

TEST(VersionFirmware, WithoutAMarkIsThePathFromItsStart) {
    EXPECT_EQ(TexteVersionFirmware(q("/home/me/x_1.HEX")), q("/home/me/x.1"));
    EXPECT_EQ(TexteVersionFirmware(q("2.5/firmware.HEX")), q("2.5/firmware"));
    EXPECT_EQ(TexteVersionFirmware(q("abc")), QString());
    EXPECT_EQ(TexteVersionFirmware(QString()), QString());
}

TEST(CommandeDuChargeur, HasNoQuotesWhateverBlanksItsPathsHave) {
    const AppelChargeur appel = CommandeChargeur(q("/opt/le programme"), q("Français"), 74210,
                                                 q("/home/zoé/mes fichiers/K-POD_V2_100.HEX"), 1);
    EXPECT_EQ(appel.programme, q("/opt/le programme/Chargeur_m_v239.exe"));
    EXPECT_EQ(appel.argument, q("LANGUE=Français ;device=k-pod;USBID=74210;"
                                "prg=/home/zoé/mes fichiers/K-POD_V2_100.HEX;prodcode=1:2.100"));
}

TEST(CommandeDuChargeur, IsAProgramAndOneArgument) {
    const AppelChargeur appel =
        CommandeChargeur(q("/opt/x"), q("English"), 2147483647, q("/f/any.HEX"), 5);
    EXPECT_EQ(appel.programme, q("/opt/x/Chargeur_m_v239.exe"));
    EXPECT_EQ(appel.argument,
              q("LANGUE=English ;device=k-pod;USBID=2147483647;prg=/f/any.HEX;prodcode=5:/f/any"));
}

}  // namespace
}  // namespace bornika
