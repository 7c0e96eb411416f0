#include "shell/application_state.h"

#include <gtest/gtest.h>

namespace bornika {
namespace {

TEST(ApplicationState, StartsWithNoProductNoLoggerNoFlagAndTheFullCapacity) {
    const EtatApplication etat;
    EXPECT_FALSE(etat.AideValide);
    EXPECT_FALSE(etat.TimeOut);
    EXPECT_TRUE(etat.Nom_Fichier.isEmpty());
    EXPECT_EQ(etat.TypekPod, 0);
    EXPECT_TRUE(etat.NomKpod.isEmpty());
    EXPECT_EQ(etat.CodePays, 0);
    EXPECT_FALSE(etat.Connected);
    EXPECT_EQ(etat.UsbID, 0);
    EXPECT_EQ(etat.CapaciteMemoire, 540606);
    EXPECT_FALSE(etat.SplashAffiche);
    EXPECT_FALSE(etat.ModeAvance);
    EXPECT_FALSE(etat.EnLecture);
    EXPECT_FALSE(etat.EnFermeture);
}

TEST(ApplicationState, StartsWithAllSevenCalibrationFiguresAtZero) {
    const Etalonnage7 e;
    for (const double figure : {e.valeur_etalonnage_bas, e.mesure_etalonnage_bas,
                                e.valeur_etalonnage_haut, e.mesure_etalonnage_haut,
                                e.correction_etalonnage, e.pente_etalonnage, e.offset_etalonnage})
        EXPECT_EQ(figure, 0);
}

}  // namespace
}  // namespace bornika
