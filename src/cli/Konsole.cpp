// The terminal behind the wall.
#include "cli/Konsole.h"

#include "core/shared_state.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace varnholt {
namespace {

volatile std::sig_atomic_t Unterbrochen = 0;

extern "C" void Unterbrechung(int) { Unterbrochen = 1; }

std::string Als_Zeilen(std::string_view Text)
{
    std::string Zeilen;
    for (const char c : Text)
        if (c != '\r')
            Zeilen += c;
    while (Zeilen.ends_with('\n'))
        Zeilen.pop_back();
    return Zeilen + '\n';
}

} // namespace

void Auf_Fehlerausgabe(std::string_view Text)
{
    const std::string Zeilen = Als_Zeilen(Text);
    std::fwrite(Zeilen.data(), 1, Zeilen.size(), stderr);
}

int Konsolen_Box::Zeigen(const Meldung_T& Meldung)
{
    const bool Frage = Meldung.Tasten != Knoepfe::Ok;

    const std::string Titel = Meldung.Titel.empty() ? std::string{} : Meldung.Titel + ": ";
    Auf_Fehlerausgabe((Frage ? "error: " : "") + Titel + Meldung.Text);
    return Frage ? Antwort_Abbrechen : Antwort_Ok;
}

std::string Konsolen_Box::Eingeben(std::string_view Text)
{

    Auf_Fehlerausgabe("error: " + std::string(Text));
    return {};
}

void Konsolen_Box::Hinweisen(std::string_view Text) { Auf_Fehlerausgabe(Text); }

int Konsolen_Box::Bereich_Waehlen(std::string_view Text)
{
    if (Gewaehlte_Haelfte == 0)
        Auf_Fehlerausgabe("error: " + std::string(Text));
    return Gewaehlte_Haelfte;
}

Konsolen_Status::Konsolen_Status() : Ist_Terminal(isatty(STDERR_FILENO) != 0) {}

void Konsolen_Status::Text(std::string_view Neuer)
{
    if (!Ist_Terminal)
        return;
    std::fprintf(stderr, "\r\033[K%.*s", static_cast<int>(Neuer.size()), Neuer.data());
    std::fflush(stderr);
    Zeile_Steht = true;
}

void Konsolen_Status::Schliessen()
{
    if (Zeile_Steht)
        std::fputs("\r\033[K", stderr);
    Zeile_Steht = false;
}

void Konsolen_Ereignisse::Eine_Runde()
{
    if (Unterbrochen != 0)
        Abbruch = true;
}

Konsole_T::Konsole_T()
{
    Plattform.Box        = &Box;
    Plattform.Status     = &Status;
    Plattform.Ereignisse = &Ereignisse;
    Plattform.Edit       = &Edit;
    Plattform.Notiz      = &Notiz;
}

void Unterbrechung_Annehmen()
{
    struct sigaction Art = {};
    Art.sa_handler       = Unterbrechung;
    Art.sa_flags         = SA_RESETHAND; // the second one ends the program
    sigaction(SIGINT, &Art, nullptr);
}

bool Unterbrochen_Worden() { return Unterbrochen != 0; }

} // namespace varnholt
