#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTest>

namespace bornika::essai {

/// The operator's hand: real events of mouse and keys on controls that stand on a form off-screen.
struct Operateur {
    /// Near the left edge: an option or a check box answers only over its mark and its text.
    static void Cliquer(QWidget* controle) {
        QTest::mouseClick(controle, Qt::LeftButton, Qt::NoModifier,
                          QPoint(qMin(8, controle->width() / 2), controle->height() / 2));
    }
    /// Clicks a line of a list that is all shown.
    static void CliquerLigne(const QListWidget& liste, int ligne) {
        QTest::mouseClick(liste.viewport(), Qt::LeftButton, Qt::NoModifier,
                          liste.visualItemRect(liste.item(ligne)).center());
    }
    /// Types over what stands in the box; an empty text deletes it.
    static void Taper(QLineEdit* saisie, const QString& texte) {
        saisie->setFocus();
        saisie->selectAll();
        if (texte.isEmpty()) QTest::keyClick(saisie, Qt::Key_Delete);
        for (const QChar signe : texte) {
            // Not every sign has a key of its own.
            if (signe.unicode() < 128)
                QTest::keyClick(saisie, signe.toLatin1());
            else
                saisie->insert(QString(signe));
        }
    }
    /// Goes to an entry of a drop-down list with the keys.
    static void ChoisirEntree(QComboBox* liste, int index) {
        if (index == 0) QTest::keyClick(liste, Qt::Key_Home);
        for (int i = liste->currentIndex(); i < index; ++i)
            QTest::keyClick(liste, Qt::Key_Down);
        for (int i = liste->currentIndex(); i > index; --i)
            QTest::keyClick(liste, Qt::Key_Up);
        EXPECT_EQ(liste->currentIndex(), index) << liste->objectName().toStdString();
    }
    /// Clicks an entry of a menu that stands open.
    static void CliquerEntree(QMenu* menu, QAction* entree) {
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(entree).center());
    }
};

}  // namespace bornika::essai
