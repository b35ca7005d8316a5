// varnholt-cli disassemble: its options, formats and exit statuses, and the way back by assemble.
#include "cli/Cli_Hilfe.h"

namespace varnholt::test {
namespace {

using std::string_literals::operator""s;

const std::string Kleines_Bild = "\x02\x00\x04\x00\x22"s;
const std::string Kleiner_Text = "LJMP Label_1\r\nNOP\r\nLabel_1:\r\nRET\r\n";

TEST_F(Cli, disassemble_prints_source_text_with_crlf_line_ends)
{
    Schreiben("a.bin", Kleines_Bild);
    const auto r = Laufen({"disassemble", "a.bin"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.Aus, Kleiner_Text);
    EXPECT_EQ(r.Fehler, "");
}

TEST_F(Cli, disassemble_writes_to_the_named_file)
{
    Schreiben("a.bin", Kleines_Bild);
    const auto r = Laufen({"disassemble", "-o", "a.asm", "a.bin"});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.Aus + r.Fehler, "");
    EXPECT_EQ(Lesen("a.asm"), Kleiner_Text);
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "-o", "-"}).Aus, Kleiner_Text);
}

TEST_F(Cli, disassemble_reads_every_image_format_and_standard_input)
{
    Schreiben("a.bin", Kleines_Bild);
    for (const char* Name : {"a._51", "a.hex", "a.ihx", "a.mhx", "a.dat"}) {
        ASSERT_EQ(Laufen({"convert", "a.bin", "-o", Name}).Status, 0) << Name;
        EXPECT_EQ(Laufen({"disassemble", Name}).Aus, Kleiner_Text) << Name;
    }
    EXPECT_EQ(Laufen({"disassemble", "-"}, Kleines_Bild).Aus, Kleiner_Text);
}

TEST_F(Cli, disassemble_puts_first_what_mov_order_says)
{
    Schreiben("a.bin", "\x85\x10\x20");
    EXPECT_EQ(Laufen({"disassemble", "a.bin"}).Aus, "MOV 20h,10h\r\n");
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "--mov-order", "destination"}).Aus,
              "MOV 20h,10h\r\n");
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "--mov-order", "source"}).Aus, "MOV 10h,20h\r\n");
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "--mov-order", "last"}).Status, 2);
    EXPECT_EQ(Lesen("a.bin"), "\x85\x10\x20"); // the file itself stays as it is
}

TEST_F(Cli, disassemble_goes_no_further_than_the_device)
{
    Schreiben("a.bin", std::string(9000, '\0'));
    const std::size_t Zeile = std::string("NOP\r\n").size();
    EXPECT_EQ(Laufen({"disassemble", "a.bin"}).Aus.size(), 9000 * Zeile);
    // 8192 bytes, all of them used: the last one is left out
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "--device", "27c64"}).Aus.size(), 8191 * Zeile);
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "--device", "none"}).Status, 2);
}

TEST_F(Cli, disassemble_gives_an_empty_text_for_an_erased_image)
{
    Schreiben("a.bin", std::string(100, '\xFF'));
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "-o", "a.asm"}).Status, 0);
    EXPECT_TRUE(Da("a.asm"));
    EXPECT_EQ(Lesen("a.asm"), "");
}

TEST_F(Cli, disassemble_and_assemble_are_inverses)
{
    Schreiben("a.asm",
              "INCLUDE 8051.mc\nSTART: MOV P1,#55h\n MOV 20h,30h\nLOOP: CPL P1.0\n"
              " LCALL WAIT\n JNB P3.2,LOOP\n LJMP START\nWAIT: DJNZ R7,WAIT\n RET\n");
    ASSERT_EQ(Laufen({"assemble", "a.asm", "-o", "a.bin"}).Status, 0);
    ASSERT_EQ(Laufen({"disassemble", "a.bin", "-o", "b.asm"}).Status, 0);
    ASSERT_EQ(Laufen({"assemble", "b.asm", "-o", "b.bin"}).Status, 0);
    EXPECT_EQ(Lesen("b.bin"), Lesen("a.bin"));
}

TEST_F(Cli, disassemble_refuses_a_source_and_the_name_of_an_image)
{
    Schreiben("a.bin", Kleines_Bild);
    Schreiben("a.asm", "NOP");
    EXPECT_EQ(Laufen({"disassemble", "a.asm"}).Status, 2);
    const auto r = Laufen({"disassemble", "a.bin", "-o", "a.bin"});
    EXPECT_EQ(r.Status, 2);
    EXPECT_EQ(r.Fehler, "varnholt-cli: a.bin is the name of an image, not of a source\n");
    EXPECT_EQ(Laufen({"--language", "D", "disassemble", "a.bin", "-o", "b.hex"}).Fehler,
              "varnholt-cli: b.hex ist der Name eines Abbilds und nicht der eines Quelltextes\n");
    EXPECT_EQ(Lesen("a.bin"), Kleines_Bild);
    EXPECT_FALSE(Da("b.hex"));
}

TEST_F(Cli, disassemble_tells_what_cant_be_read_or_written)
{
    EXPECT_EQ(Laufen({"disassemble", "missing.bin"}).Status, 3);
    Schreiben("a.bin", Kleines_Bild);
    const auto r = Laufen({"disassemble", "a.bin", "-o", "missing/a.asm"});
    EXPECT_EQ(r.Status, 3);
    EXPECT_NE(r.Fehler.find("missing/a.asm"), std::string::npos);
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "-o", "/dev/full"}).Status, 3);
}

TEST_F(Cli, disassemble_of_a_file_that_is_too_long_asks_and_is_refused)
{
    Schreiben("a.bin", std::string(524289, '\0'));
    const auto r = Laufen({"disassemble", "a.bin"});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.Aus, "");
}

TEST_F(Cli, disassemble_needs_one_image)
{
    EXPECT_EQ(Laufen({"disassemble"}).Status, 2);
    EXPECT_EQ(Laufen({"disassemble", "a.bin", "b.bin"}).Status, 2);
}

TEST_F(Cli, disassemble_tells_its_options)
{
    const auto r = Laufen({"disassemble", "--help"});
    EXPECT_EQ(r.Status, 0);
    for (const char* Teil : {"IMAGE", "-o FILE", "--device NAME", "--mov-order"})
        EXPECT_NE(r.Aus.find(Teil), std::string::npos) << Teil;
}

} // namespace
} // namespace varnholt::test
