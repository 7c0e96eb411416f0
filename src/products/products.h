#pragma once

#include <QString>
#include <cstdint>

/// What a product is: one table, one row a product.
namespace bornika {

/// What the file of a firmware must be called, and the versions taken: from `mini` on, below
/// `maxi`.
struct RegleFirmware {
    const char16_t* nom;
    const char16_t* nomZ907;
    double mini;
    double maxi;
};

struct Produit {
    /// Type code, as the logger tells it.
    std::int32_t type;
    const char16_t* nom;
    /// Name in the Z907 edition; null where it is the same.
    const char16_t* nomZ907 = nullptr;
    /// One of the logger models proper, whose name stands for "k-Pod" in texts.
    bool kpod = false;
    /// It records to a card.
    bool carte = false;
    /// Null for a product whose files may have any name and version.
    const RegleFirmware* firmware = nullptr;
};

/// The row of a type, null for one that the table does not know.
const Produit* TrouverProduit(std::int32_t type);

/// Name of a product type; `drapeau` chooses that of the Z907 edition. Types without a row give
/// "Generic k-Row"; type 14 has an empty name.
QString NomProduit(std::int32_t type, bool drapeau);

/// The types 1, 19 and 20: the logger models proper.
bool EstKpod(std::int32_t type);

/// The types 19 and 20: the loggers that record to a card.
bool EstFamilleCarte(std::int32_t type);

/// The rule whose name form is shown for products that have none: that of the card loggers.
const RegleFirmware& RegleFirmwareMontree();

}  // namespace bornika
