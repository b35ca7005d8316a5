// A line with a gap, from which pieces are cut while a walk goes over it: each cut costs the
// distance from the last one and not the length of the line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

class Luecken_Zeile {
public:
    explicit Luecken_Zeile(std::string& Zeile) : s(Zeile) {}

    std::size_t Laenge() const { return s.size() - (Rechts - Links); }
    // Character n, counted from 0; NUL behind the end.
    char Zeichen(std::size_t n) const
    {
        const std::size_t k = n < Links ? n : n + (Rechts - Links);
        return k < s.size() ? s[k] : '\0';
    }
    void Zeichen_Setzen(std::size_t n, char c) { s[n < Links ? n : n + (Rechts - Links)] = c; }

    // The n characters from Ab on; the gap must not lie inside.
    std::string_view Teil(std::size_t Ab, std::size_t n) const
    {
        return std::string_view(s).substr(Ab < Links ? Ab : Ab + (Rechts - Links), n);
    }

    void Ersetzen(std::size_t Ab, std::size_t n, std::string_view Neu)
    {
        Luecke_Nach(Ab);
        Rechts = std::min(Rechts + n, s.size());
        if (Rechts - Links < Neu.size()) {
            const std::size_t Fehlt = Neu.size() - (Rechts - Links);
            s.insert(Rechts, Fehlt, ' ');
            Rechts += Fehlt;
        }
        std::copy(Neu.begin(), Neu.end(), s.begin() + static_cast<std::ptrdiff_t>(Links));
        Links += Neu.size();
    }

    // Ends the work: the string is the line again.
    void Schliessen()
    {
        s.erase(Links, Rechts - Links);
        Links = Rechts = 0;
    }

private:
    void Luecke_Nach(std::size_t Ab)
    {
        const auto a = s.begin();
        const auto l = static_cast<std::ptrdiff_t>(Links);
        const auto r = static_cast<std::ptrdiff_t>(Rechts);
        const auto d = static_cast<std::ptrdiff_t>(Ab) - l;
        if (d >= 0)
            std::copy(a + r, a + r + d, a + l);
        else
            std::copy_backward(a + l + d, a + l, a + r);
        Links  = static_cast<std::size_t>(l + d);
        Rechts = static_cast<std::size_t>(r + d);
    }

    std::string& s;
    std::size_t  Links  = 0; // the line is s[0, Links) and s[Rechts, end)
    std::size_t  Rechts = 0;
};

} // namespace varnholt
