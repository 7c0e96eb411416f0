// The udev rule and the script that installs it, as the process that it is. What udev itself makes
// of the rule is asked where udev, umockdev and namespaces are at hand.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <utility>

namespace bornika {
namespace {

const QString paquet = QStringLiteral(BORNIKA_SOURCE_DIR "/packaging/");
const QString nomRegle = QStringLiteral("60-bornika.rules");

QString Contenu(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

QStringList Regles(const QString& contenu) {
    QStringList regles;
    for (const QString& ligne : contenu.split(u'\n'))
        if (!ligne.trimmed().isEmpty() && !ligne.startsWith(u'#')) regles << ligne;
    return regles;
}

/// "vendor:product" of each rule.
QStringList Numeros(const QString& contenu) {
    static const QRegularExpression forme(
        QStringLiteral("ATTR\\{idVendor\\}==\"(.*?)\", ATTR\\{idProduct\\}==\"(.*?)\""));
    QStringList numeros;
    for (const QString& regle : Regles(contenu)) {
        const auto trouve = forme.match(regle);
        numeros << trouve.captured(1) + u':' + trouve.captured(2);
    }
    return numeros;
}

QString Appareil(const char* vendeur, const char* produit) {
    return QStringLiteral(
               "<Appareil><Vendeur>%1</Vendeur><Produit>%2</Produit>"
               "<Interface>0</Interface></Appareil>")
        .arg(QLatin1String(vendeur), QLatin1String(produit));
}

struct InstallUdevRule : testing::Test {
    /// Runs the script on a configuration that holds `usb` in its element Usb.
    int Installer(const QString& usb) {
        return InstallerTexte(
            QStringLiteral("<Configuration><Langue>English</Langue><Usb>%1</Usb></Configuration>")
                .arg(usb));
    }
    int InstallerTexte(const QString& texte) {
        QFile fichier(dossier.filePath(QStringLiteral("config.xml")));
        EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(texte.toUtf8());
        fichier.close();
        return Lancer({fichier.fileName(), Cible()});
    }
    int Lancer(const QStringList& arguments) {
        QProcess processus;
        processus.start(paquet + QStringLiteral("install-udev-rule"), arguments);
        EXPECT_TRUE(processus.waitForFinished());
        plainte = QString::fromUtf8(processus.readAllStandardError());
        return processus.exitCode();
    }
    QString Cible() const { return dossier.filePath(QStringLiteral("rules.d")); }
    QString Installee() const { return Contenu(Cible() + u'/' + nomRegle); }
    QStringList Fichiers() const {
        return QDir(Cible()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    void SetUp() override { ASSERT_TRUE(QDir().mkdir(Cible())); }

    QTemporaryDir dossier;
    QString plainte;
};

/// A rule in the grammar of udev: keys of a device with their operators, then what they do.
bool EstUneRegle(const QString& ligne) {
    static const QRegularExpression forme(QStringLiteral(
        "^(ACTION|SUBSYSTEM|ENV\\{[A-Z_]+\\}|ATTR\\{[A-Za-z]+\\})(==|!=)\"[^\"]*\"(, "
        "(ACTION|SUBSYSTEM|ENV\\{[A-Z_]+\\}|ATTR\\{[A-Za-z]+\\})(==|!=)\"[^\"]*\")*, "
        "TAG\\+=\"uaccess\"$"));
    return forme.match(ligne).hasMatch();
}

/// What udev makes of a plugged-in device with the rules of a folder in the place of the system's:
/// in a namespace of its own, so that nothing of this machine changes. Empty where that is refused.
QByteArray AvisDeUdev(const QString& regles, const QString& appareil) {
    QProcess processus;
    processus.setProcessChannelMode(QProcess::MergedChannels);
    processus.start(QStringLiteral("unshare"),
                    {QStringLiteral("-rm"), QStringLiteral("sh"), QStringLiteral("-c"),
                     QStringLiteral("mount --bind \"$1\" /etc/udev/rules.d || exit 0\n"
                                    "mount -t tmpfs tmpfs /run || exit 0\n"
                                    "umockdev-run -d \"$2\" -- udevadm test "
                                    "/sys/devices/pci0000:00/usb1/1-2"),
                     QStringLiteral("sh"), regles, appareil});
    if (!processus.waitForFinished()) return {};
    const QByteArray avis = processus.readAll();
    return avis.contains("60-bornika.rules") ? avis : QByteArray();
}

TEST(UdevRule, RunsBeforeTheSystemsOwnRulesThatGiveTheAccess) {
    EXPECT_TRUE(QFile::exists(paquet + nomRegle));
    EXPECT_LT(nomRegle.left(2).toInt(), 71);
}

TEST(UdevRule, IsOneOfTheGrammarAndFitsNoLoggerUntilItsNumbersAreEntered) {
    const QString contenu = Contenu(paquet + nomRegle);
    ASSERT_EQ(Regles(contenu).size(), 1);
    EXPECT_TRUE(EstUneRegle(Regles(contenu).first())) << Regles(contenu).first().toStdString();
    EXPECT_EQ(Numeros(contenu), QStringList{QStringLiteral("0000:0000")});
    EXPECT_FALSE(EstUneRegle(QStringLiteral("SUBSYSTEM=\"usb\", TAG+=\"uaccess\"")));
}

TEST_F(InstallUdevRule, WritesOneRuleAProductWithItsNumbers) {
    ASSERT_EQ(Installer(Appareil("0x12AB", "0x00cd") + Appareil("0x12ab", "0x00ce")), 0)
        << plainte.toStdString();
    EXPECT_EQ(Numeros(Installee()),
              QStringList({QStringLiteral("12ab:00cd"), QStringLiteral("12ab:00ce")}));
    for (const QString& regle : Regles(Installee()))
        EXPECT_TRUE(EstUneRegle(regle)) << regle.toStdString();
    EXPECT_EQ(Fichiers(), QStringList{nomRegle});
}

TEST_F(InstallUdevRule, ReadsNumbersInEitherNotation) {
    ASSERT_EQ(Installer(Appareil("0X1", "65535") + Appareil("01027", "0x0000ffff")), 0);
    EXPECT_EQ(Numeros(Installee()),
              QStringList({QStringLiteral("0001:ffff"), QStringLiteral("0403:ffff")}));
}

TEST_F(InstallUdevRule, ReadsTheElementHoweverItIsLaidOut) {
    ASSERT_EQ(
        InstallerTexte(QStringLiteral(
            "<Configuration>\r\n<!-- <Usb><Appareil><Vendeur>0x9</Vendeur>"
            "<Produit>0x9</Produit></Appareil></Usb> -->\r\n<Vendeur>0x8</Vendeur>\r\n"
            "<Usb >\r\n\t<!-- first -->\r\n\t<Appareil>\r\n\t\t<Vendeur>\r\n0x1234 </Vendeur>\r\n"
            "<Produit>0x5678</Produit></Appareil></Usb><Appareil><Vendeur>0x7</Vendeur>"
            "<Produit>0x7</Produit></Appareil></Configuration>")),
        0);
    EXPECT_EQ(Numeros(Installee()), QStringList{QStringLiteral("1234:5678")});
}

TEST_F(InstallUdevRule, KeepsWhatTheRuleSaysAboutItself) {
    ASSERT_EQ(Installer(Appareil("1", "2")), 0);
    EXPECT_TRUE(Installee().startsWith(Contenu(paquet + nomRegle).section(u'\n', 0, 2)));
    EXPECT_EQ(QFileInfo(Cible() + u'/' + nomRegle).permissions() & QFile::ReadOther,
              QFile::ReadOther);
}

TEST_F(InstallUdevRule, ReplacesItsOwnRuleAndNothingElse) {
    QFile autre(Cible() + QStringLiteral("/99-mine.rules"));
    ASSERT_TRUE(autre.open(QIODevice::WriteOnly));
    autre.write("# mine\n");
    autre.close();
    ASSERT_EQ(Installer(Appareil("1", "2")), 0);
    ASSERT_EQ(Installer(Appareil("3", "4")), 0);
    EXPECT_EQ(Numeros(Installee()), QStringList{QStringLiteral("0003:0004")});
    EXPECT_EQ(Contenu(autre.fileName()), QStringLiteral("# mine\n"));
    EXPECT_EQ(Fichiers(), QStringList({nomRegle, QStringLiteral("99-mine.rules")}));
}

TEST_F(InstallUdevRule, SaysWhereTheNumbersAreEnteredWhileThereAreNone) {
    for (const QString& usb : {QString(), Appareil("0x0000", "0x0000"), Appareil("0", "7"),
                               Appareil("", ""), QStringLiteral("<Appareil></Appareil>")}) {
        EXPECT_EQ(Installer(usb), 1);
        EXPECT_TRUE(plainte.contains(QStringLiteral("element Usb of ") +
                                     dossier.filePath(QStringLiteral("config.xml"))))
            << plainte.toStdString();
        EXPECT_TRUE(Fichiers().empty());
    }
}

TEST_F(InstallUdevRule, WritesNothingForAWrongNumberAndNamesIt) {
    ASSERT_EQ(Installer(Appareil("1", "2")), 0);
    const QString avant = Installee();
    for (const char* faux : {"0x12345", "65536", "99999999999", "0x", "12ab", "-1", "0x1\"; x",
                             "$(id)", "1*", "?", "08x", "0x1g"}) {
        EXPECT_EQ(Installer(Appareil("5", "6") + Appareil(faux, "2")), 1) << faux;
        EXPECT_TRUE(plainte.contains(QStringLiteral("Vendeur"))) << plainte.toStdString();
        EXPECT_EQ(Installer(Appareil("5", faux)), 1) << faux;
        EXPECT_TRUE(plainte.contains(QStringLiteral("Produit"))) << plainte.toStdString();
        EXPECT_EQ(Installee(), avant) << faux;
    }
}

TEST_F(InstallUdevRule, WritesNothingWhereTheProductNumberIsMissing) {
    EXPECT_EQ(Installer(Appareil("1", "")), 1);
    EXPECT_EQ(Installer(QStringLiteral("<Appareil><Vendeur>1</Vendeur></Appareil>")), 1);
    EXPECT_TRUE(Fichiers().empty());
}

TEST_F(InstallUdevRule, TakesTheDeliveredConfigurationOnceItsNumbersAreEntered) {
    QString livree = Contenu(QStringLiteral(BORNIKA_SOURCE_DIR "/resources/config.xml"));
    EXPECT_EQ(InstallerTexte(livree), 1);
    livree.replace(QStringLiteral("<Vendeur>0x0000<"), QStringLiteral("<Vendeur>0x1234<"));
    livree.replace(QStringLiteral("<Produit>0x0000<"), QStringLiteral("<Produit>0xABCD<"));
    ASSERT_EQ(InstallerTexte(livree), 0) << plainte.toStdString();
    EXPECT_EQ(Numeros(Installee()), QStringList{QStringLiteral("1234:abcd")});
}

TEST_F(InstallUdevRule, TellsOfAConfigurationOrAFolderThatIsNotThere) {
    EXPECT_EQ(Lancer({dossier.filePath(QStringLiteral("none.xml")), Cible()}), 1);
    EXPECT_TRUE(plainte.contains(QStringLiteral("none.xml")));
    ASSERT_EQ(Installer(Appareil("1", "2")), 0);
    EXPECT_EQ(Lancer({dossier.filePath(QStringLiteral("config.xml")),
                      dossier.filePath(QStringLiteral("nowhere"))}),
              1);
    EXPECT_TRUE(plainte.contains(QStringLiteral("root")));
}

TEST_F(InstallUdevRule, GivesTheTagToTheLoggerAndToNothingElseAsUdevItselfUnderstandsIt) {
    const QString appareil = dossier.filePath(QStringLiteral("device.umockdev"));
    QFile fichier(appareil);
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write(
        "P: /devices/pci0000:00/usb1/1-2\nN: bus/usb/001/002\nE: DEVTYPE=usb_device\n"
        "E: SUBSYSTEM=usb\nA: idVendor=12ab\nA: idProduct=00cd\n");
    fichier.close();
    for (const auto& [produit, autorise] : {std::pair{"0x00cd", true}, {"0x00ce", false}}) {
        ASSERT_EQ(Installer(Appareil("0x12AB", produit)), 0);
        const QByteArray avis = AvisDeUdev(Cible(), appareil);
        if (avis.isEmpty()) GTEST_SKIP() << "udev, umockdev or the right to a namespace is missing";
        EXPECT_EQ(avis.contains(":uaccess:"), autorise) << avis.constData();
        EXPECT_FALSE(avis.contains("60-bornika.rules:")) << avis.constData();
    }
}

TEST_F(InstallUdevRule, TakesTheConfigurationBesideItByDefault) {
    for (const QString& nom : {nomRegle, QStringLiteral("install-udev-rule")})
        ASSERT_TRUE(QFile::copy(paquet + nom, dossier.filePath(nom)));
    ASSERT_EQ(Installer(Appareil("9", "10")), 0);
    ASSERT_TRUE(QFile::remove(Cible() + u'/' + nomRegle));
    QProcess processus;
    processus.start(dossier.filePath(QStringLiteral("install-udev-rule")), {QString(), Cible()});
    ASSERT_TRUE(processus.waitForFinished());
    EXPECT_EQ(processus.exitCode(), 0);
    EXPECT_EQ(Numeros(Installee()), QStringList{QStringLiteral("0009:000a")});
}

}  // namespace
}  // namespace bornika
