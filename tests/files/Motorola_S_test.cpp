// Motorola S-records: the lenient reader, and the writer with its own checksum.
#include "files/Motorola_S.h"

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

const std::string Kopf = "S01900004E414D45202020202020202020202020202020200101C3\r\n";

// The bytes that a file puts into an image that was all 55h, so that a stored FFh shows too.
Stellen_T Gelesen(const std::string& Text, std::int32_t Versatz = 0)
{
    Bytes_T Ziel(Bild_Groesse, 0x55);
    Motorola_S_Lesen(Text, Versatz, Ziel);
    Stellen_T Stellen;
    for (std::size_t a = 0; a < Ziel.size(); ++a)
        if (Ziel[a] != 0x55)
            Stellen[static_cast<std::int32_t>(a)] = Ziel[a];
    return Stellen;
}

// The record of a whole image of FFh but for these bytes.
std::string Geschrieben(const Stellen_T& Stellen)
{
    Bytes_T Bytes(Bild_Groesse, 0xFF);
    for (const auto& [a, b] : Stellen)
        Bytes.at(static_cast<std::size_t>(a)) = static_cast<std::uint8_t>(b);
    return Motorola_S_Schreiben(Bytes);
}

TEST(Motorola_S_Lesen, stores_16_bit_records)
{
    EXPECT_EQ(Gelesen("S1051234AABB4F\r\n"), (Stellen_T{{0x1234, 0xAA}, {0x1235, 0xBB}}));
}
TEST(Motorola_S_Lesen, stores_24_bit_records)
{
    EXPECT_EQ(Gelesen("S206012345AABB2A\r\n"), (Stellen_T{{0x12345, 0xAA}, {0x12346, 0xBB}}));
}
TEST(Motorola_S_Lesen, passes_over_all_other_lines)
{
    EXPECT_EQ(
        Gelesen("S00600004844521B\nS30700000000AABB00\nS5030001FB\nS70500000000FA\nS804000000FB\n"
                "S9030000FC\ns1050000AABB00\n S1050000AABB00\n\nS\ntext\n"),
        Stellen_T{});
}
TEST(Motorola_S_Lesen, goes_on_behind_an_end_record)
{
    EXPECT_EQ(Gelesen("S9030000FC\nS1040000AA51\n"), (Stellen_T{{0, 0xAA}}));
}
TEST(Motorola_S_Lesen, takes_all_line_ends)
{
    EXPECT_EQ(Gelesen("S104000001FA\nS104000102F8\rS104000203F6\r\n"),
              (Stellen_T{{0, 1}, {1, 2}, {2, 3}}));
}
TEST(Motorola_S_Lesen, does_not_look_at_the_checksum)
{
    EXPECT_EQ(Gelesen("S1040000AA00\n"), (Stellen_T{{0, 0xAA}}));
    EXPECT_EQ(Gelesen("S1040000AAzz\n"), (Stellen_T{{0, 0xAA}}));
    EXPECT_EQ(Gelesen("S1040000AA\n"), (Stellen_T{{0, 0xAA}}));
}
TEST(Motorola_S_Lesen, accepts_lower_case_digits)
{
    EXPECT_EQ(Gelesen("S104abcdef00\n"), (Stellen_T{{0xABCD, 0xEF}}));
}
TEST(Motorola_S_Lesen, takes_a_missing_pair_for_0)
{
    EXPECT_EQ(Gelesen("S1060000AAB\n"), (Stellen_T{{0, 0xAA}, {1, 0x0B}, {2, 0}}));
    EXPECT_EQ(Gelesen("S205\n"), (Stellen_T{{0, 0}}));
}
TEST(Motorola_S_Lesen, keeps_the_old_byte_at_a_pair_with_a_wrong_character)
{
    EXPECT_EQ(Gelesen("S1060000AAxyCC00\n"), (Stellen_T{{0, 0xAA}, {2, 0xCC}}));
}
TEST(Motorola_S_Lesen, loses_the_first_byte_at_a_wrong_address)
{
    EXPECT_EQ(Gelesen("S105xxxxAABB00\n"), (Stellen_T{{0, 0xBB}}));
}
TEST(Motorola_S_Lesen, stores_nothing_at_a_count_without_data)
{
    for (const char* Anzahl : {"00", "03", "xx"})
        EXPECT_EQ(Gelesen(std::string("S1") + Anzahl + "0000AABBCC\n"), Stellen_T{}) << Anzahl;
    EXPECT_EQ(Gelesen("S2040000000AABBCC\n"), Stellen_T{});
}
TEST(Motorola_S_Lesen, stores_as_many_bytes_as_the_greatest_count_says)
{
    EXPECT_EQ(Gelesen("S1FF0000").size(), 252u);
    EXPECT_EQ(Gelesen("S2FF000000").size(), 251u);
}
TEST(Motorola_S_Lesen, moves_every_record_by_the_import_address)
{
    EXPECT_EQ(Gelesen("S1040010AA00\n", 0x70000), (Stellen_T{{0x70010, 0xAA}}));
    EXPECT_EQ(Gelesen("S205000010AA00\n", 0x70000), (Stellen_T{{0x70010, 0xAA}}));
}
TEST(Motorola_S_Lesen, stores_the_last_byte_of_the_image_and_nothing_behind_it)
{
    EXPECT_EQ(Gelesen("S20607FFFFAABB00\n"), (Stellen_T{{Bild_Groesse - 1, 0xAA}}));
    EXPECT_EQ(Gelesen("S205080000AA00\n"), Stellen_T{});
    EXPECT_EQ(Gelesen("S205FFFFFFAA00\n", Bild_Groesse), Stellen_T{});
}

TEST(Motorola_S_Schreiben, writes_the_header_alone_for_an_erased_image)
{
    EXPECT_EQ(Geschrieben({}), Kopf);
}
TEST(Motorola_S_Schreiben, writes_a_block_with_one_byte_whole)
{
    // 14h + 12h + 15 * FFh = F17h, and FFh - 17h = E8h
    EXPECT_EQ(Geschrieben({{0, 0x12}}), Kopf + "S21400000012FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFE8\r\n");
}
TEST(Motorola_S_Schreiben, leaves_out_blocks_of_FF_and_keeps_the_order)
{
    // Second line: 14h + 07h + 7Fh + FFh + 15 * FFh = 108Ah, and FFh - 8Ah = 75h
    const std::string Datei = Geschrieben({{0x20, 0}, {0x7FFFF, 0}});
    EXPECT_EQ(Datei,
              Kopf + "S21400002000FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFA\r\n"
                     "S21407FFF0FFFFFFFFFFFFFFFFFFFFFFFFFFFFFF0075\r\n");
}
TEST(Motorola_S_Schreiben, sums_overlapping_digit_pairs_of_the_address)
{
    // Address 012340h: 01 + 12 + 23 = 36h, and 40h doesn't count. 14h + 36h + 16 * 00h = 4Ah.
    Stellen_T Nullen;
    for (int i = 0; i < 16; ++i)
        Nullen[0x12340 + i] = 0;
    EXPECT_EQ(Geschrieben(Nullen), Kopf + "S21401234000000000000000000000000000000000B5\r\n");
}
TEST(Motorola_S_Schreiben, gives_blocks_that_differ_in_the_lowest_address_byte_the_same_checksum)
{
    const std::string a = Geschrieben({{0x10, 1}});
    const std::string b = Geschrieben({{0xF0, 1}});
    EXPECT_EQ(a.substr(a.size() - 4), b.substr(b.size() - 4));
}

// The checksum once more, from the text of the line as it is defined.
int Summe_Der_Zeile(const std::string& Zeile)
{
    const auto Paar = [&](std::size_t Stelle) {
        return std::stoi(Zeile.substr(Stelle - 1, 2), nullptr, 16);
    };
    int Summe = 20 + Paar(5) + Paar(6) + Paar(7);
    for (std::size_t s = 11; s < 43; s += 2)
        Summe += Paar(s);
    return 255 - Summe % 256;
}

RC_GTEST_PROP(Motorola_S_Eigenschaft, every_line_carries_the_checksum, (std::uint8_t Wert))
{
    const int         Block = *rc::gen::inRange(0, Bild_Groesse / 16);
    const std::string Datei = Geschrieben({{16 * Block, 0}, {16 * Block + 7, Wert}});
    const std::string Zeile = Datei.substr(Kopf.size());
    RC_ASSERT(Zeile.size() == 46u);
    RC_ASSERT(std::stoi(Zeile.substr(42, 2), nullptr, 16) == Summe_Der_Zeile(Zeile));
}

RC_GTEST_PROP(Motorola_S_Eigenschaft, what_was_written_reads_back, ())
{
    auto Bytes = *rc::gen::container<Bytes_T>(
        rc::gen::oneOf(rc::gen::arbitrary<std::uint8_t>(), rc::gen::just<std::uint8_t>(0xFF)));
    Bytes.resize((Bytes.size() + 15) / 16 * 16, 0xFF);
    Bytes_T Ziel(Bytes.size(), 0xFF);
    Motorola_S_Lesen(Motorola_S_Schreiben(Bytes), 0, Ziel);
    RC_ASSERT(Ziel == Bytes);
}

RC_GTEST_PROP(Motorola_S_Eigenschaft,
              any_bytes_are_read_without_harm,
              (std::string Text, std::uint16_t Versatz))
{
    Text.insert(0, *rc::gen::element<std::string>("", "S1", "S2"));
    Bytes_T Ziel(300, 0xFF);
    Motorola_S_Lesen(Text, Versatz, Ziel);
    RC_ASSERT(Ziel.size() == 300u);
}

} // namespace
} // namespace varnholt::test
