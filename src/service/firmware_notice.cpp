#include "service/firmware_notice.h"

#include <QFileInfo>

#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

void AvisFirmware::EnCours(const QString& fichier) {
    MontrerLigne(ecran_.Texte(QStringLiteral("nmuBootLoad")) + QStringLiteral(" : ") +
                 QFileInfo(fichier).fileName());
}

void AvisFirmware::Fini() {
    if (ecran_.ui->Infos->text() == texte_) ecran_.ui->Infos->hide();
}

void AvisFirmware::SansOutil(const QString& programme) {
    MontrerLigne(ecran_.Texte(QStringLiteral("FirmwareSansOutil")) + QLatin1Char(' ') + programme);
}

void AvisFirmware::NumeroNonRendu(const QString& numeroSerie) {
    MontrerLigne(ecran_.Texte(QStringLiteral("FirmwareNumeroNonRendu")) + QLatin1Char(' ') +
                 numeroSerie);
}

void AvisFirmware::MontrerLigne(const QString& texte) {
    texte_ = texte;
    ecran_.ui->Infos->setText(texte);
    ecran_.ui->Infos->show();
}

}  // namespace bornika
