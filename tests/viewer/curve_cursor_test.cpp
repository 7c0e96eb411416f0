#include "viewer/curve_cursor.h"

#include "platform/dates.h"
#include "platform/format_pattern.h"
#include "viewer/reading_scene.h"

namespace bornika {
namespace {

using Genre = OutilGraphe::Genre;

/// The choice of the curve that the cursor follows.
class CurseurChoix : public essai::Lectures {
  protected:
    void SetUp() override { Charger(Montee(20)); }
    std::vector<Genre> Genres() {
        std::vector<Genre> genres;
        for (int i = 0; i < v.Modele().NombreOutils(); ++i)
            genres.push_back(v.Modele().Outil(i).genre);
        return genres;
    }
    void SansGabarit() {
        ASSERT_TRUE(QFile::remove(v.etabli.Chemin("BORNIKA.TEE")));
        v.Ui().Command_Refresh->click();
        ASSERT_EQ(v.Modele().NombreOutils(), 0);
    }
    const std::vector<Genre> sixOutils{Genre::Reserve,      Genre::Annotation,
                                       Genre::LigneCouleur, Genre::LigneCouleur,
                                       Genre::LigneCouleur, Genre::Curseur};
};

using MarquesChoix = CurseurChoix;

TEST_F(CurseurChoix, ACurveGetsAWhiteCursorThatFollowsTheMouse) {
    for (int index = 1; index <= 4; ++index) {
        ChoisirCurseur(index);
        EXPECT_EQ(Genres(), sixOutils);
        EXPECT_EQ(Dernier().serie, index - 1);
        EXPECT_EQ(Dernier().crayon, 0xFFFFFFU);
        EXPECT_TRUE(Dernier().crayonVisible);
        EXPECT_TRUE(Dernier().suitSouris);
        EXPECT_TRUE(v.Ui().Marques->isEnabled());
    }
}

TEST_F(CurseurChoix, EveryCursorBehindTheLinesIsReplacedByTheOne) {
    for (int i = 0; i < 3; ++i) {
        OutilGraphe curseur;
        curseur.genre = Genre::Curseur;
        v.Modele().AjouterOutil(curseur);
    }
    ChoisirCurseur(2);
    EXPECT_EQ(Genres(), sixOutils);
    EXPECT_EQ(Dernier().serie, 1);
}

TEST_F(CurseurChoix, NoCursorKeepsTheToolWithABlackLine) {
    ChoisirCurseur(2);
    ChoisirCurseur(0);
    EXPECT_EQ(Genres(), sixOutils);
    EXPECT_EQ(Dernier().serie, 1);
    EXPECT_EQ(Dernier().crayon, 0U);
    EXPECT_FALSE(v.Ui().Marques->isEnabled());
}

TEST_F(CurseurChoix, TheBlackToolGoesOnWithTheMouseButNotWithTheKeys) {
    ChoisirCurseur(1);
    Survoler(debutSecondes + 3);
    ChoisirCurseur(0);
    Survoler(debutSecondes + 8);
    EXPECT_EQ(Dernier().x, debutSecondes + 8);
    const QString lue = v.Ui().pression->text();
    QTest::keyClick(&v.Regard().Surface(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Dernier().x, debutSecondes + 8);
    EXPECT_EQ(v.Ui().pression->text(), lue);
}

TEST_F(CurseurChoix, ALoadGoesBackToNoCursorAndRaisesTheChoice) {
    ChoisirCurseur(1);
    Cliquer(v.Ui().Marques);
    QSignalSpy choix(v.Ui().Curseur, &ListeDeroulante::Clic);
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(choix.count(), 1);
    EXPECT_EQ(v.Ui().Curseur->Index(), 0);
    EXPECT_EQ(Dernier().crayon, 0U);
    EXPECT_FALSE(v.Ui().Marques->isEnabled());
    EXPECT_FALSE(v.Ui().Marques->isChecked());
}

TEST_F(CurseurChoix, WithoutATemplateThereIsNoCursorAndNoFault) {
    SansGabarit();
    ChoisirCurseur(2);
    EXPECT_EQ(v.Modele().NombreOutils(), 0);
    EXPECT_TRUE(v.Ui().Marques->isEnabled());
    ChoisirCurseur(0);
    EXPECT_EQ(v.Modele().NombreOutils(), 0);
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
}

TEST_F(CurseurChoix, ACurveThatIsGoneGetsNoCursorAndNoFault) {
    v.Modele().RetirerSerie(3);
    ChoisirCurseur(4);
    EXPECT_EQ(Dernier().serie, 2);
    Cliquer(v.Ui().Marques);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(CurseurChoix, RedrawsTheChartOnce) {
    QSignalSpy dessins(&Vue(), &VueGraphe::Redessin);
    ChoisirCurseur(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(dessins.count(), 1);
}

TEST_F(MarquesChoix, AreForAChosenCurveOnly) {
    EXPECT_FALSE(v.Ui().Marques->isEnabled());
    v.Ui().Marques->setChecked(true);
    for (int s = 0; s < 4; ++s)
        EXPECT_FALSE(v.Modele().Serie(s).marques) << s;
}

TEST_F(MarquesChoix, ShowAndHideThoseOfTheChosenCurve) {
    ChoisirCurseur(2);
    Cliquer(v.Ui().Marques);
    for (int s = 0; s < 4; ++s)
        EXPECT_EQ(v.Modele().Serie(s).marques, s == 1) << s;
    Cliquer(v.Ui().Marques);
    EXPECT_FALSE(v.Modele().Serie(1).marques);
}

TEST_F(MarquesChoix, EndWithTheNextChoice) {
    for (const int suivant : {3, 0, 2}) {
        ChoisirCurseur(2);
        v.Modele().Serie(3).marques = true;
        Cliquer(v.Ui().Marques);
        // Choosing by the program is the same choice, also of the entry that is chosen already.
        v.Ui().Curseur->Choisir(suivant);
        EXPECT_FALSE(v.Ui().Marques->isChecked()) << suivant;
        for (int s = 0; s < 4; ++s)
            EXPECT_FALSE(v.Modele().Serie(s).marques) << suivant << s;
    }
}

/// What the mouse reads off the chart.
class CurseurLecture : public essai::Lectures {
  protected:
    struct Lu {
        QString pression;
        QString date;
        QString etiquette;
        Couleur couleur;
        bool operator==(const Lu&) const = default;
    };
    Lu Affiche() {
        return {v.Ui().pression->text(), v.Ui().date->text(), v.Ui().LabelPression->text(),
                CouleurTexte(v.Ui().pression)};
    }
    QString Date(double secondes) const {
        return EpochVersTexte(secondes, v.etabli.systeme.regional);
    }
    QString Pression(int index, double pression, double comptage) {
        const Mesure mesure{pression, comptage};
        Charger({mesure, mesure, mesure});
        ChoisirCurseur(index);
        Survoler(debutSecondes + 1);
        return v.Ui().pression->text();
    }
    using Mesure = essai::Mesure;
};

TEST_F(CurseurLecture, WithoutACursorThePlaceOfTheMouseIsReadOnTheFirstCurve) {
    Charger(Montee(20));
    const QPoint souris = Survoler(debutSecondes + 7.3);
    const double y = v.Regard().ValeurA(souris.y());
    EXPECT_NE(y, std::floor(y));
    const Lu lu = Affiche();
    EXPECT_EQ(lu.pression, Format(y, "#.##", v.etabli.systeme.regional));
    EXPECT_EQ(lu.date, Date(v.Regard().TempsA(souris.x())));
    EXPECT_EQ(lu.etiquette, "Pression");
    EXPECT_EQ(lu.couleur, Vue().CouleurSerie(0));
}

TEST_F(CurseurLecture, TheFirstCurveIsReadAtItsPoint) {
    Charger(Montee(20));
    ChoisirCurseur(1);
    Survoler(debutSecondes + 7);
    EXPECT_EQ(Affiche(), (Lu{"8.", "12/01/1970 13:46:47", "Pression", Vue().CouleurSerie(0)}));
}

TEST_F(CurseurLecture, TheFlowIsReadWithItsTitleAndColour) {
    Charger(Montee(20));
    ChoisirCurseur(2);
    Survoler(debutSecondes + 7);
    EXPECT_EQ(Affiche(), (Lu{"80.", Date(debutSecondes + 7), "M3/sec.", 0x00FF80}));
}

TEST_F(CurseurLecture, TheThirdCurveIsReadWithTheTitleOfTheFlowAndItsOwnColour) {
    Charger(Montee(20));
    ChoisirCurseur(3);
    Survoler(debutSecondes);
    EXPECT_EQ(Affiche(), (Lu{"1.", Date(debutSecondes), "M3/sec.", 65535}));
}

TEST_F(CurseurLecture, OfSeveralFilesTheThirdCurveIsReadInTheSameWay) {
    Ecrire("a.txt", Montee(20));
    Ecrire("b.txt", {{1.23456, 1}, {2.34567, 1}, {3.45678, 1}});
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt"});
    ASSERT_EQ(v.Ui().Curseur->Nombre(), 5);
    ASSERT_EQ(v.Modele().Serie(2).axe, SerieGraphe::Axe::Gauche);
    ChoisirCurseur(3);
    Survoler(debutSecondes + 1);
    EXPECT_EQ(Affiche(), (Lu{"2.3457", Date(debutSecondes + 1), "M3/sec.", Vue().CouleurSerie(2)}));
}

TEST_F(CurseurLecture, TheTitleGoesBackToThePressureWithItsCurveAndWithoutACursor) {
    Charger(Montee(20));
    for (const int index : {1, 0}) {
        ChoisirCurseur(2);
        Survoler(debutSecondes + 3);
        ASSERT_EQ(Affiche().etiquette, "M3/sec.");
        ChoisirCurseur(index);
        EXPECT_EQ(Affiche().etiquette, "M3/sec.") << "until the mouse moves";
        Survoler(debutSecondes + 4);
        EXPECT_EQ(Affiche().etiquette, "Pression") << index;
        EXPECT_EQ(Affiche().couleur, Vue().CouleurSerie(0)) << index;
    }
}

TEST_F(CurseurLecture, AColourGivenToTheCurveIsThatOfItsValue) {
    Charger(Montee(20));
    for (int index = 0; index <= 3; ++index) {
        const int serie = std::max(index - 1, 0);
        const Couleur couleur = 0x102030U + static_cast<Couleur>(index);
        v.Modele().Serie(serie).couleur = couleur;
        ChoisirCurseur(index);
        Survoler(debutSecondes + 3);
        EXPECT_EQ(Affiche().couleur, couleur) << index;
    }
}

TEST_F(CurseurLecture, FollowsTheKeysOfTheCursorToo) {
    Charger(Montee(20));
    ChoisirCurseur(1);
    Survoler(debutSecondes + 3);
    QTest::keyClick(&v.Regard().Surface(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Affiche().pression, "5.");
    EXPECT_EQ(Affiche().date, Date(debutSecondes + 4));
    QTest::keyClick(&v.Regard().Surface(), Qt::Key_End);
    EXPECT_EQ(Affiche().pression, "20.");
}

TEST_F(CurseurLecture, TheSecondSmoothedCurveIsNotRead) {
    Charger(Montee(20));
    ChoisirCurseur(1);
    Survoler(debutSecondes + 3);
    const Lu avant = Affiche();
    ChoisirCurseur(4);
    Survoler(debutSecondes + 8);
    EXPECT_EQ(Dernier().x, debutSecondes + 8);
    EXPECT_EQ(Affiche(), avant);
}

TEST_F(CurseurLecture, FromTheFourthCurveOnNothingChanges) {
    Ecrire("a.txt", Montee(20));
    Ecrire("b.txt", Montee(10));
    Ecrire("c.txt", Montee(10));
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt", "c.txt"});
    ASSERT_EQ(v.Ui().Curseur->Nombre(), 7);
    ChoisirCurseur(1);
    Survoler(debutSecondes + 3);
    const Lu avant = Affiche();
    EXPECT_EQ(avant.pression, "4.");
    for (int index = 4; index <= 6; ++index) {
        ChoisirCurseur(index);
        Survoler(debutSecondes + 8);
        EXPECT_EQ(Affiche(), avant) << index;
    }
}

TEST_F(CurseurLecture, PressuresHaveTwoPlacesAtMostAndFlowsFour) {
    EXPECT_EQ(Pression(1, 12.345, 1), "12.35");
    EXPECT_EQ(Pression(1, 2.5, 1), "2.5");
    EXPECT_EQ(Pression(1, -1.25, 1), "-1.25");
    EXPECT_EQ(Pression(2, 1, 0.333333), ".3333");
    EXPECT_EQ(Pression(3, 1.23456, 1), "1.2346");
}

TEST_F(CurseurLecture, ValuesBelowOneHaveNoLeadingZeroAndThePointAlwaysStands) {
    EXPECT_EQ(Pression(1, 5, 1), "5.");
    EXPECT_EQ(Pression(1, 0, 1), ".");
    EXPECT_EQ(Pression(1, 0.5, 1), ".5");
    EXPECT_EQ(Pression(1, -0.5, 1), "-.5");
    EXPECT_EQ(Pression(2, 1, 5), "5.");
}

TEST_F(CurseurLecture, TheSeparatorIsThatOfTheUser) {
    v.etabli.systeme.regional.separateur = ",";
    EXPECT_EQ(Pression(1, 2.5, 1), "2,5");
    EXPECT_EQ(Pression(1, 5, 1), "5,");
}

TEST_F(CurseurLecture, TimesBeyondTenDigitsAreMilliseconds) {
    Charger(Montee(3), 9'999'999'998);
    ChoisirCurseur(1);
    Survoler(9'999'999'999);
    EXPECT_EQ(v.Ui().date->text(), Date(9'999'999'999));
    Survoler(10'000'000'000);
    EXPECT_EQ(v.Ui().date->text(), "26/04/1970 17:46:40");
}

TEST_F(CurseurLecture, MillisecondsUnderTheMouseAreReadAsSuchWithoutACursorToo) {
    constexpr qint64 debut = 1'700'000'000'000;
    Charger(Montee(3), debut);
    const QPoint souris = Survoler(debut + 1);
    const double temps = v.Regard().TempsA(souris.x());
    ASSERT_GT(temps, 9'999'999'999);
    EXPECT_EQ(v.Ui().date->text(), Date(temps / 1000));
}

TEST_F(CurseurLecture, ACursorThatWasNotMovedReadsNothing) {
    Charger(Montee(20));
    Survoler(debutSecondes + 3);
    const Lu avant = Affiche();
    ChoisirCurseur(1);
    EXPECT_EQ(Affiche(), avant);
    Dernier().point = -1;
    AfficheCurseur(v.Fiche());
    EXPECT_EQ(Affiche(), avant);
}

TEST_F(CurseurLecture, AFaultLeavesAllDisplaysAsTheyWere) {
    Charger(Montee(20));
    ChoisirCurseur(3);
    Survoler(debutSecondes + 3);
    const Lu avant = Affiche();
    v.Modele().RetirerSerie(3);
    v.Modele().RetirerSerie(2);
    Survoler(debutSecondes + 9);
    EXPECT_EQ(Affiche(), avant);
    v.Modele().RemplacerOutils({});
    ChoisirCurseur(1);
    Survoler(debutSecondes + 9);
    EXPECT_EQ(Affiche(), avant);
    v.Modele().RetirerTout();
    ChoisirCurseur(0);
    Survoler(debutSecondes + 9);
    EXPECT_EQ(Affiche(), avant);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(CurseurLecture, DuringALoadACurveCanBeChosenAndRead) {
    Charger(Montee(30));
    int cession = 0;
    QString lue;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++cession != 40) return;
        EXPECT_EQ(v.Ui().Curseur->Index(), -1);
        Survoler(debutSecondes + 3);
        ChoisirCurseur(1);
        Survoler(debutSecondes + 3);
        lue = v.Ui().pression->text();
    });
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(lue, "4.");
    EXPECT_EQ(v.Ui().Curseur->Index(), 0);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

using AidesDeLecture = essai::Lectures;

TEST_F(AidesDeLecture, ChangeNoFileAndShowNoBox) {
    Charger(Montee(30));
    const auto contenus = [&] {
        QMap<QString, QByteArray> fichiers;
        for (const QString& nom : v.etabli.Fichiers())
            fichiers[nom] = v.etabli.Lire(nom);
        return fichiers;
    };
    const QMap<QString, QByteArray> avant = contenus();
    ASSERT_FALSE(avant["a.txt"].isEmpty());
    ASSERT_FALSE(avant["config.xml"].isEmpty());
    for (int index = 4; index >= 0; --index) {
        ChoisirCurseur(index);
        Survoler(debutSecondes + 3 + index);
        Cliquer(v.Ui().Marques);
        Cliquer(v.Ui().MinMaxMoy);
        v.Ui().Lissage->setValue(20 + index);
        Zoomer(debutSecondes + 1.5, debutSecondes + 20.5);
        v.Regard().AnnulerZoom();
    }
    EXPECT_EQ(contenus(), avant);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(v.etabli.fautes.empty());
}

}  // namespace
}  // namespace bornika
