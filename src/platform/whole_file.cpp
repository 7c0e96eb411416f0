#include "platform/whole_file.h"

#include "platform/fault.h"

namespace bornika {

bool FichierExiste(const QString& chemin) {
    return QFile::exists(chemin);
}

std::optional<QByteArray> LireTout(const QString& chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) return {};
    return fichier.readAll();
}

bool CopierFichier(const QString& source, const QString& cible) {
    return QFile::copy(source, cible);
}

void EffacerFichier(const QString& chemin) {
    if (!FichierExiste(chemin)) LeverFaute(numero_faute::fichierIntrouvable);
    if (!QFile::remove(chemin)) LeverFaute(numero_faute::accesRefuse);
}

FichierParMorceaux::FichierParMorceaux(const QString& chemin) : fichier_(chemin) {
    if (fichier_.open(QIODevice::ReadOnly)) return;
    LeverFaute(fichier_.exists() ? numero_faute::accesRefuse : numero_faute::fichierIntrouvable);
}

QByteArray FichierParMorceaux::Lire(qint64 taille) {
    QByteArray morceau = fichier_.read(taille);
    if (fichier_.error() != QFileDevice::NoError) LeverFaute(numero_faute::accesRefuse);
    return morceau;
}

}  // namespace bornika
