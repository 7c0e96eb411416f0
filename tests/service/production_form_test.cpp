#include "service/production_form.h"

#include <gtest/gtest.h>

#include <QFile>

#include "service/dialog_fixture.h"
#include "ui_production_form.h"

namespace bornika::essai {
namespace {

struct FicheProduction : testing::Test {
    BancDialogue banc;

    /// Shows the form and lets the hand do something on it.
    void Montrer(const std::function<void(frmProduction&)>& geste) {
        banc.main = [&](QDialog& dialogue) { geste(dynamic_cast<frmProduction&>(dialogue)); };
        mnurapport_Click(banc.ecran);
    }
};

TEST_F(FicheProduction, IsModalAndSpeaksTheLanguageOfTheMainForm) {
    Montrer([](frmProduction& fiche) {
        EXPECT_TRUE(fiche.isModal());
        EXPECT_EQ(Clair(fiche.windowTitle()), "Rapport de production");
        EXPECT_EQ(Clair(fiche.ui->LabelNumeroCommande->text()), "N° de commande");
        EXPECT_EQ(Clair(fiche.ui->LabelCommentairesProduction->text()), "Commentaires");
        EXPECT_EQ(Clair(fiche.ui->PrintReport->text()), "Imprimer le rapport");
    });
    banc.Parler(QStringLiteral("English"));
    Montrer([](frmProduction& fiche) {
        EXPECT_EQ(Clair(fiche.windowTitle()), "Production report");
        EXPECT_EQ(Clair(fiche.ui->LabelNumeroCommande->text()), "Order number");
        EXPECT_EQ(Clair(fiche.ui->PrintReport->text()), "Print report");
    });
    EXPECT_EQ(banc.montres, 2);
}

TEST_F(FicheProduction, KeepsItsTextsUntilTheNextShowHoweverItWasLeft) {
    Montrer([](frmProduction& fiche) {
        EXPECT_EQ(Clair(fiche.ui->Commande->text()), "");
        fiche.ui->Commande->setText(QStringLiteral("17"));
        fiche.ui->Commentaires->setPlainText(QStringLiteral("bon"));
        BancDialogue::Cliquer(fiche.ui->PrintReport);
        EXPECT_FALSE(fiche.isVisible());
    });
    Montrer([](frmProduction& fiche) {
        EXPECT_EQ(Clair(fiche.ui->Commande->text()), "17");
        EXPECT_EQ(Clair(fiche.ui->Commentaires->toPlainText()), "bon");
        QTest::keyClick(&fiche, Qt::Key_Escape);
        EXPECT_FALSE(fiche.isVisible());
    });
    Montrer([](frmProduction& fiche) {
        EXPECT_EQ(Clair(fiche.ui->Commande->text()), "17");
        fiche.close();
    });
    Montrer([](frmProduction& fiche) { EXPECT_EQ(Clair(fiche.ui->Commande->text()), "17"); });
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("17.log")).count("\r\n"), 22);
}

TEST_F(FicheProduction, EnterInTheOrderNumberWritesAndInTheCommentBeginsALine) {
    Montrer([&](frmProduction& fiche) {
        EXPECT_EQ(fiche.focusWidget(), fiche.ui->Commande);
        fiche.ui->Commande->setText(QStringLiteral("18"));
        QTest::keyClick(fiche.ui->Commentaires, Qt::Key_Return);
        EXPECT_EQ(Clair(fiche.ui->Commentaires->toPlainText()), "\n");
        EXPECT_TRUE(fiche.isVisible());
        QTest::keyClick(fiche.ui->Commande, Qt::Key_Return);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_TRUE(banc.etabli.Fichiers().contains(QStringLiteral("18.log")));
}

TEST_F(FicheProduction, WalksWithTheTabKeyFromOrderToCommentToButton) {
    Montrer([](frmProduction& fiche) {
        for (QWidget* attendu : std::initializer_list<QWidget*>{
                 fiche.ui->Commentaires, fiche.ui->PrintReport, fiche.ui->Commande}) {
            QTest::keyClick(fiche.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(fiche.focusWidget(), attendu) << Clair(attendu->objectName());
        }
    });
}

TEST_F(FicheProduction, OpensWithTheCaptionsOfItsDesignWhenTheCatalogueCannotBeRead) {
    ASSERT_TRUE(QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml"))));
    Montrer([](frmProduction& fiche) {
        EXPECT_EQ(Clair(fiche.ui->LabelNumeroCommande->text()), "N° de commande");
        fiche.ui->Commande->setText(QStringLiteral("19"));
        BancDialogue::Cliquer(fiche.ui->PrintReport);
    });
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("19.log")).count("\r\n"), 22);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(FicheProduction, FindsAllItsTextsInTheDeliveredCatalogue) {
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    for (const char* langue : {"Français", "English"}) {
        banc.Parler(QString::fromUtf8(langue));
        Montrer([](frmProduction&) {});
    }
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
}

}  // namespace
}  // namespace bornika::essai
