#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <vector>

#include "simulator/simulated_logger.h"
#include "usb_mock/mock/usb_descriptors.h"

namespace bornika::essai {

/// What goes wrong on the wire, below the frames.
enum class PanneUsb : std::uint8_t {
    /// The device stalls its IN endpoint in place of the answer, until the halt is cleared.
    calageEntree,
    /// The device stalls its OUT endpoint in place of taking the frame.
    calageSortie,
    /// More bytes come than the largest packet holds.
    debordement,
    /// A packet of length zero comes in place of the answer.
    paquetVide,
    /// The answer stays in the device until `Liberer`.
    retard,
    /// From then on each read gets a byte that means nothing.
    bavardage
};

/// One transfer as it ended: 0 or a negative error number of the kernel, and the bytes that came.
struct FinTransfert {
    int etat = 0;
    std::vector<std::uint8_t> octets;
};

/// A transfer from the device that waits for its bytes.
struct LectureUsb {
    std::uint64_t cle;
    std::size_t longueur;
    std::vector<std::uint8_t> recus;
};

/// The USB side of a simulated logger: what reaches its OUT endpoint is a frame, what the logger
/// answers goes out of its IN endpoint packet by packet. Not locked: its owner is.
class AppareilMaquette {
  public:
    AppareilMaquette(FicheUsb fiche, std::unique_ptr<EnregistreurSimule> enregistreur);

    /// A fault of the `nombre` next answers (or frames).
    void Ordonner(PanneUsb panne, int nombre = 1);
    /// The answers that were held back go out.
    void Liberer();
    /// Packets that nobody has fetched.
    std::size_t PaquetsEnAttente() const { return paquets_.size(); }
    /// Answers held back.
    std::size_t Retenues() const { return retenues_.size(); }

    /// A frame for the logger. `debranche` is set when the logger was pulled out in this exchange.
    FinTransfert Recevoir(std::span<const std::uint8_t> trame, bool& debranche);
    /// The answer to a request on endpoint 0, `demande` being its 8 bytes.
    FinTransfert Controle(std::span<const std::uint8_t> demande) const;

    /// A transfer that wants up to `longueur` bytes of the IN endpoint.
    void Demander(std::uint64_t cle, std::size_t longueur);
    /// Takes a waiting transfer back with what had come; false when it does not wait.
    bool Reprendre(std::uint64_t cle, FinTransfert& fin);
    /// The next waiting transfer that ends now; false when none does.
    bool Servir(std::uint64_t& cle, FinTransfert& fin);
    void LeverCalage(std::uint8_t adresse);

    const FicheUsb fiche;
    const std::unique_ptr<EnregistreurSimule> enregistreur;

  private:
    bool Prendre(PanneUsb panne);
    void Emettre(std::vector<std::uint8_t> reponse);
    void Ranger(std::vector<std::uint8_t> paquet);

    std::vector<PanneUsb> pannes_;
    std::deque<std::vector<std::uint8_t>> paquets_;
    std::vector<std::vector<std::uint8_t>> retenues_;
    std::deque<LectureUsb> lectures_;
    bool entreeCalee_ = false;
    bool sortieCalee_ = false;
    bool bavarde_ = false;
};

}  // namespace bornika::essai
