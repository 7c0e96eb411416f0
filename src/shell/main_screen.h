#pragma once

#include <QMainWindow>
#include <memory>

#include "platform/system.h"
#include "settings/config_store.h"
#include "shell/application_state.h"
#include "widgets/own_form.h"

namespace Ui {
class MainScreen;
}

namespace bornika {

/// Texts of the catalogue that later operations use, refreshed by `ChangeTextes`.
struct TextesEcran {
    QString TexteValeursStockees;
    QString TexteEcritureTerminee;
    QString TexteLectureTerminee;
    QString TexteAbsent;
    QString TexteSeuil;
    QString TexteLimiteBasse;
    QString TexteLimiteHaute;
    QString TexteAuDessus;
    QString TexteAuDessous;
    QString TexteEnDehors;
    QString TexteEnDedans;
};

/// The main form: its controls and the state of the program. It knows no operation; operations take
/// it as an argument, and the table of events in src/app ties the two.
class MainScreen : public QMainWindow, public FicheDuProgramme {
    Q_OBJECT
  public:
    explicit MainScreen(Systeme& systeme, QWidget* parent = nullptr);
    ~MainScreen() override;

    /// Text of a key in the language of `ListeLangues` for the present product, with an empty
    /// default.
    QString Texte(const QString& cle);
    /// The same with a default of its own, for captions and help texts.
    QString Texte(const QString& cle, const QString& defaut);
    /// The same in a language of its own.
    QString TexteEn(const QString& langue, const QString& cle, const QString& defaut);
    /// Text of `ListeLangues`.
    QString Langue() const;

    std::unique_ptr<Ui::MainScreen> ui;
    Systeme& systeme;
    Configuration configuration;
    EtatApplication etat;
    TextesEcran textes;

  Q_SIGNALS:
    /// The form is being closed, by its frame or by the program.
    void Fermeture();

  protected:
    void closeEvent(QCloseEvent* evenement) override;
};

}  // namespace bornika
