#include "settings/config_store_merge.h"

#include <QString>
#include <algorithm>
#include <pugixml.hpp>
#include <vector>

#include "platform/fault.h"
#include "settings/config_store_document.h"

namespace bornika {

namespace {

// The document's own rule, and no outer blank of any kind counts: where it is in doubt whether the
// used file has a text, it has it, since what a person owns is not to be said twice.
QString SigneFusion(const char* texte) {
    return CasseRepliee(QString::fromUtf8(texte).trimmed());
}

QString NomFusion(pugi::xml_node noeud) {
    for (const pugi::xml_attribute attribut : noeud.attributes())
        if (SigneFusion(attribut.name()) == QLatin1String("NOM"))
            return SigneFusion(attribut.value());
    return {};
}

pugi::xml_node EnfantOuRien(pugi::xml_node parent, int position) {
    for (const pugi::xml_node noeud : parent.children())
        if (noeud.type() == pugi::node_element && position-- == 0) return noeud;
    return {};
}

template <class Egal>
pugi::xml_node TrouverElement(pugi::xml_node parent, Egal egal) {
    for (const pugi::xml_node noeud : parent.children())
        if (noeud.type() == pugi::node_element && egal(noeud)) return noeud;
    return {};
}

class Fusion {
  public:
    bool ajout = false;

    void Racine(pugi::xml_node a, pugi::xml_node b) {
        ParNom(a, b, [this](pugi::xml_node x, pugi::xml_node y) {
            const QString nom = SigneFusion(y.name());
            if (nom == QLatin1String("LISTES")) ParLangue(x, y, &Fusion::Listes);
            if (nom == QLatin1String("MESSAGES")) ParLangue(x, y, &Fusion::Textes);
        });
    }

  private:
    void Ajouter(pugi::xml_node a, pugi::xml_node enfant) {
        a.append_child(pugi::node_pcdata).set_value("\n");
        a.append_copy(enfant);
        ajout = true;
    }

    // Adds what `a` has no element of that name for; `fusion` goes on inside those that both have.
    template <class Suite>
    void ParNom(pugi::xml_node a, pugi::xml_node b, Suite fusion) {
        for (const pugi::xml_node y : b.children()) {
            if (y.type() != pugi::node_element) continue;
            const QString nom = SigneFusion(y.name());
            const pugi::xml_node x =
                TrouverElement(a, [&](pugi::xml_node n) { return SigneFusion(n.name()) == nom; });
            if (x)
                fusion(x, y);
            else
                Ajouter(a, y);
        }
    }

    void ParLangue(pugi::xml_node a, pugi::xml_node b,
                   void (Fusion::*fusion)(pugi::xml_node, pugi::xml_node)) {
        for (const pugi::xml_node y : b.children()) {
            if (y.type() != pugi::node_element) continue;
            const QString langue = NomFusion(y);
            const pugi::xml_node x =
                TrouverElement(a, [&](pugi::xml_node n) { return NomFusion(n) == langue; });
            if (x)
                (this->*fusion)(x, y);
            else
                Ajouter(a, y);
        }
    }

    // The texts of a list at the places that the used one does not have.
    void Listes(pugi::xml_node a, pugi::xml_node b) {
        ParNom(a, b, [this](pugi::xml_node x, pugi::xml_node y) { ParCle(x, y, 1); });
    }

    void Textes(pugi::xml_node a, pugi::xml_node b) { ParCle(a, b, 0); }

    // Adds the entries whose child at `position` has a text that no entry of `a` has there.
    void ParCle(pugi::xml_node a, pugi::xml_node b, int position) {
        std::vector<QString> connues;
        for (const pugi::xml_node n : a.children())
            connues.push_back(SigneFusion(EnfantOuRien(n, position).text().get()));
        for (const pugi::xml_node y : b.children()) {
            if (y.type() != pugi::node_element) continue;
            const QString cle = SigneFusion(EnfantOuRien(y, position).text().get());
            if (std::find(connues.begin(), connues.end(), cle) == connues.end()) Ajouter(a, y);
        }
    }
};

}  // namespace

QByteArray FusionnerConfiguration(const QByteArray& utilisee, const QByteArray& livree) {
    DocumentConfiguration a;
    DocumentConfiguration b;
    Fusion fusion;
    const bool lus =
        ignorer([&] { fusion.Racine(a.Interpreter(utilisee), b.Interpreter(livree)); });
    return lus && fusion.ajout ? a.Octets() : utilisee;
}

}  // namespace bornika
