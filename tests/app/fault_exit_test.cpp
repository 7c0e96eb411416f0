#include "app/fault_exit.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QStringList>
#include <functional>
#include <new>
#include <stdexcept>

#include "platform/guard.h"
#include "platform/text_file.h"
#include "support/fake_system.h"

namespace bornika {
namespace {

using essai::Etabli;

TEST(GeneralFailure, ShowsTheStandardBoxThenClosesTheLinkThenLeavesWithStatusOne) {
    Etabli etabli;
    QStringList ordre;
    etabli.dialogues.pendantBoite = [&](const auto&) { ordre << QStringLiteral("box"); };
    FinirSurFaute(
        FauteExecution(numero_faute::depassement), etabli.dialogues,
        [&] { ordre << QStringLiteral("link"); },
        [&](int etat) { ordre << QStringLiteral("leave %1").arg(etat); });
    EXPECT_EQ(ordre, QStringList({QStringLiteral("box"), QStringLiteral("link"),
                                  QStringLiteral("leave 1")}));
    ASSERT_EQ(etabli.dialogues.Boites().size(), 1U);
    const auto& boite = etabli.dialogues.Boites().front();
    EXPECT_EQ(boite.icone, Icone::Critique);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(boite.titre, QStringLiteral("k-Pod"));
    EXPECT_EQ(boite.texte, QStringLiteral("Run-time error '6':\n\nOverflow"));
}

TEST(GeneralFailure, WhatAnOpenTextFileHeldIsOnTheDiskBeforeTheProgramLeaves) {
    Etabli etabli;
    FichierTexteEcrit fichier(etabli.Chemin(QStringLiteral("r.txt")), ModeEcriture::Remplacer);
    fichier.EcrireLigne(u"kept");
    QByteArray vu;
    etabli.dialogues.AnnoncerInformation(QStringLiteral("Run-time error '9'"));
    FinirSurFaute(
        FauteExecution(numero_faute::indice), etabli.dialogues, [] {},
        [&](int) { vu = etabli.Lire(QStringLiteral("r.txt")); });
    EXPECT_EQ(vu, QByteArray("kept\r\n"));
}

/// An object whose event handler raises what the test wants.
class Fautif : public QObject {
  public:
    std::function<void()> acte;
    bool event(QEvent* evenement) override {
        if (evenement->type() == QEvent::User) acte();
        return QObject::event(evenement);
    }
};

TEST(LastNet, AFaultThatPassedEveryGuardReachesTheHandler) {
    Etabli etabli;
    Fautif fautif;
    const auto envoyer = [&] {
        QEvent evenement(QEvent::User);
        QCoreApplication::sendEvent(&fautif, &evenement);
    };
    fautif.acte = [] { LeverFaute(numero_faute::divisionParZero); };
    envoyer();
    fautif.acte = [] { throw std::bad_alloc(); };
    envoyer();
    fautif.acte = [] { throw std::runtime_error("x"); };
    envoyer();
    EXPECT_EQ(etabli.fautes, std::vector<int>({11, 7, 51}));
}

}  // namespace
}  // namespace bornika
