// The port of a device command.
#include "cli/Port_Wahl.h"

#include "cli/Kommandos.h"
#include "core/messages.h"
#include "core/settings.h"
#include "language/HexDez.h"
#include "programmer/Aufzeichnung.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Geraete.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Port_direkt.h"
#include "programmer/Port_ppdev.h"
#include "programmer/Simulierte_Boards.h"
#include "programmer/Special.h"

#include <iostream>

namespace varnholt {
Port_Wahl::Port_Wahl()  = default;
Port_Wahl::~Port_Wahl() = default;

int Port_Wahl::Simuliert(const std::string& Datei)
{
    Board = Simuliertes_Board_Fuer(IC_Nummer);
    if (!Board)
        return Falsche_Zeile({"Das simulierte Board dieses IC ist noch nicht verfügbar",
                              "the simulated board of this device is not available yet"});
    Plattform.Port = Board.get();
    if (Datei.empty() || IC_Nummer < 0)
        return Status_Fertig;
    Sockel_Datei           = Datei;
    const Text_Paar Fehler = Sockel_Laden(*Board, Sockel_Datei);
    if (Fehler.E.empty())
        return Status_Fertig;
    Sockel_Datei.clear(); // what could not be read must not be written over
    Auf_Fehlerausgabe(In_Sprache(Fehler));
    return Status_Datei;
}

int Port_Wahl::Direkt(const std::string& Adresse)
{
    std::string_view Ziffern = Adresse;
    if (Ziffern.starts_with("0x") || Ziffern.starts_with("0X"))
        Ziffern.remove_prefix(2);
    const std::int32_t Wert = Ziffern.empty() ? -1 : Hex_zu_Wert(Ziffern);
    if (Wert <= 0 || Wert > Port_Basis_Hoechste)
        return Falsche_Zeile({"io: braucht die Basisadresse eines Ports, wie io:378",
                              "io: wants the base address of a port, as io:378"});
    Port_Basis     = Wert;
    Echter         = std::make_unique<Port_direkt>();
    Plattform.Port = Echter.get();
    return Status_Fertig;
}

int Port_Wahl::Art_Waehlen(const std::string& Port)
{
    if (Port == "sim")
        return Simuliert("");
    if (Port.starts_with("sim:") && Port.size() > 4)
        return Simuliert(Port.substr(4));
    if (Port.starts_with("io:"))
        return Direkt(Port.substr(3));
    if (Port.starts_with("ppdev:") && Port.size() > 6) {
        Echter         = std::make_unique<Port_ppdev>(Port.substr(6));
        Plattform.Port = Echter.get();
        return Status_Fertig;
    }
    const std::string Arten = " (sim, sim:FILE, ppdev:/dev/parport0, io:378)";
    return Falsche_Zeile(
        {"Es gibt keinen Port " + Port + Arten, "there is no port " + Port + Arten});
}

int Port_Wahl::Oeffnen(const std::string& Port, const std::string& Spur_Datei)
{
    if (const int Status = Art_Waehlen(Port); Status != Status_Fertig)
        return Status;
    if (!Spur_Datei.empty()) {
        if (Spur_Datei != "-")
            Spur.open(Spur_Datei, std::ios::binary);
        if (!Spur)
            return Spur_Fehlt();
        Strom          = Spur_Datei == "-" ? &std::cout : &Spur;
        Schreiber      = std::make_unique<Aufzeichnung>(*Plattform.Port, *Strom);
        Plattform.Port = Schreiber.get();
    }
    Unterbrechung_Annehmen();
    Porttreiber_Laden();
    return Porttreiber_OK ? Status_Fertig : Status_Misslungen;
}

int Port_Wahl::Schliessen(int Status)
{
    if (Unterbrochen_Worden())
        Auf_Fehlerausgabe(In_Sprache({"Abgebrochen.", "Cancelled."}));
    if (Schreiber && !(Schreiber->Abschliessen() && Strom->flush()))
        Status = Spur_Fehlt();
    if (Board && !Sockel_Datei.empty()) {
        const Text_Paar Fehler = Sockel_Speichern(*Board, Sockel_Datei);
        if (!Fehler.E.empty()) {
            Auf_Fehlerausgabe(In_Sprache(Fehler));
            Status = Status_Datei;
        }
    }
    return Status;
}

} // namespace varnholt
