// The command line: help, assemble, convert, compare, devices, and the four exit statuses.
#include "cli/Cli_Hilfe.h"

#include <nlohmann/json.hpp>

namespace varnholt::test {
namespace {

using Json = nlohmann::json;

constexpr const char* Programm = "INCLUDE 8051.mc\nLED EQU P1.0\nSTART: CPL LED\n SJMP START\n";

bool Enthaelt(const std::string& Text, const std::string& Teil)
{
    return Text.find(Teil) != std::string::npos;
}

// --- The program itself ---

TEST_F(Cli, help_stands_on_the_program_and_on_every_command)
{
    EXPECT_TRUE(Enthaelt(Laufen({"--help"}).Aus, "assemble"));
    EXPECT_EQ(Laufen({"-h"}).Status, 0);
    for (const char* k : {"assemble",
                          "disassemble",
                          "simulate",
                          "convert",
                          "compare",
                          "devices",
                          "read",
                          "program",
                          "erase",
                          "check",
                          "lock",
                          "clock",
                          "test"}) {
        const auto r = Laufen({k, "--help"});
        EXPECT_EQ(r.Status, 0) << k;
        EXPECT_TRUE(Enthaelt(r.Aus, k)) << k;
    }
}

TEST_F(Cli, the_version_is_told)
{
    const auto r = Laufen({"--version"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_TRUE(Enthaelt(r.Aus, "varnholt-cli "));
}

TEST_F(Cli, a_wrong_command_line_is_status_2)
{
    EXPECT_EQ(Laufen({}).Status, 2);
    EXPECT_EQ(Laufen({"frobnicate"}).Status, 2);
    EXPECT_EQ(Laufen({"assemble"}).Status, 2);
    EXPECT_EQ(Laufen({"assemble", "x.asm", "--numbers", "octal"}).Status, 2);
    EXPECT_EQ(Laufen({"assemble", "x.asm", "--nonsense"}).Status, 2);
    EXPECT_EQ(Laufen({"--language", "F", "devices"}).Status, 2);
}

// --- assemble ---

TEST_F(Cli, assemble_writes_every_format_by_its_extension)
{
    Schreiben("a.asm", Programm);
    const auto r = Laufen({"assemble",
                           "a.asm",
                           "-o",
                           "a.bin",
                           "-o",
                           "a.hex",
                           "-o",
                           "a.mhx",
                           "-o",
                           "a.dat",
                           "-o",
                           "a._51",
                           "-o",
                           "a.ihx"});
    EXPECT_EQ(r.Status, 0) << r.Fehler;
    EXPECT_EQ(Lesen("a.bin").substr(0, 4), "\xB2\x90\x80\xFC");
    EXPECT_EQ(Lesen("a.bin").size(), 256u);
    EXPECT_EQ(Lesen("a._51"), Lesen("a.bin"));
    EXPECT_EQ(Lesen("a.hex").substr(0, 17), ":10000000B29080FC");
    EXPECT_EQ(Lesen("a.ihx"), Lesen("a.hex"));
    EXPECT_EQ(Lesen("a.mhx").substr(0, 2), "S0");
    EXPECT_EQ(Lesen("a.dat").substr(0, 5), "178\r\n");
}

TEST_F(Cli, options_may_stand_before_and_behind_the_operand)
{
    Schreiben("a.asm", Programm);
    EXPECT_EQ(Laufen({"assemble", "-o", "a.bin", "a.asm"}).Status, 0);
    EXPECT_EQ(Laufen({"assemble", "a.asm", "--language", "D", "-o", "b.bin"}).Status, 0);
    EXPECT_EQ(Lesen("a.bin"), Lesen("b.bin"));
}

TEST_F(Cli, assemble_without_outputs_only_checks)
{
    Schreiben("a.asm", Programm);
    const auto r = Laufen({"assemble", "a.asm"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.Aus + r.Fehler, "");
}

TEST_F(Cli, an_assembler_error_names_file_and_line_and_nothing_is_written)
{
    Schreiben("a.asm", "INCLUDE 8051.mc\n NOP\n FOO\n");
    Schreiben("a.bin", "old");
    const auto r = Laufen({"assemble", "a.asm", "-o", "a.bin", "--list", "a.lst"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Fehler, "a.asm:3: error: Unknown instruction !\n");
    EXPECT_EQ(Lesen("a.bin"), "old");
    EXPECT_FALSE(Da("a.lst"));
}

TEST_F(Cli, the_error_comes_in_the_chosen_language)
{
    Schreiben("a.asm", "INCLUDE 8051.mc\n FOO\n");
    EXPECT_EQ(Laufen({"--language", "D", "assemble", "a.asm"}).Fehler,
              "a.asm:2: error: Befehl nicht erkannt !\n");
}

TEST_F(Cli, further_lines_of_an_error_follow_as_they_are)
{
    Schreiben("a.asm", " MOV A,#300\n");
    const auto r = Laufen({"assemble", "a.asm"});
    EXPECT_EQ(r.Fehler.substr(0, 76),
              "a.asm:1: error: In this instruction numbers are only allowed between \n00h ti");
    EXPECT_EQ(r.Fehler.find('\r'), std::string::npos);
}

TEST_F(Cli, json_tells_code_end_instructions_labels_and_names)
{
    Schreiben(
        "a.asm",
        "X EQU 5\nX EQU 6\nB1 BIT 90h\nD1 DATA 30h\nCONST Y=7\nloop: NOP\n DB 1\nEnd: SJMP loop\n");
    const auto r = Laufen({"assemble", "a.asm", "--json"});
    const Json j = Json::parse(r.Aus);
    EXPECT_EQ(j["ok"], true);
    EXPECT_EQ(j["code_end"], 4);
    EXPECT_EQ(j["instructions"], 2);
    EXPECT_EQ(j["labels"], (Json{{"LOOP", 0}, {"END", 2}}));
    EXPECT_EQ(j["names"]["X"], (Json{{"value", 5}, {"kind", 0}}));
    EXPECT_EQ(j["names"]["B1"], (Json{{"value", 0x90}, {"kind", 1}}));
    EXPECT_EQ(j["names"]["D1"], (Json{{"value", 0x30}, {"kind", 8}}));
    EXPECT_EQ(j["names"].size(), 3u);
}

TEST_F(Cli, json_tells_an_error_too)
{
    Schreiben("a.asm", "\n NOP\n SJMP NOWHERE\n");
    const auto r = Laufen({"assemble", "a.asm", "--json"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(Json::parse(r.Aus),
              (Json{{"ok", false}, {"line", 3}, {"message", "Jumpmark not found !"}}));
}

TEST_F(Cli, numbers_and_mov_order_are_options)
{
    Schreiben("a.asm", " MOV 10,20\n");
    Laufen({"assemble", "a.asm", "-o", "a.bin"});
    Laufen({"assemble", "a.asm", "-o", "b.bin", "--numbers", "hexadecimal"});
    Laufen({"assemble", "a.asm", "-o", "c.bin", "--mov-order", "source"});
    EXPECT_EQ(Lesen("a.bin").substr(0, 3), "\x85\x14\x0A");
    EXPECT_EQ(Lesen("b.bin").substr(0, 3), "\x85\x20\x10");
    EXPECT_EQ(Lesen("c.bin").substr(0, 3), "\x85\x0A\x14");
}

TEST_F(Cli, debug_assembles_stop_points)
{
    Schreiben("a.asm", " NOP\n STOP\n#IF DEBUGGING\n INC A\n#END IF\n");
    Laufen({"assemble", "a.asm", "-o", "a.bin"});
    Laufen({"assemble", "a.asm", "-o", "b.bin", "--debug"});
    EXPECT_EQ(Lesen("a.bin").substr(0, 2), std::string("\0\xFF", 2));
    EXPECT_EQ(Lesen("b.bin").substr(0, 3), std::string("\0\xA5\x04", 3));
}

TEST_F(Cli, the_list_file_has_the_name_that_was_given)
{
    Schreiben("a.asm", "x: NOP\n");
    EXPECT_EQ(Laufen({"assemble", "a.asm", "--list", "my.list"}).Status, 0);
    EXPECT_EQ(Lesen("my.list"),
              "    0   0000\t            \tX:\r\n    1   0000\t00          \tNOP\r\n");
}

TEST_F(Cli, a_program_that_does_not_fit_the_device_is_warned_of)
{
    Schreiben("a.asm", " ORG 8000h\n NOP\n");
    const auto r = Laufen({"assemble", "a.asm", "--device", "27c256"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_TRUE(Enthaelt(r.Fehler, "The hex-date doesn´t fit into the IC you have choosen."));
    EXPECT_EQ(Laufen({"assemble", "a.asm", "--device", "nonsense"}).Status, 2);
}

TEST_F(Cli, sources_may_be_utf8_or_1252_with_any_line_ends)
{
    Schreiben("a.asm", "l\xC3\xB6op: NOP\r\n SJMP L\xC3\x96OP ; \xCE\xA9");
    Schreiben("b.asm", "l\xF6op: NOP\r SJMP L\xD6OP");
    EXPECT_EQ(Laufen({"assemble", "a.asm", "-o", "a.bin"}).Status, 0);
    EXPECT_EQ(Laufen({"assemble", "b.asm", "-o", "b.bin"}).Status, 0);
    EXPECT_EQ(Lesen("a.bin"), Lesen("b.bin"));
    EXPECT_EQ(Json::parse(Laufen({"assemble", "b.asm", "--json"}).Aus)["labels"],
              (Json{{"LÖOP", 0}}));
}

TEST_F(Cli, standard_input_and_output_stand_for_files)
{
    const auto r = Laufen({"assemble", "-", "-o", "-"}, " INC A\n");
    EXPECT_EQ(r.Status, 0) << r.Fehler;
    EXPECT_EQ(r.Aus.substr(0, 2), "\x04\xFF");
    EXPECT_EQ(Laufen({"assemble", "-"}, " FOO\n").Fehler.substr(0, 11), "-:1: error:");
    EXPECT_EQ(Laufen({"assemble", "-", "--list", "-"}, " INC A\n").Aus,
              "    0   0000\t04          \tINC A\r\n");
}

TEST_F(Cli, a_source_that_is_not_there_or_no_source_is_refused)
{
    EXPECT_EQ(Laufen({"assemble", "nowhere.asm"}).Status, 3);
    Schreiben("a.bin", "x");
    EXPECT_EQ(Laufen({"assemble", "a.bin"}).Status, 2);
    EXPECT_EQ(Laufen({"assemble", "."}).Status, 3);
}

TEST_F(Cli, an_output_that_cannot_be_written_is_status_3)
{
    Schreiben("a.asm", Programm);
    EXPECT_EQ(Laufen({"assemble", "a.asm", "-o", "no/such/folder/a.bin"}).Status, 3);
    EXPECT_EQ(Laufen({"assemble", "a.asm", "--list", "no/such/folder/a.lst"}).Status, 3);
    EXPECT_EQ(Laufen({"assemble", "a.asm", "-o", "/dev/full"}).Status, 3);
}

TEST_F(Cli, an_image_too_long_for_intel_hex_is_refused_with_status_1)
{
    Schreiben("a.asm", " ORG 8000h\n INC A\n");
    const auto r = Laufen({"assemble", "a.asm", "-o", "a.hex"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Fehler, "Intel-Hex Files can't be larger than 32768 Byte !\n");
    EXPECT_FALSE(Da("a.hex"));
}

TEST_F(Cli, an_include_is_looked_for_beside_the_source)
{
    std::filesystem::create_directory(Ordner / "sub");
    Schreiben("sub/a.asm", "include DEFS.INC\n MOV A,#FIVE\n");
    Schreiben("sub/defs.inc", "FIVE EQU 5\n");
    EXPECT_EQ(Laufen({"assemble", "sub/a.asm"}).Status, 0);
}

// --- convert and compare ---

TEST_F(Cli, convert_goes_from_every_format_to_every_other)
{
    Schreiben("a.bin", Muster(1000));
    for (const char* Ueber : {"b.hex", "b.ihx", "b.mhx", "b.dat", "b._51"}) {
        EXPECT_EQ(Laufen({"convert", "a.bin", "-o", Ueber}).Status, 0) << Ueber;
        EXPECT_EQ(Laufen({"convert", Ueber, "-o", "c.bin"}).Status, 0) << Ueber;
        EXPECT_EQ(Lesen("c.bin").substr(0, 1000), Muster(1000)) << Ueber;
    }
}

TEST_F(Cli, convert_imports_at_addresses_in_every_notation)
{
    Schreiben("a.bin", "AAAA");
    Schreiben("b.bin", "BB");
    EXPECT_EQ(
        Laufen({"convert", "a.bin", "b.bin@2", "b.bin@0x10", "b.bin@20h", "-o", "c.bin"}).Status,
        0);
    const std::string c = Lesen("c.bin");
    EXPECT_EQ(c.substr(0, 5), "AABB\xFF");
    EXPECT_EQ(c.substr(16, 2), "BB");
    EXPECT_EQ(c.substr(32, 2), "BB");
}

TEST_F(Cli, an_address_on_the_first_file_imports_into_an_erased_image)
{
    Schreiben("a.bin", "AA");
    EXPECT_EQ(Laufen({"convert", "a.bin@100h", "-o", "c.bin"}).Status, 0);
    EXPECT_EQ(Lesen("c.bin"), std::string(256, '\xFF') + "AA" + std::string(254, '\xFF'));
}

TEST_F(Cli, an_import_address_outside_the_image_is_status_2)
{
    Schreiben("a.bin", "AA");
    EXPECT_EQ(Laufen({"convert", "a.bin@524288", "-o", "c.bin"}).Status, 0);
    EXPECT_EQ(Laufen({"convert", "a.bin@524289", "-o", "d.bin"}).Status, 2);
    EXPECT_FALSE(Da("d.bin"));
}

TEST_F(Cli, an_address_beyond_every_number_is_outside_too)
{
    Schreiben("a.bin", "AA");
    for (const char* Adresse : {"99999999999", "0x1FFFFFFFF", "80001h"}) {
        const auto r = Laufen({"convert", std::string("a.bin@") + Adresse, "-o", "d.bin"});
        EXPECT_EQ(r.Status, 2) << Adresse;
        EXPECT_EQ(r.Fehler, "varnholt-cli: a.bin: Invalid value\n");
    }
    EXPECT_EQ(Laufen({"--language", "D", "convert", "a.bin@600000", "-o", "d.bin"}).Fehler,
              "varnholt-cli: a.bin: Ungültiger Wert\n");
}

TEST_F(Cli, an_image_is_never_saved_over_a_source)
{
    Schreiben("a.asm", Programm);
    Schreiben("a.bin", "x");
    for (const char* Ziel : {"a.asm", "b.a51", "c.TXT"}) {
        EXPECT_EQ(Laufen({"assemble", "a.asm", "-o", Ziel}).Status, 2) << Ziel;
        EXPECT_EQ(Laufen({"convert", "a.bin", "-o", Ziel}).Status, 2) << Ziel;
    }
    EXPECT_EQ(Lesen("a.asm"), Programm);
    EXPECT_FALSE(Da("b.a51"));
}

TEST_F(Cli, the_notes_of_the_input_are_not_written_beside_the_output)
{
    Schreiben("a.bin", "x");
    Schreiben("a.not", "notes of a");
    Schreiben("b.not", "notes of b");
    EXPECT_EQ(Laufen({"convert", "a.bin", "-o", "b.bin"}).Status, 0);
    EXPECT_EQ(Lesen("b.not"), "notes of b");
}

TEST_F(Cli, a_name_in_brackets_is_a_name)
{
    Schreiben("[a,b]", "x");
    EXPECT_EQ(Laufen({"convert", "[a,b]", "-o", "c.bin"}).Status, 0);
    EXPECT_EQ(Laufen({"compare", "[a,b]", "[a,b]"}).Status, 0);
}

TEST_F(Cli, standard_input_can_be_read_once_only)
{
    EXPECT_EQ(Laufen({"compare", "-", "-"}, "x").Status, 2);
    EXPECT_EQ(Laufen({"convert", "-", "-@5", "-o", "c.bin"}, "x").Status, 2);
    Schreiben("a.bin", "x");
    EXPECT_EQ(Laufen({"compare", "a.bin", "-"}, "x").Status, 0);
}

TEST_F(Cli, without_a_folder_for_temporary_files_nothing_is_left_behind)
{
    setenv("TMPDIR", "/proc", 1);
    const auto r = Laufen({"convert", "-", "-o", "c.bin"}, "x");
    unsetenv("TMPDIR");
    EXPECT_EQ(r.Status, 3);
    EXPECT_FALSE(Da("c.bin"));
    EXPECT_FALSE(Da("stdin"));
}

TEST_F(Cli, a_source_of_nothing_but_line_ends_is_no_trouble)
{
    Schreiben("a.asm", std::string(1 << 20, '\n'));
    EXPECT_EQ(Laufen({"assemble", "a.asm"}).Status, 0);
    Schreiben("b.asm", std::string((16u << 20) + 1, '\n'));
    EXPECT_EQ(Laufen({"assemble", "b.asm"}).Status, 3);
}

TEST_F(Cli, comparing_with_a_source_tells_both_messages)
{
    Schreiben("a.bin", "x");
    Schreiben("s.asm", " NOP\n");
    const auto r = Laufen({"compare", "a.bin", "s.asm"});
    EXPECT_EQ(r.Fehler,
              "This format can't be compared to the hexdata!\n"
              "The data of the file is the same as the data of the editor !\n");
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(Laufen({"compare", "s.asm", "a.bin"}).Status, 2);
}

TEST_F(Cli, a_long_binary_file_needs_a_half)
{
    Schreiben("a.bin", std::string(524288, 'A') + "B");
    const auto r = Laufen({"convert", "a.bin", "-o", "c.bin"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(Enthaelt(r.Fehler, "error: Couldn't load the file a.bin completely at once."));
    EXPECT_FALSE(Da("c.bin"));
    EXPECT_EQ(Laufen({"convert", "a.bin", "-o", "c.bin", "--half", "2"}).Status, 0);
    EXPECT_EQ(Lesen("c.bin").substr(0, 2), "B\xFF");
    EXPECT_EQ(Laufen({"convert", "a.bin", "-o", "d.bin", "--half", "1"}).Status, 0);
    EXPECT_EQ(Lesen("d.bin"), std::string(524288, 'A'));
    EXPECT_EQ(Laufen({"convert", "a.bin", "-o", "d.bin", "--half", "3"}).Status, 2);
}

TEST_F(Cli, a_file_above_a_mebibyte_gives_its_message_and_status_0)
{
    Schreiben("a.bin", std::string(1048577, 'A'));
    const auto r = Laufen({"convert", "a.bin", "-o", "c.bin"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.Fehler, "Filesize over 1048576 Byte: Couldn´t load the file a.bin complete!\n");
    EXPECT_EQ(Lesen("c.bin").size(), 524288u);
}

TEST_F(Cli, convert_answers_missing_files_and_sources)
{
    EXPECT_EQ(Laufen({"convert", "nowhere.bin", "-o", "c.bin"}).Status, 3);
    Schreiben("a.asm", " NOP\n");
    EXPECT_EQ(Laufen({"convert", "a.asm", "-o", "c.bin"}).Status, 2);
    Schreiben("t.txt", "raw");
    EXPECT_EQ(Laufen({"convert", "t.txt", "-o", "c.bin"}).Status, 0);
    EXPECT_EQ(Lesen("c.bin").substr(0, 3), "raw");
}

TEST_F(Cli, compare_tells_equality_and_the_first_difference)
{
    Schreiben("a.bin", "\x01\x02\x03");
    Schreiben("b.bin", std::string("\x01\x02\x03\xFF\xFF", 5));
    Schreiben("c.bin", std::string(0x1234, '\x01') + "\x02");
    Schreiben("d.bin", std::string(0x1234, '\x01') + "\x03");
    const auto Gleich = Laufen({"compare", "a.bin", "b.bin"});
    EXPECT_EQ(Gleich.Status, 0);
    EXPECT_EQ(Gleich.Fehler, "The data of the file is the same as the data of the editor !\n");
    const auto Anders = Laufen({"compare", "c.bin", "d.bin"});
    EXPECT_EQ(Anders.Status, 1);
    EXPECT_EQ(Anders.Aus, "1234h\n");
    EXPECT_EQ(Anders.Fehler, "The data of the file is NOT the same as the data of the editor !\n");
    EXPECT_EQ(Laufen({"--language", "D", "compare", "a.bin", "b.bin"}).Fehler,
              "Die Daten der Datei entsprechen den Daten des Editors !\n");
    EXPECT_EQ(Laufen({"--language", "D", "compare", "c.bin", "d.bin"}).Fehler,
              "Die Daten der Datei entsprechen NICHT den Daten des Editors !\n");
}

TEST_F(Cli, compare_with_a_missing_file_is_status_3_and_says_only_that)
{
    Schreiben("a.bin", "x");
    EXPECT_EQ(Laufen({"compare", "a.bin", "nowhere.bin"}).Fehler,
              "Couldn´t find the file nowhere.bin !\n");
    EXPECT_EQ(Laufen({"compare", "a.bin", "nowhere.bin"}).Status, 3);
    EXPECT_EQ(Laufen({"compare", "nowhere.bin", "a.bin"}).Status, 3);
    EXPECT_EQ(Laufen({"compare", "a.bin"}).Status, 2);
}

// --- devices ---

TEST_F(Cli, devices_lists_the_database)
{
    const auto r = Laufen({"devices"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_TRUE(Enthaelt(r.Aus, "27C256"));
    EXPECT_TRUE(Enthaelt(r.Aus, "Tessel2"));
    const Json j = Json::parse(Laufen({"devices", "--json"}).Aus);
    EXPECT_GT(j.size(), 50u);
}

TEST_F(Cli, devices_tells_one_record_in_any_case)
{
    const Json j = Json::parse(Laufen({"devices", "27c512", "--json"}).Aus);
    EXPECT_EQ(j["name"], "27C512");
    EXPECT_EQ(j["bytes"], 65536);
    EXPECT_EQ(j["board"], "Eprommer");
    EXPECT_EQ(Laufen({"devices", "27c512"}).Status, 0);
    EXPECT_EQ(Laufen({"devices", "nonsense"}).Status, 2);
}

TEST_F(Cli, a_missing_database_is_status_3)
{
    Home = Ordner.string();
    EXPECT_EQ(Laufen({"devices"}).Status, 3);
    EXPECT_EQ(Laufen({"read", "--device", "27C64", "--port", "sim", "-o", "x.bin"}).Status, 3);
    const auto r = Laufen({"--language", "D", "devices"});
    EXPECT_EQ(r.Status, 3);
    EXPECT_EQ(r.Fehler, "Die Datei Spec.ini ist nicht vorhanden oder fehlerhaft !\n");
}

} // namespace
} // namespace varnholt::test
