#include "link/connect_hint.h"

#include "link/connect_form.h"
#include "ui_connect_form.h"

namespace bornika {

namespace {

EtatListe EtatDe(const frmConnect& fiche) {
    return {static_cast<int>(fiche.Veille.Branches().size()), fiche.ui->Listekrow->count(),
            fiche.ui->ViewAll->isChecked(), fiche.poste.ecran.systeme.usb.Absence()};
}

/// The file that the hint sends to; empty for none.
QString FichierIndique(const MainScreen& ecran, Indication indication) {
    if (indication == Indication::SansReglage || indication == Indication::SansPoints)
        return ecran.configuration.Chemin();
    if (indication == Indication::SansDroits)
        return ecran.systeme.Chemin(QStringLiteral("install-udev-rule"));
    return {};
}

}  // namespace

Indication IndicationPour(const EtatListe& etat) {
    if (etat.absence == AbsenceUsb::SansDroits) return Indication::SansDroits;
    if (etat.absence == AbsenceUsb::SansPoints) return Indication::SansPoints;
    if (etat.lignes > 0) return etat.voirTout ? Indication::ToutVoir : Indication::Choisir;
    if (etat.branches > 0) return Indication::SansReponse;
    if (etat.absence == AbsenceUsb::SansReglage) return Indication::SansReglage;
    return Indication::AucunBranche;
}

QString CleIndication(Indication indication) {
    switch (indication) {
        case Indication::Choisir:
            return QStringLiteral("IndicationChoisir");
        case Indication::ToutVoir:
            return QStringLiteral("IndicationToutVoir");
        case Indication::SansReponse:
            return QStringLiteral("IndicationSansReponse");
        case Indication::SansReglage:
            return QStringLiteral("IndicationSansReglage");
        case Indication::SansDroits:
            return QStringLiteral("IndicationSansDroits");
        case Indication::SansPoints:
            return QStringLiteral("IndicationSansPoints");
        case Indication::AucunBranche:
            break;
    }
    return QStringLiteral("IndicationAucun");
}

void AfficherIndication(frmConnect& fiche, bool toujours) {
    const Indication indication = IndicationPour(EtatDe(fiche));
    if (!fiche.Veille.ChangerIndication(indication) && !toujours) return;
    MainScreen& ecran = fiche.poste.ecran;
    QString texte = ecran.Texte(CleIndication(indication));
    const QString fichier = FichierIndique(ecran, indication);
    if (!fichier.isEmpty()) texte += u'\n' + fichier;
    fiche.ui->LabelIndication->setText(texte);
}

}  // namespace bornika
