#include "products/products.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "products/firmware_versions.h"

namespace bornika {

namespace {

constexpr double sansLimite = std::numeric_limits<double>::infinity();

constexpr RegleFirmware firmwareKpod{u"K-POD_V", u"Z907PT_V", -sansLimite, version::carte};
constexpr RegleFirmware firmwareCarte19{u"K-POD-33_V", u"Z907FPT_V", version::premiereCarte,
                                        sansLimite};
constexpr RegleFirmware firmwareCarte20{u"K-POD-33_V", u"Z907FPT_V", version::contexte, sansLimite};

// clang-format off
constexpr Produit produits[] = {
    {.type = 1, .nom = u"k-Pod", .nomZ907 = u"Z907PT", .kpod = true, .firmware = &firmwareKpod},
    {.type = 2, .nom = u"k-Sieve L1"},
    {.type = 3, .nom = u"k-Sieve L2"},
    {.type = 4, .nom = u"k-Hoist"},
    {.type = 5, .nom = u"k-Tide"},
    {.type = 6, .nom = u"k-Gear"},
    {.type = 7, .nom = u"k-Gear PB"},
    {.type = 8, .nom = u"RQT"},
    {.type = 9, .nom = u"RQT PB"},
    {.type = 10, .nom = u"k-Helm"},
    {.type = 11, .nom = u"k-Volt"},
    {.type = 12, .nom = u"k-Clock"},
    {.type = 13, .nom = u"k-TideGauge"},
    {.type = 14, .nom = u""},
    {.type = 15, .nom = u"k-Sieve5-12"},
    {.type = 16, .nom = u"k-Sieve12-24"},
    {.type = 18, .nom = u"k-QRS"},
    {.type = 19, .nom = u"k-Pod 33", .nomZ907 = u"Z907FPT", .kpod = true, .carte = true,
     .firmware = &firmwareCarte19},
    {.type = 20, .nom = u"k-Pod 33", .nomZ907 = u"Z907FPT", .kpod = true, .carte = true,
     .firmware = &firmwareCarte20},
    {.type = 23, .nom = u"k-gear QX71"},
};
// clang-format on

}  // namespace

const Produit* TrouverProduit(std::int32_t type) {
    const auto produit = std::find_if(std::begin(produits), std::end(produits),
                                      [type](const Produit& p) { return p.type == type; });
    return produit == std::end(produits) ? nullptr : produit;
}

QString NomProduit(std::int32_t type, bool drapeau) {
    const Produit* produit = TrouverProduit(type);
    if (!produit) return QStringLiteral("Generic k-Row");
    return QString::fromUtf16(drapeau && produit->nomZ907 ? produit->nomZ907 : produit->nom);
}

bool EstKpod(std::int32_t type) {
    const Produit* produit = TrouverProduit(type);
    return produit && produit->kpod;
}

bool EstFamilleCarte(std::int32_t type) {
    const Produit* produit = TrouverProduit(type);
    return produit && produit->carte;
}

const RegleFirmware& RegleFirmwareMontree() {
    return firmwareCarte19;
}

}  // namespace bornika
