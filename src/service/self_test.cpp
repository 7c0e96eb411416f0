#include "service/self_test.h"

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/frames.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr int longueurTest = 8;
constexpr int longueurDetection = 4;
constexpr int testAvecMesure = 2;

}  // namespace

void Test_Click(Poste& poste) {
    auto& ui = *poste.ecran.ui;
    ui.Valeurcodetest->clear();
    ui.Mesuretest->clear();
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    Tampon buffer{};
    if (Envoi_Entete(poste, CMD_TEST, buffer, longueurTest, true)) {
        const int code = buffer[2];
        ui.Valeurcodetest->setText(QString::number(code));
        if (code == testAvecMesure)
            ui.Mesuretest->setText(QString::number(buffer[3] * 256 + buffer[4]));
    }
    poste.lien.FermeUSB();
}

void LireValeurDetectionCapteur_Click(Poste& poste) {
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    const Octets reponse =
        EchangeDirect(poste, TrameLitDetection(), longueurTrame, longueurDetection);
    // Low byte first, from the first byte on: unlike the measure of the test.
    poste.ecran.ui->ValeurDetectionCapteur->setText(QString::number(reponse[1] * 256 + reponse[0]));
    poste.lien.FermeUSB();
}

}  // namespace bornika
