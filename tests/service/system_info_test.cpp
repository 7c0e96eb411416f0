#include "service/system_info.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <map>

#include "support/fake_system.h"

namespace bornika::essai {
namespace {

const QString cleOutil = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO\\PATH");
const QString cleDossier = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location\\MSINFO");
const QString outilDuDossier = QStringLiteral("C:\\Outils\\MSINFO32.EXE");

class RegistreEssai : public RegistreMachine {
  public:
    std::optional<QString> GetKeyValue(const QString& cle, const QString& valeur) override {
        const QString entiere = cle + QLatin1Char('\\') + valeur;
        demandes += entiere;
        const auto trouvee = valeurs.find(entiere);
        return trouvee == valeurs.end() ? std::nullopt : std::optional(trouvee->second);
    }
    bool FichierPresent(const QString& chemin) override { return fichiers.contains(chemin); }

    std::map<QString, QString> valeurs;
    QStringList fichiers;
    QStringList demandes;
};

struct Programme_ : ProgrammeExterne {
    bool EnCours() override { return false; }
};

struct InfoSysteme : testing::Test {
    RegistreEssai registre;
    DialoguesNotes dialogues;
    QStringList lances;
    bool part = true;

    void Demarrer() {
        StartSysInfo(registre, dialogues, [this](const QString& programme, const QString&) {
            lances += programme;
            return part ? std::make_unique<Programme_>() : nullptr;
        });
    }
    void AttendreIndisponible() {
        ASSERT_EQ(dialogues.Boites().size(), 1U);
        EXPECT_EQ(dialogues.Boites()[0].icone, Icone::Aucune);
        EXPECT_EQ(dialogues.Boites()[0].titre, QString());
        EXPECT_EQ(dialogues.Boites()[0].texte,
                  QStringLiteral("System Information Is Unavailable At This Time"));
    }
};

TEST_F(InfoSysteme, StartsTheToolOfItsOwnKeyAndLooksNoFurther) {
    registre.valeurs = {{cleOutil, QStringLiteral("C:\\info.exe")},
                        {cleDossier, QStringLiteral("C:\\Outils")}};
    Demarrer();
    EXPECT_EQ(lances, QStringList{QStringLiteral("C:\\info.exe")});
    EXPECT_EQ(registre.demandes, QStringList{cleOutil});
    EXPECT_TRUE(dialogues.Boites().empty());
}

TEST_F(InfoSysteme, WithoutThatTakesTheToolFromTheCommonFolder) {
    registre.valeurs = {{cleDossier, QStringLiteral("C:\\Outils")}};
    registre.fichiers = {outilDuDossier};
    Demarrer();
    EXPECT_EQ(lances, QStringList{outilDuDossier});
    EXPECT_EQ(registre.demandes, QStringList({cleOutil, cleDossier}));
    EXPECT_TRUE(dialogues.Boites().empty());
}

TEST_F(InfoSysteme, IsUnavailableWhenTheCommonFolderDoesNotHaveTheTool) {
    registre.valeurs = {{cleDossier, QStringLiteral("C:\\Outils")}};
    Demarrer();
    EXPECT_TRUE(lances.isEmpty());
    AttendreIndisponible();
}

TEST_F(InfoSysteme, IsUnavailableWithoutAnyKey) {
    Demarrer();
    EXPECT_EQ(registre.demandes, QStringList({cleOutil, cleDossier}));
    EXPECT_TRUE(lances.isEmpty());
    AttendreIndisponible();
}

TEST_F(InfoSysteme, IsUnavailableWhenTheToolDoesNotStart) {
    registre.valeurs = {{cleOutil, QStringLiteral("C:\\info.exe")}};
    part = false;
    Demarrer();
    EXPECT_EQ(lances.size(), 1);
    AttendreIndisponible();
}

TEST(SansRegistre, HasNoValueOfAnyKeyAndKnowsTheFilesOfTheMachine) {
    Etabli etabli;
    SansRegistre registre;
    EXPECT_EQ(registre.GetKeyValue(QStringLiteral("SOFTWARE"), QStringLiteral("PATH")),
              std::nullopt);
    EXPECT_TRUE(registre.FichierPresent(etabli.Chemin(QStringLiteral("config.xml"))));
    EXPECT_FALSE(registre.FichierPresent(etabli.Chemin(QStringLiteral("absent"))));
    EXPECT_FALSE(registre.FichierPresent(etabli.systeme.dossier));
}

}  // namespace
}  // namespace bornika::essai
