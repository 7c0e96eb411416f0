// Start of the program to its first painted dialog, against an empty main window of the toolkit.
// Each start is a process of its own: this program starts itself with the name of what to start.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "app/application.h"
#include "app/program.h"
#include "bench_main.h"
#include "platform/guard.h"
#include "platform/no_loggers.h"
#include "widgets/toolkit_dialogs.h"

namespace {

using namespace bornika;

/// Ends the process at the first paint of any top-level window.
class PremierePeinture : public QObject {
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        const auto* fenetre = qobject_cast<QWidget*>(objet);
        if (evenement->type() == QEvent::Paint && fenetre && fenetre->isWindow()) std::_Exit(0);
        return false;
    }
};

int FenetreVide(int argc, char** argv) {
    QApplication application(argc, argv);
    PremierePeinture peinture;
    application.installEventFilter(&peinture);
    QMainWindow fenetre;
    fenetre.show();
    return QApplication::exec();
}

int ProgrammeEntier(int argc, char** argv) {
    Application application(argc, argv);
    PremierePeinture peinture;
    application.installEventFilter(&peinture);
    PreparerApplication();
    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    AucunEnregistreur usb;
    Respiration respiration;
    Systeme systeme{
        horloge, dialogues, usb, respiration, Regional::DuSysteme(), QDir::currentPath()};
    return Executer(systeme);
}

double Secondes(const char* quoi, const QString& dossier) {
    QProcess processus;
    processus.setWorkingDirectory(dossier);
    QElapsedTimer duree;
    duree.start();
    processus.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(quoi)});
    processus.waitForFinished(20'000);
    const double secondes = static_cast<double>(duree.nsecsElapsed()) * 1e-9;
    if (processus.exitCode() != 0) std::abort();
    return secondes;
}

void Demarrage(benchmark::State& etat) {
    QTemporaryDir dossier;
    const QDir ressources(QStringLiteral(BORNIKA_RESOURCES));
    for (const char* nom : {"config.xml", "BORNIKA.TEE"})
        QFile::copy(ressources.filePath(QLatin1String(nom)),
                    QDir(dossier.path()).filePath(QLatin1String(nom)));
    // The fastest runs are compared, so that a busy machine does not decide.
    double vide = 1e9;
    double entier = 1e9;
    for (auto _ : etat) {
        vide = std::min(vide, Secondes("--empty", dossier.path()));
        const double duree = Secondes("--program", dossier.path());
        entier = std::min(entier, duree);
        etat.SetIterationTime(duree);
    }
    etat.counters["empty_ms"] = 1000 * vide;
    etat.counters["program_ms"] = 1000 * entier;
    etat.counters["ratio"] = entier / vide;
    etat.counters["bar"] = 3;
}
BENCHMARK(Demarrage)->UseManualTime()->Iterations(30)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    banc::AllerHorsEcran();
    if (argc > 1 && std::strcmp(argv[1], "--empty") == 0) return FenetreVide(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--program") == 0) return ProgrammeEntier(argc, argv);
    QCoreApplication application(argc, argv);
    return banc::Mesurer(argc, argv);
}
