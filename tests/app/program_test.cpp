#include "app/program.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QTimer>

#include "app/program_fixture.h"
#include "support/case_names.h"
#include "viewer/trace_form.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;

template <class Fiche>
Fiche* FicheOuverte() {
    for (QWidget* candidate : QApplication::topLevelWidgets())
        if (auto* fiche = qobject_cast<Fiche*>(candidate); fiche && fiche->isVisible())
            return fiche;
    return nullptr;
}

class UnwritableFolder : public testing::TestWithParam<const char*> {};

TEST_P(UnwritableFolder, IsToldInOneBoxAndNothingElseHappens) {
    BancProgramme banc;
    QString dossier = QString::fromLatin1(GetParam());
    if (dossier.isEmpty()) {
        // A folder's path that is a file.
        banc.etabli.Ecrire(QStringLiteral("a file"), "x");
        dossier = banc.etabli.Chemin(QStringLiteral("a file"));
    }
    banc.etabli.systeme.dossier = dossier;
    EXPECT_EQ(Executer(banc.etabli.systeme), 1);
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites().front();
    EXPECT_EQ(boite.icone, Icone::Critique);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_TRUE(boite.texte.contains(dossier)) << boite.texte.toStdString();
    EXPECT_TRUE(boite.texte.contains(QStringLiteral("Copy the whole folder")));
    EXPECT_TRUE(banc.montres.isEmpty());
    EXPECT_EQ(FicheOuverte<MainScreen>(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Folders, UnwritableFolder, testing::Values("/proc", "/nowhere/at/all", ""),
                         [](const auto& cas) { return essai::NomDeCas(cas.index, cas.param); });

TEST(WholeProgram, EndsWithTheMainFormAlsoWhenTheViewerStandsOpen) {
    BancProgramme banc;
    bool ouverte = false;
    QTimer geste;
    geste.setSingleShot(true);
    QObject::connect(&geste, &QTimer::timeout, [&] {
        auto* ecran = FicheOuverte<MainScreen>();
        if (ecran == nullptr) return QCoreApplication::exit(98);
        BancProgramme::Cliquer(ecran->ui->VoirLesValeurs);
        ouverte = FicheOuverte<Trace>() != nullptr;
        ecran->close();
    });
    geste.start(0);
    QTimer::singleShot(20'000, &geste, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(Executer(banc.etabli.systeme), 0);
    EXPECT_TRUE(ouverte);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST(WholeProgram, KeepsTheMainFormWithinTheScreen) {
    BancProgramme banc;
    int hauteur = 0;
    int moniteur = 0;
    QTimer geste;
    geste.setSingleShot(true);
    QObject::connect(&geste, &QTimer::timeout, [&] {
        auto* ecran = FicheOuverte<MainScreen>();
        if (ecran == nullptr) return QCoreApplication::exit(98);
        moniteur = ecran->screen()->availableGeometry().height();
        ecran->ui->ZoneEnregistreur->setMinimumHeight(2 * moniteur);
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        hauteur = ecran->height();
        ecran->close();
    });
    geste.start(0);
    QTimer::singleShot(20'000, &geste, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(Executer(banc.etabli.systeme), 0);
    EXPECT_GT(hauteur, moniteur / 2);
    EXPECT_LT(hauteur, moniteur);
}

TEST(WholeProgram, AFaultBehindAButtonIsToldOnceClosesTheLinkAndLeaves) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    banc.programme->lien.OuvreUSB(pod.identite.usb);
    QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml")));
    banc.ui().mnuChargeRapide->trigger();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().texte,
              QStringLiteral("Run-time error '91':\n\nObject variable not set"));
    EXPECT_EQ(banc.sorties, std::vector<int>({1}));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(WholeProgram, AFaultInADownloadBringsWhatWasReceivedToTheDiskBeforeItLeaves) {
    BancProgramme banc;
    banc.bus.Brancher(simulateur::KPodReseauEau(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    qsizetype lignes = -1;
    int tours = 0;
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours == 100) {
            QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml")));
            banc.ui().mnuChargeRapide->trigger();
            lignes = banc.etabli.Lire(QStringLiteral("2026-03-05-14-07-09.txt")).count('\n');
            banc.ecran().close();
        }
    });
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Run-time error '91'"));
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_EQ(banc.sorties.front(), 1);
    EXPECT_GT(lignes, 50);
}

}  // namespace
}  // namespace bornika
