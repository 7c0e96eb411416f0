#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "link/station.h"
#include "recording/recording_file.h"
#include "retrieval/download_progress.h"
#include "retrieval/measure_group.h"
#include "retrieval/pressure_settings.h"
#include "retrieval/write_failure.h"

namespace bornika {

class AccesTrace;

/// What follows a download in the viewer. `fichier` is the bare name of the ".txt" file.
struct SuiteTelechargement {
    /// Keeps the comments of the recording and stores them beside it. Fault when that cannot be.
    std::function<void(const QString& commentaires, const QString& fichier)> commenter;
    /// Shows the curve of the recording.
    std::function<void(const QString& fichier)> montrer;
};

/// The button "LireValeurs": refuses loggers that record to a card (version 2.11 or more) with a
/// box, and otherwise starts a download, or ends the one that runs.
void LireValeurs(Poste& poste, AccesTrace& acces);
void LireValeurs(Poste& poste, const SuiteTelechargement& suite);

/// Brings all measures of the logger into a recording file and shows its curve. While a download
/// runs a call only clears `EnLecture`, which ends that download after its present measure; until
/// it has ended no other one begins. Fault when the files cannot be created.
void LectureValeurs(Poste& poste, AccesTrace& acces);
void LectureValeurs(Poste& poste, const SuiteTelechargement& suite);

/// One download, from the click to one of its ends.
class Telechargement : private SortieMesures {
  public:
    Telechargement(Poste& poste, const SuiteTelechargement& suite);

    /// Runs it whole; comes back after its last box and, at a normal end, after the curve was
    /// shown. Fault when the files cannot be created.
    void Executer();

    /// True while some download is between its start and the closing of its files, whether or not
    /// it was told to end.
    static bool EnTransfert() { return transferts_ > 0; }

  private:
    class Occupation;

    enum class Etat {
        EnCours,
        /// The parameters could not be read: nothing was made.
        NonCommence,
        /// The logger has no more, or the operator has cancelled: the files are complete.
        FinNormale,
        /// The logger did not answer six times in a row.
        AppareilPerdu,
        /// A line could not be written.
        EcritureImpossible,
        /// The main form is being closed.
        Fermeture,
    };

    // The start.
    Etat Transferer();
    bool Commencer();
    void AnnoncerLecture();
    bool LireReglages();
    void CreerFichiers();

    // One round.
    Etat Tour();
    Octets Demander();
    bool SurvivreAuSilence();
    void Respirer();
    void RelireFiche();
    Etat Exploiter(const Octets& reponse);
    void Compter(std::int32_t Compteur) override;
    void Mesurer(const MesureDatee& mesure) override;
    QByteArrayView Ligne(const MesureDatee& mesure);

    // The ends.
    Etat Cloturer(Etat etat);
    bool FermerFichiers(bool complets);
    void TerminerNormalement();
    void TerminerSansSuite();
    void DireEchec(const QString& texte);
    void RendreBouton(const QString& cle);

    static inline int transferts_ = 0;

    Poste& poste_;
    MainScreen& ecran_;
    const SuiteTelechargement& suite_;
    Avancement avancement_;
    DecodeurMesures decodeur_;
    RedacteurLignes redacteur_;
    ReglagesPression reglages_;
    /// Kept here too: a dump begun meanwhile gives the program another name.
    QString nom_;
    std::optional<PaireEnregistrement> fichiers_;
    bool premier_ = true;
    int nbEchecs_ = 0;
    int pointeurSauve_ = 0;
    /// Of the two files: a transfer can end for another reason and lose lines besides.
    EchecEcriture echec_;
};

}  // namespace bornika
