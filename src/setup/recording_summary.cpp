#include "setup/recording_summary.h"

#include "shell/main_screen.h"
#include "ui_main_screen.h"

// The keys begin with a blank of their own, so that two blanks stand in front of each sentence.
namespace bornika {

namespace {

constexpr QChar blanc = u' ';

QString ResumeAcquisition(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    const QString debut = blanc + ecran.Texte(QStringLiteral(" Acquisition toutes les")) + blanc;
    if (ui->ListePeriodeEchantillonage->Index() != 0) {
        return debut + ui->ListePeriodeEchantillonage->Texte();
    }
    return debut + ui->DureeSaisie->text() + blanc + ecran.Texte(QStringLiteral("Seconde(s)"));
}

QString ResumeBuffer(MainScreen& ecran) {
    return blanc +
           ecran.Texte(ecran.ui->BufferTournant->isChecked()
                           ? QStringLiteral(" Les anciennes valeurs seront écrasées")
                           : QStringLiteral(" Les anciennes valeurs ne seront pas écrasées"));
}

QString ResumeUnSeuil(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    return blanc +
           ecran.Texte(ui->AuDessous->isChecked() ? QStringLiteral(" Acquisition au dessous de ")
                                                  : QStringLiteral(" Acquisition au dessus de ")) +
           blanc + ui->Seuil1->text() + blanc + ui->ListeUnites->Texte();
}

QString ResumeDeuxSeuils(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    const bool dedans = ui->AuDessous->isChecked();
    const QString unite = blanc + ui->ListeUnites->Texte();
    const QString debut = ecran.Texte(dedans ? QStringLiteral(" Acquisition entre")
                                             : QStringLiteral(" Acquisition en dehors de"));
    const QString et = ecran.Texte(dedans ? QStringLiteral("et") : QStringLiteral("et de"));
    return blanc + debut + blanc + ui->Seuil1->text() + unite + blanc + et + blanc +
           ui->Seuil2->text() + unite;
}

QString ResumeSeuil(MainScreen& ecran) {
    if (ecran.etat.ModeAvance && ecran.ui->UnSeuil->isChecked()) return ResumeUnSeuil(ecran);
    if (ecran.etat.ModeAvance && ecran.ui->DeuxSeuils->isChecked()) return ResumeDeuxSeuils(ecran);
    return blanc + ecran.Texte(QStringLiteral(" Acquisition immédiate"));
}

QString ResumePeriodeTrigger(MainScreen& ecran) {
    if (!ecran.etat.ModeAvance || ecran.ui->PasDeSeuil->isChecked()) return {};
    return blanc + ecran.Texte(QStringLiteral(" Echantillonnage après trigger toutes les ")) +
           blanc + ecran.ui->PeriodeTrigger->Texte();
}

QString ResumeMonoCoup(MainScreen& ecran) {
    if (!ecran.ui->OneShot->isChecked() || ecran.ui->PasDeSeuil->isChecked()) return {};
    return blanc + ecran.Texte(QStringLiteral(" Mode mono coup armé"));
}

}  // namespace

void Donne_Resume(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    ui->ResumeAcquisition->setText(ResumeAcquisition(ecran));
    ui->ResumeBuffer->setText(ResumeBuffer(ecran));
    ui->ResumeSeuil->setText(ResumeSeuil(ecran));
    ui->ResumePeriodeTrigger->setText(ResumePeriodeTrigger(ecran));
    ui->ResumeMonoCoup->setText(ResumeMonoCoup(ecran));
}

}  // namespace bornika
