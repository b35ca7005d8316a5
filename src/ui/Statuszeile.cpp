// The status line of the main window.
#include "ui/Statuszeile.h"

#include "core/messages.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "editors/Hexedit.h"
#include "files/Datei_Zustand.h"
#include "programmer/Geraete.h"
#include "programmer/Port_Einrichtung.h"
#include "ui/Qt_Text.h"

#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <fmt/format.h>

namespace varnholt {
namespace {

constexpr int Hinweis_Dauer = 15000; // milliseconds that a notice stands

QString Hex_Stelle()
{
    const auto Adresse = static_cast<unsigned>(Hexedit_Adresse());
    return Qt_Text(fmt::format("{:06X}h  {}", Adresse, Adresse));
}

QString Kodierung_Name()
{
    switch (Quell_Datei.Zeichensatz) {
    case Kodierung::UTF8:
        return QStringLiteral("UTF-8");
    case Kodierung::UTF8_mit_BOM:
        return QStringLiteral("UTF-8 BOM");
    case Kodierung::Windows_1252:
        break;
    }
    return QStringLiteral("Windows-1252");
}

QString Zeilenende_Name()
{
    switch (Quell_Datei.Ende) {
    case Zeilenende::LF:
        return QStringLiteral("LF");
    case Zeilenende::CR:
        return QStringLiteral("CR");
    case Zeilenende::CR_LF:
        break;
    }
    return QStringLiteral("CR LF");
}

void Zeigen(QLabel* Feld, const QString& Text)
{
    if (Feld->text() != Text) {
        Feld->setText(Text);
        // A label of a fixed size takes its next text without a new layout of the whole line.
        Feld->setFixedSize(Feld->sizeHint().expandedTo(Feld->minimumSize()));
    }
    Feld->setVisible(!Text.isEmpty());
}

QLabel* Neues_Feld(QStatusBar* Leiste, const char* Name, const char16_t* Breitester)
{
    auto* Feld = new QLabel(Leiste);
    Feld->setObjectName(QString::fromLatin1(Name));
    Feld->setMinimumWidth(Feld->fontMetrics().horizontalAdvance(QString::fromUtf16(Breitester)) +
                          12);
    Feld->setMargin(2);
    Leiste->addPermanentWidget(Feld);
    return Feld;
}

} // namespace

Statuszeile::Statuszeile(QWidget* Eltern) : QStatusBar(Eltern), Hinweis(new QLabel(this))
{
    setObjectName(QStringLiteral("Statuszeile"));
    Hinweis->setObjectName(QStringLiteral("Hinweis"));
    Hinweis->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Hinweis->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(Hinweis, 1);
    Modus_Feld = Neues_Feld(this, "Status_Modus", u"MC-Editor");
    Stelle     = Neues_Feld(this, "Status_Stelle", u"Zeile 99999, Spalte 999");
    Baustein   = Neues_Feld(this, "Status_Baustein", u"AT89C51");
    Port       = Neues_Feld(this, "Status_Port", u"Port: 378h");
    Port->installEventFilter(this);
    Zeichen = Neues_Feld(this, "Status_Kodierung", u"UTF-8, LF");
}

void Statuszeile::Nachziehen(int Zeile, int Spalte)
{
    const bool MC = Modus == Modus_MC;
    Zeigen(Modus_Feld, MC ? QStringLiteral("MC-Editor") : QStringLiteral("Hex-Editor"));
    const std::string Ort = In_Sprache({fmt::format("Zeile {}, Spalte {}", Zeile, Spalte),
                                        fmt::format("Line {}, column {}", Zeile, Spalte)});
    Zeigen(Stelle, MC ? Qt_Text(Ort) : Hex_Stelle());
    const std::string Name = IC_Menue_Name();
    Zeigen(Baustein, Qt_Text(Name.empty() ? In_Sprache({"Kein IC", "No IC"}) : Name));
    Port_Zeigen();
    Zeigen(Zeichen, MC ? Kodierung_Name() + QStringLiteral(", ") + Zeilenende_Name() : QString());
}

// Behind the simulated port stands a window, which a click opens.
void Statuszeile::Port_Zeigen()
{
    const bool Simuliert = Port_Art == Art_Simuliert;
    Zeigen(Port, QStringLiteral("Port: ") + Qt_Text(Port_Beschreibung()));
    Port->setToolTip(Simuliert ? Qt_In_Sprache({"Klick: das Fenster des simulierten Boards",
                                                "Click: the window of the simulated board"})
                               : QString());
    const Qt::CursorShape Zeiger = Simuliert ? Qt::PointingHandCursor : Qt::ArrowCursor;
    if (Port->cursor().shape() != Zeiger)
        Port->setCursor(Zeiger);
}

bool Statuszeile::eventFilter(QObject* Feld, QEvent* Ereignis)
{
    if (Feld == Port && Ereignis->type() == QEvent::MouseButtonRelease &&
        Port_Art == Art_Simuliert &&
        static_cast<QMouseEvent*>(Ereignis)->button() == Qt::LeftButton)
        emit Board_Gewuenscht();
    return QStatusBar::eventFilter(Feld, Ereignis);
}

void Statuszeile::Hinweisen(std::string_view Text)
{
    QString Zeile = Meldungs_Text(Text).trimmed();
    Hinweis->setToolTip(Zeile);
    Zeile.replace(u'\n', u' ');
    Hinweis->setText(Zeile);
    QTimer::singleShot(Hinweis_Dauer, Hinweis, [this, Zeile] {
        if (Hinweis->text() == Zeile)
            Hinweis->clear();
    });
}

} // namespace varnholt
