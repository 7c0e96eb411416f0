#include "platform/text_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <ctime>
#include <utility>
#include <vector>

#include "platform/code_page.h"
#include "platform/disk_write.h"
#include "platform/fault.h"
#include "platform/file_faults.h"

namespace bornika {

namespace {

constexpr std::size_t tailleTampon = 1 << 16;

// The files being written now. They live in the thread of the interface, as the program does.
std::vector<FichierTexteEcrit*>& Ouverts() {
    static std::vector<FichierTexteEcrit*> ouverts;
    return ouverts;
}

// Asked at each line: it moves in steps of some milliseconds, at a fraction of the finer clock's
// cost.
std::chrono::nanoseconds Instant() {
    timespec instant{};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &instant);
    return std::chrono::seconds(instant.tv_sec) + std::chrono::nanoseconds(instant.tv_nsec);
}

[[noreturn]] void EchouerEcriture(int erreur) {
    throw FauteExecution(NumeroEcriture(erreur), qt_error_string(erreur));
}

}  // namespace

FichierTexteEcrit::FichierTexteEcrit(const QString& chemin, ModeEcriture mode,
                                     std::chrono::milliseconds delai)
    : chemin_(chemin), delai_(delai), dernierVidage_(Instant()) {
    if (chemin.isEmpty() || chemin.contains(QChar(u'\0'))) LeverFaute(numero_faute::nomDeFichier);
    const int sens = mode == ModeEcriture::Ajouter ? O_APPEND : O_TRUNC;
    descripteur_ =
        ::open(QFile::encodeName(chemin).constData(), O_WRONLY | O_CREAT | O_CLOEXEC | sens, 0666);
    if (descripteur_ < 0) LeverFaute(NumeroOuverture(errno));
    tampon_.reserve(tailleTampon + tailleTampon / 8);
    Ouverts().push_back(this);
}

FichierTexteEcrit::~FichierTexteEcrit() {
    std::erase(Ouverts(), this);
    // Whoever wants to know about the last lines closes by hand.
    ignorer([this] { Fermer(); });
}

void FichierTexteEcrit::EcrireLigne(QStringView texte) {
    EcrireLigneOctets(Vers8Bits(texte));
}

void FichierTexteEcrit::EcrireLigneOctets(QByteArrayView octets) {
    Ajouter(octets);
    Deposer("\r\n");
}

void FichierTexteEcrit::Ecrire(QStringView texte) {
    Deposer(Vers8Bits(texte));
}

void FichierTexteEcrit::Fermer() {
    if (descripteur_ < 0) return;
    const auto fermer = [this] { return ::close(std::exchange(descripteur_, -1)); };
    try {
        Vider();
        if (const int erreur = Synchroniser(descripteur_); erreur != 0) EchouerEcriture(erreur);
    } catch (const FauteExecution&) {
        fermer();
        throw;
    }
    if (fermer() != 0) EchouerEcriture(errno);
}

void FichierTexteEcrit::ViderTous() noexcept {
    for (FichierTexteEcrit* fichier : Ouverts())
        ignorer([fichier] { fichier->Vider(); });
}

void FichierTexteEcrit::Ajouter(QByteArrayView octets) {
    tampon_.append(octets.data(), static_cast<std::size_t>(octets.size()));
}

void FichierTexteEcrit::Deposer(QByteArrayView octets) {
    Ajouter(octets);
    if (tampon_.size() >= tailleTampon || Instant() - dernierVidage_ >= delai_) Vider();
}

void FichierTexteEcrit::Vider() {
    dernierVidage_ = Instant();
    qsizetype ecrits = 0;
    const int erreur = EcrireTout(descripteur_, tampon_, ecrits);
    // What is left waits for the next attempt, so that no line is written twice or cut in the
    // middle.
    tampon_.erase(0, static_cast<std::size_t>(ecrits));
    if (erreur != 0) EchouerEcriture(erreur);
}

FichierTexteLu::FichierTexteLu(const QString& chemin) {
    if (chemin.isEmpty()) LeverFaute(numero_faute::fichierIntrouvable);
    // Read whole, not mapped: the file may be written anew while the interface runs in between.
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        LeverFaute(QFileInfo::exists(chemin) ? numero_faute::accesRefuse
                                             : numero_faute::fichierIntrouvable);
    contenu_ = fichier.readAll();
    if (fichier.error() != QFileDevice::NoError) LeverFaute(numero_faute::accesRefuse);
    taille_ = contenu_.size();
}

bool FichierTexteLu::EstFinDeLigne() const {
    return EstFin() || contenu_[position_] == '\r' || contenu_[position_] == '\n';
}

QByteArrayView FichierTexteLu::LireLigne() {
    const char* debut = contenu_.constData() + position_;
    const auto reste = static_cast<std::size_t>(contenu_.size() - position_);
    const auto* fin = static_cast<const char*>(std::memchr(debut, '\n', reste));
    qsizetype longueur = fin ? fin - debut : static_cast<qsizetype>(reste);
    position_ += fin ? longueur + 1 : longueur;
    if (fin && longueur > 0 && debut[longueur - 1] == '\r') --longueur;
    return QByteArrayView(debut, longueur);
}

}  // namespace bornika
