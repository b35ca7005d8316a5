// The silent world that stands behind the wall until a program brings its own.
#include "core/platform.h"

#include "core/text_memory.h"

namespace varnholt {
namespace {

class Stumme_Box : public Meldungsbox {
public:
    int         Zeigen(const Meldung_T&) override { return Antwort_Abbrechen; }
    std::string Eingeben(std::string_view) override { return {}; }
    void        Hinweisen(std::string_view) override {}
    int         Bereich_Waehlen(std::string_view) override { return 0; }
};

class Stummer_Status : public Statusdialog {
public:
    void Oeffnen() override {}
    void Text(std::string_view) override {}
    void ProgBar(int) override {}
    void Schliessen() override {}
};

class Stumme_Ereignisse : public Ereignisschleife {
public:
    void Eine_Runde() override {}
    void Mauszeiger_Warten(bool) override {}
    void Fenster_Sperren(bool) override {}
    void Pause(double) override {}
    void Titel(int, std::string_view) override {}
};

// No port: writes go nowhere and every read gives FFh, as floating lines do.
class Kein_Port : public Porttreiber {
public:
    int          KS_openDriver() override { return 1; }
    int          KS_calibrateMachineTime(std::uint32_t&) override { return 1; }
    int          KS_enableIoRange(std::int32_t, int) override { return 1; }
    void         KS_outpb(std::int32_t, std::uint8_t) override {}
    std::uint8_t KS_inpb(std::int32_t) override { return 0xFF; }
    int          KS_getMachineTime(std::int64_t& Stempel) override
    {
        Stempel = ++Mikrosekunden;
        return 0;
    }
    std::string KS_getErrorStringEx(int) override { return "no port"; }
    void        Sleep(int Millisekunden) override { Mikrosekunden += Millisekunden * 1000LL; }
    double      Sekunden_seit_Mitternacht() override
    {
        return static_cast<double>(++Mikrosekunden) / 1e6;
    }
    void Wartet(std::int64_t Dauer) override { Mikrosekunden += Dauer; }
    void Sekunden_Wartet(double Sekunden) override
    {
        Mikrosekunden += static_cast<std::int64_t>(Sekunden * 1e6);
    }

private:
    std::int64_t Mikrosekunden = 0;
};

struct Stille_Welt_T {
    Stumme_Box        Box;
    Stummer_Status    Status;
    Stumme_Ereignisse Ereignisse;
    Speicher_Text     Edit;
    Speicher_Text     Notiz;
    Kein_Port         Port;
};

Stille_Welt_T Stille_Welt;

} // namespace

Plattform_T Plattform{&Stille_Welt.Box,
                      &Stille_Welt.Status,
                      &Stille_Welt.Ereignisse,
                      &Stille_Welt.Edit,
                      &Stille_Welt.Notiz,
                      &Stille_Welt.Port};

void Plattform_Zuruecksetzen()
{
    Stille_Welt.Edit  = {};
    Stille_Welt.Notiz = {};
    Plattform         = {&Stille_Welt.Box,
                         &Stille_Welt.Status,
                         &Stille_Welt.Ereignisse,
                         &Stille_Welt.Edit,
                         &Stille_Welt.Notiz,
                         &Stille_Welt.Port};
}

} // namespace varnholt
