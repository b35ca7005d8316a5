// The program's data folder: filling it up, and clearing away what killed runs left behind.
#include "core/data_folder.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Vorsilbe       = ".varnholt-";
constexpr int              Versuche       = 100;
constexpr std::string_view Beispiele[]    = {"samples", "beispiele"};
constexpr std::string_view Speicherorte[] = {"Autosave", "samples", "beispiele", "include", "mc"};

std::vector<fs::path> Eintraege(const fs::path& Ordner)
{
    std::error_code       Fehler;
    std::vector<fs::path> Liste;
    for (fs::directory_iterator i(Ordner, Fehler), Ende; !Fehler && i != Ende; i.increment(Fehler))
        Liste.push_back(i->path());
    return Liste;
}

// Neither a file nor a link that leads nowhere.
bool Fehlt(const fs::path& Pfad)
{
    std::error_code Fehler;
    return fs::symlink_status(Pfad, Fehler).type() == fs::file_type::not_found;
}

bool Eigener_Ordner(const fs::path& Pfad)
{
    std::error_code Fehler;
    return fs::is_directory(fs::symlink_status(Pfad, Fehler));
}

// --- filling up ---

// The copy is on the disk before anything else happens to it.
void Auf_Die_Platte(const fs::path& Pfad)
{
    if (const int Griff = ::open(Pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW); Griff >= 0) {
        ::fsync(Griff);
        ::close(Griff);
    }
}

// A file, or a folder with all that it holds, as one that the user may write in even where the
// installed one can't be written. False when some of it couldn't be copied.
bool Kopieren(const fs::path& Von, const fs::path& Nach)
{
    std::error_code Fehler;
    bool            Ganz = true;
    if (fs::is_directory(Von, Fehler)) {
        Ganz = fs::create_directory(Nach, Fehler);
        for (const fs::path& Stueck : Eintraege(Von))
            Ganz = Ganz && Kopieren(Stueck, Nach / Stueck.filename());
    } else {
        Ganz = fs::copy_file(Von, Nach, Fehler);
        fs::permissions(Nach, fs::perms::owner_write, fs::perm_options::add, Fehler);
    }
    Auf_Die_Platte(Nach);
    return Ganz;
}

// Under a temporary name first: a run that is killed meanwhile leaves no half of a file, and no
// folder of samples that would count as the user's. What a killed run of the same process number
// left under that name goes.
void Stueck_Kopieren(const fs::path& Von, const fs::path& Nach, const fs::path& Ordner)
{
    std::error_code Fehler;
    const fs::path  Zwischen = Ordner / Zwischen_Name(0);
    fs::remove_all(Zwischen, Fehler);
    if (Kopieren(Von, Zwischen) && Fehlt(Nach))
        fs::rename(Zwischen, Nach, Fehler);
    fs::remove_all(Zwischen, Fehler);
}

// What a run writes into its program folder, should the installed one have served as that.
bool Ist_Laufzeitdatei(const fs::path& Name)
{
    const std::string n = Name.string();
    return n == "Varnholt.ini" || n == "Varnholt.lock" || n == "startup" || n == "Autosave" ||
           n.starts_with("Undo") || n.starts_with(Vorsilbe);
}

bool Ist_Beispielordner(const fs::path& Name)
{
    return std::find(std::begin(Beispiele), std::end(Beispiele), Name.string()) !=
           std::end(Beispiele);
}

void Unterordner_Ergaenzen(const fs::path& Von, const fs::path& Nach, const fs::path& Ordner)
{
    for (const fs::path& Stueck : Eintraege(Von)) {
        std::error_code Fehler;
        const fs::path  Ziel = Nach / Stueck.filename();
        if (Ist_Laufzeitdatei(Stueck.filename()))
            continue;
        if (Fehlt(Ziel))
            Stueck_Kopieren(Stueck, Ziel, Ordner);
        else if (fs::is_directory(Stueck, Fehler) && Eigener_Ordner(Ziel) &&
                 !Ist_Beispielordner(Stueck.filename()))
            Unterordner_Ergaenzen(Stueck, Ziel, Ordner);
    }
}

// --- clearing away ---

// A number without sign and leading zeros that fits into Zahl_T; it is cut off the front.
template <class Zahl_T> std::optional<Zahl_T> Zahl_Nehmen(std::string_view& Text)
{
    Zahl_T Wert               = 0;
    const auto [Ende, Fehler] = std::from_chars(Text.data(), Text.data() + Text.size(), Wert);
    const auto Laenge         = static_cast<std::size_t>(Ende - Text.data());
    if (Fehler != std::errc{} || Text.front() == '-' || (Text.front() == '0' && Laenge > 1))
        return std::nullopt;
    Text.remove_prefix(Laenge);
    return Wert;
}

// The process that made a temporary file, by its name; empty for any other name.
std::optional<pid_t> Prozess_Aus(std::string_view Name)
{
    if (!Name.starts_with(Vorsilbe))
        return std::nullopt;
    Name.remove_prefix(Vorsilbe.size());
    const auto Prozess = Zahl_Nehmen<pid_t>(Name);
    if (!Prozess || *Prozess <= 0 || !Name.starts_with('-'))
        return std::nullopt;
    Name.remove_prefix(1);
    const auto Versuch = Zahl_Nehmen<int>(Name);
    return Versuch && *Versuch < Versuche && Name.empty() ? Prozess : std::nullopt;
}

bool Lebt(pid_t Prozess) { return ::kill(Prozess, 0) == 0 || errno != ESRCH; }

// The name alone goes: of a link never what it leads to, and a link isn't ours anyway.
void Rest_Entfernen(const fs::path& Pfad)
{
    std::error_code       Fehler;
    const fs::file_status Stand = fs::symlink_status(Pfad, Fehler);
    if (fs::is_regular_file(Stand) || fs::is_directory(Stand))
        fs::remove_all(Pfad, Fehler);
}

void Reste_Hier_Entfernen(const fs::path& Ordner)
{
    for (const fs::path& Pfad : Eintraege(Ordner)) {
        const std::string Name    = Pfad.filename().string();
        const auto        Prozess = Prozess_Aus(Name);
        if (Prozess && !Lebt(*Prozess))
            Rest_Entfernen(Pfad);
    }
}

} // namespace

std::string Zwischen_Name(int Versuch)
{
    return std::string(Vorsilbe)
        .append(std::to_string(::getpid()))
        .append("-")
        .append(std::to_string(Versuch));
}

void Ordner_Ergaenzen(const fs::path& Vorlage, const fs::path& Ordner)
{
    Unterordner_Ergaenzen(Vorlage, Ordner, Ordner);
}

void Reste_Entfernen(const fs::path& Ordner)
{
    Reste_Hier_Entfernen(Ordner);
    for (const std::string_view Name : Speicherorte)
        if (Eigener_Ordner(Ordner / Name))
            Reste_Hier_Entfernen(Ordner / Name);
}

} // namespace varnholt
