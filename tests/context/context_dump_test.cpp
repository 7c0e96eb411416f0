#include "context/context_dump.h"

#include <gtest/gtest.h>

#include <QFile>
#include <algorithm>

#include "logger/logger_fixture.h"
#include "logger/parameter_reading.h"
#include "platform/fault.h"
#include "support/case_names.h"
#include "support/fault_number.h"

namespace bornika::essai {
namespace {

using simulateur::GenreAppel;
using simulateur::GenrePanne;

const QStringList echelles{QStringLiteral("0 - 16 bar"), QStringLiteral("0 - 1 bar"),
                           QStringLiteral("0 - 2.5 bar"), QStringLiteral("0 - 6 bar")};

void Poser(BlocContexte& bloc, int ou, std::initializer_list<int> octets) {
    for (const int octet : octets)
        bloc[static_cast<std::size_t>(ou++)] = static_cast<std::uint8_t>(octet);
}

/// A logger's context with another value in every field, and something in what has no name.
BlocContexte BlocGarni() {
    BlocContexte bloc{};
    for (std::size_t i = 0; i < bloc.size(); ++i)
        bloc[i] = static_cast<std::uint8_t>(i * 7);
    Poser(bloc, 1, {0xBE, 0xBA, 0xFE, 0xCA});
    Poser(bloc, 5, {0xAB, 0x00});
    Poser(bloc, 7, {0x00, 0xF1, 0x53, 0x65});
    Poser(bloc, 11, {3, 1});
    Poser(bloc, 13, {0x00, 0x00, 0x00, 0x00});
    Poser(bloc, 17, {150, 0});
    Poser(bloc, 19, {0x01, 0xF1, 0x53, 0x65});
    Poser(bloc, 23, {0x02, 0xF1, 0x53, 0x65});
    Poser(bloc, 27, {0x03, 0xF1, 0x53, 0x65});
    Poser(bloc, 31, {9});
    Poser(bloc, 32, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    Poser(bloc, 44, {0x96, 120, 0, 8, 0, 12, 0x00, 0x01, 0x00, 0x02, 1, 0x31});
    Poser(bloc, 56, {0xE8, 0x03, 59, 0, 0xFF, 0xFF, 0x10, 0x27, 4, 0xD2, 0x04, 2, 100, 0});
    Poser(bloc, 72, {0x84, 0x03});
    Poser(bloc, 76, {0x04, 0xF1, 0x53, 0x65, 0x18});
    Poser(bloc, 81, {' ', 'R', 0xE9, 's', 'e', 'a', 'u', ' ', 'n', 'o', 'r', 'd', ' ', ' '});
    Poser(bloc, 95, {0xFE, 0xFF, 0xFF, 0xFF});
    return bloc;
}

const QByteArray lignesDesChamps =
    "Ofs - 1 N\xB0 serie : 3405691582\r\n"
    "Ofs - 5 Tag : AB\r\n"
    "Ofs - 7 Date du dernier reset : 14/11/2023 22:13:20\r\n"
    "Ofs - 11 Nombre de reset : 259\r\n"
    "Ofs - 13 Date derni\xE8re mesure Batterie : 01/01/1970 00:00:00\r\n"
    "Ofs - 17 Tension Batterie (V) : 4.00\r\n"
    "Ofs - 19 Date de d\xE9marrage : 14/11/2023 22:13:21\r\n"
    "Ofs - 23 Date courante : 14/11/2023 22:13:22\r\n"
    "Ofs - 27 Date de mesure : 14/11/2023 22:13:23\r\n"
    "Ofs - 31 Nb de mesure : 9\r\n"
    "Ofs - 32 page ecriture : 513\r\n"
    "Ofs - 34 buffer ecriture : 1027\r\n"
    "Ofs - 36 page depart : 1541\r\n"
    "Ofs - 38 buffer depart : 2055\r\n"
    "Ofs - 40 page lecture : 2569\r\n"
    "Ofs - 42 buffer lecture : 3083\r\n"
    "Ofs - 44 Mode : 150\r\n"
    "Ofs - 45 Interval de stockage : 120\r\n"
    "Ofs - 47 Interval de mesure : 8\r\n"
    "Ofs - 49 nb mesures avant : 12\r\n"
    "Ofs - 50 seuil 1 : 256\r\n"
    "Ofs - 52 seuil 2 : 512\r\n"
    "Ofs - 54 etat trigger : 1\r\n"
    "Ofs - 55 echelle capteur : 0 - 6 bar\r\n"
    "Ofs - 56 temps ms : 1000\r\n"
    "Ofs - 58 temps s : 59\r\n"
    "Ofs - 60 duree stockage : 65535\r\n"
    "Ofs - 62 duree mesure : 10000\r\n"
    "Ofs - 64 etat : 4\r\n"
    "Ofs - 65 code pin : 1234\r\n"
    "Ofs - 67 Mode etalonnage : 2\r\n"
    "Ofs - 68 valeur etalonnage 1 : 100\r\n"
    "Ofs - 72 valeur etalonnage 2 : 900\r\n"
    "Ofs - 76 date etalonnage : 14/11/2023 22:13:24\r\n"
    "Ofs - 80 echelle capteur etalonnage : 0 - 2.5 bar\r\n"
    "Ofs - 81 commentaire :  R\xE9seau nord  \r\n"
    "Ofs - 95 Correction temps toutes les (s) : -2\r\n";

/// The raw lines, told another way than the program makes them.
QByteArray LignesBrutes(const BlocContexte& bloc) {
    QByteArray texte;
    for (std::size_t i = 0; i < bloc.size(); ++i) {
        if (i % 8 == 0) texte += QByteArray::number(static_cast<int>(i)) + ":";
        texte += " " + QByteArray::number(static_cast<int>(bloc[i]));
        if (i % 8 == 7) texte += "\r\n";
    }
    return texte;
}

QByteArray Texte(const BlocContexte& bloc) {
    return TexteContexte(bloc, echelles, Regional());
}

/// The value shown for the field at that offset.
std::string Valeur(const BlocContexte& bloc, int offset, const Regional& regional = {}) {
    for (const ChampContexte& champ : ChampsContexte())
        if (champ.offset == offset) return Clair(TexteChamp(bloc, champ, echelles, regional));
    return "no such field";
}

}  // namespace

TEST(TexteContexte, IsRawLinesAnEmptyLineTheFieldsInOrderAndAnEmptyLine) {
    const BlocContexte bloc = BlocGarni();
    EXPECT_EQ(Texte(bloc).toStdString(),
              (LignesBrutes(bloc) + "\r\n" + lignesDesChamps + "\r\n").toStdString());
}

TEST(TexteContexte, HasARawLineForEachEightBytes) {
    BlocContexte bloc{};
    Poser(bloc, 0, {0, 1, 22, 255, 4, 5, 6, 7, 8});
    const QList<QByteArray> lignes = Texte(bloc).split('\n');
    ASSERT_EQ(lignes.size(), 128 + 1 + 37 + 1 + 1);
    EXPECT_EQ(lignes[0].toStdString(), "0: 0 1 22 255 4 5 6 7\r");
    EXPECT_EQ(lignes[1].toStdString(), "8: 8 0 0 0 0 0 0 0\r");
    EXPECT_EQ(lignes[127].toStdString(), "1016: 0 0 0 0 0 0 0 0\r");
    EXPECT_EQ(lignes[128].toStdString(), "\r");
    EXPECT_EQ(lignes[129].toStdString(), "Ofs - 1 N\xB0 serie : 83826177\r");
    EXPECT_EQ(lignes[166].toStdString(), "\r");
    EXPECT_TRUE(lignes[167].isEmpty());
}

TEST(TexteContexte, NamesNothingThatHasNoName) {
    for (const int offset : {0, 70, 74, 99, 112, 116, 117, 125, 129})
        EXPECT_EQ(Valeur({}, offset), "no such field") << offset;
    EXPECT_FALSE(Texte({}).contains("Ofs - 0 "));
    EXPECT_FALSE(Texte({}).contains("Ofs - 112 "));
}

TEST(TexteContexte, HoldsTheRawLinesBeforeAnyFieldWhateverTheFieldsAre) {
    BlocContexte bloc;
    bloc.fill(255);
    const QByteArray texte = Texte(bloc);
    EXPECT_TRUE(texte.startsWith(LignesBrutes(bloc)));
    EXPECT_EQ(texte.indexOf("Ofs - "), LignesBrutes(bloc).size() + 2);
    EXPECT_EQ(texte.count("Ofs - "), 37);
}

TEST(ChampContexte, OfTwoOrFourBytesHasItsLowByteFirst) {
    BlocContexte bloc{};
    Poser(bloc, 11, {1, 2});
    Poser(bloc, 1, {1, 2, 3, 4});
    EXPECT_EQ(Valeur(bloc, 11), "513");
    EXPECT_EQ(Valeur(bloc, 1), "67305985");
}

TEST(ChampContexte, TheSerialNumberIsUnsigned) {
    BlocContexte bloc{};
    Poser(bloc, 1, {255, 255, 255, 255});
    EXPECT_EQ(Valeur(bloc, 1), "4294967295");
}

TEST(ChampContexte, TheMarkerIsHexadecimalInCapitalsWithoutLeadingZeros) {
    BlocContexte bloc{};
    EXPECT_EQ(Valeur(bloc, 5), "0");
    Poser(bloc, 5, {0xAB, 0});
    EXPECT_EQ(Valeur(bloc, 5), "AB");
    Poser(bloc, 5, {0xEF, 0x0D});
    EXPECT_EQ(Valeur(bloc, 5), "DEF");
}

TEST(ChampContexte, TheBatteryIsShownInVoltsWithTheLocalesSeparator) {
    BlocContexte bloc{};
    EXPECT_EQ(Valeur(bloc, 17), ".00");
    Poser(bloc, 17, {150, 0});
    EXPECT_EQ(Valeur(bloc, 17), "4.00");
    EXPECT_EQ(Valeur(bloc, 17, {.separateur = QStringLiteral(",")}), "4,00");
    Poser(bloc, 17, {255, 255});
    EXPECT_EQ(Valeur(bloc, 17), "1747.60");
}

TEST(ChampContexte, ADateThatWasNeverSetIsTheFirstOfJanuary1970) {
    for (const int offset : {7, 13, 19, 23, 27, 76})
        EXPECT_EQ(Valeur({}, offset), "01/01/1970 00:00:00") << offset;
}

TEST(ChampContexte, ADateFollowsTheLocaleAndGoesBeyond2038) {
    BlocContexte bloc{};
    Poser(bloc, 7, {255, 255, 255, 255});
    EXPECT_EQ(Valeur(bloc, 7), "07/02/2106 06:28:15");
    EXPECT_EQ(Valeur(bloc, 7, {.dateCourte = QStringLiteral("M/d/yyyy")}), "2/7/2106 06:28:15");
}

TEST(ChampContexte, TheScaleIsTheEntryOfTheHighHalfRoundedHalfToEven) {
    const struct {
        int octet;
        const char* texte;
    } cas[] = {{0x00, "0 - 16 bar"},
               {0x08, "0 - 16 bar"},
               {0x09, "0 - 1 bar"},
               {0x17, "0 - 1 bar"},
               {0x18, "0 - 2.5 bar"},
               {0x28, "0 - 2.5 bar"},
               {0x29, "0 - 6 bar"},
               {0x31, "0 - 6 bar"},
               {0x40, ""},
               {0xFF, ""}};
    for (const auto& c : cas)
        for (const int offset : {55, 80}) {
            BlocContexte bloc{};
            Poser(bloc, offset, {c.octet});
            EXPECT_EQ(Valeur(bloc, offset), c.texte) << c.octet;
        }
}

TEST(ChampContexte, TheCorrectionIsSigned) {
    BlocContexte bloc;
    bloc.fill(255);
    EXPECT_EQ(Valeur(bloc, 95), "-1");
    Poser(bloc, 95, {255, 255, 255, 127});
    EXPECT_EQ(Valeur(bloc, 95), "2147483647");
    Poser(bloc, 95, {0, 0, 0, 128});
    EXPECT_EQ(Valeur(bloc, 95), "-2147483648");
}

TEST(ChampContexte, ACommentIsWrittenByteByByteWhateverItHolds) {
    BlocContexte bloc{};
    Poser(bloc, 81, {'a', 0, 0x80, 0x81, 0x9D, 0xE9, 10, 13, 255, ';', 1, 127, 'z', ' '});
    EXPECT_TRUE(Texte(bloc).contains(QByteArray(
        "Ofs - 81 commentaire : a\0\x80\x81\x9D\xE9\n\r\xFF;\x01\x7Fz \r\nOfs - 95", 47)));
}

TEST(ChampContexte, BeyondTheBlockIsASubscriptFault) {
    EXPECT_THROW(ValeurChamp({}, {1022, 4, u"x"}), FauteExecution);
    EXPECT_THROW(ValeurChamp({}, {-1, 1, u"x"}), FauteExecution);
    EXPECT_NO_THROW(ValeurChamp({}, {1022, 2, u"x"}));
}

namespace {

class DumpDuContexte : public SurFormulaire {
  protected:
    void SetUp() override {
        const BlocContexte bloc = BlocGarni();
        for (int i = 0; i < tailleContexte; ++i)
            enregistreur.memoire.EcrireOctet(i, bloc[static_cast<std::size_t>(i)]);
    }

    /// What the operator types in the dialog.
    void Choisir(const QString& nom) {
        banc.etabli.dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(nom));
    }
    std::string Fichier(const QString& nom = QStringLiteral("dump.txt")) const {
        return banc.etabli.Lire(nom).toStdString();
    }
    std::string Attendu() const {
        const BlocContexte bloc = BlocGarni();
        return (LignesBrutes(bloc) + "\r\n" + lignesDesChamps + "\r\n").toStdString();
    }
    int Lectures() const {
        return static_cast<int>(std::ranges::count_if(
            banc.bus.Appels(), [](const auto& appel) { return appel.genre == GenreAppel::lire; }));
    }
    std::size_t Boites() const { return banc.etabli.dialogues.Boites().size(); }
    std::size_t Demandes() const { return banc.etabli.dialogues.demandes.size(); }
};

}  // namespace

TEST_F(DumpDuContexte, WritesTheWholeContextToTheChosenFile) {
    Choisir(QStringLiteral("dump.txt"));
    DumpContexte(banc.poste);
    EXPECT_EQ(Fichier(), Attendu());
    EXPECT_EQ(Boites(), 0U);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpDuContexte, ReadsPieceByPieceOverALinkOpenedForEach) {
    Choisir(QStringLiteral("dump.txt"));
    DumpContexte(banc.poste);
    const auto trames = enregistreur.journal.DeCode(29);
    ASSERT_EQ(trames.size(), 128U);
    EXPECT_EQ(enregistreur.journal.Total(), 128);
    for (int k = 0; k < 128; ++k)
        EXPECT_EQ(trames[static_cast<std::size_t>(k)],
                  (std::vector<std::uint8_t>{29, static_cast<std::uint8_t>(k * 8 / 256),
                                             static_cast<std::uint8_t>(k * 8 % 256), 32, 32, 32, 32,
                                             32}));
    // Two handles, opened and closed.
    EXPECT_EQ(enregistreur.lien.size(), 128U * 4);
}

TEST_F(DumpDuContexte, AsksForTheFileAfterTheReading) {
    banc.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    DumpContexte(banc.poste);
    ASSERT_EQ(Demandes(), 1U);
    const DemandeFichier& demande = banc.etabli.dialogues.demandes.front();
    EXPECT_EQ(Clair(demande.nom), "Contexte.txt");
    EXPECT_EQ(Clair(demande.suffixe), "*.txt");
    EXPECT_EQ(Clair(demande.filtre), "Prg (*.txt|*.txt");
    EXPECT_EQ(Clair(demande.dossier), Clair(banc.etabli.systeme.dossier));
    EXPECT_EQ(enregistreur.journal.Total(), 128);
}

TEST_F(DumpDuContexte, WritesNothingWhenItIsCancelledOrHasNoName) {
    banc.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    const QStringList avant = banc.etabli.Fichiers();
    DumpContexte(banc.poste);
    banc.etabli.dialogues.AnnoncerEnregistrement(QString());
    DumpContexte(banc.poste);
    EXPECT_EQ(Demandes(), 2U);
    EXPECT_EQ(banc.etabli.Fichiers(), avant);
    EXPECT_EQ(Boites(), 0U);
}

TEST_F(DumpDuContexte, ReplacesAFileOfThatName) {
    banc.etabli.Ecrire(QStringLiteral("dump.txt"), QByteArray(20000, 'x'));
    const QStringList avant = banc.etabli.Fichiers();
    Choisir(QStringLiteral("dump.txt"));
    DumpContexte(banc.poste);
    EXPECT_EQ(Fichier(), Attendu());
    EXPECT_EQ(banc.etabli.Fichiers(), avant);
}

TEST_F(DumpDuContexte, TakesTheScalesOfTheFormAndTheLocalesSeparator) {
    banc.ReglerSeparateur(QStringLiteral(","));
    ui.ListeEchelles->Vider();
    Choisir(QStringLiteral("dump.txt"));
    DumpContexte(banc.poste);
    EXPECT_NE(Fichier().find("Ofs - 55 echelle capteur : \r\n"), std::string::npos);
    EXPECT_NE(Fichier().find("(V) : 4,00\r\n"), std::string::npos);
}

TEST_F(DumpDuContexte, ThatAFullDiskKeepsFromBeingWrittenIsToldAndTheProgramGoesOn) {
    ASSERT_TRUE(
        QFile::link(QStringLiteral("/dev/full"), banc.etabli.Chemin(QStringLiteral("dump.txt"))));
    Choisir(QStringLiteral("dump.txt"));
    DumpContexte(banc.poste);
    ASSERT_EQ(Boites(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites().front();
    EXPECT_EQ(boite.icone, Icone::Critique);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(Clair(boite.titre), "k-Pod");
    EXPECT_EQ(Clair(boite.texte), "dump.txt : Disk full");
    // The next one has another place.
    Choisir(QStringLiteral("autre.txt"));
    DumpContexte(banc.poste);
    EXPECT_EQ(Fichier(QStringLiteral("autre.txt")), Attendu());
}

TEST_F(DumpDuContexte, IsAFaultInAFolderThatIsGone) {
    Choisir(QStringLiteral("absent/dump.txt"));
    EXPECT_EQ(essai::NumeroDeFaute([&] { DumpContexte(banc.poste); }),
              numero_faute::cheminIntrouvable);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpDuContexte, WithAFailureStandingEndsSilentlyAfterOneFrame) {
    ecran.etat.TimeOut = true;
    DumpContexte(banc.poste);
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(enregistreur.lien.size(), 4U);
    EXPECT_EQ(Lectures(), 0);
    EXPECT_EQ(Boites(), 0U);
    EXPECT_EQ(Demandes(), 0U);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpDuContexte, ReachesTheLoggerAgainAfterTheNextReading) {
    enregistreur.pannes.Ordonner({.code = 29, .genre = GenrePanne::silence, .occurrence = 5});
    DumpContexte(banc.poste);
    DumpContexte(banc.poste);
    EXPECT_EQ(Demandes(), 0U);
    EXPECT_EQ(Boites(), 1U);
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Mode étalonnage en cours"));
    Lire_Parametres(banc.poste);
    Choisir(QStringLiteral("dump.txt"));
    DumpContexte(banc.poste);
    EXPECT_EQ(Fichier(), Attendu());
}

TEST_F(DumpDuContexte, WithoutAChosenLoggerSaysSoAndAsksForNoFile) {
    ecran.etat.UsbID = 0;
    DumpContexte(banc.poste);
    ASSERT_EQ(Boites(), 1U);
    EXPECT_EQ(Clair(banc.etabli.dialogues.Boites().front().texte), "k-Pod absent");
    EXPECT_EQ(Demandes(), 0U);
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_TRUE(ecran.etat.TimeOut);
}

namespace {

/// One dump after the other on one form, each with its fault at another piece.
struct PanneAChaqueMorceau : DumpDuContexte, testing::WithParamInterface<GenrePanne> {
    static constexpr int morceaux = 128;
    static constexpr int recus = 3;

    void Vider(int morceau) {
        ecran.etat.TimeOut = false;
        banc.bus.Rebrancher(enregistreur.identite.usb);
        enregistreur.pannes.Annuler();
        enregistreur.pannes.Ordonner(
            {.code = 29, .genre = GetParam(), .occurrence = morceau, .parametre = recus});
        enregistreur.journal.Vider();
        banc.etabli.dialogues.OublierBoites();
        DumpContexte(banc.poste);
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
        EXPECT_TRUE(banc.etabli.fautes.empty());
    }
    /// The file that comes of a logger whose one piece is wrong.
    std::string AvecMorceau(int morceau) const {
        BlocContexte bloc = BlocGarni();
        for (std::size_t rang = 0; rang < 8; ++rang) {
            std::uint8_t& octet = bloc[static_cast<std::size_t>(morceau - 1) * 8 + rang];
            if (GetParam() == GenrePanne::reponseCourte && rang >= recus) octet = 0;
            if (GetParam() == GenrePanne::mauvaisEcho && rang == 0) octet ^= 0x55;
            if (GetParam() == GenrePanne::bruit)
                octet ^= static_cast<std::uint8_t>(0xA5 + 37 * rang);
        }
        QStringList textes;
        for (int i = 0; i < ui.ListeEchelles->Nombre(); ++i)
            textes << ui.ListeEchelles->TexteA(i);
        return TexteContexte(bloc, textes, Regional()).toStdString();
    }
};

struct MorceauPerdu : PanneAChaqueMorceau {};
struct MorceauAutre : PanneAChaqueMorceau {};

}  // namespace

TEST_P(MorceauPerdu, EndsItWithTheTextAndWithoutAFile) {
    const QStringList avant = banc.etabli.Fichiers();
    for (int morceau = 1; morceau <= morceaux; ++morceau) {
        SCOPED_TRACE(morceau);
        Vider(morceau);
        ASSERT_EQ(Boites(), 1U);
        const auto& boite = banc.etabli.dialogues.Boites().front();
        EXPECT_EQ(Clair(boite.texte), "k-Pod absent");
        EXPECT_EQ(Clair(boite.titre), "");
        EXPECT_EQ(boite.icone, Icone::Aucune);
        EXPECT_EQ(enregistreur.journal.Total(), morceau);
        EXPECT_TRUE(ecran.etat.TimeOut);
    }
    EXPECT_EQ(Demandes(), 0U);
    EXPECT_EQ(banc.etabli.Fichiers(), avant);
}

TEST_P(MorceauAutre, IsWrittenAsItCameAndWhatDidNotComeIsZero) {
    for (int morceau = 1; morceau <= morceaux; ++morceau) {
        SCOPED_TRACE(morceau);
        Choisir(QStringLiteral("dump.txt"));
        Vider(morceau);
        EXPECT_EQ(Fichier(), AvecMorceau(morceau));
        EXPECT_EQ(Boites(), 0U);
        EXPECT_EQ(enregistreur.journal.Total(), morceaux);
        EXPECT_FALSE(ecran.etat.TimeOut);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, MorceauPerdu,
                         testing::Values(GenrePanne::silence, GenrePanne::reponsePerdue,
                                         GenrePanne::debranchement),
                         nomDuCasPanne);
INSTANTIATE_TEST_SUITE_P(Kinds, MorceauAutre,
                         testing::Values(GenrePanne::reponseCourte, GenrePanne::mauvaisEcho,
                                         GenrePanne::bruit),
                         nomDuCasPanne);

}  // namespace bornika::essai
