#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <pugixml.hpp>

namespace bornika {

/// A name or a key of the configuration as it is compared everywhere: in Unicode upper case.
/// Persons edit the file by hand and the keys are French sentences, so that neither the case of a
/// letter nor that of an accented one makes another key.
QString CasseRepliee(const QString& texte);

/// A text to be found without regard to case and to outer blanks: prepared once, compared with
/// hundreds of raw UTF-8 texts without making an object of each.
class CleRecherche {
  public:
    explicit CleRecherche(const QString& texte, bool rogner = false);

    /// Whether the whole text is the same by `CasseRepliee`.
    bool EgaleNom(QByteArrayView texte) const;
    /// The same for the text less its outer blanks.
    bool EgaleRognee(QByteArrayView texte) const;

  private:
    QString haute_;
    QByteArray octets_;
};

/// The one document of the configuration. Loading and saving keep what the program does not know:
/// other elements, comments, layout, line ends and the declared encoding.
class DocumentConfiguration {
  public:
    /// Reads the file anew. Returns its root element; fault 91 when the file is missing or
    /// malformed. The bytes are parsed again only where one of them differs from the last reading:
    /// a start makes hundreds of loads, and nobody can tell the difference.
    pugi::xml_node Charger(const QString& chemin);
    /// The same from bytes of one's own.
    pugi::xml_node Interpreter(QByteArray octets);
    /// The document as the bytes of a file, in its own encoding.
    QByteArray Octets() const;
    std::uint64_t NombreChargements() const { return chargements_; }
    /// The caller changes the document and may not save it: the next load parses anew.
    void NoterChangement() { changee_ = true; }
    /// Replaces the file that was read last, unless its bytes would be the same.
    void Enregistrer();
    /// First element, in the order of the file, that an XPath expression selects; none when there
    /// is none. Fault 5 for an expression that is none.
    pugi::xml_node Choisir(const QByteArray& chemin) const;

  private:
    enum class Codage { Utf8, Latin1, Windows1252, Utf16Petit, Utf16Grand };

    static Codage Reconnaitre(QByteArrayView octets);
    bool Analyser();

    pugi::xml_document document_;
    // The document is parsed in place: its texts point into these bytes.
    QByteArray octets_;
    // The file's bytes as they were read.
    QByteArray lus_;
    bool changee_ = false;
    QString chemin_;
    std::uint64_t chargements_ = 0;
    Codage codage_ = Codage::Utf8;
    bool marque_ = false;
};

/// Element child at a position counted from 0. Fault 91 when there are not so many.
pugi::xml_node EnfantA(pugi::xml_node parent, int position);
/// Text of an element: all text within it, joined, never trimmed.
QString TexteElement(pugi::xml_node element);
/// Replaces all that is within an element by a text.
void FixerTexte(pugi::xml_node element, const QString& texte);
/// Whether the element's text is that key.
bool CleEgale(pugi::xml_node element, const CleRecherche& cle);

}  // namespace bornika
