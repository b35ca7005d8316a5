// The texts of the reference windows against a table of the tests' own, and the shipped files
// against the tables of the assembler.
#include "language/Nachschlage_Texte.h"

#include "language/Basic_Formen.h"
#include "language/Befehls_Beschreibung.h"
#include "language/Opcode_Tafel.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace varnholt::test {
namespace {

std::vector<std::string> Zeilen(const std::string& Text)
{
    std::vector<std::string> Liste;
    std::istringstream       Strom(Text);
    for (std::string z; std::getline(Strom, z);) {
        EXPECT_TRUE(z.ends_with('\r')) << z;
        Liste.push_back(z.substr(0, z.size() - 1));
    }
    return Liste;
}

std::string Geliefert(const char* Name)
{
    std::ifstream Datei(std::string(VARNHOLT_ERZEUGT) + "/" + Name, std::ios::binary);
    EXPECT_TRUE(Datei) << Name;
    return {std::istreambuf_iterator<char>(Datei), {}};
}

// Operand bytes without their names: the template as the tests know it.
std::string Ohne_Namen(std::string Text)
{
    for (const char* Name : {"data16", "addr16"})
        Text = Ersetzt(Text, Name, "!!");
    for (const char* Name : {"data", "direct", "bit", "rel"})
        Text = Ersetzt(Text, Name, "!");
    return Text;
}

// --- befehle.dok ---------------------------------------------------------------------------------

TEST(Befehle_Dok, has_256_groups_of_4_lines) { EXPECT_EQ(Zeilen(Befehle_Dok()).size(), 1024u); }

TEST(Befehle_Dok, tells_each_opcode_its_instruction_and_its_length)
{
    const auto z = Zeilen(Befehle_Dok());
    ASSERT_EQ(z.size(), 1024u);
    for (const Tafel_Eintrag& e : Opcode_Tafel()) {
        const auto i = 4 * static_cast<std::size_t>(e.Opcode);
        EXPECT_EQ(z[i], Hex2(e.Opcode));
        EXPECT_EQ(z[i + 2], std::to_string(e.Laenge)) << z[i];
        if (e.Opcode == 0xA5)
            EXPECT_EQ(z[i + 1], "STOP");
        else if (e.Text.starts_with("AJMP") || e.Text.starts_with("ACALL"))
            EXPECT_EQ(z[i + 1],
                      e.Text.substr(0, e.Text.find(' ')) + " addr11 (" +
                          std::to_string(e.Opcode >> 5) + "xxh)");
        else
            EXPECT_EQ(Ohne_Namen(z[i + 1]), e.Text);
    }
}

TEST(Befehle_Dok, names_the_operands_by_what_they_are)
{
    const auto z    = Zeilen(Befehle_Dok());
    const auto Text = [&](std::size_t Opcode) { return z.at(4 * Opcode + 1); };
    EXPECT_EQ(Text(0x02), "LJMP addr16");
    EXPECT_EQ(Text(0x10), "JBC bit,rel");
    EXPECT_EQ(Text(0x43), "ORL direct,#data");
    EXPECT_EQ(Text(0x61), "AJMP addr11 (3xxh)");
    EXPECT_EQ(Text(0x72), "ORL C,bit");
    EXPECT_EQ(Text(0x80), "SJMP rel");
    EXPECT_EQ(Text(0x85), "MOV direct,direct");
    EXPECT_EQ(Text(0x90), "MOV DPTR,#data16");
    EXPECT_EQ(Text(0x92), "MOV bit,C");
    EXPECT_EQ(Text(0xB0), "ANL C,/bit");
    EXPECT_EQ(Text(0xB5), "CJNE A,direct,rel");
    EXPECT_EQ(Text(0xBF), "CJNE R7,#data,rel");
    EXPECT_EQ(Text(0xD5), "DJNZ direct,rel");
    EXPECT_EQ(Text(0xF6), "MOV @R0,A");
}

TEST(Befehle_Dok, tells_the_cycles_that_the_simulator_counts)
{
    const auto z      = Zeilen(Befehle_Dok());
    const auto Zyklen = [&](std::size_t Opcode) { return z.at(4 * Opcode + 3); };
    EXPECT_EQ(Zyklen(0x00), "1");
    EXPECT_EQ(Zyklen(0x84), "4");
    EXPECT_EQ(Zyklen(0xA4), "4");
    EXPECT_EQ(Zyklen(0x12), "2");
    EXPECT_EQ(Zyklen(0xA3), "1");
    EXPECT_EQ(Zyklen(0xA5), "0");
}

TEST(Befehle_Dok, no_two_opcodes_look_alike_but_for_their_page)
{
    std::set<std::string> Texte;
    const auto            z = Zeilen(Befehle_Dok());
    for (std::size_t i = 1; i < z.size(); i += 4)
        Texte.insert(z[i]);
    EXPECT_EQ(Texte.size(), 256u);
}

// --- basic.dok -----------------------------------------------------------------------------------

TEST(Basic_Dok, has_groups_of_3_lines_one_for_each_statement)
{
    const auto z = Zeilen(Basic_Dok());
    EXPECT_EQ(z.size() % 3, 0u);
    EXPECT_EQ(z.size() / 3, Alle_Anweisungen().size());
    // 28 tests as a block and on one line, ELSE, END IF, three loops and their ends, assignments
    EXPECT_EQ(z.size() / 3, 2 * 28u + 2 + 3 + 3 + 8);
}

// Groups by their statement.
class Anweisungen : public ::testing::Test {
protected:
    std::string Zu(const std::string& Typ) const
    {
        const auto z = Zeilen(Basic_Dok());
        for (std::size_t i = 0; i + 2 < z.size(); i += 3)
            if (z[i] == Typ)
                return z[i + 1] + " " + z[i + 2];
        return "<missing>";
    }
};

TEST_F(Anweisungen, spell_their_forms_as_a_source_text_does)
{
    EXPECT_EQ(IF_Schreibweise("IFA=#THEN"), "IF A=#v THEN");
    EXPECT_EQ(IF_Schreibweise("IFA<>THEN"), "IF A<>d THEN");
    EXPECT_EQ(IF_Schreibweise("IFRn<>#THEN"), "IF Rn<>#v THEN");
    EXPECT_EQ(IF_Schreibweise("IFRn>THEN"), "IF Rn>d THEN");
    EXPECT_EQ(IF_Schreibweise("IF<#THEN"), "IF d<#v THEN");
    EXPECT_EQ(IF_Schreibweise("IF=THEN"), "IF d=e THEN");
    EXPECT_EQ(IF_Schreibweise("IFBITTHEN"), "IF BIT b THEN");
    EXPECT_EQ(IF_Schreibweise("IFNOTBITTHEN"), "IF NOT BIT b THEN");
    EXPECT_EQ(IF_Schreibweise("IFBITCTHEN"), "IF BIT C THEN");
    EXPECT_EQ(IF_Schreibweise("IFNOTBITCTHEN"), "IF NOT BIT C THEN");
}

// Counted by hand from the bytes: the cycles of both ways through the test.
TEST_F(Anweisungen, tell_bytes_and_cycles)
{
    EXPECT_EQ(Zu("IF A=#v THEN"), "8 4");       // CJNE 2, SJMP 2 or LJMP 2
    EXPECT_EQ(Zu("IF A=#v THEN x"), "3 2");     // CJNE 2
    EXPECT_EQ(Zu("IF A<>#v THEN"), "6 2-4");    // CJNE 2, LJMP 2
    EXPECT_EQ(Zu("IF A<#v THEN"), "12 8-10");   // PUSH 2, CLR 1, SUBB 1, POP 2, JC 2, LJMP 2
    EXPECT_EQ(Zu("IF A<#v THEN x"), "9 8");     // ... JNC 2
    EXPECT_EQ(Zu("IF Rn<>d THEN"), "13 7-9");   // PUSH 2, MOV 1, CJNE 2, POP 2, LJMP 2
    EXPECT_EQ(Zu("IF Rn<>d THEN x"), "12 7-9"); // the POP behind the skip counts
    EXPECT_EQ(Zu("IF d=#v THEN"), "16 9");      // PUSH 2, MOV 1, CJNE 2, POP 2, SJMP or LJMP 2
    EXPECT_EQ(Zu("IF BIT C THEN"), "7 4");
    EXPECT_EQ(Zu("IF NOT BIT b THEN x"), "3 2");
    EXPECT_EQ(Zu("ELSE"), "3 2");
    EXPECT_EQ(Zu("END IF"), "0 0");
    EXPECT_EQ(Zu("FOR d=#v TO #w"), "3 2");
    EXPECT_EQ(Zu("NEXT (A)"), "10 5");
    EXPECT_EQ(Zu("NEXT (d)"), "20 10");
    EXPECT_EQ(Zu("A=Rn"), "1 1");
    EXPECT_EQ(Zu("d=e"), "3 2");
    EXPECT_EQ(Zu("Rn=d"), "2 2");
}

// Every statement, with values for its letters, assembles to as many bytes as the table says.
class Anweisungs_Welt : public Assembler_Welt {
protected:
    static std::string Mit_Werten(std::string Text)
    {
        if (Text.starts_with("NEXT"))
            return "NEXT";
        for (const auto& [Alt, Neu] : {std::pair{"=#v TO #w", "=#1 TO #9"},
                                       {"#v", "#5"},
                                       {"Rn", "R3"},
                                       {"=d", "=30h"},
                                       {"=e", "=31h"},
                                       {">d", ">30h"},
                                       {"<d", "<30h"},
                                       {">e", ">31h"},
                                       {"<e", "<31h"},
                                       {"BIT b", "BIT 7"},
                                       {" d", " 30h"},
                                       {" x", ""}})
            Text = Ersetzt(Text, Alt, Neu);
        return Text.starts_with("d=") ? "30h" + Text.substr(1) : Text;
    }
    int Bytes(const std::string& Text)
    {
        const std::string Ergebnis = Assembliere(Text);
        EXPECT_NE(Assembler_Fehler, 1) << Text << Ergebnis;
        return Ergebnis.empty() ? 0 : static_cast<int>((Ergebnis.size() + 1) / 3);
    }
};

TEST_F(Anweisungs_Welt, assemble_to_as_many_bytes_as_the_table_says)
{
    for (const Anweisung_T& a : Alle_Anweisungen()) {
        const std::string Text = Mit_Werten(a.Schreibweise);
        const bool        IF   = Text.starts_with("IF");
        if (Text.starts_with("FOR") || Text == "NEXT" || Text == "ELSE" || Text == "END IF")
            continue; // only in pairs
        const bool        Mit_Rest = IF && a.Schreibweise.ends_with(" x");
        const std::string Dahinter = Mit_Rest ? " NOP" : IF ? "\nEND IF" : "";
        EXPECT_EQ(Bytes(Text + Dahinter), a.Bytes + (Mit_Rest ? 1 : 0)) << Text;
    }
    EXPECT_EQ(Bytes("IF A=#5 THEN\nELSE\nEND IF"), 8 + 3);
    EXPECT_EQ(Bytes("FOR A=#1 TO #9\nNEXT"), 2 + 10);
    EXPECT_EQ(Bytes("FOR R3=#1 TO #9\nNEXT"), 2 + 10);
    EXPECT_EQ(Bytes("FOR 30h=#1 TO #9\nNEXT"), 3 + 20);
}

// --- the shipped files ---------------------------------------------------------------------------

TEST(Gelieferte_Dateien, equal_what_the_tables_say)
{
    EXPECT_EQ(Geliefert("befehle.dok"), Befehle_Dok());
    EXPECT_EQ(Geliefert("basic.dok"), Basic_Dok());
}

// --- descriptions --------------------------------------------------------------------------------

TEST(Beschreibungen, every_row_has_its_texts)
{
    EXPECT_EQ(Befehls_Beschreibungen().size(), 112u); // 111 forms and the stop point
    for (const Befehls_Beschreibung_T& b : Befehls_Beschreibungen()) {
        EXPECT_TRUE(b.D.ends_with('.')) << b.Form;
        EXPECT_TRUE(b.E.ends_with('.')) << b.Form;
        EXPECT_NE(b.D, b.E) << b.Form;
        EXPECT_EQ(b.D.find(" ,"), std::string::npos) << b.D;
        EXPECT_EQ(b.D.find(",,"), std::string::npos) << b.D;
    }
}

// Flags of the user's manual, by mnemonic and first operand; P goes with the accumulator.
TEST(Beschreibungen, the_flags)
{
    const std::set<std::string> Alle_Drei = {"ADD", "ADDC", "SUBB"};
    const std::set<std::string> CY_Allein = {"CJNE",
                                             "MOV C,!",
                                             "SETB C",
                                             "CLR C",
                                             "CPL C",
                                             "ORL C,!",
                                             "ORL C,/!",
                                             "ANL C,!",
                                             "ANL C,/!"};
    for (const Befehls_Beschreibung_T& b : Befehls_Beschreibungen()) {
        const std::string Form(b.Form);
        const std::string Wort = Form.substr(0, Form.find(' '));
        const std::string Flags(b.Flaggen);
        if (Alle_Drei.contains(Wort))
            EXPECT_EQ(Flags, "CY AC OV P") << Form;
        else if (Wort == "MUL" || Wort == "DIV")
            EXPECT_EQ(Flags, "CY OV P") << Form;
        else if (Wort == "RRC" || Wort == "RLC" || Wort == "DA")
            EXPECT_EQ(Flags, "CY P") << Form;
        else if (CY_Allein.contains(Wort) || CY_Allein.contains(Form))
            EXPECT_EQ(Flags, "CY") << Form;
        else
            EXPECT_TRUE(Flags.empty() || Flags == "P") << Form << " " << Flags;
    }
}

// What an instruction does to P follows from whether it loads the accumulator with another value
// whose number of ones may differ.
TEST(Beschreibungen, parity_goes_with_the_accumulator)
{
    const std::set<std::string> Gleiche_Zahl = {"RR A", "RL A", "SWAP A", "CPL A"};
    for (const Befehls_Beschreibung_T& b : Befehls_Beschreibungen()) {
        const std::string Form(b.Form);
        const auto        Leer = Form.find(' ');
        const std::string Wort = Form.substr(0, Leer);
        const std::string Ziel = Leer == std::string::npos ? "" : Form.substr(Leer + 1);
        const bool        In_Akku =
            (Ziel == "A" || Ziel == "AB" || Ziel.starts_with("A,")) && Wort != "CJNE";
        EXPECT_EQ(b.Flaggen.find('P') != std::string_view::npos,
                  In_Akku && !Gleiche_Zahl.contains(Form))
            << Form;
    }
}

TEST(Beschreibungen, each_opcode_has_that_of_its_row)
{
    for (const Tafel_Eintrag& e : Opcode_Tafel()) {
        const auto& b = Beschreibung_Von(static_cast<std::uint8_t>(e.Opcode));
        std::string Form(b.Form);
        if (e.Opcode != 0xA5)
            for (const char* Buchstabe : {"Rr", "Ri", "p,"})
                for (int n = 0; n < 8; ++n)
                    if (Ersetzt(Form,
                                Buchstabe,
                                (Buchstabe[0] == 'p' ? "" : "R") + std::to_string(n) +
                                    (Buchstabe[0] == 'p' ? "," : "")) == e.Text)
                        Form = e.Text;
        EXPECT_EQ(Form, e.Text) << Hex2(e.Opcode);
    }
}

TEST(Beschreibungen, a_reference_writes_the_pattern_letters_as_n_and_i)
{
    const auto Schreibweise = [](std::string_view Text) {
        const auto* m = std::find_if(std::begin(Befehls_Muster_Tabelle),
                                     std::end(Befehls_Muster_Tabelle),
                                     [&](const Befehls_Muster& i) { return i.Text == Text; });
        return Befehls_Schreibweise(*m);
    };
    EXPECT_EQ(Schreibweise("ADD A,Rr"), "ADD A,Rn");
    EXPECT_EQ(Schreibweise("CJNE @Ri,#!,!"), "CJNE @Ri,#data,rel");
    EXPECT_EQ(Schreibweise("AJMP p,!"), "AJMP addr11");
    EXPECT_EQ(Schreibweise("MOV DPTR,#!!"), "MOV DPTR,#data16");
}

// Every example assembles to its own instruction.
TEST_F(Assembler_Welt, the_example_of_each_description_is_the_instruction_described)
{
    const auto Beschreibungen = Befehls_Beschreibungen();
    for (std::size_t i = 0; i < Beschreibungen.size(); ++i) {
        const Befehls_Muster& m = Befehls_Muster_Tabelle[i];
        if (m.Text == "Nicht definiert")
            continue;
        const std::string Ergebnis =
            Assembliere("LOOP:\n" + std::string(Beschreibungen[i].Beispiel));
        ASSERT_EQ(Assembler_Fehler, 0) << Beschreibungen[i].Beispiel << ": " << Ergebnis;
        const int Opcode = Hex_Daten[0];
        EXPECT_GE(befehle_intern::Muster_Wert(m.Muster, Opcode), 0) << Beschreibungen[i].Beispiel;
        EXPECT_EQ(Ergebnis.size(), 3 * static_cast<std::size_t>(Befehl_Laenge(Hex_Daten[0])) - 1)
            << Beschreibungen[i].Beispiel;
    }
}

} // namespace
} // namespace varnholt::test
