#include "settings/usb_element.h"

#include <gmock/gmock.h>

#include "settings/config_store_support.h"
#include "shell/main_screen.h"
#include "support/case_names.h"

namespace bornika::essai {
namespace {

using testing::IsEmpty;

/// A program's folder with the delivered configuration, its element "Usb" exchanged.
class BancUsb : public Etabli {
  public:
    BancUsb() : configuration(systeme.dossier), livree_(Lire(q("config.xml"))) {}
    explicit BancUsb(const QByteArray& appareils) : BancUsb() {
        Mettre("<Usb>" + appareils + "</Usb>");
    }

    void Mettre(const QByteArray& element) {
        QByteArray contenu = livree_;
        const qsizetype debut = contenu.indexOf("<Usb>");
        contenu.replace(debut, contenu.indexOf("</Usb>") + 6 - debut, element);
        Ecrire(q("config.xml"), contenu);
    }
    void Parler(const char* langue) { configuration.EcritConfig(q(langue), q("Langue")); }

    Configuration configuration;

  private:
    QByteArray livree_;
};

QByteArray Appareil(const QByteArray& entrees) {
    return "<Appareil>" + entrees + "</Appareil>";
}

const QByteArray bon = "<Vendeur>0x1234</Vendeur><Produit>0x5678</Produit>";

ElementUsb ElementDe(const QByteArray& appareils) {
    BancUsb b(appareils);
    return LireElementUsb(b.configuration);
}

TEST(LireElementUsb, ReadsEveryEntryOfAProduct) {
    const ElementUsb element = ElementDe(
        Appareil("<Vendeur>0x1A2b</Vendeur><Produit>0Xffff</Produit><Interface>3</Interface>"
                 "<Sortie>0x02</Sortie><Entree>0x83</Entree><Delai>250</Delai>"));
    EXPECT_THAT(element.fausses, IsEmpty());
    ASSERT_EQ(element.reglages.size(), 1U);
    const ReglageUsb& reglage = element.reglages[0];
    EXPECT_EQ(reglage.Vendeur, 0x1A2B);
    EXPECT_EQ(reglage.Produit, 0xFFFF);
    EXPECT_EQ(reglage.Interface, 3);
    EXPECT_EQ(reglage.Sortie, 0x02);
    EXPECT_EQ(reglage.Entree, 0x83);
    EXPECT_EQ(reglage.Delai, 250);
}

TEST(LireElementUsb, TakesDecimalNumbersBlanksAndAnyOrder) {
    const ElementUsb element =
        ElementDe(Appareil("\n <Entree> 129 </Entree><!-- mine --><Produit>00022136</Produit>"
                           "<Vendeur>\n 4660\t</Vendeur>"));
    EXPECT_THAT(element.fausses, IsEmpty());
    ASSERT_EQ(element.reglages.size(), 1U);
    EXPECT_EQ(element.reglages[0].Vendeur, 0x1234);
    EXPECT_EQ(element.reglages[0].Produit, 0x5678);
    EXPECT_EQ(element.reglages[0].Entree, 0x81);
}

TEST(LireElementUsb, LeavesTheEndpointsOpenAndWaitsOneSecondWhereNothingIsSaid) {
    for (const QByteArray vides : {"", "<Interface/><Sortie></Sortie><Entree> </Entree><Delai/>"}) {
        const ElementUsb element = ElementDe(Appareil(bon + vides));
        EXPECT_THAT(element.fausses, IsEmpty());
        ASSERT_EQ(element.reglages.size(), 1U);
        EXPECT_EQ(element.reglages[0].Interface, 0);
        EXPECT_FALSE(element.reglages[0].Sortie);
        EXPECT_FALSE(element.reglages[0].Entree);
        EXPECT_EQ(element.reglages[0].Delai, 1000);
    }
}

TEST(LireElementUsb, ReadsSeveralProductsInTheirOrder) {
    const ElementUsb element = ElementDe(Appareil("<Vendeur>1</Vendeur><Produit>2</Produit>") +
                                         Appareil("<Vendeur>1</Vendeur><Produit>0</Produit>") +
                                         Appareil("<Vendeur>65535</Vendeur><Produit>2</Produit>"));
    EXPECT_THAT(element.fausses, IsEmpty());
    ASSERT_EQ(element.reglages.size(), 3U);
    EXPECT_EQ(element.reglages[0].Produit, 2);
    EXPECT_EQ(element.reglages[1].Produit, 0);
    EXPECT_EQ(element.reglages[2].Vendeur, 0xFFFF);
}

TEST(LireElementUsb, LooksForNothingWhereItIsAbsentEmptyOrOfVendorZero) {
    BancUsb b;
    for (const QByteArray& element :
         {QByteArray(), QByteArray("<Usb/>"), QByteArray("<Usb> <!-- none --> </Usb>"),
          "<Usb>" + Appareil("") + "</Usb>",
          "<Usb>" + Appareil("<Vendeur/><Produit/><Delai>5</Delai>") + "</Usb>",
          "<Usb>" + Appareil("<Vendeur>0</Vendeur><Produit>0x5678</Produit>") + "</Usb>",
          "<Usb>" + Appareil("<Produit>0</Produit>") + "</Usb>",
          "<Usb>" + Appareil("<Vendeur>0x0000</Vendeur>") + "</Usb>"}) {
        b.Mettre(element);
        const ElementUsb lu = LireElementUsb(b.configuration);
        EXPECT_THAT(lu.reglages, IsEmpty()) << element.toStdString();
        EXPECT_THAT(lu.fausses, IsEmpty()) << element.toStdString();
    }
}

TEST(LireElementUsb, FindsNothingInAFileThatIsMissingOrMalformedAndLeavesItToTheStart) {
    BancUsb b;
    for (const char* contenu : {"", "<Configuration><Usb>", "no file"}) {
        b.Ecrire(q("config.xml"), contenu);
        const ElementUsb element = LireElementUsb(b.configuration);
        EXPECT_THAT(element.reglages, IsEmpty());
        EXPECT_THAT(element.fausses, IsEmpty());
    }
    QFile::remove(b.Chemin(q("config.xml")));
    EXPECT_THAT(LireElementUsb(b.configuration).reglages, IsEmpty());
    EXPECT_FALSE(QFile::exists(b.Chemin(q("config.xml"))));
    EXPECT_TRUE(b.fautes.empty());
}

struct Cas {
    const char* entrees;
    const char* entree;
    const char* valeur;
    const char* attendu;
};

class EntreeFausse : public testing::TestWithParam<Cas> {};

TEST_P(EntreeFausse, IsNamedAndItsProductAloneLeftOut) {
    const Cas& cas = GetParam();
    const ElementUsb element =
        ElementDe(Appareil("<Vendeur>7</Vendeur><Produit>8</Produit>") + Appareil(cas.entrees) +
                  Appareil("<Vendeur>7</Vendeur><Produit>9</Produit>"));
    ASSERT_EQ(element.reglages.size(), 2U);
    EXPECT_EQ(element.reglages[0].Produit, 8);
    EXPECT_EQ(element.reglages[1].Produit, 9);
    ASSERT_EQ(element.fausses.size(), 1U);
    EXPECT_EQ(element.fausses[0].rang, 2);
    EXPECT_EQ(element.fausses[0].entree, q(cas.entree));
    EXPECT_EQ(element.fausses[0].valeur, q(cas.valeur));
    EXPECT_EQ(element.fausses[0].attendu, q(cas.attendu));
}

#define BON "<Vendeur>1</Vendeur><Produit>2</Produit>"

INSTANTIATE_TEST_SUITE_P(
    LireElementUsb, EntreeFausse,
    testing::Values(
        // No number at all.
        Cas{"<Vendeur>abc</Vendeur><Produit>2</Produit>", "Vendeur", "abc", "UsbAttenduNumero"},
        Cas{"<Vendeur>12AB</Vendeur><Produit>2</Produit>", "Vendeur", "12AB", "UsbAttenduNumero"},
        Cas{"<Vendeur>0x</Vendeur><Produit>2</Produit>", "Vendeur", "0x", "UsbAttenduNumero"},
        Cas{"<Vendeur>0x0x12</Vendeur><Produit>2</Produit>", "Vendeur", "0x0x12",
            "UsbAttenduNumero"},
        Cas{"<Vendeur>1 2</Vendeur><Produit>2</Produit>", "Vendeur", "1 2", "UsbAttenduNumero"},
        Cas{"<Vendeur>+1</Vendeur><Produit>2</Produit>", "Vendeur", "+1", "UsbAttenduNumero"},
        Cas{"<Vendeur>1</Vendeur><Produit>2.5</Produit>", "Produit", "2.5", "UsbAttenduNumero"},
        Cas{BON "<Interface>x</Interface>", "Interface", "x", "UsbAttenduInterface"},
        Cas{BON "<Sortie>out</Sortie>", "Sortie", "out", "UsbAttenduSortie"},
        Cas{BON "<Entree>in</Entree>", "Entree", "in", "UsbAttenduEntree"},
        Cas{BON "<Delai>1 s</Delai>", "Delai", "1 s", "UsbAttenduDelai"},
        // Out of range.
        Cas{"<Vendeur>0x10000</Vendeur><Produit>2</Produit>", "Vendeur", "0x10000",
            "UsbAttenduNumero"},
        Cas{"<Vendeur>-1</Vendeur><Produit>2</Produit>", "Vendeur", "-1", "UsbAttenduNumero"},
        Cas{"<Vendeur>1</Vendeur><Produit>65536</Produit>", "Produit", "65536", "UsbAttenduNumero"},
        Cas{"<Vendeur>1</Vendeur><Produit>99999999999999999999</Produit>", "Produit",
            "99999999999999999999", "UsbAttenduNumero"},
        Cas{BON "<Interface>256</Interface>", "Interface", "256", "UsbAttenduInterface"},
        Cas{BON "<Delai>0</Delai>", "Delai", "0", "UsbAttenduDelai"},
        Cas{BON "<Delai>60001</Delai>", "Delai", "60001", "UsbAttenduDelai"},
        // The wrong direction, or the control endpoint.
        Cas{BON "<Sortie>0x81</Sortie>", "Sortie", "0x81", "UsbAttenduSortie"},
        Cas{BON "<Sortie>0</Sortie>", "Sortie", "0", "UsbAttenduSortie"},
        Cas{BON "<Sortie>0x10</Sortie>", "Sortie", "0x10", "UsbAttenduSortie"},
        Cas{BON "<Entree>0x01</Entree>", "Entree", "0x01", "UsbAttenduEntree"},
        Cas{BON "<Entree>0x80</Entree>", "Entree", "0x80", "UsbAttenduEntree"},
        Cas{BON "<Entree>0x90</Entree>", "Entree", "0x90", "UsbAttenduEntree"},
        // One number without the other.
        Cas{"<Produit>0x5678</Produit>", "Vendeur", "", "UsbAttenduVendeur"},
        Cas{"<Vendeur/><Produit>0x5678</Produit>", "Vendeur", "", "UsbAttenduVendeur"},
        Cas{"<Vendeur>1</Vendeur>", "Produit", "", "UsbAttenduProduit"},
        Cas{"<Vendeur>1</Vendeur><Produit> </Produit>", "Produit", "", "UsbAttenduProduit"},
        // A name that means nothing, an entry that stands twice, a product that stands twice.
        Cas{BON "<Timeout>5</Timeout>", "Timeout", "5", "UsbAttenduEntrees"},
        Cas{"<vendeur>1</vendeur><Produit>2</Produit>", "vendeur", "1", "UsbAttenduEntrees"},
        Cas{BON "<Delai>5</Delai><Delai>6</Delai>", "Delai", "6", "UsbAttenduUneFois"},
        Cas{"<Vendeur>7</Vendeur><Produit>0x0008</Produit><Interface>1</Interface>", "Produit",
            "0x0008", "UsbAttenduAutreProduit"}),
    [](const auto& cas) {
        return NomDeCas(cas.index, cas.param.entree + std::string(" ") + cas.param.valeur);
    });

#undef BON

TEST(LireElementUsb, NamesAnElementThatIsNoProduct) {
    const ElementUsb element = ElementDe("<Apareil>" + bon + "</Apareil>" + Appareil(bon));
    EXPECT_EQ(element.reglages.size(), 1U);
    ASSERT_EQ(element.fausses.size(), 1U);
    EXPECT_EQ(element.fausses[0].rang, 1);
    EXPECT_EQ(element.fausses[0].entree, q("Apareil"));
    EXPECT_EQ(element.fausses[0].attendu, q("UsbAttenduAppareil"));
    EXPECT_EQ(element.fausses[0].vendeur, q("0x1234"));
}

TEST(LireElementUsb, NamesEveryWrongEntryOfAProduct) {
    const ElementUsb element = ElementDe(
        Appareil("<Vendeur>x</Vendeur><Produit>y</Produit><Entree>1</Entree><Delai>5</Delai>"));
    EXPECT_THAT(element.reglages, IsEmpty());
    ASSERT_EQ(element.fausses.size(), 3U);
    EXPECT_EQ(element.fausses[0].entree, q("Vendeur"));
    EXPECT_EQ(element.fausses[1].entree, q("Produit"));
    EXPECT_EQ(element.fausses[2].entree, q("Entree"));
}

TEST(SignalerEntreesUsb, ShowsOneBoxForEachThatNamesProductEntryAndWhatWasExpected) {
    BancUsb b(Appareil(bon + "<Entree>0x01</Entree>") + Appareil("<Produit>5</Produit>"));
    b.Parler("English");
    const ElementUsb element = LireElementUsb(b.configuration);
    SignalerEntreesUsb(b.systeme, b.configuration, element.fausses);
    ASSERT_EQ(b.dialogues.Boites().size(), 2U);
    EXPECT_EQ(b.dialogues.Boites()[0].icone, Icone::Exclamation);
    EXPECT_EQ(b.dialogues.Boites()[0].boutons, Boutons::Ok);
    EXPECT_EQ(b.dialogues.Boites()[0].titre, q("BORNIKA"));
    EXPECT_EQ(b.dialogues.Boites()[0].texte,
              q("This entry of the element Usb in the file config.xml is wrong:\n\n"
                "Appareil 1 (Vendeur 0x1234, Produit 0x5678)\nEntree = 0x01\n\n"
                "Expected: the address of an input endpoint, from 0x81 to 0x8F, or nothing\n\n"
                "The program goes on without this device."));
    EXPECT_TRUE(b.dialogues.Boites()[1].texte.contains(
        q("Appareil 2 (Vendeur –, Produit 5)\nVendeur = –\n\nExpected: the vendor number")));
}

TEST(SignalerEntreesUsb, SpeaksTheLanguageOfTheProgram) {
    BancUsb b(Appareil(bon + "<Delai>0</Delai>"));
    b.Parler("Français");
    SignalerEntreesUsb(b.systeme, b.configuration, LireElementUsb(b.configuration).fausses);
    ASSERT_EQ(b.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(b.dialogues.Boites()[0].texte.contains(
        q("Delai = 0\n\nAttendu : un nombre de millisecondes de 1 à 60000")));
}

TEST(SignalerEntreesUsb, ShowsNothingWhereNothingIsWrong) {
    BancUsb b(Appareil(bon));
    SignalerEntreesUsb(b.systeme, b.configuration, LireElementUsb(b.configuration).fausses);
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(ElementUsb, SurvivesASaveOfAnotherSettingWithItsComments) {
    BancUsb b("<!-- my loggers -->\r\n " + Appareil(bon + "<Inconnu a=\"1\"/>"));
    b.configuration.EcritSplash(false);
    EXPECT_TRUE(b.Lire(q("config.xml"))
                    .contains("<Usb><!-- my loggers -->\r\n <Appareil>" + bon +
                              "<Inconnu a=\"1\"/></Appareil></Usb>"));
}

}  // namespace
}  // namespace bornika::essai
