#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "calibration/calibration.h"
#include "calibration/calibration_form.h"
#include "logger/logger_fixture.h"
#include "ui_calibration_form.h"

namespace bornika::essai {

using Trames = std::vector<std::vector<std::uint8_t>>;

/// What the calibration tells apart: new firmware has two points.
enum class Firmware { Ancien, Nouveau };

/// How far a calibration has come.
enum class Avance { Repos, PointUn, AttenteDeux, PointDeux };

/// A logger that was never calibrated, the form opened on it, and the hands of an operator. The
/// main form stands on 0 - 16 bar in bar: 64 points are 1 bar.
class BancEtalonnage : public BancEnregistreur {
  public:
    explicit BancEtalonnage(Firmware firmware = Firmware::Nouveau,
                            const QString& langue = QStringLiteral("Français"));

    /// Opens the form anew; the journal begins after that.
    void Ouvrir();
    /// Opens the form and takes the calibration that far: 5 bar measured as 316 points (5 bar are
    /// 320), 12 bar as 770 (768).
    void Amener(Avance avance);

    /// Types the reference of a row.
    void Taper(int rang, const char* texte) {
        Operateur::Taper(fiche->Rangee(rang).ValeurPressionReelle, QString::fromLatin1(texte));
    }
    /// The next time that the two boxes of a point come, the operator does what they say: cord
    /// off, sensor at `points`, cord on.
    void Mesurer(int points);
    /// The answer to the question for a second point.
    void Repondre(Reponse reponse) {
        etabli.dialogues.AnnoncerQuestion(
            reponse,
            ecran.Texte(QStringLiteral("Voulez vous étalonner un 2 ème point  ? ")).trimmed());
    }

    Ui::Etalonnage& f() { return *fiche->ui; }
    /// "start - read quit, 1 row, types 1, point 1": the buttons that can be pressed, the rows
    /// shown, the box open to typing, the point being taken.
    std::string Situation() const;
    std::vector<int> Codes() const { return enregistreur.journal.Codes(); }
    /// The frames themselves, in order.
    Trames Recues() const;
    /// "oocc": how the two handles of the link were opened and closed.
    std::string Poignees() const;
    QStringList Boites() const { return etabli.dialogues.TextesDesBoites(); }
    /// Forgets frames and boxes.
    void Oublier();

    std::unique_ptr<Etalonnage> fiche;
};

inline constexpr auto nouveau = Firmware::Nouveau;
inline constexpr auto ancien = Firmware::Ancien;

}  // namespace bornika::essai
