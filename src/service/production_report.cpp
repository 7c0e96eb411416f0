#include "service/production_report.h"

#include "platform/block_append.h"
#include "platform/named_fault.h"
#include "service/production_form.h"
#include "settings/text_catalogue.h"
#include "shell/captions.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"
#include "ui_production_form.h"

namespace bornika {

namespace {

// An empty text for a dialog that was left.
QString DemanderJournal(Systeme& systeme) {
    DemandeFichier demande;
    demande.filtre = QStringLiteral("Log Files (*.LOG)|*.LOG");
    demande.dossier = systeme.dossier;
    demande.ajout = true;
    return systeme.dialogues.Enregistrer(demande).value_or(QString());
}

}  // namespace

QString CheminJournal(const QString& dossier, const QString& commande) {
    const QString extension = QStringLiteral(".log");
    const bool entier = commande.contains(extension, Qt::CaseInsensitive);
    return dossier + QLatin1Char('/') + (entier ? commande : commande + extension);
}

RapportProduction LireRapport(frmProduction& fiche) {
    MainScreen& ecran = fiche.ecran;
    const auto& ui = *ecran.ui;
    const Systeme& systeme = ecran.systeme;
    return {.date = systeme.horloge.Maintenant().toString(systeme.regional.dateCourte +
                                                          QStringLiteral(" HH:mm:ss")),
            .commande = {Caption(*fiche.ui->LabelNumeroCommande), fiche.ui->Commande->text()},
            .version = {Caption(*ui.LabelVersion), Caption(*ui.Version)},
            .TypekPod = ecran.etat.TypekPod,
            .drapeau = DrapeauProduit(systeme.dossier),
            .numeroSerie = {Caption(*ui.LabelNumeroSerie), Caption(*ui.NumeroSerie)},
            .dateCourante = {Caption(*ui.LabelDateCourante), Caption(*ui.DateCourante)},
            .tensionPile = {Caption(*ui.LabelTensionPile), Caption(*ui.TensionPile)},
            .capteur = {Caption(*ui.Label1), ui.ListeEchelles->Texte()},
            .resumes = {Caption(*ui.ResumeAcquisition), Caption(*ui.ResumeBuffer),
                        Caption(*ui.ResumeSeuil), Caption(*ui.ResumePeriodeTrigger),
                        Caption(*ui.ResumeMonoCoup)},
            .commentaire = {Caption(*ui.LabelCommentaire), ui.Commentaire->text()},
            .commentaires = fiche.ui->Commentaires->toPlainText()};
}

bool EcrireRapport(MainScreen& ecran, const QString& chemin, const RapportProduction& rapport) {
    if (chemin.isEmpty()) {
        MontrerMessage(ecran, Icone::Exclamation,
                       QStringLiteral("Vous devez saisir un N° de commande"));
        return false;
    }
    // What the block cannot hold is no failure of the file: it does not bear its name.
    const QByteArray bloc = BlocProduction(rapport);
    nommer(chemin, [&] { AjouterBloc(chemin, bloc); });
    return true;
}

void PrintReport(frmProduction& fiche) {
    Systeme& systeme = fiche.ecran.systeme;
    const QString commande = fiche.ui->Commande->text();
    QString journal;
    if (!commande.isEmpty())
        journal = CheminJournal(systeme.dossier, commande);
    else if ((journal = DemanderJournal(systeme)).isEmpty())
        return;
    if (EcrireRapport(fiche.ecran, journal, LireRapport(fiche))) fiche.hide();
}

}  // namespace bornika
