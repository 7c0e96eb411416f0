#pragma once

#include <cstdint>
#include <vector>

namespace bornika::simulateur {

/// What goes wrong in one exchange.
enum class GenrePanne : std::uint8_t {
    aucune,
    /// The logger does not hear the frame: nothing changes in it and no byte comes back.
    silence,
    /// The logger carries the command out, but its reply is lost.
    reponsePerdue,
    /// Only the first `parametre` bytes of the reply come.
    reponseCourte,
    /// The first byte of the reply is another one.
    mauvaisEcho,
    /// The reply has its length, but every byte is disturbed.
    bruit,
    /// The logger is pulled out after it has taken the frame.
    debranchement
};

/// Any command code.
inline constexpr int toutesCommandes = -1;
/// A count without end.
inline constexpr int sansFin = -1;

/// A fault to come: from the `occurrence`-th matching frame after the order (1 = the next one),
/// `combien` frames long.
struct OrdrePanne {
    int code = toutesCommandes;
    GenrePanne genre = GenrePanne::silence;
    int occurrence = 1;
    int combien = 1;
    int parametre = 0;
    /// Matching frames seen since the order.
    int vues = 0;
};

/// The faults ordered for one logger.
class Pannes {
  public:
    void Ordonner(const OrdrePanne& ordre) { echanges_.push_back(ordre); }
    /// The next `combien` writes fail, after `apres` good ones.
    void OrdonnerEchecsEcriture(int combien, int apres = 0);
    /// Opening fails for the handle of `rang` (1 or 2: as many handles are then open, plus one),
    /// `combien` times, after `apres` good ones of that rank.
    void OrdonnerEchecOuverture(int rang, int combien = 1, int apres = 0);
    void Annuler();

    /// The fault of the exchange that begins with `code`; the first order that applies wins, and
    /// all orders count the frame.
    OrdrePanne PourTrame(int code);
    bool EcritureEchoue() { return Consommer(ecritures_, 0); }
    bool OuvertureEchoue(int rang) { return Consommer(ouvertures_, rang); }

  private:
    struct Echec {
        int rang;
        int apres;
        int combien;
    };
    static bool Consommer(std::vector<Echec>& echecs, int rang);

    std::vector<OrdrePanne> echanges_;
    std::vector<Echec> ecritures_;
    std::vector<Echec> ouvertures_;
};

}  // namespace bornika::simulateur
