// The silent world that stands behind the wall until a program brings its own.
#include "core/platform.h"

#include "core/codepage.h"
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
    void   Eine_Runde() override {}
    void   Mauszeiger_Warten(bool) override {}
    void   Fenster_Sperren(bool) override {}
    void   Pause(double) override {}
    void   Titel(int, std::string_view) override {}
    double Sekunden() override { return 0; }
};

class Stumme_Fenster : public Fensterwelt {
public:
    bool   Sichtbar(int) const override { return false; }
    void   Sichtbar_Setzen(int, bool) override {}
    Lage_T Lage(int) const override { return {}; }
    void   Lage_Setzen(int, const Lage_T&) override {}
    void   Fokus(int) override {}
    Lage_T Innenmass() const override { return {}; }
    void   Bildschirm_Fuellen() override {}
    void   Hauptfenster_Titel(std::string_view) override {}
    void   Hintergrund(std::int32_t) override {}
    void   Schrift_Setzen(int, const Schrift_T&) override {}
    void   Formular_Zeigen(Formular) override {}
    void   Formular_Entladen(Formular) override {}
    bool   Formular_Sichtbar(Formular) const override { return false; }
    void   Start_Text(std::string_view) override {}
    void   Programm_Beenden() override {}
};

class Stumme_Dialoge : public Dialoge {
public:
    void                        Datei_Waehlen(Dateiwahl_T& Wahl) override { Wahl.Name.clear(); }
    std::optional<Schrift_T>    Schrift_Waehlen(const Schrift_T&) override { return std::nullopt; }
    std::optional<std::int32_t> Farbe_Waehlen(std::int32_t) override { return std::nullopt; }
};

class Stumme_Ablage : public Zwischenablage {
public:
    std::string Text() const override { return {}; }
    void        Setzen(std::string_view) override {}
};

class Keine_Umgebung : public Schale {
public:
    bool Oeffnen(std::string_view) override { return false; }
    void Dateityp_Verknuepfen(const Dateityp_T&) override {}
};

class Kein_Drucker : public Drucker {
public:
    void        Einrichten() override {}
    bool        Waehlen(Druckwahl_T&) override { return false; }
    bool        Beginnen(std::string_view) override { return false; }
    void        Schrift(const Schrift_T&) override {}
    int         Zeilen_Je_Seite() const override { return 1; }
    bool        Passt(std::string_view) const override { return true; }
    bool        Zeile(std::string_view, std::span<const Farbstelle_T>) override { return true; }
    bool        Neue_Seite() override { return true; }
    bool        Beenden(bool) override { return true; }
    std::string Datum() const override { return {}; }
    std::string Uhrzeit() const override { return {}; }
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
    Stumme_Fenster    Fenster;
    Stumme_Dialoge    Dialog;
    Stumme_Ablage     Ablage;
    Keine_Umgebung    Umgebung;
    Kein_Drucker      Druck;

    Plattform_T Alle()
    {
        return {&Box,
                &Status,
                &Ereignisse,
                &Edit,
                &Notiz,
                &Port,
                &Fenster,
                &Dialog,
                &Ablage,
                &Umgebung,
                &Druck};
    }
};

Stille_Welt_T Stille_Welt;

} // namespace

std::string Textfeld::Auswahl_Text_UTF8() const { return Nach_UTF8(Auswahl_Text()); }

void Textfeld::Auswahl_Ersetzen_UTF8(std::string_view Neuer) { Auswahl_Ersetzen(Aus_UTF8(Neuer)); }

std::string Zwischenablage::Text_UTF8() const { return Nach_UTF8(Text()); }

void Zwischenablage::Setzen_UTF8(std::string_view Text) { Setzen(Aus_UTF8(Text)); }

Plattform_T Plattform = Stille_Welt.Alle();

void Plattform_Zuruecksetzen()
{
    Stille_Welt.Edit  = {};
    Stille_Welt.Notiz = {};
    Plattform         = Stille_Welt.Alle();
}

} // namespace varnholt
