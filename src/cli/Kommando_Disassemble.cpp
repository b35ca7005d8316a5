// varnholt-cli disassemble.
#include "cli/Kommandos.h"
#include "cli/Quelle.h"
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "files/Dateimeldungen.h"
#include "files/Dateinamen.h"

#include <iostream>
#include <memory>
#include <string>

namespace varnholt {
namespace {

struct Disassemble_Optionen {
    std::string Bild{};
    std::string Ausgabe = "-";
    std::string Geraet{};
    std::string Reihe = "destination";
};

// A source is not saved over an image: Status_Falsch, with the error, for a name with the extension
// of one.
int Quellname_Pruefen(const std::string& Name)
{
    if (!Name_Zu_Erfragen(Name, Modus_MC))
        return Status_Fertig;
    return Falsche_Zeile({Name + " ist der Name eines Abbilds und nicht der eines Quelltextes",
                          Name + " is the name of an image, not of a source"});
}

int Text_Ausgeben(const std::string& Name)
{
    const std::string Text = Plattform.Edit->Text();
    if (Name == "-")
        return std::cout << Text << std::flush ? Status_Fertig : Status_Datei;
    Datei_Fehler = Dateifehler::Keiner;
    Datei_Sichern(Name, Text);
    return Status_Der_Datei();
}

int Disassemble(const Disassemble_Optionen& o)
{
    O_MOV_ZQ = o.Reihe == "destination";
    if (const int Status = Quellname_Pruefen(o.Ausgabe); Status != Status_Fertig)
        return Status;
    if (const int Status = Bild_Laden_Von(o.Bild); Status != Status_Fertig)
        return Status;
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    return Disassemblieren() ? Text_Ausgeben(o.Ausgabe) : int{Status_Misslungen};
}

} // namespace

void Disassemble_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Disassemble_Optionen>();
    CLI::App* k = Zeile.Kommando("disassemble",
                                 "Turn an image into source text with CR LF line ends",
                                 [o] { return Disassemble(*o); });
    k->add_option("IMAGE", o->Bild, "Image file; its extension tells the format")
        ->required()
        ->type_name("");
    k->add_option("-o", o->Ausgabe, "Write the text to that file (default: standard output)")
        ->type_name("FILE");
    k->add_option("--device", o->Geraet, "Disassemble no more than this device holds")
        ->type_name("NAME");
    k->add_option(
         "--mov-order", o->Reihe, "What stands first in MOV direct,direct (default: destination)")
        ->check(CLI::IsMember({"destination", "source"}));
}

} // namespace varnholt
