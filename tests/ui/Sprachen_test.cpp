// Every caption, tool tip and message of the program in both languages, as the real windows show
// them; the change of language while they are open; a language that is none.
#include "Haupt_Welt.h"

#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/settings_file.h"
#include "core/windows.h"
#include "files/Datei_Zustand.h"
#include "programmer/Geraete.h"
#include "support/Beschriftungen.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTabWidget>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// A caption without the mark of its underlined letter.
std::string Ohne_Marke(const QString& Text)
{
    QString Ziel;
    for (qsizetype i = 0; i < Text.size(); ++i) {
        if (Text[i] == u'&' && i + 1 < Text.size())
            ++i;
        Ziel += Text[i];
    }
    return Nach_Std(Ziel);
}

// The control shows its caption in the way of its kind.
void Options_Text_Pruefen(const QWidget& w, const Options_Beschriftung& p, const std::string& Soll)
{
    const auto Feld = [&] {
        auto* f = w.findChild<QWidget*>(QString::fromUtf8(p.Feld));
        EXPECT_NE(f, nullptr) << p.Feld;
        return f;
    };
    if (p.Art == Options_Art::Knopf) {
        const auto* Knopf = qobject_cast<QAbstractButton*>(Feld());
        ASSERT_NE(Knopf, nullptr) << p.Feld;
        EXPECT_EQ(Nach_Std(Knopf->text()), Soll);
    } else if (p.Art == Options_Art::Gruppe) {
        const auto* Gruppe = qobject_cast<QGroupBox*>(Feld());
        ASSERT_NE(Gruppe, nullptr) << p.Feld;
        EXPECT_EQ(Nach_Std(Gruppe->title()), Soll);
    } else if (p.Art == Options_Art::Schild) {
        EXPECT_EQ(Nach_Std(Feld()->accessibleName()), Soll);
        const auto Alle = w.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(Alle.begin(), Alle.end(), [&](const QLabel* l) {
            return Nach_Std(l->text()) == Soll;
        })) << Soll;
    }
}

class Sprachen : public Haupt_Welt {
protected:
    // The user closes the main window. The end of the program ends every event loop to come, until
    // the application's own has run.
    void Schliessen()
    {
        Fenster->close();
        QTimer::singleShot(0, qApp, [] { QApplication::exit(0); });
        QApplication::exec();
    }
    void Neu(const std::string& s, int In_Modus_ = Modus_MC)
    {
        Fenster.reset();
        Alles_Zuruecksetzen();
        Starten(s, In_Modus_);
    }
    void Sprache_Waehlen(const std::string& s)
    {
        Aktion(s == "D" ? "MNU_Deutsch" : "MNU_Englisch")->trigger();
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    std::string Titel(const char* Name) const { return Ohne_Marke(Aktion(Name)->text()); }
    std::string Schild(const char* Name) const
    {
        return Nach_Std(qobject_cast<QLabel*>(Suchen(Name))->text());
    }
    void Alle_Titel_Pruefen(const std::string& s)
    {
        for (const Beschriftung& p : Menue_Texte)
            EXPECT_EQ(Titel(p.Name), p.In(s)) << p.Name;
        for (const Werkzeug_Beschriftung& p : Werkzeug_Texte)
            EXPECT_EQ(Nach_Std(Aktion((std::string("Toolbar_") + p.Name).c_str())->toolTip()),
                      p.In(s));
        EXPECT_EQ(Nach_Std(Suchen("Spr")->windowTitle()), s == "D" ? "Sprungmarken" : "Jumpmarks");
        EXPECT_EQ(Nach_Std(Suchen("Notiz")->windowTitle()), s == "D" ? "Notizen" : "Notes");
        EXPECT_EQ(Aktion("MNU_Deutsch")->isChecked(), s == "D");
        EXPECT_EQ(Aktion("MNU_Englisch")->isChecked(), s == "E");
    }
    // Runs a command that shows one message box; its text, title and buttons are kept.
    void Box_Zeigen(const std::function<void()>& Befehl,
                    QMessageBox::StandardButton  Antwort_Knopf = QMessageBox::Ok)
    {
        Box_Text.clear();
        Antworten.Naechstes([this, Antwort_Knopf](QWidget* w) {
            auto* Box = qobject_cast<QMessageBox*>(w);
            ASSERT_NE(Box, nullptr);
            Box_Text  = Nach_Std(Box->text());
            Box_Titel = Nach_Std(Box->windowTitle());
            Box_Bild  = Box->icon();
            Knoepfe_.clear();
            for (const auto k :
                 {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel, QMessageBox::Ok})
                if (Box->button(k) != nullptr)
                    Knoepfe_.push_back(Ohne_Marke(Box->button(k)->text()));
            QTest::mouseClick(static_cast<QWidget*>(Box->button(Antwort_Knopf)), Qt::LeftButton);
        });
        Befehl();
        QApplication::processEvents();
        EXPECT_TRUE(Antworten.Fertig());
    }
    void Laden(const std::string& Name)
    {
        Dialog_Name = Name;
        Fenster->Ausfuehren([] { Datei_Laden(); });
    }

    std::string              Box_Text{};
    std::string              Box_Titel{};
    QMessageBox::Icon        Box_Bild = QMessageBox::NoIcon;
    std::vector<std::string> Knoepfe_{};
};

const std::string Beide[] = {"D", "E"};

// --- captions of the main window ---

TEST_F(Sprachen, every_caption_stands_in_the_language_of_the_start)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Alle_Titel_Pruefen(s);
    }
}

TEST_F(Sprachen, every_caption_changes_at_once_and_back_while_the_windows_are_open)
{
    Neu("D");
    const QString Haupttitel = Fenster->windowTitle();
    EXPECT_FALSE(Haupttitel.isEmpty());
    for (const std::string s : {"E", "D", "D", "E"}) {
        Sprache_Waehlen(s);
        EXPECT_EQ(Sprache, s);
        Alle_Titel_Pruefen(s);
        EXPECT_EQ(Fenster->windowTitle(), Haupttitel);
    }
}

TEST_F(Sprachen, the_change_button_speaks_the_language_and_the_mode)
{
    Neu("D", Modus_Hex);
    const auto Hinweis = [&] { return Nach_Std(Aktion("Toolbar_Umschalten")->toolTip()); };
    EXPECT_EQ(Hinweis(), "Disassemblieren");
    Sprache_Waehlen("E");
    EXPECT_EQ(Hinweis(), "Disassemble");
    Neu("E");
    EXPECT_EQ(Hinweis(), "Assemble");
    Sprache_Waehlen("D");
    EXPECT_EQ(Hinweis(), "Assemblieren");
}

TEST_F(Sprachen, the_main_child_windows_have_the_same_caption_in_both_languages)
{
    Neu("D");
    Aktion("MNU_Neu")->trigger();
    for (const std::string& s : Beide) {
        Sprache_Waehlen(s);
        EXPECT_EQ(Nach_Std(Suchen("Edit")->windowTitle()), "MC-Editor ");
        EXPECT_EQ(Nach_Std(Suchen("Hexedit")->windowTitle()), "Hex-Editor ");
    }
    Tippen("x");
    EXPECT_EQ(Nach_Std(Suchen("Edit")->windowTitle()), "MC-Editor (*)");
}

TEST_F(Sprachen, the_recent_files_are_not_touched)
{
    Neu("D");
    const std::string Name = Heim + "Öffnen.asm";
    Datei_Anlegen(Name, "NOP\n");
    Laden(Name);
    for (const std::string s : {"E", "D"}) {
        Sprache_Waehlen(s);
        EXPECT_EQ(Titel("MNU_Datei1"), Name);
        EXPECT_TRUE(Aktion("MNU_Datei1")->isVisible());
        EXPECT_EQ(Letzte_Datei[0], Name);
    }
}

TEST_F(Sprachen, the_device_keeps_its_name_in_the_menu)
{
    Neu("D");
    IC_Nummer              = 0;
    const std::string Name = IC_Menue_Name();
    ASSERT_NE(Name, "");
    Sprache_Waehlen("E");
    EXPECT_EQ(Titel("MNU_IC"), "Programmer (" + Name + ")");
    EXPECT_EQ(Schild("Status_Baustein"), Name);
    Sprache_Waehlen("D");
    EXPECT_EQ(Titel("MNU_IC"), "Brenner (" + Name + ")");
}

TEST_F(Sprachen, a_list_without_jumpmarks_says_so_in_the_language)
{
    Neu("D");
    Aktion("MNU_Neu")->trigger();
    const auto Eintrag = [&] {
        Fenster->Nachziehen();
        const auto* m = qobject_cast<QListView*>(Suchen("Liste"))->model();
        return m->rowCount() == 1 ? Nach_Std(m->index(0, 0).data().toString()) : "?";
    };
    EXPECT_EQ(Eintrag(), "Keine Sprungmarken");
    Sprache_Waehlen("E");
    EXPECT_EQ(Eintrag(), "No jumpmarks");
}

TEST_F(Sprachen, a_text_and_its_marks_stay_when_the_language_changes)
{
    Neu("D");
    Aktion("MNU_Neu")->trigger();
    Tippen("mark:\tNOP ; n\nRET");
    Edit()->Auswaehlen(2, 3);
    Datei_Geaendert = false;
    Sprache_Waehlen("E");
    EXPECT_EQ(Edit()->Text(), "mark:\tNOP ; n\r\nRET");
    EXPECT_EQ(Edit()->Farbe_An(0), 0xDD1111);
    EXPECT_EQ(Edit()->Auswahl().Laenge, 3);
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Sprachen, the_language_is_kept_for_the_next_start)
{
    for (const std::string& s : Beide) {
        Neu(s == "D" ? "E" : "D");
        Sprache_Waehlen(s);
        Schliessen();
        EXPECT_TRUE(Datei_Inhalt(Heim + "Varnholt.ini").starts_with(s + "\r\n"));
        Fenster.reset();
        Alles_Zuruecksetzen();
        Bauen();
        Fenster->Ausfuehren([] { Init(); });
        Fenster->Nachziehen();
        EXPECT_EQ(Titel("MNU_Datei"), s == "D" ? "Datei" : "File");
    }
}

// --- dialogs ---

TEST_F(Sprachen, the_file_dialog_offers_the_filters_of_the_language_and_of_the_mode)
{
    for (const std::string& s : Beide)
        for (const int In_Modus_ : {Modus_MC, Modus_Hex}) {
            Neu(s, In_Modus_);
            QStringList Filter;
            QString     Gewaehlt;
            Antworten.Naechstes([&](QWidget* w) {
                auto* Dialog = qobject_cast<QFileDialog*>(w);
                ASSERT_NE(Dialog, nullptr);
                Filter   = Dialog->nameFilters();
                Gewaehlt = Dialog->selectedNameFilter();
                EXPECT_EQ(Nach_Std(Dialog->windowTitle()), s == "D" ? "Öffnen" : "Open");
                Dialog->reject();
            });
            Aktion("MNU_Load")->trigger();
            ASSERT_EQ(Filter.size(), 6);
            const char* const Deutsche[]  = {"Assembler (",
                                             "Binär (",
                                             "Intel-Hex (",
                                             "Motorola-S-Record (",
                                             "Dat-Hex (",
                                             "Alle Dateien ("};
            const char* const Englische[] = {"Assembler (",
                                             "Binary (",
                                             "Intel-hex (",
                                             "Motorola-S-Record (",
                                             "Dat-Hex (",
                                             "All files ("};
            for (int i = 0; i < 6; ++i)
                EXPECT_TRUE(
                    Filter[i].startsWith(QString::fromUtf8(s == "D" ? Deutsche[i] : Englische[i])))
                    << Nach_Std(Filter[i]);
            for (const char* Muster : {"*.asm", "*.txt", "*.a51"})
                EXPECT_TRUE(Filter[0].contains(QLatin1String(Muster)));
            for (const char* Muster : {"*.bin", "*._51"})
                EXPECT_TRUE(Filter[1].contains(QLatin1String(Muster)));
            EXPECT_EQ(Gewaehlt, Filter[In_Modus_ == Modus_MC ? 0 : 1]);
        }
}

TEST_F(Sprachen, a_name_in_capitals_is_offered_too)
{
    Neu("E");
    Datei_Anlegen(Heim + "GROSS.ASM", "NOP\n");
    Antworten.Naechstes([&](QWidget* w) {
        auto* Dialog = qobject_cast<QFileDialog*>(w);
        EXPECT_TRUE(Dialog->selectedNameFilter().contains(QStringLiteral("*.ASM")));
        Dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(Qt_Text(Heim + "GROSS.ASM"));
        QTest::keyClick(Dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    });
    Aktion("MNU_Load")->trigger();
    EXPECT_EQ(Edit()->Text(), "NOP\r\n");
}

TEST_F(Sprachen, the_options_speak_the_language_of_the_moment)
{
    Neu("D");
    for (const std::string s : {"D", "E", "D"}) {
        Sprache_Waehlen(s);
        Antworten.Naechstes([&](QWidget* w) {
            ASSERT_EQ(w->objectName(), QStringLiteral("Optionen"));
            EXPECT_EQ(Nach_Std(w->windowTitle()), s == "D" ? "Optionen" : "Options");
            auto* Reiter = w->findChild<QTabWidget*>(QStringLiteral("SSTab"));
            EXPECT_EQ(Nach_Std(Reiter->tabText(0)), s == "D" ? "Oberfläche" : "Surface");
            EXPECT_EQ(Nach_Std(Reiter->tabText(1)), s == "D" ? "Programmiergerät" : "Programmer");
            for (const Options_Beschriftung& p : Options_Texte)
                Options_Text_Pruefen(*w, p, p.In(s));
            EXPECT_EQ(w->findChild<QLineEdit*>(QStringLiteral("T_Portadr"))->text(),
                      QStringLiteral("378h"));
            EXPECT_EQ(w->findChild<QLineEdit*>(QStringLiteral("T_Undo_Max"))->text(),
                      QStringLiteral("100"));
            w->close();
        });
        Aktion("MNU_Optionen")->trigger();
        EXPECT_TRUE(Antworten.Fertig());
    }
}

TEST_F(Sprachen, the_question_for_an_address_and_its_refusal)
{
    for (const std::string& s : Beide) {
        Neu(s, Modus_Hex);
        std::string Frage;
        Antworten.Naechstes([&](QWidget* w) {
            auto* Eingabe = qobject_cast<QInputDialog*>(w);
            ASSERT_NE(Eingabe, nullptr);
            Frage = Nach_Std(Eingabe->labelText());
            EXPECT_EQ(Ohne_Marke(Eingabe->cancelButtonText()), s == "D" ? "Abbrechen" : "Cancel");
            Eingabe->setTextValue(QStringLiteral("80001h"));
            Eingabe->accept();
        });
        Box_Zeigen([&] { Aktion("MNU_Adresse_direkt")->trigger(); });
        EXPECT_EQ(Frage,
                  s == "D" ? "Bitte geben Sie die zu zeigende Adresse ein. Sie können die Adresse "
                             "im Dezimalformat oder im Hexadezimalformat eingeben. Bitte "
                             "kennzeichnen Sie eine Eingabe im Hexadezimalformat durch ein "
                             "abschließendes 'h'.\n Beispiel 255 oder FFh"
                           : "Please enter the address you want to see. You can enter the address "
                             "in decimal or in hexadecimal format. Please indicate hexadecimal "
                             "address with the convertional trailing 'h'.\n Examples 255 or FFh");
        EXPECT_EQ(Box_Text, s == "D" ? "Ungültiger Wert" : "Invalid value");
    }
}

TEST_F(Sprachen, the_question_for_the_address_of_an_import)
{
    for (const std::string& s : Beide) {
        Neu(s, Modus_Hex);
        const std::string Name = Heim + "eins.bin";
        Datei_Anlegen(Name, "\x12");
        Antworten.Naechstes([&](QWidget* w) {
            auto* Feld = w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(Feld, nullptr);
            Feld->setText(Qt_Text(Name));
            QTest::keyClick(Feld, Qt::Key_Return);
        });
        std::string Frage;
        Antworten.Naechstes([&](QWidget* w) {
            auto* Eingabe = qobject_cast<QInputDialog*>(w);
            ASSERT_NE(Eingabe, nullptr);
            Frage = Nach_Std(Eingabe->labelText());
            Eingabe->setTextValue(QStringLiteral("10h"));
            Eingabe->accept();
        });
        Aktion("MNU_Importdata")->trigger();
        EXPECT_EQ(Frage,
                  s == "D"
                      ? "Bitte geben Sie die erste Adresse an, auf die die Datei geladen "
                        "werden soll. Sie können die Adresse im Dezimalformat oder im "
                        "Hexadezimalformat eingeben. Bitte kennzeichnen Sie eine Eingabe im "
                        "Hexadezimalformat durch ein abschließendes 'h'.\n Beispiel 32768 oder "
                        "8000h"
                      : "Please enter the first address, on which the file will be load. You "
                        "can enter the address in decimal or in hexadecimal format. Please "
                        "indicate hexadecimal address with the convertional trailing 'h'.\n "
                        "Examples 255 or FFh");
        EXPECT_EQ(Hex_Daten[16], 0x12);
        EXPECT_EQ(Hex_Daten[0], 0xFF);
    }
}

// --- messages ---

TEST_F(Sprachen, the_question_about_unsaved_changes_and_its_buttons)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Tippen("x");
        for (const char* Name : {"MNU_Neu", "MNU_Load", "MNU_Load_Autosave", "MNU_Ende"}) {
            Box_Zeigen([&] { Aktion(Name)->trigger(); }, QMessageBox::Cancel);
            EXPECT_EQ(Box_Text,
                      s == "D" ? "Die Datei wurde noch nicht abgespeichert ! Jetzt speichern ?"
                               : "Save changes first?")
                << Name;
            EXPECT_EQ(Knoepfe_,
                      s == "D" ? (std::vector<std::string>{"Ja", "Nein", "Abbrechen"})
                               : (std::vector<std::string>{"Yes", "No", "Cancel"}));
            EXPECT_TRUE(Datei_Geaendert);
        }
    }
}

TEST_F(Sprachen, a_message_follows_a_change_of_language_at_once)
{
    Neu("D");
    Tippen("x");
    Sprache_Waehlen("E");
    Box_Zeigen([&] { Aktion("MNU_Neu")->trigger(); }, QMessageBox::Cancel);
    EXPECT_EQ(Box_Text, "Save changes first?");
}

TEST_F(Sprachen, a_short_jumpmark_is_refused_with_a_stop_icon)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Aktion("MNU_Neu")->trigger();
        Box_Zeigen([&] { Tippen("ab:\n"); });
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Sprungmarken müssen mindestens drei Zeichen haben!"
                           : "Jumpmarks must be have at least three signs!");
        EXPECT_EQ(Box_Bild, QMessageBox::Critical);
        EXPECT_EQ(Edit()->Text(), "ab:\r\n");
    }
}

TEST_F(Sprachen, a_doubled_jumpmark_is_told_with_an_information_icon)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Aktion("MNU_Neu")->trigger();
        Tippen("mark:\n");
        Box_Zeigen([&] { Tippen("MARK:\n"); });
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Diese Bezeichnung haben Sie bereits für einen Sprunglabel genutzt. "
                             "Bitte wählen Sie eine andere Bezeichnung!"
                           : "You have already use this name for a jumpmark. Please choose another "
                             "name!");
        EXPECT_EQ(Box_Bild, QMessageBox::Information);
        EXPECT_EQ(Edit()->Text(), "mark:\r\nMARK:\r\n");
    }
}

TEST_F(Sprachen, the_question_before_an_image_leaves_its_source)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Aktion("MNU_Neu")->trigger();
        Tippen("INCLUDE 8051.mc\nNOP\n");
        Taste(Qt::Key_F2, Qt::ShiftModifier);
        ASSERT_EQ(Modus, Modus_Hex);
        Suchen("Hex_Feld")->setFocus();
        Box_Zeigen([&] { QTest::keyClick(Suchen("Hex_Feld"), '7'); }, QMessageBox::No);
        EXPECT_EQ(Box_Titel, s == "D" ? "Achtung!" : "Please note:");
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Durch Veränderung im HexEditor können die Kommentare und "
                             "Formatierungen im Texteditor verloren gehen!\nMöchten Sie die Daten "
                             "im Hex-Editor trotzdem bearbeiten?"
                           : "If you change something in the hex editor all comments in the text "
                             "editor will be lost!\nDo you want to change the data in the "
                             "hex-editor anyway?");
        EXPECT_EQ(Knoepfe_.size(), 3u);
        EXPECT_EQ(Hex_Daten[0], 0);
    }
}

TEST_F(Sprachen, an_image_too_long_for_Intel_Hex_is_not_saved)
{
    for (const std::string& s : Beide) {
        Neu(s, Modus_Hex);
        const std::string Name = Heim + s + ".hex";
        Datei_Name             = Name;
        Hex_Daten[0x7FFF]      = 0;
        Aktion("MNU_Save")->trigger();
        EXPECT_TRUE(fs::exists(Name));
        const std::string Vorher = Datei_Inhalt(Name);
        Hex_Daten[0x8000]        = 0;
        Datei_Geaendert          = true;
        Box_Zeigen([&] { Aktion("MNU_Save")->trigger(); });
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Intel Hex Dateien können maximal 32768 Byte aufnehmen, Ihre Datei "
                             "kann daher nicht als Intel Hex Datei gesichert werden!"
                           : "Intel-Hex Files can't be larger than 32768 Byte !");
        EXPECT_EQ(Datei_Inhalt(Name), Vorher);
        EXPECT_TRUE(Datei_Geaendert);
    }
}

TEST_F(Sprachen, the_answers_of_a_compare)
{
    for (const std::string& s : Beide) {
        Neu(s, Modus_Hex);
        Datei_Anlegen(Heim + "v.bin", "\x12");
        Datei_Anlegen(Heim + "v.asm", "NOP\n");
        const auto Vergleichen = [&](const char* Name) {
            Antworten.Naechstes([=, this](QWidget* w) {
                auto* Feld = w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                ASSERT_NE(Feld, nullptr);
                Feld->setText(Qt_Text(Heim + Name));
                QTest::keyClick(Feld, Qt::Key_Return);
            });
            Box_Zeigen([&] { Aktion("MNU_vergleiche_hexdaten")->trigger(); });
        };
        Vergleichen("v.bin");
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Die Daten der Datei entsprechen NICHT den Daten des Editors !"
                           : "The data of the file is NOT the same as the data of the editor !");
        Hex_Daten[0] = 0x12;
        Vergleichen("v.bin");
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Die Daten der Datei entsprechen den Daten des Editors !"
                           : "The data of the file is the same as the data of the editor !");
    }
}

TEST_F(Sprachen, a_source_cannot_be_compared_with_an_image)
{
    for (const std::string& s : Beide) {
        Neu(s, Modus_Hex);
        Datei_Anlegen(Heim + "v.asm", "NOP\n");
        Antworten.Naechstes([&](QWidget* w) {
            auto* Feld = w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(Feld, nullptr);
            Feld->setText(Qt_Text(Heim + "v.asm"));
            QTest::keyClick(Feld, Qt::Key_Return);
        });
        Antworten.Taste(QMessageBox::Ok);
        Box_Zeigen([&] { Aktion("MNU_vergleiche_hexdaten")->trigger(); });
        ASSERT_GE(Antworten.Texte.size(), 2u);
        EXPECT_EQ(*(Antworten.Texte.end() - 2),
                  s == "D" ? "Dieses Dateiformat kann nicht mit den Hexdaten verglichen werden!"
                           : "This format can't be compared to the hexdata!");
        EXPECT_EQ(Box_Text,
                  s == "D" ? "Die Daten der Datei entsprechen den Daten des Editors !"
                           : "The data of the file is the same as the data of the editor !");
    }
}

TEST_F(Sprachen, the_program_tells_its_name_and_version)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Box_Zeigen([&] { Aktion("MNU_Info")->trigger(); });
        EXPECT_NE(Box_Text.find("Varnholt"), std::string::npos) << Box_Text;
    }
}

TEST_F(Sprachen, a_missing_help_is_told_in_the_status_line)
{
    for (const std::string& s : Beide) {
        Neu(s);
        Taste(Qt::Key_F1);
        EXPECT_NE(Schild("Hinweis").find(s == "D" ? "Hilfe-Index.htm fehlt"
                                                  : "Help-Index.htm is missing"),
                  std::string::npos)
            << Schild("Hinweis");
    }
}

// --- a language that is none ---

TEST_F(Sprachen, a_language_that_is_none_shows_no_message_loses_nothing_and_is_mended_by_the_menu)
{
    for (const char* s : {"X", "", "d", "DE", "English", "\xC3\xA4"}) {
        Fenster.reset();
        Alles_Zuruecksetzen();
        Erststart_Werte();
        Start_Verzeichnis = "/";
        Sprache           = "E";
        std::string Text  = Einstellungen_Schreiben();
        Text              = s + Text.substr(Text.find('\r'));
        Alles_Zuruecksetzen();
        Datei_Anlegen(Heim + "Varnholt.ini", Text);
        Bauen();
        Fenster->Ausfuehren([] { Init(); });
        QApplication::processEvents();
        Fenster->Nachziehen();
        ASSERT_TRUE(Fenster->isVisible()) << s;
        EXPECT_EQ(Titel("MNU_Datei"), "File") << s; // what the program has without settings
        EXPECT_EQ(Titel("MNU_IC"), "Programmer") << s;
        EXPECT_EQ(Nach_Std(Suchen("Notiz")->windowTitle()), "Notes") << s;
        Tippen("x");
        for (const char* Name : {"MNU_Neu", "MNU_Load", "MNU_Ende"}) {
            Aktion(Name)->trigger(); // nothing can be asked: nothing is given up
            EXPECT_EQ(Edit()->Text(), "x") << s << Name;
            EXPECT_TRUE(Datei_Geaendert) << s << Name;
            EXPECT_TRUE(Fenster->isVisible()) << s << Name;
        }
        EXPECT_TRUE(Antworten.Texte.empty());
        Sprache_Waehlen("D");
        Alle_Titel_Pruefen("D");
        Datei_Geaendert = false;
        Schliessen();
        EXPECT_TRUE(Datei_Inhalt(Heim + "Varnholt.ini").starts_with("D\r\n"));
    }
}

TEST_F(Sprachen, a_language_that_is_none_asks_nothing_about_an_image_with_a_source)
{
    Neu("E");
    Aktion("MNU_Neu")->trigger();
    Tippen("INCLUDE 8051.mc\nNOP\n");
    Taste(Qt::Key_F2, Qt::ShiftModifier);
    ASSERT_EQ(Modus, Modus_Hex);
    Sprache = "X";
    QTest::keyClick(Suchen("Hex_Feld"), '7');
    EXPECT_EQ(Hex_Daten[0], 0);
    EXPECT_GT(Edit()->Laenge(), 0);
    EXPECT_TRUE(Antworten.Texte.empty());
}

// --- the first start, in its language ---

TEST_F(Sprachen, a_first_start_asks_for_the_language_and_then_in_it_for_the_mode)
{
    for (const std::string& s : Beide) {
        Fenster.reset();
        Alles_Zuruecksetzen();
        fs::remove(Heim + "Varnholt.ini");
        Bauen();
        Fenster->Ausfuehren([] { Init(); });
        const auto Form = [](const char* Name) -> QWidget* {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->objectName() == QLatin1String(Name) && w->isVisible())
                    return w;
            return nullptr;
        };
        QWidget* Wahl = Form("Erststart");
        ASSERT_NE(Wahl, nullptr);
        auto* Knopf = Wahl->findChild<QRadioButton*>(s == "D" ? QStringLiteral("Deutsch")
                                                              : QStringLiteral("Englisch"));
        Knopf->setChecked(true);
        QTest::mouseClick(Wahl->findChild<QPushButton*>(QStringLiteral("Command1")),
                          Qt::LeftButton);
        EXPECT_EQ(Datei_Inhalt(Heim + "Varnholt.ini"), s + "\r\nErststart\r\n");
        QWidget* Frage = Form("Abfrage_Modus");
        ASSERT_NE(Frage, nullptr);
        EXPECT_EQ(Nach_Std(Frage->windowTitle()), s == "D" ? "Erststart" : "First start");
        QTest::mouseClick(Frage->findChild<QAbstractButton*>(QStringLiteral("Button_Mode_2")),
                          Qt::LeftButton);
        QApplication::processEvents();
        Fenster->Nachziehen();
        ASSERT_TRUE(Fenster->isVisible());
        EXPECT_EQ(Form("Abfrage_Modus"), nullptr);
        EXPECT_EQ(Form("Start"), nullptr);
        Alle_Titel_Pruefen(s);
        EXPECT_NE(Datei_Name.find(s == "D" ? "einführung-1.asm" : "Introduction.asm"),
                  std::string::npos)
            << Datei_Name;
    }
}

} // namespace
} // namespace varnholt::test
