#include "chart/model/chart_series.h"

#include <algorithm>
#include <cstring>

#include "chart/model/smoothing.h"
#include "platform/code_page.h"
#include "platform/fault.h"

namespace bornika {

QByteArrayView MagasinEtiquettes::Lire(Place place) const {
    if (place >= octets_.size()) place = vide;
    const char* debut = octets_.data() + place;
    const char* dernier = static_cast<const char*>(std::memchr(debut, fin, octets_.size() - place));
    return {debut, dernier};
}

void SerieGraphe::FixerFonction(int type, const std::shared_ptr<SerieGraphe>& source) {
    typeFonction_ = type;
    sourceFaible_ = source;
    ++revision_;
}

void SerieGraphe::FixerPeriode(int periode) {
    periode_ = std::max(periode, 1);
    ++revision_;
}

void SerieGraphe::Reserver(std::size_t points) {
    x_.reserve(points);
    y_.reserve(points);
    places_.reserve(points);
}

void SerieGraphe::AjouterPoint(double x, double y, const QString& etiquette) {
    MagasinEtiquettes::Place place = MagasinEtiquettes::vide;
    if (!etiquette.isEmpty()) {
        if (!etiquettes_) etiquettes_ = std::make_shared<MagasinEtiquettes>();
        QString texte = etiquette;
        place = etiquettes_->Ajouter(Vers8Bits(texte.replace(QLatin1Char('\n'), QLatin1Char(' '))));
    }
    AjouterPoint(x, y, place);
}

std::span<const double> SerieGraphe::X() const {
    if (!EstFonction()) return x_;
    const auto source = Source();
    return source ? source->X() : std::span<const double>();
}

std::span<const double> SerieGraphe::Y() const {
    if (!EstFonction()) return y_;
    const std::uint64_t revision = Revision();
    if (revisionDeduite_ != revision) {
        const auto source = Source();
        const std::span<const double> valeurs = source ? source->Y() : std::span<const double>();
        Lisser(valeurs, typeFonction_ == fonctionLissage ? periode_ : 1, deduites_);
        revisionDeduite_ = revision;
    }
    return deduites_;
}

void SerieGraphe::CommencerSuite() {
    suites_.push_back(static_cast<int>(x_.size()));
}

std::span<const int> SerieGraphe::Suites() const {
    if (!EstFonction()) return suites_;
    const auto source = Source();
    return source ? source->Suites() : std::span<const int>();
}

QString SerieGraphe::Etiquette(int point) const {
    if (EstFonction()) {
        const auto source = Source();
        return source ? source->Etiquette(point) : QString();
    }
    if (point < 0 || point >= Nombre()) LeverFaute(numero_faute::indice);
    const MagasinEtiquettes::Place place = places_[static_cast<std::size_t>(point)];
    if (place == MagasinEtiquettes::vide || !etiquettes_) return {};
    return Depuis8Bits(etiquettes_->Lire(place));
}

std::uint64_t SerieGraphe::Revision() const {
    // The lost source counts once, so that a view notices that the points went.
    if (!EstFonction()) return revision_;
    const auto source = Source();
    return revision_ + (source ? source->Revision() + 1 : 0);
}

}  // namespace bornika
