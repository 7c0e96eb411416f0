#pragma once

#include <QByteArrayView>
#include <QIODevice>
#include <memory>

namespace bornika {

/// The lines of a file, read piece by piece, so that a file of any length needs no more memory than
/// its longest line.
class FluxLignes {
  public:
    explicit FluxLignes(QIODevice& source);

    /// Nothing is left. Fault 70 when the source cannot be read any more.
    bool EstFin();
    /// The same, or the next byte ends a line.
    bool EstFinDeLigne();
    /// Next line without its line end (LF, and one CR before it). Valid until the next call.
    /// Empty at the end of the file.
    QByteArrayView Lire();
    /// False when the line just read holds no "T" for sure: far cheaper than a look for a word.
    bool PeutContenirT(QByteArrayView ligne);
    /// Number of the line just read, from 1.
    qint64 Numero() const { return numero_; }

  private:
    /// Brings more bytes behind those not yet read; false at the end of the source.
    bool Charger();

    QIODevice& source_;
    std::unique_ptr<char[]> tampon_;
    std::size_t capacite_;
    const char* debut_;
    const char* fin_;
    const char* prochainT_ = nullptr;
    qint64 numero_ = 0;
};

}  // namespace bornika
