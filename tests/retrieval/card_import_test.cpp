#include "retrieval/card_import.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "platform/guard.h"
#include "retrieval/retrieval_fixture.h"
#include "shell/family_rule.h"
#include "simulator/card_files.h"
#include "simulator/device_time.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika::essai {
using simulateur::GenrePanne;

namespace {

const QChar nul = u'\0';

QString Texte(const char* texte) {
    return QString::fromUtf8(texte);
}

/// A folder that plays the card.
struct Carte {
    QString Chemin(const char* nom) const { return dossier.filePath(Texte(nom)); }
    QString Poser(const char* nom, const QByteArray& contenu) const {
        QFile fichier(Chemin(nom));
        if (!fichier.open(QIODevice::WriteOnly)) qFatal("cannot write a test file");
        fichier.write(contenu);
        return Chemin(nom);
    }
    /// What the dialog gives for several files.
    QString Plusieurs(const QStringList& noms) const {
        return dossier.path() + nul + noms.join(nul);
    }

    QTemporaryDir dossier;
};

std::uint32_t Maintenant() {
    return simulateur::TempsAppareil(2026, 3, 5, 14, 7, 9);
}

/// The main form on a logger of the card family, with its button tied to the import.
struct BancCarte : BancLecture {
    explicit BancCarte(simulateur::PtrEnregistreur prepare = simulateur::KPod33(Maintenant()))
        : BancLecture(std::move(prepare)) {
        ecran.etat.TypekPod = 20;
        AppliqueFamille(ecran);
        brancher(ui.LireSD, &QPushButton::clicked, &ecran, [this] { LireSD(poste, acces); });
    }
    /// A real click; the dialog answers with `choix`, or is cancelled.
    void Importer(const std::optional<QString>& choix = {}) {
        etabli.dialogues.AnnoncerOuverture(choix);
        Cliquer(ui.LireSD);
    }
    QStringList Enregistrements() const { return etabli.Fichiers().filter(Texte("2026-")); }
    const std::vector<DialoguesNotes::Boite_>& Boites() const { return etabli.dialogues.Boites(); }

    Carte carte;
    AccesTrace acces{ecran};
};

struct Faute {
    int numero = 0;
    std::string texte;
};

Faute FauteDe(const QStringList& sources, const QString& cible) {
    try {
        JoindreFichiers(sources, cible);
    } catch (const FauteExecution& faute) {
        return {faute.numero(), Clair(faute.texte())};
    }
    return {};
}

QByteArray Contenu(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("missing");
}

QStringList Restes(const QString& dossier) {
    return QDir(dossier).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

}  // namespace

TEST(PickedFiles, AStarStandsForACancelledDialog) {
    EXPECT_TRUE(EstSansChoix(Texte("*.txt")));
    EXPECT_TRUE(EstSansChoix(Texte("/card/A*B.TXT")));
    EXPECT_FALSE(EstSansChoix(Texte("/card/LOG00001.TXT")));
}

TEST(PickedFiles, TheLogOfStartsIsKnownByItsNameInAnyCaseAndPlace) {
    EXPECT_TRUE(NommeJournalDemarrage(Texte("/card/STARTLOG.TXT")));
    EXPECT_TRUE(NommeJournalDemarrage(Texte("/card/startlog.txt")));
    EXPECT_TRUE(NommeJournalDemarrage(Texte("/card/old StartLog 2.txt")));
    EXPECT_TRUE(NommeJournalDemarrage(Texte("/startlog/LOG00001.TXT")));
    EXPECT_TRUE(NommeJournalDemarrage(Texte("/card") + nul + Texte("LOG00001.TXT") + nul +
                                      Texte("STARTLOG.TXT")));
    EXPECT_FALSE(NommeJournalDemarrage(Texte("/card/START_LOG.TXT")));
}

TEST(PickedFiles, OnePathIsItself) {
    EXPECT_EQ(FichiersChoisis(Texte("/card/LOG.TXT")), QStringList{"/card/LOG.TXT"});
}

TEST(PickedFiles, SeveralNamesAreJoinedToTheirFolderInTheOrderOfTheDialog) {
    EXPECT_EQ(FichiersChoisis(Texte("/card") + nul + Texte("B.TXT") + nul + Texte("A.TXT")),
              (QStringList{"/card/B.TXT", "/card/A.TXT"}));
}

TEST(NewRecording, IsNamedAfterDateAndTimeInTwoDigitsEach) {
    QTemporaryDir dossier;
    EXPECT_EQ(NomEnregistrementLibre(dossier.path(), QDateTime(QDate(2026, 3, 5), QTime(4, 7, 9))),
              Texte("2026-03-05-04-07-09.txt"));
}

TEST(NewRecording, TakesTheNextSecondsRatherThanTheNameOfARecordingThatIsThere) {
    Carte dossier;
    dossier.Poser("2026-12-31-23-59-58.txt", "mine");
    dossier.Poser("2026-12-31-23-59-59.txt", "mine too");
    const QDateTime instant(QDate(2026, 12, 31), QTime(23, 59, 58));
    EXPECT_EQ(NomEnregistrementLibre(dossier.dossier.path(), instant),
              Texte("2027-01-01-00-00-00.txt"));
}

TEST(Joining, IsByteExactWithoutSeparatorInTheOrderGiven) {
    Carte carte;
    // Every byte, a NUL, an old end-of-file mark and lone line ends in it, and no line end last.
    QByteArray tous;
    for (int i = 0; i < 256; ++i)
        tous += static_cast<char>(i);
    const QString b = carte.Poser("B.TXT", tous + "\r\n\n\r" + tous);
    const QString a = carte.Poser("A.TXT", "Temps;x\nno end");
    JoindreFichiers({b, a, b}, carte.Chemin("out.txt"));
    const QByteArray premier = tous + "\r\n\n\r" + tous;
    EXPECT_EQ(Contenu(carte.Chemin("out.txt")), premier + "Temps;x\nno end" + premier);
}

TEST(Joining, OfOneFileIsACopy) {
    Carte carte;
    // Longer than what is read at once.
    const QByteArray long_ = QByteArray(3'000'000, 'x') + "\xE9nd";
    JoindreFichiers({carte.Poser("A.TXT", long_)}, carte.Chemin("out.txt"));
    EXPECT_TRUE(Contenu(carte.Chemin("out.txt")) == long_);
}

TEST(Joining, AnEmptyFileAddsNothing) {
    Carte carte;
    const QString vide = carte.Poser("EMPTY.TXT", "");
    const QString a = carte.Poser("A.TXT", "a");
    JoindreFichiers({vide, a, vide}, carte.Chemin("out.txt"));
    EXPECT_EQ(Contenu(carte.Chemin("out.txt")), "a");
    JoindreFichiers({vide}, carte.Chemin("empty.txt"));
    EXPECT_EQ(Contenu(carte.Chemin("empty.txt")), "");
}

TEST(Joining, AMissingFileIsAFaultWithItsNameAndLeavesNoHalfRecording) {
    Carte carte;
    QTemporaryDir dossier;
    const QString a = carte.Poser("A.TXT", "a");
    const Faute faute = FauteDe({a, carte.Chemin("GONE.TXT")}, dossier.filePath(Texte("out.txt")));
    EXPECT_EQ(faute.numero, numero_faute::fichierIntrouvable);
    EXPECT_EQ(faute.texte, "GONE.TXT : File not found");
    EXPECT_EQ(Restes(dossier.path()), QStringList());
    EXPECT_EQ(Contenu(a), "a");
}

TEST(Joining, AFolderCannotBeRead) {
    Carte carte;
    QTemporaryDir dossier;
    ASSERT_TRUE(QDir(carte.dossier.path()).mkdir(Texte("DIR.TXT")));
    const Faute faute = FauteDe({carte.Chemin("DIR.TXT")}, dossier.filePath(Texte("out.txt")));
    EXPECT_EQ(faute.numero, numero_faute::accesRefuse);
    EXPECT_EQ(faute.texte, "DIR.TXT : Permission denied");
    EXPECT_EQ(Restes(dossier.path()), QStringList());
}

TEST(Joining, ACardThatFailsInTheMiddleIsAFaultAndLeavesNoHalfRecording) {
    Carte carte;
    QTemporaryDir dossier;
    // It opens, and its first byte cannot be read.
    const Faute faute = FauteDe({carte.Poser("A.TXT", "a"), Texte("/proc/self/mem")},
                                dossier.filePath(Texte("out.txt")));
    EXPECT_EQ(faute.numero, numero_faute::accesRefuse);
    EXPECT_EQ(faute.texte, "mem : Permission denied");
    EXPECT_EQ(Restes(dossier.path()), QStringList());
}

TEST(Joining, ARecordingThatCannotBeWrittenWholeIsAFaultWithItsNameAndLeavesNothing) {
    std::signal(SIGXFSZ, SIG_IGN);
    Carte carte;
    QTemporaryDir dossier;
    const QString a = carte.Poser("A.TXT", QByteArray(1000, 'a'));
    rlimit avant{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &avant), 0);
    const rlimit etroite{1500, avant.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &etroite), 0);
    const Faute faute = FauteDe({a, a}, dossier.filePath(Texte("out.txt")));
    setrlimit(RLIMIT_FSIZE, &avant);
    EXPECT_EQ(faute.numero, numero_faute::accesRefuse);
    EXPECT_EQ(faute.texte, "out.txt : Permission denied");
    EXPECT_EQ(Restes(dossier.path()), QStringList());
}

TEST(Joining, AFolderThatIsNotThereIsAFault) {
    Carte carte;
    const Faute faute =
        FauteDe({carte.Poser("A.TXT", "a")}, carte.Chemin("absent/2026-03-05-14-07-09.txt"));
    EXPECT_EQ(faute.numero, numero_faute::cheminIntrouvable);
}

TEST(CardImport, AsksForSeveralTextFilesStartingInTheProgramsFolder) {
    BancCarte banc;
    banc.Importer();
    ASSERT_EQ(banc.etabli.dialogues.demandes.size(), 1U);
    const DemandeFichier& demande = banc.etabli.dialogues.demandes.front();
    EXPECT_EQ(demande.nom, Texte("*.txt"));
    EXPECT_EQ(demande.suffixe, Texte("*.txt"));
    EXPECT_EQ(demande.filtre, Texte("(*.txt)|*.txt"));
    EXPECT_EQ(demande.dossier, banc.etabli.systeme.dossier);
    EXPECT_TRUE(demande.plusieurs);
}

TEST(CardImport, JoinsThePickedFilesAndShowsTheirCurve) {
    BancCarte banc;
    const QByteArray un = "Temps;D;V;Pression;bar;comptage;M3/sec.\r\n1000;a;64;1.5;;0;\r\n";
    const QByteArray deux = "Temps;D;V;Pression;bar;comptage;M3/sec.\r\n2000;b;65;2.5;;0;\r\n";
    banc.carte.Poser("A.TXT", un);
    banc.carte.Poser("B.TXT", deux);
    banc.Importer(banc.carte.Plusieurs({"B.TXT", "A.TXT"}));
    EXPECT_EQ(banc.Mesures(), deux + un) << "both headers, the second one in mid-file";

    Trace* trace = banc.acces.Presente();
    ASSERT_NE(trace, nullptr);
    EXPECT_TRUE(trace->isVisible());
    EXPECT_EQ(Clair(trace->NomDialogue), "2026-03-05-14-07-09.txt");
    EXPECT_EQ(trace->NomFichierCourant, banc.etabli.Chemin(Texte("2026-03-05-14-07-09.txt")));
    const auto y = trace->modele.Serie(0).Y();
    EXPECT_EQ(std::vector<double>(y.begin(), y.end()), (std::vector<double>{2.5, 1.5}));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(CardImport, SaysWhereTheValuesAreStored) {
    BancCarte banc;
    banc.Importer(banc.carte.Poser("A.TXT", "x"));
    ASSERT_EQ(banc.Boites().size(), 1U);
    EXPECT_EQ(banc.Boites()[0].icone, Icone::Information);
    EXPECT_EQ(banc.Boites()[0].boutons, Boutons::Ok);
    EXPECT_EQ(banc.Boites()[0].titre, Texte("k-Pod"));
    EXPECT_EQ(Clair(banc.Boites()[0].texte), "Values stored in file 2026-03-05-14-07-09.txt");
}

TEST(CardImport, TheFormsCaptionIsThePathOfOneFileOrTheFolderOfSeveral) {
    BancCarte banc;
    const QString a = banc.carte.Poser("A.TXT", "x\r\n");
    banc.carte.Poser("B.TXT", "y\r\n");
    banc.Importer(a);
    EXPECT_EQ(banc.ecran.windowTitle(), a);
    banc.Importer(banc.carte.Plusieurs({"A.TXT", "B.TXT"}));
    EXPECT_EQ(banc.ecran.windowTitle(), banc.carte.dossier.path());
}

TEST(CardImport, LeavesTheNameOfTheLastDownloadAndMakesNoErrorFileItself) {
    BancCarte banc;
    banc.ecran.etat.Nom_Fichier = Texte("2025-01-02-03-04-05");
    QStringList pendant;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { pendant = banc.Enregistrements(); };
    banc.Importer(banc.carte.Poser("A.TXT", "Temps;D;V;P;bar;c;u\r\n1000;a;64;1.5;;0;\r\n"));
    EXPECT_EQ(banc.ecran.etat.Nom_Fichier, Texte("2025-01-02-03-04-05"));
    EXPECT_EQ(pendant, QStringList{"2026-03-05-14-07-09.txt"});
    // The viewer leaves an empty one when it reads.
    EXPECT_EQ(banc.Enregistrements(),
              (QStringList{"2026-03-05-14-07-09.err", "2026-03-05-14-07-09.txt"}));
    EXPECT_EQ(banc.Rejets(), "");
}

TEST(CardImport, LeavesTheCardAsItWas) {
    BancCarte banc;
    const QString a = banc.carte.Poser("A.TXT", "Temps;D;V;P;bar;c;u\r\n1000;a;64;1.5;;0;\r\n");
    banc.Importer(a);
    EXPECT_EQ(Restes(banc.carte.dossier.path()), QStringList{"A.TXT"});
}

TEST(CardImport, ASecondOneInTheSameSecondLeavesTheFirstRecordingAlone) {
    BancCarte banc;
    banc.Importer(banc.carte.Poser("A.TXT", "first\r\n"));
    banc.Importer(banc.carte.Poser("B.TXT", "second\r\n"));
    EXPECT_EQ(banc.Mesures(), "first\r\n");
    EXPECT_EQ(banc.etabli.Lire(Texte("2026-03-05-14-07-10.txt")), "second\r\n");
    EXPECT_EQ(Clair(banc.acces.Presente()->NomDialogue), "2026-03-05-14-07-10.txt");
}

TEST(CardImport, IsNamedAfterTheMomentAtWhichTheFilesWereChosen) {
    BancCarte banc;
    banc.etabli.dialogues.pendantDemande = [&](const auto&) {
        banc.etabli.horloge.instant = banc.etabli.horloge.instant.addSecs(3600);
    };
    banc.Importer(banc.carte.Poser("A.TXT", "x"));
    EXPECT_EQ(banc.Enregistrements().last(), Texte("2026-03-05-15-07-09.txt"));
}

TEST(CardImport, CancelledItMakesAndChangesNothing) {
    BancCarte banc;
    const QString titre = banc.ecran.windowTitle();
    banc.Importer();
    EXPECT_EQ(banc.Enregistrements(), QStringList());
    EXPECT_EQ(banc.ecran.windowTitle(), titre);
    EXPECT_TRUE(banc.Boites().empty());
    EXPECT_EQ(banc.acces.Presente(), nullptr);
    // A file whose name has a star is taken for a cancel.
    banc.Importer(banc.carte.Poser("A*.TXT", "x"));
    EXPECT_EQ(banc.Enregistrements(), QStringList());
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(CardImport, StopsWithoutAWordAtTheLogOfStarts) {
    BancCarte banc;
    banc.carte.Poser("A.TXT", "x");
    banc.carte.Poser("StartLog.txt", "x");
    for (const QString& choix :
         {banc.carte.Chemin("StartLog.txt"), banc.carte.Plusieurs({"A.TXT", "StartLog.txt"})})
        banc.Importer(choix);
    EXPECT_EQ(banc.etabli.dialogues.demandes.size(), 2U);
    EXPECT_EQ(banc.Enregistrements(), QStringList());
    EXPECT_TRUE(banc.Boites().empty());
    EXPECT_EQ(banc.acces.Presente(), nullptr);
}

TEST(CardImport, AFileThatCannotBeReadIsAFault) {
    BancCarte banc;
    banc.carte.Poser("A.TXT", "x");
    const QString titre = banc.ecran.windowTitle();
    banc.Importer(banc.carte.Plusieurs({"A.TXT", "GONE.TXT"}));
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::fichierIntrouvable});
    EXPECT_EQ(banc.Enregistrements(), QStringList());
    EXPECT_EQ(banc.ecran.windowTitle(), titre);
    EXPECT_TRUE(banc.Boites().empty());
    EXPECT_EQ(banc.acces.Presente(), nullptr);
}

TEST(CardImport, AFormThatIsClosedWhileTheBoxStandsShowsNoViewer) {
    BancCarte banc;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { banc.ecran.close(); };
    banc.Importer(banc.carte.Poser("A.TXT", "x"));
    EXPECT_EQ(banc.acces.Presente(), nullptr);
    EXPECT_EQ(banc.Mesures(), "x");
}

namespace {

struct CasVersion {
    const char* nom;
    int haute;
    int basse;
    bool refuse;
};

class CardImportVersion : public testing::TestWithParam<CasVersion> {
  protected:
    /// A logger that is refused brings no file dialog.
    static void Importer(BancCarte& banc) {
        if (!GetParam().refuse) return banc.Importer();
        banc.Cliquer(banc.ui.LireSD);
    }
    static void VoirRefus(BancCarte& banc, bool refuse) {
        EXPECT_EQ(banc.etabli.dialogues.demandes.size(), refuse ? 0U : 1U);
        ASSERT_EQ(banc.Boites().size(), refuse ? 1U : 0U);
        if (!refuse) return;
        EXPECT_EQ(banc.Boites()[0].icone, Icone::Information);
        EXPECT_EQ(banc.Boites()[0].titre, Texte("k-Pod"));
        EXPECT_EQ(Clair(banc.Boites()[0].texte), "Read the data with the USB cable");
    }
    static simulateur::PtrEnregistreur Pod() {
        return simulateur::Simple(20, static_cast<std::uint8_t>(GetParam().haute),
                                  static_cast<std::uint8_t>(GetParam().basse), Maintenant());
    }
};

std::string NomDuCas(const testing::TestParamInfo<CasVersion>& cas) {
    return cas.param.nom;
}

}  // namespace

TEST_P(CardImportVersion, ALoggerReadByCableIsRefusedWithABox) {
    BancCarte banc(Pod());
    Importer(banc);
    VoirRefus(banc, GetParam().refuse);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST_P(CardImportVersion, ALoggerThatFellSilentCountsWithTheVersionKnownBefore) {
    BancCarte banc(Pod());
    Importer(banc);
    banc.etabli.dialogues.OublierBoites();
    banc.etabli.dialogues.demandes.clear();
    banc.enregistreur.pannes.Ordonner({.genre = GenrePanne::silence, .combien = -1});
    Importer(banc);
    VoirRefus(banc, GetParam().refuse);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, CardImportVersion,
    testing::Values(CasVersion{"0", 0, 0, false}, CasVersion{"0_289", 2, 89, true},
                    CasVersion{"2_100", 2, 100, true}, CasVersion{"2_109", 2, 109, true},
                    CasVersion{"2_110", 2, 110, false}, CasVersion{"2_120", 2, 120, false}),
    NomDuCas);

TEST(CardImport, WorksWithoutAnyLogger) {
    BancCarte banc;
    banc.bus.Debrancher(banc.ecran.etat.UsbID);
    banc.Importer(banc.carte.Poser("A.TXT", "x"));
    EXPECT_EQ(banc.Mesures(), "x");
    EXPECT_EQ(banc.Boites().size(), 1U) << "no word about the logger";
}

namespace {

/// What each shape of the card's files becomes in the viewer.
struct CasForme {
    const char* nom;
    bool debit;
    const char* unite;
};

class CardImportShape : public testing::TestWithParam<CasForme> {};

}  // namespace

TEST_P(CardImportShape, IsShown) {
    BancCarte banc;
    simulateur::PoserCarte(banc.carte.Chemin("CARD"), Maintenant());
    banc.Importer(banc.carte.Chemin("CARD/") + Texte(GetParam().nom));
    ASSERT_NE(banc.acces.Presente(), nullptr);
    const auto& modele = banc.acces.Presente()->modele;
    ASSERT_EQ(modele.NombreSeries(), 4);
    EXPECT_EQ(modele.Serie(0).Nombre(), 200);
    // A count of 0 is a gap in the curve of the flow.
    const auto vides = banc.Mesures().count(";;0;") + banc.Mesures().count(";;0\r");
    EXPECT_EQ(modele.Serie(1).Nombre(), GetParam().debit ? 200 - vides : 0);
    EXPECT_LT(vides, GetParam().debit ? 150 : 201);
    EXPECT_EQ(Clair(modele.droite.titre), GetParam().unite);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Card, CardImportShape,
    testing::Values(CasForme{"EIGHT.TXT", true, "M3/sec."}, CasForme{"SIX.TXT", false, "Imp./Sec"},
                    CasForme{"METER.TXT", true, "m3/Hrs"}, CasForme{"UNIX.TXT", true, "M3/sec."}),
    [](const auto& cas) {
        return QString::fromLatin1(cas.param.nom).section(u'.', 0, 0).toStdString();
    });

TEST(CardImport, ARecordingInTwoFilesOfTheCardIsOneCurve) {
    BancCarte banc;
    simulateur::PoserCarte(banc.carte.Chemin("CARD"), Maintenant());
    banc.Importer(banc.carte.Chemin("CARD") + nul + Texte("LOG00001.TXT") + nul +
                  Texte("LOG00002.TXT"));
    ASSERT_NE(banc.acces.Presente(), nullptr);
    EXPECT_EQ(banc.acces.Presente()->modele.Serie(0).Nombre(), banc.Mesures().count("\r\n") - 2);
    EXPECT_GT(banc.Mesures().count("\r\n"), 10'000);
}

}  // namespace bornika::essai
