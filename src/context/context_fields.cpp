#include "context/context_fields.h"

#include "link/battery.h"
#include "link/command_table.h"
#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"

namespace bornika {

namespace {

constexpr ChampContexte champs[] = {
    {1, 4, u"N° serie"},
    {5, 2, u"Tag", GenreChamp::Hexadecimal},
    {7, 4, u"Date du dernier reset", GenreChamp::Date},
    {11, 2, u"Nombre de reset"},
    {13, 4, u"Date dernière mesure Batterie", GenreChamp::Date},
    {17, 2, u"Tension Batterie (V)", GenreChamp::Tension},
    {19, 4, u"Date de démarrage", GenreChamp::Date},
    {23, 4, u"Date courante", GenreChamp::Date},
    {27, 4, u"Date de mesure", GenreChamp::Date},
    {31, 1, u"Nb de mesure"},
    {32, 2, u"page ecriture"},
    {34, 2, u"buffer ecriture"},
    {36, 2, u"page depart"},
    {38, 2, u"buffer depart"},
    {40, 2, u"page lecture"},
    {42, 2, u"buffer lecture"},
    {44, 1, u"Mode"},
    {45, 2, u"Interval de stockage"},
    {47, 2, u"Interval de mesure"},
    {49, 1, u"nb mesures avant"},
    {50, 2, u"seuil 1"},
    {52, 2, u"seuil 2"},
    {54, 1, u"etat trigger"},
    {55, 1, u"echelle capteur", GenreChamp::Echelle},
    {56, 2, u"temps ms"},
    {58, 2, u"temps s"},
    {60, 2, u"duree stockage"},
    {62, 2, u"duree mesure"},
    {64, 1, u"etat"},
    {65, 2, u"code pin"},
    {67, 1, u"Mode etalonnage"},
    {68, 2, u"valeur etalonnage 1"},
    {72, 2, u"valeur etalonnage 2"},
    {76, 4, u"date etalonnage", GenreChamp::Date},
    {80, 1, u"echelle capteur etalonnage", GenreChamp::Echelle},
    {81, 14, u"commentaire", GenreChamp::Caracteres},
    {95, 4, u"Correction temps toutes les (s)", GenreChamp::NombreSigne},
};

std::span<const std::uint8_t> OctetsDuChamp(const BlocContexte& bloc, const ChampContexte& champ) {
    if (champ.offset < 0 || champ.largeur < 0 || champ.offset + champ.largeur > tailleContexte)
        LeverFaute(numero_faute::indice);
    return std::span(bloc).subspan(static_cast<std::size_t>(champ.offset),
                                   static_cast<std::size_t>(champ.largeur));
}

QString Caracteres(std::span<const std::uint8_t> octets) {
    QByteArray caracteres;
    for (const std::uint8_t octet : octets)
        caracteres.append(static_cast<char>(octet));
    return Depuis8Bits(caracteres);
}

}  // namespace

std::span<const ChampContexte> ChampsContexte() {
    return champs;
}

std::uint32_t ValeurChamp(const BlocContexte& bloc, const ChampContexte& champ) {
    std::uint32_t valeur = 0;
    int rang = 0;
    for (const std::uint8_t octet :
         OctetsDuChamp(bloc, champ)
             .first(static_cast<std::size_t>(champ.largeur < 4 ? champ.largeur : 4)))
        valeur |= std::uint32_t{octet} << (8 * rang++);
    return valeur;
}

QString TexteChamp(const BlocContexte& bloc, const ChampContexte& champ,
                   const QStringList& echelles, const Regional& regional) {
    const std::uint32_t valeur = ValeurChamp(bloc, champ);
    switch (champ.genre) {
        case GenreChamp::NombreSigne:
            return QString::number(static_cast<std::int32_t>(valeur));
        case GenreChamp::Hexadecimal:
            return QString::number(valeur, 16).toUpper();
        case GenreChamp::Date:
            return EpochVersTexte(valeur, regional);
        case GenreChamp::Tension:
            return Format(valeur * voltsParPas, "#.00", regional);
        case GenreChamp::Echelle:
            return echelles.value(EchelleDeOctet(static_cast<int>(valeur)));
        case GenreChamp::Caracteres:
            return Caracteres(OctetsDuChamp(bloc, champ));
        case GenreChamp::Nombre:
            break;
    }
    return QString::number(valeur);
}

}  // namespace bornika
