#include "app/application.h"
#include "app/program.h"
#include "platform/program_folder.h"
#include "platform/usb_loggers.h"
#include "shell/config_store.h"
#include "shell/main_screen.h"
#include "shell/usb_element.h"

int main(int argc, char** argv) {
    using namespace bornika;
    Application application(argc, argv);
    PreparerApplication();

    Configuration configuration(DossierProgramme());
    const ElementUsb element = LireElementUsb(configuration);
    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    EnregistreursUsb usb(element.reglages);
    Respiration respiration;
    Systeme systeme{horloge,           dialogues, usb, respiration, Regional::DuSysteme(),
                    DossierProgramme()};
    SignalerEntreesUsb(systeme, configuration, element.fausses);
    return Executer(systeme);
}
