// Reading and writing with a word to the user when it fails.
#include "files/Dateimeldungen.h"

#include "core/messages.h"
#include "files/Datei_Zustand.h"

namespace varnholt {
namespace {

void Nicht_Gelesen(const std::string& Name, const std::string& Grund)
{
    Plattform.Box->Hinweisen(
        In_Sprache({"Die Datei " + Name + " konnte nicht gelesen werden: " + Grund + ".",
                    "The file " + Name + " could not be read: " + Grund + "."}));
}

} // namespace

std::optional<Datei_Anfang_T> Dateianfang_Lesen(const std::string& Name, std::uintmax_t Hoechstens)
{
    std::string Grund;
    auto        Anfang = Datei_Anfang_Lesen(Name, Hoechstens, Grund);
    if (!Anfang)
        Nicht_Gelesen(Name, Grund);
    return Anfang;
}

std::optional<std::string> Ganze_Datei_Lesen(const std::string& Name, std::uintmax_t Hoechstens)
{
    auto Anfang = Dateianfang_Lesen(Name, Hoechstens);
    if (!Anfang)
        return std::nullopt;
    if (Anfang->Groesse <= Hoechstens)
        return std::move(Anfang->Bytes);
    const std::string Grenze = std::to_string(Hoechstens);
    Nicht_Gelesen(Name,
                  In_Sprache({"sie ist länger als " + Grenze + " Byte",
                              "it is longer than " + Grenze + " bytes"}));
    return std::nullopt;
}

bool Datei_Sichern(const std::string& Name, std::string_view Bytes)
{
    std::string Grund;
    if (Datei_Schreiben(Name, Bytes, Grund))
        return true;
    Datei_Fehler = Dateifehler::Schreibfehler;
    Plattform.Box->Hinweisen(
        In_Sprache({"Die Datei " + Name + " konnte nicht geschrieben werden: " + Grund + ".",
                    "The file " + Name + " could not be written: " + Grund + "."}));
    return false;
}

bool Textdatei_Speichern(const std::string& Name, std::string_view Text, Textdatei_T& Vorlage)
{
    const Textdatei_T Bisher = Vorlage.Original.empty() ? Neue_Textdatei() : Vorlage;
    std::string       Bytes  = Text_Verschluesseln(Text, Bisher);
    if (!Datei_Sichern(Name, Bytes))
        return false;
    Vorlage = Gespeicherte_Textdatei(std::move(Bytes), Bisher);
    return true;
}

} // namespace varnholt
