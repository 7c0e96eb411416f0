#include "service/gsm_form.h"

#include "platform/guard.h"
#include "platform/numbers.h"
#include "shell/captions.h"
#include "shell/form_captions.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_gsm_form.h"
#include "widgets/kept_place.h"
#include "widgets/modal.h"

namespace bornika {

namespace {

const QString cleValeur = QStringLiteral("valeur_impulsion");
const QString cleUnite = QStringLiteral("unite_impulsion");

// Numbers of the configuration have a point whatever the locale.
QString ValeurEnregistree(MainScreen& ecran) {
    QString texte = ecran.configuration.LitConfig(cleValeur).value_or(QString());
    return texte.replace(QLatin1Char('.'), ecran.systeme.regional.separateur);
}

int UniteEnregistree(MainScreen& ecran, int nombre) {
    const double unite = ValeurDebut(ecran.configuration.LitConfig(cleUnite).value_or(QString()));
    for (int index = 0; index < nombre; ++index)
        if (unite == index) return index;
    return -1;
}

void RemplirUnites(ListeDeroulante& liste) {
    for (const char* unite : {"L", "m3", "Gallon"}) {
        liste.Ajouter(QString::fromLatin1(unite));
        liste.FixerDonnee(liste.Nombre() - 1, liste.Nombre() - 1);
    }
}

void MontrerPeriode(GSM& fiche, bool montree) {
    for (QWidget* controle : {static_cast<QWidget*>(fiche.ui->Valeurheures),
                              static_cast<QWidget*>(fiche.ui->LabelHeures)}) {
        controle->setEnabled(montree);
        controle->setVisible(montree);
    }
}

}  // namespace

// `Sortir` is tied to nothing: the frame closes the form.
GSM::GSM(MainScreen& lEcran, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::GSM>()), ecran(lEcran) {
    ui->setupUi(this);
    RetenirCaptions(*this);
    RemplirUnites(*ui->ListeUniteImpulsion);
    GarderLaPlace(*ui->Valeurheures);
    GarderLaPlace(*ui->LabelHeures);
    MontrerPeriode(*this, ui->Presence->isChecked());
    brancher(ui->Presence, &QCheckBox::toggled, this, [this] { Presence_Click(*this); });
    brancher(ui->Valider, &QPushButton::clicked, this, [this] { Valider_Click(*this); });
}

GSM::~GSM() = default;

void GSM::Charger() {
    ui->ValeurImpulsion->setText(ValeurEnregistree(ecran));
    ui->ListeUniteImpulsion->Choisir(UniteEnregistree(ecran, ui->ListeUniteImpulsion->Nombre()));
    ignorer([this] { setWindowTitle(ecran.Texte(QStringLiteral("mnuGSM"))); });
    TraduireFiche(*this, ecran);
}

void Presence_Click(GSM& fiche) {
    const bool cochee = fiche.ui->Presence->isChecked();
    MontrerPeriode(fiche, cochee);
    if (!cochee) fiche.ui->Valeurheures->setText(QStringLiteral("0"));
}

void Valider_Click(GSM& fiche) {
    MainScreen& ecran = fiche.ecran;
    const QString valeur = fiche.ui->ValeurImpulsion->text();
    if (!EstNumerique(valeur, ecran.systeme.regional)) {
        MontrerMessage(ecran, Icone::Exclamation,
                       QStringLiteral("La valeur de l'impulsion est incorrecte"));
        return;
    }
    const double nombre = EnDouble(valeur, ecran.systeme.regional);
    ecran.configuration.EcritConfig(TexteGeneral(nombre, Regional{}), cleValeur);
    const ListeDeroulante& unites = *fiche.ui->ListeUniteImpulsion;
    if (unites.Index() >= 0)
        ecran.configuration.EcritConfig(QString::number(unites.Donnee(unites.Index())), cleUnite);
    fiche.close();
}

void mnuGSM_Click(MainScreen& ecran) {
    GSM fiche(ecran, &ecran);
    fiche.Charger();
    MontrerModal(fiche);
}

}  // namespace bornika
