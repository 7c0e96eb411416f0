#pragma once

#include <QString>

namespace bornika {

class MainScreen;

/// What the main form tells of a firmware update without a box: one line in `Infos`. Whatever shows
/// something there next takes its place.
class AvisFirmware {
  public:
    explicit AvisFirmware(MainScreen& ecran) : ecran_(ecran) {}

    /// The tool has that file in hand.
    void EnCours(const QString& fichier);
    /// The tool has it no more: the line of `EnCours` goes, unless another one stands there.
    void Fini();

    void SansOutil(const QString& programme);
    /// The logger may have lost its serial number, and it could not be written back.
    void NumeroNonRendu(const QString& numeroSerie);

  private:
    void MontrerLigne(const QString& texte);

    MainScreen& ecran_;
    QString texte_;
};

}  // namespace bornika
