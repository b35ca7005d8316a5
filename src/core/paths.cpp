// Paths of the platform: the program folder, and names that come out of texts.
#include "core/paths.h"

#include "core/codepage.h"
#include "core/data_folder.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

fs::path Ordner_Des_Programms()
{
    std::error_code Fehler;
    const fs::path  Programm = fs::read_symlink("/proc/self/exe", Fehler);
    return Fehler ? fs::path{} : Programm.parent_path();
}

fs::path Umgebung(const char* Name)
{
    const char* Wert = std::getenv(Name);
    return Wert != nullptr ? fs::path(Wert) : fs::path{};
}

bool Haelt_Programmdateien(const fs::path& Ordner)
{
    std::error_code Fehler;
    return !Ordner.empty() && fs::exists(Ordner / "Spec.ini", Fehler);
}

// Where the installed files lie: beside the executable's prefix, in its share folder.
fs::path Installierte_Dateien()
{
    for (const fs::path& Ordner : {Ordner_Des_Programms().parent_path() / "share/varnholt",
                                   fs::path("/usr/local/share/varnholt"),
                                   fs::path("/usr/share/varnholt")})
        if (Haelt_Programmdateien(Ordner))
            return Ordner;
    return {};
}

// The user's data folder; empty where the environment names none by an absolute path.
fs::path Benutzer_Ordner()
{
    const fs::path Daten = Umgebung("XDG_DATA_HOME");
    if (Daten.is_absolute())
        return Daten / "varnholt";
    const fs::path Heim = Umgebung("HOME");
    return Heim.is_absolute() ? Heim / ".local/share/varnholt" : fs::path{};
}

// The entry of a folder with that name; without one the first whose name differs only in case,
// else the name as it stands.
fs::path Eintrag_Ohne_Fall(const fs::path& Ordner, const fs::path& Name)
{
    std::error_code Fehler;
    if (fs::exists(Ordner / Name, Fehler))
        return Ordner / Name;
    fs::path Treffer;
    for (fs::directory_iterator i(Ordner.empty() ? "." : Ordner, Fehler), Ende;
         !Fehler && i != Ende;
         i.increment(Fehler)) {
        const fs::path Gefunden = i->path().filename();
        if (Gleich_Ohne_Fall(Aus_UTF8(Gefunden.string()), Aus_UTF8(Name.string())) &&
            (Treffer.empty() || Gefunden < Treffer)) // the same choice whatever the folder's order
            Treffer = Gefunden;
    }
    return Ordner / (Treffer.empty() ? Name : Treffer);
}

std::string Mit_Trenner(const fs::path& Ordner) { return (Ordner / "").string(); }

} // namespace

fs::path Pfad_Aus_Text(std::string_view UTF8)
{
    std::string Text(UTF8);
    std::replace(Text.begin(), Text.end(), '\\', '/');
    return fs::path(Text);
}

fs::path Pfad_Suchen(const fs::path& Ordner, std::string_view Name)
{
    fs::path Pfad = Ordner;
    for (const fs::path& Teil : Pfad_Aus_Text(Name).relative_path())
        Pfad = Eintrag_Ohne_Fall(Pfad, Teil);
    return Pfad;
}

std::optional<fs::path> Datei_Suchen(const fs::path& Ordner, std::string_view Name)
{
    std::error_code Fehler;
    fs::path        Pfad = Ordner / Pfad_Aus_Text(Name).relative_path();
    if (!fs::is_regular_file(Pfad, Fehler))
        Pfad = Pfad_Suchen(Ordner, Name);
    return fs::is_regular_file(Pfad, Fehler) ? std::optional(Pfad) : std::nullopt;
}

std::string Programm_Pfad_Bestimmen()
{
    if (const fs::path Gewaehlt = Umgebung("VARNHOLT_HOME"); !Gewaehlt.empty())
        return Mit_Trenner(Gewaehlt);
    const fs::path Eigener = Ordner_Des_Programms();
    if (Haelt_Programmdateien(Eigener) && access(Eigener.c_str(), W_OK) == 0)
        return Mit_Trenner(Eigener);
    const fs::path  Benutzer = Benutzer_Ordner();
    const fs::path  Vorlage  = Installierte_Dateien();
    std::error_code Fehler;
    if (!Benutzer.empty())
        fs::create_directories(Benutzer, Fehler);
    if (!Benutzer.empty() && !Vorlage.empty())
        Ordner_Ergaenzen(Vorlage, Benutzer);
    // A folder that can't be made (read-only home): the installed files serve as they are.
    return Mit_Trenner(Haelt_Programmdateien(Benutzer) || Vorlage.empty() ? Benutzer : Vorlage);
}

} // namespace varnholt
