#include "recording/recording_reader.h"

#include <cstring>

#include "platform/code_page.h"
#include "recording/recording_format.h"

namespace bornika {

namespace {

/// Goes over the rest of a field that is not looked at; most are shorter than a call.
void PasserChamp(const char*& place, const char* fin) {
    while (place != fin && *place != finChamp)
        ++place;
}

/// Goes from the end of a field to the start of the next; false at the end of the line.
bool PasserAuChampSuivant(const char*& place, const char* fin) {
    if (place == fin) return false;
    ++place;
    return true;
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

/// Passes over lines that hold the word anywhere, as the header of a recording joined behind
/// another one does. False when the file ended there.
bool LecteurEnregistrement::PasserEntetes(QByteArrayView& ligne, const char* mot) {
    while (ligne.indexOf(mot) >= 0) {
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
    if (flux_.PeutContenirT(octets) &&
        (!PasserEntetes(octets, "Temps") || !PasserEntetes(octets, "Time")))
        return Terminer(IssueLecture::Raison::FinDuFichier);
    if (pas_ > 1) aPasser_ = pas_;
    issue_.ligne = flux_.Numero();
    ligne.longueur = octets.size();
    return Decouper(octets, ligne) || Terminer(IssueLecture::Raison::ChampsManquants);
}

bool LecteurEnregistrement::Decouper(QByteArrayView octets, LigneMesure& ligne) const {
    const char* place = octets.data();
    const char* const fin = place + octets.size();
    ligne.temps = nombres_.LireTemps(place, fin);
    if (!PasserAuChampSuivant(place, fin)) return false;
    const char* const debutEtiquette = place;
    const void* finEtiquette = std::memchr(place, finChamp, static_cast<std::size_t>(fin - place));
    if (!finEtiquette) return false;
    place = static_cast<const char*>(finEtiquette);
    ligne.etiquette = {debutEtiquette, place};
    PasserAuChampSuivant(place, fin);
    PasserChamp(place, fin);
    if (!PasserAuChampSuivant(place, fin)) return false;
    ligne.pression = nombres_.LireValeur(place, fin);
    if (!PasserAuChampSuivant(place, fin)) return false;
    PasserChamp(place, fin);
    if (!PasserAuChampSuivant(place, fin)) return false;
    ligne.comptage = nombres_.LireValeur(place, fin);
    ligne.debit = place != fin;
    return true;
}

}  // namespace bornika
