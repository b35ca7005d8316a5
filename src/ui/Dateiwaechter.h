// Notices when another program changes the file of the document.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>

namespace varnholt {

class Dateiwaechter : public QObject {
    Q_OBJECT

public:
    explicit Dateiwaechter(QObject* Eltern = nullptr);
    // Looks at the document's name and at how its file stands; what the program itself has just
    // loaded or saved is no change. Called when a command has ended.
    void Nachziehen();
    // The user knows of the change, and keeps the text as it is.
    void Abgetan();

signals:
    void Datei_Fremd_Geaendert(const QString& Name);
    void Andere_Datei(); // the document has another file, or has just been loaded or saved

private:
    struct Stand_T {
        bool      Da      = false;
        qint64    Groesse = 0;
        QDateTime Zeit{};
        bool      operator==(const Stand_T&) const = default;
    };
    static Stand_T Stand_Von(const QString& Name);
    void           Pruefen();

    QFileSystemWatcher Waechter{};
    QString            Name{};
    Stand_T            Bekannt{};
    std::uint64_t      Gesehener_Vorgang = 0;
};

} // namespace varnholt
