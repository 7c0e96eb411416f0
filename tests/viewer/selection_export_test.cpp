#include "viewer/selection_export.h"

#include <gtest/gtest.h>

#include "chart/model/chart_model.h"
#include "platform/fault.h"

namespace bornika {
namespace {

const QByteArray entete = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.";

/// What is asked for in these tests: all times from 1000 to 9000.
DemandeSelection Demande(FormatSelection format = FormatSelection::Enregistrement) {
    DemandeSelection demande;
    demande.format = format;
    demande.portees = {{1000, 9000}};
    demande.titreTemps = "Time";
    demande.CoefImpulsion = "2.5";
    demande.UniteImpulsion = "m\u00B3";
    demande.TexteListeTemps = "Hrs";
    return demande;
}

QByteArrayList Sortie(const QByteArray& source, const DemandeSelection& demande) {
    LecteurSelection lecteur(source, demande);
    QByteArrayList lignes{lecteur.Entete()};
    while (const auto ligne = lecteur.Suivante())
        lignes << ligne->toByteArray();
    return lignes;
}
QByteArrayList Recording(const QByteArray& source) {
    return Sortie(source, Demande());
}
QByteArrayList Csv(const QByteArray& source) {
    return Sortie(source, Demande(FormatSelection::Csv));
}

struct Fin {
    int faute = 0;
    QString texte;
    QByteArrayList avant;
};

/// How the reading ends, and what came before.
Fin Finir(const QByteArray& source, const DemandeSelection& demande) {
    Fin fin;
    try {
        LecteurSelection lecteur(source, demande);
        fin.avant << lecteur.Entete();
        while (const auto ligne = lecteur.Suivante())
            fin.avant << ligne->toByteArray();
    } catch (const FauteExecution& faute) {
        fin.faute = faute.numero();
        fin.texte = faute.texte();
    }
    return fin;
}

TEST(SelectionLines, AreTheSameWhateverEndsTheLinesOfTheSource) {
    const QByteArrayList lignes{entete, "1000;a;1;2;;3;", "2000;b;1;2;;3;"};
    for (const char* finLigne : {"\r\n", "\n", "\r"})
        EXPECT_EQ(Recording(lignes.join(finLigne) + finLigne), lignes) << finLigne[0] + 0;
}

TEST(SelectionLines, EndWithTheLastLineEndSoThatHalfALineIsNone) {
    for (const QByteArray finLigne : {"\r\n", "\n", "\r"}) {
        const QByteArray source =
            entete + finLigne + "1000;a;1;2;;3;" + finLigne + "2000;b;1;2;;3;";
        EXPECT_EQ(Recording(source), (QByteArrayList{entete, "1000;a;1;2;;3;"}));
        EXPECT_EQ(Recording(source + finLigne).size(), 3);
    }
}

TEST(SelectionLines, OfASourceOfOneLineAreItsHeaderAlone) {
    for (const char* finLigne : {"", "\r\n", "\n", "\r"})
        EXPECT_EQ(Recording(entete + finLigne), QByteArrayList{entete});
}

TEST(SelectionLines, EndAtCarriageReturnsAloneAsSoonAsThereIsOne) {
    // The line feeds between are dropped with what they separated.
    EXPECT_EQ(Recording("Temps;a\nb;c\r1000;a;1;2\n;;3;\r2000;b\n2500;c\n"),
              (QByteArrayList{"Temps;ab;c", "1000;a;1;2;;3;"}));
}

TEST(SelectionLines, AreThoseWhoseTimeLiesInASpanEndsIncluded) {
    DemandeSelection demande = Demande();
    demande.portees = {{2000, 3000}, {5000, 5000}};
    const QByteArray source = entete +
                              "\r\n1999.999;a\r\n2000;b\r\n2500.5;c\r\n3000;d\r\n3000.001;e\r\n"
                              "4999;f\r\n5000;g\r\n 2100 ;h\r\n-2500;i\r\n2E3;j\r\n";
    EXPECT_EQ(Sortie(source, demande), (QByteArrayList{entete, "2000;b", "2500.5;c", "3000;d",
                                                       "5000;g", " 2100 ;h", "2E3;j"}));
}

TEST(SelectionLines, KeepTheOrderOfTheSource) {
    EXPECT_EQ(Recording(entete + "\n3000;a\n1000;b\n1000;c\n2000;d\n"),
              (QByteArrayList{entete, "3000;a", "1000;b", "1000;c", "2000;d"}));
}

TEST(SelectionLines, AreNoneWithoutASpan) {
    DemandeSelection demande = Demande();
    demande.portees.clear();
    EXPECT_EQ(Sortie(entete + "\n1000;a\n", demande), QByteArrayList{entete});
}

TEST(SelectionLines, PassThroughByteForByte) {
    const QByteArray ligne = "1000;\xE9t\xE9 \x81;--1,5; 2.50 ;\x80;;0,3333 ;;;;";
    EXPECT_EQ(Recording(entete + "\r\n" + ligne + "\r\n").at(1), ligne);
}

TEST(SelectionLines, NeedNoMoreThanATimeInARecording) {
    EXPECT_EQ(Recording(entete + "\n1000\n1001;\n"), (QByteArrayList{entete, "1000", "1001;"}));
}

TEST(SelectionLines, OfAnyLengthAreWhole) {
    const QByteArray longue = "1000;" + QByteArray(1'000'000, 'x') + ";1;2;;3;";
    EXPECT_EQ(Recording(entete + "\r\n" + longue + "\r\n").at(1), longue);
}

TEST(SelectionLines, OfALongSourceAreAllThere) {
    QByteArray source = entete + "\r\n";
    for (int i = 0; i < 100'000; ++i)
        source += QByteArray::number(i % 10'000) + ";a;1;2;;3;\r\n";
    EXPECT_EQ(Recording(source).size(), 1 + 10 * 8001);
}

TEST(SelectionTime, IsReadWithTheSeparatorOfTheLocaleAlone) {
    DemandeSelection demande = Demande();
    demande.regional.separateur = ",";
    EXPECT_EQ(Sortie(entete + "\n1000,5;a\n", demande).size(), 2);
    EXPECT_EQ(Finir(entete + "\n1000.5;a\n", demande).faute, numero_faute::typeIncompatible);
    EXPECT_EQ(Finir(entete + "\n1000,5;a\n", Demande()).faute, numero_faute::typeIncompatible);
}

TEST(SelectionTime, ThatIsNoNumberIsAFaultThatNamesTheLine) {
    for (const char* temps : {"abc", "", "12h", " ", "1000-", "10\n00"}) {
        const Fin fin = Finir(
            entete + "\r\n1000;a;1;2;;3;\r\n" + temps + ";b;1;2;;3;\r\n2000;c\r\n", Demande());
        EXPECT_EQ(fin.faute, numero_faute::typeIncompatible) << temps;
        EXPECT_EQ(fin.texte, "Type mismatch (line 3)") << temps;
        EXPECT_EQ(fin.avant, (QByteArrayList{entete, "1000;a;1;2;;3;"})) << temps;
    }
}

TEST(SelectionTime, ThatNoNumberCanHoldIsAnOverflow) {
    EXPECT_EQ(Finir(entete + "\n1E999;a\n", Demande()).faute, numero_faute::depassement);
}

TEST(SelectionTime, IsReadOfEachLineEvenIfNothingIsVisible) {
    DemandeSelection demande = Demande();
    demande.portees.clear();
    EXPECT_EQ(Finir(entete + "\nabc;a\n", demande).faute, numero_faute::typeIncompatible);
    EXPECT_EQ(Finir(entete + "\n\n1000;a\n", demande).faute, numero_faute::indice);
}

TEST(SelectionFaults, HeaderOfAFileJoinedBehindAnotherEndsIt) {
    const QByteArray source = entete + "\r\n1000;a;1;2;;3;\r\n" + entete + "\r\n2000;b;1;2;;3;\r\n";
    const Fin fin = Finir(source, Demande());
    EXPECT_EQ(fin.faute, numero_faute::typeIncompatible);
    EXPECT_EQ(fin.texte, "Type mismatch (line 3)");
    EXPECT_EQ(fin.avant.size(), 2);
}

TEST(SelectionFaults, BlankLineEndsIt) {
    for (const QByteArray finLigne : {"\r\n", "\n", "\r"}) {
        const Fin fin = Finir(
            entete + finLigne + "1000;a" + finLigne + finLigne + "2000;b" + finLigne, Demande());
        EXPECT_EQ(fin.faute, numero_faute::indice);
        EXPECT_EQ(fin.texte, "Subscript out of range (line 3)");
        EXPECT_EQ(fin.avant.size(), 2);
    }
    // At the end of the file it is the line before it that counts as whole.
    EXPECT_EQ(Finir(entete + "\n1000;a\n\n", Demande()).faute, numero_faute::indice);
}

TEST(SelectionFaults, EmptySourceHasNoHeader) {
    EXPECT_EQ(Finir("", Demande()).faute, numero_faute::indice);
}

TEST(SelectionHeader, OfUpToSevenFieldsIsKept) {
    for (const QByteArray& ligne : {QByteArray("Temps"), QByteArray("a;b;c;d;e;f"), entete})
        EXPECT_EQ(Recording(ligne + "\r\n").front(), ligne);
}

TEST(SelectionHeader, OfMoreFieldsTakesTheFlowSettingsInFieldsSixAndSeven) {
    EXPECT_EQ(Recording("a;b;c;d;e;f;g;h\r\n").front(), "a;b;c;d;e;f;Imp/sec. (2.5);m\xB3/Hrs");
    EXPECT_EQ(Recording("a;b;c;d;e;f;g;h;i;\r\n").front(),
              "a;b;c;d;e;f;Imp/sec. (2.5);m\xB3/Hrs;i;");
}

TEST(SelectionHeader, HasAnEmptyTimeUnitWhenNoneIsChosen) {
    DemandeSelection demande = Demande();
    demande.TexteListeTemps.clear();
    demande.CoefImpulsion.clear();
    EXPECT_EQ(Sortie("a;b;c;d;e;f;g;h\n", demande).front(), "a;b;c;d;e;f;Imp/sec. ();m\xB3/");
}

TEST(SelectionCsv, HasThreeColumns) {
    EXPECT_EQ(Csv(entete + "\r\n1000;01/01/1970 00:00:01:000;512;4.692;;0.5 ;\r\n"),
              (QByteArrayList{"Time;Pression;M3/sec.", "01/01/1970 00:00:01:000;4.692;0.5 ;"}));
}

TEST(SelectionCsv, TakesTheThirdTitleFromFieldFiveBelowSevenFieldsElseFromFieldSix) {
    EXPECT_EQ(Csv("a;b;c;d;e;f\n").front(), "Time;d;f");
    EXPECT_EQ(Csv("a;b;c;d;e;f;g\n").front(), "Time;d;g");
    EXPECT_EQ(Csv("a;b;c;d;e;f;g;h\n").front(), "Time;d;Imp/sec. (2.5)");
}

TEST(SelectionCsv, TakesTheThirdColumnFromFieldFiveBelowEightFieldsElseFromFieldSix) {
    EXPECT_EQ(Csv(entete + "\n1000;b;c;d;e;f\n1000;b;c;d;e;f;g\n1000;b;c;d;e;f;g;h\n"
                           "1000;b;c;d;e;f;g;h;i;j;k\n"),
              (QByteArrayList{"Time;Pression;M3/sec.", "b;d;f;", "b;d;f;", "b;d;g;", "b;d;g;"}));
}

TEST(SelectionCsv, KeepsDecimalSeparatorsAndSignsAsTheyStand) {
    DemandeSelection demande = Demande(FormatSelection::Csv);
    demande.regional.separateur = ",";
    EXPECT_EQ(Sortie(entete + "\n1000;b;1;--4,5;;0.25 ;\n", demande).at(1), "b;--4,5;0.25 ;");
}

TEST(SelectionCsv, DropsLineFeedsInsideALine) {
    EXPECT_EQ(Csv(entete + "\r\n1000;b\nb;1;4\n.5;;2\n;\r\n").at(1), "bb;4.5;2;");
}

TEST(SelectionCsv, NeedsItsColumnsInEachLineThatGoesOut) {
    for (const char* ligne : {"2000", "2000;b", "2000;b;c;d", "2000;b;c;d;e"}) {
        const Fin fin =
            Finir(entete + "\n1000;b;c;d;e;f\n" + ligne + "\n", Demande(FormatSelection::Csv));
        EXPECT_EQ(fin.faute, numero_faute::indice) << ligne;
        EXPECT_EQ(fin.avant.size(), 2) << ligne;
    }
    // A line outside the span needs its time alone.
    EXPECT_EQ(Csv(entete + "\n9001;b\n1000;b;c;d;e;f\n").size(), 2);
}

TEST(SelectionCsv, NeedsItsColumnsInTheHeader) {
    for (const char* ligne : {"Temps", "a;b;c", "a;b;c;d", "a;b;c;d;e"})
        EXPECT_EQ(Finir(QByteArray(ligne) + "\n", Demande(FormatSelection::Csv)).faute,
                  numero_faute::indice)
            << ligne;
}

/// Curves of these times; what they show is a matter of the time axis alone.
SerieGraphe& Ajouter(ModeleGraphe& modele, const std::vector<double>& temps) {
    SerieGraphe& serie = modele.AjouterSerie();
    for (const double t : temps)
        serie.AjouterPoint(t, 1, MagasinEtiquettes::vide);
    return serie;
}

TEST(VisibleSpans, RunFromTheFirstToTheLastVisiblePointOfEachCurve) {
    ModeleGraphe modele;
    Ajouter(modele, {1000, 2000, 3000, 4000});
    Ajouter(modele, {1500, 3500});
    modele.FixerPlage(1000, 4000);
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{1000, 4000}, {1500, 3500}}));
    modele.MontrerPlage({1600, 3900});
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{2000, 3000}, {3500, 3500}}));
}

TEST(VisibleSpans, CountCurvesThatAreSwitchedOff) {
    ModeleGraphe modele;
    Ajouter(modele, {1000, 2000}).active = false;
    modele.FixerPlage(1000, 4000);
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{1000, 2000}}));
}

TEST(VisibleSpans, AreNoneOfACurveWithoutVisiblePoints) {
    ModeleGraphe modele;
    EXPECT_TRUE(PorteesVisibles(modele).empty());
    Ajouter(modele, {});
    Ajouter(modele, {1000, 2000});
    modele.FixerPlage(1000, 2000);
    EXPECT_EQ(PorteesVisibles(modele).size(), 1U);
    modele.MontrerPlage({1200, 1800});
    EXPECT_TRUE(PorteesVisibles(modele).empty());
}

TEST(VisibleSpans, OfASmoothedCurveAreThoseOfItsSource) {
    ModeleGraphe modele;
    Ajouter(modele, {1000, 2000, 3000});
    modele.AjouterSerie();
    modele.FixerFonction(1, SerieGraphe::fonctionLissage, 0);
    modele.FixerPlage(2000, 3000);
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{2000, 3000}}));
}

TEST(VisibleSpans, OfACurveWhoseTimesJumpBackHoldAllItsVisiblePoints) {
    ModeleGraphe modele;
    Ajouter(modele, {5000, 9000, 1000, 4000});
    modele.FixerPlage(1000, 9000);
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{1000, 9000}}));
    modele.MontrerPlage({3000, 6000});
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{4000, 5000}}));
}

TEST(VisibleSpans, FollowThePage) {
    ModeleGraphe modele;
    Ajouter(modele, {1000, 2000, 3000, 4000, 5000});
    modele.FixerPlage(1000, 5000);
    modele.FixerMaxPointsPerPage(2);
    modele.FixerPage(1);
    EXPECT_EQ(PorteesVisibles(modele), (std::vector<Plage>{{3000, 4000}}));
}

TEST(SelectionComments, StandBesideTheSelectionUnderTheNameWithCmt) {
    EXPECT_EQ(CheminCommentairesSelection("/a/b.txt"), "/a/b.Cmt");
    EXPECT_EQ(CheminCommentairesSelection("/a/B.TXT"), "/a/B.Cmt");
    EXPECT_EQ(CheminCommentairesSelection("b.txt"), "b.Cmt");
}

TEST(SelectionComments, ChangeTheNameEverywhereButNoFolder) {
    EXPECT_EQ(CheminCommentairesSelection("/my.txt/txt of Txt.txt"), "/my.txt/Cmt of Cmt.Cmt");
}

TEST(SelectionComments, NeverTakeThePlaceOfTheSelection) {
    EXPECT_EQ(CheminCommentairesSelection("/my.txt/b.dat"), "/my.txt/b.dat.Cmt");
    EXPECT_EQ(CheminCommentairesSelection("b"), "b.Cmt");
}

}  // namespace
}  // namespace bornika
