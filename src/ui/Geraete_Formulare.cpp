// The forms of the device programmer.
#include "ui/Geraete_Formulare.h"

#include "core/settings.h"
#include "programmer/Geraetemenue.h"
#include "ui/Board_Fenster.h"
#include "ui/Brennmenue_Dialog.h"
#include "ui/CheckIC_Fenster.h"
#include "ui/Jumper_Fenster.h"
#include "ui/Lock_Dialog.h"
#include "ui/MDI.h"
#include "ui/Versions_Dialog.h"

#include <functional>
#include <type_traits>

namespace varnholt {
namespace {

// With the way to the commands where the form has some.
template <class Form_T> std::unique_ptr<QWidget> Gebaut(MDI& Haupt)
{
    const auto Weg = [&Haupt](const std::function<void()>& Befehl) { Haupt.Ausfuehren(Befehl); };
    if constexpr (std::is_constructible_v<Form_T, Befehls_Weg, QWidget*>)
        return std::make_unique<Form_T>(Weg, &Haupt);
    else
        return std::make_unique<Form_T>(&Haupt);
}

// A form that stays open: built at its first showing.
template <class Form_T> void Offen_Zeigen(MDI& Haupt, std::unique_ptr<QWidget>& Form)
{
    if (!Form)
        Form = Gebaut<Form_T>(Haupt);
    static_cast<Form_T*>(Form.get())->Nachziehen();
    Form->show();
    Form->raise();
}

void Version_Erfragen(MDI& Haupt, bool Eprommer)
{
    if (Eprommer) {
        Versions_Dialog Dialog("Wahl_Eprommer_Version",
                               Wahl_Eprommer_Version(),
                               Eprommer_Version,
                               Wahl_Eprommer_Version_Click,
                               &Haupt);
        Dialog.exec();
    } else {
        Versions_Dialog Dialog("Wahl_Tessel2_Version",
                               Wahl_Tessel2_Version(),
                               Tessel2_Version,
                               Wahl_Tessel2_Version_Click,
                               &Haupt);
        Dialog.exec();
    }
}

} // namespace

bool Geraete_Formular_Zeigen(MDI& Haupt, Formular Welches, std::unique_ptr<QWidget>& Form)
{
    switch (Welches) {
    case Formular::F_Jumper:
        Offen_Zeigen<Jumper_Fenster>(Haupt, Form);
        return true;
    case Formular::F_Board:
        Offen_Zeigen<Board_Fenster>(Haupt, Form);
        return true;
    case Formular::F_CheckIC:
        Offen_Zeigen<CheckIC_Fenster>(Haupt, Form);
        return true;
    case Formular::F_Brennmenue:
        Brennmenue_Dialog(&Haupt).exec();
        return true;
    case Formular::F_Lockmenu:
        Lock_Dialog(&Haupt).exec();
        return true;
    case Formular::F_Wahl_Eprommer_Version:
    case Formular::F_Wahl_Tessel2_Version:
        Version_Erfragen(Haupt, Welches == Formular::F_Wahl_Eprommer_Version);
        return true;
    default:
        return false;
    }
}

} // namespace varnholt
