#pragma once

#include <QString>
#include <cstdint>

namespace bornika {

class Configuration;

/// True when the program runs as the Z907 edition: its folder's path holds that text, in this case.
bool DrapeauProduit(const QString& dossier);

/// Text of a key in a language, with every "k-Pod" replaced by the product's name for the types 1,
/// 19 and 20. `dossier` is the program's folder, which tells the edition.
QString Message(Configuration& configuration, const QString& dossier, const QString& langue,
                const QString& cle, std::int32_t type, const QString& defaut);

}  // namespace bornika
