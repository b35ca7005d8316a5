// The note file beside a document.
#include "files/Notizen.h"

#include "core/platform.h"
#include "core/shared_state.h"
#include "editors/Quelltext_Sperre.h"
#include "files/Datei_Zustand.h"
#include "files/Dateimeldungen.h"
#include "files/Dateinamen.h"

#include <filesystem>

namespace varnholt {
namespace {

// The document's name without its extension, and another one. A name that has no room for an
// extension keeps all of itself: its last four characters would reach into the folder.
std::string Neben_Dem_Dokument(std::string_view Endung)
{
    constexpr std::size_t  Endung_Laenge = 4;
    const std::string      Name          = std::filesystem::path(Datei_Name).filename().string();
    const std::string_view Stamm         = Name.size() > Endung_Laenge
                                               ? Ohne_Letzte_Zeichen(Datei_Name, Endung_Laenge)
                                               : std::string_view(Datei_Name);
    return std::string(Stamm).append(Endung);
}

bool Vorhanden(const std::string& Name)
{
    std::error_code Fehler;
    return std::filesystem::is_regular_file(Name, Fehler);
}

// The file to load, empty when there is none.
std::string Notiz_Datei_Suchen(bool Mit_RTF)
{
    if (std::string Name = Neben_Dem_Dokument(".not"); Vorhanden(Name))
        return Name;
    const std::string Name = Neben_Dem_Dokument(".rtf");
    return Mit_RTF && Vorhanden(Name) ? Name : std::string{};
}

} // namespace

void Notiz_Laden(bool Mit_RTF)
{
    Notiz_Datei            = {};
    const std::string Name = Notiz_Datei_Suchen(Mit_RTF);
    if (!Name.empty() && Name != Datei_Name)
        if (auto Bytes = Ganze_Datei_Lesen(Name, Textdatei_Hoechstens))
            Notiz_Datei = Text_Entschluesseln(std::move(*Bytes));
    const Edit_Ruhe Ruhe;
    In_Textfeld_Geben(Notiz_Datei, *Plattform.Notiz);
}

void Notiz_Speichern()
{
    const std::string Name = Neben_Dem_Dokument(".not");
    if (Plattform.Notiz->Laenge() == 0 || Name == Datei_Name)
        return; // a document of that very name is not to be lost
    Textdatei_Speichern(Name, *Plattform.Notiz, Notiz_Datei);
}

} // namespace varnholt
