// The command line with microcontrollers and clocks on the simulated boards.
#include "cli/Cli_Hilfe.h"

#include <map>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

bool Enthaelt(const std::string& Text, const std::string& Teil)
{
    return Text.find(Teil) != std::string::npos;
}

const std::map<std::string, std::size_t> Teile = {{"89C1051", 1024},
                                                  {"89C2051", 2048},
                                                  {"89C4051", 4096},
                                                  {"89C51", 4096},
                                                  {"89C52", 8192},
                                                  {"89C55", 20480},
                                                  {"89C55WD", 20480},
                                                  {"89S53", 12288},
                                                  {"89S8252", 8192},
                                                  {"89F54", 16384},
                                                  {"89F58", 32768}};

class Cli_MC : public Cli {
protected:
    // The command for that part in the socket file.
    Lauf_Ergebnis Am_Teil(const std::string&              Kommando,
                          const std::string&              Name,
                          const std::vector<std::string>& Weitere = {})
    {
        std::vector<std::string> Zeile{Kommando, "--device", Name, "--port", "sim:chip.bin"};
        Zeile.insert(Zeile.end(), Weitere.begin(), Weitere.end());
        return Laufen(Zeile);
    }
};

TEST_F(Cli_MC, every_part_is_programmed_read_checked_and_erased)
{
    for (const auto& [Name, Bytes] : Teile) {
        std::filesystem::remove(Ordner / "chip.bin");
        Schreiben("a.bin", Muster(Bytes));
        const auto p = Am_Teil("program", Name, {"a.bin"});
        EXPECT_EQ(p.Status, 0) << Name << p.Fehler;
        EXPECT_TRUE(Enthaelt(p.Aus, "The IC data is equivalent to the editor data"));
        EXPECT_EQ(Lesen("chip.bin"), Muster(Bytes));
        EXPECT_EQ(Am_Teil("read", Name, {"-o", "b.bin"}).Status, 0);
        EXPECT_EQ(Lesen("b.bin"), Muster(Bytes));
        EXPECT_EQ(Am_Teil("check", Name, {"a.bin"}).Status, 0);
        const auto e = Am_Teil("erase", Name);
        EXPECT_EQ(e.Status, 0) << Name << e.Fehler;
        EXPECT_TRUE(Enthaelt(e.Aus, "Clear"));
        EXPECT_EQ(Lesen("chip.bin"), std::string(Bytes, '\xFF'));
    }
}

TEST_F(Cli_MC, a_written_part_is_erased_first_when_asked)
{
    for (const char* Name : {"89C4051", "89C52", "89C55WD"}) {
        const std::size_t Bytes = Teile.at(Name);
        Schreiben("chip.bin", std::string(Bytes, '\0'));
        Schreiben("a.bin", "AB");
        EXPECT_EQ(Am_Teil("program", Name, {"a.bin"}).Status, 1) << Name;
        EXPECT_EQ(Am_Teil("program", Name, {"a.bin", "--erase"}).Status, 0) << Name;
        EXPECT_EQ(Lesen("chip.bin"), "AB" + std::string(Bytes - 2, '\xFF'));
    }
}

TEST_F(Cli_MC, the_level_of_a_locked_part_is_kept_behind_its_bytes)
{
    Schreiben("chip.bin", Muster(4096));
    for (const int m : {1, 2, 3, 4}) {
        const auto r = Am_Teil("lock", "89C51", {"--mode", std::to_string(m)});
        EXPECT_EQ(r.Status, 0) << r.Fehler;
        EXPECT_EQ(r.Fehler,
                  "Please take jumper J1 out if it's inserted.\n"
                  "Protection mode bit(s) programmed!\n");
        const std::string Stufe = m == 1 ? "" : std::string(1, static_cast<char>(m));
        EXPECT_EQ(Lesen("chip.bin"), Muster(4096) + Stufe) << m;
    }
    const auto d =
        Laufen({"--language", "D", "lock", "--device", "89C51", "--port", "sim", "--mode", "2"});
    EXPECT_TRUE(d.Fehler.ends_with("\nProtection Mode Bit(s) gesetzt!\n")) << d.Fehler;
}

TEST_F(Cli_MC, a_locked_part_reads_as_locked_parts_do_until_it_is_erased)
{
    for (const char* Name : {"89C2051", "89S8252"}) {
        const std::size_t Bytes = Teile.at(Name);
        Schreiben("chip.bin", Muster(Bytes));
        Schreiben("a.bin", Muster(Bytes));
        EXPECT_EQ(Am_Teil("lock", Name, {"--mode", "2"}).Status, 0);
        EXPECT_EQ(Am_Teil("check", Name, {"a.bin"}).Status, 0);
        EXPECT_EQ(Am_Teil("program", Name, {"a.bin", "--ic-from", "0"}).Status, 0)
            << "nothing has to change";
        EXPECT_EQ(Am_Teil("lock", Name, {"--mode", "3"}).Status, 0);
        EXPECT_EQ(Am_Teil("read", Name, {"-o", "b.bin"}).Status, 0);
        EXPECT_EQ(Lesen("b.bin"), "") << "an erased image";
        EXPECT_EQ(Am_Teil("program", Name, {"a.bin"}).Status, 1);
        EXPECT_EQ(Am_Teil("erase", Name).Status, 0);
        EXPECT_EQ(Lesen("chip.bin"), std::string(Bytes, '\xFF'));
        EXPECT_EQ(Am_Teil("program", Name, {"a.bin"}).Status, 0);
    }
}

TEST_F(Cli_MC, a_mode_is_a_number_from_1_to_4)
{
    for (const char* m : {"0", "5", "x", "-1"})
        EXPECT_EQ(Am_Teil("lock", "89C51", {"--mode", m}).Status, 2) << m;
    EXPECT_EQ(Am_Teil("lock", "89C51").Status, 2);
    EXPECT_EQ(Am_Teil("lock", "89C4051", {"--mode", "4"}).Status, 2);
    EXPECT_EQ(Am_Teil("lock", "48T08", {"--mode", "2"}).Status, 2);
    EXPECT_FALSE(Da("chip.bin"));
}

TEST_F(Cli_MC, the_clock_of_a_48T_is_printed)
{
    for (const auto& [Name, Bytes] :
         std::map<std::string, std::size_t>{{"48T02", 2048}, {"48T08", 8192}, {"48T35", 32768}}) {
        const std::string Uhr("\x00\x58\x34\x12\x05\x31\x12\x24", 8);
        Schreiben("chip.bin", std::string(Bytes - 8, '\0') + Uhr);
        const auto e = Am_Teil("clock", Name);
        EXPECT_EQ(e.Status, 0) << e.Fehler;
        EXPECT_EQ(e.Aus,
                  "Year: 24\nMonth: 12\nDay: 31\nWeekday: 05\nHour: 12\nMinute: 34\nSecond: 58\n");
        EXPECT_EQ(e.Fehler, "");
        EXPECT_EQ(Lesen("chip.bin"), std::string(Bytes - 8, '\0') + Uhr);
    }
    EXPECT_EQ(
        Laufen({"--language", "D", "clock", "--device", "48t35", "--port", "sim:chip.bin"}).Aus,
        "Jahr: 24\nMonat: 12\nTag: 31\nWochentag: 05\nStunde: 12\nMinute: 34\nSekunde: 58\n");
}

TEST_F(Cli_MC, an_erased_48T_shows_165_for_the_year)
{
    EXPECT_TRUE(Laufen({"clock", "--device", "48T08", "--port", "sim"})
                    .Aus.starts_with("Year: 165\nMonth: 25\nDay: 45\nWeekday: 255\n"));
}

TEST_F(Cli_MC, a_48T_is_programmed_up_to_its_clock)
{
    const std::string Uhr(8, '\x80');
    Schreiben("chip.bin", std::string(8184, '\0') + Uhr);
    Schreiben("a.bin", Muster(8192));
    Am_Teil("program", "48T08", {"a.bin", "--no-verify-after"});
    EXPECT_EQ(Lesen("chip.bin"), Muster(8192).substr(0, 8184) + Uhr);
}

TEST_F(Cli_MC, the_trace_holds_the_lock_and_the_erase)
{
    EXPECT_EQ(Am_Teil("lock", "89C4051", {"--mode", "2", "--trace", "t.txt"}).Status, 0);
    EXPECT_EQ(Lesen("t.txt"), "W C 04\nW D 4D\nW D 49\nW D 41\nW D 40\nS 0.1\nW D 41\n");
    EXPECT_EQ(Am_Teil("erase", "89C4051", {"--trace", "t.txt"}).Status, 0);
    EXPECT_TRUE(
        Lesen("t.txt").starts_with("W D 4D\nW D 49\nW D 41\nW C 0A\nW D 40\nS 0.1\nW D 41\n"));
}

} // namespace
} // namespace varnholt::test
