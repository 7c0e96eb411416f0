#include "viewer/line_stream.h"

#include <cstring>

#include "platform/fault.h"

namespace bornika {

namespace {

constexpr std::size_t tailleMorceau = 256 * 1024;

}  // namespace

FluxLignes::FluxLignes(QIODevice& source)
    : source_(source),
      tampon_(std::make_unique_for_overwrite<char[]>(tailleMorceau)),
      capacite_(tailleMorceau),
      debut_(tampon_.get()),
      fin_(tampon_.get()) {}

bool FluxLignes::Charger() {
    const auto reste = static_cast<std::size_t>(fin_ - debut_);
    if (reste == capacite_) {
        auto plusGrand = std::make_unique_for_overwrite<char[]>(2 * capacite_);
        std::memcpy(plusGrand.get(), debut_, reste);
        tampon_ = std::move(plusGrand);
        capacite_ *= 2;
    } else if (reste > 0) {
        std::memmove(tampon_.get(), debut_, reste);
    }
    debut_ = tampon_.get();
    fin_ = debut_ + reste;
    prochainT_ = nullptr;
    const qint64 lus = source_.read(tampon_.get() + reste, static_cast<qint64>(capacite_ - reste));
    if (lus < 0) LeverFaute(numero_faute::accesRefuse);
    fin_ += lus;
    return lus > 0;
}

bool FluxLignes::EstFin() {
    return debut_ == fin_ && !Charger();
}

bool FluxLignes::EstFinDeLigne() {
    return EstFin() || *debut_ == '\r' || *debut_ == '\n';
}

QByteArrayView FluxLignes::Lire() {
    if (EstFin()) return {};
    ++numero_;
    std::size_t vus = 0;
    const char* finLigne = nullptr;
    while (true) {
        const auto reste = static_cast<std::size_t>(fin_ - debut_);
        finLigne = static_cast<const char*>(std::memchr(debut_ + vus, '\n', reste - vus));
        if (finLigne) break;
        vus = reste;
        if (!Charger()) {
            const QByteArrayView derniere(debut_, fin_);
            debut_ = fin_;
            return derniere;
        }
    }
    const char* debutLigne = debut_;
    debut_ = finLigne + 1;
    if (finLigne > debutLigne && finLigne[-1] == '\r') --finLigne;
    return {debutLigne, finLigne};
}

bool FluxLignes::PeutContenirT(QByteArrayView ligne) {
    if (!prochainT_ || prochainT_ < ligne.data()) {
        const char* debut = ligne.data();
        prochainT_ = static_cast<const char*>(
            std::memchr(debut, 'T', static_cast<std::size_t>(fin_ - debut)));
        if (!prochainT_) prochainT_ = fin_;
    }
    return prochainT_ < ligne.data() + ligne.size();
}

}  // namespace bornika
