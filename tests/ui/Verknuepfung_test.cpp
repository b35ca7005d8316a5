// The file association for one user, in a home of its own.
#include "ui/Verknuepfung.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <csignal>
#include <sys/resource.h>

namespace varnholt {
namespace {

const Dateityp_T Asm{"Quelmark Varnholt 5", "/x/Varnholt.exe", "Quelmark.Document", "asm"};

void Schreiben(const QString& Pfad, const QByteArray& Inhalt)
{
    QDir().mkpath(QFileInfo(Pfad).path());
    QFile Datei(Pfad);
    ASSERT_TRUE(Datei.open(QIODevice::WriteOnly));
    Datei.write(Inhalt);
}

QByteArray Lesen(const QString& Pfad)
{
    QFile Datei(Pfad);
    return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

// Own folders for user and system, and no programs to run; the environment comes back afterwards.
class Verknuepfung : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const char* Name : Namen)
            Vorher.append({qEnvironmentVariableIsSet(Name), qgetenv(Name)});
        qputenv("XDG_DATA_HOME", Pfad("nutzer").toUtf8());
        qputenv("XDG_DATA_DIRS", Pfad("system").toUtf8());
        qputenv("HOME", Pfad("heim").toUtf8());
        qputenv("PATH", Pfad("bin").toUtf8());
    }
    void TearDown() override
    {
        for (qsizetype i = 0; i < Vorher.size(); ++i)
            if (Vorher[i].first)
                qputenv(Namen[i], Vorher[i].second);
            else
                qunsetenv(Namen[i]);
    }
    QString Pfad(const char* Teil) const { return Ordner.filePath(QString::fromUtf8(Teil)); }
    int     Dateien() const // all that lie in the folder
    {
        int          Anzahl = 0;
        QDirIterator i(Ordner.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        for (; i.hasNext(); i.next())
            ++Anzahl;
        return Anzahl;
    }

    static constexpr const char*       Namen[] = {"XDG_DATA_HOME", "XDG_DATA_DIRS", "HOME", "PATH"};
    QList<std::pair<bool, QByteArray>> Vorher{};
    QTemporaryDir                      Ordner{};
};

TEST_F(Verknuepfung, writes_entry_type_and_icon_at_the_first_start)
{
    EXPECT_TRUE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_EQ(Lesen(Pfad("nutzer/applications/varnholt.desktop")),
              Starter_Text(QCoreApplication::applicationFilePath()));
    EXPECT_EQ(Lesen(Pfad("nutzer/mime/packages/varnholt-mime.xml")), Mime_Text(Asm));
    EXPECT_TRUE(Lesen(Pfad("nutzer/icons/hicolor/scalable/apps/varnholt.svg")).contains("<svg"));
    EXPECT_EQ(Dateien(), 3);
}

TEST_F(Verknuepfung, a_second_start_writes_nothing)
{
    ASSERT_TRUE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_FALSE(Dateityp_Fuer_Benutzer_Verknuepfen({"Anderes", "", "", "txt"}));
    EXPECT_EQ(Lesen(Pfad("nutzer/mime/packages/varnholt-mime.xml")), Mime_Text(Asm));
}

TEST_F(Verknuepfung, an_entry_of_the_users_own_stays_as_it_is)
{
    Schreiben(Pfad("nutzer/applications/varnholt.desktop"), "mine");
    EXPECT_FALSE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_EQ(Lesen(Pfad("nutzer/applications/varnholt.desktop")), "mine");
    EXPECT_EQ(Dateien(), 1);
}

TEST_F(Verknuepfung, a_type_of_the_users_own_stays_and_the_entry_comes)
{
    Schreiben(Pfad("nutzer/mime/packages/varnholt-mime.xml"), "mine");
    EXPECT_TRUE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_EQ(Lesen(Pfad("nutzer/mime/packages/varnholt-mime.xml")), "mine");
    EXPECT_TRUE(QFile::exists(Pfad("nutzer/applications/varnholt.desktop")));
}

TEST_F(Verknuepfung, nothing_is_written_where_a_package_is_installed)
{
    qputenv("XDG_DATA_DIRS", (Pfad("anderes") + u':' + Pfad("system")).toUtf8());
    Schreiben(Pfad("system/applications/varnholt.desktop"), "system");
    EXPECT_FALSE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_EQ(Dateien(), 1);
}

TEST_F(Verknuepfung, without_a_data_folder_named_it_is_the_one_in_the_home)
{
    for (const char* Wert : {"", "relative/folder"}) {
        qputenv("XDG_DATA_HOME", Wert);
        QDir(Pfad("heim")).removeRecursively();
        EXPECT_TRUE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm)) << Wert;
        EXPECT_TRUE(QFile::exists(Pfad("heim/.local/share/applications/varnholt.desktop")));
    }
}

TEST_F(Verknuepfung, without_a_home_nothing_happens)
{
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("HOME");
    EXPECT_FALSE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_EQ(Dateien(), 0);
}

TEST_F(Verknuepfung, a_home_that_cannot_be_written_is_no_error)
{
    Schreiben(Pfad("nutzer"), "a file where the folder should be");
    EXPECT_FALSE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    EXPECT_EQ(Dateien(), 1);
}

TEST_F(Verknuepfung, a_link_that_leads_nowhere_is_not_written_through)
{
    QDir().mkpath(Pfad("nutzer/applications"));
    ASSERT_TRUE(QFile::link(Pfad("ziel"), Pfad("nutzer/applications/varnholt.desktop")));
    EXPECT_TRUE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm)); // the type and the icon
    EXPECT_FALSE(QFile::exists(Pfad("ziel")));
}

TEST_F(Verknuepfung, a_full_disk_leaves_no_half_written_file)
{
    rlimit Vorige{};
    getrlimit(RLIMIT_FSIZE, &Vorige);
    const rlimit Knapp{10, Vorige.rlim_max}; // bytes; stands for a disk with no more room
    const auto   Signal = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &Knapp);
    const bool Ergebnis = Dateityp_Fuer_Benutzer_Verknuepfen(Asm);
    setrlimit(RLIMIT_FSIZE, &Vorige);
    std::signal(SIGXFSZ, Signal);
    EXPECT_FALSE(Ergebnis);
    EXPECT_EQ(Dateien(), 0);
}

TEST_F(Verknuepfung, the_databases_are_brought_up_to_date_for_the_users_folder)
{
    for (const char* Name : {"bin/update-mime-database", "bin/update-desktop-database"}) {
        Schreiben(Pfad(Name),
                  "#!/bin/sh\necho \"$1\" >\"$0.new\"\n/bin/mv \"$0.new\" \"$0.done\"\n");
        QFile(Pfad(Name)).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    ASSERT_TRUE(Dateityp_Fuer_Benutzer_Verknuepfen(Asm));
    const QString Mime = Pfad("bin/update-mime-database.done");
    const QString Desk = Pfad("bin/update-desktop-database.done");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return QFile::exists(Mime) && QFile::exists(Desk); }, 60'000));
    EXPECT_EQ(Lesen(Mime), (Pfad("nutzer/mime") + u'\n').toUtf8());
    EXPECT_EQ(Lesen(Desk), (Pfad("nutzer/applications") + u'\n').toUtf8());
}

TEST_F(Verknuepfung, the_entry_starts_this_program_and_keeps_the_rest_of_the_installed_one)
{
    const QByteArray Text = Starter_Text(QStringLiteral("/opt/my tools/varnholt"));
    EXPECT_TRUE(Text.startsWith("[Desktop Entry]\nType=Application\n"));
    EXPECT_TRUE(Text.contains("\nExec=\"/opt/my tools/varnholt\" %f\n"));
    EXPECT_TRUE(Text.contains("\nTryExec=/opt/my tools/varnholt\n"));
    EXPECT_TRUE(Text.contains("\nMimeType=text/x-mcs51-asm;\n"));
    EXPECT_TRUE(Text.contains("\nComment[de]="));
    EXPECT_EQ(Text.count("\nExec="), 1);
}

TEST_F(Verknuepfung, characters_with_a_meaning_in_a_command_line_are_escaped)
{
    const auto Zeile = [](const char* p) { return Exec_Zeile(QString::fromUtf8(p)).toStdString(); };
    EXPECT_EQ(Zeile("/a/b"), R"("/a/b" %f)");
    EXPECT_EQ(Zeile("/a%f"), R"("/a%%f" %f)");
    EXPECT_EQ(Zeile(R"(/a"b)"), R"("/a\\"b" %f)");
    EXPECT_EQ(Zeile("/a$b`c"), R"("/a\\$b\\`c" %f)");
    EXPECT_EQ(Zeile(R"(/a\b)"), R"("/a\\\\b" %f)");
    EXPECT_EQ(Zeile("/Übung"), R"("/Übung" %f)");
}

TEST_F(Verknuepfung, a_path_with_a_line_end_gets_no_entry)
{
    EXPECT_TRUE(Starter_Text(QStringLiteral("/a\nExec=b")).isEmpty());
}

TEST_F(Verknuepfung, the_type_has_the_extension_and_the_description)
{
    QXmlStreamReader x(Mime_Text({"A <&\" %2 ü", "", "", "a51"}));
    QStringList      Gelesen;
    while (!x.atEnd())
        if (x.readNext() == QXmlStreamReader::StartElement) {
            if (x.name() == u"comment")
                Gelesen += x.readElementText();
            else
                for (const auto& a : x.attributes())
                    Gelesen += a.value().toString();
        }
    EXPECT_FALSE(x.hasError());
    EXPECT_EQ(Gelesen.join(u'|'), QStringLiteral("text/x-mcs51-asm|A <&\" %2 ü|text/plain|*.a51"));
}

TEST_F(Verknuepfung, an_extension_or_description_that_is_none_gives_no_type)
{
    for (const char* Endung : {"", "*", "a b", "a.b", "a\"/>", "asm\n", "ä"})
        EXPECT_TRUE(Mime_Text({"x", "", "", Endung}).isEmpty()) << Endung;
    EXPECT_TRUE(Mime_Text({"a\x01", "", "", "asm"}).isEmpty());
    EXPECT_FALSE(Mime_Text({"", "", "", "A_5-1"}).isEmpty());
    EXPECT_FALSE(Dateityp_Fuer_Benutzer_Verknuepfen({"x", "", "", ""}));
    EXPECT_EQ(Dateien(), 0);
}

} // namespace
} // namespace varnholt
