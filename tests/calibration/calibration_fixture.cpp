#include "calibration/calibration_fixture.h"

namespace bornika::essai {

namespace {

EnregistreurSimule::Identite IdentiteDe(Firmware firmware) {
    EnregistreurSimule::Identite identite;
    identite.usb = 77;
    // r1 to r4 joined: "02089", the last version with one point, or "127110".
    identite.type = firmware == Firmware::Ancien ? 0 : 1;
    identite.versionHaute = 2;
    identite.versionMilieu = firmware == Firmware::Ancien ? 0 : 7;
    identite.versionBasse = firmware == Firmware::Ancien ? 89 : 110;
    return identite;
}

std::string Si(bool vrai, const char* mot) {
    return vrai ? std::string(mot) + " " : "- ";
}

}  // namespace

BancEtalonnage::BancEtalonnage(Firmware firmware, const QString& langue)
    : BancEnregistreur(langue, IdentiteDe(firmware)) {
    enregistreur.ReglerBatterie(406);
    // They lead the operator through each point.
    etabli.dialogues.TolererInformations();
}

void BancEtalonnage::Ouvrir() {
    fiche = std::make_unique<Etalonnage>(poste);
    ChargerEtalonnage(*fiche);
    fiche->show();
    fiche->activateWindow();
    // On the screen and active before anybody types.
    QCoreApplication::processEvents();
    Oublier();
}

void BancEtalonnage::Amener(Avance avance) {
    Ouvrir();
    const auto prendre = [this](int rang, const char* pression, int points) {
        Taper(rang, pression);
        if (f().ValeurPressionReelle_1->text().isEmpty())
            f().ValeurPressionReelle_1->setText(QStringLiteral("0"));
        Mesurer(points);
        Cliquer(f().EntrerEtalonnage);
    };
    if (avance >= Avance::PointUn) prendre(0, "5", 316);
    if (avance >= Avance::AttenteDeux) {
        Repondre(Reponse::Oui);
        Cliquer(f().SortirEtalonnage);
    }
    if (avance >= Avance::PointDeux) prendre(1, "12", 770);
    Oublier();
}

void BancEtalonnage::Mesurer(int points) {
    etabli.dialogues.pendantBoite = [this, points](const DialoguesNotes::Boite_& boite) {
        if (boite.icone != Icone::Information) return;
        if (boite.texte.startsWith(ecran.Texte(QStringLiteral("Déconnecter le k-Pod de son "
                                                              "capteur, rebrancher le cordon "
                                                              "USB"))))
            return bus.Rebrancher(enregistreur.identite.usb);
        bus.Debrancher(enregistreur.identite.usb);
        enregistreur.MettreSurCapteur(points);
    };
}

std::string BancEtalonnage::Situation() const {
    const Ui::Etalonnage& u = *fiche->ui;
    const bool deux = u.ValeurPressionReelle_1->isVisible();
    const bool saisie1 = u.ValeurPressionReelle_1->isEnabled();
    std::string boites = u.ValeurPressionReelle_0->isEnabled() ? "1" : "";
    if (saisie1) boites += "2";
    return Si(u.EntrerEtalonnage->isEnabled(), "start") +
           Si(u.SortirEtalonnage->isEnabled(), "end") + Si(u.LireEtalonnage->isEnabled(), "read") +
           (u.Sortir->isEnabled() ? "quit" : "-") + (deux ? ", 2 rows" : ", 1 row") + ", types " +
           boites + ", point " + std::to_string(fiche->DeuxiemePoint + 1);
}

Trames BancEtalonnage::Recues() const {
    Trames trames;
    for (const auto& notee : enregistreur.journal.Trames())
        trames.push_back(notee.Liste());
    return trames;
}

std::string BancEtalonnage::Poignees() const {
    std::string suite;
    for (const auto& evenement : enregistreur.lien)
        suite += evenement.ouverture ? 'o' : 'c';
    return suite;
}

void BancEtalonnage::Oublier() {
    enregistreur.journal.Vider();
    enregistreur.lien.clear();
    etabli.dialogues.OublierBoites();
}

}  // namespace bornika::essai
