#include "retrieval/download_progress.h"

#include "platform/numbers.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

QString TexteAvance(double valeur, double maximum) {
    return QString::number(valeur, 'f', 0) + QLatin1Char('/') + QString::number(maximum, 'f', 0);
}

}  // namespace

void Avancement::Ouvrir() {
    BarreProgression& barre = *ecran_.ui->ProgressBar2;
    barre.FixerValeur(barre.Minimum());
    barre.show();
    ecran_.ui->Infos->show();
}

void Avancement::Relire() {
    maximumBarre_ = ArrondiPair(ecran_.ui->ProgressBar2->Maximum());
}

void Avancement::Compter(std::int32_t Compteur) {
    if (Compteur > maximumBarre_) return;
    compteur_ = Compteur;
    maximum_ = maximumBarre_;
    texteNote_ = true;
}

void Avancement::Montrer() {
    BarreProgression& barre = *ecran_.ui->ProgressBar2;
    const double avant = barre.Valeur();
    double valeur = avant;
    for (; pas_ > 0 && barre.Maximum() > valeur + 1; --pas_)
        valeur += 1;
    pas_ = 0;
    if (valeur != avant) barre.FixerValeur(valeur);
    if (texteNote_) ecran_.ui->Infos->setText(TexteAvance(compteur_, maximum_));
    texteNote_ = false;
}

void Avancement::Fermer() {
    ecran_.ui->ProgressBar2->hide();
    ecran_.ui->Infos->hide();
}

void Avancement::Conclure() {
    const BarreProgression& barre = *ecran_.ui->ProgressBar2;
    ecran_.ui->Infos->setText(
        TexteAvance(ArrondiPair(barre.Valeur()), ArrondiPair(barre.Maximum())));
}

}  // namespace bornika
