// Keeps small texts for as long as the source rows live, many in one block of memory.
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
    // A copy that stays where it is until the store is emptied.
    Quell_Stueck Ablegen(std::string_view Text)
    {
        if (Text.size() > Frei) {
            Frei  = std::max(Block_Groesse, Text.size());
            Platz = Bloecke.emplace_back(std::make_unique<char[]>(Frei)).get();
        }
        char* const Anfang = Platz;
        std::copy(Text.begin(), Text.end(), Anfang);
        Platz += Text.size();
        Frei -= Text.size();
        return {Anfang, Text.size()};
    }
    void Leeren() { *this = {}; }

private:
    static constexpr std::size_t Block_Groesse = 65536;

    std::vector<std::unique_ptr<char[]>> Bloecke{};
    char*                                Platz = nullptr; // next free byte of the last block
    std::size_t                          Frei  = 0;       // bytes behind it
};

} // namespace varnholt
