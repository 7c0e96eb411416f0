#include "shell/captions.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

namespace bornika {

namespace {

constexpr char proprieteCle[] = "cle";
constexpr char proprieteDepart[] = "captionDeDepart";

// A label that shows a picture has no caption.
const QLabel* EtiquetteDe(const QObject& controle) {
    const auto* etiquette = qobject_cast<const QLabel*>(&controle);
    return etiquette && etiquette->pixmap().isNull() && !etiquette->hasScaledContents() ? etiquette
                                                                                        : nullptr;
}

// The text with the marks of shortcuts in it, as the toolkit keeps it.
QString TexteMarque(const QObject& controle) {
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&controle)) return bouton->text();
    if (const auto* cadre = qobject_cast<const QGroupBox*>(&controle)) return cadre->title();
    if (const auto* menu = qobject_cast<const QMenu*>(&controle)) return menu->title();
    if (const auto* entree = qobject_cast<const QAction*>(&controle)) return entree->text();
    return {};
}

QString Demarquer(const QString& texte) {
    QString net;
    net.reserve(texte.size());
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (texte[i] == u'&' && ++i == texte.size()) break;
        net += texte[i];
    }
    return net;
}

// Inside these the toolkit makes objects of its own, some of them with a name.
bool EstCompose(const QObject& objet) {
    return qobject_cast<const QComboBox*>(&objet) ||
           qobject_cast<const QAbstractSpinBox*>(&objet) ||
           qobject_cast<const QLineEdit*>(&objet) ||
           qobject_cast<const QAbstractItemView*>(&objet) ||
           qobject_cast<const QPlainTextEdit*>(&objet) || qobject_cast<const QTextEdit*>(&objet);
}

bool EstControle(const QObject& objet) {
    if (objet.objectName().isEmpty() || objet.objectName().startsWith(QLatin1String("qt_")))
        return false;
    return objet.isWidgetType() || qobject_cast<const QAction*>(&objet);
}

void ParcourirControles(const QObject& parent, std::vector<QObject*>& controles) {
    for (QObject* enfant : parent.children()) {
        if (enfant->isWidgetType() && static_cast<QWidget*>(enfant)->isWindow() &&
            !qobject_cast<QMenu*>(enfant))
            continue;  // another form that stands above this one
        if (EstControle(*enfant)) controles.push_back(enfant);
        if (!EstCompose(*enfant)) ParcourirControles(*enfant, controles);
    }
}

}  // namespace

std::vector<QObject*> ControlesDe(QWidget& fiche) {
    std::vector<QObject*> controles;
    ParcourirControles(fiche, controles);
    return controles;
}

QString CleDe(const QObject& controle) {
    const QVariant cle = controle.property(proprieteCle);
    return cle.isValid() ? cle.toString() : controle.objectName();
}

bool aCaption(const QObject& controle) {
    return EtiquetteDe(controle) || qobject_cast<const QAbstractButton*>(&controle) ||
           qobject_cast<const QGroupBox*>(&controle) || qobject_cast<const QMenu*>(&controle) ||
           qobject_cast<const QAction*>(&controle);
}

bool aBulle(const QObject& controle) {
    return qobject_cast<const QLineEdit*>(&controle) ||
           qobject_cast<const QPlainTextEdit*>(&controle) ||
           qobject_cast<const QTextEdit*>(&controle) ||
           qobject_cast<const QPushButton*>(&controle) ||
           qobject_cast<const QComboBox*>(&controle) ||
           qobject_cast<const QRadioButton*>(&controle) ||
           qobject_cast<const QCheckBox*>(&controle) ||
           qobject_cast<const QDateTimeEdit*>(&controle);
}

QString Caption(const QObject& controle) {
    if (const QLabel* etiquette = EtiquetteDe(controle)) return etiquette->text();
    return Demarquer(TexteMarque(controle));
}

void FixerCaption(QObject& controle, const QString& texte) {
    if (EtiquetteDe(controle)) return static_cast<QLabel&>(controle).setText(texte);
    QString marque = texte;
    marque.replace(u'&', QLatin1String("&&"));
    if (auto* bouton = qobject_cast<QAbstractButton*>(&controle)) bouton->setText(marque);
    if (auto* cadre = qobject_cast<QGroupBox*>(&controle)) cadre->setTitle(marque);
    if (auto* menu = qobject_cast<QMenu*>(&controle)) menu->setTitle(marque);
    if (auto* entree = qobject_cast<QAction*>(&controle)) entree->setText(marque);
}

void RetenirCaptions(QWidget& fiche) {
    for (QObject* controle : ControlesDe(fiche))
        if (aCaption(*controle)) controle->setProperty(proprieteDepart, Caption(*controle));
}

QString CaptionDeDepart(const QObject& controle) {
    const QVariant depart = controle.property(proprieteDepart);
    return depart.isValid() ? depart.toString() : Caption(controle);
}

}  // namespace bornika
