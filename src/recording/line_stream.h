#pragma once

#include <QByteArrayView>
#include <QIODevice>
#include <cstring>
#include <memory>

namespace bornika {

/// The lines of a file, read piece by piece, so that a file of any length needs no more memory than
/// its longest line.
class FluxLignes {
  public:
    explicit FluxLignes(QIODevice& source);

    /// Nothing is left. Fault 70 when the source cannot be read any more.
    bool EstFin() { return debut_ == fin_ && !Charger(); }
    /// The same, or the next byte ends a line.
    bool EstFinDeLigne();
    /// Next line without its line end (LF, and one CR before it). Valid until the next call.
    /// Empty at the end of the file.
    QByteArrayView Lire() {
        const char* finLigne = Chercher('\n', debut_);
        if (!finLigne) return LireACheval();
        return Couper(finLigne);
    }
    /// False when the line just read holds no "T" for sure: far cheaper than a look for a word.
    bool PeutContenirT(QByteArrayView ligne) {
        if (!prochainT_ || prochainT_ < ligne.data()) {
            prochainT_ = Chercher('T', ligne.data());
            if (!prochainT_) prochainT_ = fin_;
        }
        return prochainT_ < ligne.data() + ligne.size();
    }
    /// Number of the line just read, from 1.
    qint64 Numero() const { return numero_; }

  private:
    const char* Chercher(char octet, const char* depuis) const {
        const auto nombre = static_cast<std::size_t>(fin_ - depuis);
        return static_cast<const char*>(std::memchr(depuis, octet, nombre));
    }
    QByteArrayView Couper(const char* finLigne) {
        ++numero_;
        const char* debutLigne = debut_;
        debut_ = finLigne + 1;
        if (finLigne > debutLigne && finLigne[-1] == '\r') --finLigne;
        return {debutLigne, finLigne};
    }
    /// A line that is not whole in the buffer.
    QByteArrayView LireACheval();
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
