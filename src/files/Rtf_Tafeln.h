// What reader and writer of RTF have in common: limits, and the form of a text that a file can
// hold.
#pragma once

#include "files/Rtf.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace varnholt {

inline constexpr std::size_t Rtf_Tafel_Hoechstens = 1000; // fonts, and colours beside entry 0
inline constexpr std::size_t Rtf_Name_Hoechstens  = 64;   // of a font, bytes of UTF-8

// Size of characters; 0 and below stand for the window's own.
constexpr int Rtf_Halbpunkte(int Zahl)
{
    return Zahl <= 0 ? 0 : std::clamp(Zahl, Rtf_Halbpunkte_Mindestens, Rtf_Halbpunkte_Hoechstens);
}
constexpr int Rtf_Twips(int Zahl)
{
    return std::clamp(Zahl, -Rtf_Twips_Hoechstens, Rtf_Twips_Hoechstens);
}

// The first whole characters of a text that have at most that many bytes.
std::string UTF8_Anfang(std::string_view Text, std::size_t Hoechstens);
// Characters without those that can't stand in a paragraph: control characters but the tab are
// dropped; line ends of Unicode, Qt's marks of frames and malformed bytes become FFFDh.
std::string Rtf_Zeichen_Normal(std::string_view Text);
// The same for the name of a font, without blanks around it, and of a bounded length.
std::string Rtf_Schriftname(std::string_view Name);

// Numbers for fonts or colours in the order in which they come, from 1; 0 for one beyond the limit.
template <class Art> class Rtf_Tafel {
public:
    int Nummer(const Art& Eintrag)
    {
        const auto Neu = Nummern.find(Eintrag);
        if (Neu != Nummern.end())
            return Neu->second;
        if (Nummern.size() >= Rtf_Tafel_Hoechstens)
            return 0;
        return Nummern[Eintrag] = static_cast<int>(Nummern.size()) + 1;
    }
    const std::map<Art, int>& Alle() const { return Nummern; }

private:
    std::map<Art, int> Nummern{};
};

} // namespace varnholt
