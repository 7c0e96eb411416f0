#include "retrieval/download_engine.h"

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/device_identity.h"
#include "link/frames.h"
#include "logger/parameter_reading.h"
#include "platform/fault.h"
#include "products/firmware_versions.h"
#include "recording/comment_file.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"
#include "widgets/pointer_shape.h"

namespace bornika {

namespace {

constexpr int longueurMesure = 10;
constexpr int echecsMuets = 4;

}  // namespace

void LireValeurs(Poste& poste, const SuiteTelechargement& suite) {
    MainScreen& ecran = poste.ecran;
    bool ok = true;
    LitVersionKpod(poste, ok);
    if (ecran.etat.VersionLogiciel >= version::carte) {
        MontrerMessage(ecran, Icone::Information,
                       QStringLiteral("Vous devez lires les données depuis la carte SD"));
        return;
    }
    LectureValeurs(poste, suite);
}

void LectureValeurs(Poste& poste, const SuiteTelechargement& suite) {
    // A transfer that another form has ended meanwhile still holds the link and its files until it
    // notices: its caption still says that a click cancels.
    if (poste.ecran.etat.EnLecture || Telechargement::EnTransfert()) {
        poste.ecran.etat.EnLecture = false;
        return;
    }
    Telechargement(poste, suite).Executer();
}

Telechargement::Telechargement(Poste& poste, const SuiteTelechargement& suite)
    : poste_(poste),
      ecran_(poste.ecran),
      suite_(suite),
      avancement_(poste.ecran),
      redacteur_(poste.ecran.systeme.regional) {}

/// While one lives, no other transfer can begin.
class Telechargement::Occupation {
  public:
    Occupation() { ++transferts_; }
    ~Occupation() { --transferts_; }
    Occupation(const Occupation&) = delete;
    Occupation& operator=(const Occupation&) = delete;
};

void Telechargement::Executer() {
    const Etat etat = Transferer();
    if (etat == Etat::NonCommence) return;
    if (echec_.Texte() && etat != Etat::Fermeture) DireEchec(*echec_.Texte());
    if (etat == Etat::FinNormale)
        TerminerNormalement();
    else
        TerminerSansSuite();
}

/// From the parameters to the closing of the files.
Telechargement::Etat Telechargement::Transferer() {
    const Occupation occupation;
    if (!Commencer()) return Etat::NonCommence;
    Etat etat = Etat::EnCours;
    while (etat == Etat::EnCours)
        etat = Tour();
    avancement_.Montrer();
    return Cloturer(etat);
}

bool Telechargement::Commencer() {
    AnnoncerLecture();
    if (!LireReglages()) return false;
    avancement_.Ouvrir();
    CreerFichiers();
    poste_.lien.OuvreUSB(ecran_.etat.UsbID);
    RelireFiche();
    return true;
}

void Telechargement::AnnoncerLecture() {
    ecran_.etat.TimeOut = false;
    // Weight and unit of a pulse are read with the others and used by the viewer only.
    ecran_.configuration.LitConfig(QStringLiteral("valeur_impulsion"));
    ecran_.configuration.LitConfig(QStringLiteral("unite_impulsion"));
    ecran_.etat.EnLecture = true;
    ecran_.ui->LireValeurs->setText(ecran_.Texte(QStringLiteral("Annuler Lecture")));
    // By hand, without a guard: a fault on the way to the files leaves pointer and caption so.
    pointeurSauve_ = PointeurSouris(ecran_);
    FixerPointeurSouris(ecran_, pointeur::fleche);
}

/// The pressures of the recording need the logger's set-up, the bar its number of measures.
bool Telechargement::LireReglages() {
    Lire_Parametres(poste_);
    if (!ecran_.etat.TimeOut) return true;
    ecran_.etat.EnLecture = false;
    RendreBouton(QStringLiteral("LireValeurs"));
    return false;
}

void Telechargement::CreerFichiers() {
    nom_ = NomDeBase(ecran_.systeme.horloge.Maintenant());
    ecran_.etat.Nom_Fichier = nom_;
    fichiers_.emplace(ecran_.systeme.Chemin(nom_), LigneEntete(ecran_.ui->ListeUnites->Texte()));
}

Telechargement::Etat Telechargement::Tour() {
    const Octets reponse = Demander();
    if (!SurvivreAuSilence()) return Etat::AppareilPerdu;
    avancement_.Avancer();
    Respirer();
    if (ecran_.etat.EnFermeture) return Etat::Fermeture;
    return Exploiter(reponse);
}

/// Asks for the next measure. Only the first request of a transfer says so: one that failed is not
/// sent again as the first.
Octets Telechargement::Demander() {
    const Octets requete = TrameLitMesures(premier_);
    premier_ = false;
    const bool parler = nbEchecs_ > echecsMuets;
    if (parler) avancement_.Montrer();
    return EchangeDirect(poste_, requete, longueurTrameMesures, longueurMesure, parler);
}

/// Five failures in a row are survived: the link is opened again and the transfer goes on.
bool Telechargement::SurvivreAuSilence() {
    if (!ecran_.etat.TimeOut) {
        nbEchecs_ = 0;
        return true;
    }
    if (nbEchecs_ > echecsMuets) return false;
    // The logger may be gone for good: what it gave is on the disk before anything waits.
    if (nbEchecs_ == 0) FichierTexteEcrit::ViderTous();
    ++nbEchecs_;
    poste_.lien.OuvreUSB(ecran_.etat.UsbID);
    ecran_.etat.TimeOut = false;
    return true;
}

/// Lets the interface run when it is due, with the displays brought up to date just before.
void Telechargement::Respirer() {
    Respiration& respiration = ecran_.systeme.respiration;
    if (!respiration.EstDue()) return;
    avancement_.Montrer();
    if (respiration.Ceder()) RelireFiche();
}

/// What the operator can change while the interface runs counts from the next line on. Between two
/// runs of it nothing of this is looked at: there are half a million lines.
void Telechargement::RelireFiche() {
    reglages_ = LireReglagesPression(ecran_);
    avancement_.Relire();
}

Telechargement::Etat Telechargement::Exploiter(const Octets& reponse) {
    // A click during the yield asks the logger for its version: if it was silent then, the measure
    // that is here already is not looked at any more.
    if (!ecran_.etat.TimeOut && reponse[0] == CMD_LIT_MESURES)
        decodeur_.Decoder(std::span<const int, 10>(reponse.data(), longueurMesure), *this);
    if (echec_.EstSurvenu()) return Etat::EcritureImpossible;
    return decodeur_.Fin() || !ecran_.etat.EnLecture ? Etat::FinNormale : Etat::EnCours;
}

void Telechargement::Compter(std::int32_t Compteur) {
    avancement_.Compter(Compteur);
}

/// A line that cannot be built is skipped like every fault of the decoding; one that cannot be
/// written ends the transfer: the logger still holds everything.
void Telechargement::Mesurer(const MesureDatee& mesure) {
    if (echec_.EstSurvenu()) return;
    QByteArrayView ligne;
    if (!ignorer([&] { ligne = Ligne(mesure); })) return;
    echec_.Garder([&] { fichiers_->Ecrire(mesure.parite_ok, ligne); });
}

/// Only a periodic measure that failed the parity control gets the absolute correction: recordings
/// have always been like that.
QByteArrayView Telechargement::Ligne(const MesureDatee& mesure) {
    const bool absolue = !mesure.impulsion && !mesure.parite_ok && reglages_.absolue;
    const double pression = PressionCorrigee(mesure.points, reglages_, absolue);
    if (mesure.impulsion)
        return redacteur_.Impulsion(mesure.secondes, mesure.millisecondes, mesure.points, pression,
                                    mesure.taux);
    return redacteur_.Periodique(mesure.secondes, mesure.millisecondes, mesure.points, pression);
}

/// Closes what the transfer held. The files are complete after the normal end alone; whatever the
/// end, lines that do not reach the disk are told.
Telechargement::Etat Telechargement::Cloturer(Etat etat) {
    const bool complets = etat == Etat::FinNormale;
    if (complets) poste_.lien.FermeUSB();
    const bool sauves = FermerFichiers(complets);
    return complets && !sauves ? Etat::EcritureImpossible : etat;
}

/// Closes both files, the second one whatever the first one gave. False when lines were lost.
bool Telechargement::FermerFichiers(bool complets) {
    echec_.Garder([this] { fichiers_->FermerMesures(); });
    echec_.Garder([&] { fichiers_->FermerRejets(complets); });
    fichiers_.reset();
    return !echec_.EstSurvenu();
}

void Telechargement::TerminerNormalement() {
    avancement_.Fermer();
    ecran_.etat.EnLecture = false;
    ignorer([this] { RendreBouton(QStringLiteral("Lire les valeurs")); });
    const QString fichier = nom_ + QStringLiteral(".txt");
    const QString commentaires =
        ecran_.ui->Commentaire->text() + QStringLiteral("\r\n") + ecran_.etat.Rapport;
    try {
        suite_.commenter(commentaires, fichier);
    } catch (const FauteExecution& faute) {
        DireEchec(NomCommentaires(nom_) + QStringLiteral(" : ") + faute.texte());
    }
    avancement_.Conclure();
    ignorer([&] {
        MontrerTexte(ecran_, Icone::Information,
                     ecran_.textes.TexteValeursStockees + QLatin1Char(' ') + fichier);
    });
    if (!ecran_.etat.EnFermeture) ignorer([&] { suite_.montrer(fichier); });
}

/// The files stay as far as they got. The bar and its text stay too: they tell how far that was.
void Telechargement::TerminerSansSuite() {
    ecran_.etat.EnLecture = false;
    ignorer([this] { RendreBouton(QStringLiteral("LireValeurs")); });
    poste_.lien.FermeUSB();
}

void Telechargement::DireEchec(const QString& texte) {
    MontrerTexte(ecran_, Icone::Critique, texte);
}

/// Pointer and caption as they are when nothing is read.
void Telechargement::RendreBouton(const QString& cle) {
    FixerPointeurSouris(ecran_, pointeurSauve_);
    ecran_.ui->LireValeurs->setText(ecran_.Texte(cle));
}

}  // namespace bornika
