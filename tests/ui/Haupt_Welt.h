// A main window, offscreen, with a program folder of its own and a clock that needn't be waited
// for.
#pragma once

#include "core/commands.h"
#include "core/reset.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "language/Nachschlage_Texte.h"
#include "ui/MDI.h"
#include "ui/Qt_Text.h"
#include "ui/Quelltext_Feld.h"

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace varnholt::test {

inline void Datei_Anlegen(const std::filesystem::path& Name, const std::string& Inhalt)
{
    std::ofstream(Name, std::ios::binary) << Inhalt;
}

inline std::string Datei_Inhalt(const std::filesystem::path& Name)
{
    std::ifstream      Datei(Name, std::ios::binary);
    std::ostringstream Text;
    Text << Datei.rdbuf();
    return Text.str();
}

// Answers the modal windows that come up, one after the other; what was shown is kept.
class Beantworter : public QObject {
public:
    using Antwort_T = std::function<void(QWidget*)>;

    Beantworter()
    {
        Uhr.setInterval(5);
        connect(&Uhr, &QTimer::timeout, this, [this] { Nachsehen(); });
        Uhr.start();
    }
    // The next modal window is handled so.
    void Naechstes(Antwort_T Antwort) { Liste.push_back(std::move(Antwort)); }
    // The next message box is answered by that button.
    void Taste(QMessageBox::StandardButton Knopf)
    {
        Naechstes([Knopf](QWidget* w) {
            auto* Box = qobject_cast<QMessageBox*>(w);
            ASSERT_NE(Box, nullptr);
            ASSERT_NE(Box->button(Knopf), nullptr);
            QTest::mouseClick(static_cast<QWidget*>(Box->button(Knopf)), Qt::LeftButton);
        });
    }
    bool Fertig() const { return Liste.empty(); }

    std::vector<std::string> Texte{}; // of the message boxes shown

private:
    void Nachsehen()
    {
        QWidget* w = QApplication::activeModalWidget();
        if (w == nullptr || w == Letztes || w->objectName() == QStringLiteral("status"))
            return;
        Letztes = w;
        if (auto* Box = qobject_cast<QMessageBox*>(w))
            Texte.push_back(Nach_Std(Box->text()));
        if (Liste.empty()) { // nobody expects it: it must not hang the test
            ADD_FAILURE() << "unexpected window " << w->objectName().toStdString() << ": "
                          << (Texte.empty() ? "" : Texte.back());
            w->close();
        } else {
            const Antwort_T Antwort = std::move(Liste.front());
            Liste.pop_front();
            Antwort(w);
        }
        if (QApplication::activeModalWidget() != w)
            Letztes = nullptr;
    }

    QTimer                Uhr{};
    QPointer<QWidget>     Letztes{}; // the next one may come to lie where it was
    std::deque<Antwort_T> Liste{};
};

class Haupt_Welt : public ::testing::Test {
protected:
    Haupt_Welt()
    {
        Alles_Zuruecksetzen();
        namespace fs = std::filesystem;
        Heim         = Ordner.path().toStdString() + "/";
        for (const char* Name : {"Spec.ini", "mc", "samples", "beispiele", "help.rtf"})
            fs::copy(
                fs::path(VARNHOLT_DATA) / Name, fs::path(Heim) / Name, fs::copy_options::recursive);
        Datei_Anlegen(Heim + "befehle.dok", Befehle_Dok());
        Datei_Anlegen(Heim + "basic.dok", Basic_Dok());
        qputenv("VARNHOLT_HOME", Ordner.path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", Ordner.filePath(QStringLiteral("xdg")).toLocal8Bit());
    }
    ~Haupt_Welt() override
    {
        Fenster.reset();
        Alles_Zuruecksetzen();
    }

    // The window, built but not yet started.
    void Bauen()
    {
        Fenster.reset(); // the old world goes before the new one comes
        Fenster = std::make_unique<MDI>();
        Fenster->Uhr_Stellen([this] { return Sekunden += 1; });
        Fenster->Ende_Setzen([this] { Beendet = true; });
    }
    // A start with settings of a complete run in that mode and language.
    void Starten(const std::string& In_Sprache_ = "E", int In_Modus = Modus_MC)
    {
        Bauen();
        Datei_Anlegen(Heim + "Varnholt.ini", In_Sprache_ + "\nErststart\n");
        Fenster->Ausfuehren([] { Init(); });
        if (In_Modus == Modus_Hex)
            Abfrage_Modus_Button_Mode_1_Click();
        else
            Abfrage_Modus_Button_Mode_2_Click();
        QApplication::processEvents();
        Fenster->Nachziehen();
    }

    QWidget* Suchen(const char* Name) const
    {
        return Fenster->findChild<QWidget*>(QString::fromUtf8(Name));
    }
    QAction* Aktion(const char* Name) const
    {
        return Fenster->findChild<QAction*>(QString::fromUtf8(Name));
    }
    Quelltext_Feld* Edit() const { return Fenster->Edit_Feld(); }
    // Keys to the widget that has the focus, as a user's go.
    void Taste(Qt::Key Welche, Qt::KeyboardModifiers Mit = Qt::NoModifier)
    {
        if (QApplication::activeWindow() != Fenster.get()) { // no window manager gives it back
            Fenster->activateWindow();
            QApplication::processEvents();
        }
        QWidget* Ziel = Fenster->focusWidget() != nullptr ? Fenster->focusWidget() : Fenster.get();
        QTest::keyClick(Ziel, Welche, Mit);
        QApplication::processEvents();
        Fenster->Nachziehen();
    }
    void Tippen(const char* Text)
    {
        for (const char* c = Text; *c != 0; ++c)
            if (*c == '\n')
                Taste(Qt::Key_Return);
            else
                QTest::keyClick(Edit(), *c);
        QApplication::processEvents();
        Fenster->Nachziehen();
    }

    QTemporaryDir        Ordner{};
    std::string          Heim{};
    bool                 Beendet  = false; // the program would be gone
    double               Sekunden = 36000;
    std::unique_ptr<MDI> Fenster{};
    Beantworter          Antworten{};
};

} // namespace varnholt::test
