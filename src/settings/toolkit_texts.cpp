#include "settings/toolkit_texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace bornika {

namespace {

constexpr char nomTraducteur[] = "textesOutils";

// The toolkit may add the country to a language's own name: "español de España".
bool EstNomDe(const QString& langue, const QLocale& locale) {
    const QString propre = locale.nativeLanguageName() + u' ';
    return propre.startsWith(langue + u' ', Qt::CaseInsensitive) ||
           langue.compare(QLocale::languageToString(locale.language()), Qt::CaseInsensitive) == 0;
}

/// File of that language, "" for none.
QString FichierDeTraduction(const QString& langue, const QDir& dossier) {
    const QString debut = QStringLiteral("qtbase_");
    for (const QString& nom : dossier.entryList({debut + QLatin1String("*.qm")}, QDir::Files)) {
        const QString code = nom.mid(debut.size()).chopped(3);
        if (EstNomDe(langue, QLocale(code))) return dossier.filePath(nom);
    }
    return {};
}

}  // namespace

QString DossierTraductions() {
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

void TraduireOutils(const QString& langue, const QString& dossier) {
    // Deleted, a translator takes its texts back.
    delete qApp->findChild<QTranslator*>(QLatin1String(nomTraducteur));
    auto traducteur = std::make_unique<QTranslator>();
    const QString fichier = FichierDeTraduction(langue, QDir(dossier));
    if (fichier.isEmpty() || !traducteur->load(fichier)) return;
    traducteur->setObjectName(QLatin1String(nomTraducteur));
    traducteur->setParent(qApp);
    QCoreApplication::installTranslator(traducteur.release());
}

}  // namespace bornika
