// varnholt-cli simulate.
#include "cli/Argumente.h"
#include "cli/Kommandos.h"
#include "cli/Quelle.h"
#include "cli/Simulation.h"
#include "core/checksum.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Dateizugriff.h"
#include "language/Assembler_Zustand.h"
#include "simulator/Debug.h"
#include "simulator/Sitzung.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <span>
#include <string_view>

namespace varnholt {
namespace {

namespace fs = std::filesystem;

using Json = nlohmann::ordered_json;

struct Simulate_Optionen {
    std::string Eingabe{};
    std::string Befehle     = "10000000";
    std::string Reihe       = "destination";
    std::string Prozessor   = "8052.mc";
    std::string Spur        = {};
    std::string XRAM_Datei  = {};
    bool        Zeilenweise = false;
    bool        Mit_Json    = false;
};

// --- on the way in ---

// As given, else in the program's folder of processor files.
std::string Prozessorfile_Pfad(const std::string& Name)
{
    std::error_code Fehler;
    if (fs::is_regular_file(Name, Fehler))
        return Name;
    const auto Pfad = Datei_Suchen(fs::path(Programm_Pfad) / "mc", Name);
    return Pfad ? Pfad->string() : Name;
}

// Where a name leads to; `-` is what comes in.
fs::path Ort_Von(const std::string& Name)
{
    std::error_code Fehler;
    const fs::path  Ganz = fs::absolute(Name == "-" ? "/dev/stdin" : Name, Fehler);
    const fs::path  Ort  = fs::weakly_canonical(Ganz, Fehler);
    return Fehler ? Ganz : Ort;
}

// Whether both names lead to one file: by another spelling or a link as well. A device is none.
bool Selbe_Datei(const std::string& a, const std::string& b)
{
    const fs::path  Ort = Ort_Von(a);
    std::error_code Fehler;
    if (fs::exists(Ort, Fehler))
        return fs::is_regular_file(Ort, Fehler) && fs::equivalent(Ort, Ort_Von(b), Fehler);
    return Ort == Ort_Von(b);
}

// An output is written over none of the files that the command names.
int Ausgabe_Pruefen(const Simulate_Optionen& o, const char* Option, const std::string& Name)
{
    const auto Gleich = [&](const std::string& Andere) {
        return !Andere.empty() && Selbe_Datei(Name, Andere);
    };
    if (Name.empty() || Name == "-")
        return Status_Fertig;
    if (Gleich(o.Eingabe))
        return Falsche_Zeile({fmt::format("{} {}: das ist die Eingabe", Option, Name),
                              fmt::format("{} {}: that is the input", Option, Name)});
    if (Gleich(Prozessorfile_Pfad(o.Prozessor)))
        return Falsche_Zeile({fmt::format("{} {}: das ist das Prozessorfile", Option, Name),
                              fmt::format("{} {}: that is the processor file", Option, Name)});
    return Status_Fertig;
}

int Ausgaben_Pruefen(const Simulate_Optionen& o)
{
    if (!o.XRAM_Datei.empty())
        if (const int Status = Bildname_Pruefen(o.XRAM_Datei); Status != Status_Fertig)
            return Status;
    if (const int Status = Ausgabe_Pruefen(o, "--trace", o.Spur); Status != Status_Fertig)
        return Status;
    if (const int Status = Ausgabe_Pruefen(o, "--xram-out", o.XRAM_Datei); Status != Status_Fertig)
        return Status;
    if (!o.Spur.empty() && o.Spur != "-" && o.XRAM_Datei != "-" && !o.XRAM_Datei.empty() &&
        Selbe_Datei(o.Spur, o.XRAM_Datei))
        return Falsche_Zeile({"--trace und --xram-out schreiben in dieselbe Datei",
                              "--trace and --xram-out write to the same file"});
    return Status_Fertig;
}

// Nor over one that the assembler has read for an INCLUDE.
int Include_Pruefen(const char* Option, const std::string& Name)
{
    if (Name.empty() || Name == "-" ||
        std::none_of(Include_Liste.begin(), Include_Liste.end(), [&](const Include_Eintrag& e) {
            return Selbe_Datei(Name, e.Pfad);
        }))
        return Status_Fertig;
    return Falsche_Zeile({fmt::format("{} {}: das ist eine Include-Datei", Option, Name),
                          fmt::format("{} {}: that is an included file", Option, Name)});
}

int Includes_Pruefen(const Simulate_Optionen& o)
{
    const int Status = Include_Pruefen("--trace", o.Spur);
    return Status == Status_Fertig ? Include_Pruefen("--xram-out", o.XRAM_Datei) : Status;
}

// The names of the registers, then the image.
int Bild_Bereitstellen(const Simulate_Optionen& o)
{
    const std::string Prozessor = Prozessorfile_Pfad(o.Prozessor);
    if (const int Status = Quelle_Laden(Prozessor); Status != Status_Fertig)
        return Status;
    if (!Quelle_Assemblieren(Prozessor, false))
        return Status_Misslungen;
    if (const int Status = Bild_Laden_Von(o.Eingabe); Status != Status_Fertig)
        return Status;
    Maschine_Bereitstellen();
    return Status_Fertig;
}

int Programm_Bereitstellen(const Simulate_Optionen& o)
{
    if (!Hat_Quell_Endung(o.Eingabe))
        return Bild_Bereitstellen(o);
    if (const int Status = Quelle_Laden(o.Eingabe); Status != Status_Fertig)
        return Status;
    if (!Quelle_Vorbereiten(o.Eingabe))
        return Status_Misslungen;
    Maschine_Bereitstellen();
    Zur_Ersten_Zeile();
    return Status_Fertig;
}

// --- on the way out ---

std::string Hex_Ziffern(std::span<const std::uint8_t> Bytes)
{
    std::string Text;
    for (const std::uint8_t b : Bytes)
        Text += fmt::format("{:02X}", b);
    return Text;
}

Text_Paar Grund_Text(Lauf_Ende Ende)
{
    switch (Ende) {
    case Lauf_Ende::Stoppunkt:
        return {"Stoppunkt", "stop point"};
    case Lauf_Ende::Grenze:
        return {"Grenze", "limit"};
    case Lauf_Ende::Unter_Null:
        return {"Adresse unter 0", "address below 0"};
    case Lauf_Ende::Endlose_Zeile:
        break;
    }
    return {"endlose Zeile", "endless line"};
}

void Json_Ausgeben(const Simulation_Ergebnis& e)
{
    const Json Alles = {{"pc", Sim_PC},
                        {"cycles", Sim_Zyklen},
                        {"instructions", e.Befehle},
                        {"stopped", Grund_Text(e.Ende).E},
                        {"prio", Sim_Prio},
                        {"pins", Sim_Pins},
                        {"ram", Hex_Ziffern(Sim_RAM)},
                        {"xram_crc32", fmt::format("{:08X}", CRC_32(Sim_XRAM))}};
    std::cout << Alles.dump() << '\n';
}

std::string Adresse_Text()
{
    return Sim_PC < 0 ? std::to_string(Sim_PC) : fmt::format("{:04X}h", Sim_PC);
}

void Zusammenfassen(const Simulation_Ergebnis& e)
{
    const Text_Paar Grund = Grund_Text(e.Ende);
    std::cout << In_Sprache({fmt::format("Ende: {}, Programmadresse {}\n"
                                         "Befehle {}, Zyklen {}\n",
                                         Grund.D,
                                         Adresse_Text(),
                                         e.Befehle,
                                         Sim_Zyklen),
                             fmt::format("Stopped: {}, program address {}\n"
                                         "Instructions {}, cycles {}\n",
                                         Grund.E,
                                         Adresse_Text(),
                                         e.Befehle,
                                         Sim_Zyklen)});
    std::cout << fmt::format("A={:02X} B={:02X} PSW={:02X} SP={:02X} DPTR={:02X}{:02X}",
                             Sim_RAM[SFR::ACC],
                             Sim_RAM[SFR::B],
                             Sim_RAM[SFR::PSW],
                             Sim_RAM[SFR::SP],
                             Sim_RAM[SFR::DPH],
                             Sim_RAM[SFR::DPL]);
    for (int n = 0; n < 8; ++n)
        std::cout << fmt::format(
            " R{}={:02X}", n, Sim_RAM[static_cast<std::size_t>(Register_Adresse(n))]);
    std::cout << '\n';
}

int XRAM_Schreiben(const std::string& Name)
{
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Ausgabe);
    if (!Datei.Bereit())
        return Status_Datei;
    const std::string Bytes(Sim_XRAM.begin(), Sim_XRAM.end());
    std::string       Grund;
    if (!Datei_Schreiben(Datei.Pfad(), Bytes, Grund)) {
        Auf_Fehlerausgabe(Name + ": " + Grund);
        return Status_Datei;
    }
    return Datei.Ausgeben() ? Status_Fertig : Status_Datei;
}

int Ergebnis_Status(const Simulation_Ergebnis& e)
{
    if (e.Ende == Lauf_Ende::Endlose_Zeile)
        Auf_Fehlerausgabe(
            In_Sprache({"Die Zeile kommt nicht zum Ende !", "The line doesn't come to an end !"}));
    const bool Gut = e.Ende == Lauf_Ende::Stoppunkt || e.Ende == Lauf_Ende::Grenze;
    return Gut ? Status_Fertig : Status_Misslungen;
}

int Ergebnis_Ausgeben(const Simulate_Optionen& o, const Simulation_Ergebnis& e)
{
    o.Mit_Json ? Json_Ausgeben(e) : Zusammenfassen(e);
    const int Status = o.XRAM_Datei.empty() ? int{Status_Fertig} : XRAM_Schreiben(o.XRAM_Datei);
    return Status == Status_Fertig ? Ergebnis_Status(e) : Status;
}

// --- the run between them ---

int Mit_Spur_Laufen(const Simulate_Optionen& o, std::int64_t Hoechstens)
{
    if (o.Spur.empty())
        return Ergebnis_Ausgeben(o, Simulation_Laufen(Hoechstens, o.Zeilenweise, nullptr));
    std::ofstream Datei;
    if (o.Spur != "-")
        Datei.open(o.Spur, std::ios::binary);
    if (!Datei)
        return Spur_Fehlt();
    std::ostream& Ziel = o.Spur == "-" ? std::cout : Datei;
    const auto    e    = Simulation_Laufen(Hoechstens, o.Zeilenweise, &Ziel);
    if (!Ziel.flush())
        return Spur_Fehlt();
    return Ergebnis_Ausgeben(o, e);
}

int Simulate(const Simulate_Optionen& o)
{
    O_MOV_ZQ              = o.Reihe == "destination";
    const auto Hoechstens = Lange_Zahl_Von(o.Befehle);
    if (!Hoechstens)
        return Falsche_Zeile({o.Befehle + " ist keine Anzahl", o.Befehle + " is no number"});
    if (o.Zeilenweise && !Hat_Quell_Endung(o.Eingabe))
        return Falsche_Zeile({o.Eingabe + " ist ein Abbild; --line-mode zählt Quellzeilen und "
                                          "braucht einen Quelltext",
                              o.Eingabe + " is an image; --line-mode counts source lines and "
                                          "needs a source"});
    if (const int Status = Ausgaben_Pruefen(o); Status != Status_Fertig)
        return Status;
    if (const int Status = Programm_Bereitstellen(o); Status != Status_Fertig)
        return Status;
    if (const int Status = Includes_Pruefen(o); Status != Status_Fertig)
        return Status;
    return Mit_Spur_Laufen(o, *Hoechstens);
}

void Ausgaben_Anmelden(CLI::App& k, Simulate_Optionen& o)
{
    k.add_flag("--json",
               o.Mit_Json,
               "Print address, cycles, instructions, what stopped it, priority, pins, RAM and the "
               "CRC-32 of the external RAM as one JSON object");
    k.add_option("--trace",
                 o.Spur,
                 "Write a line for each executed instruction: address, opcode, registers, cycles")
        ->type_name("FILE");
    k.add_option("--xram-out", o.XRAM_Datei, "Write the 65536 bytes of the external RAM")
        ->type_name("FILE");
}

} // namespace

void Simulate_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Simulate_Optionen>();
    CLI::App* k = Zeile.Kommando("simulate",
                                 "Run a program in the simulator, until a stop point or a limit",
                                 [o] { return Simulate(*o); });
    k->add_option(
         "INPUT",
         o->Eingabe,
         "A source, assembled as the debugger does, or an image, which starts at address 0")
        ->required()
        ->type_name("");
    k->add_option("--instructions",
                  o->Befehle,
                  "Stop after that many instructions (default: 10000000); 0 runs nothing")
        ->type_name("N");
    k->add_flag("--line-mode",
                o->Zeilenweise,
                "Run source line by source line, and count lines instead of instructions");
    k->add_option(
         "--mov-order", o->Reihe, "What stands first in MOV direct,direct (default: destination)")
        ->check(CLI::IsMember({"destination", "source"}));
    k->add_option("--processor",
                  o->Prozessor,
                  "Processor file with the registers that a reset sets, for an image "
                  "(default: 8052.mc)")
        ->type_name("FILE.mc");
    Ausgaben_Anmelden(*k, *o);
}

} // namespace varnholt
