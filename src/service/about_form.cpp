#include "service/about_form.h"

#include <QPixmap>

#include "platform/guard.h"
#include "platform/version.h"
#include "service/system_info.h"
#include "shell/images.h"
#include "shell/main_screen.h"
#include "ui_about_form.h"
#include "widgets/modal.h"

namespace bornika {

frmAbout::frmAbout(Systeme& systeme, RegistreMachine& registre, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmAbout>()) {
    ui->setupUi(this);
    InitialiserImages();
    ui->Image1->setPixmap(QPixmap(QStringLiteral(":/images/about.png")));
    const QString titre = QString::fromLatin1(titreApplication);
    setWindowTitle(QStringLiteral("About BORNIKA ") + titre);
    ui->lblTitle->setText(QStringLiteral("BORNIKA ") + titre);
    ui->lblVersion->setText(QLatin1String("Version ") + QLatin1String(versionProgramme));
    QFont grande = ui->lblTitle->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.5);
    grande.setBold(true);
    ui->lblTitle->setFont(grande);
    brancher(ui->cmdOK, &QPushButton::clicked, this, [this] { close(); });
    brancher(ui->cmdSysInfo, &QPushButton::clicked, this,
             [&systeme, &registre] { StartSysInfo(registre, systeme.dialogues, systeme.lancer); });
}

frmAbout::~frmAbout() = default;

void mnuApropos_Click(MainScreen& ecran) {
    SansRegistre registre;
    frmAbout fiche(ecran.systeme, registre, &ecran);
    MontrerModal(fiche);
}

}  // namespace bornika
