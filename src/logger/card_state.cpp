#include "logger/card_state.h"

#include "platform/colour.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr Couleur noir = 0;
constexpr Couleur rouge = 255;

}  // namespace

void MontrerCarte(MainScreen& ecran, bool presente) {
    QLabel& etiquette = *ecran.ui->SDCardState;
    etiquette.setText(ecran.Texte(presente ? QStringLiteral("SD CARD Present")
                                           : QStringLiteral("SD CARD Absent")));
    QPalette palette = etiquette.palette();
    palette.setColor(QPalette::WindowText, VersQColor(presente ? noir : rouge));
    etiquette.setPalette(palette);
}

}  // namespace bornika
