#include "recording/recording_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/dates.h"
#include "platform/fault.h"

namespace bornika::essai {

namespace {

const Regional anglais{QStringLiteral("."), QStringLiteral("M/d/yyyy")};
const Regional francais{QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};

std::string Texte(QByteArrayView ligne) {
    return ligne.toByteArray().toStdString();
}

QByteArray Contenu(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("(none)");
}

/// 5 March 2026, 14:07:09.
constexpr std::int32_t instant = 1772719629;

}  // namespace

TEST(NomDeBase, HasFiveFieldsOfTwoDigitsBehindTheYear) {
    EXPECT_EQ(NomDeBase(QDateTime(QDate(2026, 3, 5), QTime(4, 7, 9), Qt::UTC)).toStdString(),
              "2026-03-05-04-07-09");
    EXPECT_EQ(NomDeBase(QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59), Qt::UTC)).toStdString(),
              "2026-12-31-23-59-59");
}

TEST(LigneEntete, HasSevenFieldsWithTheUnitInTheFifth) {
    EXPECT_EQ(LigneEntete(QStringLiteral("bar")).toStdString(),
              "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.");
    EXPECT_EQ(LigneEntete(QString()).count(QLatin1Char(';')), 6);
}

TEST(MeasureLine, PeriodicHasSevenFieldsAndTheLastIsEmpty) {
    RedacteurLignes redacteur(anglais);
    EXPECT_EQ(Texte(redacteur.Periodique(instant, 0, 512, 8.125)),
              "1772719629000;3/5/2026 14:07:09:000;512;8.125;;0;");
    EXPECT_EQ(redacteur.Periodique(instant, 0, 512, 8.125).toByteArray().count(';'), 6);
}

TEST(MeasureLine, PeriodicPadsTheMillisecondsInBothFields) {
    RedacteurLignes redacteur(anglais);
    EXPECT_EQ(Texte(redacteur.Periodique(instant, 77, 0, 0)),
              "1772719629077;3/5/2026 14:07:09:077;0;0;;0;");
    EXPECT_EQ(Texte(redacteur.Periodique(instant, 5, 1023, 16)),
              "1772719629005;3/5/2026 14:07:09:005;1023;16;;0;");
}

TEST(MeasureLine, PulsePadsTheFirstFieldOnlyAndPutsABlankBehindTheRate) {
    RedacteurLignes redacteur(anglais);
    EXPECT_EQ(Texte(redacteur.Impulsion(instant, 0, 300, 4.6, 0.5)),
              "1772719629000;3/5/2026 14:07:09:0;300;4.6;;0.5 ;");
    EXPECT_EQ(Texte(redacteur.Impulsion(instant, 125, 300, 4.6, 2.6667)),
              "1772719629125;3/5/2026 14:07:09:125;300;4.6;;2.6667 ;");
    EXPECT_EQ(Texte(redacteur.Impulsion(instant, 31875, 300, 4.6, -2)),
              "177271962931875;3/5/2026 14:07:09:31875;300;4.6;;-2 ;");
}

TEST(MeasureLine, NumbersAndDatesFollowTheLocale) {
    RedacteurLignes redacteur(francais);
    EXPECT_EQ(Texte(redacteur.Periodique(instant, 333, 7, -0.063)),
              "1772719629333;05/03/2026 14:07:09:333;7;-0,063;;0;");
    EXPECT_EQ(Texte(redacteur.Impulsion(instant, 875, 7, 0.063, 0.3333)),
              "1772719629875;05/03/2026 14:07:09:875;7;0,063;;0,3333 ;");
}

TEST(MeasureLine, PressureHasUpToFifteenDigits) {
    RedacteurLignes redacteur(anglais);
    EXPECT_EQ(Texte(redacteur.Periodique(0, 0, 1, 0.1 + 0.2)),
              "0000;1/1/1970 00:00:00:000;1;0.3;;0;");
    EXPECT_EQ(Texte(redacteur.Periodique(0, 0, 1, 1.0 / 3)),
              "0000;1/1/1970 00:00:00:000;1;0.333333333333333;;0;");
}

TEST(MeasureLine, TheFirstFieldHasThirteenDigitsWhileTheSecondsHaveTen) {
    RedacteurLignes redacteur(anglais);
    for (std::int32_t secondes : {1000000000, 1772719629, 2147483647})
        for (int ms : {0, 5, 62, 875})
            EXPECT_EQ(redacteur.Impulsion(secondes, ms, 1, 1, 1).toByteArray().indexOf(';'), 13);
}

TEST(MeasureLine, DatesAgreeWithTheDateHelperAcrossDaysAndLeapDays) {
    RedacteurLignes redacteur(francais);
    std::vector<std::int32_t> instants{0, 86399, 86400, 2147483647};
    // 28 February to 2 March of a leap year and of another, one look every 7 hours and a bit.
    for (std::int32_t debut : {1709078400, 1740614400, 1735603200})
        for (int i = 0; i < 20; ++i)
            instants.push_back(debut + i * 25231);
    for (std::int32_t secondes : instants) {
        const QByteArray ligne = redacteur.Periodique(secondes, 0, 1, 1).toByteArray();
        EXPECT_EQ(ligne.split(';').at(1).toStdString(),
                  (EpochVersTexte(secondes, francais) + QStringLiteral(":000")).toStdString());
    }
}

TEST(PaireEnregistrement, WithoutMeasuresHasHeadersAndTheClosingText) {
    QTemporaryDir dossier;
    const QString base = dossier.filePath(QStringLiteral("essai"));
    {
        PaireEnregistrement paire(base, LigneEntete(QStringLiteral("bar")));
        paire.FermerMesures();
        paire.FermerRejets();
    }
    const QByteArray entete = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n";
    EXPECT_EQ(Contenu(base + QStringLiteral(".txt")), entete);
    EXPECT_EQ(Contenu(base + QStringLiteral(".err")), entete + "End Parity Control");
}

TEST(PaireEnregistrement, SortsLinesByParityAndEndsThemWithCrLf) {
    QTemporaryDir dossier;
    const QString base = dossier.filePath(QStringLiteral("essai"));
    PaireEnregistrement paire(base, QStringLiteral("e"));
    paire.Ecrire(true, "a;1");
    paire.Ecrire(false, "b;2");
    paire.Ecrire(true, "c;3");
    paire.FermerMesures();
    paire.FermerRejets();
    EXPECT_EQ(Contenu(base + QStringLiteral(".txt")), "e\r\na;1\r\nc;3\r\n");
    EXPECT_EQ(Contenu(base + QStringLiteral(".err")), "e\r\nb;2\r\nEnd Parity Control");
}

TEST(PaireEnregistrement, TakesThePlaceOfOldFilesAndWritesOneByteACharacter) {
    QTemporaryDir dossier;
    const QString base = dossier.filePath(QStringLiteral("essai"));
    QFile ancien(base + QStringLiteral(".txt"));
    ASSERT_TRUE(ancien.open(QIODevice::WriteOnly));
    ancien.write(QByteArray(5000, 'x'));
    ancien.close();
    PaireEnregistrement paire(base, LigneEntete(QStringLiteral("kg/cm²")));
    paire.FermerMesures();
    EXPECT_EQ(Contenu(ancien.fileName()),
              "Temps;Date Heure;Valeur;Pression;kg/cm\xB2;comptage;M3/sec.\r\n");
}

TEST(PaireEnregistrement, AFolderThatIsMissingIsAFault) {
    EXPECT_THROW(PaireEnregistrement(QStringLiteral("/nowhere/at/all/essai"), QString()),
                 FauteExecution);
}

TEST(PaireEnregistrement, AFullDiskNamesTheFileAndTheReason) {
    QTemporaryDir dossier;
    const QString base = dossier.filePath(QStringLiteral("essai"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), base + QStringLiteral(".txt")));
    PaireEnregistrement paire(base, QStringLiteral("e"));
    try {
        paire.FermerMesures();
        FAIL() << "no fault";
    } catch (const FauteExecution& faute) {
        EXPECT_TRUE(faute.texte().startsWith(QStringLiteral("essai.txt : ")))
            << faute.texte().toStdString();
        EXPECT_GT(faute.texte().size(), 12);
    }
    EXPECT_NO_THROW(paire.FermerRejets());
}

TEST(PaireEnregistrement, AnUnfinishedOneIsClosedWithoutTheClosingText) {
    QTemporaryDir dossier;
    const QString base = dossier.filePath(QStringLiteral("essai"));
    PaireEnregistrement paire(base, QStringLiteral("e"));
    paire.Ecrire(false, "b;2");
    paire.FermerMesures();
    paire.FermerRejets(false);
    EXPECT_EQ(Contenu(base + QStringLiteral(".err")), "e\r\nb;2\r\n");
}

}  // namespace bornika::essai
