// varnholt-cli assemble.
#include "cli/Argumente.h"
#include "cli/Kommandos.h"
#include "cli/Quelle.h"
#include "core/codepage.h"
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "language/Assembler_Zustand.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <vector>

namespace varnholt {
namespace {

struct Assemble_Optionen {
    std::string              Quelle{};
    std::vector<std::string> Ausgaben{};
    std::string              Liste{};
    std::string              Geraet{};
    std::string              Zahlen   = "decimal";
    std::string              Reihe    = "destination";
    bool                     Debug    = false;
    bool                     Mit_Json = false;
};

using Json = nlohmann::ordered_json;

Json Marken_Json()
{
    Json Marken = Json::object();
    for (const Quell_Zeile& z : Quell_Zeilen)
        if (!z.Marke.empty())
            Marken[Nach_UTF8(z.Marke.Ansicht().substr(0, z.Marke.size() - 1))] = z.Adresse;
    return Marken;
}

// Of a name defined twice the first definition counts.
Json Namen_Json()
{
    Json Alle = Json::object();
    for (const Namen_Eintrag& n : Namen_Tabelle)
        if (n.Laenge > 0) {
            const std::string Name = Nach_UTF8(n.Name);
            if (!Alle.contains(Name))
                Alle[Name] = {{"value", n.Wert}, {"kind", n.Art}};
        }
    return Alle;
}

void Ergebnis_Ausgeben(bool Gut)
{
    Json Alles;
    if (Gut)
        Alles = {{"ok", true},
                 {"code_end", Code_Ende},
                 {"instructions", Befehl_Zaehler},
                 {"labels", Marken_Json()},
                 {"names", Namen_Json()}};
    else
        Alles = {{"ok", false}, {"line", Fehler_Zeile + 1}, {"message", In_Sprache(Fehlertext)}};
    std::cout << Alles.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

// Writes the image once for each -o; the first file that fails decides the status.
int Bild_Ausgeben(const std::vector<std::string>& Ausgaben)
{
    for (const std::string& Name : Ausgaben)
        if (const int Status = Bild_Speichern_Unter(Name); Status != Status_Fertig)
            return Status;
    return Status_Fertig;
}

int Assemble(const Assemble_Optionen& o)
{
    Zahlendeutung       = o.Zahlen == "hexadecimal";
    O_MOV_ZQ            = o.Reihe == "destination";
    C_Erstelle_Listfile = !o.Liste.empty();
    for (const std::string& Name : o.Ausgaben)
        if (const int Status = Bildname_Pruefen(Name); Status != Status_Fertig)
            return Status;
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    if (const int Status = Quelle_Laden(o.Quelle); Status != Status_Fertig)
        return Status;
    const Strom_Datei Liste(o.Liste, Strom_Datei::Richtung::Ausgabe);
    if (!Liste.Bereit())
        return Status_Datei;
    Listen_Name       = Liste.Pfad();
    const bool Gut    = Quelle_Assemblieren(o.Quelle, o.Debug);
    int        Status = Gut ? Status_Der_Datei() : Status_Misslungen;
    if (Gut && Status == Status_Fertig)
        Status = Bild_Ausgeben(o.Ausgaben);
    if (Status == Status_Fertig && !Liste.Ausgeben())
        Status = Status_Datei;
    if (o.Mit_Json)
        Ergebnis_Ausgeben(Gut);
    return Status;
}

} // namespace

void Assemble_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Assemble_Optionen>();
    CLI::App* k = Zeile.Kommando("assemble",
                                 "Assemble a source; without -o and --list it only checks",
                                 [o] { return Assemble(*o); });
    k->add_option("SOURCE", o->Quelle, "Source text, UTF-8 or Windows-1252")
        ->required()
        ->type_name("");
    k->add_option(
         "-o",
         o->Ausgaben,
         "Write the image; the extension chooses the format: .bin ._51 .hex .ihx .mhx .dat "
         "(may be given again)")
        ->type_name("FILE")
        ->allow_extra_args(false);
    k->add_option("--list", o->Liste, "Write the list file under that name")->type_name("FILE");
    k->add_flag("--debug", o->Debug, "Assemble as the debugger does: STOP and #IF DEBUGGING count");
    k->add_option("--numbers", o->Zahlen, "How numbers without a mark are read (default: decimal)")
        ->check(CLI::IsMember({"decimal", "hexadecimal"}));
    k->add_option(
         "--mov-order", o->Reihe, "What stands first in MOV direct,direct (default: destination)")
        ->check(CLI::IsMember({"destination", "source"}));
    k->add_option("--device", o->Geraet, "Check the size against this device")->type_name("NAME");
    k->add_flag("--json",
                o->Mit_Json,
                "Print code end, instruction count, labels and names as one JSON object");
}

} // namespace varnholt
