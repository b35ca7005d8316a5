// The scripted world: records every call over the wall and answers from a list.
#include "support/scripted_platform.h"

#include <array>

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

namespace {

const char* Formular_Name(Formular Welches)
{
    constexpr std::array<const char*, Formular_Anzahl> Namen = {"Start",
                                                                "Erststart",
                                                                "Abfrage_Modus",
                                                                "Optionen",
                                                                "Suche",
                                                                "HexSuche",
                                                                "Bereich_Kopieren",
                                                                "Bereich_setzen",
                                                                "Bereich_entfernen",
                                                                "Hilfe",
                                                                "Brennmenue",
                                                                "CheckIC",
                                                                "Lockmenu",
                                                                "Jumper",
                                                                "Wahl_Eprommer_Version",
                                                                "Wahl_Tessel2_Version",
                                                                "Board"};
    return Namen[static_cast<std::size_t>(Welches)];
}

} // namespace

void Skript_Fenster::Sichtbar_Setzen(int Nummer, bool Sichtbar)
{
    Zu(Nummer).Sichtbar = Sichtbar;
    Protokoll.push_back("Sichtbar " + std::to_string(Nummer) + (Sichtbar ? " 1" : " 0"));
}

void Skript_Fenster::Lage_Setzen(int Nummer, const Lage_T& Neue)
{
    Zu(Nummer).Lage  = Neue;
    std::string Text = "Lage " + std::to_string(Nummer);
    for (const int Wert : {Neue.Oben, Neue.Links, Neue.Hoehe, Neue.Breite})
        Text += " " + std::to_string(Wert);
    Protokoll.push_back(Text);
}

void Skript_Fenster::Fokus(int Nummer) { Protokoll.push_back("Fokus " + std::to_string(Nummer)); }

void Skript_Fenster::Bildschirm_Fuellen() { Protokoll.emplace_back("Bildschirm_Fuellen"); }

void Skript_Fenster::Hintergrund(std::int32_t Farbe)
{
    Hintergruende.push_back(Farbe);
    Protokoll.emplace_back("Hintergrund");
}

void Skript_Fenster::Formular_Zeigen(Formular Welches)
{
    Protokoll.push_back(std::string("Zeigen ") + Formular_Name(Welches));
    Formulare[static_cast<std::size_t>(Welches)] = true;
    if (Bei_Formular)
        Bei_Formular(Welches);
}

void Skript_Fenster::Formular_Entladen(Formular Welches)
{
    Protokoll.push_back(std::string("Entladen ") + Formular_Name(Welches));
    Formulare[static_cast<std::size_t>(Welches)] = false;
}

void Skript_Fenster::Programm_Beenden()
{
    Beendet = true;
    Protokoll.emplace_back("Beenden");
}

void Skript_Dialoge::Datei_Waehlen(Dateiwahl_T& Wahl)
{
    Gefragt.push_back(Wahl);
    Wahl.Name          = Naechste(Namen, std::string{});
    Wahl.Filter_Nummer = Naechste(Filter, Wahl.Filter_Nummer);
}

std::optional<Schrift_T> Skript_Dialoge::Schrift_Waehlen(const Schrift_T& Bisher)
{
    Schrift_Gefragt.push_back(Bisher);
    return Naechste(Schriften, std::optional<Schrift_T>{});
}

std::optional<std::int32_t> Skript_Dialoge::Farbe_Waehlen(std::int32_t Bisher)
{
    Farbe_Gefragt.push_back(Bisher);
    return Naechste(Farben, std::optional<std::int32_t>{});
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
    Plattform.Fenster    = &Fenster;
    Plattform.Dialog     = &Dialog;
    Plattform.Ablage     = &Ablage;
    Plattform.Umgebung   = &Umgebung;
    Plattform.Druck      = &Druck;
}

Welt::~Welt() { Alles_Zuruecksetzen(); }

std::string Welt::Letzte_Meldung() const
{
    return Box.Meldungen.empty() ? std::string{} : Box.Meldungen.back().Text;
}

} // namespace varnholt::test
