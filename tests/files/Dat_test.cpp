// The DAT format: numbers, runs, comments and what is passed over; and the way back.
#include "files/Dat.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

// A small image, erased, with the file laid into it.
Bytes_T Gelesen(const std::string& Text, std::int32_t Adresse = 0)
{
    Bytes_T Ziel(8, 0xFF);
    Dat_Lesen(Text, Adresse, Ziel);
    return Ziel;
}

// The same with the remaining bytes erased.
Bytes_T Bild(Bytes_T Anfang)
{
    Anfang.resize(8, 0xFF);
    return Anfang;
}

TEST(Dat_Lesen, takes_commas_and_all_line_ends_as_separators)
{
    EXPECT_EQ(Gelesen("1,2\r\n3\n4\r5"), Bild({1, 2, 3, 4, 5}));
}
TEST(Dat_Lesen, stores_from_the_address_on) { EXPECT_EQ(Gelesen("1", 2), Bild({255, 255, 1})); }
TEST(Dat_Lesen, takes_0_and_255_for_bytes_and_256_not)
{
    EXPECT_EQ(Gelesen("0,255,256,7"), Bild({0, 255, 7}));
}
TEST(Dat_Lesen, drops_larger_numbers_other_than_999)
{
    EXPECT_EQ(Gelesen("998,1000,99999999999999999999,1e400,7"), Bild({7}));
}
TEST(Dat_Lesen, opens_a_run_with_999) { EXPECT_EQ(Gelesen("1,999,3,5,2"), Bild({1, 5, 5, 5, 2})); }
TEST(Dat_Lesen, takes_a_run_over_several_lines)
{
    EXPECT_EQ(Gelesen("999\r\n2\r\n5\r\n"), Bild({5, 5}));
}
TEST(Dat_Lesen, takes_999_inside_a_run_for_a_count)
{
    EXPECT_EQ(Gelesen("999,999,5"), Bytes_T(8, 5));
}
TEST(Dat_Lesen, passes_over_the_bytes_of_a_run_whose_value_is_no_byte)
{
    EXPECT_EQ(Gelesen("999,2,999,7"), Bild({255, 255, 7}));
    EXPECT_EQ(Gelesen("999,2,-1,7"), Bild({255, 255, 7}));
    EXPECT_EQ(Gelesen("999,2,256,7"), Bild({255, 255, 7}));
}
TEST(Dat_Lesen, passes_over_the_byte_of_a_negative_number)
{
    EXPECT_EQ(Gelesen("1,-1,2"), Bild({1, 255, 2}));
}
TEST(Dat_Lesen, gives_nothing_for_a_count_below_1)
{
    EXPECT_EQ(Gelesen("999,0,5,7"), Bild({7}));
    EXPECT_EQ(Gelesen("999,-3,5,7"), Bild({7}));
    EXPECT_EQ(Gelesen("999,1,5,7"), Bild({5, 7}));
}
TEST(Dat_Lesen, drops_comments_up_to_the_next_separator)
{
    EXPECT_EQ(Gelesen("'rem,1\r\n' 9 \r\n2"), Bild({1, 2}));
}
TEST(Dat_Lesen, drops_comments_inside_a_run)
{
    EXPECT_EQ(Gelesen("999,'count\r\n2,'value\r\n5"), Bild({5, 5}));
}
TEST(Dat_Lesen, does_not_mind_blanks_around_a_number)
{
    EXPECT_EQ(Gelesen(" 1 ,\t2\t,  'x\r\n 3"), Bild({1, 2, 3}));
}
TEST(Dat_Lesen, drops_words_and_empty_items)
{
    EXPECT_EQ(Gelesen("abc,,1, ,1 2,12x,0x10,&H10,inf,nan,--1,+-1,-,+,.,2"), Bild({1, 2}));
}
TEST(Dat_Lesen, reads_signs_points_and_exponents_with_halves_to_the_even_one)
{
    EXPECT_EQ(Gelesen("+7,2.5,3.5,1.2e1,.6,7."), Bild({7, 2, 4, 12, 1, 7}));
}
TEST(Dat_Lesen, drops_a_run_that_the_end_of_the_file_cuts)
{
    EXPECT_EQ(Gelesen("1,999"), Bild({1}));
    EXPECT_EQ(Gelesen("1,999,3"), Bild({1}));
}
TEST(Dat_Lesen, stores_nothing_behind_the_image)
{
    EXPECT_EQ(Gelesen("1,2,3", 7), Bytes_T({255, 255, 255, 255, 255, 255, 255, 1}));
    EXPECT_EQ(Gelesen("1", 8), Bild({}));
    EXPECT_EQ(Gelesen("1", 9), Bild({}));
}
TEST(Dat_Lesen, stores_a_huge_run_as_far_as_the_image_goes)
{
    EXPECT_EQ(Gelesen("1,999,99999999999999999999,5,999,2147483648,6"),
              Bytes_T({1, 5, 5, 5, 5, 5, 5, 5}));
}
TEST(Dat_Lesen, takes_NUL_and_bytes_above_7F_for_wrong_characters)
{
    EXPECT_EQ(Gelesen(std::string("1\0,2\xE4,3", 7)), Bild({3}));
}
TEST(Dat_Lesen, of_an_empty_file_stores_nothing) { EXPECT_EQ(Gelesen(""), Bild({})); }

TEST(Dat_Schreiben, writes_a_single_byte_as_its_value)
{
    EXPECT_EQ(Dat_Schreiben(Bytes_T{0, 255}), "0\r\n255\r\n");
}
TEST(Dat_Schreiben, writes_two_equal_bytes_as_a_run)
{
    EXPECT_EQ(Dat_Schreiben(Bytes_T{1, 7, 7, 2}), "1\r\n999\r\n2\r\n7\r\n2\r\n");
}
TEST(Dat_Schreiben, writes_a_run_up_to_the_end)
{
    EXPECT_EQ(Dat_Schreiben(Bytes_T{9, 9, 9}), "999\r\n3\r\n9\r\n");
}
TEST(Dat_Schreiben, writes_an_empty_file_for_nothing) { EXPECT_EQ(Dat_Schreiben(Bytes_T{}), ""); }

RC_GTEST_PROP(Dat_Eigenschaft, what_was_written_reads_back, ())
{
    const auto Bytes = *rc::gen::container<Bytes_T>(rc::gen::oneOf(
        rc::gen::arbitrary<std::uint8_t>(), rc::gen::element<std::uint8_t>(0, 9, 0xFF)));
    Bytes_T    Ziel(Bytes.size(), 0x55);
    Dat_Lesen(Dat_Schreiben(Bytes), 0, Ziel);
    RC_ASSERT(Ziel == Bytes);
}

RC_GTEST_PROP(Dat_Eigenschaft,
              any_bytes_are_read_without_harm,
              (const std::string& Text, std::uint16_t Adresse))
{
    Bytes_T Ziel(300, 0xFF);
    Dat_Lesen(Text, Adresse, Ziel);
    RC_ASSERT(Ziel.size() == 300u);
}

} // namespace
} // namespace varnholt::test
