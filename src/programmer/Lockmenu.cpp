// The form `Lockmenu` as a model: the protection mode of a microcontroller is chosen and written.
#include "programmer/Lockmenu.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"

#include <algorithm>
#include <initializer_list>

namespace varnholt {
namespace {

bool Name_Ist(std::initializer_list<std::string_view> Namen)
{
    return std::find(Namen.begin(), Namen.end(), Gewaehltes_Geraet().Name) != Namen.end();
}

bool Ist_20_Pin() { return Name_Ist({"89C2051", "89C1051", "89C4051"}); }
bool Zeigt_Sperrstufe() { return Name_Ist({"89S53", "89S8252", "89C55WD"}); }

bool Baustein_Fehlt()
{
    if (IC_Nummer >= 0)
        return false;
    Melden({"Bitte wählen Sie zuerst ein IC im Menü 'IC' -> 'Typ Wählen' aus.",
            "Please choose first a IC in the menu 'IC' -> 'Choose type'."});
    return true;
}

void Beschriften()
{
    Lockmenu.Option = {
        In_Sprache(
            {"Modus 1: Keine Protections Bits gesetzt.", "Mode 1: No program lock features"}),
        In_Sprache({"Modus 2: Flash Speicher Programmierschutz",
                    "Mode 2: Programming of the flash memory is disabled"}),
        In_Sprache({"Modus 3: Flash Speicher Lese und Programmierschutz",
                    "Mode 3: Same as above, but verify is also disabled"}),
        In_Sprache({"Modus 4: Externe Zugriffe abgeschaltet, Flash Speicher Lese und "
                    "Programmiersschutz (nicht bei 89C1051/2051/4051)",
                    "Mode 4: Same as above, but external execution is also disabled (not at "
                    "AT89C1051/2051/4051)"})};
    Lockmenu.Label1 =
        In_Sprache({"Bitte beachten Sie, das Sie den Schutzmodus nachher nur noch erhöhen oder nur "
                    "durch ein Löschen des kompletten Flash Speichers zurücksetzen können.",
                    "Please note: After setting a protection mode 2-4, you can also reset it with "
                    "a complete clear of the flash memory."});
    Lockmenu.Command1 = "OK";
    Lockmenu.Command2 = In_Sprache({"Abbrechen", "Abort"});
}

// The routine of the 20-pin parts goes by their names, the others by their board.
void Stufe_Schreiben(int Stufe)
{
    const int Board = Gewaehltes_Geraet().Programmer;
    if (Ist_20_Pin() || (Board != Board_Nr_Tessel2 && Board != Board_Nr_Eprommer))
        Tessel1_Sperren(Stufe);
    else if (Board == Board_Nr_Tessel2)
        Tessel2_Sperren(Stufe);
}

void Schliessen()
{
    Lockmenu.Offen = false;
    Plattform.Fenster->Formular_Entladen(Formular::F_Lockmenu);
}

} // namespace

bool Schutz_Modus_4_Moeglich() { return !Ist_20_Pin(); }

void Lockmenu_Oeffnen()
{
    Lockmenu = {};
    if (Baustein_Fehlt())
        return;
    Beschriften();
    Lockmenu.Option4_Aktiv = Schutz_Modus_4_Moeglich();
    Antwort                = Antwort_Ok;
    if (Zeigt_Sperrstufe())
        Lockmenu.Schutz_Modus = Tessel2_Sperrstufe_Lesen() + 1;
    if (Antwort == Antwort_Abbrechen)
        return;
    Lockmenu.Offen = true;
    Plattform.Fenster->Formular_Zeigen(Formular::F_Lockmenu);
}

void Lockmenu_Option_Click(int Nummer)
{
    if (Nummer < 1 || Nummer > Schutz_Modi || (Nummer == 4 && !Lockmenu.Option4_Aktiv))
        return;
    Lockmenu.Schutz_Modus = Nummer;
}

void Lockmenu_Command1_Click()
{
    for (int Stufe = 1; Stufe < Lockmenu.Schutz_Modus; ++Stufe)
        Stufe_Schreiben(Stufe);
    Melden({"Protection Mode Bit(s) gesetzt!", "Protection mode bit(s) programmed!"});
    Schliessen();
}

void Lockmenu_Command2_Click() { Schliessen(); }

void MNU_IC_LockBits_Click()
{
    if (Porttreiber_Bereit())
        Lockmenu_Oeffnen();
}

} // namespace varnholt
