// Runs varnholt-cli as a user does.
#include "cli/Cli_Hilfe.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace varnholt::test {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Kind(const fs::path& Ordner, const std::vector<std::string>& Zeile)
{
    std::vector<char*> Argumente;
    for (const std::string& a : Zeile)
        Argumente.push_back(const_cast<char*>(a.c_str()));
    Argumente.push_back(nullptr);
    if (chdir(Ordner.c_str()) != 0)
        _exit(126);
    dup2(open(".ein", O_RDONLY), 0);
    dup2(open(".aus", O_WRONLY | O_CREAT | O_TRUNC, 0600), 1);
    dup2(open(".fehler", O_WRONLY | O_CREAT | O_TRUNC, 0600), 2);
    execv(Argumente[0], Argumente.data());
    _exit(127);
}

} // namespace

Lauf_Ergebnis Cli::Laufen(const std::vector<std::string>& Argumente, const std::string& Eingabe)
{
    std::vector<std::string> Zeile{VARNHOLT_CLI, "--home", Home};
    Zeile.insert(Zeile.end(), Argumente.begin(), Argumente.end());
    Schreiben(".ein", Eingabe);
    const pid_t pid = fork();
    if (pid == 0)
        Kind(Ordner, Zeile);
    int Status = 0;
    waitpid(pid, &Status, 0);
    return {WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status),
            Lesen(".aus"),
            Lesen(".fehler")};
}

void Cli::Schreiben(const std::string& Name, const std::string& Inhalt) const
{
    std::ofstream(Ordner / Name, std::ios::binary) << Inhalt;
}

std::string Cli::Lesen(const std::string& Name) const
{
    std::ifstream Datei(Ordner / Name, std::ios::binary);
    return {std::istreambuf_iterator<char>(Datei), {}};
}

bool Cli::Da(const std::string& Name) const { return fs::exists(Ordner / Name); }

std::string Muster(std::size_t n)
{
    std::string s(n, '\0');
    for (std::size_t i = 0; i < n; ++i)
        s[i] = static_cast<char>(static_cast<unsigned char>((i * 7 + i / 251) & 0xFE));
    return s;
}

} // namespace varnholt::test
