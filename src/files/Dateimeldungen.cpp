// Reading and writing with a word to the user when it fails.
#include "files/Dateimeldungen.h"

#include "core/messages.h"
#include "files/Datei_Zustand.h"

#include <utility>

namespace varnholt {
namespace {

void Nicht_Gelesen(const std::string& Name, const std::string& Grund)
{
    Plattform.Box->Hinweisen(
        In_Sprache({"Die Datei " + Name + " konnte nicht gelesen werden: " + Grund + ".",
                    "The file " + Name + " could not be read: " + Grund + "."}));
}

// The control holds Text for the file now. The file's own texts are no longer needed: what is asked
// of them later is made again from the bytes.
void Als_Gezeigt_Merken(Textdatei_T& Datei, const std::string& Text)
{
    Datei.Gezeigt   = Text == Ganzer_Text(Datei) ? std::string{} : Text;
    Datei.Text      = {};
    Datei.Text_UTF8 = {};
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

bool Textdatei_Speichern(const std::string& Name, const Textfeld& Feld, Textdatei_T& Vorlage)
{
    const std::string Text   = Feld.Text_UTF8();
    const Textdatei_T Bisher = Vorlage.Original.empty() ? Neue_Textdatei() : Vorlage;
    std::string       Bytes  = Text_Verschluesseln(Text, Bisher);
    if (!Datei_Sichern(Name, Bytes))
        return false;
    Vorlage = Gespeicherte_Textdatei(std::move(Bytes), Bisher);
    Als_Gezeigt_Merken(Vorlage, Text);
    return true;
}

void In_Textfeld_Geben(Textdatei_T& Datei, Textfeld& Feld)
{
    if (!Feld.Wird_Gezeigt()) {
        Datei.Text_UTF8 = {};
        return Feld.Text_Setzen(std::exchange(Datei.Text, {}));
    }
    if (Datei.Text_UTF8.empty())
        Feld.Text_Setzen(Datei.Text);
    else
        Feld.Text_Setzen_UTF8(Datei.Text_UTF8);
    Als_Gezeigt_Merken(Datei, Feld.Text_UTF8());
}

} // namespace varnholt
