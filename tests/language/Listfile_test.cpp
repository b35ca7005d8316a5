// What a complete assembly leaves behind: the check against the device, the list file, the
// automatic binary and hex files.
#include "files/Datei_Zustand.h"
#include "language/Listfile.h"
#include "language/Opcode_Tafel.h"
#include "programmer/Geraete.h"

#include <rapidcheck/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// Works in a folder of its own, which is the current one while the test runs.
class Ausgaben_Welt : public Assembler_Welt {
protected:
    Ausgaben_Welt() { fs::current_path(Ordner.Pfad); }
    ~Ausgaben_Welt() override { fs::current_path(Vorher); }

    std::string Pfad(const std::string& Name) const { return (Ordner.Pfad / Name).string(); }
    std::string Lesen(const std::string& Name) const
    {
        std::ifstream Datei(Ordner.Pfad / Name, std::ios::binary);
        return Datei ? std::string{std::istreambuf_iterator<char>(Datei), {}} : "<missing>";
    }
    // Names of all files that the test left in its folder, in order.
    std::string Inhalt() const
    {
        std::vector<std::string> Namen_Da;
        for (const auto& e : fs::directory_iterator(Ordner.Pfad))
            Namen_Da.push_back(e.path().filename().string());
        std::sort(Namen_Da.begin(), Namen_Da.end());
        std::string Alle;
        for (const std::string& n : Namen_Da)
            Alle += (Alle.empty() ? "" : " ") + n;
        return Alle;
    }
    // The list of a text that belongs to no file.
    std::string Liste(const std::string& Text)
    {
        C_Erstelle_Listfile = true;
        Laufen(Text);
        EXPECT_EQ(Assembler_Fehler, 0) << Letzte_Meldung();
        return Lesen("TEMP.L51");
    }
    // Selects a device of that size as number 35.
    static void Geraet_Waehlen(std::int32_t Groesse)
    {
        IC_Nummer                    = 35;
        Geraete_Tabelle.at(35)       = {};
        Geraete_Tabelle.at(35).Name  = "27C32";
        Geraete_Tabelle.at(35).Bytes = Groesse;
        IC_Groesse.at(36)            = Groesse;
    }

    Arbeitsordner Ordner{};
    fs::path      Vorher = fs::current_path();
};

// --- device size --------------------------------------------------------------------------------

const std::string Passt_Nicht_D =
    "Die Hex-Daten passen nicht in das von Ihnen gewählte IC 27C32. Daher müssen Sie sich ein "
    "anderes "
    "IC aus dem Menü 'IC' -> 'Typ wählen' aussuchen oder den Programmcode verkleinern.";
const std::string Passt_Nicht_E = "The hex-date doesn´t fit into the IC you have choosen. So you "
                                  "must choose another IC or try to "
                                  "minimize your programcode.";

TEST_F(Ausgaben_Welt, lets_a_program_fill_the_device_to_its_last_byte)
{
    Geraet_Waehlen(4096);
    Laufen("ORG 4095\nDB 5");
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(IC_Nummer, 35);
    EXPECT_EQ(Code_Ende, 4096);
}

TEST_F(Ausgaben_Welt, warns_of_a_program_that_is_one_byte_too_long)
{
    for (const auto& [Kennung, Meldung] : {std::pair{"D", Passt_Nicht_D}, {"E", Passt_Nicht_E}}) {
        Sprache = Kennung;
        Geraet_Waehlen(4096);
        Laufen("DB 7\nORG 4095\nDB 5,6");
        ASSERT_EQ(Box.Meldungen.size(), 1U);
        EXPECT_EQ(Letzte_Meldung(), Meldung);
        EXPECT_EQ(Box.Meldungen.back().Tasten, Knoepfe::Ok);
        EXPECT_EQ(IC_Nummer, -1);
        EXPECT_EQ(Hex_Groesse, 524288);
        EXPECT_EQ(Hex_Text(4095, 4098), "05 06 FF");
        EXPECT_EQ(Hex_Text(0, 1), "07");
        EXPECT_EQ(Assembler_Fehler, 0);
        EXPECT_TRUE(Text_Aktuell);
    }
}

TEST_F(Ausgaben_Welt, warns_of_an_origin_beyond_the_device)
{
    Geraet_Waehlen(4096);
    Laufen("NOP\nORG 8000h");
    EXPECT_EQ(Letzte_Meldung(), Passt_Nicht_E);
}

TEST_F(Ausgaben_Welt, erases_what_stands_behind_the_end_of_a_program_that_is_too_long)
{
    Geraet_Waehlen(4096);
    Laufen("ORG 3000h\nDB 1\nORG 80000h-1\nDB 9\nORG 2000h\nDB 2");
    EXPECT_EQ(Code_Ende, 0x2001);
    EXPECT_EQ(Hex_Text(0x2000, 0x2002), "02 FF");
    EXPECT_EQ(Hex_Text(0x3000, 0x3001), "FF");
    EXPECT_EQ(Hex_Text(0x7FFFF, 0x80001), "FF FF");
}

TEST_F(Ausgaben_Welt, keeps_what_stands_behind_the_end_of_a_program_that_fits)
{
    Geraet_Waehlen(4096);
    Laufen("ORG 3000h\nDB 1\nORG 0\nDB 2");
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Hex_Text(0x3000, 0x3001), "01");
}

TEST_F(Ausgaben_Welt, takes_the_whole_image_without_a_device)
{
    Laufen("ORG 80000h");
    EXPECT_EQ(Code_Ende, 524288);
    EXPECT_TRUE(Box.Meldungen.empty());
    Laufen("ORG 80001h");
    EXPECT_EQ(Letzte_Meldung(), Passt_Nicht_E);
    Sprache = "D";
    Laufen("ORG 80001h");
    EXPECT_EQ(Letzte_Meldung(), Ersetzt(Passt_Nicht_D, "27C32", ""));
}

TEST_F(Ausgaben_Welt, writes_the_list_after_the_warning)
{
    Geraet_Waehlen(2);
    EXPECT_EQ(Liste("NOP\nNOP\nNOP"),
              "    0   0000\t00          \tNOP\r\n"
              "    1   0001\t00          \tNOP\r\n"
              "    2   0002\t00          \tNOP\r\n");
    EXPECT_EQ(Letzte_Meldung(), Passt_Nicht_E);
}

TEST_F(Ausgaben_Welt, checks_no_size_after_an_error)
{
    Geraet_Waehlen(1);
    EXPECT_EQ(Assembliere("NOP\nNOP\nLJMP X"), "Jumpmark not found !");
    EXPECT_EQ(IC_Nummer, 35);
}

// --- list rows -----------------------------------------------------------------------------------

TEST_F(Ausgaben_Welt, lists_code_with_one_to_three_bytes)
{
    EXPECT_EQ(Liste("NOP\nmov a , #5 ; five\nLJMP (1234h)"),
              "    0   0000\t00          \tNOP\r\n"
              "    1   0001\t74 05       \tmov a,#5\r\n"
              "    2   0003\t02 12 34    \tLJMP (1234h)\r\n");
}

TEST_F(Ausgaben_Welt, lists_patched_jumps)
{
    EXPECT_EQ(Liste("LJMP X\nNOP\nX: SJMP X"),
              "    0   0000\t02 00 04    \tLJMP X\r\n"
              "    1   0003\t00          \tNOP\r\n"
              "    2   0004\t            \tX:\r\n"
              "    3   0004\t80 FE       \tSJMP X\r\n");
}

TEST_F(Ausgaben_Welt, lists_a_label_on_a_line_of_its_own)
{
    EXPECT_EQ(Liste("Start: NOP\nalone:\n\n; nothing\nRET"),
              "    0   0000\t            \tSTART:\r\n"
              "    1   0000\t00          \tNOP\r\n"
              "    2   0001\t            \tALONE:\r\n"
              "    3   0001\t22          \tRET\r\n");
}

// Only behind a code line a label gets its line.
TEST_F(Ausgaben_Welt, lists_no_label_behind_a_label_a_data_line_or_a_definition)
{
    EXPECT_EQ(Liste("A1:\nB1: DB 1\nC1: NOP\nX EQU 5\nD1: RET\nE1: RETI"),
              "    0   0000\t            \tA1:\r\n"
              "    1   0000\tDATA     \tDB 1\r\n"
              "    2   0001\t00          \tNOP\r\n"
              "    3   0002\tDEF      \tX EQU 5\r\n"
              "    4   0002\t22          \tRET\r\n"
              "    5   0003\t            \tE1:\r\n"
              "    6   0003\t32          \tRETI\r\n");
}

TEST_F(Ausgaben_Welt, lists_data_lines_without_their_bytes)
{
    EXPECT_EQ(Liste("DB 1,2,3\nDW 5\nHEX: 1\nDEZ: 1\nASC: abc"),
              "    0   0000\tDATA     \tDB 1,2,3\r\n"
              "    1   0003\tDATA     \tDW 5\r\n"
              "    2   0005\tDATA     \tHEX: 1\r\n"
              "    3   0006\tDATA     \tDEZ: 1\r\n"
              "    4   0007\tDATA     \tASC: abc\r\n");
}

TEST_F(Ausgaben_Welt, lists_definitions)
{
    EXPECT_EQ(Liste("X EQU 5\nY BIT 6\nZ DATA 7\nCONST A=b\nCONST C"),
              "    0   0000\tDEF      \tX EQU 5\r\n"
              "    1   0000\tDEF      \tY BIT 6\r\n"
              "    2   0000\tDEF      \tZ DATA 7\r\n"
              "    3   0000\tDEF      \tCONST A=b\r\n"
              "    4   0000\tDEF      \tCONST C\r\n");
}

TEST_F(Ausgaben_Welt, lists_a_fixed_address_and_the_rest_of_its_line)
{
    EXPECT_EQ(Liste("NOP\n(100h): RET\n(200h):\n(10h):DB 1\nX: (20h): NOP"),
              "    0   0000\t00          \tNOP\r\n"
              "    1   0100\t            \t(100h):\r\n"
              "    2   0100\t22          \tRET\r\n"
              "    3   0200\t            \t(200h):\r\n"
              "    4   0010\t            \t(10h):\r\n"
              "    5   0010\tDATA     \tDB 1\r\n"
              "    6   0020\t            \t(20h):\r\n"
              "    7   0020\t00          \tNOP\r\n");
}

TEST_F(Ausgaben_Welt, lists_a_label_ahead_of_a_fixed_address)
{
    EXPECT_EQ(Liste("NOP\nX: (20h): RET"),
              "    0   0000\t00          \tNOP\r\n"
              "    1   0001\t            \tX:\r\n"
              "    2   0020\t            \t(20h):\r\n"
              "    3   0020\t22          \tRET\r\n");
}

TEST_F(Ausgaben_Welt, lists_a_directive_with_the_byte_at_its_address)
{
    EXPECT_EQ(Liste("ORG 2\nNOP\nEND"),
              "    0   0000\tFF          \tORG 2\r\n"
              "    1   0002\t00          \tNOP\r\n"
              "    2   0003\tFF          \tEND\r\n");
}

TEST_F(Ausgaben_Welt, lists_a_STOP_without_bytes_unless_the_debugger_runs)
{
    EXPECT_EQ(Liste("STOP\nNOP"),
              "    0   0000\t            \tSTOP\r\n"
              "    1   0000\t00          \tNOP\r\n");
    Debugger_Aktiv = true;
    EXPECT_EQ(Liste("STOP\nNOP"),
              "    0   0000\tA5          \tSTOP\r\n"
              "    1   0001\t00          \tNOP\r\n");
}

TEST_F(Ausgaben_Welt, lists_three_bytes_at_most_of_an_expansion)
{
    EXPECT_EQ(Liste("IF A=#5 THEN\nNOP\nEND IF\nFOR A=#1 TO #2\nNEXT"),
              "    0   0000\tB4 05 02    \tIF A=#5 THEN\r\n"
              "    1   0008\t00          \tNOP\r\n"
              "    2   0009\t74 01       \tEND IF\r\n"
              "    3   0009\t74 01       \tFOR A=#1 TO #2\r\n"
              "    4   000B\tB4 02 03    \tNEXT\r\n");
}

// The row comes twice: with its head and with its tail, both at the head's address.
TEST_F(Ausgaben_Welt, lists_a_one_line_IF_twice)
{
    EXPECT_EQ(Liste("NOP\nIF A=#5 THEN inc r0\nRET"),
              "    0   0000\t00          \tNOP\r\n"
              "    1   0001\tB4 05 01    \tIF A=#5 THEN inc r0\r\n"
              "    2   0001\tB4 05 01    \tINC R0\r\n"
              "    3   0005\t22          \tRET\r\n");
    EXPECT_EQ(Liste("X: IF A=#5 THEN INC R0"),
              "    0   0000\t            \tX:\r\n"
              "    1   0000\tB4 05 01    \tIF A=#5 THEN INC R0\r\n"
              "    2   0000\t            \tX:\r\n"
              "    3   0000\tB4 05 01    \tINC R0\r\n");
}

TEST_F(Ausgaben_Welt, lists_the_lines_of_included_files)
{
    Ordner.Anlegen("defs.inc", "X EQU 5\nY: NOP\n");
    Datei_Name          = Pfad("a.asm");
    C_Erstelle_Listfile = true;
    Laufen("INCLUDE defs.inc\nRET");
    EXPECT_EQ(Lesen("a.L51"),
              "    0   0000\tDEF      \tX EQU 5\r\n"
              "    1   0000\t00          \tNOP\r\n"
              "    2   0001\t22          \tRET\r\n");
}

TEST_F(Ausgaben_Welt, numbers_the_rows_in_five_places_and_addresses_in_four)
{
    std::string Text;
    for (int i = 0; i < 10001; ++i)
        Text += "NOP\n";
    const std::string Alles = Liste(Text + "ORG 10000h\nRET");
    EXPECT_NE(Alles.find("\r\n    9   0009\t00          \tNOP\r\n   10   000A\t"),
              std::string::npos);
    EXPECT_NE(Alles.find("\r\n  100   0064\t"), std::string::npos);
    EXPECT_NE(Alles.find("\r\n 1000   03E8\t"), std::string::npos);
    EXPECT_NE(Alles.find("\r\n 9999   270F\t"), std::string::npos);
    EXPECT_NE(Alles.find("\r\n 10000   2710\t"), std::string::npos);
    EXPECT_NE(Alles.find("\r\n 10002   10000\t22          \tRET\r\n"), std::string::npos);
}

TEST_F(Ausgaben_Welt, lists_each_opcode_by_its_length)
{
    const auto Laengen = Opcode_Laengen();
    for (int Opcode = 0; Opcode < 256; ++Opcode) {
        const int Laenge = Laengen.at(static_cast<std::size_t>(Opcode));
        // An ORG shows what stands at its address; the bytes are set behind it.
        std::string Soll = "    0   0000\t" + Hex2(Opcode);
        for (int i = 1; i < 3; ++i)
            Soll += i < Laenge ? " 1" + std::to_string(i) : "   ";
        Soll +=
            "    \tORG 0\r\n    1   0000\tDATA     \tDB " + std::to_string(Opcode) + ",11h,12h\r\n";
        EXPECT_EQ(Liste("ORG 0\nDB " + std::to_string(Opcode) + ",11h,12h"), Soll) << Opcode;
    }
}

TEST_F(Ausgaben_Welt, lists_a_program_without_bytes)
{
    EXPECT_EQ(Liste(""), "");
    EXPECT_EQ(Liste("; nothing\n\n"), "");
    EXPECT_EQ(Liste("X:"), "    0   0000\t            \tX:\r\n");
}

// --- the file
// --------------------------------------------------------------------------------------

TEST_F(Ausgaben_Welt, makes_no_list_when_the_option_is_off)
{
    Laufen("NOP");
    EXPECT_EQ(Inhalt(), "");
    EXPECT_TRUE(Listen_Zeilen.empty());
}

TEST_F(Ausgaben_Welt, erases_the_rows_after_writing)
{
    Liste("NOP");
    EXPECT_TRUE(Listen_Zeilen.empty());
    EXPECT_EQ(Inhalt(), "TEMP.L51");
}

TEST_F(Ausgaben_Welt, writes_the_list_beside_the_source)
{
    C_Erstelle_Listfile = true;
    fs::create_directory(Pfad("dir.x"));
    const std::pair<const char*, const char*> Faelle[] = {
        {"prog.asm", "prog.L51"},
        {"a.b.c", "a.b.L51"},
        {"prog.", "prog.L51"},
        {"dir.x/prog", "dir.L51"},
        {"dir.x/p.a51", "dir.x/p.L51"},
    };
    for (const auto& [Quelle, Listdatei] : Faelle) {
        Datei_Name = Pfad(Quelle);
        Laufen("RET");
        EXPECT_EQ(Lesen(Listdatei), "    0   0000\t22          \tRET\r\n") << Quelle;
        fs::remove(Pfad(Listdatei));
    }
    EXPECT_EQ(Inhalt(), "dir.x");
}

TEST_F(Ausgaben_Welt, calls_the_list_of_a_path_without_a_dot_just_by_its_extension)
{
    C_Erstelle_Listfile = true;
    Datei_Name          = "prog";
    Laufen("RET");
    EXPECT_EQ(Inhalt(), ".L51");
}

TEST_F(Ausgaben_Welt, writes_the_list_anew_each_time)
{
    Ordner.Anlegen("TEMP.L51", std::string(5000, 'x'));
    EXPECT_EQ(Liste("RET"), "    0   0000\t22          \tRET\r\n");
    EXPECT_EQ(Inhalt(), "TEMP.L51");
}

TEST_F(Ausgaben_Welt, writes_no_list_after_an_error)
{
    C_Erstelle_Listfile = true;
    Laufen("NOP\nLJMP X");
    EXPECT_EQ(Inhalt(), "");
}

TEST_F(Ausgaben_Welt, lists_no_rows_of_the_run_before)
{
    C_Erstelle_Listfile = true;
    Laufen("NOP\nLJMP X");
    EXPECT_EQ(Liste("RET"), "    0   0000\t22          \tRET\r\n");
}

TEST_F(Ausgaben_Welt, writes_the_list_in_the_encoding_of_the_source)
{
    Quell_Datei.Zeichensatz = Kodierung::Windows_1252;
    EXPECT_EQ(Liste("\xC4: DB \"\xE4\""),
              "    0   0000\t            \t\xC4:\r\n"
              "    1   0000\tDATA     \tDB \"\xE4\"\r\n");
    Quell_Datei.Zeichensatz = Kodierung::UTF8;
    EXPECT_EQ(Liste("\xC4: DB \"\xE4\""),
              "    0   0000\t            \tÄ:\r\n"
              "    1   0000\tDATA     \tDB \"ä\"\r\n");
}

TEST_F(Ausgaben_Welt, tells_a_failed_write_and_ends_as_usual)
{
    C_Erstelle_Listfile = true;
    Datei_Name          = Pfad("gone/prog.asm");
    for (const auto& [Kennung, Anfang] :
         {std::pair{"D", "Die Listdatei "}, {"E", "The list file "}}) {
        Sprache = Kennung;
        Box.Hinweise.clear();
        Laufen("RET");
        EXPECT_EQ(Assembler_Fehler, 0);
        EXPECT_TRUE(Text_Aktuell);
        EXPECT_EQ(Datei_Fehler, Dateifehler::Schreibfehler);
        ASSERT_EQ(Box.Hinweise.size(), 1U);
        EXPECT_EQ(Box.Hinweise[0].rfind(Anfang + Pfad("gone/prog.L51"), 0), 0U) << Box.Hinweise[0];
        EXPECT_TRUE(Listen_Zeilen.empty());
    }
}

TEST_F(Ausgaben_Welt, keeps_what_stands_under_the_name_when_a_write_fails)
{
    fs::create_directory(Pfad("TEMP.L51")); // a folder can't be replaced by a file
    Ordner.Anlegen("TEMP.L51/old", "old");
    C_Erstelle_Listfile = true;
    Laufen("RET");
    EXPECT_EQ(Box.Hinweise.size(), 1U);
    EXPECT_EQ(Lesen("TEMP.L51/old"), "old");
    EXPECT_EQ(Inhalt(), "TEMP.L51");
}

// --- automatic files
// ---------------------------------------------------------------------------------

// One byte 22h saved as Intel-HEX: the image up to the next multiple of 256.
std::string Hexdatei()
{
    std::string Text = ":1000000022" + std::string(30, 'F') + "DD\r\n";
    for (int a = 16; a < 256; a += 16) {
        int Summe = 16 + a;
        for (int i = 0; i < 16; ++i)
            Summe += 0xFF;
        Text +=
            ":1000" + Hex2(a) + "00" + std::string(32, 'F') + Hex2(256 - (Summe & 0xFF)) + "\r\n";
    }
    return Text + ":00000001FF\r\n";
}

TEST_F(Ausgaben_Welt, writes_binary_and_hex_file_beside_the_source)
{
    C_Auto_Binfile = C_Auto_Hexfile = true;
    Datei_Name                      = Pfad("prog.asm");
    Laufen("RET");
    EXPECT_EQ(Inhalt(), "prog.bin prog.hex");
    EXPECT_EQ(Lesen("prog.bin"), "\x22" + std::string(255, '\xFF'));
    EXPECT_EQ(Lesen("prog.hex"), Hexdatei());
    EXPECT_EQ(Quell_Pfad, Pfad("prog.hex"));
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_TRUE(Text_Aktuell);
}

TEST_F(Ausgaben_Welt, writes_each_automatic_file_by_its_own_option)
{
    C_Auto_Binfile = true;
    Datei_Name     = Pfad("a.asm");
    Laufen("RET");
    EXPECT_EQ(Quell_Pfad, Pfad("a.bin"));
    C_Auto_Binfile = false;
    C_Auto_Hexfile = true;
    Datei_Name     = Pfad("b.x.asm");
    Laufen("RET");
    EXPECT_EQ(Quell_Pfad, Pfad("b.x.hex"));
    EXPECT_EQ(Inhalt(), "a.bin b.x.hex");
}

TEST_F(Ausgaben_Welt, leaves_the_name_and_the_folder_alone_when_both_options_are_off)
{
    Datei_Name = Pfad("a.asm");
    Laufen("RET");
    EXPECT_EQ(Quell_Pfad, Pfad("a.asm"));
    EXPECT_EQ(Inhalt(), "");
}

TEST_F(Ausgaben_Welt, writes_no_automatic_files_for_a_text_without_a_name)
{
    C_Auto_Binfile = C_Auto_Hexfile = true;
    for (const char* Name : {"", "prog", ".asm"}) {
        Datei_Name = Name;
        Laufen("RET");
        EXPECT_EQ(Inhalt(), "") << Name;
        EXPECT_EQ(Quell_Pfad, Name);
    }
    Datei_Name = "a.";
    Laufen("RET");
    EXPECT_EQ(Inhalt(), "a.bin a.hex");
}

TEST_F(Ausgaben_Welt, keeps_the_recent_files)
{
    C_Auto_Binfile = C_Auto_Hexfile = true;
    Letzte_Datei                    = {Pfad("a.asm"), "two", "three"};
    Datei_Name                      = Pfad("a.asm");
    const auto Soll                 = Letzte_Datei;
    Laufen("RET");
    EXPECT_EQ(Letzte_Datei, Soll);
}

TEST_F(Ausgaben_Welt, ends_in_the_mode_of_the_source_editor_after_automatic_files)
{
    C_Auto_Binfile = true;
    Modus          = Modus_Hex;
    Datei_Name     = Pfad("a.asm");
    Laufen("RET");
    EXPECT_EQ(Modus, Modus_MC);
}

TEST_F(Ausgaben_Welt, writes_no_automatic_files_after_an_error)
{
    C_Auto_Binfile = C_Auto_Hexfile = true;
    Datei_Name                      = Pfad("a.asm");
    Laufen("LJMP X");
    EXPECT_EQ(Inhalt(), "");
    EXPECT_EQ(Quell_Pfad, Pfad("a.asm"));
}

TEST_F(Ausgaben_Welt, writes_list_binary_and_hex_file_in_one_run)
{
    C_Erstelle_Listfile = C_Auto_Binfile = C_Auto_Hexfile = true;
    Datei_Name                                            = Pfad("prog.asm");
    Laufen("RET");
    EXPECT_EQ(Inhalt(), "prog.L51 prog.bin prog.hex");
}

// --- random
// ------------------------------------------------------------------------------------------

RC_GTEST_FIXTURE_PROP(Ausgaben_Welt, lists_random_instructions_with_their_bytes, ())
{
    const auto  Tafel = Opcode_Tafel();
    std::string Text, Soll;
    int         Adresse = 0, Nummer = 0;
    for (const auto i : *rc::gen::container<std::vector<std::size_t>>(
             rc::gen::inRange<std::size_t>(0, Tafel.size()))) {
        const Tafel_Eintrag& e = Tafel[i];
        if (e.Laenge != 1 || e.Opcode == 0xA5)
            continue;
        Text += e.Text + "\n";
        std::string Zahl = " " + std::to_string(Nummer++);
        Zahl.insert(0, Zahl.size() < 5 ? 5 - Zahl.size() : 0, ' ');
        Soll += Zahl + "   " + Ersetzt(Hoch_Tief(Adresse++), " ", "") + "\t" + Hex2(e.Opcode) +
                "          \t" + e.Text + "\r\n";
    }
    RC_ASSERT(Liste(Text) == Soll);
}

} // namespace
} // namespace varnholt::test
