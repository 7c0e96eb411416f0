#include "logger/context_reading.h"

#include "context/addressed_fields.h"
#include "context/context_values.h"
#include "context/pulse_parameters.h"
#include "link/memory_access.h"
#include "logger/display_statement.h"
#include "platform/numbers.h"
#include "ui_main_screen.h"

namespace bornika {

Suite LireFormatHeure(LectureParametres& lecture) {
    const Octets octets = LitEEpromInterne(lecture.poste, adresseFormatHeure, true);
    if (lecture.ecran.etat.TimeOut || octets.empty()) return Suite::Terminer;
    const auto& ui = lecture.ecran.ui;
    QRadioButton& option = EstVingtQuatreHeures(octets.front()) ? *ui->AMPM_1 : *ui->AMPM_0;
    afficher([&] { option.setChecked(true); });
    return Suite::Continuer;
}

Suite LirePoidsImpulsion(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    float poids = 0;
    LitPoidsImpulsion(lecture.poste, poids);
    if (ecran.etat.TimeOut) return Suite::Terminer;
    afficher([&] { ecran.ui->CoefImpulsion->setText(TexteCourt(poids, ecran.systeme.regional)); });
    return Suite::Continuer;
}

Suite LireUniteImpulsion(LectureParametres& lecture) {
    QLineEdit& boite = *lecture.ecran.ui->UniteImpulsion;
    afficher([&] { boite.setText({}); });
    const Octets octets = LitEEpromInterne(lecture.poste, adresseUniteImpulsion, true);
    if (lecture.ecran.etat.TimeOut) return Suite::Terminer;
    afficher([&] { boite.setText(UniteDeOctets(octets)); });
    return Suite::Continuer;
}

Suite LireTempsDebit(LectureParametres& lecture) {
    float base = 0;
    LitTempsDebit(lecture.poste, base);
    if (lecture.ecran.etat.TimeOut) return Suite::Terminer;
    if (const auto position = PositionDeBase(base))
        afficher([&] { lecture.ecran.ui->ListeTemps->Choisir(*position); });
    return Suite::Continuer;
}

}  // namespace bornika
