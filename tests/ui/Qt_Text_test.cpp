// Texts, colours and fonts at the border to Qt.
#include "core/codepage.h"
#include "core/shared_state.h"
#include "ui/Qt_Text.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

TEST(Qt_Text, every_byte_of_the_code_page_comes_back)
{
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(Zeichen_Nach_1252(Zeichen_Aus_1252(static_cast<char>(i))), static_cast<char>(i));
}

TEST(Qt_Text, the_code_page_is_the_one_of_the_logic)
{
    std::string Alle;
    for (int i = 0; i < 256; ++i)
        Alle += static_cast<char>(i);
    EXPECT_EQ(Nach_Std(Qt_Aus_1252(Alle)), Nach_UTF8(Alle));
    EXPECT_EQ(Nach_1252(Qt_Text("Größe → 5 €")), Aus_UTF8("Größe → 5 €"));
}

TEST(Qt_Text, a_character_of_two_units_becomes_two_question_marks_so_that_positions_stay)
{
    EXPECT_EQ(Nach_1252(Qt_Text("a😀b")), "a??b");
}

TEST(Qt_Text, colours_have_their_blue_byte_first)
{
    EXPECT_EQ(Qt_Farbe(0xDD1111), QColor(0x11, 0x11, 0xDD));
    EXPECT_EQ(Qt_Farbe(0xC0FFFF), QColor(0xFF, 0xFF, 0xC0));
    for (const std::int32_t f : {0, 0xFF, 0xFF00, 0xFF0000, 0x123456, 0xFFFFFF})
        EXPECT_EQ(Farbe_Aus(Qt_Farbe(f)), f);
}

TEST(Qt_Text, a_fixed_text_is_readable_in_whatever_language)
{
    const std::string Vorher = Sprache;
    for (const auto& [s, Soll] : {std::pair{"D", "eins\nzwei"}, {"E", "one"}, {"", "one"}}) {
        Sprache = s;
        EXPECT_EQ(Nach_Std(Lesbarer_Text({"eins\r\nzwei", "one"})), Soll) << s;
    }
    Sprache = Vorher;
}

TEST(Qt_Text, a_font_without_a_name_is_the_default_one)
{
    const QFont Grund(QStringLiteral("Monospace"), 11);
    EXPECT_EQ(Qt_Schrift({}, Grund), Grund);
    const QFont Neu = Qt_Schrift({"Serif", true, true, 14.0}, Grund);
    EXPECT_EQ(Schrift_Aus(Neu), (Schrift_T{"Serif", true, true, 14.0}));
}

TEST(Qt_Text, message_texts_have_plain_line_ends)
{
    EXPECT_EQ(Meldungs_Text("a\r\nb\r\n"), QStringLiteral("a\nb\n"));
}

} // namespace
} // namespace varnholt
