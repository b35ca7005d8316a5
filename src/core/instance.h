// The runs of the program that share one program folder: which of them owns the crash marker, and
// the undo folder of each. Knows nothing of what lies in these folders.
#pragma once

#include <filesystem>
#include <string>

namespace varnholt {

// An advisory lock that goes with the process, however it ends. Released by the destructor.
class Datei_Sperre {
public:
    enum class Ergebnis {
        Genommen,
        Vergeben,  // somebody else holds it
        Unmoeglich // the file can't be opened, or its file system knows no locks
    };

    Datei_Sperre() = default;
    Datei_Sperre(Datei_Sperre&& Andere) noexcept;
    Datei_Sperre& operator=(Datei_Sperre&& Andere) noexcept;
    ~Datei_Sperre() { Loesen(); }

    // Takes the lock by that file, which is made where it isn't there; another one is given back.
    Ergebnis Nehmen(const std::filesystem::path& Datei);
    void     Loesen();
    bool     Gehalten() const { return Griff >= 0; }

private:
    int Griff = -1; // file descriptor, -1 without a lock
};

// This run among the others. Holds for the whole run; written by instance.cpp.
inline struct Instanz_T {
    std::string  Undo_Ordner   = "Undo"; // name of the undo folder inside Programm_Pfad
    bool         Marke_Gehoert = false;  // the crash marker is this run's to ask about and write
    Datei_Sperre Marken_Sperre{};        // held by the owner of the marker
    Datei_Sperre Ordner_Sperre{};        // held on an undo folder other than "Undo"
} Instanz;

inline constinit auto& Undo_Ordner = Instanz.Undo_Ordner;

// Takes its place beside other runs: the first gets "Undo" and the crash marker, each further one a
// folder of its own ("Undo-2", ...). Where nothing can be locked it is as if it were alone. Does
// nothing when it was done before.   reads: Programm_Pfad   sets: Instanz
void Instanz_Anmelden();
// Whether this run may write and remove the crash marker; it takes the marker over when the run
// that owned it has ended.   reads: Programm_Pfad   sets: Instanz
[[nodiscard]] bool Marke_Beanspruchen();
// Removes an undo folder of its own and gives the locks back, as at the regular end.
// reads: Programm_Pfad   sets: Instanz
void Instanz_Abmelden();

// As at program start, all locks given back.
inline void Instanz_Zuruecksetzen() { Instanz = {}; }

} // namespace varnholt
