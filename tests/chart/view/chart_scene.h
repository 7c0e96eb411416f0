#pragma once

#include <QtTest>
#include <cmath>

#include "chart/model/chart_model.h"
#include "chart/view/chart_plot.h"
#include "chart/view/chart_view.h"
#include "chart/view/chart_view_legend.h"

namespace bornika::essai {

inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// A chart on its own with a pressure and a flow curve of `points` points, one a second, and a
/// label "t<second>" on each.
struct Scene {
    explicit Scene(int points = 1000) {
        for (int s = 0; s < 2; ++s) {
            SerieGraphe& serie = modele.AjouterSerie();
            serie.titre = s == 0 ? QStringLiteral("Pression") : QStringLiteral("m3/Hrs");
            serie.axe = s == 0 ? SerieGraphe::Axe::Gauche : SerieGraphe::Axe::Droite;
            for (int i = 0; i < points; ++i)
                serie.AjouterPoint(i, s == 0 ? 4 + std::sin(i / 50.0) : 20 + i * 0.01,
                                   QStringLiteral("t%1").arg(i));
        }
        modele.bas.etiquettesTexte = true;
        modele.legendeCases = true;
        modele.FixerPlage(0, points - 1);
        graphe.Lier(modele);
        graphe.resize(900, 480);
        graphe.show();
    }

    QRect Cadre() const { return vue.axisRect()->rect(); }
    /// A point inside the frame, by parts of its width and height.
    QPoint Dans(double x, double y) const {
        return Cadre().topLeft() + QPoint(int(Cadre().width() * x), int(Cadre().height() * y));
    }
    QPoint CaseLegende(int serie) const {
        return vue.legend->item(serie)->rect().center() -
               QPoint(vue.legend->item(serie)->rect().width() / 2 - 6, 0);
    }
    void Tirer(Qt::MouseButton bouton, QPoint de, QPoint a) {
        QTest::mousePress(&vue, bouton, {}, de);
        for (const QPoint point : {(de + a) / 2, a}) {
            QMouseEvent pas(QEvent::MouseMove, QPointF(point), vue.mapToGlobal(QPointF(point)),
                            Qt::NoButton, bouton, Qt::NoModifier);
            QCoreApplication::sendEvent(&vue, &pas);
        }
        QTest::mouseRelease(&vue, bouton, {}, a);
    }
    /// Moves the mouse there without a button.
    void Survoler(QPoint ou) {
        QMouseEvent pas(QEvent::MouseMove, QPointF(ou), vue.mapToGlobal(QPointF(ou)), Qt::NoButton,
                        Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&vue, &pas);
    }
    /// The same to a time, in the middle of the height.
    void SurvolerTemps(double temps) {
        Survoler({qRound(vue.xAxis->coordToPixel(temps)), Cadre().center().y()});
    }
    /// A cursor that follows the mouse on a series, as the last tool.
    OutilGraphe& PoserCurseur(int serie, Couleur crayon = 0xFFFFFF) {
        OutilGraphe curseur;
        curseur.genre = OutilGraphe::Genre::Curseur;
        curseur.serie = serie;
        curseur.crayon = crayon;
        curseur.suitSouris = true;
        return modele.AjouterOutil(curseur);
    }
    /// Takes all points of a curve away and gives it these.
    SerieGraphe& Remplacer(const std::vector<QPointF>& points) {
        modele.RetirerTout();
        SerieGraphe& serie = modele.AjouterSerie();
        for (const QPointF& point : points)
            serie.AjouterPoint(point.x(), point.y(), MagasinEtiquettes::vide);
        return serie;
    }
    void Rouler(QPoint ou, int crans) {
        QWheelEvent roue(QPointF(ou), vue.mapToGlobal(QPointF(ou)), QPoint(),
                         QPoint(0, 120 * crans), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                         false);
        QCoreApplication::sendEvent(&vue, &roue);
    }

    ModeleGraphe modele;
    VueGraphe graphe;
    /// What it holds.
    DessinGraphe& vue = graphe.Toile();
};

}  // namespace bornika::essai
