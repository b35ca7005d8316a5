// The reference windows and the form `Hilfe`: item models, headings, sorting and selecting by mouse
// and keys, both languages.
#include "core/menu.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Hilfe.h"
#include "editors/Nachschlagen.h"
#include "language/Befehls_Beschreibung.h"
#include "support/scripted_platform.h"
#include "ui/Haupt_Welt.h"
#include "ui/Kindfenster.h"
#include "ui/Tafel_Fenster.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QMdiArea>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextEdit>

#include <filesystem>

namespace varnholt::test {
namespace {

std::string Erklaert(const Tafel_Zeile_T& Zeile) { return "about " + Zeile[0]; }

// --- the model -----------------------------------------------------------------------------------

using Tafel_Modell_Test = Welt;

TEST_F(Tafel_Modell_Test, keeps_the_rules_of_item_models_while_the_table_changes)
{
    Tafel_T                  Tafel;
    Tafel_Modell             Modell(Tafel, Bef_Spalten, Erklaert);
    QAbstractItemModelTester Pruefer(&Modell,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(Modell.rowCount(), 0);
    EXPECT_EQ(Modell.columnCount(), 4);
    Tafel.Zeilen = {{"00", "\xE4", "1", "2"}, {"01", "b", "", ""}};
    ++Tafel.Stand;
    EXPECT_TRUE(Modell.Nachziehen());
    EXPECT_FALSE(Modell.Nachziehen());
    EXPECT_EQ(Modell.rowCount(), 2);
    EXPECT_EQ(Modell.rowCount(Modell.index(0, 0)), 0);
    EXPECT_EQ(Modell.columnCount(Modell.index(0, 0)), 0);
    EXPECT_EQ(Modell.data(Modell.index(0, 1), Qt::DisplayRole).toString(), QStringLiteral("ä"));
    EXPECT_EQ(Modell.data(Modell.index(1, 2), Qt::ToolTipRole).toString(),
              QStringLiteral("about 01"));
    EXPECT_FALSE(Modell.data(Modell.index(0, 0), Qt::EditRole).isValid());
    EXPECT_FALSE(Modell.flags(Modell.index(0, 0)) & Qt::ItemIsEditable);
    Tafel.Zeilen.clear();
    ++Tafel.Stand;
    EXPECT_TRUE(Modell.Nachziehen());
    EXPECT_EQ(Modell.rowCount(), 0);
}
TEST_F(Tafel_Modell_Test, a_table_that_shrank_before_the_view_knows_gives_no_text)
{
    Tafel_T      Tafel;
    Tafel_Modell Modell(Tafel, Basic_Bef_Spalten, Erklaert);
    Tafel.Zeilen = {{"a", "b", "c", ""}, {"d", "e", "f", ""}};
    ++Tafel.Stand;
    Modell.Nachziehen();
    EXPECT_EQ(Modell.columnCount(), 3);
    Tafel.Zeilen.resize(1);
    EXPECT_FALSE(Modell.data(Modell.index(1, 0), Qt::DisplayRole).isValid());
}
TEST_F(Tafel_Modell_Test, headings_follow_the_language)
{
    Tafel_T      Tafel;
    Tafel_Modell Modell(Tafel, Bef_Spalten, Erklaert);
    QSignalSpy   Neu(&Modell, &QAbstractItemModel::headerDataChanged);
    const auto   Kopf = [&](int s) {
        return Nach_Std(Modell.headerData(s, Qt::Horizontal, Qt::DisplayRole).toString());
    };
    Sprache = "D";
    Modell.Nachziehen();
    EXPECT_EQ(Neu.size(), 1);
    EXPECT_EQ(Kopf(0), "Hex");
    EXPECT_EQ(Kopf(1), "Mnemonik");
    EXPECT_EQ(Kopf(2), "Bytes");
    EXPECT_EQ(Kopf(3), "Zyklen");
    Sprache = "E";
    Modell.Nachziehen();
    EXPECT_EQ(Neu.size(), 2);
    EXPECT_EQ(Kopf(1), "Mnemonic");
    EXPECT_EQ(Kopf(3), "Cycles");
    EXPECT_EQ(Kopf(4), "");
    EXPECT_EQ(Kopf(-1), "");
    EXPECT_FALSE(Modell.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(Tafel_Modell_Test, the_rows_explain_themselves_in_both_languages)
{
    Sprache = "D";
    EXPECT_EQ(Bef_Erklaerung({"24", "", "", ""}), "Addiert die Konstante zu A.\nFlags: CY AC OV P");
    EXPECT_EQ(Bef_Erklaerung({"00", "", "", ""}), "Tut nichts, kostet einen Zyklus.");
    EXPECT_NE(Basic_Bef_Erklaerung({}).find("Konstante"), std::string::npos);
    Sprache = "E";
    EXPECT_EQ(Bef_Erklaerung({"24", "", "", ""}), "Adds the constant to A.\nFlags: CY AC OV P");
    EXPECT_NE(Basic_Bef_Erklaerung({}).find("constant"), std::string::npos);
    EXPECT_EQ(Bef_Erklaerung({"", "", "", ""}), "");
}

// --- the windows in the program ------------------------------------------------------------------

class Nachschlage_Fenster : public Haupt_Welt {
protected:
    Tafel_Fenster* Tafel(int Nummer) const
    {
        return dynamic_cast<Tafel_Fenster*>(Fenster->Kind(Nummer)->widget());
    }
    Tafel_Fenster* Bef() const { return Tafel(Fenster_Bef); }
    void           Oeffnen(const char* In = "E", int In_Modus = Modus_MC)
    {
        Starten(In, In_Modus);
        Fenster->resize(1200, 800);
        for (const char* Name : {"MNU_Bef", "MNU_Basic"})
            Aktion(Name)->trigger();
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    static std::string Zelle(const Tafel_Fenster* t, int Zeile, int Spalte)
    {
        return Nach_Std(t->model()->index(Zeile, Spalte).data().toString());
    }
    static int Gewaehlt(const Tafel_Fenster* t)
    {
        const auto Zeilen = t->selectionModel()->selectedRows();
        return Zeilen.size() == 1 ? Zeilen.front().row() : -1;
    }
    void Kopf_Klicken(Tafel_Fenster* t, int Spalte)
    {
        const QHeaderView* Kopf = t->horizontalHeader();
        const QPoint Ort(Kopf->sectionViewportPosition(Spalte) + Kopf->sectionSize(Spalte) / 2,
                         Kopf->height() / 2);
        QTest::mouseClick(Kopf->viewport(), Qt::LeftButton, {}, Ort);
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    void Zelle_Klicken(Tafel_Fenster* t, int Zeile, int Spalte)
    {
        const QModelIndex Ort = t->model()->index(Zeile, Spalte);
        t->scrollTo(Ort);
        QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, t->visualRect(Ort).center());
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
};

TEST_F(Nachschlage_Fenster, the_menu_opens_and_closes_them)
{
    Oeffnen();
    for (const auto& [Name, Nummer] :
         {std::pair{"MNU_Bef", Fenster_Bef}, {"MNU_Basic", Fenster_Basic}}) {
        EXPECT_TRUE(Fenster->Sichtbar(Nummer)) << Name;
        EXPECT_TRUE(Aktion(Name)->isChecked()) << Name;
        Aktion(Name)->trigger();
        EXPECT_FALSE(Fenster->Sichtbar(Nummer)) << Name;
        EXPECT_FALSE(Aktion(Name)->isChecked()) << Name;
    }
    EXPECT_EQ(Bef()->model()->rowCount(), 256);
    EXPECT_EQ(Tafel(Fenster_Basic)->model()->columnCount(), 3);
}
TEST_F(Nachschlage_Fenster, the_keys_of_the_menu_open_them)
{
    Starten();
    Taste(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_TRUE(Fenster->Sichtbar(Fenster_Bef));
    Taste(Qt::Key_F4, Qt::ShiftModifier);
    EXPECT_TRUE(Fenster->Sichtbar(Fenster_Basic));
}
TEST_F(Nachschlage_Fenster, a_close_by_the_user_hides_and_unticks)
{
    Oeffnen();
    Fenster->Kind(Fenster_Bef)->close();
    QApplication::processEvents();
    Fenster->Nachziehen();
    EXPECT_FALSE(Fenster->Sichtbar(Fenster_Bef));
    EXPECT_FALSE(Aktion("MNU_Bef")->isChecked());
    EXPECT_EQ(Fenster_Wert(1, Fenster_Bef, Feld::Sichtbar), 0);
    Aktion("MNU_Bef")->trigger();
    EXPECT_TRUE(Fenster->Sichtbar(Fenster_Bef));
}
TEST_F(Nachschlage_Fenster, captions_and_headings_change_with_the_language_at_once)
{
    Oeffnen("D");
    const auto Kopf = [&](int Nummer, int s) {
        return Nach_Std(Tafel(Nummer)->model()->headerData(s, Qt::Horizontal).toString());
    };
    EXPECT_EQ(Nach_Std(Fenster->Kind(Fenster_Bef)->windowTitle()), "MCS-51 Befehle");
    EXPECT_EQ(Nach_Std(Fenster->Kind(Fenster_Basic)->windowTitle()), "Basic Befehle");
    EXPECT_EQ(Kopf(Fenster_Bef, 1), "Mnemonik");
    EXPECT_EQ(Kopf(Fenster_Basic, 2), "Zyklen");
    Aktion("MNU_Englisch")->trigger();
    EXPECT_EQ(Nach_Std(Fenster->Kind(Fenster_Bef)->windowTitle()), "MCS-51 instructions");
    EXPECT_EQ(Nach_Std(Fenster->Kind(Fenster_Basic)->windowTitle()), "Basic Instructions");
    EXPECT_EQ(Kopf(Fenster_Bef, 1), "Mnemonic");
    EXPECT_EQ(Kopf(Fenster_Basic, 2), "Cycles");
}
TEST_F(Nachschlage_Fenster, a_missing_table_is_told_in_German_when_its_window_opens)
{
    std::filesystem::remove(Heim + "befehle.dok");
    std::filesystem::remove(Heim + "basic.dok");
    Starten("D");
    Antworten.Taste(QMessageBox::Ok);
    Aktion("MNU_Bef")->trigger();
    Antworten.Taste(QMessageBox::Ok);
    Aktion("MNU_Basic")->trigger();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(
        Antworten.Texte,
        (std::vector<std::string>{"Die Datei Befehle.dok ist nicht vorhanden oder fehlerhaft !",
                                  "Die Datei Basic.dok ist nicht vorhanden oder fehlerhaft !"}));
    EXPECT_EQ(Bef()->model()->rowCount(), 256);
    Oeffnen("E"); // nobody expects a box there
}

TEST_F(Nachschlage_Fenster, a_click_on_a_heading_sorts_and_a_second_one_changes_nothing)
{
    Oeffnen();
    Kopf_Klicken(Bef(), 1);
    EXPECT_EQ(Zelle(Bef(), 0, 1), "ACALL addr11 (0xxh)");
    EXPECT_EQ(Zelle(Bef(), 255, 1), "XRL direct,A");
    Kopf_Klicken(Bef(), 1);
    EXPECT_EQ(Zelle(Bef(), 0, 1), "ACALL addr11 (0xxh)");
    Kopf_Klicken(Bef(), 0);
    EXPECT_EQ(Zelle(Bef(), 0, 1), "NOP");
}
TEST_F(Nachschlage_Fenster, a_click_on_a_heading_of_the_statements_sorts_nothing)
{
    Oeffnen();
    const std::string Erste = Zelle(Tafel(Fenster_Basic), 0, 0);
    for (const int s : {0, 1, 2}) {
        Kopf_Klicken(Tafel(Fenster_Basic), s);
        EXPECT_EQ(Zelle(Tafel(Fenster_Basic), 0, 0), Erste);
    }
}
TEST_F(Nachschlage_Fenster, a_click_on_a_row_selects_all_of_it_and_inserts_nothing)
{
    Oeffnen();
    const std::string Quelle = Edit()->Text();
    for (const int Nummer : {Fenster_Bef, Fenster_Basic}) {
        Zelle_Klicken(Tafel(Nummer), 3, 1);
        EXPECT_EQ(Gewaehlt(Tafel(Nummer)), 3);
        EXPECT_EQ(Tafel(Nummer)->selectionModel()->selectedIndexes().size(),
                  Tafel(Nummer)->model()->columnCount());
        QTest::mouseDClick(Tafel(Nummer)->viewport(),
                           Qt::LeftButton,
                           {},
                           Tafel(Nummer)->visualRect(Tafel(Nummer)->model()->index(3, 1)).center());
    }
    EXPECT_EQ(Zelle(Bef(), 0, 1), "NOP");
    EXPECT_EQ(Edit()->Text(), Quelle);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 3);
    EXPECT_EQ(Nachschlagen.Basic_Bef.Gewaehlt, 3);
}
TEST_F(Nachschlage_Fenster, arrow_keys_move_the_selection_and_sorting_keeps_it)
{
    Oeffnen();
    Zelle_Klicken(Bef(), 0x23, 1); // RL A
    QTest::keyClick(Bef(), Qt::Key_Down);
    QTest::keyClick(Bef(), Qt::Key_Down);
    EXPECT_EQ(Nachschlagen.Bef.Gewaehlt, 0x25);
    Kopf_Klicken(Bef(), 1);
    EXPECT_EQ(Zelle(Bef(), Gewaehlt(Bef()), 0), "25");
    EXPECT_EQ(Bef()->currentIndex().column(), 1);
}
TEST_F(Nachschlage_Fenster, letters_typed_into_a_table_change_neither_table_nor_source)
{
    Oeffnen();
    const std::string Quelle = Edit()->Text();
    Zelle_Klicken(Bef(), 0, 1);
    QTest::keyClicks(Bef(), QStringLiteral("MOV"));
    QTest::keyClick(Bef(), Qt::Key_Delete);
    QTest::keyClick(Bef(), Qt::Key_F2);
    EXPECT_EQ(Zelle(Bef(), 0, 1), "NOP");
    EXPECT_EQ(Edit()->Text(), Quelle);
}

TEST_F(Nachschlage_Fenster, a_byte_clicked_in_the_hex_editor_selects_and_shows_its_instruction)
{
    Oeffnen("E", Modus_Hex);
    ASSERT_TRUE(Fenster->Sichtbar(Fenster_Bef));
    Hex_Daten[2] = 0xF5;
    Hex_Anzeige();
    Fenster->Nachziehen();
    Fenster->Kind(Fenster_Hexedit)->raise();
    Hexedit.Hex_Auswahl = {6, 2};
    Hex_Feld_Click();
    Fenster->Nachziehen();
    EXPECT_EQ(Gewaehlt(Bef()), 0xF5);
    EXPECT_TRUE(Bef()->viewport()->rect().contains(
        Bef()->visualRect(Bef()->model()->index(0xF5, 0)).center()));
    Kopf_Klicken(Bef(), 1);
    Hex_Daten[2] = 0x00;
    Hex_Anzeige();
    Hex_Feld_Click();
    Fenster->Nachziehen();
    EXPECT_EQ(Zelle(Bef(), Gewaehlt(Bef()), 1), "NOP");
}

TEST_F(Nachschlage_Fenster, every_text_has_room_in_its_column)
{
    Oeffnen("D");
    for (const int Nummer : {Fenster_Bef, Fenster_Basic})
        for (const int Breite : {200, 600}) {
            Fenster->Kind(Nummer)->resize(Breite, 300);
            QApplication::processEvents();
            const Tafel_Fenster* t = Tafel(Nummer);
            const QFontMetrics   Mass(t->font());
            for (int s = 0; s < t->model()->columnCount(); ++s)
                for (int z = -1; z < t->model()->rowCount(); ++z) {
                    const QString Text = z < 0
                                             ? t->model()->headerData(s, Qt::Horizontal).toString()
                                             : t->model()->index(z, s).data().toString();
                    EXPECT_LT(Mass.horizontalAdvance(Text), t->columnWidth(s)) << Nach_Std(Text);
                }
        }
}
TEST_F(Nachschlage_Fenster, the_background_colour_of_the_options_is_theirs_too)
{
    Oeffnen();
    Plattform.Fenster->Hintergrund(0x00FFCC);
    for (const int Nummer : {Fenster_Bef, Fenster_Basic})
        EXPECT_EQ(Tafel(Nummer)->palette().color(QPalette::Base), Qt_Farbe(0x00FFCC));
}
TEST_F(Nachschlage_Fenster, they_open_again_at_the_next_start_where_they_were)
{
    Oeffnen();
    Fenster->Lage_Setzen(Fenster_Bef, {30, 40, 250, 350});
    Aktion("MNU_Ende")->trigger();
    ASSERT_TRUE(Beendet);
    Bauen();
    Alles_Zuruecksetzen();
    Bauen();
    Fenster->Ausfuehren([] { Init(); });
    QApplication::processEvents();
    Fenster->Nachziehen();
    EXPECT_TRUE(Fenster->Sichtbar(Fenster_Bef));
    EXPECT_EQ(Fenster->Lage(Fenster_Bef), (Lage_T{30, 40, 250, 350}));
    EXPECT_EQ(Zelle(Bef(), 0, 1), "NOP");
}

// --- the form `Hilfe` ----------------------------------------------------------------------------

class Hilfe_Form_Test : public Haupt_Welt {
protected:
    static QWidget* Form()
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QStringLiteral("Hilfe"))
                return w;
        return nullptr;
    }
    static std::string Text()
    {
        return Nach_Std(Form()->findChild<QTextEdit*>(QStringLiteral("Text"))->toPlainText());
    }
};

TEST_F(Hilfe_Form_Test, F1_shows_it_where_the_handbook_is_not_installed)
{
    for (const auto& [s, Titel, Beginn] : {std::tuple{"D", "Hilfe", "Varnholt auf zwei Seiten\n"},
                                           {"E", "Help", "Varnholt in two pages\n"}}) {
        Starten(s);
        EXPECT_FALSE(Fenster->Formular_Sichtbar(Formular::F_Hilfe));
        Taste(Qt::Key_F1);
        ASSERT_TRUE(Fenster->Formular_Sichtbar(Formular::F_Hilfe)) << s;
        EXPECT_EQ(Nach_Std(Form()->windowTitle()), Titel);
        EXPECT_TRUE(Text().starts_with(Beginn)) << Text().substr(0, 60);
    }
}
TEST_F(Hilfe_Form_Test, closed_it_is_hidden_and_its_next_showing_has_the_language_of_then)
{
    Starten("D");
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    QWidget* Erste = Form();
    ASSERT_NE(Erste, nullptr);
    Erste->move(70, 80);
    Aktion("MNU_Englisch")->trigger();
    EXPECT_EQ(Nach_Std(Erste->windowTitle()), "Hilfe");
    Erste->close();
    EXPECT_FALSE(Fenster->Formular_Sichtbar(Formular::F_Hilfe));
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    EXPECT_EQ(Form(), Erste);
    EXPECT_EQ(Nach_Std(Erste->windowTitle()), "Help");
    EXPECT_EQ(Erste->pos(), QPoint(70, 80));
    QTest::keyClick(Erste, Qt::Key_Escape);
    EXPECT_FALSE(Fenster->Formular_Sichtbar(Formular::F_Hilfe));
}
TEST_F(Hilfe_Form_Test, it_keeps_place_and_size_to_the_next_run)
{
    Starten("E");
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    Form()->setGeometry(40, 50, 333, 222);
    QApplication::processEvents();
    Form()->close();
    EXPECT_EQ(Hilfe_Lage(), (Lage_T{50, 40, 222, 333}));
    ASSERT_TRUE(Ende_Erfragen());
    const std::string Datei = Datei_Inhalt(Heim + "Varnholt.ini");
    EXPECT_NE(Datei.find("Hilfe=50 40 222 333\r\n"), std::string::npos);

    Fenster.reset();
    Alles_Zuruecksetzen();
    Bauen();
    Fenster->Ausfuehren([] { Init(); });
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    EXPECT_EQ(Form()->geometry(), QRect(40, 50, 333, 222));
}
TEST_F(Hilfe_Form_Test, a_place_that_is_on_no_screen_any_more_is_not_taken)
{
    Starten("E");
    for (const Lage_T& Weg :
         {Lage_T{5000, 40, 222, 333}, Lage_T{-500, 10, 520, 333}, Lage_T{10, 10, 50, 50}}) {
        Hilfe_Merken(Weg);
        Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
        EXPECT_GT(Form()->width(), 400);
        EXPECT_GT(Form()->height(), 400);
        EXPECT_TRUE(Form()->screen()->geometry().intersects(Form()->geometry()));
        Plattform.Fenster->Formular_Entladen(Formular::F_Hilfe);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
TEST_F(Hilfe_Form_Test, without_its_file_it_shows_the_text_of_its_layout)
{
    std::filesystem::remove(Heim + "help.rtf");
    Starten("E");
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    EXPECT_EQ(Nach_Std(Form()->windowTitle()), "Hilfe");
    EXPECT_TRUE(Text().starts_with("Varnholt auf zwei Seiten"));
}
TEST_F(Hilfe_Form_Test, the_text_can_be_selected_and_not_changed)
{
    Starten("E");
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    auto*             Feld   = Form()->findChild<QTextEdit*>(QStringLiteral("Text"));
    const std::string Vorher = Text();
    QTest::keyClicks(Feld, QStringLiteral("abc"));
    QTest::keyClick(Feld, Qt::Key_Delete);
    QTest::keyClick(Feld, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(), Vorher);
    Feld->selectAll();
    EXPECT_TRUE(Feld->textCursor().hasSelection());
}
TEST_F(Hilfe_Form_Test, it_goes_when_it_is_unloaded_and_with_the_program)
{
    Starten("E");
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    Plattform.Fenster->Formular_Entladen(Formular::F_Hilfe);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Form(), nullptr);
    Plattform.Fenster->Formular_Zeigen(Formular::F_Hilfe);
    EXPECT_NE(Form(), nullptr);
    Fenster.reset();
    EXPECT_EQ(Form(), nullptr);
}

} // namespace
} // namespace varnholt::test
