// What a file's name says: its format on loading and on saving, its base, and which name and filter
// a save dialog proposes. Names are UTF-8; characters are counted, not bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnholt {

enum class Dateityp { Quelltext, Rohdaten, Intel_Hex, Motorola_S, Dat };

// The last Anzahl characters of a name, and the name without them; short names end in nothing.
std::string_view Letzte_Zeichen(std::string_view Name, int Anzahl);
std::string_view Ohne_Letzte_Zeichen(std::string_view Name, int Anzahl);

// Format of a file that is loaded in that mode, by the last three characters; unknown ones follow
// the mode, and a .TXT in Hex-Editor mode is raw data.
Dateityp Typ_Beim_Laden(std::string_view Name, int Modus_Jetzt);
// Format of the image when it is saved under that name, by the last four characters; raw bytes by
// default, so that a source extension gives raw bytes too.
Dateityp Typ_Beim_Speichern(std::string_view Name);

// A save has to ask for a name first: there is none, or it is one of the other mode's kind.
bool Name_Zu_Erfragen(std::string_view Name, int Modus_Jetzt);

// What the save dialog opens with.
struct Speicher_Vorschlag {
    std::string Name{}; // the document's name, with the extension of the mode
    int  Filter = 0;    // 1 source, 2 binary, 3 Intel-HEX, 4 Motorola, 5 DAT, 0 as it stood before
    bool operator==(const Speicher_Vorschlag&) const = default;
};
Speicher_Vorschlag Vorschlag_Fuer(std::string_view Name, int Modus_Jetzt);

// The name that a save dialog meant: a second extension that it has added is dropped.
std::string Name_Aus_Dialog(std::string_view Name);

} // namespace varnholt
