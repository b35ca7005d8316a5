// Number syntax of the assembler: what a token is worth, and the offset of a short jump.
#pragma once

#include "language/HexDez.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace varnholt {

inline constexpr std::int32_t Zahl_Obergrenze =
    99999999;                                     // largest decimal or marked hexadecimal number
inline constexpr std::size_t Binaer_Stellen = 31; // most digits of a binary number

// What a token that is neither text nor name says.
struct Zahl_Ergebnis {
    enum Art_T { Kein_Wert, Wert_Da, Zu_Hoch, Binaer_Falsch } Art = Kein_Wert;
    std::int32_t Wert                                             = -1; // only with Wert_Da
};

namespace zahlen_intern {

constexpr Zahl_Ergebnis Begrenzt(std::int64_t Wert)
{
    if (Wert > Zahl_Obergrenze)
        return {Zahl_Ergebnis::Zu_Hoch, -1};
    return {Zahl_Ergebnis::Wert_Da, static_cast<std::int32_t>(Wert)};
}

// Decimal digits up to the end; with D_Frei a D is passed over wherever it stands.
constexpr Zahl_Ergebnis Dezimal(std::string_view Ziffern, bool D_Frei)
{
    std::int64_t Wert = 0;
    for (const char c : Ziffern) {
        if (D_Frei && c == 'D')
            continue;
        if (c < '0' || c > '9')
            return {};
        if (Wert <= Zahl_Obergrenze)
            Wert = 10 * Wert + (c - '0');
    }
    return Begrenzt(Wert);
}

constexpr bool Ist_Binaer(std::string_view Ziffern)
{
    return Ziffern.find_first_not_of("01") == std::string_view::npos;
}

constexpr Zahl_Ergebnis Binaer(std::string_view Ziffern)
{
    if (Ziffern.size() > Binaer_Stellen)
        return {Zahl_Ergebnis::Zu_Hoch, -1};
    std::int32_t Wert = 0;
    for (const char c : Ziffern)
        Wert = 2 * Wert + (c - '0');
    return {Zahl_Ergebnis::Wert_Da, Wert};
}

// Hexadecimal text that is marked as such.
constexpr Zahl_Ergebnis Hexadezimal(std::string_view Ziffern)
{
    const std::int32_t Wert = Hex_zu_Wert(Ziffern);
    return Wert < 0 ? Zahl_Ergebnis{} : Begrenzt(Wert);
}

// The digits of a number with a leading $ or a trailing H.
constexpr std::string_view Hex_Ziffern(std::string_view Token)
{
    if (Token.starts_with('$'))
        Token.remove_prefix(1);
    if (Token.ends_with('H'))
        Token.remove_suffix(1);
    return Token;
}

// Ends in B and is binary by that: always under decimal, under hexadecimal with eight digits.
constexpr bool Ist_B_Zahl(std::string_view Token, bool Hexadezimal_Gedeutet)
{
    return Token.ends_with('B') && (!Hexadezimal_Gedeutet || Token.size() == 9) &&
           Ist_Binaer(Token.substr(0, Token.size() - 1));
}

constexpr Zahl_Ergebnis Ohne_Marke(std::string_view Token, bool Hexadezimal_Gedeutet)
{
    if (!Hexadezimal_Gedeutet)
        return Dezimal(Token, true);
    const std::int32_t Wert = Hex_zu_Wert(Token);
    return Wert < 0 ? Zahl_Ergebnis{} : Zahl_Ergebnis{Zahl_Ergebnis::Wert_Da, Wert};
}

} // namespace zahlen_intern

// Value of a token in upper case by the first rule that applies. Without a mark it is read as
// hexadecimal or decimal by Hexadezimal_Gedeutet (the option Zahlendeutung). The empty token is 0.
constexpr Zahl_Ergebnis Zahl_Lesen(std::string_view Token, bool Hexadezimal_Gedeutet)
{
    using namespace zahlen_intern;
    if (Token.empty())
        return {Zahl_Ergebnis::Wert_Da, 0};
    const std::string_view Rest = Token.substr(1);
    if (Token.front() == '%')
        return Dezimal(Rest, false);
    if (Token.front() == '!')
        return Ist_Binaer(Rest) ? Binaer(Rest) : Zahl_Ergebnis{Zahl_Ergebnis::Binaer_Falsch, -1};
    if (Ist_B_Zahl(Token, Hexadezimal_Gedeutet))
        return Binaer(Token.substr(0, Token.size() - 1));
    if (Token.front() == '$' || Token.ends_with('H'))
        return Hexadezimal(Hex_Ziffern(Token));
    return Ohne_Marke(Token, Hexadezimal_Gedeutet);
}
static_assert(Zahl_Lesen("10B", false).Wert == 2 && Zahl_Lesen("10B", true).Wert == 0x10B);
static_assert(Zahl_Lesen("5D", false).Wert == 5 && Zahl_Lesen("$H", false).Wert == 0);

// Offset byte of a jump from an instruction of that length at Adresse to Ziel; empty when out of
// reach. The reach is that of a two-byte instruction for all: a three-byte one at distance -126
// wraps.
constexpr std::optional<int> Relativ_Wert(std::int64_t Adresse, std::int64_t Ziel, int Laenge)
{
    const std::int64_t d = Ziel - Adresse;
    if (d < -126 || d > 129)
        return std::nullopt;
    const int Weite = static_cast<int>(d) - Laenge;
    return Weite < 0 ? Weite + 256 : Weite;
}
static_assert(Relativ_Wert(0x100, 0x100, 2) == 0xFE && Relativ_Wert(126, 0, 3) == 127);

} // namespace varnholt
