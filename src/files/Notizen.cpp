// The note file beside a document.
#include "files/Notizen.h"

#include "core/messages.h"
#include "core/platform.h"
#include "core/rich_text.h"
#include "core/shared_state.h"
#include "editors/Quelltext_Sperre.h"
#include "files/Datei_Zustand.h"
#include "files/Dateimeldungen.h"
#include "files/Dateinamen.h"
#include "files/Rtf.h"

#include <filesystem>
#include <utility>

namespace varnholt {
namespace {

// The document's name without its extension, and another one. A name that has no room for an
// extension keeps all of itself: its last four characters would reach into the folder.
std::string Neben_Dem_Dokument(std::string_view Endung)
{
    constexpr std::size_t  Endung_Laenge = 4;
    const std::string      Name          = std::filesystem::path(Datei_Name).filename().string();
    const std::string_view Stamm         = Name.size() > Endung_Laenge
                                               ? Ohne_Letzte_Zeichen(Datei_Name, Endung_Laenge)
                                               : std::string_view(Datei_Name);
    return std::string(Stamm).append(Endung);
}

bool Vorhanden(const std::string& Name)
{
    std::error_code Fehler;
    return std::filesystem::is_regular_file(Name, Fehler);
}

// The file to load, empty when there is none.
std::string Notiz_Datei_Suchen(bool Mit_RTF)
{
    if (std::string Name = Neben_Dem_Dokument(".not"); Vorhanden(Name))
        return Name;
    const std::string Name = Neben_Dem_Dokument(".rtf");
    return Mit_RTF && Vorhanden(Name) ? Name : std::string{};
}

void Zu_Lang_Melden(const std::string& Name)
{
    Notiz_Datei.Zu_Lang = Name;
    Plattform.Box->Hinweisen(
        In_Sprache({"Die Notizen " + Name + " sind zu lang: nur ihr Anfang wird gezeigt.",
                    "The notes " + Name + " are too long: only their beginning is shown."}));
}

// What was read of a file that is too long would not replace it. Unchanged there is nothing to
// save.
void Nicht_Ueberschrieben(const std::string& Name, const Reich_Text_T& Text)
{
    if (Text == Notiz_Datei.Gezeigt)
        return;
    Datei_Fehler = Dateifehler::Schreibfehler;
    Plattform.Box->Hinweisen(In_Sprache(
        {"Die Notizen wurden nicht gespeichert: " + Name + " konnte nicht ganz gelesen werden.",
         "The notes were not saved: " + Name + " could not be read completely."}));
}

// Rich text, or plain text of an older file, in the control.
void In_Notiz_Geben(std::string Bytes, const std::string& Name)
{
    if (!Ist_Rtf(Bytes)) {
        Textdatei_T Datei = Text_Entschluesseln(std::move(Bytes));
        In_Textfeld_Geben(Datei, *Plattform.Notiz);
        return;
    }
    const Rtf_Ergebnis_T Ergebnis = Rtf_Lesen(Bytes);
    Plattform.Notiz->Reich_Setzen(Ergebnis.Text);
    Notiz_Datei.RTF = std::move(Bytes);
    if (Ergebnis.Zu_Lang)
        Zu_Lang_Melden(Name);
}

} // namespace

void Notiz_Laden(bool Mit_RTF)
{
    const Edit_Ruhe   Ruhe;
    const std::string Name = Notiz_Datei_Suchen(Mit_RTF);
    Notiz_Datei            = {};
    Plattform.Notiz->Text_Setzen({});
    if (Name.empty() || Name == Datei_Name)
        return;
    if (auto Bytes = Ganze_Datei_Lesen(Name, Textdatei_Hoechstens))
        In_Notiz_Geben(std::move(*Bytes), Name);
    else
        Notiz_Datei.Zu_Lang = Name;
    Notiz_Datei.Gezeigt = Plattform.Notiz->Reicher_Text();
}

void Notiz_Speichern()
{
    const std::string Name = Neben_Dem_Dokument(".not");
    if (Plattform.Notiz->Laenge() == 0 || Name == Datei_Name)
        return; // a document of that very name is not to be lost
    Reich_Text_T Text = Plattform.Notiz->Reicher_Text();
    if (Name == Notiz_Datei.Zu_Lang)
        return Nicht_Ueberschrieben(Name, Text);
    // Unchanged notes are written as they came: with what is not shown of them.
    const bool  Bleibt = !Notiz_Datei.RTF.empty() && Text == Notiz_Datei.Gezeigt;
    std::string Neue   = Bleibt ? std::string{} : Rtf_Schreiben(Text);
    if (!Datei_Sichern(Name, Bleibt ? Notiz_Datei.RTF : Neue) || Bleibt)
        return;
    Notiz_Datei.RTF     = std::move(Neue);
    Notiz_Datei.Gezeigt = std::move(Text);
}

} // namespace varnholt
