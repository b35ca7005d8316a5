// Benchmarks of the windows, offscreen: loading with colours, leaving a changed line, a hex page,
// the way from process start to the splash.
#include "core/commands.h"
#include "core/shared_state.h"
#include "core/windows.h"
#include "editors/Hexedit.h"
#include "files/Datei_Zustand.h"
#include "ui/Hexedit_Fenster.h"
#include "ui/MDI.h"
#include "ui/Quelltext_Feld.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPixmap>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

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
    qputenv("VARNHOLT_HOME", Umgebung().Ordner.path().toLocal8Bit());
    Sprache       = "E";
    Programm_Pfad = Heim;
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
