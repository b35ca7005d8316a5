// A child window of the main window.
#include "ui/Kindfenster.h"

#include <QCloseEvent>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionTitleBar>

#include <algorithm>
#include <optional>

namespace varnholt {
namespace {

constexpr int Kleinste_Breite = 120; // device-independent pixels
constexpr int Kleinste_Hoehe  = 80;
constexpr int Griff           = 40; // of the title bar that must stay in reach

// A title bar without the close button (and the system menu that would have it too). The flags of
// the window can't say that as long as there are buttons for minimum and maximum.
class Ohne_Schliessen : public QProxyStyle {
public:
    void drawComplexControl(ComplexControl             Art,
                            const QStyleOptionComplex* Wie,
                            QPainter*                  Maler,
                            const QWidget*             Fenster) const override
    {
        const auto Neu = Bereinigt(Wie);
        QProxyStyle::drawComplexControl(Art, Neu ? &*Neu : Wie, Maler, Fenster);
    }
    QRect subControlRect(ComplexControl             Art,
                         const QStyleOptionComplex* Wie,
                         SubControl                 Teil,
                         const QWidget*             Fenster) const override
    {
        const auto Neu = Bereinigt(Wie);
        return QProxyStyle::subControlRect(Art, Neu ? &*Neu : Wie, Teil, Fenster);
    }

private:
    static std::optional<QStyleOptionTitleBar> Bereinigt(const QStyleOptionComplex* Wie)
    {
        const auto* Titel = qstyleoption_cast<const QStyleOptionTitleBar*>(Wie);
        if (Titel == nullptr)
            return std::nullopt;
        QStyleOptionTitleBar Neu = *Titel;
        Neu.titleBarFlags &= ~Qt::WindowSystemMenuHint;
        Neu.subControls &= ~(SC_TitleBarCloseButton | SC_TitleBarSysMenu);
        return Neu;
    }
};

} // namespace

Kindfenster::Kindfenster(int Nummer, const QString& Name, QWidget* Inhalt, bool Hauptsache)
    : Fenster_Nummer(Nummer)
{
    setObjectName(Name);
    setWidget(Inhalt);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setMinimumSize(Kleinste_Breite, Kleinste_Hoehe);
    Qt::WindowFlags Art =
        Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowMinMaxButtonsHint;
    if (!Hauptsache)
        Art |= Qt::WindowCloseButtonHint;
    setWindowFlags(Art);
    if (Hauptsache) {
        auto* Stil = new Ohne_Schliessen;
        Stil->setParent(this);
        setStyle(Stil);
    }
    setSystemMenu(nullptr); // its Ctrl+F4 would close what is never closed
}

Lage_T Kindfenster::Lage() const
{
    if (isMaximized() || isMinimized())
        return {}; // no place of its own: the one that is kept holds
    const QRect r = geometry();
    return {r.top(), r.left(), r.height(), r.width()};
}

void Kindfenster::Lage_Setzen(const Lage_T& Neue, const QSize& Flaeche)
{
    if (Neue.Breite <= 0 || Neue.Hoehe <= 0)
        return;
    const int Breite =
        std::clamp(Neue.Breite, Kleinste_Breite, std::max(Flaeche.width(), Kleinste_Breite));
    const int Hoehe =
        std::clamp(Neue.Hoehe, Kleinste_Hoehe, std::max(Flaeche.height(), Kleinste_Hoehe));
    const int Links = std::clamp(Neue.Links, Griff - Breite, std::max(Flaeche.width() - Griff, 0));
    const int Oben  = std::clamp(Neue.Oben, 0, std::max(Flaeche.height() - Griff, 0));
    // Not showNormal(): it would bring a hidden window to light.
    setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized));
    setGeometry(Links, Oben, Breite, Hoehe);
}

void Kindfenster::closeEvent(QCloseEvent* Ereignis)
{
    Ereignis->ignore();
    emit Geschlossen(Fenster_Nummer);
}

} // namespace varnholt
