#include "platform/file_faults.h"

#include <cerrno>

#include "platform/fault.h"

namespace bornika {

bool EstDisquePlein(int erreur) {
    return erreur == ENOSPC || erreur == EDQUOT;
}

int NumeroOuverture(int erreur) {
    if (erreur == ENOENT || erreur == ENOTDIR) return numero_faute::cheminIntrouvable;
    if (erreur == ENAMETOOLONG) return numero_faute::nomDeFichier;
    return NumeroEcriture(erreur);
}

int NumeroEcriture(int erreur) {
    return EstDisquePlein(erreur) ? numero_faute::disquePlein : numero_faute::accesRefuse;
}

}  // namespace bornika
