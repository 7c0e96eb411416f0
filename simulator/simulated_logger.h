#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/usb_interface.h"
#include "simulator/faults.h"
#include "simulator/frame_journal.h"
#include "simulator/internal_memory.h"
#include "simulator/measure.h"
#include "simulator/paged_flash.h"

namespace bornika {

namespace simulateur {

/// What a logger says of itself in reply to the version and identify commands.
struct Identite {
    IdentifiantUsb usb = 1;
    std::uint8_t type = 1;
    std::uint8_t versionHaute = 2;
    std::uint8_t versionMilieu = 0;
    std::uint8_t versionBasse = 110;
    /// 1, 2 or 4: 2047, 4095 or 8191 pages of measures.
    std::uint8_t tailleMemoire = 4;
    std::uint8_t reserve = 0;
};

/// One reply, without any allocation: 540,606 of them make a download.
struct Reponse {
    std::array<std::uint8_t, 16> octets{};
    int nombre = 0;

    std::span<const std::uint8_t> Vue() const {
        return {octets.data(), static_cast<std::size_t>(nombre)};
    }
    std::vector<std::uint8_t> Liste() const { return {Vue().begin(), Vue().end()}; }
};

/// Place of a measure in the flash.
struct Pointeur {
    int page = 1;
    int offset = 0;
    bool operator==(const Pointeur&) const = default;
};

/// An open or a close of a handle on this logger.
struct EvenementLien {
    std::int64_t instant;
    bool ouverture;
    PoigneeUsb poignee;
};

}  // namespace simulateur

/// One logger, seen from its firmware: an internal memory of 1024 bytes and a paged flash are its
/// truth, and every command reads or writes them, so that what one command writes all others see.
class EnregistreurSimule {
  public:
    using Identite = simulateur::Identite;
    using Reponse = simulateur::Reponse;
    using Pointeur = simulateur::Pointeur;

    explicit EnregistreurSimule(const Identite& identite = {});

    /// What the firmware answers to a frame; an empty reply (silence) for an unknown command or a
    /// frame of a wrong length. Neither journal nor faults.
    Reponse Repondre(std::span<const std::uint8_t> trame);

    /// A frame from the link: noted with `instant`, then answered under the ordered faults. With
    /// `debranche` set on return the logger was pulled out in this exchange.
    Reponse Recevoir(std::span<const std::uint8_t> trame, std::int64_t instant, bool& debranche);

    // What stands in the logger; all of it may be changed at any time.
    Identite identite;
    simulateur::MemoireInterne memoire;
    simulateur::FlashPaginee flash;
    simulateur::Pannes pannes;
    simulateur::JournalTrames journal;
    std::vector<simulateur::EvenementLien> lien;

    /// r7 of command 8: a card is in.
    bool cartePresente = false;
    /// r5 of command 22: with equal pointers, non-zero means that nothing is held.
    std::uint8_t octetVide = 1;
    /// Points that the sensor sees now: self test and calibration measure them.
    int pointsCapteur = 512;
    /// Code of the self test (2: a measure comes with it) and raw value of the sensor detection.
    std::uint8_t codeTest = 2;
    int detectionCapteur = 300;
    /// Set by the flow test.
    bool testDebit = false;
    /// Set by the clearing of the serial number, cleared by the next serial number.
    bool inhibe = false;
    /// How often the context was forced.
    int contextesForces = 0;

    void ReglerNumeroSerie(std::uint32_t numero);
    void ReglerBatterie(int lecture);
    /// Sets the logger's clock, in device seconds.
    void ReglerHorloge(std::uint32_t secondes);
    /// From now on the clock advances with this source of seconds (none: it stands still), and with
    /// it the time of the next measure.
    void BrancherHorloge(std::function<std::int64_t()> source);
    std::uint32_t Horloge();
    /// The record of resets: in the internal memory and, for old programs, on page 0 of the flash.
    void ReglerResets(std::uint32_t date, int nombre);
    void ReglerCommentaire(std::string_view texte);
    /// A finished calibration; a high pair of zeros leaves one point.
    void ReglerEtalonnage(std::uint32_t date, int echelle, int referenceBas, int mesureBas,
                          int referenceHaut = 0, int mesureHaut = 0);
    /// The logger is on its sensor, off the cord: it sees `points`, and takes the measure of a
    /// calibration point that waits for it.
    void MettreSurCapteur(int points);
    /// From now on the bench puts the sensor under the reference of each calibration point, and it
    /// sees what `capteur` makes of that number of points.
    void BrancherReference(std::function<int(int)> capteur);

    /// Appends one measure at the write pointer. With a full memory the oldest one is lost
    /// (circular buffer) or the new one is dropped.
    void Stocker(const simulateur::MesureEnFlash& mesure);
    void Stocker(std::span<const simulateur::MesureEnFlash> mesures);
    /// Overwrites the stored measure of that rank, 0 being the oldest.
    void Remplacer(int rang, const simulateur::MesureEnFlash& mesure);
    /// The stored measure of that rank, 0 being the oldest.
    simulateur::MesureEnFlash Stockee(int rang) const;
    /// Forgets all measures; the pointers go to the first page.
    void ViderMesures();
    int NombreMesures() const;
    /// Measures that the flash can hold by its size code.
    int Capacite() const;

    Pointeur Ecriture() const;
    Pointeur Lecture() const;
    void ReglerEcriture(const Pointeur& ou);
    void ReglerLecture(const Pointeur& ou);

    /// The answers to the download command that are left until the end of data.
    int RestantATransmettre() const { return reste_; }

  private:
    friend struct Micrologiciel;

    int DernierePage() const;
    int Rang(const Pointeur& ou) const;
    Pointeur Place(int rang) const;
    void Avancer(Pointeur& ou) const;
    void Rembobiner();
    void TenirHorloge();
    void TenirProchaineMesure();
    void PrendreMesureEtalonnage();

    std::function<std::int64_t()> source_;
    std::function<int(int)> capteur_;
    std::int64_t dernierInstant_ = 0;
    bool mesureAttendue_ = false;
    bool enTransfert_ = false;
    Pointeur curseur_;
    int reste_ = 0;
    std::array<std::uint8_t, 7> tampon_{};
};

}  // namespace bornika
