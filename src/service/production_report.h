#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>

namespace bornika {

class frmProduction;
class MainScreen;

/// A caption and what stands behind it.
struct Rubrique {
    QString etiquette;
    QString valeur;
};

/// What one block of the production log tells about a logger.
struct RapportProduction {
    QString date;
    Rubrique commande;
    /// `valeur` is the text of `TexteProduit`.
    Rubrique version;
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
QByteArray BlocProduction(const RapportProduction& rapport);

/// Product name and version text from what the label `Version` of the main form shows: "(type)"
/// and the version, or "--" when no logger has been read, which counts as type 1. `drapeau` chooses
/// the names of the Z907 edition. Any other text stands whole behind the name of `TypekPod`.
QString TexteProduit(const QString& version, std::int32_t TypekPod, bool drapeau);

/// Log file of an order: its number as the file's name in `dossier`, ".log" added unless ".log", in
/// any case, occurs anywhere in it.
QString CheminJournal(const QString& dossier, const QString& commande);

/// What the main form shows at this moment. Nothing is read from the logger.
RapportProduction LireRapport(frmProduction& fiche);

/// Adds the block to the log file: whole, or not at all. False, after a box, for an empty path.
/// A file that cannot be opened or written is a fault (52, 61, 70 or 76) that bears its name.
bool EcrireRapport(MainScreen& ecran, const QString& chemin, const RapportProduction& rapport);

/// The button `PrintReport`, whose whole effect is the file: adds the block to the log of the
/// order, or without an order number to the file that a dialog asks for, then hides the form. A
/// cancelled dialog changes nothing and leaves the form shown.
void PrintReport(frmProduction& fiche);

}  // namespace bornika
