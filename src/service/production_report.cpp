#include "service/production_report.h"

#include <QStringList>

#include "platform/block_append.h"
#include "platform/code_page.h"
#include "platform/named_fault.h"
#include "platform/numbers.h"
#include "products/products.h"
#include "service/production_form.h"
#include "settings/text_catalogue.h"
#include "shell/captions.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"
#include "ui_production_form.h"

namespace bornika {

namespace {

constexpr int longueurTrait = 42;

QString Ligne(const Rubrique& rubrique) {
    return rubrique.etiquette + QStringLiteral(" : ") + rubrique.valeur;
}

// An empty text for a dialog that was left.
QString DemanderJournal(Systeme& systeme) {
    DemandeFichier demande;
    demande.filtre = QStringLiteral("Log Files (*.LOG)|*.LOG");
    demande.dossier = systeme.dossier;
    demande.ajout = true;
    return systeme.dialogues.Enregistrer(demande).value_or(QString());
}

}  // namespace

QByteArray BlocProduction(const RapportProduction& r) {
    const QString blanc = QStringLiteral(" ");
    QString commentaires = r.commentaires;
    commentaires.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    QStringList lignes = {blanc,
                          QString(longueurTrait, QLatin1Char('-')),
                          r.date,
                          blanc,
                          r.commande.etiquette + blanc + r.commande.valeur,
                          blanc,
                          Ligne(r.version),
                          Ligne(r.numeroSerie),
                          Ligne(r.dateCourante),
                          Ligne(r.tensionPile),
                          Ligne(r.capteur),
                          blanc};
    for (const QString& resume : r.resumes)
        lignes += resume;
    lignes += {r.commentaire.etiquette, r.commentaire.valeur, blanc, commentaires, blanc};
    return Vers8Bits(lignes.join(QLatin1String("\r\n")) + QLatin1String("\r\n"));
}

QString TexteProduit(const QString& version, std::int32_t TypekPod, bool drapeau) {
    const bool jamaisLu = version == QLatin1String("--");
    const QStringList parties =
        (jamaisLu ? QStringLiteral("(1)--") : version).split(QLatin1Char(')'));
    const QString type = QString(parties[0]).remove(QLatin1Char('('));
    // A logger that was chosen and not read shows "k-Pod = 1 2-110": a report all the same, no
    // fault.
    if (parties.size() < 2 || !EstNumerique(type, Regional{}))
        return NomProduit(TypekPod, drapeau) + QLatin1Char(' ') + version;
    return NomProduit(EnEntier32(type, Regional{}), drapeau) + parties[1];
}

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
            .version = {Caption(*ui.LabelVersion),
                        TexteProduit(Caption(*ui.Version), ecran.etat.TypekPod,
                                     DrapeauProduit(systeme.dossier))},
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
    nommer(chemin, [&] { AjouterBloc(chemin, BlocProduction(rapport)); });
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
