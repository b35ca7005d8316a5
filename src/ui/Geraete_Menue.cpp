// The device menu.
#include "ui/Geraete_Menue.h"

#include "programmer/Geraete.h"
#include "programmer/Geraetemenue.h"
#include "ui/Qt_Text.h"

#include <utility>

namespace varnholt {
namespace {

QString Eintrag_Text(const std::string& Text)
{
    return Qt_Text(Text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

Geraete_Menue::Geraete_Menue(QWidget* Eltern, Ausfuehrer_T Weg)
    : QMenu(Eltern), Ausfuehren(std::move(Weg))
{
    setObjectName(QStringLiteral("MNU_IC_Typ_Menue"));
    connect(this, &QMenu::aboutToShow, this, &Geraete_Menue::Aufbauen);
}

void Geraete_Menue::Aufbauen()
{
    clear();
    for (QMenu* m : findChildren<QMenu*>())
        delete m;
    for (int g = 0; g < Gruppen_Anzahl; ++g)
        if (Geraete.Gruppen_Belegt[static_cast<std::size_t>(g)] > 0 ||
            !Geraete.Gruppen_Namen[static_cast<std::size_t>(g)].empty())
            Gruppe_Bauen(g);
}

void Geraete_Menue::Gruppe_Bauen(int Gruppe)
{
    const auto Platz = static_cast<std::size_t>(Gruppe);
    auto*      Menue = new QMenu(Eintrag_Text(Geraete.Gruppen_Namen[Platz]), this);
    Menue->setObjectName(QStringLiteral("MNU_IC_Group_%1").arg(Gruppe));
    addMenu(Menue);
    for (int i = 0; i < Geraete.Gruppen_Belegt[Platz]; ++i) {
        const int Nummer = Gruppe * Gruppen_Plaetze + i;
        QAction*  a      = Menue->addAction(
            Eintrag_Text(Geraete.Menue_Texte[static_cast<std::size_t>(Nummer)]),
            this,
            [this, Gruppe, i] { Ausfuehren([Gruppe, i] { MNU_IC_Typ_Click(Gruppe, i); }); });
        a->setObjectName(QStringLiteral("MNU_IC_Typ_%1_%2").arg(Gruppe).arg(i));
        a->setCheckable(Nummer == Geraetemenue.Haken);
        a->setChecked(Nummer == Geraetemenue.Haken);
    }
}

} // namespace varnholt
