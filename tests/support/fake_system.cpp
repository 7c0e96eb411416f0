#include "support/fake_system.h"

#include <QDir>
#include <QFile>

#include "platform/guard.h"

namespace bornika::essai {

Etabli::Etabli(InterfaceUsb* usb, const QString& sousDossier)
    : systeme{horloge,     dialogues,  usb ? *usb : usbVide,
              respiration, Regional{}, QDir(dossier.path()).filePath(sousDossier)} {
    QDir().mkpath(systeme.dossier);
    respiration.ReglerPas(std::chrono::milliseconds(0));
    const QDir ressources(QStringLiteral(BORNIKA_RESOURCES));
    for (const char* nom : {"config.xml", "BORNIKA.TEE"}) {
        const QString fichier = QString::fromLatin1(nom);
        if (QFile::copy(ressources.filePath(fichier), Chemin(fichier)))
            QFile::setPermissions(Chemin(fichier), QFile::ReadOwner | QFile::WriteOwner);
    }
    InstallerTraitementFaute(
        [this](const FauteExecution& faute) { fautes.push_back(faute.numero()); });
}

Etabli::~Etabli() {
    InstallerTraitementFaute({});
}

QByteArray Etabli::Lire(const QString& nom) const {
    QFile fichier(Chemin(nom));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Etabli::Ecrire(const QString& nom, const QByteArray& contenu) const {
    QFile fichier(Chemin(nom));
    if (!fichier.open(QIODevice::WriteOnly)) qFatal("cannot write a test file");
    fichier.write(contenu);
}

QStringList Etabli::Fichiers() const {
    return QDir(systeme.dossier).entryList(QDir::Files, QDir::Name);
}

}  // namespace bornika::essai
