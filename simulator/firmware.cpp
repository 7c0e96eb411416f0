// The firmware's side of the command set: one small function a command, found through one table.

#include <algorithm>
#include <array>

#include "simulator/simulated_logger.h"

namespace bornika {

using namespace simulateur;

namespace {

using Trame = std::span<const std::uint8_t>;

constexpr std::uint8_t blanc = 32;

int MotDe(Trame trame, std::size_t ou) {
    return trame[ou] * 256 + trame[ou + 1];
}

std::uint32_t DoubleMotDe(Trame trame, std::size_t ou) {
    return (static_cast<std::uint32_t>(MotDe(trame, ou)) << 16) |
           static_cast<std::uint32_t>(MotDe(trame, ou + 2));
}

bool TousEgaux(Trame trame, std::size_t debut, std::uint8_t valeur) {
    return std::all_of(trame.begin() + static_cast<std::ptrdiff_t>(debut), trame.end(),
                       [valeur](std::uint8_t octet) { return octet == valeur; });
}

}  // namespace

/// The commands. Frames and replies carry numbers high byte first, the memory low byte first.
struct Micrologiciel {
    using Operation = void (*)(EnregistreurSimule&, Trame, Reponse&);
    struct Ligne {
        std::uint8_t code;
        std::uint8_t longueurTrame;
        std::uint8_t longueurReponse;
        Operation operation;
    };
    static const Ligne* Trouver(std::uint8_t code);

    static void PoserMot(Reponse& r, std::size_t ou, int valeur) {
        r.octets[ou] = static_cast<std::uint8_t>(valeur >> 8);
        r.octets[ou + 1] = static_cast<std::uint8_t>(valeur);
    }
    static void PoserDoubleMot(Reponse& r, std::size_t ou, std::uint32_t valeur) {
        PoserMot(r, ou, static_cast<int>(valeur >> 16));
        PoserMot(r, ou + 2, static_cast<int>(valeur & 0xFFFF));
    }

    /// A new start arms a new recording: the measures held are given up and writing goes on where
    /// it stands, so that the flash wears evenly.
    static void EcritDemarrage(EnregistreurSimule& e, Trame t, Reponse&) {
        e.memoire.EcrireDoubleMot(adresse::demarrage, DoubleMotDe(t, 1));
        e.memoire.EcrireDoubleMot(adresse::prochaineMesure, DoubleMotDe(t, 1));
        e.memoire.EcrireMot(adresse::periodeStockage, MotDe(t, 5));
        e.ReglerLecture(e.Ecriture());
        e.octetVide = 1;
        e.enTransfert_ = false;
    }

    static void LitProchaineMesure(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserDoubleMot(r, 1, e.memoire.DoubleMot(adresse::prochaineMesure));
        PoserMot(r, 5, e.memoire.Mot(adresse::periodeStockage));
        r.octets[7] = e.memoire.Octet(adresse::mesuresAvant);
    }

    static void EcritMode(EnregistreurSimule& e, Trame t, Reponse&) {
        e.memoire.EcrireOctet(adresse::mode, t[1]);
        e.memoire.EcrireMot(adresse::seuil1, MotDe(t, 2));
        e.memoire.EcrireMot(adresse::seuil2, MotDe(t, 4));
        e.memoire.EcrireOctet(adresse::echelle, t[6]);
        e.memoire.EcrireOctet(adresse::chargeRapide, t[7]);
    }

    static void LitMode(EnregistreurSimule& e, Trame, Reponse& r) {
        r.octets[1] = e.memoire.Octet(adresse::mode);
        PoserMot(r, 2, e.memoire.Mot(adresse::seuil1));
        PoserMot(r, 4, e.memoire.Mot(adresse::seuil2));
        r.octets[6] = e.memoire.Octet(adresse::echelle);
    }

    static void EcritNumeroSerie(EnregistreurSimule& e, Trame t, Reponse&) {
        e.ReglerNumeroSerie(DoubleMotDe(t, 1));
        e.inhibe = false;
    }

    static void LitNumeroSerie(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserDoubleMot(r, 3, e.memoire.DoubleMot(adresse::numeroSerie));
    }

    static void EcritDateCourante(EnregistreurSimule& e, Trame t, Reponse&) {
        e.ReglerHorloge(DoubleMotDe(t, 1));
        e.memoire.EcrireMot(adresse::periodeTrigger, MotDe(t, 5));
    }

    static void LitDateCourante(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserDoubleMot(r, 1, e.memoire.DoubleMot(adresse::dateCourante));
        PoserMot(r, 5, e.memoire.Mot(adresse::periodeTrigger));
        r.octets[7] = e.cartePresente ? 1 : 0;
    }

    static void LitVersion(EnregistreurSimule& e, Trame, Reponse& r) {
        r.octets[1] = e.identite.type;
        r.octets[2] = e.identite.versionHaute;
        r.octets[3] = e.identite.versionMilieu;
        r.octets[4] = e.identite.versionBasse;
        PoserMot(r, 5, e.memoire.Mot(adresse::batterie));
        r.octets[7] = e.identite.tailleMemoire;
        r.octets[8] = e.identite.reserve;
    }

    /// One stored measure an answer; with nothing (more) to give, one empty measure marked as last.
    static void LitMesures(EnregistreurSimule& e, Trame t, Reponse& r) {
        if (t[1] == 1 || !e.enTransfert_) e.Rembobiner();
        if (e.reste_ == 0) {
            const auto vide = MesurePeriodique(e.memoire.DoubleMot(adresse::dateCourante), 0);
            std::copy(vide.begin(), vide.end(), r.octets.begin() + 2);
            r.octets[1] = 1;
            return;
        }
        e.flash.Lire(e.curseur_.page, e.curseur_.offset, std::span(r.octets).subspan(2, 8));
        e.Avancer(e.curseur_);
        --e.reste_;
        r.octets[1] = e.reste_ == 0 ? 1 : 0;
    }

    static void EcritCommentaire(EnregistreurSimule& e, Trame t, int debut) {
        for (int i = 0; i < 7; ++i) {
            e.memoire.EcrireOctet(adresse::commentaire + debut + i,
                                  t[static_cast<std::size_t>(i + 1)]);
        }
    }
    static void EcritCommentaire1(EnregistreurSimule& e, Trame t, Reponse&) {
        EcritCommentaire(e, t, 0);
    }
    static void EcritCommentaire2(EnregistreurSimule& e, Trame t, Reponse&) {
        EcritCommentaire(e, t, 7);
    }

    static void LitCommentaire(EnregistreurSimule& e, Reponse& r, int debut) {
        for (int i = 0; i < 7; ++i) {
            r.octets[static_cast<std::size_t>(i + 1)] =
                e.memoire.Octet(adresse::commentaire + debut + i);
        }
    }
    static void LitCommentaire1(EnregistreurSimule& e, Trame, Reponse& r) {
        LitCommentaire(e, r, 0);
    }
    static void LitCommentaire2(EnregistreurSimule& e, Trame, Reponse& r) {
        LitCommentaire(e, r, 7);
    }

    static void Raz(EnregistreurSimule& e, Trame, Reponse&) {
        e.ReglerNumeroSerie(0);
        e.inhibe = true;
    }

    static void LitDemarrage(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserDoubleMot(r, 1, e.memoire.DoubleMot(adresse::demarrage));
    }

    /// Seven bytes wait in the page buffer until the write command names their place.
    static void FlashTampon(EnregistreurSimule& e, Trame t, Reponse&) {
        std::copy_n(t.begin() + 1, e.tampon_.size(), e.tampon_.begin());
    }
    static void FlashEcrit(EnregistreurSimule& e, Trame t, Reponse&) {
        e.flash.Ecrire(MotDe(t, 1), MotDe(t, 3), e.tampon_);
    }

    /// Two commands share a code. A flow test has blanks from byte 2 on, which as a flash address
    /// would be an offset (0x2020) behind any page.
    static void FlashLitOuTestDebit(EnregistreurSimule& e, Trame t, Reponse& r) {
        if (TousEgaux(t, 3, blanc)) {
            e.testDebit = t[1] != 0;
            r.octets[1] = t[1];
            return;
        }
        e.flash.Lire(MotDe(t, 1), MotDe(t, 3), std::span(r.octets).first(8));
    }

    static void PointeurEcriture(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserMot(r, 1, e.memoire.Mot(adresse::pageEcriture));
        PoserMot(r, 3, e.memoire.Mot(adresse::offsetEcriture));
    }
    static void PointeurLecture(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserMot(r, 1, e.memoire.Mot(adresse::pageLecture));
        PoserMot(r, 3, e.memoire.Mot(adresse::offsetLecture));
        r.octets[5] = e.octetVide;
    }

    /// The logger is in calibration from here to the end command; the measure itself is taken off
    /// the cord. A new first point gives up the second one.
    static void EcritPointEtalonnage(EnregistreurSimule& e, Trame t, Reponse&) {
        const bool haut = t[3] == 2;
        e.memoire.EcrireMot(haut ? adresse::referenceHaut : adresse::referenceBas, MotDe(t, 1));
        if (!haut) {
            e.memoire.EcrireMot(adresse::referenceHaut, 0);
            e.memoire.EcrireMot(adresse::mesureHaut, 0);
        }
        e.memoire.EcrireOctet(adresse::modeEtalonnage, haut ? 2 : 1);
        e.mesureAttendue_ = true;
    }
    static void FinEtalonnage(EnregistreurSimule& e, Trame, Reponse&) {
        e.memoire.EcrireOctet(adresse::modeEtalonnage, 0);
    }
    static void LitPointEtalonnage(EnregistreurSimule& e, Trame t, Reponse& r) {
        const bool haut = t[1] == 2;
        PoserMot(r, 1, e.memoire.Mot(haut ? adresse::referenceHaut : adresse::referenceBas));
        PoserMot(r, 3, e.memoire.Mot(haut ? adresse::mesureHaut : adresse::mesureBas));
        r.octets[5] = e.memoire.Octet(adresse::modeEtalonnage);
    }
    static void EcritDateEtalonnage(EnregistreurSimule& e, Trame t, Reponse&) {
        e.memoire.EcrireDoubleMot(adresse::dateEtalonnage, DoubleMotDe(t, 1));
        e.memoire.EcrireOctet(adresse::echelleEtalonnage, t[5]);
    }
    static void LitDateEtalonnage(EnregistreurSimule& e, Trame, Reponse& r) {
        PoserDoubleMot(r, 1, e.memoire.DoubleMot(adresse::dateEtalonnage));
        r.octets[5] = e.memoire.Octet(adresse::echelleEtalonnage);
    }

    /// Two commands share a code: a memory read is padded with blanks, the self test with zeros.
    static void LitEepromOuTest(EnregistreurSimule& e, Trame t, Reponse& r) {
        if (TousEgaux(t, 3, blanc)) {
            for (int i = 0; i < 8; ++i) {
                r.octets[static_cast<std::size_t>(i)] = e.memoire.Octet(MotDe(t, 1) + i);
            }
        } else if (TousEgaux(t, 1, 0)) {
            r.octets[1] = e.codeTest;
            PoserMot(r, 2, e.codeTest == 2 ? e.pointsCapteur : 0);
        } else {
            r.nombre = 0;
        }
    }
    static void EcritEeprom(EnregistreurSimule& e, Trame t, Reponse& r) {
        e.memoire.EcrireOctet(MotDe(t, 1), t[3]);
        PoserMot(r, 1, MotDe(t, 1));
        r.octets[3] = e.memoire.Octet(MotDe(t, 1));
    }
    static void EcritCorrection(EnregistreurSimule& e, Trame t, Reponse&) {
        for (int i = 0; i < 4; ++i) {
            e.memoire.EcrireOctet(adresse::correction + i, t[static_cast<std::size_t>(i + 1)]);
        }
    }
    static void LitDetection(EnregistreurSimule& e, Trame, Reponse& r) {
        r.octets[0] = static_cast<std::uint8_t>(e.detectionCapteur);
        r.octets[1] = static_cast<std::uint8_t>(e.detectionCapteur >> 8);
    }
    static void ForceContexte(EnregistreurSimule& e, Trame, Reponse&) { ++e.contextesForces; }

    static void Identifie(EnregistreurSimule& e, Trame, Reponse& r) {
        r.octets[1] = e.identite.versionHaute;
        r.octets[2] = e.identite.type;
        r.octets[3] = e.identite.versionBasse;
        r.octets[4] = e.identite.versionMilieu;
    }
};

const Micrologiciel::Ligne* Micrologiciel::Trouver(std::uint8_t code) {
    static constexpr std::array<Ligne, 32> lignes{{
        {1, 8, 8, EcritDemarrage},
        {2, 8, 8, LitProchaineMesure},
        {3, 8, 8, EcritMode},
        {4, 8, 8, LitMode},
        {5, 8, 8, EcritNumeroSerie},
        {6, 8, 8, LitNumeroSerie},
        {7, 8, 8, EcritDateCourante},
        {8, 8, 8, LitDateCourante},
        {9, 8, 9, LitVersion},
        {10, 2, 10, LitMesures},
        {11, 8, 8, EcritCommentaire1},
        {12, 8, 8, EcritCommentaire2},
        {13, 8, 8, LitCommentaire1},
        {14, 8, 8, LitCommentaire2},
        {15, 8, 1, Raz},
        {17, 8, 8, LitDemarrage},
        {18, 8, 1, FlashTampon},
        {19, 8, 1, FlashEcrit},
        {20, 8, 8, FlashLitOuTestDebit},
        {21, 8, 8, PointeurEcriture},
        {22, 8, 8, PointeurLecture},
        {24, 8, 8, EcritPointEtalonnage},
        {25, 8, 8, FinEtalonnage},
        {26, 8, 8, LitPointEtalonnage},
        {27, 8, 8, EcritDateEtalonnage},
        {28, 8, 8, LitDateEtalonnage},
        {29, 8, 8, LitEepromOuTest},
        {30, 8, 4, EcritEeprom},
        {31, 8, 1, EcritCorrection},
        {32, 8, 4, LitDetection},
        {99, 8, 1, ForceContexte},
        {240, 12, 6, Identifie},
    }};
    static constexpr auto rangs = [] {
        std::array<std::int16_t, 256> place{};
        place.fill(-1);
        for (std::size_t i = 0; i < lignes.size(); ++i) {
            place[lignes[i].code] = static_cast<std::int16_t>(i);
        }
        return place;
    }();
    const int rang = rangs[code];
    return rang < 0 ? nullptr : &lignes[static_cast<std::size_t>(rang)];
}

Reponse EnregistreurSimule::Repondre(std::span<const std::uint8_t> trame) {
    Reponse reponse;
    if (trame.empty()) return reponse;
    const std::uint8_t code = trame[0];
    const Micrologiciel::Ligne* ligne = Micrologiciel::Trouver(code);
    if (!ligne || trame.size() != ligne->longueurTrame) return reponse;
    if (code != 10) {
        TenirHorloge();
        // Back on the cord: the point that waited was measured meanwhile.
        if (code != 24 && code != 27) PrendreMesureEtalonnage();
    }
    reponse.nombre = ligne->longueurReponse;
    reponse.octets[0] = code;
    ligne->operation(*this, trame, reponse);
    return reponse;
}

}  // namespace bornika
