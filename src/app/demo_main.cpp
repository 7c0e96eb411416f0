#include "app/application.h"
#include "app/demo_bus.h"
#include "app/program.h"
#include "platform/program_folder.h"
#include "platform/system.h"
#include "widgets/toolkit_dialogs.h"

// The same program on a family of simulated loggers: for trying it out, for training and for
// pictures.
int main(int argc, char** argv) {
    using namespace bornika;
    Application application(argc, argv);
    PreparerApplication();

    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    Respiration respiration;
    const std::unique_ptr<BusSimule> usb = BusDeDemonstration(horloge, Allure::CelleDuCable);
    Systeme systeme{horloge,           dialogues, *usb, respiration, Regional::DuSysteme(),
                    DossierProgramme()};
    PoserCarteDeDemonstration(systeme);
    return Executer(systeme);
}
