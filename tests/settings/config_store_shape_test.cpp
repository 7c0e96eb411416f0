// What the operations take as given about the shape of the file, and what they do not.

#include <sys/resource.h>

#include <csignal>

#include "settings/config_store.h"
#include "settings/config_store_support.h"

namespace bornika::essai {
namespace {

/// Names of other elements, other letter cases, and blanks and comments between all children.
const QByteArray libre = R"(<Configuration>
  <LISTES>
    <Idiome nom="francais">
      <LISTEECHELLES>
        <ligne>
          <!-- the text -->
          <a>petite</a>
          <rang>0</rang>
          <bas>-1</bas>
          <haut>9.5</haut>
        </ligne>
        <autre><a>no line</a><b>1</b><c>3</c><d>4</d></autre>
        <LIGNE><a>grande</a><rang>1</rang><bas>2</bas><haut>25</haut></LIGNE>
        <Ligne><a>encore</a><rang>1</rang><bas>7</bas><haut>8</haut></Ligne>
      </LISTEECHELLES>
    </Idiome>
  </LISTES>
  <MESSAGES>
    <Idiome nom="francais">
      <!-- no entry -->
      <e>
        <k>Lire</k>
        <!-- between -->
        <v>Lis</v>
      </e>
    </Idiome>
  </MESSAGES>
</Configuration>
)";

TEST(ShapeOfTheFile, OnlyElementsCountAsChildrenAndTheirNamesAreFree) {
    Reglages r(libre);
    EXPECT_EQ(r.configuration.LitMessage(q("FRANCAIS"), q("lire"), {}), q("Lis"));
    ListeDeroulante langues;
    r.configuration.RemplitListeLangues(langues, {});
    EXPECT_EQ(Textes(langues), QStringList{q("francais")});
    double mini = 0;
    double maxi = 0;
    r.configuration.LitEchelle(q("francais"), 0, mini, maxi);
    EXPECT_EQ(mini, -1);
    EXPECT_EQ(maxi, 9.5);
}

TEST(ShapeOfTheFile, ListsAndTheirLinesAreFoundInAnyCaseAndOtherElementsAreNoLines) {
    Reglages r(libre);
    ListeDeroulante liste;
    r.configuration.RemplitListe(q("francais"), q("ListeEchelles"), liste);
    EXPECT_EQ(Textes(liste), (QStringList{q("petite"), q("encore"), q("grande")}));
    EXPECT_EQ(liste.Donnee(0), -1);
}

TEST(ShapeOfTheFile, FirstLineWithTheIndexOfAScaleHolds) {
    Reglages r(libre);
    double mini = 0;
    double maxi = 0;
    r.configuration.LitEchelle(q("francais"), 1, mini, maxi);
    EXPECT_EQ(mini, 2);
    EXPECT_EQ(maxi, 25);
}

TEST(ShapeOfTheFile, NewEntryTakesTheNamesOfTheFirstOne) {
    Reglages r(libre);
    r.configuration.LitMessage(q("francais"), q("Ecrire"), q("Write"));
    EXPECT_TRUE(r.Fichier().contains("<k>Ecrire</k>"));
    EXPECT_TRUE(r.Fichier().contains("<v>Write</v>"));
    EXPECT_EQ(r.configuration.LitMessage(q("francais"), q("Ecrire"), {}), q("Write"));
}

TEST(ShapeOfTheFile, ValueThatIsNoNumberIsZeroAndOneThatIsTooLargeAFault) {
    Reglages r;
    r.Retoucher("<Valeur>10000<", "<Valeur>bar 10000<");
    ListeDeroulante liste;
    r.configuration.RemplitListe(francais, q("ListeUnites"), liste);
    EXPECT_EQ(liste.TexteA(2), q("bar"));
    EXPECT_EQ(liste.Donnee(2), 0);
    r.Retoucher("<Valeur>bar 10000<", "<Valeur>3000000000<");
    EXPECT_EQ(
        NumeroDeFaute([&] { r.configuration.RemplitListe(francais, q("ListeUnites"), liste); }),
        numero_faute::depassement);
}

TEST(ShapeOfTheFile, LineWithoutItsValueIsAFault) {
    Reglages r;
    r.Retoucher("<Index>0</Index><Valeur>2.5</Valeur>", "<Index>0</Index>");
    ListeDeroulante liste;
    EXPECT_EQ(
        NumeroDeFaute([&] { r.configuration.RemplitListe(francais, q("ListeUnites"), liste); }),
        numero_faute::objetAbsent);
}

TEST(Maintenance, IsOffWhereTheElementIsMissing) {
    Reglages r;
    r.configuration.EcritConfig(q("True"), q("Maintenance"));
    EXPECT_TRUE(r.configuration.LitMaintenance());
    r.Retoucher("<Maintenance>True</Maintenance>", "");
    EXPECT_FALSE(r.configuration.LitMaintenance());
}

TEST(DureeSaisie, LineOfALaterLanguageHoldsWhereTheFirstHasNone) {
    Reglages r;
    r.Retoucher("<Texte>Free</Texte><Index>0</Index>", "<Texte>Free</Texte><Index>7</Index>");
    EXPECT_EQ(r.configuration.LitDureeSaisie(7), 60);
    r.configuration.EcritDureeSaisie(7, 3);
    EXPECT_TRUE(r.Fichier().contains("<Index>7</Index><Valeur>30</Valeur>"));
}

TEST(DureeSaisie, LinesWithinOtherElementsOfTheListCountInTheOrderOfTheFile) {
    Reglages r;
    r.Retoucher("<Ligne><Texte>1/8 s</Texte>",
                "<Ligne><Groupe><Ligne><Texte>a</Texte><Index>5</Index><Valeur>120</Valeur></Ligne>"
                "</Groupe><Texte>1/8 s</Texte>");
    EXPECT_EQ(r.configuration.LitDureeSaisie(5), 12);
}

TEST(LitConfig, FirstElementInTheOrderOfTheFileHolds) {
    Reglages r(
        "<Configuration><Sous><Configuration><Port>1</Port></Configuration></Sous>"
        "<Port>2</Port><Port>3</Port></Configuration>");
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q("1"));
    r.configuration.EcritConfig(q("4"), q("Port"));
    EXPECT_EQ(r.Fichier(),
              "<Configuration><Sous><Configuration><Port>4</Port></Configuration></Sous>"
              "<Port>2</Port><Port>3</Port></Configuration>");
}

TEST(EcritConfig, SaveThatFailsIsAFaultThatNamesTheFileAndTheNextReadingGivesTheOldText) {
    std::signal(SIGXFSZ, SIG_IGN);
    Reglages r;
    rlimit ancienne{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &ancienne), 0);
    const rlimit etroite{100, ancienne.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &etroite), 0);
    const FauteExecution faute =
        FauteDe([&] { r.configuration.EcritConfig(q("COM2"), q("Port")); });
    const int entree = NumeroDeFaute([&] { r.configuration.LitMessage(francais, q("Neuf"), {}); });
    setrlimit(RLIMIT_FSIZE, &ancienne);
    EXPECT_EQ(faute.numero(), numero_faute::accesRefuse);
    EXPECT_TRUE(faute.texte().startsWith(r.configuration.Chemin() + q(" : ")))
        << faute.texte().toStdString();
    EXPECT_EQ(entree, numero_faute::accesRefuse);
    EXPECT_EQ(r.Fichier(), PetiteConfiguration());
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q("COM1"));
    EXPECT_EQ(r.configuration.LitMessage(francais, q("Neuf"), q("x")), QString());
}

}  // namespace
}  // namespace bornika::essai
