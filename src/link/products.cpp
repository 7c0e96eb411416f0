#include "link/products.h"

namespace bornika {

namespace {

struct Produit {
    std::int32_t type;
    const char16_t* nom;
    const char16_t* nomZ907;
};

constexpr Produit produits[] = {
    {1, u"k-Pod", u"Z907PT"},      {2, u"k-Sieve L1", nullptr},
    {3, u"k-Sieve L2", nullptr},   {4, u"k-Hoist", nullptr},
    {5, u"k-Tide", nullptr},       {6, u"k-Gear", nullptr},
    {7, u"k-Gear PB", nullptr},    {8, u"RQT", nullptr},
    {9, u"RQT PB", nullptr},       {10, u"k-Helm", nullptr},
    {11, u"k-Volt", nullptr},      {12, u"k-Clock", nullptr},
    {13, u"k-TideGauge", nullptr}, {14, u"", nullptr},
    {15, u"k-Sieve5-12", nullptr}, {16, u"k-Sieve12-24", nullptr},
    {18, u"k-QRS", nullptr},       {19, u"k-Pod 33", u"Z907FPT"},
    {20, u"k-Pod 33", u"Z907FPT"}, {23, u"k-gear QX71", nullptr},
};

}  // namespace

QString NomProduit(std::int32_t type, bool drapeau) {
    for (const Produit& produit : produits) {
        if (produit.type != type) continue;
        return QString::fromUtf16(drapeau && produit.nomZ907 ? produit.nomZ907 : produit.nom);
    }
    return QStringLiteral("Generic k-Row");
}

bool EstKpod(std::int32_t type) {
    return type == 1 || type == 19 || type == 20;
}

}  // namespace bornika
