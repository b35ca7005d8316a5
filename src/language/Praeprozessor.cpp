// Macros work on the raw text, included files on the rows of the preparing sweep, #IF on the rows
// of the emitting sweep.
#include "language/Praeprozessor.h"

#include "core/codepage.h"
#include "core/paths.h"
#include "core/shared_state.h"
#include "files/Textdatei.h"
#include "language/Assembler_Zustand.h"
#include "language/Zeile_Normieren.h"

#include <filesystem>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace varnholt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Anfang_Wort = "#DEFINE";
constexpr std::string_view Ende_Wort   = "#END DEF";
constexpr std::size_t      Nirgends    = std::string::npos;
// An expansion beyond this many characters is one that doesn't come to an end.
constexpr std::size_t    Text_Hoechstens    = std::size_t{64} << 20;
constexpr std::uintmax_t Include_Hoechstens = std::uintmax_t{16} << 20; // bytes of one file

[[noreturn]] void Ohne_End_Def()
{
    Fehler("#define ohne #end def !", "#define without #end def !");
}

[[noreturn]] void Eigener_Name()
{
    Fehler("Das Makro enthält seinen eigenen Namen !", "The macro contains its own name !");
}

// A block found in the text; positions count from 0.
struct Makro {
    std::string Name{}; // upper case
    std::string Rumpf{};
    std::size_t Danach = 0; // first character behind the block
    std::size_t Zeilen = 0; // line ends that stay in its place
};

bool Ist_Leer(char c) { return c == ' ' || c == '\t'; }

std::string Name_Lesen(std::string_view Gross_Text, std::size_t Von, std::size_t Bis)
{
    while (Von < Bis && Ist_Leer(Gross_Text[Von]))
        ++Von;
    while (Bis > Von && Ist_Leer(Gross_Text[Bis - 1]))
        --Bis;
    return std::string(Gross_Text.substr(Von, Bis - Von));
}

// The block that begins at p. Text_Gross is the text in upper case.
Makro Makro_Lesen(const std::string& Text, const std::string& Text_Gross, std::size_t p)
{
    const std::size_t e  = Text_Gross.find(Ende_Wort, p + 6);
    const std::size_t LF = Text.find('\n', p + 6);
    if (e == Nirgends || LF == Nirgends || LF > e || LF < 1)
        Ohne_End_Def();
    const std::size_t b       = LF + 1;
    const std::size_t Letztes = Text.rfind('\r', e); // the CR that ends the body
    Makro             m;
    m.Name = Name_Lesen(Text_Gross, std::min(p + Anfang_Wort.size(), LF), LF - 1);
    if (m.Name.empty())
        Ohne_End_Def();
    if (Letztes != Nirgends && Letztes > b)
        m.Rumpf = Text.substr(b, Letztes - b);
    m.Zeilen = 1;
    for (std::size_t i = p; i < e; ++i)
        m.Zeilen += Text[i] == '\r' ? 1u : 0u;
    // The search for the line's end begins ten characters behind the #: with nothing behind the
    // words it passes their own line, and the next one goes with the block.
    const std::size_t Schluss = Text.find('\n', e + 10);
    m.Danach                  = Schluss == Nirgends ? Text.size() : Schluss + 1;
    return m;
}

void Zeichen_Wegnehmen(std::string& Text, std::size_t& Anzahl)
{
    const std::size_t n = std::min(Anzahl, Text.size());
    Text.resize(Text.size() - n);
    Anzahl -= n;
}

// The text from Ab on with the body in every place of the name; two characters go on each side,
// those ahead of the first place from Davor if need be.
std::string Rumpf_Einsetzen(std::string&       Davor,
                            const std::string& Text,
                            const std::string& Text_Gross,
                            const Makro&       m)
{
    const std::string Rumpf = std::string(CRLF) + m.Rumpf + std::string(CRLF);
    // From the body's second character on the name would be found again and again.
    const bool  Endlos = Gross(m.Rumpf).find(m.Name, 1) != Nirgends;
    std::string Neu;
    std::size_t Ab = m.Danach;
    for (std::size_t q = Text_Gross.find(m.Name, Ab); q != Nirgends;
         q             = Text_Gross.find(m.Name, Ab)) {
        Neu.append(Text, Ab, q - Ab);
        if (Endlos || Davor.size() + Neu.size() + Rumpf.size() > Text_Hoechstens)
            Eigener_Name();
        std::size_t Weg = 2;
        Zeichen_Wegnehmen(Neu, Weg);
        Zeichen_Wegnehmen(Davor, Weg);
        Neu += Rumpf;
        Ab = std::min(q + m.Name.size() + 2, Text.size());
    }
    return Neu.append(Text, Ab);
}

// A file's bytes, the kind of its rows, and where it was found.
struct Fund {
    std::optional<std::string> Bytes{};
    std::int8_t                Herkunft = Herkunft_Haupttext;
    fs::path                   Pfad{};
};

// A file that can't be read is a file that isn't there.
Fund Lesen(const fs::path& Ordner, std::string_view Name, std::int8_t Herkunft)
{
    const std::optional<fs::path> Pfad = Datei_Suchen(Ordner, Name);
    if (!Pfad)
        return {};
    return {Datei_Lesen(*Pfad, Include_Hoechstens), Herkunft, *Pfad};
}

// The folder of the source, then the two folders of the program. A path of the platform that begins
// at the root stands for itself as one with a drive letter does.
Fund Datei_Finden(std::string_view Name)
{
    const std::string UTF8 = Nach_UTF8(Name);
    const fs::path    Pfad = Pfad_Aus_Text(UTF8);
    if ((Name.size() > 2 && Name.substr(1, 2) == ":\\") || Pfad.is_absolute())
        return Lesen(Pfad.parent_path(), Pfad.filename().string(), Herkunft_Include);
    if (!Quell_Pfad.empty())
        if (Fund f = Lesen(fs::path(Quell_Pfad).parent_path(), UTF8, Herkunft_Include); f.Bytes)
            return f;
    if (Fund f = Lesen(fs::path(Programm_Pfad) / "include", UTF8, Herkunft_Include); f.Bytes)
        return f;
    if (Fund f = Lesen(fs::path(Programm_Pfad) / "mc", UTF8, Herkunft_Prozessorfile); f.Bytes)
        return f;
    return {};
}

[[noreturn]] void Datei_Fehlt(int Herkunft)
{
    if (Herkunft == Herkunft_Prozessorfile)
        Fehler(
            "Das einzubindene Prozessorfile konnte nicht gefunden werden! Bitte wählen Sie einen "
            "der Typen aus dem nachfolgendem Dialog.",
            std::string(Text_Prozessorfile_Fehlt));
    Fehler("Die einzubindene Datei konnte nicht gefunden werden!", std::string(Text_Include_Fehlt));
}

// Rows in their normal form of a text with CR LF ends; a text without any counts as one empty line.
std::vector<Quell_Zeile> In_Zeilen(std::string_view Text, std::int8_t Herkunft)
{
    std::vector<Quell_Zeile> Zeilen;
    while (!Text.empty() || Zeilen.empty()) {
        const std::size_t Ende = std::min(Text.find('\r'), Text.size());
        Zeilen.push_back(
            {.Text = Zeile_Normieren(Text.substr(0, Ende), Zeilen_Texte), .Herkunft = Herkunft});
        Text.remove_prefix(std::min(Ende + 2, Text.size()));
    }
    return Zeilen;
}

std::string Include_Name()
{
    std::string Name(Diese_Zeile().Text.Ansicht());
    Name.erase(0, std::min<std::size_t>(8, Name.size()));
    if (Name.starts_with('"'))
        Name.erase(0, 1);
    if (Name.ends_with('"'))
        Name.pop_back();
    return Name;
}

// The row in work keeps its label: the file's first line may have none.
void Zeilen_Einsetzen(std::vector<Quell_Zeile> Neue)
{
    Neue.front().Marke = Diese_Zeile().Marke;
    Diese_Zeile()      = std::move(Neue.front());
    Quell_Zeilen.insert(Quell_Zeilen.begin() + Zeilen_Index + 1,
                        std::make_move_iterator(Neue.begin() + 1),
                        std::make_move_iterator(Neue.end()));
}

} // namespace

bool Hat_Makros(std::string_view Text)
{
    for (std::size_t i = Text.find('#'); i != Nirgends; i = Text.find('#', i + 1))
        if (Beginnt_Ohne_Fall(Text.substr(i, Anfang_Wort.size()), Anfang_Wort))
            return true;
    return false;
}

void Makros_Einsetzen(std::string& Text)
{
    if (!Hat_Makros(Text))
        return;
    std::string Text_Gross = Gross(Text);
    std::size_t p          = Text_Gross.find(Anfang_Wort);
    std::string Fertig;
    std::size_t Ab = 0;
    for (; p != Nirgends; p = Text_Gross.find(Anfang_Wort, Ab)) {
        const Makro m = Makro_Lesen(Text, Text_Gross, p);
        Fertig.append(Text, Ab, p - Ab);
        for (std::size_t i = 0; i < m.Zeilen; ++i)
            Fertig += CRLF;
        Ab = m.Danach;
        if (Text_Gross.find(m.Name, Ab) != Nirgends) {
            Text = Rumpf_Einsetzen(Fertig, Text, Text_Gross, m);
            Gross_In(Text, Text_Gross);
            Ab = 0;
        }
    }
    Text = Fertig.append(Text, Ab);
}

bool Ist_Include()
{
    const std::string_view Text = Diese_Zeile().Text;
    return Text.size() > 7 && Beginnt_Ohne_Fall(Text, "INCLUDE");
}

void Include_Lesen()
{
    const std::string Name = Include_Name();
    Fund              f    = Datei_Finden(Name);
    if (Name.size() >= 2 && Gleich_Ohne_Fall(std::string_view(Name).substr(Name.size() - 2), "MC"))
        f.Herkunft = Herkunft_Prozessorfile;
    if (!f.Bytes)
        Datei_Fehlt(f.Herkunft);
    if (Include_Liste.size() >= Includes_Hoechstens)
        Fehler("Es sind höchstens 100 Include-Dateien möglich !",
               "No more than 100 include files are possible !");
    std::vector<Quell_Zeile> Zeilen =
        In_Zeilen(Text_Entschluesseln(std::move(*f.Bytes)).Text, f.Herkunft);
    Include_Liste.push_back({Zeilen_Index, static_cast<int>(Zeilen.size()), f.Pfad.string()});
    Zeilen_Einsetzen(std::move(Zeilen));
    --Zeilen_Index;
}

bool Bedingung_Versuchen()
{
    const bool Nicht = Form_Jetzt() == "#IF NOT DEBUGGING";
    if (!Nicht && Form_Jetzt() != "#IF DEBUGGING")
        return false;
    const bool Erfuellt = Debugger_Aktiv != Nicht;
    if (Erfuellt && Lauf.Ohne_Ende_IF)
        return true;
    int  z    = Zeilen_Index;
    bool Ende = false;
    for (; !Ende && z < Zeilen_Anzahl(); ++z) {
        Quell_Zeile& Zeile = Quell_Zeilen[static_cast<std::size_t>(z)];
        Ende               = Gleich_Ohne_Fall(Zeile.Text, "#END IF");
        if (Ende || !Erfuellt) {
            Zeile.Text.Leeren();
            Zeile.Adresse = Adress_Zaehler;
        }
    }
    Lauf.Ohne_Ende_IF = !Ende;
    if (!Erfuellt)
        Zeilen_Index = z - 1; // the #END IF, or the last row when there is none
    return true;
}

} // namespace varnholt
