#include "settings/config_store_merge.h"

#include <gtest/gtest.h>

#include "support/fake_system.h"

namespace bornika {
namespace {

const QByteArray livree = R"(<?xml version="1.0" encoding="UTF-8"?>
<Configuration>
  <Langue>Français</Langue>
  <Nouveau>7</Nouveau>
  <Listes>
    <Langue NOM="Français"><ListeTemps>
      <Ligne><Texte>Sec</Texte><Index>0</Index><Valeur>1</Valeur></Ligne>
      <Ligne><Texte>Min</Texte><Index>1</Index><Valeur>60</Valeur></Ligne>
    </ListeTemps></Langue>
    <Langue NOM="English"><ListeTemps/></Langue>
  </Listes>
  <Messages>
    <Langue NOM="Français">
      <Entree><Cle>Lire</Cle><Texte>Lire</Texte></Entree>
      <Entree><Cle>Étalonnage</Cle><Texte>neuf</Texte></Entree>
    </Langue>
    <Langue NOM="English"><Entree><Cle>Lire</Cle><Texte>Read</Texte></Entree></Langue>
  </Messages>
</Configuration>
)";

const QByteArray utilisee = R"(<?xml version="1.0" encoding="UTF-8"?>
<Configuration>
  <!-- mine -->
  <Langue>English</Langue>
  <Listes>
    <Langue NOM="Français"><ListeTemps>
      <Ligne><Texte>Seconde</Texte><Index>0</Index><Valeur>2</Valeur></Ligne>
    </ListeTemps></Langue>
  </Listes>
  <Messages>
    <Langue NOM="Français">
      <Entree><Cle>LIRE</Cle><Texte>Ma lecture</Texte></Entree>
      <Entree><Cle> étalonnage </Cle><Texte>à moi</Texte></Entree>
    </Langue>
  </Messages>
</Configuration>
)";

TEST(FusionnerConfiguration, AddsSettingsLanguagesLinesAndTextsThatAreMissing) {
    const QByteArray fusion = FusionnerConfiguration(utilisee, livree);
    EXPECT_TRUE(fusion.contains("<Nouveau>7</Nouveau>"));
    EXPECT_TRUE(fusion.contains("<Index>1</Index><Valeur>60</Valeur>"));
    EXPECT_EQ(fusion.count("<Langue NOM=\"English\">"), 2);
    EXPECT_TRUE(fusion.contains("<Texte>Read</Texte>"));
}

TEST(FusionnerConfiguration, KeepsEveryValueThatTheUsedFileHolds) {
    const QByteArray fusion = FusionnerConfiguration(utilisee, livree);
    EXPECT_TRUE(fusion.contains("<!-- mine -->"));
    EXPECT_TRUE(fusion.contains("<Langue>English</Langue>"));
    EXPECT_FALSE(fusion.contains("<Langue>Français</Langue>"));
    EXPECT_TRUE(fusion.contains("<Texte>Seconde</Texte><Index>0</Index><Valeur>2</Valeur>"));
    EXPECT_TRUE(fusion.contains("<Texte>Ma lecture</Texte>"));
    EXPECT_FALSE(fusion.contains("<Texte>Lire</Texte>"));
}

TEST(FusionnerConfiguration, KeysAreComparedWithoutBlanksAndCaseAccentsIncluded) {
    EXPECT_FALSE(FusionnerConfiguration(utilisee, livree).contains("<Texte>neuf</Texte>"));
}

TEST(FusionnerConfiguration, ReturnsTheSameBytesWhenNothingIsMissing) {
    const QByteArray fusion = FusionnerConfiguration(utilisee, livree);
    EXPECT_EQ(FusionnerConfiguration(fusion, livree), fusion);
    EXPECT_EQ(FusionnerConfiguration(livree, livree), livree);
}

TEST(FusionnerConfiguration, KeepsTheLayoutAroundTheRootAndTheDeclaredEncoding) {
    EXPECT_TRUE(FusionnerConfiguration(utilisee, livree)
                    .startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Configuration>\n"));
    const QByteArray latin1 =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<Configuration><Langue>Fran\xE7"
        "ais</Langue></Configuration>\r\n";
    const QByteArray fusion = FusionnerConfiguration(latin1, livree);
    EXPECT_TRUE(fusion.startsWith("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n"));
    EXPECT_TRUE(
        fusion.contains("<Langue>Fran\xE7"
                        "ais</Langue>"));
    EXPECT_TRUE(fusion.contains("<Cle>\xC9talonnage</Cle>"));
}

TEST(FusionnerConfiguration, KeepsUsbNumbersAndBringsTheElementWithItsCommentWhereThereIsNone) {
    const QByteArray neuf =
        "<Configuration><Usb><!-- how --><Appareil><Vendeur>0</Vendeur><Delai>1000</Delai>"
        "</Appareil></Usb></Configuration>";
    const QByteArray entre =
        "<Configuration><Usb><Appareil><Vendeur>0x12</Vendeur></Appareil></Usb></Configuration>";
    EXPECT_EQ(FusionnerConfiguration(entre, neuf), entre);
    EXPECT_EQ(FusionnerConfiguration("<Configuration/>", neuf).replace("\n", ""), neuf);
}

TEST(FusionnerConfiguration, LeavesAMalformedUsedFileUntouched) {
    const QByteArray casse = "<Configuration><Langue>";
    EXPECT_EQ(FusionnerConfiguration(casse, livree), casse);
    EXPECT_EQ(FusionnerConfiguration("", livree), QByteArray());
}

}  // namespace
}  // namespace bornika
