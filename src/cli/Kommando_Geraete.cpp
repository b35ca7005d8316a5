// varnholt-cli devices.
#include "cli/Kommandos.h"
#include "core/shared_state.h"
#include "programmer/Geraete.h"
#include "programmer/Specifications.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>

namespace varnholt {
namespace {

using Json = nlohmann::ordered_json;

struct Devices_Optionen {
    std::string Name{};
    bool        Mit_Json = false;
};

// Columns of the list; its head has the same.
constexpr std::string_view Zeilen_Form =
    "{:>4}  {:<24} {:<14} {:>7}  {:<9} {:<8} {:<8} {:<8} {:>6} {:>7} {:>5}  {}\n";

const Geraet_T& Satz(int Nummer) { return Geraete_Tabelle[static_cast<std::size_t>(Nummer)]; }

std::string Gruppe_Von(int Nummer)
{
    const auto g = static_cast<std::size_t>(Nummer / Gruppen_Plaetze);
    return g < Geraete.Gruppen_Namen.size() ? Geraete.Gruppen_Namen[g] : std::string{};
}

const char* Board_Name(int Programmer)
{
    if (Programmer == 1)
        return "Eprommer";
    return Programmer == 3 ? "Tessel2" : "Tessel1";
}

Json Satz_Json(int Nummer)
{
    const Geraet_T& g = Satz(Nummer);
    return {{"number", Nummer},
            {"group", Gruppe_Von(Nummer)},
            {"name", g.Name},
            {"menu_name", Geraete.Menue_Texte[static_cast<std::size_t>(Nummer)]},
            {"bytes", g.Bytes},
            {"read_type", g.R_Typ},
            {"program_type", g.P_Typ},
            {"erase_type", g.E_Typ},
            {"lock_type", g.L_Typ},
            {"read_timing", g.R_Timing},
            {"program_timing", g.P_Timing},
            {"page_bytes", g.Seiten_Bytes},
            {"jumpers", g.E_Jumper},
            {"j1", g.M_Jumper1},
            {"board", Board_Name(g.Programmer)}};
}

std::string Zeile_Von(int Nummer)
{
    const Geraet_T& g = Satz(Nummer);
    return fmt::format(Zeilen_Form,
                       Nummer,
                       Gruppe_Von(Nummer),
                       g.Name,
                       g.Bytes,
                       g.R_Typ,
                       g.P_Typ,
                       g.E_Typ.empty() ? "-" : g.E_Typ,
                       g.L_Typ.empty() ? "-" : g.L_Typ,
                       g.R_Timing,
                       g.P_Timing,
                       g.Seiten_Bytes,
                       Board_Name(g.Programmer));
}

std::string Kopfzeile()
{
    return fmt::format(Zeilen_Form,
                       "No.",
                       "Group",
                       "Name",
                       "Bytes",
                       "Read",
                       "Program",
                       "Erase",
                       "Lock",
                       "t R/us",
                       "t P/us",
                       "Page",
                       "Board");
}

void Alle_Ausgeben(bool Mit_Json)
{
    Json        Alle = Json::array();
    std::string Text = Kopfzeile();
    for (int n = 0; n < Geraete_Anzahl; ++n) {
        if (Satz(n).Name.empty())
            continue;
        if (Mit_Json)
            Alle.push_back(Satz_Json(n));
        else
            Text += Zeile_Von(n);
    }
    std::cout << (Mit_Json ? Alle.dump() + "\n" : Text);
}

void Eins_Ausgeben(int Nummer, bool Mit_Json)
{
    const Json Werte = Satz_Json(Nummer);
    if (Mit_Json) {
        std::cout << Werte.dump() << '\n';
        return;
    }
    for (const auto& [Name, Wert] : Werte.items())
        std::cout << fmt::format(
            "{:<15} {}\n", Name, Wert.is_string() ? Wert.get<std::string>() : Wert.dump());
}

int Devices(const Devices_Optionen& o)
{
    if (const int Status = Geraete_Lesen(); Status != Status_Fertig)
        return Status;
    if (o.Name.empty()) {
        Alle_Ausgeben(o.Mit_Json);
        return Status_Fertig;
    }
    const int Nummer = Geraet_Suchen(o.Name);
    if (Nummer < 0)
        return Geraet_Unbekannt(o.Name);
    Eins_Ausgeben(Nummer, o.Mit_Json);
    return Status_Fertig;
}

} // namespace

void Geraete_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Devices_Optionen>();
    CLI::App* k = Zeile.Kommando(
        "devices", "List the device database, or one device of it", [o] { return Devices(*o); });
    k->add_option("NAME", o->Name, "A device's name, in any case")->type_name("");
    k->add_flag("--json", o->Mit_Json, "Print JSON");
}

} // namespace varnholt
