// The child windows: standard arrangement, window table, side windows, mode table.
#include "core/windows.h"

#include "core/commands.h"
#include "core/menu.h"
#include "core/shared_state.h"
#include "core/views.h"
#include "simulator/Debug.h"
#include "simulator/Sim_Ansichten.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace varnholt::test {
namespace {

int Rechts(const Lage_T& l) { return l.Links + l.Breite; }
int Unten(const Lage_T& l) { return l.Oben + l.Hoehe; }

bool Ueberlappen(const Lage_T& a, const Lage_T& b)
{
    return a.Links < Rechts(b) && b.Links < Rechts(a) && a.Oben < Unten(b) && b.Oben < Unten(a);
}

std::size_t P(int Nummer) { return static_cast<std::size_t>(Nummer); }

// --- calculation ---

class Anordnung : public ::testing::TestWithParam<std::pair<Lage_T, int>> {
protected:
    Lage_T                                 Flaeche{GetParam().first};
    int                                    Modus_Hier = GetParam().second;
    std::array<Lage_T, Fenster_Anzahl + 1> Lagen      = Grund_Anordnung(Flaeche, Modus_Hier);
    int Haupt = Modus_Hier == Modus_Hex ? Fenster_Hexedit : Fenster_Edit;
    // Areas of the windows sum up to the whole area, and no two of them share a place.
    void Kacheln(const std::vector<int>& Nummern) const
    {
        std::int64_t Summe = 0;
        for (const int a : Nummern) {
            Summe += std::int64_t{Lagen[P(a)].Hoehe} * Lagen[P(a)].Breite;
            for (const int b : Nummern)
                EXPECT_TRUE(a == b || !Ueberlappen(Lagen[P(a)], Lagen[P(b)])) << a << " " << b;
        }
        EXPECT_EQ(Summe, std::int64_t{Flaeche.Hoehe} * Flaeche.Breite);
    }
};

TEST_P(Anordnung, the_main_window_has_its_share_of_the_width_and_the_whole_height)
{
    const Lage_T& l = Lagen[P(Haupt)];
    EXPECT_EQ(l.Breite, Flaeche.Breite * (Modus_Hier == Modus_Hex ? 72 : 65) / 100);
    EXPECT_EQ(l.Hoehe, Flaeche.Hoehe);
    EXPECT_EQ(l.Links, Flaeche.Links);
    EXPECT_EQ(l.Oben, Flaeche.Oben);
}

TEST_P(Anordnung, every_window_lies_within_the_area)
{
    for (int n = 1; n <= Fenster_Anzahl; ++n) {
        EXPECT_GE(Lagen[P(n)].Links, Flaeche.Links) << n;
        EXPECT_GE(Lagen[P(n)].Oben, Flaeche.Oben) << n;
        EXPECT_LE(Rechts(Lagen[P(n)]), Rechts(Flaeche)) << n;
        EXPECT_LE(Unten(Lagen[P(n)]), Unten(Flaeche)) << n;
        EXPECT_GT(Lagen[P(n)].Hoehe, 0) << n;
        EXPECT_GT(Lagen[P(n)].Breite, 0) << n;
    }
}

TEST_P(Anordnung, the_windows_that_are_shown_at_first_tile_the_area)
{
    if (Modus_Hier == Modus_Hex)
        Kacheln({Fenster_Hexedit, Fenster_Notiz});
    else
        Kacheln({Fenster_Edit, Fenster_Spr, Fenster_Notiz});
}

TEST_P(Anordnung, the_two_references_and_the_four_debugger_windows_tile_the_side_column)
{
    Kacheln({Haupt, Fenster_Bef, Fenster_Basic});
    Kacheln({Haupt, Fenster_CONTROL, Fenster_RAM, Fenster_SFR, Fenster_EXRAM});
}

TEST_P(Anordnung, in_a_wide_column_two_views_stand_side_by_side)
{
    const bool Breit = Flaeche.Breite - Lagen[P(Haupt)].Breite >= 660;
    EXPECT_EQ(Lagen[P(Fenster_RAM)].Oben == Lagen[P(Fenster_SFR)].Oben, Breit);
    EXPECT_EQ(Lagen[P(Fenster_CONTROL)].Oben, Flaeche.Oben);
    EXPECT_GE(Lagen[P(Fenster_CONTROL)].Hoehe, Flaeche.Hoehe / 4);
}

INSTANTIATE_TEST_SUITE_P(Flaechen,
                         Anordnung,
                         ::testing::Values(std::pair{Lage_T{0, 0, 690, 1280}, Modus_MC},
                                           std::pair{Lage_T{0, 0, 690, 1280}, Modus_Hex},
                                           std::pair{Lage_T{0, 0, 2051, 3839}, Modus_MC},
                                           std::pair{Lage_T{0, 0, 2051, 3839}, Modus_Hex},
                                           std::pair{Lage_T{10, 20, 401, 599}, Modus_MC},
                                           std::pair{Lage_T{10, 20, 401, 599}, Modus_Hex}));

// --- applying and keeping the table ---

class Fenster_Welt : public Welt {
protected:
    Fenster_Welt()
    {
        Modus = Modus_MC;
        for (int Spalte : {0, 1})
            for (int n = 1; n <= Fenster_Anzahl; ++n)
                Eintragen(Spalte, n, 0);
    }
    // A line of the table whose numbers tell where it stands.
    static void Eintragen(int Spalte, int Nummer, int Sichtbar)
    {
        const int Grund                              = 1000 * (Spalte + 1) + 10 * Nummer;
        Fenster_Wert(Spalte, Nummer, Feld::Sichtbar) = static_cast<std::int16_t>(Sichtbar);
        Fenster_Wert(Spalte, Nummer, Feld::Oben)     = static_cast<std::int16_t>(Grund + 1);
        Fenster_Wert(Spalte, Nummer, Feld::Links)    = static_cast<std::int16_t>(Grund + 2);
        Fenster_Wert(Spalte, Nummer, Feld::Hoehe)    = static_cast<std::int16_t>(Grund + 3);
        Fenster_Wert(Spalte, Nummer, Feld::Breite)   = static_cast<std::int16_t>(Grund + 4);
    }
    static Lage_T Eingetragen(int Spalte, int Nummer)
    {
        const int Grund = 1000 * (Spalte + 1) + 10 * Nummer;
        return {Grund + 1, Grund + 2, Grund + 3, Grund + 4};
    }
    bool Protokolliert(const std::string& Zeile) const
    {
        return std::count(Fenster.Protokoll.begin(), Fenster.Protokoll.end(), Zeile) > 0;
    }
};

TEST_F(Fenster_Welt, each_window_gets_its_place_from_its_column)
{
    for (const int m : {Modus_Hex, Modus_MC}) {
        Modus = m;
        Fenster_Anordnen();
        for (int n = 3; n <= Fenster_Anzahl; ++n)
            EXPECT_EQ(Fenster.Zu(n).Lage, Eingetragen(m - 1, n)) << m << " " << n;
        EXPECT_EQ(Fenster.Zu(Fenster_Hexedit).Lage, Eingetragen(0, Fenster_Hexedit));
        EXPECT_EQ(Fenster.Zu(Fenster_Edit).Lage, Eingetragen(1, Fenster_Edit));
    }
}

TEST_F(Fenster_Welt, the_windows_are_walked_from_1_to_10)
{
    Fenster_Anordnen();
    std::vector<std::string> Orte;
    for (const std::string& z : Fenster.Protokoll)
        if (z.starts_with("Lage "))
            Orte.push_back(z.substr(5, z.find(' ', 5) - 5));
    EXPECT_EQ(Orte, (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
}

struct Haken_Fall {
    int         Nummer;
    const char* Name;
};
const Haken_Fall Haken[] = {{1, "MNU_Hex"},
                            {2, "MNU_MC"},
                            {3, "MNU_Bef"},
                            {4, "MNU_Basic"},
                            {5, "MNU_Spr"},
                            {6, "MNU_Not"},
                            {7, "MNU_RAM"},
                            {8, "MNU_SFR"},
                            {9, "MNU_EXRAM"},
                            {10, "MNU_CONTROL"}};

Menue_Zustand_T& Eintrag(const char* Name) { return Menues.Eintraege[Menue_Platz(Name)]; }

TEST_F(Fenster_Welt, ticks_and_visibility_follow_field_0)
{
    Debugger_Aktiv = true;
    for (const Haken_Fall& f : Haken) {
        const int Spalte = Fenster_Spalte(f.Nummer, Modus);
        Eintragen(Spalte, f.Nummer, -1);
        Fenster_Anordnen();
        for (const Haken_Fall& g : Haken) {
            EXPECT_EQ(Eintrag(g.Name).Haken, &f == &g) << f.Name << " " << g.Name;
            EXPECT_EQ(Fenster.Zu(g.Nummer).Sichtbar, &f == &g) << f.Name << " " << g.Name;
        }
        Eintragen(Spalte, f.Nummer, 0);
    }
}

TEST_F(Fenster_Welt, the_debugger_windows_are_shown_and_hidden_only_during_a_session)
{
    for (int n = Fenster_RAM; n <= Fenster_CONTROL; ++n)
        Eintragen(1, n, -1);
    Fenster_Anordnen();
    for (int n = Fenster_RAM; n <= Fenster_CONTROL; ++n)
        EXPECT_FALSE(Fenster.Zu(n).Sichtbar) << n;
    EXPECT_TRUE(Menue("MNU_RAM").Haken);
    Debugger_Aktiv = true;
    Fenster_Anordnen();
    for (int n = Fenster_RAM; n <= Fenster_CONTROL; ++n)
        EXPECT_TRUE(Fenster.Zu(n).Sichtbar) << n;
}

TEST_F(Fenster_Welt, the_windows_are_locked_meanwhile_and_free_afterwards)
{
    Ereignisse.Fenster_Gesperrt = true;
    Fenster_Anordnen();
    EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
    Fenster_Sperren();
    EXPECT_TRUE(Ereignisse.Fenster_Gesperrt);
    Fenster_Freigeben();
    EXPECT_FALSE(Ereignisse.Fenster_Gesperrt);
}

TEST_F(Fenster_Welt, start_up_sets_ticks_and_places_but_neither_visibility_nor_the_lock)
{
    Eintragen(1, Fenster_Spr, -1);
    Init_Laeuft                 = true;
    Ereignisse.Fenster_Gesperrt = true;
    Fenster_Anordnen();
    EXPECT_TRUE(Menue("MNU_Spr").Haken);
    EXPECT_EQ(Fenster.Zu(Fenster_Spr).Lage, Eingetragen(1, Fenster_Spr));
    EXPECT_FALSE(Fenster.Zu(Fenster_Spr).Sichtbar);
    EXPECT_TRUE(Ereignisse.Fenster_Gesperrt);
}

TEST_F(Fenster_Welt, every_arrangement_counts)
{
    Fenster_Anordnen();
    Fenster_Anordnen();
    EXPECT_EQ(Ansichten.Anordnung_Stand, 2u);
}

TEST_F(Fenster_Welt, a_window_without_a_place_gets_that_of_the_standard_arrangement)
{
    Fensterlage = {};
    Fenster_Anordnen();
    EXPECT_EQ(Fenster.Zu(Fenster_Edit).Lage, (Lage_T{0, 0, 800, 832}));
    EXPECT_EQ(Fenster.Zu(Fenster_Hexedit).Lage, (Lage_T{0, 0, 800, 921}));
    EXPECT_EQ(Fenster.Zu(Fenster_Spr).Lage, (Lage_T{0, 832, 400, 448}));
}

// --- MNU_G_Einstellung ---

TEST_F(Fenster_Welt, the_standard_arrangement_fills_both_columns_and_is_applied)
{
    Fenster.Innen = {0, 0, 690, 1280};
    MNU_G_Einstellung_Click();
    const auto Hex = Grund_Anordnung(Fenster.Innen, Modus_Hex);
    const auto MC  = Grund_Anordnung(Fenster.Innen, Modus_MC);
    for (int n = 3; n <= Fenster_Anzahl; ++n) {
        EXPECT_EQ(Fenster_Wert(0, n, Feld::Links), Hex[P(n)].Links) << n;
        EXPECT_EQ(Fenster_Wert(1, n, Feld::Hoehe), MC[P(n)].Hoehe) << n;
    }
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Breite), 921);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Breite), 832);
    EXPECT_EQ(Fenster.Zu(Fenster_Edit).Lage, MC[P(Fenster_Edit)]);
    EXPECT_EQ(Ansichten.Anordnung_Stand, 1u);
}

TEST_F(Fenster_Welt, the_MC_Editor_starts_with_editor_jumpmarks_and_notes)
{
    Eintragen(1, Fenster_Bef, -1);
    MNU_G_Einstellung_Click();
    for (int n = 1; n <= Fenster_Anzahl; ++n)
        EXPECT_EQ(Fenster.Zu(n).Sichtbar,
                  n == Fenster_Edit || n == Fenster_Spr || n == Fenster_Notiz)
            << n;
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), 0);
}

TEST_F(Fenster_Welt, the_Hex_Editor_starts_with_hex_pane_and_notes)
{
    Modus = Modus_Hex;
    MNU_G_Einstellung_Click();
    for (int n = 1; n <= Fenster_Anzahl; ++n)
        EXPECT_EQ(Fenster.Zu(n).Sichtbar, n == Fenster_Hexedit || n == Fenster_Notiz) << n;
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), -1);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), 0);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Spr, Feld::Sichtbar), -1);
}

TEST_F(Fenster_Welt, the_standard_arrangement_leaves_a_session_its_windows)
{
    Debugger_Aktiv = true;
    Eintragen(1, Fenster_RAM, -1);
    MNU_G_Einstellung_Click();
    EXPECT_TRUE(Fenster.Zu(Fenster_RAM).Sichtbar);
    EXPECT_FALSE(Fenster.Zu(Fenster_SFR).Sichtbar);
}

TEST_F(Fenster_Welt, before_its_first_arrangement_a_session_has_all_four_windows)
{
    Fensterlage = {};
    MNU_G_Einstellung_Click();
    for (int n = Fenster_RAM; n <= Fenster_CONTROL; ++n) {
        EXPECT_EQ(Fenster_Wert(1, n, Feld::Sichtbar), -1) << n;
        EXPECT_EQ(Fenster_Wert(0, n, Feld::Sichtbar), 0) << n;
        EXPECT_FALSE(Fenster.Zu(n).Sichtbar) << n; // no session is on
    }
    Fenster_Wert(1, Fenster_EXRAM, Feld::Sichtbar) = 0;
    MNU_G_Einstellung_Click(); // from now on they are the user's
    EXPECT_EQ(Fenster_Wert(1, Fenster_EXRAM, Feld::Sichtbar), 0);
    EXPECT_EQ(Fenster_Wert(1, Fenster_RAM, Feld::Sichtbar), -1);
}

TEST_F(Fenster_Welt, places_beyond_16_bits_end_at_the_limit)
{
    Fenster.Innen = {0, 0, 40000, 60000};
    MNU_G_Einstellung_Click();
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Breite), 32767);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Hoehe), 32767);
}

// --- keeping ---

TEST_F(Fenster_Welt, a_window_keeps_its_place_in_its_column_and_nothing_else)
{
    Eintragen(1, Fenster_Notiz, -1);
    Fenster.Zu(Fenster_Notiz).Lage   = {1, 2, 30, 40};
    Fenster.Zu(Fenster_Hexedit).Lage = {5, 6, 70, 80};
    const auto Vorher                = Fenster_Tabelle;
    Fenster_Merken(Fenster_Notiz);
    Fenster_Merken(Fenster_Hexedit);
    auto Soll                = Vorher;
    Soll[1][Fenster_Notiz]   = {-1, 1, 2, 30, 40, 0, 0};
    Soll[0][Fenster_Hexedit] = {0, 5, 6, 70, 80, 0, 0};
    EXPECT_EQ(Fenster_Tabelle, Soll);
}

TEST_F(Fenster_Welt, nothing_is_kept_during_start_up_or_of_a_window_without_size)
{
    const auto Vorher            = Fenster_Tabelle;
    Init_Laeuft                  = true;
    Fenster.Zu(Fenster_Spr).Lage = {1, 2, 30, 40};
    Fenster_Merken(Fenster_Spr);
    Init_Laeuft                    = false;
    Fenster.Zu(Fenster_Notiz).Lage = {1, 2, 0, 40};
    Fenster.Zu(Fenster_RAM).Lage   = {1, 2, 30, 0};
    Fenster_Merken(Fenster_Notiz);
    Fenster_Merken(Fenster_RAM);
    EXPECT_EQ(Fenster_Tabelle, Vorher);
}

TEST_F(Fenster_Welt, all_windows_keep_their_places_at_the_end)
{
    for (int n = 1; n <= Fenster_Anzahl; ++n)
        Fenster.Zu(n).Lage = {n, n, n, n};
    Alle_Fenster_Merken();
    for (int n = 1; n <= Fenster_Anzahl; ++n)
        EXPECT_EQ(Fenster_Wert(Fenster_Spalte(n, Modus), n, Feld::Breite), n) << n;
    EXPECT_EQ(Fenster_Wert(0, Fenster_Spr, Feld::Breite), 1054);
}

// --- side windows ---

TEST_F(Fenster_Welt, a_side_window_is_toggled_in_the_column_of_the_mode)
{
    for (const int m : {Modus_Hex, Modus_MC})
        for (const bool Spr : {true, false}) {
            Modus              = m;
            const int   Nummer = Spr ? Fenster_Spr : Fenster_Notiz;
            const auto  Click  = Spr ? MNU_Spr_Click : MNU_Not_Click;
            const char* Name   = Spr ? "MNU_Spr" : "MNU_Not";
            const int   Andere = Fenster_Wert(2 - m, Nummer, Feld::Sichtbar);
            Click();
            EXPECT_EQ(Fenster_Wert(m - 1, Nummer, Feld::Sichtbar), -1);
            EXPECT_TRUE(Eintrag(Name).Haken);
            EXPECT_TRUE(Fenster.Zu(Nummer).Sichtbar);
            Click();
            EXPECT_EQ(Fenster_Wert(m - 1, Nummer, Feld::Sichtbar), 0);
            EXPECT_FALSE(Eintrag(Name).Haken);
            EXPECT_FALSE(Fenster.Zu(Nummer).Sichtbar);
            EXPECT_EQ(Fenster_Wert(2 - m, Nummer, Feld::Sichtbar), Andere);
        }
}

TEST_F(Fenster_Welt, a_debugger_window_is_toggled_only_during_a_session)
{
    Fenster_Umschalten(Fenster_SFR);
    EXPECT_EQ(Fenster_Wert(1, Fenster_SFR, Feld::Sichtbar), 0);
    Debugger_Aktiv = true;
    Fenster_Umschalten(Fenster_SFR);
    EXPECT_EQ(Fenster_Wert(1, Fenster_SFR, Feld::Sichtbar), -1);
    EXPECT_TRUE(Fenster.Zu(Fenster_SFR).Sichtbar);
}

TEST_F(Fenster_Welt, the_four_commands_toggle_the_windows_of_a_session)
{
    const std::pair<int, void (*)()> Befehle[] = {{Fenster_CONTROL, MNU_CONTROL_Click},
                                                  {Fenster_RAM, MNU_RAM_Click},
                                                  {Fenster_SFR, MNU_SFR_Click},
                                                  {Fenster_EXRAM, MNU_EXRAM_Click}};
    for (const auto& [Nummer, Click] : Befehle) {
        Debugger_Aktiv = false;
        Click();
        EXPECT_EQ(Fenster_Wert(1, Nummer, Feld::Sichtbar), 0) << Nummer;
        EXPECT_FALSE(Fenster.Zu(Nummer).Sichtbar);
        Debugger_Aktiv = true;
        Click();
        for (const auto& [Andere, Egal] : Befehle)
            EXPECT_EQ(Fenster.Zu(Andere).Sichtbar, Andere == Nummer) << Nummer << Andere;
        EXPECT_TRUE(Eintrag(Haken[Nummer - 1].Name).Haken);
        Click();
        EXPECT_FALSE(Fenster.Zu(Nummer).Sichtbar);
        EXPECT_FALSE(Eintrag(Haken[Nummer - 1].Name).Haken);
    }
}

TEST_F(Fenster_Welt, a_panel_that_is_opened_shows_the_counters_as_they_are)
{
    Debugger_Aktiv = true;
    Sim_PC         = 300;
    MNU_CONTROL_Click();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00300 / 0012Ch");
    MNU_CONTROL_Click();
    Sim_PC = 301;
    MNU_CONTROL_Click();
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00301 / 0012Dh");
}

TEST_F(Fenster_Welt, a_closed_side_window_is_hidden_unticked_and_keeps_its_place)
{
    MNU_Spr_Click();
    Fenster.Zu(Fenster_Spr).Lage = {1, 2, 30, 40};
    Fenster_Geschlossen(Fenster_Spr);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Spr, Feld::Sichtbar), 0);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Spr, Feld::Breite), 40);
    EXPECT_FALSE(Menue("MNU_Spr").Haken);
    EXPECT_FALSE(Fenster.Zu(Fenster_Spr).Sichtbar);
}

TEST_F(Fenster_Welt, the_main_windows_can_be_neither_toggled_nor_closed)
{
    Eintragen(1, Fenster_Edit, -1);
    Fenster_Umschalten(Fenster_Edit);
    Fenster_Geschlossen(Fenster_Edit);
    Fenster_Umschalten(Fenster_Hexedit);
    EXPECT_EQ(Fenster_Wert(1, Fenster_Edit, Feld::Sichtbar), -1);
    EXPECT_EQ(Fenster_Wert(0, Fenster_Hexedit, Feld::Sichtbar), 0);
    EXPECT_TRUE(Fenster.Protokoll.empty());
}

// --- mode table ---

TEST_F(Fenster_Welt, the_Hex_Editor_has_its_entries)
{
    Modus = Modus_Hex;
    Modus_Tabelle_Anwenden();
    EXPECT_TRUE(Menue("MNU_Hex").Haken);
    EXPECT_FALSE(Menue("MNU_MC").Haken);
    EXPECT_TRUE(Menue("MNU_vergleiche_hexdaten").Aktiv);
    EXPECT_FALSE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
    EXPECT_FALSE(Menue("MNU_Load_Autosave").Sichtbar);
    EXPECT_FALSE(Menue("MNU_deb_Vorbereitung").Aktiv);
    EXPECT_FALSE(Werkzeug(23).Aktiv);
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemble");
}

TEST_F(Fenster_Welt, the_MC_Editor_has_its_entries)
{
    Modus_Tabelle_Anwenden();
    EXPECT_FALSE(Menue("MNU_Hex").Haken);
    EXPECT_TRUE(Menue("MNU_MC").Haken);
    EXPECT_FALSE(Menue("MNU_vergleiche_hexdaten").Aktiv);
    EXPECT_TRUE(Menue("MNU_Debugger_Stoppunkt").Aktiv);
    EXPECT_TRUE(Menue("MNU_Load_Autosave").Sichtbar);
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemble");
}

TEST_F(Fenster_Welt, nine_entries_are_visible_in_the_Hex_Editor_only)
{
    for (const int m : {Modus_Hex, Modus_MC}) {
        Modus = m;
        Modus_Tabelle_Anwenden();
        for (const char* Name : {"MNU_Ber_Kopieren",
                                 "MNU_Ber_setzen",
                                 "MNU_Ber_entfernen",
                                 "MNU_Adresse_direkt",
                                 "MNU_ErsteAdresse",
                                 "MNU_LetzteAdresse",
                                 "MNU_Importdata",
                                 "MNU_Leer79",
                                 "MNU_Leer81"})
            EXPECT_EQ(Eintrag(Name).Sichtbar, m == Modus_Hex) << Name;
    }
}

TEST_F(Fenster_Welt, the_tooltip_of_the_mode_button_is_German_for_D_and_stays_without_a_language)
{
    Sprache = "D";
    Modus_Tabelle_Anwenden();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Assemblieren");
    Modus = Modus_Hex;
    Modus_Tabelle_Anwenden();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemblieren");
    Modus   = Modus_MC;
    Sprache = "?";
    Modus_Tabelle_Anwenden();
    EXPECT_EQ(Werkzeug(21).Hinweis, "Disassemblieren");
}

} // namespace
} // namespace varnholt::test
