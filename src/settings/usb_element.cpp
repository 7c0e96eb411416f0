#include "settings/usb_element.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/fault.h"
#include "platform/system.h"
#include "settings/config_store.h"

namespace bornika {

namespace {

/// An entry of a product and the numbers that it may have.
struct EntreeConnue {
    const char* nom;
    unsigned mini;
    unsigned maxi;
    const char* attendu;
};

enum Rang { vendeur, produit, interface, sortie, entree, delai, nombreEntrees };

constexpr std::array<EntreeConnue, nombreEntrees> connues{{
    {"Vendeur", 0, 0xFFFF, "UsbAttenduNumero"},
    {"Produit", 0, 0xFFFF, "UsbAttenduNumero"},
    {"Interface", 0, 0xFF, "UsbAttenduInterface"},
    {"Sortie", 0x01, 0x0F, "UsbAttenduSortie"},
    {"Entree", 0x81, 0x8F, "UsbAttenduEntree"},
    {"Delai", 1, ReglageUsb::delaiMaximal, "UsbAttenduDelai"},
}};

std::optional<unsigned> NombreUsb(const QString& texte) {
    const bool seize = texte.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const QByteArray chiffres = (seize ? texte.mid(2) : texte).toUtf8();
    unsigned nombre = 0;
    const auto lu = std::from_chars(chiffres.begin(), chiffres.end(), nombre, seize ? 16 : 10);
    if (lu.ec != std::errc() || lu.ptr != chiffres.end()) return {};
    return nombre;
}

/// Reads one `Appareil`.
class LecteurAppareil {
  public:
    LecteurAppareil(const GroupeReglages& groupe, int rang) : groupe_(groupe), rang_(rang) {}

    void Lire() {
        if (groupe_.nom != QLatin1String("Appareil")) {
            Refuser(groupe_.nom, {}, "UsbAttenduAppareil");
            return;
        }
        for (const auto& [nom, texte] : groupe_.entrees)
            LireEntree(nom, texte.trimmed());
        // Only where both are readable can one of them be said to be missing.
        if (!fausses_.empty()) return;
        if (!nombres_[vendeur] && nombres_[produit].value_or(0) != 0)
            Refuser(connues[vendeur].nom, {}, "UsbAttenduVendeur");
        if (nombres_[vendeur].value_or(0) != 0 && !nombres_[produit])
            Refuser(connues[produit].nom, {}, "UsbAttenduProduit");
    }

    void Ranger(ElementUsb& element) {
        const ReglageUsb reglage = Reglage();
        const auto meme = [&](const ReglageUsb& autre) {
            return autre.Vendeur == reglage.Vendeur && autre.Produit == reglage.Produit;
        };
        if (fausses_.empty() && reglage.Vendeur != 0) {
            if (std::none_of(element.reglages.begin(), element.reglages.end(), meme))
                element.reglages.push_back(reglage);
            else
                Refuser(connues[produit].nom, Ecrit(produit), "UsbAttenduAutreProduit");
        }
        element.fausses.insert(element.fausses.end(), fausses_.begin(), fausses_.end());
    }

  private:
    void LireEntree(const QString& nom, const QString& texte) {
        const auto connue = std::find_if(connues.begin(), connues.end(), [&](const auto& une) {
            return nom == QLatin1String(une.nom);
        });
        if (connue == connues.end()) return Refuser(nom, texte, "UsbAttenduEntrees");
        const auto rang = static_cast<std::size_t>(connue - connues.begin());
        if (lues_[rang]) return Refuser(nom, texte, "UsbAttenduUneFois");
        lues_[rang] = true;
        if (texte.isEmpty()) return;
        const auto nombre = NombreUsb(texte);
        if (!nombre || *nombre < connue->mini || *nombre > connue->maxi)
            return Refuser(nom, texte, connue->attendu);
        nombres_[rang] = nombre;
    }

    void Refuser(const QString& nom, const QString& texte, const char* attendu) {
        fausses_.push_back(
            {rang_, Ecrit(vendeur), Ecrit(produit), nom, texte, QString::fromLatin1(attendu)});
    }
    void Refuser(const char* nom, const QString& texte, const char* attendu) {
        Refuser(QString::fromLatin1(nom), texte, attendu);
    }

    QString Ecrit(Rang rang) const {
        for (const auto& [nom, texte] : groupe_.entrees)
            if (nom == QLatin1String(connues[rang].nom)) return texte.trimmed();
        return {};
    }

    ReglageUsb Reglage() const {
        const auto octet = [&](Rang rang) -> std::optional<std::uint8_t> {
            if (!nombres_[rang]) return {};
            return static_cast<std::uint8_t>(*nombres_[rang]);
        };
        return {.Vendeur = static_cast<std::uint16_t>(nombres_[vendeur].value_or(0)),
                .Produit = static_cast<std::uint16_t>(nombres_[produit].value_or(0)),
                .Interface = octet(interface).value_or(0),
                .Sortie = octet(sortie),
                .Entree = octet(entree),
                .Delai = static_cast<int>(nombres_[delai].value_or(ReglageUsb::delaiParDefaut))};
    }

    const GroupeReglages& groupe_;
    int rang_;
    std::array<bool, nombreEntrees> lues_{};
    std::array<std::optional<unsigned>, nombreEntrees> nombres_{};
    std::vector<EntreeUsbFausse> fausses_;
};

QString TexteEntreeFausse(Configuration& configuration, const EntreeUsbFausse& fausse) {
    const QString langue = configuration.LitConfig(QStringLiteral("Langue")).value_or(QString());
    const auto texte = [&](const QString& cle) {
        return configuration.LitMessage(langue, cle, {});
    };
    const auto ecrit = [](const QString& valeur) {
        return valeur.isEmpty() ? QStringLiteral("–") : valeur;
    };
    return texte(QStringLiteral("UsbEntreeFausse")) +
           QStringLiteral("\n\nAppareil %1 (Vendeur %2, Produit %3)\n%4 = %5\n\n")
               .arg(QString::number(fausse.rang), ecrit(fausse.vendeur), ecrit(fausse.produit),
                    fausse.entree, ecrit(fausse.valeur)) +
           texte(QStringLiteral("UsbAttendu")) + QLatin1Char(' ') + texte(fausse.attendu) +
           QStringLiteral("\n\n") + texte(QStringLiteral("UsbSansCetAppareil"));
}

}  // namespace

ElementUsb LireElementUsb(Configuration& configuration) {
    std::vector<GroupeReglages> groupes;
    ignorer([&] { groupes = configuration.LitGroupes(QStringLiteral("Usb")); });
    ElementUsb element;
    int rang = 0;
    for (const GroupeReglages& groupe : groupes) {
        LecteurAppareil lecteur(groupe, ++rang);
        lecteur.Lire();
        lecteur.Ranger(element);
    }
    return element;
}

void SignalerEntreesUsb(Systeme& systeme, Configuration& configuration,
                        const std::vector<EntreeUsbFausse>& fausses) {
    for (const EntreeUsbFausse& fausse : fausses)
        ignorer([&] {
            systeme.dialogues.Boite(Icone::Exclamation, Boutons::Ok, QStringLiteral("BORNIKA"),
                                    TexteEntreeFausse(configuration, fausse));
        });
}

}  // namespace bornika
