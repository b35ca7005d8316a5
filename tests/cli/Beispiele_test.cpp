// The sample programs: all assemble, for the chip and for the debugger; those that are made for the
// debugger run, and end at their STOP with the result that their comments promise; the English and
// the German text alike.
#include "cli/Cli_Hilfe.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>

namespace varnholt::test {
namespace {

using Json = nlohmann::json;

constexpr const char* Lauflichter[] = {"samples/runninglights.asm", "beispiele/lauflicht.asm"};
constexpr const char* Sortierte[]   = {"samples/sorting.asm", "beispiele/sortieren.asm"};

constexpr const char* Einfuehrung[] = {"samples/Introduction.asm", "beispiele/einführung-1.asm"};
constexpr const char* Speicher[]    = {"samples/memory.asm", "beispiele/speicher.asm"};
constexpr const char* Makros[]      = {"samples/macros.asm", "beispiele/makros.asm"};

// Each sample in English and in German.
constexpr const char* Paare[][2] = {{Einfuehrung[0], Einfuehrung[1]},
                                    {"samples/clock.asm", "beispiele/uhr.asm"},
                                    {"samples/serial.asm", "beispiele/seriell.asm"},
                                    {"samples/sevenseg.asm", "beispiele/siebensegment.asm"},
                                    {Lauflichter[0], Lauflichter[1]},
                                    {Sortierte[0], Sortierte[1]},
                                    {Speicher[0], Speicher[1]},
                                    {Makros[0], Makros[1]}};

class Beispiele : public Cli {
protected:
    static std::string Pfad(const char* Name) { return std::string(VARNHOLT_DATA "/") + Name; }

    Json Simuliert(const char* Name, const std::vector<std::string>& Optionen = {})
    {
        std::vector<std::string> Zeile{"simulate", Pfad(Name), "--json"};
        Zeile.insert(Zeile.end(), Optionen.begin(), Optionen.end());
        const auto r = Laufen(Zeile);
        EXPECT_EQ(r.Status, 0) << Name;
        EXPECT_EQ(r.Fehler, "") << Name;
        return Json::parse(r.Aus);
    }
    // Bytes of Sim_RAM as digits.
    static std::string RAM(const Json& j, std::size_t Ab, std::size_t Anzahl = 1)
    {
        return j["ram"].get<std::string>().substr(2 * Ab, 2 * Anzahl);
    }
    // The image without a debugger.
    std::string Bild(const char* Name, const std::vector<std::string>& Optionen = {})
    {
        std::vector<std::string> Zeile{"assemble", Pfad(Name), "-o", "x.bin"};
        Zeile.insert(Zeile.end(), Optionen.begin(), Optionen.end());
        const auto r = Laufen(Zeile);
        EXPECT_EQ(r.Status, 0) << r.Fehler;
        return Lesen("x.bin");
    }
    static std::string Text(const char* Name)
    {
        std::ifstream Datei(Pfad(Name), std::ios::binary);
        return {std::istreambuf_iterator<char>(Datei), {}};
    }
};

// --- running lights ---

TEST_F(Beispiele, the_running_lights_stop_behind_two_ways_to_and_fro)
{
    for (const char* Name : Lauflichter) {
        const Json j = Simuliert(Name);
        EXPECT_EQ(j["stopped"], "stop point") << Name;
        EXPECT_EQ(RAM(j, 0x30), "1C") << "steps";
        EXPECT_EQ(RAM(j, 0x90), "FE") << "the light is back at P1.0";
        EXPECT_EQ(RAM(j, 0x81), "3F") << "the stack is empty";
        EXPECT_EQ(j["prio"], -1) << "no interrupt is in service";
        EXPECT_NE(RAM(j, 0x31, 2), "0000") << "the main program has worked meanwhile";
    }
}

// Every pattern of P1, as long as it stands.
TEST_F(Beispiele, the_light_runs_to_and_fro_through_every_LED)
{
    const std::string Ports[] = {"FE", "FD", "FB", "F7", "EF", "DF", "BF", "7F"};
    for (const char* Name : Lauflichter)
        for (int Schritt = 0; Schritt < 28; ++Schritt) {
            // a step each 300 ticks, about 200 instructions; half a step behind it
            const int  Befehle = 90 + Schritt * 144;
            const Json j       = Simuliert(Name, {"--instructions", std::to_string(Befehle)});
            const int  Getan   = std::stoi(RAM(j, 0x30), nullptr, 16);
            const int  Ort     = Getan % 14 < 8 ? Getan % 14 : 14 - Getan % 14;
            EXPECT_EQ(RAM(j, 0x90), Ports[Ort]) << Name << " after " << Befehle;
            EXPECT_NEAR(Getan, Schritt, 1);
        }
}

TEST_F(Beispiele, single_steps_through_the_lights_end_at_the_same_place)
{
    for (const char* Name : Lauflichter)
        EXPECT_EQ(Simuliert(Name, {"--line-mode"}), Simuliert(Name));
}

TEST_F(Beispiele, on_a_chip_the_lights_run_on_with_longer_pauses)
{
    for (const char* Name : Lauflichter) {
        const std::string b = Bild(Name);
        EXPECT_EQ(b.find('\xA5'), std::string::npos) << "no stop point";
        EXPECT_NE(b.find("\x75\x8C\x3C\x75\x8A\xB0"), std::string::npos) << "15536 = 3CB0h";
    }
}

// --- sorting and searching ---

TEST_F(Beispiele, the_numbers_are_sorted_and_the_wanted_one_found_twice)
{
    for (const char* Name : Sortierte) {
        const Json j = Simuliert(Name);
        EXPECT_EQ(j["stopped"], "stop point") << Name;
        EXPECT_EQ(RAM(j, 0x40, 12), "0205070C121B2128405B96FE") << Name;
        EXPECT_EQ(RAM(j, 0x31, 2), "0505") << "found at place 5 both ways";
        EXPECT_EQ(RAM(j, 2), "0C") << "the counter of FOR is one beyond";
        EXPECT_EQ(RAM(j, 0x81), "5F");
    }
}

// The same with another number searched.
TEST_F(Beispiele, every_number_is_found_and_no_other)
{
    const int Zahlen[] = {2, 5, 7, 12, 18, 27, 33, 40, 64, 91, 150, 254};
    for (const char* Name : Sortierte)
        for (const int Gesucht : {0, 1, 2, 5, 6, 12, 13, 40, 150, 253, 254, 255}) {
            std::string       Quelle = Text(Name);
            const std::size_t Stelle = Quelle.find("EQU %27");
            ASSERT_NE(Stelle, std::string::npos);
            Quelle.replace(Stelle, 7, "EQU %" + std::to_string(Gesucht));
            Schreiben("x.asm", Quelle);
            const auto r = Laufen({"simulate", "x.asm", "--json"});
            if (Gesucht == 0) { // IF A<#0 can never be true
                EXPECT_EQ(r.Status, 1);
                continue;
            }
            const auto* Platz    = std::find(std::begin(Zahlen), std::end(Zahlen), Gesucht);
            const auto  Nummer   = Platz - std::begin(Zahlen);
            const bool  Gefunden = Platz != std::end(Zahlen);
            char        Soll[5];
            std::snprintf(Soll,
                          sizeof Soll,
                          "%02X%02X",
                          Gefunden ? static_cast<unsigned>(Nummer) : 255U,
                          Gefunden ? static_cast<unsigned>(Nummer) : 255U);
            EXPECT_EQ(RAM(Json::parse(r.Aus), 0x31, 2), Soll) << Name << " " << Gesucht;
        }
}

TEST_F(Beispiele, single_steps_through_the_sorting_end_at_the_same_place)
{
    for (const char* Name : Sortierte)
        EXPECT_EQ(Simuliert(Name, {"--line-mode"}), Simuliert(Name));
}

// --- the introduction ---

TEST_F(Beispiele, the_introduction_blinks_at_each_start_and_has_counted_before)
{
    for (const char* Name : Einfuehrung) {
        const Json j = Simuliert(Name);
        EXPECT_EQ(j["stopped"], "stop point") << Name;
        EXPECT_EQ(RAM(j, 0, 4), "03090001") << "R0 to R3 of the first four lessons";
        EXPECT_EQ(RAM(j, 0x30, 2), "3709") << "the sum of 1 to 10, and the 9 of the second lesson";
        EXPECT_EQ(RAM(j, 0x90), "FE") << "the LED is lit";
    }
}

TEST_F(Beispiele, on_a_chip_the_LED_of_the_introduction_goes_on_and_off)
{
    for (const char* Name : Einfuehrung) {
        Schreiben("x.bin", Bild(Name));
        // a pause has 4 * 250 * (230 + 2) instructions and some
        const auto Port = [&](int Befehle) {
            const auto r =
                Laufen({"simulate", "x.bin", "--json", "--instructions", std::to_string(Befehle)});
            return RAM(Json::parse(r.Aus), 0x90);
        };
        EXPECT_EQ(Port(1000), "FE") << Name;
        EXPECT_EQ(Port(230000), "FE") << Name;
        EXPECT_EQ(Port(240000), "FF") << Name;
        EXPECT_EQ(Port(470000), "FE") << Name;
    }
}

// --- external RAM ---

TEST_F(Beispiele, the_block_in_the_external_RAM_holds_the_squares_and_their_sum_is_right)
{
    for (const char* Name : Speicher) {
        const Json j = Simuliert(Name, {"--xram-out", "x.ram"});
        EXPECT_EQ(j["stopped"], "stop point") << Name;
        EXPECT_EQ(RAM(j, 0x30, 3), "0004D8") << "errors and sum";
        EXPECT_EQ(RAM(j, 0x81), "3F") << "the stack is empty";
        const std::string Bytes = Lesen("x.ram");
        for (std::size_t i = 0; i < 16; ++i)
            EXPECT_EQ(static_cast<unsigned char>(Bytes.at(0x200 + i)), i * i) << Name << " " << i;
        EXPECT_EQ(Bytes.at(0x1FF), Bytes.at(0x210)) << "nothing beside the block";
    }
}

// --- macros and an include file ---

TEST_F(Beispiele, the_macros_find_the_last_Fibonacci_number_and_the_common_divisor)
{
    for (const char* Name : Makros) {
        const Json j = Simuliert(Name);
        EXPECT_EQ(j["stopped"], "stop point") << Name;
        EXPECT_EQ(RAM(j, 0x30, 5), "18B5200090") << Name;
        EXPECT_EQ(RAM(j, 0x81), "3F") << "the stack is empty";
    }
}

TEST_F(Beispiele, single_steps_through_memory_and_macros_end_at_the_same_place)
{
    for (const auto& Paar : {Einfuehrung, Speicher, Makros})
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(Simuliert(Paar[i], {"--line-mode"}), Simuliert(Paar[i])) << Paar[i];
}

// --- the others: what they do at the chip's pins, as far as the simulator has it ---

TEST_F(Beispiele, the_seven_segments_show_a_0_until_the_button_is_pressed)
{
    for (const char* Name : Paare[3])
        EXPECT_EQ(RAM(Simuliert(Name, {"--instructions", "1000"}), 0x90), "C0") << Name;
}

TEST_F(Beispiele, the_clock_counts_its_seconds_in_decimal_digits)
{
    for (const char* Name : Paare[1]) {
        const Json j = Simuliert(Name, {"--instructions", "6500000"});
        EXPECT_EQ(RAM(j, 0x31, 2), "0012") << Name << ": minutes and hours";
        const int Sekunden = std::stoi(RAM(j, 0x30)); // each half a digit
        EXPECT_GE(Sekunden, 10) << Name;
        EXPECT_LT(Sekunden, 60) << Name;
    }
}

// --- all ---

TEST_F(Beispiele, every_file_of_the_two_folders_has_its_counterpart)
{
    for (const int i : {0, 1}) {
        const char* const Ordner_Name = i == 0 ? "samples" : "beispiele";
        std::size_t       Dateien     = 0;
        for (const auto& Datei : std::filesystem::directory_iterator(Pfad(Ordner_Name))) {
            const std::string Name = Datei.path().filename().string();
            EXPECT_TRUE(std::any_of(std::begin(Paare), std::end(Paare), [&](const auto& Paar) {
                return std::string(Ordner_Name) + "/" + Name == Paar[i];
            })) << Name;
            ++Dateien;
        }
        EXPECT_EQ(Dateien, std::size(Paare));
    }
}

TEST_F(Beispiele, all_of_them_assemble_to_the_same_program_in_both_languages)
{
    for (const auto& Paar : Paare)
        for (const std::vector<std::string>& Art : {std::vector<std::string>{}, {"--debug"}}) {
            const std::string Englisch = Bild(Paar[0], Art);
            EXPECT_FALSE(Englisch.empty()) << Paar[0];
            EXPECT_EQ(Englisch == Bild(Paar[1], Art), &Paar != &Paare[2]) << Paar[1]; // a greeting
        }
}

TEST_F(Beispiele, they_mean_the_same_however_numbers_and_MOV_are_read)
{
    for (const auto& Paar : Paare)
        for (const char* Name : Paar) {
            EXPECT_EQ(Bild(Name, {"--numbers", "hexadecimal"}), Bild(Name)) << Name;
            EXPECT_EQ(Bild(Name, {"--mov-order", "source"}), Bild(Name)) << Name;
        }
}

TEST_F(Beispiele, their_lines_fit_the_editor)
{
    for (const auto& Paar : Paare)
        for (const char* Name : Paar) {
            std::istringstream Zeilen(Text(Name));
            for (std::string Zeile; std::getline(Zeilen, Zeile);)
                EXPECT_LE(std::count_if(Zeile.begin(),
                                        Zeile.end(),
                                        [](char c) { return (c & 0xC0) != 0x80; }),
                          76)
                    << Name << ": " << Zeile;
        }
}

} // namespace
} // namespace varnholt::test
