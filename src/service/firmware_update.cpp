#include "service/firmware_update.h"

#include "link/device_identity.h"
#include "products/firmware_versions.h"
#include "service/firmware_file.h"
#include "service/firmware_notice.h"
#include "service/serial_number.h"
#include "settings/text_catalogue.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

/// Between two looks at the tool, in milliseconds.
constexpr int pauseEntreRegards = 10;

class MiseAJourFirmware {
  public:
    explicit MiseAJourFirmware(Poste& poste)
        : poste_(poste),
          ecran_(poste.ecran),
          etat_(poste.ecran.etat),
          drapeau_(DrapeauProduit(poste.ecran.systeme.dossier)),
          usb_(etat_.UsbID) {}

    void Executer() {
        if (!Confirmer()) return;
        RetenirIdentite();
        if (!ChoisirFichier()) return;
        // The tool needs the logger for itself.
        poste_.lien.FermeUSB();
        if (!ProduitPermis() || !NomValide()) return;
        Transferer();
        if (!etat_.EnFermeture) RendreIdentite();
    }

  private:
    bool Confirmer();
    void RetenirIdentite();
    bool ChoisirFichier();
    bool ProduitPermis();
    bool NomValide();
    void Transferer();
    QString RelireVersion();
    void RendreIdentite();
    void SignalerNumero();

    Poste& poste_;
    MainScreen& ecran_;
    EtatApplication& etat_;
    const bool drapeau_;
    const IdentifiantUsb usb_;
    AvisFirmware avis_{ecran_};
    bool transferee_ = false;
    double ancienneVersion_ = 0;
    QString numeroSerie_;
    QString fichier_;
};

bool MiseAJourFirmware::Confirmer() {
    const QString question =
        ecran_.Texte(QStringLiteral("Etes vous sur de vouloir changer la version actuelle ? "));
    return MontrerBoite(ecran_, Icone::Question, Boutons::OuiNon, question) == Reponse::Oui;
}

/// A logger that is absent leaves version 0 and no number, and the update goes on.
void MiseAJourFirmware::RetenirIdentite() {
    if (etat_.TimeOut) return;
    bool ok = true;
    LitVersionKpod(poste_, ok);
    if (etat_.TimeOut) return;
    ancienneVersion_ = etat_.VersionLogiciel;
    numeroSerie_ = LitNumeroSerieKpod(poste_);
}

bool MiseAJourFirmware::ChoisirFichier() {
    DemandeFichier demande;
    demande.titre = ecran_.Texte(QStringLiteral("Ouvrir Fichier HEX"));
    demande.filtre = QStringLiteral("INHEX32 Files (*.HEX)|*.HEX");
    demande.dossier = ecran_.systeme.dossier;
    fichier_ = ecran_.systeme.dialogues.Ouvrir(demande).value_or(QString());
    return !fichier_.isEmpty() && !etat_.EnFermeture;
}

/// Without maintenance mode, a product whose files have no rule ends here, and nothing is said.
bool MiseAJourFirmware::ProduitPermis() {
    return ecran_.configuration.LitMaintenance() || AUneRegleFirmware(etat_.TypekPod);
}

bool MiseAJourFirmware::NomValide() {
    if (EstFirmwarePour(fichier_, etat_.TypekPod, drapeau_)) return true;
    MontrerTexte(ecran_, Icone::Exclamation,
                 fichier_ + QStringLiteral(" : \n") +
                     ecran_.Texte(QStringLiteral("Invalid File Name")) + QStringLiteral(" : ") +
                     FormeNomFirmware(etat_.TypekPod, drapeau_));
    return false;
}

/// Until the tool has ended or the program is being closed.
void MiseAJourFirmware::Transferer() {
    const Systeme& systeme = ecran_.systeme;
    const AppelChargeur appel =
        CommandeChargeur(systeme.dossier, ecran_.Langue(), usb_, fichier_, etat_.TypekPod);
    const auto outil = systeme.lancer(appel.programme, appel.argument);
    if (!outil) return avis_.SansOutil(appel.programme);
    transferee_ = true;
    avis_.EnCours(fichier_);
    while (!etat_.EnFermeture && outil->EnCours()) {
        systeme.horloge.Pause(pauseEntreRegards);
        systeme.respiration.Ceder();
    }
    avis_.Fini();
}

/// The form shows what the logger is now. "" from a logger that gives no version.
QString MiseAJourFirmware::RelireVersion() {
    bool ok = true;
    const QString version = LitVersionKpod(poste_, ok);
    if (!version.isEmpty()) ecran_.ui->Version->setText(version);
    return version;
}

void MiseAJourFirmware::RendreIdentite() {
    if (etat_.TimeOut) return SignalerNumero();
    const QString version = RelireVersion();
    // Another logger may have been chosen meanwhile: it keeps its own number.
    const bool autre = etat_.UsbID != usb_;
    if (autre || version.isEmpty()) SignalerNumero();
    const bool franchie =
        ancienneVersion_ < version::numeroSerie && etat_.VersionLogiciel >= version::numeroSerie;
    if (autre || !franchie) return;
    ecran_.ui->ValeurNumeroSerie->setText(numeroSerie_);
    ProgNumeroSerie_Click(poste_);
}

/// The logger cannot be asked whether it has lost its number: the operator gets it instead.
void MiseAJourFirmware::SignalerNumero() {
    const bool menace = transferee_ && ancienneVersion_ < version::numeroSerie;
    if (menace && !numeroSerie_.isEmpty()) avis_.NumeroNonRendu(numeroSerie_);
}

/// Disables the entry while the operation lasts.
class EntreeOccupee {
  public:
    explicit EntreeOccupee(QAction& entree) : entree_(entree) { entree_.setEnabled(false); }
    ~EntreeOccupee() { entree_.setEnabled(true); }
    EntreeOccupee(const EntreeOccupee&) = delete;
    EntreeOccupee& operator=(const EntreeOccupee&) = delete;

  private:
    QAction& entree_;
};

}  // namespace

void nmuBootLoad_Click(Poste& poste) {
    QAction& entree = *poste.ecran.ui->nmuBootLoad;
    if (!entree.isEnabled()) return;
    const EntreeOccupee occupee(entree);
    MiseAJourFirmware(poste).Executer();
}

}  // namespace bornika
