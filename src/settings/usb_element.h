#pragma once

#include <QString>
#include <vector>

#include "platform/usb_settings.h"

namespace bornika {

class Configuration;
struct Systeme;

/// An entry of the element "Usb" that cannot stand as it is.
struct EntreeUsbFausse {
    /// Place of its product within the element, from 1.
    int rang = 0;
    /// Vendor and product as they are written there.
    QString vendeur;
    QString produit;
    /// Name and text of the entry; the text is empty for one that is missing.
    QString entree;
    QString valeur;
    /// Key of the text that says what was expected.
    QString attendu;
};

/// The element "Usb" of "config.xml": the products that can be looked for, and what is wrong with
/// the others.
struct ElementUsb {
    std::vector<ReglageUsb> reglages;
    std::vector<EntreeUsbFausse> fausses;
};

/// Reads the element: one `Appareil` a product, with numbers as 4660 or 0x1234. A product with
/// vendor 0 or without any number is passed over, one with a wrong entry left out. A file that is
/// missing or malformed gives nothing: the start of the program says so.
ElementUsb LireElementUsb(Configuration& configuration);

/// Shows one box for each wrong entry, in the language of the program.
void SignalerEntreesUsb(Systeme& systeme, Configuration& configuration,
                        const std::vector<EntreeUsbFausse>& fausses);

}  // namespace bornika
