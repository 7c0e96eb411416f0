#include <QDir>
#include <QLoggingCategory>
#include <cstdio>

#include "app/application.h"
#include "app/demo_bus.h"
#include "app/tour.h"
#include "platform/program_folder.h"
#include "platform/system.h"
#include "platform/whole_file.h"
#include "widgets/toolkit_dialogs.h"

namespace {

using namespace bornika;

void DireLigne(const QString& ligne) {
    std::printf("%s\n", qUtf8Printable(ligne));
    std::fflush(stdout);
}

// A new folder beside the program, named after the present time, with a configuration of its own:
// the tour leaves everything else as it was.
QString FaireDossierVisite(Horloge& horloge) {
    const QDir programme(DossierProgramme());
    const QString nom = QStringLiteral("tour-") +
                        horloge.Maintenant().toString(QStringLiteral("yyyy-MM-dd-HH-mm-ss"));
    if (!programme.mkpath(nom)) return {};
    const QString dossier = programme.filePath(nom);
    for (const char* fichier : {"config.xml", "BORNIKA.TEE"})
        CopierFichier(programme.filePath(QLatin1String(fichier)),
                      QDir(dossier).filePath(QLatin1String(fichier)));
    return dossier;
}

}  // namespace

// The road of a technician, off-screen, for machines without a display and for the manual's
// pictures.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Off-screen the toolkit warns at each window that there is no window manager.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    Application application(argc, argv);
    PreparerApplication();

    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    Respiration respiration;
    const std::unique_ptr<BusSimule> usb = BusDeDemonstration(horloge, Allure::CelleDuCable);
    const QString dossier = FaireDossierVisite(horloge);
    if (dossier.isEmpty()) {
        DireLigne(QStringLiteral("Cannot make a folder beside the program."));
        return 1;
    }
    Systeme systeme{horloge, dialogues, *usb, respiration, Regional::DuSysteme(), dossier};
    const bool bien = FaireVisite(systeme, DireLigne);
    DireLigne(QStringLiteral("The recording and the pictures are in ") + dossier);
    return bien ? 0 : 1;
}
