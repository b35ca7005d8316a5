// The window `Spr`: the list of jumpmarks.
#include "ui/Spr_Fenster.h"

#include "editors/Sprungmarken.h"
#include "ui/Qt_Text.h"

#include <QKeyEvent>

namespace varnholt {

int Sprungmarken_Modell::rowCount(const QModelIndex& Eltern) const
{
    return Eltern.isValid() ? 0 : Zeilen;
}

QVariant Sprungmarken_Modell::data(const QModelIndex& Ort, int Rolle) const
{
    const auto Zeile = static_cast<std::size_t>(Ort.row());
    if (Rolle != Qt::DisplayRole || !Ort.isValid() || Zeile >= Sprungmarken.Liste.size())
        return {};
    return Qt_Aus_1252(Sprungmarken.Liste[Zeile]);
}

void Sprungmarken_Modell::Nachziehen()
{
    if (Gezeigter_Stand == Sprungmarken.Liste_Stand &&
        Zeilen == static_cast<int>(Sprungmarken.Liste.size()))
        return;
    beginResetModel();
    Gezeigter_Stand = Sprungmarken.Liste_Stand;
    Zeilen          = static_cast<int>(Sprungmarken.Liste.size());
    endResetModel();
}

Spr_Fenster::Spr_Fenster(QWidget* Eltern) : QListView(Eltern), Modell(new Sprungmarken_Modell(this))
{
    setObjectName(QStringLiteral("Liste"));
    setModel(Modell);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& i) {
        emit Eintrag_Gewaehlt(i.row());
    });
}

void Spr_Fenster::keyPressEvent(QKeyEvent* Ereignis)
{
    const bool Enter = Ereignis->key() == Qt::Key_Return || Ereignis->key() == Qt::Key_Enter;
    if (Enter && currentIndex().isValid())
        emit Eintrag_Gewaehlt(currentIndex().row());
    else
        QListView::keyPressEvent(Ereignis);
}

} // namespace varnholt
