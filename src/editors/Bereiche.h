// The three dialogs `Bereich_Kopieren`, `Bereich_entfernen` and `Bereich_Setzen` as one model: a
// range of the image by its addresses, and what becomes of it. A window shows the fields and
// forwards the events. The commands that open them are in core/commands.h.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

enum class Bereich_Art { Kopieren, Setzen, Entfernen };

// An address, or the fill value of `Bereich_Setzen` (Insert_Start, 0 to 255), as two fields.
enum class Adress_Paar { Copy_Start, Copy_End, Insert_Start, Paste_Start, Paste_End };
inline constexpr std::size_t Adress_Paare = 5;

// The fields of a pair. The decimal one says what holds: below 0 it is no address.
struct Paar_T {
    std::string Dez                             = "0";
    std::string Hex                             = "0";
    bool        operator==(const Paar_T&) const = default;
};

// What the controls show. Holds while a dialog is open.
inline struct Bereich_Form_T {
    Bereich_Art                      Art = Bereich_Art::Kopieren;
    std::array<Paar_T, Adress_Paare> Paare{};               // by Adress_Paar
    bool                             Überschreiben = false; // the radio pair of `Bereich_Kopieren`
    bool                             C_OK_Aktiv    = true;  // the button can be pressed
} Bereich_Form;

// The state as at program start.
inline void Bereich_Zuruecksetzen() { Bereich_Form = {}; }

namespace Bereich {

// Caption of a control in the interface language, UTF-8. Headings hold those of the two columns;
// the title and the heading of the open dialog are "Titel" and "Kopf".
std::string_view Text(std::string_view Name);

const Paar_T& Paar(Adress_Paar Welches);
// Whether the radio pair lets the fields of a pair be used.
[[nodiscard]] bool Paar_Aktiv(Adress_Paar Welches);

// The form's load handler: all fields 0.   sets: Bereich_Form
void Form_Load(Bereich_Art Art);
// A field was changed: its partner follows; the decimal field is rewritten as its number, the
// hexadecimal one stays as typed. The fill value is drawn into 0 to 255, in both fields.
// C_OK can be pressed as long as start <= end, and every address is one.   sets: Bereich_Form
void Dez_Change(Adress_Paar Welches, std::string_view Neuer);
void Hex_Change(Adress_Paar Welches, std::string_view Neuer);
// Whether a hexadecimal field takes a key, by its character code.
[[nodiscard]] bool Hex_KeyPress(int Taste);
void               O_Kopie_Einfügen_Click();
void               O_Kopie_Überschreiben_Click();
// Does what the dialog is for; it stays open. Nothing while the button is disabled.
// reads: Bereich_Form   sets: Hex_Daten, page; `Bereich_Kopieren`: Hex_Puffer (the range)
void C_OK_Click();
void C_Abort_Click(); // closes the dialog, the image stays

} // namespace Bereich
} // namespace varnholt
