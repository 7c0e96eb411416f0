#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "chart/model/visible_range.h"
#include "platform/regional.h"
#include "recording/recording_number.h"

namespace bornika {

class ModeleGraphe;

/// Three columns for a spreadsheet, or a recording as it stands.
enum class FormatSelection { Csv, Enregistrement };

/// What goes out of a recording, and how.
struct DemandeSelection {
    FormatSelection format = FormatSelection::Csv;
    /// A line goes out when its time lies in one of them, ends included.
    std::vector<Plage> portees;
    /// Title of the first column of a csv.
    QString titreTemps;
    /// Flow settings, which the header of a recording with more than 7 fields takes.
    QString CoefImpulsion;
    QString UniteImpulsion;
    QString TexteListeTemps;
    Regional regional;
};

/// For each curve that shows a point, the time from its first to its last visible one. Curves that
/// are switched off in the legend count too.
std::vector<Plage> PorteesVisibles(const ModeleGraphe& modele);

/// The lines that go out of one recording, without their line ends.
///
/// Lines of the source end at CR or, in a source without any CR, at LF; other line feeds are
/// dropped. What follows the last line end is no line: a recording that was cut off gives no half
/// line. Values pass through as they stand, decimal separators included.
class LecteurSelection {
  public:
    /// `source` and `demande` must outlive the object. Fault 9 for an empty source, and for a
    /// header that lacks a column of the csv.
    LecteurSelection(QByteArrayView source, const DemandeSelection& demande);

    const QByteArray& Entete() const { return entete_; }
    /// The next line that goes out, valid until the next call; nothing at the end. A fault names
    /// the line: 9 for a blank line or one that lacks a column of the csv, 13 when its time is no
    /// number.
    std::optional<QByteArrayView> Suivante();

  private:
    std::optional<QByteArrayView> Couper();
    /// What stands behind the time of a line that goes out.
    std::optional<QByteArrayView> SuiteGardee(QByteArrayView ligne) const;
    QByteArrayView SansSautDeLigne(QByteArrayView ligne);
    QByteArrayView Colonnes(QByteArrayView suite);

    const DemandeSelection& demande_;
    LecteurNombres nombres_;
    char finLigne_;
    const char* place_;
    const char* fin_;
    qint64 numero_ = 0;
    QByteArray entete_;
    QByteArray entiere_;
    std::string colonnes_;
};

/// Path of the comments of a saved selection: "txt" in the file's name, in any letter case, becomes
/// "Cmt"; a name without it gets ".Cmt" behind, so that the comments never take the file's place.
QString CheminCommentairesSelection(const QString& cible);

}  // namespace bornika
