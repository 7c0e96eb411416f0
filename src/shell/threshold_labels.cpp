#include "shell/threshold_labels.h"

#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

QString AvecUnite(const MainScreen& ecran, const QString& texte) {
    return texte + QStringLiteral(" (") + ecran.ui->ListeUnites->Texte() + QLatin1Char(')');
}

}  // namespace

void MontrerTexteSeuil(MainScreen& ecran) {
    ecran.ui->LabelSeuil1->setText(AvecUnite(ecran, ecran.textes.TexteSeuil));
}

void ChercherTexteLimiteBasse(MainScreen& ecran) {
    ecran.textes.TexteLimiteBasse = ecran.Texte(QStringLiteral("Limite basse"));
}

void ChercherTexteLimiteHaute(MainScreen& ecran) {
    ecran.textes.TexteLimiteHaute = ecran.Texte(QStringLiteral("Limite Haute"));
}

void MontrerTextesLimites(MainScreen& ecran) {
    ecran.ui->LabelSeuil1->setText(AvecUnite(ecran, ecran.textes.TexteLimiteBasse));
    ecran.ui->LabelSeuil2->setText(AvecUnite(ecran, ecran.textes.TexteLimiteHaute));
}

}  // namespace bornika
