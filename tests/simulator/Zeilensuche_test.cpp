// Which row an address belongs to, which line of the text a row is, and what of it is selected.
#include "simulator/Sitzung_Welt.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace varnholt::test {
namespace {

class Zeilensuche_Test : public Sitzung_Welt {
protected:
    // Rows with these addresses, all of the main text.
    static void Tabelle(const std::vector<std::int32_t>& Adressen)
    {
        Quell_Zeilen.clear();
        Include_Liste.clear();
        for (const std::int32_t a : Adressen)
            Quell_Zeilen.push_back(Quell_Zeile{.Adresse = a});
        Suche_Vorbereiten();
    }
    // The selection in a text of one line.
    std::string Ausgewaehlt(const std::string& Zeile)
    {
        Tabelle({0, 65536});
        Text.Text_Setzen(Zeile);
        Sim_PC = 0;
        Zeile_Anzeigen();
        return Auswahl();
    }
};

// --- rows ---

// The search as it is told, on any order of the addresses; the row of a hit.
std::optional<std::int32_t> Halbierende_Suche(std::int32_t PC)
{
    const auto Adresse = [](std::int32_t z) {
        return Quell_Zeilen.at(static_cast<std::size_t>(z)).Adresse;
    };
    std::int32_t Zeile   = Zeilen_Anzahl() / 2;
    std::int32_t Schritt = Zeile / 2;
    do {
        Zeile += Adresse(Zeile) > PC ? -Schritt : Schritt;
        Schritt /= 2;
    } while (Schritt != 0);
    while (Zeile > 0 && Adresse(Zeile) >= PC)
        --Zeile;
    for (; Zeile < Zeilen_Anzahl(); ++Zeile)
        if (Adresse(Zeile) == PC &&
            Quell_Zeilen[static_cast<std::size_t>(Zeile)].Herkunft == Herkunft_Haupttext)
            return Zeile;
    return std::nullopt;
}

TEST_F(Zeilensuche_Test, Without_rows_nothing_is_found_and_nothing_shown)
{
    Tabelle({});
    Text.Text_Setzen("NOP");
    Text.Auswaehlen(1, 1);
    EXPECT_FALSE(Zeile_Suchen());
    Zeile_Anzeigen();
    Zeile_Der_Adresse();
    EXPECT_EQ(Text.Auswahl(), (Textstelle_T{1, 1}));
    EXPECT_EQ(Zeile_Von_Editor(7), 0);
}

TEST_F(Zeilensuche_Test, The_first_row_of_an_address_is_found_and_the_last_one_shown)
{
    Tabelle({0, 0, 2, 2, 2, 3, 65536});
    Text.Text_Setzen("a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n");
    Sim_PC = 2;
    EXPECT_TRUE(Zeile_Suchen());
    EXPECT_EQ(Sim_Zeile, 2);
    Zeile_Anzeigen();
    EXPECT_EQ(Sim_Zeile, 4);
    EXPECT_EQ(Auswahl(), "e");
}

TEST_F(Zeilensuche_Test, Between_two_starts_there_is_no_hit_and_the_line_before_is_shown)
{
    Tabelle({0, 3, 65536});
    Text.Text_Setzen("a\r\nb\r\n");
    for (const std::int32_t PC : {1, 2, 4, 65535}) {
        Sim_PC = PC;
        EXPECT_FALSE(Zeile_Suchen()) << PC;
        Zeile_Anzeigen();
        EXPECT_EQ(Auswahl(), PC < 3 ? "a" : "b") << PC;
    }
}

TEST_F(Zeilensuche_Test, Rows_of_included_files_are_no_hits)
{
    Tabelle({0, 1, 1, 2, 65536});
    Quell_Zeilen[1].Herkunft = Herkunft_Prozessorfile;
    Quell_Zeilen[2].Herkunft = Herkunft_Include;
    Suche_Vorbereiten();
    Sim_PC = 1;
    EXPECT_FALSE(Zeile_Suchen());
    Quell_Zeilen[2].Herkunft = Herkunft_Haupttext;
    Suche_Vorbereiten();
    EXPECT_TRUE(Zeile_Suchen());
    EXPECT_EQ(Sim_Zeile, 2);
}

TEST_F(Zeilensuche_Test, Addresses_outside_the_table_show_its_ends)
{
    Tabelle({5, 6, 65536});
    Text.Text_Setzen("a\r\nb\r\nc");
    Sim_PC = -3;
    Zeile_Anzeigen();
    EXPECT_EQ(Auswahl(), "a");
    Sim_PC = 70000;
    Zeile_Anzeigen();
    EXPECT_EQ(Auswahl(), "c");
}

RC_GTEST_FIXTURE_PROP(Zeilensuche_Test, In_ascending_rows_every_address_finds_its_row, ())
{
    auto Adressen = *rc::gen::nonEmpty(
        rc::gen::container<std::vector<std::int32_t>>(rc::gen::inRange<std::int32_t>(0, 60)));
    std::sort(Adressen.begin(), Adressen.end());
    Adressen.push_back(65536);
    Tabelle(Adressen);
    for (Quell_Zeile& z : Quell_Zeilen)
        z.Herkunft = static_cast<std::int8_t>(*rc::gen::inRange(0, 3));
    Suche_Vorbereiten();
    for (Sim_PC = 0; Sim_PC < 62; ++Sim_PC) {
        const auto Soll = std::find_if(Quell_Zeilen.begin(), Quell_Zeilen.end(), [](const auto& z) {
            return z.Adresse == Sim_PC && z.Herkunft == Herkunft_Haupttext;
        });
        RC_ASSERT(Zeile_Suchen() == (Soll != Quell_Zeilen.end()));
        if (Soll != Quell_Zeilen.end())
            RC_ASSERT(Sim_Zeile == Soll - Quell_Zeilen.begin());
        Zeile_Der_Adresse();
        const auto Ab = std::upper_bound(Adressen.begin(), Adressen.end(), Sim_PC);
        RC_ASSERT(Sim_Zeile == std::max<std::ptrdiff_t>(Ab - Adressen.begin() - 1, 0));
    }
}

RC_GTEST_FIXTURE_PROP(Zeilensuche_Test, In_rows_of_any_order_the_search_goes_its_way, ())
{
    Tabelle(*rc::gen::nonEmpty(rc::gen::container<std::vector<std::int32_t>>(
        rc::gen::element<std::int32_t>(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 65536))));
    for (Quell_Zeile& z : Quell_Zeilen)
        z.Herkunft = static_cast<std::int8_t>(*rc::gen::inRange(0, 3));
    Suche_Vorbereiten();
    for (Sim_PC = -1; Sim_PC < 12; ++Sim_PC) {
        const auto Soll = Halbierende_Suche(Sim_PC);
        RC_ASSERT(Zeile_Suchen() == Soll.has_value());
        if (Soll)
            RC_ASSERT(Sim_Zeile == *Soll);
        Zeile_Der_Adresse();
        RC_ASSERT(Sim_Zeile >= 0);
        RC_ASSERT(Sim_Zeile < Zeilen_Anzahl());
    }
}

TEST_F(Zeilensuche_Test, A_long_way_to_the_next_line_is_quick_in_rows_of_any_order)
{
    std::vector<std::int32_t> Adressen(300000, 0x8000);
    Adressen.back() = 0x100;
    Tabelle(Adressen);
    Sim_PC = 0x101;
    Naechste_Zeile();
    EXPECT_EQ(Sim_PC, 0x8000);
}

// --- rows and lines of the text ---

TEST_F(Zeilensuche_Test, An_included_file_stands_for_its_one_line)
{
    Include_Datei("one.inc", "; one row");
    Include_Datei("five.inc", "\n\nFIVE:\nINC R5\n\n");
    ASSERT_TRUE(Beginne("; head\n" // 0
                        "INCLUDE five.inc\n"
                        "INC A\n" // 2
                        "INCLUDE 8051.mc\n"
                        "DEC A\n" // 4
                        "INCLUDE one.inc\n"
                        "CPL A\n" // 6
                        "INCLUDE five.mc\n"
                        "RL A\n") == false); // no such file
    ASSERT_TRUE(Beginne("; head\n"
                        "INCLUDE five.inc\n"
                        "INC A\n"
                        "INCLUDE 8051.mc\n"
                        "DEC A\n"
                        "INCLUDE one.inc\n"
                        "CPL A\n"));
    const std::pair<std::int32_t, const char*> Faelle[] = {
        {0, "INCLUDE five.inc"}, {1, "INC A"}, {2, "DEC A"}, {3, "CPL A"}};
    for (const auto& [PC, Code] : Faelle) {
        Sim_PC = PC;
        Zeile_Anzeigen();
        EXPECT_EQ(Auswahl(), Code);
    }
}

TEST_F(Zeilensuche_Test, The_first_row_of_an_included_file_counts_to_the_line_above)
{
    Include_Datei("code.inc", "INC A\nINC A\n");
    ASSERT_TRUE(Programm("DEC A\nINCLUDE code.inc\nSTOP\n"));
    const std::pair<std::int32_t, const char*> Faelle[] = {
        {0, "DEC A"}, {1, "DEC A"}, {2, "INCLUDE code.inc"}, {3, "STOP"}};
    for (const auto& [PC, Code] : Faelle) {
        Sim_PC = PC;
        Zeile_Anzeigen();
        EXPECT_EQ(Auswahl(), Code) << PC;
    }
}

// A line of a random text, with what the session must find there.
struct Zeile_T {
    std::string  Text{};
    std::int32_t Laenge = 0; // bytes of code
    std::string  Auswahl{};  // empty: a line without code of its own
    std::int32_t Ziel = -1;  // of an ORG
    std::int32_t Danach(std::int32_t Adresse) const { return Ziel < 0 ? Adresse + Laenge : Ziel; }
};

std::vector<Zeile_T> Zufalls_Text()
{
    const std::vector<Zeile_T> Vorrat  = {{"INC A", 1, "INC A"},
                                          {"\tMOV A,#5 ; five", 2, "MOV A,#5"},
                                          {"  LJMP (0)   ", 3, "LJMP (0)"},
                                          {"LABEL!:", 0, ""},
                                          {"LABEL!: \tNOP 'x", 1, "LABEL!: \tNOP"},
                                          {"", 0, ""},
                                          {"  \t", 0, ""},
                                          {"; only a comment", 0, ""},
                                          {"DB 1,2,3,4,5", 5, "DB 1,2,3,4,5"},
                                          {"VALUE! EQU 5", 0, ""},
                                          {"STOP", 1, "STOP"},
                                          {"ORG ", 0, "", 0},
                                          {"INCLUDE none.inc", 0, ""},
                                          {"INCLUDE code.inc", 4, "INCLUDE code.inc"},
                                          {"INCLUDE defs.inc", 0, ""},
                                          {"X!: STOP", 1, "X!: STOP"}};
    std::vector<Zeile_T>       Zeilen  = {{"INCLUDE 8051.mc", 0, ""}};
    std::int32_t               Adresse = 0;
    for (const int w : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 15))) {
        Zeile_T Neue = Vorrat[static_cast<std::size_t>(w)];
        for (std::string* t : {&Neue.Text, &Neue.Auswahl})
            if (const auto Ort = t->find('!'); Ort != std::string::npos)
                t->replace(Ort, 1, std::to_string(Zeilen.size()));
        if (Neue.Ziel == 0) {
            Neue.Ziel = Adresse + *rc::gen::inRange(3, 300); // room for stop points to come
            Neue.Text += std::to_string(Neue.Ziel);
        }
        Adresse = Neue.Danach(Adresse);
        Zeilen.push_back(Neue);
    }
    std::rotate(Zeilen.begin(), // the processor file anywhere
                Zeilen.begin() + 1,
                Zeilen.begin() + 1 +
                    static_cast<std::ptrdiff_t>(*rc::gen::inRange<std::size_t>(0, Zeilen.size())));
    return Zeilen;
}

// Every line with code is selected at its address, and the cursor in any line leads to the next
// code.
void Alle_Zeilen_Pruefen(Wach_Text& Feld, const std::vector<Zeile_T>& Zeilen)
{
    std::int32_t Adresse = 0;
    for (std::size_t i = 0; i < Zeilen.size(); ++i) {
        Feld.Auswaehlen(Feld.Zeile(static_cast<std::int64_t>(i)).Anfang, 0);
        Debug_Cursor();
        RC_ASSERT(Sim_PC == Adresse);
        const std::int64_t Gewaehlt = Feld.Zeile_Von(Feld.Auswahl().Anfang);
        if (!Zeilen[i].Auswahl.empty()) {
            RC_ASSERT(Gewaehlt == static_cast<std::int64_t>(i));
            RC_ASSERT(Feld.Auswahl_Text() == Zeilen[i].Auswahl);
        }
        Adresse = Zeilen[i].Danach(Adresse);
    }
}

std::string Als_Text(const std::vector<Zeile_T>& Zeilen)
{
    std::string Text;
    for (const Zeile_T& z : Zeilen)
        Text += z.Text + "\n";
    return Text;
}

RC_GTEST_FIXTURE_PROP(Zeilensuche_Test, Each_line_of_any_text_and_its_address_find_each_other, ())
{
    Include_Datei("none.inc", "");
    Include_Datei("defs.inc", "; three\nONE EQU 1\n");
    Include_Datei("code.inc", "\n\tMOV A,#1\n; two more\n\tINC A\n\tRET");
    std::vector<Zeile_T> Zeilen = Zufalls_Text();
    RC_ASSERT(Beginne(Als_Text(Zeilen)));
    Alle_Zeilen_Pruefen(Text, Zeilen);

    // So it stays when stop points come in, until the text is prepared anew.
    for (const auto Roh :
         *rc::gen::container<std::vector<std::size_t>>(3, rc::gen::arbitrary<std::size_t>())) {
        const std::size_t Ort = Roh % Zeilen.size();
        Text.Auswaehlen(Text.Zeile(static_cast<std::int64_t>(Ort)).Anfang, 0);
        Debug_Stoppunkt();
        Zeilen.insert(Zeilen.begin() + static_cast<std::ptrdiff_t>(Ort), {"STOP", 0, ""});
        RC_ASSERT(Text.Inhalt == Mit_CRLF(Als_Text(Zeilen)));
        Alle_Zeilen_Pruefen(Text, Zeilen);
    }
    for (Zeile_T& z : Zeilen)
        if (z.Text == "STOP")
            z = {"STOP", 1, "STOP"};
    Debug_Vorbereiten();
    Alle_Zeilen_Pruefen(Text, Zeilen);
}

// --- what of a line is selected ---

TEST_F(Zeilensuche_Test, The_code_is_selected_without_blanks_around_and_without_the_comment)
{
    EXPECT_EQ(Ausgewaehlt("NOP"), "NOP");
    EXPECT_EQ(Ausgewaehlt(" \t NOP \t "), "NOP");
    EXPECT_EQ(Ausgewaehlt("\tMOV\tA,#5 ; five"), "MOV\tA,#5");
    EXPECT_EQ(Ausgewaehlt("MOV A,#5' five ; more"), "MOV A,#5");
    EXPECT_EQ(Ausgewaehlt("LABEL: NOP;"), "LABEL: NOP");
    EXPECT_EQ(Ausgewaehlt("DB \"a;b\""), "DB \"a") << "a double quote opens no string here";
}

TEST_F(Zeilensuche_Test, Between_the_string_signs_a_comment_sign_is_none)
{
    EXPECT_EQ(Ausgewaehlt("DB \x1D"
                          "a;b'\x1D ; c"),
              "DB \x1D"
              "a;b'\x1D");
    EXPECT_EQ(Ausgewaehlt("DB \x1D"
                          "a ; b"),
              "DB \x1D"
              "a ; b");
}

TEST_F(Zeilensuche_Test, A_line_without_code_sets_only_the_start)
{
    EXPECT_EQ(Ausgewaehlt("  \t; comment"), "");
    EXPECT_EQ(Text.Auswahl(), (Textstelle_T{3, 0}));
    EXPECT_EQ(Ausgewaehlt("   "), "");
    EXPECT_EQ(Text.Auswahl(), (Textstelle_T{3, 0}));
    EXPECT_EQ(Ausgewaehlt(""), "");
    EXPECT_EQ(Text.Auswahl(), (Textstelle_T{0, 0}));
}

TEST_F(Zeilensuche_Test, The_editor_takes_the_selection_for_no_event_of_the_user)
{
    ASSERT_TRUE(Programm("INC A\nSTOP\n"));
    Text.Ungesperrte = 0;
    Debug_Schritt();
    EXPECT_EQ(Text.Ungesperrte, 0);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_FALSE(Text.Zeichnen_Steht);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_FALSE(Datei_Geaendert);
    Text_Sperre = true;
    Debug_Schritt();
    EXPECT_TRUE(Text_Sperre) << "as it was before";
}

// --- lines round the running one ---

// A control that scrolls to what is selected, no further than it must.
class Roll_Text : public Speicher_Text {
public:
    void Auswaehlen(std::int64_t Anfang, std::int64_t Laenge_Der_Auswahl) override
    {
        Speicher_Text::Auswaehlen(Anfang, Laenge_Der_Auswahl);
        const std::int64_t Hier = Zeile_Von(Anfang);
        Erste_Sichtbare         = std::clamp(Erste_Sichtbare, Hier - Hoehe + 1, Hier);
        ++Auswahlen;
    }
    bool Zeigt(std::int64_t Von, std::int64_t Bis) const
    {
        return Erste_Sichtbare <= Von && Bis < Erste_Sichtbare + Hoehe;
    }
    std::int64_t Hoehe     = 30; // lines of the view
    int          Auswahlen = 0;
};

class Sicht_Test : public Zeilensuche_Test {
protected:
    // A row and a line for each address from 0 on, of which the first one is shown.
    Sicht_Test()
    {
        Plattform.Edit = &Roll;
        std::vector<std::int32_t> Adressen(100);
        std::iota(Adressen.begin(), Adressen.end(), 0);
        std::string Zeilen;
        for (int i = 0; i < 100; ++i)
            Zeilen += "NOP\r\n";
        Roll.Text_Setzen(Zeilen);
        Tabelle(Adressen);
        Zeigen(0);
    }
    // How many selections it took.
    int Zeigen(std::int32_t Adresse)
    {
        Roll.Auswahlen = 0;
        Sim_PC         = Adresse;
        Zeile_Anzeigen();
        EXPECT_EQ(Roll.Auswahl(), (Textstelle_T{5 * Adresse, 3}));
        EXPECT_TRUE(Roll.Zeigt(Adresse, Adresse));
        return Roll.Auswahlen;
    }
    Roll_Text Roll{};
};

TEST_F(Sicht_Test, Four_lines_on_each_side_come_into_sight_once)
{
    EXPECT_EQ(Zeigen(50), 3);
    EXPECT_TRUE(Roll.Zeigt(46, 54));
    EXPECT_EQ(Zeigen(50), 1);
    EXPECT_EQ(Zeigen(49), 1);
    EXPECT_EQ(Zeigen(51), 3);
    EXPECT_TRUE(Roll.Zeigt(47, 55));
    EXPECT_EQ(Zeigen(20), 3);
    EXPECT_TRUE(Roll.Zeigt(16, 24));
    Roll.Erste_Sichtbare = 60; // the user scrolls
    EXPECT_EQ(Zeigen(20), 3);
    EXPECT_TRUE(Roll.Zeigt(16, 24));
}

TEST_F(Sicht_Test, In_a_view_of_less_than_five_lines_only_the_running_one_is_selected)
{
    for (const int Hoehe : {1, 2, 4}) {
        Roll.Hoehe = Hoehe;
        Zeigen(10);
        for (const int Adresse : {10, 11, 12, 60, 60, 5, 0, 99, 98})
            EXPECT_EQ(Zeigen(Adresse), 1) << Hoehe << " " << Adresse;
        Sitzung.Enge_Sicht = false;
    }
    Roll.Hoehe = 5;
    EXPECT_EQ(Zeigen(40), 3);
    EXPECT_EQ(Zeigen(40), 1);
    EXPECT_EQ(Zeigen(41), 3) << "it has room for the lines above";
    EXPECT_TRUE(Roll.Zeigt(37, 41));
}

TEST_F(Sicht_Test, A_view_that_grows_shows_the_lines_around_again)
{
    Roll.Hoehe = 3;
    Zeigen(50);
    ASSERT_EQ(Zeigen(51), 1);
    Roll.Hoehe = 20;
    for (int i = 52; i < 58; ++i)
        Zeigen(i);
    EXPECT_TRUE(Roll.Zeigt(53, 61));
    Roll.Hoehe = 3;
    Zeigen(20);
    Roll.Hoehe = 20;
    Zeigen(80); // far down: at the lower edge
    Zeigen(81);
    EXPECT_TRUE(Roll.Zeigt(77, 85));
}

TEST_F(Zeilensuche_Test, A_session_takes_nothing_for_shown_that_one_before_has_shown)
{
    Sitzung.Oberste_Gezeigt  = 0;
    Sitzung.Unterste_Gezeigt = 1000;
    Sitzung.Enge_Sicht       = true;
    ASSERT_TRUE(Programm("INC A\nSTOP\n"));
    EXPECT_FALSE(Sitzung.Enge_Sicht);
    EXPECT_EQ(Sitzung.Unterste_Gezeigt, 3);
}

// --- the next line ---

TEST_F(Zeilensuche_Test, The_next_line_is_looked_for_instruction_by_instruction)
{
    Tabelle({0, 3, 65536});
    Hex_Daten[0] = 0x75; // MOV direct,#: three bytes
    Sim_PC       = 0;
    Naechste_Zeile();
    EXPECT_EQ(Sim_PC, 0) << "already there";
    Hex_Daten[1] = 0x74; // MOV A,#: two bytes
    Sim_PC       = 1;
    Naechste_Zeile();
    EXPECT_EQ(Sim_PC, 3);
    Sim_PC = 4;
    Naechste_Zeile();
    EXPECT_EQ(Sim_PC, 0) << "behind 65535";
}

} // namespace
} // namespace varnholt::test
