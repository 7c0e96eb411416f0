#include "service/firmware_update.h"

#include "link/device_identity.h"
#include "service/firmware_file.h"
#include "service/firmware_identity.h"
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
    Relecture RelireVersion();
    void RendreIdentite();
    void RendreNumero();

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

/// The form shows what the logger is now.
Relecture MiseAJourFirmware::RelireVersion() {
    if (etat_.TimeOut) return Relecture::PasDemandee;
    bool ok = true;
    const QString version = LitVersionKpod(poste_, ok);
    if (version.isEmpty()) return Relecture::SansReponse;
    ecran_.ui->Version->setText(version);
    return Relecture::Lue;
}

void MiseAJourFirmware::RendreIdentite() {
    const Relecture relecture = RelireVersion();
    const SuiteNumeroSerie suite = SuiteDeMiseAJour({.transferee = transferee_,
                                                     .ancienneVersion = ancienneVersion_,
                                                     .numeroConnu = !numeroSerie_.isEmpty(),
                                                     .relecture = relecture,
                                                     .autreEnregistreur = etat_.UsbID != usb_,
                                                     .nouvelleVersion = etat_.VersionLogiciel});
    if (suite.signaler) avis_.NumeroNonRendu(numeroSerie_);
    if (suite.rendre) RendreNumero();
}

void MiseAJourFirmware::RendreNumero() {
    ecran_.ui->ValeurNumeroSerie->setText(numeroSerie_);
    ProgNumeroSerie_Click(poste_);
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
