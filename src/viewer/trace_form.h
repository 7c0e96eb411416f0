#pragma once

#include <QString>
#include <QWidget>
#include <memory>

#include "chart/model/chart_model.h"
#include "widgets/own_form.h"

namespace Ui {
class Trace;
}

namespace bornika {

class MainScreen;

/// The viewer form: its controls, the chart model behind `TChart1` and the state of the view. It
/// knows no operation; operations take it as an argument.
///
/// It comes up empty and shows its working controls once a recording is loaded. Closing it, by its
/// frame or by `Sortir`, ends its life: a load that runs leaves after its next yield.
class Trace : public QWidget, public FicheDuProgramme {
    Q_OBJECT
  public:
    /// Makes the form and runs its Load.
    explicit Trace(MainScreen& ecran);
    ~Trace() override;

    /// True when the form, or the program, is being closed: long loops leave.
    bool EnFermeture() const;

    /// While one lives, an operation of the form is on the stack and the form must not be deleted.
    class Occupation {
      public:
        explicit Occupation(Trace& trace) : trace_(trace) { ++trace_.operations_; }
        ~Occupation();
        Occupation(const Occupation&) = delete;
        Occupation& operator=(const Occupation&) = delete;

      private:
        Trace& trace_;
    };
    bool EstOccupee() const { return operations_ > 0; }

    std::unique_ptr<Ui::Trace> ui;
    MainScreen& ecran;
    ModeleGraphe modele;

    /// File name last given to the viewer; after a multiple selection the folder and the names,
    /// separated by NUL. Empty until a file was opened.
    QString NomFichierCourant;
    /// File name held by the file dialog; the main form puts a bare name there after a download.
    QString NomDialogue;
    /// A load runs.
    bool Chargement = false;
    /// Smallest and largest time stamp of the last load.
    double Mini = 0;
    double Maxi = 0;

    /// Room that the layout keeps at the right of the chart, below it, and between it and the
    /// comments, in pixels. Taken once at the Load.
    int MargeDroite = 0;
    int MargeBas = 0;
    int EcartCommentaires = 0;

  Q_SIGNALS:
    /// The form was closed.
    void Fermeture();
    /// The last operation of a closed form has ended.
    void Repos();

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    void Charger();
    void Disposer();
    void LierGraphe();
    void PrendreMarges();
    void Ajuster();

    int operations_ = 0;
    bool fermee_ = false;
    bool chargee_ = false;
};

}  // namespace bornika
