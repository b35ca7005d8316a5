// Fixture of the hex editor's tests: a page over an image whose bytes tell their address.
#pragma once

#include "core/commands.h"
#include "core/shared_state.h"
#include "core/views.h"
#include "core/windows.h"
#include "editors/Hexablage.h"
#include "editors/Hexedit.h"
#include "support/scripted_platform.h"

#include <string>
#include <vector>

namespace varnholt::test {

class Hex_Welt : public Welt {
protected:
    Hex_Welt()
    {
        Modus           = Modus_Hex;
        Aktives_Fenster = Fenster_Hexedit;
        Seite(0, 9); // ten rows
    }

    // Page of R + 1 rows from that row on; the bar ends where a resized window's does.
    void Seite(int Zeile, int R)
    {
        Hexedit.R          = R;
        Hexedit.Scroll_Max = 32760;
        Hexedit.Scroll     = Zeile;
        Hex_Anzeige();
    }
    void Hex_Caret(int Anfang, int Laenge = 1) { Hex_Markieren({Anfang, Laenge}); }
    void AscII_Caret(int Anfang, int Laenge = 1) { AscII_Markieren({Anfang, Laenge}); }
    // The source text is the image's origin, so an edit asks.
    void Aus_Quelltext()
    {
        Edit.Inhalt     = "NOP\r\n";
        Text_Aktuell    = true;
        Datei_Name      = "/tmp/a.asm";
        Datei_Geaendert = false;
    }
    static std::uint8_t& Byte(std::int32_t Adresse)
    {
        return Hex_Daten.at(static_cast<std::size_t>(Adresse));
    }
    static void Bytes_Setzen(std::int32_t Adresse, const std::vector<int>& Werte)
    {
        for (const int Wert : Werte)
            Byte(Adresse++) = static_cast<std::uint8_t>(Wert);
    }
    static std::vector<int> Bytes_Ab(std::int32_t Adresse, int Anzahl)
    {
        std::vector<int> Werte;
        for (int i = 0; i < Anzahl; ++i)
            Werte.push_back(Byte(Adresse + i));
        return Werte;
    }
    static Taste_T Taste(int Code)
    {
        Taste_T t;
        t.Code = Code;
        return t;
    }
    static Taste_T Zeichen_Taste(char c)
    {
        Taste_T t;
        t.Code    = c >= 'a' && c <= 'z' ? c - 32 : c;
        t.Zeichen = c;
        return t;
    }
    static Taste_T Strg(char Buchstabe)
    {
        Taste_T t;
        t.Code = Buchstabe;
        t.Strg = true;
        return t;
    }
    // As a window does it: what the key-down leaves goes to the key press.
    static void AscII_Tippen(const std::string& Text)
    {
        for (const char c : Text)
            if (!AscII_Feld_KeyDown(Zeichen_Taste(c)))
                AscII_Feld_KeyPress(c);
    }
    static void Hex_Eintippen(const std::string& Text)
    {
        for (const char c : Text)
            Hex_Feld_KeyDown(Zeichen_Taste(c));
    }
    static int Hex_Anfang() { return Hexedit.Hex_Auswahl.Anfang; }
    static int AscII_Anfang() { return Hexedit.AscII_Auswahl.Anfang; }
};

} // namespace varnholt::test
