// The commands that this version doesn't have yet: they answer so instead of being unknown.
#include "cli/Kommandos.h"

namespace varnholt {
namespace {

struct Spaeteres_Kommando {
    const char* Name;
    const char* Text;
};

// clang-format off
constexpr Spaeteres_Kommando Spaetere[] = {
    {"simulate",    "Run a program in the simulator (not available yet)"},
    {"erase",       "Erase a device (not available yet)"},
    {"lock",        "Set the lock level of a device (not available yet)"},
    {"clock",       "Read date and time of a 48T device (not available yet)"},
};
// clang-format on

} // namespace

void Spaetere_Anmelden(Kommandozeile& Zeile)
{
    for (const Spaeteres_Kommando& k : Spaetere) {
        const std::string Name = k.Name;
        Zeile
            .Kommando(Name,
                      k.Text,
                      [Name] {
                          return Falsche_Zeile(
                              {Name + ": noch nicht verfügbar", Name + ": not available yet"});
                      })
            ->fallthrough(false) // their options are still unknown
            ->allow_extras();
    }
}

} // namespace varnholt
