#include "settings/text_catalogue.h"

#include "settings/config_store_support.h"

namespace bornika::essai {
namespace {

const QString ordinaire = QStringLiteral("/opt/bornika");
const QString z907 = QStringLiteral("/opt/Z907/bin");

QString Absent(Reglages& r, const QString& dossier, int type) {
    return Message(r.configuration, dossier, francais, q("k-Pod Absent"), type, {});
}

TEST(Message, TypeOneOutsideTheZ907FolderLeavesTheNameUnchanged) {
    Reglages r;
    EXPECT_EQ(Absent(r, ordinaire, 1), q("k-Pod absent"));
}

TEST(Message, OtherTypesLeaveTheTextAsItStands) {
    Reglages r;
    for (const int type : {0, 5, 14, 18, 21, -1})
        EXPECT_EQ(Absent(r, z907, type), q("k-Pod absent"));
}

TEST(Message, NamesOfBothEditionsReplaceTheModelsName) {
    Reglages r;
    EXPECT_EQ(Absent(r, z907, 1), q("Z907PT absent"));
    for (const int type : {19, 20}) {
        EXPECT_EQ(Absent(r, ordinaire, type), q("k-Pod 33 absent"));
        EXPECT_EQ(Absent(r, z907, type), q("Z907FPT absent"));
    }
}

TEST(Message, EveryOccurrenceIsReplacedOnceAndOtherCasesAreNot) {
    Reglages r;
    r.Retoucher("<Texte>k-Pod absent", "<Texte>k-Pod, k-Podk-Pod, k-pod, K-POD");
    EXPECT_EQ(Absent(r, ordinaire, 20), q("k-Pod 33, k-Pod 33k-Pod 33, k-pod, K-POD"));
}

TEST(Message, NameStandsOnlyInTheTextNeverInTheKey) {
    Reglages r;
    EXPECT_EQ(Message(r.configuration, ordinaire, francais, q("Mon k-Pod"), 20, {}), QString());
    EXPECT_TRUE(r.Fichier().contains("<Cle>Mon k-Pod</Cle>"));
    EXPECT_EQ(Message(r.configuration, ordinaire, francais, q("Mon k-Pod"), 20, {}),
              q("Mon k-Pod 33"));
}

TEST(DrapeauProduit, LooksForTheEditionInTheFoldersPathInThisCase) {
    EXPECT_TRUE(DrapeauProduit(z907));
    EXPECT_TRUE(DrapeauProduit(q("/home/x/myZ907copy")));
    EXPECT_FALSE(DrapeauProduit(q("/opt/z907")));
    EXPECT_FALSE(DrapeauProduit(ordinaire));
}

}  // namespace
}  // namespace bornika::essai
