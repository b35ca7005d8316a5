// Walks a text line by line. CR LF, LF and CR end a line, also mixed.
#pragma once

#include <cstddef>
#include <string_view>

namespace varnholt {

struct Textzeile_T {
    std::string_view Inhalt{};
    std::string_view Ende{}; // CR LF, LF or CR; empty on a last line that isn't ended
};

class Zeilenleser {
public:
    explicit Zeilenleser(std::string_view Ganzer_Text) : Text(Ganzer_Text) {}

    // Puts the next line into Zeile; false at the end of the text.
    bool Weiter(Textzeile_T& Zeile)
    {
        if (Stelle >= Text.size())
            return false;
        const std::size_t Ende   = Zeilen_Ende();
        const std::size_t Laenge = Laenge_Des_Endes(Ende);
        Zeile                    = {Text.substr(Stelle, Ende - Stelle), Text.substr(Ende, Laenge)};
        Stelle                   = Ende + Laenge;
        return true;
    }

private:
    // The next CR and LF are remembered: each is looked for once, however many lines end otherwise.
    std::size_t Zeilen_Ende()
    {
        if (CR < Stelle || Stelle == 0)
            CR = Oder_Textende(Text.find('\r', Stelle));
        if (LF < Stelle || Stelle == 0)
            LF = Oder_Textende(Text.find('\n', Stelle));
        return CR < LF ? CR : LF;
    }
    std::size_t Oder_Textende(std::size_t i) const
    {
        return i == std::string_view::npos ? Text.size() : i;
    }
    std::size_t Laenge_Des_Endes(std::size_t Ende) const
    {
        if (Ende == Text.size())
            return 0;
        return Ende == CR && LF == CR + 1 ? 2 : 1;
    }

    std::string_view Text;
    std::size_t      Stelle = 0;
    std::size_t      CR     = 0;
    std::size_t      LF     = 0;
};

} // namespace varnholt
