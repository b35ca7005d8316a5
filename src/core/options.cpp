// The dialog `Optionen`: captions, form load, the handlers of its controls, and applying the form.
#include "core/options.h"

#include "core/commands.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "language/HexDez.h"
#include "language/Val.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Special.h"

#include <fmt/format.h>

#include <utility>

namespace varnholt {
namespace {

constexpr int Undo_Schritte_Hoechstens = Undo_Hoechstens + 1;
constexpr int Register_Anzahl          = 8; // ports that the driver enables

// The window of each font, by index of Schriften.
constexpr std::array<int, Schrift_Anzahl> Schrift_Fenster{Fenster_Edit, Fenster_Spr, Fenster_Notiz};

// Some captions are known by their misspellings; they stay.
// clang-format off
constexpr auto Beschriftungen = std::to_array<Beschriftung_T>({
    {"Optionen", "Optionen", "Options"},
    {"SSTab_1", "Oberfläche", "Surface"},
    {"SSTab_2", "Programmiergerät", "Programmer"},
    {"B_OK", "OK", "OK"},
    {"B_Üb", "Übernehmen", "Accept"},
    {"B_Ab", "Abbrechen", "Cancel"},

    {"T_Portadr",
     "Parallelport Adresse (Standart LPT1: 378h / LPT2: 278h)",
     "Parallelport address (standard LPT1: 378h / LPT2: 278h)"},
    {"Schrift_1",
     "Schrifteinstellung MC-Editor Fenster:",
     "Font settings MC-Editor window:"},
    {"Schrift_2",
     "Schrifteinstellung Sprungmarken Fenster:",
     "Font settings Jumpmarks:"},
    {"Schrift_3",
     "Schrifteinstellung Notizen Fenster:",
     "Font settings Notes window:"},
    {"C_Brenner",
     "Programmiergerät vor dem Zugriff auf Funktion überprüfen",
     "Check programmer before access"},
    {"C_IC",
     "Eingesetzten MC vor dem Zugriff überprüfen (Nur beim Tessel programmer)",
     "Check MC before access (only Tessel programmer)"},
    {"C_IC_vor_B",
     "Lese die Daten des IC vor dem Anzeigen des Brenndialogs",
     "Read IC data before the programming dialog opens"},
    {"C_IC_bei_B",
     "Überprüfe Daten des IC's während des Brennens",
     "Check the data on the IC during programming"},
    {"C_IC_nach_B",
     "Überprüfe Daten des IC's nach dem Brennen",
     "Check the data on the IC after programming"},
    {"No_FF",
     "Beim Brennvorgang keine FF's brennen",
     "Program no 'FF' on IC"},
    {"Farbe_Text",
     "Hintergrundfarbe MC-Editor  Fenster und Zusatzfenster",
     "Set background color for mc-editor and additionally windows"},
    {"Farbe", "Ändern", "Change"},
    {"Lade_Letzte",
     "Lade beim Programmstart die zuletzt bearbeitete Datei automatisch ein",
     "Load at program-start automatically the last used file into the editor."},
    {"T_Undo_Max",
     "Schritte bei der 'Rückgängig' / 'Wiederholen' Funktion",
     "possibly steps at undo/redo function"},
    {"C_keine_TAB_SM",
     "Zeige keine Sprungmarken mit vorgestellten Tabs im SM-Fenster",
     "If there is a tab sign before a jump mark, don't display the jumpmark in the jumpmarks window"},
    {"C_keine_US_SM",
     "Zeige keine Sprungmarken mit vorgestellten Unterstrich '_' im SM-Fenster",
     "If there is a underline sign '_' before a jump mark, don't display the jumpmark in the jumpmarks window"},
    {"C_Erstelle_Listfile",
     "Erstelle automatisch Listfile beim Assemblieren (dateiname.l51)",
     "When assembling routine finished, create and save a list file under filename.l51"},
    {"C_Auto_Binfile",
     "Erstelle automatisch Binärfile beim Assemblieren (dateiname.bin)",
     "When assembling routine finished, save automatically a binary file under filename.bin"},
    {"C_Auto_Hexfile",
     "Erstelle automatisch Hexfile beim Assemblieren (dateiname.hex)",
     "When assembling routine finished, save automatically a hex file under filename.hex"},
    {"C_Autosave_Ass",
     "AutoSave: Vor dem Assemblieren eine Kopie des Programmes speichern",
     "AutoSave: Bevor the assembler starts, save a copy of the program"},
    {"C_Autosave_timed",
     "AutoSave: Nach 6 Minuten Arbeit eine Kopie des Programmes speichern",
     "AutoSave: Save every 6 minutes a copy of the program"},
    {"O_Automatik_Bef",
     "Erkannte Befehle und Bezeichnungen im MC-Editor:",
     "Change text of identified instructions in the mc-editor:"},
    {"O_Automatik_Bef_1", "Komplett grossschreiben 'MOV'", "All signs capitalized 'MOV'"},
    {"O_Automatik_Bef_2",
     "Erster Buchstabe gross, Rest klein 'Mov'",
     "First sign capitalized, rest in lower case 'Mov'"},
    {"O_Automatik_Bef_3",
     "So lassen, wie sie eingetippt werden 'mov'",
     "Don't change the text 'mov'"},
    {"Zahlendeutung",
     "Deute Zahlenangaben ohne Kennung als:",
     "Interpret values without additional trailing as:"},
    {"Zahlendeutung_1", "Dezimalzahlen (standard)", "Decimal values (standard)"},
    {"Zahlendeutung_2", "Hexadezimalzahlen", "Hexadecimal values"},
    {"O_MOV_ZQ",
     "Sondereinstellung für den Befehl MOV direct, direct:",
     "Special sequencing for 'MOV direct, direct:'"},
    {"O_MOV_ZQ_1",
     "Erst Ziel, dann Quelle (MOV Ziel, Quelle) (standard)",
     " MOV destination, source (standard)"},
    {"O_MOV_ZQ_2",
     "Erst Quelle, dann Ziel (MOV Quelle, Ziel)",
     " MOV source, destination"},

    {"Port_Art_1", "Simuliertes Board (ohne Hardware)", "Simulated board (no hardware)"},
    {"Port_Art_2",
     "Parallelport über den Kernel (ppdev), Gerät:",
     "Parallel port through the kernel (ppdev), device:"},
    {"Port_Art_3",
     "Direkter Zugriff auf die Portregister (nur als root)",
     "Direct access to the port registers (root only)"},
    {"T_Geraet", "Gerätedatei des Parallelports", "Device file of the parallel port"},
    {"Gruppe_Port", "Parallelport", "Parallel port"},
    {"Gruppe_Zugriff", "Zugriff auf das IC", "Access to the IC"},
    {"Gruppe_Schrift", "Schrift und Farbe", "Fonts and colour"},
    {"Gruppe_Arbeit", "Start und Sicherung", "Start and safety"},
    {"Gruppe_Marken", "Sprungmarken", "Jumpmarks"},
    {"Gruppe_Ausgaben", "Ausgaben beim Assemblieren", "Files written on assembly"},
    {"Probe", "AaBb 0123", "AaBb 0123"},
});
// clang-format on

constexpr Beschriftung_T Keine_Beschriftung{};

std::string Adress_Text(std::int32_t Adresse)
{
    return fmt::format("{:X}h", static_cast<std::uint32_t>(Adresse));
}

// --- kind of port ---

void Port_Art_Zeigen()
{
    const bool Ppdev       = Port_Art.starts_with(Art_Ppdev);
    Optionen_Form.Port_Art = Ppdev                    ? Port_Wahl_T::Ppdev
                             : Port_Art == Art_Direkt ? Port_Wahl_T::Direkt
                                                      : Port_Wahl_T::Simuliert;
    Optionen_Form.T_Geraet = Ppdev ? Port_Art.substr(Art_Ppdev.size()) : Ppdev_Vorgabe;
}

std::string Gewaehlte_Port_Art()
{
    switch (Optionen_Form.Port_Art) {
    case Port_Wahl_T::Ppdev:
        return std::string(Art_Ppdev) + (Optionen_Form.T_Geraet.empty() ? std::string(Ppdev_Vorgabe)
                                                                        : Optionen_Form.T_Geraet);
    case Port_Wahl_T::Direkt:
        return std::string(Art_Direkt);
    case Port_Wahl_T::Simuliert:
        break;
    }
    return std::string(Art_Simuliert);
}

void Hinweisen(const Text_Paar& Text) { Plattform.Box->Hinweisen(In_Sprache(Text)); }

// Another kind of port is another driver, which starts anew.
void Port_Art_Uebernehmen()
{
    const std::string Bisher = std::exchange(Port_Art, Gewaehlte_Port_Art());
    if (Bisher == Port_Art || Bisher.empty())
        return;
    Porttreiber_OK = false;
    Port_Neu_Oeffnen();
}

// An address that can't be read goes to the driver as -1, and to the user as a notice.
void Port_Uebernehmen()
{
    Port_Basis = Hex_zu_Wert(Optionen_Form.T_Portadr);
    Port_Art_Uebernehmen();
    Treiber_Ergebnis = Plattform.Port->KS_enableIoRange(Port_Basis, Register_Anzahl);
    if (Port_Basis <= 0 || Port_Basis > Port_Basis_Hoechste)
        Hinweisen({"Ungültige Portadresse: " + Optionen_Form.T_Portadr,
                   "Invalid port address: " + Optionen_Form.T_Portadr});
}

// --- parts of applying ---

void Schriften_Uebernehmen()
{
    Schriften = Optionen_Form.Probe;
    Schriften_Anwenden();
}

void Haken_Uebernehmen()
{
    for (std::size_t i = 0; i < Haken_Tabelle.size(); ++i)
        *Haken_Tabelle[i].Wert = Optionen_Form.Haken[i];
}

void Auswahl_Uebernehmen()
{
    O_Automatik_Bef = Optionen_Form.O_Automatik_Bef;
    Zahlendeutung   = Optionen_Form.Zahlendeutung == 1;
    O_MOV_ZQ        = Optionen_Form.O_MOV_ZQ == 0;
}

int Undo_Schritte()
{
    return std::clamp(Val(Optionen_Form.T_Undo_Max), 0, Undo_Schritte_Hoechstens);
}

// The slots of a ring don't fit a ring of another size: it begins anew.
void Undo_Uebernehmen()
{
    const int Neu = Undo_Schritte() - 1;
    if (Neu == Undo_Max)
        return;
    Undo_Max = Neu;
    Undo_Ring_Neu();
}

} // namespace

const Beschriftung_T& Optionen_Beschriftung(std::string_view Name)
{
    for (const Beschriftung_T& b : Beschriftungen)
        if (b.Name == Name)
            return b;
    return Keine_Beschriftung;
}

std::string Optionen_Text(std::string_view Name)
{
    const Beschriftung_T& b = Optionen_Beschriftung(Name);
    return std::string(Sprache == "D" ? b.D : b.E);
}

void Optionen_Laden()
{
    Optionen_Form.T_Portadr  = Adress_Text(Port_Basis);
    Optionen_Form.T_Undo_Max = std::to_string(Undo_Max + 1);
    for (std::size_t i = 0; i < Haken_Tabelle.size(); ++i)
        Optionen_Form.Haken[i] = *Haken_Tabelle[i].Wert;
    Optionen_Form.O_Automatik_Bef = O_Automatik_Bef;
    Optionen_Form.Zahlendeutung   = Zahlendeutung ? 1 : 0;
    Optionen_Form.O_MOV_ZQ        = O_MOV_ZQ ? 0 : 1;
    Optionen_Form.Farbe           = Hintergrund_Farbe;
    Optionen_Form.Probe           = Schriften;
    Port_Art_Zeigen();
}

void T_Undo_Max_Change() { Optionen_Form.T_Undo_Max = std::to_string(Undo_Schritte()); }

void Schrift_Click(int Ziel)
{
    Schrift_T& Probe = Optionen_Form.Probe[static_cast<std::size_t>(Ziel)];
    if (const auto Neue = Plattform.Dialog->Schrift_Waehlen(Probe))
        Probe = *Neue;
}

void Farbe_Click()
{
    const auto Neue = Plattform.Dialog->Farbe_Waehlen(Optionen_Form.Farbe);
    if (!Neue)
        return;
    Optionen_Form.Farbe = *Neue;
    Plattform.Fenster->Hintergrund(*Neue);
}

void B_Üb_Click()
{
    Schriften_Uebernehmen();
    Fenster_Anordnen();
    Port_Uebernehmen();
    Haken_Uebernehmen();
    Auswahl_Uebernehmen();
    Undo_Uebernehmen();
    Hintergrund_Farbe = Optionen_Form.Farbe;
    Sprungmarken_Fuellen();
}

void B_OK_Click()
{
    B_Üb_Click();
    Plattform.Fenster->Formular_Entladen(Formular::Optionen);
}

void B_Ab_Click()
{
    Plattform.Fenster->Hintergrund(Hintergrund_Farbe);
    Plattform.Fenster->Formular_Entladen(Formular::Optionen);
}

void Schriften_Anwenden()
{
    for (std::size_t i = 0; i < Schriften.size(); ++i)
        Plattform.Fenster->Schrift_Setzen(Schrift_Fenster[i], Schriften[i]);
}

void MNU_Optionen_Click()
{
    Optionen_Laden();
    Plattform.Fenster->Formular_Zeigen(Formular::Optionen);
}

} // namespace varnholt
