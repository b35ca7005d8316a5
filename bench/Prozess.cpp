// Runs programs as whole processes and tells how long they took and how much memory they had.
#include "Prozess.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varnholt::bench {
namespace {

double In_Sekunden(const timeval& t)
{
    return static_cast<double>(t.tv_sec) + 1e-6 * static_cast<double>(t.tv_usec);
}

[[noreturn]] void
Kind(const std::vector<std::string>& Befehl, const std::string& Eingabe, const std::string& Ausgabe)
{
    std::vector<char*> Argumente;
    for (const std::string& a : Befehl)
        Argumente.push_back(const_cast<char*>(a.c_str()));
    Argumente.push_back(nullptr);
    dup2(open(Eingabe.c_str(), O_RDONLY), 0);
    dup2(open(Ausgabe.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 1);
    dup2(open("/dev/null", O_WRONLY), 2);
    execvp(Argumente[0], Argumente.data());
    _exit(127);
}

double Median(std::vector<double> Werte)
{
    std::sort(Werte.begin(), Werte.end());
    return Werte.empty() ? 0 : Werte[Werte.size() / 2];
}

Messung Mediane(const std::vector<Messung>& Laeufe)
{
    const auto Von = [&Laeufe](double Messung::*Feld) {
        std::vector<double> Werte;
        for (const Messung& m : Laeufe)
            Werte.push_back(m.*Feld);
        return Median(Werte);
    };
    return {Von(&Messung::Sekunden),
            Von(&Messung::Rechenzeit),
            Von(&Messung::Speicher_MB),
            Laeufe.empty() ? 0 : Laeufe.back().Status};
}

} // namespace

Messung Laufen(const std::vector<std::string>& Befehl,
               const std::string&              Eingabe,
               const std::string&              Ausgabe)
{
    const auto  Anfang = std::chrono::steady_clock::now();
    const pid_t pid    = fork();
    if (pid == 0)
        Kind(Befehl, Eingabe, Ausgabe);
    int    Status = 0;
    rusage Verbrauch{};
    wait4(pid, &Status, 0, &Verbrauch);
    const std::chrono::duration<double> Dauer = std::chrono::steady_clock::now() - Anfang;
    return {Dauer.count(),
            In_Sekunden(Verbrauch.ru_utime) + In_Sekunden(Verbrauch.ru_stime),
            static_cast<double>(Verbrauch.ru_maxrss) / 1024,
            WIFEXITED(Status) ? WEXITSTATUS(Status) : 128};
}

Paar Paarweise(const std::vector<std::string>& A, const std::vector<std::string>& B, int Laeufe)
{
    std::vector<Messung> a, b;
    for (int i = 0; i <= Laeufe; ++i) {
        const Messung ma = Laufen(A);
        const Messung mb = Laufen(B);
        if (i > 0) { // the first pair fills the caches
            a.push_back(ma);
            b.push_back(mb);
        }
    }
    return {Mediane(a), Mediane(b)};
}

Messung Mehrfach(const std::vector<std::string>& Befehl,
                 int                             Laeufe,
                 const std::string&              Eingabe,
                 const std::string&              Ausgabe)
{
    std::vector<Messung> m;
    for (int i = 0; i <= Laeufe; ++i) {
        const Messung n = Laufen(Befehl, Eingabe, Ausgabe);
        if (i > 0)
            m.push_back(n);
    }
    return Mediane(m);
}

} // namespace varnholt::bench
