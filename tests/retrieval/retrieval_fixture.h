#pragma once

#include <QApplication>
#include <QTest>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "link/station.h"
#include "retrieval/download_engine.h"
#include "simulator/presets.h"
#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {

inline std::string Clair(const QString& texte) {
    return texte.toStdString();
}
inline std::string Clair(const QByteArray& texte) {
    return texte.toStdString();
}

/// 14 November 2023, 22:13:20.
inline constexpr std::uint32_t t0 = 1700000000;

/// A main form with one chosen simulated logger and the button "LireValeurs" tied. What follows a
/// download in the viewer is noted instead of shown.
class BancLecture {
  public:
    /// Without a logger: a k-Pod 2.100 on 0 - 16 bar in bar, never calibrated, so that 64 points
    /// are 1 bar.
    explicit BancLecture(simulateur::PtrEnregistreur prepare = {},
                         const QString& langue = QStringLiteral("English"));

    void Stocker(std::initializer_list<simulateur::MesureEnFlash> mesures) {
        enregistreur.Stocker(std::span(mesures.begin(), mesures.size()));
    }
    /// A real click on the button.
    void Cliquer() { QTest::mouseClick(ui.LireValeurs, Qt::LeftButton); }
    /// Runs `geste` in the yield of that round (1 = the first).
    void AuTour(int tour, std::function<void()> geste);
    /// A fault for the answers to the download command.
    void Panne(simulateur::GenrePanne genre, int occurrence, int combien = 1, int parametre = 0);

    /// The two files of the download, by the clock of the bench.
    QByteArray Mesures() const { return etabli.Lire(nom + QStringLiteral(".txt")); }
    QByteArray Rejets() const { return etabli.Lire(nom + QStringLiteral(".err")); }
    /// Measure lines of the ".txt" file.
    int NombreLignes() const { return static_cast<int>(Mesures().count('\n')) - 1; }
    std::string Bouton() const { return Clair(ui.LireValeurs->text()); }
    /// The requests for measures that the logger saw, flag bytes in order.
    std::vector<int> Drapeaux() const;
    int PoigneesOuvertes() const { return bus.PoigneesOuvertes(); }

    BusSimule bus;
    EnregistreurSimule& enregistreur;
    Etabli etabli;
    MainScreen ecran;
    Ui::MainScreen& ui;
    MULTIUSB lien;
    Poste poste;
    SuiteTelechargement suite;

    QString nom = QStringLiteral("2026-03-05-14-07-09");
    int tours = 0;
    std::vector<QString> commentaires;
    std::vector<QString> montres;
    /// When it is not 0 the comment file cannot be made.
    int fauteCommentaires = 0;

  private:
    std::vector<std::pair<int, std::function<void()>>> gestes_;
};

/// A header line of the recordings of this bench.
inline const QByteArray entete = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n";

}  // namespace bornika::essai
