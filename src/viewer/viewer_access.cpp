#include "viewer/viewer_access.h"

#include <QObject>

#include "shell/main_screen.h"
#include "viewer/trace_form.h"

namespace bornika {

AccesTrace::AccesTrace(MainScreen& ecran) : ecran_(ecran), contexte_(std::make_unique<QObject>()) {}

AccesTrace::~AccesTrace() = default;

Trace& AccesTrace::Fiche() {
    if (!trace_) {
        if (!fermees_.empty()) PrevoirMenage();
        trace_ = std::make_unique<Trace>(ecran_);
        QObject::connect(trace_.get(), &Trace::Fermeture, contexte_.get(), [this] { Ecarter(); });
        if (apresCreation) apresCreation(*trace_);
    }
    return *trace_;
}

void AccesTrace::Ecarter() {
    if (!trace_) return;
    QObject::connect(trace_.get(), &Trace::Repos, contexte_.get(), [this] { PrevoirMenage(); });
    fermees_.push_back(std::move(trace_));
    PrevoirMenage();
}

void AccesTrace::PrevoirMenage() {
    QMetaObject::invokeMethod(
        contexte_.get(), [this] { Menage(); }, Qt::QueuedConnection);
}

void AccesTrace::Menage() {
    // A download holds the form between its yields; its end, or the next form, comes back here.
    if (ecran_.etat.EnLecture) return;
    std::erase_if(fermees_, [](const auto& fermee) { return !fermee->EstOccupee(); });
}

}  // namespace bornika
