#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <cstdint>

#include "platform/regional.h"
#include "platform/text_file.h"

/// The recording file as it is written: a header line, then one line a measure, fields separated by
/// semicolons, numbers with the separator of the user's locale.
namespace bornika {

/// Name of the recordings of a download that starts at `instant`, without extension:
/// "2026-03-05-14-07-09".
QString NomDeBase(const QDateTime& instant);

/// Header line with the pressure unit of the file.
QString LigneEntete(const QString& unite);

/// Builds the lines of measures as 8-bit text without line end. Each line stays valid until the
/// next one is built.
class RedacteurLignes {
  public:
    explicit RedacteurLignes(const Regional& regional) : regional_(regional) {
        ligne_.reserve(128);
    }

    /// Line of a periodic measure at `secondes` and `millisecondes` (three digits in both fields).
    QByteArrayView Periodique(std::int32_t secondes, int millisecondes, double points,
                              double pression);
    /// Line of a pulse event; `taux` in pulses per second. The milliseconds of its date are not
    /// padded, unlike those of its first field and of periodic lines.
    QByteArrayView Impulsion(std::int32_t secondes, int millisecondes, double points,
                             double pression, double taux);

  private:
    void Commencer(std::int32_t secondes, int millisecondes);
    void AjouterDate(std::int32_t secondes);
    void AjouterEntier(int valeur);
    void AjouterDouble(double valeur);
    void AjouterMesure(double points, double pression);

    Regional regional_;
    QByteArray ligne_;
    /// The date is the costly part of a line: its text is made once a day of the recording.
    std::int32_t jour_ = -1;
    QByteArray dateDuJour_;
};

/// The two files of one download, both with the same header: ".txt" for the measures that passed
/// the parity control, ".err" for the others.
class PaireEnregistrement {
  public:
    /// Creates both in place of any old ones; `base` is the path without extension. Fault 70, 76 or
    /// 52 when that cannot be.
    PaireEnregistrement(const QString& base, const QString& entete);

    /// A line that cannot be written is a fault whose text is the file's name and the reason.
    void Ecrire(bool parite_ok, QByteArrayView ligne);
    /// Closes the ".txt" file. The same fault.
    void FermerMesures();
    /// Closes the ".err" file, with the closing text, without line end, when the recording is
    /// `complets`. The same fault.
    void FermerRejets(bool complets = true);

  private:
    FichierTexteEcrit mesures_;
    FichierTexteEcrit rejets_;
};

}  // namespace bornika
