#pragma once

#include <QString>
#include <string>

namespace bornika::essai {

/// A text as a failing test shows it.
inline std::string Clair(const QString& texte) {
    return texte.toStdString();
}
inline std::string Clair(const QByteArray& texte) {
    return texte.toStdString();
}

inline QString q(const char* texte) {
    return QString::fromUtf8(texte);
}

}  // namespace bornika::essai
