// A logger that fails at each single frame of the long operations: what the whole program shows and
// holds afterwards, and that the next reading finds everything in order again.

#include <gtest/gtest.h>

#include "app/set_up_hand.h"
#include "widgets/pointer_shape.h"

namespace bornika {
namespace {

using namespace essai;
using simulateur::GenrePanne;
using simulateur::KPod2100;
using simulateur::KPod33;
using simulateur::PtrEnregistreur;
using simulateur::sansFin;

constexpr int rangsEcriture = 17;  // time format, weight, unit and time base, byte by byte

/// What one failure leaves behind.
struct Fin {
    /// Boxes that say that the logger is absent, and all others.
    int absents = 0;
    int autres = 0;
    int questions = 0;
    bool ecrireValide = true;
    bool pagesValide = true;
    int poignees = 0;
    bool fichier = false;

    bool operator==(const Fin&) const = default;
};

std::ostream& operator<<(std::ostream& flux, const Fin& fin) {
    return flux << "absent " << fin.absents << ", others " << fin.autres << ", questions "
                << fin.questions << ", Ecrire " << fin.ecrireValide << ", LireValeursPage "
                << fin.pagesValide << ", handles " << fin.poignees << ", file " << fin.fichier;
}

/// Where a failure strikes: `codes` are the frames of a healthy run.
struct Coup {
    const std::vector<int>& codes;
    int rang;
    GenrePanne genre;

    bool Perdu() const {
        return genre == GenrePanne::silence || genre == GenrePanne::debranchement;
    }
    int Code() const { return codes[static_cast<std::size_t>(rang)]; }
};

/// Boxes of a reading of the parameters that begins at `debut` and loses the logger: the questions
/// about the calibration and the version behind the pointers are put without one.
int AbsentsLecture(const Coup& coup, int debut) {
    const bool versionFinale = coup.Code() == 9 && coup.rang > debut;
    return coup.Code() == 28 || coup.Code() == 26 || versionFinale ? 0 : 1;
}

Fin ApresLecture(const Coup& coup) {
    if (!coup.Perdu()) return {};
    // Version and type are asked for before the parameters, without a box of their own.
    constexpr int debut = 2;
    return {.absents = coup.rang <= debut ? 1 : AbsentsLecture(coup, debut)};
}

/// `capteur` is the rank of the question about the calibrated sensor, `force` the number of frames
/// between the internal memory and the reading.
Fin ApresEcriture(const Coup& coup, int capteur, int force) {
    const int contexte = capteur + 6;
    const int lecture = contexte + rangsEcriture + force;
    if (!coup.Perdu()) return {.autres = 1, .questions = 1};
    // A lost question about the sensor is passed over; the first set-up frame then tells.
    if (coup.rang < contexte) return {.absents = 1, .questions = 1};
    // The set-up stands in the logger: the sequence goes on to its end and tells again.
    if (coup.rang < lecture) return {.absents = 2, .autres = 1, .questions = 1};
    return {.absents = AbsentsLecture(coup, lecture), .autres = 1, .questions = 1};
}

Fin ApresEcritureCarte(const Coup& coup) {
    if (coup.rang > 0) return ApresEcriture(coup, 1, 1);
    if (coup.Perdu()) return {.absents = 1, .ecrireValide = false};
    // A short answer tells of no card; the link stays open, as after a cancel.
    if (coup.genre == GenrePanne::reponseCourte) return {.autres = 1, .poignees = 2};
    return {.autres = 1, .questions = 1};
}

Fin ApresContexte(const Coup& coup) {
    return {.absents = coup.Perdu() ? 1 : 0, .fichier = !coup.Perdu()};
}

Fin ApresPages(const Coup& coup) {
    const bool dansLecture = coup.Code() != 20;
    if (coup.Perdu() && dansLecture)
        return {.absents = AbsentsLecture(coup, 0), .pagesValide = false};
    // The cells behind a lost one repeat the last good one.
    return {.absents = coup.Perdu() ? 1 : 0, .autres = 1, .fichier = true};
}

Fin ApresTestDebit(const Coup& coup) {
    return {.absents = coup.Perdu() ? 1 : 0};
}

struct Operation {
    const char* nom;
    PtrEnregistreur (*pod)(std::uint32_t);
    void (*geste)(Ui::MainScreen&);
    Fin (*attendre)(const Coup&);
    /// Frames of a healthy run.
    std::size_t trames;
    /// Whether what it has read goes to a file that the operator names.
    bool nommeFichier = false;
};

PtrEnregistreur AvecCarte(std::uint32_t maintenant) {
    return KPod33(maintenant);
}

const Operation operations[] = {
    {"Read", KPod2100, [](auto& ui) { BancProgramme::Cliquer(ui.Lire); }, ApresLecture, 21},
    {"Write", KPod2100, [](auto& ui) { BancProgramme::Cliquer(ui.Ecrire); },
     [](const Coup& coup) { return ApresEcriture(coup, 0, 0); }, 41},
    {"WriteWithCard", AvecCarte, [](auto& ui) { BancProgramme::Cliquer(ui.Ecrire); },
     ApresEcritureCarte, 43},
    {"ContextDump", KPod2100, [](auto& ui) { BancProgramme::Cliquer(ui.LireEeprom); },
     ApresContexte, 128, true},
    {"PageDump", KPod2100, [](auto& ui) { BancProgramme::Cliquer(ui.LireValeursPage); }, ApresPages,
     84},
    {"FlowTestOn", KPod2100, [](auto& ui) { BancProgramme::Cliquer(ui.TestDebitON); },
     ApresTestDebit, 1},
    {"FlowTestOff", KPod2100, [](auto& ui) { BancProgramme::Cliquer(ui.TestDebitOFF); },
     ApresTestDebit, 1},
    {"FlowTestByMenu", KPod2100, [](auto& ui) { ui.MnuFlowTest->trigger(); }, ApresTestDebit, 1}};

struct Defaillance {
    const char* nom;
    GenrePanne genre;
    int combien;
};

const Defaillance defaillances[] = {{"FallsSilent", GenrePanne::silence, sansFin},
                                    {"AnswersShort", GenrePanne::reponseCourte, 1},
                                    {"EchoesWrong", GenrePanne::mauvaisEcho, 1},
                                    {"Disappears", GenrePanne::debranchement, 1}};

class DeviceLoss : public testing::TestWithParam<std::tuple<Operation, Defaillance>> {
  protected:
    void SetUp() override {
        QByteArray reglages = banc.etabli.Lire(QStringLiteral("config.xml"));
        reglages.replace("<Maintenance>False<", "<Maintenance>True<");
        banc.etabli.Ecrire(QStringLiteral("config.xml"), reglages);
        ASSERT_TRUE(banc.Demarrer());
        FixerPointeurSouris(banc.ecran(), pointeur::defaut);
        Relire();
        repos = Regarder(banc.ui());
        banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(5));
        reglagesAvant = banc.etabli.Lire(QStringLiteral("config.xml"));
        fichiersAvant = banc.etabli.Fichiers();
    }

    void Relire() { BancProgramme::Cliquer(banc.ui().Lire); }

    /// One run of the operation from a form and a logger in order, with the answers that an end
    /// like that takes.
    void Lancer(const Fin& attendue) {
        essai::DialoguesNotes& dialogues = banc.etabli.dialogues;
        dialogues.OublierBoites();
        for (int i = 0; i < attendue.questions; ++i)
            dialogues.AnnoncerQuestion(Reponse::Ok, QStringLiteral("écrasées"));
        if (operation.nommeFichier && attendue.fichier)
            dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(QStringLiteral("Contexte.txt")));
        operation.geste(banc.ui());
    }

    std::vector<int> CodesSains() {
        const std::vector<int> inconnus{0};
        const Fin saine = operation.attendre({inconnus, 0, GenrePanne::aucune});
        pod.journal.Vider();
        Lancer(saine);
        const std::vector<int> codes = pod.journal.Codes();
        EXPECT_EQ(Observer(), saine);
        Ranger();
        return codes;
    }

    Fin Observer() {
        Fin fin;
        for (const auto& boite : banc.etabli.dialogues.Boites())
            ++(boite.boutons != Boutons::Ok                      ? fin.questions
               : boite.texte.endsWith(QStringLiteral(" absent")) ? fin.absents
                                                                 : fin.autres);
        fin.ecrireValide = banc.ui().Ecrire->isEnabled();
        fin.pagesValide = banc.ui().LireValeursPage->isEnabled();
        fin.poignees = banc.bus.PoigneesOuvertes();
        fin.fichier = banc.etabli.Fichiers() != fichiersAvant;
        return fin;
    }

    /// What no failure may touch.
    void VoirLeReste() {
        EXPECT_TRUE(banc.sorties.empty());
        EXPECT_TRUE(banc.ecran().isVisible());
        EXPECT_TRUE(banc.ui().Lire->isEnabled());
        EXPECT_TRUE(banc.ui().LireValeurs->isEnabled());
        EXPECT_FALSE(banc.ecran().etat.EnLecture);
        EXPECT_EQ(PointeurSouris(banc.ecran()), pointeur::defaut);
        EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), reglagesAvant);
    }

    /// The logger is in order again, and so is the program with the next reading.
    void Reprendre() {
        pod.pannes.Annuler();
        banc.bus.Rebrancher(pod.identite.usb);
        banc.etabli.dialogues.OublierBoites();
        Relire();
        EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
        EXPECT_FALSE(banc.ecran().etat.TimeOut);
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
        EXPECT_EQ(Regarder(banc.ui()), repos);
        Ranger();
    }

    void Ranger() {
        // Disabled on purpose where there is no logger to write to, or to dump.
        banc.ui().Ecrire->setEnabled(true);
        banc.ui().LireValeursPage->setEnabled(true);
        for (const QString& nom : banc.etabli.Fichiers())
            if (!fichiersAvant.contains(nom)) QFile::remove(banc.etabli.Chemin(nom));
    }

    const Operation operation = std::get<0>(GetParam());
    const Defaillance defaillance = std::get<1>(GetParam());
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(operation.pod(maintenantSimule));
    Affichage repos;
    QByteArray reglagesAvant;
    QStringList fichiersAvant;
};

}  // namespace

TEST_P(DeviceLoss, AtEachFrameLeavesTheProgramInOrder) {
    const std::vector<int> codes = CodesSains();
    ASSERT_EQ(codes.size(), operation.trames);
    for (int rang = 0; rang < static_cast<int>(codes.size()) && !HasFailure(); ++rang) {
        const Coup coup{codes, rang, defaillance.genre};
        SCOPED_TRACE("frame " + std::to_string(rang) + ", code " + std::to_string(coup.Code()));
        pod.pannes.Ordonner({.genre = defaillance.genre,
                             .occurrence = rang + 1,
                             .combien = defaillance.combien,
                             .parametre = 1});
        const Fin attendue = operation.attendre(coup);
        Lancer(attendue);
        EXPECT_EQ(Observer(), attendue);
        VoirLeReste();
        Reprendre();
    }
}

INSTANTIATE_TEST_SUITE_P(Whole, DeviceLoss,
                         testing::Combine(testing::ValuesIn(operations),
                                          testing::ValuesIn(defaillances)),
                         [](const auto& cas) {
                             return std::string(std::get<0>(cas.param).nom) + "LoggerThat" +
                                    std::get<1>(cas.param).nom;
                         });

}  // namespace bornika
