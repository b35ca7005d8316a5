// A text control that only remembers: the editor of the terminal, of tests and of the silent world.
#pragma once

#include "core/platform.h"

#include <utility>

namespace varnholt {

class Speicher_Text : public Textfeld {
public:
    std::string      Text() const override { return Inhalt; }
    std::string_view Text_Ansicht(std::string&) const override { return Inhalt; }
    void             Text_Setzen(std::string Neuer) override { Inhalt = std::move(Neuer); }
    void             Auswaehlen(std::int64_t Anfang, std::int64_t Laenge) override
    {
        Auswahl_Anfang = Anfang;
        Auswahl_Laenge = Laenge;
    }
    void Fokus() override { Hat_Fokus = true; }

    std::string  Inhalt{};
    std::int64_t Auswahl_Anfang = 0;
    std::int64_t Auswahl_Laenge = 0;
    bool         Hat_Fokus      = false;
};

} // namespace varnholt
