// Motorola S-records, in both directions.
#include "files/Motorola_S.h"

#include "core/shared_state.h"
#include "files/Hexpaare.h"
#include "files/Zeilenleser.h"
#include "language/HexDez.h"

#include <algorithm>
#include <cstring>

namespace varnholt {
namespace {

// Name field "NAME", padded with blanks, and version 1.1.
constexpr std::string_view Kopfsatz   = "S01900004E414D45202020202020202020202020202020200101C3";
constexpr std::string_view Satzanfang = "S214"; // S2, 20 bytes: address 3, data 16, checksum 1

constexpr std::size_t Block_Laenge = 16;
constexpr std::size_t Satz_Zeichen = 4 + 6 + 2 * Block_Laenge + 2 + 2; // with CR LF

// One row for each record type that is read.
struct Satzart_T {
    std::string_view Kennung;
    std::size_t      Adress_Ziffern;
};
constexpr Satzart_T Satzarten[] = {{"S1", 4}, {"S2", 6}};

void Satz_Speichern(std::string_view        Zeile,
                    std::size_t             Adress_Ziffern,
                    std::int32_t            Versatz,
                    std::span<std::uint8_t> Speicher)
{
    // The count byte counts address and checksum too.
    const auto         Andere = static_cast<std::int32_t>(Adress_Ziffern / 2 + 1);
    const std::int32_t Anzahl = Hex_zu_Wert(Feld(Zeile, 3, 2)) - Andere;
    Paare_Speichern(Feld(Zeile, 5 + Adress_Ziffern, std::string_view::npos),
                    Anzahl,
                    Hex_zu_Wert(Feld(Zeile, 5, Adress_Ziffern)) + Versatz,
                    Speicher);
}

bool Ist_Leer(const std::uint8_t* Block)
{
    constexpr std::uint64_t Erased = ~std::uint64_t{0};
    std::uint64_t           Haelften[2];
    std::memcpy(Haelften, Block, Block_Laenge);
    return Haelften[0] == Erased && Haelften[1] == Erased;
}

// The checksum as all files of this program carry it: of the six address digits 1 to 6 it takes the
// overlapping pairs 12, 23 and 34 instead of 12, 34 and 56, so that the lowest byte doesn't count.
// It differs from the format's own rule; readers of our files rely on it, and our reader tests
// none.
std::uint8_t Pruefsumme(std::size_t Adresse, const std::uint8_t* Block)
{
    std::size_t Summe =
        20 + (Adresse >> 16 & 0xFF) + (Adresse >> 12 & 0xFF) + (Adresse >> 8 & 0xFF);
    for (std::size_t i = 0; i < Block_Laenge; ++i)
        Summe += Block[i];
    return static_cast<std::uint8_t>(255 - Summe % 256);
}

void Satz_Schreiben(char*& z, std::size_t Adresse, const std::uint8_t* Block)
{
    z = std::copy(Satzanfang.begin(), Satzanfang.end(), z);
    Paar_Schreiben(z, static_cast<std::uint8_t>(Adresse >> 16));
    Paar_Schreiben(z, static_cast<std::uint8_t>(Adresse >> 8));
    Paar_Schreiben(z, static_cast<std::uint8_t>(Adresse));
    for (std::size_t i = 0; i < Block_Laenge; ++i)
        Paar_Schreiben(z, Block[i]);
    Paar_Schreiben(z, Pruefsumme(Adresse, Block));
    z = std::copy(CRLF.begin(), CRLF.end(), z);
}

std::size_t Belegte_Bloecke(std::span<const std::uint8_t> Speicher)
{
    std::size_t Anzahl = 0;
    for (std::size_t a = 0; a + Block_Laenge <= Speicher.size(); a += Block_Laenge)
        Anzahl += !Ist_Leer(&Speicher[a]);
    return Anzahl;
}

} // namespace

void Motorola_S_Lesen(std::string_view Text, std::int32_t Versatz, std::span<std::uint8_t> Speicher)
{
    Zeilenleser Leser(Text);
    for (Textzeile_T z; Leser.Weiter(z);)
        for (const Satzart_T& Art : Satzarten)
            if (z.Inhalt.starts_with(Art.Kennung))
                Satz_Speichern(z.Inhalt, Art.Adress_Ziffern, Versatz, Speicher);
}

std::string Motorola_S_Schreiben(std::span<const std::uint8_t> Speicher)
{
    std::string Ziel(Kopfsatz);
    Ziel += CRLF;
    const std::size_t Kopf = Ziel.size();
    Ziel.resize(Kopf + Belegte_Bloecke(Speicher) * Satz_Zeichen);
    char* z = Ziel.data() + Kopf;
    for (std::size_t a = 0; a + Block_Laenge <= Speicher.size(); a += Block_Laenge)
        if (!Ist_Leer(&Speicher[a]))
            Satz_Schreiben(z, a, &Speicher[a]);
    return Ziel;
}

} // namespace varnholt
