// Encodings and line ends of source texts. The bytes of the loaded file stay the measure of saving:
// a line that is written anew gets the file's encoding and usual line end, any other its old bytes.
#include "files/Textdatei.h"

#include "core/codepage.h"
#include "core/shared_state.h"
#include "files/Zeilenabgleich.h"
#include "files/Zeilenleser.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace varnholt {
namespace {

constexpr std::string_view BOM = "\xEF\xBB\xBF"; // byte order mark of UTF-8

// How often each line end stands in a text.
struct Enden_T {
    std::size_t CR_LF = 0, LF = 0, CR = 0;
};

bool Nur_ASCII(std::string_view Bytes)
{
    unsigned char Alle = 0;
    for (const char c : Bytes)
        Alle = static_cast<unsigned char>(Alle | static_cast<unsigned char>(c));
    return Alle < 0x80;
}

// The encoding of bytes that aren't all ASCII.
Kodierung Zeichensatz_Erkennen(std::string_view Bytes)
{
    if (!Ist_UTF8(Bytes))
        return Kodierung::Windows_1252;
    return Bytes.starts_with(BOM) ? Kodierung::UTF8_mit_BOM : Kodierung::UTF8;
}

std::string_view Ohne_BOM(std::string_view Bytes, Kodierung Zeichensatz)
{
    return Zeichensatz == Kodierung::UTF8_mit_BOM ? Bytes.substr(BOM.size()) : Bytes;
}

// Whether a UTF-8 text that became Aus_1252 has lost a character by that.
bool Hat_Fremde(std::string_view UTF8, std::string_view Aus_1252)
{
    return std::count(Aus_1252.begin(), Aus_1252.end(), '?') >
           std::count(UTF8.begin(), UTF8.end(), '?');
}

Enden_T Enden_Zaehlen(std::string_view t)
{
    Enden_T Zahl;
    for (std::size_t i = t.find('\n'); i != std::string_view::npos; i = t.find('\n', i + 1))
        ++(i > 0 && t[i - 1] == '\r' ? Zahl.CR_LF : Zahl.LF);
    for (std::size_t i = t.find('\r'); i != std::string_view::npos; i = t.find('\r', i + 1))
        ++Zahl.CR;
    Zahl.CR -= Zahl.CR_LF;
    return Zahl;
}

Zeilenende Haeufigstes(const Enden_T& Zahl)
{
    if (Zahl.CR_LF >= Zahl.LF && Zahl.CR_LF >= Zahl.CR)
        return Zeilenende::CR_LF;
    return Zahl.LF >= Zahl.CR ? Zeilenende::LF : Zeilenende::CR;
}

std::string_view Zeichen_Des_Endes(Zeilenende Ende)
{
    switch (Ende) {
    case Zeilenende::LF:
        return "\n";
    case Zeilenende::CR:
        return "\r";
    case Zeilenende::CR_LF:
        break;
    }
    return CRLF;
}

// The usual case of a text whose lines end in LF alone.
std::string Aus_LF(std::string_view Text, std::string Ziel)
{
    for (std::size_t LF = Text.find('\n'); LF != std::string_view::npos; LF = Text.find('\n')) {
        Ziel.append(Text.substr(0, LF)).append(CRLF);
        Text.remove_prefix(LF + 1);
    }
    return Ziel.append(Text);
}

std::string Mit_CRLF(std::string_view Text, const Enden_T& Zahl)
{
    if (Zahl.LF == 0 && Zahl.CR == 0)
        return std::string(Text);
    if (Zahl.CR != 0 || Zahl.CR_LF != 0)
        return Mit_CR_LF(Text);
    std::string Ziel;
    Ziel.reserve(Text.size() + Zahl.LF);
    return Aus_LF(Text, std::move(Ziel));
}

std::vector<Textzeile_T> In_Zeilen(std::string_view t)
{
    std::vector<Textzeile_T> Zeilen;
    Zeilenleser              Leser(t);
    for (Textzeile_T Zeile; Leser.Weiter(Zeile);)
        Zeilen.push_back(Zeile);
    return Zeilen;
}

std::vector<std::string_view> Inhalte(const std::vector<Textzeile_T>& Zeilen)
{
    std::vector<std::string_view> Ergebnis;
    Ergebnis.reserve(Zeilen.size());
    for (const Textzeile_T& z : Zeilen)
        Ergebnis.push_back(z.Inhalt);
    return Ergebnis;
}

// An LF behind the CR of the line before would make one line end of two: such a line gets CR LF.
void Zeile_Anhaengen(std::string& Ziel, std::string_view Inhalt, std::string_view Ende)
{
    const bool Verschmilzt = Inhalt.empty() && Ende == "\n" && Ziel.ends_with('\r');
    Ziel += Inhalt;
    Ziel += Verschmilzt ? CRLF : Ende;
}

// The text as it was given into the control and came back from there, in UTF-8.
std::string Alter_Text(const Textdatei_T& Vorlage)
{
    return Vorlage.Gezeigt.empty() ? Ganzer_Text(Text_Entschluesseln(Vorlage.Original))
                                   : Vorlage.Gezeigt;
}

// The original bytes of unchanged lines, and how a line is written in the target's encoding.
class Zeilenschreiber {
public:
    Zeilenschreiber(const Textdatei_T& Datei, Kodierung Ziel)
        : Bytes(In_Zeilen(Ohne_BOM(Datei.Original, Datei.Zeichensatz))),
          Neues_Ende(Zeichen_Des_Endes(Datei.Ende)), Umschreiben(Datei.Zeichensatz != Ziel),
          Als_1252(Ziel == Kodierung::Windows_1252)
    {
    }

    std::size_t Zeilen() const { return Bytes.size(); }

    // A line of the text, which is the line Alt_Nummer of the file or none of it.
    void Schreiben(std::string& Ziel, const Textzeile_T& Zeile, std::size_t Alt_Nummer) const
    {
        const bool             Bekannt = Alt_Nummer < Bytes.size();
        const Textzeile_T      Alt     = Bekannt ? Bytes[Alt_Nummer] : Textzeile_T{};
        const std::string_view Ende    = Alt.Ende.empty() ? Neues_Ende : Alt.Ende;
        Zeile_Anhaengen(Ziel,
                        Bekannt ? Alte_Zeile(Alt.Inhalt) : Neue_Zeile(Zeile.Inhalt),
                        Zeile.Ende.empty() ? std::string_view{} : Ende);
    }

private:
    std::string Alte_Zeile(std::string_view z) const
    {
        return Umschreiben ? Nach_UTF8(z) : std::string(z);
    }
    std::string Neue_Zeile(std::string_view z) const
    {
        return Als_1252 ? Aus_UTF8(z) : std::string(z);
    }

    std::vector<Textzeile_T> Bytes;
    std::string_view         Neues_Ende;
    bool                     Umschreiben; // from Windows-1252 to UTF-8
    bool                     Als_1252;
};

// The bytes of an edited text, without a byte order mark.
std::string Geaenderte_Bytes(std::string_view   Text,
                             std::string_view   Alt_Text,
                             const Textdatei_T& Vorlage,
                             Kodierung          Ziel_Kodierung)
{
    const Zeilenschreiber          Schreiber(Vorlage, Ziel_Kodierung);
    const std::vector<Textzeile_T> Neu = In_Zeilen(Text);
    std::vector<Textzeile_T>       Alt = In_Zeilen(Alt_Text);
    if (Alt.size() != Schreiber.Zeilen())
        Alt.clear(); // the control has its own idea of lines: then all are written anew
    const auto  Alt_Von = Zeilen_Zuordnen(Inhalte(Alt), Inhalte(Neu));
    std::string Ziel;
    Ziel.reserve(Text.size() + Text.size() / 8);
    for (std::size_t i = 0; i < Neu.size(); ++i)
        Schreiber.Schreiben(Ziel, Neu[i], Alt_Von[i]);
    return Ziel;
}

// Windows-1252 only while it has all characters of the text.
Kodierung Ziel_Kodierung(std::string_view Text, const Textdatei_T& Vorlage)
{
    const bool Reicht = Vorlage.Zeichensatz != Kodierung::Windows_1252 || Nur_ASCII(Text) ||
                        !Hat_Fremde(Text, Aus_UTF8(Text));
    return Reicht ? Vorlage.Zeichensatz : Kodierung::UTF8;
}

const char* Umgebung(const char* Name)
{
    const char* Wert = std::getenv(Name);
    return Wert != nullptr && *Wert != 0 ? Wert : nullptr;
}

} // namespace

std::string Mit_CR_LF(std::string_view Text)
{
    std::string Ziel;
    Ziel.reserve(Text.size() + Text.size() / 16);
    Zeilenleser Leser(Text);
    for (Textzeile_T Zeile; Leser.Weiter(Zeile);) {
        Ziel += Zeile.Inhalt;
        if (!Zeile.Ende.empty())
            Ziel += CRLF;
    }
    return Ziel;
}

Textdatei_T Text_Entschluesseln(std::string Bytes)
{
    Textdatei_T Datei;
    const bool  ASCII             = Nur_ASCII(Bytes); // the same in every encoding
    Datei.Zeichensatz             = ASCII ? Kodierung::UTF8 : Zeichensatz_Erkennen(Bytes);
    const std::string_view Inhalt = Ohne_BOM(Bytes, Datei.Zeichensatz);
    const Enden_T          Zahl   = Enden_Zaehlen(Inhalt);
    Datei.Ende                    = Haeufigstes(Zahl);
    if (ASCII || Datei.Zeichensatz == Kodierung::Windows_1252) {
        Datei.Text = Mit_CRLF(Inhalt, Zahl);
    } else {
        const std::string Umgesetzt = Aus_UTF8(Inhalt);
        Datei.Text                  = Mit_CRLF(Umgesetzt, Zahl);
        if (Hat_Fremde(Inhalt, Umgesetzt))
            Datei.Text_UTF8 = Mit_CRLF(Inhalt, Zahl);
    }
    Datei.Original = std::move(Bytes);
    return Datei;
}

std::string Ganzer_Text(const Textdatei_T& Datei)
{
    return Datei.Text_UTF8.empty() ? Nach_UTF8(Datei.Text) : Datei.Text_UTF8;
}

std::string Text_Verschluesseln(std::string_view Text, const Textdatei_T& Vorlage)
{
    const std::string Alt = Alter_Text(Vorlage);
    if (Text == Alt && !Vorlage.Original.empty())
        return Vorlage.Original;
    const Kodierung Ziel  = Ziel_Kodierung(Text, Vorlage);
    std::string     Bytes = Geaenderte_Bytes(Text, Alt, Vorlage, Ziel);
    if (Ziel == Kodierung::Windows_1252)
        // What happens to be UTF-8 would be read as such: then it is better UTF-8 of the right
        // text.
        return Nur_ASCII(Bytes) || !Ist_UTF8(Bytes) ? Bytes : Nach_UTF8(Bytes);
    // A character of the number of the mark at the beginning is kept apart from it by a real mark.
    if (Ziel == Kodierung::UTF8_mit_BOM || Bytes.starts_with(BOM))
        Bytes.insert(0, BOM);
    return Bytes;
}

Textdatei_T Gespeicherte_Textdatei(std::string Bytes, const Textdatei_T& Vorlage)
{
    Textdatei_T Datei = Text_Entschluesseln(std::move(Bytes));
    if (Nur_ASCII(Datei.Original))
        Datei.Zeichensatz = Vorlage.Zeichensatz;
    if (Datei.Text.find('\n') == std::string::npos)
        Datei.Ende = Vorlage.Ende;
    return Datei;
}

Kodierung Kodierung_Nach_Locale(std::string_view Locale)
{
    const std::string Name = Gross(Locale);
    const bool        UTF8 =
        Name.find("UTF-8") != std::string::npos || Name.find("UTF8") != std::string::npos;
    return UTF8 ? Kodierung::UTF8 : Kodierung::Windows_1252;
}

Textdatei_T Neue_Textdatei()
{
    Textdatei_T Datei;
    for (const char* Name : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* Wert = Umgebung(Name)) {
            Datei.Zeichensatz = Kodierung_Nach_Locale(Wert);
            return Datei;
        }
    Datei.Zeichensatz = Kodierung::Windows_1252; // the locale "C"
    return Datei;
}

} // namespace varnholt
