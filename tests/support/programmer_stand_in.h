#pragma once

#include <QFile>
#include <QFileInfo>
#include <QString>

namespace bornika::essai {

/// The stand-in for the external programmer tool, put to a path as an executable.
class OutilDEssai {
  public:
    explicit OutilDEssai(const QString& chemin) : dossier_(QFileInfo(chemin).path()) {
        if (!QFile::copy(QStringLiteral(BORNIKA_STAND_IN), chemin)) qFatal("cannot copy the tool");
    }

    /// It runs on until it is let go.
    void Retenir() const { QFile(Chemin("tool-hold")).open(QIODevice::WriteOnly); }
    /// It dies in the middle of its work.
    void FaireMourir() const { QFile(Chemin("tool-die")).open(QIODevice::WriteOnly); }
    void Liberer() const { QFile::remove(Chemin("tool-hold")); }

    /// What it was given, each argument followed by NUL.
    QByteArray Arguments() const { return Lire("tool-arguments"); }
    /// The session that it runs in.
    QByteArray Session() const { return Lire("tool-session"); }
    /// The version that it has transferred; empty before its end.
    QByteArray Version() const { return Lire("tool-version"); }

  private:
    QString Chemin(const char* nom) const { return dossier_ + u'/' + QString::fromLatin1(nom); }
    QByteArray Lire(const char* nom) const {
        QFile fichier(Chemin(nom));
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
    }

    QString dossier_;
};

}  // namespace bornika::essai
