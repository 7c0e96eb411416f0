// The firmware update in the whole program, with a real process for the tool: real clicks, a living
// window, and what the logger holds afterwards.

#include <gtest/gtest.h>

#include <QDir>
#include <QTimer>
#include <utility>

#include "app/program_fixture.h"
#include "support/programmer_stand_in.h"

namespace bornika {
namespace {

using namespace essai;

constexpr std::uint32_t numero = 305419896;

/// The end of the tool is the moment at which the simulated logger has its new firmware.
class OutilQuiReprogramme : public ProgrammeExterne {
  public:
    OutilQuiReprogramme(std::unique_ptr<ProgrammeExterne> processus, std::function<void()> fin)
        : processus_(std::move(processus)), fin_(std::move(fin)) {}
    bool EnCours() override {
        if (processus_->EnCours()) return true;
        fin_();
        return false;
    }

  private:
    std::unique_ptr<ProgrammeExterne> processus_;
    std::function<void()> fin_;
};

struct FirmwareRoad : testing::Test {
    BancProgramme banc;
    EnregistreurSimule& pod =
        banc.bus.Brancher(simulateur::Simple(1, 20, 95, maintenantSimule));  // 2.095
    const QString hex = banc.etabli.Chemin(QStringLiteral("mes fichiers reçus/K-POD_V2_100.HEX"));

    void SetUp() override {
        pod.ReglerNumeroSerie(numero);
        QDir().mkpath(QFileInfo(hex).path());
        QFile(hex).open(QIODevice::WriteOnly);
        banc.etabli.systeme.lancer =
            [this](const QString& programme,
                   const QString& argument) -> std::unique_ptr<ProgrammeExterne> {
            auto processus = LancerProgramme(programme, argument);
            lances.push_back(processus != nullptr);
            if (!processus) return nullptr;
            return std::make_unique<OutilQuiReprogramme>(std::move(processus), fin);
        };
        ASSERT_TRUE(banc.Demarrer());
        ASSERT_EQ(banc.ui().ListeLangues->Texte(), QString::fromUtf8("Français"));
        pod.journal.Vider();
    }
    /// The line below the bars as the operator sees it.
    QString Ligne() { return banc.ui().Infos->isVisible() ? banc.ui().Infos->text() : QString(); }
    QString CheminOutil() { return banc.etabli.Chemin(QStringLiteral("Chargeur_m_v239.exe")); }
    /// The logger takes over the version that the tool has left for it; its number is gone.
    void Reprogrammer() {
        const QList<QByteArray> parts = banc.etabli.Lire(QStringLiteral("tool-version")).split('.');
        ASSERT_EQ(parts.size(), 2);
        pod.identite.versionHaute = static_cast<std::uint8_t>(parts[0].toInt());
        pod.identite.versionBasse = static_cast<std::uint8_t>(parts[1].toInt());
        pod.ReglerNumeroSerie(0xFFFFFFFF);
    }
    /// The entry of the menu, as the operator's hand reaches it: a Yes, and the file.
    void Cliquer() {
        ASSERT_TRUE(banc.ui().nmuBootLoad->isEnabled());
        banc.etabli.dialogues.AnnoncerQuestion(Reponse::Oui, QStringLiteral("version actuelle"));
        banc.etabli.dialogues.AnnoncerOuverture(hex);
        banc.ui().nmuBootLoad->trigger();
    }

    /// What has become of the logger once the tool has ended.
    std::function<void()> fin = [this] { Reprogrammer(); };
    /// For each start: whether there was a process.
    std::vector<bool> lances;
};

TEST_F(FirmwareRoad, FromTheClickToTheNumberWrittenBackWithALivingWindow) {
    const OutilDEssai outil(CheminOutil());
    outil.Retenir();
    // The hand clicks while the tool runs; the tool is let go only after that.
    int battements = 0;
    QString pendant;
    QTimer main;
    QObject::connect(&main, &QTimer::timeout, &main, [&] {
        if (outil.Arguments().isEmpty() || ++battements != 5) return;
        BancProgramme::Cliquer(banc.ui().PressionAbsolue);
        pendant = Ligne();
        banc.ui().nmuBootLoad->trigger();
        outil.Liberer();
    });
    main.start(1);
    const bool avant = banc.ui().PressionAbsolue->isChecked();
    Cliquer();

    EXPECT_GE(battements, 5);
    EXPECT_EQ(pendant, QString::fromUtf8("Mise à jour du firmware : K-POD_V2_100.HEX"));
    EXPECT_EQ(Ligne(), QString());
    EXPECT_NE(banc.ui().PressionAbsolue->isChecked(), avant);
    EXPECT_EQ(outil.Arguments(), QStringLiteral("LANGUE=Français ;device=k-pod;USBID=%1;prg=%2;"
                                                "prodcode=1:2.100")
                                         .arg(pod.identite.usb)
                                         .arg(hex)
                                         .toUtf8() +
                                     '\0');
    EXPECT_EQ(lances, std::vector{true});
    EXPECT_EQ(pod.journal.Codes(), (std::vector<int>{9, 6, 9, 5}));
    EXPECT_EQ(pod.journal.DeCode(5),
              (std::vector<std::vector<std::uint8_t>>{{5, 0x12, 0x34, 0x56, 0x78, 32, 32, 32}}));
    EXPECT_EQ(banc.ecran().etat.VersionLogiciel, 2.1);
    EXPECT_EQ(banc.ui().Version->text(), QStringLiteral("k-Pod = 1 2-100"));
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);

    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.ui().NumeroSerie->text(), QString::number(numero));
}

TEST_F(FirmwareRoad, WithoutTheToolLooksAtTheVersionAgainAndChangesNothing) {
    Cliquer();
    EXPECT_EQ(lances, std::vector{false});
    EXPECT_EQ(pod.journal.Codes(), (std::vector<int>{9, 6, 9}));
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(Ligne().endsWith(CheminOutil())) << Ligne().toStdString();
    EXPECT_TRUE(banc.ui().nmuBootLoad->isEnabled());
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(FirmwareRoad, AToolThatDiesLeavesTheLoggerAsItIs) {
    const OutilDEssai outil(CheminOutil());
    outil.FaireMourir();
    fin = [] {};
    Cliquer();
    EXPECT_EQ(lances, std::vector{true});
    EXPECT_EQ(pod.journal.Codes(), (std::vector<int>{9, 6, 9}));
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.ui().Version->text(), QStringLiteral("k-Pod = 1 20-95"));
    EXPECT_TRUE(banc.ui().nmuBootLoad->isEnabled());
}

TEST_F(FirmwareRoad, ALoggerPulledOutMeanwhileLosesNoNumberWithoutAWord) {
    const OutilDEssai outil(CheminOutil());
    fin = [this] { banc.bus.Debrancher(pod.identite.usb); };
    Cliquer();
    EXPECT_EQ(pod.journal.Codes(), (std::vector<int>{9, 6}));
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(
        Ligne(),
        QString::fromUtf8("N° de série qui n'a pas été rendu à l'enregistreur : %1").arg(numero));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.ui().nmuBootLoad->isEnabled());
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(FirmwareRoad, ReadingWhileTheToolHasTheLoggerLosesNoNumberWithoutAWord) {
    const OutilDEssai outil(CheminOutil());
    outil.Retenir();
    bool lu = false;
    QTimer main;
    QObject::connect(&main, &QTimer::timeout, &main, [&] {
        if (outil.Arguments().isEmpty() || std::exchange(lu, true)) return;
        // The logger hears nobody but the tool.
        banc.bus.Debrancher(pod.identite.usb);
        BancProgramme::Cliquer(banc.ui().Lire);
        banc.bus.Rebrancher(pod.identite.usb);
        outil.Liberer();
    });
    main.start(1);
    Cliquer();
    EXPECT_TRUE(lu);
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 2U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[1].texte, QStringLiteral("k-Pod absent"));
    EXPECT_TRUE(Ligne().endsWith(QString::number(numero))) << Ligne().toStdString();
}

TEST_F(FirmwareRoad, ClosingTheProgramLeavesTheToolToItsTransfer) {
    const OutilDEssai outil(CheminOutil());
    outil.Retenir();
    QTimer main;
    QObject::connect(&main, &QTimer::timeout, &main, [&] {
        if (!outil.Arguments().isEmpty()) BancProgramme::Cliquer(banc.ui().Sortir);
    });
    main.start(1);
    Cliquer();
    EXPECT_FALSE(banc.ecran().isVisible());
    EXPECT_EQ(pod.journal.Codes(), (std::vector<int>{9, 6}));
    EXPECT_EQ(outil.Version(), QByteArray());
    outil.Liberer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !outil.Version().isEmpty(); }, 10'000));
    EXPECT_EQ(outil.Version(), QByteArray("2.100"));
}

}  // namespace
}  // namespace bornika
