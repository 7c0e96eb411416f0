#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "simulator/faults.h"

namespace bornika::essai {

/// The place of a case among the others and the letters and digits of `texte`: "3_2_110".
inline std::string NomDeCas(std::size_t place, const std::string& texte) {
    constexpr std::size_t longueurMax = 32;
    std::string nom = std::to_string(place) + "_";
    for (const char signe : texte) {
        const bool admis = std::isalnum(static_cast<unsigned char>(signe)) != 0;
        if (admis || nom.back() != '_') nom += admis ? signe : '_';
    }
    nom.resize(std::min(nom.size(), longueurMax));
    while (nom.back() == '_')
        nom.pop_back();
    return nom;
}

/// For cases whose value prints itself.
inline constexpr auto nomDuCasImprime = [](const auto& cas) {
    return NomDeCas(cas.index, testing::PrintToString(cas.param));
};

inline std::string NomDePanne(simulateur::GenrePanne genre) {
    constexpr const char* noms[] = {"None",      "Silent", "AnswerLost", "Short",
                                    "WrongEcho", "Noise",  "Unplugged"};
    return noms[static_cast<std::size_t>(genre)];
}

/// For cases that are kinds of faults.
inline constexpr auto nomDuCasPanne = [](const auto& cas) { return NomDePanne(cas.param); };

}  // namespace bornika::essai
