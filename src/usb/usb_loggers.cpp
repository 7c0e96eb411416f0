#include "usb/usb_loggers.h"

#include <algorithm>
#include <limits>
#include <system_error>

#include "usb/usb_device.h"
#include "usb/usb_scan.h"

namespace bornika {

EnregistreursUsb::EnregistreursUsb(std::vector<ReglageUsb> reglages)
    : recensement_(std::make_unique<RecensementUsb>(std::move(reglages))) {}

EnregistreursUsb::~EnregistreursUsb() = default;

int EnregistreursUsb::Compte() {
    presents_ = recensement_->Recenser(erreur_);
    return static_cast<int>(presents_.size());
}

IdentifiantUsb EnregistreursUsb::Identifiant(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= presents_.size()) return 0;
    return presents_[static_cast<std::size_t>(index)].id;
}

AbsenceUsb EnregistreursUsb::Absence() {
    if (recensement_->SansReglage()) return AbsenceUsb::SansReglage;
    if (recensement_->SansDroits()) return AbsenceUsb::SansDroits;
    return recensement_->SansPoints() ? AbsenceUsb::SansPoints : AbsenceUsb::Aucune;
}

std::shared_ptr<AppareilUsb> EnregistreursUsb::OuvrirParmi(
    const std::vector<EnregistreurUsb>& presents, IdentifiantUsb id) {
    erreur_ = LIBUSB_ERROR_NO_DEVICE;
    const auto present = std::find_if(presents.begin(), presents.end(),
                                      [id](const auto& un) { return un.id == id; });
    if (present == presents.end()) return {};
    std::weak_ptr<AppareilUsb>& ouvert = ouverts_[present->peripherique.get()];
    if (auto appareil = ouvert.lock()) {
        if (appareil->Perdu()) return {};
        erreur_ = LIBUSB_SUCCESS;
        return appareil;
    }
    auto appareil = AppareilUsb::Ouvrir(*present, erreur_);
    ouvert = appareil;
    return appareil;
}

std::shared_ptr<AppareilUsb> EnregistreursUsb::OuvrirAppareil(IdentifiantUsb id) {
    std::erase_if(ouverts_, [](const auto& ouvert) { return ouvert.second.expired(); });
    if (auto appareil = OuvrirParmi(presents_, id)) return appareil;
    if (erreur_ != LIBUSB_ERROR_NO_DEVICE) return {};
    // Plugged in again since the count, whose indices stay as they are.
    const auto presents = recensement_->Recenser(erreur_);
    return OuvrirParmi(presents, id);
}

PoigneeUsb EnregistreursUsb::Ouvrir(IdentifiantUsb id) {
    std::shared_ptr<AppareilUsb> appareil = OuvrirAppareil(id);
    if (!appareil) return -1;
    do {
        dernierePoignee_ =
            dernierePoignee_ == std::numeric_limits<PoigneeUsb>::max() ? 1 : dernierePoignee_ + 1;
    } while (poignees_.contains(dernierePoignee_));
    poignees_[dernierePoignee_] = std::move(appareil);
    return dernierePoignee_;
}

std::shared_ptr<AppareilUsb> EnregistreursUsb::AppareilDe(PoigneeUsb poignee) const {
    const auto trouvee = poignees_.find(poignee);
    return trouvee == poignees_.end() ? nullptr : trouvee->second;
}

bool EnregistreursUsb::Ecrire(PoigneeUsb poignee, std::span<const std::uint8_t> octets) {
    const auto appareil = AppareilDe(poignee);
    erreur_ = appareil ? appareil->Ecrire(octets) : LIBUSB_ERROR_INVALID_PARAM;
    return erreur_ == LIBUSB_SUCCESS;
}

int EnregistreursUsb::Lire(PoigneeUsb poignee, std::span<std::uint8_t> octets) {
    erreur_ = LIBUSB_ERROR_INVALID_PARAM;
    const auto appareil = AppareilDe(poignee);
    return appareil ? appareil->Lire(octets, erreur_) : 0;
}

void EnregistreursUsb::Annuler(PoigneeUsb) {
    erreur_ = 0;
}

void EnregistreursUsb::Fermer(PoigneeUsb poignee) {
    erreur_ = 0;
    poignees_.erase(poignee);
}

std::uint32_t EnregistreursUsb::DerniereErreur() const {
    return NumeroSysteme(erreur_);
}

QString EnregistreursUsb::TexteErreur(std::uint32_t code) const {
    if (code == 0) return {};
    return QString::fromLocal8Bit(std::generic_category().message(static_cast<int>(code))) +
           QStringLiteral("\r\n");
}

}  // namespace bornika
