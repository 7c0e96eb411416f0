#include "structure/source_rules.h"

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <utility>

namespace bornika::essai {

namespace {

using Ensemble = std::set<std::string>;

// Room → what it may include besides itself.
const std::map<std::string, Ensemble> appuis = {
    {"platform", {}},
    {"simulator", {"platform"}},
    {"products", {"platform"}},
    {"usb", {"platform"}},
    {"widgets", {"platform"}},
    {"settings", {"platform", "products", "widgets"}},
    {"recording", {"platform"}},
    {"chart/model", {"platform", "recording"}},
    {"chart/view", {"platform", "chart/model"}},
    {"shell", {"platform", "products", "widgets", "settings"}},
    {"setup", {"platform", "products", "widgets", "settings", "shell"}},
    {"link", {"platform", "products", "widgets", "settings", "shell"}},
    {"context", {"platform", "products", "widgets", "settings", "shell", "link"}},
    {"logger",
     {"platform", "products", "widgets", "settings", "shell", "setup", "link", "context"}},
    {"calibration",
     {"platform", "products", "widgets", "settings", "shell", "setup", "link", "logger"}},
    {"viewer",
     {"platform", "widgets", "settings", "recording", "chart/model", "chart/view", "shell"}},
    {"retrieval",
     {"platform", "products", "widgets", "settings", "recording", "shell", "setup", "link",
      "logger", "viewer"}},
    {"service", {"platform", "products", "widgets", "settings", "shell", "link"}},
    {"app",
     {"platform", "products", "usb", "widgets", "settings", "recording", "chart/model",
      "chart/view", "shell", "setup", "link", "context", "logger", "calibration", "viewer",
      "retrieval", "service", "simulator"}}};

// Words that may stand in some files only: as the beginning of a name, or, `entiers`, as a whole
// one.
struct Reserve {
    std::vector<std::string> inclus;
    std::vector<std::string> mots;
    std::vector<std::string> places;
    bool entiers = false;
};

const std::vector<Reserve> reserves = {
    {{"qcustomplot.h"}, {"QCustomPlot", "QCP"}, {"src/chart/view/"}},
    {{"pugixml.hpp"}, {"pugi"}, {"src/settings/config_store", "src/chart/model/chart_template"}},
    {{"libusb.h", "libusb-1.0/libusb.h"}, {"libusb_"}, {"src/usb/"}},
    // The tour shows none: it presses their buttons, as an operator would.
    {{"QMessageBox", "QFileDialog", "QColorDialog"},
     {"QMessageBox", "QFileDialog", "QColorDialog"},
     {"src/widgets/toolkit_dialogs.cpp", "src/app/tour.cpp"}},
    {{"QPrinter", "QPrintPreviewDialog"},
     {"QPrinter", "QPrintPreviewDialog", "QPrintDialog"},
     {"src/widgets/print_preview"}},
    {{"unistd.h", "fcntl.h", "sys/", "spawn.h", "dlfcn.h"}, {}, {"src/platform/"}},
    // The loader gives a recording to its reader line by line. The simulated card is a medium of
    // its own.
    {{"QFile", "QSaveFile", "QTemporaryFile", "fstream"},
     {"QFile", "QSaveFile", "QTemporaryFile", "fstream", "ifstream", "ofstream", "fopen"},
     {"src/platform/", "src/recording/", "src/chart/model/trace_loader.cpp",
      "simulator/card_files.cpp"},
     true}};

const Reserve& reserveGraphe = reserves.front();

bool CommenceParUn(const std::string& chemin, const std::vector<std::string>& debuts) {
    return std::any_of(debuts.begin(), debuts.end(),
                       [&](const std::string& debut) { return chemin.starts_with(debut); });
}

// `inclus` are the names that a file includes, `nu` is its text without comments.
bool Nomme(const Reserve& reserve, const std::vector<std::string>& inclus, const std::string& nu) {
    const auto estReserve = [&](const std::string& nom) {
        return reserve.entiers ? std::find(reserve.inclus.begin(), reserve.inclus.end(), nom) !=
                                     reserve.inclus.end()
                               : CommenceParUn(nom, reserve.inclus);
    };
    return std::any_of(inclus.begin(), inclus.end(), estReserve) ||
           std::any_of(reserve.mots.begin(), reserve.mots.end(),
                       [&](const std::string& mot) { return Contient(nu, mot, !reserve.entiers); });
}

// File → the one at the end of its includes that names the chart library.
std::map<std::string, std::string> PorteursDuGraphe(const Sources& sources) {
    std::map<std::string, std::vector<std::string>> suivants;
    std::map<std::string, std::string> porteurs;
    for (const auto& [chemin, texte] : sources) {
        suivants[chemin] = Inclusions(sources, chemin);
        for (const std::string& nom : NomsInclus(texte))
            if (nom == reserveGraphe.inclus.front()) porteurs[chemin] = chemin;
    }
    for (bool change = true; std::exchange(change, false);)
        for (const auto& [chemin, inclus] : suivants)
            for (const std::string& suivant : inclus)
                if (porteurs.contains(suivant) &&
                    porteurs.try_emplace(chemin, porteurs.at(suivant)).second)
                    change = true;
    return porteurs;
}

// Walks the includes from one file; `chemin_` is the way from the start to where it stands.
class Promenade {
  public:
    explicit Promenade(const Sources& sources) : sources_(sources) {}

    void Visiter(const std::string& fichier) {
        const auto deja = std::find(chemin_.begin(), chemin_.end(), fichier);
        if (deja != chemin_.end()) {
            std::string cercle;
            for (auto i = deja; i != chemin_.end(); ++i)
                cercle += *i + " -> ";
            cercles_.push_back(cercle + fichier);
            return;
        }
        if (!vus_.insert(fichier).second) return;
        chemin_.push_back(fichier);
        for (const std::string& suivant : Inclusions(sources_, fichier))
            Visiter(suivant);
        chemin_.pop_back();
    }

    const Manquements& Resultat() const { return cercles_; }

  private:
    const Sources& sources_;
    std::vector<std::string> chemin_;
    Ensemble vus_;
    Manquements cercles_;
};

}  // namespace

Manquements PiecesMelees(const Sources& sources) {
    Manquements manquements;
    for (const auto& [chemin, texte] : sources) {
        const std::string ici = PieceDe(chemin);
        const auto permis = appuis.find(ici);
        if (permis == appuis.end()) {
            manquements.push_back(chemin + " lies in no known room");
            continue;
        }
        for (const std::string& inclus : Inclusions(sources, chemin)) {
            const std::string la = PieceDe(inclus);
            if (la != ici && !permis->second.contains(la))
                manquements.push_back(chemin + " leans on " + inclus);
        }
    }
    return manquements;
}

Manquements Cercles(const Sources& sources) {
    Promenade promenade(sources);
    for (const auto& [chemin, texte] : sources)
        promenade.Visiter(chemin);
    return promenade.Resultat();
}

Manquements BibliothequesHorsDeLeurPlace(const Sources& sources) {
    Manquements manquements;
    for (const auto& [chemin, texte] : sources) {
        if (chemin.ends_with(".ui")) continue;
        const std::vector<std::string> inclus = NomsInclus(texte);
        const std::string nu = SansCommentaires(texte);
        for (const Reserve& reserve : reserves) {
            if (!CommenceParUn(chemin, reserve.places) && Nomme(reserve, inclus, nu))
                manquements.push_back(chemin + " names " + reserve.inclus.front());
        }
    }
    return manquements;
}

Manquements FichesSansMarque(const Sources& sources) {
    static const std::regex classe("<class>([^<]+)</class>");
    Manquements manquements;
    for (const auto& [chemin, texte] : sources) {
        std::smatch trouvee;
        if (!chemin.ends_with(".ui") || !std::regex_search(texte, trouvee, classe)) continue;
        const auto enTete = sources.find(chemin.substr(0, chemin.size() - 2) + "h");
        const std::regex marquee("class " + trouvee[1].str() +
                                 " : public \\w+, public FicheDuProgramme \\{");
        if (enTete == sources.end() ||
            !std::regex_search(SansCommentaires(enTete->second), marquee))
            manquements.push_back(chemin + " draws a form without the mark of one");
    }
    return manquements;
}

Manquements EntrainentLaBibliothequeDuGraphe(const Sources& sources) {
    Manquements manquements;
    for (const auto& [chemin, porteur] : PorteursDuGraphe(sources))
        if (!CommenceParUn(chemin, reserveGraphe.places))
            manquements.push_back(chemin + " reads the chart library by way of " + porteur);
    return manquements;
}

Manquements EspacesOuverts(const Sources& sources) {
    Manquements manquements;
    for (const auto& [chemin, texte] : sources)
        if (chemin.ends_with(".h") && Contient(SansCommentaires(texte), "using namespace"))
            manquements.push_back(chemin + " opens a namespace");
    return manquements;
}

Manquements FichiersTropLongs(const Sources& sources, int lignes) {
    Manquements manquements;
    for (const auto& [chemin, texte] : sources) {
        const auto longueur = std::count(texte.begin(), texte.end(), '\n');
        if (!chemin.ends_with(".ui") && longueur > lignes)
            manquements.push_back(chemin + " has " + std::to_string(longueur) + " lines");
    }
    return manquements;
}

}  // namespace bornika::essai
