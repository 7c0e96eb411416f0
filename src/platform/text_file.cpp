#include "platform/text_file.h"

#include <QFileInfo>
#include <algorithm>
#include <vector>

#include "platform/code_page.h"
#include "platform/fault.h"

namespace bornika {

namespace {

constexpr qsizetype tailleTampon = 64 * 1024;
constexpr std::chrono::seconds intervalleVidage{1};

// Every file being written: what the program still holds goes to the disk before it is ended.
std::vector<FichierTexteEcrit*>& Ouverts() {
    static std::vector<FichierTexteEcrit*> liste;
    return liste;
}

[[noreturn]] void LeverEchec(const QFile& fichier, int numero) {
    throw FauteExecution(numero, fichier.errorString());
}

}  // namespace

FichierTexteEcrit::FichierTexteEcrit(const QString& chemin, ModeEcriture mode)
    : fichier_(chemin), dernierVidage_(std::chrono::steady_clock::now()) {
    if (chemin.isEmpty() || chemin.contains(QChar(0))) LeverFaute(numero_faute::nomDeFichier);
    if (!QFileInfo(QFileInfo(chemin).absolutePath()).isDir())
        LeverFaute(numero_faute::cheminIntrouvable);
    const QIODevice::OpenMode ouverture = mode == ModeEcriture::Ajouter
                                              ? QIODevice::WriteOnly | QIODevice::Append
                                              : QIODevice::WriteOnly | QIODevice::Truncate;
    if (!fichier_.open(ouverture | QIODevice::Unbuffered))
        LeverEchec(fichier_, numero_faute::accesRefuse);
    tampon_.reserve(tailleTampon + 1024);
    Ouverts().push_back(this);
}

FichierTexteEcrit::~FichierTexteEcrit() {
    if (fichier_.isOpen()) ignorer([this] { Fermer(); });
    std::erase(Ouverts(), this);
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
        if (fichier->fichier_.isOpen()) ignorer([fichier] { fichier->Vider(); });
}

void FichierTexteEcrit::Deposer(QByteArrayView octets) {
    tampon_.append(octets);
    if (tampon_.size() >= tailleTampon ||
        std::chrono::steady_clock::now() - dernierVidage_ >= intervalleVidage)
        Vider();
}

void FichierTexteEcrit::Vider() {
    qsizetype ecrits = 0;
    while (ecrits < tampon_.size()) {
        const qint64 n = fichier_.write(tampon_.constData() + ecrits, tampon_.size() - ecrits);
        if (n <= 0) {
            // What did not go out is dropped, or the same fault would come again at the closing.
            tampon_.clear();
            LeverEchec(fichier_, numero_faute::disquePlein);
        }
        ecrits += n;
    }
    tampon_.resize(0);
    dernierVidage_ = std::chrono::steady_clock::now();
}

FichierTexteLu::FichierTexteLu(const QString& chemin) : fichier_(chemin) {
    if (!QFileInfo(chemin).isFile()) LeverFaute(numero_faute::fichierIntrouvable);
    if (!fichier_.open(QIODevice::ReadOnly)) LeverEchec(fichier_, numero_faute::accesRefuse);
    lu_ = fichier_.readAll();
    if (fichier_.error() != QFileDevice::NoError) LeverEchec(fichier_, numero_faute::accesRefuse);
    contenu_ = lu_;
    taille_ = contenu_.size();
}

bool FichierTexteLu::EstFinDeLigne() const {
    return EstFin() || contenu_[position_] == '\r' || contenu_[position_] == '\n';
}

QByteArrayView FichierTexteLu::LireLigne() {
    const char* debut = contenu_.data() + position_;
    const char* fin = contenu_.data() + contenu_.size();
    const char* coupe = std::find(debut, fin, '\n');
    position_ = (coupe - contenu_.data()) + (coupe != fin ? 1 : 0);
    qsizetype longueur = coupe - debut;
    if (coupe != fin && longueur > 0 && debut[longueur - 1] == '\r') --longueur;
    return QByteArrayView(debut, longueur);
}

}  // namespace bornika
