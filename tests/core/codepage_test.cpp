// Windows-1252 and UTF-8.
#include "core/codepage.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace varnholt {
namespace {

std::string Zeichen(int b)
{
    return std::string(1, static_cast<char>(static_cast<unsigned char>(b)));
}

TEST(Codepage, upper_case_goes_by_the_pairs_of_the_code_page)
{
    EXPECT_EQ(Gross("az09{"), "AZ09{");
    EXPECT_EQ(Gross("\xE4\xF6\xFC\xE9\xFE\xFF\x9A\x9C\x9E"),
              "\xC4\xD6\xDC\xC9\xDE\x9F\x8A\x8C\x8E");
}

TEST(Codepage, letters_without_a_partner_stay)
{
    EXPECT_EQ(Gross("\xDF\xF7\xD7\xB5\x83"), "\xDF\xF7\xD7\xB5\x83");
}

TEST(Codepage, upper_case_is_final_for_every_byte)
{
    for (int b = 0; b < 256; ++b)
        EXPECT_EQ(Gross(Gross(Zeichen(b))), Gross(Zeichen(b))) << b;
}

TEST(Codepage, every_byte_comes_back_from_utf8)
{
    for (int b = 0; b < 256; ++b) {
        EXPECT_TRUE(Ist_UTF8(Nach_UTF8(Zeichen(b)))) << b;
        EXPECT_EQ(Aus_UTF8(Nach_UTF8(Zeichen(b))), Zeichen(b)) << b;
    }
}

TEST(Codepage, some_characters_stand_where_the_code_page_has_them)
{
    EXPECT_EQ(Nach_UTF8("\x80\x84\x96\x99\xE4"), "€„–™ä");
    EXPECT_EQ(Aus_UTF8("€„–™ä"), "\x80\x84\x96\x99\xE4");
}

TEST(Codepage, what_the_code_page_lacks_becomes_a_question_mark)
{
    EXPECT_EQ(Aus_UTF8("aΩb→c😀"), "a?b?c?");
}

TEST(Codepage, each_byte_of_a_malformed_sequence_becomes_a_question_mark)
{
    EXPECT_EQ(Aus_UTF8("a\xC3"), "a?");
    EXPECT_EQ(Aus_UTF8("\x80z"), "?z");
    EXPECT_EQ(Aus_UTF8("\xE2\x82z"), "??z");
}

TEST(Codepage, utf8_is_recognised_strictly)
{
    EXPECT_TRUE(Ist_UTF8(""));
    EXPECT_TRUE(Ist_UTF8("\xF4\x8F\xBF\xBF"));  // 10FFFFh
    EXPECT_FALSE(Ist_UTF8("\xF4\x90\x80\x80")); // above it
    EXPECT_FALSE(Ist_UTF8("\xC0\x80"));         // overlong
    EXPECT_FALSE(Ist_UTF8("\xE0\x80\x80"));
    EXPECT_FALSE(Ist_UTF8("\xF0\x80\x80\x80"));
    EXPECT_FALSE(Ist_UTF8("\xED\xA0\x80")); // surrogate
    EXPECT_FALSE(Ist_UTF8("\xE4"));
}

TEST(Codepage, comparisons_ignore_the_case)
{
    EXPECT_TRUE(Gleich_Ohne_Fall("\xE4x", "\xC4X"));
    EXPECT_FALSE(Gleich_Ohne_Fall("ab", "abc"));
    EXPECT_TRUE(Beginnt_Ohne_Fall("includes", "INCLUDE"));
    EXPECT_FALSE(Beginnt_Ohne_Fall("incl", "INCLUDE"));
}

RC_GTEST_PROP(Codepage, any_text_survives_the_way_to_utf8_and_back, (const std::string& Text))
{
    RC_ASSERT(Ist_UTF8(Nach_UTF8(Text)));
    RC_ASSERT(Aus_UTF8(Nach_UTF8(Text)) == Text);
}

} // namespace
} // namespace varnholt
