// The scripted world: records every call over the wall and answers from a list.
#include "support/scripted_platform.h"

#include "core/reset.h"
#include "core/shared_state.h"

#include <utility>

namespace varnholt::test {
namespace {

template <class T> T Naechste(std::deque<T>& Liste, T Sonst)
{
    if (Liste.empty())
        return Sonst;
    T Wert = std::move(Liste.front());
    Liste.pop_front();
    return Wert;
}

} // namespace

int Skript_Box::Zeigen(const Meldung_T& Meldung)
{
    Meldungen.push_back(Meldung);
    return Naechste(Antworten, Meldung.Tasten == Knoepfe::Ok ? Antwort_Ok : Antwort_Abbrechen);
}

std::string Skript_Box::Eingeben(std::string_view Text)
{
    Fragen.emplace_back(Text);
    return Naechste(Eingaben, std::string{});
}

void Skript_Box::Hinweisen(std::string_view Text) { Hinweise.emplace_back(Text); }

int Skript_Box::Bereich_Waehlen(std::string_view Text)
{
    Fragen.emplace_back(Text);
    return Naechste(Bereiche, 0);
}

void Skript_Ereignisse::Eine_Runde()
{
    ++Runden;
    if (Bei_Runde)
        Bei_Runde(Runden);
}

void Skript_Ereignisse::Titel(int Fenster, std::string_view Text)
{
    Titel_Texte.push_back(std::to_string(Fenster) + ":" + std::string(Text));
}

Welt::Welt()
{
    Alles_Zuruecksetzen();
    Sprache              = "E";
    Plattform.Box        = &Box;
    Plattform.Status     = &Status;
    Plattform.Ereignisse = &Ereignisse;
    Plattform.Edit       = &Edit;
    Plattform.Notiz      = &Notiz;
}

Welt::~Welt() { Alles_Zuruecksetzen(); }

std::string Welt::Letzte_Meldung() const
{
    return Box.Meldungen.empty() ? std::string{} : Box.Meldungen.back().Text;
}

} // namespace varnholt::test
