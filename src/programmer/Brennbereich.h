// The range of a programming run: which routine writes the selected device, from where to where,
// and what an address gets. The routines and the preview of the dialog both go by it.
#pragma once

#include "programmer/Geraete.h"

#include <cstdint>
#include <span>

namespace varnholt {

// The families of programming routines.
enum class Brenn_Weg { Keiner, Eprom, EEPROM, Flash, Seiten, Tessel1, Tessel2 };

// By the beginning of the program type, then by the board.
Brenn_Weg Brenn_Weg_Von(const Geraet_T& Geraet);

// Image index for an IC address: with a split every second byte, from the odd or the even ones.
constexpr std::int64_t
Bild_Adresse(std::int64_t Adresse, std::int64_t Abstand, bool Ungerade, bool Gerade)
{
    const std::int64_t e = Adresse - Abstand;
    if (Ungerade)
        return 2 * e + 1;
    return Gerade ? 2 * e : e;
}
static_assert(Bild_Adresse(5, 3, false, false) == 2 && Bild_Adresse(5, 3, true, false) == 5);
static_assert(Bild_Adresse(5, 3, false, true) == 4 && Bild_Adresse(0, 1, true, false) == -1);

// The byte for an image index: 00h ahead of the image, behind it FFh, which leaves a cell as it is.
constexpr std::uint8_t Bild_Byte(std::span<const std::uint8_t> Bytes, std::int64_t Index)
{
    if (Index < 0)
        return 0;
    return Index < static_cast<std::int64_t>(Bytes.size()) ? Bytes[static_cast<std::size_t>(Index)]
                                                           : std::uint8_t{0xFF};
}

struct Brenn_Bereich {
    Brenn_Weg    Weg        = Brenn_Weg::Keiner;
    std::int32_t Ab         = 0;    // first address of the dialog; may be beyond the device
    std::int32_t Bis        = -1;   // last address of the loop, never beyond the device
    std::int64_t Abstand    = 0;    // IC address minus image index
    std::int32_t Erste      = 0;    // first address that is written: Ab, 0, or the page's first one
    std::int32_t Letzte     = -1;   // last one: Bis, or the page's last one
    std::int64_t Nullen_Bis = 0;    // an address below this one gets 00h, whatever the image holds
    bool         Ohne_FF    = true; // FFh is passed over
    bool         Ungerade   = false; // the split
    bool         Gerade     = false;
};

// The range that a run takes from the dialog's fields as they stand.
// reads: Brennmenue, No_FF, the device's record
Brenn_Bereich Bereich_Des_Dialogs();

} // namespace varnholt
