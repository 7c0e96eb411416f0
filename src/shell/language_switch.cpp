#include "shell/language_switch.h"

#include "settings/toolkit_texts.h"
#include "shell/form_captions.h"
#include "shell/main_screen.h"
#include "shell/threshold_labels.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

/// Holds back painting while hundreds of captions change.
class SansDessin {
  public:
    explicit SansDessin(QWidget& fiche) : fiche_(fiche), avant_(fiche.updatesEnabled()) {
        fiche_.setUpdatesEnabled(false);
    }
    ~SansDessin() { fiche_.setUpdatesEnabled(avant_); }
    SansDessin(const SansDessin&) = delete;
    SansDessin& operator=(const SansDessin&) = delete;

  private:
    QWidget& fiche_;
    bool avant_;
};

void RemplirListes(MainScreen& ecran, const QString& langue) {
    auto& ui = *ecran.ui;
    auto& configuration = ecran.configuration;
    configuration.RemplitListe(langue, QStringLiteral("ListePeriode"),
                               *ui.ListePeriodeEchantillonage);
    ui.ListePeriodeEchantillonage->ChoisirSiPresent(1);
    configuration.RemplitListe(langue, QStringLiteral("ListeEchelles"), *ui.ListeEchelles);
    ui.ListeEchelles->ChoisirSiPresent(0);
    configuration.RemplitListe(langue, QStringLiteral("ListeUnites"), *ui.ListeUnites);
    ui.ListeUnites->ChoisirSiPresent(ecran.etat.CodePays >= 3 ? 0 : 1);
}

void RafraichirTextes(MainScreen& ecran, const QString& langue) {
    TextesEcran& t = ecran.textes;
    const auto prendre = [&](QString& membre, const char* cle) {
        membre = ecran.TexteEn(langue, QString::fromUtf8(cle), {});
    };
    prendre(t.TexteValeursStockees, "Valeurs stockées dans le fichier");
    prendre(t.TexteEcritureTerminee, "Ecriture des paramètres terminées");
    prendre(t.TexteLectureTerminee, "Lecture des paramètres terminées");
    prendre(t.TexteAbsent, "k-Pod absent");
    if (ecran.ui->UnSeuil->isChecked()) prendre(t.TexteSeuil, "Valeur du seuil");
    if (ecran.ui->DeuxSeuils->isChecked()) {
        prendre(t.TexteLimiteBasse, "Limite basse");
        prendre(t.TexteLimiteHaute, "Limite Haute");
    }
    prendre(t.TexteAuDessus, "Au dessus");
    prendre(t.TexteAuDessous, "Au dessous");
    prendre(t.TexteEnDehors, "En dehors");
    prendre(t.TexteEnDedans, "En dedans");
}

void NommerSeuils(MainScreen& ecran) {
    if (ecran.ui->UnSeuil->isChecked()) MontrerTexteSeuil(ecran);
    if (ecran.ui->DeuxSeuils->isChecked()) MontrerTextesLimites(ecran);
}

}  // namespace

void ChangeTextes(MainScreen& ecran, const QString& langue, bool init) {
    auto& ui = *ecran.ui;
    const SansDessin sansDessin(ecran);
    TraduireOutils(langue);
    if (init) ecran.configuration.RemplitListeLangues(*ui.ListeLangues, langue);
    RemplirListes(ecran, langue);
    // The duration is computed, and stays.
    TraduireFiche(ecran, ecran, {.langue = langue, .exclu = ui.DureeEnregistrement});
    RafraichirTextes(ecran, langue);
    NommerSeuils(ecran);
    // Fixed in every language, whatever the catalogue holds for them.
    ui.AMPM_0->setText(QStringLiteral("12h"));
    ui.AMPM_1->setText(QStringLiteral("24h"));
}

}  // namespace bornika
