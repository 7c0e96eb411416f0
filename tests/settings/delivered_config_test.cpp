#include <gtest/gtest.h>

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>
#include <algorithm>
#include <map>
#include <vector>

#include "settings/catalogue_keys.h"
#include "settings/usb_element.h"
#include "shell/help_mode.h"
#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

// The configuration file as it is delivered: what every operation takes for granted about it.
namespace bornika::essai {

namespace {

struct Ligne {
    QString texte;
    QString index;
    QString valeur;
    QString maxi;
};
using Liste = std::vector<Ligne>;

struct Livree {
    std::map<QString, QString> reglages;
    std::vector<std::pair<QString, std::vector<std::pair<QString, QString>>>> appareils;
    std::vector<QString> languesListes;
    std::map<QString, std::map<QString, Liste>> listes;
    std::vector<QString> languesMessages;
    std::map<QString, std::vector<std::pair<QString, QString>>> messages;
};

/// Texts of the children of the present element; a child with children of its own is a fault.
std::vector<std::pair<QString, QString>> Enfants(QXmlStreamReader& xml) {
    std::vector<std::pair<QString, QString>> enfants;
    while (xml.readNextStartElement()) {
        const QString nom = xml.name().toString();
        enfants.emplace_back(nom, xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement));
    }
    return enfants;
}

void LireListes(QXmlStreamReader& xml, Livree& livree) {
    while (xml.readNextStartElement()) {
        EXPECT_EQ(xml.name(), QLatin1String("Langue"));
        const QString langue = xml.attributes().value(QLatin1String("NOM")).toString();
        livree.languesListes.push_back(langue);
        while (xml.readNextStartElement()) {
            Liste& liste = livree.listes[langue][xml.name().toString()];
            while (xml.readNextStartElement()) {
                EXPECT_EQ(xml.name(), QLatin1String("Ligne"));
                const auto enfants = Enfants(xml);
                ASSERT_GE(enfants.size(), 3U);
                EXPECT_EQ(enfants[1].first, QStringLiteral("Index"));
                liste.push_back({enfants[0].second, enfants[1].second, enfants[2].second,
                                 enfants.size() > 3 ? enfants[3].second : QString()});
            }
        }
    }
}

void LireMessages(QXmlStreamReader& xml, Livree& livree) {
    while (xml.readNextStartElement()) {
        const QString langue = xml.attributes().value(QLatin1String("NOM")).toString();
        livree.languesMessages.push_back(langue);
        while (xml.readNextStartElement()) {
            const auto enfants = Enfants(xml);
            ASSERT_EQ(enfants.size(), 2U);
            // One shape for all: a new entry is a copy of the first.
            EXPECT_EQ(enfants[0].first, QStringLiteral("Cle"));
            EXPECT_EQ(enfants[1].first, QStringLiteral("Texte"));
            livree.messages[langue].emplace_back(enfants[0].second, enfants[1].second);
        }
    }
}

void LireUsb(QXmlStreamReader& xml, Livree& livree) {
    while (xml.readNextStartElement())
        livree.appareils.push_back({xml.name().toString(), Enfants(xml)});
}

Livree Lire() {
    Livree livree;
    QFile fichier(QStringLiteral(BORNIKA_RESOURCES "/config.xml"));
    EXPECT_TRUE(fichier.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&fichier);
    xml.readNextStartElement();
    EXPECT_EQ(xml.name(), QLatin1String("Configuration"));
    while (xml.readNextStartElement()) {
        const QString nom = xml.name().toString();
        if (nom == QLatin1String("Listes"))
            LireListes(xml, livree);
        else if (nom == QLatin1String("Messages"))
            LireMessages(xml, livree);
        else if (nom == QLatin1String("Usb"))
            LireUsb(xml, livree);
        else
            livree.reglages[nom] = xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return livree;
}

struct DeliveredConfig : testing::Test {
    Livree livree = Lire();

    QString Texte(const QString& langue, const char* cle) {
        const QString cherchee = QString::fromUtf8(cle).trimmed().toUpper();
        for (const auto& [k, texte] : livree.messages[langue])
            if (k.toUpper() == cherchee) return texte;
        ADD_FAILURE() << "no text for " << cle << " in " << langue.toStdString();
        return {};
    }
    template <class Cles>
    void ExigerEnToutesLangues(const Cles& cles) {
        for (const QString& langue : livree.languesMessages)
            for (const char* cle : cles)
                Texte(langue, cle);
    }
};

}  // namespace

TEST_F(DeliveredConfig, HasEverySettingThatTheProgramReadsOrWrites) {
    const std::map<QString, QString> attendus = {
        {QStringLiteral("Langue"), QStringLiteral("Français")},
        {QStringLiteral("Taille"), QStringLiteral("4")},
        {QStringLiteral("Charge_Rapide"), QStringLiteral("0")},
        {QStringLiteral("Splash"), QStringLiteral("True")},
        {QStringLiteral("Maintenance"), QStringLiteral("False")},
        {QStringLiteral("valeur_impulsion"), QStringLiteral("1")},
        {QStringLiteral("unite_impulsion"), QStringLiteral("0")},
        {QStringLiteral("CoefImpulsion"), QStringLiteral("1")},
        {QStringLiteral("UniteImpulsion"), QStringLiteral("Imp.")},
        {QStringLiteral("IndexListeTemps"), QStringLiteral("0")},
    };
    EXPECT_EQ(livree.reglages, attendus);
}

TEST_F(DeliveredConfig, ShowsEveryUsbEntryOfAProductAndLooksForNone) {
    ASSERT_EQ(livree.appareils.size(), 1U);
    EXPECT_EQ(livree.appareils[0].first, QStringLiteral("Appareil"));
    const std::vector<std::pair<QString, QString>> attendues = {
        {QStringLiteral("Vendeur"), QStringLiteral("0x0000")},
        {QStringLiteral("Produit"), QStringLiteral("0x0000")},
        {QStringLiteral("Interface"), QStringLiteral("0")},
        {QStringLiteral("Sortie"), QStringLiteral("0x01")},
        {QStringLiteral("Entree"), QStringLiteral("0x81")},
        {QStringLiteral("Delai"), QStringLiteral("1000")}};
    EXPECT_EQ(livree.appareils[0].second, attendues);
    essai::Etabli etabli;
    Configuration configuration(etabli.systeme.dossier);
    const ElementUsb element = LireElementUsb(configuration);
    EXPECT_TRUE(element.reglages.empty());
    EXPECT_TRUE(element.fausses.empty());
}

TEST_F(DeliveredConfig, HasTheSameLanguagesForListsAndTextsAndTheDefaultAmongThem) {
    const auto ensemble = [](const std::vector<QString>& v) {
        return QSet<QString>(v.begin(), v.end());
    };
    EXPECT_EQ(ensemble(livree.languesListes), ensemble(livree.languesMessages));
    EXPECT_EQ(static_cast<std::size_t>(ensemble(livree.languesListes).size()),
              livree.languesListes.size());
    EXPECT_TRUE(
        ensemble(livree.languesMessages).contains(livree.reglages[QStringLiteral("Langue")]));
    EXPECT_TRUE(ensemble(livree.languesMessages).contains(QStringLiteral("English")));
}

TEST_F(DeliveredConfig, HasTheFourListsLongEnoughInEveryLanguage) {
    for (auto& [langue, listes] : livree.listes) {
        EXPECT_EQ(listes.size(), 4U) << langue.toStdString();
        EXPECT_GE(listes[QStringLiteral("ListePeriode")].size(), 16U);
        EXPECT_GE(listes[QStringLiteral("ListeEchelles")].size(), 1U);
        EXPECT_LE(listes[QStringLiteral("ListeEchelles")].size(), 16U);
        EXPECT_GE(listes[QStringLiteral("ListeUnites")].size(), 2U);
        EXPECT_LE(listes[QStringLiteral("ListeUnites")].size(), 8U);
        EXPECT_GE(listes[QStringLiteral("ListeTemps")].size(), 4U);
        for (const auto& [nom, liste] : listes)
            for (std::size_t i = 0; i < liste.size(); ++i)
                EXPECT_EQ(liste[i].index, QString::number(i)) << nom.toStdString();
    }
}

TEST_F(DeliveredConfig, HasTheSameValuesAtTheSameIndexInEveryLanguage) {
    auto& premiere = livree.listes[livree.languesListes.front()];
    for (auto& [langue, listes] : livree.listes)
        for (auto& [nom, liste] : listes) {
            ASSERT_EQ(liste.size(), premiere[nom].size()) << nom.toStdString();
            for (std::size_t i = 0; i < liste.size(); ++i) {
                EXPECT_EQ(liste[i].valeur, premiere[nom][i].valeur) << nom.toStdString() << i;
                EXPECT_EQ(liste[i].maxi, premiere[nom][i].maxi) << nom.toStdString() << i;
            }
        }
}

TEST_F(DeliveredConfig, HasOnlyPeriodsWhoseFullMemoryFitsTheLoggersClock) {
    for (auto& [langue, listes] : livree.listes) {
        const Liste& periodes = listes[QStringLiteral("ListePeriode")];
        for (std::size_t i = 1; i < periodes.size(); ++i) {
            const int huitiemes = periodes[i].valeur.toInt();
            EXPECT_GT(huitiemes, 0);
            EXPECT_LE(huitiemes, 28800);
            EXPECT_LT(huitiemes / 8.0 * 540606, 2147483648.0);
        }
        EXPECT_EQ(periodes[0].valeur, QStringLiteral("600"));
        EXPECT_EQ(periodes[14].valeur, QStringLiteral("4800"));
        EXPECT_EQ(periodes[15].valeur, QStringLiteral("7200"));
    }
}

TEST_F(DeliveredConfig, NamesEachPeriodByItsValue) {
    const std::pair<const char*, double> mots[] = {{"second", 8}, {"minute", 480}, {"h", 28800}};
    for (auto& [langue, listes] : livree.listes) {
        const Liste& periodes = listes[QStringLiteral("ListePeriode")];
        for (std::size_t i = 1; i < periodes.size(); ++i) {
            const QStringList morceaux = periodes[i].texte.split(u' ');
            ASSERT_EQ(morceaux.size(), 2) << periodes[i].texte.toStdString();
            const QStringList fraction = morceaux[0].split(u'/');
            const double nombre =
                fraction[0].toDouble() / (fraction.size() > 1 ? fraction[1].toDouble() : 1);
            const auto* mot = std::ranges::find_if(mots, [&](const auto& m) {
                return morceaux[1].startsWith(QLatin1String(m.first));
            });
            ASSERT_NE(mot, std::end(mots)) << periodes[i].texte.toStdString();
            EXPECT_EQ(periodes[i].valeur.toDouble(), nombre * mot->second)
                << periodes[i].texte.toStdString();
            EXPECT_EQ(morceaux[1].endsWith(u's'), nombre > 1) << periodes[i].texte.toStdString();
        }
    }
}

TEST_F(DeliveredConfig, NamesEachScaleByItsLimits) {
    for (auto& [langue, listes] : livree.listes)
        for (const Ligne& echelle : listes[QStringLiteral("ListeEchelles")]) {
            EXPECT_EQ(echelle.texte, echelle.valeur + QStringLiteral(" - ") + echelle.maxi +
                                         QStringLiteral(" bar"));
            EXPECT_LT(echelle.valeur.toDouble(), echelle.maxi.toDouble());
        }
}

TEST_F(DeliveredConfig, GivesEachUnitItsCountInOneBar) {
    // One bar is 100 000 Pa; water at 4 degrees, standard gravity.
    const std::map<QString, double> unBar = {{QStringLiteral("psi"), 1E5 / 6894.757},
                                             {QStringLiteral("bar"), 1},
                                             {QStringLiteral("mbar"), 1000},
                                             {QStringLiteral("kPa"), 100},
                                             {QStringLiteral("MPa"), 0.1},
                                             {QStringLiteral("mCE"), 1E5 / 9806.65},
                                             {QStringLiteral("mH2O"), 1E5 / 9806.65},
                                             {QStringLiteral("kg/cm²"), 1E5 / 98066.5}};
    for (auto& [langue, listes] : livree.listes)
        for (const Ligne& unite : listes[QStringLiteral("ListeUnites")]) {
            ASSERT_TRUE(unBar.contains(unite.texte)) << unite.texte.toStdString();
            EXPECT_NEAR(unite.valeur.toDouble(), unBar.at(unite.texte) * 10000, 0.5)
                << unite.texte.toStdString();
        }
}

TEST_F(DeliveredConfig, HasOnlyPairsOfUnitAndScaleWhoseThresholdsFit16Bits) {
    for (auto& [langue, listes] : livree.listes)
        for (const Ligne& unite : listes[QStringLiteral("ListeUnites")])
            for (const Ligne& echelle : listes[QStringLiteral("ListeEchelles")])
                EXPECT_LE(unite.valeur.toDouble() * echelle.maxi.toDouble() / 10000, 32767.0)
                    << unite.texte.toStdString() << " " << echelle.texte.toStdString();
}

TEST_F(DeliveredConfig, HasTimeBasesThatTheLoaderKnows) {
    const char* const textes[] = {"Sec", "Min", "Hrs", "Day"};
    const int secondes[] = {1, 60, 3600, 86400};
    for (auto& [langue, listes] : livree.listes)
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(listes[QStringLiteral("ListeTemps")][i].texte,
                      QString::fromLatin1(textes[i]));
            EXPECT_EQ(listes[QStringLiteral("ListeTemps")][i].valeur.toInt(), secondes[i]);
        }
}

TEST_F(DeliveredConfig, HasKeysWithoutOuterBlanksAndNoTwoAlike) {
    for (const auto& [langue, entrees] : livree.messages) {
        QSet<QString> vues;
        for (const auto& [cle, texte] : entrees) {
            EXPECT_EQ(cle, cle.trimmed());
            EXPECT_FALSE(cle.isEmpty());
            EXPECT_FALSE(vues.contains(cle.toUpper())) << cle.toStdString();
            vues.insert(cle.toUpper());
        }
    }
}

TEST_F(DeliveredConfig, HasTheSameKeysInEveryLanguage) {
    const auto cles = [&](const QString& langue) {
        std::vector<QString> liste;
        for (const auto& entree : livree.messages[langue])
            liste.push_back(entree.first);
        return liste;
    };
    for (const QString& langue : livree.languesMessages)
        EXPECT_EQ(cles(langue), cles(livree.languesMessages.front())) << langue.toStdString();
}

TEST_F(DeliveredConfig, HasTheKeysOfAllMessagesFormsAndHelpTexts) {
    ExigerEnToutesLangues(essai::clesMessages);
    ExigerEnToutesLangues(essai::clesAutresFiches);
    ExigerEnToutesLangues(essai::clesAide);
}

TEST_F(DeliveredConfig, HasNoShortcutMarkInAnyText) {
    for (const auto& [langue, entrees] : livree.messages)
        for (const auto& [cle, texte] : entrees)
            EXPECT_FALSE((cle + texte).contains(u'&')) << cle.toStdString();
}

TEST_F(DeliveredConfig, BeginsTheSentencesOfTheSummaryWithOneBlank) {
    for (const QString& langue : livree.languesMessages)
        for (const char* cle :
             {"Acquisition toutes les", "Les anciennes valeurs seront écrasées",
              "Les anciennes valeurs ne seront pas écrasées", "Acquisition immédiate",
              "Acquisition au dessous de", "Acquisition au dessus de", "Acquisition entre",
              "Acquisition en dehors de", "Echantillonnage après trigger toutes les",
              "Mode mono coup armé"}) {
            const QString texte = Texte(langue, cle);
            EXPECT_TRUE(texte.startsWith(u' ') && !texte.startsWith(QLatin1String("  "))) << cle;
        }
}

TEST_F(DeliveredConfig, GivesValueLabelsNeutralTextsAndHelpASentence) {
    for (const QString& langue : livree.languesMessages) {
        EXPECT_EQ(Texte(langue, "Version"), QStringLiteral("--"));
        EXPECT_EQ(Texte(langue, "ValeurCapacite"), QStringLiteral("--"));
        EXPECT_EQ(Texte(langue, "Infos"), QString());
        for (const char* cle : essai::clesAide)
            EXPECT_GE(Texte(langue, cle).size(), 10) << cle;
    }
}

TEST_F(DeliveredConfig, NamesInTheHintsBelowTheListOfLoggersWhatTheySendTo) {
    const QString regle = QStringLiteral("60-bornika.rules");
    ASSERT_TRUE(QFile::exists(QStringLiteral(BORNIKA_RESOURCES "/../packaging/") + regle));
    for (const auto& [langue, textes] : livree.messages) {
        const std::map<QString, QString> parCle(textes.begin(), textes.end());
        EXPECT_TRUE(parCle.at(QStringLiteral("IndicationSansDroits")).contains(regle));
        EXPECT_TRUE(
            parCle.at(QStringLiteral("IndicationSansReglage")).contains(QLatin1String("Usb")));
        const QString& aucun = parCle.at(QStringLiteral("IndicationAucun"));
        EXPECT_TRUE(aucun.contains(QLatin1String("Usb")));
        EXPECT_TRUE(aucun.contains(QLatin1String("lsusb")));
    }
}

TEST_F(DeliveredConfig, HasNoEntryForTheComputedDuration) {
    for (const auto& [langue, entrees] : livree.messages)
        for (const auto& [cle, texte] : entrees)
            EXPECT_NE(cle.toUpper(), QStringLiteral("DUREEENREGISTREMENT"));
}

TEST_F(DeliveredConfig, AnswersEveryLookupOfTheMainFormInEveryLanguage) {
    essai::Etabli etabli;
    const QString nom = QStringLiteral("config.xml");
    const QByteArray avant = etabli.Lire(nom);
    ASSERT_FALSE(avant.isEmpty());
    MainScreen ecran(etabli.systeme);
    ecran.ui->DeuxSeuils->setChecked(true);
    ChangeTextes(ecran, livree.reglages[QStringLiteral("Langue")], true);
    for (const QString& langue : livree.languesMessages) {
        ChangeTextes(ecran, langue, false);
        AfficheAide(ecran, langue, true);
        ecran.ui->UnSeuil->setChecked(true);
        ChangeTextes(ecran, langue, false);
        EXPECT_EQ(etabli.Lire(nom), avant) << langue.toStdString();
    }
}

TEST_F(DeliveredConfig, CanBeWrittenWhereItIsPut) {
    essai::Etabli etabli;
    Configuration configuration(etabli.systeme.dossier);
    EXPECT_TRUE(configuration.LitSplash());
    configuration.EcritSplash(false);
    EXPECT_FALSE(configuration.LitSplash());
}

}  // namespace bornika::essai
