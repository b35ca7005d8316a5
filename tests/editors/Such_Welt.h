// Fixture of the search forms' tests: a source editor that may hold any character, and a folder for
// the ring of snapshots.
#pragma once

#include "core/codepage.h"
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Suche.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <filesystem>
#include <stdexcept>
#include <stdlib.h>
#include <string>

namespace varnholt::test {

// A control as the desktop has it: the real text in UTF-8, and beside it the one that the logic
// sees, with a "?" for each unit that Windows-1252 lacks.
class Reiches_Feld : public Speicher_Text {
public:
    void Text_Setzen_UTF8(std::string_view Neuer) override
    {
        ++Gesetzt;
        Text_Setzen(Spiegel(Neuer));
        Echt = Neuer;
    }
    std::string Text_UTF8() const override { return Echt.empty() ? Nach_UTF8(Inhalt) : Echt; }
    std::string Auswahl_Text_UTF8() const override
    {
        const std::string  Text   = Text_UTF8();
        const Textstelle_T a      = Auswahl();
        const std::size_t  Anfang = Byte_Von(Text, a.Anfang);
        return Text.substr(Anfang, Byte_Von(Text, a.Anfang + a.Laenge) - Anfang);
    }
    void Auswahl_Ersetzen_UTF8(std::string_view Neuer) override
    {
        std::string        Text   = Text_UTF8();
        const Textstelle_T a      = Auswahl();
        const std::size_t  Anfang = Byte_Von(Text, a.Anfang);
        Text.replace(Anfang, Byte_Von(Text, a.Anfang + a.Laenge) - Anfang, Neuer);
        Auswahl_Ersetzen(Spiegel(Neuer));
        Echt = Text;
    }

    // Very long texts would take their time for colours that a test doesn't look at.
    std::vector<Farbstelle_T> Farben(Textstelle_T Stueck) const override
    {
        return Bunt ? Speicher_Text::Farben(Stueck) : std::vector<Farbstelle_T>{};
    }
    void Faerben(std::span<const Farbstelle_T> Stellen) override
    {
        if (Bunt)
            Speicher_Text::Faerben(Stellen);
    }

    bool        Bunt = true;
    std::string Echt{};
    int         Gesetzt = 0; // how often the whole text was set

private:
    static bool        Folgebyte(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }
    static bool        Vier(char c) { return static_cast<unsigned char>(c) >= 0xF0; }
    static std::size_t Byte_Von(const std::string& Text, std::int64_t Stelle)
    {
        std::size_t i = 0;
        while (i < Text.size() && Stelle > 0) {
            Stelle -= Vier(Text[i]) ? 2 : 1;
            ++i;
            while (i < Text.size() && Folgebyte(Text[i]))
                ++i;
        }
        return i;
    }
    static std::string Spiegel(std::string_view Text)
    {
        std::string Ziel;
        for (std::size_t i = 0; i < Text.size();) {
            std::size_t n = 1;
            while (i + n < Text.size() && Folgebyte(Text[i + n]))
                ++n;
            Ziel += n == 4 ? std::string("??") : Aus_UTF8(Text.substr(i, n));
            i += n;
        }
        return Ziel;
    }
};

class Such_Welt : public Welt {
protected:
    Such_Welt()
    {
        std::filesystem::create_directory(Ordner.Pfad / "Undo");
        Programm_Pfad     = Ordner.Name("");
        Autosave_Zeitlich = false;
        Modus             = Modus_MC;
        Plattform.Edit    = &Feld;
        Text_Aktuell      = true;
        Undo_Zuruecksetzen();
    }

    void Im_Editor(const std::string& UTF8, std::int64_t Anfang = 0, std::int64_t Laenge = 0)
    {
        Feld.Text_Setzen_UTF8(UTF8);
        Feld.Auswaehlen(Anfang, Laenge);
        Feld.Gesetzt = 0;
    }
    // The user looks for this, by the button; the place of the selection.
    std::int64_t Suchen(const std::string& Begriff)
    {
        if (Suche_Form.Suchbegriff != Begriff)
            Suche::Suchbegriff_Change(Begriff);
        Suche::Suchen_OK_Click();
        return Feld.Auswahl().Anfang;
    }
    void Ersetzen_Eingeben(const std::string& Begriff, const std::string& Neu)
    {
        Suche::Suchbegriff_Change(Begriff);
        Suche::Ersetzen_durch_Change(Neu);
        Suche::Check3_Click(true);
    }
    std::string Alle_Ersetzen(const std::string& Begriff, const std::string& Neu)
    {
        Ersetzen_Eingeben(Begriff, Neu);
        Suche::B_AlleErsetzen_Click();
        return Feld.Text_UTF8();
    }
    // Number of snapshots in the ring's folder.
    long Aufnahmen() const
    {
        namespace fs = std::filesystem;
        return std::distance(fs::directory_iterator(Ordner.Pfad / "Undo"),
                             fs::directory_iterator{});
    }
    std::string Farbbild() const
    {
        std::string Bild;
        for (std::int64_t i = 0; i < Feld.Laenge(); ++i) {
            const std::int32_t f = Feld.Farbe_An(i);
            Bild.push_back(f == 0 ? '.' : f == 0xDD1111 ? 'm' : f == 0x119911 ? 'k' : '?');
        }
        return Bild;
    }

    Reiches_Feld  Feld{};
    Arbeitsordner Ordner{};
};

} // namespace varnholt::test
