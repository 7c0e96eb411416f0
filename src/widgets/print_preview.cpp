#include "widgets/print_preview.h"

#include <QApplication>
#include <QPrintPreviewDialog>

#include "platform/guard.h"
#include "widgets/toolkit_dialogs.h"

namespace bornika {

namespace {

constexpr QSize tailleApercu(1000, 760);

}  // namespace

ImprimantePage::ImprimantePage(const DemandeApercu& demande)
    : QPrinter(QPrinter::ScreenResolution) {
    setDocName(demande.titre);
    setPageOrientation(demande.paysage ? QPageLayout::Landscape : QPageLayout::Portrait);
    setPageMargins(QMarginsF(demande.marges, demande.marges, demande.marges, demande.marges),
                   QPageLayout::Millimeter);
}

void DialoguesQt::Apercu(const DemandeApercu& demande) {
    ImprimantePage imprimante(demande);
    QPrintPreviewDialog dialogue(&imprimante, QApplication::activeWindow());
    dialogue.setWindowTitle(demande.titre);
    dialogue.resize(tailleApercu);
    QObject::connect(&dialogue, &QPrintPreviewDialog::paintRequested, &dialogue,
                     [&demande](QPrinter* page) { garder([&] { demande.peindre(*page); }); });
    dialogue.exec();
}

}  // namespace bornika
