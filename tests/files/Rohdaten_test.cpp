// Raw bytes and the used part of the image.
#include "files/Rohdaten.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

namespace varnholt::test {
namespace {

using Bytes_T = std::vector<std::uint8_t>;

TEST(Rohdaten, are_stored_from_the_address_on_and_leave_the_rest)
{
    Bytes_T Ziel(5, 9);
    Rohdaten_Lesen("\x01\x02", 2, Ziel);
    EXPECT_EQ(Ziel, Bytes_T({9, 9, 1, 2, 9}));
}
TEST(Rohdaten, are_cut_at_the_end_of_the_image)
{
    Bytes_T Ziel(3, 9);
    Rohdaten_Lesen("\x01\x02", 2, Ziel);
    EXPECT_EQ(Ziel, Bytes_T({9, 9, 1}));
    Rohdaten_Lesen("\x01\x02", 3, Ziel);
    Rohdaten_Lesen("\x01\x02", 4, Ziel);
    EXPECT_EQ(Ziel, Bytes_T({9, 9, 1}));
}
TEST(Rohdaten, of_each_size_class_are_told_apart_at_their_limits)
{
    EXPECT_EQ(Umfang_Der_Datei(0), Rohdaten_Umfang::Ganz);
    EXPECT_EQ(Umfang_Der_Datei(524288), Rohdaten_Umfang::Ganz);
    EXPECT_EQ(Umfang_Der_Datei(524289), Rohdaten_Umfang::Haelfte);
    EXPECT_EQ(Umfang_Der_Datei(1048576), Rohdaten_Umfang::Haelfte);
    EXPECT_EQ(Umfang_Der_Datei(1048577), Rohdaten_Umfang::Anfang);
    EXPECT_EQ(Umfang_Der_Datei(~std::uintmax_t{0}), Rohdaten_Umfang::Anfang);
}

std::size_t Benutzt_Bis(std::size_t Letztes)
{
    Bytes_T Ganzes(1024, 0xFF);
    Ganzes[Letztes] = 0;
    return Benutzter_Teil(Ganzes).size();
}

TEST(Benutzter_Teil, ends_on_a_multiple_of_256)
{
    EXPECT_EQ(Benutzt_Bis(0), 256u);
    EXPECT_EQ(Benutzt_Bis(255), 256u);
    EXPECT_EQ(Benutzt_Bis(256), 512u);
    EXPECT_EQ(Benutzt_Bis(1023), 1024u);
}
TEST(Benutzter_Teil, of_an_erased_image_is_empty)
{
    EXPECT_TRUE(Benutzter_Teil(Bytes_T(1024, 0xFF)).empty());
}

RC_GTEST_PROP(Rohdaten_Eigenschaft, what_was_written_reads_back, (Bytes_T Bytes))
{
    Bytes.resize((Bytes.size() + 255) / 256 * 256, 0xFF);
    Bytes_T Ziel(Bytes.size(), 0xFF);
    Rohdaten_Lesen(Rohdaten_Schreiben(Benutzter_Teil(Bytes)), 0, Ziel);
    RC_ASSERT(Ziel == Bytes);
}

} // namespace
} // namespace varnholt::test
