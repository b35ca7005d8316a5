// The command line's device commands on the simulated board.
#include "cli/Cli_Hilfe.h"

#include <string>
#include <vector>

namespace varnholt::test {
namespace {

bool Enthaelt(const std::string& Text, const std::string& Teil)
{
    return Text.find(Teil) != std::string::npos;
}

TEST_F(Cli, program_read_check_and_compare_go_the_whole_road)
{
    Schreiben("a.bin", Muster(5000));
    const auto p = Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim:chip.bin"});
    EXPECT_EQ(p.Status, 0) << p.Fehler;
    EXPECT_TRUE(Enthaelt(p.Aus, "The IC data is equivalent to the editor data"));
    EXPECT_EQ(Lesen("chip.bin"), Muster(5000) + std::string(8192 - 5000, '\xFF'));
    EXPECT_EQ(Laufen({"read", "--device", "27c64", "--port", "sim:chip.bin", "-o", "b.bin"}).Status,
              0);
    EXPECT_EQ(Laufen({"compare", "a.bin", "b.bin"}).Status, 0);
    EXPECT_EQ(Laufen({"check", "a.bin", "--device", "27C64", "--port", "sim:chip.bin"}).Status, 0);
}

TEST_F(Cli, a_source_is_assembled_before_it_is_programmed_or_checked)
{
    Schreiben("a.asm", " INC A\n RET\n");
    EXPECT_EQ(Laufen({"program", "a.asm", "--device", "27C64", "--port", "sim:chip.bin"}).Status,
              0);
    EXPECT_EQ(Lesen("chip.bin").substr(0, 3), "\x04\x22\xFF");
    EXPECT_EQ(Laufen({"check", "a.asm", "--device", "27C64", "--port", "sim:chip.bin"}).Status, 0);
    Schreiben("b.asm", " FOO\n");
    const auto r = Laufen({"program", "b.asm", "--device", "27C64", "--port", "sim:none.bin"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(Enthaelt(r.Fehler, "b.asm:1: error:"));
    EXPECT_FALSE(Da("none.bin"));
}

TEST_F(Cli, ranges_and_the_split_reach_the_programming_routine)
{
    Schreiben("a.bin", "ABCDEFGH");
    EXPECT_NE(Laufen({"program",
                      "a.bin",
                      "--device",
                      "27C64",
                      "--port",
                      "sim:c1.bin",
                      "--editor-from",
                      "2",
                      "--editor-to",
                      "0x3",
                      "--ic-from",
                      "10h"})
                  .Status,
              2);
    EXPECT_EQ(Lesen("c1.bin").substr(15, 4),
              "\xFF"
              "CD\xFF");
    EXPECT_EQ(
        Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim:c2.bin", "--split", "odd"})
            .Status,
        0);
    EXPECT_EQ(Lesen("c2.bin").substr(0, 5), "BDFH\xFF");
    EXPECT_EQ(
        Laufen({"check", "a.bin", "--device", "27C64", "--port", "sim:c2.bin", "--split", "odd"})
            .Status,
        0);
    EXPECT_EQ(
        Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim:c3.bin", "--split", "even"})
            .Status,
        0);
    EXPECT_EQ(Lesen("c3.bin").substr(0, 5), "ACEG\xFF");
}

TEST_F(Cli, zero_below_writes_zeros_ahead_of_the_first_address)
{
    Schreiben("a.bin", "AB");
    Laufen({"program",
            "a.bin",
            "--device",
            "27C64",
            "--port",
            "sim:c.bin",
            "--ic-from",
            "3",
            "--zero-below"});
    EXPECT_EQ(Lesen("c.bin").substr(0, 6), std::string("\0\0\0AB\xFF", 6));
}

TEST_F(Cli, ranges_that_do_not_fit_are_refused_before_anything_is_written)
{
    Schreiben("a.bin", "ABCD");
    const std::vector<std::vector<std::string>> Falsche = {
        {"--editor-from", "3", "--editor-to", "2"},
        {"--editor-from", "3", "--editor-to", "2", "--ic-from", "1"},
        {"--ic-from", "8190"},
        {"--ic-from", "12x"}};
    for (const auto& f : Falsche) {
        std::vector<std::string> Zeile{
            "program", "a.bin", "--device", "27C64", "--port", "sim:c.bin"};
        Zeile.insert(Zeile.end(), f.begin(), f.end());
        EXPECT_EQ(Laufen(Zeile).Status, 2) << f[0] << f[1];
        EXPECT_TRUE(!Da("c.bin") || Lesen("c.bin") == std::string(8192, '\xFF'));
    }
}

TEST_F(Cli, a_source_too_long_for_the_device_is_warned_of_and_not_programmed)
{
    Schreiben("a.asm", " NOP\n ORG 3000h\n NOP\n");
    const auto r = Laufen({"program", "a.asm", "--device", "27C64", "--port", "sim:c.bin"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(
        r.Fehler,
        "The hex-date doesn´t fit into the IC you have choosen. So you must choose another IC or "
        "try to minimize your programcode.\n"
        "Please choose first a IC in the menu 'Programmer' -> 'Choose IC'.\n");
    EXPECT_FALSE(Da("c.bin"));
}

TEST_F(Cli, what_is_wrong_on_the_command_line_is_told_before_the_device_is_touched)
{
    Schreiben("a.bin", "A");
    EXPECT_EQ(
        Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim:c.bin", "--ic-from", "x"})
            .Status,
        2);
    EXPECT_EQ(Laufen({"read", "--device", "27C64", "--port", "sim:c.bin", "-o", "x.asm"}).Status,
              2);
    EXPECT_FALSE(Da("c.bin"));
}

TEST_F(Cli, an_image_with_data_beyond_the_device_only_is_empty_for_it)
{
    Schreiben("a.bin", std::string(20000, '\xFF') + "A");
    const auto r = Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Fehler, "The image is empty, there is nothing to program.\n");
}

TEST_F(Cli, the_trace_may_go_to_standard_output)
{
    const auto r = Laufen({"test", "--port", "sim", "--trace", "-"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_TRUE(Enthaelt(r.Aus, "W C 09\nM 1\nW C 0B\nM 1\n"));
    EXPECT_TRUE(Enthaelt(r.Aus, "TEST 1 OKAY!\n"));
}

TEST_F(Cli, an_empty_image_gives_nothing_to_program)
{
    Schreiben("a.bin", "\xFF\xFF");
    const auto r = Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Fehler, "The image is empty, there is nothing to program.\n");
    EXPECT_EQ(Laufen({"--language", "D", "program", "a.bin", "--device", "27C64", "--port", "sim"})
                  .Fehler,
              "Das Bild ist leer, es gibt nichts zu brennen.\n");
}

TEST_F(Cli, a_cell_that_would_have_to_rise_is_a_device_fault)
{
    Schreiben("chip.bin", std::string(8192, '\0'));
    Schreiben("a.bin", "A");
    const auto r = Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim:chip.bin"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(Enthaelt(r.Fehler, "Error while programming address 0(dec) / 0(hex) !"))
        << r.Fehler;
    EXPECT_EQ(Lesen("chip.bin"), std::string(8192, '\0'));
}

TEST_F(Cli, a_difference_found_by_check_is_status_1_and_can_be_listed)
{
    Schreiben("chip.bin", "AXC" + std::string(8189, '\xFF'));
    Schreiben("a.bin", "ABC");
    const auto r =
        Laufen({"check", "a.bin", "--device", "27C64", "--port", "sim:chip.bin", "--differences"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(Enthaelt(r.Aus, "The IC data is NOT equivalent to the editor data."));
    EXPECT_TRUE(Enthaelt(r.Aus, "000001 |  42  |  58"));
    const auto d = Laufen(
        {"--language", "D", "check", "a.bin", "--device", "27C64", "--port", "sim:chip.bin"});
    EXPECT_TRUE(Enthaelt(d.Aus, "Die Daten des IC entsprechen NICHT den Daten des Editors."));
}

TEST_F(Cli, an_erased_device_that_differs_gets_no_verdict_but_status_1)
{
    Schreiben("a.bin", "ABC");
    const auto r = Laufen({"check", "a.bin", "--device", "27C64", "--port", "sim"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Aus, "Clear\n");
}

TEST_F(Cli, a_socket_file_of_the_wrong_size_is_refused_and_kept)
{
    Schreiben("chip.bin", "short");
    Schreiben("a.bin", "A");
    EXPECT_EQ(Laufen({"program", "a.bin", "--device", "27C64", "--port", "sim:chip.bin"}).Status,
              3);
    EXPECT_EQ(Lesen("chip.bin"), "short");
}

TEST_F(Cli, the_trace_holds_every_operation_in_order)
{
    Schreiben("a.bin", "A");
    EXPECT_EQ(Laufen({"read",
                      "--device",
                      "27C64",
                      "--port",
                      "sim",
                      "-o",
                      "b.bin",
                      "--trace",
                      "t.txt",
                      "--no-check-board"})
                  .Status,
              0);
    EXPECT_TRUE(
        Lesen("t.txt").starts_with("W D 4A\nW C 0D\nM 1\nW C 0F\nM 1\nW C 0B\nW D 4B\nU 10\nR S "));
}

TEST_F(Cli, test_runs_the_board_test)
{
    const auto r = Laufen({"test", "--port", "sim"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.Aus, "TEST 1 OKAY!\n");
}

TEST_F(Cli, ports_and_devices_that_do_not_exist_are_told)
{
    Schreiben("a.bin", "A");
    for (const char* Port : {"usb", "sim:", "io:", "io:xyz", "io:0", "ppdev:"})
        EXPECT_EQ(Laufen({"check", "a.bin", "--device", "27C64", "--port", Port}).Status, 2)
            << Port;
    EXPECT_EQ(Laufen({"check", "a.bin", "--device", "27C65", "--port", "sim"}).Status, 2);
    EXPECT_EQ(Laufen({"check", "a.bin", "--port", "sim"}).Status, 2);
    const auto r =
        Laufen({"check", "a.bin", "--device", "27C64", "--port", "ppdev:/dev/no-such-port"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(Enthaelt(r.Fehler, "Portdriver has not been loaded sucessfully."));
}

// The command line's own errors, in both languages.
struct Eigener_Fehler {
    std::vector<std::string> Zeile;
    int                      Status;
    std::string              E, D;
};

TEST_F(Cli, the_errors_of_the_command_line_come_in_both_languages)
{
    Schreiben("a.bin", "ABCD");
    Schreiben("a.asm", " NOP\n");
    Schreiben("short", "x");
    const std::vector<std::string> Check{"check", "a.bin", "--device", "27C64", "--port"};
    const auto Mit = [](std::vector<std::string> a, const std::vector<std::string>& b) {
        a.insert(a.end(), b.begin(), b.end());
        return a;
    };
    // clang-format off
    const std::vector<Eigener_Fehler> Alle = {
        {{"compare", "a.asm", "a.bin"}, 2, "a.asm is a source; assemble it first", "a.asm ist ein Quelltext; bitte zuerst assemblieren"},
        {{"assemble", "a.bin"}, 2, "a.bin is an image, not a source", "a.bin ist ein Abbild und kein Quelltext"},
        {{"convert", "a.bin", "-o", "b.asm"}, 2, "b.asm is the name of a source, not of an image", "b.asm ist der Name eines Quelltextes und nicht der eines Abbilds"},
        {{"compare", "-", "-"}, 2, "standard input can be read only once", "Die Standardeingabe kann nur einmal gelesen werden"},
        {{"devices", "X1"}, 2, "there is no device X1 in Spec.ini", "In Spec.ini gibt es kein IC X1."},
        {{"lock", "--device", "27C64", "--port", "sim", "--mode", "2"}, 2, "the device 27C64 has no lock bits", "Das IC 27C64 hat keine Lockbits"},
        {{"lock", "--device", "89C2051", "--port", "sim", "--mode", "4"}, 2, "the device 89C2051 has no mode 4", "Das IC 89C2051 hat keinen Modus 4"},
        {{"clock", "--device", "48Z08", "--port", "sim"}, 2, "the device 48Z08 has no clock", "Das IC 48Z08 hat keine Uhr"},
        {Mit(Check, {"usb"}), 2, "there is no port usb", "Es gibt keinen Port usb"},
        {Mit(Check, {"io:xyz"}), 2, "io: wants the base address of a port, as io:378", "io: braucht die Basisadresse eines Ports, wie io:378"},
        {Mit(Check, {"sim", "--trace", "no/such/folder"}), 3, "The trace can't be written.", "Die Aufzeichnung kann nicht geschrieben werden."},
        {Mit(Check, {"sim:short"}), 3, "short: The file doesn't have the size of the device (8192 bytes).", "short: Die Datei hat nicht die Größe des Bausteins (8192 Bytes)."},
        {{"program", "a.bin", "--device", "27C64", "--port", "sim", "--ic-from", "12x"}, 2, "12x is no address", "12x ist keine Adresse"},
        {{"program", "a.bin", "--device", "27C64", "--port", "sim", "--ic-from", "8190"}, 2, "the range doesn't fit: editor 0 to 3, IC from 8190, IC up to 8191", "Der Bereich passt nicht: Editor 0 bis 3, IC ab 8190, IC bis 8191"},
        {{"check", "a.bin", "--device", "", "--port", "sim"}, 1, "Please choose first a IC", "Bitte wählen Sie zuerst ein IC"},
    };
    // clang-format on
    for (const Eigener_Fehler& f : Alle) {
        const auto E = Laufen(f.Zeile);
        EXPECT_EQ(E.Status, f.Status) << f.E;
        EXPECT_TRUE(Enthaelt(E.Fehler, f.E)) << E.Fehler;
        EXPECT_TRUE(Enthaelt(Laufen(Mit({"--language", "D"}, f.Zeile)).Fehler, f.D)) << f.D;
    }
}

} // namespace
} // namespace varnholt::test
