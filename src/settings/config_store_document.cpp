#include "settings/config_store_document.h"

#include <string>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/fault.h"
#include "platform/named_fault.h"
#include "platform/whole_file.h"

namespace bornika {

namespace {

// With the white space between the outermost elements too, so that a save keeps the whole layout.
constexpr unsigned lecture = (pugi::parse_full | pugi::parse_ws_pcdata | pugi::parse_fragment) &
                             ~static_cast<unsigned>(pugi::parse_eol);

constexpr bool EstBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

QByteArrayView RognerBlancs(QByteArrayView texte) {
    while (!texte.isEmpty() && EstBlanc(texte.front()))
        texte = texte.sliced(1);
    while (!texte.isEmpty() && EstBlanc(texte.back()))
        texte.chop(1);
    return texte;
}

// `CasseRepliee` of a plain letter.
constexpr char Haute(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool EstAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

bool EstTexte(pugi::xml_node noeud) {
    return noeud.type() == pugi::node_pcdata || noeud.type() == pugi::node_cdata;
}

/// The text of an element in one piece, null when it is in several.
const char* TexteSimple(pugi::xml_node element) {
    const pugi::xml_node premier = element.first_child();
    if (!premier) return "";
    return EstTexte(premier) && !premier.next_sibling() ? premier.value() : nullptr;
}

void JoindreTextes(pugi::xml_node element, QByteArray& texte) {
    for (const pugi::xml_node noeud : element.children()) {
        if (EstTexte(noeud)) texte += noeud.value();
        if (noeud.type() == pugi::node_element) JoindreTextes(noeud, texte);
    }
}

/// One root element and nothing but blanks around it.
bool BienForme(const pugi::xml_document& document) {
    int racines = 0;
    for (const pugi::xml_node noeud : document.children()) {
        if (noeud.type() == pugi::node_element) ++racines;
        if (EstTexte(noeud) && !RognerBlancs(noeud.value()).isEmpty()) return false;
    }
    return racines == 1;
}

struct Ecrivain : pugi::xml_writer {
    QByteArray octets;
    void write(const void* donnees, std::size_t taille) override {
        octets.append(static_cast<const char*>(donnees), static_cast<qsizetype>(taille));
    }
};

}  // namespace

QString CasseRepliee(const QString& texte) {
    return texte.toUpper();
}

CleRecherche::CleRecherche(const QString& texte, bool rogner) {
    const QByteArray utf8 = texte.toUtf8();
    const QByteArrayView utile = rogner ? RognerBlancs(utf8) : QByteArrayView(utf8);
    haute_ = CasseRepliee(QString::fromUtf8(utile));
    octets_ = haute_.toUtf8();
}

bool CleRecherche::EgaleNom(QByteArrayView texte) const {
    const qsizetype commun = std::min(texte.size(), octets_.size());
    for (qsizetype i = 0; i < commun; ++i) {
        if (Haute(texte[i]) == octets_[i]) continue;
        // A plain letter differs for good; another one only once it is in upper case.
        return !EstAscii(texte[i]) && CasseRepliee(QString::fromUtf8(texte)) == haute_;
    }
    return texte.size() == octets_.size();
}

bool CleRecherche::EgaleRognee(QByteArrayView texte) const {
    return EgaleNom(RognerBlancs(texte));
}

DocumentConfiguration::Codage DocumentConfiguration::Reconnaitre(QByteArrayView octets) {
    if (octets.startsWith("\xFF\xFE")) return Codage::Utf16Petit;
    if (octets.startsWith("\xFE\xFF")) return Codage::Utf16Grand;
    if (!octets.startsWith("<?xml")) return Codage::Utf8;
    const qsizetype fin = octets.indexOf("?>");
    if (fin < 0) return Codage::Utf8;
    const QByteArray declaration = octets.first(fin).toByteArray().toLower();
    for (const char* nom : {"windows-1252", "cp1252"})
        if (declaration.contains(nom)) return Codage::Windows1252;
    for (const char* nom : {"iso-8859-1\"", "iso-8859-1'", "latin1"})
        if (declaration.contains(nom)) return Codage::Latin1;
    return Codage::Utf8;
}

pugi::xml_node DocumentConfiguration::Charger(const QString& chemin) {
    ++chargements_;
    QByteArray lus = LireTout(chemin).value_or(QByteArray());
    if (!changee_ && chemin == chemin_ && lus == lus_ && document_.document_element())
        return document_.document_element();
    chemin_ = chemin;
    lus_ = lus;
    return Interpreter(std::move(lus));
}

pugi::xml_node DocumentConfiguration::Interpreter(QByteArray octets) {
    document_.reset();
    changee_ = false;
    octets_ = std::move(octets);
    codage_ = Reconnaitre(octets_);
    marque_ = octets_.startsWith("\xEF\xBB\xBF") || codage_ == Codage::Utf16Petit ||
              codage_ == Codage::Utf16Grand;
    if (codage_ == Codage::Latin1) octets_ = QString::fromLatin1(octets_).toUtf8();
    if (codage_ == Codage::Windows1252) octets_ = Depuis8Bits(octets_).toUtf8();
    if (!Analyser() || !BienForme(document_)) {
        document_.reset();
        LeverFaute(numero_faute::objetAbsent);
    }
    return document_.document_element();
}

bool DocumentConfiguration::Analyser() {
    if (octets_.isEmpty()) return false;
    char* const debut = octets_.data();
    const auto taille = static_cast<std::size_t>(octets_.size());
    if (codage_ == Codage::Utf16Petit || codage_ == Codage::Utf16Grand)
        return document_.load_buffer_inplace(debut, taille, lecture, pugi::encoding_auto);
    // The final zero goes with the bytes: the parser would overwrite the last one otherwise.
    const std::size_t marque = marque_ ? 3 : 0;
    return document_.load_buffer_inplace(debut + marque, taille - marque + 1, lecture,
                                         pugi::encoding_utf8);
}

QByteArray DocumentConfiguration::Octets() const {
    pugi::xml_encoding codage = pugi::encoding_utf8;
    if (codage_ == Codage::Utf16Petit) codage = pugi::encoding_utf16_le;
    if (codage_ == Codage::Utf16Grand) codage = pugi::encoding_utf16_be;
    const unsigned forme =
        pugi::format_raw | pugi::format_no_declaration | (marque_ ? pugi::format_write_bom : 0u);
    Ecrivain ecrivain;
    document_.save(ecrivain, "", forme, codage);
    if (codage_ == Codage::Latin1) ecrivain.octets = QString::fromUtf8(ecrivain.octets).toLatin1();
    if (codage_ == Codage::Windows1252)
        ecrivain.octets = Vers8Bits(QString::fromUtf8(ecrivain.octets));
    return ecrivain.octets;
}

void DocumentConfiguration::Enregistrer() {
    changee_ = true;
    const QByteArray octets = Octets();
    // A setting stored as it was leaves the file alone: a start stores several of these.
    if (octets != lus_) nommer(chemin_, [&] { RemplacerFichier(chemin_, octets); });
}

pugi::xml_node DocumentConfiguration::Choisir(const QByteArray& chemin) const {
    try {
        pugi::xpath_node_set trouves = document_.select_nodes(chemin.constData());
        // Nested matches come grouped by their parents otherwise.
        trouves.sort();
        for (const pugi::xpath_node& trouve : trouves)
            if (trouve.node().type() == pugi::node_element) return trouve.node();
        return {};
    } catch (const pugi::xpath_exception&) {
        LeverFaute(numero_faute::appelInvalide);
    }
}

pugi::xml_node EnfantA(pugi::xml_node parent, int position) {
    for (const pugi::xml_node noeud : parent.children())
        if (noeud.type() == pugi::node_element && position-- == 0) return noeud;
    LeverFaute(numero_faute::objetAbsent);
}

QString TexteElement(pugi::xml_node element) {
    if (const char* texte = TexteSimple(element)) return QString::fromUtf8(texte);
    QByteArray texte;
    JoindreTextes(element, texte);
    return QString::fromUtf8(texte);
}

void FixerTexte(pugi::xml_node element, const QString& texte) {
    element.remove_children();
    if (!texte.isEmpty())
        element.append_child(pugi::node_pcdata).set_value(texte.toUtf8().constData());
}

bool CleEgale(pugi::xml_node element, const CleRecherche& cle) {
    if (const char* texte = TexteSimple(element)) return cle.EgaleRognee(texte);
    QByteArray texte;
    JoindreTextes(element, texte);
    return cle.EgaleRognee(texte);
}

}  // namespace bornika
