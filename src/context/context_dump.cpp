#include "context/context_dump.h"

#include <QFileInfo>
#include <algorithm>
#include <optional>

#include "link/memory_access.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/named_fault.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr int longueurMorceau = 8;
constexpr char finDeLigne[] = "\r\n";

/// The whole block; nothing as soon as one piece fails.
std::optional<BlocContexte> LireContexte(Poste& poste) {
    BlocContexte bloc{};
    for (int adresse = 0; adresse < tailleContexte; adresse += longueurMorceau) {
        const Octets morceau = LitEEpromInterne(poste, adresse, true);
        if (poste.ecran.etat.TimeOut) return {};
        std::transform(morceau.begin(), morceau.end(), bloc.begin() + adresse,
                       [](int octet) { return static_cast<std::uint8_t>(octet); });
    }
    return bloc;
}

QByteArray LigneBrute(const BlocContexte& bloc, int adresse) {
    QByteArray ligne = QByteArray::number(adresse) + ':';
    for (int i = adresse; i < adresse + longueurMorceau; ++i)
        ligne += ' ' + QByteArray::number(bloc[static_cast<std::size_t>(i)]);
    return ligne;
}

std::optional<QString> DemanderFichier(const Systeme& systeme) {
    std::optional<QString> chemin =
        systeme.dialogues.Enregistrer({.titre = {},
                                       .nom = QStringLiteral("Contexte.txt"),
                                       .suffixe = QStringLiteral("*.txt"),
                                       .filtre = QStringLiteral("Prg (*.txt|*.txt"),
                                       .dossier = systeme.dossier});
    if (chemin && chemin->isEmpty()) chemin.reset();
    return chemin;
}

QStringList Echelles(const ListeDeroulante& liste) {
    QStringList textes;
    for (int i = 0; i < liste.Nombre(); ++i)
        textes << liste.TexteA(i);
    return textes;
}

/// The logger still holds everything: a full disk is no reason to end the program.
void EnregistrerContexte(MainScreen& ecran, const QString& chemin, const QByteArray& texte) {
    try {
        nommer(QFileInfo(chemin).fileName(), [&] { RemplacerFichier(chemin, texte); });
    } catch (const FauteExecution& faute) {
        if (faute.numero() != numero_faute::disquePlein) throw;
        MontrerTexte(ecran, Icone::Critique, faute.texte());
    }
}

}  // namespace

QByteArray TexteContexte(const BlocContexte& bloc, const QStringList& echelles,
                         const Regional& regional) {
    QByteArray texte;
    for (int adresse = 0; adresse < tailleContexte; adresse += longueurMorceau)
        texte += LigneBrute(bloc, adresse) + finDeLigne;
    texte += finDeLigne;
    for (const ChampContexte& champ : ChampsContexte())
        texte += "Ofs - " + QByteArray::number(champ.offset) + ' ' + Vers8Bits(champ.texte) +
                 " : " + Vers8Bits(TexteChamp(bloc, champ, echelles, regional)) + finDeLigne;
    return texte + finDeLigne;
}

void DumpContexte(Poste& poste) {
    const std::optional<BlocContexte> bloc = LireContexte(poste);
    if (!bloc) return;
    MainScreen& ecran = poste.ecran;
    const std::optional<QString> chemin = DemanderFichier(ecran.systeme);
    if (!chemin) return;
    EnregistrerContexte(
        ecran, *chemin,
        TexteContexte(*bloc, Echelles(*ecran.ui->ListeEchelles), ecran.systeme.regional));
}

}  // namespace bornika
