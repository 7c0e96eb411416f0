#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <cstdio>
#include <cstdlib>

namespace bornika::banc {

/// A recording of 20,000,000 bytes, about 376,000 lines: four measures a second, one pulse event in
/// ten lines.
inline QByteArray EnregistrementPlein() {
    constexpr qsizetype taille = 20'000'000;
    QByteArray octets = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n";
    octets.reserve(taille + 100);
    char ligne[128];
    for (long long i = 0;; ++i) {
        const long long ms = i % 4 * 250;
        const long long s = i / 4;
        const int points = static_cast<int>(500 + i * 7919 % 97);
        const int longueur =
            std::snprintf(ligne, sizeof ligne,
                          "%lld%03lld;%02lld/11/2023 %02lld:%02lld:%02lld:%03lld;%d;%.3f;;%s;\r\n",
                          1700000000 + s, ms, 1 + s / 86400 % 28, s / 3600 % 24, s / 60 % 60,
                          s % 60, ms, points, points * 16.0 / 1023, i % 10 == 3 ? "0.3333 " : "0");
        if (octets.size() + longueur > taille) break;
        octets.append(ligne, longueur);
    }
    // The last label takes what is missing, so that the file is as long as the longest kept whole.
    octets.insert(octets.lastIndexOf(";;"), taille - octets.size(), '0');
    return octets;
}

inline void EcrireFichier(const QString& chemin, const QByteArray& octets) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size()) std::abort();
}

/// A figure of /proc/self/status in bytes, "VmRSS" or "VmHWM".
inline double MemoireProcessus(const char* nom) {
    QFile etat(QStringLiteral("/proc/self/status"));
    if (!etat.open(QIODevice::ReadOnly)) std::abort();
    for (const QByteArray& ligne : etat.readAll().split('\n'))
        if (ligne.startsWith(nom)) return 1024.0 * ligne.simplified().split(' ').at(1).toDouble();
    std::abort();
}

}  // namespace bornika::banc
