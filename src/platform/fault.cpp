#include "platform/fault.h"

#include <utility>

namespace bornika {

FauteExecution::FauteExecution(int numero) : FauteExecution(numero, TexteFaute(numero)) {}

FauteExecution::FauteExecution(int numero, QString texte)
    : numero_(numero), texte_(std::move(texte)), octets_(texte_.toUtf8()) {}

QString TexteFaute(int numero) {
    switch (numero) {
        case 5:
            return QStringLiteral("Invalid procedure call or argument");
        case 6:
            return QStringLiteral("Overflow");
        case 9:
            return QStringLiteral("Subscript out of range");
        case 11:
            return QStringLiteral("Division by zero");
        case 13:
            return QStringLiteral("Type mismatch");
        case 52:
            return QStringLiteral("Bad file name");
        case 53:
            return QStringLiteral("File not found");
        case 61:
            return QStringLiteral("Disk full");
        case 70:
            return QStringLiteral("Permission denied");
        case 76:
            return QStringLiteral("Path not found");
        case 91:
            return QStringLiteral("Object variable not set");
        case 380:
            return QStringLiteral("Invalid property value");
        default:
            return QStringLiteral("Application-defined or object-defined error");
    }
}

void LeverFaute(int numero) {
    throw FauteExecution(numero);
}

}  // namespace bornika
