#include "platform/disk_write.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>

#include "support/limits.h"

namespace bornika::essai {
namespace {

struct EcritureDisque : testing::Test {
    QTemporaryDir dossier;
    QByteArray chemin = QFile::encodeName(dossier.filePath(QStringLiteral("a")));
    int descripteur = ::open(chemin.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);

    ~EcritureDisque() override { ::close(descripteur); }
    QByteArray Lire() const {
        QFile fichier(QFile::decodeName(chemin));
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("?");
    }
};

TEST_F(EcritureDisque, WritesAllAndCountsItOnTopOfWhatWasCounted) {
    qsizetype ecrits = 10;
    EXPECT_EQ(EcrireTout(descripteur, QByteArray("a\0b", 3), ecrits), 0);
    EXPECT_EQ(ecrits, 13);
    EXPECT_EQ(EcrireTout(descripteur, QByteArrayView(), ecrits), 0);
    EXPECT_EQ(ecrits, 13);
    EXPECT_EQ(Lire(), QByteArray("a\0b", 3));
}

TEST_F(EcritureDisque, TellsHowFarAWriteCameThatFailed) {
    qsizetype ecrits = 0;
    {
        const TailleLimitee limite(4);
        EXPECT_EQ(EcrireTout(descripteur, "123456", ecrits), EFBIG);
    }
    EXPECT_EQ(ecrits, 4);
    EXPECT_EQ(Lire(), "1234");
}

TEST_F(EcritureDisque, SynchronisesAFileAndExcusesWhatIsNone) {
    EXPECT_EQ(Synchroniser(descripteur), 0);
    int bouts[2];
    ASSERT_EQ(::pipe(bouts), 0);
    EXPECT_EQ(Synchroniser(bouts[1]), 0);
    ::close(bouts[0]);
    ::close(bouts[1]);
    EXPECT_EQ(Synchroniser(-1), EBADF);
}

}  // namespace
}  // namespace bornika::essai
