// The build step that puts the delivered files beside the programs, as the process that it is.

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace bornika {
namespace {

const QString ressources = QStringLiteral(BORNIKA_RESOURCES);

QByteArray Contenu(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Ecrire(const QString& chemin, const QByteArray& octets) {
    QFile fichier(chemin);
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write(octets);
}

int Livrer(const QString& cible) {
    return QProcess::execute(QStringLiteral(BORNIKA_DELIVER), {ressources, cible});
}

TEST(Delivery, AFreshFolderGetsTheDeliveredFiles) {
    QTemporaryDir dossier;
    ASSERT_EQ(Livrer(dossier.path()), 0);
    for (const char* nom : {"config.xml", "BORNIKA.TEE"}) {
        const QByteArray octets = Contenu(dossier.filePath(QLatin1String(nom)));
        EXPECT_FALSE(octets.isEmpty());
        EXPECT_EQ(octets, Contenu(ressources + QLatin1Char('/') + QLatin1String(nom)));
    }
}

TEST(Delivery, RebuildingLeavesAUsedConfigurationAndAChangedTemplateAsTheyAre) {
    QTemporaryDir dossier;
    ASSERT_EQ(Livrer(dossier.path()), 0);
    const QString configuration = dossier.filePath(QStringLiteral("config.xml"));
    const QByteArray utilisee =
        Contenu(configuration).replace("<Taille>4</Taille>", "<Taille>2</Taille>");
    Ecrire(configuration, utilisee);
    Ecrire(dossier.filePath(QStringLiteral("BORNIKA.TEE")), "mine");
    ASSERT_EQ(Livrer(dossier.path()), 0);
    EXPECT_TRUE(utilisee.contains("<Taille>2</Taille>"));
    EXPECT_EQ(Contenu(configuration), utilisee);
    EXPECT_EQ(Contenu(dossier.filePath(QStringLiteral("BORNIKA.TEE"))), QByteArray("mine"));
}

TEST(Delivery, RebuildingAddsATextThatAUsedConfigurationLacks) {
    QTemporaryDir dossier;
    ASSERT_EQ(Livrer(dossier.path()), 0);
    const QString configuration = dossier.filePath(QStringLiteral("config.xml"));
    QByteArray utilisee = Contenu(configuration);
    utilisee.replace("<Cle>Lire</Cle>", "<Cle>MINE</Cle>");
    Ecrire(configuration, utilisee);
    ASSERT_EQ(Livrer(dossier.path()), 0);
    const QByteArray fusion = Contenu(configuration);
    EXPECT_EQ(fusion.count("<Cle>MINE</Cle>"), 2);
    EXPECT_EQ(fusion.count("<Cle>Lire</Cle>"), 2);
}

TEST(Delivery, AFolderThatIsNotThereIsAFailureOfTheBuild) {
    EXPECT_EQ(Livrer(QStringLiteral("/proc/none")), 1);
}

}  // namespace
}  // namespace bornika
