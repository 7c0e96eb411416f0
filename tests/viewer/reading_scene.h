#pragma once

#include <gtest/gtest.h>

#include <QToolButton>

#include "viewer/viewer_fixture.h"

namespace bornika::essai {

/// One measure of a recording: pressure and count.
struct Mesure {
    double pression;
    double comptage;
};

/// A viewer whose reading aids are used with the mouse and the keys.
class Lectures : public ::testing::Test, protected Operateur {
  protected:
    static constexpr qint64 debutSecondes = 1'000'000;

    /// A recording of one measure a second from `debut` on.
    void Ecrire(const QString& nom, const std::vector<Mesure>& mesures,
                qint64 debut = debutSecondes) const {
        QByteArray contenu = Visionneuse::enteteAppareil + "\r\n";
        for (const Mesure& mesure : mesures) {
            const QByteArray temps = QByteArray::number(debut++);
            contenu += temps + ";t" + temps + ";512;" + QByteArray::number(mesure.pression) + ";;" +
                       QByteArray::number(mesure.comptage) + " ;\r\n";
        }
        v.etabli.Ecrire(nom, contenu);
    }
    void Charger(const std::vector<Mesure>& mesures, qint64 debut = debutSecondes) {
        Ecrire("a.txt", mesures, debut);
        v.Fiche().show();
        v.Ouvrir("a.txt");
        Vue().FixerAnimation({});
    }
    /// `nombre` measures that rise from 1: the pressure by 1, the count by 10.
    static std::vector<Mesure> Montee(int nombre) {
        std::vector<Mesure> mesures;
        for (int i = 1; i <= nombre; ++i)
            mesures.push_back({double(i), 10.0 * i});
        return mesures;
    }

    /// Chooses an entry of `Curseur` with the keys.
    void ChoisirCurseur(int index) { ChoisirEntree(v.Ui().Curseur, index); }
    /// Moves the mouse over the chart to that time, in the middle of its height.
    QPoint Survoler(double temps) {
        const QPoint point(qRound(v.Regard().Pixel(temps)), v.Regard().Cadre().center().y());
        QMouseEvent pas(QEvent::MouseMove, QPointF(point), Vue().mapToGlobal(QPointF(point)),
                        Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&v.Regard().Surface(), &pas);
        return point;
    }
    /// Shows that span of time, as a zoom does.
    void Zoomer(double de, double a) {
        const QRect cadre = v.Regard().Cadre();
        v.Regard().ZoomerSur(QRect(QPoint(qRound(v.Regard().Pixel(de)), cadre.top()),
                                   QPoint(qRound(v.Regard().Pixel(a)), cadre.bottom())));
    }

    VueGraphe& Vue() { return *v.Ui().TChart1; }
    OutilGraphe& Dernier() { return v.Modele().Outil(v.Modele().NombreOutils() - 1); }
    static Couleur CouleurTexte(const QLineEdit* boite) {
        return DepuisQColor(boite->palette().color(QPalette::Text));
    }

    Visionneuse v;
};

}  // namespace bornika::essai
