#include "service/firmware_file.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "platform/numbers.h"

namespace bornika {

namespace {

constexpr double sansLimite = std::numeric_limits<double>::infinity();
constexpr int longueurExtension = 4;

/// What a file for one product type must be called, and the versions taken: from `mini` on, below
/// `maxi`.
struct RegleFirmware {
    std::int32_t type;
    const char16_t* nom;
    const char16_t* nomZ907;
    double mini;
    double maxi;

    QString Nom(bool drapeau) const { return QString::fromUtf16(drapeau ? nomZ907 : nom); }
};

constexpr RegleFirmware regles[] = {
    {1, u"K-POD_V", u"Z907PT_V", -sansLimite, 2.11},
    {19, u"K-POD-33_V", u"Z907FPT_V", 2.112, sansLimite},
    {20, u"K-POD-33_V", u"Z907FPT_V", 2.12, sansLimite},
};
/// The rule whose name form is shown for types that have none of their own.
constexpr const RegleFirmware& regleMontree = regles[1];

const RegleFirmware* RegleDe(std::int32_t type) {
    const auto regle = std::find_if(std::begin(regles), std::end(regles),
                                    [type](const RegleFirmware& r) { return r.type == type; });
    return regle == std::end(regles) ? nullptr : regle;
}

}  // namespace

QString FormeNomFirmware(std::int32_t type, bool drapeau) {
    const RegleFirmware* regle = RegleDe(type);
    return (regle ? *regle : regleMontree).Nom(drapeau) + QStringLiteral("X.XXX.HEX");
}

QString TexteVersionFirmware(const QString& chemin) {
    const QLatin1String marque("_V");
    const qsizetype place = chemin.indexOf(marque, 0, Qt::CaseInsensitive);
    QString texte = place < 0 ? chemin : chemin.mid(place + marque.size());
    texte.chop(longueurExtension);
    return texte.replace(QLatin1Char('_'), QLatin1Char('.'));
}

bool AUneRegleFirmware(std::int32_t type) {
    return RegleDe(type) != nullptr;
}

bool EstFirmwarePour(const QString& chemin, std::int32_t type, bool drapeau) {
    const RegleFirmware* regle = RegleDe(type);
    if (regle == nullptr) return true;
    // Anywhere in the path: a folder of that name does as well.
    if (!chemin.toUpper().contains(regle->Nom(drapeau))) return false;
    // What was read as a number is one: a version that is none counts as 0.
    const double version = ValeurDebut(TexteVersionFirmware(chemin));
    return version >= regle->mini && version < regle->maxi;
}

AppelChargeur CommandeChargeur(const QString& dossier, const QString& langue, IdentifiantUsb usb,
                               const QString& chemin, std::int32_t type) {
    return {dossier + QStringLiteral("/Chargeur_m_v239.exe"),
            QStringLiteral("LANGUE=") + langue + QStringLiteral(" ;device=k-pod;USBID=") +
                QString::number(usb) + QStringLiteral(";prg=") + chemin +
                QStringLiteral(";prodcode=") + QString::number(type) + QLatin1Char(':') +
                TexteVersionFirmware(chemin)};
}

}  // namespace bornika
