#include "chart/model/chart_template.h"

#include <optional>
#include <pugixml.hpp>

#include "platform/fault.h"
#include "platform/whole_file.h"

namespace bornika {

namespace {

QString TexteDe(pugi::xml_attribute attribut) {
    return QString::fromUtf8(attribut.value());
}

/// A colour attribute "#RRGGBB"; one that is missing leaves the colour as it was.
void LireCouleur(pugi::xml_node noeud, const char* nom, QColor& couleur) {
    const pugi::xml_attribute attribut = noeud.attribute(nom);
    if (!attribut) return;
    const QColor lue(TexteDe(attribut));
    if (!lue.isValid()) LeverFaute(numero_faute::formatDeFichier);
    couleur = lue;
}

/// A font size in points, between what can be read and what leaves room for curves.
void LireTaille(pugi::xml_node noeud, int& taille) {
    const pugi::xml_attribute attribut = noeud.attribute("taille");
    if (!attribut) return;
    taille = attribut.as_int(-1);
    if (taille < 5 || taille > 40) LeverFaute(numero_faute::formatDeFichier);
}

bool LireBooleen(pugi::xml_node noeud, const char* nom, bool defaut) {
    return noeud.attribute(nom).as_bool(defaut);
}

OutilGraphe::Genre LireGenre(pugi::xml_node noeud) {
    const QString genre = TexteDe(noeud.attribute("genre"));
    if (genre == QLatin1String("reserve")) return OutilGraphe::Genre::Reserve;
    if (genre == QLatin1String("annotation")) return OutilGraphe::Genre::Annotation;
    if (genre == QLatin1String("ligne")) return OutilGraphe::Genre::LigneCouleur;
    if (genre == QLatin1String("curseur")) return OutilGraphe::Genre::Curseur;
    LeverFaute(numero_faute::formatDeFichier);
}

OutilGraphe LireOutil(pugi::xml_node noeud) {
    OutilGraphe outil;
    outil.genre = LireGenre(noeud);
    outil.actif = LireBooleen(noeud, "actif", true);
    QColor crayon = VersQColor(outil.crayon);
    LireCouleur(noeud, "crayon", crayon);
    outil.crayon = DepuisQColor(crayon);
    outil.crayonVisible = LireBooleen(noeud, "visible", true);
    outil.suitSouris = LireBooleen(noeud, "suitSouris", false);
    outil.texte = TexteDe(noeud.attribute("texte"));
    return outil;
}

Apparence LireApparence(pugi::xml_node racine) {
    Apparence lue;
    lue.police = TexteDe(racine.child("Polices").attribute("famille"));
    LireCouleur(racine.child("Panneau"), "couleur", lue.panneau);
    LireCouleur(racine.child("Cadre"), "couleur", lue.cadre);
    LireCouleur(racine.child("Grille"), "couleur", lue.grille);
    const pugi::xml_node axes = racine.child("Axes");
    LireCouleur(axes, "ligne", lue.ligneAxes);
    LireCouleur(axes, "texte", lue.texteAxes);
    LireCouleur(axes, "titre", lue.titreAxes);
    LireTaille(axes, lue.tailleAxes);
    LireCouleur(racine.child("Titre"), "couleur", lue.titre);
    LireTaille(racine.child("Titre"), lue.tailleTitre);
    LireCouleur(racine.child("Legende"), "couleur", lue.legende);
    LireTaille(racine.child("Legende"), lue.tailleLegende);
    std::vector<Couleur> palette;
    for (const pugi::xml_node serie : racine.child("Series").children("Serie")) {
        QColor couleur(Qt::white);
        LireCouleur(serie, "couleur", couleur);
        palette.push_back(DepuisQColor(couleur));
    }
    if (!palette.empty()) lue.palette = palette;
    return lue;
}

}  // namespace

Couleur Apparence::CouleurSerie(int position) const {
    const auto nombre = static_cast<int>(palette.size());
    return nombre == 0 ? 0xFFFFFF : palette[static_cast<std::size_t>(position % nombre)];
}

Gabarit LireGabarit(const QString& chemin) {
    const std::optional<QByteArray> lus = LireTout(chemin);
    if (!lus) LeverFaute(numero_faute::fichierIntrouvable);
    pugi::xml_document document;
    const pugi::xml_node racine =
        document.load_buffer(lus->constData(), static_cast<std::size_t>(lus->size()))
            ? document.child("Graphe")
            : pugi::xml_node();
    if (!racine) LeverFaute(numero_faute::formatDeFichier);

    Gabarit gabarit;
    gabarit.apparence = LireApparence(racine);
    for (const pugi::xml_node outil : racine.child("Outils").children("Outil"))
        gabarit.outils.push_back(LireOutil(outil));
    return gabarit;
}

}  // namespace bornika
