#include "simulator/card_files.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <cstdio>

#include "simulator/device_time.h"
#include "simulator/measure.h"
#include "simulator/recordings.h"

namespace bornika::simulateur {

namespace {

struct Detail {
    std::uint32_t secondes;
    int millisecondes;
    int points;
    bool impulsion;
};

Detail Ouvrir(const MesureEnFlash& m) {
    Detail detail{};
    for (std::size_t i = 2; i < 6; ++i)
        detail.secondes = detail.secondes * 256 + m[i];
    detail.millisecondes = m[0] * 125;
    detail.points = (m[6] & 3) * 256 + m[7];
    detail.impulsion = m[0] != 0 || m[1] != 0;
    return detail;
}

template <class... Valeurs>
std::string Format(const char* modele, Valeurs... valeurs) {
    std::array<char, 96> texte{};
    std::snprintf(texte.data(), texte.size(), modele, valeurs...);
    return texte.data();
}

std::string Entete(FormeCarte forme) {
    const std::string debut = "Temps;Date Heure;Valeur;Pression;bar;comptage";
    switch (forme) {
        case FormeCarte::huitChamps:
            return debut + ";M3/sec.;Batterie";
        case FormeCarte::sixChamps:
            return debut;
        case FormeCarte::coefficient:
            return debut + " (2.5);m3/HRS";
        case FormeCarte::septChamps:
            break;
    }
    return debut + ";M3/sec.";
}

std::string FinDesChamps(FormeCarte forme) {
    if (forme == FormeCarte::sixChamps) return {};
    return forme == FormeCarte::huitChamps ? ";;4.00" : ";";
}

/// Pulses a second since the pulse before; the first one has none.
class Debit {
  public:
    std::string Texte(const Detail& detail) {
        if (!detail.impulsion) return "0";
        const double instant = detail.secondes + detail.millisecondes / 1000.0;
        const double ecart = instant - precedent_;
        const bool connu = precedent_ > 0 && ecart > 0;
        precedent_ = instant;
        return connu ? Format("%.4f", 1.0 / ecart) : "0";
    }

  private:
    double precedent_ = 0;
};

void Ecrire(const QString& chemin, const std::string& contenu) {
    QFile fichier(chemin);
    if (fichier.open(QIODevice::WriteOnly))
        fichier.write(contenu.data(), static_cast<qint64>(contenu.size()));
}

}  // namespace

std::string TexteCarte(std::span<const MesureEnFlash> mesures, FormeCarte forme,
                       std::string_view finDeLigne) {
    const std::string fin = FinDesChamps(forme) + std::string(finDeLigne);
    std::string texte = Entete(forme) + std::string(finDeLigne);
    Debit debit;
    for (const MesureEnFlash& mesure : mesures) {
        const Detail detail = Ouvrir(mesure);
        texte += Format("%u%03d;", detail.secondes, detail.millisecondes);
        texte += TexteDate(detail.secondes);
        texte += Format(":%03d;%d;%.3f;;", detail.millisecondes, detail.points,
                        detail.points / pointsParBar);
        texte += debit.Texte(detail) + fin;
    }
    return texte;
}

std::vector<FichierCarte> FichiersCarte(std::uint32_t maintenant, std::uint32_t duree) {
    ReseauEau reseau;
    reseau.debut = maintenant - duree;
    reseau.duree = duree;
    const std::vector<MesureEnFlash> toutes = MesuresReseauEau(reseau);
    const std::span<const MesureEnFlash> mesures(toutes);
    const std::size_t moitie = mesures.size() / 2;
    const auto debut = mesures.first(std::min<std::size_t>(mesures.size(), 200));
    const std::string depart = "Start;" + TexteDate(reseau.debut) + ";k-Pod 33;2.120\r\n";
    return {{"LOG00001.TXT", TexteCarte(mesures.first(moitie))},
            {"LOG00002.TXT", TexteCarte(mesures.subspan(moitie))},
            {"EIGHT.TXT", TexteCarte(debut, FormeCarte::huitChamps)},
            {"SIX.TXT", TexteCarte(debut, FormeCarte::sixChamps)},
            {"METER.TXT", TexteCarte(debut, FormeCarte::coefficient)},
            {"UNIX.TXT", TexteCarte(debut, FormeCarte::septChamps, "\n")},
            {"EMPTY.TXT", {}},
            {"STARTLOG.TXT", depart}};
}

void PoserCarte(const QString& dossier, std::uint32_t maintenant) {
    const QDir carte(dossier);
    if (carte.exists() || !carte.mkpath(QStringLiteral("."))) return;
    for (const FichierCarte& fichier : FichiersCarte(maintenant))
        Ecrire(carte.filePath(QString::fromStdString(fichier.nom)), fichier.contenu);
}

}  // namespace bornika::simulateur
