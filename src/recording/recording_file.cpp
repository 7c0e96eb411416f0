#include "recording/recording_file.h"

#include <QFileInfo>
#include <array>
#include <charconv>

#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/named_fault.h"
#include "platform/numbers.h"

namespace bornika {

namespace {

constexpr std::int32_t secondesParJour = 86400;
/// "HH:mm:ss" at the end of the text of an instant.
constexpr int longueurHeure = 8;

QString DeuxChiffres(int valeur) {
    return QStringLiteral("%1").arg(valeur, 2, 10, QLatin1Char('0'));
}

void AjouterSurDeuxChiffres(QByteArray& ligne, int valeur) {
    ligne += static_cast<char>('0' + valeur / 10);
    ligne += static_cast<char>('0' + valeur % 10);
}

template <class Ecriture>
void EcrireNomme(const FichierTexteEcrit& fichier, Ecriture&& ecriture) {
    // The name is made when it is needed: a download writes hundreds of thousands of lines.
    try {
        ecriture();
    } catch (const FauteExecution&) {
        nommer(QFileInfo(fichier.Chemin()).fileName(), [] { throw; });
    }
}

}  // namespace

QString NomDeBase(const QDateTime& instant) {
    const QDate date = instant.date();
    const QTime heure = instant.time();
    QString nom = QString::number(date.year());
    for (int partie : {date.month(), date.day(), heure.hour(), heure.minute(), heure.second()})
        nom += QLatin1Char('-') + DeuxChiffres(partie);
    return nom;
}

QString LigneEntete(const QString& unite) {
    return QStringLiteral("Temps;Date Heure;Valeur;Pression;") + unite +
           QStringLiteral(";comptage;M3/sec.");
}

QByteArrayView RedacteurLignes::Periodique(std::int32_t secondes, int millisecondes, double points,
                                           double pression) {
    Commencer(secondes, millisecondes);
    if (millisecondes < 100) ligne_ += '0';
    if (millisecondes < 10) ligne_ += '0';
    AjouterEntier(millisecondes);
    AjouterMesure(points, pression);
    ligne_ += ";;0;";
    return ligne_;
}

QByteArrayView RedacteurLignes::Impulsion(std::int32_t secondes, int millisecondes, double points,
                                          double pression, double taux) {
    Commencer(secondes, millisecondes);
    AjouterEntier(millisecondes);
    AjouterMesure(points, pression);
    ligne_ += ";;";
    AjouterDouble(taux);
    ligne_ += " ;";
    return ligne_;
}

/// The first field, and the second one up to its milliseconds.
void RedacteurLignes::Commencer(std::int32_t secondes, int millisecondes) {
    ligne_.resize(0);
    AjouterEntier(secondes);
    if (millisecondes < 100) ligne_ += '0';
    if (millisecondes < 10) ligne_ += '0';
    AjouterEntier(millisecondes);
    ligne_ += ';';
    AjouterDate(secondes);
    ligne_ += ':';
}

void RedacteurLignes::AjouterDate(std::int32_t secondes) {
    const std::int32_t jour = secondes / secondesParJour;
    if (jour != jour_) {
        dateDuJour_ =
            Vers8Bits(EpochVersTexte(static_cast<double>(jour) * secondesParJour, regional_));
        dateDuJour_.chop(longueurHeure);
        jour_ = jour;
    }
    const int reste = secondes % secondesParJour;
    ligne_ += dateDuJour_;
    AjouterSurDeuxChiffres(ligne_, reste / 3600);
    ligne_ += ':';
    AjouterSurDeuxChiffres(ligne_, reste / 60 % 60);
    ligne_ += ':';
    AjouterSurDeuxChiffres(ligne_, reste % 60);
}

void RedacteurLignes::AjouterEntier(int valeur) {
    std::array<char, 16> chiffres{};
    const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), valeur).ptr;
    ligne_.append(chiffres.data(), fin - chiffres.data());
}

void RedacteurLignes::AjouterDouble(double valeur) {
    ligne_ += Vers8Bits(TexteGeneral(valeur, regional_));
}

void RedacteurLignes::AjouterMesure(double points, double pression) {
    ligne_ += ';';
    AjouterEntier(static_cast<int>(points));
    ligne_ += ';';
    AjouterDouble(pression);
}

PaireEnregistrement::PaireEnregistrement(const QString& base, const QString& entete)
    : mesures_(base + QStringLiteral(".txt"), ModeEcriture::Remplacer),
      rejets_(base + QStringLiteral(".err"), ModeEcriture::Remplacer) {
    mesures_.EcrireLigne(entete);
    rejets_.EcrireLigne(entete);
}

void PaireEnregistrement::Ecrire(bool parite_ok, QByteArrayView ligne) {
    FichierTexteEcrit& fichier = parite_ok ? mesures_ : rejets_;
    EcrireNomme(fichier, [&] { fichier.EcrireLigneOctets(ligne); });
}

void PaireEnregistrement::FermerMesures() {
    EcrireNomme(mesures_, [&] { mesures_.Fermer(); });
}

void PaireEnregistrement::FermerRejets(bool complets) {
    EcrireNomme(rejets_, [&] {
        if (complets) rejets_.Ecrire(u"End Parity Control");
        rejets_.Fermer();
    });
}

}  // namespace bornika
