// What the documents name is there: a path that a newcomer is sent to is never a wrong turn.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace bornika::essai {
namespace {

namespace fs = std::filesystem;

const fs::path racine = BORNIKA_SOURCE_DIR;

std::string Contenu(const fs::path& document) {
    std::ostringstream contenu;
    contenu << std::ifstream(document, std::ios::binary).rdbuf();
    return contenu.str();
}

std::vector<std::string> Trouves(const std::string& texte, const char* motif) {
    const std::regex expression(motif);
    std::vector<std::string> trouves;
    for (std::sregex_iterator i(texte.begin(), texte.end(), expression), fin; i != fin; ++i)
        trouves.push_back((*i)[1].str());
    return trouves;
}

/// Words in code letters that look like a source, a resource or a folder of the tree.
std::vector<std::string> CheminsNommes(const std::string& texte) {
    auto chemins = Trouves(texte, R"(`([A-Za-z0-9_./-]+\.(?:cpp|h|ui|cmake|sh|TEE|json|in))`)");
    const auto dossiers = Trouves(
        texte, R"(`((?:src|tests|bench|simulator|docs|tools|packaging|cmake)/[A-Za-z0-9_/-]*)`)");
    chemins.insert(chemins.end(), dossiers.begin(), dossiers.end());
    return chemins;
}

/// Targets of links that lead to files, without the place within them.
std::vector<std::string> CiblesDesLiens(const std::string& texte) {
    std::vector<std::string> cibles;
    for (const std::string& cible : Trouves(texte, R"(\]\(([^)# ]+)[^)]*\))"))
        if (cible.find("://") == std::string::npos) cibles.push_back(cible);
    return cibles;
}

/// Names of all files of the tree, without their folders.
const std::set<std::string>& NomsSeuls() {
    static const std::set<std::string> noms = [] {
        std::set<std::string> trouves;
        for (const char* dossier : {"src", "simulator", "tests", "bench", "resources", "docs"})
            for (const auto& entree : fs::recursive_directory_iterator(racine / dossier))
                trouves.insert(entree.path().filename().string());
        return trouves;
    }();
    return noms;
}

bool Existe(const std::string& chemin) {
    if (chemin.find('/') == std::string::npos) return NomsSeuls().contains(chemin);
    return fs::exists(racine / chemin);
}

std::vector<fs::path> Documents() {
    std::vector<fs::path> documents = {racine / "README.md", racine / "CONTRIBUTING.md",
                                       racine / "tests/usb_kernel/README.md"};
    for (const auto& entree : fs::directory_iterator(racine / "docs"))
        if (entree.path().extension() == ".md") documents.push_back(entree.path());
    return documents;
}

TEST(Documents, NameOnlyFilesAndFoldersThatExist) {
    std::size_t nommes = 0;
    for (const fs::path& document : Documents()) {
        for (const std::string& chemin : CheminsNommes(Contenu(document))) {
            ++nommes;
            EXPECT_TRUE(Existe(chemin)) << document.filename() << " names " << chemin;
        }
    }
    EXPECT_GT(nommes, 100U);
}

TEST(Documents, LinkOnlyToFilesThatExist) {
    std::size_t liens = 0;
    for (const fs::path& document : Documents()) {
        for (const std::string& cible : CiblesDesLiens(Contenu(document))) {
            ++liens;
            EXPECT_TRUE(fs::exists(document.parent_path() / cible))
                << document.filename() << " links to " << cible;
        }
    }
    EXPECT_GT(liens, 10U);
}

TEST(Documents, AreReadForPathsFoldersAndLinks) {
    const std::string texte =
        "see `src/link/frames.h`, `frames.cpp`, `src/link/`, `config.xml` and `a b.h`; "
        "[here](docs/x.md#top), [there](https://example.org/a.md)";
    EXPECT_EQ(CheminsNommes(texte),
              (std::vector<std::string>{"src/link/frames.h", "frames.cpp", "src/link/"}));
    EXPECT_EQ(CiblesDesLiens(texte), std::vector<std::string>{"docs/x.md"});
    EXPECT_TRUE(Existe("src/link/frames.h"));
    EXPECT_FALSE(Existe("src/link/gone.h"));
    EXPECT_FALSE(Existe("gone.h"));
}

}  // namespace
}  // namespace bornika::essai
