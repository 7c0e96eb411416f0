#include "app/set_up_hand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace bornika::essai {

namespace {

/// Limits of the delivered scales, in bar, by their position.
struct Limites {
    double mini;
    double maxi;
};
constexpr std::array<Limites, 8> echelles{
    {{0, 16}, {0, 1}, {0, 2.5}, {0, 6}, {0, 10}, {0, 25}, {-1, 9}, {0, 30}}};

/// No period of the list has one of these values: it would be taken for the free period.
constexpr std::array dureesLibres = {3, 7, 61, 599, 1801, 3599};

const QStringList commentaires = {QStringLiteral("Réseau Nord"),
                                  QStringLiteral("à é ü ç ß Ÿ œ"),
                                  QStringLiteral("10 €/m³ ½ °C"),
                                  QStringLiteral("fourteen chars"),
                                  QStringLiteral("longer than fourteen characters"),
                                  QStringLiteral("  blanks  "),
                                  QString()};
const QStringList poids = {QStringLiteral("1"), QStringLiteral("0.001"), QStringLiteral("2.5"),
                           QStringLiteral("12345.5"), QStringLiteral("-0.125")};
const QStringList unites = {QStringLiteral("m3"), QStringLiteral("Gallon"),
                            QStringLiteral("épaisse²"), QString()};

void Choisir(ListeDeroulante& liste, int index) {
    ASSERT_TRUE(liste.isVisible()) << liste.objectName().toStdString();
    BancProgramme::ChoisirEntree(&liste, index);
}

void Taper(QLineEdit& boite, const QString& texte) {
    ASSERT_TRUE(boite.isVisible()) << boite.objectName().toStdString();
    boite.setFocus();
    QCoreApplication::processEvents();
    BancProgramme::Taper(&boite, texte);
}

void Cocher(QAbstractButton& bouton, bool coche = true) {
    ASSERT_TRUE(bouton.isVisible()) << bouton.objectName().toStdString();
    if (bouton.isChecked() != coche) BancProgramme::Cliquer(&bouton);
    ASSERT_EQ(bouton.isChecked(), coche) << bouton.objectName().toStdString();
}

void SaisirHoraire(Ui::MainScreen& ui, const Reglage& reglage) {
    Choisir(*ui.ListePeriodeEchantillonage, reglage.periode);
    if (reglage.periode == 0) Taper(*ui.DureeSaisie, reglage.duree);
    ui.DTPicker1->setDate(reglage.jour);
    ui.DTPicker2->setTime(reglage.heure);
    if (ui.AMPM_0->isVisible()) Cocher(reglage.format24h ? *ui.AMPM_1 : *ui.AMPM_0);
}

/// Both boxes stand there with a band only, and the upper limit goes first: a lower limit beyond it
/// would drag it along while it is typed.
void SaisirDeclenchement(Ui::MainScreen& ui, const Reglage& reglage) {
    Cocher(*ui.DeuxSeuils);
    Choisir(*ui.ListeEchelles, reglage.echelle);
    Choisir(*ui.ListeUnites, reglage.unite);
    Taper(*ui.Seuil2, reglage.seuil2);
    Taper(*ui.Seuil1, reglage.seuil1);
    Cocher(reglage.auDessus ? *ui.AuDessus : *ui.AuDessous);
    Cocher(*ui.OneShot, reglage.oneShot);
    Cocher(*ui.PressionAbsolue, reglage.pressionAbsolue);
    Choisir(*ui.PeriodeTrigger, reglage.periodeTrigger);
    if (reglage.seuils == 1) {
        Cocher(*ui.UnSeuil);
        Taper(*ui.Seuil1, reglage.seuilSeul);
    }
    if (reglage.seuils == 0) Cocher(*ui.PasDeSeuil);
}

}  // namespace

QString TirageReglages::Seuil(double mini, double maxi) {
    const int dixiemes = static_cast<int>((maxi - mini) * 10);
    return QString::number(mini + Entier(dixiemes + 1) / 10.0, 'f', 1);
}

QString TirageReglages::Commentaire() {
    return commentaires[Entier(static_cast<int>(commentaires.size()))];
}

Reglage TirageReglages::Tirer(const Ui::MainScreen& ui) {
    Reglage r;
    r.echelle = Entier(ui.ListeEchelles->Nombre());
    r.unite = Entier(ui.ListeUnites->Nombre());
    r.periode = Entier(ui.ListePeriodeEchantillonage->Nombre());
    r.duree = QString::number(dureesLibres[static_cast<std::size_t>(Entier(dureesLibres.size()))]);
    r.periodeTrigger = Entier(std::max(1, r.periode));
    r.jour = QDate(2000 + Entier(38), 1 + Entier(12), 1 + Entier(28));
    r.heure = QTime(Entier(24), Entier(60), Entier(60));
    r.format24h = Pile();
    r.seuils = Entier(3);
    r.auDessus = Pile();
    const auto& echelle = echelles[static_cast<std::size_t>(r.echelle)];
    const double coefficient = ui.ListeUnites->Donnee(r.unite) / 10000.0;
    r.seuil1 = Seuil(echelle.mini * coefficient, echelle.maxi * coefficient);
    r.seuil2 = Seuil(r.seuil1.toDouble(), echelle.maxi * coefficient);
    r.seuilSeul = Seuil(echelle.mini * coefficient, echelle.maxi * coefficient);
    r.oneShot = Pile();
    r.pressionAbsolue = Pile();
    r.bufferTournant = Pile();
    r.commentaire = Commentaire();
    r.poidsImpulsion = poids[Entier(static_cast<int>(poids.size()))];
    r.uniteImpulsion = unites[Entier(static_cast<int>(unites.size()))];
    r.baseDeTemps = Entier(ui.ListeTemps->Nombre());
    return r;
}

void Saisir(BancProgramme& banc, const Reglage& reglage) {
    Ui::MainScreen& ui = banc.ui();
    Cocher(*ui.Check_advanced);
    SaisirHoraire(ui, reglage);
    SaisirDeclenchement(ui, reglage);
    if (ui.Frame2->isVisible())
        Cocher(reglage.bufferTournant ? *ui.BufferTournant : *ui.BufferNonTournant);
    Taper(*ui.Commentaire, reglage.commentaire);
    if (!ui.FrameFlowParameter->isVisible()) return;
    Taper(*ui.CoefImpulsion, reglage.poidsImpulsion);
    Taper(*ui.UniteImpulsion, reglage.uniteImpulsion);
    Choisir(*ui.ListeTemps, reglage.baseDeTemps);
}

Affichage Regarder(const Ui::MainScreen& ui) {
    Affichage vu;
    for (const ListeDeroulante* liste :
         {ui.ListeEchelles, ui.ListeUnites, ui.ListePeriodeEchantillonage, ui.PeriodeTrigger,
          ui.ListeTemps})
        vu[liste->objectName().toStdString()] =
            std::to_string(liste->Index()) + " " + liste->Texte().toStdString();
    for (const QLineEdit* boite :
         {ui.Seuil1, ui.Seuil2, ui.Commentaire, ui.CoefImpulsion, ui.UniteImpulsion})
        vu[boite->objectName().toStdString()] = boite->text().toStdString();
    for (const QAbstractButton* bouton : std::initializer_list<const QAbstractButton*>{
             ui.AMPM_0, ui.AMPM_1, ui.PasDeSeuil, ui.UnSeuil, ui.DeuxSeuils, ui.AuDessus,
             ui.AuDessous, ui.OneShot, ui.PressionAbsolue, ui.BufferTournant, ui.BufferNonTournant})
        vu[bouton->objectName().toStdString()] = bouton->isChecked() ? "on" : "off";
    if (ui.ListePeriodeEchantillonage->Index() == 0)
        vu["DureeSaisie"] = ui.DureeSaisie->text().toStdString();
    vu["DTPicker1"] = ui.DTPicker1->date().toString(Qt::ISODate).toStdString();
    vu["DTPicker2"] = ui.DTPicker2->time().toString(Qt::ISODate).toStdString();
    return vu;
}

}  // namespace bornika::essai
