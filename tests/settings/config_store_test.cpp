#include "settings/config_store.h"

#include "settings/config_store_support.h"
#include "support/case_names.h"

namespace bornika::essai {
namespace {

TEST(LitConfig, EmptyElementGivesEmptyTextAndMissingElementNothing) {
    Reglages r;
    EXPECT_EQ(r.configuration.LitConfig(q("UniteImpulsion")), QString());
    ASSERT_TRUE(r.configuration.LitConfig(q("UniteImpulsion")).has_value());
    EXPECT_FALSE(r.configuration.LitConfig(q("Taille")).has_value());
    EXPECT_EQ(r.configuration.LitConfig(q("Langue")), francais);
}

TEST(LitConfig, PathsOfSettingsAreCaseSensitive) {
    Reglages r;
    EXPECT_FALSE(r.configuration.LitConfig(q("langue")).has_value());
}

TEST(LitConfig, OtherFileIsReadFromTheProgramsFolder) {
    Reglages r;
    r.Ecrire(q("autre.xml"), "<Configuration><Port>7</Port></Configuration>");
    EXPECT_EQ(r.configuration.LitConfig(q("Port"), q("autre.xml")), q("7"));
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q("COM1"));
}

TEST(LitConfig, NameThatIsNoPathIsAFault) {
    Reglages r;
    EXPECT_EQ(NumeroDeFaute([&] { r.configuration.LitConfig(q("[")); }),
              numero_faute::appelInvalide);
}

TEST(LitConfig, ChangeByHandIsSeenByTheNextOperation) {
    Reglages r;
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q("COM1"));
    r.Retoucher("COM1", "COM2");
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q("COM2"));
    EXPECT_EQ(r.configuration.LitMessage(francais, q("k-Pod Absent"), {}), q("k-Pod absent"));
    r.Retoucher("<Texte>k-Pod absent", "<Texte>parti");
    EXPECT_EQ(r.configuration.LitMessage(francais, q("k-Pod Absent"), {}), q("parti"));
}

TEST(Configuration, EveryOperationLoadsTheFileOnce) {
    Reglages r;
    Configuration& c = r.configuration;
    ListeDeroulante liste;
    double mini = 0;
    double maxi = 0;
    c.LitConfig(q("Langue"));
    c.EcritConfig(q("COM2"), q("Port"));
    c.LitSplash();
    c.EcritSplash(true);
    c.LitMaintenance();
    c.LitMessage(francais, q("k-Pod Absent"), {});
    c.LitMessage(francais, q("Inconnu"), {});
    c.RemplitListe(francais, q("ListeUnites"), liste);
    c.RemplitListeLangues(liste, francais);
    c.LitEchelle(francais, 0, mini, maxi);
    c.LitDureeSaisie(0);
    c.EcritDureeSaisie(0, 5);
    EXPECT_EQ(c.NombreChargements(), 12u);
}

TEST(EcritConfig, MissingKeyLeavesBytesAndTimeOfTheFile) {
    Reglages r;
    const QDateTime ancien = r.Vieillir();
    r.configuration.EcritConfig(q("4"), q("Taille"));
    EXPECT_EQ(r.Fichier(), PetiteConfiguration());
    EXPECT_EQ(r.Date(), ancien);
}

TEST(EcritConfig, ChangesThatOneTextAndKeepsEverythingElse) {
    Reglages r;
    r.configuration.EcritConfig(q("COM9"), q("Port"));
    QByteArray attendu = PetiteConfiguration().replace("COM1", "COM9");
    attendu.replace("<UniteImpulsion></UniteImpulsion>", "<UniteImpulsion/>");
    EXPECT_EQ(r.Fichier(), attendu);
}

TEST(EcritConfig, TextWithMarkupCharactersComesBack) {
    Reglages r;
    const QString texte = q("a<b & \"c\" é€");
    r.configuration.EcritConfig(texte, q("UniteImpulsion"));
    EXPECT_EQ(r.configuration.LitConfig(q("UniteImpulsion")), texte);
}

TEST(EcritConfig, SecondSaveChangesNothingMore) {
    Reglages r;
    r.configuration.EcritConfig(q("COM9"), q("Port"));
    const QByteArray apres = r.Fichier();
    r.configuration.EcritConfig(q("COM9"), q("Port"));
    EXPECT_EQ(r.Fichier(), apres);
}

TEST(EcritConfig, EmptyTextLeavesTheElement) {
    Reglages r;
    r.configuration.EcritConfig(QString(), q("Port"));
    ASSERT_TRUE(r.configuration.LitConfig(q("Port")).has_value());
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), QString());
}

struct CasBooleen {
    const char* texte;
    bool valeur;
};

void PrintTo(const CasBooleen& cas, std::ostream* sortie) {
    *sortie << '"' << cas.texte << '"';
}

class BooleenDuFichier : public testing::TestWithParam<CasBooleen> {};

TEST_P(BooleenDuFichier, OfTheTextInAnyCaseAndOfNumbers) {
    Reglages r;
    r.configuration.EcritConfig(q(GetParam().texte), q("Splash"));
    r.configuration.EcritConfig(q(GetParam().texte), q("Maintenance"));
    EXPECT_EQ(r.configuration.LitSplash(), GetParam().valeur);
    EXPECT_EQ(r.configuration.LitMaintenance(), GetParam().valeur);
}

INSTANTIATE_TEST_SUITE_P(Textes, BooleenDuFichier,
                         testing::Values(CasBooleen{"True", true}, CasBooleen{"tRUE", true},
                                         CasBooleen{" true ", true}, CasBooleen{"False", false},
                                         CasBooleen{"1", true}, CasBooleen{"-1", true},
                                         CasBooleen{"0", false}, CasBooleen{"0.5", true},
                                         CasBooleen{"", false}, CasBooleen{"oui", false},
                                         CasBooleen{"1x", false}),
                         nomDuCasImprime);

TEST(Splash, IsStoredAsAWordAndOnlyWhereItStands) {
    Reglages r;
    r.configuration.EcritSplash(false);
    EXPECT_TRUE(r.Fichier().contains("<Splash>False</Splash>"));
    EXPECT_FALSE(r.configuration.LitSplash());
    r.configuration.EcritSplash(true);
    EXPECT_TRUE(r.Fichier().contains("<Splash>True</Splash>"));
    r.Retoucher("<Splash>True</Splash>", "");
    const QByteArray sans = r.Fichier();
    EXPECT_FALSE(r.configuration.LitSplash());
    r.configuration.EcritSplash(true);
    EXPECT_EQ(r.Fichier(), sans);
}

TEST(DureeSaisie, IsStoredTenfoldInTheFirstLanguageOnly) {
    Reglages r;
    r.configuration.EcritDureeSaisie(5, 60);
    EXPECT_TRUE(r.Fichier().contains("<Index>5</Index><Valeur>600</Valeur>"));
    EXPECT_EQ(r.configuration.LitDureeSaisie(5), 60);
    r.configuration.EcritDureeSaisie(0, 90);
    EXPECT_EQ(r.configuration.LitDureeSaisie(0), 90);
    EXPECT_TRUE(r.Fichier().contains(
        "<Ligne><Texte>Free</Texte><Index>0</Index><Valeur>600</Valeur></Ligne>"));
}

TEST(DureeSaisie, RoundsTenthsHalfToEven) {
    Reglages r;
    EXPECT_EQ(r.configuration.LitDureeSaisie(1), 2);  // 15
    EXPECT_EQ(r.configuration.LitDureeSaisie(2), 2);  // 25
}

TEST(DureeSaisie, IndexWithoutLineGivesOneAndWritesNothing) {
    Reglages r;
    EXPECT_EQ(r.configuration.LitDureeSaisie(3), 1);
    const QDateTime ancien = r.Vieillir();
    r.configuration.EcritDureeSaisie(3, 60);
    EXPECT_EQ(r.Fichier(), PetiteConfiguration());
    EXPECT_EQ(r.Date(), ancien);
}

TEST(DureeSaisie, IndexIsMatchedAsATextAndInExactCase) {
    Reglages r;
    r.Retoucher("<Index>5</Index>", "<Index> 5</Index>");
    EXPECT_EQ(r.configuration.LitDureeSaisie(5), 1);
    Reglages s;
    s.Retoucher("<Listes>", "<LISTES>");
    s.Retoucher("</Listes>", "</LISTES>");
    EXPECT_EQ(s.configuration.LitDureeSaisie(5), 1);
}

TEST(DureeSaisie, DurationThatDoesNotFitTenfoldIsAFaultAndIsNotStored) {
    Reglages r;
    EXPECT_EQ(NumeroDeFaute([&] { r.configuration.EcritDureeSaisie(5, 300000000); }),
              numero_faute::depassement);
    EXPECT_EQ(r.Fichier(), PetiteConfiguration());
}

// --- Files that are no configuration.

struct CasMauvais {
    const char* nom;
    const char* contenu;
};

void PrintTo(const CasMauvais& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}

class FichierMauvais : public testing::TestWithParam<CasMauvais> {};

TEST_P(FichierMauvais, IsFault91OfEveryOperationAndIsNotTouched) {
    Reglages r;
    r.Ecrire(Reglages::nom(), GetParam().contenu);
    Configuration& c = r.configuration;
    ListeDeroulante liste;
    double mini = 0;
    double maxi = 0;
    const std::function<void()> operations[] = {
        [&] { c.LitConfig(q("Langue")); },
        [&] { c.EcritConfig(q("x"), q("Langue")); },
        [&] { c.LitSplash(); },
        [&] { c.EcritSplash(true); },
        [&] { c.LitMaintenance(); },
        [&] { c.LitMessage(francais, q("x"), {}); },
        [&] { c.RemplitListeLangues(liste, francais); },
        [&] { c.RemplitListe(francais, q("ListeUnites"), liste); },
        [&] { c.LitEchelle(francais, 0, mini, maxi); },
        [&] { c.LitDureeSaisie(0); },
        [&] { c.EcritDureeSaisie(0, 1); },
    };
    int numero = 0;
    for (const auto& operation : operations)
        EXPECT_EQ(NumeroDeFaute(operation), numero_faute::objetAbsent) << "operation " << numero++;
    EXPECT_EQ(r.Fichier(), GetParam().contenu);
}

INSTANTIATE_TEST_SUITE_P(
    Contenus, FichierMauvais,
    testing::Values(CasMauvais{"empty", ""}, CasMauvais{"no markup", "not XML at all"},
                    CasMauvais{"cut off", "<Configuration>"},
                    CasMauvais{"badly nested", "<Configuration><Langue></Configuration>"},
                    CasMauvais{"text behind", "<Configuration/>rest"},
                    CasMauvais{"two roots", "<Configuration/><Second/>"},
                    CasMauvais{"no root", "<!-- only a comment -->"},
                    CasMauvais{"byte order mark only", "\xEF\xBB\xBF"}),
    nomDuCasImprime);

TEST(FichierAbsent, IsFault91AndTheProgramGoesOnOnceItIsBack) {
    Reglages r;
    ASSERT_TRUE(QFile::remove(r.Chemin(Reglages::nom())));
    EXPECT_EQ(NumeroDeFaute([&] { r.configuration.LitConfig(q("Langue")); }),
              numero_faute::objetAbsent);
    EXPECT_FALSE(r.Fichiers().contains(Reglages::nom()));
    r.Ecrire(Reglages::nom(), PetiteConfiguration());
    EXPECT_EQ(r.configuration.LitConfig(q("Langue")), francais);
}

// --- Encodings and layout.

TEST(Codages, DeclaredLatin1IsReadAndWrittenBackInItsOwnBytes) {
    for (const char* nom : {"ISO-8859-1", "iso-8859-1", "Windows-1252", "windows-1252"}) {
        const QByteArray contenu = QByteArray("<?xml version=\"1.0\" encoding=\"") + nom +
                                   "\"?>\r\n<Configuration>\r\n <Langue>Fran\xE7"
                                   "ais</Langue>\r\n"
                                   " <Port>\xE9</Port>\r\n</Configuration>\r\n";
        Reglages r(contenu);
        EXPECT_EQ(r.configuration.LitConfig(q("Langue")), francais) << nom;
        r.configuration.EcritConfig(q("à"), q("Port"));
        EXPECT_EQ(r.Fichier(), QByteArray(contenu).replace("\xE9", "\xE0")) << nom;
    }
}

TEST(Codages, Windows1252HasTheEuroSign) {
    Reglages r(
        "<?xml version='1.0' encoding='windows-1252'?><Configuration><Port>\x80</Port>"
        "</Configuration>");
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q("€"));
}

TEST(Codages, Utf8MarkAtTheStartIsKept) {
    Reglages r(QByteArray("\xEF\xBB\xBF") + PetiteConfiguration());
    EXPECT_EQ(r.configuration.LitConfig(q("Langue")), francais);
    r.configuration.EcritConfig(q("COM3"), q("Port"));
    EXPECT_TRUE(r.Fichier().startsWith("\xEF\xBB\xBF<?xml"));
    EXPECT_FALSE(r.Fichier().startsWith("\xEF\xBB\xBF\xEF"));
}

TEST(Codages, Utf16IsReadAndStaysSo) {
    const QString texte = QString::fromUtf8(PetiteConfiguration()).replace(q("UTF-8"), q("UTF-16"));
    QByteArray octets("\xFF\xFE", 2);
    octets.append(reinterpret_cast<const char*>(texte.utf16()), texte.size() * 2);
    Reglages r(octets);
    EXPECT_EQ(r.configuration.LitConfig(q("Langue")), francais);
    r.configuration.EcritConfig(q("COM2"), q("Port"));
    QString attendu = texte;
    attendu.replace(q("COM1"), q("COM2"));
    attendu.replace(q("<UniteImpulsion></UniteImpulsion>"), q("<UniteImpulsion/>"));
    const QByteArray ecrits = r.Fichier();
    EXPECT_EQ(ecrits.first(2), QByteArray("\xFF\xFE", 2));
    EXPECT_EQ(QString::fromUtf16(reinterpret_cast<const char16_t*>(ecrits.constData()) + 1,
                                 ecrits.size() / 2 - 1),
              attendu);
    EXPECT_EQ(r.configuration.LitConfig(q("Langue")), francais);
}

TEST(Disposition, FileWithoutDeclarationGetsNone) {
    const QByteArray contenu = "<Configuration>\n\t<Port>1</Port>\n</Configuration>\n";
    Reglages r(contenu);
    r.configuration.EcritConfig(q("2"), q("Port"));
    EXPECT_EQ(r.Fichier(), QByteArray(contenu).replace(">1<", ">2<"));
}

TEST(Disposition, TextInSeveralPiecesIsJoinedAndNotTrimmed) {
    Reglages r("<Configuration><Port> a<!-- x --><![CDATA[<b>]]> </Port></Configuration>");
    EXPECT_EQ(r.configuration.LitConfig(q("Port")), q(" a<b> "));
    r.configuration.EcritConfig(q("c"), q("Port"));
    EXPECT_EQ(r.Fichier(), "<Configuration><Port>c</Port></Configuration>");
}

}  // namespace
}  // namespace bornika::essai
