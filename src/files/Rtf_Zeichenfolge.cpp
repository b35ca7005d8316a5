// Puts characters together out of what RTF writes them as.
#include "files/Rtf_Zeichenfolge.h"

#include "core/codepage.h"

namespace varnholt {
namespace {

constexpr bool Hohe(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
constexpr bool Tiefe(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

// Bytes of a UTF-8 character by its first one; 0 for one that begins none.
constexpr std::size_t UTF8_Laenge(unsigned char Erstes)
{
    return Erstes < 0x80   ? 1
           : Erstes < 0xC2 ? 0
           : Erstes < 0xE0 ? 2
           : Erstes < 0xF0 ? 3
           : Erstes < 0xF5 ? 4
                           : 0;
}

char Bits(char32_t Zeichen, unsigned Schieben, unsigned Maske, unsigned Kennung)
{
    return static_cast<char>(((Zeichen >> Schieben) & Maske) | Kennung);
}

} // namespace

void UTF8_Anfuegen(std::string& Ziel, char32_t Zeichen)
{
    if (Hohe(Zeichen) || Tiefe(Zeichen) || Zeichen > 0x10FFFF)
        Zeichen = Kein_Zeichen_Da;
    if (Zeichen < 0x80) {
        Ziel += static_cast<char>(Zeichen);
    } else if (Zeichen < 0x800) {
        Ziel += {Bits(Zeichen, 6, 0x1F, 0xC0), Bits(Zeichen, 0, 0x3F, 0x80)};
    } else if (Zeichen < 0x10000) {
        Ziel += {Bits(Zeichen, 12, 0x0F, 0xE0),
                 Bits(Zeichen, 6, 0x3F, 0x80),
                 Bits(Zeichen, 0, 0x3F, 0x80)};
    } else {
        Ziel += {Bits(Zeichen, 18, 0x07, 0xF0),
                 Bits(Zeichen, 12, 0x3F, 0x80),
                 Bits(Zeichen, 6, 0x3F, 0x80),
                 Bits(Zeichen, 0, 0x3F, 0x80)};
    }
}

void Rtf_Zeichenfolge::Byte(int Codeseite, char Neues)
{
    if (Halbes) {
        Halbes = false;
        return UTF8_Anfuegen(Ziel, Kein_Zeichen_Da);
    }
    if (Codeseite == Codeseite_UTF8)
        return UTF8_Byte(Neues);
    Schliessen();
    if (Doppelbyte_Anfang(Codeseite, Neues))
        Halbes = true;
    else
        UTF8_Anfuegen(Ziel, Zeichen_Aus_Codeseite(Codeseite, Neues));
}

void Rtf_Zeichenfolge::UTF8_Byte(char Neues)
{
    const auto b = static_cast<unsigned char>(Neues);
    if (Folge.empty() || (b & 0xC0) != 0x80) {
        Schliessen();
        if (UTF8_Laenge(b) == 0)
            return UTF8_Anfuegen(Ziel, Kein_Zeichen_Da);
    }
    Folge += Neues;
    if (Folge.size() == UTF8_Laenge(static_cast<unsigned char>(Folge.front()))) {
        if (Ist_UTF8(Folge))
            Ziel += Folge;
        else
            UTF8_Anfuegen(Ziel, Kein_Zeichen_Da);
        Folge.clear();
    }
}

void Rtf_Zeichenfolge::Einheit(char32_t Neue)
{
    if (Hohe_Haelfte != 0 && Tiefe(Neue)) {
        UTF8_Anfuegen(Ziel, 0x10000 + ((Hohe_Haelfte - 0xD800) << 10) + (Neue - 0xDC00));
        Hohe_Haelfte = 0;
        return;
    }
    Schliessen();
    if (Hohe(Neue))
        Hohe_Haelfte = Neue;
    else
        UTF8_Anfuegen(Ziel, Neue);
}

void Rtf_Zeichenfolge::Schliessen()
{
    if (Hohe_Haelfte != 0 || Halbes || !Folge.empty())
        UTF8_Anfuegen(Ziel, Kein_Zeichen_Da);
    Hohe_Haelfte = 0;
    Halbes       = false;
    Folge.clear();
}

} // namespace varnholt
