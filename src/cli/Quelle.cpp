// What several commands do with files.
#include "cli/Quelle.h"

#include "cli/Argumente.h"
#include "cli/Kommandos.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "files/Dateinamen.h"
#include "files/Laden.h"
#include "language/Assembler_Zustand.h"
#include "language/Fehlermeldung.h"
#include "simulator/Sitzung.h"

#include <functional>
#include <utility>

namespace varnholt {
namespace {

int Laden(const std::string& Name, int Neuer_Modus)
{
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Eingabe);
    if (!Datei.Bereit())
        return Status_Datei;
    Modus       = Neuer_Modus;
    Dialog_Name = Datei.Pfad();
    Datei_Laden();
    if (Datei.Pfad() != Name)
        Datei_Name = Name == "-" ? std::string{} : Name;
    return Status_Der_Datei();
}

int Quelle_Statt_Bild(const std::string& Name)
{
    return Falsche_Zeile({Name + " ist ein Quelltext; bitte zuerst assemblieren",
                          Name + " is a source; assemble it first"});
}

// Swallows the error box of an assembly, whose text is printed with its place in front.
class Ohne_Fehlerbox : public Meldungsbox {
public:
    Ohne_Fehlerbox() { Plattform.Box = this; }
    ~Ohne_Fehlerbox() override { Plattform.Box = &Box; }
    Ohne_Fehlerbox(const Ohne_Fehlerbox&)            = delete;
    Ohne_Fehlerbox& operator=(const Ohne_Fehlerbox&) = delete;

    int Zeigen(const Meldung_T& Meldung) override
    {
        return Meldung.Bild == Symbol::Kritisch ? Antwort_Ok : Box.Zeigen(Meldung);
    }
    std::string Eingeben(std::string_view Text) override { return Box.Eingeben(Text); }
    void        Hinweisen(std::string_view Text) override { Box.Hinweisen(Text); }
    int Bereich_Waehlen(std::string_view Text) override { return Box.Bereich_Waehlen(Text); }

private:
    Meldungsbox& Box = *Plattform.Box;
};

// Runs an assembly; its error is printed with file and line.
bool Mit_Stelle(const std::string& Name, const std::function<bool()>& Assemblierung)
{
    Fehlertext = {};
    bool Gut   = false;
    {
        const Ohne_Fehlerbox Still;
        Gut = Assemblierung();
    }
    if (!Gut && !Fehlertext.E.empty())
        Auf_Fehlerausgabe(Name + ":" + std::to_string(Fehler_Zeile + 1) +
                          ": error: " + In_Sprache(Fehlertext));
    return Gut;
}

} // namespace

int Quelle_Laden(const std::string& Name)
{
    if (Typ_Beim_Laden(Name, Modus_MC) != Dateityp::Quelltext)
        return Falsche_Zeile(
            {Name + " ist ein Abbild und kein Quelltext", Name + " is an image, not a source"});
    const int Status     = Laden(Name, Modus_MC);
    Quell_Datei.Original = {}; // the source is never saved here
    return Status;
}

bool Quelle_Assemblieren(const std::string& Name, bool Debug)
{
    return Mit_Stelle(Name, [Debug] {
        Debugger_Aktiv = Debug;
        Assemblieren();
        Debugger_Aktiv = false;
        return std::exchange(Assembler_Fehler, 0) == 0;
    });
}

bool Quelle_Vorbereiten(const std::string& Name) { return Mit_Stelle(Name, Daten_Vorbereiten); }

int Bild_Laden_Von(const std::string& Name)
{
    if (Ist_Quelle(Name))
        return Quelle_Statt_Bild(Name);
    return Laden(Name, Modus_Hex);
}

int Bild_Importieren_Von(const std::string& Name, std::int32_t Adresse)
{
    if (Ist_Quelle(Name))
        return Quelle_Statt_Bild(Name);
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Eingabe);
    if (!Datei.Bereit())
        return Status_Datei;
    Modus       = Modus_Hex;
    Dialog_Name = Datei.Pfad();
    Datei_Importieren(Adresse);
    return Status_Der_Datei();
}

int Bildname_Pruefen(const std::string& Name)
{
    if (!Hat_Quell_Endung(Name))
        return Status_Fertig;
    return Falsche_Zeile({Name + " ist der Name eines Quelltextes und nicht der eines Abbilds",
                          Name + " is the name of a source, not of an image"});
}

int Bild_Speichern_Unter(const std::string& Name)
{
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Ausgabe);
    if (!Datei.Bereit())
        return Status_Datei;
    Plattform.Notiz->Text_Setzen({}); // the notes of the input are not those of the output
    Modus      = Modus_Hex;
    Datei_Name = Datei.Pfad();
    Datei_Speichern();
    if (const int Status = Status_Der_Datei(); Status != Status_Fertig)
        return Status;
    return Datei.Ausgeben() ? Status_Fertig : Status_Datei;
}

bool Ist_Quelle(const std::string& Name)
{
    return Typ_Beim_Laden(Name, Modus_Hex) == Dateityp::Quelltext;
}

bool Hat_Quell_Endung(const std::string& Name)
{
    return !Name.empty() && Name_Zu_Erfragen(Name, Modus_Hex);
}

} // namespace varnholt
