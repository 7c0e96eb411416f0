#include "products/products.h"

#include <gtest/gtest.h>

#include "support/case_names.h"

namespace bornika {
namespace {

struct Rangee {
    int type;
    const char* nom;
    const char* nomZ907;
};

void PrintTo(const Rangee& rangee, std::ostream* sortie) {
    *sortie << "type " << rangee.type;
}

class TableProduits : public testing::TestWithParam<Rangee> {};

TEST_P(TableProduits, NamesTheTypeInBothEditions) {
    EXPECT_EQ(NomProduit(GetParam().type, false).toStdString(), GetParam().nom);
    EXPECT_EQ(NomProduit(GetParam().type, true).toStdString(), GetParam().nomZ907);
}

INSTANTIATE_TEST_SUITE_P(
    Types, TableProduits,
    testing::Values(Rangee{1, "k-Pod", "Z907PT"}, Rangee{2, "k-Sieve L1", "k-Sieve L1"},
                    Rangee{3, "k-Sieve L2", "k-Sieve L2"}, Rangee{4, "k-Hoist", "k-Hoist"},
                    Rangee{5, "k-Tide", "k-Tide"}, Rangee{6, "k-Gear", "k-Gear"},
                    Rangee{7, "k-Gear PB", "k-Gear PB"}, Rangee{8, "RQT", "RQT"},
                    Rangee{9, "RQT PB", "RQT PB"}, Rangee{10, "k-Helm", "k-Helm"},
                    Rangee{11, "k-Volt", "k-Volt"}, Rangee{12, "k-Clock", "k-Clock"},
                    Rangee{13, "k-TideGauge", "k-TideGauge"}, Rangee{14, "", ""},
                    Rangee{15, "k-Sieve5-12", "k-Sieve5-12"},
                    Rangee{16, "k-Sieve12-24", "k-Sieve12-24"}, Rangee{18, "k-QRS", "k-QRS"},
                    Rangee{19, "k-Pod 33", "Z907FPT"}, Rangee{20, "k-Pod 33", "Z907FPT"},
                    Rangee{23, "k-gear QX71", "k-gear QX71"}),
    essai::nomDuCasImprime);

TEST(NomProduit, TypesWithoutARowAreGeneric) {
    for (const int type : {17, 21, 22, 0, -1, -2147483647, 24, 99, 255})
        for (const bool drapeau : {false, true})
            EXPECT_EQ(NomProduit(type, drapeau), QStringLiteral("Generic k-Row")) << type;
}

TEST(EstKpod, IsTrueForTheThreeLoggerModelsOnly) {
    for (int type = -1; type < 256; ++type)
        EXPECT_EQ(EstKpod(type), type == 1 || type == 19 || type == 20) << type;
}

}  // namespace
}  // namespace bornika
