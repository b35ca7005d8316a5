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

// A full series drops its second file; the first of all stays. The newest one gets its second name
// before the next text takes its place under the old one: the crash marker names that file, and a
// run may end at any moment. Where one ended right then, the series is shifted already.
void Serie_Schieben()
{
    constexpr int   Letzte = Autosave_Anzahl - 1;
    std::error_code Fehler;
    if (fs::equivalent(Autosave_Datei(Letzte), Autosave_Datei(Letzte - 1), Fehler))
        return;
    fs::remove(Autosave_Datei(1), Fehler);
    for (int i = 2; i < Letzte; ++i)
        fs::rename(Autosave_Datei(i), Autosave_Datei(i - 1), Fehler);
    fs::create_hard_link(Autosave_Datei(Letzte), Autosave_Datei(Letzte - 1), Fehler);
    if (Fehler) // a file system without second names
        fs::rename(Autosave_Datei(Letzte), Autosave_Datei(Letzte - 1), Fehler);
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

fs::path Marken_Datei() { return Pfad_Aus_Text(Programm_Pfad) / "startup"; }

void Marke_Schreiben(const fs::path& Letzte)
{
    if (Marke_Beanspruchen())
        Sichern(Marken_Datei(), Letzte.string() + std::string(CRLF));
}

// A copy outside the series.
fs::path Zuflucht() { return Pfad_Aus_Text(Programm_Pfad) / "Autosave" / "autosave-last.asm"; }

// A run that ended in the middle of a shift left a gap, and the next text went there: then the
// crash marker names a file that the shift is going to move. It gets a copy to name meanwhile.
void Markierte_Retten()
{
    constexpr std::uintmax_t Pfad_Hoechstens = 4096;
    const std::string Marke  = Datei_Lesen(Marken_Datei(), Pfad_Hoechstens).value_or(std::string{});
    const fs::path    Letzte = Marke.substr(0, Marke.find_first_of("\r\n"));
    if (Letzte.empty() || Letzte == Autosave_Datei(Autosave_Anzahl - 1) || Letzte == Zuflucht())
        return;
    std::error_code Fehler;
    if (fs::copy_file(Letzte, Zuflucht(), fs::copy_options::overwrite_existing, Fehler))
        Marke_Schreiben(Zuflucht());
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
        Markierte_Retten();
        Serie_Schieben();
        Autosave_Nummer = Autosave_Anzahl - 1;
    }
    if (Sichern(Autosave_Datei(Autosave_Nummer), Text_Bytes())) {
        Marke_Schreiben(Autosave_Datei(Autosave_Nummer));
        std::error_code Fehler;
        fs::remove(Zuflucht(), Fehler);
        Autosave_Nummer = (Autosave_Nummer + 1) % Autosave_Anzahl;
    }
    Autosave_Zeit = Plattform.Ereignisse->Sekunden();
}

} // namespace varnholt
