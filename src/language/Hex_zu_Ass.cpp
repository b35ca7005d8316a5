// The image back into source text: asks nobody, shows how far it is, and hands the text to the
// editor. How bytes become lines stands in Disassembler_Regeln.cpp.
#include "core/commands.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "editors/Quelltext_Sperre.h"
#include "language/Assembler_Zustand.h"
#include "language/Disassembler_Regeln.h"
#include "programmer/Geraete.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace varnholt {
namespace {

void Fortschritt_Zeigen(int Prozent)
{
    const std::string Zahl = " " + std::to_string(Prozent) + "%";
    Plattform.Status->ProgBar(Prozent);
    Plattform.Status->Text(
        In_Sprache({" Disassemblierung läuft... " + Zahl, " Disassembling data... " + Zahl}));
    Plattform.Ereignisse->Eine_Runde();
}

// False when the user pressed the cancel button meanwhile.
bool Prozent_Geschafft(int Prozent)
{
    Fortschritt_Zeigen(Prozent);
    return !Abbruch;
}

void Lauf_Beginnen()
{
    Abbruch = false;
    Plattform.Status->Oeffnen();
    Plattform.Status->Text(In_Sprache({" Disassemblierung läuft...", " Disassembling data..."}));
}

bool Lauf_Abbrechen()
{
    Plattform.Status->Schliessen();
    Abbruch = false;
    return false;
}

void In_Den_Editor(std::string Text)
{
    const Edit_Ruhe Ruhe;
    Plattform.Edit->Text_Setzen(std::move(Text));
}

bool Leeren_Text_Zeigen()
{
    In_Den_Editor({});
    Sprungmarken_Fuellen();
    Plattform.Status->Schliessen();
    return true;
}

// The text stands; there is nothing left that a late cancel could end.
bool Text_Zeigen(std::string Text)
{
    In_Den_Editor(std::move(Text));
    Edit_Einfaerben();
    Sprungmarken_Fuellen();
    Fortschritt_Zeigen(100);
    Plattform.Ereignisse->Pause(0.1); // the user sees the full bar
    Plattform.Status->Schliessen();
    Abbruch      = false;
    Text_Aktuell = true;
    Plattform.Edit->Fokus();
    return true;
}

} // namespace

bool Disassemblieren()
{
    Lauf_Beginnen();
    // The last element of the image belongs to no device; only operands reach it.
    const auto Ende = Belegtes_Ende(Hex_Daten, std::min(IC_Groesse_Gewaehlt(), Bild_Groesse));
    if (!Ende)
        return Leeren_Text_Zeigen();
    if (!Prozent_Geschafft(1))
        return Lauf_Abbrechen();
    Quellzeilen_Loeschen(); // they belong to the text that goes
    Code_Ende = *Ende;
    auto Text = Bild_Zerlegen(Hex_Daten, *Ende, O_MOV_ZQ, Prozent_Geschafft);
    return Text ? Text_Zeigen(std::move(*Text)) : Lauf_Abbrechen();
}

} // namespace varnholt
