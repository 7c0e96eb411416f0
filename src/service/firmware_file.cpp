#include "service/firmware_file.h"

#include "platform/numbers.h"
#include "products/products.h"

namespace bornika {

namespace {

constexpr int longueurExtension = 4;

const RegleFirmware* RegleDe(std::int32_t type) {
    const Produit* produit = TrouverProduit(type);
    return produit ? produit->firmware : nullptr;
}

QString NomDe(const RegleFirmware& regle, bool drapeau) {
    return QString::fromUtf16(drapeau ? regle.nomZ907 : regle.nom);
}

}  // namespace

QString FormeNomFirmware(std::int32_t type, bool drapeau) {
    const RegleFirmware* regle = RegleDe(type);
    return NomDe(regle ? *regle : RegleFirmwareMontree(), drapeau) + QStringLiteral("X.XXX.HEX");
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
    if (!chemin.toUpper().contains(NomDe(*regle, drapeau))) return false;
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
