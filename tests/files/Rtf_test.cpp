// Rich text files: what other programs write, damaged files, and the way there and back.
#include "files/Rtf.h"

#include "core/codepage.h"
#include "files/Dateien_Welt.h"
#include "files/Rtf_Tafeln.h"
#include "files/Rtf_Zeichenfolge.h"
#include "files/Rtf_Zeichensatz.h"

#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace varnholt::test {
namespace {

Reich_Text_T Gelesen(std::string_view RTF) { return Rtf_Lesen(RTF).Text; }
std::string  Text_Von(std::string_view RTF) { return Reiner_Text(Gelesen(RTF)); }
// The text of a document with that inside.
std::string Innen(std::string_view Inhalt)
{
    return Text_Von(std::string("{\\rtf1\\ansi ").append(Inhalt).append("}"));
}

Zeichen_Bild_T Bild(void (*Setzen)(Zeichen_Bild_T&))
{
    Zeichen_Bild_T b;
    Setzen(b);
    return b;
}
Reich_Text_T Ein_Absatz(std::vector<Text_Stueck_T> Stuecke) { return {{{std::move(Stuecke), {}}}}; }

// --- what is RTF ---------------------------------------------------------------------------------

TEST(Rtf, a_file_is_RTF_by_its_beginning)
{
    for (const char* RTF : {"{\\rtf1 x}", "{\\rtf", "\xEF\xBB\xBF{\\rtf1}", "\r\n {\\rtf1}"})
        EXPECT_TRUE(Ist_Rtf(RTF)) << RTF;
    for (const char* Text : {"", "plain", "{\\rt", "{rtf1}", "x{\\rtf1}", "\\rtf1"})
        EXPECT_FALSE(Ist_Rtf(Text)) << Text;
}

// --- characters ----------------------------------------------------------------------------------

TEST(Rtf, plain_characters_come_through_and_line_ends_of_the_file_do_not)
{
    EXPECT_EQ(Innen("one\r\n two\nthree"), "one twothree");
}
TEST(Rtf, braces_and_backslashes_are_written_with_a_backslash)
{
    EXPECT_EQ(Innen("a\\{b\\}c\\\\d"), "a{b}c\\d");
}
TEST(Rtf, par_line_and_a_backslash_at_the_line_end_begin_a_new_line)
{
    EXPECT_EQ(Innen("a\\par b\\line c\\\r\nd\\\ne"), "a\r\nb\r\nc\r\nd\r\ne");
    EXPECT_EQ(Innen("a\\page b\\sect c\\column d"), "a\r\nb\r\nc\r\nd");
}
TEST(Rtf, a_blank_ends_a_word_and_a_second_one_is_text)
{
    EXPECT_EQ(Innen("a\\par  b"), "a\r\n b");
    EXPECT_EQ(Innen("a\\tab b\\tab  c"), "a\tb\t c");
    EXPECT_EQ(Innen("\\b1x\\b0 y"), "xy");
}
TEST(Rtf, words_that_stand_for_characters)
{
    EXPECT_EQ(
        Innen("\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote"),
        "\xE2\x80\x94\xE2\x80\x93\xE2\x80\xA2\xE2\x80\x98\xE2\x80\x99\xE2\x80\x9C\xE2\x80\x9D");
    EXPECT_EQ(Innen("a\\~b\\_c\\-d"),
              "a\xC2\xA0"
              "b\xE2\x80\x91"
              "c\xC2\xAD"
              "d");
}
TEST(Rtf, table_cells_become_tabs_and_rows_lines)
{
    EXPECT_EQ(Innen("\\trowd a\\cell b\\cell\\row c"), "a\tb\t\r\nc");
}

TEST(Rtf, hexadecimal_bytes_are_of_the_code_page)
{
    EXPECT_EQ(Innen("L\\'f6ten \\'80"), "L\xC3\xB6ten \xE2\x82\xAC");
    EXPECT_EQ(Innen("\\'F6\\'41"),
              "\xC3\xB6"
              "A");
    EXPECT_EQ(Text_Von("{\\rtf1\\ansi\\ansicpg1251 \\'cf\\'f0}"), "\xD0\x9F\xD1\x80");
    EXPECT_EQ(Text_Von("{\\rtf1\\pc \\'84}"), "\xC3\xA4");
    EXPECT_EQ(Text_Von("{\\rtf1\\pca \\'84}"), "\xC3\xA4");
    EXPECT_EQ(Text_Von("{\\rtf1\\mac \\'8a}"), "\xC3\xA4");
}
TEST(Rtf, bytes_that_stand_as_they_are_are_of_the_code_page_too)
{
    EXPECT_EQ(Innen("L\xF6ten"), "L\xC3\xB6ten");
    EXPECT_EQ(Text_Von("{\\rtf1\\ansicpg65001 L\xC3\xB6ten \\'c3\\'b6}"), "L\xC3\xB6ten \xC3\xB6");
    EXPECT_EQ(Text_Von("{\\rtf1\\ansicpg65001 \xC3 \xF6}"), "\xEF\xBF\xBD \xEF\xBF\xBD");
}
TEST(Rtf, a_hexadecimal_escape_without_digits_is_nothing)
{
    EXPECT_EQ(Innen("a\\'zzb"), "azzb");
    EXPECT_EQ(Text_Von("{\\rtf1 a\\'f"), "af");
    EXPECT_EQ(Text_Von("{\\rtf1 a\\'"), "a");
}
TEST(Rtf, the_code_page_of_the_font_goes_before_that_of_the_file)
{
    const char* Schriften = "{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset204 B;}{\\f2\\cpg1253 C;}"
                            "{\\f3\\fcharset1 D;}}";
    EXPECT_EQ(Text_Von(std::string("{\\rtf1\\ansicpg1252\\deff0") + Schriften +
                       "\\'e4\\f1\\'e4\\f2\\'e4\\f3\\'e4}"),
              "\xC3\xA4\xD0\xB4\xCE\xB4\xC3\xA4");
    // Without a word for the font it is the default one.
    EXPECT_EQ(Text_Von(std::string("{\\rtf1\\ansicpg1252\\deff1") + Schriften + "\\'e4}"),
              "\xD0\xB4");
}
TEST(Rtf, East_Asian_characters_without_a_Unicode_form_are_one_sign_each)
{
    EXPECT_EQ(Text_Von("{\\rtf1\\ansicpg932 a\\'93\\'fab}"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(Text_Von("{\\rtf1\\ansicpg936 \\'d6\\'d0A}"),
              "\xEF\xBF\xBD"
              "A");
    EXPECT_EQ(Text_Von("{\\rtf1\\ansicpg932 a\\'93}"), "a\xEF\xBF\xBD");
}
TEST(Rtf, every_byte_of_Windows_1252_is_read_as_the_program_knows_it)
{
    for (int i = 0x80; i < 0x100; ++i) {
        const char c = static_cast<char>(static_cast<std::uint8_t>(i));
        EXPECT_EQ(Innen({&c, 1}), Nach_UTF8({&c, 1})) << i;
    }
}
// Spot checks of each code page against its mapping table.
TEST(Rtf, the_code_pages)
{
    struct Probe_T {
        int      Seite;
        int      Byte;
        char32_t Zeichen;
    };
    for (const Probe_T& p : {Probe_T{437, 0x81, 0xFC}, {437, 0xE1, 0xDF},     {437, 0xFF, 0xA0},
                             {850, 0xD5, 0x131},       {852, 0xA5, 0x105},    {866, 0x80, 0x410},
                             {874, 0xA1, 0xE01},       {1250, 0xB9, 0x105},   {1251, 0xC0, 0x410},
                             {1253, 0xC1, 0x391},      {1254, 0xDD, 0x130},   {1255, 0xE0, 0x5D0},
                             {1256, 0xC7, 0x627},      {1257, 0xE0, 0x105},   {1258, 0xD5, 0x1A0},
                             {10000, 0xCA, 0xA0},      {1252, 0x80, 0x20AC},  {1252, 0xFF, 0xFF},
                             {1253, 0xAA, 0xFFFD},     {12345, 0xC0, 0xFFFD}, {12345, 0x41, 'A'}})
        EXPECT_EQ(Zeichen_Aus_Codeseite(p.Seite, static_cast<char>(p.Byte)), p.Zeichen)
            << p.Seite << " " << p.Byte;
}
TEST(Rtf, the_numbers_of_the_character_sets)
{
    for (const auto& [Kennzahl, Seite] : {std::pair{0, 1252},
                                          {77, 10000},
                                          {161, 1253},
                                          {162, 1254},
                                          {177, 1255},
                                          {178, 1256},
                                          {186, 1257},
                                          {204, 1251},
                                          {222, 874},
                                          {238, 1250},
                                          {254, 437},
                                          {255, 850},
                                          {1, 7},
                                          {99, 7}})
        EXPECT_EQ(Codeseite_Des_Schriftsatzes(Kennzahl, 7), Seite) << Kennzahl;
}

// --- Unicode -------------------------------------------------------------------------------------

TEST(Rtf, a_Unicode_escape_takes_the_character_behind_it_along)
{
    EXPECT_EQ(Innen("\\u9731?x"), "\xE2\x98\x83x");
    EXPECT_EQ(Innen("\\u228\\'e4x"), "\xC3\xA4x");
    EXPECT_EQ(Innen("\\u8364 Ex"), "\xE2\x82\xACx");
}
TEST(Rtf, uc_tells_how_many_characters_stand_in_for_it)
{
    EXPECT_EQ(Innen("\\uc0\\u9731 x"), "\xE2\x98\x83x");
    EXPECT_EQ(Innen("\\uc2\\u9731\\'96\\'7bx"), "\xE2\x98\x83x");
    EXPECT_EQ(Innen("\\uc3\\u9731abcd"),
              "\xE2\x98\x83"
              "d");
    EXPECT_EQ(Innen("\\uc1\\u9731\\tab x"), "\xE2\x98\x83x"); // a word counts as one
}
TEST(Rtf, what_stands_in_ends_with_the_group)
{
    EXPECT_EQ(Innen("{\\uc3\\u9731 a}bc"),
              "\xE2\x98\x83"
              "bc");
    EXPECT_EQ(Innen("\\uc3\\u9731{x}"), "\xE2\x98\x83x");
    EXPECT_EQ(Innen("{\\uc0\\u9731 x}\\u9731 yz"),
              "\xE2\x98\x83x\xE2\x98\x83z"); // uc is the group's
}
TEST(Rtf, negative_numbers_and_surrogate_pairs)
{
    EXPECT_EQ(Innen("\\u-4321?x"), "\xEE\xBC\x9Fx");
    EXPECT_EQ(Innen("\\u-10179?\\u-8704?x"), "\xF0\x9F\x98\x80x");
    EXPECT_EQ(Innen("\\u55357?\\u56832?x"), "\xF0\x9F\x98\x80x");
    EXPECT_EQ(Innen("\\u128512?x"), "\xF0\x9F\x98\x80x");
}
TEST(Rtf, half_a_surrogate_pair_is_the_replacement_character)
{
    EXPECT_EQ(Innen("\\u-10179?x"), "\xEF\xBF\xBDx");
    EXPECT_EQ(Innen("\\u-8704?x"), "\xEF\xBF\xBDx");
    EXPECT_EQ(Innen("\\u-10179?\\par x"), "\xEF\xBF\xBD\r\nx");
    EXPECT_EQ(Innen("\\u-10179?\\u-10179?\\u-8704?"), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}
TEST(Rtf, numbers_beyond_Unicode_and_beyond_31_bits)
{
    EXPECT_EQ(Innen("\\u1114112?x"), "\xEF\xBF\xBDx");
    EXPECT_EQ(Innen("\\u99999999999999999999?x"), "\xEF\xBF\xBDx");
    EXPECT_EQ(Innen("\\uc99999\\uc1\\u65?x"), "Ax");
    EXPECT_EQ(Innen("\\uc-5\\u65 x"), "Ax");
}
TEST(Rtf, line_separators_of_Unicode_are_line_ends)
{
    EXPECT_EQ(Innen("a\\u8232?b\\u8233?c"), "a\r\nb\r\nc");
}
TEST(Rtf, control_characters_are_dropped)
{
    EXPECT_EQ(Innen("a\\'00\\'07\\u7?\\'7fb\x01\x02"), "ab");
    EXPECT_EQ(Text_Von(std::string("{\\rtf1 a\0b}", 12)), "ab");
    EXPECT_EQ(Innen("a\\'09b"), "a\tb");
}

// --- look ----------------------------------------------------------------------------------------

TEST(Rtf, bold_italic_and_underlined_go_on_and_off)
{
    EXPECT_EQ(Gelesen("{\\rtf1 a\\b b\\b0 c\\i d\\i0\\ul e\\ulnone f\\ul g\\ul0 h}"),
              Ein_Absatz({{"a", {}},
                          {"b", Bild([](auto& b) { b.Fett = true; })},
                          {"c", {}},
                          {"d", Bild([](auto& b) { b.Kursiv = true; })},
                          {"e", Bild([](auto& b) { b.Unterstrichen = true; })},
                          {"f", {}},
                          {"g", Bild([](auto& b) { b.Unterstrichen = true; })},
                          {"h", {}}}));
}
TEST(Rtf, every_kind_of_line_below_the_text_is_an_underline)
{
    for (const char* Wort :
         {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulth", "ulw", "ulwave"}) {
        const auto t = Gelesen(std::string("{\\rtf1\\") + Wort + " x}");
        EXPECT_TRUE(t.Absaetze.at(0).Stuecke.at(0).Bild.Unterstrichen) << Wort;
    }
}
TEST(Rtf, a_group_gives_the_look_back)
{
    EXPECT_EQ(Gelesen("{\\rtf1{\\b a{\\i b}}c}"),
              Ein_Absatz({{"a", Bild([](auto& b) { b.Fett = true; })},
                          {"b", Bild([](auto& b) { b.Fett = b.Kursiv = true; })},
                          {"c", {}}}));
}
TEST(Rtf, plain_takes_every_look_away)
{
    EXPECT_EQ(Gelesen("{\\rtf1{\\fonttbl{\\f1 A;}}{\\colortbl;\\red1;}"
                      "\\b\\i\\ul\\f1\\fs30\\cf1\\plain x}"),
              Ein_Absatz({{"x", {}}}));
}
TEST(Rtf, fonts_of_the_table)
{
    const char* Datei =
        "{\\rtf1\\deff0{\\fonttbl{\\f0\\froman Times New Roman;}"
        "{\\f3\\fswiss\\fprq2{\\*\\panose 020b}Arial{\\*\\falt Helvetica};}\\f7\\fnil "
        "Plain One;\\f8 M\\'fcller\\u9731?;}a\\f3 b\\f7 c\\f8 d\\f9 e\\f0 f}";
    const auto Stuecke = Gelesen(Datei).Absaetze.at(0).Stuecke;
    ASSERT_EQ(Stuecke.size(), 6u);
    const std::vector<std::string> Namen = {
        "", "Arial", "Plain One", "M\xC3\xBCller\xE2\x98\x83", "", "Times New Roman"};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(Stuecke[i].Bild.Schrift, Namen[i]) << i;
}
TEST(Rtf, colours_of_the_table)
{
    const auto Stuecke = Gelesen("{\\rtf1{\\colortbl;\\red255\\green128\\blue1;\\red300\\green-5;}"
                                 "a\\cf1 b\\cf2 c\\cf0 d\\cf9 e\\cf-1 f\\cf1 g}")
                             .Absaetze.at(0)
                             .Stuecke;
    ASSERT_EQ(Stuecke.size(), 5u);
    EXPECT_EQ(Stuecke[0].Bild.Farbe, 0);
    EXPECT_EQ(Stuecke[1].Bild.Farbe, 0x0180FF);
    EXPECT_EQ(Stuecke[2].Bild.Farbe, 0x0000FF);
    EXPECT_EQ(Stuecke[3].Text, "def");
    EXPECT_EQ(Stuecke[3].Bild.Farbe, 0);
    EXPECT_EQ(Stuecke[4].Bild.Farbe, 0x0180FF);
}
TEST(Rtf, sizes_are_half_points_within_limits)
{
    for (const auto& [Wort, Erwartet] : {std::pair{"fs24", 24},
                                         {"fs2", 2},
                                         {"fs1", 2},
                                         {"fs0", 0},
                                         {"fs-9", 0},
                                         {"fs400", 400},
                                         {"fs401", 400},
                                         {"fs99999999999", 400}}) {
        const auto t = Gelesen(std::string("{\\rtf1\\") + Wort + " x}");
        EXPECT_EQ(t.Absaetze.at(0).Stuecke.at(0).Bild.Halbpunkte, Erwartet) << Wort;
    }
}
TEST(Rtf, paragraphs_have_their_look_until_pard)
{
    const auto t =
        Gelesen("{\\rtf1\\qc\\li100\\fi-50\\sb20\\sa30 a\\par b\\par\\pard c\\par\\qr d\\par\\qj "
                "e\\par\\ql f\\par\\li99999999 g}");
    ASSERT_EQ(t.Absaetze.size(), 7u);
    const Absatz_Bild_T Erster{Bund::Mitte, 100, -50, 20, 30};
    EXPECT_EQ(t.Absaetze[0].Bild, Erster);
    EXPECT_EQ(t.Absaetze[1].Bild, Erster);
    EXPECT_EQ(t.Absaetze[2].Bild, Absatz_Bild_T{});
    EXPECT_EQ(t.Absaetze[3].Bild.Ausrichtung, Bund::Rechts);
    EXPECT_EQ(t.Absaetze[4].Bild.Ausrichtung, Bund::Block);
    EXPECT_EQ(t.Absaetze[5].Bild, Absatz_Bild_T{});
    EXPECT_EQ(t.Absaetze[6].Bild.Einzug, Rtf_Twips_Hoechstens);
}
TEST(Rtf, equal_looks_are_one_piece)
{
    EXPECT_EQ(Gelesen("{\\rtf1 a{\\b}b\\b0 c{d}\\i\\i0 e}"), Ein_Absatz({{"abcde", {}}}));
}

// --- what isn't shown ----------------------------------------------------------------------------

TEST(Rtf, unknown_words_are_skipped_and_their_groups_shown)
{
    EXPECT_EQ(
        Innen("a\\foo b\\bar-17 c{\\quux42 d}e\\verylongwordthatnobodyknowsatallinanyprogram f"),
        "abcdef");
}
TEST(Rtf, groups_that_begin_with_a_star_are_skipped_unless_they_are_known)
{
    EXPECT_EQ(Innen("a{\\*\\foo b{c}\\par d}e{\\*\\b f}g"), "aeg");
    EXPECT_EQ(Innen("a{\\*\\fldinst HYPERLINK \"x\"}b"), "ab");
}
TEST(Rtf, a_field_shows_its_result)
{
    EXPECT_EQ(Innen("{\\field{\\*\\fldinst{HYPERLINK \"http://x\"}}{\\fldrslt{see}}}."), "see.");
}
TEST(Rtf, tables_of_the_document_pictures_headers_and_footnotes_are_not_text)
{
    for (const char* Gruppe : {"{\\stylesheet{\\s0 Normal;}}",
                               "{\\info{\\title T}{\\author A}}",
                               "{\\pict\\wmetafile8 010203}",
                               "{\\*\\shppict{\\pict\\pngblip 8950}}",
                               "{\\nonshppict{\\pict 00}}",
                               "{\\header h}",
                               "{\\footerr f}",
                               "{\\footnote n}",
                               "{\\*\\generator Some Program 1.0;}",
                               "{\\listtable x}",
                               "{\\object{\\*\\objdata 0105}}",
                               "{\\v hidden\\par}",
                               "{\\xe index}",
                               "{\\fonttbl{\\f0 Name;}}",
                               "{\\colortbl;\\red1;}"})
        EXPECT_EQ(Innen(std::string("a") + Gruppe + "b"), "ab") << Gruppe;
}
TEST(Rtf, an_object_shows_its_result)
{
    EXPECT_EQ(Innen("{\\object\\objemb{\\*\\objdata 01}{\\result{seen}}}"), "seen");
}
TEST(Rtf, raw_bytes_of_bin_are_not_looked_at)
{
    EXPECT_EQ(Innen("a{\\pict\\bin5 }}}{{}b"), "ab");
    EXPECT_EQ(Innen("a\\bin3 {{{b"), "ab");
    EXPECT_EQ(Innen("a\\bin b\\bin-4 c"), "abc");
    EXPECT_EQ(Text_Von("{\\rtf1 a\\bin99999999 b}"), "a");
}
TEST(Rtf, nothing_behind_the_end_of_the_outermost_group_is_read)
{
    EXPECT_EQ(Text_Von("{\\rtf1 a}b{c}"), "a");
}

// What a word processor writes: many words that mean nothing here.
TEST(Rtf, a_file_of_a_word_processor)
{
    const auto t = Gelesen(
        "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc1\\adeff31507\\deff0\\stshfdbch31506\\deflang1"
        "031"
        "{\\fonttbl{\\f0\\fbidi \\froman\\fcharset0\\fprq2{\\*\\panose 02020603}Times New Roman;}"
        "{\\f37\\fbidi \\fswiss\\fcharset0\\fprq2 Calibri;}}"
        "{\\colortbl;\\red0\\green0\\blue0;\\red192\\green0\\blue0;}{\\*\\defchp \\f37\\fs22 }"
        "{\\stylesheet{\\ql \\li0\\ri0 \\snext0 Normal;}}{\\*\\rsidtbl \\rsid1}{\\info{\\author Q}}"
        "\\paperw11906\\margl1417 \\pard\\plain \\ltrpar\\ql \\li0\\ri0\\sa160 \\rtlch\\fcs1 "
        "\\af0\\afs22 "
        "\\ltrch\\fcs0 \\f37\\fs22\\lang1031 {\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 \\b\\cf2\\insrsid2 "
        "L\\'f6tplan}"
        "{\\rtlch \\ltrch\\fcs0 \\insrsid3 : R1 = 10 k\\u937\\'57\\par }\\pard {\\*\\bkmkstart "
        "x}end\\par }");
    ASSERT_EQ(t.Absaetze.size(), 3u);
    const auto& Erster = t.Absaetze[0].Stuecke;
    ASSERT_EQ(Erster.size(), 2u);
    EXPECT_EQ(Erster[0].Text, "L\xC3\xB6tplan");
    EXPECT_EQ(Erster[0].Bild, (Zeichen_Bild_T{"Calibri", 22, 0x0000C0, true, false, false}));
    EXPECT_EQ(Erster[1].Text, ": R1 = 10 k\xCE\xA9");
    EXPECT_EQ(t.Absaetze[0].Bild.Danach, 160);
    EXPECT_EQ(t.Absaetze[1].Stuecke.at(0).Text, "end");
}
TEST(Rtf, a_file_of_a_small_editor)
{
    EXPECT_EQ(
        Text_Von("{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat\\deflang1031{\\fonttbl{"
                 "\\f0\\fnil\\fcharset0 "
                 "Calibri;}}\r\n{\\*\\generator Riched20 10.0.19041}\\viewkind4\\uc1 \r\n"
                 "\\pard\\sa200\\sl276\\slmult1\\f0\\fs22\\lang7 one\\par\r\ntwo\\par\r\n}\r\n"),
        "one\r\ntwo\r\n");
}

// --- damaged files -------------------------------------------------------------------------------

TEST(Rtf, a_file_that_ends_early_shows_what_it_has)
{
    const std::string Ganz = "{\\rtf1{\\fonttbl{\\f1 A;}}one {\\b two} \\u9731? three\\par four}";
    EXPECT_EQ(Text_Von(Ganz), "one two \xE2\x98\x83 three\r\nfour");
    EXPECT_EQ(Text_Von(Ganz.substr(0, Ganz.find("two") + 2)), "one tw");
    EXPECT_EQ(Text_Von(Ganz.substr(0, Ganz.find("\\u9731") + 3)), "one two \t"); // \u9
    for (std::size_t n = 0; n <= Ganz.size(); ++n) {
        const auto t = Gelesen(std::string_view(Ganz).substr(0, n));
        EXPECT_GE(t.Absaetze.size(), 1u);
    }
}
TEST(Rtf, braces_that_do_not_match)
{
    EXPECT_EQ(Text_Von("{\\rtf1 a{b{c"), "abc");
    EXPECT_EQ(Text_Von("}{\\rtf1 a}"), "");
    EXPECT_EQ(Text_Von(""), "");
    EXPECT_EQ(Gelesen("").Absaetze.size(), 1u);
    EXPECT_EQ(Text_Von("\\"), "");
    EXPECT_EQ(Text_Von("{\\rtf1 a\\"), "a");
}
TEST(Rtf, groups_may_nest_deeper_than_any_program_writes)
{
    for (const std::size_t Tiefe : {199u, 200u, 201u, 100'000u}) {
        const std::string Datei =
            "{\\rtf1 a\\b " + std::string(Tiefe, '{') + "b" + std::string(Tiefe, '}') + "c}d";
        EXPECT_EQ(Text_Von(Datei), "abc") << Tiefe;
    }
    EXPECT_EQ(Text_Von(std::string(1'000'000, '{')), "");
}

TEST(Rtf, a_text_that_is_too_long_ends_with_whole_characters)
{
    Rtf_Grenzen_T Grenzen;
    Grenzen.Zeichen          = 10;
    const auto Gelesen_Davon = [&](const char* Text) {
        return Rtf_Lesen(std::string("{\\rtf1\\ansicpg65001 ") + Text + "\\par }", Grenzen);
    };
    EXPECT_FALSE(Gelesen_Davon("0123456789").Zu_Lang);
    for (const auto& [Datei, Rest] :
         {std::pair{"0123456789a", "0123456789"},
          {"x\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4", "x\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4"},
          {"01234{\\b 56789}a", "0123456789"},
          {"01234\\par 56789\\bullet", "01234\r\n56789"}}) {
        const auto r = Gelesen_Davon(Datei);
        EXPECT_TRUE(r.Zu_Lang) << Datei;
        EXPECT_EQ(Reiner_Text(r.Text), Rest) << Datei;
    }
    EXPECT_EQ(Rtf_Grenzen_T{}.Zeichen, 16u << 20);
}
TEST(Rtf, paragraphs_and_pieces_are_bounded)
{
    Rtf_Grenzen_T Grenzen;
    Grenzen.Absaetze = 3;
    Grenzen.Stuecke  = 4;
    EXPECT_FALSE(Rtf_Lesen("{\\rtf1 a\\par b\\par c}", Grenzen).Zu_Lang);
    const auto Viele = Rtf_Lesen("{\\rtf1 a\\par b\\par c\\par d}", Grenzen);
    EXPECT_TRUE(Viele.Zu_Lang);
    EXPECT_EQ(Reiner_Text(Viele.Text), "a\r\nb\r\nc");
    EXPECT_FALSE(Rtf_Lesen("{\\rtf1 a{\\b b}c{\\b d}}", Grenzen).Zu_Lang);
    EXPECT_TRUE(Rtf_Lesen("{\\rtf1 a{\\b b}c{\\b d}e}", Grenzen).Zu_Lang);
}
TEST(Rtf, a_file_of_60_MB_is_read_within_the_limits)
{
    std::string Datei = "{\\rtf1 ";
    while (Datei.size() < 60u << 20)
        Datei.append("\\par\\par\\par\\par\\par\\par\\par\\par\\par\\par\\par\\par\\par\\par\\par\\"
                     "par\\par\\par");
    const auto r = Rtf_Lesen(Datei);
    EXPECT_TRUE(r.Zu_Lang);
    EXPECT_EQ(r.Text.Absaetze.size(), Rtf_Grenzen_T{}.Absaetze);
}
TEST(Rtf, endless_tables_stay_bounded)
{
    std::string Datei = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < 5000; ++i)
        Datei += "{\\f" + std::to_string(i) + " F" + std::to_string(i) + ";}";
    Datei += "}{\\colortbl";
    for (int i = 0; i < 5000; ++i)
        Datei += "\\red7;";
    Datei += "}\\f1000\\cf1000 a\\f1001\\cf1001 b}";
    const auto Stuecke = Gelesen(Datei).Absaetze.at(0).Stuecke;
    ASSERT_EQ(Stuecke.size(), 2u);
    EXPECT_EQ(Stuecke[0].Bild.Schrift, "F1000");
    EXPECT_EQ(Stuecke[0].Bild.Farbe, 7);
    EXPECT_EQ(Stuecke[1].Bild, Zeichen_Bild_T{});
}

// --- writing -------------------------------------------------------------------------------------

TEST(Rtf, a_text_is_written_in_ASCII_with_escapes)
{
    EXPECT_EQ(
        Rtf_Schreiben(Ein_Absatz({{"a{b}\\\t\xC3\xA4\xE2\x98\x83\xF0\x9F\x98\x80", {}}})),
        "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}\r\n"
        "\\pard a\\{b\\}\\\\\\tab \\'e4\\u9731?\\u-10179?\\u-8704?}\r\n");
}
TEST(Rtf, looks_are_written_with_their_tables)
{
    const auto a = Bild([](auto& b) {
        b.Schrift    = "Courier New";
        b.Halbpunkte = 24;
        b.Farbe      = 0x0180FF;
        b.Fett       = true;
    });
    const auto b = Bild([](auto& c) { c.Kursiv = c.Unterstrichen = true; });
    EXPECT_EQ(
        Rtf_Schreiben({{{{{"x", a}, {"y", b}}, {}}, {{{"z", {}}}, {Bund::Mitte, 10, 20, 30, 40}}}}),
        "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
        "{\\f1\\fnil\\fcharset0 Courier New;}}\r\n"
        "{\\colortbl ;\\red255\\green128\\blue1;}\r\n"
        "\\pard\\plain\\f1\\fs24\\cf1\\b x\\plain\\i\\ul y\\par\r\n"
        "\\pard\\qc\\li10\\fi20\\sb30\\sa40\\plain z}\r\n");
}
TEST(Rtf, an_empty_text_is_an_empty_document)
{
    EXPECT_EQ(Gelesen(Rtf_Schreiben({})), (Reich_Text_T{{Absatz_T{}}}));
    EXPECT_TRUE(Ist_Rtf(Rtf_Schreiben({})));
}
TEST(Rtf, texts_that_are_hard_to_write_read_back_as_they_were)
{
    for (const char* Text : {" ",
                             "  x ",
                             "\t",
                             "1",
                             "-1",
                             "a b",
                             ";",
                             "'41",
                             "\\par",
                             "{",
                             "}",
                             "*",
                             "\\'e4",
                             "~",
                             "?",
                             "\xC3\xA4?"}) {
        for (const bool Fett : {false, true}) {
            Zeichen_Bild_T b;
            b.Fett                 = Fett;
            const Reich_Text_T Alt = {
                {{{{Text, b}}, {}}, {}, {{{Text, {}}}, {}}, {}, {}, {{{"x", b}}, {}}}};
            EXPECT_EQ(Gelesen(Rtf_Schreiben(Alt)), Rtf_Normal(Alt)) << Text;
            EXPECT_EQ(Rtf_Normal(Alt), Alt) << Text;
        }
    }
}
TEST(Rtf, font_names_of_any_kind_read_back)
{
    for (const char* Name :
         {"A", "Arial;", "a{b}\\c", "M\xC3\xBC", "\xE2\x98\x83\xF0\x9F\x98\x80", "1", "-1 x"}) {
        Zeichen_Bild_T b;
        b.Schrift              = Name;
        const Reich_Text_T Alt = Ein_Absatz({{"x", b}});
        EXPECT_EQ(Gelesen(Rtf_Schreiben(Alt)), Alt) << Name;
    }
}
TEST(Rtf, more_fonts_and_colours_than_a_file_holds_fall_back_to_the_ordinary)
{
    Reich_Text_T Alt;
    Alt.Absaetze.emplace_back();
    for (int i = 1; i <= 1100; ++i) {
        Zeichen_Bild_T b;
        b.Schrift = "F" + std::to_string(i);
        b.Farbe   = i;
        Alt.Absaetze[0].Stuecke.push_back({"x", b});
    }
    const auto t = Gelesen(Rtf_Schreiben(Alt)).Absaetze.at(0).Stuecke;
    ASSERT_EQ(t.size(), 1001u);
    EXPECT_EQ(t[999].Bild.Schrift, "F1000");
    EXPECT_EQ(t[999].Bild.Farbe, 1000);
    EXPECT_EQ(t[1000], (Text_Stueck_T{std::string(100, 'x'), {}}));
}
TEST(Rtf, the_normal_form_mends_what_a_file_cannot_hold)
{
    Zeichen_Bild_T Wild;
    Wild.Schrift    = "  a\tb  ";
    Wild.Halbpunkte = 9999;
    Wild.Farbe      = 0x12345678;
    const auto t    = Rtf_Normal({{{{{"a\r\nb\x01", Wild}, {"", {}}, {"\xE2\x80\xA8\xFF", Wild}},
                                    {Bund::Rechts, 99999, -99999, 0, 0}}}});
    ASSERT_EQ(t.Absaetze.size(), 1u);
    EXPECT_EQ(t.Absaetze[0].Bild, (Absatz_Bild_T{Bund::Rechts, 31680, -31680, 0, 0}));
    ASSERT_EQ(t.Absaetze[0].Stuecke.size(), 1u);
    EXPECT_EQ(t.Absaetze[0].Stuecke[0].Text, "ab\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(t.Absaetze[0].Stuecke[0].Bild,
              (Zeichen_Bild_T{"a b", 400, 0x345678, false, false, false}));
}
TEST(Rtf, a_long_font_name_is_cut_at_a_whole_character)
{
    std::string Name = "x";
    for (int i = 0; i < 40; ++i)
        Name += "\xC3\xA4";
    EXPECT_EQ(Rtf_Schriftname(Name).size(), 63u);
    EXPECT_TRUE(Ist_UTF8(Rtf_Schriftname(Name)));
}

// --- any text, any bytes -------------------------------------------------------------------------

rc::Gen<std::string> Zeichen_Gen()
{
    return rc::gen::map(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 0x11000)),
                        [](const std::vector<int>& Zahlen) {
                            std::string Text;
                            for (const int z : Zahlen) // mostly ASCII, some of everything
                                UTF8_Anfuegen(Text,
                                              static_cast<char32_t>(z < 0x8000    ? z & 0x7F
                                                                    : z < 0x10000 ? z
                                                                                  : z + 0xF000));
                            return Text;
                        });
}
rc::Gen<Zeichen_Bild_T> Bild_Gen()
{
    return rc::gen::build<Zeichen_Bild_T>(
        rc::gen::set(&Zeichen_Bild_T::Schrift,
                     rc::gen::element<std::string>("", "Arial", "A;{}\\", "\xC3\xB6")),
        rc::gen::set(&Zeichen_Bild_T::Halbpunkte, rc::gen::inRange(-2, 500)),
        rc::gen::set(&Zeichen_Bild_T::Farbe, rc::gen::element(0, 1, 0xFF, 0xDD1111, 0xFFFFFF)),
        rc::gen::set(&Zeichen_Bild_T::Fett),
        rc::gen::set(&Zeichen_Bild_T::Kursiv),
        rc::gen::set(&Zeichen_Bild_T::Unterstrichen));
}
rc::Gen<Reich_Text_T> Text_Gen()
{
    const auto Stueck =
        rc::gen::build<Text_Stueck_T>(rc::gen::set(&Text_Stueck_T::Text, Zeichen_Gen()),
                                      rc::gen::set(&Text_Stueck_T::Bild, Bild_Gen()));
    const auto Rand = rc::gen::build<Absatz_Bild_T>(
        rc::gen::set(&Absatz_Bild_T::Ausrichtung,
                     rc::gen::element(Bund::Links, Bund::Mitte, Bund::Rechts, Bund::Block)),
        rc::gen::set(&Absatz_Bild_T::Einzug, rc::gen::element(0, 0, 360, -1)),
        rc::gen::set(&Absatz_Bild_T::Erste_Zeile, rc::gen::element(0, 0, -200)));
    const auto Absatz = rc::gen::build<Absatz_T>(
        rc::gen::set(&Absatz_T::Stuecke,
                     rc::gen::resize(6, rc::gen::container<std::vector<Text_Stueck_T>>(Stueck))),
        rc::gen::set(&Absatz_T::Bild, Rand));
    return rc::gen::build<Reich_Text_T>(
        rc::gen::set(&Reich_Text_T::Absaetze,
                     rc::gen::resize(6, rc::gen::container<std::vector<Absatz_T>>(Absatz))));
}

RC_GTEST_PROP(Rtf, any_text_reads_back_as_the_file_can_hold_it, ())
{
    const Reich_Text_T Alt    = *Text_Gen();
    const Reich_Text_T Normal = Rtf_Normal(Alt);
    const std::string  Datei  = Rtf_Schreiben(Alt);
    RC_ASSERT(Ist_Rtf(Datei));
    RC_ASSERT(Gelesen(Datei) == Normal);
    RC_ASSERT(Rtf_Normal(Normal) == Normal);
    RC_ASSERT(Rtf_Schreiben(Normal) == Datei);
}

// Pieces of RTF in any order, and bytes among them.
rc::Gen<std::string> Wirr_Gen()
{
    const auto Stueck = rc::gen::element<std::string>("{",
                                                      "}",
                                                      "\\b ",
                                                      "\\b0",
                                                      "\\par",
                                                      "\\u-10179?",
                                                      "\\u9731",
                                                      "\\'e4",
                                                      "\\'",
                                                      "\\",
                                                      "\\*",
                                                      "\\uc2 ",
                                                      "{\\fonttbl",
                                                      "\\f1 ",
                                                      "\\fcharset128 ",
                                                      "A;",
                                                      "{\\colortbl",
                                                      "\\red9",
                                                      ";",
                                                      "\\cf1 ",
                                                      "\\bin3 ",
                                                      "text ",
                                                      "\xC3\xA4",
                                                      "\xFF",
                                                      "\\qc",
                                                      "\\pard",
                                                      "\\plain",
                                                      "{\\pict",
                                                      "\\v",
                                                      "\\ansicpg65001 ",
                                                      "\\ansicpg932 ",
                                                      "\\fs99 ");
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(Stueck),
                        [](const auto& Teile) {
                            std::string Text = "{\\rtf1 ";
                            for (const std::string& t : Teile)
                                Text += t;
                            return Text;
                        });
}

RC_GTEST_PROP(Rtf, whatever_is_read_can_be_written_and_read_again, ())
{
    const Reich_Text_T Text = Gelesen(*Wirr_Gen());
    RC_ASSERT(Rtf_Normal(Text) == Text);
    RC_ASSERT(Gelesen(Rtf_Schreiben(Text)) == Text);
}

} // namespace
} // namespace varnholt::test
