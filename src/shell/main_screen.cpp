#include "shell/main_screen.h"

#include <QCloseEvent>
#include <QPixmap>

#include "settings/text_catalogue.h"
#include "shell/captions.h"
#include "shell/images.h"
#include "shell/window_width.h"
#include "ui_main_screen.h"
#include "widgets/kept_place.h"

namespace bornika {

MainScreen::MainScreen(Systeme& leSysteme, QWidget* parent)
    : QMainWindow(parent),
      ui(std::make_unique<Ui::MainScreen>()),
      systeme(leSysteme),
      configuration(leSysteme.dossier) {
    InitialiserImages();
    ui->setupUi(this);
    ui->Image1->setPixmap(QPixmap(QStringLiteral(":/images/main.png")));
    ui->DTPicker1->setDisplayFormat(systeme.regional.dateCourte);
    GarderLaPlace(*ui->ProgressBar2);
    GarderLaPlace(*ui->Infos);
    GarderLaPlace(*ui->LireValeurs);
    GarderLaPlace(*ui->LireSD);
    RetenirCaptions(*this);
    FixerLargeur(*this, false);
}

MainScreen::~MainScreen() = default;

QString MainScreen::Texte(const QString& cle) {
    return Texte(cle, {});
}

QString MainScreen::Texte(const QString& cle, const QString& defaut) {
    return TexteEn(Langue(), cle, defaut);
}

QString MainScreen::TexteEn(const QString& langue, const QString& cle, const QString& defaut) {
    return Message(configuration, systeme.dossier, langue, cle, etat.TypekPod, defaut);
}

QString MainScreen::Langue() const {
    return ui->ListeLangues->Texte();
}

void MainScreen::closeEvent(QCloseEvent* evenement) {
    etat.EnFermeture = true;
    Q_EMIT Fermeture();
    evenement->accept();
}

}  // namespace bornika
