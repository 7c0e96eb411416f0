#include "service/flow_test.h"

#include "link/command_exchange.h"
#include "link/frames.h"
#include "ui_main_screen.h"

namespace bornika {

void Test_Debit(Poste& poste, bool OnOff) {
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    EchangeDirect(poste, TrameTestDebit(OnOff), longueurTrame, longueurTrame);
    poste.lien.FermeUSB();
}

void MnuFlowTest_Click(Poste& poste) {
    Test_Debit(poste, poste.ecran.ui->MnuFlowTest->isChecked());
}

}  // namespace bornika
