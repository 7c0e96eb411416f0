#pragma once

#include <QByteArray>
#include <QString>
#include <chrono>
#include <string>

/// 8-bit text files: Windows-1252, CR LF at the end of written lines, every line end accepted in
/// reading.
namespace bornika {

enum class ModeEcriture { Remplacer, Ajouter };

/// A text file being written in place. Lines reach the disk at least once a second, so that what
/// was interrupted keeps what it had.
class FichierTexteEcrit {
  public:
    /// Creates the file (or opens it to append). Fault 76 for a missing folder, 52 for a name that
    /// cannot be, 61 for a full disk, else 70.
    /// A line written when the last ones reached the disk `delai` ago brings all of them there.
    FichierTexteEcrit(const QString& chemin, ModeEcriture mode,
                      std::chrono::milliseconds delai = std::chrono::seconds(1));
    ~FichierTexteEcrit();
    FichierTexteEcrit(const FichierTexteEcrit&) = delete;
    FichierTexteEcrit& operator=(const FichierTexteEcrit&) = delete;

    /// Writes the text, then CR LF. A write that fails raises a fault, 61 for a full disk and 70
    /// otherwise, whose text is the platform's reason.
    void EcrireLigne(QStringView texte);
    /// The same for a line that is 8-bit already.
    void EcrireLigneOctets(QByteArrayView octets);
    /// Writes the text alone.
    void Ecrire(QStringView texte);
    /// Brings everything to the disk and closes. Raises the same fault as a write.
    void Fermer();

    const QString& Chemin() const { return chemin_; }

    /// Flushes every open file of this kind: the last act before the program is ended by a fault.
    static void ViderTous() noexcept;

  private:
    void Ajouter(QByteArrayView octets);
    void Deposer(QByteArrayView octets);
    void Vider();

    QString chemin_;
    int descripteur_ = -1;
    std::string tampon_;
    std::chrono::milliseconds delai_;
    /// By a clock of its own.
    std::chrono::nanoseconds dernierVidage_;
};

/// A text file being read line by line.
class FichierTexteLu {
  public:
    /// Opens. Fault 53 when the file is missing, 70 when it cannot be read.
    explicit FichierTexteLu(const QString& chemin);

    qint64 Taille() const { return taille_; }
    /// All bytes of the file, valid as long as this object.
    QByteArrayView Contenu() const { return contenu_; }
    bool EstFin() const { return position_ >= contenu_.size(); }
    /// True at the end of the stream or when the next byte is CR or LF.
    bool EstFinDeLigne() const;
    /// Next line without its line end, as bytes of the file. A line ends at LF; one CR before it is
    /// dropped. The view stays valid as long as this object.
    QByteArrayView LireLigne();

  private:
    QByteArray contenu_;
    qint64 taille_ = 0;
    qsizetype position_ = 0;
};

}  // namespace bornika
