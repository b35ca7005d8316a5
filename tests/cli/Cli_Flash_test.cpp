// The command line with EEPROMs and flash memories on the simulated board.
#include "cli/Cli_Hilfe.h"

#include <string>
#include <vector>

namespace varnholt::test {
namespace {

bool Enthaelt(const std::string& Text, const std::string& Teil)
{
    return Text.find(Teil) != std::string::npos;
}

TEST_F(Cli, every_family_of_the_eprommer_goes_the_whole_road)
{
    Schreiben("a.bin", Muster(3000));
    for (const std::string Name : {"28C64",
                                   "28C256",
                                   "AT28C256",
                                   "28F256",
                                   "28F010",
                                   "29C256",
                                   "29C512",
                                   "48Z08",
                                   "27SF256",
                                   "27SF512"}) {
        const std::string Sockel = "sim:" + Name + ".chip";
        const auto        p      = Laufen({"program", "a.bin", "--device", Name, "--port", Sockel});
        EXPECT_EQ(p.Status, 0) << Name << p.Fehler;
        EXPECT_EQ(p.Fehler, "") << Name;
        EXPECT_EQ(Lesen(Name + ".chip").substr(0, 3000), Muster(3000)) << Name;
        EXPECT_EQ(Laufen({"check", "a.bin", "--device", Name, "--port", Sockel}).Status, 0) << Name;
        EXPECT_EQ(Laufen({"read", "--device", Name, "--port", Sockel, "-o", "b.bin"}).Status, 0);
        EXPECT_EQ(Laufen({"compare", "a.bin", "b.bin"}).Status, 0) << Name;
    }
}

TEST_F(Cli, erase_shows_the_state_of_the_device)
{
    for (const std::string Name : {"28C256", "28F512"}) {
        const std::size_t n = Name == "28C256" ? 32768 : 65536;
        Schreiben("chip", std::string(n, 'x'));
        const auto r = Laufen({"erase", "--device", Name, "--port", "sim:chip"});
        EXPECT_EQ(r.Status, 0) << r.Fehler;
        EXPECT_EQ(r.Aus, "Clear\n");
        EXPECT_EQ(Lesen("chip"), std::string(n, '\xFF')) << Name;
        Schreiben("chip", std::string(n, 'x'));
        const auto d = Laufen({"--language", "D", "erase", "--device", Name, "--port", "sim:chip"});
        EXPECT_EQ(d.Aus, "Gelöscht\n");
    }
}

TEST_F(Cli, a_device_that_needs_no_erase_is_a_notice)
{
    Schreiben("chip", std::string(32768, 'x'));
    const auto r = Laufen({"erase", "--device", "29C256", "--port", "sim:chip"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.Aus, "");
    EXPECT_TRUE(Enthaelt(r.Fehler, "The erasing of this memory ic is not necessary"));
    EXPECT_EQ(Lesen("chip"), std::string(32768, 'x'));
}

TEST_F(Cli, an_erase_that_asks_for_hands_or_that_is_not_there_fails)
{
    Schreiben("chip", std::string(32768, 'x'));
    const auto r = Laufen({"erase", "--device", "27SF256", "--port", "sim:chip"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(Enthaelt(r.Fehler, "error: Please remove the connection between")) << r.Fehler;
    EXPECT_EQ(Lesen("chip"), std::string(32768, 'x'));
    const auto p = Laufen({"erase", "--device", "PT28C020", "--port", "sim"});
    EXPECT_EQ(p.Status, 1);
    EXPECT_TRUE(Enthaelt(p.Fehler, "is not possible at the moment"));
    const auto u = Laufen({"erase", "--device", "27C64", "--port", "sim"});
    EXPECT_EQ(u.Status, 2);
    EXPECT_TRUE(Enthaelt(u.Fehler, "the device 27C64 can't be erased electrically"));
    EXPECT_TRUE(
        Enthaelt(Laufen({"--language", "D", "erase", "--device", "27C64", "--port", "sim"}).Fehler,
                 "Das IC 27C64 kann elektrisch nicht gelöscht werden"));
    EXPECT_EQ(Laufen({"erase", "--port", "sim"}).Status, 2);
    EXPECT_EQ(Laufen({"erase", "--device", "28C64", "--port", "usb"}).Status, 2);
    EXPECT_EQ(Laufen({"erase", "--device", "", "--port", "sim"}).Status, 1);
}

TEST_F(Cli, program_erases_first_when_it_is_asked_to)
{
    Schreiben("chip", std::string(32768, '\0'));
    Schreiben("a.bin", Muster(100));
    std::vector<std::string> Zeile{"program", "a.bin", "--device", "28F256", "--port", "sim:chip"};
    EXPECT_EQ(Laufen(Zeile).Status, 1) << "bits don't rise without an erase";
    Zeile.emplace_back("--erase");
    EXPECT_EQ(Laufen(Zeile).Status, 0);
    EXPECT_EQ(Lesen("chip"), Muster(100) + std::string(32768 - 100, '\xFF'));
}

TEST_F(Cli, ranges_split_and_options_reach_the_page_routine)
{
    Schreiben("a.bin", "ABCDEFGH");
    Schreiben("chip", std::string(32768, 'x'));
    EXPECT_EQ(Laufen({"program",
                      "a.bin",
                      "--device",
                      "29C256",
                      "--port",
                      "sim:chip",
                      "--split",
                      "odd",
                      "--editor-to",
                      "3",
                      "--ic-from",
                      "64"})
                  .Status,
              0)
        << "the pages of the range were proved";
    EXPECT_EQ(Lesen("chip").substr(60, 10), "xxxxBDFH\xFF\xFF");
    EXPECT_EQ(Lesen("chip").substr(128, 2), "xx");
}

TEST_F(Cli, the_trace_of_an_erase_holds_its_waits)
{
    const std::vector<std::string> Zeile{
        "erase", "--device", "28C256", "--port", "sim", "--no-check-board", "--trace", "t.txt"};
    EXPECT_EQ(Laufen(Zeile).Status, 0);
    EXPECT_TRUE(Lesen("t.txt").starts_with(
        "W D 08\nS 0.1\nW D 00\nS 0.1\nW D 09\nS 0.1\nW D 4A\nW D 4A\nW C 0D\n"));
}

TEST_F(Cli, the_trace_of_a_write_has_the_whole_write_time_in_one_line)
{
    Schreiben("a.bin", "A");
    Schreiben("chip", "A" + std::string(32767, '\xFF'));
    EXPECT_EQ(Laufen({"program",
                      "a.bin",
                      "--device",
                      "29C256",
                      "--port",
                      "sim:chip",
                      "--editor-to",
                      "0",
                      "--no-read-before",
                      "--no-verify-after",
                      "--trace",
                      "t.txt"})
                  .Status,
              0);
    EXPECT_TRUE(Enthaelt(Lesen("t.txt"), "\nM 10\nW D 5A\nW D CA\nR S "));
    EXPECT_EQ(Laufen({"program",
                      "a.bin",
                      "--device",
                      "28C256",
                      "--port",
                      "sim",
                      "--no-verify-after",
                      "--trace",
                      "t.txt"})
                  .Status,
              0);
    EXPECT_TRUE(Enthaelt(Lesen("t.txt"), "W D 1B\nW D 12\nU 10\nW D 1B\nU 10000\nW D 4B\n"));
}

} // namespace
} // namespace varnholt::test
