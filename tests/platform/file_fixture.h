#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace bornika::essai {

/// A folder of its own, with files by their names.
class DossierDEssai : public testing::Test {
  protected:
    QString Chemin(const char* nom) const { return dossier.filePath(QString::fromLatin1(nom)); }
    static QByteArray Lire(const QString& chemin) {
        QFile fichier(chemin);
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("missing");
    }
    static void Poser(const QString& chemin, const QByteArray& contenu) {
        QFile fichier(chemin);
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }

    QTemporaryDir dossier;
};

}  // namespace bornika::essai
