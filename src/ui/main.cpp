// Start of the desktop program.
#include "core/commands.h"
#include "core/paths.h"
#include "core/shared_state.h"
#include "core/startup.h"
#include "core/version.h"
#include "ui/Bilder.h"
#include "ui/MDI.h"
#include "ui/Qt_Text.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace {

using namespace varnholt;

// The whole command line is one path, blanks included.
QString Kommandozeile_Aus(const QStringList& Argumente)
{
    const QString Pfad = Argumente.mid(1).join(u' ');
    return Pfad.isEmpty() ? QString() : QFileInfo(Pfad).absoluteFilePath();
}

// True when the command line asks for a text instead of the window.
bool Auskunft_Geben(int argc, char** argv)
{
    if (argc != 2)
        return false;
    const std::string_view Wunsch = argv[1];
    if (Wunsch == "--version")
        std::printf("varnholt %s\n", std::string(Programm_Version).c_str());
    else if (Wunsch == "--help" || Wunsch == "-h")
        std::puts(
            "Usage: varnholt [FILE]\n\n"
            "Workbench for MCS-51 microcontrollers and memory ICs. Opens FILE, a source or an\n"
            "image. The command-line program is varnholt-cli.\n\n"
            "  --help     this text\n"
            "  --version  the version");
    else
        return false;
    return true;
}

// Milliseconds since this process was started, by the kernel's clock ticks.
double Alter_Des_Prozesses()
{
    std::ifstream Datei("/proc/self/stat");
    std::string   Text;
    std::getline(Datei, Text);
    std::istringstream Felder(Text.substr(Text.rfind(')') + 1));
    std::string        Feld;
    constexpr int      Startzeit = 20; // field behind the program's name, in ticks since the boot
    for (int i = 0; i < Startzeit; ++i)
        Felder >> Feld;
    timespec Jetzt{};
    clock_gettime(CLOCK_BOOTTIME, &Jetzt);
    const double Ticks = static_cast<double>(sysconf(_SC_CLK_TCK));
    return static_cast<double>(Jetzt.tv_sec) * 1e3 + static_cast<double>(Jetzt.tv_nsec) / 1e6 -
           std::strtod(Feld.c_str(), nullptr) * 1e3 / Ticks;
}

// For the benchmarks: tells how long it took to the splash, and leaves.
void Start_Messen()
{
    std::printf("%.0f\n", Alter_Des_Prozesses());
    std::fflush(stdout);
    std::_Exit(0);
}

} // namespace

int main(int argc, char** argv)
{
    if (Auskunft_Geben(argc, argv))
        return 0;
    // No display name: Qt would put it behind every window title.
    QApplication::setApplicationName(QStringLiteral("Varnholt"));
    QApplication::setDesktopFileName(QStringLiteral("varnholt"));
    QApplication Anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(Programm_Bild());
    const bool Messen = argc == 2 && std::string_view(argv[1]) == "--time-to-splash";
    Startlauf.Kommandozeile =
        Messen ? std::string() : Nach_Std(Kommandozeile_Aus(QApplication::arguments()));
    MDI Hauptfenster;
    if (Messen)
        QObject::connect(&Hauptfenster, &MDI::Start_Gezeigt, &Start_Messen);
    QTimer::singleShot(0, &Hauptfenster, [&] { Hauptfenster.Ausfuehren([] { Init(); }); });
    return QApplication::exec();
}
