#include "usb_kernel/kernel_fixture.h"

#include <QApplication>
#include <QTest>
#include <chrono>
#include <filesystem>
#include <thread>

#include "app/form_events.h"
#include "platform/guard.h"
#include "shell/language_switch.h"

namespace bornika::essai {

namespace {

constexpr std::chrono::seconds patience{60};
// Painting at each round would take most of the time of an emulated machine.
constexpr int toursParAffichage = 50;

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
    : etabli(&usb), ecran(etabli.systeme), ui(*ecran.ui), lien(ecran), poste{ecran, lien} {
    ChangeTextes(ecran, QStringLiteral("English"), true);
    BrancherFormulaire(ecran);
    ecran.etat.Connected = true;
    ecran.etat.UsbID = id;
    ecran.etat.TypekPod = 1;
    ecran.etat.NomKpod = QStringLiteral("k-Pod");
    ui.ProgressBar1->FixerMaximum(ecran.etat.CapaciteMemoire);
    suite.commenter = [this](const QString& texte, const QString& fichier) {
        commentaires << texte << fichier;
    };
    suite.montrer = [this](const QString& fichier) { montres << fichier; };
    brancher(ui.LireValeurs, &QPushButton::clicked, &ecran, [this] { LireValeurs(poste, suite); });
    etabli.respiration.ReglerEvenements([this] {
        ++tours;
        for (const auto& [tour, geste] : gestes_)
            if (tour == tours) geste();
        if (tours % toursParAffichage == 0) QApplication::processEvents();
    });
    ecran.show();
}

void BancPoste::Telecharger() {
    QTest::mouseClick(ui.LireValeurs, Qt::LeftButton);
}

void BancPoste::AuTour(int tour, std::function<void()> geste) {
    gestes_.emplace_back(tour, std::move(geste));
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
           << QStringLiteral("comments: ") + commentaires.join(u'|')
           << QStringLiteral("shown: ") + montres.join(u'|') << QString::fromLatin1(Mesures())
           << QString::fromLatin1(Rejets());
    return lignes.join(u'\n').toStdString();
}

}  // namespace bornika::essai
