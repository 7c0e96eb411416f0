#include "support/announced_dialogs.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

namespace bornika::essai {
namespace {

class DialoguesAnnonces : public testing::Test {
  protected:
    Reponse Demander(Boutons boutons) {
        return dialogues->Boite(Icone::Question, boutons, QStringLiteral("k-Pod"),
                                QStringLiteral("Delete all?"));
    }
    void Informer(const char* texte) {
        EXPECT_EQ(dialogues->Boite(Icone::Critique, Boutons::Ok, QStringLiteral("k-Pod"),
                                   QString::fromUtf8(texte)),
                  Reponse::Ok);
    }
    void Finir() { dialogues.reset(); }

    std::unique_ptr<DialoguesNotes> dialogues = std::make_unique<DialoguesNotes>();
    Reponse reponse = Reponse::Ok;
    std::optional<QString> fichier;
    const QString nom = QStringLiteral("a.txt");
    const DemandeFichier demande{.titre = QStringLiteral("Pick"),
                                 .nom = QStringLiteral("x.txt"),
                                 .suffixe = {},
                                 .filtre = {},
                                 .dossier = {}};
};

TEST_F(DialoguesAnnonces, QuestionsGetTheirAnswersInOrder) {
    dialogues->AnnoncerQuestion(Reponse::Oui, QStringLiteral("Delete"));
    dialogues->AnnoncerQuestion(Reponse::Annuler);
    EXPECT_EQ(Demander(Boutons::OuiNon), Reponse::Oui);
    EXPECT_EQ(Demander(Boutons::OkAnnuler), Reponse::Annuler);
    EXPECT_EQ(dialogues->Boites().size(), 2U);
    Finir();
}

TEST_F(DialoguesAnnonces, AnUnannouncedQuestionFailsAndDestroysNothing) {
    EXPECT_NONFATAL_FAILURE(reponse = Demander(Boutons::OuiNon),
                            "nobody announced a box (Question, Yes/No) \"k-Pod\": \"Delete all?\"");
    EXPECT_EQ(reponse, Reponse::Non);
    EXPECT_NONFATAL_FAILURE(reponse = Demander(Boutons::OkAnnuler),
                            "nobody announced a box (Question, OK/Cancel)");
    EXPECT_EQ(reponse, Reponse::Annuler);
    dialogues->TolererInformations();
    EXPECT_NONFATAL_FAILURE(Demander(Boutons::OuiNon), "nobody announced");
    Finir();
}

TEST_F(DialoguesAnnonces, AQuestionWithOtherWordsOrButtonsThanAnnouncedFails) {
    dialogues->AnnoncerQuestion(Reponse::Oui, QStringLiteral("Go on?"));
    EXPECT_NONFATAL_FAILURE(
        reponse = Demander(Boutons::OuiNon),
        "announced was a question to answer with Yes \"Go on?\", there came a box (Question");
    EXPECT_EQ(reponse, Reponse::Non);
    dialogues->AnnoncerQuestion(Reponse::Oui);
    EXPECT_NONFATAL_FAILURE(reponse = Demander(Boutons::OkAnnuler), "there came a box");
    EXPECT_EQ(reponse, Reponse::Annuler);
    dialogues->AnnoncerQuestion(Reponse::Ok);
    EXPECT_NONFATAL_FAILURE(reponse = Demander(Boutons::OuiNon), "there came a box");
    EXPECT_EQ(reponse, Reponse::Non);
}

TEST_F(DialoguesAnnonces, AnAnnouncedQuestionThatNeverComesFails) {
    dialogues->AnnoncerQuestion(Reponse::Non, QStringLiteral("Delete"));
    EXPECT_NONFATAL_FAILURE(Finir(),
                            "announced, but never came: a question to answer with No \"Delete\"");
}

TEST_F(DialoguesAnnonces, AQuestionDoesNotCountAsAnnouncedByBeingReadOut) {
    EXPECT_NONFATAL_FAILURE(Demander(Boutons::OuiNon), "nobody announced");
    EXPECT_EQ(dialogues->Boites().size(), 1U);
    Finir();
}

TEST_F(DialoguesAnnonces, AnInformationThatNobodyReadsFailsAtTheEnd) {
    Informer("Card is full");
    EXPECT_NONFATAL_FAILURE(
        Finir(), "nobody announced or checked a box (Critical, OK) \"k-Pod\": \"Card is full\"");
}

TEST_F(DialoguesAnnonces, AnInformationCountsByBeingReadOutButNoLaterOne) {
    Informer("one");
    EXPECT_EQ(dialogues->Boites().size(), 1U);
    Informer("two");
    EXPECT_NONFATAL_FAILURE(Finir(), "\"two\"");
}

TEST_F(DialoguesAnnonces, ForgettingAnInformationThatNobodyReadFails) {
    Informer("one");
    EXPECT_NONFATAL_FAILURE(dialogues->OublierBoites(), "\"one\"");
    EXPECT_TRUE(dialogues->Boites().empty());
    Informer("two");
    EXPECT_EQ(dialogues->Boites().front().texte, QStringLiteral("two"));
    dialogues->OublierBoites();
    Finir();
}

TEST_F(DialoguesAnnonces, AToleratedInformationMayComeAnyNumberOfTimes) {
    dialogues->TolererInformations();
    Informer("one");
    Informer("two");
    Finir();
}

TEST_F(DialoguesAnnonces, AnAnnouncedInformationHasToComeWithItsWords) {
    dialogues->AnnoncerInformation(QStringLiteral("full"));
    Informer("Card is full");
    dialogues->AnnoncerInformation(QStringLiteral("full"));
    EXPECT_NONFATAL_FAILURE(Informer("Card is gone"), "announced was a box with \"full\"");
    dialogues->AnnoncerInformation(QStringLiteral("full"));
    EXPECT_NONFATAL_FAILURE(Finir(), "announced, but never came: a box with \"full\"");
}

TEST_F(DialoguesAnnonces, FileDialogsGiveTheFilesOfTheirKind) {
    dialogues->AnnoncerOuverture(nom);
    dialogues->AnnoncerEnregistrement(std::nullopt);
    EXPECT_EQ(dialogues->Ouvrir(demande), nom);
    EXPECT_EQ(dialogues->Enregistrer(demande), std::nullopt);
    EXPECT_EQ(dialogues->demandes.size(), 2U);
    Finir();
}

TEST_F(DialoguesAnnonces, AFileDialogOfTheOtherKindFailsAndIsCancelled) {
    dialogues->AnnoncerEnregistrement(nom);
    EXPECT_NONFATAL_FAILURE(
        fichier = dialogues->Ouvrir(demande),
        "announced was a file dialog that saves, there came one that opens, \"Pick\" for");
    EXPECT_EQ(fichier, std::nullopt);
    dialogues->AnnoncerOuverture(nom);
    EXPECT_NONFATAL_FAILURE(fichier = dialogues->Enregistrer(demande),
                            "announced was a file dialog that opens, there came one that saves");
    EXPECT_EQ(fichier, std::nullopt);
    Finir();
}

TEST_F(DialoguesAnnonces, AnUnannouncedFileDialogFailsAndIsCancelled) {
    EXPECT_NONFATAL_FAILURE(fichier = dialogues->Ouvrir(demande),
                            "nobody announced a file dialog that opens, \"Pick\" for \"x.txt\"");
    EXPECT_EQ(fichier, std::nullopt);
    EXPECT_NONFATAL_FAILURE(fichier = dialogues->Enregistrer(demande),
                            "nobody announced a file dialog that saves");
    EXPECT_EQ(fichier, std::nullopt);
}

TEST_F(DialoguesAnnonces, AnAnnouncedFileDialogThatNeverComesFails) {
    dialogues->AnnoncerOuverture(nom);
    EXPECT_NONFATAL_FAILURE(Finir(), "announced, but never came: a file dialog that opens");
}

TEST_F(DialoguesAnnonces, ColourDialogsComeAsAnnouncedAndNotOtherwise) {
    dialogues->AnnoncerCouleur(0x123456);
    EXPECT_EQ(dialogues->Couleur(7), 0x123456U);
    std::optional<std::uint32_t> couleur = 1;
    EXPECT_NONFATAL_FAILURE(couleur = dialogues->Couleur(7), "nobody announced a colour dialog");
    EXPECT_EQ(couleur, std::nullopt);
    dialogues->AnnoncerCouleur(std::nullopt);
    EXPECT_NONFATAL_FAILURE(Finir(), "never came: a colour dialog");
}

TEST_F(DialoguesAnnonces, PrintPreviewsComeAsAnnouncedAndNotOtherwise) {
    int gestes = 0;
    dialogues->AnnoncerApercu([&](const DemandeApercu&) { ++gestes; });
    dialogues->Apercu({});
    EXPECT_EQ(gestes, 1);
    EXPECT_NONFATAL_FAILURE(dialogues->Apercu({}), "nobody announced a print preview");
    EXPECT_EQ(dialogues->apercus.size(), 2U);
    dialogues->AnnoncerApercu();
    EXPECT_NONFATAL_FAILURE(Finir(), "never came: a print preview");
}

}  // namespace
}  // namespace bornika::essai
