#include <QPointer>

#include "viewer/reading_scene.h"
#include "viewer/statistics_display.h"

namespace bornika {
namespace {

using AxeLigne = OutilGraphe::AxeLigne;

/// Minimum, mean and maximum of what is on the screen.
class MinMax : public essai::Lectures {
  protected:
    OutilGraphe& Moyenne() { return v.Modele().Outil(2); }
    OutilGraphe& Minimum() { return v.Modele().Outil(3); }
    OutilGraphe& Maximum() { return v.Modele().Outil(4); }
    QStringList Textes() { return {v.Ui().Min->text(), v.Ui().Moy->text(), v.Ui().Max->text()}; }
    QStringList Lignes() {
        return {QString::number(Minimum().valeur), QString::number(Moyenne().valeur),
                QString::number(Maximum().valeur)};
    }
    void Allumer() { Cliquer(v.Ui().MinMaxMoy); }
};

TEST_F(MinMax, BoxesAndLabelsAreShownWhileTheBoxIsChecked) {
    Charger(Montee(9));
    for (const bool cochee : {false, true, false}) {
        if (v.Ui().MinMaxMoy->isChecked() != cochee) Allumer();
        for (const char* nom : {"Min", "Max", "Moy", "LabelMin", "LabelMax", "LabelMoyenne"})
            EXPECT_EQ(v.Fiche().findChild<QWidget*>(nom)->isVisible(), cochee) << nom;
        for (const OutilGraphe* ligne : {&Minimum(), &Moyenne(), &Maximum()})
            EXPECT_EQ(ligne->crayonVisible, cochee);
    }
}

TEST_F(MinMax, OfAChosenCurveTakeInEveryCurveOfItsAxis) {
    Charger(Montee(9));
    ChoisirCurseur(1);
    Allumer();
    EXPECT_EQ(Textes(), QStringList({"1.00", "5.00", "9.00"}));
    EXPECT_EQ(Lignes(), QStringList({"1", "5", "9"}));
    for (const OutilGraphe* ligne : {&Minimum(), &Moyenne(), &Maximum()})
        EXPECT_EQ(ligne->axe, AxeLigne::Gauche);
    ChoisirCurseur(2);
    EXPECT_EQ(Textes(), QStringList({"10.00", "50.00", "90.00"}));
    EXPECT_EQ(Lignes(), QStringList({"10", "50", "90"}));
    for (const OutilGraphe* ligne : {&Minimum(), &Moyenne(), &Maximum()})
        EXPECT_EQ(ligne->axe, AxeLigne::Droite);
    EXPECT_EQ(static_cast<int>(AxeLigne::Gauche), 0);
    EXPECT_EQ(static_cast<int>(AxeLigne::Droite), 2);
}

TEST_F(MinMax, OfASmoothedCurveAreThoseOfItsAxisToo) {
    Charger(Montee(9));
    v.Modele().Serie(0).AjouterPoint(debutSecondes + 4.5, 80, MagasinEtiquettes::vide);
    ChoisirCurseur(3);
    Allumer();
    EXPECT_EQ(v.Ui().Max->text(), "80.00");
    EXPECT_EQ(Maximum().axe, AxeLigne::Gauche);
}

TEST_F(MinMax, WithoutACursorPressureAndFlowArePooledOnTheLeftAxis) {
    Charger(Montee(9));
    Allumer();
    EXPECT_EQ(Textes(), QStringList({"1.00", "27.50", "90.00"}));
    EXPECT_EQ(Maximum().axe, AxeLigne::Gauche);
}

TEST_F(MinMax, ARecordingWithoutAFlowHasThoseOfItsPressureAlone) {
    Charger({{2, 0}, {4, 0}, {6, 0}});
    ASSERT_EQ(v.Modele().Serie(1).Nombre(), 0);
    Allumer();
    const QStringList pression{"2.00", "4.00", "6.00"};
    EXPECT_EQ(Textes(), pression);
    ChoisirCurseur(2);
    EXPECT_EQ(Textes(), pression);
    EXPECT_EQ(Maximum().axe, AxeLigne::Gauche);
    EXPECT_TRUE(Maximum().crayonVisible);
}

TEST_F(MinMax, TheirLinesAreCountedFromTheLastTool) {
    Charger(Montee(9));
    v.Modele().RetirerOutil(0);
    ChoisirCurseur(1);
    Allumer();
    ASSERT_EQ(v.Modele().NombreOutils(), 5);
    EXPECT_EQ(v.Modele().Outil(1).valeur, 5);
    EXPECT_EQ(v.Modele().Outil(2).valeur, 1);
    EXPECT_EQ(v.Modele().Outil(3).valeur, 9);
}

TEST_F(MinMax, TakeInTheCurvesOfOtherFiles) {
    Ecrire("a.txt", Montee(9));
    Ecrire("b.txt", {{40, 1}, {60, 1}});
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt"});
    ChoisirCurseur(1);
    Allumer();
    EXPECT_EQ(Textes(), QStringList({"1.00", "13.18", "60.00"}));
}

TEST_F(MinMax, CurvesBelowZeroHaveTheMaximumZero) {
    Charger({{-3, 1}, {-2, 1}, {-1, 1}});
    ChoisirCurseur(1);
    Allumer();
    EXPECT_EQ(Textes(), QStringList({"-3.00", "-2.00", "0.00"}));
    EXPECT_EQ(Maximum().valeur, 0);
}

TEST_F(MinMax, EachBoxHasTheColourOfItsLine) {
    Charger(Montee(9));
    Allumer();
    EXPECT_EQ(CouleurTexte(v.Ui().Min), Minimum().crayon);
    EXPECT_EQ(CouleurTexte(v.Ui().Max), Maximum().crayon);
    EXPECT_EQ(CouleurTexte(v.Ui().Moy), Moyenne().crayon);
    v.etabli.dialogues.AnnoncerCouleur(0x123456);
    v.Ui().Couleurs->setFocus();
    QTest::keyClick(v.Ui().Couleurs, Qt::Key_Down);
    EXPECT_EQ(CouleurTexte(v.Ui().Min), 0x123456U);
}

TEST_F(MinMax, TheBoxesHaveTheGroundOfTheChartThatTheColoursAreMadeFor) {
    Charger(Montee(9));
    Allumer();
    Survoler(debutSecondes + 3);
    const QColor fond = Vue().ApparencePresente().cadre;
    for (const QLineEdit* boite :
         {v.Ui().Min, v.Ui().Moy, v.Ui().Max, v.Ui().pression, v.Ui().date}) {
        EXPECT_EQ(boite->palette().color(QPalette::Base), fond);
        const QColor texte = boite->palette().color(QPalette::Text);
        EXPECT_GT(qGray(texte.rgb()) - qGray(fond.rgb()), 80) << boite->objectName().toStdString();
    }
}

TEST_F(MinMax, TheSeparatorIsThatOfTheUser) {
    v.etabli.systeme.regional.separateur = ",";
    Charger({{1, 1}, {2, 1}});
    ChoisirCurseur(1);
    Allumer();
    EXPECT_EQ(Textes(), QStringList({"1,00", "1,50", "2,00"}));
}

TEST_F(MinMax, FollowTheZoomAndItsUndoing) {
    Charger(Montee(9));
    ChoisirCurseur(1);
    Allumer();
    Zoomer(debutSecondes + 1.5, debutSecondes + 4.5);
    EXPECT_EQ(Textes(), QStringList({"3.00", "4.00", "5.00"}));
    v.Regard().AnnulerZoom();
    EXPECT_EQ(Textes(), QStringList({"1.00", "5.00", "9.00"}));
}

TEST_F(MinMax, FollowScrolling) {
    Charger(Montee(9));
    ChoisirCurseur(1);
    Allumer();
    Zoomer(debutSecondes + 0.5, debutSecondes + 4.5);
    EXPECT_EQ(Textes(), QStringList({"2.00", "3.50", "5.00"}));
    v.Regard().Defiler(0.5, 0);
    EXPECT_EQ(Textes(), QStringList({"4.00", "5.50", "7.00"}));
}

TEST_F(MinMax, FollowThePages) {
    Charger(Montee(250));
    ChoisirCurseur(1);
    Allumer();
    Cliquer(v.Ui().Pages);
    EXPECT_EQ(v.Ui().Max->text(), "100.00");
    Cliquer(v.Ui().ChartPageNavigator->suivante);
    EXPECT_EQ(v.Ui().Min->text(), "101.00");
}

TEST_F(MinMax, ACurveThatIsSwitchedOffInTheLegendStillCounts) {
    Charger(Montee(9));
    Allumer();
    const QStringList avant = Textes();
    ASSERT_TRUE(v.Modele().Serie(0).active);
    ASSERT_FALSE(v.Modele().Serie(1).active);
    v.Regard().BasculerSerie(0);
    ASSERT_FALSE(v.Modele().Serie(0).active);
    EXPECT_EQ(Textes(), avant);
}

TEST_F(MinMax, WithoutAVisiblePointLinesAndBoxesKeepWhatTheyShow) {
    Charger(Montee(9));
    ChoisirCurseur(2);
    Allumer();
    const QStringList textes = Textes();
    const QStringList lignes = Lignes();
    v.Modele().MontrerPlage({0, 10});
    ChoisirCurseur(1);
    EXPECT_EQ(Textes(), textes);
    EXPECT_EQ(Lignes(), lignes);
    EXPECT_EQ(Maximum().axe, AxeLigne::Droite);
    v.Modele().RetirerTout();
    Vue().Repaint();
    EXPECT_EQ(Textes(), textes);
    EXPECT_EQ(Lignes(), lignes);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(MinMax, WithoutAVisiblePointTheirLinesAreShownAllTheSame) {
    Charger(Montee(9));
    v.Modele().MontrerPlage({0, 10});
    Allumer();
    EXPECT_EQ(Textes(), QStringList({"", "", ""}));
    for (const OutilGraphe* ligne : {&Minimum(), &Moyenne(), &Maximum()})
        EXPECT_TRUE(ligne->crayonVisible);
}

TEST_F(MinMax, OfACurveThatIsGoneAreThoseThatStand) {
    Charger(Montee(9));
    ChoisirCurseur(4);
    Allumer();
    const QStringList avant = Textes();
    v.Modele().RetirerSerie(3);
    Zoomer(debutSecondes + 1.5, debutSecondes + 4.5);
    EXPECT_EQ(Textes(), avant);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(MinMax, SwitchedOffEachRedrawHidesTheirLines) {
    Charger(Montee(9));
    const auto lignes = {&Minimum(), &Moyenne(), &Maximum()};
    for (OutilGraphe* ligne : lignes)
        ligne->crayonVisible = true;
    Vue().Repaint();
    for (const OutilGraphe* ligne : lignes)
        EXPECT_FALSE(ligne->crayonVisible);
}

TEST_F(MinMax, SwitchedOffTheyComputeNothing) {
    Charger(Montee(9));
    Vue().Repaint();
    Zoomer(debutSecondes + 1.5, debutSecondes + 4.5);
    EXPECT_EQ(Textes(), QStringList({"", "", ""}));
    Allumer();
    const QStringList avant = Lignes();
    Allumer();
    v.Regard().AnnulerZoom();
    EXPECT_EQ(Lignes(), avant);
}

TEST_F(MinMax, EachRedrawIsOneRedraw) {
    Charger(Montee(9));
    ChoisirCurseur(1);
    Cliquer(v.Ui().Marques);
    QSignalSpy dessins(&Vue(), &VueGraphe::Redessin);
    const auto compter = [&](auto action) {
        const int avant = int(dessins.count());
        action();
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        return int(dessins.count()) - avant;
    };
    EXPECT_EQ(compter([&] { Allumer(); }), 2);  // the marks go first
    EXPECT_EQ(compter([&] { Vue().Repaint(); }), 1);
    EXPECT_EQ(compter([&] { Cliquer(v.Ui().Marques); }), 1);
    EXPECT_EQ(compter([&] { ChoisirCurseur(2); }), 1);
    EXPECT_EQ(compter([&] { Zoomer(debutSecondes + 1.5, debutSecondes + 4.5); }), 1);
    EXPECT_EQ(compter([&] { Allumer(); }), 1);
}

TEST_F(MinMax, EachRedrawClearsTheMarks) {
    Charger(Montee(9));
    ChoisirCurseur(1);
    Cliquer(v.Ui().Marques);
    ASSERT_TRUE(v.Modele().Serie(0).marques);
    Allumer();
    EXPECT_FALSE(v.Ui().Marques->isChecked());
    EXPECT_FALSE(v.Modele().Serie(0).marques);
    Cliquer(v.Ui().Marques);
    EXPECT_FALSE(v.Ui().Marques->isChecked());
    EXPECT_FALSE(v.Modele().Serie(0).marques);
    v.Modele().Serie(0).marques = true;
    v.Ui().Marques->setEnabled(false);
    Vue().Repaint();
    EXPECT_TRUE(v.Ui().Marques->isEnabled());
    Allumer();
    Cliquer(v.Ui().Marques);
    Vue().Repaint();
    EXPECT_TRUE(v.Ui().Marques->isChecked());
    EXPECT_TRUE(v.Modele().Serie(0).marques);
}

TEST_F(MinMax, WithoutATemplateNothingIsShownAndNothingFails) {
    ASSERT_TRUE(QFile::remove(v.etabli.Chemin("BORNIKA.TEE")));
    Charger(Montee(9));
    Allumer();
    EXPECT_TRUE(v.Ui().Min->isVisible());
    EXPECT_EQ(Textes(), QStringList({"", "", ""}));
    Allumer();
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
}

TEST_F(MinMax, WithoutATemplateEachRedrawClearsTheMarksToo) {
    ASSERT_TRUE(QFile::remove(v.etabli.Chemin("BORNIKA.TEE")));
    Charger(Montee(9));
    ChoisirCurseur(1);
    Cliquer(v.Ui().Marques);
    ASSERT_TRUE(v.Modele().Serie(0).marques);
    Allumer();
    EXPECT_FALSE(v.Ui().Marques->isChecked());
    EXPECT_FALSE(v.Modele().Serie(0).marques);
}

TEST_F(MinMax, DuringALoadTheyWorkOnThePointsSoFar) {
    Charger(Montee(20));
    Allumer();
    v.Modele().pasRedessin = std::chrono::milliseconds(0);
    QStringList maxima;
    int cession = 0;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++cession % 10 == 0) maxima.append(v.Ui().Max->text());
    });
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(maxima, QStringList({"40.00", "90.00", "140.00", "190.00"}));
    EXPECT_EQ(v.Ui().Max->text(), "200.00");
    EXPECT_TRUE(v.Ui().MinMaxMoy->isChecked());
    EXPECT_TRUE(Maximum().crayonVisible);
}

TEST_F(MinMax, CanBeSwitchedOnAndOffDuringALoad) {
    Charger(Montee(20));
    int cession = 0;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++cession == 10 || cession == 20) Allumer();
        if (cession == 10) {
            EXPECT_EQ(v.Ui().Max->text(), "40.00");
        }
    });
    v.Ui().Command_Refresh->click();
    EXPECT_FALSE(v.Ui().Min->isVisible());
    EXPECT_FALSE(Maximum().crayonVisible);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(MinMax, AFormClosedInTheMiddleOfALoadTakesThemWithIt) {
    Charger(Montee(20));
    Allumer();
    v.Modele().pasRedessin = std::chrono::milliseconds(0);
    int cession = 0;
    QPointer<Trace> fiche = &v.Fiche();
    v.etabli.respiration.ReglerEvenements([&] {
        if (++cession != 15) return;
        ChoisirCurseur(1);
        fiche->close();
        fiche->ui->Lissage->setValue(50);
        fiche->ui->TChart1->Repaint();
        QCoreApplication::processEvents();
    });
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(v.acces.Presente(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(fiche, nullptr);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

/// The slider of the smoothed curves.
class Lisseur : public essai::Lectures {
  protected:
    int Periode(int serie) { return v.Modele().Serie(serie).Periode(); }
    void Activer(bool troisieme, bool quatrieme) {
        v.Modele().Serie(2).active = troisieme;
        v.Modele().Serie(3).active = quatrieme;
    }
    void Pousser(int crans) {
        v.Ui().Lissage->setFocus();
        for (int i = 0; i < crans; ++i)
            QTest::keyClick(v.Ui().Lissage, Qt::Key_Right);
    }
};

TEST_F(Lisseur, ItsKeysMoveItByOneAndChangeTheCurvesThatAreShown) {
    Charger(Montee(30));
    Activer(true, true);
    Pousser(3);
    EXPECT_EQ(v.Ui().Lissage->value(), 13);
    EXPECT_EQ(Periode(2), 13);
    EXPECT_EQ(Periode(3), 13);
}

TEST_F(Lisseur, ItsMouseMovesItByPages) {
    Charger(Montee(30));
    Activer(true, true);
    QScrollBar& barre = *v.Ui().Lissage;
    QTest::mouseClick(&barre, Qt::LeftButton, {}, QPoint(barre.width() - 30, barre.height() / 2));
    EXPECT_EQ(barre.value(), 20);
    EXPECT_EQ(Periode(2), 20);
}

TEST_F(Lisseur, TheWheelAwayFromTheHandSmoothsMore) {
    Charger(Montee(30));
    QScrollBar& barre = *v.Ui().Lissage;
    const QPointF milieu = QRectF(barre.rect()).center();
    QWheelEvent roue(milieu, barre.mapToGlobal(milieu), QPoint(), QPoint(0, 120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&barre, &roue);
    EXPECT_GT(barre.value(), 10);
}

TEST_F(Lisseur, ReachesFromTheCurveItselfToAHundredPoints) {
    std::vector<essai::Mesure> mesures(300, {4, 1});
    mesures[150].pression = 40;
    Charger(mesures);
    Activer(true, true);
    v.Ui().Lissage->setValue(500);
    EXPECT_EQ(Periode(2), 100);
    EXPECT_EQ(Periode(3), 100);
    EXPECT_NEAR(v.Modele().Serie(2).Y()[150], 4.36, 1e-9);
    v.Ui().Lissage->setValue(-3);
    EXPECT_EQ(Periode(2), 1);
    const std::span<const double> lissee = v.Modele().Serie(2).Y();
    const std::span<const double> source = v.Modele().Serie(0).Y();
    EXPECT_TRUE(std::equal(lissee.begin(), lissee.end(), source.begin(), source.end()));
}

TEST_F(Lisseur, AHiddenCurveKeepsItsPeriodUntilItIsShownAndTheSliderMovedAgain) {
    Charger(Montee(30));
    Activer(false, true);
    Pousser(5);
    EXPECT_EQ(Periode(2), 10);
    EXPECT_EQ(Periode(3), 15);
    Activer(true, false);
    EXPECT_EQ(Periode(2), 10);
    Pousser(1);
    EXPECT_EQ(Periode(2), 16);
    EXPECT_EQ(Periode(3), 15);
}

TEST_F(Lisseur, RedrawsTheChartOnceAndOnlyIfACurveChanged) {
    Charger(Montee(30));
    Activer(true, true);
    QSignalSpy dessins(&Vue(), &VueGraphe::Redessin);
    Pousser(1);
    EXPECT_EQ(dessins.count(), 1);
    Activer(false, false);
    Pousser(1);
    EXPECT_EQ(dessins.count(), 1);
}

TEST_F(Lisseur, TheStatisticsFollowIt) {
    std::vector<essai::Mesure> mesures(40, {4, 1});
    mesures[2].pression = 40;
    Charger(mesures);
    Activer(true, true);
    ChoisirCurseur(1);
    Cliquer(v.Ui().MinMaxMoy);
    const QString avant = v.Ui().Moy->text();
    Pousser(30);
    EXPECT_NE(v.Ui().Moy->text(), avant);
}

TEST_F(Lisseur, WithThreeCurvesOnlyTheThirdIsLookedAt) {
    Charger(Montee(30));
    Activer(true, true);
    v.Modele().RetirerSerie(3);
    Pousser(1);
    EXPECT_EQ(Periode(2), 11);
    v.Modele().RetirerSerie(2);
    Pousser(1);
    EXPECT_EQ(v.Modele().NombreSeries(), 2);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(Lisseur, BeforeAnyLoadItDoesNothing) {
    v.Fiche().show();
    v.Ui().Lissage->setValue(40);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(Lisseur, LeavesTheCurvesOfASecondFileAlone) {
    Ecrire("a.txt", Montee(20));
    Ecrire("b.txt", Montee(10));
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt"});
    Activer(true, true);
    const std::uint64_t avant = v.Modele().Serie(2).Revision();
    Pousser(5);
    EXPECT_EQ(v.Modele().Serie(2).Revision(), avant);
    EXPECT_EQ(Periode(3), 1);
}

TEST_F(Lisseur, ALoadPutsItBackToTen) {
    Charger(Montee(30));
    Activer(true, true);
    Pousser(20);
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(v.Ui().Lissage->value(), 10);
    EXPECT_EQ(Periode(2), 10);
    EXPECT_EQ(Periode(3), 10);
}

}  // namespace
}  // namespace bornika
