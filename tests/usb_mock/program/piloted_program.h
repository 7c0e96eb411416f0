#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

namespace bornika::essai {

/// The delivered program as a process of its own, in a folder of its own, with the hand of an
/// operator in it that clicks and looks. Controls are named "form/name"; every order waits until it
/// can be carried out.
class ProgrammePilote {
  public:
    /// Makes the folder as it is delivered.
    ProgrammePilote();
    /// A program that still runs is ended.
    ~ProgrammePilote();
    ProgrammePilote(const ProgrammePilote&) = delete;
    ProgrammePilote& operator=(const ProgrammePilote&) = delete;

    /// Puts a text of the configuration in place of another one; false when there is none.
    bool Regler(const QByteArray& ancien, const QByteArray& nouveau);
    bool Demarrer();

    /// A click on the control of that name, on the screen and not behind a dialog.
    bool Cliquer(const QString& nom);
    /// A click on a line of a list.
    bool Choisir(const QString& liste, int ligne);
    /// A property of a control.
    QString Texte(const QString& nom, const char* propriete = "text");
    /// The lines of a list.
    QStringList Lignes(const QString& liste);
    /// Text of the box that stands, and a click on its first button; empty when none comes.
    QString RepondreBoite();
    /// A picture of a control or a form, into a file.
    bool Photographier(const QString& nom, const QString& chemin);
    /// Waits until it holds.
    static bool Attendre(const std::function<bool()>& condition);
    /// Waits for the end of the program and returns its exit status; -1 when it crashed or goes on.
    int AttendreFin();

    QString Chemin(const QString& fichier) const { return dossier_.filePath(fichier); }
    QByteArray Contenu(const QString& fichier) const;
    /// Names of the files that end so.
    QStringList Fichiers(const QString& motif) const;

  private:
    QJsonValue Demander(const QJsonObject& ordre);
    QJsonValue Ordonner(const QJsonObject& ordre);

    QTemporaryDir dossier_;
    QProcess processus_;
};

}  // namespace bornika::essai
