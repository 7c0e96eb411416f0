#include "platform/code_page.h"

#include <array>

namespace bornika {

namespace {

// Characters of the bytes 0x80 to 0x9F; all other bytes are the character of the same number. The
// five undefined bytes keep theirs.
constexpr std::array<char16_t, 32> hauts = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char Octet(char16_t caractere) {
    if (caractere < 0x80 || (caractere >= 0xA0 && caractere <= 0xFF))
        return static_cast<char>(caractere);
    for (std::size_t i = 0; i < hauts.size(); ++i)
        if (hauts[i] == caractere) return static_cast<char>(0x80 + i);
    return '?';
}

}  // namespace

QString Depuis8Bits(QByteArrayView octets) {
    QString texte(octets.size(), Qt::Uninitialized);
    QChar* sortie = texte.data();
    for (const char brut : octets) {
        const auto octet = static_cast<unsigned char>(brut);
        *sortie++ = octet >= 0x80 && octet < 0xA0 ? QChar(hauts[octet - 0x80U]) : QChar(octet);
    }
    return texte;
}

QByteArray Vers8Bits(QStringView texte) {
    QByteArray octets;
    octets.reserve(texte.size());
    for (qsizetype i = 0; i < texte.size(); ++i) {
        // A pair of surrogates is one character, so one "?".
        if (texte[i].isHighSurrogate() && i + 1 < texte.size() && texte[i + 1].isLowSurrogate())
            ++i;
        octets += Octet(texte[i].unicode());
    }
    return octets;
}

}  // namespace bornika
