// Messages in both languages, chosen by `Sprache` at the point of use.
#include "core/messages.h"

#include "core/shared_state.h"

namespace varnholt {
std::string In_Sprache(const Text_Paar& Text) { return Sprache == "D" ? Text.D : Text.E; }

void Melden(const Text_Paar& Text, const Text_Paar& Titel, Knoepfe Tasten, Symbol Zeichen)
{
    if (Sprache == "D" || Sprache == "E")
        Antwort = Plattform.Box->Zeigen({In_Sprache(Titel), In_Sprache(Text), Tasten, Zeichen});
}

} // namespace varnholt
