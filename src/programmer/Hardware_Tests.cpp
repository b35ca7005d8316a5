// The hardware tests as a state machine over message boxes.
#include "programmer/Hardware_Tests.h"

#include "core/commands.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "programmer/Brennrahmen.h"
#include "programmer/Geraete.h"
#include "programmer/Geraetemenue.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Signale.h"
#include "programmer/Special.h"

#include <string>
#include <utility>

namespace varnholt {
namespace {

// The board of the test at the simulated port for the life of this object; any other port is left
// as it is. The board of the chosen device waits with its part.
class Test_Board {
public:
    explicit Test_Board(const Test_Folge& Folge)
    {
        const auto* Jetzt = dynamic_cast<Simuliertes_Board*>(Port_Einrichtung.Treiber.get());
        if (Jetzt == nullptr || Plattform.Port != Port_Einrichtung.Treiber.get())
            return;
        Bisheriges     = std::exchange(Port_Einrichtung.Treiber, Folge.Leeres_Board(*Jetzt));
        Plattform.Port = Port_Einrichtung.Treiber.get();
        Porttreiber_Laden();
    }
    ~Test_Board()
    {
        if (Bisheriges == nullptr)
            return;
        Plattform.Port           = Bisheriges.get();
        Port_Einrichtung.Treiber = std::move(Bisheriges);
    }
    Test_Board(const Test_Board&)            = delete;
    Test_Board& operator=(const Test_Board&) = delete;

private:
    std::unique_ptr<Porttreiber> Bisheriges{};
};

// Each routine answers whether the sequence goes on.

bool Weiter_Nach(const Text_Paar& Text, const Text_Paar& Titel = {})
{
    Antwort = Antwort_Abbrechen;
    Melden(Text, Titel, Knoepfe::Ok_Abbrechen, Symbol::Hinweis);
    return Antwort != Antwort_Abbrechen;
}

bool Einfuehren(const Test_Folge& Folge)
{
    return Weiter_Nach(
               {"Der Hardware Test kann zwar nicht alle aber doch die meisten gängigen "
                "Probleme aufspüren.\r\n\r\nBitte lesen Sie sich die folgenden Texte genau "
                "durch und befolgen Sie die Anweisungen!",
                "The hardware test can not find all possible problems, but it will find the "
                "most probably.\r\n\r\nPlease read all following instructions carefully and "
                "follow them!"}) &&
           Weiter_Nach(Text_Von(Folge.Entnehmen));
}

// The jumper set of a step: a picture on the Eprommer, jumper J1 on the Tessel2 board.
bool Jumper_Stecken(const Test_Folge& Folge, int Baustein)
{
    if (!Folge.Mit_Bild)
        return Baustein != Erster_Test_Baustein ||
               Weiter_Nach({"Bitte entnehmen Sie den Jumper J1, falls dieser noch stecken sollte",
                            "Please take jumper J1 out if it's inserted."});
    IC_Nummer = Baustein;
    Jumper_Anzeige();
    if (Baustein == Erster_Test_Baustein)
        return Weiter_Nach({"Stecken Sie die Jumper bitte so, wie es die Grafik zeigt.",
                            "Please connect the jumper as shown on the grafik above."});
    return Weiter_Nach({"Stecken Sie die Jumper nun bitte so um, wie es die Grafik zeigt.",
                        "Please connect the jumper now as shown on the grafik above."});
}

// The patterns in order up to the first that isn't answered with Yes.
Ausgang Messen(const Mess_Test& Test)
{
    for (const Mess_Schritt& s : Test.Schritte) {
        s.Anlegen();
        if (const Ausgang a = Messung_Erfragen(s.Frage, Test.Titel); a != Ausgang::Gut)
            return a;
    }
    return Ausgang::Gut;
}

// The last of the tests has nothing behind its box that could be given up.
bool Erfolg_Melden(const Mess_Test& Test, bool Letzter)
{
    if (Test.Gut_Titel.D.empty())
        return true;
    if (!Letzter)
        return Weiter_Nach(Text_Von(Test.Gut), Text_Von(Test.Gut_Titel));
    Ergebnis_Melden(Test.Gut_Titel, Text_Von(Test.Gut), Symbol::Hinweis);
    return true;
}

bool Mess_Test_Bestehen(const Mess_Test& Test, bool Letzter)
{
    const Ausgang e = Messen(Test);
    if (Test.Danach != nullptr)
        Test.Danach();
    if (e == Ausgang::Schlecht)
        Ergebnis_Melden(Test.Schlecht_Titel, Text_Von(Test.Schlecht), Symbol::Warnung);
    return e == Ausgang::Gut && Erfolg_Melden(Test, Letzter);
}

// The answer of the automatic test's box: Cancel ends the sequence.
bool Automatisch_Bestehen(const Test_Folge& Folge)
{
    const Test1_Ergebnis e = Folge.Automatisch();
    if (Antwort == Antwort_Abbrechen)
        return false;
    if (e.Fehler > 0)
        Diagnose_Stellen(Folge.Brett);
    return e.Fehler == 0;
}

void Tests_Durchlaufen(const Test_Folge& Folge)
{
    int Baustein = Erster_Test_Baustein; // test 2 keeps the jumpers of test 1
    for (const Mess_Test& Test : Folge.Tests) {
        if (Baustein > Erster_Test_Baustein && !Jumper_Stecken(Folge, Baustein))
            return;
        if (!Mess_Test_Bestehen(Test, &Test == &Folge.Tests.back()))
            return;
        ++Baustein;
    }
}

// Up to the automatic test nothing is written: another board may still be at the port.
void Folge_Durchlaufen(const Test_Folge& Folge)
{
    if (!Einfuehren(Folge) || !Jumper_Stecken(Folge, Erster_Test_Baustein))
        return;
    if (Automatisch_Bestehen(Folge))
        Tests_Durchlaufen(Folge);
    if (Folge.Ruhe_Byte != Ohne_Ruhe_Byte)
        Daten_Senden(Folge.Ruhe_Byte);
}

} // namespace

Text_Paar Text_Von(const Festes_Paar& Text) { return {std::string(Text.D), std::string(Text.E)}; }

Ausgang Messung_Erfragen(const Festes_Paar& Frage, const Festes_Paar& Titel)
{
    Antwort = Antwort_Abbrechen;
    Melden(Text_Von(Frage), Text_Von(Titel), Knoepfe::Ja_Nein_Abbrechen, Symbol::Frage);
    if (Antwort == Antwort_Abbrechen)
        return Ausgang::Ende;
    return Antwort == Antwort_Nein ? Ausgang::Schlecht : Ausgang::Gut;
}

void Ergebnis_Melden(const Festes_Paar& Titel, const Text_Paar& Text, Symbol Zeichen)
{
    Melden(Text, Text_Von(Titel), Knoepfe::Ok, Zeichen);
}

void Hardware_Test(const Test_Folge& Folge)
{
    const Test_Board Board(Folge);
    const int        Vorher = IC_Nummer;
    Folge_Durchlaufen(Folge);
    IC_Nummer = Vorher;
    if (Folge.Mit_Bild)
        Plattform.Fenster->Formular_Entladen(Formular::F_Jumper);
}

void MNU_Eprommer_Test_Click()
{
    if (Eprommer_Version_Erfragen())
        Hardware_Test(Eprommer_Folge());
}

void MNU_Tessel2_Test_Click()
{
    if (Tessel2_Version_Erfragen())
        Hardware_Test(Tessel2_Folge());
}

} // namespace varnholt
