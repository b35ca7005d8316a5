// The real-time clock of the 48T memories: its registers, and the commands of the menu
// `TimeKeeper Spezial`.
#include "programmer/TimeKeeper.h"

#include "core/commands.h"
#include "core/shared_state.h"
#include "programmer/Baustein.h"
#include "programmer/Lesen.h"

#include <fmt/format.h>

namespace varnholt {
namespace {

// One clock register: units in bits 0 to 3, tens in as many bits above as the mask leaves.
struct Register_T {
    std::size_t vom_Ende; // distance from the end of the device
    int         Zehner;   // mask of the tens
    int Uhrzeit_T::*Feld;
};

// clang-format off
constexpr Register_T Uhr_Register[] = {
    {1, 0x0F, &Uhrzeit_T::Jahr},
    {2, 0x01, &Uhrzeit_T::Monat},
    {3, 0x03, &Uhrzeit_T::Tag},
    {5, 0x03, &Uhrzeit_T::Stunde},
    {6, 0x07, &Uhrzeit_T::Minute},
    {7, 0x07, &Uhrzeit_T::Sekunde},
};
// clang-format on

constexpr std::size_t Wochentag_vom_Ende = 4;

int Byte_vom_Ende(std::span<const std::uint8_t> Inhalt, std::size_t Abstand)
{
    return Abstand <= Inhalt.size() ? Inhalt[Inhalt.size() - Abstand] : 0;
}

// Setting, starting and stopping have no routine: the registers are bytes as any other.
void Auf_Hex_Editor_Verweisen()
{
    Plattform.Box->Hinweisen(
        In_Sprache({"Die Uhr eines 48T wird gestellt, indem seine letzten acht Bytes im Hex-Editor "
                    "geändert und gebrannt werden; Bit 7 der Sekunden hält sie an.",
                    "The clock of a 48T is set by changing its last eight bytes in the hex editor "
                    "and programming them; bit 7 of the seconds stops it."}));
}

} // namespace

Uhrzeit_T Uhrzeit_Von(std::span<const std::uint8_t> Inhalt)
{
    Uhrzeit_T Zeit;
    for (const Register_T& r : Uhr_Register) {
        const int Wert = Byte_vom_Ende(Inhalt, r.vom_Ende);
        Zeit.*r.Feld   = (Wert >> 4 & r.Zehner) * 10 + (Wert & 15);
    }
    Zeit.Wochentag = Byte_vom_Ende(Inhalt, Wochentag_vom_Ende);
    return Zeit;
}

Text_Paar Uhrzeit_Text(const Uhrzeit_T& z)
{
    const auto Text = [&](const char* Muster) {
        return fmt::format(fmt::runtime(Muster),
                           z.Jahr,
                           z.Monat,
                           z.Tag,
                           z.Wochentag,
                           z.Stunde,
                           z.Minute,
                           z.Sekunde);
    };
    return {Text("Jahr: {:02}\r\nMonat: {:02}\r\nTag: {:02}\r\nWochentag: {:02}\r\n"
                 "Stunde: {:02}\r\nMinute: {:02}\r\nSekunde: {:02}"),
            Text("Year: {:02}\r\nMonth: {:02}\r\nDay: {:02}\r\nWeekday: {:02}\r\n"
                 "Hour: {:02}\r\nMinute: {:02}\r\nSecond: {:02}")};
}

Uhrzeit_T TimeKeeper_Lesen()
{
    Hex_Puffer.assign(static_cast<std::size_t>(Nutzbare_Bytes(Gewaehltes_Geraet())), 0);
    Baustein_Lesen();
    const Uhrzeit_T Zeit = Uhrzeit_Von(Hex_Puffer);
    Hex_Puffer           = {};
    return Zeit;
}

void MNU_TimeKeeper_ReadTime_Click()
{
    Abbruch = false;
    if (!Porttreiber_Bereit() || !Baustein_Gewaehlt())
        return;
    const Text_Paar   Zeit = Uhrzeit_Text(TimeKeeper_Lesen());
    const std::string Name = IC_Menue_Name();
    Melden({fmt::format("Daten auf dem {}:{}{}", Name, CRLF, Zeit.D),
            fmt::format("Data on {}:{}{}", Name, CRLF, Zeit.E)});
}

void MNU_TimeKeeper_WriteTime_Click() { Auf_Hex_Editor_Verweisen(); }
void MNU_TimeKeeper_Start_Click() { Auf_Hex_Editor_Verweisen(); }
void MNU_TimeKeeper_Stop_Click() { Auf_Hex_Editor_Verweisen(); }

} // namespace varnholt
