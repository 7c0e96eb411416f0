#include "link/frames.h"

#include <algorithm>
#include <utility>

#include "link/command_table.h"
#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int blanc = 32;
constexpr qsizetype moitieCommentaire = 7;

/// Puts the pieces of a frame together and fills it up to its length.
class Trame {
  public:
    explicit Trame(int code) { octets_.push_back(code); }

    Trame& Octet(int valeur) {
        octets_.push_back(valeur);
        return *this;
    }
    Trame& Mot(double valeur) { return Octet(MSB(valeur)).Octet(LSB(valeur)); }
    Trame& Double(std::int32_t valeur) {
        const Octets octets = EntierVersOctets(valeur);
        octets_.insert(octets_.end(), octets.rbegin(), octets.rend());
        return *this;
    }
    Trame& Suite(std::span<const int> valeurs) {
        octets_.insert(octets_.end(), valeurs.begin(), valeurs.end());
        return *this;
    }
    Octets Completer(int remplissage, int longueur = longueurTrame) {
        octets_.resize(static_cast<std::size_t>(longueur), remplissage);
        return std::move(octets_);
    }

  private:
    Octets octets_;
};

std::span<const int> Exactement(std::span<const int> valeurs, std::size_t nombre) {
    if (valeurs.size() < nombre) LeverFaute(numero_faute::indice);
    return valeurs.first(nombre);
}

}  // namespace

Octets TrameEntete(int code, int extracode) {
    return Trame(code).Octet(extracode).Completer(0);
}

Octets TrameEcritDemarrage(std::int32_t date, double periode) {
    return Trame(CMD_ECRIT_DEMARRAGE).Double(date).Mot(periode).Completer(0);
}

Octets TrameEcritMode(int mode, double seuil1, double seuil2, int echelle, int charge) {
    return Trame(CMD_ECRIT_MODE)
        .Octet(mode)
        .Mot(seuil1)
        .Mot(seuil2)
        .Octet(echelle)
        .Octet(charge)
        .Completer(0);
}

Octets TrameEcritNumeroSerie(std::int32_t numero) {
    // Divisions towards zero: the bytes of a negative number are negative too.
    return Trame(CMD_ECRIT_NUMERO_SERIE)
        .Octet(numero / 16777216)
        .Octet(numero % 16777216 / 65536)
        .Octet(numero % 65536 / 256)
        .Octet(numero % 256)
        .Completer(blanc);
}

Octets TrameEcritDateCourante(std::int32_t date, double periodeTrigger) {
    return Trame(CMD_ECRIT_DATE_COURANTE).Double(date).Mot(periodeTrigger).Completer(blanc);
}

Octets TrameLitMesures(bool premiere) {
    return {CMD_LIT_MESURES, premiere ? 1 : 0};
}

Octets TrameEcritCommentaire(int moitie, const QByteArray& commentaire) {
    Trame trame(moitie == 1 ? CMD_ECRIT_COMMENTAIRE_1 : CMD_ECRIT_COMMENTAIRE_2);
    const QByteArray partie =
        commentaire.mid(moitie == 1 ? 0 : moitieCommentaire, moitieCommentaire);
    for (const char c : partie)
        trame.Octet(static_cast<unsigned char>(c));
    return trame.Completer(blanc);
}

Octets TrameRaz() {
    return TrameEntete(CMD_RAZ);
}

Octets TrameFlashTampon(std::span<const int> valeurs) {
    Octets trame = TrameEntete(CMD_FLASH_TAMPON);
    const std::span<const int> copiees = Exactement(valeurs, 7);
    std::copy(copiees.begin(), copiees.end(), trame.begin());
    return trame;
}

Octets TrameFlashEcrit(double page, double offset) {
    return Trame(CMD_FLASH_ECRIT).Mot(page).Mot(offset).Completer(blanc);
}

Octets TrameFlashLit(double page, double offset) {
    return Trame(CMD_FLASH_LIT).Mot(page).Mot(offset).Completer(blanc);
}

Octets TrameTestDebit(bool marche) {
    return Trame(CMD_TEST_DEBIT).Octet(marche ? 1 : 0).Completer(blanc);
}

Octets TrameEcritPointEtalonnage(double points, int point, std::span<const int> reste) {
    return Trame(CMD_ECRIT_POINT_ETALONNAGE)
        .Mot(points)
        .Octet(point)
        .Suite(Exactement(reste, 4))
        .Completer(0);
}

Octets TrameEcritDateEtalonnage(std::int32_t date, int echelle, std::span<const int> reste) {
    return Trame(CMD_ECRIT_DATE_ETALONNAGE)
        .Double(date)
        .Octet(echelle)
        .Suite(Exactement(reste, 2))
        .Completer(0);
}

Octets TrameLitEeprom(double adresse) {
    return Trame(CMD_LIT_EEPROM).Mot(adresse).Completer(blanc);
}

Octets TrameEcritEeprom(double adresse, int valeur) {
    return Trame(CMD_ECRIT_EEPROM).Mot(adresse).Octet(valeur).Completer(blanc);
}

Octets TrameEcritCorrection(std::int32_t correction) {
    return Trame(CMD_ECRIT_CORRECTION).Suite(EntierVersOctets(correction)).Completer(0);
}

Octets TrameLitDetection() {
    return TrameEntete(CMD_LIT_DETECTION);
}

Octets TrameForceContexte() {
    return Trame(CMD_FORCE_CONTEXTE).Completer(blanc);
}

Octets TrameIdentifie() {
    return Trame(CMD_IDENTIFIE).Completer(0, longueurTrameIdentifie);
}

}  // namespace bornika
