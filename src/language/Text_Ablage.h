// Keeps the texts of the source rows for as long as the rows live, many in one block of memory.
#pragma once

#include "language/Quell_Stueck.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace varnholt {

class Text_Ablage {
public:
    // Room for up to Laenge characters, which stays where it is until the store is emptied.
    // Behalten tells how many of them are used; without it the room is given again.
    char* Platz_Fuer(std::size_t Laenge)
    {
        if (Laenge > Frei) {
            Frei  = std::max(Block_Groesse, Laenge);
            Platz = Bloecke.emplace_back(std::make_unique_for_overwrite<char[]>(Frei)).get();
        }
        return Platz;
    }
    Quell_Stueck Behalten(std::size_t Laenge)
    {
        const Quell_Stueck Stueck(Platz, Laenge);
        Platz += Laenge;
        Frei -= Laenge;
        return Stueck;
    }
    // A copy of a text.
    Quell_Stueck Ablegen(std::string_view Text)
    {
        std::copy(Text.begin(), Text.end(), Platz_Fuer(Text.size()));
        return Behalten(Text.size());
    }
    void Leeren() { *this = {}; }

private:
    static constexpr std::size_t Block_Groesse = 65536;

    std::vector<std::unique_ptr<char[]>> Bloecke{};
    char*                                Platz = nullptr; // next free character of the last block
    std::size_t                          Frei  = 0;       // characters behind it
};

} // namespace varnholt
