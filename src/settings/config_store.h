#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace bornika {

class ListeDeroulante;

/// An element and its child elements by name and text, in the order of the file.
struct GroupeReglages {
    QString nom;
    std::vector<std::pair<QString, QString>> entrees;
};

/// "config.xml" beside the program: all settings, lists and texts.
///
/// Each operation reads the file, does its work and, if it changed something, saves the whole
/// document, so a change made by hand while the program runs is seen by the next operation. A
/// missing or malformed file is a fault (91) of the operation that met it, a save that fails one
/// (70, or 61 for a full disk) that leaves the file as it was. No operation keeps a node across a
/// call that can run another one.
class Configuration {
  public:
    explicit Configuration(QString dossier);
    ~Configuration();

    /// Path of the file.
    QString Chemin() const;
    /// How often a file was loaded since this object was made.
    std::uint64_t NombreChargements() const;

    /// Text of the element at "//Configuration/" + `cle`, nothing when there is none. An element
    /// that is there and empty gives the empty text. `fichier` is empty for "config.xml".
    std::optional<QString> LitConfig(const QString& cle, const QString& fichier = {});
    /// Sets that text and saves. A missing element is not made and the file is not touched.
    void EcritConfig(const QString& valeur, const QString& cle, const QString& fichier = {});

    /// The child elements of "//Configuration/" + `cle`, with their own ones. None where there is
    /// no such element.
    std::vector<GroupeReglages> LitGroupes(const QString& cle);

    /// Whether the splash form is shown: "True" in any case, or a number other than 0. False for
    /// any other text and for a missing element.
    bool LitSplash();
    /// Stores "True" or "False" there. A missing element is not made.
    void EcritSplash(bool valeur);
    /// Whether the service controls can be reached, told like `LitSplash`. Nothing writes it.
    bool LitMaintenance();

    /// Text of a key in a language. An unknown key is added with `defaut` (the key itself when that
    /// is empty) and gives the empty text this once: it shows from the next lookup on.
    QString LitMessage(const QString& langue, const QString& cle, const QString& defaut);

    /// Adds the names of all languages and chooses `langue` where it is met.
    void RemplitListeLangues(ListeDeroulante& liste, const QString& langue);
    /// Fills from the list `nom` of the language; a missing list leaves the control as it was.
    void RemplitListe(const QString& langue, const QString& nom, ListeDeroulante& liste);

    /// Limits of one scale; they stay unchanged when no line has that index.
    void LitEchelle(const QString& langue, int index, double& mini, double& maxi);
    /// Free duration in seconds: the first language's value divided by 10; 1 when there is no line.
    std::int32_t LitDureeSaisie(int index);
    /// Stores that duration, in seconds, with the first language; nothing happens when there is no
    /// line. Fault 6 when its tenfold does not fit 32 bits.
    void EcritDureeSaisie(int index, std::int32_t duree);

  private:
    class Document;

    QString CheminDe(const QString& fichier) const;

    QString dossier_;
    std::unique_ptr<Document> document_;
};

}  // namespace bornika
