// Locks between the runs of the program in one program folder.
#include "core/instance.h"

#include "core/paths.h"
#include "core/shared_state.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

constexpr const char* Sperr_Datei    = "Varnholt.lock";
constexpr int         Ordner_Hochste = 99; // "Undo-2" to "Undo-99"

fs::path Im_Programm_Pfad(const std::string& Name) { return Pfad_Aus_Text(Programm_Pfad) / Name; }

// A lock file that its last owner removed meanwhile holds nobody off.
bool Noch_Im_Ordner(int Griff)
{
    struct stat Stand {};
    return ::fstat(Griff, &Stand) == 0 && Stand.st_nlink > 0;
}

// Makes the folder and locks it. A folder that can't be made or locked is none.
bool Ordner_Belegen(const std::string& Name)
{
    std::error_code Fehler;
    fs::create_directory(Im_Programm_Pfad(Name), Fehler);
    if (Instanz.Ordner_Sperre.Nehmen(Im_Programm_Pfad(Name) / Sperr_Datei) !=
        Datei_Sperre::Ergebnis::Genommen)
        return false;
    Undo_Ordner = Name;
    return true;
}

void Eigenen_Ordner_Suchen()
{
    for (int i = 2; i <= Ordner_Hochste; ++i)
        if (Ordner_Belegen("Undo-" + std::to_string(i)))
            return;
    Undo_Ordner = "Undo-0"; // nobody's: better no snapshots than those of the other run
}

} // namespace

Datei_Sperre::Datei_Sperre(Datei_Sperre&& Andere) noexcept : Griff(std::exchange(Andere.Griff, -1))
{
}

Datei_Sperre& Datei_Sperre::operator=(Datei_Sperre&& Andere) noexcept
{
    if (this != &Andere) {
        Loesen();
        Griff = std::exchange(Andere.Griff, -1);
    }
    return *this;
}

Datei_Sperre::Ergebnis Datei_Sperre::Nehmen(const fs::path& Datei)
{
    Loesen();
    Griff = ::open(Datei.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (Griff < 0)
        return Ergebnis::Unmoeglich;
    const bool Bekommen = ::flock(Griff, LOCK_EX | LOCK_NB) == 0;
    const bool Besetzt  = !Bekommen && errno == EWOULDBLOCK;
    if (Bekommen && Noch_Im_Ordner(Griff))
        return Ergebnis::Genommen;
    Loesen();
    return Bekommen || Besetzt ? Ergebnis::Vergeben : Ergebnis::Unmoeglich;
}

void Datei_Sperre::Loesen()
{
    if (Griff >= 0)
        ::close(std::exchange(Griff, -1));
}

void Instanz_Anmelden()
{
    if (Instanz.Marken_Sperre.Gehalten() || Instanz.Ordner_Sperre.Gehalten())
        return;
    if (!Marke_Beanspruchen())
        Eigenen_Ordner_Suchen();
}

bool Marke_Beanspruchen()
{
    if (Instanz.Marke_Gehoert)
        return true;
    // What a run that ended meanwhile left behind is for the next start to ask about.
    std::error_code Fehler;
    const bool      Spaet = Instanz.Ordner_Sperre.Gehalten();
    if (!Spaet || !fs::exists(Im_Programm_Pfad("startup"), Fehler))
        Instanz.Marke_Gehoert = Instanz.Marken_Sperre.Nehmen(Im_Programm_Pfad(Sperr_Datei)) !=
                                Datei_Sperre::Ergebnis::Vergeben;
    return Instanz.Marke_Gehoert;
}

void Instanz_Abmelden()
{
    std::error_code Fehler;
    if (Instanz.Ordner_Sperre.Gehalten())
        fs::remove_all(Im_Programm_Pfad(Undo_Ordner), Fehler);
    Instanz = {};
}

} // namespace varnholt
