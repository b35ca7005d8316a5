// Whole files in and out, by the calls of POSIX: only they tell why something failed and flush a
// file before it takes the old one's place.
#include "files/Dateizugriff.h"

#include "core/data_folder.h"
#include "core/messages.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

struct Fehler_Text_T {
    int              Code;
    std::string_view D, E;
};

// clang-format off
constexpr Fehler_Text_T Fehler_Texte[] = {
    {EACCES,  "keine Berechtigung",                      "no permission"},
    {EPERM,   "keine Berechtigung",                      "no permission"},
    {EROFS,   "der Datenträger ist schreibgeschützt",    "the disk is write-protected"},
    {ENOSPC,  "der Datenträger ist voll",                "the disk is full"},
    {EDQUOT,  "der erlaubte Speicherplatz ist belegt",   "the disk quota is used up"},
    {EFBIG,   "die Datei ist zu groß",                   "the file is too large"},
    {ENOENT,  "der Ordner ist nicht vorhanden",          "the folder does not exist"},
    {ENOTDIR, "der Ordner ist nicht vorhanden",          "the folder does not exist"},
    {EISDIR,  "das ist ein Ordner",                      "it is a folder"},
    {EINVAL,  "das ist keine gewöhnliche Datei",         "it is no regular file"},
    {ENAMETOOLONG, "der Name ist zu lang",               "the name is too long"},
    {ELOOP,   "die Verknüpfungen führen im Kreis",       "the links lead in a circle"},
    {EIO,     "Ein-/Ausgabefehler",                      "input/output error"},
};
// clang-format on

std::string Fehler_Text(int Code)
{
    for (const Fehler_Text_T& t : Fehler_Texte)
        if (t.Code == Code)
            return In_Sprache({std::string(t.D), std::string(t.E)});
    return std::generic_category().message(Code);
}

// A file descriptor that closes itself.
class Griff {
public:
    explicit Griff(int Nummer) : fd(Nummer) {}
    Griff(const Griff&)            = delete;
    Griff& operator=(const Griff&) = delete;
    ~Griff() { Schliessen(); }

    bool Offen() const { return fd >= 0; }
    int  Nummer() const { return fd; }
    // 0, or the error number of a close that lost data.
    int Schliessen()
    {
        const int Ergebnis = fd >= 0 && close(fd) != 0 ? errno : 0;
        fd                 = -1;
        return Ergebnis;
    }

private:
    int fd;
};

// Reads up to Anzahl bytes; 0 or an error number.
int Bytes_Lesen(int fd, std::size_t Anzahl, std::string& Ziel)
{
    Ziel.resize(Anzahl);
    std::size_t Gelesen = 0;
    while (Gelesen < Anzahl) {
        const ssize_t n = read(fd, Ziel.data() + Gelesen, Anzahl - Gelesen);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return errno;
        if (n == 0)
            break; // the file got shorter meanwhile
        Gelesen += static_cast<std::size_t>(n);
    }
    Ziel.resize(Gelesen);
    return 0;
}

// Writes all bytes; 0 or an error number.
int Bytes_Schreiben(int fd, std::string_view Bytes)
{
    while (!Bytes.empty()) {
        const ssize_t n = write(fd, Bytes.data(), Bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return errno;
        Bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

int Anfang_Lesen(const fs::path& Pfad, std::uintmax_t Hoechstens, Datei_Anfang_T& Ziel)
{
    // O_NONBLOCK: a pipe that nobody writes to must not hold the program.
    Griff Datei(open(Pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!Datei.Offen())
        return errno;
    struct stat Lage = {};
    if (fstat(Datei.Nummer(), &Lage) != 0)
        return errno;
    if (!S_ISREG(Lage.st_mode))
        return S_ISDIR(Lage.st_mode) ? EISDIR : EINVAL;
    Ziel.Groesse               = static_cast<std::uintmax_t>(Lage.st_size);
    const std::uintmax_t Menge = std::min(Ziel.Groesse, Hoechstens);
    return Bytes_Lesen(Datei.Nummer(), static_cast<std::size_t>(Menge), Ziel.Bytes);
}

// Follows symbolic links to the name that is to be written, which need not exist; 0 or an error
// number.
int Ziel_Bestimmen(fs::path& Pfad)
{
    std::error_code Fehler;
    for (int Schritt = 0; Schritt < 40; ++Schritt) {
        if (!fs::is_symlink(fs::symlink_status(Pfad, Fehler)))
            return 0;
        const fs::path Naechster = fs::read_symlink(Pfad, Fehler);
        if (Fehler)
            return Fehler.value();
        Pfad = Pfad.parent_path() / Naechster;
    }
    return ELOOP;
}

// A name beside Pfad that no file has; short, since the file's own name may be as long as allowed.
fs::path Zwischenname(const fs::path& Pfad, int Versuch)
{
    return Pfad.parent_path() / Zwischen_Name(Versuch);
}

// Creates the temporary file; its descriptor, or -1 with the reason in errno.
int Zwischendatei_Anlegen(const fs::path& Pfad, fs::path& Name)
{
    for (int Versuch = 0; Versuch < 100; ++Versuch) {
        Name         = Zwischenname(Pfad, Versuch);
        const int fd = open(Name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST)
            return fd;
    }
    return -1;
}

// Gives the new file the owner and the permissions of the old one; another's owner can't be kept by
// everybody, and that alone is no reason to refuse the save.
int Rechte_Uebernehmen(int fd, const struct stat& Alt)
{
    struct stat Neu = {};
    if (fstat(fd, &Neu) != 0)
        return errno;
    if ((Neu.st_uid != Alt.st_uid || Neu.st_gid != Alt.st_gid) &&
        fchown(fd, Alt.st_uid, Alt.st_gid) != 0 && errno != EPERM)
        return errno;
    return fchmod(fd, Alt.st_mode & 07777) != 0 ? errno : 0;
}

int Zwischendatei_Fuellen(Griff& Datei, std::string_view Bytes, const struct stat* Alt)
{
    int Fehler = Bytes_Schreiben(Datei.Nummer(), Bytes);
    if (Fehler == 0 && Alt != nullptr)
        Fehler = Rechte_Uebernehmen(Datei.Nummer(), *Alt);
    if (Fehler == 0 && fsync(Datei.Nummer()) != 0)
        Fehler = errno;
    const int Beim_Schliessen = Datei.Schliessen();
    return Fehler != 0 ? Fehler : Beim_Schliessen;
}

// Temporary file, contents, rename. Alt is the state of the old file, null without one.
int Ersetzen(const fs::path& Pfad, std::string_view Bytes, const struct stat* Alt)
{
    fs::path Name;
    Griff    Datei(Zwischendatei_Anlegen(Pfad, Name));
    if (!Datei.Offen())
        return errno;
    int Fehler = Zwischendatei_Fuellen(Datei, Bytes, Alt);
    if (Fehler == 0 && rename(Name.c_str(), Pfad.c_str()) != 0)
        Fehler = errno;
    if (Fehler != 0)
        unlink(Name.c_str());
    return Fehler;
}

// Devices and pipes can't be replaced.
int Unmittelbar_Schreiben(const fs::path& Pfad, std::string_view Bytes)
{
    Griff Datei(open(Pfad.c_str(), O_WRONLY | O_CLOEXEC));
    if (!Datei.Offen())
        return errno;
    const int Fehler          = Bytes_Schreiben(Datei.Nummer(), Bytes);
    const int Beim_Schliessen = Datei.Schliessen();
    return Fehler != 0 ? Fehler : Beim_Schliessen;
}

int Schreiben(fs::path Pfad, std::string_view Bytes)
{
    struct stat Alt = {};
    const bool  Da  = stat(Pfad.c_str(), &Alt) == 0;
    if (Da && S_ISDIR(Alt.st_mode))
        return EISDIR;
    if (Da && !S_ISREG(Alt.st_mode))
        return Unmittelbar_Schreiben(Pfad, Bytes);
    // A rename asks only the folder; a file that its owner protected is still not to be replaced.
    if (Da && faccessat(AT_FDCWD, Pfad.c_str(), W_OK, AT_EACCESS) != 0)
        return errno;
    const int Fehler = Ziel_Bestimmen(Pfad);
    return Fehler != 0 ? Fehler : Ersetzen(Pfad, Bytes, Da ? &Alt : nullptr);
}

} // namespace

std::optional<std::string> Datei_Lesen(const fs::path& Pfad, std::uintmax_t Hoechstens)
{
    Datei_Anfang_T Anfang;
    if (Anfang_Lesen(Pfad, Hoechstens, Anfang) != 0 || Anfang.Groesse > Hoechstens)
        return std::nullopt;
    return std::move(Anfang.Bytes);
}

std::optional<Datei_Anfang_T>
Datei_Anfang_Lesen(const fs::path& Pfad, std::uintmax_t Hoechstens, std::string& Grund)
{
    Datei_Anfang_T Anfang;
    const int      Fehler = Anfang_Lesen(Pfad, Hoechstens, Anfang);
    if (Fehler == 0)
        return Anfang;
    Grund = Fehler_Text(Fehler);
    return std::nullopt;
}

bool Datei_Schreiben(const fs::path& Pfad, std::string_view Bytes, std::string& Grund)
{
    const int Fehler = Schreiben(Pfad, Bytes);
    if (Fehler != 0)
        Grund = Fehler_Text(Fehler);
    return Fehler == 0;
}

} // namespace varnholt
