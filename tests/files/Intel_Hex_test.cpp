// Intel-HEX: the lenient reader, field by field, and the writer.
#include "files/Intel_Hex.h"

#include "core/shared_state.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

using Bytes_T   = std::vector<std::uint8_t>;
using Stellen_T = std::map<std::int32_t, int>; // address: byte

// The bytes that a file puts into an image that was all 55h, so that a stored FFh shows too.
Stellen_T
Gelesen(const std::string& Text, std::int32_t Versatz = 0, std::size_t Groesse = Bild_Groesse)
{
    Bytes_T Ziel(Groesse, 0x55);
    Intel_Hex_Lesen(Text, Versatz, Ziel);
    Stellen_T Stellen;
    for (std::size_t a = 0; a < Ziel.size(); ++a)
        if (Ziel[a] != 0x55)
            Stellen[static_cast<std::int32_t>(a)] = Ziel[a];
    return Stellen;
}

TEST(Intel_Hex_Lesen, stores_the_bytes_of_a_record_at_its_address)
{
    EXPECT_EQ(Gelesen(":020010001234A8\r\n:00000001FF\r\n"),
              (Stellen_T{{0x10, 0x12}, {0x11, 0x34}}));
}
TEST(Intel_Hex_Lesen, takes_all_line_ends)
{
    const Stellen_T Soll{{0, 1}, {1, 2}, {2, 3}};
    EXPECT_EQ(Gelesen(":0100000001FE\n:0100010002FC\r:0100020003FA\r\n"), Soll);
}
TEST(Intel_Hex_Lesen, ends_at_the_end_record)
{
    EXPECT_EQ(Gelesen(":0100000001FE\r\n:00000001FF\r\n:0100010002FC\r\n"), (Stellen_T{{0, 1}}));
}
TEST(Intel_Hex_Lesen, goes_on_behind_an_end_record_of_another_form)
{
    for (const char* Ende :
         {":00000001ff", ":0000000100", ":00000001FF ", " :00000001FF", ":00000001F"})
        EXPECT_EQ(Gelesen(std::string(Ende) + "\n:0100010002FC\n"), (Stellen_T{{1, 2}})) << Ende;
}
TEST(Intel_Hex_Lesen, does_not_compare_the_checksum)
{
    EXPECT_EQ(Gelesen(":0100000001AA\n"), (Stellen_T{{0, 1}}));
    EXPECT_EQ(Gelesen(":0100000001\n"), (Stellen_T{{0, 1}}));
}
TEST(Intel_Hex_Lesen, does_not_look_at_the_first_character)
{
    EXPECT_EQ(Gelesen("x0100000001FE\n"), (Stellen_T{{0, 1}}));
}
TEST(Intel_Hex_Lesen, takes_every_record_type_for_data)
{
    for (const char* Art : {"01", "02", "04", "05", "zz"})
        EXPECT_EQ(Gelesen(std::string(":020010") + Art + "1234A8\n"),
                  (Stellen_T{{0x10, 0x12}, {0x11, 0x34}}));
}
TEST(Intel_Hex_Lesen, accepts_lower_case_digits)
{
    EXPECT_EQ(Gelesen(":01abcd00ef00\n"), (Stellen_T{{0xABCD, 0xEF}}));
}
TEST(Intel_Hex_Lesen, takes_missing_digits_for_0)
{
    EXPECT_EQ(Gelesen(":03000000A1B\n"), (Stellen_T{{0, 0xA1}, {1, 0x0B}, {2, 0}}));
    EXPECT_EQ(Gelesen(":02\n"), (Stellen_T{{0, 0}, {1, 0}}));
    EXPECT_EQ(Gelesen(":2"), (Stellen_T{{0, 0}, {1, 0}}));
}
TEST(Intel_Hex_Lesen, takes_an_address_that_is_cut_for_what_is_there)
{
    EXPECT_EQ(Gelesen(":0112\n"), (Stellen_T{{0x12, 0}}));
}
TEST(Intel_Hex_Lesen, keeps_the_old_byte_at_a_pair_with_a_wrong_character)
{
    EXPECT_EQ(Gelesen(":0400000001G20 04\n"), (Stellen_T{{0, 1}, {3, 4}}));
    EXPECT_EQ(Gelesen(":0300000001\xE4\xF6"
                      "03\n"),
              (Stellen_T{{0, 1}, {2, 3}}));
}
TEST(Intel_Hex_Lesen, passes_over_an_H_inside_a_pair)
{
    EXPECT_EQ(Gelesen(":030000001Hh2HH\n"), (Stellen_T{{0, 1}, {1, 2}, {2, 0}}));
}
TEST(Intel_Hex_Lesen, loses_the_first_byte_at_a_wrong_address)
{
    EXPECT_EQ(Gelesen(":02wxyz00AABB00\n"), (Stellen_T{{0, 0xBB}}));
}
TEST(Intel_Hex_Lesen, stores_nothing_at_a_wrong_count)
{
    EXPECT_EQ(Gelesen(":xx000000AABB\n"), Stellen_T{});
}
TEST(Intel_Hex_Lesen, passes_over_empty_lines) { EXPECT_EQ(Gelesen("\n\r\n:\n"), Stellen_T{}); }
TEST(Intel_Hex_Lesen, stores_no_more_bytes_than_the_count_says)
{
    EXPECT_EQ(Gelesen(":01000000AABBCC\n"), (Stellen_T{{0, 0xAA}}));
}
TEST(Intel_Hex_Lesen, stores_up_to_255_bytes_of_a_record)
{
    const Stellen_T Alle = Gelesen(":FF000000");
    EXPECT_EQ(Alle.size(), 255u);
    EXPECT_EQ(Alle.rbegin()->first, 254);
}
TEST(Intel_Hex_Lesen, runs_on_past_10000h)
{
    std::string Satz = ":20FFF000";
    for (int i = 0; i < 32; ++i)
        Satz += "77";
    const Stellen_T Stellen = Gelesen(Satz);
    EXPECT_EQ(Stellen.size(), 32u);
    EXPECT_EQ(Stellen.begin()->first, 65520);
    EXPECT_EQ(Stellen.rbegin()->first, 65551);
}
TEST(Intel_Hex_Lesen, moves_every_record_by_the_import_address)
{
    EXPECT_EQ(Gelesen(":010010001200\n", 0x70000), (Stellen_T{{0x70010, 0x12}}));
    EXPECT_EQ(Gelesen(":02wxyz00AABB00\n", 0x100), (Stellen_T{{0xFF, 0xAA}, {0x100, 0xBB}}));
}
TEST(Intel_Hex_Lesen, stores_the_last_byte_of_the_image_and_nothing_behind_it)
{
    EXPECT_EQ(Gelesen(":03000000AABBCC\n", Bild_Groesse - 2),
              (Stellen_T{{Bild_Groesse - 2, 0xAA}, {Bild_Groesse - 1, 0xBB}}));
    EXPECT_EQ(Gelesen(":01000000AA\n", Bild_Groesse), Stellen_T{});
    EXPECT_EQ(Gelesen(":01FFFF00AA\n", Bild_Groesse), Stellen_T{});
}
TEST(Intel_Hex_Lesen, takes_later_records_over_earlier_ones)
{
    EXPECT_EQ(Gelesen(":0100000001FE\n:0100000002FD\n"), (Stellen_T{{0, 2}}));
}

TEST(Intel_Hex_Schreiben, writes_the_end_record_alone_when_all_is_FF)
{
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes_T(256, 0xFF)), ":00000001FF\r\n");
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes_T{}), ":00000001FF\r\n");
}
TEST(Intel_Hex_Schreiben, writes_records_of_16_in_upper_case)
{
    Bytes_T Bytes(32, 0xAB);
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes),
              ":10000000ABABABABABABABABABABABABABABABAB40\r\n"
              ":10001000ABABABABABABABABABABABABABABABAB30\r\n"
              ":00000001FF\r\n");
}
TEST(Intel_Hex_Schreiben, starts_at_the_first_byte_that_is_not_FF_and_ends_with_a_short_record)
{
    Bytes_T Bytes(32, 0xFF);
    Bytes[30] = 1;
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes), ":02001E0001FFE0\r\n:00000001FF\r\n");
}
TEST(Intel_Hex_Schreiben, does_not_skip_gaps)
{
    Bytes_T Bytes(48, 0xFF);
    Bytes[0] = Bytes[47] = 0;
    EXPECT_NE(Intel_Hex_Schreiben(Bytes).find(":10001000FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF0\r\n"),
              std::string::npos);
}
TEST(Intel_Hex_Schreiben, writes_the_checksum_0_as_two_digits)
{
    // 01 + 00 + 00 + FF = 100h
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes_T{0xFE, 0xFF}).substr(0, 15), ":02000000FEFF01");
    Bytes_T Bytes(2, 0xFF);
    Bytes[1] = 0xFE; // 01 + 00 + 01 + FE = 100h
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes), ":01000100FE00\r\n:00000001FF\r\n");
}
TEST(Intel_Hex_Schreiben, reaches_the_last_byte_that_the_format_holds)
{
    Bytes_T Bytes(Intel_Hex_Hoechstens, 0xFF);
    Bytes.back() = 0;
    EXPECT_EQ(Intel_Hex_Schreiben(Bytes), ":017FFF000081\r\n:00000001FF\r\n");
}

RC_GTEST_PROP(Intel_Hex_Eigenschaft, what_was_written_reads_back, (const Bytes_T& Bytes))
{
    Bytes_T Ziel(Bytes.size(), 0xFF);
    Intel_Hex_Lesen(Intel_Hex_Schreiben(Bytes), 0, Ziel);
    RC_ASSERT(Ziel == Bytes);
}

RC_GTEST_PROP(Intel_Hex_Eigenschaft,
              any_bytes_are_read_without_harm,
              (const std::string& Text, std::uint16_t Versatz))
{
    Bytes_T Ziel(300, 0xFF);
    Intel_Hex_Lesen(Text, Versatz, Ziel);
    RC_ASSERT(Ziel.size() == 300u);
}

} // namespace
} // namespace varnholt::test
