// The commands that leave the program: web pages, a mail, the help, and what the program is.
#include "core/web.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/shared_state.h"
#include "core/version.h"

namespace varnholt {
namespace {

const std::string Mail_Adresse = "service@quelmark.example";

bool Bleibt(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           std::string_view("-._~").find(c) != std::string_view::npos;
}

// Hands a location to the shell; false, after a notice, when it doesn't take it.
bool Ort_Oeffnen(const std::string& Ort)
{
    const bool Genommen = Plattform.Umgebung->Oeffnen(Ort);
    if (!Genommen)
        Plattform.Box->Hinweisen(
            In_Sprache({Ort + " konnte nicht geöffnet werden.", Ort + " could not be opened."}));
    return Genommen;
}

// The first page of the handbook; false, after a notice, when it can't be shown.
bool Handbuch_Oeffnen()
{
    const bool        Englisch = Sprache == "E";
    const std::string Ordner   = Programm_Pfad + (Englisch ? "Help" : "Hilfe");
    const char* const Name     = Englisch ? "Help-Index.htm" : "Hilfe-Index.htm";
    if (const auto Datei = Datei_Suchen(Ordner, Name))
        return Ort_Oeffnen(Datei->string());
    const std::string Ort = (std::filesystem::path(Ordner) / Name).string();
    Plattform.Box->Hinweisen(In_Sprache({"Die Hilfe ist nicht installiert: " + Ort + " fehlt.",
                                         "The help is not installed: " + Ort + " is missing."}));
    return false;
}

// A page of the maker's in the language of the interface.
void Seite_Oeffnen(const char* Deutsche, const char* Englische)
{
    CallWebSite(std::string("https://www.quelmark.example/") +
                (Sprache == "D" ? Deutsche : Englische));
}

} // namespace

std::string Prozent_Kodiert(std::string_view Text)
{
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    std::string                Ziel;
    for (const char c : Text) {
        const auto b = static_cast<unsigned char>(c);
        if (Bleibt(c))
            Ziel += c;
        else
            (Ziel += '%').append({Ziffern[b / 16u], Ziffern[b % 16u]});
    }
    return Ziel;
}

std::string Mail_Ort(std::string_view Adresse, std::string_view Betreff, std::string_view Text)
{
    return std::string("mailto:")
        .append(Adresse)
        .append("?Subject=")
        .append(Prozent_Kodiert(Betreff))
        .append("&Body=")
        .append(Prozent_Kodiert(Text));
}

void CallWebSite(const std::string& url) { Ort_Oeffnen(url); }

void MNU_S_Quelmark_Click() { Seite_Oeffnen("de/", "en/"); }
void MNU_S_Update_Click() { Seite_Oeffnen("de/varnholt/update/", "en/varnholt/update/"); }
void MNU_S_Forum_Click() { Seite_Oeffnen("de/forum/", "en/board/"); }
void MNU_S_Bücher_Click() { Seite_Oeffnen("de/buecher/", "en/books/"); }

void MNU_S_Mail_Click()
{
    const std::string Betreff = std::string(Programm_Name).append(" ").append(Programm_Version);
    const std::string Anrede =
        In_Sprache({"Sehr geehrte Damen und Herren,\r\n\r\n", "Dear Sir or Madam,\r\n\r\n"});
    CallWebSite(Mail_Ort(Mail_Adresse, Betreff, Anrede));
}

// Where the handbook can't be shown, the short help of the program's own does instead.
void MNU_Help_Click()
{
    if (!Handbuch_Oeffnen())
        Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
}

void MNU_Info_Click()
{
    const std::string Name = std::string(Programm_Name).append(" ").append(Programm_Version);
    Melden({Name, Name}, {"Info", "About"});
}

} // namespace varnholt
