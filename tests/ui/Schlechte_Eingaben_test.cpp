// What the program makes of damaged files, folders in the place of files, disks without room and a
// second run beside it: a clear notice, nothing lost, and it goes on.
#include "Haupt_Welt.h"

#include "core/instance.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/settings_file.h"
#include "core/windows.h"
#include "files/Datei_Zustand.h"
#include "programmer/Geraete.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QRadioButton>
#include <QTextBlock>

#include <random>
#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t Halbes_MB  = 524288;
constexpr std::uintmax_t Hundert_MB = 100u << 20;

std::string Zufall(std::size_t Anzahl, unsigned Saat)
{
    std::mt19937                       Zahlen(Saat);
    std::uniform_int_distribution<int> Byte(0, 255);
    std::string                        Text(Anzahl, '\0');
    for (char& c : Text)
        c = static_cast<char>(Byte(Zahlen));
    return Text;
}

// A complete settings file of a run in English and the MC-Editor, with one line replaced (from 1; 0
// for none).
std::string Einstellungen(int Zeile = 0, const std::string& Neue = {})
{
    Alles_Zuruecksetzen();
    Erststart_Werte();
    Start_Verzeichnis = "/";
    Port_Art          = "sim";
    std::istringstream Alt(Einstellungen_Schreiben());
    std::string        Text;
    std::string        z;
    for (int Nummer = 1; std::getline(Alt, z); ++Nummer)
        Text += Nummer == Zeile ? Neue + "\r\n" : z + "\n";
    Alles_Zuruecksetzen();
    return Text;
}

// A file of that size which takes no room.
void Leere_Datei(const fs::path& Name, std::uintmax_t Groesse)
{
    Datei_Anlegen(Name, "");
    fs::resize_file(Name, Groesse);
}

class Schlechte_Eingaben : public Haupt_Welt {
protected:
    // The user closes the main window. The end of the program ends every event loop to come, until
    // the application's own has run.
    void Schliessen()
    {
        Fenster->close();
        QTimer::singleShot(0, qApp, [] { QApplication::exit(0); });
        QApplication::exec();
    }
    // A start of the program as the settings say that lie in the folder.
    void Wieder_Starten()
    {
        Fenster.reset();
        Alles_Zuruecksetzen();
        Bauen();
        Fenster->Ausfuehren([] { Init(); });
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    void Neu(const std::string& s = "E", int In_Modus_ = Modus_MC)
    {
        Fenster.reset();
        Alles_Zuruecksetzen();
        Starten(s, In_Modus_);
    }
    void Mit_Einstellungen(const std::string& Text)
    {
        fs::remove_all(Heim + "Varnholt.ini");
        Datei_Anlegen(Heim + "Varnholt.ini", Text);
        Wieder_Starten();
    }
    // The window stands, with exactly one of the two main windows, and takes a line of text.
    void Geht_Noch(const std::string& Was)
    {
        ASSERT_TRUE(Fenster->isVisible()) << Was;
        EXPECT_NE(Suchen("Edit")->isVisible(), Suchen("Hexedit")->isVisible()) << Was;
        EXPECT_FALSE(Init_Laeuft) << Was;
        Aktion("MNU_Neu")->trigger();
        Aktion("MNU_MC")->trigger();
        Edit()->setFocus();
        Tippen("nop\n");
        EXPECT_EQ(Nach_Std(Edit()->toPlainText()).size(), 4u) << Was;
        Datei_Geaendert = false;
        Schliessen();
        const std::string Text = Datei_Inhalt(Heim + "Varnholt.ini");
        EXPECT_GE(std::count(Text.begin(), Text.end(), '\n'), Einstellungs_Zeilen) << Was;
    }
    std::string Letzter_Text() const
    {
        return Antworten.Texte.empty() ? std::string() : Antworten.Texte.back();
    }
    std::string Hinweis() const
    {
        return Nach_Std(qobject_cast<QLabel*>(Suchen("Hinweis"))->text());
    }
    void Laden(const std::string& Name)
    {
        Fenster->Ausfuehren([&] { Datei_Vorgegeben_Laden_Von(Name); });
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    // As the file dialog does.
    static void Datei_Vorgegeben_Laden_Von(const std::string& Name)
    {
        Dialog_Name = Name;
        Datei_Laden();
    }
    void Fallen_Lassen(const std::string& Name)
    {
        QMimeData Daten;
        Daten.setUrls({QUrl::fromLocalFile(Qt_Text(Name))});
        QDragEnterEvent Hinein(QPoint(10, 10), Qt::CopyAction, &Daten, Qt::LeftButton, {});
        QApplication::sendEvent(Fenster.get(), &Hinein);
        QDropEvent Fallen(QPointF(10, 10), Qt::CopyAction, &Daten, Qt::LeftButton, {});
        QApplication::sendEvent(Fenster.get(), &Fallen);
        QApplication::processEvents(); // it is opened when the drop is over
    }
    // The next window is the question of a partial load, answered so.
    void Abfrage_Beantworten(const char* Bereich, const char* Knopf)
    {
        Antworten.Naechstes([=](QWidget* w) {
            ASSERT_EQ(w->objectName(), QStringLiteral("Abfrage"));
            if (Bereich != nullptr)
                QTest::mouseClick(w->findChild<QRadioButton*>(QLatin1String(Bereich)),
                                  Qt::LeftButton,
                                  {},
                                  QPoint(8, 8));
            QTest::mouseClick(w->findChild<QPushButton*>(QLatin1String(Knopf)), Qt::LeftButton);
        });
    }
};

// --- the settings file ---

TEST_F(Schlechte_Eingaben, whatever_stands_in_the_settings_file_the_program_starts_and_mends_it)
{
    const std::string Gut = Einstellungen();
    std::string       Zahlen("E\r\n/\r\n\r\n\r\n\r\n");
    for (int i = 6; i <= Einstellungs_Zeilen; ++i)
        Zahlen += i % 3 == 0   ? "99999999999999999999\r\n"
                  : i % 3 == 1 ? "-32768\r\n"
                               : " 32767 \r\n";
    const std::vector<std::pair<const char*, std::string>> Faelle = {
        {"empty", ""},
        {"one letter", "E"},
        {"one line", "E\r\n"},
        {"one line end", "\n"},
        {"the mark in the wrong case", "E\r\nerststart\r\n"},
        {"zeros", std::string(5000, '\0')},
        {"all ones", std::string(5000, '\xFF')},
        {"noise", "E\r\n/\r\n" + Zufall(100000, 1)},
        {"half of it", Gut.substr(0, Gut.size() / 2)},
        {"numbers out of range", Zahlen},
        {"one endless line", "E\r\n" + std::string(3u << 20, 'x')},
        {"two million lines", "E\r\n" + std::string(2u << 20, '\n')},
        {"twice the file", Gut + Gut},
        {"a file of LF", [&] {
             std::string t = Gut;
             std::erase(t, '\r');
             return t;
         }()}};
    for (const auto& [Was, Text] : Faelle) {
        Mit_Einstellungen(Text);
        if (Sprache != "D" && Sprache != "E")
            Aktion("MNU_Englisch")->trigger();
        Geht_Noch(Was);
        Wieder_Starten();
        EXPECT_EQ(Hinweis().find("damaged"), std::string::npos) << Was << ": " << Hinweis();
    }
}

TEST_F(Schlechte_Eingaben, a_damaged_settings_file_is_told_in_the_status_line_in_both_languages)
{
    Mit_Einstellungen("E\r\n/\r\n");
    EXPECT_NE(Hinweis().find("Varnholt.ini is damaged: 140 lines"), std::string::npos) << Hinweis();
    Mit_Einstellungen("D\r\n/\r\n");
    EXPECT_NE(Hinweis().find("Varnholt.ini ist beschädigt: 140 Zeilen"), std::string::npos)
        << Hinweis();
}

TEST_F(Schlechte_Eingaben, a_complete_settings_file_brings_no_notice)
{
    Mit_Einstellungen(Einstellungen());
    EXPECT_EQ(Hinweis(), "");
}

TEST_F(Schlechte_Eingaben, a_file_that_ends_after_line_105_leaves_the_flags_unticked_in_the_dialog)
{
    const std::string Gut  = Einstellungen();
    std::size_t       Ende = 0;
    for (int i = 0; i < 105; ++i)
        Ende = Gut.find('\n', Ende) + 1;
    Mit_Einstellungen(Gut.substr(0, Ende));
    EXPECT_FALSE(Lade_Letzte);
    EXPECT_FALSE(No_FF);
    EXPECT_EQ(Hintergrund_Farbe, 0xFFFFFF);
    EXPECT_EQ(Undo_Max, 100);
    Antworten.Naechstes([](QWidget* w) {
        for (const char* Name : {"Lade_Letzte", "No_FF", "C_Brenner", "C_Autosave_timed"})
            EXPECT_FALSE(w->findChild<QAbstractButton*>(QLatin1String(Name))->isChecked()) << Name;
        EXPECT_EQ(w->findChild<QLineEdit*>(QStringLiteral("T_Undo_Max"))->text().toStdString(),
                  "101");
        w->close();
    });
    Aktion("MNU_Optionen")->trigger();
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Schlechte_Eingaben, no_place_in_the_settings_puts_a_window_out_of_reach)
{
    for (const char* Wert : {"-32768", "32767", "0", "-1", "nonsense"}) {
        std::string Text = Einstellungen();
        std::size_t Ort  = 0;
        for (int i = 0; i < 5; ++i)
            Ort = Text.find('\n', Ort) + 1;
        std::size_t Ende = Ort;
        for (int i = 0; i < 100; ++i)
            Ende = Text.find('\n', Ende) + 1;
        std::string Tabelle;
        for (int i = 0; i < 100; ++i)
            Tabelle += (i % 5 == 0 ? std::string("-1") : Wert) + "\r\n";
        Mit_Einstellungen(Text.replace(Ort, Ende - Ort, Tabelle));
        const auto* Flaeche = qobject_cast<QMdiArea*>(Suchen("Flaeche"));
        for (const char* Name : {"Hexedit", "Edit", "Spr", "Notiz"}) {
            const QWidget* w = Suchen(Name);
            if (!w->isVisible())
                continue;
            const QRect Sichtbar = w->geometry() & Flaeche->viewport()->rect();
            EXPECT_GE(Sichtbar.width(), 20) << Name << " " << Wert;
            EXPECT_GE(Sichtbar.height(), 10) << Name << " " << Wert;
            EXPECT_GE(w->y(), 0) << Name << " " << Wert; // the title bar can be taken hold of
        }
    }
}

TEST_F(Schlechte_Eingaben, no_font_in_the_settings_makes_the_text_unreadable)
{
    for (const char* Groesse : {"0", "-5", "1e308", "0.0001", "nan", "inf", "200", ""}) {
        Mit_Einstellungen(Einstellungen(116, Groesse));
        EXPECT_GT(Edit()->fontMetrics().height(), 3) << Groesse;
        EXPECT_LT(Edit()->fontMetrics().height(), 1000) << Groesse;
    }
    Mit_Einstellungen(Einstellungen(113, std::string(4000, 'W') + "\t\xFF\xC3("));
    EXPECT_GT(Edit()->fontMetrics().height(), 3);
}

TEST_F(Schlechte_Eingaben, a_folder_instead_of_the_settings_file_is_told_at_both_ends_of_the_run)
{
    fs::create_directories(Heim + "Varnholt.ini/inhalt");
    Wieder_Starten();
    ASSERT_TRUE(Fenster->isVisible());
    EXPECT_NE(Hinweis().find("Varnholt.ini could not be read: it is a folder"), std::string::npos)
        << Hinweis();
    Antworten.Taste(QMessageBox::No);
    Schliessen();
    EXPECT_TRUE(Fenster->isVisible());
    ASSERT_EQ(Antworten.Texte.size(), 1u);
    EXPECT_EQ(Antworten.Texte[0], "The settings could not be saved: it is a folder\nQuit anyway?");
    Antworten.Taste(QMessageBox::Yes);
    Schliessen();
    EXPECT_FALSE(Fenster->isVisible());
    EXPECT_TRUE(fs::is_directory(Heim + "Varnholt.ini/inhalt"));
    EXPECT_TRUE(Antworten.Fertig());
}

// --- the program folder ---

TEST_F(Schlechte_Eingaben, files_where_the_folders_belong_are_told_and_undo_is_missing)
{
    Datei_Anlegen(Heim + "Undo", "mine");
    Datei_Anlegen(Heim + "Autosave", "mine too");
    Mit_Einstellungen(Einstellungen());
    EXPECT_NE(Hinweis().find("Autosave could not be created"), std::string::npos) << Hinweis();
    Aktion("MNU_Neu")->trigger();
    Tippen("nop\nret\n");
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\n");
    EXPECT_FALSE(Aktion("MNU_Undo")->isEnabled());
    EXPECT_NE(Hinweis().find("Undo isn't possible: "), std::string::npos) << Hinweis();
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\n");
    Sekunden += 1000;
    Tippen("reti\n");
    EXPECT_NE(Hinweis().find("AutoSave: "), std::string::npos) << Hinweis();
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\nRETI\r\n");
    EXPECT_EQ(Datei_Inhalt(Heim + "Undo"), "mine");
    EXPECT_EQ(Datei_Inhalt(Heim + "Autosave"), "mine too");
}

TEST_F(Schlechte_Eingaben, a_program_folder_that_is_a_file_lets_the_program_start_and_end)
{
    const std::string Datei = Heim + "keiner";
    Datei_Anlegen(Datei, "no folder");
    qputenv("VARNHOLT_HOME", QByteArray::fromStdString(Datei));
    Wieder_Starten();
    // No settings can be found there, and none be written.
    if (!Fenster->isVisible()) {
        Erststart_Englisch = true;
        Fenster->Ausfuehren([] { Erststart_Command1_Click(); });
        Fenster->Ausfuehren([] { Abfrage_Modus_Button_Mode_2_Click(); });
    }
    ASSERT_TRUE(Fenster->isVisible());
    EXPECT_NE(Hinweis(), "");
    Aktion("MNU_Englisch")->trigger();
    Edit()->setFocus();
    Tippen("nop\n");
    EXPECT_EQ(Edit()->Text(), "NOP\r\n");
    Antworten.Taste(QMessageBox::No);  // unsaved changes
    Antworten.Taste(QMessageBox::Yes); // the settings
    Schliessen();
    EXPECT_FALSE(Fenster->isVisible());
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Datei_Inhalt(Datei), "no folder");
}

TEST_F(Schlechte_Eingaben, a_program_folder_without_permission_lets_the_program_start_and_end)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    Datei_Anlegen(Heim + "Varnholt.ini", Einstellungen());
    fs::permissions(Heim, fs::perms::owner_read | fs::perms::owner_exec);
    Wieder_Starten();
    EXPECT_TRUE(Fenster->isVisible());
    EXPECT_NE(Hinweis().find("could not be created"), std::string::npos) << Hinweis();
    Antworten.Taste(QMessageBox::Yes);
    Schliessen();
    EXPECT_FALSE(Fenster->isVisible());
    EXPECT_EQ(Letzter_Text(), "The settings could not be saved: no permission\nQuit anyway?");
    fs::permissions(Heim, fs::perms::owner_all);
}

TEST_F(Schlechte_Eingaben, a_missing_or_broken_device_file_leaves_the_program_without_devices)
{
    fs::remove(Heim + "Spec.ini");
    Mit_Einstellungen(Einstellungen(106, " 7 "));
    EXPECT_EQ(IC_Menue_Name(), "");
    Geht_Noch("missing");
    fs::create_directory(Heim + "Spec.ini");
    Mit_Einstellungen(Einstellungen(106, " 7 "));
    EXPECT_EQ(Aktion("MNU_IC")->text().remove(u'&'), QStringLiteral("Programmer"));
    Geht_Noch("a folder");
    fs::remove(Heim + "Spec.ini");
    Datei_Anlegen(Heim + "Spec.ini", Zufall(300000, 2));
    Mit_Einstellungen(Einstellungen());
    Geht_Noch("noise");
}

TEST_F(Schlechte_Eingaben, a_missing_device_file_is_told_in_German)
{
    fs::remove(Heim + "Spec.ini");
    Antworten.Taste(QMessageBox::Ok);
    Mit_Einstellungen(Einstellungen(1, "D"));
    EXPECT_EQ(
        Antworten.Texte,
        (std::vector<std::string>{"Die Datei Spec.ini ist nicht vorhanden oder fehlerhaft !"}));
}

// --- files that vanish, folders with the names of files ---

TEST_F(Schlechte_Eingaben, a_recent_file_that_vanished_is_told_and_the_text_stays)
{
    for (const std::string s : {"D", "E"}) {
        Neu(s);
        const std::string Name = Heim + "weg.asm";
        Datei_Anlegen(Name, "NOP\n");
        Laden(Name);
        const std::string Andere = Heim + "bleibt.asm";
        Datei_Anlegen(Andere, "RET\n");
        Laden(Andere);
        ASSERT_EQ(Aktion("MNU_Datei2")->text(), Qt_Text(Name));
        fs::remove(Name);
        Antworten.Taste(QMessageBox::Ok);
        Aktion("MNU_Datei2")->trigger();
        EXPECT_EQ(Letzter_Text(),
                  s == "D" ? "Konnte die Datei " + Name + " nicht finden !"
                           : "Couldn´t find the file " + Name + " !");
        EXPECT_EQ(Edit()->Text(), "RET\r\n");
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(Datei_Inhalt(Andere), "RET\n");
    }
}

TEST_F(Schlechte_Eingaben, a_recent_file_that_vanished_before_the_start_is_dropped_without_a_word)
{
    Mit_Einstellungen(Einstellungen(3, Heim + "nirgends.asm"));
    EXPECT_FALSE(Aktion("MNU_Datei1")->isVisible());
    EXPECT_FALSE(Aktion("MNU_Leer3")->isVisible());
    EXPECT_TRUE(Antworten.Texte.empty());
    EXPECT_EQ(Edit()->Text(), "");
}

TEST_F(Schlechte_Eingaben, a_folder_is_no_document)
{
    Neu();
    Aktion("MNU_Neu")->trigger();
    for (const char* Name : {"ordner.asm", "ordner.bin", "ordner.hex", "ordner"}) {
        fs::create_directory(Heim + Name);
        Antworten.Taste(QMessageBox::Ok);
        Fallen_Lassen(Heim + Name);
        EXPECT_EQ(Letzter_Text(), "Couldn´t find the file " + Heim + Name + " !");
        EXPECT_EQ(Modus, Modus_MC);
    }
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Schlechte_Eingaben, a_folder_among_the_recent_files_of_the_settings_is_survived)
{
    fs::create_directory(Heim + "ordner.asm");
    Antworten.Taste(QMessageBox::Ok);
    Mit_Einstellungen(Einstellungen(3, Heim + "ordner.asm"));
    EXPECT_TRUE(Fenster->isVisible());
    EXPECT_EQ(Edit()->Text(), "");
}

TEST_F(Schlechte_Eingaben, a_command_line_that_names_nothing_or_a_folder_leaves_the_recent_files)
{
    const std::string Gute = Heim + "gute.asm";
    Datei_Anlegen(Gute, "NOP\n");
    for (const std::string& Zeile : {Heim + "nirgends.bin", Heim, std::string(100000, 'x')}) {
        Datei_Anlegen(Heim + "Varnholt.ini", Einstellungen(3, Gute));
        Fenster.reset();
        Alles_Zuruecksetzen();
        Bauen();
        Startlauf.Kommandozeile = Zeile;
        Fenster->Ausfuehren([] { Init(); });
        EXPECT_EQ(Letzte_Datei[0], Gute);
        EXPECT_EQ(Modus, Modus_MC);
        EXPECT_EQ(Edit()->Text(), "NOP\r\n");
    }
}

// --- sources ---

TEST_F(Schlechte_Eingaben, a_source_of_100_MB_is_refused_in_the_status_line_and_nothing_is_lost)
{
    for (const std::string s : {"D", "E"}) {
        Neu(s);
        const std::string Name = Heim + "kleine.asm";
        Datei_Anlegen(Name, "NOP\n");
        Laden(Name);
        const std::string Grosse = Heim + "grosse.asm";
        Leere_Datei(Grosse, Hundert_MB);
        Laden(Grosse);
        EXPECT_NE(Hinweis().find(s == "D" ? "konnte nicht gelesen werden: sie ist länger als"
                                          : "could not be read: it is longer than"),
                  std::string::npos)
            << Hinweis();
        EXPECT_EQ(Edit()->Text(), "NOP\r\n");
        EXPECT_EQ(Datei_Name, Name);
        EXPECT_EQ(Suchen("Edit")->windowTitle(), Qt_Text("MC-Editor " + Name));
        Tippen("x");
        Taste(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(Datei_Inhalt(Name), "xNOP\n");
        EXPECT_EQ(fs::file_size(Grosse), Hundert_MB);
    }
}

TEST_F(Schlechte_Eingaben, notes_of_100_MB_are_refused_and_not_written_over)
{
    Neu();
    const std::string Name = Heim + "quelle.asm";
    Datei_Anlegen(Name, "NOP\n");
    Leere_Datei(Heim + "quelle.not", Hundert_MB);
    Laden(Name);
    EXPECT_EQ(Edit()->Text(), "NOP\r\n");
    EXPECT_NE(Hinweis().find("quelle.not could not be read"), std::string::npos) << Hinweis();
    Tippen("x");
    Taste(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Datei_Inhalt(Name), "xNOP\n");
    EXPECT_EQ(fs::file_size(Heim + "quelle.not"), Hundert_MB);
}

TEST_F(Schlechte_Eingaben, a_line_of_1_MB_loads_is_edited_and_left)
{
    Neu();
    const std::string Name = Heim + "lang.asm";
    const std::string Lang = "NOP ; " + std::string((1u << 20) - 6, 'x');
    Datei_Anlegen(Name, Lang + "\nRET\n");
    QElapsedTimer Uhr;
    Uhr.start();
    Laden(Name);
    RecordProperty("laden_ms", static_cast<int>(Uhr.restart()));
    ASSERT_EQ(Edit()->Laenge(), static_cast<std::int64_t>(Lang.size() + 2 + 5));
    EXPECT_EQ(Edit()->Farbe_An(10), 0x119911);
    Taste(Qt::Key_A);
    EXPECT_EQ(Edit()->Laenge(), static_cast<std::int64_t>(Lang.size() + 1 + 2 + 5));
    Taste(Qt::Key_Down);
    RecordProperty("taste_ms", static_cast<int>(Uhr.restart()));
    EXPECT_EQ(Edit()->textCursor().blockNumber(), 1);
    EXPECT_TRUE(Aktion("MNU_Undo")->isEnabled());
    Taste(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Datei_Inhalt(Name), "a" + Lang + "\nRET\n");
}

TEST_F(Schlechte_Eingaben, a_line_of_1_MB_of_words_and_operators_is_left)
{
    Neu();
    const std::string Name = Heim + "worte.asm";
    std::string       Lang;
    while (Lang.size() < (1u << 20))
        Lang += "mov a=b<>c ";
    Datei_Anlegen(Name, Lang + "\nRET\n");
    Laden(Name);
    Taste(Qt::Key_End);
    Taste(Qt::Key_X);
    Taste(Qt::Key_Down);
    EXPECT_TRUE(Edit()->Text().starts_with("MOV A = b <> c MOV ")) << Edit()->Text().substr(0, 40);
    EXPECT_EQ(Edit()->textCursor().blockNumber(), 1);
}

TEST_F(Schlechte_Eingaben, a_source_of_any_bytes_is_shown_and_saved_as_it_was)
{
    Neu();
    std::string Alle;
    for (int i = 0; i < 256; ++i)
        Alle += static_cast<char>(i);
    for (const std::string& Bytes :
         {Alle, Zufall(20000, 3), std::string(3000, '\0'), std::string("\r\r\n\n\r")}) {
        const std::string Name = Heim + "bytes.asm";
        Datei_Anlegen(Name, Bytes);
        Laden(Name);
        Taste(Qt::Key_S, Qt::ControlModifier);
        EXPECT_TRUE(Datei_Inhalt(Name) == Bytes) << Bytes.size();
        EXPECT_TRUE(Antworten.Texte.empty());
    }
}

// --- images ---

TEST_F(Schlechte_Eingaben, an_image_of_524288_bytes_loads_whole_and_one_byte_more_is_asked_about)
{
    Neu("E", Modus_Hex);
    std::string Bytes(Halbes_MB, '\x11');
    Bytes.back() = '\x22';
    Datei_Anlegen(Heim + "genau.bin", Bytes);
    Laden(Heim + "genau.bin");
    EXPECT_EQ(Hex_Daten[Halbes_MB - 1], 0x22);

    const std::string Name = Heim + "mehr.bin";
    Datei_Anlegen(Name, Bytes + '\x33');
    Abfrage_Beantworten(nullptr, "Abbrechen");
    Laden(Name);
    EXPECT_EQ(Letztes_Byte(), -1);

    Abfrage_Beantworten("Bereich1", "OK");
    Laden(Name);
    EXPECT_EQ(Hex_Daten[0], 0x11);
    EXPECT_EQ(Hex_Daten[Halbes_MB - 1], 0x22);
    EXPECT_EQ(Suchen("Hexedit")->windowTitle(), Qt_Text("Hex-Editor " + Name));

    Abfrage_Beantworten("Bereich2", "OK");
    Laden(Name);
    EXPECT_EQ(Hex_Daten[0], 0x33);
    EXPECT_EQ(Letztes_Byte(), 0);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(fs::file_size(Name), Halbes_MB + 1);
}

TEST_F(Schlechte_Eingaben, the_question_of_a_partial_load_is_the_same_in_both_languages)
{
    for (const std::string s : {"D", "E"}) {
        Neu(s, Modus_Hex);
        const std::string Name = Heim + "mehr.bin";
        Leere_Datei(Name, Halbes_MB + 1);
        QString Frage;
        QString Weg;
        Antworten.Naechstes([&](QWidget* w) {
            Frage = w->findChild<QLabel*>(QStringLiteral("Label"))->text();
            Weg   = w->findChild<QPushButton*>(QStringLiteral("Abbrechen"))->text();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        Laden(Name);
        Frage.remove(QChar(0x200B)); // places to break a long path
        EXPECT_EQ(Nach_Std(Frage),
                  s == "D" ? "Die Datei " + Name +
                                 " ist größer als 524288 Byte und kann daher nur teilweise geladen "
                                 "werden! Bitte wählen Sie den zu ladenen Bereich:"
                           : "Couldn't load the file " + Name +
                                 " completely at once. The filesize is over 524288 byte. Please "
                                 "choose an area to load:");
        EXPECT_EQ(Nach_Std(Weg), s == "D" ? "Abbrechen" : "Abort");
    }
}

TEST_F(Schlechte_Eingaben, an_image_over_1048576_bytes_loads_its_first_bytes_with_a_message)
{
    for (const std::string s : {"D", "E"}) {
        Neu(s, Modus_Hex);
        const std::string Name = Heim + "riese.bin";
        Datei_Anlegen(Name, "\x12\x34");
        fs::resize_file(Name, s == "D" ? 1048577 : Hundert_MB);
        QString Titel;
        Antworten.Naechstes([&](QWidget* w) {
            Titel = w->windowTitle();
            w->close();
        });
        Laden(Name);
        EXPECT_EQ(Nach_Std(Titel),
                  s == "D" ? "Dateigröße über 1048576 Byte" : "Filesize over 1048576 Byte");
        EXPECT_EQ(Letzter_Text(),
                  s == "D" ? "Die Datei " + Name + " kann nicht komplett geladen werden!"
                           : "Couldn´t load the file " + Name + " complete!");
        EXPECT_EQ(Hex_Daten[0], 0x12);
        EXPECT_EQ(Hex_Daten[1], 0x34);
        EXPECT_EQ(Hex_Daten[2], 0x00);
    }
}

TEST_F(Schlechte_Eingaben, a_long_image_at_the_start_asks_nothing_and_loads_nothing)
{
    Leere_Datei(Heim + "mehr.bin", Halbes_MB + 1);
    Mit_Einstellungen(Einstellungen(3, Heim + "mehr.bin"));
    EXPECT_EQ(Modus, Modus_Hex);
    EXPECT_EQ(Letztes_Byte(), -1);
    EXPECT_TRUE(Antworten.Texte.empty());
}

TEST_F(Schlechte_Eingaben, junk_in_the_text_formats_of_the_image_gives_no_message)
{
    Neu("E", Modus_Hex);
    const std::vector<std::string> Muell = {
        "",
        ":",
        ":FF",
        ":10000000",
        ":FFFFFF00" + std::string(2000, 'Z'),
        "S1",
        "S1FF",
        "S2FFFFFFFF" + std::string(600, '1'),
        "999,999999999,1",
        "999",
        "-1,256,1e9,'x',",
        std::string(100000, ':'),
        std::string(100000, '\n'),
        std::string(50000, '\0'),
        Zufall(200000, 4),
    };
    for (const char* Endung : {".hex", ".ihx", ".mhx", ".dat"})
        for (const std::string& Text : Muell) {
            Datei_Anlegen(Heim + "muell" + Endung, Text);
            Laden(Heim + "muell" + Endung);
            EXPECT_EQ(Modus, Modus_Hex);
            EXPECT_FALSE(Datei_Geaendert);
        }
    EXPECT_TRUE(Antworten.Texte.empty());
    Datei_Anlegen(Heim + "gut.hex", ":0100000012ED\r\n:00000001FF\r\n");
    Laden(Heim + "gut.hex");
    EXPECT_EQ(Hex_Daten[0], 0x12);
    EXPECT_EQ(Letztes_Byte(), 0);
}

TEST_F(Schlechte_Eingaben, a_hex_file_of_100_MB_is_refused_and_the_image_stays)
{
    Neu("E", Modus_Hex);
    Hex_Daten[5] = 0x55;
    for (const char* Endung : {".hex", ".mhx", ".dat"}) {
        Leere_Datei(Heim + "riese" + Endung, Hundert_MB);
        Laden(Heim + "riese" + Endung);
        EXPECT_NE(Hinweis().find("could not be read: it is longer than"), std::string::npos);
        EXPECT_EQ(Hex_Daten[5], 0x55);
        EXPECT_EQ(Datei_Name, "");
    }
}

// --- disks that are full, folders that are gone ---

TEST_F(Schlechte_Eingaben, a_save_to_a_full_disk_keeps_the_document_changed_and_says_so)
{
    for (const std::string s : {"D", "E"}) {
        Neu(s);
        Aktion("MNU_Neu")->trigger();
        const std::string Name = Heim + "voll.asm";
        fs::remove(Name);
        fs::create_symlink("/dev/full", Name);
        Datei_Name = Name;
        Tippen("nop\n");
        Taste(Qt::Key_S, Qt::ControlModifier);
        EXPECT_NE(Hinweis().find(s == "D" ? "konnte nicht geschrieben werden: der Datenträger ist "
                                            "voll"
                                          : "could not be written: the disk is full"),
                  std::string::npos)
            << Hinweis();
        EXPECT_TRUE(Datei_Geaendert);
        EXPECT_TRUE(Suchen("Edit")->windowTitle().startsWith(QStringLiteral("MC-Editor (*)")));
        EXPECT_EQ(Edit()->Text(), "NOP\r\n");
    }
}

TEST_F(Schlechte_Eingaben, Yes_at_the_end_keeps_the_program_when_the_disk_is_full)
{
    Neu();
    Aktion("MNU_Neu")->trigger();
    const std::string Name = Heim + "voll.asm";
    fs::create_symlink("/dev/full", Name);
    Datei_Name = Name;
    Tippen("nop\n");
    Antworten.Taste(QMessageBox::Yes);
    Taste(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(Antworten.Texte, (std::vector<std::string>{"Save changes first?"}));
    EXPECT_TRUE(Fenster->isVisible());
    EXPECT_EQ(Edit()->Text(), "NOP\r\n");
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Schlechte_Eingaben, settings_that_find_no_room_are_asked_about_in_both_languages)
{
    for (const std::string s : {"D", "E"}) {
        Neu(s);
        Datei_Anlegen(Heim + "Undo/Undo 0.rtf", "a step");
        Datei_Anlegen(Heim + "startup", "x");
        fs::remove(Heim + "Varnholt.ini");
        fs::create_symlink("/dev/full", Heim + "Varnholt.ini");
        Antworten.Taste(QMessageBox::No);
        Taste(Qt::Key_Q, Qt::ControlModifier);
        EXPECT_EQ(Letzter_Text(),
                  s == "D" ? "Die Einstellungen konnten nicht gespeichert werden: der Datenträger "
                             "ist voll\nTrotzdem beenden?"
                           : "The settings could not be saved: the disk is full\nQuit anyway?");
        EXPECT_TRUE(Fenster->isVisible());
        EXPECT_TRUE(fs::exists(Heim + "Undo/Undo 0.rtf"));
        EXPECT_TRUE(fs::exists(Heim + "startup"));
        fs::remove(Heim + "Varnholt.ini");
        Aktion("MNU_Ende")->trigger(); // room again: no question any more
        Schliessen();
        EXPECT_FALSE(Fenster->isVisible());
        EXPECT_EQ(Datei_Inhalt(Heim + "Varnholt.ini").substr(0, 1), s);
        EXPECT_FALSE(fs::exists(Heim + "startup"));
        EXPECT_TRUE(Antworten.Fertig());
    }
}

TEST_F(Schlechte_Eingaben, a_save_into_a_folder_that_is_gone_says_so)
{
    Neu();
    Aktion("MNU_Neu")->trigger();
    Datei_Name = Heim + "nirgends/eins.asm";
    Tippen("nop\n");
    Taste(Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(Hinweis().find("could not be written: the folder does not exist"), std::string::npos);
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Schlechte_Eingaben, an_undo_folder_that_vanishes_costs_the_steps_and_not_the_text)
{
    Neu();
    Aktion("MNU_Neu")->trigger();
    Tippen("nop\nret\n");
    ASSERT_TRUE(Aktion("MNU_Undo")->isEnabled());
    fs::remove_all(Heim + "Undo");
    for (int i = 0; i < 5; ++i)
        Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\n");
    EXPECT_NE(Hinweis(), "");
    Tippen("reti\n");
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\nRETI\r\n");
}

TEST_F(Schlechte_Eingaben, damaged_undo_steps_are_skipped_with_a_notice)
{
    Neu();
    Aktion("MNU_Neu")->trigger();
    Tippen("nop\nret\n");
    for (const fs::directory_entry& e : fs::directory_iterator(Heim + "Undo"))
        Datei_Anlegen(e.path(), Zufall(1000, 5));
    for (int i = 0; i < 3; ++i)
        Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "NOP\r\nRET\r\n");
    EXPECT_NE(Hinweis(), "");
}

// --- the crash marker, and a second run ---

TEST_F(Schlechte_Eingaben, a_crash_marker_of_any_contents_leaves_the_recent_files)
{
    const std::string Gute = Heim + "gute.asm";
    Datei_Anlegen(Gute, "NOP\n");
    for (const std::string& Inhalt : {std::string(),
                                      Heim + "nirgends.asm\r\n",
                                      Zufall(50000, 6),
                                      std::string(1u << 20, '/'),
                                      std::string(3000, '\0')}) {
        Datei_Anlegen(Heim + "startup", Inhalt);
        Antworten.Taste(QMessageBox::Yes);
        std::string Text = Einstellungen(3, Gute);
        Text[0]          = 'D';
        Mit_Einstellungen(Text);
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_EQ(Letzte_Datei[0], Gute);
        EXPECT_EQ(Edit()->Text(), "NOP\r\n");
        Schliessen();
        EXPECT_FALSE(fs::exists(Heim + "startup"));
    }
}

TEST_F(Schlechte_Eingaben, after_a_crash_the_autosaved_file_comes_back_on_Yes_and_not_in_English)
{
    fs::create_directory(Heim + "Autosave");
    const std::string Kopie = Heim + "Autosave/autosave0.asm";
    Datei_Anlegen(Kopie, "RETI\n");
    Datei_Anlegen(Heim + "startup", Kopie + "\r\n");
    Mit_Einstellungen(Einstellungen()); // English: nothing is asked
    EXPECT_EQ(Edit()->Text(), "");
    EXPECT_TRUE(fs::exists(Heim + "startup"));
    Antworten.Taste(QMessageBox::Yes);
    Mit_Einstellungen(Einstellungen(1, "D"));
    EXPECT_EQ(Antworten.Texte,
              (std::vector<std::string>{
                  "Die Software wurde beim letzten Aufruf nicht korrekt beendet. Sollte dieses "
                  "durch einen Fehler geschehen sein, können Sie die letzten automatisch "
                  "abgespeicherten Dateien unter dem Verzeichnis " +
                  Heim +
                  "Autosave/ wieder einladen. Soll nun die letzte automatisch abgespeicherte Datei "
                  "wieder eingeladen werden?"}));
    EXPECT_EQ(Edit()->Text(), "RETI\r\n");
    EXPECT_EQ(Datei_Name, Kopie);
}

TEST_F(Schlechte_Eingaben, a_second_run_has_an_undo_folder_of_its_own_and_leaves_the_marker)
{
    const std::string Text = Einstellungen(1, "D");
    Datei_Sperre      Erste;
    ASSERT_EQ(Erste.Nehmen(Heim + "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    fs::create_directory(Heim + "Undo");
    Datei_Anlegen(Heim + "Undo/Undo 0.rtf", "a step of the first");
    Datei_Anlegen(Heim + "startup", "/marker\r\n");
    Mit_Einstellungen(Text); // German, and yet nothing is asked
    EXPECT_TRUE(Antworten.Texte.empty());
    EXPECT_EQ(Undo_Ordner, "Undo-2");
    Tippen("nop\nret\n");
    EXPECT_TRUE(fs::exists(Heim + "Undo-2/Undo 0.rtf"));
    Sekunden += 1000;
    Tippen("reti\n"); // an autosave
    EXPECT_EQ(Datei_Inhalt(Heim + "startup"), "/marker\r\n");
    EXPECT_EQ(Datei_Inhalt(Heim + "Undo/Undo 0.rtf"), "a step of the first");
    Antworten.Taste(QMessageBox::No);
    Schliessen();
    EXPECT_FALSE(Fenster->isVisible());
    EXPECT_FALSE(fs::exists(Heim + "Undo-2"));
    EXPECT_EQ(Datei_Inhalt(Heim + "startup"), "/marker\r\n");
    EXPECT_EQ(Datei_Inhalt(Heim + "Undo/Undo 0.rtf"), "a step of the first");
}

TEST_F(Schlechte_Eingaben, a_third_run_beside_two_takes_the_next_folder)
{
    Datei_Sperre Erste;
    Datei_Sperre Zweite;
    ASSERT_EQ(Erste.Nehmen(Heim + "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    fs::create_directory(Heim + "Undo-2");
    ASSERT_EQ(Zweite.Nehmen(Heim + "Undo-2/Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    Mit_Einstellungen(Einstellungen());
    EXPECT_EQ(Undo_Ordner, "Undo-3");
    Tippen("nop\n");
    Taste(Qt::Key_Z, Qt::ControlModifier);
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Edit()->Text(), "");
    EXPECT_TRUE(fs::exists(Heim + "Undo-3/Varnholt.lock"));
    EXPECT_TRUE(fs::exists(Heim + "Undo-2/Varnholt.lock"));
}

TEST_F(Schlechte_Eingaben, a_run_that_outlives_the_first_takes_the_marker_over)
{
    const std::string Text = Einstellungen();
    Datei_Sperre      Erste;
    ASSERT_EQ(Erste.Nehmen(Heim + "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    Mit_Einstellungen(Text);
    EXPECT_EQ(Undo_Ordner, "Undo-2");
    Erste.Loesen();
    Sekunden += 1000;
    Tippen("nop\nret\n");
    EXPECT_NE(Datei_Inhalt(Heim + "startup").find("autosave0.asm"), std::string::npos);
    Datei_Geaendert = false;
    Schliessen();
    EXPECT_FALSE(fs::exists(Heim + "startup"));
}

} // namespace
} // namespace varnholt::test
