#include "platform/fault.h"

#include <utility>

namespace bornika {

FauteExecution::FauteExecution(int numero) : FauteExecution(numero, TexteFaute(numero)) {}

FauteExecution::FauteExecution(int numero, QString texte)
    : numero_(numero), texte_(std::move(texte)), octets_(texte_.toUtf8()) {}

QString TexteFaute(int numero) {
    switch (numero) {
        case numero_faute::appelInvalide:
            return QStringLiteral("Invalid procedure call or argument");
        case numero_faute::depassement:
            return QStringLiteral("Overflow");
        case numero_faute::indice:
            return QStringLiteral("Subscript out of range");
        case numero_faute::divisionParZero:
            return QStringLiteral("Division by zero");
        case numero_faute::typeIncompatible:
            return QStringLiteral("Type mismatch");
        case numero_faute::nomDeFichier:
            return QStringLiteral("Bad file name");
        case numero_faute::fichierIntrouvable:
            return QStringLiteral("File not found");
        case numero_faute::disquePlein:
            return QStringLiteral("Disk full");
        case numero_faute::accesRefuse:
            return QStringLiteral("Permission denied");
        case numero_faute::cheminIntrouvable:
            return QStringLiteral("Path not found");
        case numero_faute::objetAbsent:
            return QStringLiteral("Object variable not set");
        case numero_faute::valeurInvalide:
            return QStringLiteral("Invalid property value");
        case numero_faute::entreeAbsente:
            return QStringLiteral("Invalid property array index");
        default:
            return QStringLiteral("Application-defined or object-defined error");
    }
}

void LeverFaute(int numero) {
    throw FauteExecution(numero);
}

}  // namespace bornika
