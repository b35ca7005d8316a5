// The question before the first edit of an image that was made from a source text.
#include "core/captions.h"
#include "core/commands.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "files/Datei_Zustand.h"

namespace varnholt {
namespace {

// True when the user gives up the source text. Without a valid language nothing can be asked, and
// the text stays.
bool Quelltext_Aufgeben()
{
    Antwort = Antwort_Abbrechen;
    Melden({"Durch Veränderung im HexEditor können die Kommentare und Formatierungen im Texteditor "
            "verloren gehen!\r\nMöchten Sie die Daten im Hex-Editor trotzdem bearbeiten?",
            "If you change something in the hex editor all comments in the text editor will be "
            "lost!\r\nDo you want to change the data in the hex-editor anyway?"},
           {"Achtung!", "Please note:"},
           Knoepfe::Ja_Nein_Abbrechen,
           Symbol::Frage);
    return Antwort == Antwort_Ja;
}

} // namespace

void Änderung()
{
    if (Text_Aktuell && Plattform.Edit->Laenge() > 0) {
        if (!Quelltext_Aufgeben()) {
            Abbruch = true;
            return;
        }
        Datei_Name.clear();
        Plattform.Edit->Text_Setzen({});
        Quell_Datei = {};
        Sprungmarken_Fuellen();
    }
    Text_Aktuell    = false;
    Datei_Geaendert = true;
    Editor_Titel(Fenster_Hexedit, true);
}

bool Änderung_Erlaubt()
{
    Abbruch = false;
    Änderung();
    return !Abbruch;
}

} // namespace varnholt
