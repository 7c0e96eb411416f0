#pragma once

#include <QString>
#include <vector>

class QObject;
class QWidget;

/// What the walks over the controls of a form need: which controls there are, which of them have a
/// caption or a help text, and how a caption is read and written whatever the kind of control.
namespace bornika {

/// All named controls of a form from the first made to the last, menus and their entries included.
/// The parts that the toolkit itself puts inside a control are left out, and so is the form.
std::vector<QObject*> ControlesDe(QWidget& fiche);

/// Key of a control in the catalogue: its name, or the common name of the array that it belongs to.
QString CleDe(const QObject& controle);

/// True for what shows a text of its own: label, button, option, check box, frame, menu and entry.
bool aCaption(const QObject& controle);

/// True for the kinds that get a help text: text box, button, combo box, option, check box and date
/// picker.
bool aBulle(const QObject& controle);

/// Caption as plain text: "&" is a character here, never the mark of a shortcut. "" for a control
/// without caption.
QString Caption(const QObject& controle);

/// Does nothing for a control without caption.
void FixerCaption(QObject& controle, const QString& texte);

/// Keeps the present captions of a form's controls as those of its design. To be called once, when
/// the form has just been made.
void RetenirCaptions(QWidget& fiche);

/// Caption that the control had by design, whatever it shows now.
QString CaptionDeDepart(const QObject& controle);

}  // namespace bornika
