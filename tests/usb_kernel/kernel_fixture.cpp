#include "usb_kernel/kernel_fixture.h"

#include <chrono>
#include <filesystem>
#include <thread>

namespace bornika::essai {

namespace {

constexpr std::chrono::seconds patience{60};
// Painting at each round would take most of the time of an emulated machine.
constexpr int toursParAffichage = 50;

QString Joindre(const std::vector<QString>& textes) {
    return QStringList(textes.begin(), textes.end()).join(u'|');
}

template <class Controle, class Lecture>
void Decrire(const MainScreen& ecran, QStringList& lignes, Lecture lire) {
    for (const Controle* controle : ecran.findChildren<Controle*>())
        if (!controle->objectName().startsWith(QStringLiteral("qt_")))
            lignes << controle->objectName() + QStringLiteral(": ") + lire(*controle);
}

}  // namespace

ReglageUsb Reglage(int delai) {
    const FicheUsb fiche;
    ReglageUsb reglage;
    reglage.Vendeur = fiche.vendeur;
    reglage.Produit = fiche.produit;
    reglage.Delai = delai;
    return reglage;
}

FicheUsb Fiche(const std::string& serie) {
    FicheUsb fiche;
    fiche.serie = serie;
    return fiche;
}

bool Attendre(const std::function<bool()>& vrai) {
    const auto fin = std::chrono::steady_clock::now() + patience;
    while (!vrai()) {
        if (std::chrono::steady_clock::now() > fin) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

bool AttendreCompte(InterfaceUsb& usb, int combien) {
    return Attendre([&] { return usb.Compte() == combien; });
}

int AppareilsOuverts() {
    int nombre = 0;
    for (const auto& lien : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code parti;
        const std::string cible = std::filesystem::read_symlink(lien, parti).string();
        if (cible.starts_with("/dev/bus/usb/")) ++nombre;
    }
    return nombre;
}

BancPoste::BancPoste(InterfaceUsb& usb, IdentifiantUsb id)
    : BancTelechargement(usb, QStringLiteral("English"), toursParAffichage) {
    Choisir(id, 1);
    ecran.show();
}

std::string BancPoste::Portrait() const {
    QStringList lignes;
    Decrire<QLabel>(ecran, lignes, [](const QLabel& controle) { return controle.text(); });
    Decrire<QLineEdit>(ecran, lignes, [](const QLineEdit& controle) { return controle.text(); });
    Decrire<QComboBox>(ecran, lignes,
                       [](const QComboBox& controle) { return controle.currentText(); });
    Decrire<QAbstractButton>(ecran, lignes, [](const QAbstractButton& controle) {
        return controle.text() + (controle.isChecked() ? QStringLiteral(" on") : QString());
    });
    Decrire<QProgressBar>(ecran, lignes, [](const QProgressBar& controle) {
        return QString::number(controle.value());
    });
    Decrire<QDateTimeEdit>(ecran, lignes, [](const QDateTimeEdit& controle) {
        return controle.dateTime().toString(Qt::ISODate);
    });
    return (lignes.join(u'\n') + u'\n' + ecran.etat.Rapport).toStdString();
}

std::string BancPoste::Bilan() const {
    QStringList lignes;
    for (const auto& boite : etabli.dialogues.Boites())
        lignes << QStringLiteral("box %1, ").arg(static_cast<int>(boite.icone)) + boite.titre +
                      QStringLiteral(": ") + boite.texte;
    lignes << QStringLiteral("lost: %1").arg(ecran.etat.TimeOut)
           << QStringLiteral("reading: %1").arg(ecran.etat.EnLecture)
           << QStringLiteral("rounds: %1").arg(tours)
           << QStringLiteral("comments: ") + Joindre(commentaires)
           << QStringLiteral("shown: ") + Joindre(montres) << QString::fromLatin1(Mesures())
           << QString::fromLatin1(Rejets());
    return lignes.join(u'\n').toStdString();
}

}  // namespace bornika::essai
