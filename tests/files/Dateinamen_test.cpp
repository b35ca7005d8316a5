// What names say: formats on loading and saving, save or save as, proposals of the save dialog.
#include "files/Dateinamen.h"

#include "core/shared_state.h"

#include <gtest/gtest.h>

namespace varnholt::test {
namespace {

struct Endung_T {
    const char* Name;
    Dateityp    Typ;
    int         Filter;
};

// clang-format off
const Endung_T Quell_Endungen[] = {
    {"x.asm", Dateityp::Quelltext, 1},
    {"x.TXT", Dateityp::Quelltext, 1},
    {"x.a51", Dateityp::Quelltext, 1},
};
const Endung_T Bild_Endungen[] = {
    {"x.bin", Dateityp::Rohdaten,   2},
    {"x._51", Dateityp::Rohdaten,   2},
    {"x.hex", Dateityp::Intel_Hex,  3},
    {"x.Ihx", Dateityp::Intel_Hex,  3},
    {"x.MHX", Dateityp::Motorola_S, 4},
    {"x.dat", Dateityp::Dat,        5},
};
// clang-format on

TEST(Typ_Beim_Laden, follows_the_extension_in_either_mode)
{
    for (const Endung_T& e : Bild_Endungen)
        for (const int m : {Modus_Hex, Modus_MC})
            EXPECT_EQ(Typ_Beim_Laden(e.Name, m), e.Typ) << e.Name;
    for (const Endung_T& e : Quell_Endungen)
        EXPECT_EQ(Typ_Beim_Laden(e.Name, Modus_MC), e.Typ) << e.Name;
    EXPECT_EQ(Typ_Beim_Laden("x.asm", Modus_Hex), Dateityp::Quelltext);
    EXPECT_EQ(Typ_Beim_Laden("x.a51", Modus_Hex), Dateityp::Quelltext);
}
TEST(Typ_Beim_Laden, takes_a_text_file_in_the_Hex_Editor_for_raw_data)
{
    EXPECT_EQ(Typ_Beim_Laden("ABC.TXT", Modus_Hex), Dateityp::Rohdaten);
    EXPECT_EQ(Typ_Beim_Laden("ABC.TXT", Modus_MC), Dateityp::Quelltext);
}
TEST(Typ_Beim_Laden, lets_an_unknown_extension_follow_the_mode)
{
    for (const char* Name : {"ABC.XYZ", "ABC", "h.c", "", "x", "ä", "x.h\xC3\xA4x"}) {
        EXPECT_EQ(Typ_Beim_Laden(Name, Modus_Hex), Dateityp::Rohdaten) << Name;
        EXPECT_EQ(Typ_Beim_Laden(Name, Modus_MC), Dateityp::Quelltext) << Name;
    }
}
TEST(Typ_Beim_Laden, does_not_ask_for_the_point)
{
    EXPECT_EQ(Typ_Beim_Laden("namehex", Modus_MC), Dateityp::Intel_Hex);
    EXPECT_EQ(Typ_Beim_Laden("name_51", Modus_MC), Dateityp::Rohdaten);
}

TEST(Typ_Beim_Speichern, follows_the_extension)
{
    for (const Endung_T& e : Bild_Endungen)
        EXPECT_EQ(Typ_Beim_Speichern(e.Name), e.Typ) << e.Name;
}
TEST(Typ_Beim_Speichern, is_raw_bytes_for_anything_else)
{
    for (const char* Name : {"x.asm", "x.TXT", "x.xyz", "namehex", "", "hex"})
        EXPECT_EQ(Typ_Beim_Speichern(Name), Dateityp::Rohdaten) << Name;
}

TEST(Name_Zu_Erfragen, is_true_without_a_name)
{
    EXPECT_TRUE(Name_Zu_Erfragen("", Modus_Hex));
    EXPECT_TRUE(Name_Zu_Erfragen("", Modus_MC));
}
TEST(Name_Zu_Erfragen, is_true_for_names_of_the_other_modes_kind_only)
{
    for (const Endung_T& e : Quell_Endungen) {
        EXPECT_TRUE(Name_Zu_Erfragen(e.Name, Modus_Hex)) << e.Name;
        EXPECT_FALSE(Name_Zu_Erfragen(e.Name, Modus_MC)) << e.Name;
    }
    for (const Endung_T& e : Bild_Endungen) {
        EXPECT_FALSE(Name_Zu_Erfragen(e.Name, Modus_Hex)) << e.Name;
        EXPECT_TRUE(Name_Zu_Erfragen(e.Name, Modus_MC)) << e.Name;
    }
}
TEST(Name_Zu_Erfragen, is_false_for_unknown_extensions)
{
    for (const char* Name : {"x.xyz", "x", "namehex"}) {
        EXPECT_FALSE(Name_Zu_Erfragen(Name, Modus_Hex)) << Name;
        EXPECT_FALSE(Name_Zu_Erfragen(Name, Modus_MC)) << Name;
    }
}

TEST(Vorschlag_Fuer, keeps_a_name_of_the_modes_kind_with_its_filter)
{
    for (const Endung_T& e : Quell_Endungen)
        EXPECT_EQ(Vorschlag_Fuer(e.Name, Modus_MC), (Speicher_Vorschlag{e.Name, e.Filter}))
            << e.Name;
    for (const Endung_T& e : Bild_Endungen)
        EXPECT_EQ(Vorschlag_Fuer(e.Name, Modus_Hex), (Speicher_Vorschlag{e.Name, e.Filter}))
            << e.Name;
}
TEST(Vorschlag_Fuer, turns_a_name_of_the_other_kind_into_one_of_the_modes)
{
    for (const Endung_T& e : Quell_Endungen)
        EXPECT_EQ(Vorschlag_Fuer(e.Name, Modus_Hex), (Speicher_Vorschlag{"x.bin", 2})) << e.Name;
    for (const Endung_T& e : Bild_Endungen)
        EXPECT_EQ(Vorschlag_Fuer(e.Name, Modus_MC), (Speicher_Vorschlag{"x.asm", 1})) << e.Name;
}
TEST(Vorschlag_Fuer, takes_the_filter_of_the_mode_for_names_shorter_than_4)
{
    EXPECT_EQ(Vorschlag_Fuer("", Modus_Hex), (Speicher_Vorschlag{"", 2}));
    EXPECT_EQ(Vorschlag_Fuer("abc", Modus_MC), (Speicher_Vorschlag{"abc", 1}));
}
TEST(Vorschlag_Fuer, leaves_the_filter_for_unknown_extensions)
{
    EXPECT_EQ(Vorschlag_Fuer("abcd", Modus_Hex), (Speicher_Vorschlag{"abcd", 0}));
    EXPECT_EQ(Vorschlag_Fuer("x.xyz", Modus_MC), (Speicher_Vorschlag{"x.xyz", 0}));
}

TEST(Name_Aus_Dialog, drops_a_second_extension)
{
    EXPECT_EQ(Name_Aus_Dialog("a.hex.bin"), "a.hex");
}
TEST(Name_Aus_Dialog, keeps_names_of_8_characters_and_fewer)
{
    EXPECT_EQ(Name_Aus_Dialog(".hex.bin"), ".hex.bin");
    EXPECT_EQ(Name_Aus_Dialog(""), "");
}
TEST(Name_Aus_Dialog, keeps_names_without_a_point_at_both_places)
{
    for (const char* Name : {"abcde.bin", "a.hexx.bin", "a.hex.binx", "ab.hex_bin"})
        EXPECT_EQ(Name_Aus_Dialog(Name), Name);
}
TEST(Name_Aus_Dialog, counts_characters_and_not_bytes)
{
    EXPECT_EQ(Name_Aus_Dialog("ä.h\xC3\xA4x.bin"), "ä.h\xC3\xA4x");
}

TEST(Letzte_Zeichen, counts_characters_and_not_bytes)
{
    EXPECT_EQ(Letzte_Zeichen("grün", 2), "ün");
    EXPECT_EQ(Ohne_Letzte_Zeichen("grün", 2), "gr");
}
TEST(Letzte_Zeichen, of_a_short_name_are_all_of_it)
{
    EXPECT_EQ(Letzte_Zeichen("ab", 4), "ab");
    EXPECT_EQ(Ohne_Letzte_Zeichen("ab", 4), "");
}

} // namespace
} // namespace varnholt::test
