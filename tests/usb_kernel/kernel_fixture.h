#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "link/station.h"
#include "retrieval/download_engine.h"
#include "simulator/presets.h"
#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"
#include "usb/usb_loggers.h"
#include "usb_kernel/usbip_device.h"

namespace bornika::essai {

/// 14 November 2023, 22:13:20.
inline constexpr std::uint32_t t0 = 1700000000;

/// A time-out in milliseconds that no answer comes near, however busy the machine is.
inline constexpr int delaiSansFin = 120000;

/// The product of these loggers, with the time-out of a silent read in milliseconds.
ReglageUsb Reglage(int delai = delaiSansFin);

/// A device with that text of the serial number.
FicheUsb Fiche(const std::string& serie);

/// Lets the kernel work until `vrai` holds; false after a minute.
bool Attendre(const std::function<bool()>& vrai);
/// Waits until that many loggers are counted.
bool AttendreCompte(InterfaceUsb& usb, int combien);

/// Files of USB devices that this process holds open.
int AppareilsOuverts();

/// The main form of the program with a logger chosen, over whatever carries the bytes. What follows
/// a download in the viewer is noted instead of shown.
class BancPoste {
  public:
    BancPoste(InterfaceUsb& usb, IdentifiantUsb id);

    /// A real click on the button that downloads.
    void Telecharger();
    /// Runs `geste` in the yield of that round of the download (1 = the first).
    void AuTour(int tour, std::function<void()> geste);

    QByteArray Mesures() const { return etabli.Lire(nom + QStringLiteral(".txt")); }
    QByteArray Rejets() const { return etabli.Lire(nom + QStringLiteral(".err")); }
    /// Measure lines of the ".txt" file.
    int NombreLignes() const { return static_cast<int>(Mesures().count('\n')) - 1; }
    /// Content and state of every control, a line each.
    std::string Portrait() const;
    /// Everything that a download leaves behind, as one text.
    std::string Bilan() const;

    Etabli etabli;
    MainScreen ecran;
    Ui::MainScreen& ui;
    MULTIUSB lien;
    Poste poste;
    SuiteTelechargement suite;

    QString nom = QStringLiteral("2026-03-05-14-07-09");
    int tours = 0;
    QStringList commentaires;
    QStringList montres;

  private:
    std::vector<std::pair<int, std::function<void()>>> gestes_;
};

/// Identifier of the logger that is plugged in, from its serial number.
inline constexpr IdentifiantUsb idBranche = 1001;

}  // namespace bornika::essai
