#include "structure/source_tree.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <regex>
#include <sstream>

namespace bornika::essai {

namespace {

namespace fs = std::filesystem;

bool EstSource(const fs::path& chemin) {
    const std::string extension = chemin.extension().string();
    return extension == ".h" || extension == ".cpp" || extension == ".ui";
}

bool EstDeMot(char signe) {
    return std::isalnum(static_cast<unsigned char>(signe)) != 0 || signe == '_';
}

std::vector<std::string> Trouver(const std::string& texte, const std::regex& motif) {
    std::vector<std::string> trouves;
    for (std::sregex_iterator i(texte.begin(), texte.end(), motif), fin; i != fin; ++i)
        trouves.push_back((*i)[1].str());
    return trouves;
}

// The file of the house that an inclusion means, "" for one of a library.
std::string Resoudre(const Sources& sources, const std::string& nom) {
    for (const std::string& chemin : {"src/" + nom, nom})
        if (sources.contains(chemin)) return chemin;
    if (!nom.starts_with("ui_")) return {};
    const std::string forme = "/" + nom.substr(3, nom.size() - 5) + ".ui";
    for (const auto& [chemin, texte] : sources)
        if (chemin.ends_with(forme)) return chemin;
    return {};
}

// Where the comment or quoted text that starts at `i` ends; `i` itself when none starts there.
std::size_t FinDeCache(const std::string& texte, std::size_t i) {
    const auto apres = [&](const std::string& marque, std::size_t depuis) {
        const std::size_t fin = texte.find(marque, depuis);
        return fin == std::string::npos ? texte.size() : fin + marque.size();
    };
    if (texte.compare(i, 2, "//") == 0) return apres("\n", i) - 1;
    if (texte.compare(i, 2, "/*") == 0) return apres("*/", i + 2);
    if (texte.compare(i, 3, "R\"(") == 0) return apres(")\"", i + 3);
    // A quote between digits separates their groups.
    if (texte[i] != '"' && (texte[i] != '\'' || (i > 0 && EstDeMot(texte[i - 1])))) return i;
    std::size_t fin = i + 1;
    while (fin < texte.size() && texte[fin] != texte[i] && texte[fin] != '\n')
        fin += texte[fin] == '\\' ? 2 : 1;
    return std::min(fin + 1, texte.size());
}

}  // namespace

Sources LireSources(const fs::path& racine, const std::vector<std::string>& dossiers) {
    Sources sources;
    for (const std::string& dossier : dossiers)
        for (const auto& entree : fs::recursive_directory_iterator(racine / dossier)) {
            if (!entree.is_regular_file() || !EstSource(entree.path())) continue;
            std::ostringstream contenu;
            contenu << std::ifstream(entree.path(), std::ios::binary).rdbuf();
            sources[fs::relative(entree.path(), racine).generic_string()] = contenu.str();
        }
    return sources;
}

std::string SansCommentaires(const std::string& texte) {
    std::string nu;
    for (std::size_t i = 0; i < texte.size();) {
        const std::size_t fin = FinDeCache(texte, i);
        if (fin == i) {
            nu += texte[i++];
            continue;
        }
        for (; i < fin; ++i)
            if (texte[i] == '\n') nu += '\n';
        nu += ' ';
    }
    return nu;
}

std::vector<std::string> NomsInclus(const std::string& texte) {
    static const std::regex motif(R"((?:^|\n)[ \t]*#[ \t]*include[ \t]*[<"]([^>"]+)[>"])");
    return Trouver(texte, motif);
}

std::vector<std::string> Inclusions(const Sources& sources, const std::string& chemin) {
    static const std::regex enTete("<header>([^<]+)</header>");
    const std::string& texte = sources.at(chemin);
    std::vector<std::string> chemins;
    for (const std::string& nom :
         chemin.ends_with(".ui") ? Trouver(texte, enTete) : NomsInclus(texte)) {
        const std::string cible = Resoudre(sources, nom);
        if (!cible.empty()) chemins.push_back(cible);
    }
    return chemins;
}

bool Contient(const std::string& texte, const std::string& mot, bool debut) {
    for (std::size_t i = texte.find(mot); i != std::string::npos; i = texte.find(mot, i + 1)) {
        const std::size_t fin = i + mot.size();
        const bool libreAvant = i == 0 || !EstDeMot(texte[i - 1]);
        const bool libreApres = debut || fin == texte.size() || !EstDeMot(texte[fin]);
        if (libreAvant && libreApres) return true;
    }
    return false;
}

std::string PieceDe(const std::string& chemin) {
    const std::string court = chemin.starts_with("src/") ? chemin.substr(4) : chemin;
    return court.substr(0, court.rfind('/'));
}

}  // namespace bornika::essai
