#include "logger/parameter_report.h"

#include "shell/main_screen.h"

namespace bornika {

void AjouteRapport(MainScreen& ecran, const QString& cle, const QString& valeur) {
    QString& rapport = ecran.etat.Rapport;
    rapport += ecran.Texte(cle);
    if (!valeur.isEmpty()) rapport += QStringLiteral(" : ") + valeur;
    rapport += QStringLiteral("\r\n");
}

}  // namespace bornika
