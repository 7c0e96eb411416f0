#include "viewer/recording_reader.h"

#include <array>
#include <cstring>

#include "platform/code_page.h"

namespace bornika {

namespace {

constexpr std::size_t champsNecessaires = 6;

struct Decoupe {
    std::array<QByteArrayView, champsNecessaires> champs;
    /// Fields found, counted up to seven: what lies behind is not looked at.
    std::size_t nombre = 0;
};

Decoupe Decouper(QByteArrayView ligne) {
    Decoupe decoupe;
    const char* debut = ligne.data();
    const char* fin = debut + ligne.size();
    while (decoupe.nombre < champsNecessaires) {
        const char* separateur = static_cast<const char*>(
            debut == fin ? nullptr
                         : std::memchr(debut, ';', static_cast<std::size_t>(fin - debut)));
        decoupe.champs[decoupe.nombre++] = {debut, separateur ? separateur : fin};
        if (!separateur) return decoupe;
        debut = separateur + 1;
    }
    ++decoupe.nombre;
    return decoupe;
}

}  // namespace

LecteurEnregistrement::LecteurEnregistrement(QIODevice& source, const Regional& regional, int pas)
    : flux_(source), nombres_(regional), pas_(pas) {}

QStringList LecteurEnregistrement::LireEntete() {
    return Depuis8Bits(flux_.Lire()).split(QLatin1Char(';'));
}

bool LecteurEnregistrement::Terminer(IssueLecture::Raison raison) {
    issue_ = {raison, flux_.Numero()};
    return false;
}

void LecteurEnregistrement::PasserLignes() {
    for (; aPasser_ > 0 && !flux_.EstFin(); --aPasser_)
        flux_.Lire();
    aPasser_ = 0;
}

bool LecteurEnregistrement::EstFin() {
    PasserLignes();
    return flux_.EstFin();
}

/// Passes over lines that hold the word anywhere, as the header of a recording joined behind
/// another one does. False when the file ended there.
bool LecteurEnregistrement::PasserEntetes(QByteArrayView& ligne, const char* mot) {
    while (flux_.PeutContenirT(ligne) && ligne.indexOf(mot) >= 0) {
        if (flux_.EstFin()) return false;
        ligne = flux_.Lire();
    }
    return true;
}

bool LecteurEnregistrement::Suivante(LigneMesure& ligne) {
    if (EstFin()) return Terminer(IssueLecture::Raison::FinDuFichier);
    QByteArrayView octets = flux_.Lire();
    // One word after the other: what follows a passed "Time" line is not looked at for "Temps"
    // again.
    if (!PasserEntetes(octets, "Temps") || !PasserEntetes(octets, "Time"))
        return Terminer(IssueLecture::Raison::FinDuFichier);
    if (pas_ > 1) aPasser_ = pas_;
    const Decoupe decoupe = Decouper(octets);
    if (decoupe.nombre < champsNecessaires) return Terminer(IssueLecture::Raison::ChampsManquants);
    ligne.temps = nombres_.LireTemps(decoupe.champs[0]);
    ligne.etiquette = decoupe.champs[1];
    ligne.pression = nombres_.LireValeur(decoupe.champs[3]);
    ligne.debit = decoupe.nombre > champsNecessaires;
    ligne.comptage = ligne.debit ? nombres_.LireValeur(decoupe.champs[5]) : NombreLu{};
    ligne.longueur = octets.size();
    issue_.ligne = flux_.Numero();
    return true;
}

}  // namespace bornika
