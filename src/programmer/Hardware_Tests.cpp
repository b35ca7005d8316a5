// The hardware tests as a state machine over message boxes.
#include "programmer/Hardware_Tests.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/platform.h"
#include "core/shared_state.h"
#include "programmer/Geraete.h"
#include "programmer/Geraetemenue.h"

#include <algorithm>
#include <string>

namespace varnholt {
namespace {

Text_Paar Text_Von(const Festes_Paar& p) { return {std::string(p.D), std::string(p.E)}; }

// Each routine answers whether the sequence goes on.

bool Weiter_Nach(const Text_Paar& Text, const Text_Paar& Titel = {})
{
    Antwort = Antwort_Abbrechen;
    Melden(Text, Titel, Knoepfe::Ok_Abbrechen, Symbol::Hinweis);
    return Antwort != Antwort_Abbrechen;
}

void Ergebnis_Melden(const Festes_Paar& Titel, const Festes_Paar& Text, Symbol Zeichen)
{
    Melden(Text_Von(Text), Text_Von(Titel), Knoepfe::Ok, Zeichen);
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

enum class Ausgang { Gut, Schlecht, Ende };

// The patterns in order up to the first that isn't answered with Yes.
Ausgang Messen(std::span<const Mess_Schritt> Schritte,
               const Festes_Paar&            Titel,
               const Mess_Schritt**          Falscher = nullptr)
{
    for (const Mess_Schritt& s : Schritte) {
        s.Anlegen();
        Antwort = Antwort_Abbrechen;
        Melden(Text_Von(s.Frage), Text_Von(Titel), Knoepfe::Ja_Nein_Abbrechen, Symbol::Frage);
        if (Antwort == Antwort_Abbrechen)
            return Ausgang::Ende;
        if (Antwort == Antwort_Nein) {
            if (Falscher != nullptr)
                *Falscher = &s;
            return Ausgang::Schlecht;
        }
    }
    return Ausgang::Gut;
}

// Where the automatic test failed: narrows the fault down to a chip. Ends the sequence in any case.
void Diagnose_Stellen(const Test_Folge& Folge)
{
    constexpr Festes_Paar Titel{"DIAGNOSE", "DIAGNOSIS"};
    const Mess_Schritt*   Falscher = nullptr;
    switch (Messen(Folge.Diagnose, Titel, &Falscher)) {
    case Ausgang::Gut:
        return Ergebnis_Melden(Titel, Folge.Diagnose_Schluss, Symbol::Warnung);
    case Ausgang::Schlecht:
        return Ergebnis_Melden(Titel, Falscher->Rat, Symbol::Warnung);
    case Ausgang::Ende:
        return;
    }
}

// The last of the tests has nothing behind its box that could be given up.
bool Erfolg_Melden(const Mess_Test& Test, bool Letzter)
{
    if (Test.Gut_Titel.D.empty())
        return true;
    if (!Letzter)
        return Weiter_Nach(Text_Von(Test.Gut), Text_Von(Test.Gut_Titel));
    Ergebnis_Melden(Test.Gut_Titel, Test.Gut, Symbol::Hinweis);
    return true;
}

bool Mess_Test_Bestehen(const Mess_Test& Test, bool Letzter)
{
    const Ausgang e = Messen(Test.Schritte, Test.Titel);
    if (Test.Danach != nullptr)
        Test.Danach();
    if (e == Ausgang::Schlecht)
        Ergebnis_Melden(Test.Schlecht_Titel, Test.Schlecht, Symbol::Warnung);
    return e == Ausgang::Gut && Erfolg_Melden(Test, Letzter);
}

// The answer of the automatic test's box: Cancel ends the sequence.
bool Automatisch_Bestehen(const Test_Folge& Folge)
{
    const Test1_Ergebnis e = Folge.Automatisch();
    if (Antwort == Antwort_Abbrechen)
        return false;
    if (e.Fehler > 0)
        Diagnose_Stellen(Folge);
    return e.Fehler == 0;
}

void Folge_Durchlaufen(const Test_Folge& Folge)
{
    if (!Einfuehren(Folge) || !Jumper_Stecken(Folge, Erster_Test_Baustein) ||
        !Automatisch_Bestehen(Folge))
        return;
    int Baustein = Erster_Test_Baustein; // test 2 keeps the jumpers of test 1
    for (const Mess_Test& Test : Folge.Tests) {
        if (Baustein > Erster_Test_Baustein && !Jumper_Stecken(Folge, Baustein))
            return;
        if (!Mess_Test_Bestehen(Test, &Test == &Folge.Tests.back()))
            return;
        ++Baustein;
    }
}

} // namespace

void Hardware_Test(const Test_Folge& Folge)
{
    const int Vorher = IC_Nummer;
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
