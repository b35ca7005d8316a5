// Cut, copy, paste and delete: routed by the window that has the focus. The hex editor's halves
// stand in editors/Hexablage.
#include "core/clipboard.h"

#include "core/commands.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Hexablage.h"
#include "editors/Notiz.h"
#include "editors/Quelltext.h"
#include "editors/Quelltext_Sperre.h"
#include "files/Textdatei.h"

namespace varnholt {
namespace {

// The text control that the commands act on; null when it is another window, or locked.
Textfeld* Aktives_Textfeld()
{
    if (Aktives_Fenster == Fenster_Edit)
        return Plattform.Edit;
    return Aktives_Fenster == Fenster_Notiz ? Plattform.Notiz : nullptr;
}

Textfeld* Offenes_Textfeld()
{
    Textfeld* Feld = Aktives_Textfeld();
    return Feld == Plattform.Edit && Debugger_Aktiv ? nullptr : Feld;
}

// The document has unsaved changes: flags and captions.
void Geaendert_Markieren(const Textfeld* Feld)
{
    Feld == Plattform.Edit ? Text_Change() : Notiz_Change();
}

// The notes' control keeps its own steps.
void Schritt_Abschliessen(const Textfeld* Feld)
{
    if (Feld != Plattform.Edit)
        return;
    Undo_Schritt_speichern();
    Undo_Oben  = Undo_Index;
    Undo_Taste = true; // as a key does: Undo keeps what the command is about to make
}

bool Hat_Marke(std::string_view Text) { return Text.find(':') != std::string_view::npos; }

// Puts a text in place of the selection, with its look where it is the remembered one. The list of
// the jumpmarks follows what goes and comes.
void Auswahl_Tauschen(Textfeld* Feld, std::string_view Neuer)
{
    const bool Quelle = Feld == Plattform.Edit;
    const bool Marken = Quelle && (Hat_Marke(Neuer) || Hat_Marke(Feld->Auswahl_Text()));
    if (!Neuer.empty() && Neuer == Ablage.Gemerkter_Text)
        Feld->Auswahl_Ersetzen_Reich(Ablage.Gemerktes);
    else
        Feld->Auswahl_Ersetzen_UTF8(Neuer);
    if (Marken)
        Sprungmarken_Fuellen();
}

void Auswahl_Merken(const Textfeld* Feld)
{
    Ablage.Gemerktes      = Feld->Auswahl_Reich();
    Ablage.Gemerkter_Text = Reiner_Text(Ablage.Gemerktes);
    Plattform.Ablage->Setzen_UTF8(Ablage.Gemerkter_Text);
}

void Auswahl_Loeschen(Textfeld* Feld)
{
    if (Feld->Auswahl().Laenge > 0) {
        const Edit_Ruhe Ruhe;
        Auswahl_Tauschen(Feld, {});
    }
    Geaendert_Markieren(Feld);
}

// Puts the text in; colours its lines in the editor.
void Text_Einsetzen(Textfeld* Feld, const std::string& Text)
{
    const Edit_Ruhe    Ruhe;
    const std::int64_t Anfang = Feld->Auswahl().Anfang;
    Auswahl_Tauschen(Feld, Text);
    const std::int64_t Ende = Feld->Auswahl().Anfang;
    if (Feld == Plattform.Edit)
        Zeilen_Einfaerben(Feld->Zeile_Von(Anfang), Feld->Zeile_Von(Ende));
    Feld->Auswaehlen(Ende, 0);
}

void In_Textfeld_Einfuegen(Textfeld* Feld)
{
    const std::string Text = Mit_CR_LF(Plattform.Ablage->Text_UTF8());
    if (Text.empty()) // a picture, say: the selection is not to go for nothing
        return;
    Schritt_Abschliessen(Feld);
    Text_Einsetzen(Feld, Text);
    Geaendert_Markieren(Feld);
}

} // namespace

void MNU_Kopieren_Click()
{
    if (Aktives_Fenster == Fenster_Hexedit)
        return Hexedit_Kopieren();
    const Textfeld* Feld = Aktives_Textfeld();
    if (Feld != nullptr && Feld->Auswahl().Laenge > 0)
        Auswahl_Merken(Feld);
}

void MNU_Ausschneiden_Click()
{
    if (Aktives_Fenster == Fenster_Hexedit)
        return Hexedit_Ausschneiden();
    const Textfeld* Feld = Offenes_Textfeld();
    if (Feld == nullptr)
        return;
    Geaendert_Markieren(Feld);
    Schritt_Abschliessen(Feld);
    MNU_Kopieren_Click();
    MNU_Löschen_Click();
}

void MNU_Löschen_Click()
{
    if (Aktives_Fenster == Fenster_Hexedit)
        return Hexedit_Loeschen();
    if (Textfeld* Feld = Offenes_Textfeld())
        Auswahl_Loeschen(Feld);
}

void MNU_Einfügen_Click()
{
    if (Aktives_Fenster == Fenster_Hexedit)
        return Hexedit_Einfuegen();
    if (Textfeld* Feld = Offenes_Textfeld())
        In_Textfeld_Einfuegen(Feld);
}

} // namespace varnholt
