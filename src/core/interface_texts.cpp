// Every caption of the main window and of the windows that stay open, in the language of the
// interface. All other texts choose their language where they are shown.
#include "core/interface_texts.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "core/version.h"
#include "core/windows.h"
#include "programmer/Specifications.h"
#include "simulator/Sitzung.h"

#include <string>

namespace varnholt {
namespace {

constexpr Festes_Paar Filter = {
    "Assembler (*.asm; *.txt; *.a51)|*.asm; *.txt; *.a51|Binär (*.bin; *._51)|*.bin; *._51|"
    "Intel-Hex (*.hex; *.ihx)|*.hex; *.ihx|Motorola-S-Record (*.mhx)|*.mhx|Dat-Hex (*.dat)|*.dat|"
    "Alle Dateien (*.*)|*.*",
    "Assembler (*.asm; *.txt; *.a51)|*.asm; *.txt; *.a51|Binary (*.bin; *._51)|*.bin; *._51|"
    "Intel-hex (*.hex; *.ihx)|*.hex; *.ihx|Motorola-S-Record (*.mhx)|*.mhx|Dat-Hex (*.dat)|*.dat|"
    "All files (*.*)|*.*"};

struct Fenster_Titel_T {
    int         Nummer;
    Festes_Paar Titel;
};

// clang-format off
constexpr Fenster_Titel_T Fenster_Titel[] = {
    {Fenster_Notiz, {"Notizen",        "Notes"}},
    {Fenster_Spr,   {"Sprungmarken",   "Jumpmarks"}},
    {Fenster_Basic, {"Basic Befehle",  "Basic Instructions"}},
    {Fenster_Bef,   {"MCS-51 Befehle", "MCS-51 instructions"}},
};
// clang-format on

void Haken_Setzen()
{
    Menue("MNU_Deutsch").Haken  = Sprache == "D";
    Menue("MNU_Englisch").Haken = Sprache == "E";
}

// Entries without a text in the table hold the paths of the recent files.
void Menue_Beschriften()
{
    for (std::size_t i = 0; i < Menue_Anzahl; ++i)
        if (!Menue_Tabelle[i].D.empty())
            Menues.Eintraege[i].Titel = Fester_Text({Menue_Tabelle[i].D, Menue_Tabelle[i].E});
    IC_Titel_Zeigen();
}

void Hauptfenster_Beschriften()
{
    Plattform.Fenster->Hauptfenster_Titel(std::string(Programm_Name)
                                              .append(" ")
                                              .append(Programm_Version)
                                              .append(" (")
                                              .append(Programm_Jahre)
                                              .append(")"));
}

void Werkzeuge_Beschriften()
{
    for (const Werkzeug_Eintrag_T& w : Werkzeug_Tabelle)
        Werkzeug(w.Position).Hinweis = Fester_Text({w.D, w.E});
    Umschalter_Beschriften(Modus);
}

void Fenster_Beschriften()
{
    for (const Fenster_Titel_T& f : Fenster_Titel)
        Plattform.Ereignisse->Titel(f.Nummer, Fester_Text(f.Titel));
}

void Sprache_Setzen(const char* Neue)
{
    Sprache = Neue;
    Haken_Setzen();
    Menue_Beschriften();
    Hauptfenster_Beschriften();
    Werkzeuge_Beschriften();
    if (Programm_Laeuft())
        Start_Beschriften();
    Datei_Filter = Fester_Text(Filter);
    Fenster_Beschriften();
    Sprungmarken_Fuellen(); // the entry that there are none
}

} // namespace

std::string_view Fester_Text(const Festes_Paar& Text)
{
    if (Sprache == "D")
        return Text.D;
    return Sprache == "E" ? Text.E : std::string_view{};
}

std::string_view Umschalten_Hinweis(int Modus_Jetzt)
{
    return Modus_Jetzt == Modus_Hex ? Fester_Text({"Disassemblieren", "Disassemble"})
                                    : Fester_Text({"Assemblieren", "Assemble"});
}

void Umschalter_Beschriften(int Modus_Jetzt)
{
    const std::string_view Text = Umschalten_Hinweis(Modus_Jetzt);
    if (!Text.empty())
        Werkzeug(Werkzeug_Umschalten).Hinweis = Text;
}

void IC_Titel_Zeigen()
{
    if (Sprache == "D" || Sprache == "E") // else the caption of the last language stays
        Menue("MNU_IC").Titel = MNU_IC_Titel();
}

void Sprache_Deutsch() { Sprache_Setzen("D"); }
void Sprache_Englisch() { Sprache_Setzen("E"); }

} // namespace varnholt
