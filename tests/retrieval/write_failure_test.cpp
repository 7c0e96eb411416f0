#include "retrieval/write_failure.h"

#include <gtest/gtest.h>

namespace bornika::essai {

TEST(EchecEcriture, IsNoneAsLongAsAllStatementsRunToTheirEnd) {
    EchecEcriture echec;
    int faites = 0;
    echec.Garder([&] { ++faites; });
    echec.Garder([&] { ++faites; });
    EXPECT_EQ(faites, 2);
    EXPECT_FALSE(echec.EstSurvenu());
    EXPECT_EQ(echec.Texte(), std::nullopt);
}

TEST(EchecEcriture, IsTheFirstOneAndLaterStatementsStillRun) {
    EchecEcriture echec;
    int faites = 0;
    echec.Garder([] { throw FauteExecution(61, QStringLiteral("a.txt : full")); });
    echec.Garder([&] {
        ++faites;
        throw FauteExecution(70, QStringLiteral("a.err : denied"));
    });
    echec.Garder([&] { ++faites; });
    EXPECT_EQ(faites, 2);
    EXPECT_TRUE(echec.EstSurvenu());
    EXPECT_EQ(echec.Texte(), QStringLiteral("a.txt : full"));
}

TEST(EchecEcriture, WithoutATextIsOneToo) {
    EchecEcriture echec;
    echec.Garder([] { throw FauteExecution(61, QString()); });
    EXPECT_TRUE(echec.EstSurvenu());
}

}  // namespace bornika::essai
