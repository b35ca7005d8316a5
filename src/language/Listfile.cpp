// The list file: its rows during the emitting sweep, and its text.
#include "language/Listfile.h"

#include "core/codepage.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "files/Textdatei.h"
#include "language/Befehle.h"

#include <fmt/format.h>

#include <iterator>
#include <utility>

namespace varnholt {
namespace {

// A new row at the end. A label row has no bytes.
void Anfuegen(std::string Text, Listen_Zeile::Art_T Art)
{
    Lauf.Listen_Zeilen.push_back({Diese_Zeile().Adresse, std::move(Text), Art, false});
}

// The three byte columns of a row, joined.
std::string Spalten(const Listen_Zeile& z)
{
    if (z.Art == Listen_Zeile::Daten)
        return "DATA  ";
    if (z.Art == Listen_Zeile::Definition)
        return "DEF   ";
    const bool  Mit_Bytes = z.Art == Listen_Zeile::Code && !z.Ohne_Bytes;
    const int   Laenge    = Mit_Bytes ? Befehl_Laenge(Byte_An(z.Adresse)) : 0;
    std::string s;
    for (int i = 0; i < 3; ++i)
        s += i < Laenge ? fmt::format("{:02X} ", Byte_An(z.Adresse + i)) : std::string("   ");
    return s;
}

} // namespace

void Listen_Zeile_Aufnehmen()
{
    if (!C_Erstelle_Listfile)
        return;
    const Quell_Zeile& Zeile = Diese_Zeile();
    const bool         Nach_Code =
        Lauf.Listen_Zeilen.empty() || Lauf.Listen_Zeilen.back().Art == Listen_Zeile::Code;
    if (Nach_Code && !Zeile.Marke.empty())
        Anfuegen(std::string(Zeile.Marke.Ansicht()), Listen_Zeile::Marke);
    if (!Zeile.Text.empty())
        Anfuegen(std::string(Zeile.Text.Ansicht()), Listen_Zeile::Code);
}

void Listen_Art_Setzen(Listen_Zeile::Art_T Art)
{
    if (C_Erstelle_Listfile && !Lauf.Listen_Zeilen.empty())
        Lauf.Listen_Zeilen.back().Art = Art;
}

void Listen_Ohne_Bytes()
{
    if (C_Erstelle_Listfile && !Lauf.Listen_Zeilen.empty())
        Lauf.Listen_Zeilen.back().Ohne_Bytes = true;
}

void Listen_Adresse_Fest(std::string Kopf)
{
    if (!C_Erstelle_Listfile || Lauf.Listen_Zeilen.empty())
        return;
    Lauf.Listen_Zeilen.back() = {Adress_Zaehler, std::move(Kopf), Listen_Zeile::Marke, false};
}

std::string Listen_Text()
{
    std::string Text;
    int         Nummer = 0;
    for (const Listen_Zeile& z : Lauf.Listen_Zeilen)
        fmt::format_to(std::back_inserter(Text),
                       "{:>5}   {:04X}\t{}   \t{}\r\n",
                       fmt::format(" {}", Nummer++),
                       z.Adresse,
                       Spalten(z),
                       z.Text);
    return Text;
}

std::string Listen_Pfad()
{
    if (!Listen_Name.empty())
        return Listen_Name;
    if (Quell_Pfad.empty())
        return "TEMP.L51";
    const std::size_t Punkt = Quell_Pfad.rfind('.');
    return (Punkt == std::string::npos ? std::string{} : Quell_Pfad.substr(0, Punkt)) + ".L51";
}

void Listfile_Schreiben()
{
    std::string Bytes = Listen_Text();
    if (Quell_Datei.Zeichensatz != Kodierung::Windows_1252)
        Bytes = Nach_UTF8(Bytes);
    const std::string Pfad = Listen_Pfad();
    std::string       Grund;
    if (!Datei_Schreiben(Pfad, Bytes, Grund)) {
        Datei_Fehler = Dateifehler::Schreibfehler;
        Plattform.Box->Hinweisen(
            In_Sprache({"Die Listdatei " + Pfad + " konnte nicht geschrieben werden: " + Grund,
                        "The list file " + Pfad + " could not be written: " + Grund}));
    }
    Lauf.Listen_Zeilen.clear();
}

} // namespace varnholt
