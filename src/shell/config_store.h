#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

namespace bornika {

class ListeDeroulante;

/// "config.xml" beside the program: all settings, lists and texts.
///
/// Each operation loads the file, does its work and, if it changed something, saves the whole
/// document. Nothing is cached, so a change made by hand while the program runs is seen by the next
/// operation. A missing or malformed file is a fault (91) of the operation that met it. No
/// operation keeps a node across a call that can run another one.
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

    bool LitSplash();
    void EcritSplash(bool valeur);
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
    void EcritDureeSaisie(int index, std::int32_t duree);

  private:
    class Document;

    QString CheminDe(const QString& fichier) const;

    QString dossier_;
    std::unique_ptr<Document> document_;
};

}  // namespace bornika
