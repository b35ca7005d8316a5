// The file association for one user, written at the first start.
#include "ui/Verknuepfung.h"

#include "ui/Qt_Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace varnholt {
namespace {

constexpr QLatin1String Starter_Datei("applications/varnholt.desktop");
constexpr QLatin1String Mime_Datei("mime/packages/varnholt-mime.xml");
constexpr QLatin1String Bild_Datei("icons/hicolor/scalable/apps/varnholt.svg");

QByteArray Mitgebracht(const QString& Name)
{
    QFile Datei(QLatin1String(":/varnholt/") + Name);
    return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

// The user's data folder; empty where the environment names none by an absolute path.
QString Daten_Ordner()
{
    QString Daten = qEnvironmentVariable("XDG_DATA_HOME");
    if (QDir::isAbsolutePath(Daten))
        return Daten;
    const QString Heim = qEnvironmentVariable("HOME");
    return QDir::isAbsolutePath(Heim) ? Heim + QLatin1String("/.local/share") : QString();
}

bool Installiert()
{
    QString Ordner = qEnvironmentVariable("XDG_DATA_DIRS");
    if (Ordner.isEmpty())
        Ordner = QStringLiteral("/usr/local/share:/usr/share");
    const QStringList Alle = Ordner.split(u':', Qt::SkipEmptyParts);
    return std::any_of(Alle.begin(), Alle.end(), [](const QString& o) {
        return QDir::isAbsolutePath(o) && QFileInfo::exists(QDir(o).filePath(Starter_Datei));
    });
}

// False when the file is there already or can't be written. None is left behind half written.
bool Neu_Schreiben(const QString& Pfad, const QByteArray& Inhalt)
{
    QDir().mkpath(QFileInfo(Pfad).path());
    QFile Datei(Pfad);
    if (!Datei.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    const bool Ganz = Datei.write(Inhalt) == Inhalt.size() && Datei.flush();
    Datei.close();
    if (!Ganz)
        Datei.remove();
    return Ganz;
}

void Nebenher_Starten(const QString& Name, const QString& Ordner)
{
    const QString Pfad = QStandardPaths::findExecutable(Name);
    if (Pfad.isEmpty())
        return;
    QProcess Vorgang;
    Vorgang.setProgram(Pfad);
    Vorgang.setArguments({Ordner});
    Vorgang.setStandardOutputFile(QProcess::nullDevice());
    Vorgang.setStandardErrorFile(QProcess::nullDevice());
    Vorgang.startDetached();
}

// A text as the value of a key: the entry has its own escape for a backslash.
QString Als_Wert(QString Text) { return Text.replace(QLatin1String("\\"), QLatin1String("\\\\")); }

bool Hat_Steuerzeichen(const QString& Text)
{
    return std::any_of(Text.begin(), Text.end(), [](QChar c) { return c.unicode() < 0x20; });
}

} // namespace

QString Exec_Zeile(const QString& Programm)
{
    QString Pfad = Programm;
    for (const char16_t Zeichen : {u'\\', u'"', u'`', u'$'})
        Pfad.replace(QChar(Zeichen), QStringLiteral("\\") + QChar(Zeichen));
    Pfad.replace(u'%', QLatin1String("%%"));
    return Als_Wert(u'"' + Pfad + QLatin1String("\" %f"));
}

QByteArray Starter_Text(const QString& Programm)
{
    if (Hat_Steuerzeichen(Programm))
        return {};
    const QByteArray Neu =
        "Exec=" + Exec_Zeile(Programm).toUtf8() + "\nTryExec=" + Als_Wert(Programm).toUtf8() + '\n';
    return Mitgebracht(QStringLiteral("varnholt.desktop")).replace("Exec=varnholt %f\n", Neu);
}

QByteArray Mime_Text(const Dateityp_T& Typ)
{
    const QString            Endung       = Qt_Text(Typ.Endung);
    const QString            Beschreibung = Qt_Text(Typ.Beschreibung).simplified();
    const QRegularExpression Erlaubt(QStringLiteral("^[A-Za-z0-9_-]+\\z"));
    if (!Erlaubt.match(Endung).hasMatch() || Hat_Steuerzeichen(Beschreibung))
        return {};
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
               "  <mime-type type=\"text/x-mcs51-asm\">\n"
               "    <comment>%1</comment>\n"
               "    <sub-class-of type=\"text/plain\"/>\n"
               "    <glob pattern=\"*.%2\"/>\n"
               "  </mime-type>\n"
               "</mime-info>\n")
        .arg(Beschreibung.toHtmlEscaped(), Endung)
        .toUtf8();
}

bool Dateityp_Fuer_Benutzer_Verknuepfen(const Dateityp_T& Typ)
{
    const QString    Daten = Daten_Ordner();
    const QDir       Ordner(Daten);
    const QByteArray Starter = Starter_Text(QCoreApplication::applicationFilePath());
    const QByteArray Mime    = Mime_Text(Typ);
    if (Daten.isEmpty() || Starter.isEmpty() || Mime.isEmpty() || Installiert() ||
        QFileInfo::exists(Ordner.filePath(Starter_Datei)))
        return false;
    Neu_Schreiben(Ordner.filePath(Bild_Datei), Mitgebracht(QStringLiteral("varnholt.svg")));
    const bool Typ_Neu     = Neu_Schreiben(Ordner.filePath(Mime_Datei), Mime);
    const bool Starter_Neu = Neu_Schreiben(Ordner.filePath(Starter_Datei), Starter);
    if (Typ_Neu)
        Nebenher_Starten(QStringLiteral("update-mime-database"),
                         Ordner.filePath(QStringLiteral("mime")));
    if (Starter_Neu)
        Nebenher_Starten(QStringLiteral("update-desktop-database"),
                         Ordner.filePath(QStringLiteral("applications")));
    return Typ_Neu || Starter_Neu;
}

} // namespace varnholt
