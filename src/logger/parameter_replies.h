#pragma once

#include <QByteArray>
#include <optional>

#include "link/bytes.h"
#include "logger/calibration_figures.h"
#include "logger/recording_mode.h"

/// What the replies of the reading say, in values. All of it computes only. Nothing stands for an
/// answer of another command.
namespace bornika {

struct VersionLue {
    int type = 0;
    int haut = 0;
    int bas = 0;
    /// Reading of the battery, and the code of the memory size.
    int pile = 0;
    int codeTaille = 0;
};
std::optional<VersionLue> VersionLueDe(const VueReponse& reponse);

std::optional<double> NumeroSerieDe(const VueReponse& reponse);

/// When the logger was last calibrated (0 for never) and the list index of its sensor.
struct CapteurEtalonne {
    double date = 0;
    int echelle = 0;
};
std::optional<CapteurEtalonne> CapteurEtalonneDe(const VueReponse& reponse);

/// A calibration point that was asked for, with the state of the calibration that came with it.
struct PointLu {
    enum class Issue { Silence, AutreEcho, Point };
    Issue issue = Issue::Silence;
    PointEtalonnage point;
    int etat = 0;
};
/// Never `Silence`.
PointLu PointLuDe(const VueReponse& reponse);

/// Next measure, number of the sampling period, measures before the trigger.
struct ProchaineMesureLue {
    double date = 0;
    int periode = 0;
    int nombreAvant = 0;
};
std::optional<ProchaineMesureLue> ProchaineMesureDe(const VueReponse& reponse);

/// Start of the recording.
std::optional<double> DemarrageDe(const VueReponse& reponse);

/// The logger's clock, number of the period after the trigger, whether a card is in.
struct HorlogeLue {
    double date = 0;
    int periodeTrigger = 0;
    bool carte = false;
};
std::optional<HorlogeLue> HorlogeLueDe(const VueReponse& reponse);
/// The last of it alone, whatever the echo.
bool EstCartePresente(const VueReponse& reponse);

struct ModeLu {
    ModeEnregistrement mode;
    /// Thresholds in points.
    int seuil1 = 0;
    int seuil2 = 0;
    /// List indices.
    int echelle = 0;
    int unite = 0;
};
std::optional<ModeLu> ModeLuDe(const VueReponse& reponse);

/// Seven characters of the comment, whatever the reply's first byte.
QByteArray MoitieCommentaireDe(const VueReponse& reponse);

/// A place in the recording memory; `r5` is the sixth byte of the reply.
struct PointeurLu {
    int page = 0;
    int offset = 0;
    int r5 = 0;
};
std::optional<PointeurLu> PointeurLuDe(const VueReponse& reponse, int commande);

}  // namespace bornika
