// Each operation sees the file as it stands, although unchanged bytes are not parsed twice.

#include <gtest/gtest.h>

#include <QFile>

#include "platform/fault.h"
#include "settings/config_store.h"
#include "support/fake_system.h"

namespace bornika {
namespace {

using essai::Etabli;

const QString fichier = QStringLiteral("config.xml");

TEST(ConfigurationReload, AChangeOfTheSameLengthMadeByHandIsSeenByTheNextOperation) {
    Etabli etabli;
    Configuration configuration(etabli.systeme.dossier);
    EXPECT_EQ(configuration.LitConfig(QStringLiteral("Taille")), QStringLiteral("4"));
    QByteArray texte = etabli.Lire(fichier);
    etabli.Ecrire(fichier, texte.replace("<Taille>4<", "<Taille>2<"));
    EXPECT_EQ(configuration.LitConfig(QStringLiteral("Taille")), QStringLiteral("2"));
}

TEST(ConfigurationReload, AFileThatVanishesBetweenTwoOperationsIsAFaultAndItsReturnRepairsAll) {
    Etabli etabli;
    Configuration configuration(etabli.systeme.dossier);
    const QByteArray texte = etabli.Lire(fichier);
    configuration.LitConfig(QStringLiteral("Taille"));
    QFile::remove(etabli.Chemin(fichier));
    EXPECT_THROW(configuration.LitConfig(QStringLiteral("Taille")), FauteExecution);
    EXPECT_THROW(configuration.LitConfig(QStringLiteral("Taille")), FauteExecution);
    etabli.Ecrire(fichier, texte);
    EXPECT_EQ(configuration.LitConfig(QStringLiteral("Taille")), QStringLiteral("4"));
}

TEST(ConfigurationReload, AnEntryThatWasAddedButNotSavedIsGoneAtTheNextOperation) {
    Etabli etabli;
    etabli.Ecrire(fichier, R"(<Configuration><Messages>
<Langue NOM="A"><E><C>x</C><T>first</T></E></Langue>
<Langue NOM="A"><E><C>y</C><T>second</T></E></Langue>
</Messages></Configuration>)");
    Configuration configuration(etabli.systeme.dossier);
    const QByteArray avant = etabli.Lire(fichier);
    // Missing in the first element, found in the second: the entry just added to the first is lost.
    EXPECT_EQ(configuration.LitMessage(QStringLiteral("A"), QStringLiteral("y"), {}),
              QStringLiteral("second"));
    EXPECT_EQ(etabli.Lire(fichier), avant);
    EXPECT_EQ(configuration.LitMessage(QStringLiteral("A"), QStringLiteral("y"), {}),
              QStringLiteral("second"));
}

TEST(ConfigurationReload, EveryOperationCountsAsALoad) {
    Etabli etabli;
    Configuration configuration(etabli.systeme.dossier);
    const auto avant = configuration.NombreChargements();
    configuration.LitSplash();
    configuration.LitMaintenance();
    configuration.LitMessage(QStringLiteral("English"), QStringLiteral("Lire"), {});
    EXPECT_EQ(configuration.NombreChargements(), avant + 3);
}

}  // namespace
}  // namespace bornika
