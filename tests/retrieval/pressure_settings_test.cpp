#include "retrieval/pressure_settings.h"

#include <gtest/gtest.h>

#include <QSignalBlocker>

#include "platform/fault.h"
#include "retrieval/retrieval_fixture.h"

namespace bornika::essai {

namespace {

const Etalonnage7 unPoint{.valeur_etalonnage_bas = 164, .mesure_etalonnage_bas = 100};
const Etalonnage7 deuxPoints{.valeur_etalonnage_bas = 10,
                             .mesure_etalonnage_bas = 12,
                             .valeur_etalonnage_haut = 900,
                             .mesure_etalonnage_haut = 880,
                             .pente_etalonnage = 1.0253,
                             .offset_etalonnage = -2.303};

}  // namespace

TEST(ReglagesPression, GiveThePressuresOfTheFormBitForBit) {
    BancLecture banc;
    Ui::MainScreen& ui = banc.ui;
    for (int echelle = 0; echelle < ui.ListeEchelles->Nombre(); ++echelle)
        for (int unite = 0; unite < ui.ListeUnites->Nombre(); ++unite)
            for (const Etalonnage7& etalonnage : {Etalonnage7{}, unPoint, deuxPoints}) {
                ui.ListeEchelles->Choisir(echelle);
                ui.ListeUnites->Choisir(unite);
                banc.ecran.etat.etalonnage = etalonnage;
                const ReglagesPression reglages = LireReglagesPression(banc.ecran);
                for (const double points : {0.0, 1.0, 511.0, 512.0, 1023.0})
                    for (const bool absolue : {false, true})
                        ASSERT_EQ(PressionCorrigee(points, reglages, absolue),
                                  Donne_Pression(banc.ecran, points, true, absolue))
                            << echelle << ' ' << unite << ' ' << points;
            }
}

TEST(ReglagesPression, StayWhatTheyWereWhenTheFormChanges) {
    BancLecture banc;
    banc.ui.ListeEchelles->Choisir(0);
    banc.ui.ListeUnites->Choisir(0);
    const ReglagesPression reglages = LireReglagesPression(banc.ecran);
    const double avant = PressionCorrigee(512, reglages, false);
    banc.ui.ListeEchelles->Choisir(2);
    banc.ui.ListeUnites->Choisir(1);
    banc.ecran.etat.etalonnage = unPoint;
    ASSERT_NE(Donne_Pression(banc.ecran, 512, true, false), avant);
    EXPECT_EQ(PressionCorrigee(512, reglages, false), avant);
}

TEST(ReglagesPression, HoldTheMarkOfAbsolutePressures) {
    BancLecture banc;
    for (const bool cochee : {true, false}) {
        const QSignalBlocker sansRegles(banc.ui.PressionAbsolue);
        banc.ui.PressionAbsolue->setChecked(cochee);
        EXPECT_EQ(LireReglagesPression(banc.ecran).absolue, cochee);
    }
}

TEST(ReglagesPression, WithoutAUnitAreNoFaultBeforeAPressureIsAskedFor) {
    BancLecture banc;
    const QSignalBlocker sansRegles(banc.ui.ListeUnites);
    banc.ui.ListeUnites->Choisir(-1);
    const ReglagesPression reglages = LireReglagesPression(banc.ecran);
    EXPECT_FALSE(reglages.coefficient);
    const auto faute = [](auto&& instruction) {
        try {
            instruction();
        } catch (const FauteExecution& levee) {
            return levee.numero();
        }
        return 0;
    };
    EXPECT_EQ(faute([&] { PressionCorrigee(512, reglages, false); }), numero_faute::entreeAbsente);
    EXPECT_EQ(faute([&] { Donne_Pression(banc.ecran, 512, true, false); }),
              numero_faute::entreeAbsente);
}

}  // namespace bornika::essai
