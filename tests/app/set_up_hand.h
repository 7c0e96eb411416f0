#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <cstdint>
#include <map>
#include <random>
#include <string>

#include "app/program_fixture.h"

namespace bornika::essai {

/// A recording set-up as an operator may want it: positions in the lists and texts of the boxes.
struct Reglage {
    int echelle = 0;
    int unite = 0;
    /// 0 is the free period, of `duree`.
    int periode = 0;
    QString duree;
    int periodeTrigger = 0;
    QDate jour;
    QTime heure;
    bool format24h = false;
    /// 0, 1, or 2 for a band.
    int seuils = 0;
    bool auDessus = false;
    /// The limits of a band; with a single threshold the lower one gives way to `seuilSeul`, which
    /// may lie anywhere.
    QString seuil1;
    QString seuil2;
    QString seuilSeul;
    bool oneShot = false;
    bool pressionAbsolue = false;
    bool bufferTournant = false;
    QString commentaire;
    QString poidsImpulsion;
    QString uniteImpulsion;
    int baseDeTemps = 0;
};

/// Legal set-ups, the same ones for the same grain on every machine.
class TirageReglages {
  public:
    explicit TirageReglages(std::uint32_t grain) : hasard_(grain) {}

    /// `ui` gives the lists as they are filled.
    Reglage Tirer(const Ui::MainScreen& ui);

  private:
    int Entier(int combien) { return static_cast<int>(hasard_() % static_cast<unsigned>(combien)); }
    bool Pile() { return Entier(2) == 1; }
    QString Seuil(double mini, double maxi);
    QString Commentaire();

    std::mt19937 hasard_;
};

/// Enters a set-up with keys and clicks, in an order in which no entry undoes another. What the
/// family of the chosen logger does not show stays as it is.
void Saisir(BancProgramme& banc, const Reglage& reglage);

/// What the controls of the set-up show, by their names.
using Affichage = std::map<std::string, std::string>;
Affichage Regarder(const Ui::MainScreen& ui);

}  // namespace bornika::essai
