#include "link/device_discovery.h"

#include <QApplication>

#include "link/connect_form.h"
#include "link/connect_hint.h"
#include "link/device_identity.h"
#include "link/frames.h"
#include "link/selection_form.h"
#include "platform/numbers.h"
#include "products/products.h"
#include "settings/text_catalogue.h"
#include "ui_connect_form.h"
#include "ui_main_screen.h"
#include "widgets/modal.h"
#include "widgets/pointer_shape.h"

namespace bornika {

namespace {

constexpr int longueurIdentite = 6;
constexpr int roleIdentifiant = Qt::UserRole;

/// The form has to stand in front of the main form once that is there.
QWidget* ParentDeListe(MainScreen& ecran) {
    return ecran.isVisible() ? &ecran : nullptr;
}

bool DrapeauEdition(const MainScreen& ecran) {
    return DrapeauProduit(ecran.systeme.dossier);
}

/// Asks the logger `UsbID` who it is and shows its version on the main form.
bool LireIdentite(Poste& poste) {
    bool ok = false;
    poste.ecran.ui->Version->setText(LitVersionKpod(poste, ok));
    poste.ecran.etat.TypekPod = EnEntier32(ValeurDebut(LitTypeKpod(poste)));
    return ok;
}

void AjouterLigne(frmConnect& fiche, int index, const QString& numero, IdentifiantUsb ancienID) {
    QString texte = fiche.poste.ecran.ui->Version->text();
    if (!numero.isEmpty()) texte += QLatin1String("-->") + numero;
    auto* ligne = new QListWidgetItem(texte, fiche.ui->Listekrow);
    const QFontMetrics police = fiche.ui->Listekrow->fontMetrics();
    ligne->setSizeHint({police.horizontalAdvance(texte) + police.height(), 2 * police.height()});
    const IdentifiantUsb id = fiche.poste.ecran.systeme.usb.Identifiant(index);
    ligne->setData(roleIdentifiant, id);
    if (id == ancienID) fiche.ui->Listekrow->setCurrentItem(ligne);
}

void SonderAppareil(frmConnect& fiche, int index, bool voirTout, IdentifiantUsb ancienID) {
    Poste& poste = fiche.poste;
    EtatApplication& etat = poste.ecran.etat;
    etat.UsbID = poste.ecran.systeme.usb.Identifiant(index);
    fiche.Veille.NoterBranche(etat.UsbID);
    etat.TimeOut = false;
    poste.ecran.ui->Version->clear();
    QString numero;
    const bool ok = LireIdentite(poste);
    if (!etat.TimeOut && ok) numero = LitNumeroSerieKpod(poste);
    if (!etat.TimeOut && (voirTout || ok)) AjouterLigne(fiche, index, numero, ancienID);
}

std::set<IdentifiantUsb> BranchesMaintenant(InterfaceUsb& usb) {
    std::set<IdentifiantUsb> branches;
    const int nombre = usb.Compte();
    for (int i = 0; i < nombre; ++i)
        branches.insert(usb.Identifiant(i));
    return branches;
}

IdentifiantUsb IdentifiantDe(const QListWidgetItem& ligne) {
    return ligne.data(roleIdentifiant).toInt();
}

/// The line of that logger, or null.
QListWidgetItem* LigneDe(const QListWidget& liste, IdentifiantUsb id) {
    for (int i = 0; id != 0 && i < liste.count(); ++i)
        if (IdentifiantDe(*liste.item(i)) == id) return liste.item(i);
    return nullptr;
}

/// Rebuilds the list with the selection that the operator sees. Where there is none, a choice made
/// earlier is shown again when its logger comes back; one that was only asked last is none. The
/// toolkit's own current line, which the keyboard starts from, is not a selection.
void RebatirListe(frmConnect& fiche) {
    QListWidget& liste = *fiche.ui->Listekrow;
    const QListWidgetItem* ligne = liste.currentItem();
    const IdentifiantUsb courant = ligne ? IdentifiantDe(*ligne) : 0;
    const IdentifiantUsb choisi =
        ligne && ligne->isSelected() ? courant : fiche.Veille.ChoixRetenu();
    Enumere(fiche, fiche.ui->ViewAll->isChecked());
    if (QListWidgetItem* retrouvee = LigneDe(liste, choisi))
        liste.setCurrentItem(retrouvee);
    else
        liste.setCurrentItem(LigneDe(liste, courant), QItemSelectionModel::Clear);
}

bool EstSousUnAutre(const frmConnect& fiche) {
    const QWidget* modale = QApplication::activeModalWidget();
    return modale && modale != &fiche;
}

}  // namespace

void MontrerConnexion(Poste& poste) {
    frmConnect fiche(poste, ParentDeListe(poste.ecran));
    fiche.Charger();
    MontrerModal(fiche);
}

void MontrerSelection(Poste& poste) {
    FormSelection fiche(poste.ecran, ParentDeListe(poste.ecran));
    fiche.Charger();
    MontrerModal(fiche);
}

void Enumere(frmConnect& fiche, bool voirTout) {
    EtatApplication& etat = fiche.poste.ecran.etat;
    fiche.ui->Listekrow->clear();
    fiche.Veille.OublierBranches();
    const int forme = PointeurSouris(fiche);
    FixerPointeurSouris(fiche, pointeur::sablier);
    const IdentifiantUsb ancienID = etat.UsbID;
    fiche.Veille.FixerNombre(fiche.poste.ecran.systeme.usb.Compte());
    for (int i = 0; i < fiche.Veille.Nombre(); ++i)
        SonderAppareil(fiche, i, voirTout, ancienID);
    // Without an earlier choice the identifier of the last logger asked stays.
    if (ancienID != 0) etat.UsbID = ancienID;
    FixerPointeurSouris(fiche, forme);
    AfficherIndication(fiche, true);
}

void Veiller(frmConnect& fiche) {
    if (fiche.Veille.EnConstruction() || !fiche.Veille.Active() || EstSousUnAutre(fiche)) return;
    if (BranchesMaintenant(fiche.poste.ecran.systeme.usb) == fiche.Veille.Branches())
        return AfficherIndication(fiche, false);
    fiche.Veille.Batir([&] { RebatirListe(fiche); });
}

void ViewAll_Click(frmConnect& fiche) {
    fiche.Veille.Batir([&] { Enumere(fiche, fiche.ui->ViewAll->isChecked()); });
}

void Listekrow_Click(frmConnect& fiche) {
    const QListWidgetItem* ligne = fiche.ui->Listekrow->currentItem();
    if (!ligne || fiche.ui->ViewAll->isChecked() || fiche.Veille.EnConstruction()) return;
    Poste& poste = fiche.poste;
    EtatApplication& etat = poste.ecran.etat;
    etat.UsbID = IdentifiantDe(*ligne);
    if (etat.UsbID == 0) return;
    fiche.Veille.Arreter();
    LireIdentite(poste);
    etat.NomKpod = NomProduit(etat.TypekPod, DrapeauEdition(poste.ecran));
    etat.Connected = true;
    fiche.accept();
}

void ExitEtalonnage_Click(frmConnect& fiche) {
    fiche.reject();
}

void TypekPod_Click(FormSelection& fiche, int index) {
    EtatApplication& etat = fiche.ecran.etat;
    etat.TypekPod = index % 2 == 0 ? 1 : 20;
    etat.NomKpod = NomProduit(etat.TypekPod, index < 2);
}

void Selection_Click(FormSelection& fiche) {
    fiche.accept();
}

void LitVersion(Poste& poste, IdentifiantUsb id, bool& estKpod, QString& texte) {
    poste.lien.OuvreUSB(id);
    poste.lien.UsbWrite(TrameIdentifie(), longueurTrameIdentifie);
    const Octets r = poste.lien.UsbRead(longueurIdentite, QString(), false, true, QString());
    poste.lien.FermeUSB();
    texte = QStringLiteral("%1 ( %2) %3.%4%5")
                .arg(NomProduit(r[2], DrapeauEdition(poste.ecran)))
                .arg(r[2])
                .arg(r[1])
                .arg(r[4])
                .arg(r[3]);
    estKpod = EstKpod(r[2]);
}

}  // namespace bornika
