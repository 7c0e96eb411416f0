#include "platform/program_folder.h"

#include <QCoreApplication>
#include <QTemporaryFile>

namespace bornika {

QString DossierProgramme() {
    return QCoreApplication::applicationDirPath();
}

bool DossierInscriptible(const QString& dossier) {
    QTemporaryFile essai(dossier + QStringLiteral("/.essai-XXXXXX"));
    return essai.open();
}

}  // namespace bornika
