// Common ground of the assembler's tests: a world that assembles a text and answers what became of
// it, files for INCLUDE in a folder of their own, and messages in both languages.
#pragma once

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace varnholt::test {

// Bytes of the image from Von up to, without, Bis, as pairs of upper-case digits: `24 12`.
inline std::string Hex_Text(std::int32_t Von, std::int32_t Bis)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    std::string                Text;
    for (std::int32_t i = Von; i < std::min(Bis, Bild_Groesse + 1); ++i) {
        const unsigned Byte = Hex_Daten[static_cast<std::size_t>(i)];
        if (!Text.empty())
            Text += ' ';
        Text += Ziffern[Byte >> 4];
        Text += Ziffern[Byte & 15];
    }
    return Text;
}

// Every LF becomes CR LF.
inline std::string Mit_CRLF(std::string_view Text)
{
    std::string Neu;
    for (const char c : Text)
        Neu += c == '\n' ? std::string{CRLF} : std::string(1, c);
    return Neu;
}

// The beginning of a text, for messages of failing tests.
inline std::string Kurz(std::string_view Text)
{
    return std::string{Text.substr(0, 200)} + (Text.size() > 200 ? "..." : "");
}

// The world of the assembler's tests. Texts are Windows-1252 with LF line ends.
class Assembler_Welt : public Welt {
protected:
    // Bytes from 0 up to Code_Ende (`24 12`), empty for none; after an error the text of its box;
    // `Abbruch` when the run ended in error without a box.
    std::string Assembliere(std::string_view Text)
    {
        Laufen(Text);
        if (Assembler_Fehler != 1)
            return Hex_Text(0, Code_Ende);
        return Box.Meldungen.empty() ? "Abbruch" : Letzte_Meldung();
    }

    // Assembles; the boxes seen are those of this run alone.
    void Laufen(std::string_view Text)
    {
        Edit.Inhalt      = Mit_CRLF(Text);
        Assembler_Fehler = 0;
        Text_Aktuell     = false;
        Box.Meldungen.clear();
        Assemblieren();
    }

    // The text ends in error with this message, in German and in English.
    void Erwarte_Fehler(std::string_view Text, const std::string& D, const std::string& E)
    {
        const std::string Vorher = Sprache;
        for (const auto& [Kennung, Meldung] : {std::pair{"D", D}, std::pair{"E", E}}) {
            Sprache = Kennung;
            EXPECT_EQ(Kurz(Assembliere(Text)), Kurz(Meldung)) << Kurz(Text);
            EXPECT_EQ(Assembler_Fehler, 1) << Kurz(Text);
            EXPECT_FALSE(Text_Aktuell) << Kurz(Text);
            EXPECT_EQ(Box.Meldungen.size(), 1U) << Kurz(Text);
        }
        Sprache = Vorher;
    }

    // What is selected in the editor.
    std::string Auswahl() const
    {
        return Edit.Inhalt.substr(static_cast<std::size_t>(Edit.Auswahl_Anfang),
                                  static_cast<std::size_t>(Edit.Auswahl_Laenge));
    }

    // The text of a row after the run.
    static std::string Zeilen_Text(std::size_t Zeile)
    {
        return std::string{Quell_Zeilen.at(Zeile).Text.Ansicht()};
    }
};

} // namespace varnholt::test
