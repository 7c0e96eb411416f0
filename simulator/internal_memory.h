#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace bornika::simulateur {

/// Where the firmware keeps its working parameters in the internal memory.
namespace adresse {
inline constexpr int numeroSerie = 1;
inline constexpr int marque = 5;
inline constexpr int dateReset = 7;
inline constexpr int nombreResets = 11;
inline constexpr int dateBatterie = 13;
inline constexpr int batterie = 17;
inline constexpr int demarrage = 19;
inline constexpr int dateCourante = 23;
inline constexpr int prochaineMesure = 27;
inline constexpr int nombreMesures = 31;
inline constexpr int pageEcriture = 32;
inline constexpr int offsetEcriture = 34;
inline constexpr int pageDepart = 36;
inline constexpr int offsetDepart = 38;
inline constexpr int pageLecture = 40;
inline constexpr int offsetLecture = 42;
inline constexpr int mode = 44;
inline constexpr int periodeStockage = 45;
inline constexpr int periodeTrigger = 47;
inline constexpr int mesuresAvant = 49;
inline constexpr int seuil1 = 50;
inline constexpr int seuil2 = 52;
inline constexpr int etatTrigger = 54;
inline constexpr int echelle = 55;
inline constexpr int etat = 64;
inline constexpr int modeEtalonnage = 67;
inline constexpr int referenceBas = 68;
inline constexpr int mesureBas = 70;
inline constexpr int referenceHaut = 72;
inline constexpr int mesureHaut = 74;
inline constexpr int dateEtalonnage = 76;
inline constexpr int echelleEtalonnage = 80;
inline constexpr int commentaire = 81;
inline constexpr int correction = 95;
inline constexpr int chargeRapide = 99;
inline constexpr int poidsImpulsion = 112;
inline constexpr int formatHeure = 116;
inline constexpr int uniteImpulsion = 117;
inline constexpr int tempsDebit = 125;
}  // namespace adresse

/// The 1024 bytes of internal memory. Every field of more than one byte stands low byte first.
/// Addresses outside read as 0xFF and cannot be written, as on the chip.
class MemoireInterne {
  public:
    static constexpr int taille = 1024;

    std::uint8_t Octet(int ou) const;
    std::uint16_t Mot(int ou) const;
    std::uint32_t DoubleMot(int ou) const;
    float Flottant(int ou) const;
    std::string Texte(int ou, int longueur) const;

    void EcrireOctet(int ou, int valeur);
    void EcrireMot(int ou, int valeur);
    void EcrireDoubleMot(int ou, std::uint32_t valeur);
    void EcrireFlottant(int ou, float valeur);
    /// Writes exactly `longueur` characters, padded with blanks.
    void EcrireTexte(int ou, int longueur, std::string_view texte);

  private:
    std::array<std::uint8_t, taille> octets_{};
};

}  // namespace bornika::simulateur
