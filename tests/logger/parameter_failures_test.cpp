#include <gtest/gtest.h>

#include "logger/logger_fixture.h"
#include "logger/parameter_reading.h"

namespace bornika::essai {
namespace {

using simulateur::GenrePanne;

/// Commands of a full run, in their order, with the control that each one fills.
struct Etape {
    int code;
    int occurrence;
    const char* temoin;
};

const std::vector<Etape> etapes = {
    {9, 1, "Version"},
    {6, 1, "NumeroSerie"},
    {28, 1, ""},
    {26, 1, ""},
    {26, 2, ""},
    {2, 1, "ProchaineMesure"},
    {17, 1, "DerniereMesure"},
    {4, 1, "LabelSeuil2"},
    {8, 1, "DateCourante"},
    {13, 1, ""},
    {14, 1, "Commentaire"},
    {29, 1, "AMPM_0"},
    {29, 2, "CoefImpulsion"},
    {29, 3, "UniteImpulsion"},
    {29, 4, "ListeTemps"},
    {21, 1, "PageEcriture"},
    {22, 1, "PageLecture"},
    {9, 2, ""},
};

constexpr std::size_t rangDateEtalonnage = 2;
constexpr std::size_t rangPointBas = 3;
constexpr std::size_t rangPointHaut = 4;
constexpr std::size_t rangCommentaire1 = 9;
constexpr std::size_t rangCommentaire2 = 10;
constexpr std::size_t rangUnite = 13;
constexpr std::size_t rangVersionFinale = 17;

/// A stand whose displays all hold what no reading would leave.
struct BancTemoin : BancEnregistreur {
    BancTemoin() {
        PreparerEnregistreur(enregistreur);
        for (QLabel* label :
             {ui.Version, ui.NumeroSerie, ui.ProchaineMesure, ui.DateCourante, ui.LabelSeuil2}) {
            label->setText(ancien);
        }
        for (QLineEdit* boite : {ui.Commentaire, ui.CoefImpulsion, ui.UniteImpulsion,
                                 ui.PageEcriture, ui.PageLecture}) {
            boite->setText(ancien);
        }
        ui.AMPM_0->setChecked(true);
        ecran.etat.etalonnage = {1, 2, 3, 4, 5, 6, 7};
    }

    /// True when the control still shows what it held before the reading.
    bool EstAncien(const QString& nom) {
        if (nom == QLatin1String("AMPM_0")) return ui.AMPM_0->isChecked();
        if (nom == QLatin1String("ListeTemps")) return ui.ListeTemps->Index() == 1;
        // The pickers' own change computes the end as well: the start date tells.
        if (nom == QLatin1String("DerniereMesure")) {
            return ui.DTPicker1->date() == QDate(2026, 3, 5);
        }
        if (const auto* label = ecran.findChild<QLabel*>(nom)) return label->text() == ancien;
        return ecran.findChild<QLineEdit*>(nom)->text() == ancien;
    }

    const QString ancien = QStringLiteral("ancien");
};

std::string CodesEnTexte(const std::vector<int>& codes) {
    std::string texte;
    for (const int code : codes)
        texte += std::to_string(code) + " ";
    return texte;
}

std::vector<int> CodesJusque(std::size_t rang) {
    std::vector<int> codes;
    for (std::size_t i = 0; i <= rang; ++i)
        codes.push_back(etapes[i].code);
    return codes;
}

class SilenceALaCommande : public testing::TestWithParam<std::size_t> {};

TEST_P(SilenceALaCommande, KeepsWhatWasReadAndLeavesTheRest) {
    const std::size_t rang = GetParam();
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner(
        {etapes[rang].code, GenrePanne::silence, etapes[rang].occurrence});
    Lire_Parametres(banc.poste);

    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(banc.lien.ReadHandle, 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());

    const bool sansBoite = rang == rangDateEtalonnage || rang == rangPointBas ||
                           rang == rangPointHaut || rang == rangVersionFinale;
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), sansBoite ? 0U : 1U);
    if (!sansBoite) {
        const auto& boite = banc.etabli.dialogues.Boites().front();
        EXPECT_EQ(Clair(boite.texte), "k-Pod absent");
        EXPECT_EQ(Clair(boite.titre), "");
        EXPECT_EQ(boite.icone, Icone::Aucune);
    }

    std::vector<int> attendus = CodesJusque(rang);
    // The link is opened again behind the calibration date: what follows leaves, but is not read.
    if (rang == rangDateEtalonnage) attendus.insert(attendus.end(), {26, 2});
    EXPECT_EQ(CodesEnTexte(banc.enregistreur.journal.Codes()), CodesEnTexte(attendus));

    for (std::size_t i = 0; i < etapes.size(); ++i) {
        const QString temoin = QString::fromLatin1(etapes[i].temoin);
        if (temoin.isEmpty()) continue;
        bool ancien = i >= rang;
        // Emptied before they are read.
        if (i == rangCommentaire2 && rang >= rangCommentaire1) ancien = false;
        if (i == rangUnite && rang >= rangUnite) ancien = false;
        EXPECT_EQ(banc.EstAncien(temoin), ancien) << Clair(temoin);
    }
}

std::string NomDuCas(const testing::TestParamInfo<std::size_t>& cas) {
    return "Rank" + std::to_string(cas.param) + "Code" + std::to_string(etapes[cas.param].code);
}

INSTANTIATE_TEST_SUITE_P(ChaqueCommande, SilenceALaCommande,
                         testing::Range<std::size_t>(0, etapes.size()), NomDuCas);

TEST(SilencePendantLaLecture, OfTheCalibrationDateGivesZerosWithoutAnyBox) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner({28, GenrePanne::silence});
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_bas, 0);
    EXPECT_EQ(banc.ecran.etat.etalonnage.pente_etalonnage, 0);
    EXPECT_EQ(banc.ecran.etat.etalonnage.offset_etalonnage, 0);
    EXPECT_EQ(Clair(banc.ecran.etat.Rapport),
              "N° de série : 3405691582\r\nVersion : (1) 2.110\r\nTension pile : 4.00 V.\r\n"
              "Etalonnage : 0.0000\r\n");
}

TEST(SilencePendantLaLecture, HalfAComment) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner({14, GenrePanne::silence});
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("k-Pod absent"));
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(banc.ui.Commentaire->text()), " Réseau");
}

TEST(SilencePendantLaLecture, OfThePulseUnitLeavesItEmpty) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner({29, GenrePanne::silence, 3});
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("k-Pod absent"));
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(banc.ui.UniteImpulsion->text()), "");
    EXPECT_EQ(Clair(banc.ui.CoefImpulsion->text()), "0.1");
}

TEST(SilencePendantLaLecture, ALoggerPulledOutInTheMiddleIsToldOnce) {
    for (const int code : {9, 6, 2, 4, 13, 29, 21}) {
        SCOPED_TRACE(code);
        BancTemoin banc;
        banc.enregistreur.pannes.Ordonner({code, GenrePanne::debranchement});
        Lire(banc.poste);
        EXPECT_TRUE(banc.ecran.etat.TimeOut);
        EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
        EXPECT_TRUE(banc.ui.Lire->isEnabled());
        EXPECT_TRUE(banc.etabli.fautes.empty());
    }
}

TEST(SilencePendantLaLecture, OfTheWholeLoggerEmptiesVersionAndType) {
    BancTemoin banc;
    banc.bus.Debrancher(banc.ecran.etat.UsbID);
    Lire(banc.poste);
    EXPECT_EQ(Clair(banc.ui.Version->text()), "");
    EXPECT_EQ(banc.ecran.etat.TypekPod, 0);
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(banc.ui.Lire->isEnabled());
    EXPECT_EQ(banc.ecran.focusWidget(), banc.ui.Lire);
    EXPECT_TRUE(banc.ecran.etat.Connected);
}

TEST(SilencePendantLaLecture, NoLoggerAtAll) {
    BancTemoin banc;
    banc.bus.Debrancher(banc.ecran.etat.UsbID);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(Clair(banc.ecran.etat.Rapport), "");
    EXPECT_TRUE(banc.EstAncien(QStringLiteral("Version")));
}

TEST(MauvaisEcho, SkipsTheFieldsOfItsStepOnly) {
    for (const std::size_t rang : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 15U, 16U}) {
        SCOPED_TRACE(etapes[rang].code);
        BancTemoin banc;
        banc.enregistreur.pannes.Ordonner({etapes[rang].code, GenrePanne::mauvaisEcho});
        Lire_Parametres(banc.poste);
        EXPECT_FALSE(banc.ecran.etat.TimeOut);
        EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
        for (std::size_t i = 0; i < etapes.size(); ++i) {
            const QString temoin = QString::fromLatin1(etapes[i].temoin);
            if (temoin.isEmpty()) continue;
            const bool apresPointeur = rang >= 15 && i > rang;
            EXPECT_EQ(banc.EstAncien(temoin), i == rang || apresPointeur) << Clair(temoin);
        }
    }
}

TEST(MauvaisEcho, OfTheSerialNumberStillOpensTheReport) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner({6, GenrePanne::mauvaisEcho});
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(banc.ecran.etat.Rapport.startsWith(QStringLiteral("N° de série : ancien\r\n")));
}

TEST(MauvaisEcho, OfTheCalibrationDateLeavesItsLinesOut) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner({28, GenrePanne::mauvaisEcho});
    Lire_Parametres(banc.poste);
    EXPECT_FALSE(banc.ecran.etat.Rapport.contains(QStringLiteral("Date d'étalonnage")));
    EXPECT_TRUE(
        banc.ecran.etat.Rapport.contains(QStringLiteral("Etalonnage : 1.0000 X + -4.0000")));
}

TEST(MauvaisEcho, OfACommentIsNotTested) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner({13, GenrePanne::mauvaisEcho});
    banc.enregistreur.pannes.Ordonner({14, GenrePanne::mauvaisEcho});
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(banc.ui.Commentaire->text()), " Réseau nord  ");
}

TEST(MauvaisEcho, OfTheVersionCountsAsNewFirmware) {
    BancTemoin banc;
    banc.enregistreur.identite.versionBasse = 89;
    banc.ecran.etat.VersionLogiciel = 1;
    banc.enregistreur.pannes.Ordonner({9, GenrePanne::mauvaisEcho});
    Lire_Parametres(banc.poste);
    EXPECT_EQ(banc.enregistreur.journal.Nombre(26), 2);
}

TEST(ReponseInsensee, OfEveryCommandEndsTheReadingWithoutFault) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner(
        {simulateur::toutesCommandes, GenrePanne::bruit, 1, simulateur::sansFin});
    Lire(banc.poste);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.EstAncien(QStringLiteral("NumeroSerie")));
    EXPECT_EQ(banc.ui.Commentaire->text().size(), 14);
}

TEST(ReponseInsensee, ShortRepliesAreFilledWithZeros) {
    BancTemoin banc;
    banc.enregistreur.pannes.Ordonner(
        {simulateur::toutesCommandes, GenrePanne::reponseCourte, 1, simulateur::sansFin, 1});
    Lire(banc.poste);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(Clair(banc.ui.Version->text()), "(0) 0.0");
    EXPECT_EQ(Clair(banc.ui.TensionPile->text()), ".00 V.");
    EXPECT_EQ(Clair(banc.ui.NumeroSerie->text()), "0");
    EXPECT_EQ(Clair(banc.ui.ProchaineMesure->text()), "01/01/1970 00:00:00");
    EXPECT_EQ(banc.ui.DTPicker1->date(), QDate(1970, 1, 1));
    EXPECT_EQ(banc.ecran.etat.CapaciteMemoire, 540606);
}

TEST(ReponseInsensee, AnErasedMemoryIsReadToTheEnd) {
    BancTemoin banc;
    for (int ou = 0; ou < simulateur::MemoireInterne::taille; ++ou) {
        // In calibration only as long as its own byte says so.
        if (ou != simulateur::adresse::modeEtalonnage) {
            banc.enregistreur.memoire.EcrireOctet(ou, 0xFF);
        }
    }
    Lire(banc.poste);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(Clair(banc.ui.NumeroSerie->text()), "4294967295");
    EXPECT_TRUE(banc.ui.DeuxSeuils->isChecked());
    EXPECT_TRUE(banc.ui.BufferTournant->isChecked());
    EXPECT_EQ(banc.ui.Commentaire->text(), QString(14, QChar(0xFF)));
    EXPECT_EQ(Clair(banc.ui.ValeurCorrection_0->text()), "-1");
    EXPECT_FALSE(banc.EstAncien(QStringLiteral("PageLecture")));
}

TEST(EtalonnageEnCours, SaysSoAndLeavesTheLinkOpen) {
    for (const int point : {1, 2}) {
        SCOPED_TRACE(point);
        BancTemoin banc;
        banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::modeEtalonnage, point);
        Lire_Parametres(banc.poste);
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
        const auto& boite = banc.etabli.dialogues.Boites().front();
        EXPECT_EQ(boite.icone, Icone::Information);
        EXPECT_EQ(boite.boutons, Boutons::Ok);
        EXPECT_EQ(Clair(boite.titre), "k-Pod");
        EXPECT_EQ(Clair(boite.texte), "Mode étalonnage en cours");
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 2);
        EXPECT_FALSE(banc.ecran.etat.TimeOut);
        EXPECT_FALSE(banc.EstAncien(QStringLiteral("NumeroSerie")));
        EXPECT_TRUE(banc.EstAncien(QStringLiteral("ProchaineMesure")));
        EXPECT_TRUE(banc.EstAncien(QStringLiteral("Commentaire")));
    }
}

TEST(EtalonnageEnCours, TheClockCorrectionIsStillRead) {
    BancTemoin banc;
    banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::modeEtalonnage, 1);
    banc.enregistreur.memoire.EcrireDoubleMot(simulateur::adresse::correction, 2);
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Mode étalonnage en cours"));
    Lire(banc.poste);
    EXPECT_EQ(Clair(banc.ui.ValeurCorrection_1->text()), "4.0000");
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

}  // namespace
}  // namespace bornika::essai
