#include "service/serial_number.h"

#include "link/command_exchange.h"
#include "link/frames.h"
#include "link/memory_access.h"
#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/numbers.h"
#include "products/firmware_versions.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double plusGrandNumero = 2147483647.0;
constexpr std::size_t octetsResets = 6;
constexpr int adresseResets = 7;

void DireRefusNumero(Poste& poste, const char* texte) {
    MontrerTexte(poste.ecran, Icone::Aucune, QString::fromUtf8(texte));
}

/// One command in a conversation of its own; what its answer holds does not count.
void EnvoyerCommande(Poste& poste, const Octets& trame, int combien) {
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    EchangeDirect(poste, trame, longueurTrame, combien);
    poste.lien.FermeUSB();
}

Octets LireResets(Poste& poste) {
    if (poste.ecran.etat.VersionLogiciel < version::resetsInternes)
        return Memoire_Flash(poste, true, 0, 0);
    return LitEEpromInterne(poste, adresseResets, true);
}

}  // namespace

Resets ResetsDepuisOctets(const Octets& octets) {
    if (octets.size() < octetsResets) LeverFaute(numero_faute::indice);
    return {.date = octets[3] * 16777216.0 + octets[2] * 65536.0 + octets[1] * 256.0 + octets[0],
            .nombre = octets[5] * 256 + octets[4]};
}

void ProgNumeroSerie_Click(Poste& poste) {
    const Regional& regional = poste.ecran.systeme.regional;
    const QString saisie = poste.ecran.ui->ValeurNumeroSerie->text();
    // Neither text is in the catalogue: they are the same in every language.
    if (!EstNumerique(saisie, regional))
        return DireRefusNumero(poste, "Le n° de série n'est pas valide");
    const double valeur = EnDouble(saisie, regional);
    if (valeur > plusGrandNumero)
        return DireRefusNumero(poste, "Le n° de série est trop grand (> 32 bits)");
    EnvoyerCommande(poste, TrameEcritNumeroSerie(EnEntier32(valeur)), longueurTrame);
}

void RAZNumeroSerie_Click(Poste& poste) {
    const Reponse reponse = MontrerBoite(poste.ecran, Icone::Critique, Boutons::OkAnnuler,
                                         QStringLiteral("Attention, le datalogger sera inhibé !"));
    if (reponse != Reponse::Ok) return;
    EnvoyerCommande(poste, TrameRaz(), 1);
}

void Command2_Click(Poste& poste) {
    const Resets resets = ResetsDepuisOctets(LireResets(poste));
    auto& ui = *poste.ecran.ui;
    ui.NbReset->setText(QString::number(resets.nombre));
    ui.DateDernierReset->setText(EpochVersTexte(resets.date, poste.ecran.systeme.regional));
}

}  // namespace bornika
