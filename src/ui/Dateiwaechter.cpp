// Notices when another program changes the file of the document.
#include "ui/Dateiwaechter.h"

#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "ui/Qt_Text.h"

#include <QFileInfo>
#include <QTimer>

namespace varnholt {
namespace {

constexpr int Ruhe = 300; // milliseconds: who writes a file often writes it in pieces

} // namespace

Dateiwaechter::Dateiwaechter(QObject* Eltern) : QObject(Eltern)
{
    const auto Bald = [this] { QTimer::singleShot(Ruhe, this, &Dateiwaechter::Pruefen); };
    connect(&Waechter, &QFileSystemWatcher::fileChanged, this, Bald);
    connect(&Waechter, &QFileSystemWatcher::directoryChanged, this, Bald);
}

Dateiwaechter::Stand_T Dateiwaechter::Stand_Von(const QString& Datei)
{
    const QFileInfo Lage(Datei);
    return {Lage.exists(), Lage.size(), Lage.lastModified()};
}

void Dateiwaechter::Nachziehen()
{
    const QString Neu = Qt_Text(Datei_Name);
    if (Neu == Name && Gesehener_Vorgang == Dateien.Vorgang)
        return;
    Gesehener_Vorgang = Dateien.Vorgang;
    if (!Waechter.files().isEmpty())
        Waechter.removePaths(Waechter.files());
    Name    = Neu;
    Bekannt = Stand_Von(Name);
    if (!Waechter.directories().isEmpty())
        Waechter.removePaths(Waechter.directories());
    if (Bekannt.Da) // the folder too: a file that is removed and made again is watched no longer
        Waechter.addPaths({Name, QFileInfo(Name).absolutePath()});
    emit Andere_Datei();
}

void Dateiwaechter::Abgetan() { Bekannt = Stand_Von(Name); }

void Dateiwaechter::Pruefen()
{
    // A file that was replaced by another one of the same name is no longer watched.
    if (!Waechter.files().contains(Name) && QFileInfo::exists(Name))
        Waechter.addPath(Name);
    if (!Name.isEmpty() && Gesehener_Vorgang == Dateien.Vorgang && Stand_Von(Name) != Bekannt)
        emit Datei_Fremd_Geaendert(Name);
}

} // namespace varnholt
