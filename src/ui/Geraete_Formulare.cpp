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

namespace varnholt {
namespace {

void Offen_Zeigen(QWidget& Form)
{
    Form.show();
    Form.raise();
}

void Jumper_Zeigen(MDI& Haupt, std::unique_ptr<QWidget>& Form)
{
    if (!Form)
        Form = std::make_unique<Jumper_Fenster>(&Haupt);
    static_cast<Jumper_Fenster*>(Form.get())->Nachziehen();
    Offen_Zeigen(*Form);
}

void CheckIC_Zeigen(MDI& Haupt, std::unique_ptr<QWidget>& Form)
{
    if (!Form)
        Form = std::make_unique<CheckIC_Fenster>(
            [&Haupt](const std::function<void()>& Befehl) { Haupt.Ausfuehren(Befehl); }, &Haupt);
    static_cast<CheckIC_Fenster*>(Form.get())->Nachziehen();
    Offen_Zeigen(*Form);
}

void Board_Zeigen(MDI& Haupt, std::unique_ptr<QWidget>& Form)
{
    if (!Form)
        Form = std::make_unique<Board_Fenster>(
            [&Haupt](const std::function<void()>& Befehl) { Haupt.Ausfuehren(Befehl); }, &Haupt);
    static_cast<Board_Fenster*>(Form.get())->Nachziehen();
    Offen_Zeigen(*Form);
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
        Jumper_Zeigen(Haupt, Form);
        return true;
    case Formular::F_Board:
        Board_Zeigen(Haupt, Form);
        return true;
    case Formular::F_CheckIC:
        CheckIC_Zeigen(Haupt, Form);
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
