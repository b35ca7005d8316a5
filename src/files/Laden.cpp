// Loading: type, mode, contents, notes, bookkeeping. The formats stand in files of their own.
#include "files/Laden.h"

#include "core/captions.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Quelltext.h"
#include "editors/Quelltext_Sperre.h"
#include "files/Dat.h"
#include "files/Datei_Zustand.h"
#include "files/Dateimeldungen.h"
#include "files/Dateinamen.h"
#include "files/Intel_Hex.h"
#include "files/Motorola_S.h"
#include "files/Notizen.h"
#include "files/Rohdaten.h"

#include <filesystem>
#include <span>
#include <utility>

namespace varnholt {
namespace {

// The image as the text formats and a half of a long file see it; a whole raw file may reach
// element 524288 too.
std::span<std::uint8_t> Eigentliches_Bild()
{
    return std::span(Hex_Daten).first(static_cast<std::size_t>(Bild_Groesse));
}

// Notes, folder, recent files and flags after a load that isn't made only to compare.
void Laden_Verbuchen(bool Notiz_Mit_RTF)
{
    if (Vergleich_Laeuft)
        return;
    Notiz_Laden(Notiz_Mit_RTF);
    Dialog_Verzeichnis = std::filesystem::path(Datei_Name).parent_path().string();
    Text_Aktuell       = false;
    Letzte_Dateien();
    Datei_Geaendert = false;
    Titel_Gespeichert(); // the other editor, too, shows this document from now on
}

void Bild_Zeigen()
{
    if (Vergleich_Laeuft)
        return;
    Editor_Titel(Fenster_Hexedit, false);
    Hex_Anzeige();
}

void Modus_Anpassen(int Neuer)
{
    if (Modus == Neuer)
        return;
    In_Modus_Wechseln(Neuer);
    Plattform.Ereignisse->Eine_Runde();
}

// The user's choice of a half: 1, 2, or 0 when it stays open.
int Haelfte_Erfragen()
{
    if (Init_Laeuft)
        return 0;
    if (!Vergleich_Laeuft)
        Hex_Anzeige();
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    return Plattform.Box->Bereich_Waehlen(
        In_Sprache({"Die Datei " + Datei_Name +
                        " ist größer als 524288 Byte und kann daher nur teilweise geladen werden! "
                        "Bitte wählen Sie "
                        "den zu ladenen Bereich:",
                    "Couldn't load the file " + Datei_Name +
                        " completely at once. The filesize is over 524288 byte. Please choose an "
                        "area to load:"}));
}

// One half of a long file. It replaces the image, during an import too.
void Haelfte_Laden(std::string_view Bytes)
{
    const int Haelfte = Haelfte_Erfragen();
    if (Haelfte == 0) {
        Datei_Fehler = Dateifehler::Teilladen_Offen;
        return;
    }
    Bild_Loeschen();
    Bytes.remove_prefix(Haelfte == 2 ? static_cast<std::size_t>(Bild_Groesse) : 0);
    Rohdaten_Lesen(Bytes, 0, Eigentliches_Bild());
    IC_Typ_Löschen();
    Scroll_Einrichten();
    Bild_Zeigen();
    Laden_Verbuchen(true);
}

void Rohdaten_Laden(const Datei_Anfang_T& Datei, std::int32_t Adresse)
{
    if (Umfang_Der_Datei(Datei.Groesse) == Rohdaten_Umfang::Anfang)
        Melden({"Die Datei " + Datei_Name + " kann nicht komplett geladen werden!",
                "Couldn´t load the file " + Datei_Name + " complete!"},
               {"Dateigröße über 1048576 Byte", "Filesize over 1048576 Byte"});
    Rohdaten_Lesen(Datei.Bytes, Adresse, Hex_Daten);
}

void Motorola_Laden(std::string_view Text, std::int32_t Adresse)
{
    IC_Typ_Löschen();
    Motorola_S_Lesen(Text, Adresse, Eigentliches_Bild());
}

void Inhalt_Einlesen(Dateityp Typ, const Datei_Anfang_T& Datei)
{
    const std::int32_t Adresse = Import_Laeuft ? Import_Adresse : 0;
    switch (Typ) {
    case Dateityp::Quelltext:
        break;
    case Dateityp::Rohdaten:
        return Rohdaten_Laden(Datei, Adresse);
    case Dateityp::Dat:
        return Dat_Lesen(Datei.Bytes, Adresse, Eigentliches_Bild());
    case Dateityp::Intel_Hex:
        return Intel_Hex_Lesen(Datei.Bytes, Adresse, Eigentliches_Bild());
    case Dateityp::Motorola_S:
        return Motorola_Laden(Datei.Bytes, Adresse);
    }
}

// The file of an image: of raw bytes as much as both halves, of the text formats all of it.
std::optional<Datei_Anfang_T> Bilddatei_Lesen(Dateityp Typ)
{
    if (Typ == Dateityp::Rohdaten)
        return Dateianfang_Lesen(Datei_Name, Rohdaten_Hoechstens);
    if (auto Bytes = Ganze_Datei_Lesen(Datei_Name, Textdatei_Hoechstens))
        return Datei_Anfang_T{std::move(*Bytes), 0};
    return std::nullopt;
}

void Bild_Laden(Dateityp Typ)
{
    const auto Datei = Bilddatei_Lesen(Typ); // first of all: what can't be read erases nothing
    if (!Datei) {
        Datei_Fehler = Dateifehler::Lesefehler;
        return;
    }
    Modus_Anpassen(Modus_Hex);
    if (!Import_Laeuft)
        Bild_Loeschen();
    if (Typ == Dateityp::Rohdaten && Umfang_Der_Datei(Datei->Groesse) == Rohdaten_Umfang::Haelfte)
        return Haelfte_Laden(Datei->Bytes);
    Inhalt_Einlesen(Typ, *Datei);
    Bild_Zeigen();
    Laden_Verbuchen(false);
}

void Quelltext_Zeigen()
{
    {
        const Edit_Ruhe Ruhe;
        In_Textfeld_Geben(Quell_Datei, *Plattform.Edit);
    }
    Text_Veraendert = false; // a line of the old text that was in work
    Quelltext_Zuruecksetzen();
    Editor_Titel(Fenster_Edit, false);
    if (!Plattform.Edit->Wird_Gezeigt())
        return;
    Edit_Einfaerben();
    Sprungmarken_Fuellen();
}

void Quelle_Laden()
{
    if (Vergleich_Laeuft) {
        Melden({"Dieses Dateiformat kann nicht mit den Hexdaten verglichen werden!",
                "This format can't be compared to the hexdata!"});
        Datei_Fehler = Dateifehler::Abgelehnt;
        return;
    }
    auto Bytes = Ganze_Datei_Lesen(Datei_Name, Quelltext_Hoechstens);
    if (!Bytes) {
        Datei_Fehler = Dateifehler::Lesefehler;
        return;
    }
    Modus_Anpassen(Modus_MC);
    Quell_Datei = Text_Entschluesseln(std::move(*Bytes));
    Quelltext_Zeigen();
    Laden_Verbuchen(false);
}

void Nach_Typ_Laden()
{
    const Dateityp Typ = Typ_Beim_Laden(Datei_Name, Modus);
    if (Typ == Dateityp::Quelltext)
        Quelle_Laden();
    else
        Bild_Laden(Typ);
    if (Datei_Fehler == Dateifehler::Keiner)
        Undo_Zuruecksetzen();
}

// The long file wasn't loaded: a later save must not go over it. Its image is erased, and so
// without a name; during an import it stands as before.
void Teilladen_Aufgeben(const std::string& Bisher)
{
    Datei_Name = Import_Laeuft || Vergleich_Laeuft ? Bisher : std::string{};
    if (Import_Laeuft || Vergleich_Laeuft)
        return;
    Titel_Gespeichert();
    Undo_Zuruecksetzen();
    Hex_Anzeige();
}

} // namespace

bool Datei_Gefunden()
{
    std::error_code Fehler;
    const auto      Lage = std::filesystem::status(Dialog_Name, Fehler);
    if (std::filesystem::exists(Lage) && !std::filesystem::is_directory(Lage))
        return true;
    Melden({"Konnte die Datei " + Dialog_Name + " nicht finden !",
            "Couldn´t find the file " + Dialog_Name + " !"});
    Datei_Fehler = Dateifehler::Nicht_Gefunden;
    return false;
}

void Datei_Laden()
{
    Plattform.Ereignisse->Mauszeiger_Warten(true);
    Datei_Fehler             = Dateifehler::Keiner;
    const std::string Bisher = std::exchange(Datei_Name, Dialog_Name);
    if (Datei_Gefunden())
        Nach_Typ_Laden();
    if (Datei_Fehler == Dateifehler::Lesefehler)
        Datei_Name = Bisher; // a later save must not go over the file that couldn't be read
    if (Datei_Fehler == Dateifehler::Teilladen_Offen)
        Teilladen_Aufgeben(Bisher);
    Plattform.Ereignisse->Mauszeiger_Warten(false);
    ++Dateien.Vorgang;
}

} // namespace varnholt
