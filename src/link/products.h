#pragma once

#include <QString>
#include <cstdint>

namespace bornika {

/// Name of a product type. `drapeau` chooses the names of the Z907 edition (types 1, 19 and 20
/// only). Types without a row give "Generic k-Row"; type 14 has an empty name.
QString NomProduit(std::int32_t type, bool drapeau);

/// The types 1, 19 and 20: the logger models proper.
bool EstKpod(std::int32_t type);

}  // namespace bornika
