// The assembler's stages: one preparing sweep over the rows, one emitting sweep that writes final
// bytes and leaves the labels open, and two patching sweeps that fill them in.
#include "core/codepage.h"
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Ausgaben.h"
#include "language/Basic_zu_Hex.h"
#include "language/Datenzeilen.h"
#include "language/Fehlermeldung.h"
#include "language/Kodierer.h"
#include "language/Listfile.h"
#include "language/Marken.h"
#include "language/Operanden.h"
#include "language/Praeprozessor.h"
#include "language/Zeile_Normieren.h"

#include <algorithm>
#include <string>
#include <utility>

namespace varnholt {
namespace {

constexpr int Prozent_Vorher    = 10; // shown by the preparing sweep
constexpr int Prozent_Vor_Bytes = 12;
constexpr int Prozent_Schritte  = 88;

void Fortschritt_Zeigen(int Prozent, std::string_view Zahl)
{
    Plattform.Status->ProgBar(Prozent);
    Plattform.Status->Text(In_Sprache({" Assemblierung läuft... " + std::string(Zahl) + "%",
                                       " Assembling data... " + std::string(Zahl) + "%"}));
    Plattform.Ereignisse->Eine_Runde();
    if (Abbruch)
        throw Assembler_Abbruch{};
}

void Lauf_Beginnen()
{
    Abbruch = false;
    Plattform.Status->Oeffnen();
    Plattform.Status->Text(In_Sprache({" Assemblierung läuft...", " Assembling data..."}));
    Plattform.Ereignisse->Eine_Runde();
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Bild_Loeschen();
    Lauf      = {};
    Struktur  = {};
    Operanden = {};
    Namen_Leeren();
    Quellzeilen_Loeschen();
    Include_Liste.clear();
    Code_Ende      = 0;
    Befehl_Zaehler = 0;
}

// About how many rows a text has, by its beginning; a little too many rather than too few.
std::size_t Zeilen_Schaetzen(std::string_view Text)
{
    const std::string_view Probe = Text.substr(0, 65536);
    const auto n = static_cast<std::size_t>(std::count(Probe.begin(), Probe.end(), '\r'));
    return n + 16 + (n + n / 16) * (Text.size() - Probe.size()) / 65536;
}

void Zeile_Anfuegen(std::string_view Roh)
{
    Quell_Zeilen.push_back({.Text = Zeile_Normieren(Roh, Zeilen_Texte)});
}

// Rows in their normal form of a text behind which one more line end stands. A CR ends a row; the
// character behind it is taken for the LF.
void In_Zeilen_Teilen(std::string_view Text)
{
    Quell_Zeilen.reserve(Zeilen_Schaetzen(Text));
    std::size_t Anfang = 0;
    for (std::size_t CR = Text.find('\r'); CR != std::string_view::npos;
         CR             = Text.find('\r', CR + 1)) {
        Zeile_Anfuegen(CR > Anfang ? Text.substr(Anfang, CR - Anfang) : std::string_view{});
        Anfang = CR + 2;
    }
    Zeile_Anfuegen(Text.substr(std::min(Anfang, Text.size())));
}

void Text_Holen()
{
    std::string            Puffer;
    const std::string_view Text = Plattform.Edit->Text_Ansicht(Puffer);
    if (!Hat_Makros(Text))
        return In_Zeilen_Teilen(Text);
    std::string Erweitert = std::string(Text) + std::string(CRLF);
    Makros_Einsetzen(Erweitert);
    if (Erweitert.ends_with(CRLF))
        Erweitert.resize(Erweitert.size() - CRLF.size());
    In_Zeilen_Teilen(Erweitert);
}

// The rows can grow while the sweep runs: an INCLUDE row becomes its file's first row.
void Zeilen_Vorbereiten()
{
    for (Zeilen_Index = 0; Zeilen_Index < Zeilen_Anzahl(); ++Zeilen_Index) {

        if (Diese_Zeile().Text.empty())
            continue;
        Marke_Abtrennen();
        if (Ist_Include())
            Include_Lesen();
    }
}

// The tail of a row: the instruction is checked, counted and passed.
void Befehl_Abschliessen()
{
    Namensart_Pruefen();
    Adress_Zaehler += Befehls_Laenge;
    ++Befehl_Zaehler;
    if (Inline_IF)
        Inline_IF_Schliessen(Befehls_Laenge);
}

// Data lines, definitions and directives have no length; a one-line IF in front skips nothing.
void Anweisung_Abschliessen()
{
    if (Befehls_Laenge > 0)
        Befehl_Abschliessen();
    else if (Inline_IF)
        Inline_IF_Schliessen(0);
}

// A fixed address runs its row again with the rest of the line, the one-line IF still waiting.
void Anweisung_Oder_Fehler()
{
    const int Zeile = Zeilen_Index;
    if (!Anweisung_Versuchen())
        Unbekannte_Zeile_Melden();
    if (Zeilen_Index == Zeile && !Lauf.Ende_Erreicht)
        Anweisung_Abschliessen();
}

// A row that went through the operand scan.
void Wertzeile_Uebersetzen()
{
    Operanden_Lesen();
    switch (Basic_Uebersetzen()) {
    case Basic_Ergebnis::Fertig:
        return;
    case Basic_Ergebnis::Fehler:
        Unbekannte_Zeile_Melden();
    case Basic_Ergebnis::Byte:
        Befehl_Abschliessen();
        return;
    case Basic_Ergebnis::Keines:
        break;
    }
    if (Form_Versuchen())
        Befehl_Abschliessen();
    else
        Anweisung_Oder_Fehler();
}

void Zeile_Uebersetzen()
{
    Gross_In(Diese_Zeile().Text, Lauf.Zeile_Gross);
    Befehls_Laenge = 0;
    if (Bedingung_Versuchen())
        return;
    if (Fixe_Form_Versuchen())
        Befehl_Abschliessen();
    else if (Datenzeile_Versuchen())
        Anweisung_Abschliessen();
    else
        Wertzeile_Uebersetzen();
}

void Prozent_Melden(int& Prozent, int Schritt)
{
    const int Neu = Prozent_Vor_Bytes + Zeilen_Index / Schritt;
    if (Neu <= Prozent)
        return;
    Prozent = Neu;
    if (Neu < 100)
        Fortschritt_Zeigen(Neu, " " + std::to_string(Neu));
}

void Offene_Strukturen_Melden();

// Ends behind the last row, with END, or when the address leaves the image.
void Bytes_Erzeugen()
{
    const int Schritt = std::max(Zeilen_Anzahl() / Prozent_Schritte, 1);
    int       Prozent = Prozent_Vorher;
    for (Zeilen_Index = 0; Zeilen_Index < Zeilen_Anzahl(); ++Zeilen_Index) {
        if (!Inline_IF)
            Diese_Zeile().Adresse = Adress_Zaehler;
        Listen_Zeile_Aufnehmen();
        if (Diese_Zeile().Text.empty())
            continue;
        Prozent_Melden(Prozent, Schritt);
        Zeile_Uebersetzen();
        if (Lauf.Ende_Erreicht)
            return;
        if (Adress_Zaehler > Bild_Groesse)
            break;
    }
    Offene_Strukturen_Melden();
}

// The row from which an open structure is told: the first at or above its address, then back to the
// nearest one that begins with the word.
void Struktur_Zeile_Waehlen(std::int32_t Adresse, std::string_view Wort)
{
    const auto Ab = std::find_if(Quell_Zeilen.begin(),
                                 Quell_Zeilen.end(),
                                 [&](const Quell_Zeile& z) { return z.Adresse >= Adresse; });
    Zeilen_Index  = std::min(static_cast<int>(Ab - Quell_Zeilen.begin()), Zeilen_Anzahl() - 1);
    while (Zeilen_Index > 0 && !Beginnt_Ohne_Fall(Diese_Zeile().Text, Wort))
        --Zeilen_Index;
}

void Offene_Strukturen_Melden()
{
    if (IF_Tiefe > 0) {
        Struktur_Zeile_Waehlen(IF_Stapel[static_cast<std::size_t>(IF_Tiefe)], "IF");
        Fehler("If ... Then ohne End IF !", "If ... Then without End If!");
    }
    if (FOR_Tiefe > 0) {
        Struktur_Zeile_Waehlen(FOR_Stapel[static_cast<std::size_t>(FOR_Tiefe)].Adresse, "FOR");
        Fehler("For ohne Next !", "For without Next !");
    }
}

void Sprungziele_Einsetzen()
{
    Code_Ende = Adress_Zaehler;
    Lange_Ziele_Einsetzen();
    Plattform.Ereignisse->Eine_Runde();
    Kurze_Ziele_Einsetzen();
}

void Lauf_Beenden()
{
    Plattform.Status->ProgBar(100);
    Plattform.Ereignisse->Pause(0.1); // the user sees the full bar
    Plattform.Status->Schliessen();
    Letzte_Zeilenzahl = Zeilen_Anzahl() + 1;
    Plattform.Ereignisse->Eine_Runde();
}

void Abbruch_Ausfuehren()
{
    Assembler_Fehler = 1;
    Plattform.Status->Schliessen();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    Abbruch = false;
}

void Alle_Stufen()
{
    Lauf_Beginnen();
    Fortschritt_Zeigen(2, " 2");
    Text_Holen();
    Fortschritt_Zeigen(6, " 6");
    Zeilen_Vorbereiten();
    Fortschritt_Zeigen(10, " 10");
    Bytes_Erzeugen();
    Sprungziele_Einsetzen();
    Text_Aktuell = true;
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    Ausgaben_Schreiben();
    Lauf_Beenden();
}

} // namespace

void Assemblieren()
{
    try {
        Alle_Stufen();
    } catch (const Assembler_Ende&) {
        Fehlermeldung_Zeigen();
    } catch (const Assembler_Abbruch&) {
        Abbruch_Ausfuehren();
    }
}

} // namespace varnholt
