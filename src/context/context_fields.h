#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <span>

#include "platform/regional.h"

/// The logger's context, its working parameters in one block of the internal memory, as named
/// fields. Fields of more than one byte stand low byte first here, the other way round than in
/// frames.
namespace bornika {

inline constexpr int tailleContexte = 1024;
using BlocContexte = std::array<std::uint8_t, tailleContexte>;

/// What the bytes of a field are.
enum class GenreChamp : std::uint8_t {
    Nombre,
    /// Four bytes, negative above 2147483647.
    NombreSigne,
    Hexadecimal,
    /// Device seconds.
    Date,
    /// Reading of the battery, shown in volts.
    Tension,
    /// Scale byte, shown as the entry of the list of scales.
    Echelle,
    /// One character a byte.
    Caracteres,
};

/// One field: where it stands, how many bytes it takes (1, 2 or 4, more for characters only), its
/// name in the dump.
struct ChampContexte {
    int offset;
    int largeur;
    QStringView texte;
    GenreChamp genre = GenreChamp::Nombre;
};

/// The fields that the dump names, in its order. What stands between them has no name.
std::span<const ChampContexte> ChampsContexte();

/// The number that the bytes of a field are, without sign. Fault 9 beyond the block.
std::uint32_t ValeurChamp(const BlocContexte& bloc, const ChampContexte& champ);

/// The value as it is shown. A scale beyond `echelles` is an empty text.
QString TexteChamp(const BlocContexte& bloc, const ChampContexte& champ,
                   const QStringList& echelles, const Regional& regional);

}  // namespace bornika
