#include "widgets/controls.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QTest>
#include <cmath>

#include "platform/fault.h"
#include "support/fault_number.h"

namespace bornika {
namespace {

using essai::NumeroDeFaute;

class Liste : public testing::Test {
  protected:
    Liste() {
        QObject::connect(&liste, &ListeDeroulante::Clic,
                         [this] { clics.push_back(liste.Index()); });
        QObject::connect(&liste, &ListeDeroulante::ClicMain, [this] { ++mains; });
        QObject::connect(&liste, &QComboBox::currentIndexChanged, [this] { ++changements; });
    }
    void Remplir() {
        for (const char* texte : {"un", "deux", "trois"})
            liste.Ajouter(QString::fromLatin1(texte));
    }

    ListeDeroulante liste;
    std::vector<int> clics;
    int mains = 0;
    int changements = 0;
};

TEST_F(Liste, ChoosesNothingWhileItIsFilled) {
    Remplir();
    EXPECT_EQ(liste.Nombre(), 3);
    EXPECT_EQ(liste.Index(), -1);
    EXPECT_EQ(liste.Texte(), "");
    EXPECT_TRUE(clics.empty());
    EXPECT_EQ(changements, 0);
}

TEST_F(Liste, ChoosesNothingWhenItIsEmptiedAndFilledAgain) {
    Remplir();
    liste.Choisir(1);
    clics.clear();
    liste.Vider();
    EXPECT_EQ(liste.Index(), -1);
    EXPECT_EQ(liste.Nombre(), 0);
    Remplir();
    EXPECT_EQ(liste.Index(), -1);
    EXPECT_TRUE(clics.empty());
    EXPECT_EQ(changements, 0);
}

TEST_F(Liste, RaisesAClickForEveryChoiceOfTheProgram) {
    Remplir();
    liste.Choisir(1);
    liste.Choisir(1);
    liste.Choisir(-1);
    liste.Choisir(-1);
    EXPECT_EQ(clics, (std::vector<int>{1, 1, -1, -1}));
    EXPECT_EQ(mains, 0);
}

TEST_F(Liste, TellsAChoiceByHandApart) {
    Remplir();
    liste.Choisir(0);
    clics.clear();
    QTest::keyClick(&liste, Qt::Key_Down);
    EXPECT_EQ(clics, std::vector<int>{1});
    EXPECT_EQ(mains, 1);
    EXPECT_EQ(liste.Texte(), "deux");
}

TEST_F(Liste, TellsAChoiceByHandOfTheEntryChosenAlready) {
    Remplir();
    liste.Choisir(1);
    clics.clear();
    Q_EMIT liste.activated(1);
    EXPECT_EQ(clics, std::vector<int>{1});
    EXPECT_EQ(mains, 1);
}

TEST_F(Liste, KeepsTheChosenEntryWhenOthersComeBeforeIt) {
    Remplir();
    liste.Choisir(1);
    clics.clear();
    liste.Ajouter(QStringLiteral("zero"), 0);
    EXPECT_EQ(liste.Index(), 2);
    EXPECT_EQ(liste.Texte(), "deux");
    EXPECT_EQ(liste.TexteA(0), "zero");
    EXPECT_TRUE(clics.empty());
}

TEST_F(Liste, AddsAtThePositionTold) {
    Remplir();
    liste.Ajouter(QStringLiteral("milieu"), 1);
    liste.Ajouter(QStringLiteral("fin"), 4);
    EXPECT_EQ(liste.TexteA(1), "milieu");
    EXPECT_EQ(liste.TexteA(4), "fin");
    EXPECT_EQ(liste.TexteA(5), "");
    EXPECT_EQ(NumeroDeFaute([this] { liste.Ajouter(QStringLiteral("x"), 6); }), 5);
    EXPECT_EQ(NumeroDeFaute([this] { liste.Ajouter(QStringLiteral("x"), -2); }), 5);
    EXPECT_EQ(liste.Nombre(), 5);
}

TEST_F(Liste, CarriesANumberOfEachEntry) {
    Remplir();
    EXPECT_EQ(liste.Donnee(0), 0);
    liste.FixerDonnee(1, -2147483647);
    liste.Ajouter(QStringLiteral("zero"), 0);
    EXPECT_EQ(liste.Donnee(2), -2147483647);
    EXPECT_EQ(NumeroDeFaute([this] { liste.Donnee(4); }), 381);
    EXPECT_EQ(NumeroDeFaute([this] { liste.Donnee(-1); }), 381);
    EXPECT_EQ(NumeroDeFaute([this] { liste.FixerDonnee(4, 1); }), 381);
    liste.Vider();
    Remplir();
    EXPECT_EQ(liste.Donnee(1), 0);
}

TEST_F(Liste, FaultsForAChoiceBeyondItsEntries) {
    Remplir();
    liste.Choisir(2);
    clics.clear();
    EXPECT_EQ(NumeroDeFaute([this] { liste.Choisir(3); }), 380);
    EXPECT_EQ(NumeroDeFaute([this] { liste.Choisir(-2); }), 380);
    EXPECT_EQ(liste.Index(), 2);
    EXPECT_TRUE(clics.empty());
}

TEST_F(Liste, LeavesAChoiceThatMayBeMissing) {
    Remplir();
    liste.ChoisirSiPresent(3);
    EXPECT_EQ(liste.Index(), -1);
    EXPECT_TRUE(clics.empty());
    liste.ChoisirSiPresent(2);
    liste.ChoisirSiPresent(-1);
    EXPECT_EQ(clics, (std::vector<int>{2, -1}));
}

TEST_F(Liste, ShowsTheChoiceThatItMakesSilently) {
    Remplir();
    liste.resize(120, 30);
    liste.Choisir(0);
    const QImage avant = liste.grab().toImage();
    liste.Choisir(2);
    EXPECT_NE(liste.grab().toImage(), avant);
}

// Counts how often the bar is asked to draw itself.
class BarreComptee : public BarreProgression {
  public:
    int dessins = 0;

  protected:
    void paintEvent(QPaintEvent* evenement) override {
        ++dessins;
        BarreProgression::paintEvent(evenement);
    }
};

TEST(Barre, KeepsItsLimitsAndValueAsNumbers) {
    BarreProgression barre;
    barre.FixerMaximum(540606);
    barre.FixerValeur(270303);
    EXPECT_EQ(barre.Minimum(), 0);
    EXPECT_EQ(barre.Maximum(), 540606);
    EXPECT_EQ(barre.Valeur(), 270303);
    EXPECT_EQ(barre.text(), "50%");
}

TEST(Barre, ShowsZeroPercentAtFirst) {
    const BarreProgression barre;
    EXPECT_EQ(barre.text(), "0%");
}

TEST(Barre, HoldsItsValueBetweenNewLimits) {
    BarreProgression barre;
    barre.FixerValeur(80);
    barre.FixerMaximum(50);
    EXPECT_EQ(barre.Valeur(), 50);
    barre.FixerMaximum(200);
    barre.FixerMinimum(100);
    EXPECT_EQ(barre.Valeur(), 100);
}

TEST(Barre, FaultsForWhatItCannotHold) {
    BarreProgression barre;
    EXPECT_EQ(NumeroDeFaute([&] { barre.FixerValeur(101); }), 380);
    EXPECT_EQ(NumeroDeFaute([&] { barre.FixerValeur(-1); }), 380);
    EXPECT_EQ(NumeroDeFaute([&] { barre.FixerValeur(std::nan("")); }), 380);
    EXPECT_EQ(NumeroDeFaute([&] { barre.FixerMaximum(-1); }), 380);
    EXPECT_EQ(NumeroDeFaute([&] { barre.FixerMinimum(101); }), 380);
    EXPECT_EQ(barre.Maximum(), 100);
    EXPECT_EQ(barre.Minimum(), 0);
    EXPECT_EQ(barre.Valeur(), 0);
}

TEST(Barre, IsNeverBusyWithoutARange) {
    BarreProgression barre;
    barre.FixerMaximum(0);
    EXPECT_NO_THROW(barre.FixerValeur(0));
    EXPECT_EQ(barre.text(), "0%");
    EXPECT_LT(barre.QProgressBar::minimum(), barre.QProgressBar::maximum());
}

TEST(Barre, DrawsItselfOnlyWhenTheDifferenceCanBeSeen) {
    BarreComptee barre;
    barre.resize(300, 20);
    barre.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&barre));
    QCoreApplication::processEvents();
    barre.FixerMaximum(540606);
    barre.dessins = 0;
    for (int i = 0; i <= 540606; i += 100) {
        barre.FixerValeur(i);
        if (i % 10000 == 0) QCoreApplication::processEvents();
    }
    EXPECT_GT(barre.dessins, 0);
    EXPECT_LE(barre.dessins, 1100);
}

}  // namespace
}  // namespace bornika
