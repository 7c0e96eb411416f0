#pragma once

#include <gtest/gtest.h>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "settings/config_store.h"
#include "support/fake_system.h"
#include "support/fault_number.h"
#include "support/plain_text.h"
#include "widgets/controls.h"

namespace bornika::essai {

/// A configuration of a handful of entries, in CR LF lines, with what the program does not know.
inline QByteArray PetiteConfiguration() {
    QByteArray texte = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- kept by hand -->
<Configuration>
  <Langue>Français</Langue>
  <Splash>True</Splash>
  <Maintenance>False</Maintenance>
  <UniteImpulsion></UniteImpulsion>
  <Port>COM1</Port>
  <PASSERELLES><Une a="1"/></PASSERELLES>
  <Listes>
    <Langue NOM="Français">
      <ListePeriode>
        <Ligne><Texte>Durée libre</Texte><Index>0</Index><Valeur>600</Valeur></Ligne>
        <Ligne><Texte>1/8 s</Texte><Index>1</Index><Valeur>15</Valeur></Ligne>
        <Ligne><Texte>1/4 s</Texte><Index>2</Index><Valeur>25</Valeur></Ligne>
        <Ligne><Texte>5 s</Texte><Index>5</Index><Valeur>40</Valeur></Ligne>
      </ListePeriode>
      <ListeEchelles>
        <Ligne><Texte>16</Texte><Index>0</Index><Valeur>0</Valeur><Maxi>16</Maxi></Ligne>
        <Ligne><Texte>-1 - 9</Texte><Index>1</Index><Valeur>-1</Valeur><Maxi>9.5</Maxi></Ligne>
      </ListeEchelles>
      <ListeUnites>
        <Ligne><Texte>psi</Texte><Index>0</Index><Valeur>2.5</Valeur></Ligne>
        <Ligne><Texte>bar</Texte><Index>1</Index><Valeur>10000</Valeur></Ligne>
        <Ligne><Texte>first</Texte><Index>0</Index><Valeur>7</Valeur></Ligne>
      </ListeUnites>
      <ListeTemps>
        <Ligne><Texte>Sec</Texte><Index>1</Index><Valeur>1</Valeur></Ligne>
      </ListeTemps>
    </Langue>
    <Langue NOM="English">
      <ListePeriode>
        <Ligne><Texte>Free</Texte><Index>0</Index><Valeur>600</Valeur></Ligne>
      </ListePeriode>
    </Langue>
  </Listes>
  <Messages>
    <Langue NOM="Français">
      <Entree><Cle>k-Pod Absent</Cle><Texte>k-Pod absent</Texte></Entree>
      <Entree><Cle>Déconnecter la sonde</Cle><Texte> Débranchez </Texte></Entree>
    </Langue>
    <Langue NOM="English">
      <E2><C2>k-Pod Absent</C2><T2>no k-Pod</T2></E2>
    </Langue>
  </Messages>
</Configuration>
)";
    texte.replace("\n", "\r\n");
    return texte;
}

/// A program's folder that holds the small configuration.
class Reglages : public Etabli {
  public:
    explicit Reglages(const QByteArray& contenu = PetiteConfiguration())
        : configuration(systeme.dossier) {
        Ecrire(nom(), contenu);
    }

    static QString nom() { return QStringLiteral("config.xml"); }
    QByteArray Fichier() const { return Lire(nom()); }
    /// Replaces a text in the file, as a hand would.
    void Retoucher(const QByteArray& avant, const QByteArray& apres) {
        QByteArray contenu = Fichier();
        ASSERT_TRUE(contenu.contains(avant)) << avant.toStdString();
        Ecrire(nom(), contenu.replace(avant, apres));
    }
    /// Puts the file's time back, so that a later write shows.
    QDateTime Vieillir() {
        const QDateTime ancien(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC);
        QFile fichier(Chemin(nom()));
        EXPECT_TRUE(fichier.open(QIODevice::ReadWrite));
        EXPECT_TRUE(fichier.setFileTime(ancien, QFileDevice::FileModificationTime));
        return ancien;
    }
    QDateTime Date() const { return QFileInfo(Chemin(nom())).lastModified().toUTC(); }

    Configuration configuration;
};

inline QStringList Textes(const ListeDeroulante& liste) {
    QStringList textes;
    for (int i = 0; i < liste.Nombre(); ++i)
        textes << liste.TexteA(i);
    return textes;
}

const inline QString francais = QStringLiteral("Français");

}  // namespace bornika::essai
