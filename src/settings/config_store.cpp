#include "settings/config_store.h"

#include <QDir>
#include <vector>

#include "platform/fault.h"
#include "platform/numbers.h"
#include "settings/config_store_document.h"
#include "widgets/controls.h"

namespace bornika {

class Configuration::Document : public DocumentConfiguration {};

namespace {

const Regional point{QStringLiteral("."), QString()};

/// Language elements named `langue` under the root's children named `section` (in upper case), in
/// their order, until `suite` returns false.
template <class Suite>
void ParcourirLangues(pugi::xml_node racine, const char* section, const QString& langue,
                      Suite suite) {
    const CleRecherche sectionCherchee(QString::fromLatin1(section));
    const CleRecherche langueCherchee(langue);
    const CleRecherche nom(QStringLiteral("NOM"));
    for (const pugi::xml_node bloc : racine.children()) {
        if (!sectionCherchee.EgaleNom(bloc.name())) continue;
        for (const pugi::xml_node noeud : bloc.children())
            for (const pugi::xml_attribute attribut : noeud.attributes())
                if (nom.EgaleNom(attribut.name()) && langueCherchee.EgaleNom(attribut.value()) &&
                    !suite(noeud))
                    return;
    }
}

/// The list `nom` of each of these language elements, its first one where there are several.
template <class Suite>
void ParcourirListes(pugi::xml_node racine, const QString& langue, const QString& nom,
                     Suite suite) {
    const CleRecherche cherchee(nom, true);
    ParcourirLangues(racine, "LISTES", langue, [&](pugi::xml_node noeud) {
        for (const pugi::xml_node liste : noeud.children())
            if (cherchee.EgaleNom(liste.name())) return suite(liste);
        return true;
    });
}

std::vector<pugi::xml_node> LignesDeListe(pugi::xml_node liste) {
    const CleRecherche nom(QStringLiteral("LIGNE"));
    std::vector<pugi::xml_node> lignes;
    for (const pugi::xml_node enfant : liste.children())
        if (nom.EgaleNom(enfant.name())) lignes.push_back(enfant);
    return lignes;
}

/// One line of a list, taken out of the document before a control is touched.
struct Ligne {
    QString texte;
    QString index;
    QString valeur;
};

void RemplirDeLignes(ListeDeroulante& liste, const std::vector<Ligne>& lignes) {
    liste.Vider();
    for (const Ligne& ligne : lignes) {
        const int position = EnEntier32(ValeurDebut(ligne.index));
        // A position below 0 would mean "at the end" to the control.
        if (position < 0) LeverFaute(numero_faute::appelInvalide);
        liste.Ajouter(ligne.texte, position);
        liste.FixerDonnee(position, EnEntier32(ValeurDebut(ligne.valeur)));
    }
}

/// A new entry in the shape of the language's first one, behind its last one and laid out like it.
void AjouterEntree(pugi::xml_node langue, const QString& cle, const QString& texte) {
    const pugi::xml_node modele = EnfantA(langue, 0);
    pugi::xml_node derniere = langue.last_child();
    while (derniere.type() != pugi::node_element)
        derniere = derniere.previous_sibling();
    const pugi::xml_node entree = langue.insert_copy_after(modele, derniere);
    FixerTexte(EnfantA(entree, 0), cle);
    FixerTexte(EnfantA(entree, 1), texte);
    const pugi::xml_node blanc = modele.previous_sibling();
    if (blanc.type() == pugi::node_pcdata) langue.insert_copy_before(blanc, entree);
}

bool BooleenDe(const std::optional<QString>& texte) {
    if (!texte) return false;
    const QString mot = texte->trimmed();
    if (mot.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
    return EstNumerique(mot, point) && EnDouble(mot, point) != 0;
}

/// The path of a period's line names no language, so that the first language keeps it for all.
QByteArray CheminLigne(int index) {
    return "//Configuration/Listes/Langue/ListePeriode//Ligne[Index='" + QByteArray::number(index) +
           "']";
}

}  // namespace

Configuration::Configuration(QString dossier)
    : dossier_(std::move(dossier)), document_(std::make_unique<Document>()) {}

Configuration::~Configuration() = default;

QString Configuration::Chemin() const {
    return CheminDe({});
}

std::uint64_t Configuration::NombreChargements() const {
    return document_->NombreChargements();
}

QString Configuration::CheminDe(const QString& fichier) const {
    return QDir(dossier_).filePath(fichier.isEmpty() ? QStringLiteral("config.xml") : fichier);
}

std::optional<QString> Configuration::LitConfig(const QString& cle, const QString& fichier) {
    document_->Charger(CheminDe(fichier));
    const pugi::xml_node element = document_->Choisir("//Configuration/" + cle.toUtf8());
    if (!element) return std::nullopt;
    return TexteElement(element);
}

void Configuration::EcritConfig(const QString& valeur, const QString& cle, const QString& fichier) {
    document_->Charger(CheminDe(fichier));
    const pugi::xml_node element = document_->Choisir("//Configuration/" + cle.toUtf8());
    if (!element) return;
    document_->NoterChangement();
    FixerTexte(element, valeur);
    document_->Enregistrer();
}

std::vector<GroupeReglages> Configuration::LitGroupes(const QString& cle) {
    document_->Charger(Chemin());
    std::vector<GroupeReglages> groupes;
    for (const pugi::xml_node enfant : document_->Choisir("//Configuration/" + cle.toUtf8())) {
        if (enfant.type() != pugi::node_element) continue;
        GroupeReglages& groupe = groupes.emplace_back();
        groupe.nom = QString::fromUtf8(enfant.name());
        for (const pugi::xml_node entree : enfant.children())
            if (entree.type() == pugi::node_element)
                groupe.entrees.emplace_back(QString::fromUtf8(entree.name()), TexteElement(entree));
    }
    return groupes;
}

bool Configuration::LitSplash() {
    return BooleenDe(LitConfig(QStringLiteral("Splash")));
}

void Configuration::EcritSplash(bool valeur) {
    EcritConfig(TexteBooleen(valeur), QStringLiteral("Splash"));
}

bool Configuration::LitMaintenance() {
    return BooleenDe(LitConfig(QStringLiteral("Maintenance")));
}

QString Configuration::LitMessage(const QString& langue, const QString& cle,
                                  const QString& defaut) {
    const pugi::xml_node racine = document_->Charger(Chemin());
    const CleRecherche cherchee(cle, true);
    pugi::xml_node trouvee;
    ParcourirLangues(racine, "MESSAGES", langue, [&](pugi::xml_node noeud) {
        for (const pugi::xml_node entree : noeud.children()) {
            if (entree.type() != pugi::node_element || !CleEgale(EnfantA(entree, 0), cherchee))
                continue;
            trouvee = entree;
            return false;
        }
        document_->NoterChangement();
        AjouterEntree(noeud, cle, defaut.isEmpty() ? cle : defaut);
        return true;
    });
    if (trouvee) return TexteElement(EnfantA(trouvee, 1));
    // Saved for an unknown language too, and nothing is returned this once: that is what a key's
    // first lookup has always done.
    document_->Enregistrer();
    return {};
}

void Configuration::RemplitListeLangues(ListeDeroulante& liste, const QString& langue) {
    // The names are taken out first: choosing one runs operations that load the document anew.
    std::vector<QString> noms;
    const CleRecherche section(QStringLiteral("MESSAGES"));
    const CleRecherche nom(QStringLiteral("NOM"));
    for (const pugi::xml_node bloc : document_->Charger(Chemin()).children()) {
        if (!section.EgaleNom(bloc.name())) continue;
        for (const pugi::xml_node noeud : bloc.children())
            for (const pugi::xml_attribute attribut : noeud.attributes())
                if (nom.EgaleNom(attribut.name()))
                    noms.push_back(QString::fromUtf8(attribut.value()));
    }
    for (std::size_t i = 0; i < noms.size(); ++i) {
        const int position = static_cast<int>(i);
        liste.Ajouter(noms[i], position);
        if (noms[i] == langue) liste.Choisir(position);
    }
}

void Configuration::RemplitListe(const QString& langue, const QString& nom,
                                 ListeDeroulante& liste) {
    std::vector<std::vector<Ligne>> listes;
    ParcourirListes(document_->Charger(Chemin()), langue, nom, [&](pugi::xml_node noeud) {
        std::vector<Ligne>& lignes = listes.emplace_back();
        for (const pugi::xml_node ligne : LignesDeListe(noeud))
            lignes.push_back({TexteElement(EnfantA(ligne, 0)), TexteElement(EnfantA(ligne, 1)),
                              TexteElement(EnfantA(ligne, 2))});
        return true;
    });
    for (const std::vector<Ligne>& lignes : listes)
        RemplirDeLignes(liste, lignes);
}

void Configuration::LitEchelle(const QString& langue, int index, double& mini, double& maxi) {
    ParcourirListes(document_->Charger(Chemin()), langue, QStringLiteral("ListeEchelles"),
                    [&](pugi::xml_node liste) {
                        for (const pugi::xml_node ligne : LignesDeListe(liste)) {
                            if (ValeurDebut(TexteElement(EnfantA(ligne, 1))) != index) continue;
                            mini = ValeurDebut(TexteElement(EnfantA(ligne, 2)));
                            maxi = ValeurDebut(TexteElement(EnfantA(ligne, 3)));
                            return false;
                        }
                        return true;
                    });
}

std::int32_t Configuration::LitDureeSaisie(int index) {
    document_->Charger(Chemin());
    const pugi::xml_node ligne = document_->Choisir(CheminLigne(index));
    if (!ligne) return 1;
    return EnEntier32(ValeurDebut(TexteElement(EnfantA(ligne, 2))) / 10);
}

void Configuration::EcritDureeSaisie(int index, std::int32_t duree) {
    document_->Charger(Chemin());
    const pugi::xml_node ligne = document_->Choisir(CheminLigne(index));
    if (!ligne) return;
    document_->NoterChangement();
    FixerTexte(EnfantA(ligne, 2), QString::number(EnEntier32(duree * 10.0)));
    document_->Enregistrer();
}

}  // namespace bornika
