// Every opcode against the table tests/golden/simulator/Befehle.txt, and length and cycles of all
// opcodes against the model.
#include "language/Befehle.h"
#include "simulator/Vergleich.h"

#include <array>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>

namespace varnholt::test {
namespace {

struct Zeile_T {
    int         Nummer = 0;
    std::string Bytes{}, Takte{}, Vorher{}, Danach{}, Befehl{};
};

std::string Gekuerzt(const std::string& Text)
{
    const auto a = Text.find_first_not_of(' ');
    const auto e = Text.find_last_not_of(' ');
    return a == std::string::npos ? std::string{} : Text.substr(a, e - a + 1);
}

std::vector<Zeile_T> Tabelle_Lesen()
{
    std::ifstream        Datei(VARNHOLT_TEST_DATA "/golden/simulator/Befehle.txt");
    std::vector<Zeile_T> Zeilen;
    std::string          Text;
    for (int Nummer = 1; std::getline(Datei, Text); ++Nummer) {
        if (Text.empty() || Text[0] == ';')
            continue;
        std::array<std::string, 5> Feld;
        std::istringstream         Strom(Text);
        for (auto& f : Feld) {
            std::getline(Strom, f, '|');
            f = Gekuerzt(f);
        }
        Zeilen.push_back({Nummer, Feld[0], Feld[1], Feld[2], Feld[3], Feld[4]});
    }
    return Zeilen;
}

// What a row speaks about.
struct Stand_T {
    Maschine_T                           M{};
    std::map<std::int32_t, std::uint8_t> Bild{};
    bool                                 Ziel_Zuerst = true;

    std::uint8_t& R(int Index) { return M.Sim_RAM.at(static_cast<std::size_t>(Index)); }

    void Maske(std::uint8_t Bits, int Wert)
    {
        R(SFR::PSW) = static_cast<std::uint8_t>((R(SFR::PSW) & ~Bits) | (Wert * (Bits & -Bits)));
    }
    void Setzen(const std::string& Wort)
    {
        const auto        g    = Wort.find('=');
        const std::string Name = Wort.substr(0, g);
        const std::string Text = Wort.substr(g + 1);
        if (Name == "PRIO")
            M.Sim_Prio = static_cast<std::int16_t>(std::stoi(Text));
        else
            Setzen(Name, Hex_Wert(Text));
    }
    void Setzen(const std::string& Name, std::int32_t Wert)
    {
        const auto Byte = static_cast<std::uint8_t>(Wert);
        const auto Ort  = Name.find('[');
        if (Ort != std::string::npos)
            Speicher(Name[0], Hex_Wert(Name.substr(Ort + 1, Name.size() - Ort - 2)), Byte);
        else if (Name[0] == 'R' && Name != "RS")
            R((R(SFR::PSW) & 0x18) + Name[1] - '0') = Byte;
        else
            Register(Name, Wert);
    }
    void Speicher(char Art, std::int32_t Ort, std::uint8_t Byte)
    {
        if (Art == 'X')
            M.Sim_XRAM.at(static_cast<std::size_t>(Ort)) = Byte;
        else if (Art == 'C')
            Bild[Ort] = Byte;
        else
            R(Ort) = Byte;
    }
    void Register(const std::string& Name, std::int32_t Wert)
    {
        const std::map<std::string, int> Ganze{
            {"A", 0xE0}, {"B", 0xF0}, {"PSW", 0xD0}, {"SP", 0x81}};
        const std::map<std::string, int> Masken{{"CY", 0x80}, {"AC", 0x40}, {"OV", 4}, {"RS", 24}};
        if (Ganze.contains(Name))
            R(Ganze.at(Name)) = static_cast<std::uint8_t>(Wert);
        else if (Masken.contains(Name))
            Maske(static_cast<std::uint8_t>(Masken.at(Name)), Wert);
        else if (Name == "DPTR") {
            R(SFR::DPH) = static_cast<std::uint8_t>(Wert / 256);
            R(SFR::DPL) = static_cast<std::uint8_t>(Wert % 256);
        } else if (Name == "PC")
            M.Sim_PC = Wert;
        else if (Name == "ZQ")
            Ziel_Zuerst = Wert != 0;
        else
            ADD_FAILURE() << "unknown name " << Name;
    }
    void Alle_Setzen(const std::string& Worte)
    {
        std::istringstream Strom(Worte);
        for (std::string Wort; Strom >> Wort;)
            Setzen(Wort);
    }
};

Stand_T Grundstand()
{
    Stand_T s;
    for (int i = 0; i < Sim_RAM_Groesse; ++i)
        if (i < 128 || i > 255)
            s.R(i) = static_cast<std::uint8_t>(i * 5 + 3);
    for (std::size_t i = 0; i < s.M.Sim_XRAM.size(); ++i)
        s.M.Sim_XRAM[i] = static_cast<std::uint8_t>(i * 7 + (i >> 8));
    s.R(SFR::SP) = 7;
    s.M.Sim_PC   = 0x100;
    return s;
}

class Befehle : public Maschinen_Welt {
protected:
    static void Aufstellen(const Zeile_T& Zeile, const Stand_T& Vorher)
    {
        Hex_Daten.fill(0xFF);
        for (const auto& [Ort, Byte] : Vorher.Bild)
            Hex_Daten.at(static_cast<std::size_t>(Ort)) = Byte;
        Code(Vorher.M.Sim_PC, Zeile.Bytes);
        O_MOV_ZQ = Vorher.Ziel_Zuerst;
        Maschine = Vorher.M;
    }
    static Stand_T Erwartung(const Zeile_T& Zeile, const Stand_T& Vorher)
    {
        Stand_T Soll = Vorher;
        Soll.M.Sim_PC += static_cast<int>(Zeile.Bytes.size() + 1) / 3;
        Soll.M.Sim_Zyklen += std::stoi(Zeile.Takte);
        Soll.Alle_Setzen(Zeile.Danach);
        if (Zeile.Takte == "0")
            return Soll;
        int Einsen = 0;
        for (int a = Soll.R(SFR::ACC); a > 0; a /= 2)
            Einsen += a % 2;
        Soll.Maske(1, Einsen % 2);
        const int                P3 = Soll.R(SFR::P3), P1 = Soll.R(SFR::P1);
        const std::array<int, 6> Pins{P3 >> 4, P3 >> 5, P1, P1 >> 1, P3 >> 2, P3 >> 3};
        for (std::size_t i = 0; i < 6; ++i)
            Soll.M.Sim_Pins.at(i) = static_cast<std::int16_t>(Pins.at(i) & 1);
        return Soll;
    }
    template <class Laufen> static void Pruefen(const Zeile_T& Zeile, Laufen Einer)
    {
        SCOPED_TRACE("Befehle.txt:" + std::to_string(Zeile.Nummer) + ": " + Zeile.Bytes + " " +
                     Zeile.Befehl);
        Stand_T Vorher = Grundstand();
        Vorher.Alle_Setzen(Zeile.Vorher);
        Stand_T Soll = Erwartung(Zeile, Vorher);
        Aufstellen(Zeile, Vorher);
        const Lauf_Ergebnis Lauf = Einer();
        EXPECT_EQ(Lauf.Befehle, Zeile.Takte == "0" ? 0 : 1);
        EXPECT_EQ(Unterschied(Sim_RAM, Soll.M.Sim_RAM), "");
        EXPECT_TRUE(Sim_XRAM == Soll.M.Sim_XRAM);
        EXPECT_EQ(Hex_Zahl(Sim_PC, 4), Hex_Zahl(Soll.M.Sim_PC, 4));
        EXPECT_EQ(Sim_Zyklen, Soll.M.Sim_Zyklen);
        EXPECT_EQ(Sim_Prio, Soll.M.Sim_Prio);
        EXPECT_EQ(Sim_Pins, Soll.M.Sim_Pins);
    }
};

TEST_F(Befehle, the_table_knows_every_opcode)
{
    std::set<std::int32_t> Gesehen;
    for (const auto& Zeile : Tabelle_Lesen())
        Gesehen.insert(Hex_Wert(Zeile.Bytes.substr(0, 2)));
    EXPECT_EQ(Gesehen.size(), 256U);
}

TEST_F(Befehle, each_does_what_the_table_says_step_by_step)
{
    for (const auto& Zeile : Tabelle_Lesen())
        Pruefen(Zeile, Befehl_Ausfuehren);
}

TEST_F(Befehle, each_does_what_the_table_says_at_full_speed)
{
    for (const auto& Zeile : Tabelle_Lesen())
        Pruefen(Zeile, [] { return Vollgas_Laufen(1); });
}

TEST_F(Befehle, each_does_what_the_table_says_on_the_model_too)
{
    Vergleichs_Maschine Modell;
    for (const auto& Zeile : Tabelle_Lesen())
        Pruefen(Zeile, [&Modell] {
            Modell_Stellen(Modell);
            const auto Ende = Modell.Schritt();
            Maschine_Stellen(Modell);
            return Lauf_Ergebnis{Ende == Vergleichs_Maschine::Ende::Gelaufen ? 1 : 0};
        });
}

TEST_F(Befehle, have_the_lengths_and_cycles_of_the_manual_with_four_exceptions)
{
    for (int Opcode = 0; Opcode < 256; ++Opcode) {
        const auto Byte = static_cast<std::uint8_t>(Opcode);
        EXPECT_EQ(Befehl_Laenge(Byte), Vergleichs_Maschine::Laenge(Opcode)) << Hex_Zahl(Opcode);
        EXPECT_EQ(Befehl_Zyklen(Byte), Vergleichs_Maschine::Takte(Opcode)) << Hex_Zahl(Opcode);
    }
    EXPECT_EQ(Befehl_Zyklen(0xA0), 1);
    EXPECT_EQ(Befehl_Zyklen(0xB0), 1);
    EXPECT_EQ(Befehl_Zyklen(0xA3), 1);
    EXPECT_EQ(Befehl_Zyklen(0xA5), 0);
    EXPECT_EQ(Befehl_Laenge(0xA5), 1);
}

// --- runs ---

class Laeufe : public Maschinen_Welt {};

TEST_F(Laeufe, the_address_behind_the_last_is_0)
{
    Code(0, "02 FF FF");
    Schritte(1);
    EXPECT_EQ(Sim_PC, 0xFFFF);
    Schritte(1);
    EXPECT_EQ(Sim_PC, 0);
}

TEST_F(Laeufe, a_jump_beyond_the_last_address_lands_at_0_and_not_at_the_rest)
{
    Sim_PC = 0xFFFE;
    Mache("80 25");
    EXPECT_EQ(Sim_PC, 0);
}

TEST_F(Laeufe, below_address_0_nothing_is_executed)
{
    Mache("80 F0");
    EXPECT_EQ(Sim_PC, -14);
    const Maschine_T Vorher = Maschine;
    for (const Lauf_Ergebnis& e : {Befehl_Ausfuehren(), Vollgas_Laufen(10)}) {
        EXPECT_EQ(e.Befehle, 0);
        EXPECT_EQ(e.Grund, Lauf_Grund::Unter_Null);
    }
    EXPECT_EQ(Unterschied(Maschine, Vorher), "");
}

TEST_F(Laeufe, full_speed_ends_below_address_0)
{
    Code(0, "00 80 F0");
    const Lauf_Ergebnis e = Vollgas_Laufen(1000);
    EXPECT_EQ(e.Befehle, 2);
    EXPECT_EQ(e.Grund, Lauf_Grund::Unter_Null);
    EXPECT_EQ(Sim_PC, -13);
}

TEST_F(Laeufe, full_speed_ends_at_a_stop_point_which_counts_as_no_instruction)
{
    Code(0, "04 04 A5 04");
    Lauf_Ergebnis e = Vollgas_Laufen(1000);
    EXPECT_EQ(e.Befehle, 2);
    EXPECT_EQ(e.Grund, Lauf_Grund::Stoppunkt);
    EXPECT_EQ(Sim_PC, 2);
    EXPECT_EQ(Sim_Zyklen, 2);
    e = Vollgas_Laufen(1000);
    EXPECT_EQ(e.Befehle, 0);
    EXPECT_EQ(e.Grund, Lauf_Grund::Stoppunkt);
}

TEST_F(Laeufe, a_run_that_reaches_its_limit_on_a_stop_point_reports_the_limit)
{
    Code(0, "04 04 A5");
    const Lauf_Ergebnis e = Vollgas_Laufen(2);
    EXPECT_EQ(e.Befehle, 2);
    EXPECT_EQ(e.Grund, Lauf_Grund::Grenze);
}

TEST_F(Laeufe, full_speed_does_nothing_when_nothing_is_allowed)
{
    Sim_PC                  = 0x40;
    const Maschine_T Vorher = Maschine;
    for (const int Hoechstens : {0, -1}) {
        const Lauf_Ergebnis e = Vollgas_Laufen(Hoechstens);
        EXPECT_EQ(e.Befehle, 0);
        EXPECT_EQ(e.Grund, Lauf_Grund::Grenze);
    }
    EXPECT_EQ(Unterschied(Maschine, Vorher), "");
}

TEST_F(Laeufe, full_speed_does_not_ask_for_a_session)
{
    ASSERT_FALSE(Debugger_Aktiv);
    EXPECT_EQ(Vollgas_Laufen(100000).Befehle, 100000);
    EXPECT_EQ(Sim_PC, 100000 - 65536);
}

TEST_F(Laeufe, the_cycle_counter_wraps_as_32_bits_do)
{
    Code(0, "A4 A4");
    Sim_Zyklen = INT32_MAX - 1;
    Schritte(1);
    EXPECT_EQ(Sim_Zyklen, INT32_MIN + 2);
    Sim_PC     = 0;
    Sim_Zyklen = INT32_MAX - 1;
    Vollgas_Laufen(2);
    EXPECT_EQ(Sim_Zyklen, INT32_MIN + 6);
}

TEST_F(Laeufe, the_image_is_read_and_never_written)
{
    Code(0, "75 81 FF 12 00 10");
    Code(0x10, "F0 76 00 C0 00 80 F9");
    const auto Vorher = std::make_unique<decltype(Bild_T::Hex_Daten)>(Hex_Daten);
    Vollgas_Laufen(2000);
    EXPECT_TRUE(Hex_Daten == *Vorher);
}

} // namespace
} // namespace varnholt::test
