#include "recording/line_stream.h"

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

bool FluxLignes::EstFinDeLigne() {
    return EstFin() || *debut_ == '\r' || *debut_ == '\n';
}

QByteArrayView FluxLignes::LireACheval() {
    while (true) {
        const std::ptrdiff_t vus = fin_ - debut_;
        if (!Charger()) break;
        if (const char* finLigne = Chercher('\n', debut_ + vus)) return Couper(finLigne);
    }
    const QByteArrayView derniere(debut_, fin_);
    if (!derniere.isEmpty()) ++numero_;
    debut_ = fin_;
    return derniere;
}

}  // namespace bornika
