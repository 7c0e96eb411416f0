#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace bornika::essai {

/// The sources of the house: path from its root ("src/link/frames.h") → content.
using Sources = std::map<std::string, std::string>;

/// Reads all .h, .cpp and .ui files below the given folders of `racine`.
Sources LireSources(const std::filesystem::path& racine, const std::vector<std::string>& dossiers);

/// The text without comments and without what stands between quotes, line ends kept, so that a word
/// in an explanation is no use of it.
std::string SansCommentaires(const std::string& texte);

/// Paths of the files of the house that this file includes, in their order. A form brings in the
/// headers of its promoted controls; "ui_x.h" is the form "x.ui".
std::vector<std::string> Inclusions(const Sources& sources, const std::string& chemin);

/// What stands between the signs of every inclusion, found in the house or not.
std::vector<std::string> NomsInclus(const std::string& texte);

/// True when `mot` stands in the text as a word of its own or, with `debut`, as the start of one.
bool Contient(const std::string& texte, const std::string& mot, bool debut = false);

/// Room of a file: "chart/view" for "src/chart/view/chart_view.h", "simulator" for what lies there.
std::string PieceDe(const std::string& chemin);

}  // namespace bornika::essai
