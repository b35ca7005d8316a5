// The world of the tests that hold the EEPROM, flash and page routines against the model of their
// byte sequences.
#pragma once

#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Brenn_Modell.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Brennmenue.h"
#include "programmer/CheckIC.h"
#include "programmer/Loeschen.h"
#include "programmer/Simulierte_EEPROMs.h"
#include "programmer/Simuliertes_Flash.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace varnholt::test {

// Says where two traces part, instead of printing both.
inline ::testing::AssertionResult Gleiche_Spur(const std::string& Ist, const std::string& Soll)
{
    if (Ist == Soll)
        return ::testing::AssertionSuccess();
    const auto  Ende = std::min(Ist.size(), Soll.size());
    std::size_t i    = 0;
    while (i < Ende && Ist[i] == Soll[i])
        ++i;
    const std::size_t Vorher = Ist.rfind('\n', i > 60 ? i - 60 : 0);
    const std::size_t Von    = Vorher == std::string::npos ? 0 : Vorher + 1;
    const auto        Zeile =
        std::count(Soll.begin(), Soll.begin() + static_cast<std::ptrdiff_t>(i), '\n');
    return ::testing::AssertionFailure() << "line " << Zeile << ", is\n"
                                         << Ist.substr(Von, 120) << "\nshould be\n"
                                         << Soll.substr(Von, 120);
}

class Modell_Welt : public Brenner_Welt {
protected:
    // A device of these types in the socket, and the model of it.
    void Einsetzen(std::string_view Name,
                   std::int32_t     Bytes,
                   std::string_view R_Typ,
                   std::string_view P_Typ,
                   std::int32_t     Seite = 0)
    {
        Geraet_T& g    = Geraet(Name, Bytes, R_Typ, P_Typ);
        g.Seiten_Bytes = Seite;
        g.P_Timing     = P_Typ.starts_with("28F") ? 100 : 10000;
        g.E_Typ = P_Typ.starts_with("28F") ? "28F" : P_Typ.starts_with("29C") ? "29C" : "28C";
        Neu_Aufbauen();
    }
    // Board and model anew, after a change of the record.
    void Neu_Aufbauen()
    {
        const Geraet_T& g = Geraete_Tabelle[0];
        Board_Anschliessen();
        C_IC_nach_B = false;
        m           = {};
        m.Name      = g.Name;
        m.R         = g.R_Typ;
        m.P         = g.P_Typ;
        m.Bytes     = g.Bytes;
        m.P_Zeit    = g.P_Timing;
        m.Seite     = g.Seiten_Bytes;
        m.Zellen    = Inhalt();
        Bild_Loeschen();
        Spur();
    }
    Simuliertes_EEPROM& EEPROM() { return dynamic_cast<Simuliertes_EEPROM&>(*Board().Baustein()); }
    Simuliertes_28F&    Flash() { return dynamic_cast<Simuliertes_28F&>(*Board().Baustein()); }

    // The range: editor addresses Von to Bis, to the device from Ab.
    void Bereich(std::int64_t Von, std::int64_t Bis, std::int64_t Ab)
    {
        m.Editor_Von = Von;
        m.IC_Von     = Ab;
        m.IC_Bis     = Ab + Bis - Von;
        Letzte       = Bis;
    }
    // Fills in the dialog as the model has it, and presses the button; the trace of the run.
    std::string Laufen()
    {
        m.Bild.assign(Hex_Daten.begin(), Hex_Daten.end());
        No_FF      = m.No_FF;
        C_IC_bei_B = m.Bei_B;
        Spur();
        Brennen([this] { Ausfuellen(); });
        return Ohne_Ruheleitungen(Spur());
    }
    void Ausfuellen() const
    {
        BR_EBA_D_Change(std::to_string(m.IC_Von));
        ED_EBA_D_Change(std::to_string(m.Editor_Von));
        ED_LBA_D_Change(std::to_string(Letzte));
        Splitting_Waehlen(m.Split == 0   ? Splitting::Kein
                          : m.Split == 1 ? Splitting::Gerade
                                         : Splitting::Ungerade);
        Brennmenue.DAT00 = m.DAT00;
        if (m.Bekannt)
            Brennmenue.IC_LBA_D = "EMPTY";
        ASSERT_TRUE(Brennmenue.Brennen_Aktiv);
    }

    Brenn_Modell m{};
    std::int64_t Letzte = 0; // last editor address
};

} // namespace varnholt::test
