#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace bornika {

/// One line of the recording: a measure with its time, or a pulse event with its rate.
struct MesureDatee {
    bool impulsion = false;
    std::int32_t secondes = 0;
    int millisecondes = 0;
    /// 0 to 1023.
    double points = 0;
    /// Pulses per second; of no meaning on a periodic measure.
    double taux = 0;
    bool parite_ok = true;
};

/// Takes what the decoding gives, in its order.
class SortieMesures {
  public:
    virtual ~SortieMesures() = default;
    /// The progress text is due with this many measures written.
    virtual void Compter(std::int32_t Compteur) = 0;
    virtual void Mesurer(const MesureDatee& mesure) = 0;
};

/// Turns the answers of one transfer into dated measures, one answer after the other.
///
/// Periodic measures of one second are collected and spread over it. A group ends with the first
/// measure of another second, which takes the last place in it, and gives its own second and its
/// own parity to all of them: so the first measure of a transfer appears with the second one. A
/// group that is still open at the end of the data is lost. All of this is how recordings have
/// always been made.
///
/// Errors are ignored statement by statement: what does not fit is skipped and the rest goes on.
class DecodeurMesures {
  public:
    /// One answer of 10 bytes: echo, end mark, stored measure.
    void Decoder(std::span<const int, 10> reponse, SortieMesures& sortie);

    /// The logger has marked the end of its data.
    bool Fin() const { return fin_; }
    /// Measures written so far.
    std::int32_t Compteur() const { return compteur_; }

  private:
    static constexpr int placesGroupe = 9;

    void DecoderPeriodique(int valeur, bool derniere, bool parite_ok, SortieMesures& sortie);
    void FermerGroupe(bool parite_ok, SortieMesures& sortie);
    void DecoderImpulsion(int fraction, int valeur, bool derniere, bool parite_ok,
                          SortieMesures& sortie);
    void Ranger(int valeur);

    bool fin_ = false;
    std::int32_t compteur_ = 0;
    /// Time stamp of the present answer; an erased cell leaves it as it was.
    std::int32_t t_ = 0;
    /// -1 until a periodic measure came.
    std::int32_t tempsPrecedent_ = -1;
    /// Milliseconds since 1970 of the pulse event before, -1 for none.
    double instantPrecedent_ = -1.0;
    /// Kept when a rate cannot be computed.
    double taux_ = 0;
    std::array<double, placesGroupe> mesures_{};
    std::int16_t nbGroupe_ = 0;
};

}  // namespace bornika
