// The autosave series: the first copy and the 19 newest, and the crash marker that names the last.
#include "core/instance.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "files/Datei_Zustand.h"
#include "files/Dateizugriff.h"

#include <filesystem>
#include <string>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

fs::path Autosave_Datei(int Nummer)
{
    return Pfad_Aus_Text(Programm_Pfad) / "Autosave" /
           ("autosave" + std::to_string(Nummer) + ".asm");
}

// A full series drops its second file; the first of all stays.
void Serie_Schieben()
{
    std::error_code Fehler;
    fs::remove(Autosave_Datei(1), Fehler);
    for (int i = 2; i < Autosave_Anzahl; ++i)
        fs::rename(Autosave_Datei(i), Autosave_Datei(i - 1), Fehler);
}

// The text as a save would write it.
std::string Text_Bytes()
{
    return Text_Verschluesseln(Plattform.Edit->Text_UTF8(),
                               Quell_Datei.Original.empty() ? Neue_Textdatei() : Quell_Datei);
}

bool Sichern(const fs::path& Datei, std::string_view Bytes)
{
    std::string Grund;
    if (Datei_Schreiben(Datei, Bytes, Grund))
        return true;
    Plattform.Box->Hinweisen(
        In_Sprache({"AutoSave: " + Datei.string() + " konnte nicht geschrieben werden: " + Grund,
                    "AutoSave: " + Datei.string() + " could not be written: " + Grund}));
    return false;
}

void Marke_Schreiben()
{
    if (Marke_Beanspruchen())
        Sichern(Pfad_Aus_Text(Programm_Pfad) / "startup",
                Autosave_Datei(Autosave_Nummer).string() + std::string(CRLF));
}

} // namespace

int Autosave_Vorhanden()
{
    std::error_code Fehler;
    int             Nummer = 0;
    while (Nummer < Autosave_Anzahl && fs::exists(Autosave_Datei(Nummer), Fehler))
        ++Nummer;
    return Nummer;
}

void Autosave_Speichern()
{
    Autosave_Nummer = Autosave_Vorhanden();
    if (Autosave_Nummer == Autosave_Anzahl) {
        Serie_Schieben();
        Autosave_Nummer = Autosave_Anzahl - 1;
    }
    if (Sichern(Autosave_Datei(Autosave_Nummer), Text_Bytes())) {
        Marke_Schreiben();
        Autosave_Nummer = (Autosave_Nummer + 1) % Autosave_Anzahl;
    }
    Autosave_Zeit = Plattform.Ereignisse->Sekunden();
}

} // namespace varnholt
