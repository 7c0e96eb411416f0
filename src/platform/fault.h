#pragma once

#include <QByteArray>
#include <QString>
#include <exception>

namespace bornika {

/// Numbers of the run-time faults that the program can meet.
namespace numero_faute {
inline constexpr int appelInvalide = 5;
inline constexpr int depassement = 6;
inline constexpr int indice = 9;
inline constexpr int divisionParZero = 11;
inline constexpr int typeIncompatible = 13;
inline constexpr int nomDeFichier = 52;
inline constexpr int fichierIntrouvable = 53;
inline constexpr int disquePlein = 61;
inline constexpr int accesRefuse = 70;
inline constexpr int cheminIntrouvable = 76;
inline constexpr int objetAbsent = 91;
inline constexpr int valeurInvalide = 380;
inline constexpr int entreeAbsente = 381;
}  // namespace numero_faute

/// A run-time fault: an overflow, a subscript out of range, a file that cannot be opened...
///
/// It is the only exception of the program. A failure of the device is no fault: it sets `TimeOut`.
/// What is not ignored by `ignorer` ends in the guard of the entry point (guard.h), which shows the
/// standard box and ends the program.
class FauteExecution : public std::exception {
  public:
    /// The text is the standard one of the number.
    explicit FauteExecution(int numero);
    FauteExecution(int numero, QString texte);

    int numero() const { return numero_; }
    const QString& texte() const { return texte_; }
    const char* what() const noexcept override { return octets_.constData(); }

  private:
    int numero_;
    QString texte_;
    QByteArray octets_;
};

/// Standard English text of a fault number, "Application-defined or object-defined error" for
/// others.
QString TexteFaute(int numero);

/// Raises the fault of that number with its standard text.
[[noreturn]] void LeverFaute(int numero);

/// Runs one statement and swallows a run-time fault of it, and nothing else.
/// Returns true when the statement ran to its end. A routine that "ignores errors" is written as a
/// list of such statements, so that one sees what survives what.
template <class Instruction>
bool ignorer(Instruction&& instruction) {
    try {
        instruction();
        return true;
    } catch (const FauteExecution&) {
        return false;
    }
}

}  // namespace bornika
