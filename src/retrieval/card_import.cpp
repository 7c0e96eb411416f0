#include "retrieval/card_import.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <optional>

#include "link/device_identity.h"
#include "platform/atomic_file.h"
#include "platform/named_fault.h"
#include "products/firmware_versions.h"
#include "recording/recording_file.h"
#include "shell/product_box.h"
#include "viewer/chart_session.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika {

namespace {

constexpr qint64 tailleMorceau = 1 << 20;
constexpr QChar separateur = u'\0';

bool SeLitParCable(Poste& poste) {
    bool ok = true;
    LitVersionKpod(poste, ok);
    // A silent logger leaves the version that was known before, if any.
    const double version = poste.ecran.etat.VersionLogiciel;
    return version > 0 && version < version::carte;
}

QString DemanderFichiers(MainScreen& ecran) {
    DemandeFichier demande;
    demande.nom = QStringLiteral("*.txt");
    demande.suffixe = QStringLiteral("*.txt");
    demande.filtre = QStringLiteral("(*.txt)|*.txt");
    demande.dossier = ecran.systeme.dossier;
    demande.plusieurs = true;
    return ecran.systeme.dialogues.Ouvrir(demande).value_or(demande.nom);
}

void CopierSource(QFile& source, FichierPrepare& cible, const QString& nomCible) {
    for (;;) {
        const QByteArray morceau = source.read(tailleMorceau);
        if (source.error() != QFileDevice::NoError)
            nommer(QFileInfo(source).fileName(), [] { LeverFaute(numero_faute::accesRefuse); });
        if (morceau.isEmpty()) return;
        nommer(nomCible, [&] { cible.Ecrire(morceau); });
    }
}

void OuvrirSource(QFile& source) {
    if (source.open(QIODevice::ReadOnly)) return;
    const int numero =
        source.exists() ? numero_faute::accesRefuse : numero_faute::fichierIntrouvable;
    nommer(QFileInfo(source).fileName(), [&] { LeverFaute(numero); });
}

void MontrerEnregistrement(AccesTrace& acces, const QString& fichier) {
    Trace& trace = acces.Fiche();
    trace.show();
    trace.NomDialogue = fichier;
    chart_Init(trace);
}

}  // namespace

bool EstSansChoix(const QString& nom) {
    return nom.contains(QLatin1Char('*'));
}

bool NommeJournalDemarrage(const QString& nom) {
    return nom.contains(QLatin1String("STARTLOG"), Qt::CaseInsensitive);
}

QStringList FichiersChoisis(const QString& nom) {
    const QStringList parts = nom.split(separateur);
    if (parts.size() < 2) return parts;
    const QDir dossier(parts.front());
    QStringList fichiers;
    for (const QString& part : parts.mid(1))
        fichiers << dossier.filePath(part);
    return fichiers;
}

QString NomEnregistrementLibre(const QString& dossier, QDateTime instant) {
    for (;; instant = instant.addSecs(1)) {
        const QString nom = NomDeBase(instant) + QStringLiteral(".txt");
        if (!QFileInfo::exists(QDir(dossier).filePath(nom))) return nom;
    }
}

void JoindreFichiers(const QStringList& sources, const QString& cible) {
    const QString nomCible = QFileInfo(cible).fileName();
    std::optional<FichierPrepare> prepare;
    nommer(nomCible, [&] { prepare.emplace(cible); });
    for (const QString& chemin : sources) {
        QFile source(chemin);
        OuvrirSource(source);
        CopierSource(source, *prepare, nomCible);
    }
    nommer(nomCible, [&] { prepare->MettreEnPlace(); });
}

void LireSD(Poste& poste, AccesTrace& acces) {
    MainScreen& ecran = poste.ecran;
    if (SeLitParCable(poste)) {
        MontrerMessage(ecran, Icone::Information,
                       QStringLiteral("Vous devez lires les données avec le cordon USB"));
        return;
    }
    const QString choix = DemanderFichiers(ecran);
    if (EstSansChoix(choix) || NommeJournalDemarrage(choix)) return;
    const QString fichier =
        NomEnregistrementLibre(ecran.systeme.dossier, ecran.systeme.horloge.Maintenant());
    JoindreFichiers(FichiersChoisis(choix), ecran.systeme.Chemin(fichier));
    // Of several files the folder is shown.
    ecran.setWindowTitle(choix.section(separateur, 0, 0));
    MontrerTexte(ecran, Icone::Information,
                 ecran.textes.TexteValeursStockees + QLatin1Char(' ') + fichier);
    if (!ecran.etat.EnFermeture) MontrerEnregistrement(acces, fichier);
}

}  // namespace bornika
