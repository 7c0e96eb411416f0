// A language switch of the main form, against as many bare loads of config.xml as it makes lookups.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <pugixml.hpp>

#include "app/form_events.h"
#include "app/menu_events.h"
#include "platform/clock.h"
#include "platform/no_loggers.h"
#include "settings/config_store.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"
#include "widgets/controls.h"
#include "widgets/toolkit_dialogs.h"

namespace {

using namespace bornika;

/// What a bare load is: the bytes of the file, parsed.
void Charger(const QString& chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) std::abort();
    const QByteArray octets = fichier.readAll();
    pugi::xml_document document;
    if (!document.load_buffer(octets.constData(), static_cast<std::size_t>(octets.size()),
                              (pugi::parse_full | pugi::parse_ws_pcdata) & ~pugi::parse_eol))
        std::abort();
    benchmark::DoNotOptimize(document.document_element());
}

void ChangementDeLangue(benchmark::State& etat) {
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("config.xml"));
    QFile::copy(QStringLiteral(BORNIKA_RESOURCES "/config.xml"), chemin);
    QFile::setPermissions(chemin, QFile::ReadOwner | QFile::WriteOwner);
    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    AucunEnregistreur usb;
    Respiration respiration;
    Systeme systeme{horloge, dialogues, usb, respiration, Regional{}, dossier.path()};
    MainScreen ecran(systeme);
    BrancherFormulaire(ecran);
    BrancherMenus(ecran);
    ecran.configuration.RemplitListeLangues(*ecran.ui->ListeLangues, QStringLiteral("English"));
    ecran.show();
    QApplication::processEvents();

    // The fastest runs are compared, so that a busy machine does not decide.
    double changement = 1e9;
    double reference = 1e9;
    std::uint64_t chargements = 0;
    int langue = 0;
    QElapsedTimer duree;
    for (auto _ : etat) {
        const std::uint64_t avant = ecran.configuration.NombreChargements();
        duree.start();
        ecran.ui->ListeLangues->Choisir(langue = 1 - langue);
        const double ecoule = static_cast<double>(duree.nsecsElapsed()) * 1e-9;
        chargements = ecran.configuration.NombreChargements() - avant;
        changement = std::min(changement, ecoule);
        etat.SetIterationTime(ecoule);
        duree.start();
        for (std::uint64_t i = 0; i < chargements; ++i)
            Charger(chemin);
        reference = std::min(reference, static_cast<double>(duree.nsecsElapsed()) * 1e-9);
    }
    etat.counters["lookups"] = static_cast<double>(chargements);
    etat.counters["switch_ms"] = 1000 * changement;
    etat.counters["loads_ms"] = 1000 * reference;
    etat.counters["ratio"] = changement / reference;
    etat.counters["bar"] = 1.5;
}
BENCHMARK(ChangementDeLangue)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace
