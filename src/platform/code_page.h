#pragma once

#include <QByteArray>
#include <QString>

/// The 8-bit code page of recording files, comments and texts in the logger: Windows-1252. Its five
/// undefined bytes are the control characters of the same number, so that reading and writing again
/// gives the same bytes.
namespace bornika {

QString Depuis8Bits(QByteArrayView octets);

/// A character that the code page lacks becomes "?".
QByteArray Vers8Bits(QStringView texte);

}  // namespace bornika
