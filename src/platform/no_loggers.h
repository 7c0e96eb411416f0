#pragma once

#include "platform/usb_interface.h"

namespace bornika {

/// A USB interface on which no logger is ever attached, for what needs none: benchmarks and tests.
class AucunEnregistreur : public InterfaceUsb {
  public:
    int Compte() override { return 0; }
    IdentifiantUsb Identifiant(int) override { return 0; }
    PoigneeUsb Ouvrir(IdentifiantUsb) override { return -1; }
    bool Ecrire(PoigneeUsb, std::span<const std::uint8_t>) override { return false; }
    int Lire(PoigneeUsb, std::span<std::uint8_t>) override { return 0; }
    void Annuler(PoigneeUsb) override {}
    void Fermer(PoigneeUsb) override {}
    std::uint32_t DerniereErreur() const override { return 0; }
    QString TexteErreur(std::uint32_t) const override { return {}; }
};

}  // namespace bornika
