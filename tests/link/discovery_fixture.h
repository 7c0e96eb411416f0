#pragma once

#include <QTest>
#include <algorithm>

#include "link/connect_form.h"
#include "link/device_discovery.h"
#include "link/link_fixture.h"
#include "link/selection_form.h"
#include "simulator/presets.h"
#include "simulator/simulated_bus.h"
#include "ui_connect_form.h"
#include "ui_selection_form.h"
#include "widgets/modal.h"

namespace bornika::essai {

/// Simulated loggers, a main form, and a hand that drives the dialogs with real clicks.
class BancDeChoix {
  public:
    explicit BancDeChoix(const QString& sousDossier = {}) : banc(bus, sousDossier) {}
    ~BancDeChoix() { ReglerMontreur({}); }
    BancDeChoix(const BancDeChoix&) = delete;
    BancDeChoix& operator=(const BancDeChoix&) = delete;

    EnregistreurSimule& Attacher(simulateur::PtrEnregistreur enregistreur) {
        return bus.Brancher(std::move(enregistreur));
    }
    EtatApplication& etat() { return banc.ecran.etat; }
    QString Version() const { return banc.ecran.ui->Version->text(); }

    /// Shows the list, lets `main` act on it, and leaves it by its frame when it is still open.
    void Connexion(const std::function<void(frmConnect&)>& main) {
        ReglerMontreur([&](QDialog& dialogue) {
            ++montres;
            dialogue.show();
            main(dynamic_cast<frmConnect&>(dialogue));
            ouvertApres = dialogue.isVisible();
            dialogue.close();
        });
        const int avant = montres;
        MontrerConnexion(banc.poste);
        EXPECT_EQ(montres, avant + 1) << "the list was not shown";
    }
    void Selection(const std::function<void(FormSelection&)>& main) {
        ReglerMontreur([&](QDialog& dialogue) {
            ++montres;
            dialogue.show();
            main(dynamic_cast<FormSelection&>(dialogue));
            ouvertApres = dialogue.isVisible();
            dialogue.close();
        });
        const int avant = montres;
        MontrerSelection(banc.poste);
        EXPECT_EQ(montres, avant + 1) << "the choice of a product was not shown";
    }

    static void Cliquer(frmConnect& fiche, int ligne) {
        Operateur::CliquerLigne(*fiche.ui->Listekrow, ligne);
    }
    static QStringList Lignes(const frmConnect& fiche) {
        QStringList lignes;
        for (int i = 0; i < fiche.ui->Listekrow->count(); ++i)
            lignes << fiche.ui->Listekrow->item(i)->text();
        return lignes;
    }

    BusSimule bus;
    Banc banc;
    int montres = 0;
    bool ouvertApres = false;
};

inline constexpr std::uint32_t maintenant = 1700000000;

inline simulateur::PtrEnregistreur Serie(std::uint32_t numero) {
    return simulateur::AvecNumeroSerie(numero, maintenant);
}

/// One second passes.
inline void Regarder(frmConnect& fiche) {
    QMetaObject::invokeMethod(&fiche.Veille.Minuterie(), "timeout");
}

}  // namespace bornika::essai
