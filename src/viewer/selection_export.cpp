#include "viewer/selection_export.h"

#include <QByteArrayList>
#include <algorithm>
#include <array>
#include <cstring>

#include "chart/model/chart_model.h"
#include "platform/code_page.h"
#include "platform/fault.h"
#include "platform/numbers.h"
#include "recording/recording_format.h"

namespace bornika {

namespace {

constexpr int champUnite = 7;
constexpr int champsAppareil = 7;

const char* ChercherOctet(char octet, const char* debut, const char* fin) {
    return static_cast<const char*>(
        std::memchr(debut, octet, static_cast<std::size_t>(fin - debut)));
}

/// End of the field that starts there.
const char* FinDuChamp(const char* debut, const char* fin) {
    // Most fields are shorter than a call.
    constexpr std::ptrdiff_t court = 8;
    const char* const proche = fin - debut > court ? debut + court : fin;
    for (; debut != proche; ++debut)
        if (*debut == finChamp) return debut;
    const char* const loin = ChercherOctet(finChamp, debut, fin);
    return loin ? loin : fin;
}

template <class Champs>
auto ChampA(const Champs& champs, int position) {
    if (position >= static_cast<int>(champs.size())) LeverFaute(numero_faute::indice);
    return champs[position];
}

/// The first fields of a line, as many as tell which of them the csv takes. The line is given from
/// behind its time, so that field 0 is empty.
class ChampsLigne {
  public:
    explicit ChampsLigne(QByteArrayView suite) {
        const char* debut = suite.data();
        const char* const fin = debut + suite.size();
        while (nombre_ < maximum) {
            const char* const finCourant = FinDuChamp(debut, fin);
            champs_[nombre_++] = {debut, finCourant};
            if (finCourant == fin) break;
            debut = finCourant + 1;
        }
    }
    std::size_t size() const { return nombre_; }
    QByteArrayView operator[](int position) const {
        return champs_[static_cast<std::size_t>(position)];
    }

  private:
    static constexpr std::size_t maximum = champsAppareil + 1;

    std::array<QByteArrayView, maximum> champs_;
    std::size_t nombre_ = 0;
};

QByteArrayList ChampsEntete(QByteArray ligne, const DemandeSelection& demande) {
    ligne.replace('\n', "").replace('\r', "");
    QByteArrayList champs = ligne.split(finChamp);
    // One field behind the place where the loader looks for them: both places are deliberate.
    if (champs.size() > champsAppareil) {
        champs[champDebit] =
            Vers8Bits(QLatin1String("Imp/sec. (") + demande.CoefImpulsion + QLatin1Char(')'));
        champs[champUnite] =
            Vers8Bits(demande.UniteImpulsion + QLatin1Char('/') + demande.TexteListeTemps);
    }
    return champs;
}

QByteArray EnteteEcrite(const QByteArrayList& champs, const DemandeSelection& demande) {
    if (demande.format == FormatSelection::Enregistrement) return champs.join(finChamp);
    const int troisieme = champs.size() < champsAppareil ? champComptage : champDebit;
    return Vers8Bits(demande.titreTemps) + finChamp + ChampA(champs, champPression) + finChamp +
           ChampA(champs, troisieme);
}

Plage PorteeSerie(const SerieGraphe& serie, const PointsVisibles& points, const Plage& visible) {
    const auto x = serie.X().subspan(static_cast<std::size_t>(points.premier),
                                     static_cast<std::size_t>(points.dernier - points.premier + 1));
    if (serie.EstTriee()) return {x.front(), x.back()};
    // Where times jump back, the points in between need not be visible.
    Plage portee{x.front(), x.front()};
    for (const double t : x) {
        if (!visible.Contient(t)) continue;
        portee = {std::min(portee.min, t), std::max(portee.max, t)};
    }
    return portee;
}

}  // namespace

std::vector<Plage> PorteesVisibles(const ModeleGraphe& modele) {
    std::vector<Plage> portees;
    for (int s = 0; s < modele.NombreSeries(); ++s) {
        const PointsVisibles points = modele.Visibles(s);
        if (points.premier < 0 || points.dernier < 0) continue;
        const Plage portee = PorteeSerie(modele.Serie(s), points, modele.bas.plage);
        if (std::find(portees.begin(), portees.end(), portee) == portees.end())
            portees.push_back(portee);
    }
    return portees;
}

LecteurSelection::LecteurSelection(QByteArrayView source, const DemandeSelection& demande)
    : demande_(demande),
      nombres_(demande.regional),
      finLigne_(source.contains('\r') ? '\r' : '\n'),
      place_(source.data()),
      fin_(source.data() + source.size()) {
    if (source.isEmpty()) LeverFaute(numero_faute::indice);
    // A source of one single line is a header.
    const QByteArrayView ligne = Couper().value_or(source);
    entete_ = EnteteEcrite(ChampsEntete(ligne.toByteArray(), demande), demande);
}

std::optional<QByteArrayView> LecteurSelection::Couper() {
    if (place_ == fin_) return {};
    const char* const finLigne = ChercherOctet(finLigne_, place_, fin_);
    if (!finLigne) return {};
    const QByteArrayView ligne(place_, finLigne);
    place_ = finLigne + 1;
    ++numero_;
    return ligne;
}

std::optional<QByteArrayView> LecteurSelection::Suivante() {
    try {
        while (const auto ligne = Couper()) {
            const auto suite = SuiteGardee(*ligne);
            if (!suite) continue;
            if (demande_.format == FormatSelection::Csv) return Colonnes(SansSautDeLigne(*suite));
            return SansSautDeLigne(*ligne);
        }
    } catch (const FauteExecution& faute) {
        throw FauteExecution(faute.numero(),
                             faute.texte() + QStringLiteral(" (line %1)").arg(numero_));
    }
    return {};
}

std::optional<QByteArrayView> LecteurSelection::SuiteGardee(QByteArrayView ligne) const {
    const char* place = ligne.data();
    const char* const fin = place + ligne.size();
    // In a source with CR LF the line feed stands in front of the time.
    while (place != fin && *place == '\n')
        ++place;
    if (place == fin) LeverFaute(numero_faute::indice);
    const char* const debut = place;
    NombreLu temps = nombres_.LireTemps(place, fin);
    if (!temps.numerique)
        temps.valeur = EnDouble(Depuis8Bits(QByteArrayView(debut, place)), demande_.regional);
    for (const Plage& portee : demande_.portees)
        if (portee.Contient(temps.valeur)) return QByteArrayView(place, fin);
    return {};
}

QByteArrayView LecteurSelection::SansSautDeLigne(QByteArrayView ligne) {
    if (ligne.startsWith('\n')) ligne = ligne.sliced(1);
    if (!ChercherOctet('\n', ligne.data(), ligne.data() + ligne.size())) return ligne;
    entiere_ = ligne.toByteArray().replace('\n', "");
    return entiere_;
}

QByteArrayView LecteurSelection::Colonnes(QByteArrayView suite) {
    const ChampsLigne champs(suite);
    const int troisieme = champs.size() <= champsAppareil ? champComptage : champDebit;
    colonnes_.clear();
    for (const int position : {champDate, champPression, troisieme}) {
        const QByteArrayView champ = ChampA(champs, position);
        colonnes_.append(champ.data(), static_cast<std::size_t>(champ.size()));
        colonnes_.push_back(finChamp);
    }
    return colonnes_;
}

QString CheminCommentairesSelection(const QString& cible) {
    const qsizetype debutNom = cible.lastIndexOf(QLatin1Char('/')) + 1;
    QString nom = cible.mid(debutNom);
    if (!nom.contains(QLatin1String("txt"), Qt::CaseInsensitive)) return cible + ".Cmt";
    nom.replace(QLatin1String("txt"), QLatin1String("Cmt"), Qt::CaseInsensitive);
    return cible.left(debutNom) + nom;
}

}  // namespace bornika
