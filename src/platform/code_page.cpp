#include "platform/code_page.h"

#include <algorithm>
#include <array>

namespace bornika {

namespace {

constexpr int premier = 0x80;

// Characters of the bytes 0x80 to 0x9F; all other bytes are the character of the same number.
constexpr std::array<char16_t, 32> haut = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char OctetDe(char16_t caractere) {
    if (caractere < premier || (caractere >= 0xA0 && caractere <= 0xFF))
        return static_cast<char>(caractere);
    const auto* trouve = std::find(haut.begin(), haut.end(), caractere);
    return trouve == haut.end() ? '?' : static_cast<char>(premier + (trouve - haut.begin()));
}

}  // namespace

QString Depuis8Bits(QByteArrayView octets) {
    QString texte(octets.size(), Qt::Uninitialized);
    QChar* sortie = texte.data();
    for (const char octet : octets) {
        const auto code = static_cast<unsigned char>(octet);
        *sortie++ = code >= premier && code < 0xA0
                        ? QChar(haut[static_cast<std::size_t>(code - premier)])
                        : QChar(char16_t{code});
    }
    return texte;
}

QByteArray Vers8Bits(QStringView texte) {
    QByteArray octets(texte.size(), Qt::Uninitialized);
    char* sortie = octets.data();
    for (qsizetype i = 0; i < texte.size(); ++i) {
        *sortie++ = OctetDe(texte[i].unicode());
        // A character of two units is one character, thus one "?".
        if (texte[i].isHighSurrogate() && i + 1 < texte.size() && texte[i + 1].isLowSurrogate())
            ++i;
    }
    octets.truncate(sortie - octets.constData());
    return octets;
}

}  // namespace bornika
