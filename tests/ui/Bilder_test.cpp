// The icons: each tool bar key has one, and they follow the colours of the desktop.
#include "core/menu.h"
#include "ui/Bilder.h"
#include "ui/Qt_Text.h"

#include <gtest/gtest.h>

#include <QImage>

#include <array>
#include <set>

namespace varnholt {
namespace {

constexpr std::array Weitere_Bilder = {"mc-editor",
                                       "hex-editor",
                                       "sprungmarken",
                                       "notizen",
                                       "optionen",
                                       "hilfe",
                                       "chip",
                                       "ersetzen",
                                       "stoppen"};

QPalette Farben(const QColor& Grund, const QColor& Text)
{
    QPalette p(Grund);
    p.setColor(QPalette::Window, Grund);
    p.setColor(QPalette::ButtonText, Text);
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
    p.setColor(QPalette::HighlightedText, QColor(0xFE, 0xDC, 0xBA));
    return p;
}

QPalette Hell() { return Farben(QColor(0xF0, 0xF0, 0xF0), Qt::black); }
QPalette Dunkel() { return Farben(QColor(0x20, 0x23, 0x26), Qt::white); }

QImage Gemalt(const QIcon& Bild, int Seite, QIcon::Mode Art = QIcon::Normal)
{
    return Bild.pixmap(QSize(Seite, Seite), 1.0, Art).toImage();
}

// The opaque colours of a picture.
std::set<QRgb> Deckende_Farben(const QImage& Bild)
{
    std::set<QRgb> Alle;
    for (int y = 0; y < Bild.height(); ++y)
        for (int x = 0; x < Bild.width(); ++x)
            if (qAlpha(Bild.pixel(x, y)) == 255)
                Alle.insert(Bild.pixel(x, y));
    return Alle;
}

// The part of the picture that is drawn on, in percent.
int Deckung(const QImage& Bild)
{
    int Belegt = 0;
    for (int y = 0; y < Bild.height(); ++y)
        for (int x = 0; x < Bild.width(); ++x)
            Belegt += qAlpha(Bild.pixel(x, y)) > 127 ? 1 : 0;
    return Belegt * 100 / (Bild.width() * Bild.height());
}

TEST(Bilder, every_tool_bar_key_has_an_icon)
{
    for (const auto& w : Werkzeug_Tabelle) {
        const QIcon b = Symbol_Bild(Qt_Text(w.Schluessel), Hell());
        ASSERT_FALSE(b.isNull()) << w.Schluessel;
        EXPECT_GE(Deckung(Gemalt(b, 16)), 8) << w.Schluessel;
        EXPECT_LE(Deckung(Gemalt(b, 16)), 75) << w.Schluessel;
    }
}

TEST(Bilder, the_windows_and_dialogs_have_icons)
{
    for (const char* Name : Weitere_Bilder)
        EXPECT_GE(Deckung(Gemalt(Symbol_Bild(QString::fromUtf8(Name), Hell()), 16)), 8) << Name;
}

TEST(Bilder, no_two_icons_look_the_same)
{
    QList<QImage> Alle;
    for (const auto& w : Werkzeug_Tabelle)
        Alle.append(Gemalt(Symbol_Bild(Qt_Text(w.Schluessel), Hell()), 16));
    for (const char* Name : Weitere_Bilder)
        Alle.append(Gemalt(Symbol_Bild(QString::fromUtf8(Name), Hell()), 16));
    for (qsizetype i = 0; i < Alle.size(); ++i)
        EXPECT_EQ(Alle.lastIndexOf(Alle[i]), i);
}

TEST(Bilder, an_umlaut_of_a_key_is_spelled_out)
{
    EXPECT_EQ(Bild_Name(u"Einfügen"), QStringLiteral("einfuegen"));
    EXPECT_EQ(Bild_Name(u"ÄÖÜß"), QStringLiteral("aeoeuess"));
    EXPECT_EQ(Bild_Name(u"Scroll_up"), QStringLiteral("scroll_up"));
    EXPECT_EQ(Bild_Name(u""), QString());
}

TEST(Bilder, an_unknown_name_gives_no_icon)
{
    EXPECT_TRUE(Symbol_Bild(u"gibt es nicht", Hell()).isNull());
    EXPECT_TRUE(Symbol_Bild(u"", Hell()).isNull());
}

TEST(Bilder, stroke_and_accent_follow_a_light_and_a_dark_desktop)
{
    const auto h = Deckende_Farben(Gemalt(Symbol_Bild(u"Speichern", Hell()), 48));
    EXPECT_TRUE(h.contains(qRgb(0, 0, 0)));
    EXPECT_TRUE(h.contains(qRgb(0x2A, 0x6F, 0xD6)));
    const auto d = Deckende_Farben(Gemalt(Symbol_Bild(u"Speichern", Dunkel()), 48));
    EXPECT_TRUE(d.contains(qRgb(255, 255, 255)));
    EXPECT_TRUE(d.contains(qRgb(0x6A, 0xA5, 0xFF)));
    EXPECT_FALSE(d.contains(qRgb(0x40, 0x40, 0x40)));
}

TEST(Bilder, a_disabled_icon_is_grey_and_a_selected_one_has_the_colour_of_selected_text)
{
    const QIcon b = Symbol_Bild(u"Speichern", Hell());
    EXPECT_EQ(Deckende_Farben(Gemalt(b, 48, QIcon::Disabled)), std::set{qRgb(0x80, 0x80, 0x80)});
    EXPECT_EQ(Deckende_Farben(Gemalt(b, 48, QIcon::Selected)), std::set{qRgb(0xFE, 0xDC, 0xBA)});
    EXPECT_EQ(Gemalt(b, 48, QIcon::Active), Gemalt(b, 48, QIcon::Normal));
}

TEST(Bilder, every_file_uses_the_two_colours_and_no_third)
{
    for (const auto& w : Werkzeug_Tabelle)
        for (const QRgb f : Deckende_Farben(Gemalt(
                 Symbol_Bild(Qt_Text(w.Schluessel), Farben(Qt::white, QColor(0x2A, 0x6F, 0xD6))),
                 96)))
            EXPECT_EQ(f, qRgb(0x2A, 0x6F, 0xD6)) << w.Schluessel;
}

TEST(Bilder, an_icon_is_drawn_anew_for_each_size_and_screen_scale)
{
    const QIcon b = Symbol_Bild(u"Starten", Hell());
    for (const int Seite : {16, 20, 24, 32, 48, 64, 200})
        EXPECT_EQ(Gemalt(b, Seite).size(), QSize(Seite, Seite));
    const QPixmap Fein = b.pixmap(QSize(16, 16), 2.5);
    EXPECT_EQ(Fein.size(), QSize(40, 40));
    EXPECT_EQ(Fein.devicePixelRatio(), 2.5);
    QImage Punkte = Fein.toImage();
    Punkte.setDevicePixelRatio(1.0);
    EXPECT_EQ(Punkte, Gemalt(b, 40));
}

TEST(Bilder, a_picture_that_is_not_square_keeps_the_shape_in_its_middle)
{
    const QImage Breit = Symbol_Bild(u"Stoppen", Hell()).pixmap(QSize(48, 24), 1.0).toImage();
    EXPECT_EQ(qAlpha(Breit.pixel(4, 12)), 0);
    EXPECT_EQ(qAlpha(Breit.pixel(24, 12)), 255);
    EXPECT_EQ(qAlpha(Breit.pixel(43, 12)), 0);
}

TEST(Bilder, the_program_icon_keeps_its_own_colours)
{
    const QImage b = Gemalt(Programm_Bild(), 16);
    EXPECT_GE(Deckung(b), 50);
    EXPECT_TRUE(Deckende_Farben(b).contains(qRgb(0x2A, 0x6F, 0xD6)));
    EXPECT_EQ(Gemalt(Programm_Bild(), 16, QIcon::Disabled), b);
}

} // namespace
} // namespace varnholt
