#include "app/form_events.h"

#include <QEvent>

#include "platform/guard.h"
#include "setup/form_rules.h"
#include "setup/pressure_scale.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

using Regle = void (*)(MainScreen&);

struct EvenementListe {
    ListeDeroulante* liste;
    Regle regle;
};
struct EvenementTexte {
    QLineEdit* boite;
    Regle regle;
};
struct EvenementOption {
    QRadioButton* option;
    Regle regle;
};

// An option raises its click when it becomes the chosen one, by hand or by the program; the one
// that gives way raises nothing.
void BrancherOption(MainScreen& ecran, const EvenementOption& evenement) {
    QObject::connect(evenement.option, &QRadioButton::toggled, &ecran,
                     [&ecran, regle = evenement.regle](bool choisie) {
                         if (choisie) garder([&] { regle(ecran); });
                     });
}

/// Runs a rule each time that a box gets the focus.
class Entree : public QObject {
  public:
    Entree(MainScreen& ecran, QLineEdit& boite, Regle regle)
        : QObject(&ecran), ecran_(ecran), regle_(regle) {
        boite.installEventFilter(this);
    }

    bool eventFilter(QObject* boite, QEvent* evenement) override {
        if (evenement->type() == QEvent::FocusIn)
            // After the box has placed its own cursor, which would undo the selection.
            QMetaObject::invokeMethod(
                boite, [this] { garder([&] { regle_(ecran_); }); }, Qt::QueuedConnection);
        return false;
    }

  private:
    MainScreen& ecran_;
    Regle regle_;
};

}  // namespace

void BrancherFormulaire(MainScreen& ecran) {
    auto& ui = *ecran.ui;
    const EvenementListe listes[] = {
        {ui.ListePeriodeEchantillonage, ListePeriodeEchantillonage_Click},
        {ui.PeriodeTrigger, PeriodeTrigger_Click},
        {ui.ListeEchelles, ListeEchelles_Click},
        {ui.ListeUnites, ListeUnites_Click},
    };
    for (const EvenementListe& e : listes)
        brancher(e.liste, &ListeDeroulante::Clic, &ecran, [&ecran, e] { e.regle(ecran); });

    const EvenementTexte textes[] = {
        {ui.DureeSaisie, DureeSaisie_Change},
        {ui.Seuil1, Seuil1_Change},
        {ui.Seuil2, Seuil2_Change},
        {ui.NbMesures, NbMesures_Change},
    };
    for (const EvenementTexte& e : textes)
        brancher(e.boite, &QLineEdit::textChanged, &ecran, [&ecran, e] { e.regle(ecran); });

    const EvenementOption options[] = {
        {ui.BufferTournant, BufferTournant_Click},
        {ui.BufferNonTournant, BufferNonTournant_Click},
        {ui.AuDessus, AuDessus_Click},
        {ui.AuDessous, AuDessous_Click},
        {ui.PasDeSeuil, PasDeSeuil_Click},
        {ui.UnSeuil, UnSeuil_Click},
        {ui.DeuxSeuils, DeuxSeuils_Click},
    };
    for (const EvenementOption& e : options)
        BrancherOption(ecran, e);

    for (QDateTimeEdit* date : {ui.DTPicker1, ui.DTPicker2})
        brancher(date, &QDateTimeEdit::dateTimeChanged, &ecran, [&] { DTPicker_Change(ecran); });
    brancher(ui.OneShot, &QCheckBox::toggled, &ecran, [&] { OneShot_Click(ecran); });
    brancher(ui.Check_advanced, &QCheckBox::toggled, &ecran, [&] { Check_advanced_Click(ecran); });
    brancher(ui.DateDemarrage, &QPushButton::clicked, &ecran, [&] { DateDemarrage_Click(ecran); });

    new Entree(ecran, *ui.Seuil1, Seuil_Focus);
    new Entree(ecran, *ui.Seuil2, Seuil_Focus);
}

}  // namespace bornika
