// varnholt-cli read, program, erase, check, lock, clock and test: the commands that touch a device.
#include "cli/Argumente.h"
#include "cli/Kommandos.h"
#include "cli/Port_Wahl.h"
#include "cli/Quelle.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "programmer/Baustein.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Hardware_Test1.h"
#include "programmer/Lesen.h"
#include "programmer/Lockmenu.h"
#include "programmer/Specifications.h"
#include "programmer/TimeKeeper.h"

#include <fmt/format.h>

#include <functional>
#include <iostream>
#include <memory>
#include <utility>

namespace varnholt {
namespace {

// What all device commands take.
struct Geraete_Optionen {
    std::string Datei{};
    std::string Geraet{};
    std::string Port{};
    std::string Spur{};
    bool        Ohne_Board_Test = false;
    bool        Ohne_IC_Test    = false;
};

struct Program_Optionen : Geraete_Optionen {
    std::string Editor_Von{}, Editor_Bis{}, IC_Von{};
    std::string Split                = "none";
    bool        Null_Darunter        = false;
    bool        Loeschen             = false;
    bool        Mit_FF               = false;
    bool        Ohne_Pruefung_Dabei  = false;
    bool        Ohne_Pruefung_Danach = false;
    bool        Ohne_Lesen           = false;
};

struct Check_Optionen : Geraete_Optionen {
    std::string Split        = "none";
    bool        Abweichungen = false;
};

struct Lock_Optionen : Geraete_Optionen {
    int Schutz_Modus = 1;
};

int Nicht_Bedient(const std::string& Geraet)
{
    return Falsche_Zeile({"Das ist für das IC " + Geraet + " noch nicht verfügbar",
                          "this is not available yet for the device " + Geraet});
}

// Opens the port, does the job, closes the port.
int Am_Port(const Geraete_Optionen& o, const std::function<int()>& Tun)
{
    C_Brenner = !o.Ohne_Board_Test;
    C_IC      = !o.Ohne_IC_Test;
    Port_Wahl Port;
    if (const int Status = Port.Oeffnen(o.Port, o.Spur); Status != Status_Fertig)
        return Status;
    return Port.Schliessen(Tun());
}

// Loads the file and selects the device; a source is assembled for it then, so that its size is
// checked. A program that doesn't fit drops the device again.
int Datei_Und_Geraet(const Geraete_Optionen& o)
{
    const bool Quelle = Hat_Quell_Endung(o.Datei);
    if (const int Status = Quelle ? Quelle_Laden(o.Datei) : Bild_Laden_Von(o.Datei);
        Status != Status_Fertig)
        return Status;
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    if (Quelle && !Quelle_Assemblieren(o.Datei, false))
        return Status_Misslungen;
    return Baustein_Gewaehlt() ? Status_Fertig : Status_Misslungen;
}

int Read(const Geraete_Optionen& o)
{
    if (const int Status = Bildname_Pruefen(o.Datei); Status != Status_Fertig)
        return Status;
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    if (!Baustein_Gewaehlt())
        return Status_Misslungen;
    if (!Lesen_Bedient())
        return Nicht_Bedient(o.Geraet);
    return Am_Port(o, [&o] {
        Modus = Modus_Hex;
        MNU_IC_Lesen_Click();
        return Antwort == Antwort_Abbrechen ? int{Status_Misslungen}
                                            : Bild_Speichern_Unter(o.Datei);
    });
}

void Vergleich_Ausgeben()
{
    std::cout << CheckIC.Zustand_IC << '\n';
    if (!CheckIC.Ergebnis.empty())
        std::cout << CheckIC.Ergebnis << '\n';
}

// Puts a number into a field of the dialog; an empty text leaves the field.
void Feld_Setzen(const std::string& Text, void (*Feld_Change)(std::string_view))
{
    if (const auto Zahl = Zahl_Von(Text))
        Feld_Change(std::to_string(*Zahl));
}

Splitting Splitting_Von(const std::string& Text)
{
    if (Text == "even")
        return Splitting::Gerade;
    return Text == "odd" ? Splitting::Ungerade : Splitting::Kein;
}

void Felder_Ausfuellen(const Program_Optionen& o)
{
    Splitting_Waehlen(Splitting_Von(o.Split));
    Brennmenue.DAT00   = o.Null_Darunter;
    Brennmenue.Löschen = o.Loeschen;
    // The device's field first: a change of it alone doesn't look at the editor's range again.
    Feld_Setzen(o.IC_Von, BR_EBA_D_Change);
    Feld_Setzen(o.Editor_Von, ED_EBA_D_Change);
    Feld_Setzen(o.Editor_Bis, ED_LBA_D_Change);
}

// Why the button `Brennen` is off.
int Bereich_Ablehnen(bool War_Leer)
{
    if (War_Leer) {
        Auf_Fehlerausgabe(In_Sprache({"Das Bild ist leer, es gibt nichts zu brennen.",
                                      "The image is empty, there is nothing to program."}));
        return Status_Misslungen;
    }
    const auto& b = Brennmenue;
    return Falsche_Zeile(
        {fmt::format("Der Bereich passt nicht: Editor {} bis {}, IC ab {}, IC bis {}",
                     b.ED_EBA_D,
                     b.ED_LBA_D,
                     b.BR_EBA_D,
                     b.IC_GS_D),
         fmt::format("the range doesn't fit: editor {} to {}, IC from {}, IC up to {}",
                     b.ED_EBA_D,
                     b.ED_LBA_D,
                     b.BR_EBA_D,
                     b.IC_GS_D)});
}

int Ergebnis_Nach_Brennen()
{
    if (Brenn_Ergebnis != Brenn_Ausgang::Fertig)
        return Status_Misslungen;
    if (!C_IC_nach_B)
        return Status_Fertig;
    if (!CheckIC.Offen)
        return Status_Misslungen;
    Vergleich_Ausgeben();
    return CheckIC.Gleich ? Status_Fertig : Status_Misslungen;
}

int Brennen(const Program_Optionen& o)
{
    Antwort = Antwort_Ok;
    MNU_IC_Brennen_Click();
    if (!Brennmenue.Offen || Antwort == Antwort_Abbrechen)
        return Status_Misslungen;
    const bool War_Leer =
        !Brennmenue.Brennen_Aktiv; // nothing but an empty image disables it at first
    Felder_Ausfuellen(o);
    if (!Brennmenue.Brennen_Aktiv)
        return Bereich_Ablehnen(War_Leer);
    Brennen_Click();
    return Ergebnis_Nach_Brennen();
}

// What can be said without touching the device.
int Vorher_Pruefen(const Program_Optionen& o)
{
    for (const std::string& Zahl : {o.Editor_Von, o.Editor_Bis, o.IC_Von})
        if (!Zahl.empty() && !Zahl_Von(Zahl))
            return Falsche_Zeile({Zahl + " ist keine Adresse", Zahl + " is no address"});
    if (!Brennen_Bedient())
        return Nicht_Bedient(o.Geraet);
    return Status_Fertig;
}

int Program(const Program_Optionen& o)
{
    C_IC_vor_B  = !o.Ohne_Lesen;
    C_IC_bei_B  = !o.Ohne_Pruefung_Dabei;
    C_IC_nach_B = !o.Ohne_Pruefung_Danach;
    No_FF       = !o.Mit_FF;
    if (const int Status = Datei_Und_Geraet(o); Status != Status_Fertig)
        return Status;
    if (const int Status = Vorher_Pruefen(o); Status != Status_Fertig)
        return Status;
    return Am_Port(o, [&o] { return Brennen(o); });
}

// A text of the logic, its lines ended as those of any output.
std::string Mit_Zeilenenden(std::string Text)
{
    std::erase(Text, '\r');
    while (Text.ends_with('\n'))
        Text.pop_back();
    return Text + '\n';
}

int Vergleichen_Mit_IC(const Check_Optionen& o)
{
    if (Programm_Bereit())
        CheckIC_Start(o.Split == "odd", o.Split == "even");
    if (!CheckIC.Offen)
        return Status_Misslungen;
    Vergleich_Ausgeben();
    if (o.Abweichungen && CheckIC.Button_Dat_Aktiv && !CheckIC.Gleich) {
        Button_Dat_Click();
        std::cout << Mit_Zeilenenden(CheckIC.Text);
    }
    return CheckIC.Gleich ? Status_Fertig : Status_Misslungen;
}

int Check(const Check_Optionen& o)
{
    if (const int Status = Datei_Und_Geraet(o); Status != Status_Fertig)
        return Status;
    if (!Lesen_Bedient())
        return Nicht_Bedient(o.Geraet);
    return Am_Port(o, [&o] { return Vergleichen_Mit_IC(o); });
}

// Whether the erase command serves the device at all.
int Loeschbar_Pruefen(const Geraete_Optionen& o)
{
    if (!Baustein_Gewaehlt())
        return Status_Misslungen;
    if (Loeschen_Moeglich(Gewaehltes_Geraet()))
        return Status_Fertig;
    return Falsche_Zeile({"Das IC " + o.Geraet + " kann elektrisch nicht gelöscht werden",
                          "the device " + o.Geraet + " can't be erased electrically"});
}

// A device that needs no erase is a notice, not a failure.
int Loeschen_Ausfuehren()
{
    MNU_IC_Löschen_Click();
    if (Gewaehltes_Geraet().E_Typ == "29C")
        return Status_Fertig;
    if (!CheckIC.Offen)
        return Status_Misslungen;
    std::cout << CheckIC.Zustand_IC << '\n';
    return CheckIC.Leer ? Status_Fertig : Status_Misslungen;
}

int Erase(const Geraete_Optionen& o)
{
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    if (const int Status = Loeschbar_Pruefen(o); Status != Status_Fertig)
        return Status;
    return Am_Port(o, Loeschen_Ausfuehren);
}

// Why the device has no such mode, in front of any access to it.
int Modus_Pruefen(const Lock_Optionen& o)
{
    if (!Baustein_Gewaehlt())
        return Status_Misslungen;
    if (!Sperren_Moeglich(Gewaehltes_Geraet()))
        return Falsche_Zeile({"Das IC " + o.Geraet + " hat keine Lockbits",
                              "the device " + o.Geraet + " has no lock bits"});
    if (o.Schutz_Modus == 4 && !Schutz_Modus_4_Moeglich())
        return Falsche_Zeile({"Das IC " + o.Geraet + " hat keinen Modus 4",
                              "the device " + o.Geraet + " has no mode 4"});
    return Status_Fertig;
}

int Sperren(int Schutz_Modus)
{
    Antwort = Antwort_Ok;
    MNU_IC_LockBits_Click();
    if (!Lockmenu.Offen)
        return Status_Misslungen;
    Lockmenu_Option_Click(Schutz_Modus);
    Lockmenu_Command1_Click();
    return Status_Fertig;
}

int Lock(const Lock_Optionen& o)
{
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    if (const int Status = Modus_Pruefen(o); Status != Status_Fertig)
        return Status;
    return Am_Port(o, [&o] { return Sperren(o.Schutz_Modus); });
}

int Uhrzeit_Ausgeben()
{
    const Text_Paar Zeit = Uhrzeit_Text(TimeKeeper_Lesen());
    if (Antwort == Antwort_Abbrechen)
        return Status_Misslungen;
    std::cout << Mit_Zeilenenden(In_Sprache(Zeit));
    return Status_Fertig;
}

int Clock(const Geraete_Optionen& o)
{
    if (const int Status = Geraet_Waehlen(o.Geraet); Status != Status_Fertig)
        return Status;
    if (!Baustein_Gewaehlt())
        return Status_Misslungen;
    if (!Gewaehltes_Geraet().Name.starts_with("48T"))
        return Falsche_Zeile(
            {"Das IC " + o.Geraet + " hat keine Uhr", "the device " + o.Geraet + " has no clock"});
    return Am_Port(o, Uhrzeit_Ausgeben);
}

int Test(const Geraete_Optionen& o)
{
    return Am_Port(o, [] {
        const Test1_Ergebnis e = Test1_Durchfuehren();
        std::cout << In_Sprache(Test1_Titel(e)) << '\n';
        Auf_Fehlerausgabe(In_Sprache(Test1_Text(e)));
        std::cout << e.Werte;
        if (e.Fehler == 0)
            return int{Status_Fertig};
        return int{Test1_Datei_Schreiben(e) ? Status_Misslungen : Status_Datei};
    });
}

void Port_Anmelden(CLI::App* k, Geraete_Optionen& o)
{
    k->add_option("--port", o.Port, "sim, sim:FILE, ppdev:/dev/parport0 or io:378")
        ->required()
        ->type_name("PORT");
    k->add_flag("--no-check-board", o.Ohne_Board_Test, "Don't check the programmer board first");
    k->add_flag("--no-check-ic", o.Ohne_IC_Test, "Don't check the microcontroller first");
    k->add_option("--trace", o.Spur, "Write every operation of the port to a file")
        ->type_name("FILE");
}

void Geraet_Anmelden(CLI::App* k, Geraete_Optionen& o)
{
    k->add_option("--device", o.Geraet, "The device's name, in any case")
        ->required()
        ->type_name("NAME");
    Port_Anmelden(k, o);
}

void Split_Anmelden(CLI::App* k, std::string& Split)
{
    k->add_option("--split", Split, "Only the even or the odd bytes of the image (default: none)")
        ->check(CLI::IsMember({"none", "even", "odd"}));
}

void Datei_Anmelden(CLI::App* k, Geraete_Optionen& o)
{
    k->add_option("FILE", o.Datei, "A source, which is assembled, or an image")
        ->required()
        ->type_name("");
}

void Read_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Geraete_Optionen>();
    CLI::App* k = Zeile.Kommando("read", "Read a device into a file", [o] { return Read(*o); });
    k->add_option("-o", o->Datei, "The file to write; its extension chooses the format")
        ->required()
        ->type_name("FILE");
    Geraet_Anmelden(k, *o);
}

void Program_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Program_Optionen>();
    CLI::App* k = Zeile.Kommando("program",
                                 "Program a device from a source or an image, and verify",
                                 [o] { return Program(*o); });
    Datei_Anmelden(k, *o);
    Geraet_Anmelden(k, *o);
    k->add_option("--editor-from", o->Editor_Von, "First address of the image (default: 0)")
        ->type_name("A");
    k->add_option(
         "--editor-to", o->Editor_Bis, "Last address of the image (default: last used one)")
        ->type_name("A");
    k->add_option("--ic-from", o->IC_Von, "First address in the device (default: 0)")
        ->type_name("A");
    Split_Anmelden(k, o->Split);
    k->add_flag(
        "--zero-below", o->Null_Darunter, "Program 00 below the first address in the device");
    k->add_flag("--erase", o->Loeschen, "Erase the device first (flash and EEPROM)");
    k->add_flag("--write-ff", o->Mit_FF, "Program FF bytes too, up to the device's end");
    k->add_flag("--no-verify-during", o->Ohne_Pruefung_Dabei, "Don't check each byte");
    k->add_flag("--no-verify-after", o->Ohne_Pruefung_Danach, "Don't compare at the end");
    k->add_flag("--no-read-before", o->Ohne_Lesen, "Don't read the device before programming");
}

void Erase_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Geraete_Optionen>();
    CLI::App* k =
        Zeile.Kommando("erase", "Erase a device and show its state", [o] { return Erase(*o); });
    Geraet_Anmelden(k, *o);
}

void Check_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Check_Optionen>();
    CLI::App* k = Zeile.Kommando(
        "check", "Compare a device with a source or an image", [o] { return Check(*o); });
    Datei_Anmelden(k, *o);
    Geraet_Anmelden(k, *o);
    Split_Anmelden(k, o->Split);
    k->add_flag("--differences", o->Abweichungen, "Print the table of differences");
}

void Lock_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Lock_Optionen>();
    CLI::App* k = Zeile.Kommando(
        "lock", "Set the protection mode of a microcontroller", [o] { return Lock(*o); });
    Geraet_Anmelden(k, *o);
    k->add_option("--mode",
                  o->Schutz_Modus,
                  "1 none (writes nothing), 2 no programming, 3 nor verify, 4 nor external code; "
                  "only an erase goes back")
        ->required()
        ->check(CLI::Range(1, Schutz_Modi))
        ->type_name("MODE");
}

void Clock_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Geraete_Optionen>();
    CLI::App* k =
        Zeile.Kommando("clock", "Read date and time of a 48T device", [o] { return Clock(*o); });
    Geraet_Anmelden(k, *o);
}

void Test_Anmelden(Kommandozeile& Zeile)
{
    auto      o = std::make_shared<Geraete_Optionen>();
    CLI::App* k = Zeile.Kommando("test",
                                 "Test the Eprommer board: all bytes through its data path",
                                 [o] { return Test(*o); });
    Port_Anmelden(k, *o);
}

} // namespace

void Brenner_Anmelden(Kommandozeile& Zeile)
{
    Read_Anmelden(Zeile);
    Program_Anmelden(Zeile);
    Erase_Anmelden(Zeile);
    Check_Anmelden(Zeile);
    Lock_Anmelden(Zeile);
    Clock_Anmelden(Zeile);
    Test_Anmelden(Zeile);
}

} // namespace varnholt
