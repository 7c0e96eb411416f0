#pragma once

#include <QComboBox>
#include <QList>
#include <QProgressBar>
#include <cstdint>

/// The two toolkit controls whose own habits would show: wrapped once, used everywhere.
namespace bornika {

/// A drop-down list whose entries carry a 32-bit number each.
///
/// Choosing an entry, by hand or by the program, raises `Clic`, also when it is the entry chosen
/// already and for -1. Filling and clearing raise nothing and choose nothing: the toolkit would
/// select the first entry by itself.
class ListeDeroulante : public QComboBox {
    Q_OBJECT
  public:
    explicit ListeDeroulante(QWidget* parent = nullptr);

    /// Removes all entries; nothing is chosen afterwards.
    void Vider();
    /// Adds at the end, or at `position` (0 to count). Fault 5 for another position.
    void Ajouter(const QString& texte, int position = -1);
    /// The number of an entry. Fault 381 for an entry that is not there.
    void FixerDonnee(int position, std::int32_t donnee);
    std::int32_t Donnee(int position) const;
    /// Text of an entry, "" beyond the list.
    QString TexteA(int position) const { return itemText(position); }

    int Nombre() const { return count(); }
    int Index() const { return currentIndex(); }
    /// Chooses by the program and raises `Clic`. Fault 380 below -1 or beyond the list.
    void Choisir(int index);
    /// The same, but a position beyond the list is silently not chosen.
    void ChoisirSiPresent(int index);
    /// Text of the chosen entry, "" for none.
    QString Texte() const { return currentText(); }

  Q_SIGNALS:
    /// An entry was chosen by hand or by the program.
    void Clic();
    /// An entry was chosen by hand.
    void ClicMain();

  private:
    // Asked for with every measure of a download, which the toolkit's own made a sixth longer.
    QList<std::int32_t> donnees_;
};

/// A progress bar that keeps its own limits and value as numbers: the toolkit's would turn busy at
/// 0..0 and ignore what it does not like.
class BarreProgression : public QProgressBar {
    Q_OBJECT
  public:
    explicit BarreProgression(QWidget* parent = nullptr);

    double Minimum() const { return minimum_; }
    double Maximum() const { return maximum_; }
    double Valeur() const { return valeur_; }

    /// Fault 380 when it would pass the other limit; the value is held between the limits.
    void FixerMinimum(double minimum);
    void FixerMaximum(double maximum);
    /// Fault 380 outside the limits.
    void FixerValeur(double valeur);

  private:
    void Montrer();

    double minimum_ = 0;
    double maximum_ = 100;
    double valeur_ = 0;
};

}  // namespace bornika
