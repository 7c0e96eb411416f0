#include "settings/config_store_support.h"

namespace bornika::essai {
namespace {

int Entrees(const QByteArray& fichier, const QByteArray& cle) {
    return static_cast<int>(fichier.count(cle));
}

TEST(LitMessage, FindGivesTheTextUntrimmedAndSavesNothing) {
    Reglages r;
    const QDateTime ancien = r.Vieillir();
    EXPECT_EQ(r.configuration.LitMessage(francais, q("k-Pod Absent"), q("x")), q("k-Pod absent"));
    EXPECT_EQ(r.configuration.LitMessage(francais, q("Déconnecter la sonde"), {}),
              q(" Débranchez "));
    EXPECT_EQ(r.Fichier(), PetiteConfiguration());
    EXPECT_EQ(r.Date(), ancien);
}

TEST(LitMessage, KeysAndLanguagesMatchInAnyCaseAccentsIncluded) {
    Reglages r;
    EXPECT_EQ(r.configuration.LitMessage(q("FRANÇAIS"), q("K-POD ABSENT"), {}), q("k-Pod absent"));
    EXPECT_EQ(r.configuration.LitMessage(q("français"), q("DÉCONNECTER LA SONDE"), {}),
              q(" Débranchez "));
    EXPECT_EQ(r.configuration.LitMessage(q("english"), q("k-pod absent"), {}), q("no k-Pod"));
    r.Retoucher("Déconnecter", "DÉCONNECTER");
    EXPECT_EQ(r.configuration.LitMessage(francais, q("déconnecter la sonde"), {}),
              q(" Débranchez "));
}

TEST(LitMessage, UpperCaseThatGrowsStillMatches) {
    Reglages r;
    r.Retoucher("Déconnecter la sonde", "Straße");
    EXPECT_EQ(r.configuration.LitMessage(francais, q("STRASSE"), {}), q(" Débranchez "));
    EXPECT_EQ(r.configuration.LitMessage(francais, q("straße"), {}), q(" Débranchez "));
}

TEST(LitMessage, FirstLookupOfUnknownKeyAddsItAndGivesNothing) {
    Reglages r;
    EXPECT_EQ(r.configuration.LitMessage(francais, q("Nouvelle"), q("Texte <&> é")), QString());
    EXPECT_EQ(r.configuration.LitMessage(francais, q("Nouvelle"), q("autre")), q("Texte <&> é"));
    EXPECT_EQ(Entrees(r.Fichier(), "<Cle>Nouvelle</Cle>"), 1);
    EXPECT_FALSE(r.Fichier().contains("<C2>Nouvelle"));
}

TEST(LitMessage, EmptyDefaultStoresTheKeyItself) {
    Reglages r;
    r.configuration.LitMessage(francais, q("Bonjour"), {});
    EXPECT_EQ(r.configuration.LitMessage(francais, q("bonjour"), {}), q("Bonjour"));
}

TEST(LitMessage, BlanksAroundTheKeyDoNotCountAndAreKeptInANewEntry) {
    Reglages r;
    r.Retoucher("<Cle>k-Pod Absent</Cle>", "<Cle>VALEUR</Cle>");
    EXPECT_EQ(r.configuration.LitMessage(francais, q(" Valeur "), {}), q("k-Pod absent"));
    EXPECT_EQ(r.configuration.LitMessage(francais, q(" Autre "), q("t")), QString());
    EXPECT_TRUE(r.Fichier().contains("<Cle> Autre </Cle>"));
    EXPECT_EQ(r.configuration.LitMessage(francais, q(" Autre "), q("t")), q("t"));
    EXPECT_EQ(r.configuration.LitMessage(francais, q("AUTRE"), q("t")), q("t"));
    EXPECT_EQ(Entrees(r.Fichier(), "Autre"), 1);
}

TEST(LitMessage, NewEntryIsADeepCopyOfTheLanguagesFirst) {
    Reglages r;
    r.Retoucher("<E2><C2>k-Pod Absent</C2><T2>no k-Pod</T2></E2>",
                "<E2 x=\"1\"><C2>k-Pod Absent</C2><T2>no k-Pod</T2><Note>n</Note></E2>");
    r.configuration.LitMessage(q("English"), q("New"), q("text"));
    EXPECT_TRUE(r.Fichier().contains(
        "\r\n      <E2 x=\"1\"><C2>New</C2><T2>text</T2><Note>n</Note></E2>\r\n    </Langue>"))
        << r.Fichier().toStdString();
}

TEST(LitMessage, UnknownLanguageSavesAndAddsNothing) {
    Reglages r;
    const QDateTime ancien = r.Vieillir();
    EXPECT_EQ(r.configuration.LitMessage(q("Klingon"), q("k-Pod Absent"), q("x")), QString());
    EXPECT_NE(r.Date(), ancien);
    EXPECT_EQ(r.Fichier().count("<Cle>"), PetiteConfiguration().count("<Cle>"));
    EXPECT_EQ(r.Fichier().count("<C2>"), PetiteConfiguration().count("<C2>"));
}

TEST(LitMessage, KeyFoundInASecondElementOfTheLanguageLosesTheEntryJustMade) {
    Reglages r;
    r.Retoucher("<Langue NOM=\"English\">\r\n      <E2>",
                "<Langue nom=\"FRANÇAIS\">\r\n      <E2>");
    r.Retoucher("no k-Pod</T2></E2>", "no k-Pod</T2></E2><E2><C2>Seconde</C2><T2>deux</T2></E2>");
    const QByteArray avant = r.Fichier();
    EXPECT_EQ(r.configuration.LitMessage(francais, q("Seconde"), q("x")), q("deux"));
    EXPECT_EQ(r.Fichier(), avant);
    r.configuration.LitMessage(francais, q("Nulle part"), q("x"));
    EXPECT_EQ(Entrees(r.Fichier(), "Nulle part"), 2);
}

TEST(LitMessage, LanguageWithoutAnyEntryIsAFault) {
    Reglages r;
    r.Retoucher("<E2><C2>k-Pod Absent</C2><T2>no k-Pod</T2></E2>", "<!-- none -->");
    EXPECT_EQ(NumeroDeFaute([&] { r.configuration.LitMessage(q("English"), q("New"), {}); }),
              numero_faute::objetAbsent);
}

TEST(LitMessage, NamesOfTheTreeMatchInAnyCase) {
    Reglages r;
    r.Retoucher("<Messages>", "<mEssageS>");
    r.Retoucher("</Messages>", "</mEssageS>");
    r.Retoucher("<Langue NOM=\"English\">\r\n      <E2>", "<Langue Nom=\"English\">\r\n      <E2>");
    EXPECT_EQ(r.configuration.LitMessage(q("English"), q("k-Pod Absent"), {}), q("no k-Pod"));
}

TEST(RemplitListeLangues, AddsAllNamesAndRaisesTheClickOnceOnTheExactName) {
    Reglages r;
    ListeDeroulante liste;
    int clics = 0;
    QObject::connect(&liste, &ListeDeroulante::Clic, [&] { ++clics; });
    r.configuration.RemplitListeLangues(liste, q("English"));
    EXPECT_EQ(Textes(liste), (QStringList{francais, q("English")}));
    EXPECT_EQ(liste.Index(), 1);
    EXPECT_EQ(clics, 1);
}

TEST(RemplitListeLangues, NameInAnotherCaseSelectsNothing) {
    Reglages r;
    ListeDeroulante liste;
    int clics = 0;
    QObject::connect(&liste, &ListeDeroulante::Clic, [&] { ++clics; });
    r.configuration.RemplitListeLangues(liste, q("english"));
    EXPECT_EQ(liste.Index(), -1);
    EXPECT_EQ(clics, 0);
}

TEST(RemplitListeLangues, DoesNotClearAndCountsPositionsFromZero) {
    Reglages r;
    ListeDeroulante liste;
    liste.Ajouter(q("ancien"));
    r.configuration.RemplitListeLangues(liste, QString());
    EXPECT_EQ(Textes(liste), (QStringList{francais, q("English"), q("ancien")}));
}

TEST(RemplitListeLangues, ClickHandlerMayRunOperationsThatLoadTheDocument) {
    Reglages r;
    ListeDeroulante liste;
    ListeDeroulante unites;
    QObject::connect(&liste, &ListeDeroulante::Clic, [&] {
        for (int i = 0; i < 20; ++i)
            r.configuration.LitMessage(liste.Texte(), QString::number(i), {});
        r.configuration.RemplitListe(liste.Texte(), q("ListeUnites"), unites);
        r.configuration.EcritConfig(liste.Texte(), q("Langue"));
    });
    r.configuration.RemplitListeLangues(liste, francais);
    EXPECT_EQ(Textes(liste), (QStringList{francais, q("English")}));
    EXPECT_EQ(unites.Nombre(), 3);
}

TEST(RemplitListe, InsertsAtTheGivenPlaceAndStoresRoundedNumbers) {
    Reglages r;
    ListeDeroulante liste;
    liste.Ajouter(q("ancien"));
    r.configuration.RemplitListe(francais, q("ListeUnites"), liste);
    EXPECT_EQ(Textes(liste), (QStringList{q("first"), q("psi"), q("bar")}));
    EXPECT_EQ(liste.Donnee(0), 7);
    EXPECT_EQ(liste.Donnee(1), 2);  // 2.5, half to even
    EXPECT_EQ(liste.Donnee(2), 10000);
    EXPECT_EQ(liste.Index(), -1);
}

TEST(RemplitListe, FindsTheListInAnyCaseAndWithBlanks) {
    Reglages r;
    ListeDeroulante liste;
    r.configuration.RemplitListe(q("FRANÇAIS"), q(" listeunites "), liste);
    EXPECT_EQ(liste.Nombre(), 3);
}

TEST(RemplitListe, MissingListOrLanguageLeavesTheBoxAsItWas) {
    Reglages r;
    ListeDeroulante liste;
    liste.Ajouter(q("ancien"));
    r.configuration.RemplitListe(francais, q("ListeNulle"), liste);
    r.configuration.RemplitListe(q("English"), q("ListeUnites"), liste);
    r.configuration.RemplitListe(q("Klingon"), q("ListeUnites"), liste);
    EXPECT_EQ(Textes(liste), QStringList{q("ancien")});
}

TEST(RemplitListe, IndexBeyondTheEntriesIsAFault) {
    Reglages r;
    ListeDeroulante liste;
    EXPECT_EQ(
        NumeroDeFaute([&] { r.configuration.RemplitListe(francais, q("ListeTemps"), liste); }),
        numero_faute::appelInvalide);
    r.Retoucher("<Texte>Sec</Texte><Index>1", "<Texte>Sec</Texte><Index>-1");
    EXPECT_EQ(
        NumeroDeFaute([&] { r.configuration.RemplitListe(francais, q("ListeTemps"), liste); }),
        numero_faute::appelInvalide);
}

TEST(LitEchelle, GivesTheLimitsOfTheLineWithThatIndex) {
    Reglages r;
    double mini = 5;
    double maxi = 6;
    r.configuration.LitEchelle(francais, 1, mini, maxi);
    EXPECT_EQ(mini, -1);
    EXPECT_EQ(maxi, 9.5);
    r.configuration.LitEchelle(francais, 0, mini, maxi);
    EXPECT_EQ(mini, 0);
    EXPECT_EQ(maxi, 16);
}

TEST(LitEchelle, IndexWithoutLineKeepsTheScaleInForce) {
    Reglages r;
    double mini = 5;
    double maxi = 6;
    r.configuration.LitEchelle(francais, 9, mini, maxi);
    r.configuration.LitEchelle(q("English"), 0, mini, maxi);
    EXPECT_EQ(mini, 5);
    EXPECT_EQ(maxi, 6);
}

TEST(LitEchelle, ComparesIndexesAsNumbers) {
    Reglages r;
    r.Retoucher("<Texte>-1 - 9</Texte><Index>1", "<Texte>-1 - 9</Texte><Index> 1.0");
    double mini = 5;
    double maxi = 6;
    r.configuration.LitEchelle(francais, 1, mini, maxi);
    EXPECT_EQ(maxi, 9.5);
}

}  // namespace
}  // namespace bornika::essai
