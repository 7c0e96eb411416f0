#include "app/application.h"
#include "app/program.h"
#include "platform/program_folder.h"
#include "settings/config_store.h"
#include "settings/usb_element.h"
#include "shell/main_screen.h"
#include "usb/usb_loggers.h"
#include "widgets/toolkit_dialogs.h"

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
