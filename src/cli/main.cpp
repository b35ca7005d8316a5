// varnholt-cli: parses the command line, runs one command, returns its status.
#include "cli/Kommandos.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "programmer/Specifications.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <malloc.h>
#include <utility>
#include <vector>

#ifndef VARNHOLT_VERSION
#define VARNHOLT_VERSION "0.0.0"
#endif

namespace varnholt {
namespace {

std::string Mit_Trenner(std::string Ordner)
{
    if (!Ordner.empty() && Ordner.back() != '/')
        Ordner += '/';
    return Ordner;
}

// The state that every command starts from: the values of a first start.
void Vorbereiten(const Kommandozeile& Zeile)
{
    Sprache       = Zeile.Sprach_Wahl;
    Programm_Pfad = Zeile.Home.empty() ? Programm_Pfad_Bestimmen() : Mit_Trenner(Zeile.Home);
    Bild_Loeschen();
    Eprommer_Version = 32;
    Tessel2_Version  = 12;
}

void Anmelden(Kommandozeile& Zeile)
{
    CLI::App& App = Zeile.App;
    App.require_subcommand(1);
    App.fallthrough();
    App.option_defaults()->always_capture_default(false);
    App.set_version_flag("--version", "varnholt-cli " VARNHOLT_VERSION);
    App.set_help_all_flag("--help-all", "Help on the program and on every command");
    App.add_option("--language", Zeile.Sprach_Wahl, "Language of the texts: D or E (default: E)")
        ->check(CLI::IsMember({"D", "E"}));
    App.add_option("--home", Zeile.Home, "Folder with Spec.ini, mc and include")->type_name("DIR");
    App.footer(
        "Exit status: 0 done; 1 the job failed (assembler error, files differ, device fault, "
        "verify failed);\n2 the command line is wrong; 3 a file can't be read or written.\n"
        "Numbers may be decimal, 0x1F or 1Fh; `-` is standard input or output where a file "
        "is meant.");
    Assemble_Anmelden(Zeile);
    Disassemble_Anmelden(Zeile);
    Dateien_Anmelden(Zeile);
    Geraete_Anmelden(Zeile);
    Brenner_Anmelden(Zeile);
    Simulate_Anmelden(Zeile);
}

// The arguments as the parser takes them, the last one first. A name in brackets would be split
// into a list there, so that it is written as a path.
std::vector<std::string> Argumente_Umgekehrt(int argc, char** argv)
{
    std::vector<std::string> Argumente;
    for (int i = argc - 1; i > 0; --i) {
        const std::string a = argv[i];
        Argumente.push_back(a.starts_with('[') && a.ends_with(']') ? "./" + a : a);
    }
    return Argumente;
}

int Ausfuehren(int argc, char** argv)
{
    Kommandozeile Zeile;
    Anmelden(Zeile);
    if (argc == 2 && std::string_view(argv[1]) == "--man") {
        std::cout << Handbuch_Seite(Zeile.App);
        return Status_Fertig;
    }
    try {
        Zeile.App.parse(Argumente_Umgekehrt(argc, argv));
    } catch (const CLI::ParseError& Fehler) {
        return Zeile.App.exit(Fehler) == 0 ? Status_Fertig : Status_Falsch;
    }
    return std::cout.flush() ? Zeile.Status : int{Status_Datei};
}

} // namespace

CLI::App*
Kommandozeile::Kommando(const std::string& Name, const std::string& Text, std::function<int()> Tut)
{
    CLI::App* Unter = App.add_subcommand(Name, Text);
    Unter->fallthrough();
    Unter->callback([this, Tut = std::move(Tut)] {
        Vorbereiten(*this);
        Status = Tut();
    });
    return Unter;
}

int Status_Der_Datei()
{
    switch (Datei_Fehler) {
    case Dateifehler::Keiner:
        return Status_Fertig;
    case Dateifehler::Nicht_Gefunden:
    case Dateifehler::Lesefehler:
    case Dateifehler::Schreibfehler:
        return Status_Datei;
    case Dateifehler::Abgelehnt:
    case Dateifehler::Teilladen_Offen:
        break;
    }
    return Status_Misslungen;
}

int Falsche_Zeile(const Text_Paar& Text)
{
    Auf_Fehlerausgabe("varnholt-cli: " + In_Sprache(Text));
    return Status_Falsch;
}

int Spur_Fehlt()
{
    Auf_Fehlerausgabe(In_Sprache(
        {"Die Aufzeichnung kann nicht geschrieben werden.", "The trace can't be written."}));
    return Status_Datei;
}

int Geraete_Lesen()
{
    if (Spec_Lesen())
        return Status_Fertig;
    if (Sprache == "E") // the message of a missing file exists in German only
        Auf_Fehlerausgabe(Programm_Pfad +
                          "Spec.ini: the device database is missing or can't be read");
    return Status_Datei;
}

int Geraet_Unbekannt(const std::string& Name)
{
    return Falsche_Zeile({"In Spec.ini gibt es kein IC " + Name + ".",
                          "there is no device " + Name + " in Spec.ini"});
}

int Geraet_Waehlen(const std::string& Name)
{
    if (Name.empty())
        return Status_Fertig;
    if (const int Status = Geraete_Lesen(); Status != Status_Fertig)
        return Status;
    const int Nummer = Geraet_Suchen(Name);
    if (Nummer < 0)
        return Geraet_Unbekannt(Name);
    IC_Waehlen(Nummer);
    return std::exchange(Abbruch, false) ? Status_Falsch : Status_Fertig;
}

} // namespace varnholt

int main(int argc, char** argv)
{
    // A full disk and a closed pipe are failed writes, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    // Freed memory is used again instead of being given back: a run is short, and each fresh page
    // costs as much as several source lines.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    try {
        const int Status = varnholt::Ausfuehren(argc, argv);
        std::fflush(nullptr);
        std::_Exit(Status); // the state dies with the process, without being taken apart
    } catch (const std::bad_alloc&) {
        std::fputs("varnholt-cli: out of memory\n", stderr);
    } catch (const std::exception& Fehler) {
        std::fprintf(stderr, "varnholt-cli: %s\n", Fehler.what());
    }
    return varnholt::Status_Datei;
}
