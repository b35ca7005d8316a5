// The commands of varnholt-cli. Each file announces its commands with their options to the command
// line and holds what they do; main.cpp only parses and returns the status.
#pragma once

#include "cli/Konsole.h"
#include "core/messages.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace varnholt {

// Exit status of the program.
enum Status_T { Status_Fertig = 0, Status_Misslungen = 1, Status_Falsch = 2, Status_Datei = 3 };

// What all commands share: the options in front, the terminal, and the outcome.
struct Kommandozeile {
    CLI::App    App{"Assembler, device programmer and file tools for MCS-51 microcontrollers and "
                    "memory ICs.",
                 "varnholt-cli"};
    Konsole_T   Konsole{};
    std::string Sprach_Wahl = "E";
    std::string Home{};
    int         Status = Status_Fertig;

    // A command: its name, its line in the help, and what it does; the result is the status.
    CLI::App* Kommando(const std::string& Name, const std::string& Text, std::function<int()> Tut);
};

void Assemble_Anmelden(Kommandozeile& Zeile);    // assemble
void Disassemble_Anmelden(Kommandozeile& Zeile); // disassemble
void Dateien_Anmelden(Kommandozeile& Zeile);     // convert, compare
void Geraete_Anmelden(Kommandozeile& Zeile);     // devices
void Brenner_Anmelden(Kommandozeile& Zeile);     // read, program, erase, check, lock, clock, test
void Simulate_Anmelden(Kommandozeile& Zeile);    // simulate

// The man page of the command line as it was announced (troff).
std::string Handbuch_Seite(const CLI::App& App);

// The status that the outcome of the last load or save asks for.
int Status_Der_Datei();
// Prints an error of the command line itself; the result is Status_Falsch.
int Falsche_Zeile(const Text_Paar& Text);

// The trace of an --trace option can't be written: the error, and Status_Datei.
int Spur_Fehlt();

// Reads the device database; the result is a Status_T value, the error is printed.
int Geraete_Lesen();
// There is no such device: the error, and Status_Falsch.
int Geraet_Unbekannt(const std::string& Name);
// Reads the database and selects a device by name; Status_Falsch when there is no such device or
// the board can't serve it. An empty name selects none and reads nothing.
int Geraet_Waehlen(const std::string& Name);

} // namespace varnholt
