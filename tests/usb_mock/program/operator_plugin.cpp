// The operator's hand and eye inside a program that knows nothing of them: an input device of the
// toolkit, loaded as the driver of a touch screen would be. Orders come as lines of JSON on the
// standard input, and each is answered with one line on the standard output.

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace bornika::essai {

namespace {

/// The control "form/name", or the form itself, where it is on the screen.
QWidget* Visible(const QString& nom) {
    const QString fiche = nom.section(QLatin1Char('/'), 0, 0);
    const QString controle = nom.section(QLatin1Char('/'), -1);
    const QWidgetList tous = QApplication::allWidgets();
    for (QWidget* candidat : tous)
        if (candidat->objectName() == controle && candidat->isVisible() &&
            candidat->window()->objectName() == fiche)
            return candidat;
    return nullptr;
}

/// Whether a click on it would reach it: neither grey nor behind a dialog.
bool EstAtteignable(const QWidget& controle) {
    const QWidget* modale = QApplication::activeModalWidget();
    return controle.isEnabled() && controle.window()->windowHandle() != nullptr &&
           (modale == nullptr || modale == controle.window());
}

/// Near the left edge: an option or a check box answers only over its mark and its text.
QPoint Prise(const QWidget& controle) {
    return {std::min(8, controle.width() / 2), controle.height() / 2};
}

/// A click of the mouse on the window, from where it finds its way as any other. It is only planned
/// here: it may return after a download or a dialog.
void Cliquer(QWidget& controle, const QPoint& ou) {
    QWindow* fenetre = controle.window()->windowHandle();
    const QPoint place = controle.mapTo(controle.window(), ou);
    QMetaObject::invokeMethod(
        fenetre, [=] { QTest::mouseClick(fenetre, Qt::LeftButton, Qt::NoModifier, place); },
        Qt::QueuedConnection);
}

}  // namespace

class Operateur : public QObject {
    Q_OBJECT
  public:
    explicit Operateur(QObject* parent = nullptr) : QObject(parent) {
        entree_.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered);
        connect(&signal_, &QSocketNotifier::activated, this, &Operateur::Lire);
    }

  private:
    void Lire() {
        const QByteArray octets = entree_.readLine(1 << 16);
        // Who gave the orders is gone: nobody would ever close the program.
        if (octets.isEmpty()) std::_Exit(3);
        recu_ += octets;
        if (!recu_.endsWith('\n')) return;
        const QJsonObject ordre = QJsonDocument::fromJson(std::exchange(recu_, {})).object();
        const QByteArray reponse =
            QJsonDocument(Obeir(ordre)).toJson(QJsonDocument::Compact) + '\n';
        std::fwrite(reponse.constData(), 1, static_cast<std::size_t>(reponse.size()), stdout);
        std::fflush(stdout);
    }

    /// An empty answer: not now.
    static QJsonObject Obeir(const QJsonObject& ordre) {
        const QString quoi = ordre["quoi"].toString();
        if (quoi == QLatin1String("boite")) return Boite();
        if (quoi == QLatin1String("repondre")) return Repondre();
        QWidget* controle = Visible(ordre["nom"].toString());
        if (controle == nullptr) return {};
        if (quoi == QLatin1String("cliquer")) return Presser(*controle);
        if (quoi == QLatin1String("choisir")) return Choisir(*controle, ordre["ligne"].toInt());
        if (quoi == QLatin1String("lignes")) return Lignes(*controle);
        if (quoi == QLatin1String("lire"))
            return {{"valeur", QJsonValue::fromVariant(controle->property(
                                   ordre["propriete"].toString().toLatin1().constData()))}};
        if (quoi == QLatin1String("photo") && controle->grab().save(ordre["fichier"].toString()))
            return {{"valeur", true}};
        return {};
    }

    static QJsonObject Presser(QWidget& controle) {
        if (!EstAtteignable(controle)) return {};
        Cliquer(controle, Prise(controle));
        return {{"valeur", true}};
    }

    static QJsonObject Choisir(QWidget& controle, int ligne) {
        auto* liste = qobject_cast<QAbstractItemView*>(&controle);
        if (liste == nullptr || !EstAtteignable(controle)) return {};
        const QRect place = liste->visualRect(liste->model()->index(ligne, 0));
        if (place.isEmpty()) return {};
        Cliquer(*liste->viewport(), place.center());
        return {{"valeur", true}};
    }

    static QJsonObject Lignes(QWidget& controle) {
        const auto* liste = qobject_cast<QAbstractItemView*>(&controle);
        if (liste == nullptr) return {};
        QJsonArray lignes;
        for (int i = 0; i < liste->model()->rowCount(); ++i)
            lignes.append(liste->model()->index(i, 0).data().toString());
        return {{"valeur", lignes}};
    }

    static QJsonObject Boite() {
        const auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr || !boite->isVisible()) return {};
        return {{"valeur", boite->text()}};
    }

    static QJsonObject Repondre() {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return boite != nullptr ? Presser(*boite->buttons().first()) : QJsonObject();
    }

    QFile entree_;
    QSocketNotifier signal_{0, QSocketNotifier::Read};
    QByteArray recu_;
};

class GreffonOperateur : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "operator.json")
  public:
    QObject* create(const QString&, const QString&) override { return new Operateur; }
};

}  // namespace bornika::essai

#include "usb_mock/program/operator_plugin.moc"
