// Kill test: sessions of the desktop program are ended by SIGKILL at random moments, again and
// again in the same program folder. Each start looks first at what the one before left behind:
// every file has to be whole, and the question of the German interface has to bring back the last
// autosave. `absturz [--kills N] [--seed S]`; with `--sitzung FOLDER SEED` it is such a session.
#include "core/commands.h"
#include "core/settings.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "core/undo.h"
#include "files/Datei_Zustand.h"
#include "files/Textdatei.h"
#include "language/Nachschlage_Texte.h"
#include "ui/MDI.h"
#include "ui/Qt_Text.h"
#include "ui/Quelltext_Feld.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

using Zufall_T = std::mt19937_64;

std::size_t Bis(Zufall_T& Zufall, std::size_t Grenze) { return Zufall() % Grenze; }

std::string Inhalt(const fs::path& Datei)
{
    std::ifstream Strom(Datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(Strom), {}};
}

[[noreturn]] void Durchgefallen(const std::string& Was)
{
    std::printf("FAILED: %s\n", Was.c_str());
    std::fflush(stdout);
    std::_Exit(1);
}

void Verlangen(bool Erfuellt, const std::string& Was)
{
    if (!Erfuellt)
        Durchgefallen(Was);
}

// --- the journal: what is about to be written, told before it happens ---

// Kinds of entries; the small letter tells that the writing is done.
constexpr char Quelle_Kommt   = 'S';
constexpr char Autosave_Kommt = 'A';
constexpr char Notiz_Kommt    = 'N';
constexpr char Werte_Kommen   = 'I';
constexpr char Klein          = 'a' - 'A';

struct Eintrag_T {
    char        Art = 0;
    std::string Summe{};
};

std::string Summe_Von(std::string_view Bytes)
{
    return std::to_string(std::hash<std::string_view>{}(Bytes)) + "/" +
           std::to_string(Bytes.size());
}

class Tagebuch {
public:
    explicit Tagebuch(const fs::path& Datei)
    {
        std::ifstream Strom(Datei);
        for (std::string Zeile; std::getline(Strom, Zeile);)
            if (Zeile.size() > 2)
                Alle.push_back({Zeile[0], Zeile.substr(2)});
        fd = ::open(Datei.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    }
    ~Tagebuch() { ::close(fd); }
    Tagebuch(const Tagebuch&)            = delete;
    Tagebuch& operator=(const Tagebuch&) = delete;

    // One write: a kill leaves all of it or nothing.
    void Schreiben(char Art, const std::string& Summe)
    {
        Alle.push_back({Art, Summe});
        const std::string Zeile = std::string{Art, ' '} + Summe + "\n";
        Verlangen(::write(fd, Zeile.data(), Zeile.size()) == static_cast<ssize_t>(Zeile.size()),
                  "the journal can't be written");
    }
    bool Je(char Art, const std::string& Summe) const
    {
        return std::any_of(Alle.begin(), Alle.end(), [&](const Eintrag_T& e) {
            return e.Art == Art && e.Summe == Summe;
        });
    }
    // What may stand on the disk: the last finished one, or one begun behind it.
    std::vector<std::string> Moegliche(char Art) const
    {
        std::vector<std::string> Liste;
        for (const Eintrag_T& e : Alle) {
            if (e.Art == Art + Klein)
                Liste = {e.Summe};
            else if (e.Art == Art)
                Liste.push_back(e.Summe);
        }
        return Liste;
    }
    bool Fertig(char Art) const
    {
        return std::any_of(
            Alle.begin(), Alle.end(), [&](const Eintrag_T& e) { return e.Art == Art + Klein; });
    }

private:
    std::vector<Eintrag_T> Alle{};
    int                    fd = -1;
};

bool Enthaelt(const std::vector<std::string>& Liste, const std::string& Was)
{
    return std::find(Liste.begin(), Liste.end(), Was) != Liste.end();
}

// --- one session ---

class Sitzung {
public:
    Sitzung(const std::string& Ordner, std::uint64_t Samen)
        : Heim(Ordner + "/"), Quelle(Heim + "Texte/quelle.asm"), Zufall(Samen),
          Buch(Heim + "tagebuch")
    {
        Fenster.Uhr_Stellen([this] { return Uhr_Lesen(); });
        Nachsehen.setInterval(2);
        QObject::connect(&Nachsehen, &QTimer::timeout, &Fenster, [this] { Beantworten(); });
        Nachsehen.start();
    }

    void Laufen()
    {
        Dateien_Pruefen();
        Starten();
        Start_Pruefen();
        Eigene_Datei_Laden();
        std::printf("ready %d\n", Gefragt ? 1 : 0);
        std::fflush(stdout);
        for (;;)
            Handeln();
    }

private:
    // Each look at the clock may be the one ahead of an autosave; a third of them makes it due.
    double Uhr_Lesen()
    {
        constexpr double Schritt = 21;
        if (Laeuft)
            Autosave_Ankuendigen();
        return Uhr += Schritt;
    }

    static std::string Text_Summe()
    {
        return Summe_Von(
            Text_Verschluesseln(Plattform.Edit->Text_UTF8(),
                                Quell_Datei.Original.empty() ? Neue_Textdatei() : Quell_Datei));
    }
    void Autosave_Ankuendigen()
    {
        if (std::string Summe = Text_Summe(); Summe != Angekuendigt)
            Buch.Schreiben(Autosave_Kommt, Angekuendigt = std::move(Summe));
    }

    // Message boxes: the question about the autosave is answered by lot, all others by Escape.
    void Beantworten()
    {
        auto* Box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (Box == nullptr)
            return;
        if (!Box->text().contains(QStringLiteral("nicht korrekt beendet"))) {
            if (QAbstractButton* Nein = Box->button(QMessageBox::No))
                return Nein->click();
            return Box->reject();
        }
        Gefragt = true;
        Ja      = Bis(Zufall, 4) != 0;
        Box->button(Ja ? QMessageBox::Yes : QMessageBox::No)->click();
    }

    // --- what the last session left behind ---

    void Dateien_Pruefen()
    {
        Verlangen(Enthaelt(Buch.Moegliche(Quelle_Kommt), Summe_Von(Inhalt(Quelle))),
                  "the source is neither the old nor the new text");
        Verlangen(Enthaelt(Buch.Moegliche(Werte_Kommen), Summe_Von(Inhalt(Heim + "Varnholt.ini"))),
                  "Varnholt.ini is neither the old nor the new one");
        for (int i = 0; i < Autosave_Anzahl; ++i) {
            const fs::path Datei = Heim + "Autosave/autosave" + std::to_string(i) + ".asm";
            if (fs::exists(Datei))
                Verlangen(Buch.Je(Autosave_Kommt, Summe_Von(Inhalt(Datei))),
                          Datei.string() + " is no text that was ever in the editor");
        }
        Marke_Pruefen();
    }

    void Marke_Pruefen()
    {
        const fs::path Datei = Heim + "startup";
        if (!fs::exists(Datei))
            return Verlangen(!Buch.Fertig(Autosave_Kommt), "the crash marker is missing");
        const std::string Zeilen = Inhalt(Datei);
        Marke                    = Zeilen.substr(0, Zeilen.find('\r'));
        Verlangen(Zeilen == Marke + "\r\n", "the crash marker is damaged");
        Verlangen(fs::exists(Marke), "the crash marker names " + Marke + ", which is missing");
        Marke_Bytes = Inhalt(Marke);
        Verlangen(Enthaelt(Buch.Moegliche(Autosave_Kommt), Summe_Von(Marke_Bytes)),
                  "the crash marker doesn't name the last autosave");
    }

    // --- the start ---

    void Starten()
    {
        Fenster.Ausfuehren([] { Init(); });
        if (!Startlauf.Einstellungen_Gelten) // a first start asks for the mode
            Abfrage_Modus_Button_Mode_2_Click();
        QApplication::processEvents();
    }

    // Of the writes that were killed nothing may lie about in the program's own folders. (A number
    // may be in use again by another process.)
    static void Reste_Pruefen(const fs::path& Ordner)
    {
        constexpr std::string_view Vorsilbe = ".varnholt-";
        for (const auto& e : fs::directory_iterator(Ordner)) {
            const std::string Name   = e.path().filename().string();
            const bool        Rest   = Name.starts_with(Vorsilbe);
            const int         Nummer = Rest ? std::atoi(Name.c_str() + Vorsilbe.size()) : 0;
            Verlangen(!Rest || ::kill(Nummer, 0) == 0, "left behind: " + e.path().string());
        }
    }

    void Start_Pruefen()
    {
        Reste_Pruefen(Heim);
        Reste_Pruefen(Heim + "Autosave");
        Verlangen(Gefragt == !Marke.empty(), "the question about the autosave doesn't fit");
        Verlangen(Letzte_Datei[0].empty() || fs::exists(Letzte_Datei[0]),
                  "no such recent file: " + Letzte_Datei[0]);
        Verlangen(Programm_Pfad == Heim && Sprache == "D", "the settings are lost");
        if (!Gefragt || !Ja)
            return;
        Verlangen(Letzte_Datei[0] == Marke, "the autosave isn't the first recent file");
        Verlangen(Datei_Name == Marke, "the autosave isn't loaded but " + Datei_Name);
        Verlangen(Text_Summe() == Summe_Von(Marke_Bytes), "the editor shows another text");
    }

    void Eigene_Datei_Laden()
    {
        Datei_Geaendert = false;
        Dialog_Name     = Quelle;
        Fenster.Ausfuehren([] { Datei_Laden(); });
        Verlangen(Text_Summe() == Summe_Von(Inhalt(Quelle)), "the source doesn't load");
        const std::vector<std::string> Notizen = Buch.Moegliche(Notiz_Kommt);
        const std::string              Notiz   = Plattform.Notiz->Text();
        Verlangen(Enthaelt(Notizen, Summe_Von(Notiz)), "the notes are damaged: " + Notiz);
        Laeuft            = true;
        Autosave_Zeitlich = Autosave_Assemblieren = Lade_Letzte = true;
    }

    // --- what a user does, all of it by lot ---

    void Handeln()
    {
        using Tat_T = void (Sitzung::*)();
        // clang-format off
        constexpr std::array<Tat_T, 16> Taten = {
            &Sitzung::Zeile_Tippen, &Sitzung::Zeile_Tippen, &Sitzung::Zeile_Tippen,
            &Sitzung::Wandern,      &Sitzung::Wandern,      &Sitzung::Wandern,
            &Sitzung::Zuruecknehmen,&Sitzung::Wiederholen,  &Sitzung::Block_Einfuegen,
            &Sitzung::Sichern,      &Sitzung::Sichern,      &Sitzung::Notiz_Aendern,
            &Sitzung::Zusammenbauen,&Sitzung::Werte_Sichern,&Sitzung::Autosave_Rufen,
            &Sitzung::Autosave_Rufen};
        // clang-format on
        const double Vorher = Autosave_Zeit;
        (this->*Taten[Bis(Zufall, Taten.size())])();
        QApplication::processEvents();
        if (Autosave_Zeit != Vorher)
            Autosave_Bestaetigen();
    }

    void Autosave_Bestaetigen()
    {
        const std::string Zeilen = Inhalt(Heim + "startup");
        const std::string Summe  = Summe_Von(Inhalt(Zeilen.substr(0, Zeilen.find('\r'))));
        Verlangen(Enthaelt(Buch.Moegliche(Autosave_Kommt), Summe), "the autosave is no such text");
        Buch.Schreiben(Autosave_Kommt + Klein, Summe);
        Angekuendigt.clear();
    }

    void Taste(Qt::Key Welche) { QTest::keyClick(Fenster.Edit_Feld(), Welche); }

    void Zeile_Tippen()
    {
        constexpr std::array<const char*, 6> Zeilen = {
            "mov a,#12h", "nop  ; Bemerkung", "inc r0", "db \"Text\",1,2", "; nur ein Wort", "jmp"};
        for (const char* c = Zeilen[Bis(Zufall, Zeilen.size())]; *c != 0; ++c)
            QTest::keyClick(Fenster.Edit_Feld(), *c);
        Taste(Bis(Zufall, 3) == 0 ? Qt::Key_Down : Qt::Key_Return);
    }

    void Wandern()
    {
        constexpr std::array<Qt::Key, 7> Tasten = {Qt::Key_Up,
                                                   Qt::Key_Down,
                                                   Qt::Key_PageUp,
                                                   Qt::Key_Home,
                                                   Qt::Key_End,
                                                   Qt::Key_Backspace,
                                                   Qt::Key_PageDown};
        for (int i = 0; i < 5; ++i)
            Taste(Tasten[Bis(Zufall, Tasten.size())]);
    }

    void Zuruecknehmen() { Fenster.Ausfuehren(MNU_Undo_Click); }
    void Wiederholen() { Fenster.Ausfuehren(MNU_Redo_Click); }

    // Up to some hundred kilobytes, so that writing takes its time.
    void Block_Einfuegen()
    {
        constexpr std::int64_t Genug = 200000;
        if (Plattform.Edit->Laenge() > Genug)
            Plattform.Edit->Auswaehlen(0, Plattform.Edit->Laenge() - Genug / 100);
        std::string Block;
        const auto  Zeilen = 1 + Bis(Zufall, 500);
        for (std::size_t i = 0; i < Zeilen; ++i)
            Block += "\tMOV A,#" + std::to_string(Bis(Zufall, 256)) + "\t; Zeile\r\n";
        Fenster.Ausfuehren([&Block] {
            Undo_Schritt_speichern();
            Plattform.Edit->Auswahl_Ersetzen(Block);
            Datei_Geaendert = true;
        });
    }

    void Sichern()
    {
        const std::string Text  = Text_Summe();
        const std::string Notiz = Summe_Von(Plattform.Notiz->Text());
        Buch.Schreiben(Quelle_Kommt, Text);
        Buch.Schreiben(Notiz_Kommt, Notiz);
        Datei_Geaendert = true;
        Fenster.Ausfuehren(MNU_Save_Click);
        Verlangen(!Datei_Geaendert, "the source could not be saved");
        Buch.Schreiben(Quelle_Kommt + Klein, Text);
        Buch.Schreiben(Notiz_Kommt + Klein, Notiz);
    }

    void Notiz_Aendern()
    {
        const std::string Zahl = std::to_string(Zufall());
        Plattform.Notiz->Text_Setzen("Anfang " + Zahl + "\r\n" +
                                     std::string(Bis(Zufall, 20000), 'x') + "\r\nEnde " + Zahl);
    }

    void Zusammenbauen()
    {
        Autosave_Ankuendigen();
        Fenster.Ausfuehren([] { Assemblieren(); });
    }

    void Autosave_Rufen()
    {
        Autosave_Ankuendigen();
        Autosave_Speichern();
    }

    void Werte_Sichern()
    {
        std::string Grund;
        Hintergrund_Farbe       = static_cast<std::int32_t>(1 + Bis(Zufall, 0xFFFFFF));
        const std::string Summe = Summe_Von(Einstellungen_Schreiben());
        Buch.Schreiben(Werte_Kommen, Summe);
        Verlangen(Einstellungen_Sichern(Grund), "the settings could not be saved: " + Grund);
        Buch.Schreiben(Werte_Kommen + Klein, Summe);
    }

    std::string Heim;
    std::string Quelle;
    Zufall_T    Zufall;
    Tagebuch    Buch;
    std::string Marke{};        // path in the crash marker of the session before
    std::string Marke_Bytes{};  // and what that file held
    std::string Angekuendigt{}; // the text that the journal has last
    double      Uhr     = 36000;
    bool        Laeuft  = false; // the session's own texts are on display
    bool        Gefragt = false;
    bool        Ja      = false;
    MDI         Fenster{};
    QTimer      Nachsehen{};
};

int Sitzung_Fuehren(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("VARNHOLT_HOME", argv[2]);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QApplication Anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Sitzung(argv[2], std::strtoull(argv[3], nullptr, 10)).Laufen();
    return 0;
}

// --- who starts the sessions and ends them ---

struct Kind_T {
    pid_t Nummer = -1;
    int   Rohr   = -1; // its standard output
};

Kind_T Kind_Starten(const char* Programm, const std::string& Heim, std::uint64_t Samen)
{
    const std::string  Zahl = std::to_string(Samen);
    std::array<int, 2> Enden{};
    if (::pipe(Enden.data()) != 0)
        Durchgefallen("no pipe");
    const pid_t Nummer = ::fork();
    if (Nummer == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // it has no end of its own
        ::dup2(Enden[1], STDOUT_FILENO);
        ::close(Enden[0]);
        ::close(Enden[1]);
        ::execl(Programm, Programm, "--sitzung", Heim.c_str(), Zahl.c_str(), nullptr);
        std::_Exit(127);
    }
    ::close(Enden[1]);
    return {Nummer, Enden[0]};
}

// What the session says within so many milliseconds; up to the end of its first line.
std::string Zuhoeren(const Kind_T& Kind, int Millisekunden)
{
    using Uhr_T      = std::chrono::steady_clock;
    const auto  Ende = Uhr_T::now() + std::chrono::milliseconds(Millisekunden);
    std::string Gesagt;
    for (;;) {
        const auto Rest =
            std::chrono::duration_cast<std::chrono::milliseconds>(Ende - Uhr_T::now()).count();
        pollfd Auge{Kind.Rohr, POLLIN, 0};
        if (Rest <= 0 || ::poll(&Auge, 1, static_cast<int>(Rest)) <= 0)
            return Gesagt;
        std::array<char, 512> Bytes{};
        const ssize_t         n = ::read(Kind.Rohr, Bytes.data(), Bytes.size());
        if (n <= 0)
            return Gesagt + "(ended)";
        Gesagt.append(Bytes.data(), static_cast<std::size_t>(n));
        if (Gesagt.find('\n') != std::string::npos)
            return Gesagt;
    }
}

void Toeten(const Kind_T& Kind)
{
    ::kill(Kind.Nummer, SIGKILL);
    ::waitpid(Kind.Nummer, nullptr, 0);
    ::close(Kind.Rohr);
}

void Ordner_Fuellen(const std::string& Heim)
{
    fs::copy(fs::path(VARNHOLT_DATA) / "Spec.ini", fs::path(Heim) / "Spec.ini");
    fs::copy(fs::path(VARNHOLT_DATA) / "mc", fs::path(Heim) / "mc", fs::copy_options::recursive);
    fs::create_directory(Heim + "/Texte");
    const std::string Anfang = "INCLUDE 8051.mc\r\n\r\n\tNOP\r\n";
    const std::string Werte  = "D\nErststart\n";
    std::ofstream(Heim + "/befehle.dok", std::ios::binary) << Befehle_Dok();
    std::ofstream(Heim + "/basic.dok", std::ios::binary) << Basic_Dok();
    std::ofstream(Heim + "/Texte/quelle.asm", std::ios::binary) << Anfang;
    std::ofstream(Heim + "/Varnholt.ini", std::ios::binary) << Werte;
    Tagebuch Buch(Heim + "/tagebuch");
    Buch.Schreiben(Quelle_Kommt + Klein, Summe_Von(Anfang));
    Buch.Schreiben(Notiz_Kommt + Klein, Summe_Von({}));
    Buch.Schreiben(Werte_Kommen + Klein, Summe_Von(Werte));
}

struct Zaehler_T {
    int Fragen     = 0; // starts that asked about an autosave
    int Beim_Start = 0; // kills ahead of the first key
};

// One session; empty, or what is wrong.
std::string Einmal(const char* Programm, const std::string& Heim, Zufall_T& Zufall, Zaehler_T& Zahl)
{
    constexpr int Geduld    = 60000; // milliseconds until a start counts as hung
    constexpr int Spielraum = 900;
    const Kind_T  Kind      = Kind_Starten(Programm, Heim, Zufall());
    const bool    Frueh     = Bis(Zufall, 8) == 0;
    std::string   Gesagt    = Zuhoeren(Kind, Frueh ? static_cast<int>(Bis(Zufall, 600)) : Geduld);
    if (Gesagt.starts_with("ready")) {
        Zahl.Fragen += Gesagt.starts_with("ready 1") ? 1 : 0;
        Gesagt = Zuhoeren(Kind, 1 + static_cast<int>(Bis(Zufall, Spielraum)));
    } else if (Frueh && Gesagt.empty()) {
        ++Zahl.Beim_Start;
    } else if (Gesagt.empty()) {
        Gesagt = "the start hangs";
    }
    Toeten(Kind);
    return Gesagt;
}

int Pruefen(const char* Programm, int Anzahl, std::uint64_t Samen)
{
    std::string Muster = (fs::temp_directory_path() / "absturz-XXXXXX").string();
    if (::mkdtemp(Muster.data()) == nullptr)
        Durchgefallen("no folder");
    Ordner_Fuellen(Muster);
    Zufall_T  Zufall(Samen);
    Zaehler_T Zahl;
    for (int i = 0; i < Anzahl; ++i) {
        if (const std::string Fehler = Einmal(Programm, Muster, Zufall, Zahl); !Fehler.empty()) {
            std::printf("kill %d, seed %llu, folder %s:\n%s\n",
                        i,
                        static_cast<unsigned long long>(Samen),
                        Muster.c_str(),
                        Fehler.c_str());
            return 1;
        }
        if (i % 50 == 49) {
            std::printf("%d ...\n", i + 1);
            std::fflush(stdout);
        }
    }
    std::printf("%d kills, %d of them ahead of the first key; %d starts asked for the autosave\n",
                Anzahl,
                Zahl.Beim_Start,
                Zahl.Fragen);
    fs::remove_all(Muster);
    return Zahl.Fragen > 0 ? 0 : 1;
}

} // namespace
} // namespace varnholt::test

int main(int argc, char** argv)
{
    using namespace varnholt::test;
    if (argc == 4 && std::string_view(argv[1]) == "--sitzung")
        return Sitzung_Fuehren(argc, argv);
    int           Anzahl = 15;
    std::uint64_t Samen  = 1;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::string_view(argv[i]) == "--kills")
            Anzahl = std::atoi(argv[i + 1]);
        else if (std::string_view(argv[i]) == "--seed")
            Samen = std::strtoull(argv[i + 1], nullptr, 10);
    }
    return Pruefen("/proc/self/exe", Anzahl, Samen);
}
