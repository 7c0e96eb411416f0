// Stands in for the external programmer tool. Beside itself it writes down what it was given, waits
// as long as it is told to, and leaves the version of the firmware that it was to transfer, or dies
// before that. What it leaves is for the simulated logger of a test.

#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace {

constexpr auto patience = std::chrono::seconds(30);

void Laisser(const std::filesystem::path& fichier, const std::string& contenu) {
    std::ofstream(fichier, std::ios::binary) << contenu;
}

}  // namespace

int main(int nombre, char** mots) {
    const std::filesystem::path dossier = std::filesystem::path(mots[0]).parent_path();
    std::string arguments;
    for (int i = 1; i < nombre; ++i)
        arguments += std::string(mots[i]) + '\0';
    Laisser(dossier / "tool-session", std::to_string(getsid(0)));
    Laisser(dossier / "tool-arguments", arguments);

    const auto fin = std::chrono::steady_clock::now() + patience;
    while (std::filesystem::exists(dossier / "tool-hold") && std::chrono::steady_clock::now() < fin)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    if (std::filesystem::exists(dossier / "tool-die")) std::raise(SIGKILL);

    const std::string dernier = nombre > 1 ? mots[nombre - 1] : "";
    Laisser(dossier / "tool-version", dernier.substr(dernier.rfind(':') + 1));
}
