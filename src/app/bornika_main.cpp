#include "app/application.h"
#include "app/program.h"
#include "platform/no_loggers.h"
#include "platform/program_folder.h"
#include "shell/main_screen.h"

int main(int argc, char** argv) {
    using namespace bornika;
    Application application(argc, argv);
    PreparerApplication();

    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    AucunEnregistreur usb;
    Respiration respiration;
    Systeme systeme{horloge,           dialogues, usb, respiration, Regional::DuSysteme(),
                    DossierProgramme()};
    return Executer(systeme);
}
