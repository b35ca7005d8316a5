// The mode dialog.
#include "ui/Abfrage_Modus_Dialog.h"

#include "core/commands.h"
#include "core/startup.h"
#include "ui/Bilder.h"
#include "ui/Grosser_Knopf.h"
#include "ui/Qt_Text.h"

#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace varnholt {
namespace {

Grosser_Knopf* Modus_Knopf(const char* Name, const Festes_Paar& Paar, const char* Bild)
{
    auto* Knopf = new Grosser_Knopf(Lesbarer_Text(Paar));
    Knopf->setObjectName(QLatin1String(Name));
    Knopf->setAccessibleName(Lesbarer_Text(Paar));
    Knopf->setIcon(Symbol_Bild(QString::fromLatin1(Bild), Knopf->palette()));
    return Knopf;
}

} // namespace

Abfrage_Modus_Dialog::Abfrage_Modus_Dialog(Befehls_Weg Ausfuehren) : Weg(std::move(Ausfuehren))
{
    const Abfrage_Modus_Texte_T& t = Abfrage_Modus_Texte;
    setObjectName(QStringLiteral("Abfrage_Modus"));
    setWindowTitle(Lesbarer_Text(t.Titel));
    auto* Frage = new QLabel(Lesbarer_Text(t.Frage));
    Frage->setObjectName(QStringLiteral("Frage"));
    Frage->setWordWrap(true);
    auto* Hex   = Modus_Knopf("Button_Mode_1", t.Button_Mode_1, "hex-editor");
    auto* MC    = Modus_Knopf("Button_Mode_2", t.Button_Mode_2, "mc-editor");
    auto* Alles = new QVBoxLayout(this);
    Alles->setContentsMargins(18, 18, 18, 18);
    Alles->setSpacing(12);
    Alles->addWidget(Frage);
    Alles->addSpacing(4);
    Alles->addWidget(Hex);
    Alles->addWidget(MC);
    connect(
        Hex, &QPushButton::clicked, this, [this] { Gewaehlt(&Abfrage_Modus_Button_Mode_1_Click); });
    connect(
        MC, &QPushButton::clicked, this, [this] { Gewaehlt(&Abfrage_Modus_Button_Mode_2_Click); });
}

// A second click must not start the program twice.
void Abfrage_Modus_Dialog::Gewaehlt(void (*Befehl)())
{
    setEnabled(false);
    Befehl_Ausfuehren(Weg, Befehl);
}

void Abfrage_Modus_Dialog::reject()
{
    if (isEnabled())
        Befehl_Ausfuehren(Weg, [] { MNU_Ende_Click(); });
}

} // namespace varnholt
