// The window `F_SIM_CONTROL`.
#include "ui/F_SIM_CONTROL.h"

#include "core/commands.h"
#include "core/messages.h"
#include "core/shared_state.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"
#include "ui/Haken_Feld.h"
#include "ui/Qt_Text.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace varnholt {
namespace {

constexpr int Rand    = 6; // pixels round the window's contents
constexpr int Abstand = 4; // between two lines

using Befehl_T = void (*)();

struct Knopf_T {
    const char* Name;
    const char* D;
    const char* E;
    const char* Taste; // as the tool tip tells it
    Befehl_T    Befehl;
};

// clang-format off
constexpr Knopf_T Knopf_Tabelle[] = {
    {"B_Start",         "Starten",            "Start",          "F5",  Debug_Start_Stop},
    {"B_Einzelschritt", "Einzelschritt",      "Single step",    "F8",  Debug_Schritt},
    {"B_Up",            "Schritt nach oben",  "Step upwards",   "F6",  Debug_Hoch},
    {"B_Down",          "Schritt nach unten", "Step downwards", "F7",  Debug_Runter},
    {"B_Cursor",        "Zum Cursor",         "To cursor",      "F9",  Debug_Cursor},
    {"B_Reset_PC",      "Reset Adresse",      "Reset address",  "F11", Debug_Reset_PC},
    {"B_RESET_RAM",     "RESET Speicher",     "RESET Memory",   "F12", Debug_Reset_Speicher},
    {"B_Reset_Zyklen",  "Reset Zyklen",       "Reset cycles",   "",    B_Reset_Zyklen_Click},
};

// Places of the buttons in the table, row by row: up and down keep side by side.
using Reihenfolge_T = std::array<std::size_t, std::size(Knopf_Tabelle)>;
constexpr Reihenfolge_T Der_Reihe_Nach = {0, 1, 2, 3, 4, 5, 6, 7};
constexpr Reihenfolge_T Zu_Dritt       = {0, 1, 4, 2, 3, 5, 6, 7};

struct Taste_Befehl_T {
    int      Taste;
    Befehl_T Befehl;
    bool     Wiederholt; // goes on while the key is held down
};

constexpr Taste_Befehl_T Tasten_Tabelle[] = {
    {Qt::Key_F4,  Debug_Vorbereiten,    false},
    {Qt::Key_F5,  Debug_Start_Stop,     false},
    {Qt::Key_F6,  Debug_Hoch,           true},
    {Qt::Key_F7,  Debug_Runter,         true},
    {Qt::Key_F8,  Debug_Schritt,        true},
    {Qt::Key_F9,  Debug_Cursor,         false},
    {Qt::Key_F10, Debug_Beenden,        false},
    {Qt::Key_F11, Debug_Reset_PC,       false},
    {Qt::Key_F12, Debug_Reset_Speicher, false},
};
// clang-format on

const Taste_Befehl_T* Befehl_Von(const QKeyEvent& Taste)
{
    const auto* b = std::find_if(std::begin(Tasten_Tabelle),
                                 std::end(Tasten_Tabelle),
                                 [&](const Taste_Befehl_T& t) { return t.Taste == Taste.key(); });
    return b != std::end(Tasten_Tabelle) && Taste.modifiers() == Qt::NoModifier ? b : nullptr;
}

// A label of a fixed size takes its next text without a new layout of the panel.
void Text_Zeigen(QLabel* Schild, const std::string& Text)
{
    const QString Neu = Qt_Text(Text);
    if (Schild->text() == Neu)
        return;
    Schild->setText(Neu);
    Schild->setFixedSize(Schild->sizeHint().expandedTo(Schild->minimumSize()));
}

void Haken_Zeigen(QCheckBox* Feld, bool An)
{
    const QSignalBlocker Still(Feld);
    Feld->setChecked(An);
}

QString Wort(const char* D, const char* E) { return Qt_Text(In_Sprache({D, E})); }

} // namespace

// --- building ---

F_SIM_CONTROL::F_SIM_CONTROL(Befehls_Weg Neuer_Weg)
    : Weg(std::move(Neuer_Weg)), L_Adr_Text(new QLabel), L_Adr(new QLabel), L_MT(new QLabel),
      L_Zyklen(new QLabel), Check1(new Haken_Feld({})), Check2(new Haken_Feld({})),
      Knopf_Gitter(new QGridLayout)
{
    setWindowTitle(QStringLiteral("CONTROL"));
    L_Adr_Text->setObjectName(QStringLiteral("L_Adr_Text"));
    L_Adr->setObjectName(QStringLiteral("L_Adr"));
    L_MT->setObjectName(QStringLiteral("L_MT"));
    L_Zyklen->setObjectName(QStringLiteral("L_Zyklen"));
    Check1->setObjectName(QStringLiteral("Check1"));
    Check2->setObjectName(QStringLiteral("Check2"));
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setWidget(Blatt_Bauen());
    setFocusProxy(Knoepfe.front());
    for (QWidget* Teil : findChildren<QWidget*>())
        Teil->installEventFilter(this);
    connect(Check1, &QCheckBox::clicked, this, [this](bool An) {
        Ausfuehren([An] { Check1_Click(An); });
    });
    connect(Check2, &QCheckBox::clicked, this, [this](bool An) {
        Ausfuehren([An] { Check2_Click(An); });
    });
    Nachziehen();
}

QWidget* F_SIM_CONTROL::Blatt_Bauen()
{
    auto* Blatt   = new QWidget;
    auto* Spalte  = new QVBoxLayout(Blatt);
    auto* Zaehler = new QGridLayout;
    Spalte->setContentsMargins(Rand, Rand, Rand, Rand);
    Spalte->setSpacing(Abstand);
    Zaehler->setColumnStretch(1, 1);
    Zaehler->setVerticalSpacing(Abstand / 2);
    Zeile_Bauen(Zaehler, 0, L_Adr_Text, L_Adr);
    Zeile_Bauen(Zaehler, 1, L_MT, L_Zyklen);
    Spalte->addLayout(Zaehler);
    Spalte->addWidget(Check1);
    Spalte->addWidget(Check2);
    Knopf_Gitter->setSpacing(Abstand);
    Spalte->addLayout(Knopf_Gitter);
    Spalte->addStretch(1);
    Knoepfe_Bauen(Blatt);
    return Blatt;
}

void F_SIM_CONTROL::Zeile_Bauen(QGridLayout* Gitter, int Zeile, QLabel* Text, QLabel* Wert)
{
    Wert->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Wert->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Gitter->addWidget(Text, Zeile, 0);
    Gitter->addWidget(Wert, Zeile, 1, Qt::AlignLeft | Qt::AlignVCenter);
}

void F_SIM_CONTROL::Knoepfe_Bauen(QWidget* Blatt)
{
    for (const Knopf_T& k : Knopf_Tabelle) {
        auto* Neuer = new QPushButton(Blatt);
        Neuer->setObjectName(QString::fromLatin1(k.Name));
        connect(Neuer, &QPushButton::clicked, this, [this, b = k.Befehl] { Ausfuehren(b); });
        Knoepfe.push_back(Neuer);
    }
}

// As many columns as find room with their captions whole.
void F_SIM_CONTROL::Knoepfe_Verteilen()
{
    int Breiteste = 0;
    for (const QPushButton* k : Knoepfe)
        Breiteste = std::max(Breiteste, k->sizeHint().width());
    const int Platz   = viewport()->width() - 2 * Rand;
    const int Spalten = std::clamp((Platz + Abstand) / (Breiteste + Abstand), 1, 4);
    if (std::exchange(Knopf_Spalten, Spalten) == Spalten)
        return;
    for (QPushButton* k : Knoepfe)
        Knopf_Gitter->removeWidget(k);
    int Platz_Nummer = 0;
    for (const std::size_t i : Spalten == 3 ? Zu_Dritt : Der_Reihe_Nach) {
        Knopf_Gitter->addWidget(Knoepfe[i], Platz_Nummer / Spalten, Platz_Nummer % Spalten);
        ++Platz_Nummer;
    }
}

void F_SIM_CONTROL::resizeEvent(QResizeEvent* Ereignis)
{
    QScrollArea::resizeEvent(Ereignis);
    Knoepfe_Verteilen();
}

// --- following the state ---

void F_SIM_CONTROL::Nachziehen()
{
    Beschriften();
    Start_Beschriften();
    Text_Zeigen(L_Adr, Sim_Ansichten.L_Adr);
    Text_Zeigen(L_Zyklen, Sim_Ansichten.L_Zyklen);
    Haken_Zeigen(Check1, Debug_Verzoegerung);
    Haken_Zeigen(Check2, Debug_Vollgas);
}

void F_SIM_CONTROL::Beschriften()
{
    if (std::exchange(Gezeigte_Sprache, Sprache) == Sprache)
        return;
    L_Adr_Text->setText(Wort("Aktuelle Programmadresse:", "Actual program address:"));
    L_MT->setText(Wort("Maschinenzyklen Zähler:", "Machine cycle Counter:"));
    Check1->setText(Wort("Zusätzliche Ablaufverzögerung", "Additionally deceleration"));
    Check2->setText(Wort("Volle Geschwindigkeit (Ohne Aktualisierung der Anzeigen)",
                         "Full speed (Without updating display)"));
    std::size_t i = 0;
    for (const Knopf_T& k : Knopf_Tabelle) {
        const QString Text  = Wort(k.D, k.E);
        const QString Taste = QString::fromLatin1(k.Taste);
        Knoepfe[i]->setText(Text);
        Knoepfe[i]->setToolTip(Taste.isEmpty() ? Text : QStringLiteral("%1 (%2)").arg(Text, Taste));
        ++i;
    }
    Knoepfe_Verteilen();
}

void F_SIM_CONTROL::Start_Beschriften()
{
    const QString Text = Programm_Laeuft() ? Wort("Stoppen", "Stop") : Wort("Starten", "Start");
    if (Knoepfe.front()->text() == Text)
        return;
    Knoepfe.front()->setText(Text);
    Knoepfe.front()->setToolTip(Text + QStringLiteral(" (F5)"));
}

// --- commands ---

void F_SIM_CONTROL::Ausfuehren(const std::function<void()>& Befehl)
{
    Befehl_Ausfuehren(Weg, Befehl);
    Nachziehen();
}

// The panel's keys come before those of the control that has the focus, and of the menu.
bool F_SIM_CONTROL::Eigene_Taste(QEvent* Ereignis)
{
    if (Ereignis->type() != QEvent::KeyPress && Ereignis->type() != QEvent::ShortcutOverride)
        return false;
    const auto&           Taste = *static_cast<const QKeyEvent*>(Ereignis);
    const Taste_Befehl_T* b     = Befehl_Von(Taste);
    if (b == nullptr)
        return false;
    Ereignis->accept();
    if (Ereignis->type() == QEvent::KeyPress && (b->Wiederholt || !Taste.isAutoRepeat()))
        Ausfuehren(b->Befehl);
    return true;
}

bool F_SIM_CONTROL::event(QEvent* Ereignis)
{
    return Eigene_Taste(Ereignis) || QScrollArea::event(Ereignis);
}

bool F_SIM_CONTROL::eventFilter(QObject* Wer, QEvent* Ereignis)
{
    return Eigene_Taste(Ereignis) || QScrollArea::eventFilter(Wer, Ereignis);
}

} // namespace varnholt
