#include "usb_mock/program/piloted_program.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>
#include <stdexcept>

namespace bornika::essai {

namespace {

// Far beyond what anything takes, also on a machine that is busy with something else.
constexpr int patienceMs = 120'000;
constexpr int regardMs = 20;

}  // namespace

ProgrammePilote::ProgrammePilote() {
    // The program looks for its files beside itself: a link would lead back to the build.
    if (!QFile::copy(QStringLiteral(BORNIKA_PROGRAM), Chemin(QStringLiteral("bornika"))) ||
        QProcess::execute(QStringLiteral(BORNIKA_DELIVER),
                          {QStringLiteral(BORNIKA_RESOURCES), dossier_.path()}) != 0)
        throw std::runtime_error("the program cannot be put into a folder");
}

ProgrammePilote::~ProgrammePilote() {
    if (processus_.state() == QProcess::NotRunning) return;
    processus_.kill();
    processus_.waitForFinished();
}

bool ProgrammePilote::Regler(const QByteArray& ancien, const QByteArray& nouveau) {
    QByteArray configuration = Contenu(QStringLiteral("config.xml"));
    if (!configuration.contains(ancien)) return false;
    configuration.replace(ancien, nouveau);
    QFile fichier(Chemin(QStringLiteral("config.xml")));
    return fichier.open(QIODevice::WriteOnly) &&
           fichier.write(configuration) == configuration.size();
}

bool ProgrammePilote::Demarrer() {
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environnement.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(BORNIKA_PLUGINS));
    environnement.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                         QStringLiteral("bornika_operator"));
    processus_.setProcessEnvironment(environnement);
    processus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processus_.start(Chemin(QStringLiteral("bornika")), {});
    return processus_.waitForStarted(patienceMs);
}

QJsonValue ProgrammePilote::Demander(const QJsonObject& ordre) {
    processus_.write(QJsonDocument(ordre).toJson(QJsonDocument::Compact) + '\n');
    while (!processus_.canReadLine())
        if (!processus_.waitForReadyRead(patienceMs)) return QJsonValue::Undefined;
    return QJsonDocument::fromJson(processus_.readLine()).object().value("valeur");
}

bool ProgrammePilote::Attendre(const std::function<bool()>& condition) {
    QElapsedTimer duree;
    duree.start();
    while (!condition()) {
        if (duree.elapsed() > patienceMs) return false;
        QThread::msleep(regardMs);
    }
    return true;
}

QJsonValue ProgrammePilote::Ordonner(const QJsonObject& ordre) {
    QJsonValue valeur = QJsonValue::Undefined;
    Attendre([&] {
        valeur = Demander(ordre);
        return !valeur.isUndefined() || processus_.state() != QProcess::Running;
    });
    return valeur;
}

bool ProgrammePilote::Cliquer(const QString& nom) {
    return Ordonner({{"quoi", "cliquer"}, {"nom", nom}}).toBool();
}

bool ProgrammePilote::Choisir(const QString& liste, int ligne) {
    return Ordonner({{"quoi", "choisir"}, {"nom", liste}, {"ligne", ligne}}).toBool();
}

QString ProgrammePilote::Texte(const QString& nom, const char* propriete) {
    return Ordonner({{"quoi", "lire"}, {"nom", nom}, {"propriete", propriete}})
        .toVariant()
        .toString();
}

QStringList ProgrammePilote::Lignes(const QString& liste) {
    return Ordonner({{"quoi", "lignes"}, {"nom", liste}}).toVariant().toStringList();
}

QString ProgrammePilote::RepondreBoite() {
    const QString texte = Ordonner({{"quoi", "boite"}}).toString();
    return Ordonner({{"quoi", "repondre"}}).toBool() ? texte : QString();
}

bool ProgrammePilote::Photographier(const QString& nom, const QString& chemin) {
    return Ordonner({{"quoi", "photo"}, {"nom", nom}, {"fichier", chemin}}).toBool();
}

int ProgrammePilote::AttendreFin() {
    if (processus_.state() != QProcess::NotRunning && !processus_.waitForFinished(patienceMs))
        return -1;
    return processus_.exitStatus() == QProcess::NormalExit ? processus_.exitCode() : -1;
}

QByteArray ProgrammePilote::Contenu(const QString& fichier) const {
    QFile lu(Chemin(fichier));
    return lu.open(QIODevice::ReadOnly) ? lu.readAll() : QByteArray();
}

QStringList ProgrammePilote::Fichiers(const QString& motif) const {
    return QDir(dossier_.path()).entryList({motif}, QDir::Files, QDir::Name);
}

}  // namespace bornika::essai
