// Copy, cut, delete and paste in the hex editor, against a plain model of the image.
#include "Hex_Welt.h"

#include "language/HexDez.h"

#include <rapidcheck/gtest.h>

namespace varnholt::test {
namespace {

class Hexablage : public Hex_Welt {
protected:
    Hexablage() { Hex_Aktives_Feld = Feld_AscII; }
};

// --- copy ---

TEST_F(Hexablage, the_active_panes_marked_text_is_copied)
{
    Bytes_Setzen(0, {'A', 0, 'C'});
    Seite(0, 9);
    AscII_Caret(0, 3);
    Hexedit_Kopieren();
    EXPECT_EQ(Ablage.Inhalt, "A.C");
    Hex_Aktives_Feld = Feld_Hex;
    Hexedit_Kopieren();
    EXPECT_EQ(Ablage.Inhalt, "41 00 43");
}

TEST_F(Hexablage, line_breaks_are_left_out)
{
    Bytes_Setzen(14, {'a', 'b', 'c', 'd'});
    Seite(0, 9);
    AscII_Caret(14, 6);
    Hexedit_Kopieren();
    EXPECT_EQ(Ablage.Inhalt, "abcd");
}

TEST_F(Hexablage, without_an_active_pane_the_characters_are_copied)
{
    Byte(0) = 'Q';
    Hex_Anzeige();
    Hex_Aktives_Feld = 0;
    AscII_Caret(0);
    Hexedit_Kopieren();
    EXPECT_EQ(Ablage.Inhalt, "Q");
}

TEST_F(Hexablage, an_empty_marking_leaves_the_clipboard)
{
    Ablage.Inhalt                = "old";
    Hexedit.AscII_Auswahl.Laenge = 0;
    Hexedit_Kopieren();
    EXPECT_EQ(Ablage.Inhalt, "old");
}

TEST_F(Hexablage, cut_forgets_an_old_abort_copies_and_deletes)
{
    Bytes_Setzen(0, {'A', 'B', 'C'});
    Seite(0, 9);
    AscII_Caret(0, 2);
    Abbruch = true;
    Hexedit_Ausschneiden();
    EXPECT_EQ(Ablage.Inhalt, "AB");
    EXPECT_EQ(Bytes_Ab(0, 2), (std::vector<int>{'C', 0xFF}));
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Hexablage, a_refusal_stops_cut_delete_and_paste)
{
    Bytes_Setzen(0, {'A', 'B', 'C'});
    Seite(0, 9);
    Ablage.Inhalt = "xyz";
    for (auto* Befehl : {Hexedit_Ausschneiden, Hexedit_Loeschen, Hexedit_Einfuegen}) {
        Aus_Quelltext();
        Box.Antworten = {Antwort_Nein};
        Befehl();
        EXPECT_TRUE(Abbruch);
        EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{'A', 'B', 'C', 0xFF}));
        EXPECT_EQ(Ablage.Inhalt, "xyz");
    }
}

// --- delete ---

TEST_F(Hexablage, delete_of_5_bytes_at_0_moves_the_byte_at_10_to_5)
{
    Byte(10) = 0x42;
    Hex_Anzeige();
    AscII_Caret(0, 5);
    Hexedit_Loeschen();
    EXPECT_EQ(Byte(5), 0x42);
    EXPECT_EQ(Letztes_Byte(), 5);
    EXPECT_EQ(Hex_Feld.substr(15, 2), "42");
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{0, 1}));
}

TEST_F(Hexablage, delete_with_a_caret_takes_one_byte)
{
    Bytes_Setzen(0, {1, 2, 3});
    Seite(0, 9);
    AscII_Caret(1, 1);
    Hexedit_Loeschen();
    EXPECT_EQ(Bytes_Ab(0, 3), (std::vector<int>{1, 3, 0xFF}));
}

TEST_F(Hexablage, delete_takes_the_address_from_the_page_shown)
{
    Bytes_Setzen(16 * 100 + 17, {7, 8});
    Seite(100, 9);
    AscII_Caret(19);
    Hexedit_Loeschen();
    EXPECT_EQ(Byte(16 * 100 + 17), 8);
}

TEST_F(Hexablage, delete_lets_the_element_behind_the_image_come_in_and_ffh_after_it)
{
    Byte(0x80000) = 0x33;
    Seite(32760, 9);
    AscII_Caret(18 * 7 + 15);
    Hexedit_Loeschen();
    EXPECT_EQ(Byte(0x7FFFF), 0x33);
    EXPECT_EQ(Byte(0x80000), 0xFF);
    Hexedit_Loeschen();
    EXPECT_EQ(Byte(0x7FFFF), 0xFF);
}

TEST_F(Hexablage, a_long_move_shows_the_page_after_the_first_800_bytes_and_again_at_the_end)
{
    const auto Laeufe = [this](int Zeile) {
        Seite(Zeile, 9);
        AscII_Caret(0);
        const auto Vorher = Ansichten.Hex_Stand;
        const int  Runden = Ereignisse.Runden;
        Hexedit_Loeschen();
        EXPECT_EQ(Ereignisse.Runden, Runden + 1); // no event meets an image half moved
        return Ansichten.Hex_Stand - Vorher;
    };
    EXPECT_EQ(Laeufe(0), Laeufe(32760) + 1);          // at row 32760 129 bytes are left
    EXPECT_EQ(Laeufe(32768 - 50), Laeufe(32760) + 1); // 801
    EXPECT_EQ(Laeufe(32768 - 49), Laeufe(32760));     // 785
}

// --- paste ---

TEST_F(Hexablage, paste_of_3_characters_over_5_marked_shortens_the_image_by_2)
{
    Bytes_Setzen(0, {1, 2, 3, 4, 5, 6, 7});
    Seite(0, 9);
    AscII_Caret(1, 5);
    Ablage.Inhalt = "abc";
    Hexedit_Einfuegen();
    EXPECT_EQ(Bytes_Ab(0, 6), (std::vector<int>{1, 'a', 'b', 'c', 7, 0xFF}));
}

TEST_F(Hexablage, paste_of_3_characters_over_a_caret_lengthens_the_image_by_3)
{
    Bytes_Setzen(0, {1, 2, 3});
    Seite(0, 9);
    AscII_Caret(1);
    Ablage.Inhalt = "abc";
    Hexedit_Einfuegen();
    EXPECT_EQ(Bytes_Ab(0, 7), (std::vector<int>{1, 'a', 'b', 'c', 2, 3, 0xFF}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{1, 1})); // the caret is back
    EXPECT_EQ(Fenster.Protokoll.back(), "Fokus 1");
    EXPECT_EQ(AscII_Feld.substr(1, 3), "abc");
}

TEST_F(Hexablage, line_breaks_in_pasted_characters_take_a_place_but_are_not_written)
{
    Bytes_Setzen(0, {1, 2, 3});
    Seite(0, 9);
    AscII_Caret(0);
    Ablage.Inhalt = "a\r\nb";
    Hexedit_Einfuegen();
    EXPECT_EQ(Bytes_Ab(0, 8), (std::vector<int>{'a', 'b', 3, 0xFF, 1, 2, 3, 0xFF}));
}

TEST_F(Hexablage, paste_into_the_digits_reads_pairs_and_skips_blanks_and_line_breaks)
{
    Bytes_Setzen(0, {1, 2});
    Seite(0, 9);
    Hex_Aktives_Feld = Feld_Hex;
    Hex_Caret(0, 2);
    Ablage.Inhalt = "41 42\r\n4344 5";
    Hexedit_Einfuegen();
    EXPECT_EQ(Bytes_Ab(0, 7), (std::vector<int>{0x41, 0x42, 0x43, 0x44, 1, 2, 0xFF}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{0, 1}));
}

TEST_F(Hexablage, a_pair_that_is_no_number_leaves_the_byte_of_its_place)
{
    Bytes_Setzen(0, {1, 2, 3, 4});
    Seite(0, 9);
    Hex_Aktives_Feld = Feld_Hex;
    Hex_Caret(0, 11);
    Ablage.Inhalt = "AA ZZ ab CC";
    Hexedit_Einfuegen();
    EXPECT_EQ(Bytes_Ab(0, 4), (std::vector<int>{0xAA, 2, 3, 0xCC}));
}

TEST_F(Hexablage, paste_at_the_end_of_the_image_stops_there)
{
    Seite(32760, 9);
    AscII_Caret(18 * 7 + 14);
    Ablage.Inhalt = std::string(1000, 'x');
    Hexedit_Einfuegen();
    EXPECT_EQ(Bytes_Ab(0x7FFFD, 4), (std::vector<int>{0xFF, 'x', 'x', 0xFF}));
}

TEST_F(Hexablage, a_clipboard_larger_than_the_image_fills_it_and_no_more)
{
    Ablage.Inhalt = std::string(600000, 'y');
    AscII_Caret(0);
    Hexedit_Einfuegen();
    EXPECT_EQ(Byte(0x7FFFF), 'y');
    EXPECT_EQ(Byte(0x80000), 0xFF);
}

// --- against a model ---

// The image as a plain vector, moved byte by byte as the rules tell it.
struct Modell {
    std::vector<int> b;

    int  Oben() const { return static_cast<int>(b.size()) - 1; }
    int& An(int a) { return b.at(static_cast<std::size_t>(a)); }

    void Loeschen(int S, int N)
    {
        for (int a = S; a <= Oben(); ++a)
            An(a) = a + N <= Oben() ? An(a + N) : 0xFF;
    }
    void Einfuegen(int S, int Markiert, int C, const std::vector<int>& Werte)
    {
        for (int a = Oben(); Markiert < C && a >= S + C; --a)
            An(a) = An(a - (C - Markiert));
        for (int a = S + C; Markiert > C && a <= Oben(); ++a)
            An(a) = a + Markiert - C <= Oben() ? An(a + Markiert - C) : 0xFF;
        for (int i = 0; i < static_cast<int>(Werte.size()) && S + i < Oben(); ++i)
            if (Werte[static_cast<std::size_t>(i)] >= 0)
                An(S + i) = Werte[static_cast<std::size_t>(i)];
    }
};

// The window onto the image that a case plays in: its first and last 200 bytes are distinct, so
// that every shift shows.
void Bild_Bemustern()
{
    for (int i = 0; i < 400; ++i) {
        Hex_Daten[static_cast<std::size_t>(i)]          = static_cast<std::uint8_t>(i * 7 + 1);
        Hex_Daten[static_cast<std::size_t>(524288 - i)] = static_cast<std::uint8_t>(i * 5 + 3);
    }
}

Modell Abbild() { return {std::vector<int>(Hex_Daten.begin(), Hex_Daten.end())}; }

RC_GTEST_FIXTURE_PROP(Hexablage, delete_moves_the_image_as_the_model_does, ())
{
    Bild_Loeschen();
    Bild_Bemustern();
    Seite(*rc::gen::element(0, 3, 32720, 32755, 32760), 9);
    const int Letztes = static_cast<int>(Hex_Feld.size()) / 3 - 1;
    const int a       = *rc::gen::inRange(0, Letztes + 1);
    const int e       = *rc::gen::inRange(a, Letztes + 1);
    Hex_Caret(3 * a, 3 * (e - a) + 2);
    Modell m = Abbild();
    m.Loeschen(16 * Hexedit.Scroll + a, e - a + 1);
    Hexedit_Loeschen();
    RC_ASSERT(std::equal(m.b.begin(), m.b.end(), Hex_Daten.begin()));
}

std::string Ablage_Text()
{
    static constexpr std::string_view Vorrat = "0123456789ABCDEFabG \r\n\xE4.";
    return *rc::gen::container<std::string>(rc::gen::map(
        rc::gen::inRange<std::size_t>(0, Vorrat.size()), [](std::size_t i) { return Vorrat[i]; }));
}

// What the two panes make of a text: places and values, -1 for none.
std::pair<int, std::vector<int>> Gelesen(const std::string& Text, bool Hex)
{
    std::string      Rest;
    std::vector<int> Werte;
    for (const char c : Text) {
        if (c == '\r' || c == '\n' || (Hex && c == ' '))
            continue;
        Rest += c;
        if (!Hex)
            Werte.push_back(static_cast<unsigned char>(c));
    }
    for (std::size_t i = 1; Hex && i < Rest.size(); i += 2)
        Werte.push_back(Hexpaar_zu_Wert(Rest.substr(i - 1, 2)));
    return {Hex ? static_cast<int>(Werte.size()) : static_cast<int>(Text.size()), Werte};
}

RC_GTEST_FIXTURE_PROP(Hexablage, paste_moves_and_writes_as_the_model_does, ())
{
    Bild_Loeschen();
    Bild_Bemustern();
    Seite(*rc::gen::element(0, 3, 32755, 32760), 9);
    const bool Hex    = *rc::gen::arbitrary<bool>();
    Hex_Aktives_Feld  = Hex ? Feld_Hex : Feld_AscII;
    const int Letztes = static_cast<int>(Hex_Feld.size()) / 3 - 1;
    const int a       = *rc::gen::inRange(0, Letztes + 1);
    const int e       = *rc::gen::inRange(a, std::min(a + 12, Letztes + 1));
    Hex_Caret(3 * a, 3 * (e - a) + 2);
    Ablage.Inhalt               = "0" + Ablage_Text(); // an empty one changes nothing
    const auto [C, Geschrieben] = Gelesen(Ablage.Inhalt, Hex);
    Modell m                    = Abbild();
    m.Einfuegen(16 * Hexedit.Scroll + a, e == a ? 0 : e - a + 1, C, Geschrieben);
    Hexedit_Einfuegen();
    RC_ASSERT(std::equal(m.b.begin(), m.b.end(), Hex_Daten.begin()));
    RC_ASSERT(Hexedit.Hex_Auswahl.Anfang == 3 * a);
}

// --- random walks ---

void Stimmig()
{
    const Seite_T s = Hex_Seite();
    RC_ASSERT(s.Scroll >= 0 && s.Scroll <= s.Max);
    RC_ASSERT(static_cast<int>(Hex_Feld.size()) == 48 * s.Zeilen());
    RC_ASSERT(static_cast<int>(AscII_Feld.size()) == 18 * s.Zeilen());
    for (int i = 0; i < s.Bytes(); ++i) {
        const auto Paar = Hex_Feld.substr(static_cast<std::size_t>(3 * i), 2);
        RC_ASSERT(Hexpaar_zu_Wert(Paar) == Hex_Daten[static_cast<std::size_t>(16 * s.Scroll + i)]);
    }
    const Markierung_T H = Hexedit.Hex_Auswahl;
    const Markierung_T A = Hexedit.AscII_Auswahl;
    RC_ASSERT(H.Anfang >= 0 && H.Laenge >= 0 && A.Anfang >= 0 && A.Laenge >= 0);
    RC_ASSERT(H.Ende() <= std::max(1, s.Laenge(Hex_Mass)));
    RC_ASSERT(A.Ende() <= std::max(1, s.Laenge(AscII_Mass)));
    RC_ASSERT(H.Anfang % 3 != 2 && A.Anfang % 18 < 16);
}

RC_GTEST_FIXTURE_PROP(Hexablage, any_walk_of_keys_mouse_and_window_keeps_page_and_image_in_step, ())
{
    Bild_Loeschen();
    Seite(*rc::gen::element(0, 100, 32740, 32760), *rc::gen::inRange(-1, 25));
    Ablage.Inhalt    = "12 34 5";
    const auto Folge = *rc::gen::container<std::vector<std::pair<int, int>>>(
        15, rc::gen::pair(rc::gen::inRange(0, 12), rc::gen::inRange(0, 400)));
    for (const auto& [Was, Wert] : Folge) {
        const bool Hex      = Wert % 2 == 0;
        Hex_Aktives_Feld    = Hex ? Feld_Hex : Feld_AscII;
        const auto Druecken = [&](const Taste_T& t) {
            if (Hex)
                Hex_Feld_KeyDown(t);
            else if (!AscII_Feld_KeyDown(t) && t.Zeichen != 0)
                AscII_Feld_KeyPress(t.Zeichen);
        };
        if (Was < 6)
            Druecken(Taste(Taste_Bild_Auf + Wert % 8));
        else if (Was < 8)
            Druecken(Zeichen_Taste("0123456789ABCDEF x"[Wert % 18]));
        else if (Was == 8)
            Druecken(Wert % 3 == 0   ? Strg('V')
                     : Wert % 3 == 1 ? Strg('X')
                                     : Taste(Taste_Entfernen));
        else if (Was == 9) {
            (Hex ? Hexedit.Hex_Auswahl : Hexedit.AscII_Auswahl) = {Wert, Wert % 7};
            (Hex ? Hex_Feld_MouseUp : AscII_Feld_MouseUp)();
        } else if (Was == 10)
            Hexedit_Resize(Wert);
        else
            Scroll_Setzen(Hexedit.Scroll + Wert - 200);
        Stimmig();
    }
}

} // namespace
} // namespace varnholt::test
