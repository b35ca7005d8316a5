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

namespace varnholt {
namespace {

int Laden(const std::string& Name, int Neuer_Modus)
{
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Eingabe);
    Modus       = Neuer_Modus;
    Dialog_Name = Datei.Pfad();
    Datei_Laden();
    if (Name == "-")
        Datei_Name.clear();
    return Status_Der_Datei();
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

} // namespace

int Quelle_Laden(const std::string& Name)
{
    if (Typ_Beim_Laden(Name, Modus_MC) != Dateityp::Quelltext)
        return Falsche_Zeile(Name + " is an image, not a source");
    const int Status     = Laden(Name, Modus_MC);
    Quell_Datei.Original = {}; // the source is never saved here
    return Status;
}

bool Quelle_Assemblieren(const std::string& Name, bool Debug)
{
    Debugger_Aktiv = Debug;
    {
        const Ohne_Fehlerbox Still;
        Assemblieren();
    }
    Debugger_Aktiv = false;
    if (Assembler_Fehler == 0)
        return true;
    Assembler_Fehler = 0;
    if (!Fehlertext.E.empty())
        Auf_Fehlerausgabe(Name + ":" + std::to_string(Fehler_Zeile + 1) +
                          ": error: " + In_Sprache(Fehlertext));
    return false;
}

int Bild_Laden_Von(const std::string& Name)
{
    if (Ist_Quelle(Name))
        return Falsche_Zeile(Name + " is a source; assemble it first");
    return Laden(Name, Modus_Hex);
}

int Bild_Importieren_Von(const std::string& Name, std::int32_t Adresse)
{
    if (Ist_Quelle(Name))
        return Falsche_Zeile(Name + " is a source; assemble it first");
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Eingabe);
    Modus       = Modus_Hex;
    Dialog_Name = Datei.Pfad();
    Datei_Importieren(Adresse);
    return Status_Der_Datei();
}

int Bild_Speichern_Unter(const std::string& Name)
{
    const Strom_Datei Datei(Name, Strom_Datei::Richtung::Ausgabe);
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

int Quelle_Oder_Bild_Laden(const std::string& Name)
{
    if (!Ist_Quelle(Name))
        return Bild_Laden_Von(Name);
    if (const int Status = Quelle_Laden(Name); Status != Status_Fertig)
        return Status;
    return Quelle_Assemblieren(Name, false) ? Status_Der_Datei() : Status_Misslungen;
}

} // namespace varnholt
