#pragma once

#include <gtest/gtest.h>

#include "service/firmware_update.h"
#include "simulator/presets.h"
#include "support/form_stand.h"
#include "support/plain_text.h"

/// A firmware update whose tool, dialogs and logger are all in the hand of the test.
namespace bornika::essai::firmware {

using simulateur::GenrePanne;
using Codes = std::vector<int>;
using Contenus = std::vector<std::vector<std::uint8_t>>;

inline constexpr std::uint32_t maintenant = 1772719629;
/// Frames that the logger has heard.
inline const Codes identite{9, 6};
inline const Codes identiteEtVersion{9, 6, 9};
inline const Codes identiteVersionEtNumero{9, 6, 9, 5};

/// Stands in for the starting of programs: notes each call; the program runs for some looks.
struct LanceurNote {
    struct Appel {
        QString programme;
        QString argument;
        bool operator==(const Appel&) const = default;
    };
    class Programme : public ProgrammeExterne {
      public:
        explicit Programme(LanceurNote& note) : note_(note) {}
        ~Programme() override { ++note_.laisses; }
        bool EnCours() override {
            if (note_.regards == note_.duree) {
                if (note_.fin) note_.fin();
                return false;
            }
            ++note_.regards;
            return true;
        }

      private:
        LanceurNote& note_;
    };

    std::vector<Appel> appels;
    bool introuvable = false;
    /// Looks that find the program running.
    int duree = 1;
    int regards = 0;
    int laisses = 0;
    /// Runs at the start, and once the program is found at its end.
    std::function<void()> debut;
    std::function<void()> fin;

    std::unique_ptr<ProgrammeExterne> operator()(const QString& programme,
                                                 const QString& argument) {
        appels.push_back({programme, argument});
        if (introuvable) return nullptr;
        if (debut) debut();
        return std::make_unique<Programme>(*this);
    }
};

/// The form on that logger, in a folder for the Z907 edition where `drapeau` says so.
struct Banc : BancSimule {
    explicit Banc(simulateur::PtrEnregistreur logger, bool drapeau = false)
        : BancSimule(drapeau ? q("Z907 tools") : QString()), pod(bus.Brancher(std::move(logger))) {
        etabli.systeme.lancer = std::ref(outil);
        ecran.ui->ListeLangues->Ajouter(q("Français"));
        ecran.ui->ListeLangues->Choisir(0);
        ecran.etat.UsbID = pod.identite.usb;
        ecran.etat.TypekPod = pod.identite.type;
        ecran.etat.NomKpod = q("k-Pod of Zoé");
        ecran.ui->Infos->hide();
    }
    void Prendre(const char* nom) { fichier = q(nom); }
    void Maintenance() {
        ecran.configuration.EcritConfig(QStringLiteral("True"), QStringLiteral("Maintenance"));
    }
    /// What the tool does to the logger: another version, and no serial number any more.
    void Reprogrammer(std::uint8_t haute, std::uint8_t basse) {
        pod.identite.versionHaute = haute;
        pod.identite.versionBasse = basse;
        pod.ReglerNumeroSerie(0xFFFFFFFF);
    }
    /// Clicks the entry, says Yes to its question and takes the file.
    void Cliquer() {
        etabli.dialogues.AnnoncerQuestion(Reponse::Oui, q("version actuelle"));
        etabli.dialogues.AnnoncerOuverture(fichier);
        nmuBootLoad_Click(poste);
    }

    /// The line of the form, "" while it is hidden.
    QString Ligne() const {
        return ecran.ui->Infos->isHidden() ? QString() : ecran.ui->Infos->text();
    }
    Codes Trames() const { return pod.journal.Codes(); }
    /// Texts of the boxes after the question.
    QStringList Boites() const {
        QStringList textes;
        for (std::size_t i = 1; i < etabli.dialogues.Boites().size(); ++i)
            textes << etabli.dialogues.Boites()[i].texte;
        return textes;
    }

    /// What the operator picks in the file dialog; nothing: it is cancelled.
    std::optional<QString> fichier = q("/f/K-POD_V2.100.HEX");
    EnregistreurSimule& pod;
    LanceurNote outil;
};

/// A k-Pod 2.095.
struct MiseAJourFirmware : testing::Test, Banc {
    MiseAJourFirmware() : Banc(simulateur::Simple(1, 20, 95, maintenant)) {}
};

}  // namespace bornika::essai::firmware
