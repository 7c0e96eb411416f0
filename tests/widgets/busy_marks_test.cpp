#include "widgets/busy_marks.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <memory>

namespace bornika {
namespace {

TEST(PointeurPendant, ShowsAnotherPointerAndBringsTheFormerBack) {
    QWidget fiche;
    FixerPointeurSouris(fiche, pointeur::fleche);
    {
        const PointeurPendant pendant(fiche, pointeur::sablier);
        EXPECT_EQ(PointeurSouris(fiche), pointeur::sablier);
    }
    EXPECT_EQ(PointeurSouris(fiche), pointeur::fleche);
}

TEST(PointeurPendant, BringsItBackOnceOnly) {
    QWidget fiche;
    {
        PointeurPendant pendant(fiche, pointeur::sablier);
        pendant.Rendre();
        EXPECT_EQ(PointeurSouris(fiche), pointeur::defaut);
        FixerPointeurSouris(fiche, pointeur::fleche);
    }
    EXPECT_EQ(PointeurSouris(fiche), pointeur::fleche);
}

TEST(BoutonOccupe, IsEnabledAgainAtTheEnd) {
    QPushButton bouton;
    {
        const BoutonOccupe occupe(bouton);
        EXPECT_FALSE(bouton.isEnabled());
    }
    EXPECT_TRUE(bouton.isEnabled());
}

TEST(BoutonOccupe, MayBeEnabledEarlierOrLeftDisabled) {
    QPushButton bouton;
    {
        BoutonOccupe occupe(bouton);
        occupe.Rendre();
        EXPECT_TRUE(bouton.isEnabled());
        bouton.setEnabled(false);
    }
    EXPECT_FALSE(bouton.isEnabled());
    bouton.setEnabled(true);
    {
        BoutonOccupe occupe(bouton);
        occupe.Laisser();
    }
    EXPECT_FALSE(bouton.isEnabled());
}

TEST(BusyMarks, OutliveWhatTheyMark) {
    auto fiche = std::make_unique<QWidget>();
    auto* bouton = new QPushButton(fiche.get());
    const PointeurPendant pendant(*fiche, pointeur::sablier);
    const BoutonOccupe occupe(*bouton);
    fiche.reset();
}

}  // namespace
}  // namespace bornika
