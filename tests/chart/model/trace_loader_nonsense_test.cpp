#include <gtest/gtest.h>

#include <random>

#include "chart/model/loader_form_double.h"
#include "chart/model/trace_loader.h"
#include "platform/dates.h"
#include "platform/format_pattern.h"
#include "platform/numbers.h"

namespace bornika::essai {
namespace {

struct Resultat {
    std::vector<double> x0, y0, x1, y1;
    QStringList etiquettes0, etiquettes1;
    int series = 2;
    double Mini = 0;
    double Maxi = 0;
    int faute = 0;
};

/// The rules of the loader word by word, on texts, one line at a time: slow, and easy to check.
class LecteurMotAMot {
  public:
    LecteurMotAMot(const QString& contenu, const Regional& regional, double maintenant)
        : regional_(regional) {
        lignes_ = contenu.split(QLatin1Char('\n'));
        if (lignes_.last().isEmpty()) lignes_.removeLast();
        for (QString& ligne : lignes_)
            if (ligne.endsWith(QLatin1Char('\r'))) ligne.chop(1);
        place_ = 1;
        resultat.Mini = maintenant;
        resultat.series = 2;
    }
    void Lire() {
        bool debit = false;
        while (place_ < lignes_.size()) {
            QString ligne = lignes_[place_++];
            bool fin = false;
            for (const char* mot : {"Temps", "Time"})
                while (!fin && ligne.contains(QLatin1String(mot))) {
                    fin = place_ == lignes_.size();
                    if (!fin) ligne = lignes_[place_++];
                }
            if (fin) break;
            Traiter(ligne.split(QLatin1Char(';')), debit);
        }
    }
    Resultat resultat;

  private:
    void Traiter(QStringList champs, bool& debit) {
        for (qsizetype i = 3; i < champs.size(); ++i)
            champs[i] = TraiteSeparateur(champs[i], regional_);
        if (champs.size() < 6) LeverFaute(numero_faute::indice);
        champs[3].replace("--", "-");
        champs[5].replace("--", "-");
        if (champs.size() >= 7) {
            debit = true;
            if (EstNumerique(champs[3], regional_)) {
                Ajouter(champs, 2, Pression(champs[3]));
                if (EstNumerique(champs[5], regional_) && EnDouble(champs[5], regional_) != 0)
                    Ajouter(champs, 1, EnDouble(champs[5], regional_) * 2.5 * 60);
            }
        } else if (EstNumerique(champs[3], regional_)) {
            Ajouter(champs, 2, Pression(champs[3]));
        } else if (resultat.series == 2) {
            resultat.series = 1;
            resultat.x1.clear();
            resultat.y1.clear();
            resultat.etiquettes1.clear();
        }
        const double temps = EnDouble(champs[0], regional_);
        resultat.Maxi = std::max(resultat.Maxi, temps);
        resultat.Mini = std::min(resultat.Mini, temps);
    }
    double Pression(const QString& texte) const {
        return EnDouble(Format(EnDouble(texte, regional_), "0.0####", regional_), regional_);
    }
    /// Adds to the series that stands `depuisFin` places before the end.
    void Ajouter(const QStringList& champs, int depuisFin, double y) {
        if (resultat.series < depuisFin) LeverFaute(numero_faute::indice);
        const bool premiere = resultat.series == depuisFin;
        (premiere ? resultat.x0 : resultat.x1).push_back(EnDouble(champs[0], regional_));
        (premiere ? resultat.y0 : resultat.y1).push_back(y);
        (premiere ? resultat.etiquettes0 : resultat.etiquettes1).append(champs[1]);
    }

    Regional regional_;
    QStringList lignes_;
    qsizetype place_ = 0;
};

/// A line of pieces that are often right and sometimes not.
QByteArray Ligne(std::mt19937& tirage) {
    static const QByteArray temps[] = {
        "1700000000000", "1700000000250", "5", "12.5", "12,5", " 7 ", "", "abc", "1E3", "-4"};
    static const QByteArray nombres[] = {
        "1.5", "0",   "-2",    "--3.25", "4,75",    "0.5 ",
        "",    "abc", "1.2.3", "1E-05",  "+6",      ".5",
        "7.",  "-",   "---1",  "1E--05", "-0.0000", "0.1234567890123456789"};
    static const QByteArray textes[] = {
        "31/12/2024 23:59:59:000", "", "Tuesday", "Time", "Temps", "\xE9t\xE9"};
    const auto choisir = [&](const auto& liste, std::size_t souvent) {
        const std::size_t nombre = std::size(liste);
        return liste[tirage() % 8 ? tirage() % souvent : tirage() % nombre];
    };
    const std::size_t champs = tirage() % 40 ? 6 + tirage() % 3 : tirage() % 9;
    QByteArray ligne = choisir(temps, 3);
    for (std::size_t i = 1; i < champs; ++i)
        ligne += ';' + (i == 3 || i == 5 ? choisir(nombres, 6) : choisir(textes, 3));
    return ligne + (tirage() % 5 ? "\r\n" : "\n");
}

std::vector<double> Vecteur(std::span<const double> valeurs) {
    return {valeurs.begin(), valeurs.end()};
}

TEST(TraceCourbeNonSens, EqualsTheRulesWordByWordOnAnyFile) {
    FicheNotee fiche;
    fiche.coefficient = "2.5";
    fiche.indexTemps = 1;
    int fautes = 0;
    for (unsigned essai = 0; essai < 1500; ++essai) {
        std::mt19937 tirage(essai);
        fiche.etabli.systeme.regional.separateur = QLatin1Char(essai % 3 ? '.' : ',');
        fiche.coefficient = essai % 3 ? "2.5" : "2,5";
        const QByteArray courte = "t;d;v;P;u\r\n";
        QByteArray contenu = courte;
        for (std::size_t i = tirage() % 40; i > 0; --i)
            contenu += Ligne(tirage);
        // Half a line at the end, where there is one.
        if (essai % 4 == 0)
            contenu.truncate(
                std::max(courte.size(), contenu.size() - static_cast<qsizetype>(tirage() % 9)));
        fiche.etabli.Ecrire("n.txt", contenu);

        double Mini = 0;
        double Maxi = 0;
        int faute = 0;
        try {
            TraceCourbe(fiche, fiche.etabli.Chemin("n.txt"), true, true, Mini, Maxi, true);
        } catch (const FauteExecution& levee) {
            faute = levee.numero();
        }
        LecteurMotAMot lecteur(
            QString::fromLatin1(contenu), fiche.etabli.systeme.regional,
            1000.0 * DateVersEpoch(VersDateOrdinateur(fiche.etabli.horloge.Maintenant())));
        try {
            lecteur.Lire();
        } catch (const FauteExecution& levee) {
            lecteur.resultat.faute = levee.numero();
        }
        const Resultat& attendu = lecteur.resultat;
        SCOPED_TRACE(contenu.toStdString());
        ASSERT_EQ(faute, attendu.faute);
        ASSERT_EQ(Mini, attendu.Mini);
        ASSERT_EQ(Maxi, attendu.Maxi);
        ASSERT_EQ(fiche.graphe.NombreSeries(), attendu.series);
        ASSERT_EQ(Vecteur(fiche.graphe.Serie(0).X()), attendu.x0);
        ASSERT_EQ(Vecteur(fiche.graphe.Serie(0).Y()), attendu.y0);
        for (int i = 0; i < attendu.etiquettes0.size(); ++i)
            ASSERT_EQ(fiche.graphe.Etiquette(0, i), attendu.etiquettes0[i]);
        if (attendu.series == 2) {
            ASSERT_EQ(Vecteur(fiche.graphe.Serie(1).X()), attendu.x1);
            ASSERT_EQ(Vecteur(fiche.graphe.Serie(1).Y()), attendu.y1);
            for (int i = 0; i < attendu.etiquettes1.size(); ++i)
                ASSERT_EQ(fiche.graphe.Etiquette(1, i), attendu.etiquettes1[i]);
        }
        fautes += faute != 0;
    }
    // Both ways were taken.
    EXPECT_GT(fautes, 200);
    EXPECT_LT(fautes, 1300);
}

TEST(TraceCourbeNonSens, RandomBytesNeverDoHarm) {
    FicheNotee fiche;
    for (unsigned essai = 0; essai < 300; ++essai) {
        std::mt19937 tirage(essai);
        QByteArray contenu = "t;d;v;P;u;c;U\n";
        const char alphabet[] = {';', '\n', '\r', '0', '-', '.',  ',',    'E',
                                 'T', 'e',  'm',  'p', 's', '\0', '\xFF', ' '};
        for (std::size_t i = tirage() % 3000; i > 0; --i)
            contenu += tirage() % 3 ? alphabet[tirage() % 3] : alphabet[tirage() % 16];
        fiche.etabli.Ecrire("n.txt", contenu);
        double Mini = 0;
        double Maxi = 0;
        ignorer([&] {
            TraceCourbe(fiche, fiche.etabli.Chemin("n.txt"), true, false, Mini, Maxi, false);
        });
        ASSERT_GE(fiche.graphe.NombreSeries(), 1);
        for (int serie = 0; serie < fiche.graphe.NombreSeries(); ++serie) {
            const SerieGraphe& courbe = fiche.graphe.Serie(serie);
            ASSERT_EQ(courbe.X().size(), courbe.Y().size());
            for (int i = 0; i < courbe.Nombre(); ++i)
                fiche.graphe.Etiquette(serie, i);
        }
    }
}

}  // namespace
}  // namespace bornika::essai
