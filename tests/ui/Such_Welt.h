// Fixture of the tests of the search forms and the area dialogs: a main window, and a user in front
// of a form of it.
#pragma once

#include "Haupt_Welt.h"
#include "core/windows.h"

#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace varnholt::test {

class Suchform_Test : public Haupt_Welt {
protected:
    template <class Art = QWidget> Art* Teil(const char* Form, const char* Name) const
    {
        auto* f = Fenster->findChild<QWidget*>(QString::fromLatin1(Form));
        auto* t = f == nullptr ? nullptr : f->findChild<Art*>(QString::fromUtf8(Name));
        EXPECT_NE(t, nullptr) << Form << "." << Name;
        return t;
    }
    QWidget* Form(const char* Name) const { return Suchen(Name); }
    void     Ruhe() const
    {
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    // Opens the form of the mode as a user does.
    QWidget* Oeffnen(const char* Name)
    {
        Taste(Qt::Key_F, Qt::ControlModifier);
        QWidget* f = Form(Name);
        EXPECT_TRUE(f != nullptr && f->isVisible());
        Ruhe();
        return f;
    }
    void Taste_An(QWidget* Ziel, Qt::Key Welche, Qt::KeyboardModifiers Mit = Qt::NoModifier)
    {
        QTest::keyClick(Ziel, Welche, Mit);
        Ruhe();
    }
    void Text_An(QWidget* Ziel, const char* Text)
    {
        const QString Zeichen = QString::fromUtf8(Text);
        auto*         Zeile   = qobject_cast<QLineEdit*>(Ziel);
        const bool    ASCII =
            std::all_of(Zeichen.begin(), Zeichen.end(), [](QChar c) { return c.unicode() < 0x80; });
        if (!ASCII && Zeile != nullptr) // the test keyboard has no such keys
            Zeile->insert(Zeichen);
        else
            QTest::keyClicks(Ziel, Zeichen);
        Ruhe();
    }
    void Klick(QWidget* Ziel)
    {
        QTest::mouseClick(Ziel, Qt::LeftButton, {}, QPoint(8, Ziel->height() / 2));
        Ruhe();
    }
    void Text_Laden(const std::string& Text)
    {
        Edit()->Text_Setzen_UTF8(Text);
        Edit()->Auswaehlen(0, 0);
        Edit_Einfaerben();
        Ruhe();
    }
    // Every caption of the form can be read in full.
    static void Nichts_Abgeschnitten(const QWidget& f)
    {
        for (const auto* b : f.findChildren<QAbstractButton*>())
            EXPECT_GE(b->width(), b->sizeHint().width()) << b->objectName().toStdString();
        for (const auto* l : f.findChildren<QLabel*>()) {
            EXPECT_GE(l->width(), l->wordWrap() ? 0 : l->sizeHint().width());
            EXPECT_GE(l->height(), l->heightForWidth(l->width())) << l->text().toStdString();
        }
    }
    std::string Auswahl() const { return Edit()->Auswahl_Text(); }
};

} // namespace varnholt::test
