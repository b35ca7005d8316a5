// The parser of Spec.ini. A line is a key and its value; a record goes from NAME: to END.
#include "programmer/Specifications.h"

#include "core/codepage.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/shared_state.h"
#include "files/Textdatei.h"
#include "language/Val.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <utility>

namespace varnholt {
namespace {

constexpr std::uintmax_t   Datei_Hoechstens    = 4u << 20; // bytes of the file
constexpr std::size_t      Zeile_Hoechstens    = 1000;     // characters of a line, the rest is cut
constexpr int              Hinweise_Hoechstens = 10;       // notices of one reading
constexpr int              Suche_Bis           = 600; // last device number that _EQUALS: looks at
constexpr std::string_view Test_Marke          = "[TEST PHASE]";

// What a reading keeps from line to line.
struct Lesung_T {
    std::string Name{};                   // of the open record, as it stands in the file
    int         Gruppe           = 0;     // of the last _GROUP:
    int         Nummer           = 0;     // device number that the keys of a record store under
    bool        Satz_Offen       = false; // between NAME: and END
    bool        Satz_Ausgelassen = false; // the open record has no place in the table
    int         Hinweise         = 0;     // given so far
};

struct Text_Feld_T {
    std::string_view Schluessel;
    std::string Geraet_T::*Feld;
};

struct Zahlen_Feld_T {
    std::string_view Schluessel;
    std::int32_t Geraet_T::*Feld;
};

// clang-format off
constexpr Text_Feld_T Text_Felder[] = {
    {"_R-TYP:", &Geraet_T::R_Typ},
    {"_P-TYP:", &Geraet_T::P_Typ},
    {"_E-TYP:", &Geraet_T::E_Typ},
    {"_L-TYP:", &Geraet_T::L_Typ},
};

constexpr Zahlen_Feld_T Zahlen_Felder[] = {
    {"_R-TIMING:",   &Geraet_T::R_Timing},
    {"_P-TIMING:",   &Geraet_T::P_Timing},
    {"_PAGEBYTES:",  &Geraet_T::Seiten_Bytes},
    {"_M-JUMPER1:",  &Geraet_T::M_Jumper1},
    {"_PROGRAMMER:", &Geraet_T::Programmer},
};
// clang-format on

constexpr std::size_t Stelle(int Nummer) { return static_cast<std::size_t>(Nummer); }

// The value of the key, when the line begins with it.
std::optional<std::string_view> Wert_Zu(std::string_view Zeile, std::string_view Schluessel)
{
    if (!Zeile.starts_with(Schluessel))
        return std::nullopt;
    return Zeile.substr(Schluessel.size());
}

// One blank less at either end.
std::string_view Entrandet(std::string_view Text)
{
    if (Text.starts_with(' '))
        Text.remove_prefix(1);
    if (Text.ends_with(' '))
        Text.remove_suffix(1);
    return Text;
}

// The name without the mark of a device in test and the blank ahead of it.
std::string_view Ohne_Marke(std::string_view Name)
{
    if (!Name.ends_with(Test_Marke))
        return Name;
    return Name.substr(0, Name.size() - std::min(Name.size(), Test_Marke.size() + 1));
}

void Hinweisen(Lesung_T& Lesung, const Text_Paar& Text)
{
    if (++Lesung.Hinweise <= Hinweise_Hoechstens)
        Plattform.Box->Hinweisen(In_Sprache(Text));
}

void Groesse_Setzen(int Nummer, std::int32_t Bytes)
{
    Geraete_Tabelle[Stelle(Nummer)].Bytes = Bytes;
    IC_Groesse[Stelle(Nummer + 1)]        = Bytes;
}

// Two characters at position 12 are the number; the last group takes what is out of range.
void Gruppe_Benennen(std::string_view Zeile)
{
    const int n      = Val(Zeile.substr(11, 2));
    const int Gruppe = n >= 0 && n < Gruppen_Anzahl ? n : Gruppen_Anzahl - 1;
    Zeile.remove_prefix(std::min<std::size_t>(Zeile.size(), n < 10 ? 13 : 14));
    Geraete.Gruppen_Namen[Stelle(Gruppe)] = Nach_UTF8(Entrandet(Zeile));
}

void Neues_Spec_Menue(int Gruppe, int Position, std::string_view Text)
{
    if (Position >= 0)
        Geraete.Menue_Texte[Stelle(Gruppe * Gruppen_Plaetze + Position)] = Nach_UTF8(Text);
}

// The record has no place: all its keys up to END are passed over.
void Auslassen(Lesung_T& Lesung, const Text_Paar& Grund)
{
    Lesung.Satz_Ausgelassen = true;
    const std::string Name  = Nach_UTF8(Lesung.Name);
    Hinweisen(Lesung,
              {fmt::format("Spec.ini: Das Bauteil '{}' wurde ausgelassen: {}", Name, Grund.D),
               fmt::format("Spec.ini: device '{}' was left out: {}", Name, Grund.E)});
}

void In_Gruppe_Stellen(Lesung_T& Lesung, int Gruppe)
{
    if (Gruppe < 0 || Gruppe >= Gruppen_Anzahl)
        return Auslassen(Lesung,
                         {fmt::format("Es gibt keine Gruppe {}.", Gruppe),
                          fmt::format("there is no group {}.", Gruppe)});
    int& Belegt = Geraete.Gruppen_Belegt[Stelle(Gruppe)];
    if (Belegt >= Gruppen_Plaetze)
        return Auslassen(Lesung,
                         {fmt::format("Die Gruppe {} ist voll.", Gruppe),
                          fmt::format("group {} is full.", Gruppe)});
    Lesung.Gruppe                               = Gruppe;
    Lesung.Nummer                               = Belegt + Gruppe * Gruppen_Plaetze;
    Geraete_Tabelle[Stelle(Lesung.Nummer)].Name = Nach_UTF8(Ohne_Marke(Lesung.Name));
    Neues_Spec_Menue(Gruppe, Belegt, Lesung.Name);
    ++Belegt;
}

// The first device of that name; null when there is none.
const Geraet_T* Vorbild_Suchen(const std::string& Name)
{
    const auto Plaetze = std::span(Geraete_Tabelle).first<Suche_Bis + 1>();
    const auto p       = std::find_if(
        Plaetze.begin(), Plaetze.end(), [&](const Geraet_T& g) { return g.Name == Name; });
    return p == Plaetze.end() ? nullptr : &*p;
}

// Takes everything over from the first device of that name, but the two names.
void Gleichsetzen(int Nummer, std::string_view Vorbild_Name)
{
    Geraet_T&       Geraet  = Geraete_Tabelle[Stelle(Nummer)];
    const Geraet_T* Vorbild = Vorbild_Suchen(Nach_UTF8(Vorbild_Name));
    if (Vorbild == nullptr) {
        Geraet.Name = "Error in Spec.ini";
        return;
    }
    Geraet_T Kopie   = *Vorbild;
    Kopie.Name       = std::move(Geraet.Name);
    Kopie.Menue_Name = std::move(Geraet.Menue_Name);
    Geraet           = std::move(Kopie);
    Groesse_Setzen(Nummer, Geraet.Bytes);
}

void Menue_Benennen(const Lesung_T& Lesung, std::string_view Text)
{
    Geraete_Tabelle[Stelle(Lesung.Nummer)].Menue_Name = Nach_UTF8(Text);
    Neues_Spec_Menue(Lesung.Gruppe, Geraete.Gruppen_Belegt[Stelle(Lesung.Gruppe)] - 1, Text);
}

// No device is larger than the image, which all of them are read into and written from.
void Groesse_Lesen(Lesung_T& Lesung, std::int32_t Bytes)
{
    const std::int32_t Begrenzt = std::clamp(Bytes, 0, Bild_Groesse);
    Groesse_Setzen(Lesung.Nummer, Begrenzt);
    if (Begrenzt == Bytes)
        return;
    const std::string Name = Nach_UTF8(Lesung.Name);
    Hinweisen(
        Lesung,
        {fmt::format("Spec.ini: Das Bauteil '{}' kann keine {} Bytes haben, angenommen: {}.",
                     Name,
                     Bytes,
                     Begrenzt),
         fmt::format(
             "Spec.ini: device '{}' can't have {} bytes, taken as {}.", Name, Bytes, Begrenzt)});
}

// _E-JUMPER0: to _E-JUMPER4:
void Jumper_Lesen(Geraet_T& Geraet, std::string_view Zeile)
{
    const auto Rest = Wert_Zu(Zeile, "_E-JUMPER");
    if (Rest && Rest->size() >= 2 && (*Rest)[0] >= '0' && (*Rest)[0] <= '4' && (*Rest)[1] == ':')
        Geraet.E_Jumper[Stelle((*Rest)[0] - '0')] = Val(Rest->substr(2));
}

// The keys that only store a field.
void Feld_Lesen(Geraet_T& Geraet, std::string_view Zeile)
{
    for (const Text_Feld_T& f : Text_Felder)
        if (const auto Wert = Wert_Zu(Zeile, f.Schluessel))
            Geraet.*f.Feld = Nach_UTF8(*Wert);
    for (const Zahlen_Feld_T& f : Zahlen_Felder)
        if (const auto Wert = Wert_Zu(Zeile, f.Schluessel))
            Geraet.*f.Feld = Val(*Wert);
    Jumper_Lesen(Geraet, Zeile);
}

// All keys but _GROUP: store under the number that the last _GROUP: has set, even if that was in
// an earlier record.
void Schluessel_Lesen(Lesung_T& Lesung, std::string_view Zeile)
{
    if (const auto Gruppe = Wert_Zu(Zeile, "_GROUP:"))
        In_Gruppe_Stellen(Lesung, Val(*Gruppe));
    else if (const auto Vorbild = Wert_Zu(Zeile, "_EQUALS:"))
        Gleichsetzen(Lesung.Nummer, *Vorbild);
    else if (const auto Menue = Wert_Zu(Zeile, "_MENU-NAME:"))
        Menue_Benennen(Lesung, *Menue);
    else if (const auto Bytes = Wert_Zu(Zeile, "_BYTES:"))
        Groesse_Lesen(Lesung, Val(*Bytes));
    else
        Feld_Lesen(Geraete_Tabelle[Stelle(Lesung.Nummer)], Zeile);
}

void Satz_Oeffnen(Lesung_T& Lesung, std::string_view Name)
{
    Lesung.Satz_Offen       = true;
    Lesung.Satz_Ausgelassen = false;
    Lesung.Name             = Entrandet(Name);
}

void Zeile_Lesen(Lesung_T& Lesung, std::string_view Zeile)
{
    if (Lesung.Satz_Offen) {
        Lesung.Satz_Offen = !Zeile.starts_with("END");
        if (Lesung.Satz_Offen && !Lesung.Satz_Ausgelassen)
            Schluessel_Lesen(Lesung, Zeile);
    } else if (Zeile.starts_with("GROUP_NAME#")) {
        Gruppe_Benennen(Zeile);
    } else if (const auto Name = Wert_Zu(Zeile, "NAME:")) {
        Satz_Oeffnen(Lesung, *Name);
    }
}

// An empty table; the selection, which comes from the settings, stays.
void Tabelle_Leeren()
{
    const int Auswahl = IC_Nummer;
    Geraete_Zuruecksetzen();
    IC_Nummer = Auswahl;
}

} // namespace

void Spec_Auswerten(std::string_view Text)
{
    Tabelle_Leeren();
    Lesung_T    Lesung;
    std::string Zeile;
    while (!Text.empty()) {
        const std::size_t Ende = std::min(Text.find_first_of("\r\n"), Text.size());
        Gross_In(Text.substr(0, std::min(Ende, Zeile_Hoechstens)), Zeile);
        Zeile_Lesen(Lesung, Zeile);
        Text.remove_prefix(std::min(Ende + 1, Text.size()));
    }
    if (Lesung.Hinweise > Hinweise_Hoechstens)
        Plattform.Box->Hinweisen(In_Sprache({"Spec.ini: weitere Hinweise werden nicht gezeigt.",
                                             "Spec.ini: further notices are not shown."}));
}

bool Spec_Lesen()
{
    Tabelle_Leeren();
    auto Bytes = Datei_Lesen(Pfad_Aus_Text(Programm_Pfad + "Spec.ini"), Datei_Hoechstens);
    if (Bytes)
        Spec_Auswerten(Text_Entschluesseln(std::move(*Bytes)).Text);
    else if (Sprache == "D")
        Melden({"Die Datei Spec.ini ist nicht vorhanden oder fehlerhaft !", {}});
    return Bytes.has_value();
}

} // namespace varnholt
