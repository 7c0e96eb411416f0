#pragma once

#include <QByteArray>
#include <QDateTime>
#include <cmath>
#include <random>

namespace bornika::essai {

/// A day of a water network: the daily swing, noise, some hammers, and the pulses of a meter.
inline QByteArray JourneeReseau(int lignes) {
    std::mt19937 hasard(7);
    std::normal_distribution<double> bruit(0, 0.012);
    QByteArray contenu = "Temps;Date Heure;Valeur;Pression (bar);bar;comptage (0.01);m3/HRS\r\n";
    const qint64 debut = 1772668800;
    for (int i = 0; i < lignes; ++i) {
        const qint64 t = debut + qint64(i) * 86400 / lignes;
        const double heure = double(t - debut) / 3600;
        double pression = 4.6 - 0.7 * std::exp(-std::pow(heure - 7.5, 2) / 3) -
                          0.55 * std::exp(-std::pow(heure - 19, 2) / 5) + bruit(hasard);
        for (const double choc : {3.2, 9.7, 13.4, 21.1}) {
            const double apres = (heure - choc) * 3600;
            if (apres > 0 && apres < 400)
                pression += 1.6 * std::exp(-apres / 70) * std::sin(apres / 9);
        }
        const double debit = 0.6 + 1.8 * std::exp(-std::pow(heure - 7.5, 2) / 3) +
                             1.3 * std::exp(-std::pow(heure - 19, 2) / 5) + 4 * bruit(hasard);
        const QDateTime instant = QDateTime::fromSecsSinceEpoch(t, Qt::UTC);
        contenu += QByteArray::number(t) + "000;" +
                   instant.toString("dd/MM/yyyy HH:mm:ss").toLatin1() + ":000;300;" +
                   QByteArray::number(pression, 'f', 3) + ";;" +
                   QByteArray::number(std::max(debit, 0.0), 'f', 4) + " ;\r\n";
    }
    return contenu;
}

}  // namespace bornika::essai
