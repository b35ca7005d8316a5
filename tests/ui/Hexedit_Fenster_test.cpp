// The window of the hex editor with real keys and the real mouse.
#include "core/commands.h"
#include "core/menu.h"
#include "core/shared_state.h"
#include "core/views.h"
#include "support/scripted_platform.h"
#include "ui/Hexedit_Fenster.h"
#include "ui/Tasten.h"

#include <QAction>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <memory>

namespace varnholt::test {
namespace {

QPalette Dunkle_Palette()
{
    QPalette p;
    p.setColor(QPalette::Window, QColor(0x2B, 0x2B, 0x2B));
    p.setColor(QPalette::WindowText, QColor(0xE6, 0xE6, 0xE6));
    p.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    p.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
    p.setColor(QPalette::Button, QColor(0x35, 0x35, 0x35));
    p.setColor(QPalette::ButtonText, QColor(0xE6, 0xE6, 0xE6));
    p.setColor(QPalette::Highlight, QColor(0x30, 0x78, 0xC8));
    p.setColor(QPalette::HighlightedText, Qt::white);
    return p;
}

// Contrast of two colours after the usual formula, 1 to 21.
double Kontrast(const QColor& a, const QColor& b)
{
    const auto Linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    const auto Hell = [&](const QColor& c) {
        return 0.2126 * Linear(c.redF()) + 0.7152 * Linear(c.greenF()) + 0.0722 * Linear(c.blueF());
    };
    const double x = Hell(a) + 0.05;
    const double y = Hell(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

class Hexedit_Fenster_Test : public Welt {
protected:
    Hexedit_Fenster_Test()
    {
        Modus           = Modus_Hex;
        Aktives_Fenster = 1;
        Oeffnen(400);
    }

    void Oeffnen(int Hoehe)
    {
        Gastgeber.resize(900, Hoehe);
        Hex.setParent(&Gastgeber);
        Hex.setGeometry(0, 0, 900, Hoehe);
        Gastgeber.show();
        QApplication::setActiveWindow(&Gastgeber);
        Feld<Hex_Gitter>("Hex_Feld")->setFocus();
        QCoreApplication::processEvents();
    }
    template <class T> T* Feld(const char* Name)
    {
        return Hex.findChild<T*>(QString::fromLatin1(Name));
    }
    Hex_Gitter* Ziffern() { return Feld<Hex_Gitter>("Hex_Feld"); }
    Hex_Gitter* Zeichen() { return Feld<Hex_Gitter>("AscII_Feld"); }
    QScrollBar* Leiste() { return Feld<QScrollBar>("Scroll"); }

    void Klicken(Hex_Gitter* Gitter, int Stelle)
    {
        QTest::mouseClick(Gitter, Qt::LeftButton, {}, Gitter->Zelle(Stelle).center());
    }
    void Ziehen(Hex_Gitter* Gitter, int Von, int Bis)
    {
        QTest::mousePress(Gitter, Qt::LeftButton, {}, Gitter->Zelle(Von).center());
        QTest::mouseMove(Gitter, Gitter->Zelle(Bis).center());
        QMouseEvent Zug(QEvent::MouseMove,
                        Gitter->Zelle(Bis).center(),
                        Gitter->mapToGlobal(QPointF(Gitter->Zelle(Bis).center())),
                        Qt::NoButton,
                        Qt::LeftButton,
                        Qt::NoModifier);
        QApplication::sendEvent(Gitter, &Zug);
        QTest::mouseRelease(Gitter, Qt::LeftButton, {}, Gitter->Zelle(Bis).center());
    }
    void Rad(QWidget* Ziel, int Winkel)
    {
        QWheelEvent e(QPointF(5, 5),
                      Ziel->mapToGlobal(QPointF(5, 5)),
                      {},
                      QPoint(0, Winkel),
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false);
        QSpontaneKeyEvent::setSpontaneous(&e); // as from the desktop: goes on to the parents
        qApp->notify(Ziel, &e);
    }
    QColor Punkt(QWidget* w, const QPoint& Ort) { return w->grab().toImage().pixelColor(Ort); }
    static std::uint8_t& Byte(int Adresse)
    {
        return Hex_Daten.at(static_cast<std::size_t>(Adresse));
    }

    QWidget         Gastgeber{};
    Hexedit_Fenster Hex{};
};

using Hexfenster = Hexedit_Fenster_Test;

TEST_F(Hexfenster, every_control_is_found_under_its_name)
{
    for (const char* Name : {"Hex_Feld",
                             "AscII_Feld",
                             "Adr_D",
                             "Adr_H",
                             "Scroll",
                             "Label1",
                             "Label2",
                             "Label3",
                             "Label4"})
        EXPECT_NE(Feld<QWidget>(Name), nullptr) << Name;
    for (const char* Name : {"Label1", "Label2", "Label3", "Label4"})
        EXPECT_TRUE(Feld<QLabel>(Name)->text().isEmpty()) << Name;
}

TEST_F(Hexfenster, fields_have_accessible_names_in_both_languages)
{
    EXPECT_EQ(Ziffern()->accessibleName(), QStringLiteral("Bytes in hexadecimal"));
    Sprache = "D";
    Hex_Anzeige();
    Hex.Nachziehen();
    EXPECT_EQ(Ziffern()->accessibleName(), QStringLiteral("Bytes hexadezimal"));
    for (const char* Name : {"Hex_Feld", "AscII_Feld", "Adr_D", "Adr_H", "Scroll"})
        EXPECT_FALSE(Feld<QWidget>(Name)->accessibleName().isEmpty()) << Name;
}

// --- size ---

TEST_F(Hexfenster, all_rows_of_the_page_fit_into_the_fields)
{
    for (const int Hoehe : {120, 333, 400, 777}) {
        Hex.resize(900, Hoehe);
        QCoreApplication::processEvents();
        const int Unten = Ziffern()->Zelle(48 * Hexedit.R).bottom();
        EXPECT_LT(Unten, Ziffern()->height());
        EXPECT_GT(Unten + 2 * Ziffern()->Zeilen_Hoehe(), Ziffern()->height());
        EXPECT_EQ(static_cast<int>(Hex_Feld.size()), 48 * (Hexedit.R + 1));
        EXPECT_EQ(Ziffern()->geometry().bottom(), Hex.height() - 1);
        EXPECT_EQ(Feld<QWidget>("Adr_D")->height(), Ziffern()->height());
    }
}

TEST_F(Hexfenster, a_window_just_opened_has_maximum_32768_less_R_and_a_resized_one_32760)
{
    EXPECT_GT(Hexedit.R, 10);
    EXPECT_EQ(Leiste()->maximum(), 32768 - Hexedit.R);
    Hex.resize(900, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(Leiste()->maximum(), 32760);
}

TEST_F(Hexfenster, a_tiny_window_shows_nothing_and_takes_every_event)
{
    Hex.resize(60, 10);
    QCoreApplication::processEvents();
    QTest::keyClicks(Ziffern(), QStringLiteral("12AB"));
    QTest::keyClicks(Zeichen(), QStringLiteral("xyz"));
    QTest::keyClick(Ziffern(), Qt::Key_PageDown);
    QTest::mouseClick(Ziffern(), Qt::LeftButton, {}, QPoint(1, 0));
    Hex.grab();
    EXPECT_EQ(Letztes_Byte(), -1);
    Hex.resize(900, 400);
    QCoreApplication::processEvents();
    EXPECT_GT(Hex_Feld.size(), 480u);
}

TEST_F(Hexfenster, a_row_is_at_least_16_pixels_high_and_a_cell_whole_pixels_wide)
{
    EXPECT_GE(Ziffern()->Zeilen_Hoehe(), 16);
    EXPECT_LE(Ziffern()->Zeilen_Hoehe(), 22);
    EXPECT_EQ(Ziffern()->Zelle(48 + 3).left() - Ziffern()->Zelle(48).left(),
              3 * Ziffern()->Zellen_Breite());
    const QFontMetricsF Mass(Ziffern()->font());
    EXPECT_NEAR(Mass.horizontalAdvance(QString(47, u'8')), 47.0 * Ziffern()->Zellen_Breite(), 0.5);
}

// --- keys ---

TEST_F(Hexfenster, digits_typed_into_the_hex_pane_land_in_the_image)
{
    QTest::keyClicks(Ziffern(), QStringLiteral("4a"));
    QTest::keyClicks(Ziffern(), QStringLiteral("x5"));
    EXPECT_EQ(Byte(0), 0x4A);
    EXPECT_EQ(Byte(1), 0x5F);
    EXPECT_EQ(AscII_Feld.substr(0, 2), "J_");
    EXPECT_TRUE(Datei_Geaendert);
}

TEST_F(Hexfenster, characters_typed_into_the_other_pane_land_in_the_image)
{
    Zeichen()->setFocus();
    QTest::keyClicks(Zeichen(), QStringLiteral("Hi z"));
    QTest::sendKeyEvent(QTest::Click, Zeichen(), Qt::Key_Adiaeresis, QStringLiteral("\u00E4"), {});
    QTest::sendKeyEvent(QTest::Click, Zeichen(), Qt::Key_unknown, QStringLiteral("\u2192"), {});
    const std::string Text(Hex_Daten.begin(), Hex_Daten.begin() + 6);
    EXPECT_EQ(Text, "Hi z\xE4\xFF"); // the arrow isn't in the code page
}

TEST_F(Hexfenster, composed_characters_arrive_too)
{
    QInputMethodEvent e;
    e.setCommitString(QStringLiteral("\u00F4"));
    QApplication::sendEvent(Zeichen(), &e);
    EXPECT_EQ(Byte(0), 0xF4);
}

TEST_F(Hexfenster, movement_keys_walk_and_scroll)
{
    QTest::keyClick(Ziffern(), Qt::Key_Right);
    QTest::keyClick(Ziffern(), Qt::Key_Right);
    QTest::keyClick(Ziffern(), Qt::Key_Down);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{51, 1}));
    QTest::keyClick(Ziffern(), Qt::Key_PageDown);
    EXPECT_EQ(Leiste()->value(), 18);
    QTest::keyClick(Ziffern(), Qt::Key_PageUp);
    EXPECT_EQ(Leiste()->value(), 2);
    QTest::keyClick(Ziffern(), Qt::Key_End);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 45, 1}));
}

TEST_F(Hexfenster, tab_changes_the_pane)
{
    EXPECT_EQ(Hex_Aktives_Feld, Feld_Hex);
    QTest::keyClick(Ziffern(), Qt::Key_Tab);
    EXPECT_TRUE(Zeichen()->hasFocus());
    EXPECT_EQ(Hex_Aktives_Feld, Feld_AscII);
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Hexfenster, the_first_edit_of_an_image_with_a_source_asks)
{
    Edit.Inhalt   = "NOP";
    Text_Aktuell  = true;
    Box.Antworten = {Antwort_Nein, Antwort_Ja};
    QTest::keyClick(Ziffern(), Qt::Key_1);
    EXPECT_EQ(Byte(0), 0xFF);
    QTest::keyClick(Ziffern(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Box.Meldungen.size(), 1u); // a copy doesn't ask
    QTest::keyClick(Ziffern(), Qt::Key_1);
    EXPECT_EQ(Byte(0), 0x1F);
    EXPECT_EQ(Box.Meldungen.size(), 2u);
    EXPECT_TRUE(Edit.Inhalt.empty());
}

TEST_F(Hexfenster, the_clipboard_keys_are_not_done_twice_beside_the_menus_shortcuts)
{
    int                                   Menue_Lief = 0;
    std::vector<std::unique_ptr<QAction>> Aktionen;
    for (const char* k : {"Ctrl+C", "Ctrl+X", "Ctrl+V", "Del"}) {
        auto& a = *Aktionen.emplace_back(std::make_unique<QAction>());
        a.setShortcut(QKeySequence(QString::fromLatin1(k)));
        QObject::connect(&a, &QAction::triggered, [&] { ++Menue_Lief; });
        Gastgeber.addAction(&a);
    }
    Byte(0) = 0x11;
    Byte(1) = 0x22;
    Byte(2) = 0x33;
    Hex_Anzeige();
    Hex_Markieren({0, 2});
    QTest::keyClick(Ziffern(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Ablage.Inhalt, "11");
    EXPECT_EQ(Byte(0), 0x22);
    EXPECT_EQ(Byte(1), 0x33);
    QTest::keyClick(Ziffern(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Byte(0), 0x11);
    EXPECT_EQ(Byte(1), 0x22);
    QTest::keyClick(Ziffern(), Qt::Key_Delete);
    EXPECT_EQ(Byte(0), 0x22);
    EXPECT_EQ(Byte(1), 0x33);
    EXPECT_EQ(Menue_Lief, 0);
}

TEST_F(Hexfenster, shortcuts_that_are_not_the_panes_reach_the_menu)
{
    QAction a;
    int     Lief = 0;
    a.setShortcuts({QKeySequence(QStringLiteral("Ctrl+D")), QKeySequence(QStringLiteral("F3"))});
    QObject::connect(&a, &QAction::triggered, [&] { ++Lief; });
    Gastgeber.addAction(&a);
    QTest::keyClick(Ziffern(), Qt::Key_D, Qt::ControlModifier);
    QTest::keyClick(Zeichen(), Qt::Key_F3);
    EXPECT_EQ(Lief, 2);
    EXPECT_FALSE(Datei_Geaendert);
}

TEST_F(Hexfenster, keys_without_a_meaning_here_change_nothing)
{
    for (const int k : {Qt::Key_F2,
                        Qt::Key_CapsLock,
                        Qt::Key_Shift,
                        Qt::Key_Control,
                        Qt::Key_Insert,
                        Qt::Key_VolumeUp}) {
        QTest::sendKeyEvent(QTest::Click, Ziffern(), static_cast<Qt::Key>(k), QString(), {});
        QTest::sendKeyEvent(QTest::Click, Zeichen(), static_cast<Qt::Key>(k), QString(), {});
    }
    QTest::keyClick(Zeichen(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(Datei_Geaendert);
    EXPECT_EQ(Letztes_Byte(), -1);
}

// --- mouse ---

TEST_F(Hexfenster, a_click_marks_the_byte_in_both_panes)
{
    Klicken(Ziffern(), 48 * 2 + 3 * 5 + 1);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 * 2 + 15, 2}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18 * 2 + 5, 1}));
    Klicken(Zeichen(), 18 * 3 + 4);
    EXPECT_TRUE(Zeichen()->hasFocus());
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18 * 3 + 4, 1}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 * 3 + 12, 2}));
}

TEST_F(Hexfenster, a_drag_marks_whole_bytes_in_both_panes_forward_and_backward)
{
    Ziehen(Ziffern(), 48 + 4, 96 + 3);
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 3, 50}));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{19, 19}));
    Ziehen(Zeichen(), 18 * 2 + 3, 18 + 14);
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{18 + 14, 8}));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{48 + 42, 17}));
}

TEST_F(Hexfenster, mouse_down_takes_the_other_panes_marking_away)
{
    QTest::mousePress(Ziffern(), Qt::LeftButton, {}, Ziffern()->Zelle(30).center());
    EXPECT_EQ(Hexedit.AscII_Auswahl.Laenge, 0);
    QTest::mouseRelease(Ziffern(), Qt::LeftButton, {}, Ziffern()->Zelle(30).center());
    EXPECT_EQ(Hexedit.AscII_Auswahl.Laenge, 1);
}

TEST_F(Hexfenster, a_click_below_and_beside_the_page_takes_the_nearest_byte)
{
    Leiste()->setValue(Leiste()->maximum());
    const int Letzte = static_cast<int>(Hex_Feld.size()) - 3;
    QTest::mouseClick(
        Ziffern(), Qt::LeftButton, {}, QPoint(Ziffern()->width() - 1, Ziffern()->height() - 1));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{Letzte, 2}));
    QTest::mouseClick(Zeichen(), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(Hexedit.AscII_Auswahl, (Markierung_T{0, 1}));
}

TEST_F(Hexfenster, a_click_shows_the_opcode_when_the_instruction_window_is_open)
{
    Fenster.Zu(3).Sichtbar = true;
    Byte(2)                = 0x74;
    Hex_Anzeige();
    Klicken(Ziffern(), 6);
    EXPECT_EQ(Hexedit.Bef_Zeile, 0x75);
}

TEST_F(Hexfenster, the_right_button_asks_for_the_menu_and_leaves_the_marking)
{
    Hex_Markieren({6, 8});
    QSignalSpy   Spion(&Hex, &Hexedit_Fenster::Kontextmenue);
    const QPoint Ort(40, 60);
    QTest::mousePress(Ziffern(), Qt::RightButton, {}, Ort);
    QContextMenuEvent e(QContextMenuEvent::Mouse, Ort, Ziffern()->mapToGlobal(Ort));
    QApplication::sendEvent(Ziffern(), &e);
    QTest::mouseRelease(Ziffern(), Qt::RightButton, {}, Ort);
    EXPECT_EQ(Spion.count(), 1);
    EXPECT_EQ(Spion.at(0).at(0).toPoint(), Ziffern()->mapToGlobal(Ort));
    EXPECT_EQ(Hexedit.Hex_Auswahl, (Markierung_T{6, 8}));
}

// --- scrolling ---

TEST_F(Hexfenster, the_wheel_scrolls_three_rows_over_every_column)
{
    for (const char* Name : {"Hex_Feld", "AscII_Feld", "Adr_D", "Adr_H"}) {
        Scroll_Setzen(100);
        Rad(Feld<QWidget>(Name), -120);
        EXPECT_EQ(Hexedit.Scroll, 103) << Name;
        Rad(Feld<QWidget>(Name), 240);
        EXPECT_EQ(Leiste()->value(), 97) << Name;
    }
}

TEST_F(Hexfenster, a_finely_turned_wheel_adds_up)
{
    Scroll_Setzen(100);
    for (int i = 0; i < 8; ++i)
        Rad(Ziffern(), -15);
    EXPECT_EQ(Hexedit.Scroll, 103);
}

TEST_F(Hexfenster, the_wheel_stops_at_both_ends)
{
    Rad(Ziffern(), 1200);
    EXPECT_EQ(Hexedit.Scroll, 0);
    Rad(Ziffern(), -120 * 20000);
    EXPECT_EQ(Hexedit.Scroll, Leiste()->maximum());
}

TEST_F(Hexfenster, the_bar_shows_the_page_of_its_row)
{
    Leiste()->setValue(0x123);
    EXPECT_EQ(Adr_H.substr(0, 6), "001230");
    MNU_LetzteAdresse_Click();
    Hex.Nachziehen();
    EXPECT_EQ(Leiste()->value(), 0);
}

// --- drawing ---

TEST_F(Hexfenster, the_pane_with_the_focus_is_light_yellow)
{
    const QPoint Ecke(1, 1);
    EXPECT_EQ(Punkt(Ziffern(), Ecke), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(Punkt(Zeichen(), Ecke), Hex.palette().color(QPalette::Base));
    Zeichen()->setFocus();
    EXPECT_EQ(Punkt(Zeichen(), Ecke), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(Punkt(Ziffern(), Ecke), Hex.palette().color(QPalette::Base));
}

TEST_F(Hexfenster, text_stays_readable_in_light_and_dark)
{
    for (const QPalette& p : {QPalette(), Dunkle_Palette()})
        for (const bool Aktiv : {true, false}) {
            const Hex_Farben_T f = Hex_Farben(p, Aktiv);
            EXPECT_GT(Kontrast(f.Text, f.Grund), 9);
            EXPECT_GT(Kontrast(f.Blass, f.Grund), 2.5);
            EXPECT_LT(Kontrast(f.Blass, f.Grund), Kontrast(f.Text, f.Grund) / 2);
            EXPECT_GT(Kontrast(f.Marke_Text, f.Marke), 3);
            EXPECT_NE(f.Marke, f.Grund);
        }
    EXPECT_LT(Hex_Farben(Dunkle_Palette(), true).Grund.lightness(), 80);
}

TEST_F(Hexfenster, the_marking_is_drawn_over_whole_bytes_and_ends_at_the_row)
{
    Hex_Markieren({42, 11}); // bytes 14, 15, 16, 17
    Hex.Nachziehen();
    const QColor Marke      = Hex.palette().color(QPalette::Highlight);
    const QImage Bild_Jetzt = Ziffern()->grab().toImage();
    const auto   Grund      = [&](int Stelle) {
        return Bild_Jetzt.pixelColor(Ziffern()->Zelle(Stelle).topLeft());
    };
    EXPECT_EQ(Grund(42), Marke);
    EXPECT_EQ(Grund(44), Marke);
    EXPECT_EQ(Grund(46), Marke);
    EXPECT_EQ(Grund(48), Marke);
    EXPECT_EQ(Grund(52), Marke);
    EXPECT_NE(Grund(41), Marke);
    EXPECT_NE(Grund(53), Marke);
}

TEST_F(Hexfenster, every_byte_value_can_be_drawn)
{
    for (int i = 0; i < 256; ++i)
        Byte(i) = static_cast<std::uint8_t>(i);
    Hex_Anzeige();
    AscII_Feld[1] = '\n'; // as if typed
    Hex.Nachziehen();
    EXPECT_FALSE(Hex.grab().isNull());
}

TEST_F(Hexfenster, nothing_is_repainted_while_nothing_changes)
{
    Hex.Nachziehen();
    QCoreApplication::processEvents();
    struct Zaehler : QObject {
        int  Anzahl = 0;
        bool eventFilter(QObject*, QEvent* e) override
        {
            Anzahl += e->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } z;
    Ziffern()->installEventFilter(&z);
    Hex.Nachziehen();
    QCoreApplication::processEvents();
    EXPECT_EQ(z.Anzahl, 0);
    Hex_Anzeige();
    Hex.Nachziehen();
    QCoreApplication::processEvents();
    EXPECT_EQ(z.Anzahl, 1);
}

// --- key translation ---

TEST(Tasten, keys_get_the_codes_of_the_field)
{
    const std::vector<std::pair<int, int>> Paare{
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},
        {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},
        {Qt::Key_Control, 17},  {Qt::Key_Alt, 18},      {Qt::Key_Escape, 27},
        {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
        {Qt::Key_Home, 36},     {Qt::Key_Left, 37},     {Qt::Key_Up, 38},
        {Qt::Key_Right, 39},    {Qt::Key_Down, 40},     {Qt::Key_Delete, 46},
        {Qt::Key_A, 'A'},       {Qt::Key_Z, 'Z'},       {Qt::Key_0, '0'},
        {Qt::Key_9, '9'},       {Qt::Key_F2, 0},        {Qt::Key_Adiaeresis, 0}};
    for (const auto& [Qt_Taste, Code] : Paare)
        EXPECT_EQ(Taste_Aus(QKeyEvent(QEvent::KeyPress, Qt_Taste, {})).Code, Code) << Qt_Taste;
}

TEST(Tasten, a_key_types_its_character_unless_ctrl_or_alt_is_held)
{
    const auto Zeichen = [](const QString& Text, Qt::KeyboardModifiers m) {
        return Taste_Aus(QKeyEvent(QEvent::KeyPress, Qt::Key_A, m, Text)).Zeichen;
    };
    EXPECT_EQ(Zeichen(QStringLiteral("a"), {}), 'a');
    EXPECT_EQ(Zeichen(QStringLiteral("A"), Qt::ShiftModifier), 'A');
    EXPECT_EQ(Zeichen(QStringLiteral("a"), Qt::ControlModifier), 0);
    EXPECT_EQ(Zeichen(QStringLiteral("a"), Qt::AltModifier), 0);
    EXPECT_EQ(Zeichen(QStringLiteral("@"), Qt::AltModifier | Qt::ControlModifier), '@');
    EXPECT_EQ(Zeichen(QStringLiteral("\u20AC"), {}), '\x80');
    EXPECT_EQ(Zeichen(QStringLiteral("\u2192"), {}), 0);
    EXPECT_EQ(Zeichen(QStringLiteral("?"), {}), '?');
    EXPECT_EQ(Zeichen(QStringLiteral("\x7F"), {}), 0);
    EXPECT_EQ(Zeichen(QStringLiteral("\r"), {}), 0);
    EXPECT_EQ(Zeichen(QString(), {}), 0);
}

} // namespace
} // namespace varnholt::test
