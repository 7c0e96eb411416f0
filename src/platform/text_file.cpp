#include "platform/text_file.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <climits>
#include <cstring>
#include <vector>

#include "platform/code_page.h"
#include "platform/fault.h"

namespace bornika {

namespace {

constexpr qsizetype tailleTampon = 1 << 16;
constexpr std::chrono::seconds delaiVidage{1};

// The files being written now. They live in the thread of the interface, as the program does.
std::vector<FichierTexteEcrit*>& Ouverts() {
    static std::vector<FichierTexteEcrit*> ouverts;
    return ouverts;
}

int NumeroOuverture(const QFile& fichier) {
    const QString chemin = fichier.fileName();
    if (chemin.isEmpty() || chemin.contains(QChar(u'\0'))) return numero_faute::nomDeFichier;
    const QFileInfo infos(chemin);
    if (!infos.dir().exists()) return numero_faute::cheminIntrouvable;
    if (QFile::encodeName(infos.fileName()).size() > NAME_MAX) return numero_faute::nomDeFichier;
    if (fichier.error() == QFileDevice::ResourceError) return numero_faute::disquePlein;
    return numero_faute::accesRefuse;
}

}  // namespace

FichierTexteEcrit::FichierTexteEcrit(const QString& chemin, ModeEcriture mode)
    : fichier_(chemin), dernierVidage_(std::chrono::steady_clock::now()) {
    const auto sens = mode == ModeEcriture::Ajouter ? QIODevice::Append : QIODevice::Truncate;
    if (!fichier_.open(QIODevice::WriteOnly | QIODevice::Unbuffered | sens))
        LeverFaute(NumeroOuverture(fichier_));
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
    tampon_.append(octets);
    Deposer("\r\n");
}

void FichierTexteEcrit::Ecrire(QStringView texte) {
    Deposer(Vers8Bits(texte));
}

void FichierTexteEcrit::Fermer() {
    if (!fichier_.isOpen()) return;
    try {
        Vider();
    } catch (const FauteExecution&) {
        fichier_.close();
        throw;
    }
    fichier_.close();
}

void FichierTexteEcrit::ViderTous() noexcept {
    for (FichierTexteEcrit* fichier : Ouverts())
        ignorer([fichier] { fichier->Vider(); });
}

void FichierTexteEcrit::Deposer(QByteArrayView octets) {
    tampon_.append(octets);
    if (tampon_.size() >= tailleTampon ||
        std::chrono::steady_clock::now() - dernierVidage_ >= delaiVidage)
        Vider();
}

void FichierTexteEcrit::Vider() {
    qsizetype ecrits = 0;
    while (ecrits < tampon_.size()) {
        const qint64 n = fichier_.write(tampon_.constData() + ecrits, tampon_.size() - ecrits);
        if (n <= 0) break;
        ecrits += n;
    }
    const bool entier = ecrits == tampon_.size();
    // What is left waits for the next attempt, so that no line is written twice or cut in the
    // middle.
    tampon_.remove(0, ecrits);
    dernierVidage_ = std::chrono::steady_clock::now();
    if (entier) return;
    const bool plein = fichier_.error() == QFileDevice::ResourceError;
    throw FauteExecution(plein ? numero_faute::disquePlein : numero_faute::accesRefuse,
                         fichier_.errorString());
}

FichierTexteLu::FichierTexteLu(const QString& chemin) {
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
