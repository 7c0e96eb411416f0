#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>

/// The block of the production log as values and as text. It knows no form and no file.
namespace bornika {

/// A caption and what stands behind it.
struct Rubrique {
    QString etiquette;
    QString valeur;
};

/// What one block of the production log tells about a logger.
struct RapportProduction {
    QString date;
    Rubrique commande;
    /// `valeur` is what the label `Version` of the main form shows.
    Rubrique version;
    /// Type code of the chosen product, and whether the names are those of the Z907 edition.
    std::int32_t TypekPod = 0;
    bool drapeau = false;
    Rubrique numeroSerie;
    Rubrique dateCourante;
    Rubrique tensionPile;
    Rubrique capteur;
    /// Acquisition, buffer, threshold, period after the trigger, one shot.
    std::array<QString, 5> resumes;
    /// Comment stored in the logger.
    Rubrique commentaire;
    /// Comment of the production; its lines stay lines.
    QString commentaires;
};

/// The block: 22 lines of 8-bit text, each closed by CR LF. A comment of several lines takes more.
/// Fault 6 for a type in `version` that is beyond 32 bits.
QByteArray BlocProduction(const RapportProduction& rapport);

/// Product name and version text from what the label `Version` of the main form shows: "(type)"
/// and the version, or "--" when no logger has been read, which counts as type 1. `drapeau` chooses
/// the names of the Z907 edition. Any other text stands whole behind the name of `TypekPod`.
QString TexteProduit(const QString& version, std::int32_t TypekPod, bool drapeau);

}  // namespace bornika
