// Holds each processor file against an independent list of the chip's special function registers
// (tests/data/processor/<name>.tsv) and against the rules that all processor files follow.
#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "language/Assembler_Zustand.h"
#include "language/Namen.h"
#include "support/scripted_platform.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

const fs::path Listen_Ordner = fs::path{VARNHOLT_TEST_DATA} / "data" / "processor";
const fs::path Datei_Ordner  = fs::path{VARNHOLT_DATA} / "mc";

// Address and kind of a name: what a list says and what an assembled file gives.
struct Ort_T {
    std::int32_t Adresse                         = 0;
    int          Art                             = 0; // Name_Byte or Name_Bit
    auto         operator<=>(const Ort_T&) const = default;
};
using Namens_Orte = std::map<std::string, Ort_T>;

void PrintTo(const Ort_T& Ort, std::ostream* Aus)
{
    *Aus << (Ort.Art == Name_Bit ? "bit " : "byte ") << std::hex << Ort.Adresse << 'h' << std::dec;
}

std::vector<std::string> An_Tabs_Teilen(const std::string& Zeile)
{
    std::vector<std::string> Felder;
    std::istringstream       Ein{Zeile};
    for (std::string Feld; std::getline(Ein, Feld, '\t');)
        Felder.push_back(Feld);
    return Felder;
}

// The rows of a table file, its fields separated by tabs, without comments and empty lines.
std::vector<std::vector<std::string>> Zeilen_Lesen(const fs::path& Pfad)
{
    std::vector<std::vector<std::string>> Zeilen;
    std::ifstream                         Ein{Pfad};
    EXPECT_TRUE(Ein) << Pfad;
    for (std::string Zeile; std::getline(Ein, Zeile);)
        if (!Zeile.empty() && Zeile.front() != '#')
            Zeilen.push_back(An_Tabs_Teilen(Zeile));
    return Zeilen;
}

// Names of a folder's files with that extension, without it, in order.
std::vector<std::string> Namen_Im_Ordner(const fs::path& Ordner, const std::string& Endung)
{
    std::vector<std::string> Namen_Gefunden;
    if (!fs::is_directory(Ordner))
        return Namen_Gefunden;
    for (const auto& Eintrag : fs::directory_iterator{Ordner})
        if (Eintrag.path().extension() == Endung)
            Namen_Gefunden.push_back(Eintrag.path().stem().string());
    std::sort(Namen_Gefunden.begin(), Namen_Gefunden.end());
    return Namen_Gefunden;
}

// Tables in the folder of the lists that are no list of a chip.
bool Ist_Nebentabelle(const std::string& Name)
{
    return Name == "abgeleitet" || Name == "ausnahmen" || Name == "zweitnamen";
}

std::vector<std::string> Alle_Listen()
{
    auto Listen = Namen_Im_Ordner(Listen_Ordner, ".tsv");
    std::erase_if(Listen, Ist_Nebentabelle);
    return Listen;
}

std::vector<std::string> Alle_Dateien() { return Namen_Im_Ordner(Datei_Ordner, ".mc"); }

// One row of a list.
struct Listen_Eintrag {
    std::int32_t Adresse = 0;
    std::string  Art{}; // byte or bit
    std::string  Name{};
};

std::vector<Listen_Eintrag> Liste_Lesen(const std::string& Chip)
{
    std::vector<Listen_Eintrag> Liste;
    for (const auto& Felder : Zeilen_Lesen(Listen_Ordner / (Chip + ".tsv"))) {
        EXPECT_EQ(Felder.size(), 3U) << Chip;
        if (Felder.size() == 3)
            Liste.push_back({std::stoi(Felder[0], nullptr, 16), Felder[1], Felder[2]});
    }
    return Liste;
}

// A difference that is meant: `Liste` is called `Datei` in the file, or left out there for `-`.
struct Ausnahme_T {
    std::string Chip{};
    std::string Liste{};
    std::string Datei{};
    std::string Grund{};
};

std::vector<Ausnahme_T> Ausnahmen_Lesen()
{
    std::vector<Ausnahme_T> Ausnahmen;
    for (const auto& Felder : Zeilen_Lesen(Listen_Ordner / "ausnahmen.tsv")) {
        EXPECT_EQ(Felder.size(), 4U) << "a row of ausnahmen.tsv";
        if (Felder.size() == 4)
            Ausnahmen.push_back({Felder[0], Felder[1], Felder[2], Felder[3]});
    }
    return Ausnahmen;
}

bool Gilt_Fuer(const Ausnahme_T& Ausnahme, const std::string& Chip)
{
    return Ausnahme.Chip == "*" || Ausnahme.Chip == Chip;
}

// A further name in a file for a place that the list names already.
struct Zweitname_T {
    std::string Chip{};
    std::string Liste{};
    std::string Zweiter{};
};

std::vector<Zweitname_T> Zweitnamen_Lesen()
{
    std::vector<Zweitname_T> Zweitnamen;
    for (const auto& Felder : Zeilen_Lesen(Listen_Ordner / "zweitnamen.tsv")) {
        EXPECT_EQ(Felder.size(), 3U) << "a row of zweitnamen.tsv";
        if (Felder.size() == 3)
            Zweitnamen.push_back({Felder[0], Felder[1], Felder[2]});
    }
    return Zweitnamen;
}

// What the file has to hold by the list, the second names and the exceptions.
Namens_Orte Erwartete_Namen(const std::string& Chip)
{
    Namens_Orte Erwartet;
    for (const auto& [Adresse, Art, Name] : Liste_Lesen(Chip))
        Erwartet[Name] = {Adresse, Art == "bit" ? Name_Bit : Name_Byte};
    for (const auto& [Datei, Name, Zweiter] : Zweitnamen_Lesen())
        if (Datei == Chip && Erwartet.contains(Name))
            Erwartet.emplace(Zweiter, Erwartet.at(Name));
    for (const auto& Ausnahme : Ausnahmen_Lesen()) {
        if (!Gilt_Fuer(Ausnahme, Chip))
            continue;
        auto Knoten = Erwartet.extract(Ausnahme.Liste);
        if (Knoten && Ausnahme.Datei != "-") {
            Knoten.key() = Ausnahme.Datei;
            Erwartet.insert(std::move(Knoten));
        }
    }
    return Erwartet;
}

bool Ist_Port_Eintrag(const Namen_Eintrag& Eintrag)
{
    return Eintrag.Name.size() == 5 && Eintrag.Name.starts_with("PORT");
}

// The DATA and BIT names of the last assembly; the first definition of a name counts.
Namens_Orte Definierte_Namen()
{
    Namens_Orte Orte;
    for (const auto& Eintrag : Namen_Tabelle)
        if ((Eintrag.Art == Name_Byte || Eintrag.Art == Name_Bit) && !Ist_Port_Eintrag(Eintrag))
            Orte.emplace(Eintrag.Name, Ort_T{Eintrag.Wert, Eintrag.Art});
    return Orte;
}

// A line for each name that stands on one side only or at different places.
std::string Unterschiede(const Namens_Orte& Soll, const Namens_Orte& Ist)
{
    std::ostringstream    Aus;
    std::set<std::string> Alle;
    for (const auto& [Name, Ort] : Soll)
        Alle.insert(Name);
    for (const auto& [Name, Ort] : Ist)
        Alle.insert(Name);
    const auto Zeigen = [&Aus](const Namens_Orte& Orte, const std::string& Name) {
        if (const auto Fund = Orte.find(Name); Fund != Orte.end())
            PrintTo(Fund->second, &Aus);
        else
            Aus << "nothing";
    };
    for (const auto& Name : Alle) {
        const auto a = Soll.find(Name), b = Ist.find(Name);
        if (a != Soll.end() && b != Ist.end() && a->second == b->second)
            continue;
        Aus << Name << ": list has ";
        Zeigen(Soll, Name);
        Aus << ", file has ";
        Zeigen(Ist, Name);
        Aus << '\n';
    }
    return Aus.str();
}

std::string Gross(std::string Text)
{
    for (char& c : Text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return Text;
}

// A definition as it is typed in a file: `P1 DATA 90h`.
struct Definition_T {
    std::string Name{};
    std::string Art{}; // DATA, BIT or EQU
};

std::vector<Definition_T> Definitionen_Lesen(const std::string& Chip)
{
    std::vector<Definition_T> Definitionen;
    std::ifstream             Ein{Datei_Ordner / (Chip + ".mc")};
    EXPECT_TRUE(Ein) << Chip;
    for (std::string Zeile; std::getline(Ein, Zeile);) {
        std::istringstream Worte{Zeile.substr(0, Zeile.find(';'))};
        Definition_T       Neue;
        if (Worte >> Neue.Name >> Neue.Art && Gross(Neue.Name) != "CONST")
            Definitionen.push_back(Neue);
    }
    return Definitionen;
}

// Everything that a processor file leaves behind: names with value, kind and CONST text.
using Ergebnis_T = std::vector<std::tuple<std::string, std::int32_t, std::string, int>>;

Ergebnis_T Ergebnis()
{
    Ergebnis_T Alle;
    for (const auto& e : Namen_Tabelle)
        Alle.emplace_back(e.Name, e.Wert, e.Const_Text, e.Art);
    return Alle;
}

// One instruction for each name, and the two bytes that it has to give.
struct Probe_T {
    std::string               Text{};
    std::vector<std::uint8_t> Bytes{};
};

Probe_T Probe_Schreiben(const Namens_Orte& Orte)
{
    Probe_T Probe;
    for (const auto& [Name, Ort] : Orte) {
        const bool Bit = Ort.Art == Name_Bit;
        Probe.Text += (Bit ? "CPL " : "MOV A,") + Name + "\r\n";
        Probe.Bytes.push_back(Bit ? 0xB2 : 0xE5);
        Probe.Bytes.push_back(static_cast<std::uint8_t>(Ort.Adresse));
    }
    return Probe;
}

} // namespace

// Assembles programs that include a processor file from the program folder.
class Prozessordatei_Welt : public Welt {
protected:
    Prozessordatei_Welt()
    {
        Programm_Pfad = std::string(VARNHOLT_DATA) + "/";
        Datei_Name    = "";
    }

    void Einbinden(const std::string& Chip, const std::string& Programm = {})
    {
        Plattform.Edit->Text_Setzen("INCLUDE " + Chip + ".mc\r\n" + Programm);
        Assemblieren();
        ASSERT_EQ(Assembler_Fehler, 0) << Chip << ": " << Letzte_Meldung();
    }
};

class Registerlisten : public Prozessordatei_Welt,
                       public ::testing::WithParamInterface<std::string> {};
class Prozessordateien : public Prozessordatei_Welt,
                         public ::testing::WithParamInterface<std::string> {};

std::string Fallname(const ::testing::TestParamInfo<std::string>& Fall)
{
    return "Mc_" + Fall.param;
}

INSTANTIATE_TEST_SUITE_P(mc, Registerlisten, ::testing::ValuesIn(Alle_Listen()), Fallname);
INSTANTIATE_TEST_SUITE_P(mc, Prozessordateien, ::testing::ValuesIn(Alle_Dateien()), Fallname);

TEST_P(Registerlisten, are_ordered_by_address_and_name_nothing_twice)
{
    std::set<std::string>       Gesehen;
    std::pair<int, std::string> Letzter{0x80, ""};
    for (const auto& [Adresse, Art, Name] : Liste_Lesen(GetParam())) {
        const std::pair<int, std::string> Dieser{Adresse, Art == "byte" ? "a" : "b"};
        EXPECT_LE(Letzter, Dieser) << Name;
        EXPECT_LE(Adresse, 0xFF) << Name;
        EXPECT_TRUE(Art == "byte" || Art == "bit") << Name;
        EXPECT_EQ(Name, Gross(Name));
        EXPECT_TRUE(Gesehen.insert(Name).second) << Name << " stands twice";
        Letzter = Dieser;
    }
    EXPECT_FALSE(Gesehen.empty());
}

TEST_P(Registerlisten, have_bits_only_in_listed_bit_addressable_registers)
{
    std::set<std::int32_t> Register;
    const auto             Liste = Liste_Lesen(GetParam());
    for (const auto& [Adresse, Art, Name] : Liste)
        if (Art == "byte")
            Register.insert(Adresse);
    for (const auto& [Adresse, Art, Name] : Liste)
        EXPECT_TRUE(Art != "bit" || Register.contains(Adresse & 0xF8)) << Name;
}

TEST_P(Registerlisten, have_the_same_names_as_the_processor_file)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    EXPECT_EQ(Unterschiede(Erwartete_Namen(GetParam()), Definierte_Namen()), "");
}

TEST_P(Prozessordateien, are_assembled_alike_in_both_readings_of_numbers)
{
    Zahlendeutung = false;
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    const auto Dezimal = Ergebnis();
    Zahlendeutung      = true;
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    EXPECT_FALSE(Dezimal.empty());
    EXPECT_EQ(Dezimal, Ergebnis());
}

TEST_P(Prozessordateien, emit_no_byte_and_no_message)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    EXPECT_EQ(Code_Ende, 0);
    EXPECT_EQ(Letztes_Byte(), -1);
    EXPECT_TRUE(Box.Meldungen.empty()) << Letzte_Meldung();
}

TEST_P(Prozessordateien, write_names_in_upper_case)
{
    for (const auto& [Name, Art] : Definitionen_Lesen(GetParam())) {
        EXPECT_EQ(Name, Gross(Name));
        EXPECT_TRUE(Art == "DATA" || Art == "BIT" || Art == "EQU") << Name << ' ' << Art;
    }
}

TEST_P(Prozessordateien, define_each_typed_name_once_and_completely)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    std::set<std::string> Namen_Gesehen;
    for (const auto& Eintrag : Namen_Tabelle)
        EXPECT_TRUE(Namen_Gesehen.insert(Eintrag.Name).second)
            << Eintrag.Name << " is defined twice";
    const auto Definitionen = Definitionen_Lesen(GetParam());
    EXPECT_FALSE(Definitionen.empty());
    for (const auto& [Name, Art] : Definitionen)
        EXPECT_TRUE(Namen_Gesehen.contains(Name)) << Name << " is typed but not defined";
}

TEST_P(Prozessordateien, have_addresses_of_special_function_registers_only)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    for (const auto& [Name, Ort] : Definierte_Namen()) {
        EXPECT_GE(Ort.Adresse, 0x80) << Name;
        EXPECT_LE(Ort.Adresse, 0xFF) << Name;
    }
}

TEST_P(Prozessordateien, have_the_registers_of_the_core)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    const auto        Ist  = Definierte_Namen();
    const Namens_Orte Kern = {
        {"ACC", {0xE0, Name_Byte}},
        {"PSW", {0xD0, Name_Byte}},
        {"SP", {0x81, Name_Byte}},
        {"DPL", {0x82, Name_Byte}},
        {"DPH", {0x83, Name_Byte}},
        {"P1", {0x90, Name_Byte}},
        {"P3", {0xB0, Name_Byte}},
        {"B", {0xF0, Name_Byte}},
    };
    for (const auto& [Name, Ort] : Kern)
        EXPECT_TRUE(Ist.contains(Name) && Ist.at(Name) == Ort) << Name;
    for (const auto& [Name, Adresse] : {std::pair{"P0", 0x80}, std::pair{"P2", 0xA0}})
        EXPECT_TRUE(!Ist.contains(Name) || Ist.at(Name) == (Ort_T{Adresse, Name_Byte})) << Name;
}

TEST_P(Prozessordateien, declare_ports_as_DATA)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    Namens_Orte Ports, Port_Eintraege;
    for (const auto& Eintrag : Namen_Tabelle)
        if (Ist_Port_Eintrag(Eintrag))
            Port_Eintraege.emplace(Eintrag.Name, Ort_T{Eintrag.Wert, Eintrag.Art});
    for (const auto& [Name, Ort] : Definierte_Namen())
        if (Name.size() == 2 && Name[0] == 'P' && Name[1] >= '0' && Name[1] <= '9')
            Ports.emplace("PORT" + Name.substr(1), Ort);
    EXPECT_GE(Ports.size(), 2U);
    EXPECT_EQ(Ports, Port_Eintraege); // only a DATA line gives the PORTn entry
}

TEST_P(Prozessordateien, have_names_that_instructions_can_use)
{
    ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam()));
    const auto Probe = Probe_Schreiben(Definierte_Namen());
    for (const bool Hexadezimal : {false, true}) {
        Zahlendeutung = Hexadezimal;
        ASSERT_NO_FATAL_FAILURE(Einbinden(GetParam(), Probe.Text));
        ASSERT_EQ(Code_Ende, static_cast<std::int32_t>(Probe.Bytes.size()));
        EXPECT_TRUE(std::equal(Probe.Bytes.begin(), Probe.Bytes.end(), Hex_Daten.begin()))
            << (Hexadezimal ? "hexadecimal" : "decimal");
    }
}

TEST_F(Prozessordatei_Welt, has_a_file_for_every_list_and_a_list_for_every_file)
{
    std::set<std::string> Gehalten;
    for (const auto& Chip : Alle_Listen())
        Gehalten.insert(Chip);
    for (const auto& Felder : Zeilen_Lesen(Listen_Ordner / "abgeleitet.tsv"))
        EXPECT_TRUE(Gehalten.insert(Felder.at(0)).second) << Felder.at(0) << " has a list already";
    const auto Dateien = Alle_Dateien();
    EXPECT_EQ(Gehalten, std::set<std::string>(Dateien.begin(), Dateien.end()));
    EXPECT_GE(Alle_Listen().size(), 15U);
}

TEST_F(Prozessordatei_Welt, holds_derived_files_that_equal_their_original)
{
    for (const auto& Felder : Zeilen_Lesen(Listen_Ordner / "abgeleitet.tsv")) {
        ASSERT_EQ(Felder.size(), 2U);
        ASSERT_NO_FATAL_FAILURE(Einbinden(Felder[1]));
        const auto Soll = Definierte_Namen();
        ASSERT_NO_FATAL_FAILURE(Einbinden(Felder[0]));
        EXPECT_EQ(Unterschiede(Soll, Definierte_Namen()), "") << Felder[0];
    }
}

TEST_F(Prozessordatei_Welt, needs_every_exception_and_second_name)
{
    std::set<std::pair<std::string, std::string>> Genannt; // file and name of its list
    for (const auto& Chip : Alle_Listen())
        for (const auto& Eintrag : Liste_Lesen(Chip)) {
            Genannt.emplace(Chip, Eintrag.Name);
            Genannt.emplace("*", Eintrag.Name);
        }
    for (const auto& [Chip, Liste, Datei, Grund] : Ausnahmen_Lesen()) {
        EXPECT_TRUE(Genannt.contains({Chip, Liste})) << Chip << ' ' << Liste;
        EXPECT_NE(Liste, Datei);
        EXPECT_FALSE(Grund.empty()) << Liste;
    }
    for (const auto& [Chip, Liste, Zweiter] : Zweitnamen_Lesen()) {
        EXPECT_TRUE(Genannt.contains({Chip, Liste})) << Chip << ' ' << Liste;
        EXPECT_FALSE(Genannt.contains({Chip, Zweiter})) << Chip << ' ' << Zweiter;
        EXPECT_TRUE(Genannt.contains({"8052", Zweiter}) || Genannt.contains({"8xc51fa", Zweiter}))
            << Chip << ' ' << Zweiter;
    }
}

} // namespace varnholt::test
