#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "platform/guard.h"
#include "retrieval/raw_dump.h"
#include "retrieval/retrieval_fixture.h"
#include "simulator/device_time.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {

/// Cells of a page.
inline constexpr int cellules = 66;
inline const std::string ligneEntete = "page;buffer;Date Heure;Valeur;Pression;unit\xE9";

/// The line of a cell, as a reader of the file expects it.
inline std::string Ligne(std::uint32_t secondes, int points, const std::string& pression,
                         int fraction = 0) {
    return std::to_string(secondes) + "; " + simulateur::TexteDate(secondes) + ";" +
           std::to_string(points) + ";" + pression + ";;" + std::to_string(fraction) + ";";
}

/// A logger whose pages 100 to 102 are full: one measure a second, one point more each.
struct BancDump : BancLecture {
    explicit BancDump(const QString& langue = QStringLiteral("English")) : BancLecture({}, langue) {
        for (int rang = 0; rang < 3 * cellules; ++rang)
            Poser(rang, simulateur::MesurePeriodique(t0 + static_cast<std::uint32_t>(rang), rang));
    }

    /// Writes the cell of that rank from page 100 on.
    void Poser(int rang, const simulateur::MesureEnFlash& cellule) {
        enregistreur.flash.Ecrire(100 + rang / cellules, rang % cellules * 8, cellule);
    }
    void Lire(int PageDebut = 100, int PageFin = 100) {
        garder([&] { LectureValeursPage(poste, PageDebut, PageFin); });
    }
    /// A fault for the answer that brings the cell of that place (1 = the first).
    void PanneCellule(simulateur::GenrePanne genre, int place, int combien = 1, int parametre = 0) {
        enregistreur.pannes.Ordonner({.code = 20,
                                      .genre = genre,
                                      .occurrence = place,
                                      .combien = combien,
                                      .parametre = parametre});
    }

    QByteArray Contenu() const { return etabli.Lire(fichier); }
    /// The lines, each without its CR LF; the first one is the header.
    std::vector<std::string> Lignes() const {
        std::vector<std::string> lignes;
        QList<QByteArray> morceaux = Contenu().split('\n');
        EXPECT_TRUE(morceaux.takeLast().isEmpty());
        for (QByteArray& morceau : morceaux) {
            EXPECT_TRUE(morceau.endsWith('\r'));
            morceau.chop(1);
            lignes.push_back(morceau.toStdString());
        }
        return lignes;
    }
    /// The line of the cell of that place (1 = the first) as the logger holds it.
    static std::string Attendue(int place) {
        const double millibars = std::round((place - 1) * 15.625);
        return Ligne(t0 + static_cast<std::uint32_t>(place) - 1, place - 1,
                     QByteArray::number(millibars / 1000, 'g', 15).toStdString());
    }
    std::size_t Boites() const { return etabli.dialogues.Boites().size(); }
    const DialoguesNotes::Boite_& Boite(std::size_t rang) const {
        return etabli.dialogues.Boites().at(rang);
    }
    /// Cells that were asked for.
    int Demandees() const { return enregistreur.journal.Nombre(20); }
    bool FichierFait() const { return etabli.Fichiers().contains(fichier); }

    QString fichier = QStringLiteral("2026-3-5-14-7-9.dmp");
};

/// What every end but a fault leaves behind.
inline void AttendreRepos(const BancDump& banc) {
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
    EXPECT_TRUE(banc.ui.ProgressBar2->isHidden());
    EXPECT_TRUE(banc.ui.Infos->isHidden());
    EXPECT_TRUE(banc.ui.LireValeursPage->isEnabled());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

inline void AttendreAnnonce(const BancDump& banc, const DialoguesNotes::Boite_& boite) {
    EXPECT_EQ(boite.icone, Icone::Information);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(Clair(boite.titre), "k-Pod");
    EXPECT_EQ(Clair(boite.texte), "Values stored in file " + Clair(banc.fichier));
}

inline void AttendreAbsent(const DialoguesNotes::Boite_& boite) {
    EXPECT_EQ(boite.icone, Icone::Aucune);
    EXPECT_EQ(Clair(boite.titre), "");
    EXPECT_EQ(Clair(boite.texte), "k-Pod not found");
}

}  // namespace bornika::essai
