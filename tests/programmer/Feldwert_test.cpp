// Numbers in the fields of the dialogs.
#include "language/Val.h"
#include "programmer/Feldwert.h"

#include <gtest/gtest.h>

#include <string>

namespace varnholt::test {
namespace {

TEST(Feldwert_Test, a_field_is_worth_the_number_that_it_begins_with)
{
    EXPECT_EQ(Val("123"), 123);
    EXPECT_EQ(Val("-5"), -5);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val("1 2\t3"), 123);
    EXPECT_EQ(Val("1E3"), 1000);
    EXPECT_EQ(Val("1d2"), 100);
    EXPECT_EQ(Val("2.5"), 2);
    EXPECT_EQ(Val("3.5"), 4);
    EXPECT_EQ(Val(".75"), 1);
}

TEST(Feldwert_Test, a_field_without_a_number_is_0)
{
    for (const char* t :
         {"", " ", "EMPTY", "LEER", "HOCH  ", "-", "+", ".", "inf", "nan", "-inf", "--1"})
        EXPECT_EQ(Val(t), 0) << t;
}

TEST(Feldwert_Test, a_number_beyond_32_bits_stays_within_them)
{
    EXPECT_EQ(Val("99999999999999"), 2147483647);
    EXPECT_EQ(Val("-99999999999999"), -2147483647 - 1);
    EXPECT_EQ(Val("1E999"), 2147483647);
    EXPECT_EQ(Val("-1E999"), -2147483647 - 1);
    EXPECT_EQ(Val(std::string(100000, '9')), 2147483647);
}

TEST(Feldwert_Test, hexadecimal_has_upper_case_and_no_leading_zeros)
{
    EXPECT_EQ(Feld_Hex(0), "0");
    EXPECT_EQ(Feld_Hex(0x1fa), "1FA");
    EXPECT_EQ(Feld_Hex(-1), "FFFFFFFF");
}

} // namespace
} // namespace varnholt::test
