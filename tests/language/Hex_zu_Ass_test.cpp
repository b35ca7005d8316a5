// The disassembler: its rules over images, its way back through the assembler, and the command with
// its progress, cancel and editor. Cases in files: tests/golden/disassembler, a dropped <name>.bin
// with the expected text beside it as <name>.txt (LF line ends; destination first, no device).
#include "core/menu.h"
#include "core/windows.h"
#include "editors/Einfaerben.h"
#include "editors/Sprungmarken.h"
#include "language/Assembler_Hilfe.h"
#include "language/Befehle.h"
#include "language/Disassembler_Regeln.h"
#include "language/HexDez.h"
#include "language/Opcode_Tafel.h"
#include "programmer/Geraete.h"
#include "support/Golden.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

using Bytes_T = std::vector<std::uint8_t>;

// `02 00 03` as bytes.
Bytes_T Bytes(std::string_view Hex)
{
    Bytes_T Liste;
    for (std::size_t i = 0; i + 1 < Hex.size(); i += 3)
        Liste.push_back(static_cast<std::uint8_t>(Hex_zu_Wert(Hex.substr(i, 2))));
    return Liste;
}

// A repeatable source of numbers.
struct Zufall_T {
    std::uint32_t Wert = 1;
    int           Unter(int Grenze)
    {
        Wert = Wert * 1664525u + 1013904223u;
        return static_cast<int>((Wert >> 8) % static_cast<std::uint32_t>(Grenze));
    }
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Unter(256)); }
};

Bytes_T Zufalls_Bytes(Zufall_T& Zufall, int Anzahl)
{
    Bytes_T Liste;
    for (int i = 0; i < Anzahl; ++i)
        Liste.push_back(Zufall.Byte());
    return Liste;
}

class Disassembler : public Assembler_Welt {
protected:
    static void Bild_Setzen(const Bytes_T& Liste)
    {
        Bild_Loeschen();
        std::copy(Liste.begin(), Liste.end(), Hex_Daten.begin());
    }
    // Selects a device of that size.
    static void Geraet_Setzen(std::int32_t Groesse)
    {
        IC_Nummer         = 35;
        IC_Groesse.at(36) = Groesse;
    }
    // The text of the editor afterwards, with LF line ends. The command must have gone through.
    std::string Zerlege(const Bytes_T& Liste)
    {
        Bild_Setzen(Liste);
        EXPECT_TRUE(Disassemblieren());
        std::string Text;
        for (const char c : Edit.Inhalt)
            if (c != '\r')
                Text += c;
        EXPECT_EQ(Kurz(Mit_CRLF(Text)), Kurz(Edit.Inhalt)) << "a line end without its CR";
        return Text;
    }
    std::string Zerlege(std::string_view Hex) { return Zerlege(Bytes(Hex)); }

    // Disassembles and assembles: the same bytes again, up to the end of the code.
    void Hin_Und_Zurueck(const Bytes_T& Liste)
    {
        Zerlege(Liste);
        ASSERT_EQ(Code_Ende, static_cast<std::int32_t>(Liste.size()));
        Assemblieren();
        ASSERT_EQ(Assembler_Fehler, 0)
            << Letzte_Meldung() << " in line " << Fehler_Zeile + 1 << " of " << Kurz(Edit.Inhalt);
        ASSERT_EQ(Code_Ende, static_cast<std::int32_t>(Liste.size()));
        const auto Erste = std::mismatch(Liste.begin(), Liste.end(), Hex_Daten.begin()).first;
        EXPECT_EQ(Erste, Liste.end()) << "differs at " << Erste - Liste.begin();
    }
};

// --- The opcodes --------------------------------------------------------------------------------

// A text of the tests' own table with the operand bytes 12h and 34h.
std::string Mit_Operanden(std::string Text)
{
    if (const std::size_t p = Text.find("!!"); p != std::string::npos)
        return Text.replace(p, 2, "1234h");
    for (const char* Wert : {"12h", "34h"})
        if (const std::size_t p = Text.find('!'); p != std::string::npos)
            Text.replace(p, 1, Wert);
    return Text;
}

TEST_F(Disassembler, every_opcode_gives_its_template_with_its_operands)
{
    O_MOV_ZQ   = false;
    int Anzahl = 0;
    for (const Tafel_Eintrag& e : Opcode_Tafel()) {
        if (e.Opcode == 0x02 || e.Opcode == 0x12)
            continue;
        Bytes_T Bild_Bytes = {static_cast<std::uint8_t>(e.Opcode), 0x12, 0x34};
        Bild_Bytes.resize(static_cast<std::size_t>(e.Laenge));
        Bild_Bytes.push_back(0); // so that a lone FFh isn't the end of the code
        EXPECT_EQ(Zerlege(Bild_Bytes), Mit_Operanden(e.Text) + "\nNOP\n") << e.Opcode;
        ++Anzahl;
    }
    EXPECT_EQ(Anzahl, 254);
}

TEST_F(Disassembler, the_stop_point_prints_its_German_text_in_both_languages)
{
    for (const char* s : {"D", "E"}) {
        Sprache = s;
        EXPECT_EQ(Zerlege("A5"), "Nicht definiert\n");
    }
}

TEST_F(Disassembler, word_operands_keep_four_digits_and_byte_operands_two)
{
    EXPECT_EQ(Zerlege("90 12 34 74 05"), "MOV DPTR,#1234h\nMOV A,#05h\n");
    EXPECT_EQ(Zerlege("90 00 0A 74 AF"), "MOV DPTR,#000Ah\nMOV A,#AFh\n");
}

TEST_F(Disassembler, operands_come_in_the_order_of_their_bytes)
{
    EXPECT_EQ(Zerlege("B4 01 02 75 03 04 20 05 06"), "CJNE A,#01h,02h\nMOV 03h,#04h\nJB 05h,06h\n");
}

TEST_F(Disassembler, short_jumps_and_pages_print_their_raw_operands)
{
    EXPECT_EQ(Zerlege("80 FE E1 00 31 12 D8 FD 40 00"),
              "SJMP FEh\nAJMP 7,00h\nACALL 1,12h\nDJNZ R0,FDh\nJC 00h\n");
}

// --- MOV direct,direct --------------------------------------------------------------------------

TEST_F(Disassembler, with_destination_first_a_direct_move_is_exchanged_in_the_image_too)
{
    EXPECT_EQ(Zerlege("85 10 20"), "MOV 20h,10h\n");
    EXPECT_EQ(Hex_Text(0, 3), "85 20 10");
}

TEST_F(Disassembler, a_second_disassembly_reverses_a_direct_move)
{
    Zerlege("85 10 20");
    EXPECT_TRUE(Disassemblieren());
    EXPECT_EQ(Edit.Inhalt, "MOV 10h,20h\r\n");
    EXPECT_EQ(Hex_Text(0, 3), "85 10 20");
}

TEST_F(Disassembler, with_source_first_a_direct_move_stays_as_it_is)
{
    O_MOV_ZQ = false;
    EXPECT_EQ(Zerlege("85 10 20"), "MOV 10h,20h\n");
    EXPECT_EQ(Hex_Text(0, 3), "85 10 20");
}

TEST_F(Disassembler, an_operand_of_another_instruction_is_no_direct_move)
{
    EXPECT_EQ(Zerlege("74 85 10 20 30 00"), "MOV A,#85h\nJBC 20h,30h\nNOP\n");
    EXPECT_EQ(Hex_Text(0, 6), "74 85 10 20 30 00");
}

// --- Labels -------------------------------------------------------------------------------------

TEST_F(Disassembler, a_jump_target_becomes_a_label)
{
    EXPECT_EQ(Zerlege("02 00 03 00 22"), "LJMP Label_1\nLabel_1:\nNOP\nRET\n");
    EXPECT_EQ(Zerlege("02 00 04 00 22"), "LJMP Label_1\nNOP\nLabel_1:\nRET\n");
    EXPECT_EQ(Zerlege("12 00 03 22"), "LCALL Label_1\nLabel_1:\nRET\n");
}

TEST_F(Disassembler, labels_count_up_in_the_order_of_their_addresses)
{
    EXPECT_EQ(Zerlege("02 00 08 02 00 07 00 22 32"),
              "LJMP Label_2\nLJMP Label_1\nNOP\nLabel_1:\nRET\nLabel_2:\nRETI\n");
}

TEST_F(Disassembler, jumps_to_the_same_place_share_a_label)
{
    EXPECT_EQ(Zerlege("02 00 00 12 00 00 22"), "Label_1:\nLJMP Label_1\nLCALL Label_1\nRET\n");
}

TEST_F(Disassembler, a_target_above_the_end_stands_as_a_number_in_brackets)
{
    EXPECT_EQ(Zerlege("02 80 00 12 00 7F"), "LJMP (8000h)\nLCALL (007Fh)\n");
    Hin_Und_Zurueck(Bytes("02 80 00 12 00 7F"));
}

TEST_F(Disassembler, a_target_exactly_at_the_end_is_a_label_without_a_line)
{
    EXPECT_EQ(Zerlege("02 00 03"), "LJMP Label_1\n");
    EXPECT_EQ(Zerlege("02 00 04"), "LJMP (0004h)\n");
    EXPECT_EQ(Zerlege("02 00 02"), "LJMP Label_1\n");
}

TEST_F(Disassembler, a_target_inside_an_instruction_has_no_line_of_its_own)
{
    EXPECT_EQ(Zerlege("02 00 04 74 02 22"), "LJMP Label_1\nMOV A,#02h\nRET\n");
    Assemblieren();
    EXPECT_EQ(Assembler_Fehler, 1);
    EXPECT_EQ(Fehlertext.D, "Sprungadresse nicht gefunden !");
}

TEST_F(Disassembler, jumps_into_the_same_instruction_share_its_number)
{
    EXPECT_EQ(Zerlege("02 00 07 02 00 07 74 02 22"),
              "LJMP Label_1\nLJMP Label_1\nMOV A,#02h\nRET\n");
}

TEST_F(Disassembler, the_number_of_such_a_target_can_equal_that_of_a_label)
{
    EXPECT_EQ(Zerlege("02 00 07 02 00 08 74 02 22"),
              "LJMP Label_1\nLJMP Label_1\nMOV A,#02h\nLabel_1:\nRET\n");
}

TEST_F(Disassembler, the_number_of_a_target_above_the_end_is_used_up)
{
    EXPECT_EQ(Zerlege("02 80 00 02 00 07 74 02 22"),
              "LJMP (8000h)\nLJMP Label_2\nMOV A,#02h\nRET\n");
}

TEST_F(Disassembler, a_label_can_stand_at_the_last_address_of_the_address_space)
{
    Bytes_T Liste(65540, 0);
    Liste[0]              = 2;
    Liste[1]              = 0xFF;
    Liste[2]              = 0xFF;
    const std::string Ist = Zerlege(Liste);
    EXPECT_EQ(Ist.substr(0, 17), "LJMP Label_1\nNOP\n");
    EXPECT_EQ(Ist.substr(Ist.size() - 33), "NOP\nLabel_1:\nNOP\nNOP\nNOP\nNOP\nNOP\n");
}

// --- Where the code ends ------------------------------------------------------------------------

TEST_F(Disassembler, an_image_all_of_FF_clears_the_editor_and_emits_no_text)
{
    Edit.Inhalt = "NOP";
    EXPECT_EQ(Zerlege(Bytes_T{}), "");
    EXPECT_EQ(Status.Geoeffnet, 1);
    EXPECT_FALSE(Status.Offen);
    EXPECT_TRUE(Status.Balken.empty());
    EXPECT_FALSE(Text_Aktuell);
}

TEST_F(Disassembler, bytes_up_to_the_last_one_other_than_FF_are_code)
{
    EXPECT_EQ(Zerlege("00 FF FF 22 FF"), "NOP\nMOV R7,A\nMOV R7,A\nRET\n");
    EXPECT_EQ(Code_Ende, 4);
}

TEST_F(Disassembler, an_operand_behind_the_end_is_read_as_it_stands)
{
    EXPECT_EQ(Zerlege("00 74"), "NOP\nMOV A,#FFh\n");
    EXPECT_EQ(Zerlege("90 12"), "MOV DPTR,#12FFh\n");
    EXPECT_EQ(Zerlege("12"), "LCALL (FFFFh)\n");
    Geraet_Setzen(2); // the device holds no more; the image does
    EXPECT_EQ(Zerlege("90 12 34"), "MOV DPTR,#1234h\n");
}

TEST_F(Disassembler, a_direct_move_cut_by_the_end_is_exchanged_in_the_erased_part)
{
    EXPECT_EQ(Zerlege("85 10"), "MOV FFh,10h\n");
    EXPECT_EQ(Hex_Text(0, 3), "85 FF 10");
}

TEST_F(Disassembler, what_lies_above_the_selected_device_is_not_code)
{
    Geraet_Setzen(4);
    EXPECT_EQ(Zerlege("00 22 FF FF 32"), "NOP\nRET\n");
    EXPECT_EQ(Zerlege("FF FF FF FF 32"), "");
}

TEST_F(Disassembler, the_last_byte_of_a_full_device_is_left_out)
{
    Geraet_Setzen(4);
    EXPECT_EQ(Zerlege("00 00 22 FF"), "NOP\nNOP\nRET\n");
    EXPECT_EQ(Zerlege("00 00 00 22"), "NOP\nNOP\nNOP\n");
    EXPECT_EQ(Code_Ende, 3);
    EXPECT_EQ(Zerlege("00 00 74 05"), "NOP\nNOP\nMOV A,#05h\n");
}

TEST_F(Disassembler, a_device_of_one_byte_gives_an_empty_text)
{
    Geraet_Setzen(1);
    EXPECT_EQ(Zerlege("22"), "");
    EXPECT_TRUE(Text_Aktuell);
}

TEST_F(Disassembler, a_last_erased_byte_is_dropped_once)
{
    Geraet_Setzen(4);
    EXPECT_EQ(Zerlege("00 22 FF 00"), "NOP\nRET\n");
    EXPECT_EQ(Zerlege("00 FF FF 00"), "NOP\nMOV R7,A\n");
}

TEST_F(Disassembler, the_label_ahead_of_a_dropped_byte_stays)
{
    Geraet_Setzen(6);
    EXPECT_EQ(Zerlege("02 00 04 00 FF 00"), "LJMP Label_1\nNOP\nLabel_1:\n");
}

TEST_F(Disassembler, the_element_behind_the_image_is_never_code)
{
    Bild_Loeschen();
    Hex_Daten[Bild_Groesse] = 0x22;
    for (const std::int32_t Groesse : {Bild_Groesse, Bild_Groesse + 1}) {
        Geraet_Setzen(Groesse);
        EXPECT_TRUE(Disassemblieren());
        EXPECT_EQ(Edit.Inhalt, "") << Groesse;
    }
}

TEST_F(Disassembler, the_operands_of_the_last_instruction_may_reach_that_element)
{
    Bild_Loeschen();
    Hex_Daten[Bild_Groesse - 2] = 0x85;
    Hex_Daten[Bild_Groesse - 1] = 0x10;
    Hex_Daten[Bild_Groesse]     = 0x20;
    EXPECT_TRUE(Disassemblieren());
    EXPECT_EQ(Edit.Inhalt.substr(Edit.Inhalt.size() - 13), "MOV 20h,10h\r\n");
    EXPECT_EQ(Hex_Text(Bild_Groesse - 2, Bild_Groesse + 1), "85 20 10");
}

TEST_F(Disassembler, a_device_size_from_a_damaged_database_does_no_harm)
{
    for (const std::int32_t Groesse : {0, -5, 524289, 2147483647}) {
        Geraet_Setzen(Groesse);
        EXPECT_EQ(Zerlege("00 22"), Groesse > 0 ? "NOP\nRET\n" : "") << Groesse;
    }
}

// --- The rules without the program around them --------------------------------------------------

TEST(Disassembler_Regeln, the_end_is_found_below_the_size_and_within_the_span)
{
    const Bytes_T Liste = Bytes("00 22 FF FF");
    EXPECT_EQ(Belegtes_Ende(Liste, 4), 2);
    EXPECT_EQ(Belegtes_Ende(Liste, 3), 2);
    EXPECT_EQ(Belegtes_Ende(Liste, 2), 1);
    EXPECT_EQ(Belegtes_Ende(Liste, 1), 0);
    EXPECT_EQ(Belegtes_Ende(Liste, 0), std::nullopt);
    EXPECT_EQ(Belegtes_Ende(Bytes("00 22"), 1000), 2);
    EXPECT_EQ(Belegtes_Ende(Bytes("FF FF"), 2), std::nullopt);
    EXPECT_EQ(Belegtes_Ende({}, 10), std::nullopt);
}

TEST(Disassembler_Regeln, operands_behind_the_span_count_as_FF)
{
    Bytes_T Liste = Bytes("00 85");
    EXPECT_EQ(Bild_Zerlegen(Liste, 2, true, {}), "NOP\r\nMOV FFh,FFh\r\n");
    EXPECT_EQ(Liste, Bytes("00 85"));
    Liste = Bytes("02");
    EXPECT_EQ(Bild_Zerlegen(Liste, 1, true, {}), "LJMP (FFFFh)\r\n");
}

TEST(Disassembler_Regeln, each_per_cent_is_told_once_and_in_order)
{
    Bytes_T          Liste(5000, 0);
    std::vector<int> Gesagt;
    EXPECT_TRUE(Bild_Zerlegen(Liste, 5000, true, [&](int p) { return Gesagt.push_back(p), true; }));
    std::vector<int> Soll;
    for (int p = 2; p < 100; ++p)
        if (p < 10 || p >= 15) // the first walk ends below 10, the second begins at 15
            Soll.push_back(p);
    EXPECT_EQ(Gesagt, Soll);
}

// --- Back through the assembler -----------------------------------------------------------------

TEST_F(Disassembler, every_opcode_with_every_operand_assembles_to_its_bytes_again)
{
    for (const bool Ziel_Zuerst : {true, false}) {
        O_MOV_ZQ = Ziel_Zuerst;
        Bytes_T Liste;
        for (int Wert = 0; Wert < 256; ++Wert)
            for (int o = 0; o < 256; ++o) {
                const auto Opcode = static_cast<std::uint8_t>(o);
                if (o == 0x02 || o == 0x12 || o == 0xA5)
                    continue;
                Liste.push_back(Opcode);
                for (int i = 1; i < Befehl_Laenge(Opcode); ++i)
                    Liste.push_back(static_cast<std::uint8_t>(Wert * (2 * i - 1)));
            }
        Liste.push_back(0x22);
        Hin_Und_Zurueck(Liste);
    }
}

// Random instructions whose jumps go to the beginnings of instructions and behind the end.
Bytes_T Zufalls_Programm(Zufall_T& Zufall, int Befehle_Anzahl)
{
    Bytes_T                  Liste;
    std::vector<std::size_t> Anfaenge;
    for (int n = 0; n < Befehle_Anzahl; ++n) {
        std::uint8_t Opcode = Zufall.Unter(8) == 0 ? 0x02 : Zufall.Byte();
        if (Opcode == 0xA5)
            Opcode = 0x12;
        Anfaenge.push_back(Liste.size());
        Liste.push_back(Opcode);
        for (int i = 1; i < Befehl_Laenge(Opcode); ++i)
            Liste.push_back(Zufall.Byte());
    }
    for (const std::size_t a : Anfaenge) {
        if (Liste[a] != 0x02 && Liste[a] != 0x12)
            continue;
        const auto        n = static_cast<int>(Anfaenge.size());
        const std::size_t Ziel =
            Zufall.Unter(5) == 0 ? Liste.size() + 2 + static_cast<std::size_t>(Zufall.Unter(900))
                                 : Anfaenge[static_cast<std::size_t>(Zufall.Unter(n))];
        Liste[a + 1] = static_cast<std::uint8_t>(Ziel / 256);
        Liste[a + 2] = static_cast<std::uint8_t>(Ziel % 256);
    }
    Liste.push_back(0x22);
    return Liste;
}

TEST_F(Disassembler, random_programs_assemble_to_their_bytes_again)
{
    Zufall_T Zufall;
    for (int i = 0; i < 40; ++i) {
        O_MOV_ZQ = i % 2 == 0;
        Hin_Und_Zurueck(Zufalls_Programm(Zufall, 1 + Zufall.Unter(600)));
    }
}

TEST_F(Disassembler, a_program_of_the_whole_address_space_assembles_to_its_bytes_again)
{
    Zufall_T Zufall{8051};
    Hin_Und_Zurueck(Zufalls_Programm(Zufall, 36000));
}

// --- Random bytes -------------------------------------------------------------------------------

// What holds for every image: each instruction on the walk gives a line, only the last erased byte
// may be missing, and the labels that have a line count up from 1.
void Text_Pruefen(const std::string& Text, const Bytes_T& Liste)
{
    int Befehlszeilen = 0;
    int Marken        = 0;
    for (std::size_t i = 0; i < Text.size();) {
        const std::size_t LF    = Text.find('\n', i);
        const std::string Zeile = Text.substr(i, LF - i);
        ASSERT_NE(LF, std::string::npos);
        ASSERT_FALSE(Zeile.empty());
        if (Zeile.back() == ':')
            ASSERT_EQ(Zeile, "Label_" + std::to_string(++Marken) + ":");
        else
            ++Befehlszeilen;
        i = LF + 1;
    }
    int Befehle_Anzahl = 0;
    for (std::int32_t i = 0; i < Code_Ende; ++Befehle_Anzahl)
        i += Befehl_Laenge(Liste[static_cast<std::size_t>(i)]);
    EXPECT_TRUE(Befehlszeilen == Befehle_Anzahl || Befehlszeilen == Befehle_Anzahl - 1);
}

TEST_F(Disassembler, any_bytes_on_any_device_give_a_text)
{
    Zufall_T Zufall{7};
    for (int i = 0; i < 100; ++i) {
        const Bytes_T Liste = Zufalls_Bytes(Zufall, 1 + Zufall.Unter(1500));
        Geraet_Setzen(1 + Zufall.Unter(1500));
        const std::string Text = Zerlege(Liste);
        if (!Text.empty())
            Text_Pruefen(Text, Liste);
    }
}

TEST_F(Disassembler, a_full_image_of_random_bytes_gives_a_text)
{
    Zufall_T      Zufall{3};
    const Bytes_T Liste = Zufalls_Bytes(Zufall, Bild_Groesse);
    Text_Pruefen(Zerlege(Liste), Liste);
    EXPECT_GE(Code_Ende, Bild_Groesse - 8);
    EXPECT_LT(Code_Ende, Bild_Groesse);
}

// --- The command --------------------------------------------------------------------------------

TEST_F(Disassembler, afterwards_text_and_image_are_in_step_and_the_editor_has_the_focus)
{
    Laufen("OLD: NOP"); // leaves source rows
    ASSERT_FALSE(Quell_Zeilen.empty());
    Text_Aktuell = false;
    Zerlege("02 00 04 00 22");
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_TRUE(Edit.Hat_Fokus);
    EXPECT_TRUE(Quell_Zeilen.empty());
    EXPECT_EQ(Code_Ende, 5);
    EXPECT_FALSE(Status.Offen);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_FALSE(Edit.Zeichnen_Steht);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Disassembler, the_text_is_coloured_and_its_labels_are_listed)
{
    Zerlege("02 00 04 00 22");
    const std::size_t Marke = Edit.Inhalt.find("Label_1:");
    EXPECT_EQ(Edit.Farbe_An(static_cast<std::int64_t>(Marke)), Farbe_Marke);
    EXPECT_EQ(Edit.Farbe_An(0), Farbe_Text);
    EXPECT_EQ(Sprungmarken_Liste, std::vector<std::string>{"Label_1"});
}

// The texts of the dialog without those of the colouring.
std::vector<std::string> Eigene_Texte(std::vector<std::string> Texte, const std::string& Anfang)
{
    std::erase_if(Texte, [&](const std::string& t) { return !t.starts_with(Anfang); });
    return Texte;
}

TEST_F(Disassembler, the_progress_is_told_in_English)
{
    Zerlege("00 00");
    EXPECT_EQ(Status.Texte.front(), " Disassembling data...");
    EXPECT_EQ(Eigene_Texte(Status.Texte, " Disassembling data... "),
              (std::vector<std::string>{" Disassembling data...  1%",
                                        " Disassembling data...  5%",
                                        " Disassembling data...  15%",
                                        " Disassembling data...  25%",
                                        " Disassembling data...  35%",
                                        " Disassembling data...  43%",
                                        " Disassembling data...  60%",
                                        " Disassembling data...  73%",
                                        " Disassembling data...  100%"}));
    EXPECT_EQ(Status.Balken, (std::vector<int>{1, 5, 15, 25, 35, 43, 60, 73, 100}));
    EXPECT_DOUBLE_EQ(Ereignisse.Gewartet, 0.1);
}

TEST_F(Disassembler, the_progress_is_told_in_German)
{
    Sprache = "D";
    Zerlege("22");
    EXPECT_EQ(Status.Texte.front(), " Disassemblierung läuft...");
    EXPECT_EQ(Eigene_Texte(Status.Texte, " Disassemblierung läuft... "),
              (std::vector<std::string>{" Disassemblierung läuft...  1%",
                                        " Disassemblierung läuft...  15%",
                                        " Disassemblierung läuft...  35%",
                                        " Disassemblierung läuft...  60%",
                                        " Disassemblierung läuft...  100%"}));
}

TEST_F(Disassembler, cancel_at_any_step_leaves_the_editor_as_it_was)
{
    for (int Runde = 1; Runde <= 8; ++Runde) { // 1, 5, 15, 25, 35, 43, 60 and 73 per cent
        Edit.Inhalt          = "NOP ; mine";
        Edit.Hat_Fokus       = false;
        Text_Aktuell         = false;
        Ereignisse.Runden    = 0;
        Ereignisse.Bei_Runde = [=](int n) { Abbruch = n == Runde; };
        Bild_Setzen(Bytes("00 00"));
        EXPECT_FALSE(Disassemblieren()) << Runde;
        EXPECT_EQ(Ereignisse.Runden, Runde);
        EXPECT_EQ(Edit.Inhalt, "NOP ; mine");
        EXPECT_FALSE(Abbruch);
        EXPECT_FALSE(Status.Offen);
        EXPECT_FALSE(Text_Aktuell);
        EXPECT_FALSE(Edit.Hat_Fokus);
    }
}

TEST_F(Disassembler, a_cancel_after_the_text_stands_comes_too_late)
{
    Ereignisse.Bei_Runde = [](int n) { Abbruch = n > 8; };
    EXPECT_EQ(Zerlege("00 00"), "NOP\nNOP\n");
    EXPECT_FALSE(Abbruch); // or the next command would be cancelled at once
    EXPECT_TRUE(Text_Aktuell);
}

TEST_F(Disassembler, a_cancel_keeps_the_direct_moves_exchanged_so_far)
{
    Ereignisse.Bei_Runde = [this](int) { Abbruch = Status.Balken.back() >= 60; };
    Bild_Setzen(Bytes("85 10 20"));
    EXPECT_FALSE(Disassemblieren());
    EXPECT_EQ(Hex_Text(0, 3), "85 20 10");
}

// --- The mode change ----------------------------------------------------------------------------

class Umschalten : public Disassembler {
protected:
    Umschalten()
    {
        In_Modus_Wechseln(Modus_Hex);
        Ereignisse.Titel_Texte.clear();
    }
};

TEST_F(Umschalten, to_the_source_disassembles_an_image_that_was_changed)
{
    Edit.Inhalt = "NOP ; mine";
    Bild_Setzen(Bytes("74 05"));
    Text_Aktuell = false;
    Ansicht_umschalten();
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Edit.Inhalt, "MOV A,#05h\r\n");
    EXPECT_TRUE(Text_Aktuell);
    EXPECT_EQ(Ereignisse.Titel_Texte, std::vector<std::string>{"2:MC-Editor (*)"});
}

TEST_F(Umschalten, to_the_source_keeps_a_text_that_is_in_step)
{
    Edit.Inhalt  = "NOP ; mine";
    Text_Aktuell = true;
    Bild_Setzen(Bytes("00"));
    Ansicht_umschalten();
    EXPECT_EQ(Modus, Modus_MC);
    EXPECT_EQ(Edit.Inhalt, "NOP ; mine");
    EXPECT_EQ(Status.Geoeffnet, 0);
}

TEST_F(Umschalten, cancelled_stays_in_the_hex_editor)
{
    Bild_Setzen(Bytes("74 05"));
    Text_Aktuell         = false;
    Ereignisse.Bei_Runde = [](int) { Abbruch = true; };
    Ansicht_umschalten();
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Edit.Inhalt, "");
    EXPECT_TRUE(Ereignisse.Titel_Texte.empty());
    EXPECT_FALSE(Ereignisse.Zeiger_Wartet);
}

TEST_F(Umschalten, there_and_back_gives_the_image_again)
{
    const Bytes_T Liste = Bytes("02 00 06 85 10 20 12 00 03 80 FB");
    Bild_Setzen(Liste);
    Text_Aktuell = false;
    Ansicht_umschalten();
    Text_Aktuell = false; // as after a key in the editor
    Ansicht_umschalten();
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Hex_Text(0, 12), "02 00 06 85 10 20 12 00 03 80 FB FF");
}

// --- Cases in files -----------------------------------------------------------------------------

std::vector<fs::path> Faelle()
{
    return Golden_Faelle("disassembler", [](std::string_view e) { return e == ".bin"; });
}

class Golden_Disassembler : public Disassembler, public ::testing::WithParamInterface<fs::path> {};

TEST_P(Golden_Disassembler, gives_the_text_beside_it)
{
    fs::path          Soll = GetParam();
    const std::string Roh  = Bytes_Von(Soll);
    EXPECT_EQ(Zerlege(Bytes_T(Roh.begin(), Roh.end())), Bytes_Von(Soll.replace_extension(".txt")));
}

INSTANTIATE_TEST_SUITE_P(Datei, Golden_Disassembler, ::testing::ValuesIn(Faelle()), Fall_Name);

} // namespace
} // namespace varnholt::test
