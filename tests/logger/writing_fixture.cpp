#include "logger/writing_fixture.h"

#include "logger/parameter_reading.h"
#include "logger/parameter_writing.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {

namespace {

EnregistreurSimule::Identite IdentiteDe(std::uint8_t type, std::uint8_t versionBasse) {
    EnregistreurSimule::Identite identite;
    identite.type = type;
    identite.versionBasse = versionBasse;
    return identite;
}

/// The frames of one byte each from an address on.
void AjouterMemoire(std::vector<std::vector<std::uint8_t>>& trames, std::uint8_t adresse,
                    const std::vector<std::uint8_t>& octets) {
    for (const std::uint8_t octet : octets)
        trames.push_back({30, 0, adresse++, octet, 32, 32, 32, 32});
}

}  // namespace

BancEcriture::BancEcriture(std::uint8_t type, std::uint8_t versionBasse)
    : BancEnregistreur(QStringLiteral("Français"), IdentiteDe(type, versionBasse)) {
    PreparerEnregistreur(enregistreur);
    Lire(poste);
    RemplirFormulaire();
    enregistreur.journal.Vider();
    enregistreur.lien.clear();
    bus.ViderAppels();
    etabli.horloge.pauses.clear();
    avant = enregistreur.memoire;
    // `boites` holds them, with what stood behind them.
    etabli.dialogues.TolererInformations();
    etabli.dialogues.pendantBoite = [this](const DialoguesNotes::Boite_& boite) {
        boites.push_back(
            {boite.icone, boite.boutons, Clair(boite.titre), Clair(boite.texte), Maintenant()});
    };
    bus.ReglerInstants([this, debut = etabli.horloge.instant] {
        pendantLien.push_back(Maintenant());
        return debut.msecsTo(etabli.horloge.instant);
    });
}

void BancEcriture::RemplirFormulaire() {
    // The pickers' other halves are not what is sent.
    ui.DTPicker1->setDateTime(QDateTime(QDate(2026, 4, 1), QTime(23, 11), Qt::UTC));
    ui.DTPicker2->setDateTime(QDateTime(QDate(2001, 1, 1), QTime(8, 15, 30), Qt::UTC));
    ui.ListePeriodeEchantillonage->Choisir(8);  // 15 s
    ui.PeriodeTrigger->Choisir(4);              // 2 s
    ui.ListeUnites->Choisir(1);                 // bar, on the calibrated scale of 6 bar
    ui.PressionAbsolue->setChecked(true);
    ui.DeuxSeuils->setChecked(true);
    ui.Seuil2->setText(QStringLiteral("3"));
    ui.Seuil1->setText(QStringLiteral("1.5"));
    ui.AuDessous->setChecked(true);
    ui.BufferTournant->setChecked(true);
    ui.OneShot->setChecked(false);
    ui.mnuChargeRapide->setChecked(true);
    ui.Commentaire->setText(QStringLiteral("Forêt n°123456"));
    ui.AMPM_0->setChecked(true);
    ui.CoefImpulsion->setText(QStringLiteral("2.5"));
    ui.UniteImpulsion->setText(QStringLiteral("Gallon"));
    ui.ListeTemps->Choisir(3);
}

void BancEcriture::EcrireEnConfirmant() {
    etabli.dialogues.AnnoncerQuestion(
        Reponse::Ok, ecran.Texte(QStringLiteral("Les anciennes valeurs seront écrasées")));
    Ecrire(poste);
}

Vue BancEcriture::Maintenant() const {
    return {ui.Ecrire->isEnabled(), PointeurSouris(ecran), bus.PoigneesOuvertes()};
}

std::vector<std::string> BancEcriture::Boites() const {
    std::vector<std::string> textes;
    for (const BoiteVue& boite : boites)
        textes.push_back(boite.texte);
    return textes;
}

std::string BancEcriture::Codes() const {
    std::string texte;
    for (const int code : enregistreur.journal.Codes())
        texte += std::to_string(code) + " ";
    return texte;
}

std::vector<int> BancEcriture::Octets(int ou, int nombre) const {
    std::vector<int> octets;
    for (int i = 0; i < nombre; ++i)
        octets.push_back(enregistreur.memoire.Octet(ou + i));
    return octets;
}

const std::vector<std::vector<std::uint8_t>>& TramesCompletes() {
    static const auto toutes = [] {
        std::vector<std::vector<std::uint8_t>> trames = {
            {8, 0, 0, 0, 0, 0, 0, 0},
            {28, 0, 0, 0, 0, 0, 0, 0},
            // 1 April 2026, 08:15:30; 120 eighths of a second.
            {1, 105, 204, 212, 34, 0, 120, 0},
            // Band, circular, absolute; 1.5 and 3 bar are 431 and 687 points of 6 bar.
            {3, 2 + 8 + 128, 1, 175, 2, 175, 0x31, 1},
            // 5 March 2026, 14:07:09; 16 eighths of a second.
            {7, 105, 169, 142, 13, 0, 16, 32},
            {11, 'F', 'o', 'r', 0xEA, 't', ' ', 'n'},
            {12, 0xB0, '1', '2', '3', '4', '5', '6'},
        };
        AjouterMemoire(trames, 116, {0});
        AjouterMemoire(trames, 112, {0, 0, 32, 64});
        AjouterMemoire(trames, 117, {'G', 'a', 'l', 'l', 'o', 'n', ' ', ' '});
        AjouterMemoire(trames, 125, {0, 192, 168, 71});
        trames.push_back({99, 32, 32, 32, 32, 32, 32, 32});
        return trames;
    }();
    return toutes;
}

}  // namespace bornika::essai
