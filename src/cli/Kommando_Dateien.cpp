// varnholt-cli convert and compare.
#include "cli/Argumente.h"
#include "cli/Kommandos.h"
#include "cli/Quelle.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "files/Laden.h"
#include "files/Speichern.h"

#include <fmt/format.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

namespace varnholt {
namespace {

struct Convert_Optionen {
    std::vector<std::string> Eingaben{};
    std::string              Ausgabe{};
    std::string              Geraet{};
    int                      Haelfte = 0;
};

bool Von_Standardeingabe(const Datei_Mit_Adresse& Eingabe) { return Eingabe.Datei == "-"; }

int Eingabe_Zweimal()
{
    return Falsche_Zeile({"Die Standardeingabe kann nur einmal gelesen werden",
                          "standard input can be read only once"});
}

int Einlesen(const Datei_Mit_Adresse& Eingabe, bool Erste)
{
    if (Erste && !Eingabe.Adresse)
        return Bild_Laden_Von(Eingabe.Datei);
    return Bild_Importieren_Von(Eingabe.Datei, Eingabe.Adresse.value_or(0));
}

int Alle_Einlesen(const std::vector<Datei_Mit_Adresse>& Eingaben)
{
    for (const Datei_Mit_Adresse& e : Eingaben)
        if (e.Adresse.value_or(0) > Hex_Groesse)
            return Falsche_Zeile({e.Datei + ": Ungültiger Wert", e.Datei + ": Invalid value"});
    for (const Datei_Mit_Adresse& e : Eingaben)
        if (const int Status = Einlesen(e, &e == &Eingaben.front()); Status != Status_Fertig)
            return Status;
    return Status_Fertig;
}

int Convert(const Convert_Optionen& o, Konsolen_Box& Box)
{
    Box.Gewaehlte_Haelfte = o.Haelfte;
    std::vector<Datei_Mit_Adresse> Eingaben;
    for (const std::string& e : o.Eingaben)
        Eingaben.push_back(Datei_Mit_Adresse_Von(e));
    if (std::count_if(Eingaben.begin(), Eingaben.end(), Von_Standardeingabe) > 1)
        return Eingabe_Zweimal();
    if (const int Status = Bildname_Pruefen(o.Ausgabe); Status != Status_Fertig)
        return Status;
    if (const int Status = Alle_Einlesen(Eingaben); Status != Status_Fertig)
        return Status;
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    return Bild_Speichern_Unter(o.Ausgabe);
}

int Compare(const std::vector<std::string>& Dateien)
{
    if (Dateien[0] == "-" && Dateien[1] == "-")
        return Eingabe_Zweimal();
    if (const int Status = Bild_Laden_Von(Dateien[0]); Status != Status_Fertig)
        return Status;
    const Strom_Datei Zweite(Dateien[1], Strom_Datei::Richtung::Eingabe);
    if (!Zweite.Bereit())
        return Status_Datei;
    Modus       = Modus_Hex;
    Dialog_Name = Zweite.Pfad();
    if (!Datei_Gefunden())
        return Status_Datei;
    const auto Unterschied = Hexdaten_Vergleichen();
    // A source can't be compared; the image then is the same as before, and that is the verdict.
    if (Datei_Fehler != Dateifehler::Keiner && Datei_Fehler != Dateifehler::Abgelehnt)
        return Status_Der_Datei();
    if (Unterschied)
        std::cout << fmt::format("{:04X}h\n", *Unterschied);
    return Unterschied ? Status_Misslungen : Status_Fertig;
}

void Convert_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Convert_Optionen>();
    CLI::App* k = Zeile.Kommando("convert",
                                 "Load an image, import further files into it, save it",
                                 [o, &Zeile] { return Convert(*o, Zeile.Konsole.Box); });
    k->add_option("IN",
                  o->Eingaben,
                  "Image files; each further one is imported at the address behind its name "
                  "(IN@ADDRESS), the first one too if it has one")
        ->required()
        ->type_name("");
    k->add_option("-o", o->Ausgabe, "The file to write; its extension chooses the format")
        ->required()
        ->type_name("OUT");
    k->add_option("--device", o->Geraet, "Select this device after loading")->type_name("NAME");
    k->add_option("--half",
                  o->Haelfte,
                  "Which half of a binary file of more than 524288 bytes is loaded: 1 or 2")
        ->check(CLI::IsMember({1, 2}));
}

void Compare_Anmelden(Kommandozeile& Zeile)
{
    auto      Dateien = std::make_shared<std::vector<std::string>>();
    CLI::App* k = Zeile.Kommando("compare", "Compare a file with the image of another", [Dateien] {
        return Compare(*Dateien);
    });
    k->add_option("FILE", *Dateien, "The two files")->required()->expected(2)->type_name("");
}

} // namespace

void Dateien_Anmelden(Kommandozeile& Zeile)
{
    Convert_Anmelden(Zeile);
    Compare_Anmelden(Zeile);
}

} // namespace varnholt
