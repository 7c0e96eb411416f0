#include "retrieval/flash_service.h"

#include <QStringList>

#include "link/memory_access.h"
#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/numbers.h"
#include "retrieval/stored_measure.h"
#include "setup/pressure_scale.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

struct Adresse {
    int page;
    int offset;
};

Adresse AdresseSaisie(const MainScreen& ecran) {
    const Regional& regional = ecran.systeme.regional;
    return {.page = EnEntier16(ecran.ui->page->text(), regional),
            .offset = EnEntier16(ecran.ui->offset->text(), regional)};
}

QString TexteMesure(MainScreen& ecran, const Octets& lus) {
    const Regional& regional = ecran.systeme.regional;
    Enregistrement mesure;
    // Nothing was read from a silent logger: the measure of zeros is shown.
    if (lus.size() == longueurCellule)
        DecoderEnregistrement(std::span(lus).first<longueurCellule>(), mesure);
    double pression = 0;
    ignorer([&] { pression = Donne_Pression(ecran, mesure.points, true, false); });
    return EpochVersTexte(mesure.horodatage, regional) + QLatin1Char('-') +
           QString::number(mesure.points) + QLatin1Char('-') + TexteGeneral(pression, regional) +
           QLatin1String("  ") + ecran.ui->ListeUnites->Texte() + QLatin1Char('-') +
           QString::number(mesure.fraction);
}

}  // namespace

QString TexteOctets(std::span<const int> octets) {
    QString texte;
    for (const int octet : octets)
        texte += QLatin1Char(' ') + QString::number(octet);
    return texte;
}

Octets ValeursDuTexte(const QString& texte, const Regional& regional) {
    const QStringList morceaux = texte.split(QLatin1Char(' '));
    Octets valeurs;
    for (qsizetype i = 1; i <= longueurCellule; ++i) {
        if (i >= morceaux.size()) LeverFaute(numero_faute::indice);
        valeurs.push_back(EnEntier16(morceaux[i], regional));
    }
    return valeurs;
}

void LireLaFlash(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const auto [page, offset] = AdresseSaisie(ecran);
    const Octets lus = Memoire_Flash(poste, true, page, offset);
    ecran.ui->resultat->setText(TexteOctets(lus));
    ecran.ui->ResultatMesure->setText(TexteMesure(ecran, lus));
}

void EcrireLaFlash(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const Octets Valeurs = ValeursDuTexte(ecran.ui->resultat->text(), ecran.systeme.regional);
    const auto [page, offset] = AdresseSaisie(ecran);
    Memoire_Flash(poste, false, page, offset, Valeurs);
}

}  // namespace bornika
