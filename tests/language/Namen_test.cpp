// Names of EQU, BIT, DATA and CONST: how they are defined and found, their bits, and which kind of
// name an instruction refuses.
#include "language/Meldungs_Texte.h"
#include "language/Namen.h"
#include "language/Opcode_Tafel.h"

#include <rapidcheck/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

Text_Paar Bit_Statt_Byte(const std::string& Name)
{
    return {"Dieser Befehl ist speziell zum Ansprechen von Bytes vorgesehen, die Bezeichnung " +
                Name + " ist aber als Bit definiert.",
            "This instruction will work with bytes, but the name " + Name + " is declared as bit."};
}

Text_Paar Byte_Statt_Bit(const std::string& Name)
{
    return {"Dieser Befehl ist speziell zum Ansprechen von Bits vorgesehen, die Bezeichnung " +
                Name + " ist aber als Byte definiert.",
            "This instruction will work with bits, but the name " + Name + " is declared as byte."};
}

class Namen_Welt : public Assembler_Welt {
protected:
    // Assembles definitions; the entry of that number, counted from 1.
    Namen_Eintrag Eintrag(const std::string& Text, std::size_t Nummer = 1)
    {
        const std::string Ergebnis = Assembliere(Text);
        EXPECT_EQ(Assembler_Fehler, 0) << Text << ": " << Ergebnis;
        return Nummer <= Namen_Tabelle.size() ? Namen_Tabelle[Nummer - 1] : Namen_Eintrag{};
    }
    void Erwarte(const std::vector<std::pair<std::string, std::string>>& Faelle)
    {
        for (const auto& [Text, Ergebnis] : Faelle)
            EXPECT_EQ(Assembliere(Text), Ergebnis) << Text;
    }
};

// --- definitions ------------------------------------------------------------------------------

TEST_F(Namen_Welt, stores_name_value_length_and_kind)
{
    const struct {
        const char* Text;
        const char* Name;
        int         Wert;
        int         Art;
    } Faelle[] = {
        {"FOO EQU 12", "FOO", 12, Name_Einfach},
        {"foo equ 12h", "FOO", 18, Name_Einfach},
        {"Bar BIT 97h", "BAR", 0x97, Name_Bit},
        {"REG DATA 0E0h", "REG", 0xE0, Name_Byte},
        {"X EQU 99999999", "X", 99999999, 0},
        {"X DATA 300", "X", 300, Name_Byte},
        {"X BIT 1000", "X", 1000, Name_Bit},
        {"X EQU \"A\"", "X", 65, Name_Einfach},
        {"X EQU 2+3*4", "X", 20, Name_Einfach},
        {"MY NAME EQU 5", "MYNAME", 5, Name_Einfach},
    };
    for (const auto& f : Faelle) {
        const Namen_Eintrag e = Eintrag(f.Text);
        EXPECT_EQ(e.Name, f.Name) << f.Text;
        EXPECT_EQ(e.Wert, f.Wert) << f.Text;
        EXPECT_EQ(e.Laenge, static_cast<int>(std::string_view(f.Name).size())) << f.Text;
        EXPECT_EQ(e.Art, f.Art) << f.Text;
        EXPECT_EQ(e.Herkunft, 0) << f.Text;
        EXPECT_EQ(Namen_Anzahl(), 1) << f.Text;
        EXPECT_EQ(Code_Ende, 0) << f.Text;
        EXPECT_EQ(Befehl_Zaehler, 0) << f.Text;
    }
}

TEST_F(Namen_Welt, allows_the_keywords_inside_a_name)
{
    const std::pair<const char*, const char*> Faelle[] = {
        {"EQUIP EQU 5", "EQUIP"},
        {"XEQU EQU 5", "XEQU"},
        {"XEQUY EQU 5", "XEQUY"},
        {"ABITX BIT 5", "ABITX"},
        {"SEQU BIT 5", "SEQU"},
        {"BIT EQU 5", "BIT"},
        {"DATA EQU 5", "DATA"},
        {"DATA1 DATA 5", "DATA1"},
        {"XDATA DATA 5", "XDATA"},
        {"MYDATA EQU 5", "MYDATA"},
        {"BITS DATA 5", "BITS"},
    };
    for (const auto& [Text, Name] : Faelle)
        EXPECT_EQ(Eintrag(Text).Name, Name) << Text;
}

TEST_F(Namen_Welt, finds_no_definition_when_text_stands_behind_the_keyword)
{
    Erwarte({{"X EQU FOO", Ohne_Prozessor.E},
             {"X BIT Y", Ohne_Prozessor.E},
             {"X DATA #", Ohne_Prozessor.E},
             {"X EQU -5", Ohne_Prozessor.E},
             {"EQU 5", Ohne_Prozessor.E},
             {"BIT 5", Ohne_Prozessor.E},
             {"DATA 5", Ohne_Prozessor.E}});
    EXPECT_EQ(Namen_Anzahl(), 0);
}

TEST_F(Namen_Welt, takes_the_value_of_the_last_line_for_a_definition_without_one)
{
    Erwarte({{"MOV A,#7\nX EQU\nMOV A,#X", "74 07 74 07"}, {"DB 5,6\nX DATA\nDB X", "05 06 05"}});
}

TEST_F(Namen_Welt, gives_an_EQU_name_the_kind_of_the_name_in_its_value)
{
    const std::pair<const char*, int> Faelle[] = {
        {"Q EQU 5", Name_Einfach},
        {"Q EQU BY", Name_Byte},
        {"Q EQU BI", Name_Bit},
        {"Q EQU PL", Name_Einfach},
        {"Q EQU BY.3", Name_Bit},
        {"Q EQU PL.3", Name_Bit},
        {"Q EQU BY+1", Name_Byte},
        {"Q EQU 5+BY", Name_Byte},
        {"Q EQU PL+BY", Name_Einfach},
        {"Q EQU BY+PL", Name_Byte},
        {"Q EQU PL+BY.1", Name_Einfach},
        {"Q DATA BI", Name_Byte},
        {"Q BIT BY", Name_Bit},
    };
    for (const auto& [Text, Art] : Faelle) {
        const auto e = Eintrag("PL EQU 33\nBI BIT 8\nBY DATA 80h\n" + std::string(Text), 4);
        EXPECT_EQ(e.Name, "Q") << Text;
        EXPECT_EQ(e.Art, Art) << Text;
    }
    EXPECT_EQ(Eintrag("P1 DATA 90h\nLED EQU P1.3", 3).Wert, 0x93);
}

TEST_F(Namen_Welt, keeps_a_second_definition_and_finds_the_first)
{
    EXPECT_EQ(Assembliere("X EQU 1\nX EQU 2\nDB X"), "01");
    ASSERT_EQ(Namen_Anzahl(), 2);
    EXPECT_EQ(Namen_Tabelle[1].Wert, 2);
}

TEST_F(Namen_Welt, uses_names_defined_above_in_a_definition)
{
    Erwarte({{"A1 EQU 3\nB1 EQU A1*2\nDB B1", "06"}, {"B1 EQU A1\nA1 EQU 3", Ohne_Prozessor.E}});
}

TEST_F(Namen_Welt, enters_a_PORT_name_before_the_name_of_a_port)
{
    for (int n = 0; n < 10; ++n) {
        const std::string P = "P" + std::to_string(n);
        ASSERT_EQ(Assembliere(P + " DATA 90h"), "");
        ASSERT_EQ(Namen_Anzahl(), 2);
        EXPECT_EQ(Namen_Tabelle[0].Name, "PORT" + std::to_string(n));
        EXPECT_EQ(Namen_Tabelle[0].Wert, 0x90);
        EXPECT_EQ(Namen_Tabelle[0].Laenge, 5);
        EXPECT_EQ(Namen_Tabelle[0].Art, Name_Byte);
        EXPECT_EQ(Namen_Tabelle[0].Herkunft, 0);
        EXPECT_EQ(Namen_Tabelle[1].Name, P);
    }
    Erwarte({{"P1 DATA 90h\nMOV PORT1,A\nSETB PORT1.3", "F5 90 D2 93"}});
}

TEST_F(Namen_Welt, enters_a_PORT_name_for_DATA_and_a_single_digit_only)
{
    for (const char* Text :
         {"P1 EQU 90h", "P1 BIT 90h", "P10 DATA 90h", "PA DATA 90h", "P DATA 90h"}) {
        Laufen(Text);
        EXPECT_EQ(Namen_Anzahl(), 1) << Text;
    }
}

TEST_F(Namen_Welt, enters_the_PORT_name_also_when_the_name_goes_on_behind_the_keyword)
{
    ASSERT_EQ(Assembliere("P1DATAX DATA 5"), "");
    ASSERT_EQ(Namen_Anzahl(), 2);
    EXPECT_EQ(Namen_Tabelle[0].Name, "PORT1");
    EXPECT_EQ(Namen_Tabelle[0].Wert, 5);
    EXPECT_EQ(Namen_Tabelle[1].Name, "P1DATAX");
}

TEST_F(Namen_Welt, keeps_where_a_definition_comes_from)
{
    const Arbeitsordner Ordner;
    Ordner.Anlegen("defs.inc", "X EQU 5\r\n");
    Ordner.Anlegen("chip.mc", "P1 DATA 90h\r\n");
    Datei_Name = (Ordner.Pfad / "a.asm").string();
    ASSERT_EQ(Assembliere("INCLUDE defs.inc\nINCLUDE chip.mc\nY EQU 6"), "");
    ASSERT_EQ(Namen_Anzahl(), 4);
    const std::pair<const char*, int> Soll[] = {{"X", 2}, {"PORT1", 0}, {"P1", 1}, {"Y", 0}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(Namen_Tabelle[i].Name, Soll[i].first);
        EXPECT_EQ(Namen_Tabelle[i].Herkunft, Soll[i].second) << Soll[i].first;
    }
}

TEST_F(Namen_Welt, starts_each_run_without_names)
{
    Laufen("X EQU 5");
    EXPECT_EQ(Assembliere("DB X"), "");
    EXPECT_EQ(Namen_Anzahl(), 0);
}

TEST_F(Namen_Welt, leaves_the_names_after_the_run)
{
    Laufen("X EQU 5\nNOP");
    EXPECT_EQ(Namen_Index("X"), 0);
    EXPECT_EQ(Namen_Index("Y"), -1);
}

TEST_F(Namen_Welt, takes_a_label_in_front_of_a_definition)
{
    Erwarte({{"NOP\nHERE: X EQU 7\nDB X\nSJMP HERE", "00 07 80 FD"}});
}

TEST_F(Namen_Welt, takes_5000_names_and_no_more)
{
    std::string Text;
    for (int i = 0; i < 5000; ++i)
        Text += "N" + std::to_string(i) + "X EQU 5\n";
    EXPECT_EQ(Assembliere(Text + "DB N4999X"), "05");
    EXPECT_EQ(Namen_Anzahl(), 5000);
    Erwarte_Fehler(Text + "Y EQU 5",
                   "Es sind höchstens 5000 Namen möglich !",
                   "No more than 5000 names are possible !");
    EXPECT_EQ(Assembliere(Text + "CONST Y=5"), "No more than 5000 names are possible !");
}

// --- CONST ------------------------------------------------------------------------------------

TEST_F(Namen_Welt, stores_a_CONST_as_typed_and_unconverted)
{
    const struct {
        const char *Text, *Name, *Wert;
    } Faelle[] = {
        {"CONST Foo=1A bar", "Foo", "1A bar"},
        {"const A=b=c", "A", "b=c"},
        {"CONST x = 5", "x ", " 5"},
        {"CONST N=", "N", ""},
        {"CONST N=5 ; comment", "N", "5"},
        {"Const N=\"a;b\"", "N", "\"a;b\""},
        {"LABEL: CONST N=99999999999", "N", "99999999999"},
    };
    for (const auto& f : Faelle) {
        const Namen_Eintrag e = Eintrag(f.Text);
        EXPECT_EQ(e.Name, f.Name) << f.Text;
        EXPECT_EQ(e.Const_Text, f.Wert) << f.Text;
        EXPECT_EQ(e.Laenge, 0) << f.Text;
        EXPECT_EQ(Namen_Anzahl(), 1) << f.Text;
        EXPECT_EQ(Code_Ende, 0) << f.Text;
    }
}

TEST_F(Namen_Welt, never_finds_a_CONST)
{
    Erwarte({{"CONST X=5\nMOV A,#X", Ohne_Prozessor.E}, {"CONST X=5\nX EQU 6\nDB X", "06"}});
}

TEST_F(Namen_Welt, takes_a_CONST_without_equals_as_a_line_without_an_entry)
{
    Erwarte({{"CONST FOO\nNOP", "00"}, {"CONST\nNOP", "00"}});
    EXPECT_EQ(Namen_Anzahl(), 0);
}

// --- search and bits --------------------------------------------------------------------------

TEST_F(Namen_Welt, finds_a_name_in_any_case_and_before_a_number)
{
    Zahlendeutung = true;
    Erwarte({{"AB EQU 5\nDB AB,ab,Ab,0AB", "05 05 05 AB"}, {"10 EQU 7\nDB 10", "07"}});
    Zahlendeutung = false;
    Erwarte({{"10 EQU 7\nDB 10,11", "07 0B"}, {"12H EQU 3\nMOV A,#12h", "74 03"}});
}

TEST_F(Namen_Welt, knows_a_name_only_below_its_definition)
{
    Erwarte({{"MOV A,#FOO\nFOO EQU 5", Ohne_Prozessor.E}, {"SJMP FOO\nFOO EQU 5", Marke_Fehlt.E}});
}

TEST_F(Namen_Welt, adds_a_bit_number_to_a_byte_address)
{
    Erwarte({{"ACC DATA 0E0h\nSETB ACC.7", "D2 E7"},
             {"P1 DATA 90h\nDB P1.0,P1.1,P1.2,P1.3,P1.4,P1.5,P1.6,P1.7", "90 91 92 93 94 95 96 97"},
             {"X EQU 1Fh\nDB X.1", "20"},
             {"X EQU 30h\nDB X.3", "33"},
             {"X EQU 0\nDB X.5", "05"}});
}

TEST_F(Namen_Welt, maps_the_bit_addressable_memory_to_its_bits)
{
    for (int Adresse = 0x20; Adresse <= 0x2F; ++Adresse)
        for (int Bit = 0; Bit < 10; ++Bit) {
            const std::string Text = "F DATA 0" + Hex2(Adresse) + "h\nDB F." + std::to_string(Bit);
            EXPECT_EQ(Assembliere(Text), Hex2((Adresse - 0x20) * 8 + Bit)) << Text;
        }
}

TEST_F(Namen_Welt, does_not_check_a_bit_number_of_8_or_9)
{
    Erwarte({{"P1 DATA 90h\nDB P1.8,P1.9", "98 99"}});
}

TEST_F(Namen_Welt, takes_a_single_digit_as_a_bit_number_only)
{
    Erwarte({{"P1 DATA 90h\nMOV A,P1.10", Ohne_Prozessor.E},
             {"P1 DATA 90h\nMOV A,P1.", Ohne_Prozessor.E},
             {"P1 DATA 90h\nMOV C,P1.X", Ohne_Prozessor.E},
             {"P1.1 EQU 5\nMOV A,#P1.1", Ohne_Prozessor.E}});
}

TEST_F(Namen_Welt, knows_the_bits_of_the_accumulator_without_a_definition)
{
    for (int Bit = 0; Bit < 8; ++Bit) {
        const std::string b = std::to_string(Bit);
        Erwarte({{"SETB A." + b, "D2 " + Hex2(0xE0 + Bit)},
                 {"MOV a." + b + ",C", "92 " + Hex2(0xE0 + Bit)},
                 {"JB A." + b + ",$", "20 " + Hex2(0xE0 + Bit) + " FD"}});
    }
    Erwarte({{"SETB A.8", Ohne_Prozessor.E}, {"SETB A.9", Ohne_Prozessor.E}});
}

TEST_F(Namen_Welt, lets_a_name_A_decide_bits_8_and_9_only)
{
    Erwarte({{"A EQU 10h\nDB A.0", "E0"}, {"A EQU 10h\nDB A.8,A.9", "18 19"}});
}

// --- kinds ------------------------------------------------------------------------------------

// Names of each kind, defined ahead of a line.
const std::string Drei_Arten = "PL EQU 33\nBI BIT 5\nBY DATA 30h\n";

// The opcode's text with a name at one of its operands and numbers at the others.
std::vector<std::string> Mit_Name(const Tafel_Eintrag& e, const std::string& Name)
{
    std::vector<std::string> Texte;
    if (e.Text.find("!!") != std::string::npos)
        return {Ersetzt(e.Text, "!!", e.Opcode == 0x90 ? Name : "(" + Name + ")")};
    for (std::size_t p = e.Text.find('!'); p != std::string::npos; p = e.Text.find('!', p + 1)) {
        std::string Text = e.Text;
        Text.replace(p, 1, Name);
        Texte.push_back(Ersetzt(Text, "!", "1"));
    }
    return Texte;
}

TEST_F(Namen_Welt, refuses_in_each_opcode_the_kind_of_name_that_it_forbids)
{
    for (const Tafel_Eintrag& e : Opcode_Tafel())
        for (const auto& [Name, Art] : {std::pair{"PL", 0}, {"BI", 1}, {"BY", 8}, {"PL.1", 1}})
            for (const std::string& Text : Mit_Name(e, Name)) {
                const std::string Ergebnis = Assembliere(Drei_Arten + Text);
                if (Art != e.Art)
                    EXPECT_EQ(Assembler_Fehler, 0) << Text << ": " << Ergebnis;
                else
                    EXPECT_EQ(Ergebnis,
                              Art == 1 ? Bit_Statt_Byte(std::string(Name, 2)).E
                                       : Byte_Statt_Bit("BY").E)
                        << Text;
            }
}

TEST_F(Namen_Welt, tells_a_wrong_kind_in_both_languages)
{
    for (const auto& [Text, Meldung] : {std::pair{"MOV A,BI", Bit_Statt_Byte("BI")},
                                        {"MOV A,BY.1", Bit_Statt_Byte("BY")},
                                        {"MOV A,PL.1", Bit_Statt_Byte("PL")},
                                        {"SETB BY", Byte_Statt_Bit("BY")}})
        Erwarte_Fehler(Drei_Arten + Text, Meldung.D, Meldung.E);
}

TEST_F(Namen_Welt, names_the_first_name_though_the_second_is_the_bit)
{
    for (const char* Text : {"MOV BY,BI", "MOV BY,#BI", "CJNE A,BY,BI", "DJNZ BY,BI"})
        EXPECT_EQ(Assembliere(Drei_Arten + Text), Bit_Statt_Byte("BY").E) << Text;
}

TEST_F(Namen_Welt, names_the_first_name_that_is_a_byte)
{
    Erwarte({{Drei_Arten + "JB BI,BY", Byte_Statt_Bit("BY").E},
             {Drei_Arten + "JB BY,BI", Byte_Statt_Bit("BY").E},
             {Drei_Arten + "B2 DATA 31h\nJB BY.1,B2", Byte_Statt_Bit("BY").E},
             {Drei_Arten + "B2 DATA 31h\nJB PL,B2", Byte_Statt_Bit("B2").E}});
}

TEST_F(Namen_Welt, looks_at_the_first_two_names_only)
{
    EXPECT_EQ(Assembliere(Drei_Arten + "MOV A,#PL+PL+BI"), "74 47");
    EXPECT_EQ(Assembliere(Drei_Arten + "MOV A,#PL+BI"), Bit_Statt_Byte("PL").E);
}

TEST_F(Namen_Welt, asks_nothing_of_the_kind_in_data_lines_and_of_accumulator_bits)
{
    Erwarte({{Drei_Arten + "DB BI,BY,PL,BY.1", "05 30 21 31"}, {"INC A.3", "05 E3"}});
}

TEST_F(Namen_Welt, checks_the_kind_in_an_assignment)
{
    Erwarte({{Drei_Arten + "BY=A", "F5 30"}, {Drei_Arten + "BI=A", Bit_Statt_Byte("BI").E}});
}

TEST_F(Namen_Welt, shows_a_name_with_umlauts_readably)
{
    // Source texts are Windows-1252, messages UTF-8.
    Erwarte_Fehler("gr\xF6\xDF"
                   "e BIT 5\nMOV A,Gr\xF6\xDF"
                   "e",
                   Bit_Statt_Byte("GRÖßE").D,
                   Bit_Statt_Byte("GRÖßE").E);
}

// --- random -----------------------------------------------------------------------------------

RC_GTEST_FIXTURE_PROP(Namen_Welt, finds_the_first_of_random_names, ())
{
    const auto       Werte = *rc::gen::container<std::vector<int>>(40, rc::gen::inRange(0, 256));
    std::string      Text, Bytes;
    std::vector<int> Erste(10, -1);
    for (const int Wert : Werte) {
        const auto        Nummer = static_cast<std::size_t>(*rc::gen::inRange(0, 10));
        const std::string Name   = "NAME" + std::to_string(Nummer);
        Erste[Nummer]            = Erste[Nummer] < 0 ? Wert : Erste[Nummer];
        Text += Name + " EQU " + std::to_string(Wert) + "\nDB " + Name + "\n";
        Bytes += (Bytes.empty() ? "" : " ") + Hex2(Erste[Nummer]);
    }
    RC_ASSERT(Assembliere(Text) == Bytes);
}

} // namespace
} // namespace varnholt::test
