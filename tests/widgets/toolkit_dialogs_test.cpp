#include "widgets/toolkit_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

namespace bornika {
namespace {

// Does something with the box or dialog of this kind as soon as it stands.
template <class Dialogue>
void DesQuilEstLa(std::function<void(Dialogue&)> action) {
    QTimer::singleShot(0, qApp, [action] {
        auto* dialogue = qobject_cast<Dialogue*>(QApplication::activeModalWidget());
        if (dialogue == nullptr) {
            DesQuilEstLa<Dialogue>(action);
            return;
        }
        action(*dialogue);
    });
}

using Action = std::function<void(QMessageBox&)>;

Reponse Repondre(Boutons boutons, const Action& action, Icone icone = Icone::Aucune,
                 const QString& titre = {}, const QString& texte = QStringLiteral("texte")) {
    DesQuilEstLa<QMessageBox>(action);
    return DialoguesQt().Boite(icone, boutons, titre, texte);
}

Action Cliquer(QMessageBox::StandardButton bouton) {
    return
        [bouton](QMessageBox& boite) { QTest::mouseClick(boite.button(bouton), Qt::LeftButton); };
}

void Echapper(QMessageBox& boite) {
    QTest::keyClick(&boite, Qt::Key_Escape);
}
void FermerCadre(QMessageBox& boite) {
    boite.close();
}

TEST(Boite, AnswersWithItsButton) {
    EXPECT_EQ(Repondre(Boutons::Ok, Cliquer(QMessageBox::Ok)), Reponse::Ok);
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, Cliquer(QMessageBox::Ok)), Reponse::Ok);
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, Cliquer(QMessageBox::Cancel)), Reponse::Annuler);
    EXPECT_EQ(Repondre(Boutons::OuiNon, Cliquer(QMessageBox::Yes)), Reponse::Oui);
    EXPECT_EQ(Repondre(Boutons::OuiNon, Cliquer(QMessageBox::No)), Reponse::Non);
}

TEST(Boite, TakesEscAndItsFrameAsCancel) {
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, Echapper), Reponse::Annuler);
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, FermerCadre), Reponse::Annuler);
    EXPECT_EQ(Repondre(Boutons::Ok, Echapper), Reponse::Ok);
    EXPECT_EQ(Repondre(Boutons::Ok, FermerCadre), Reponse::Ok);
}

TEST(Boite, TakesEnterAsOkButForWhatCannotBeUndone) {
    const auto entrer = [](QMessageBox& boite) { QTest::keyClick(&boite, Qt::Key_Return); };
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, entrer), Reponse::Ok);
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, entrer, Icone::Question), Reponse::Ok);
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, entrer, Icone::Critique), Reponse::Annuler);
    EXPECT_EQ(Repondre(Boutons::OkAnnuler, Cliquer(QMessageBox::Ok), Icone::Critique), Reponse::Ok);
}

TEST(Boite, OfYesAndNoCanBeLeftByItsButtonsOnly) {
    const auto resister = [](QMessageBox::StandardButton bouton) {
        return [bouton](QMessageBox& boite) {
            Echapper(boite);
            EXPECT_TRUE(boite.isVisible());
            FermerCadre(boite);
            EXPECT_TRUE(boite.isVisible());
            EXPECT_FALSE(boite.windowFlags() & Qt::WindowCloseButtonHint);
            Cliquer(bouton)(boite);
        };
    };
    EXPECT_EQ(Repondre(Boutons::OuiNon, resister(QMessageBox::Yes)), Reponse::Oui);
    EXPECT_EQ(Repondre(Boutons::OuiNon, resister(QMessageBox::No)), Reponse::Non);
}

TEST(Boite, BehindAnotherBoxBelongsToTheDialogThatWaitsForBoth) {
    QDialog dialogue;
    dialogue.setModal(true);
    dialogue.show();
    for (const bool active : {true, false}) {
        if (active)
            dialogue.activateWindow();
        else
            QApplication::setActiveWindow(nullptr);
        const QWidget* parent = nullptr;
        Repondre(Boutons::Ok, [&](QMessageBox& boite) {
            parent = boite.parentWidget();
            boite.accept();
        });
        EXPECT_EQ(parent, &dialogue) << active;
    }
}

TEST(Boite, OutlivesAWindowThatGoesAwayByItself) {
    const QPointer<QWidget> passagere = new QWidget;
    passagere->setAttribute(Qt::WA_DeleteOnClose);
    passagere->show();
    QApplication::setActiveWindow(passagere);
    ASSERT_EQ(QApplication::activeWindow(), passagere);
    const Reponse reponse = Repondre(Boutons::OkAnnuler, [&](QMessageBox& boite) {
        passagere->close();
        DesQuilEstLa<QMessageBox>([&](QMessageBox&) {
            EXPECT_TRUE(passagere.isNull());
            boite.button(QMessageBox::Ok)->click();
        });
    });
    EXPECT_EQ(reponse, Reponse::Ok);
}

TEST(Boite, ShowsItsTextAsPlainText) {
    const auto regarder = [](QMessageBox& boite) {
        EXPECT_EQ(boite.textFormat(), Qt::PlainText);
        EXPECT_EQ(boite.text(), "<b>a</b>\nb\nc");
        EXPECT_EQ(boite.windowTitle(), "k-Pod");
        Cliquer(QMessageBox::Ok)(boite);
    };
    Repondre(Boutons::Ok, regarder, Icone::Information, QStringLiteral("k-Pod"),
             QStringLiteral("<b>a</b>\r\nb\nc"));
}

TEST(Boite, ShowsTheIconToldForAllButtons) {
    const std::pair<Icone, QMessageBox::Icon> icones[] = {
        {Icone::Aucune, QMessageBox::NoIcon},
        {Icone::Information, QMessageBox::Information},
        {Icone::Exclamation, QMessageBox::Warning},
        {Icone::Question, QMessageBox::Question},
        {Icone::Critique, QMessageBox::Critical}};
    for (const auto& [icone, attendue] : icones) {
        const auto image = attendue;
        const auto regarder = [image](QMessageBox& boite) {
            EXPECT_EQ(boite.icon(), image);
            boite.buttons().front()->click();
        };
        Repondre(Boutons::Ok, regarder, icone);
        Repondre(Boutons::OuiNon, regarder, icone);
    }
}

TEST(Boite, HasNoTitleWhenThereIsNone) {
    Repondre(Boutons::Ok, [](QMessageBox& boite) {
        EXPECT_EQ(boite.windowTitle(), "");
        Cliquer(QMessageBox::Ok)(boite);
    });
}

TEST(Filtre, KeepsTheLabelAndTakesBothLetterCases) {
    EXPECT_EQ(FiltrePourDialogue("txt (*.txt)|*.txt"), "txt (*.txt) (*.txt *.TXT)");
    EXPECT_EQ(FiltrePourDialogue("Prg (*.txt|*.txt"), "Prg (*.txt) (*.txt *.TXT)");
    EXPECT_EQ(FiltrePourDialogue("(*.txt)|*.txt"), "(*.txt) (*.txt *.TXT)");
    EXPECT_EQ(FiltrePourDialogue("hex|*.HEX"), "hex (*.HEX *.hex)");
}

TEST(Filtre, JoinsSeveralPairs) {
    EXPECT_EQ(FiltrePourDialogue("txt|*.txt|log|*.log;*.csv|tout|*.*"),
              "txt (*.txt *.TXT);;log (*.log *.LOG *.csv *.CSV);;tout (*)");
}

TEST(Filtre, IsNoneWithoutAPattern) {
    EXPECT_EQ(FiltrePourDialogue(""), "");
    EXPECT_EQ(FiltrePourDialogue("txt"), "");
}

class DialogueFichier : public testing::Test {
  protected:
    void SetUp() override {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        for (const char* nom : {"a.txt", "B.TXT", "c.csv"}) {
            QFile fichier(Chemin(nom));
            ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        }
        demande.dossier = dossier.path();
        demande.filtre = QStringLiteral("txt (*.txt)|*.txt");
        demande.suffixe = QStringLiteral("*.txt");
        demande.titre = QStringLiteral("Choisir");
    }
    QString Chemin(const char* nom) const { return dossier.filePath(QString::fromLatin1(nom)); }

    static std::function<void(QFileDialog&)> Taper(const QString& noms) {
        return [noms](QFileDialog& dialogue) {
            auto* saisie = dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(saisie, nullptr);
            saisie->setText(noms);
            static_cast<QDialog&>(dialogue).accept();
        };
    }

    QTemporaryDir dossier;
    DemandeFichier demande;
};

TEST_F(DialogueFichier, GivesTheFullPathOfOneFile) {
    DesQuilEstLa<QFileDialog>([this](QFileDialog& dialogue) {
        EXPECT_EQ(dialogue.windowTitle(), "Choisir");
        EXPECT_EQ(dialogue.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialogue.fileMode(), QFileDialog::ExistingFile);
        Taper(QStringLiteral("a.txt"))(dialogue);
    });
    EXPECT_EQ(DialoguesQt().Ouvrir(demande), Chemin("a.txt"));
}

TEST_F(DialogueFichier, GivesTheFolderAndTheNamesOfSeveralFiles) {
    demande.plusieurs = true;
    DesQuilEstLa<QFileDialog>(Taper(QStringLiteral("\"a.txt\" \"B.TXT\"")));
    const auto choisis = DialoguesQt().Ouvrir(demande);
    ASSERT_TRUE(choisis.has_value());
    EXPECT_EQ(choisis->split(QChar(u'\0')), (QStringList{dossier.path(), "a.txt", "B.TXT"}));
}

TEST_F(DialogueFichier, GivesOneFullPathWhenOneOfSeveralIsPicked) {
    demande.plusieurs = true;
    DesQuilEstLa<QFileDialog>(Taper(QStringLiteral("B.TXT")));
    EXPECT_EQ(DialoguesQt().Ouvrir(demande), Chemin("B.TXT"));
}

TEST_F(DialogueFichier, ShowsItsFilterOnceAndOffersBothLetterCases) {
    const std::pair<const char*, const char*> filtres[] = {{"txt (*.txt)|*.txt", "txt (*.txt)"},
                                                           {"(*.txt)|*.txt", "(*.txt)"},
                                                           {"Prg (*.txt|*.txt", "Prg (*.txt)"}};
    for (const auto& [filtre, montre] : filtres) {
        demande.filtre = QString::fromLatin1(filtre);
        QString vu;
        QStringList offerts;
        DesQuilEstLa<QFileDialog>([&](QFileDialog& dialogue) {
            vu = dialogue.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText();
            auto* fichiers = dialogue.findChild<QListView*>(QStringLiteral("listView"));
            ASSERT_NE(fichiers, nullptr);
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return fichiers->model()->rowCount(fichiers->rootIndex()) == 2; }));
            for (int i = 0; i < fichiers->model()->rowCount(fichiers->rootIndex()); ++i)
                offerts << fichiers->model()->index(i, 0, fichiers->rootIndex()).data().toString();
            dialogue.reject();
        });
        DialoguesQt().Ouvrir(demande);
        EXPECT_EQ(vu.trimmed(), montre);
        offerts.sort();
        EXPECT_EQ(offerts, (QStringList{"B.TXT", "a.txt"}));
    }
}

TEST_F(DialogueFichier, GivesNothingWhenItIsCancelled) {
    const auto annuler = [](QFileDialog& dialogue) { dialogue.reject(); };
    DesQuilEstLa<QFileDialog>(annuler);
    EXPECT_EQ(DialoguesQt().Ouvrir(demande), std::nullopt);
    DesQuilEstLa<QFileDialog>(annuler);
    EXPECT_EQ(DialoguesQt().Enregistrer(demande), std::nullopt);
}

TEST_F(DialogueFichier, AddsTheSuffixToAFileToSave) {
    DesQuilEstLa<QFileDialog>(Taper(QStringLiteral("neuf")));
    EXPECT_EQ(DialoguesQt().Enregistrer(demande), Chemin("neuf.txt"));
    demande.suffixe = QStringLiteral("*.csv");
    demande.filtre = QStringLiteral("csv|*.csv");
    DesQuilEstLa<QFileDialog>(Taper(QStringLiteral("neuf")));
    EXPECT_EQ(DialoguesQt().Enregistrer(demande), Chemin("neuf.csv"));
}

TEST_F(DialogueFichier, AsksBeforeItGivesAnExistingFileToSave) {
    bool demandee = false;
    DesQuilEstLa<QFileDialog>([&demandee](QFileDialog& dialogue) {
        DesQuilEstLa<QMessageBox>([&demandee, &dialogue](QMessageBox& boite) {
            demandee = true;
            Cliquer(QMessageBox::No)(boite);
            QTimer::singleShot(0, &dialogue, &QDialog::reject);
        });
        Taper(QStringLiteral("a.txt"))(dialogue);
    });
    EXPECT_EQ(DialoguesQt().Enregistrer(demande), std::nullopt);
    EXPECT_TRUE(demandee);
}

TEST_F(DialogueFichier, GivesAnExistingFileToAddToWithoutAsking) {
    demande.ajout = true;
    DesQuilEstLa<QFileDialog>([](QFileDialog& dialogue) {
        if (dialogue.testOption(QFileDialog::DontConfirmOverwrite))
            Taper(QStringLiteral("a.txt"))(dialogue);
        else
            dialogue.reject();
    });
    EXPECT_EQ(DialoguesQt().Enregistrer(demande), Chemin("a.txt"));
}

TEST_F(DialogueFichier, ShowsTheNameTold) {
    demande.nom = QStringLiteral("REC.txt");
    QString montre;
    DesQuilEstLa<QFileDialog>([&montre](QFileDialog& dialogue) {
        montre = dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        dialogue.reject();
    });
    DialoguesQt().Enregistrer(demande);
    EXPECT_EQ(montre, "REC.txt");
}

TEST_F(DialogueFichier, TakesAPatternForNoName) {
    demande.nom = QStringLiteral("*.txt");
    QString montre = QStringLiteral("x");
    DesQuilEstLa<QFileDialog>([&montre](QFileDialog& dialogue) {
        montre = dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        dialogue.reject();
    });
    DialoguesQt().Ouvrir(demande);
    EXPECT_EQ(montre, "");
}

TEST(DialogueCouleur, StartsAtTheColourToldAndGivesTheOneChosen) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    DesQuilEstLa<QColorDialog>([](QColorDialog& dialogue) {
        EXPECT_EQ(dialogue.currentColor(), QColor(255, 0, 0));
        dialogue.setCurrentColor(QColor(1, 2, 3));
        static_cast<QDialog&>(dialogue).accept();
    });
    EXPECT_EQ(DialoguesQt().Couleur(255), 0x030201U);
}

TEST(DialogueCouleur, GivesNothingWhenItIsCancelled) {
    DesQuilEstLa<QColorDialog>([](QColorDialog& dialogue) { dialogue.reject(); });
    EXPECT_EQ(DialoguesQt().Couleur(255), std::nullopt);
}

}  // namespace
}  // namespace bornika
