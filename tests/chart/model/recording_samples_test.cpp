#include <gtest/gtest.h>

#include <QFile>

#include "chart/model/loader_form_double.h"
#include "chart/model/trace_loader.h"
#include "support/fault_number.h"

namespace bornika::essai {
namespace {

/// Whole recordings as they come from loggers, cards and other machines.
class Echantillons : public ::testing::Test {
  protected:
    /// Loads a copy of the sample; returns the number of the fault that ended it, 0 for none.
    int Charger(const QString& nom) {
        const QString copie = fiche.etabli.Chemin(nom);
        QFile::copy(QStringLiteral(BORNIKA_TEST_DATA "/chart/model/data/") + nom, copie);
        return essai::NumeroDeFaute(
            [&] { TraceCourbe(fiche, copie, true, false, Mini, Maxi, false); });
    }
    std::vector<double> Y(int serie) {
        const auto y = fiche.graphe.Serie(serie).Y();
        return {y.begin(), y.end()};
    }

    FicheNotee fiche;
    double Mini = 0;
    double Maxi = 0;
};

TEST_F(Echantillons, DeviceFile) {
    ASSERT_EQ(Charger("device.txt"), 0);
    EXPECT_EQ(fiche.graphe.Serie(0).Nombre(), 20);
    EXPECT_EQ(Y(1), (std::vector<double>{0.5, 1, 1.5, 2}));
    EXPECT_EQ(fiche.graphe.Etiquette(0, 1), "14/11/2023 22:13:20:250");
    EXPECT_EQ(fiche.graphe.Etiquette(1, 1), "14/11/2023 22:13:21:250");
    EXPECT_EQ(Mini, 1700000000000.0);
    EXPECT_EQ(Maxi, 1700000004750.0);
}

TEST_F(Echantillons, FileOfAMachineWithCommas) {
    ASSERT_EQ(Charger("comma.txt"), 0);
    EXPECT_EQ(Y(0), (std::vector<double>{4.692, 4.708}));
    EXPECT_EQ(Y(1), std::vector<double>{0.3333});
}

TEST_F(Echantillons, FileWithACoefficient) {
    ASSERT_EQ(Charger("coefficient.txt"), 0);
    EXPECT_EQ(Y(1), (std::vector<double>{18000, 36000}));
    EXPECT_EQ(fiche.graphe.droite.titre, "m3/Hrs");
}

TEST_F(Echantillons, FileOfSixFields) {
    ASSERT_EQ(Charger("six_fields.txt"), 0);
    EXPECT_EQ(Y(0), (std::vector<double>{4.692, 4.708}));
    EXPECT_EQ(fiche.graphe.Serie(1).Nombre(), 0);
    EXPECT_EQ(fiche.unite, "Imp.");
}

TEST_F(Echantillons, FileOfEightFields) {
    ASSERT_EQ(Charger("eight_fields.txt"), 0);
    EXPECT_EQ(Y(1), (std::vector<double>{1, 2}));
}

TEST_F(Echantillons, JoinedFilesWithLineFeedsAlone) {
    ASSERT_EQ(Charger("JOINED.TXT"), 0);
    EXPECT_EQ(Y(0), (std::vector<double>{4.692, -4.708}));
    EXPECT_EQ(Maxi, 1700000001000.0);
}

TEST_F(Echantillons, FileThatEndsWithHalfALine) {
    EXPECT_EQ(Charger("half_line.txt"), numero_faute::indice);
    EXPECT_EQ(Y(0), std::vector<double>{4.692});
    EXPECT_EQ(fiche.graphe.NombreSeries(), 2);
}

}  // namespace
}  // namespace bornika::essai
