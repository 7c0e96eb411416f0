// The delivered program in a process of its own, clicked through from the list of loggers to the
// curve. The loggers hang on the mock ports of this process.

#include <gmock/gmock.h>

#include <QDateTime>
#include <QImage>
#include <QRegularExpression>

#include "simulator/presets.h"
#include "simulator/recordings.h"
#include "usb_mock/mock/usb_testbed.h"
#include "usb_mock/program/piloted_program.h"

namespace bornika {
namespace {

using testing::SizeIs;
using testing::StartsWith;

constexpr std::uint32_t maintenant = 1772719629;
constexpr std::uint32_t debut = 1700000000;
constexpr QRgb couleurPression = 0xFFFF6E5A;

const QString liste = QStringLiteral("frmConnect/Listekrow");

/// Pressure of a measure on a sensor of 0 to 16 bar that was never calibrated.
double Bar(int points) {
    return points / 64.0;
}

/// Highest pixel of the curve in a column of the picture; the height where there is none.
int HautCourbe(const QImage& image, int colonne) {
    // The legend above shows the colour too.
    int y = image.height() / 8;
    while (y < image.height() && image.pixel(colonne, y) != couleurPression)
        ++y;
    return y;
}

struct ProgrammeReel : testing::Test {
    /// A logger of that serial number with so many measures, one a second.
    int Brancher(std::uint32_t numero, int nombre) {
        auto enregistreur = simulateur::Simple(1, 2, 100, maintenant);
        enregistreur->ReglerNumeroSerie(numero);
        enregistreur->Stocker(simulateur::MesuresRegulieres(debut, nombre));
        return banc.Brancher({.serie = std::to_string(numero)}, std::move(enregistreur));
    }
    void Demarrer() {
        ASSERT_TRUE(programme.Regler("<Vendeur>0x0000", "<Vendeur>0xFEED"));
        ASSERT_TRUE(programme.Regler("<Produit>0x0000", "<Produit>0xB001"));
        ASSERT_TRUE(programme.Demarrer());
    }
    /// The numbers of the loggers in the list, once there are so many.
    QStringList Listes(int combien) {
        QStringList lignes;
        EXPECT_TRUE(programme.Attendre([&] {
            lignes = programme.Lignes(liste);
            return lignes.size() == combien;
        }));
        return lignes.replaceInStrings(QRegularExpression(QStringLiteral("^.*>")), QString());
    }
    bool Cliquer(const char* nom) { return programme.Cliquer(QString::fromLatin1(nom)); }
    int Restantes(int port) {
        int reste = 0;
        banc.Regler(port, [&reste](auto& appareil) {
            reste = appareil.enregistreur->RestantATransmettre();
        });
        return reste;
    }
    /// Holds each line of a recording against the measure that the logger has stored there, and
    /// returns how many there are.
    int Comparer(const QString& fichier, int port) {
        QList<QByteArray> lignes = programme.Contenu(fichier).split('\n');
        EXPECT_EQ(lignes.takeFirst(), "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r");
        // The file ends with a line end, in whatever moment its recording ended.
        EXPECT_EQ(lignes.takeLast(), "");
        banc.Regler(port, [&lignes](auto& appareil) {
            for (int i = 0; i < lignes.size() && !HasFailure(); ++i)
                ComparerLigne(lignes[i], i, appareil.enregistreur->Stockee(i));
        });
        return static_cast<int>(lignes.size());
    }
    static void ComparerLigne(const QByteArray& ligne, int rang,
                              const simulateur::MesureEnFlash& mesure) {
        SCOPED_TRACE(ligne.toStdString());
        std::uint32_t secondes = 0;
        for (std::size_t i = 2; i < 6; ++i)
            secondes = secondes << 8 | mesure[i];
        const int points = (mesure[6] & 3) << 8 | mesure[7];
        QByteArray millisecondes = "000";
        // The first two share the second of the second one.
        if (rang == 0) ++secondes;
        if (rang == 1) millisecondes = "500";
        const QList<QByteArray> champs = ligne.split(';');
        ASSERT_THAT(champs, SizeIs(7));
        EXPECT_EQ(champs[0], QByteArray::number(secondes) + millisecondes);
        EXPECT_EQ(champs[1], QDateTime::fromSecsSinceEpoch(secondes, Qt::UTC)
                                     .toString(QStringLiteral("dd/MM/yyyy HH:mm:ss:"))
                                     .toLatin1() +
                                 millisecondes);
        EXPECT_EQ(champs[2].toInt(), points);
        EXPECT_NEAR(champs[3].toDouble(), Bar(points), 0.00051);
        EXPECT_EQ(champs[4] + champs[5] + champs[6], "0\r");
    }
    /// Whether the parameters of the logger come to stand on the form.
    bool EstLue() {
        return programme.Attendre([this] {
            return programme.Texte(QStringLiteral("MainScreen/Version")) ==
                   QStringLiteral("(1) 2.100");
        });
    }
    QImage Photo() {
        const QString photo = programme.Chemin(QStringLiteral("chart.png"));
        EXPECT_TRUE(programme.Photographier(QStringLiteral("Trace/TChart1"), photo));
        return QImage(photo);
    }
    /// The saw of the measures comes to stand on the chart: it climbs nearly to the end of it.
    void VoirCourbe() {
        QImage image;
        EXPECT_TRUE(programme.Attendre([&] {
            image = Photo();
            int colonnes = 0;
            for (int x = 0; x < image.width(); ++x)
                if (HautCourbe(image, x) < image.height()) ++colonnes;
            return colonnes > image.width() * 9 / 10;
        }));
        const int pas = image.width() / 5;
        for (int x = pas; x < 4 * pas; x += pas)
            EXPECT_GT(HautCourbe(image, x), HautCourbe(image, x + pas) + image.height() / 10);
    }
    void Sortir() {
        EXPECT_TRUE(Cliquer("MainScreen/Sortir"));
        EXPECT_EQ(programme.AttendreFin(), 0);
        const essai::ComptesUsb comptes = banc.ComptesFermes();
        EXPECT_EQ(comptes.ouvertures, 0);
        EXPECT_EQ(comptes.reclamations, 0);
        EXPECT_EQ(comptes.enCours, 0);
    }

    essai::BancUsb banc;
    essai::ProgrammePilote programme;
};

TEST_F(ProgrammeReel, GoesFromTheListOfTwoLoggersToTheCurveOfOne) {
    Brancher(1111, 10);
    const int port = Brancher(2222, 700);
    Demarrer();
    EXPECT_EQ(Listes(2), QStringList({"1111", "2222"}));
    ASSERT_TRUE(programme.Choisir(liste, 1));
    ASSERT_TRUE(Cliquer("MainScreen/Lire"));
    EXPECT_TRUE(EstLue());

    ASSERT_TRUE(Cliquer("MainScreen/LireValeurs"));
    const QString annonce = programme.RepondreBoite();
    const QStringList fichiers = programme.Fichiers(QStringLiteral("*.txt"));
    ASSERT_THAT(fichiers, SizeIs(1));
    EXPECT_EQ(annonce, QStringLiteral("Valeurs stockées dans le fichier ") + fichiers[0]);
    // The last measure is never written.
    EXPECT_EQ(Comparer(fichiers[0], port), 699);
    const QString rejets =
        QString(fichiers[0]).replace(QStringLiteral(".txt"), QStringLiteral(".err"));
    EXPECT_EQ(programme.Contenu(rejets).split('\n').value(1), "End Parity Control");

    VoirCourbe();
    EXPECT_TRUE(programme.Photographier(QStringLiteral("Trace"),
                                        QStringLiteral(BORNIKA_PICTURES "/program_road.png")));
    Sortir();
}

TEST_F(ProgrammeReel, KeepsWhatCameAndSaysSoWhenTheLoggerIsPulledOutInADownload) {
    constexpr int nombre = 5000;
    const int port = Brancher(1111, nombre);
    Demarrer();
    ASSERT_THAT(Listes(1), SizeIs(1));
    ASSERT_TRUE(programme.Choisir(liste, 0));
    ASSERT_TRUE(Cliquer("MainScreen/LireValeurs"));
    ASSERT_TRUE(programme.Attendre([&] {
        const int reste = Restantes(port);
        return reste > 0 && reste < nombre - 500;
    }));
    banc.Debrancher(port);
    const int parties = nombre - Restantes(port);
    EXPECT_EQ(programme.RepondreBoite(), QStringLiteral("k-Pod absent"));
    const QStringList fichiers = programme.Fichiers(QStringLiteral("*.txt"));
    ASSERT_THAT(fichiers, SizeIs(1));
    // All but the few that wait for the next one to be dated, or were on their way.
    EXPECT_NEAR(Comparer(fichiers[0], port), parties, 4);

    banc.Rebrancher(port);
    ASSERT_TRUE(Cliquer("MainScreen/Lire"));
    EXPECT_TRUE(EstLue());
    Sortir();
}

TEST_F(ProgrammeReel, ListsALoggerThatIsPluggedInWhileTheListIsOpen) {
    Demarrer();
    EXPECT_THAT(Listes(0), SizeIs(0));
    const int port = Brancher(1111, 10);
    EXPECT_EQ(Listes(1), QStringList({"1111"}));
    banc.Debrancher(port);
    EXPECT_THAT(Listes(0), SizeIs(0));
    banc.Rebrancher(port);
    EXPECT_EQ(Listes(1), QStringList({"1111"}));
    ASSERT_TRUE(programme.Choisir(liste, 0));
    ASSERT_TRUE(Cliquer("MainScreen/Lire"));
    EXPECT_TRUE(EstLue());
    Sortir();
}

}  // namespace
}  // namespace bornika
