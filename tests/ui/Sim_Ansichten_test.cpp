// The three memory views by themselves: what their cells show, how the strip follows and commits,
// what a click does, and which cells are marked.
#include "core/reset.h"
#include "core/shared_state.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"
#include "support/scripted_platform.h"
#include "ui/F_SIM_EXRAM.h"
#include "ui/F_SIM_RAM.h"
#include "ui/F_SIM_SFR.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <rapidcheck/gtest.h>

#include <memory>
#include <set>
#include <utility>

namespace varnholt::test {
namespace {

constexpr int PSW_Index = 208;

// The registers of a session, and memories with values that tell their address.
void Sitzung_Anlegen()
{
    for (std::size_t i = 0; i < Sim_RAM.size(); ++i)
        Sim_RAM[i] = static_cast<std::uint8_t>(i);
    for (std::size_t i = 0; i < Sim_XRAM.size(); ++i)
        Sim_XRAM[i] = static_cast<std::uint8_t>(i * 3);
    Sim_RAM[SFR::PSW]             = 0;
    Sim_Ansichten.SFR_Zeilen      = {{SFR::P1, "P1"}, {SFR::ACC, "ACC"}, {SFR::PSW, "PSW"}};
    Sim_Ansichten.RAM_Namen[0x30] = "COUNT, TICKS";
    ++Sim_Ansichten.Aufbau;
    ++Sim_Ansichten.Erste_Zelle;
    Sim_Alles_Zeigen();
    Aenderungen_Vergessen();
}

template <class Fenster_T> class Ansicht_Welt : public Welt {
protected:
    Ansicht_Welt()
    {
        Sitzung_Anlegen();
        Fenster_Neu();
    }
    void Fenster_Neu()
    {
        Gitter = std::make_unique<Fenster_T>();
        Gitter->resize(420, 460);
        Gitter->show();
        Gitter->activateWindow();
        QApplication::processEvents();
    }

    QAbstractItemModel* Modell() const { return Gitter->Tafel()->model(); }
    std::string         Zelle(int Zeile, int Spalte) const
    {
        return Modell()->index(Zeile, Spalte).data().toString().toStdString();
    }
    bool Markiert(int Zeile, int Spalte) const
    {
        return Modell()->index(Zeile, Spalte).data(Sim_Modell::Geaendert_Rolle).toBool();
    }
    QLineEdit* T_Edit(int i) const
    {
        return Gitter->template findChild<QLineEdit*>(QStringLiteral("T_Edit_%1").arg(i));
    }
    std::string Text(int i) const { return T_Edit(i)->text().toStdString(); }
    void        Gehe_Zu(int Zeile, int Spalte)
    {
        Gitter->Tafel()->setCurrentIndex(Modell()->index(Zeile, Spalte));
    }
    // The user selects what stands in a field and types over it.
    void Tippen(int i, const char* Neu, Qt::Key Ende = Qt::Key_Return)
    {
        T_Edit(i)->setFocus();
        T_Edit(i)->selectAll();
        if (*Neu == 0)
            QTest::keyClick(T_Edit(i), Qt::Key_Delete);
        QTest::keyClicks(T_Edit(i), QString::fromLatin1(Neu));
        if (Ende != Qt::Key_unknown)
            QTest::keyClick(T_Edit(i), Ende);
    }
    void Klicken(int Zeile, int Spalte, Qt::MouseButton Taste = Qt::LeftButton)
    {
        const QModelIndex Ort = Modell()->index(Zeile, Spalte);
        Gitter->Tafel()->scrollTo(Ort);
        QTest::mouseClick(
            Gitter->Tafel()->viewport(), Taste, {}, Gitter->Tafel()->visualRect(Ort).center());
    }
    // The second press of a fast pair, as the window system tells it.
    void Zweiter_Klick(int Zeile, int Spalte, Qt::MouseButton Taste)
    {
        QWidget*     Wen = Gitter->Tafel()->viewport();
        const QPoint Wo  = Gitter->Tafel()->visualRect(Modell()->index(Zeile, Spalte)).center();
        QMouseEvent  Zweiter(QEvent::MouseButtonDblClick,
                            QPointF(Wo),
                            Wen->mapToGlobal(QPointF(Wo)),
                            Taste,
                            Taste,
                            {});
        QApplication::sendEvent(Wen, &Zweiter);
        QTest::mouseRelease(Wen, Taste, {}, Wo);
    }
    // The picture of a cell.
    QImage Bild(int Zeile, int Spalte) const
    {
        const QModelIndex Ort = Modell()->index(Zeile, Spalte);
        Gitter->Tafel()->scrollTo(Ort);
        return Gitter->Tafel()
            ->viewport()
            ->grab(Gitter->Tafel()->visualRect(Ort))
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }

    std::unique_ptr<Fenster_T> Gitter{};
};

using RAM_Test   = Ansicht_Welt<F_SIM_RAM>;
using SFR_Test   = Ansicht_Welt<F_SIM_SFR>;
using EXRAM_Test = Ansicht_Welt<F_SIM_EXRAM>;

constexpr int Hex = Sim_Bit_Modell::Hex;

// --- what the cells show ---

TEST_F(RAM_Test, there_are_256_rows_and_the_SFR_block_is_not_among_them)
{
    ASSERT_EQ(Modell()->rowCount(), 256);
    ASSERT_EQ(Modell()->columnCount(), 11);
    EXPECT_EQ(Zelle(0, 0), "00");
    EXPECT_EQ(Zelle(127, 0), "7F");
    EXPECT_EQ(Zelle(127, 2), "7F");
    EXPECT_EQ(Zelle(128, 0), "80");
    EXPECT_EQ(Zelle(128, 2), "00"); // index 256
    EXPECT_EQ(Zelle(255, 0), "FF");
    EXPECT_EQ(Zelle(255, 2), "7F"); // index 383
    EXPECT_EQ(Zelle(0x30, 1), "COUNT, TICKS");
}

TEST_F(RAM_Test, the_bits_stand_from_7_down_to_0)
{
    Sim_RAM[5] = 0x81;
    Sim_Zelle_Zeigen_RAM(5);
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(5, 2), "81");
    std::string Bits;
    for (int c = 3; c <= 10; ++c)
        Bits += Zelle(5, c);
    EXPECT_EQ(Bits, "10000001");
}

TEST_F(RAM_Test, the_headings_are_those_of_the_columns)
{
    const auto Kopf = [this](int c) {
        return Modell()->headerData(c, Qt::Horizontal).toString().toStdString();
    };
    EXPECT_EQ(Kopf(0), "Adr");
    EXPECT_EQ(Kopf(1), "Name");
    EXPECT_EQ(Kopf(2), "Hex");
    EXPECT_EQ(Kopf(3), "7");
    EXPECT_EQ(Kopf(10), "0");
    EXPECT_EQ(Kopf(11), "");
    EXPECT_EQ(Kopf(-1), "");
}

TEST_F(RAM_Test, addresses_stand_left_and_values_in_the_middle)
{
    const auto Art = [this](int c) {
        return Modell()->index(0, c).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(Art(0), Qt::AlignLeft);
    EXPECT_EQ(Art(1), Qt::AlignLeft);
    EXPECT_EQ(Art(2), Qt::AlignHCenter);
    EXPECT_EQ(Art(10), Qt::AlignHCenter);
}

TEST_F(RAM_Test, index_300_updates_the_row_of_address_AC)
{
    Sim_RAM[300] = 0x5A;
    Sim_Zelle_Zeigen_RAM(300);
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(0xAC, 0), "AC");
    EXPECT_EQ(Zelle(0xAC, 2), "5A");
}

TEST_F(RAM_Test, a_register_changes_nothing_here)
{
    QSignalSpy Gemeldet(Modell(), &QAbstractItemModel::dataChanged);
    Sim_RAM[SFR::ACC] = 0x11;
    Sim_Zelle_Zeigen_RAM(SFR::ACC);
    Sim_Zelle_Zeigen_SFR(SFR::ACC);
    Gitter->Nachziehen();
    EXPECT_EQ(Gemeldet.size(), 0);
}

TEST_F(RAM_Test, the_names_of_the_registers_move_with_the_bank)
{
    Sim_Zelle_Zeigen_SFR(PSW_Index);
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(0, 1), "R0");
    EXPECT_EQ(Zelle(15, 1), "");
    Sim_RAM[SFR::PSW] = 0x08;
    Sim_Zelle_Zeigen_SFR(PSW_Index);
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(0, 1), "");
    EXPECT_EQ(Zelle(15, 1), "R7");
    EXPECT_EQ(Zelle(0x30, 1), "COUNT, TICKS");
}

TEST_F(SFR_Test, each_declared_register_has_a_row_in_its_order)
{
    ASSERT_EQ(Modell()->rowCount(), 3);
    EXPECT_EQ(Zelle(0, 0), "90");
    EXPECT_EQ(Zelle(0, 1), "P1");
    EXPECT_EQ(Zelle(0, 2), "90");
    EXPECT_EQ(Zelle(1, 0), "E0");
    EXPECT_EQ(Zelle(2, 1), "PSW");
}

TEST_F(SFR_Test, another_processor_brings_other_rows)
{
    QAbstractItemModelTester Pruefer(Modell());
    Sim_Ansichten.SFR_Zeilen = {{SFR::B, "B"}};
    ++Sim_Ansichten.Aufbau;
    ++Sim_Ansichten.Stand;
    EXPECT_EQ(Modell()->rowCount(), 3); // until the view is told
    Gitter->Nachziehen();
    ASSERT_EQ(Modell()->rowCount(), 1);
    EXPECT_EQ(Zelle(0, 1), "B");
    EXPECT_EQ(Text(0), ""); // the current cell is gone
    Sim_Ansichten.SFR_Zeilen.clear();
    ++Sim_Ansichten.Aufbau;
    Gitter->Nachziehen();
    EXPECT_EQ(Modell()->rowCount(), 0);
}

TEST_F(SFR_Test, a_change_of_the_bank_keeps_rows_and_current_cell)
{
    Gehe_Zu(1, 2);
    QSignalSpy Zurueck(Modell(), &QAbstractItemModel::modelReset);
    Sim_RAM[SFR::PSW] = 0x18;
    Sim_Zelle_Zeigen_SFR(PSW_Index);
    Gitter->Nachziehen();
    EXPECT_EQ(Zurueck.size(), 0);
    EXPECT_EQ(Gitter->Tafel()->currentIndex().row(), 1);
    EXPECT_EQ(Zelle(2, 2), "18");
}

TEST_F(SFR_Test, a_register_outside_the_memory_has_no_value)
{
    QAbstractItemModelTester Pruefer(Modell());
    Sim_Ansichten.SFR_Zeilen = {{0xFFFF, "FAR"}, {-5, "LOW"}, {383, "LAST"}, {384, "NEXT"}};
    ++Sim_Ansichten.Aufbau;
    ++Sim_Ansichten.Stand;
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(0, 1), "FAR");
    EXPECT_EQ(Zelle(0, 2), "");
    EXPECT_EQ(Zelle(1, 10), "");
    EXPECT_EQ(Zelle(2, 2), "7F");
    EXPECT_EQ(Zelle(3, 2), "");
    Gehe_Zu(0, 0);
    EXPECT_EQ(Text(0), "FFFF");
    EXPECT_EQ(Text(2), "00");
    Klicken(0, 5);
}

TEST_F(SFR_Test, two_names_of_one_register_show_the_same)
{
    Sim_Ansichten.SFR_Zeilen = {{0x98, "SCON"}, {0x98, "S0CON"}};
    ++Sim_Ansichten.Aufbau;
    Gitter->Nachziehen();
    QSignalSpy Gemeldet(Modell(), &QAbstractItemModel::dataChanged);
    Sim_RAM[0x98] ^= 1;
    Sim_Zelle_Zeigen_SFR(0x98);
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(0, 2), Zelle(1, 2));
    EXPECT_EQ(Gemeldet.size(), 4); // value and bit 0, twice
}

TEST_F(EXRAM_Test, eight_bytes_stand_in_each_of_8192_rows)
{
    ASSERT_EQ(Modell()->rowCount(), 8192);
    ASSERT_EQ(Modell()->columnCount(), 9);
    EXPECT_EQ(Zelle(0, 0), "0000");
    EXPECT_EQ(Zelle(1, 0), "0008");
    EXPECT_EQ(Zelle(8191, 0), "FFF8");
    EXPECT_EQ(Zelle(1, 1), "18"); // address 8
    EXPECT_EQ(Zelle(8191, 8), "FD");
    EXPECT_EQ(Modell()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Adr"));
    EXPECT_EQ(Modell()->headerData(8, Qt::Horizontal).toString(), QStringLiteral("+7"));
}

TEST_F(EXRAM_Test, a_byte_stands_at_its_eighth_and_its_rest)
{
    Sim_XRAM[0x1234] = 0xEE;
    Sim_Zelle_Zeigen_EXRAM(0x1234);
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(0x1234 / 8, 0x1234 % 8 + 1), "EE");
}

// --- models as the view sees them ---

TEST_F(RAM_Test, the_model_keeps_the_rules_of_item_models_while_everything_changes)
{
    QAbstractItemModelTester Pruefer(Modell(),
                                     QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int i = 0; i < 4; ++i) {
        for (std::uint8_t& b : Sim_RAM)
            ++b;
        Sim_Alles_Zeigen();
        Gitter->Nachziehen();
        Aenderungen_Vergessen();
        Gitter->Nachziehen();
    }
}

TEST_F(EXRAM_Test, the_model_keeps_the_rules_of_item_models_while_everything_changes)
{
    QAbstractItemModelTester Pruefer(Modell(),
                                     QAbstractItemModelTester::FailureReportingMode::Fatal);
    Sim_XRAM.fill(7);
    Sim_Alles_Zeigen();
    Gitter->Nachziehen();
    EXPECT_EQ(Zelle(4000, 4), "07");
}

// The cells that a spy was told of.
std::set<std::pair<int, int>> Zellen(const QSignalSpy& Gemeldet)
{
    std::set<std::pair<int, int>> Alle;
    for (const auto& Eine : Gemeldet) {
        const QModelIndex Von = Eine.at(0).toModelIndex();
        const QModelIndex Bis = Eine.at(1).toModelIndex();
        for (int r = Von.row(); r <= Bis.row(); ++r)
            for (int c = Von.column(); c <= Bis.column(); ++c)
                Alle.emplace(r, c);
    }
    return Alle;
}

TEST_F(RAM_Test, only_the_cells_that_change_are_drawn_anew)
{
    QSignalSpy Gemeldet(Modell(), &QAbstractItemModel::dataChanged);
    Sim_RAM[7] = 0x06; // was 07: bit 0 goes
    Sim_Zelle_Zeigen_RAM(7);
    Gitter->Nachziehen();
    EXPECT_EQ(Zellen(Gemeldet), (std::set<std::pair<int, int>>{{7, Hex}, {7, 10}}));
    Gemeldet.clear();
    Gitter->Nachziehen();
    EXPECT_EQ(Gemeldet.size(), 0);
    Aenderungen_Vergessen(); // the marks go
    Gitter->Nachziehen();
    EXPECT_EQ(Zellen(Gemeldet), (std::set<std::pair<int, int>>{{7, Hex}, {7, 10}}));
}

TEST_F(RAM_Test, many_changes_are_told_at_once)
{
    QSignalSpy Gemeldet(Modell(), &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 128; ++i)
        Sim_RAM[static_cast<std::size_t>(i)] = 0xAA;
    Sim_Alles_Zeigen();
    Gitter->Nachziehen();
    EXPECT_EQ(Gemeldet.size(), 1);
    EXPECT_EQ(Zellen(Gemeldet).size(), 256U * 11U);
}

// Whatever happens to the memory, the view has been told of each cell that shows something else.
RC_GTEST_FIXTURE_PROP(RAM_Test, no_changed_cell_is_forgotten, ())
{
    const auto Bild_Davor = [this] {
        std::vector<std::string> Alle;
        for (int r = 0; r < 256; ++r)
            for (int c = 0; c < 11; ++c)
                Alle.push_back(Zelle(r, c) + (Markiert(r, c) ? "*" : ""));
        return Alle;
    };
    for (int Runde = 0; Runde < 3; ++Runde) {
        const auto Davor = Bild_Davor();
        QSignalSpy Gemeldet(Modell(), &QAbstractItemModel::dataChanged);
        if (*rc::gen::arbitrary<bool>())
            Aenderungen_Vergessen();
        const auto Orte =
            *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, Sim_RAM_Groesse));
        for (const int i : Orte) {
            Sim_RAM[static_cast<std::size_t>(i)] = *rc::gen::arbitrary<std::uint8_t>();
            Sim_Zelle_Zeigen_RAM(i);
        }
        Gitter->Nachziehen();
        const auto Danach  = Bild_Davor();
        const auto Gesagte = Zellen(Gemeldet);
        for (int r = 0; r < 256; ++r)
            for (int c = 0; c < 11; ++c) {
                const auto i = static_cast<std::size_t>(r * 11 + c);
                RC_ASSERT(Davor[i] == Danach[i] || Gesagte.contains({r, c}));
            }
    }
}

// --- marks ---

TEST_F(RAM_Test, what_changed_since_the_last_stop_is_marked_to_the_bit)
{
    Sim_RAM[7] = 0x05; // was 07
    Sim_Zelle_Zeigen_RAM(7);
    Gitter->Nachziehen();
    EXPECT_TRUE(Markiert(7, Hex));
    for (int c = 3; c <= 10; ++c)
        EXPECT_EQ(Markiert(7, c), c == 9) << c;
    EXPECT_FALSE(Markiert(7, 0));
    EXPECT_FALSE(Markiert(8, Hex));
    EXPECT_EQ(Modell()->index(7, Hex).data(Qt::AccessibleDescriptionRole).toString(),
              QStringLiteral("changed"));
    Sprache = "D";
    EXPECT_EQ(Modell()->index(7, Hex).data(Qt::AccessibleDescriptionRole).toString(),
              QStringLiteral("geändert"));
    Sim_RAM[7] = 0x07; // as it was
    Sim_Zelle_Zeigen_RAM(7);
    Gitter->Nachziehen();
    EXPECT_FALSE(Markiert(7, Hex));
}

int Helligkeit_Abstand(const QColor& a, const QColor& b)
{
    return std::abs(a.lightness() - b.lightness());
}

// Pixels that are not of the ground.
int Striche(const QImage& Bild)
{
    const QRgb Grund = Bild.pixel(1, 1);
    int        n     = 0;
    for (int y = 0; y < Bild.height() - 1; ++y)
        for (int x = 0; x < Bild.width() - 1; ++x)
            n += Bild.pixel(x, y) != Grund ? 1 : 0;
    return n;
}

TEST_F(RAM_Test, a_mark_has_a_ground_of_its_own_and_bold_digits_on_light_and_on_dark)
{
    const QPalette Bisher = QApplication::palette();
    for (const bool Dunkel : {false, true}) {
        QPalette p = Bisher;
        p.setColor(QPalette::Base, Dunkel ? QColor(0x1E, 0x1E, 0x1E) : QColor(Qt::white));
        p.setColor(QPalette::Text, Dunkel ? QColor(0xE0, 0xE0, 0xE0) : QColor(Qt::black));
        Gitter->Tafel()->setPalette(p);
        Sim_RAM[0x20] = 0x88;
        Sim_RAM[0x22] = 0x00;
        Sim_Alles_Zeigen();
        Aenderungen_Vergessen();
        Sim_RAM[0x22] = 0x88; // the same digits, marked
        Sim_Alles_Zeigen();
        Gitter->Nachziehen();
        const QImage       Ohne = Bild(0x20, Hex);
        const QImage       Mit  = Bild(0x22, Hex);
        const Sim_Farben_T f    = Sim_Farben_Geaendert(p);
        EXPECT_EQ(QColor(Ohne.pixel(1, 1)), p.color(QPalette::Base)) << Dunkel;
        EXPECT_EQ(QColor(Mit.pixel(1, 1)), f.Grund) << Dunkel;
        EXPECT_GT(Helligkeit_Abstand(f.Grund, f.Text), 120) << Dunkel;
        EXPECT_GT(Striche(Mit), Striche(Ohne)) << Dunkel;
        EXPECT_EQ(f.Grund.lightness() < 128, Dunkel);
    }
}

// --- the strip ---

TEST_F(RAM_Test, the_strip_follows_the_current_row)
{
    EXPECT_EQ(Text(0), "00"); // at the first cell
    Sim_RAM[0x30] = 0xA5;
    Sim_Zelle_Zeigen_RAM(0x30);
    Gitter->Nachziehen();
    Gehe_Zu(0x30, 2);
    EXPECT_EQ(Text(0), "30");
    EXPECT_EQ(Text(1), "COUNT, TICKS");
    EXPECT_EQ(Text(2), "A5");
    EXPECT_EQ(Text(3), "1 0 1 0 0 1 0 1");
    QTest::keyClick(Gitter->Tafel(), Qt::Key_Down);
    EXPECT_EQ(Text(0), "31");
    EXPECT_EQ(Text(2), "31");
}

TEST_F(RAM_Test, a_new_session_goes_to_the_first_cell)
{
    Gehe_Zu(200, 5);
    ++Sim_Ansichten.Erste_Zelle;
    Gitter->Nachziehen();
    EXPECT_EQ(Gitter->Tafel()->currentIndex(), Modell()->index(0, 0));
    EXPECT_EQ(Text(0), "00");
    EXPECT_TRUE(Gitter->Tafel()->visualRect(Modell()->index(0, 0)).isValid());
}

TEST_F(RAM_Test, a_change_of_the_current_row_shows_in_the_strip)
{
    Gehe_Zu(5, 2);
    Sim_RAM[5] = 0x0F;
    Sim_Zelle_Zeigen_RAM(5);
    Gitter->Nachziehen();
    EXPECT_EQ(Text(2), "0F");
    EXPECT_EQ(Text(3), "0 0 0 0 1 1 1 1");
}

TEST_F(RAM_Test, what_is_being_typed_survives_changes_of_its_row)
{
    Gehe_Zu(5, 2);
    Tippen(2, "7", Qt::Key_unknown);
    Sim_RAM[5] = 0x0F;
    Sim_Zelle_Zeigen_RAM(5);
    Gitter->Nachziehen();
    EXPECT_EQ(Text(2), "7");
    EXPECT_EQ(Text(3), "0 0 0 0 1 1 1 1");
    Gehe_Zu(6, 2); // given up
    EXPECT_EQ(Text(2), "06");
    EXPECT_EQ(Sim_RAM[5], 0x0F);
}

TEST_F(RAM_Test, Enter_in_the_hex_field_stores_the_value)
{
    Gehe_Zu(0x40, 2);
    Tippen(2, "5a");
    EXPECT_EQ(Sim_RAM[0x40], 0x5A);
    EXPECT_EQ(Zelle(0x40, 2), "5A");
    EXPECT_EQ(Text(2), "5A");
    EXPECT_EQ(Text(3), "0 1 0 1 1 0 1 0");
    Tippen(2, "7", Qt::Key_Enter); // of the keypad
    EXPECT_EQ(Sim_RAM[0x40], 7);
}

TEST_F(RAM_Test, Enter_in_the_bit_field_stores_the_bits)
{
    Gehe_Zu(0x40, 2);
    Tippen(3, "1 0 1");
    EXPECT_EQ(Sim_RAM[0x40], 5);
    EXPECT_EQ(Text(2), "05");
    Tippen(3, "x1y1z");
    EXPECT_EQ(Sim_RAM[0x40], 3);
    Tippen(3, "1 1 1 1 1 1 1 1 1");
    EXPECT_EQ(Sim_RAM[0x40], 255);
}

struct Hex_Fall {
    const char*  Getippt;
    std::uint8_t Wert;
};

TEST_F(RAM_Test, the_hex_field_ends_at_255_and_takes_nonsense_for_0)
{
    Gehe_Zu(0x40, 2);
    for (const Hex_Fall& f : {Hex_Fall{"FF", 255},
                              {"100", 255},
                              {"1FF", 255},
                              {"zz", 0},
                              {"9", 9},
                              {"", 0},
                              {"FFFFFFFFFFFF", 255},
                              {"0A", 10},
                              {"12h", 0x12}}) {
        Tippen(2, f.Getippt);
        EXPECT_EQ(Sim_RAM[0x40], f.Wert) << f.Getippt;
    }
}

TEST_F(RAM_Test, an_address_above_127_is_one_of_the_upper_RAM)
{
    Gehe_Zu(0x80, 2);
    Tippen(2, "77");
    EXPECT_EQ(Sim_RAM[256], 0x77);
    EXPECT_EQ(Sim_RAM[128], 128);
    Gehe_Zu(0x7F, 2);
    Tippen(2, "66");
    EXPECT_EQ(Sim_RAM[127], 0x66);
}

TEST_F(RAM_Test, the_address_field_decides_where_an_edit_goes)
{
    Gehe_Zu(3, 2);
    Tippen(0, "50", Qt::Key_unknown);
    Tippen(2, "99");
    EXPECT_EQ(Sim_RAM[0x50], 0x99);
    EXPECT_EQ(Sim_RAM[3], 3);
    EXPECT_EQ(Gitter->Tafel()->currentIndex().row(), 0x50);
    EXPECT_EQ(Text(0), "50");
    EXPECT_EQ(Text(2), "99");
}

TEST_F(RAM_Test, an_edit_with_an_empty_address_goes_to_index_0)
{
    Gehe_Zu(3, 2);
    Tippen(0, "", Qt::Key_unknown);
    Tippen(2, "42");
    EXPECT_EQ(Sim_RAM[0], 0x42);
    EXPECT_EQ(Sim_RAM[3], 3);
}

TEST_F(RAM_Test, Enter_in_the_address_field_goes_there_and_stores_nothing)
{
    const auto Vorher = Sim_RAM;
    Tippen(0, "f0");
    EXPECT_EQ(Gitter->Tafel()->currentIndex().row(), 0xF0);
    EXPECT_EQ(Text(0), "F0");
    for (const char* Nirgends : {"100", "zz", "FFFFFFFF"}) {
        Tippen(0, Nirgends);
        EXPECT_EQ(Gitter->Tafel()->currentIndex().row(), 0xF0) << Nirgends;
    }
    EXPECT_EQ(Sim_RAM, Vorher);
}

TEST_F(RAM_Test, a_typed_address_comes_into_sight_with_its_neighbours)
{
    Gitter->resize(420, 230);
    QApplication::processEvents();
    const auto Zu_Sehen = [this](int Zeile) {
        return Gitter->Tafel()->viewport()->rect().contains(
            Gitter->Tafel()->visualRect(Modell()->index(Zeile, Hex)));
    };
    for (const int Zeile : {0x90, 0x30}) { // downwards and upwards
        Tippen(0, Zeile == 0x90 ? "90" : "30");
        for (int i = -1; i <= 1; ++i)
            EXPECT_TRUE(Zu_Sehen(Zeile + i)) << Zeile << ' ' << i;
    }
    const int Oberste = Gitter->Tafel()->rowAt(0);
    Tippen(0, "31");
    EXPECT_EQ(Gitter->Tafel()->rowAt(0), Oberste) << "what is in sight stays where it is";
}

TEST_F(RAM_Test, after_Enter_the_next_value_takes_the_place_of_the_last_one)
{
    Gehe_Zu(0x40, Hex);
    Tippen(2, "12");
    QTest::keyClicks(T_Edit(2), QStringLiteral("34"));
    QTest::keyClick(T_Edit(2), Qt::Key_Return);
    EXPECT_EQ(Sim_RAM[0x40], 0x34);
}

TEST_F(RAM_Test, the_name_is_only_shown)
{
    EXPECT_TRUE(T_Edit(1)->isReadOnly());
    const auto Vorher = Sim_RAM;
    QTest::keyClicks(T_Edit(1), QStringLiteral("77"));
    QTest::keyClick(T_Edit(1), Qt::Key_Return);
    EXPECT_EQ(Sim_RAM, Vorher);
}

TEST_F(RAM_Test, at_full_speed_an_edit_is_stored_and_what_was_typed_stays)
{
    Debug_Laeuft = Debug_Vollgas = true;
    Gehe_Zu(0x40, 2);
    Tippen(2, "5A");
    EXPECT_EQ(Sim_RAM[0x40], 0x5A);
    EXPECT_EQ(Zelle(0x40, 2), "40"); // until the end of the run
    EXPECT_EQ(Text(2), "5A");
    Debug_Laeuft  = false;
    Sim_RAM[0x40] = 0x5B;
    Sim_Alles_Zeigen();
    Gitter->Nachziehen();
    EXPECT_EQ(Text(2), "5B");
}

TEST_F(RAM_Test, InfoText_tells_what_the_current_row_is_in_both_languages)
{
    auto*      Feld = Gitter->findChild<QLabel*>(QStringLiteral("InfoText"));
    const auto Info = [&](const char* In, int Zeile) {
        Sprache = In;
        Gitter->Nachziehen();
        Gehe_Zu(Zeile == 1 ? 2 : 1, 2);
        Gehe_Zu(Zeile, 2);
        return Feld->text().toStdString();
    };
    EXPECT_EQ(Info("D", 0x0B), "0Bh = 11: 11 (11), Bank 1, R3");
    Sprache = "E"; // while it is open
    Gitter->Nachziehen();
    EXPECT_EQ(Feld->text(), QStringLiteral("0Bh = 11: 11 (11), bank 1, R3"));
    EXPECT_EQ(Info("E", 0x0B), "0Bh = 11: 11 (11), bank 1, R3");
    EXPECT_EQ(Info("D", 0x20), "20h = 32: 32 (32), Bits 00h bis 07h");
    EXPECT_EQ(Info("E", 0x2F), "2Fh = 47: 47 (47), bits 78h to 7Fh");
    EXPECT_EQ(Info("E", 0x30), "30h = 48: 48 (48), direct and indirect access");
    EXPECT_EQ(Info("D", 0x7F), "7Fh = 127: 127 (127), direkt und indirekt adressierbar");
    EXPECT_EQ(Info("E", 0x80), "80h = 128: 0 (0), indirect access only");
    EXPECT_EQ(Info("D", 0xFF), "FFh = 255: 127 (127), nur indirekt adressierbar");
    Sim_RAM[0x30] = 0xFE;
    Sim_Zelle_Zeigen_RAM(0x30);
    Gitter->Nachziehen();
    EXPECT_EQ(Info("E", 0x30), "30h = 48: 254 (-2), direct and indirect access");
}

TEST_F(SFR_Test, an_edit_goes_to_the_address_as_it_stands)
{
    Gehe_Zu(1, 2);
    EXPECT_EQ(Text(0), "E0");
    Tippen(2, "AB");
    EXPECT_EQ(Sim_RAM[SFR::ACC], 0xAB);
    EXPECT_EQ(Zelle(1, 2), "AB");
    EXPECT_EQ(Sim_RAM[SFR::ACC + 128], static_cast<std::uint8_t>(SFR::ACC + 128));
}

TEST_F(SFR_Test, a_register_that_lies_in_the_upper_RAM_is_edited_in_its_row)
{
    Sim_Ansichten.SFR_Zeilen = {{0x100, "LOW_END"}, {0x17F, "HIGH_END"}, {0x180, "BEYOND"}};
    ++Sim_Ansichten.Aufbau;
    Sim_Alles_Zeigen();
    Gitter->Nachziehen();
    Gehe_Zu(1, Hex);
    EXPECT_EQ(Text(0), "17F");
    Tippen(2, "5A");
    EXPECT_EQ(Sim_RAM[383], 0x5A);
    EXPECT_EQ(Zelle(1, 2), "5A");
    Tippen(3, "1 0 0 0 0 0 0 1");
    EXPECT_EQ(Sim_RAM[383], 0x81);
    Klicken(1, 10);
    EXPECT_EQ(Sim_RAM[383], 0x80);
    EXPECT_EQ(Zelle(1, 2), "80");
    Klicken(0, 3);
    EXPECT_EQ(Sim_RAM[256], 0x80);
    EXPECT_EQ(Sim_RAM[0], 0) << "no other byte is touched";
}

TEST_F(SFR_Test, an_edit_of_an_address_without_a_row_is_stored_and_the_strip_goes_back)
{
    Gehe_Zu(1, 2);
    Tippen(0, "F0", Qt::Key_unknown);
    Tippen(2, "12");
    EXPECT_EQ(Sim_RAM[SFR::B], 0x12);
    EXPECT_EQ(Text(0), "E0");
    EXPECT_EQ(Text(2), "E0");
}

TEST_F(SFR_Test, an_edit_of_PSW_moves_the_names_at_once)
{
    Gehe_Zu(2, 2);
    Tippen(2, "10");
    EXPECT_EQ(Sim_Ansichten.RAM_Namen[0x10], "R0");
    EXPECT_EQ(Sim_Ansichten.RAM_Namen[0], "");
}

TEST_F(EXRAM_Test, the_strip_of_three_fields_follows_the_current_cell)
{
    EXPECT_EQ(T_Edit(3), nullptr);
    Gehe_Zu(2, 4);
    EXPECT_EQ(Text(0), "0013");
    EXPECT_EQ(Text(1), "39");
    EXPECT_EQ(Text(2), "0 0 1 1 1 0 0 1");
    Gehe_Zu(2, 0);
    EXPECT_EQ(Text(0), "0010");
}

TEST_F(EXRAM_Test, value_and_bits_are_stored_at_the_address)
{
    Gehe_Zu(0x1000 / 8, 3);
    Tippen(1, "C3");
    EXPECT_EQ(Sim_XRAM[0x1002], 0xC3);
    EXPECT_EQ(Zelle(0x1000 / 8, 3), "C3");
    Tippen(2, "1 1");
    EXPECT_EQ(Sim_XRAM[0x1002], 3);
    Tippen(0, "ffff");
    EXPECT_EQ(Gitter->Tafel()->currentIndex(), Modell()->index(8191, 8));
    Tippen(1, "1FF");
    EXPECT_EQ(Sim_XRAM[0xFFFF], 255);
}

// --- the mouse ---

TEST_F(RAM_Test, a_click_on_a_bit_sets_it_and_a_second_one_clears_it)
{
    for (int c = 3; c <= 10; ++c) {
        Sim_RAM[0x40] = 0;
        Sim_Zelle_Zeigen_RAM(0x40);
        Gitter->Nachziehen();
        Klicken(0x40, c);
        EXPECT_EQ(Sim_RAM[0x40], 1 << (10 - c)) << c;
        EXPECT_EQ(Zelle(0x40, c), "1");
        EXPECT_EQ(Text(0), "40");
        Klicken(0x40, c);
        EXPECT_EQ(Sim_RAM[0x40], 0) << c;
    }
}

TEST_F(RAM_Test, each_press_of_fast_clicks_toggles_the_bit)
{
    Gitter->Tafel()->scrollTo(Modell()->index(4, 10));
    for (const int Wert : {5, 4, 5, 4}) { // to Qt every second press is a double click
        Wert == 5 ? Klicken(4, 10) : Zweiter_Klick(4, 10, Qt::LeftButton);
        EXPECT_EQ(Sim_RAM[4], Wert);
    }
}

TEST_F(RAM_Test, a_double_click_with_another_button_changes_nothing)
{
    const auto Vorher = Sim_RAM;
    for (const auto Taste : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        Klicken(4, 10, Taste);
        Zweiter_Klick(4, 10, Taste);
        EXPECT_EQ(Sim_RAM, Vorher) << Taste;
    }
    Klicken(4, 10);
    Zweiter_Klick(4, 10, Qt::RightButton);
    EXPECT_EQ(Sim_RAM[4], 5) << "and takes nothing back";
}

TEST_F(RAM_Test, fast_clicks_on_two_cells_toggle_each_once)
{
    Klicken(4, 10);
    Zweiter_Klick(4, 9, Qt::LeftButton);
    EXPECT_EQ(Sim_RAM[4], 7);
}

TEST_F(RAM_Test, a_click_beside_the_bits_or_with_another_button_changes_nothing)
{
    const auto Vorher = Sim_RAM;
    for (int c = 0; c <= 2; ++c)
        Klicken(4, c);
    Klicken(4, 10, Qt::RightButton);
    Klicken(4, 10, Qt::MiddleButton);
    EXPECT_EQ(Sim_RAM, Vorher);
}

TEST_F(RAM_Test, a_click_on_a_bit_of_the_upper_RAM_goes_there)
{
    Klicken(0x90, 10);
    EXPECT_EQ(Sim_RAM[0x90 + 128], 0x11);
    EXPECT_EQ(Sim_RAM[0x90], 0x90);
}

TEST_F(SFR_Test, a_click_on_a_bit_of_PSW_switches_the_bank)
{
    Klicken(2, 7); // bit 3: RS0
    EXPECT_EQ(Sim_RAM[SFR::PSW], 0x08);
    EXPECT_EQ(Sim_Ansichten.RAM_Namen[8], "R0");
    Klicken(2, 7);
    EXPECT_EQ(Sim_RAM[SFR::PSW], 0x00);
}

TEST_F(EXRAM_Test, a_click_only_moves)
{
    const auto Vorher = Sim_XRAM;
    Klicken(3, 5);
    EXPECT_EQ(Sim_XRAM, Vorher);
    EXPECT_EQ(Text(0), "001C");
}

// --- keys ---

TEST_F(RAM_Test, the_grid_takes_no_typed_input)
{
    const auto Vorher = Sim_RAM;
    Gehe_Zu(4, 2);
    for (const char* c = "0123456789abcdefCOUNT r7"; *c != 0; ++c)
        QTest::keyClick(Gitter->Tafel(), *c);
    for (const Qt::Key k : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete, Qt::Key_F2})
        QTest::keyClick(Gitter->Tafel(), k);
    EXPECT_EQ(Sim_RAM, Vorher);
    EXPECT_EQ(Gitter->Tafel()->currentIndex(), Modell()->index(4, 2));
    EXPECT_EQ(Gitter->Tafel()->findChildren<QLineEdit*>().size(), 0);
}

TEST_F(RAM_Test, Tab_leaves_the_grid)
{
    Gitter->Tafel()->setFocus();
    Gehe_Zu(4, 2);
    QTest::keyClick(Gitter->Tafel(), Qt::Key_Tab);
    EXPECT_EQ(Gitter->Tafel()->currentIndex(), Modell()->index(4, 2));
    EXPECT_FALSE(Gitter->Tafel()->hasFocus());
}

// --- layout and language ---

TEST_F(RAM_Test, the_columns_fill_the_width_and_the_name_takes_what_is_left)
{
    const auto Breite = [this](int c) {
        return Gitter->Tafel()->horizontalHeader()->sectionSize(c);
    };
    int Summe = 0;
    for (int c = 0; c < 11; ++c)
        Summe += Breite(c);
    EXPECT_EQ(Summe, Gitter->Tafel()->viewport()->width());
    const int Name = Breite(1);
    Gitter->resize(520, 460);
    QApplication::processEvents();
    EXPECT_EQ(Breite(1), Name + 100);
    Gitter->resize(100, 460); // nothing gets narrower than its text
    QApplication::processEvents();
    const QFontMetrics Mass(Gitter->Tafel()->font());
    for (int c = 0; c < 11; ++c)
        EXPECT_GT(Breite(c), Mass.horizontalAdvance(QString::fromStdString(Zelle(0, c)))) << c;
}

TEST_F(EXRAM_Test, the_byte_columns_share_the_width)
{
    const auto Breite = [this](int c) {
        return Gitter->Tafel()->horizontalHeader()->sectionSize(c);
    };
    for (int c = 2; c <= 8; ++c)
        EXPECT_EQ(Breite(c), Breite(1));
    EXPECT_LE(std::abs(Breite(0) + 8 * Breite(1) - Gitter->Tafel()->viewport()->width()), 8);
}

TEST_F(RAM_Test, the_figures_are_monospaced)
{
    const QFontMetrics Mass(Gitter->Tafel()->font());
    for (const char16_t c : u"0123456789ABCDEF")
        if (c != 0) {
            EXPECT_EQ(Mass.horizontalAdvance(QChar(c)), Mass.horizontalAdvance(u'0'));
        }
    EXPECT_EQ(T_Edit(2)->font().family(), Gitter->Tafel()->font().family());
}

TEST_F(RAM_Test, the_fields_are_named_in_both_languages_and_follow_a_change)
{
    Sprache = "D";
    Gitter->Nachziehen();
    EXPECT_EQ(T_Edit(0)->toolTip(), QStringLiteral("Adresse (hexadezimal)"));
    EXPECT_EQ(T_Edit(3)->accessibleName(), QStringLiteral("Bits 7 bis 0, Enter übernimmt"));
    EXPECT_EQ(Gitter->Tafel()->accessibleName(), QStringLiteral("Internes RAM"));
    Sprache = "E";
    Gitter->Nachziehen();
    EXPECT_EQ(T_Edit(0)->toolTip(), QStringLiteral("Address (hexadecimal)"));
    EXPECT_EQ(T_Edit(2)->toolTip(), QStringLiteral("Value (hexadecimal), Enter takes it over"));
    EXPECT_EQ(Gitter->Tafel()->accessibleName(), QStringLiteral("Internal RAM"));
}

TEST_F(RAM_Test, a_hidden_window_catches_up_when_it_is_shown)
{
    Gitter->hide();
    QSignalSpy Gemeldet(Modell(), &QAbstractItemModel::dataChanged);
    Sim_RAM[9] = 0x77;
    Sim_Zelle_Zeigen_RAM(9);
    Gitter->Nachziehen();
    EXPECT_EQ(Gemeldet.size(), 0);
    Gitter->show();
    EXPECT_GT(Gemeldet.size(), 0);
    EXPECT_EQ(Zelle(9, 2), "77");
}

} // namespace
} // namespace varnholt::test
