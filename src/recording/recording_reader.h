#pragma once

#include <QByteArrayView>
#include <QIODevice>
#include <QStringList>

#include "recording/line_stream.h"
#include "recording/recording_number.h"

namespace bornika {

/// One measure line, as far as the chart uses it.
struct LigneMesure {
    NombreLu temps;
    NombreLu pression;
    NombreLu comptage;
    /// Bytes of the date text; valid until the next line is read.
    QByteArrayView etiquette;
    /// At least seven fields: the line can hold a flow.
    bool debit = false;
    /// Length of the whole line in characters.
    qsizetype longueur = 0;
};

/// How the reading of a recording stands, and at which line of the file, from 1.
struct IssueLecture {
    enum class Raison { EnCours, FinDuFichier, ChampsManquants };
    Raison raison = Raison::EnCours;
    qint64 ligne = 0;
};

/// Reads a recording: bytes in, fields out. It knows no window and no chart.
class LecteurEnregistrement {
  public:
    /// `pas` above 1 passes over that many lines after each one read.
    LecteurEnregistrement(QIODevice& source, const Regional& regional, int pas);

    /// The file is empty, or its first line is.
    bool EstVide() { return flux_.EstFinDeLigne(); }
    /// Fields of the first line. To be called once, before the first measure.
    QStringList LireEntete();
    /// Nothing is left to read.
    bool EstFin() {
        if (aPasser_ > 0) PasserLignes();
        return flux_.EstFin();
    }
    /// Reads the next measure line. False when there is none, or when it has fewer than six fields:
    /// `Issue` tells.
    bool Suivante(LigneMesure& ligne);
    const IssueLecture& Issue() const { return issue_; }

  private:
    bool PasserEntetes(QByteArrayView& ligne, const char* mot);
    void PasserLignes();
    bool Decouper(QByteArrayView octets, LigneMesure& ligne) const;
    bool Terminer(IssueLecture::Raison raison);

    FluxLignes flux_;
    LecteurNombres nombres_;
    int pas_;
    /// Lines to be passed over before the next one is read.
    int aPasser_ = 0;
    IssueLecture issue_;
};

}  // namespace bornika
