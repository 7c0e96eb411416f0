#include "service/firmware_file.h"

#include <gtest/gtest.h>

namespace bornika {
namespace {

QString q(const char* texte) {
    return QString::fromUtf8(texte);
}

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

TEST(CommandeDuChargeur, IsOneLineWithoutQuotes) {
    const AppelChargeur appel = CommandeChargeur(q("/opt/le programme"), q("Français"), 74210,
                                                 q("/home/zoé/mes fichiers/K-POD_V2_100.HEX"), 1);
    EXPECT_EQ(appel.Ligne(),
              q("/opt/le programme/Chargeur_m_v239.exe LANGUE=Français ;device=k-pod;USBID=74210;"
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
