// The chapters of the handbook about the language: their tables are what the program makes, their
// examples assemble to the bytes that stand beside them, and every message of the program stands in
// the chapter of messages. The messages are looked for in the sources themselves.
#include "core/codepage.h"
#include "files/Textdatei.h"
#include "language/Assembler_Hilfe.h"
#include "language/Befehls_Beschreibung.h"
#include "language/Handbuch_Tabellen.h"
#include "language/Opcode_Tafel.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

std::string Inhalt(const fs::path& Pfad)
{
    std::ifstream Datei(Pfad, std::ios::binary);
    EXPECT_TRUE(Datei) << Pfad;
    return {std::istreambuf_iterator<char>(Datei), {}};
}

std::string Seite(const std::string& Name) { return Inhalt(fs::path(VARNHOLT_DATA) / Name); }

struct Seite_T {
    const char* Name;
    bool        Deutsch;
};
constexpr auto Tabellen_Seiten = std::to_array<Seite_T>({{"Help/instructions.htm", false},
                                                         {"Help/statements.htm", false},
                                                         {"Hilfe/befehle.htm", true},
                                                         {"Hilfe/anweisungen.htm", true}});
constexpr auto Alle_Seiten     = std::to_array<Seite_T>({{"Help/assembler.htm", false},
                                                         {"Help/statements.htm", false},
                                                         {"Help/instructions.htm", false},
                                                         {"Help/file-formats.htm", false},
                                                         {"Help/command-line.htm", false},
                                                         {"Help/messages.htm", false},
                                                         {"Hilfe/assembler.htm", true},
                                                         {"Hilfe/anweisungen.htm", true},
                                                         {"Hilfe/befehle.htm", true},
                                                         {"Hilfe/dateiformate.htm", true},
                                                         {"Hilfe/kommandozeile.htm", true},
                                                         {"Hilfe/meldungen.htm", true}});

// --- texts of a page -----------------------------------------------------------------------------

// Blanks, tabs and line ends in a row become one blank; none at the ends.
std::string Zusammengezogen(std::string_view Text)
{
    std::string Ziel;
    for (const char c : Text) {
        const bool Leer = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (!Leer)
            Ziel += c;
        else if (!Ziel.empty() && Ziel.back() != ' ')
            Ziel += ' ';
    }
    while (Ziel.ends_with(' '))
        Ziel.pop_back();
    return Ziel;
}

std::string Ohne_Masken(std::string Text)
{
    for (const auto& [Maske, Zeichen] : {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}})
        Text = Ersetzt(Text, Maske, Zeichen);
    return Text;
}

// The page as one reads it.
std::string Gelesen(std::string_view Html)
{
    std::string Ziel;
    bool        Im_Tag = false;
    for (const char c : Html) {
        if (c == '<')
            Im_Tag = true;
        if (!Im_Tag)
            Ziel += c;
        if (c == '>')
            Im_Tag = false;
    }
    return Zusammengezogen(Ohne_Masken(Ziel));
}

// What stands between a beginning and an end, each time.
std::vector<std::string>
Stuecke(std::string_view Text, std::string_view Anfang, std::string_view Ende)
{
    std::vector<std::string> Liste;
    for (std::size_t p = Text.find(Anfang); p != std::string_view::npos; p = Text.find(Anfang, p)) {
        p += Anfang.size();
        const std::size_t e = std::min(Text.find(Ende, p), Text.size());
        Liste.emplace_back(Text.substr(p, e - p));
    }
    return Liste;
}

// --- tables --------------------------------------------------------------------------------------

TEST(Handbuch_Sprache, the_tables_are_what_the_tool_makes_of_them)
{
    for (const Seite_T& s : Tabellen_Seiten) {
        const std::string Text = Seite(s.Name);
        EXPECT_TRUE(Text == Tabellen_Einsetzen(Text, s.Deutsch))
            << s.Name << ": run dok_erzeugen --handbook data";
    }
}

TEST(Handbuch_Sprache, no_table_is_missing)
{
    for (const Seite_T& s : Tabellen_Seiten) {
        const std::string Text      = Seite(s.Name);
        const bool        Ist_Basic = Text.find("<!-- if -->") != std::string::npos;
        const auto        Zeilen    = Stuecke(Text, "<tr><td><code>", "</code>");
        if (Ist_Basic) {
            EXPECT_EQ(Zeilen.size(), 28u + 28u + 3u + 3u + 8u) << s.Name;
        } else {
            EXPECT_EQ(Zeilen.size(), 8u + 111u) << s.Name; // eight rows explain the signs
        }
    }
}

TEST(Handbuch_Sprache, the_reference_names_the_bytes_of_an_instruction)
{
    EXPECT_EQ(Code_Schreibweise("NOP", false), "00");
    EXPECT_EQ(Code_Schreibweise("ADD A,#!", false), "24 data");
    EXPECT_EQ(Code_Schreibweise("ADD A,Rr", false), "28+n");
    EXPECT_EQ(Code_Schreibweise("MOV @Ri,#!", false), "76+i data");
    EXPECT_EQ(Code_Schreibweise("CJNE Rr,#!,!", false), "B8+n data rel");
    EXPECT_EQ(Code_Schreibweise("JBC !,!", false), "10 bit rel");
    EXPECT_EQ(Code_Schreibweise("LJMP !!", false), "02 hi lo");
    EXPECT_EQ(Code_Schreibweise("MOV DPTR,#!!", false), "90 hi lo");
    EXPECT_EQ(Code_Schreibweise("ACALL p,!", false), "11+20h*p lo");
    EXPECT_EQ(Code_Schreibweise("MOV !,#!", false), "75 direct data");
    EXPECT_EQ(Code_Schreibweise("MOV !,!", false), "85 source destination");
    EXPECT_EQ(Code_Schreibweise("MOV !,!", true), "85 Quelle Ziel");
    EXPECT_EQ(Code_Schreibweise("FOO", false), "");
}

TEST(Handbuch_Sprache, putting_the_tables_in_changes_nothing_else)
{
    const std::string Davor = "<p>a</p>\n<!-- for -->\n";
    const std::string Dann  = "<!-- /for -->\n<p>b</p><!-- if -->\n no end";
    const std::string Neu   = Tabellen_Einsetzen(Davor + "old\n" + Dann, true);
    EXPECT_TRUE(Neu.starts_with(Davor));
    EXPECT_TRUE(Neu.ends_with(Dann));
    EXPECT_EQ(Neu, Davor + FOR_Tabelle(true) + Dann);
    EXPECT_EQ(Tabellen_Einsetzen(Neu, true), Neu);
    EXPECT_EQ(Tabellen_Einsetzen("", false), "");
}

// --- pages ---------------------------------------------------------------------------------------

TEST(Handbuch_Sprache, the_pages_are_html_without_scripts)
{
    for (const Seite_T& s : Alle_Seiten) {
        const std::string Text = Seite(s.Name);
        EXPECT_TRUE(Text.starts_with("<!DOCTYPE html>\n")) << s.Name;
        EXPECT_TRUE(Text.ends_with("</html>\n")) << s.Name;
        EXPECT_NE(Text.find(s.Deutsch ? "<html lang=\"de\">" : "<html lang=\"en\">"),
                  std::string::npos)
            << s.Name;
        EXPECT_EQ(Text.find("<script"), std::string::npos) << s.Name;
        EXPECT_TRUE(Ist_UTF8(Text)) << s.Name;
    }
}

// --- examples ------------------------------------------------------------------------------------

class Handbuch_Beispiele : public Assembler_Welt {
protected:
    Handbuch_Beispiele() { Programm_Pfad = std::string(VARNHOLT_DATA) + "/"; }

    void Beispiel_Pruefen(const std::string& Text, const char* Name)
    {
        Edit.Inhalt = Text_Entschluesseln(std::string(Text)).Text;
        Assemblieren();
        ASSERT_EQ(Assembler_Fehler, 0)
            << Name << ", line " << Fehler_Zeile + 1 << ": " << Letzte_Meldung() << "\n"
            << Text;
        std::size_t Zeile = 0;
        std::size_t p     = 0;
        for (std::size_t e = 0; p < Text.size(); p = e + 1, ++Zeile) {
            e = std::min(Text.find('\n', p), Text.size());
            Zeile_Pruefen(Text.substr(p, e - p), Zeile, Name);
        }
    }

    int  Geprueft  = 0;
    bool Hat_Makro = false; // the rows are not those of the text

private:
    void Zeile_Pruefen(const std::string& Text, std::size_t Zeile, const char* Name)
    {
        const std::size_t p = Text.find("; = ");
        if (p == std::string::npos || Text.starts_with("#"))
            return;
        for (const Include_Eintrag& e : Include_Liste)
            if (e.Erste_Zeile < static_cast<int>(Zeile))
                Zeile += static_cast<std::size_t>(e.Zeilen - 1);
        if (Hat_Makro)
            return;
        const std::string Soll    = Text.substr(p + 4);
        const auto        Adresse = Quell_Zeilen.at(Zeile).Adresse;
        const auto        Laenge  = static_cast<std::int32_t>((Soll.size() + 1) / 3);
        EXPECT_EQ(Hex_Text(Adresse, Adresse + Laenge), Soll) << Name << ": " << Text;
        ++Geprueft;
    }
};

TEST_F(Handbuch_Beispiele, assemble_to_the_bytes_that_stand_beside_them)
{
    for (const Seite_T& s : Alle_Seiten)
        for (const std::string& Html : Stuecke(Seite(s.Name), "<pre class=\"asm\">\n", "</pre>")) {
            const std::string Text = Ohne_Masken(Html);
            Hat_Makro              = Text.find("#define") != std::string::npos;
            Beispiel_Pruefen(Text, s.Name);
        }
    EXPECT_GE(Geprueft, 120);
}

TEST_F(Handbuch_Beispiele, of_the_instructions_have_the_opcode_that_the_table_tells)
{
    const auto Alle = Befehls_Beschreibungen();
    for (std::size_t i = 0; i < Alle.size(); ++i) {
        if (Alle[i].Beispiel == "STOP")
            continue;
        Edit.Inhalt = "LOOP: NOP\r\n" + std::string(Alle[i].Beispiel);
        Assemblieren();
        ASSERT_EQ(Assembler_Fehler, 0) << Alle[i].Beispiel;
        EXPECT_EQ(&Beschreibung_Von(Hex_Daten.at(1)), &Alle[i]) << Alle[i].Beispiel;
    }
}

// --- messages ------------------------------------------------------------------------------------

// A token of a source file; adjacent string literals are one.
struct Wort_T {
    enum class Art_T { Text, Name, Zeichen } Art;
    std::string Inhalt;
};

bool Wort_Zeichen(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || (c & 0x80) != 0;
}

// A quoted literal from its opening quote on; Ort moves behind it.
std::string Literal_Lesen(const std::string& t, std::size_t& Ort)
{
    const char  Ende = t[Ort++];
    std::string Inhalt;
    for (; Ort < t.size() && t[Ort] != Ende; ++Ort) {
        if (t[Ort] != '\\') {
            Inhalt += t[Ort];
            continue;
        }
        const char c = t.at(++Ort);
        Inhalt += c == 'r' || c == 'n' || c == 't' ? ' ' : c;
    }
    ++Ort;
    return Inhalt;
}

std::vector<Wort_T> Worte_Von(const std::string& t)
{
    std::vector<Wort_T> Worte;
    for (std::size_t i = 0; i < t.size();) {
        if (t.compare(i, 2, "//") == 0) {
            i = std::min(t.find('\n', i), t.size());
        } else if (t.compare(i, 2, "/*") == 0) {
            i = std::min(t.find("*/", i), t.size() - 2) + 2;
        } else if (t[i] == '"') {
            const std::string Stueck = Literal_Lesen(t, i);
            if (!Worte.empty() && Worte.back().Art == Wort_T::Art_T::Text)
                Worte.back().Inhalt += Stueck;
            else
                Worte.push_back({Wort_T::Art_T::Text, Stueck});
        } else if (t[i] == '\'') {
            Worte.push_back({Wort_T::Art_T::Zeichen, Literal_Lesen(t, i)});
        } else if (Wort_Zeichen(t[i])) {
            const std::size_t Anfang = i;
            while (i < t.size() &&
                   (Wort_Zeichen(t[i]) ||
                    (t[i] == '\'' && std::isdigit(static_cast<unsigned char>(t[Anfang])) != 0)))
                ++i;
            Worte.push_back({Wort_T::Art_T::Name, t.substr(Anfang, i - Anfang)});
        } else if (std::isspace(static_cast<unsigned char>(t[i])) != 0 || t[i] == '\\') {
            ++i;
        } else {
            Worte.push_back({Wort_T::Art_T::Zeichen, std::string(1, t[i++])});
        }
    }
    return Worte;
}

// A text of the program as the scan finds it: in German and English, or alone.
struct Fund_T {
    enum class Art_T { Deutsch, Englisch, Einzeln } Art;
    std::string Text;
    bool        Gemeldet; // stands in the call of a routine that tells something
};

// Routines whose text the user is told, whatever file they stand in.
const std::set<std::string> Melder = {"Melden",
                                      "Fehler",
                                      "Hinweisen",
                                      "Falsche_Zeile",
                                      "Nochmal_Fragen",
                                      "Auf_Fehlerausgabe",
                                      "Brenn_Fehler_Melden",
                                      "Ergebnis_Melden",
                                      "Nicht_Gelesen"};

// Two words at least: a name or a caption of one word tells nothing.
bool Ist_Satz(std::string_view Text)
{
    int  Worte   = 0;
    bool Im_Wort = false;
    for (const char c : Text) {
        const bool Buchstabe = std::isalpha(static_cast<unsigned char>(c)) != 0 || (c & 0x80) != 0;
        if (c == ' ')
            Im_Wort = false;
        else if (Buchstabe && !Im_Wort) {
            Im_Wort = true;
            ++Worte;
        }
    }
    return Worte >= 2;
}

// Reads the bracket groups of a file. A group of which two neighbours hold sentences is a text in
// both languages; what stays over is one alone.
class Abtaster {
public:
    explicit Abtaster(const std::vector<Wort_T>& Alle) : Worte(Alle) { Gruppen.emplace_back(); }

    std::vector<Fund_T> Lesen()
    {
        for (std::size_t i = 0; i < Worte.size(); ++i)
            Wort(i);
        while (!Gruppen.empty())
            Schliessen();
        return Funde;
    }

private:
    struct Gruppe_T {
        bool                                  Gemeldet = false;
        std::vector<std::vector<std::string>> Teile{{}};
    };

    void Wort(std::size_t i)
    {
        const Wort_T& w = Worte[i];
        if (w.Art == Wort_T::Art_T::Text) {
            if (Ist_Satz(w.Inhalt))
                Gruppen.back().Teile.back().push_back(w.Inhalt);
        } else if (w.Art == Wort_T::Art_T::Zeichen && w.Inhalt.size() == 1) {
            Zeichen(w.Inhalt[0], i);
        }
    }

    void Zeichen(char c, std::size_t i)
    {
        if (c == '(' || c == '{' || c == '[')
            Oeffnen(c == '(' && i > 0 ? Worte[i - 1].Inhalt : std::string{});
        else if ((c == ')' || c == '}' || c == ']') && Gruppen.size() > 1)
            Schliessen();
        else if (c == ',')
            Gruppen.back().Teile.emplace_back();
        else if (c == ';')
            Anweisung_Beenden();
    }

    void Oeffnen(const std::string& Routine)
    {
        const bool Gemeldet = Gruppen.back().Gemeldet || Melder.contains(Routine);
        Gruppen.emplace_back();
        Gruppen.back().Gemeldet = Gemeldet;
    }

    void Melden_Als(Fund_T::Art_T Art, const std::vector<std::string>& Texte, bool Gemeldet)
    {
        for (const std::string& t : Texte)
            Funde.push_back({Art, t, Gemeldet});
    }

    void Schliessen()
    {
        const Gruppe_T g = std::move(Gruppen.back());
        Gruppen.pop_back();
        std::vector<std::size_t> Mit_Text;
        for (std::size_t i = 0; i < g.Teile.size(); ++i)
            if (!g.Teile[i].empty())
                Mit_Text.push_back(i);
        if (Mit_Text.size() == 2 && Mit_Text[1] == Mit_Text[0] + 1) {
            Melden_Als(Fund_T::Art_T::Deutsch, g.Teile[Mit_Text[0]], g.Gemeldet);
            Melden_Als(Fund_T::Art_T::Englisch, g.Teile[Mit_Text[1]], g.Gemeldet);
        } else if (Mit_Text.size() > 1 || Gruppen.empty() ||
                   g.Gemeldet != Gruppen.back().Gemeldet) {
            for (const std::size_t i : Mit_Text)
                Melden_Als(Fund_T::Art_T::Einzeln, g.Teile[i], g.Gemeldet);
        } else if (!Mit_Text.empty()) { // perhaps one half of a pair
            auto& Ziel = Gruppen.back().Teile.back();
            Ziel.insert(Ziel.end(), g.Teile[Mit_Text[0]].begin(), g.Teile[Mit_Text[0]].end());
        }
    }

    void Anweisung_Beenden()
    {
        for (const auto& Teil : Gruppen.back().Teile)
            Melden_Als(Fund_T::Art_T::Einzeln, Teil, Gruppen.back().Gemeldet);
        Gruppen.back().Teile.assign(1, {});
    }

    const std::vector<Wort_T>& Worte;
    std::vector<Gruppe_T>      Gruppen{};
    std::vector<Fund_T>        Funde{};
};

// Files whose texts are no messages but for those that are told by a Melder.
bool Nur_Gemeldete(const std::string& Datei)
{
    static constexpr std::string_view Anfaenge[] = {
        "ui/",                            // captions of windows and of their fields
        "cli/",                           // the help of the commands
        "core/menu.h",                    // captions of the menus
        "core/options.cpp",               // captions of the options
        "core/startup.h",                 // captions of the first start
        "core/interface_texts.cpp",       // captions, filters of the file dialogs
        "editors/Bereiche.cpp",           // captions of the area forms
        "editors/HexSuche.cpp",           // captions of the search forms
        "editors/Suche.cpp",              // likewise
        "files/Drucken.cpp",              // layout of the printed page
        "files/Rtf",                      // control words of RTF
        "language/Basic_Formen.h",        // tables of the language
        "language/Befehle",               // likewise
        "language/Befehls_Beschreibung",  // shown by the reference
        "language/Handbuch_Tabellen.cpp", // headings of the handbook
        "language/Nachschlage_Texte.cpp", // tables of the language
        "programmer/Lockmenu.cpp",        // captions of the lock bits
    };
    return std::any_of(std::begin(Anfaenge), std::end(Anfaenge), [&](std::string_view a) {
        return Datei.starts_with(a);
    });
}

// Texts that tell nothing that one could cure.
const std::set<std::string> Keine_Meldungen = {
    "Sehr geehrte Damen und Herren,",  // beginning of a mail
    "Dear Sir or Madam,",              // likewise
    "Quelmark Varnholt 5",             // name of the file type
    "Varnholt undo 1",                 // first line of a step's file
    "#IF NOT DEBUGGING",               // a directive
    "#IF DEBUGGING",                   // likewise
    "#END IF",                         // likewise
    "#END DEF",                        // likewise
    "DJNZ R",                          // an instruction
    "[TEST PHASE]",                    // a mark in Spec.ini
    "no such menu entry",              // a fault of the program, checked when it is built
    "Keine Sprungmarken",              // an empty list
    "No jumpmarks",                    // likewise
    "Hex.Adr.|Editor| IC",             // heading of a table
    "Version 3.0 oder älter",          // choice of the board's version
    "Version 3.0 or older",            // likewise
    ", Speicherbereich von 0 bis:",    // caption of the programming dialog
    ", memory area from 0 to:",        // likewise
    "Brenne alles vor der IC Adresse", // likewise
    "unbekanntes IC",                  // in place of a name
    "unknown IC",                      // likewise
    "simulated board",                 // in place of a driver's text
    "SOLL:",                           // lines of AutoTest_failed.txt
    "IST:",                            // likewise
    "Anzahl der Bitfehler in Bit",     // likewise
    "leer, alles FFh",                 // field of the simulated board's window
    "empty, all FFh",                  // likewise
    "Jumper Einstellungen",            // caption of the jumpers' window
    "Jumper settings",                 // likewise
    "Verify data",                     // progress
    "Es sind mehrere Durchläufe erforderlich, bitte nicht abbrechen.", // likewise
    "More than one passes are neccessary. Please don't abort this.",   // likewise
};

// A piece without a word of two letters tells nothing.
bool Hat_Wort(const std::string& Stueck)
{
    const auto Buchstabe = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
    for (std::size_t i = 0; i + 1 < Stueck.size(); ++i)
        if (Buchstabe(Stueck[i]) && Buchstabe(Stueck[i + 1]))
            return true;
    return false;
}

// The pieces of a text between its placeholders, as a page has them. Progress texts have points and
// a percentage behind them; they are no messages and have none.
std::vector<std::string> Feste_Stuecke(const std::string& Text)
{
    std::vector<std::string> Liste;
    for (std::size_t p = 0; p < Text.size();) {
        const std::size_t Auf = std::min(Text.find('{', p), Text.size());
        const std::string s   = Zusammengezogen(std::string_view(Text).substr(p, Auf - p));
        if (s.ends_with("..."))
            return {};
        if (Hat_Wort(s) && !Keine_Meldungen.contains(s))
            Liste.push_back(s);
        p = Auf == Text.size() ? Auf : std::min(Text.find('}', Auf), Text.size() - 1) + 1;
    }
    return Liste;
}

struct Kapitel_T {
    std::string D = Gelesen(Seite("Hilfe/meldungen.htm"));
    std::string E = Gelesen(Seite("Help/messages.htm"));

    bool Steht(const Fund_T& f, const std::string& Stueck) const
    {
        const bool In_D = D.find(Stueck) != std::string::npos;
        const bool In_E = E.find(Stueck) != std::string::npos;
        return f.Art == Fund_T::Art_T::Deutsch    ? In_D
               : f.Art == Fund_T::Art_T::Englisch ? In_E
                                                  : In_D || In_E;
    }
};

// The sources, by their path from src/ on.
std::vector<std::string> Quelldateien()
{
    std::vector<std::string> Liste;
    for (const auto& e : fs::recursive_directory_iterator(VARNHOLT_QUELLEN))
        if (e.path().extension() == ".cpp" || e.path().extension() == ".h")
            Liste.push_back(fs::relative(e.path(), VARNHOLT_QUELLEN).generic_string());
    std::sort(Liste.begin(), Liste.end());
    return Liste;
}

std::vector<Fund_T> Meldungen_Von(const std::string& Datei)
{
    const auto          Worte = Worte_Von(Inhalt(fs::path(VARNHOLT_QUELLEN) / Datei));
    const bool          Nur   = Nur_Gemeldete(Datei);
    std::vector<Fund_T> Liste;
    for (const Fund_T& f : Abtaster(Worte).Lesen())
        if ((f.Gemeldet || !Nur) && !Feste_Stuecke(f.Text).empty())
            Liste.push_back(f);
    return Liste;
}

TEST(Handbuch_Meldungen, every_message_of_the_program_stands_in_its_chapter)
{
    const Kapitel_T Kapitel;
    int             Deutsche = 0;
    int             Alle     = 0;
    for (const std::string& Datei : Quelldateien())
        for (const Fund_T& f : Meldungen_Von(Datei)) {
            Alle += 1;
            Deutsche += f.Art == Fund_T::Art_T::Deutsch ? 1 : 0;
            for (const std::string& s : Feste_Stuecke(f.Text))
                EXPECT_TRUE(Kapitel.Steht(f, s)) << "src/" << Datei << ": \"" << s << "\"";
        }
    EXPECT_GE(Deutsche, 130);
    EXPECT_GE(Alle, 280);
}

TEST(Handbuch_Meldungen, the_scan_finds_pairs_and_single_texts)
{
    const auto Worte =
        Worte_Von("// Melden({\"not this\", \"nor this\"});\n"
                  "void f() { Melden({\"Die \" \"Datei \" + n + \" fehlt.\", "
                  "\"The file \" + n + \" is gone.\"}, {\"Titel hier\", \"Title here\"});\n"
                  "x = fmt::format(\"nur {} allein\", 1); Zahl(\"eins\"); c = '\"'; }");
    std::vector<std::string> Gefunden;
    for (const Fund_T& f : Abtaster(Worte).Lesen())
        Gefunden.push_back(std::string(f.Gemeldet ? "!" : "") +
                           (f.Art == Fund_T::Art_T::Deutsch    ? "D:"
                            : f.Art == Fund_T::Art_T::Englisch ? "E:"
                                                               : "-:") +
                           f.Text);
    EXPECT_EQ(Gefunden,
              (std::vector<std::string>{"!D:Die Datei ",
                                        "!E:The file ",
                                        "!E: is gone.",
                                        "!D:Titel hier",
                                        "!E:Title here",
                                        "-:nur {} allein"}));
}

TEST(Handbuch_Meldungen, each_has_a_cause_and_a_cure)
{
    const auto Zaehlen = [](const std::string& Text, std::string_view Wort) {
        return Stuecke(Text, Wort, "<").size();
    };
    const std::string D = Seite("Hilfe/meldungen.htm");
    const std::string E = Seite("Help/messages.htm");
    EXPECT_GE(Zaehlen(D, "<dt>"), 130u);
    EXPECT_EQ(Zaehlen(D, "<dt>"), Zaehlen(D, "<strong>Ursache:</strong> "));
    EXPECT_EQ(Zaehlen(D, "<dt>"), Zaehlen(D, "<strong>Abhilfe:</strong> "));
    EXPECT_GE(Zaehlen(E, "<dt>"), 130u);
    EXPECT_EQ(Zaehlen(E, "<dt>"), Zaehlen(E, "<strong>Cause:</strong> "));
    EXPECT_EQ(Zaehlen(E, "<dt>"), Zaehlen(E, "<strong>Cure:</strong> "));
}

} // namespace
} // namespace varnholt::test
