// The programming dialog `Brennmenue` as a model: its fields, what a change of one does to the
// others, and its buttons.
#include "programmer/Brennmenue.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/HexDez.h"
#include "language/Val.h"
#include "programmer/ATMEL_Zugriff.h"
#include "programmer/Atmel_Zugriff_II.h"
#include "programmer/Baustein.h"
#include "programmer/Brennbereich.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/CheckIC.h"
#include "programmer/EEPROM_Schreiben.h"
#include "programmer/Eprom_zugriff.h"
#include "programmer/Feldwert.h"
#include "programmer/Flash_Schreiben.h"
#include "programmer/Lesen.h"
#include "programmer/Loeschen.h"
#include "programmer/Seiten_Schreiben.h"

#include <algorithm>
#include <initializer_list>

namespace varnholt {
namespace {

constexpr std::int32_t Uhr_Bytes = 8; // the clock registers at the end of a 48T device

auto& B = Brennmenue;

bool Beginnt_Mit(std::string_view Text, std::initializer_list<std::string_view> Anfaenge)
{
    return std::any_of(
        Anfaenge.begin(), Anfaenge.end(), [&](std::string_view a) { return Text.starts_with(a); });
}

void Paar_Zeigen(std::string& H, std::string& D, std::int64_t Wert)
{
    D = std::to_string(Wert);
    H = Feld_Hex(Wert);
}

void Paar_Text(std::string& H, std::string& D, const Text_Paar& Text) { H = D = In_Sprache(Text); }

const Text_Paar Leer_Text{"LEER", "EMPTY"};
const Text_Paar Fehler_Text{"FEHLER", "ERROR"};

// Last address below Bytes whose byte isn't FFh; -1 when there is none.
template <class Feld> std::int32_t Letzte_Belegte(const Feld& Daten, std::int32_t Bytes)
{
    std::int32_t a = std::min(Bytes, static_cast<std::int32_t>(Daten.size())) - 1;
    while (a >= 0 && Daten[static_cast<std::size_t>(a)] == 0xFF)
        --a;
    return a;
}

// Battery-backed and page-written devices are written to their end, a clock excepted.
std::int32_t Letzte_Editor_Adresse()
{
    const Geraet_T&    g     = Gewaehltes_Geraet();
    const std::int32_t Bytes = Nutzbare_Bytes(g);
    if (Beginnt_Mit(g.Name, {"48Z", "M28", "AT28", "29C"}))
        return Bytes - 1;
    return g.Name.starts_with("48T") ? Bytes - Uhr_Bytes - 1 : Letzte_Belegte(Hex_Daten, Bytes);
}

void DAT00_Text_Setzen()
{
    B.DAT00_Text = "Brenne alles vor der IC Adresse " + B.BR_EBA_D + "/" + B.BR_EBA_H + " auf 00.";
}

// A field that shows the word for an error or for an empty editor is no end of a range: whatever
// changes elsewhere, nothing can be programmed as long as it stands there.
bool Editor_Bereich_Gueltig()
{
    const auto Ist_Wort = [](const std::string& Feld) {
        return Feld == Leer_Text.D || Feld == Leer_Text.E || Feld == Fehler_Text.D ||
               Feld == Fehler_Text.E;
    };
    return !Ist_Wort(B.ED_EBA_D) && !Ist_Wort(B.ED_LBA_D) && !Ist_Wort(B.ED_IBA_D);
}

void IC_Felder_Rechnen()
{
    DAT00_Text_Setzen();
    const std::int64_t Letzte = std::int64_t{Val(B.BR_EBA_D)} + Val(B.ED_IBA_D) - 1;
    const bool         Passt  = Letzte <= Nutzbare_Bytes(Gewaehltes_Geraet()) - 1;
    B.Brennen_Aktiv           = Passt && Editor_Bereich_Gueltig();
    Paar_Zeigen(B.BR_LBA_H, B.BR_LBA_D, Letzte);
    if (Passt)
        return;
    B.BR_LBA_H = "ZU  ";
    B.BR_LBA_D = "HOCH  ";
}

void Editor_Felder_Rechnen()
{
    const std::int64_t Weite = std::int64_t{Val(B.ED_LBA_D)} - Val(B.ED_EBA_D);
    B.Brennen_Aktiv          = Weite >= 0;
    if (Weite < 0) {
        Paar_Text(B.ED_IBA_H, B.ED_IBA_D, Fehler_Text);
        return;
    }
    Paar_Zeigen(B.ED_IBA_H, B.ED_IBA_D, Weite + 1);
    IC_Felder_Rechnen();
}

void Leerer_Editor()
{
    B.BR_EBA_Aktiv = B.BR_LBA_Aktiv = B.Brennen_Aktiv = false;
    Paar_Text(B.ED_EBA_H, B.ED_EBA_D, Leer_Text);
    Paar_Text(B.ED_LBA_H, B.ED_LBA_D, Leer_Text);
    Paar_Zeigen(B.ED_IBA_H, B.ED_IBA_D, 0);
    DAT00_Text_Setzen();
}

void Editor_Bereich_Zeigen(std::int32_t Letzte)
{
    if (Letzte < 0) {
        Leerer_Editor();
        return;
    }
    Paar_Zeigen(B.ED_EBA_H, B.ED_EBA_D, 0);
    Paar_Zeigen(B.ED_LBA_H, B.ED_LBA_D, Letzte);
    Editor_Felder_Rechnen();
}

void Baustein_Zeigen()
{
    const std::string Name = IC_Menue_Name();
    B.Label_IC =
        In_Sprache({Name + ", Speicherbereich von 0 bis:", Name + ", memory area from 0 to:"});
    Paar_Zeigen(B.IC_GS_H, B.IC_GS_D, Nutzbare_Bytes(Gewaehltes_Geraet()) - 1);
}

// Reads the device and shows how far it is written. Last written address, -1 for an empty device;
// Sonst when the read was given up.
std::int32_t Baustein_Stand_Lesen(std::int32_t Sonst)
{
    B.IC_LBA_D = In_Sprache({"gelesen", "read..."});
    B.IC_LBA_H = In_Sprache({"wird", "read..."});
    Antwort    = Antwort_Ok;
    Baustein_Lesen();
    if (Antwort == Antwort_Abbrechen) {
        Paar_Text(B.IC_LBA_H, B.IC_LBA_D, {"?", "?"});
        return Sonst;
    }
    const std::int32_t Letzte = Letzte_Belegte(Hex_Puffer, Nutzbare_Bytes(Gewaehltes_Geraet()));
    if (Letzte < 0)
        Paar_Text(B.IC_LBA_H, B.IC_LBA_D, Leer_Text);
    else
        Paar_Zeigen(B.IC_LBA_H, B.IC_LBA_D, Letzte);
    return Letzte;
}

Text_Paar Hinweis_Überbrennen(std::string_view P_Typ)
{
    if (Beginnt_Mit(P_Typ, {"89", "27", "28F"}))
        return {"Bestehende Daten können bei diesem Bauteil NICHT ohne vorhergehendes Löschen "
                "übergebrannt werden.",
                "Already programmed addresses CAN'T be programmed without preceding erasing of "
                "this ic."};
    return {"Bestehende Daten können bei diesem Bauteil ohne vorhergehendes Löschen übergebrannt "
            "werden.",
            "Already programmed addresses CAN be programmed without preceding erasing of this ic."};
}

void Überbrennen_Zeigen()
{
    const Geraet_T& g   = Gewaehltes_Geraet();
    B.Überbrennen_Farbe = g.E_Typ == "UV" ? Farbe_Warnung : Farbe_System;
    const bool Leer     = B.IC_LBA_D == Leer_Text.D || B.IC_LBA_D == Leer_Text.E;
    B.Überbrennen       = Leer ? std::string{} : In_Sprache(Hinweis_Überbrennen(g.P_Typ));
}

std::string Gross_Hex(std::string_view Text)
{
    std::string Gross(Text);
    std::transform(Gross.begin(), Gross.end(), Gross.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
    });
    return Gross;
}

void H_Geaendert(std::string& H, std::string& D, std::string_view Text)
{
    H = Gross_Hex(Text);
    D = std::to_string(Hex_zu_Wert(H));
}

void D_Geaendert(std::string& H, std::string& D, std::string_view Text)
{
    D = Text;
    H = Feld_Hex(Val(D));
}

// The routine of the selected device; null when it has none.
auto Brenn_Routine() -> void (*)()
{
    switch (Brenn_Weg_Von(Gewaehltes_Geraet())) {
    case Brenn_Weg::Eprom:
        return Eprom_Brennen;
    case Brenn_Weg::EEPROM:
        return EEPROM_Schreiben;
    case Brenn_Weg::Flash:
        return Flash_Schreiben;
    case Brenn_Weg::Seiten:
        return Seiten_Schreiben;
    case Brenn_Weg::Tessel1:
        return Tessel1_Brennen;
    case Brenn_Weg::Tessel2:
        return Tessel2_Brennen;
    case Brenn_Weg::Keiner:
        break;
    }
    return nullptr;
}

// Erases first; false when that was given up, which ends the whole command.
bool Vorher_Gelöscht()
{
    Antwort = Antwort_Ok;
    Vor_Brennen_Löschen();
    return Antwort != Antwort_Abbrechen;
}

void Ohne_Brennen_Schliessen()
{
    Brenn_Ergebnis = Brenn_Ausgang::Abgebrochen;
    B.Offen        = false;
}

// Assembles a stale source; the source lines are the debugger's only, so they go again.
bool Bild_Aktuell()
{
    if (Modus != Modus_MC || Text_Aktuell)
        return true;
    Assemblieren();
    const bool Fehlerfrei = Assembler_Fehler == 0;
    Quellzeilen_Loeschen();
    return Fehlerfrei;
}

} // namespace

void Brennmenue_Oeffnen()
{
    B       = {};
    B.Offen = true;
    Brennmenue_Activate();
}

void Brennmenue_Activate()
{
    if (B.IC_LBA_D != "-")
        return;
    B.Überbrennen.clear();
    Hex_Puffer.assign(static_cast<std::size_t>(Nutzbare_Bytes(Gewaehltes_Geraet())), 0);
    std::int32_t Letzte = Letzte_Editor_Adresse();
    Editor_Bereich_Zeigen(Letzte);
    Baustein_Zeigen();
    if (C_IC_vor_B)
        Letzte = Baustein_Stand_Lesen(Letzte);
    B.Löschen = Letzte >= 0 && Beginnt_Mit(Gewaehltes_Geraet().E_Typ, {"89", "28", "27SF"});
    Überbrennen_Zeigen();
}

void ED_EBA_H_Change(std::string_view Text)
{
    H_Geaendert(B.ED_EBA_H, B.ED_EBA_D, Text);
    Editor_Felder_Rechnen();
}

void ED_EBA_D_Change(std::string_view Text)
{
    D_Geaendert(B.ED_EBA_H, B.ED_EBA_D, Text);
    Editor_Felder_Rechnen();
}

void ED_LBA_H_Change(std::string_view Text)
{
    H_Geaendert(B.ED_LBA_H, B.ED_LBA_D, Text);
    Editor_Felder_Rechnen();
}

void ED_LBA_D_Change(std::string_view Text)
{
    D_Geaendert(B.ED_LBA_H, B.ED_LBA_D, Text);
    Editor_Felder_Rechnen();
}

void BR_EBA_H_Change(std::string_view Text)
{
    if (!B.BR_EBA_Aktiv) // a disabled box takes no keys
        return;
    H_Geaendert(B.BR_EBA_H, B.BR_EBA_D, Text);
    IC_Felder_Rechnen();
}

void BR_EBA_D_Change(std::string_view Text)
{
    if (!B.BR_EBA_Aktiv) // a disabled box takes no keys
        return;
    D_Geaendert(B.BR_EBA_H, B.BR_EBA_D, Text);
    IC_Felder_Rechnen();
}

void Splitting_Waehlen(Splitting Wahl)
{
    B.O_No_Splitting   = Wahl == Splitting::Kein;
    B.O_Even_Splitting = Wahl == Splitting::Gerade;
    B.O_Odd_Splitting  = Wahl == Splitting::Ungerade;
}

bool Brennen_Bedient() { return Brenn_Weg_Von(Gewaehltes_Geraet()) != Brenn_Weg::Keiner; }

Text_Paar Kein_Brennen_Text()
{
    const std::string Name = IC_Menue_Name();
    return {Name + " kann nicht gebrannt werden: für seinen Typ gibt es keine Brennroutine.",
            Name + " can't be programmed: there is no programming routine for its type."};
}

void Brennen_Click()
{
    if (!B.Brennen_Aktiv)
        return;
    Brenn_Ergebnis = Brenn_Ausgang::Nicht_Verfuegbar;
    if (!Brennen_Bedient()) {
        Melden(Kein_Brennen_Text(), {}, Knoepfe::Ok, Symbol::Warnung);
        return;
    }
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    if (B.Löschen && !Vorher_Gelöscht())
        Ohne_Brennen_Schliessen();
    else
        Brenn_Routine()();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
}

void Abbrechen_Click() { B.Offen = false; }

void Weiteres_Click() { B.Hoehe = B.Hoehe != Hoehe_Gross ? Hoehe_Gross : Hoehe_Klein; }

bool Programm_Bereit()
{
    Abbruch = false; // of whatever was given up before
    return Porttreiber_Bereit() && Baustein_Gewaehlt() && Bild_Aktuell();
}

void MNU_IC_Brennen_Click()
{
    if (!Programm_Bereit())
        return;
    B       = {};
    B.Offen = true;
    Plattform.Fenster->Formular_Zeigen(Formular::F_Brennmenue);
    if (B.Offen) // no window was there to do it
        Brennmenue_Activate();
}

void MNU_IC_Prüfen_Click()
{
    if (Programm_Bereit())
        CheckIC_Start(false, false);
}

} // namespace varnholt
