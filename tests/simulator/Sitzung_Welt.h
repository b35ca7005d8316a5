// Common ground of the debugger's tests: a session on a small program, where it stands in the text,
// and what happens in the turns of the event loop that a running program grants.
#pragma once

#include "core/commands.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "language/Assembler_Hilfe.h"
#include "language/Assembler_Zustand.h"
#include "simulator/Debug.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"
#include "support/scripted_platform.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

// A text control that notes whether the editor's own events were off when it was told to select.
class Wach_Text : public Speicher_Text {
public:
    void Auswaehlen(std::int64_t Anfang, std::int64_t Laenge_Der_Auswahl) override
    {
        Ungesperrte += Text_Sperre ? 0 : 1;
        Speicher_Text::Auswaehlen(Anfang, Laenge_Der_Auswahl);
    }
    int Ungesperrte = 0; // selections that would have looked like the user's
};

// An event loop that runs while it pauses, too.
class Pausen_Schleife : public Skript_Ereignisse {
public:
    void Pause(double Sekunden) override
    {
        Skript_Ereignisse::Pause(Sekunden);
        Eine_Runde();
    }
};

// Texts of programs have LF line ends. The program folder is a temporary one with three processor
// files; snapshots are off.
class Sitzung_Welt : public Welt {
protected:
    Sitzung_Welt()
    {
        Programm_Pfad = Ordner.Pfad.string() + "/";
        for (const char* Teil : {"mc", "include", "Undo", "Autosave"})
            std::filesystem::create_directory(Ordner.Pfad / Teil);
        for (const char* Name : {"8051.mc", "8052.mc", "80c552.mc"})
            std::filesystem::copy_file(std::filesystem::path(VARNHOLT_DATA) / "mc" / Name,
                                       Ordner.Pfad / "mc" / Name);
        Plattform.Edit    = &Text;
        Modus             = Modus_MC;
        Autosave_Zeitlich = false;
        Undo_Max          = -1;
        Undo_Zuruecksetzen();
        Debug_Beenden(); // menu and tool bar as the start-up leaves them
    }

    // --- a session ---

    // `Daten vorbereiten` on that text; whether a session is on.
    bool Beginne(std::string_view Programm)
    {
        Text.Text_Setzen(Mit_CRLF(Programm));
        Text.Ungesperrte = 0;
        Debug_Vorbereiten();
        Wache_Stellen();
        return Debugger_Aktiv;
    }
    // The same behind a line that includes the 8051's file: its own lines count from 1.
    bool Programm(std::string_view Zeilen)
    {
        return Beginne("INCLUDE 8051.mc\n" + std::string(Zeilen));
    }
    void Include_Datei(const std::string& Name, std::string_view Inhalt)
    {
        Ordner.Anlegen("include/" + Name, Inhalt);
    }
    static void Schritte(int Anzahl)
    {
        for (int i = 0; i < Anzahl; ++i)
            Debug_Schritt();
    }

    // --- where it stands ---

    std::string  Auswahl() const { return Text.Auswahl_Text(); }
    std::int64_t Zeile() const { return Text.Zeile_Von(Text.Auswahl().Anfang); }
    void         Cursor_In(std::int64_t Nummer) { Text.Auswaehlen(Text.Zeile(Nummer).Anfang, 0); }
    static std::uint8_t& Byte(int Index) { return Sim_RAM.at(static_cast<std::size_t>(Index)); }
    static int           ACC() { return Byte(SFR::ACC); }

    // --- turns of the event loop ---

    // That command comes in a turn, the first one from now on being 1.
    void In_Runde(int Nummer, std::function<void()> Befehl)
    {
        const int Ab         = Ereignisse.Runden;
        Ereignisse.Bei_Runde = [this, Ab, Nummer, Befehl = std::move(Befehl)](int n) {
            if (n == Ab + Nummer)
                Befehl();
            Wachen(n - Ab);
        };
    }
    // It comes in every turn.
    void In_Jeder_Runde(std::function<void(int)> Befehl)
    {
        const int Ab         = Ereignisse.Runden;
        Ereignisse.Bei_Runde = [this, Ab, Befehl = std::move(Befehl)](int n) {
            Befehl(n - Ab);
            Wachen(n - Ab);
        };
    }
    // A program that doesn't end fails its test instead of hanging it.
    void Wache_Stellen()
    {
        In_Jeder_Runde([](int) {});
    }

    Arbeitsordner Ordner{};
    Wach_Text     Text{};

private:
    static constexpr int Runden_Hoechstens = 2000;

    static void Wachen(int Runde)
    {
        if (Runde < Runden_Hoechstens)
            return;
        if (Runde == Runden_Hoechstens)
            ADD_FAILURE() << "a run without an end";
        Debug_Beenden();
    }
};

} // namespace varnholt::test
