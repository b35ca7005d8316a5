// Benchmarks of the windows, offscreen: loading with colours, leaving a changed line, a snapshot,
// printing, search and replace, a hex page, single steps with all views open, a program at full
// speed, the way from process start to the splash.
#include "core/commands.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "editors/Suche.h"
#include "files/Datei_Zustand.h"
#include "files/Drucken.h"
#include "simulator/Debug.h"
#include "simulator/Sim_Ansichten.h"
#include "simulator/Sitzung.h"
#include "ui/F_SIM_RAM.h"
#include "ui/Hexedit_Fenster.h"
#include "ui/MDI.h"
#include "ui/Qt_Drucker.h"
#include "ui/Quelltext_Feld.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QProcess>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <utility>

namespace varnholt::bench {
namespace {

struct Umgebung_T {
    QTemporaryDir Ordner{};
    MDI*          Fenster = nullptr;
    QString       Programm{};
};

Umgebung_T& Umgebung()
{
    static Umgebung_T Eine;
    return Eine;
}

// A source of that many lines: every fifth with a jumpmark, every second with a comment.
std::string Quelltext(int Zeilen)
{
    std::string Text;
    for (int i = 0; i < Zeilen; ++i) {
        if (i % 5 == 0)
            Text += "Label_" + std::to_string(i) + ":";
        Text += "\tMOV A,#10h";
        if (i % 2 == 0)
            Text += "\t; comment of this line";
        Text += "\r\n";
    }
    return Text;
}

void Laden(int Zeilen)
{
    const std::string Name = Umgebung().Ordner.filePath(QStringLiteral("quelle.asm")).toStdString();
    std::ofstream(Name, std::ios::binary) << Quelltext(Zeilen);
    Dialog_Name = Name;
    Datei_Laden();
    Umgebung().Fenster->Nachziehen();
    QApplication::processEvents();
}

// From the file to the coloured text on the screen.
void BM_Quelle_Laden(benchmark::State& s)
{
    for (auto _ : s)
        Laden(static_cast<int>(s.range(0)));
}
BENCHMARK(BM_Quelle_Laden)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond)->UseRealTime();

void Tippen(int Taste, const QString& Text)
{
    QKeyEvent Ereignis(QEvent::KeyPress, Taste, Qt::NoModifier, Text);
    QApplication::sendEvent(Umgebung().Fenster->Edit_Feld(), &Ereignis);
}

// The caret leaves a changed line that has a jumpmark, an instruction and a comment.
void BM_Zeile_Verlassen(benchmark::State& s)
{
    Laden(static_cast<int>(s.range(0)));
    Textfeld& Edit = *Plattform.Edit;
    Edit.Auswaehlen(Edit.Zeile(s.range(0) / 2).Anfang, 0);
    Tippen(Qt::Key_Down, {});
    for (auto _ : s) {
        s.PauseTiming();
        Tippen(Qt::Key_End, {});
        Tippen(Qt::Key_X, QStringLiteral("x"));
        s.ResumeTiming();
        Tippen(Qt::Key_Down, {});
        QApplication::processEvents();
    }
}
BENCHMARK(BM_Zeile_Verlassen)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond)->UseRealTime();

// A snapshot of a source of a megabyte with its colours: what the user waits for at the first key
// of a document and on leaving a changed line.
void BM_Aufnahme(benchmark::State& s)
{
    constexpr std::int64_t Megabyte = 1000000;
    constexpr int          Zeilen   = 38000;
    Laden(Zeilen);
    for (auto _ : s)
        Undo_Schritt_speichern();
    s.counters["MB"] = static_cast<double>(Plattform.Edit->Laenge()) / Megabyte;
    Undo_Dateien_Loeschen();
}
BENCHMARK(BM_Aufnahme)->Unit(benchmark::kMillisecond)->UseRealTime();

// A source of a megabyte with its colours into a PDF file.
void BM_Drucken(benchmark::State& s)
{
    constexpr int Zeilen = 38000;
    Laden(Zeilen);
    Qt_Drucker     Papier(Umgebung().Fenster);
    Drucker* const Vorher = std::exchange(Plattform.Druck, &Papier);
    for (auto _ : s) {
        Papier.In_PDF(Umgebung().Ordner.filePath(QStringLiteral("quelle.pdf")));
        Papier.Beginnen("quelle.asm");
        Text_Drucken();
        Papier.Beenden(true);
    }
    Plattform.Druck = Vorher;
}
BENCHMARK(BM_Drucken)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

// A text of one hit a line, and what replaces them all: the new text with its colours on the
// screen, and the snapshot before it. Then the way back.
void Treffer_Laden(int Anzahl)
{
    std::string Text;
    for (int i = 0; i < Anzahl; ++i)
        Text += i % 5 == 0 ? "Mark_" + std::to_string(i) + ":\tMOV A,#10h\t; comment\r\n"
                           : "\tMOV A,#10h\r\n";
    Plattform.Edit->Text_Setzen(Text);
    Edit_Einfaerben();
    Undo_Zuruecksetzen();
}

void Ersetzen_Lassen(const char* Begriff, const char* Neu)
{
    Sprache = ""; // no message
    Suche::Suchbegriff_Change(Begriff);
    Suche::Ersetzen_durch_Change(Neu);
    Suche::B_AlleErsetzen_Click();
    Sprache = "E";
    Umgebung().Fenster->Nachziehen();
    QApplication::processEvents();
}

void BM_Alle_Ersetzen(benchmark::State& s)
{
    In_Modus_Wechseln(Modus_MC);
    Treffer_Laden(static_cast<int>(s.range(0)));
    bool Hin = true;
    for (auto _ : s) {
        Ersetzen_Lassen(Hin ? "mov" : "subb", Hin ? "subb" : "mov");
        Hin = !Hin;
    }
}
BENCHMARK(BM_Alle_Ersetzen)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Ersetzen_Zuruecknehmen(benchmark::State& s)
{
    In_Modus_Wechseln(Modus_MC);
    for (auto _ : s) {
        s.PauseTiming();
        Treffer_Laden(static_cast<int>(s.range(0)));
        Ersetzen_Lassen("mov", "subb");
        s.ResumeTiming();
        MNU_Undo_Click();
        QApplication::processEvents();
    }
}
BENCHMARK(BM_Ersetzen_Zuruecknehmen)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

// The next hit of a term that stands at the end of the text only.
void BM_Suchen(benchmark::State& s)
{
    In_Modus_Wechseln(Modus_MC);
    Treffer_Laden(static_cast<int>(s.range(0)));
    Plattform.Edit->Auswaehlen(Plattform.Edit->Laenge(), 0);
    Plattform.Edit->Auswahl_Ersetzen("needle");
    Suche::Suchbegriff_Change("Needle");
    for (auto _ : s) {
        Plattform.Edit->Auswaehlen(0, 0);
        Suche::Suchen_OK_Click();
    }
}
BENCHMARK(BM_Suchen)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

// A page of the hex editor, built and drawn, on a main window of 1280 by 800.
void BM_Hex_Seite(benchmark::State& s)
{
    for (std::size_t i = 0; i < Hex_Daten.size(); ++i)
        Hex_Daten[i] = static_cast<std::uint8_t>(i * 7);
    In_Modus_Wechseln(Modus_Hex);
    QWidget* Blatt = Umgebung().Fenster->Hexedit();
    Blatt->resize(900, 700);
    QPixmap Ziel(Blatt->size());
    int     Zeile = 0;
    for (auto _ : s) {
        Scroll_Setzen(Zeile = (Zeile + 37) % 32000);
        Umgebung().Fenster->Hexedit()->Nachziehen();
        Blatt->render(&Ziel);
    }
}
BENCHMARK(BM_Hex_Seite)->Unit(benchmark::kMillisecond)->UseRealTime();

// --- a debugger session ---

// A session on the simulator's benchmark program, with the four windows open.
void Sitzung_Beginnen()
{
    std::ifstream      Datei(VARNHOLT_BENCH "/Simulator.asm", std::ios::binary);
    std::ostringstream Text;
    Text << Datei.rdbuf();
    const std::string Name = Umgebung().Ordner.filePath(QStringLiteral("lauf.asm")).toStdString();
    // Round after round, instead of so many of them.
    std::string Quelle = Text.str();
    const auto  Ende   = Quelle.find("DJNZ ROUND,LOOP");
    if (Ende != std::string::npos)
        Quelle.replace(Ende, 15, "LJMP LOOP      ");
    std::ofstream(Name, std::ios::binary) << Quelle;
    Dialog_Name = Name;
    Datei_Laden();
    Debug_Vollgas = Debug_Verzoegerung = false;
    Umgebung().Fenster->Ausfuehren(MNU_G_Einstellung_Click);
    Umgebung().Fenster->Ausfuehren(Debug_Vorbereiten);
    for (int n = Fenster_RAM; n <= Fenster_CONTROL; ++n)
        if (!Umgebung().Fenster->Sichtbar(n))
            Fenster_Umschalten(n);
    QApplication::processEvents();
}

// A step as the key makes it, everything that it changed drawn.
void BM_Einzelschritt(benchmark::State& s)
{
    Sitzung_Beginnen();
    for (auto _ : s) {
        Umgebung().Fenster->Ausfuehren(Debug_Schritt);
        QApplication::processEvents();
    }
    s.SetItemsProcessed(s.iterations());
}
BENCHMARK(BM_Einzelschritt)->Unit(benchmark::kMicrosecond)->UseRealTime();

using Uhr_T = std::chrono::steady_clock;

double Sekunden_Seit(Uhr_T::time_point Anfang)
{
    return std::chrono::duration<double>(Uhr_T::now() - Anfang).count();
}

double Zyklen_Je_Sekunde(std::int32_t Anfang, double Dauer)
{
    const auto Zyklen = static_cast<std::uint32_t>(Sim_Zyklen) - static_cast<std::uint32_t>(Anfang);
    return Zyklen / Dauer;
}

// A user outside who clicks a bit of the RAM view every few milliseconds. Keeps the longest time
// until a click has been answered, and how often the view was drawn.
class Zuschauer : public QObject {
public:
    explicit Zuschauer(QTableView* Feld) : Ziel(Feld->viewport())
    {
        const QModelIndex Bit = Feld->model()->index(0x7F, Sim_Bit_Modell::Bit_0);
        Feld->scrollTo(Bit);
        Ort = Feld->visualRect(Bit).center();
        connect(Feld, &QTableView::clicked, this, [this] {
            Laengste  = std::max(Laengste, Sekunden_Seit(Abgeschickt.load()));
            Unterwegs = false;
        });
        Ziel->installEventFilter(this);
        Faden = std::jthread([this](const std::stop_token& Halt) {
            for (; !Halt.stop_requested(); std::this_thread::sleep_for(Pause))
                if (!Unterwegs.exchange(true))
                    Klicken();
        });
    }
    bool eventFilter(QObject*, QEvent* Ereignis) override
    {
        Bilder += Ereignis->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    double Laengste = 0; // seconds
    int    Bilder   = 0;

private:
    static constexpr std::chrono::milliseconds Pause{7};

    void Klicken()
    {
        Abgeschickt = Uhr_T::now();
        for (const auto Art : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QApplication::postEvent(
                Ziel,
                new QMouseEvent(
                    Art, Ort, Ziel->mapToGlobal(Ort), Qt::LeftButton, Qt::LeftButton, {}));
    }

    QWidget*                       Ziel;
    QPointF                        Ort{};
    std::atomic<Uhr_T::time_point> Abgeschickt{};
    std::atomic<bool>              Unterwegs{false};
    std::jthread                   Faden{}; // the last one: it ends before the others go
};

// A run of two seconds in the window; 0: with all views, 1: at full speed.
void BM_Lauf(benchmark::State& s)
{
    constexpr int Dauer = 2000; // milliseconds
    MDI*          Haupt = Umgebung().Fenster;
    for (auto _ : s) {
        Sitzung_Beginnen();
        Check2_Click(s.range(0) == 1);
        Zuschauer Nutzer(Haupt->findChild<F_SIM_RAM*>()->Tafel());
        QTimer::singleShot(Dauer, Haupt, Debug_Start_Stop);
        const std::int32_t Zyklen = Sim_Zyklen;
        const auto         Anfang = Uhr_T::now();
        Haupt->Ausfuehren(Debug_Start_Stop);
        const double Gebraucht = Sekunden_Seit(Anfang);
        s.SetIterationTime(Gebraucht);
        s.counters["Zyklen/s"]   = Zyklen_Je_Sekunde(Zyklen, Gebraucht);
        s.counters["Antwort_ms"] = Nutzer.Laengste * 1000;
        s.counters["Bilder/s"]   = Nutzer.Bilder / Gebraucht;
        Check2_Click(false);
    }
}
BENCHMARK(BM_Lauf)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(2);

// The same program without a window, to compare with.
void BM_Vollgas_Allein(benchmark::State& s)
{
    constexpr std::int64_t Befehle = 50000000;
    Sitzung_Beginnen();
    for (auto _ : s) {
        const std::int32_t Zyklen = Sim_Zyklen;
        const auto         Anfang = Uhr_T::now();
        Vollgas_Laufen(Befehle);
        s.counters["Zyklen/s"] = Zyklen_Je_Sekunde(Zyklen, Sekunden_Seit(Anfang));
    }
    s.SetItemsProcessed(s.iterations() * Befehle);
    Debug_Beenden();
}
BENCHMARK(BM_Vollgas_Allein)->Unit(benchmark::kMillisecond)->UseRealTime();

// The program's own measure, from the start of the process to the splash on the screen.
void BM_Bis_zum_Startbild(benchmark::State& s)
{
    for (auto _ : s) {
        QProcess Prozess;
        Prozess.start(Umgebung().Programm, {QStringLiteral("--time-to-splash")});
        Prozess.waitForFinished();
        s.SetIterationTime(Prozess.readAllStandardOutput().toDouble() / 1000);
    }
}
BENCHMARK(BM_Bis_zum_Startbild)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

void Vorbereiten(int argc, char** argv)
{
    Umgebung().Programm = QApplication::applicationDirPath() + QStringLiteral("/../bin/varnholt");
    for (int i = 1; i < argc; ++i)
        if (argv[i][0] != '-')
            Umgebung().Programm = QString::fromLocal8Bit(argv[i]);
    const std::string Heim = Umgebung().Ordner.path().toStdString() + "/";
    std::ofstream(Heim + "Varnholt.ini") << "E\nErststart\n";
    for (const char* Teil : {"mc", "include"})
        std::filesystem::copy(std::filesystem::path(VARNHOLT_DATA) / Teil,
                              std::filesystem::path(Heim) / Teil,
                              std::filesystem::copy_options::recursive);
    qputenv("VARNHOLT_HOME", Umgebung().Ordner.path().toLocal8Bit());
    Sprache       = "E";
    Programm_Pfad = Heim;
    QDir(Umgebung().Ordner.path()).mkdir(QStringLiteral("Undo"));
}

} // namespace
} // namespace varnholt::bench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication  Anwendung(argc, argv);
    varnholt::MDI Fenster;
    varnholt::bench::Umgebung().Fenster = &Fenster;
    varnholt::bench::Vorbereiten(argc, argv);
    Fenster.resize(1280, 800);
    Fenster.show();
    varnholt::In_Modus_Wechseln(varnholt::Modus_MC);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
