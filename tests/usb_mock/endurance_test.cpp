// A whole day's work on one logger leaves nothing behind.

#include <malloc.h>

#include <filesystem>

#include "usb_mock/loggers_fixture.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace bornika {
namespace {

using essai::Trame;
using essai::version;

constexpr int echanges = 10'000;
constexpr int echangesParOuverture = 20;

std::size_t OctetsAlloues() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 etat = mallinfo2();
    return etat.uordblks + etat.hblkhd;
#endif
}

int FichiersOuverts() {
    const std::filesystem::directory_iterator dossier("/proc/self/fd");
    return static_cast<int>(std::distance(begin(dossier), end(dossier)));
}

struct Endurance : essai::BancEnregistreurs {
    void Travailler(int combien) {
        for (int fait = 0; fait < combien; fait += echangesParOuverture) {
            Ouvrir(id);
            for (int i = 0; i < echangesParOuverture; ++i)
                if (Echanger(version, attendu.size()) != attendu) ++fautes;
            Fermer();
        }
    }

    IdentifiantUsb id = 0;
    Trame attendu;
    int fautes = 0;
};

TEST_F(Endurance, TenThousandExchangesLeaveNoMemoryNoHandleAndNoRequest) {
    const int port = Brancher();
    attendu = Attendu(port, version);
    banc->Regler(port, [](auto& appareil) { appareil.enregistreur->journal.ReglerLimite(0); });
    ASSERT_EQ(usb().Compte(), 1);
    id = usb().Identifiant(0);
    // What is made once stands after these.
    Travailler(500);
    ASSERT_EQ(banc->ComptesFermes().ouvertures, 0);
    const int fichiers = FichiersOuverts();
    const essai::ComptesUsb avant = banc->Comptes();
    const std::size_t octets = OctetsAlloues();

    Travailler(echanges);
    ASSERT_EQ(banc->ComptesFermes().ouvertures, 0);
    EXPECT_EQ(fautes, 0);
    EXPECT_EQ(banc->Comptes().demandes - avant.demandes, 2 * echanges);
    EXPECT_EQ(banc->Comptes().enCours, 0);
    EXPECT_EQ(banc->Comptes().abandons, avant.abandons);
    EXPECT_EQ(banc->Comptes().reclamations, 0);
    EXPECT_EQ(FichiersOuverts(), fichiers);
    // One block of memory an exchange, however small, would be eight times as much.
    EXPECT_LT(OctetsAlloues(), octets + 4 * echanges);
}

}  // namespace
}  // namespace bornika
