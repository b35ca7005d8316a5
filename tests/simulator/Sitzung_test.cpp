// The commands of a debugger session: the way in and out, steps, the free run, moves, resets.
#include "simulator/Sitzung.h"

#include "core/commands.h"
#include "core/interface_texts.h"
#include "core/menu.h"
#include "core/session.h"
#include "simulator/Sitzung_Welt.h"

#include <rapidcheck/gtest.h>

#include <array>
#include <numeric>
#include <utility>

namespace varnholt::test {
namespace {

constexpr const char* Kein_Include_D =
    "Bitte benutzen Sie im Programm die INCLUDE Anweisung, um den Prozessortyp festzulegen. "
    "Beispiel: Include 8051.mc";
constexpr const char* Kein_Include_E =
    "Please use in the program the INCLUDE instruction to declare the processor. Example: Include "
    "8051.mc";
constexpr const char* Unter_Null_D = "Die Programmadresse liegt unter 0 !";
constexpr const char* Unter_Null_E = "The program address is below 0 !";

// Entries and buttons that only a session enables.
constexpr std::array Sitzungs_Befehle = {"MNU_deb_Starten",
                                         "MNU_deb_up",
                                         "MNU_deb_down",
                                         "MNU_deb_Einzelschritt",
                                         "MNU_jump_cursor",
                                         "MNU_deb_beenden",
                                         "MNU_deb_reset_adr",
                                         "MNU_deb_reset"};

// Lines count from 1; addresses 0, 2, 3, 4, 5.
constexpr const char* Kleines = "; a comment\n"
                                "\n"
                                "START:\n"
                                "\tMOV A,#5 ; five\n"
                                "\tINC A\n"
                                "\tSTOP\n"
                                "\tMOV R0,A\n"
                                "\tSJMP START\n";

// Two instructions that never end; addresses 0 and 1.
constexpr const char* Endloses = "LOOP: INC A\nSJMP LOOP\n";

// The routine of `sub.inc` stands in the middle: 0 MOV, 2 LCALL, 5 INC R3, 6 to 8 the routine, 9.
constexpr const char* Mit_Routine = "MOV R1,#0\n"
                                    "LCALL SUB1\n"
                                    "INC R3\n"
                                    "INCLUDE sub.inc\n"
                                    "NOP\n";
constexpr const char* Routine     = "SUB1:\n\tINC R1 ; twice\n\tINC R1\n\tRET\n";

class Sitzung_Test : public Sitzung_Welt {
protected:
    // As before the first `Daten vorbereiten`, and as behind `Beenden`.
    void Erwarte_Aus() const
    {
        EXPECT_FALSE(Debugger_Aktiv);
        EXPECT_FALSE(Text.Gesperrt);
        EXPECT_FALSE(Debug_Laeuft);
        EXPECT_FALSE(Sitzung.Schritt_Laeuft);
        for (const char* Name : Sitzungs_Befehle)
            EXPECT_FALSE(Menues.Eintraege.at(Menue_Platz(Name)).Aktiv) << Name;
        for (int i = 24; i <= 28; ++i)
            EXPECT_FALSE(Werkzeug(i).Aktiv) << i;
        for (int i = Fenster_RAM; i <= Fenster_CONTROL; ++i)
            EXPECT_FALSE(Fenster.Sichtbar(i)) << i;
    }
    // Stopped: waiting for a command.
    void Erwarte_Angehalten() const
    {
        EXPECT_TRUE(Debugger_Aktiv);
        EXPECT_TRUE(Text.Gesperrt);
        EXPECT_FALSE(Debug_Laeuft);
        EXPECT_FALSE(Debug_Stop);
        EXPECT_FALSE(Sitzung.Schritt_Laeuft);
        for (const char* Name : Sitzungs_Befehle)
            EXPECT_TRUE(Menues.Eintraege.at(Menue_Platz(Name)).Aktiv) << Name;
        for (int i = 24; i <= 28; ++i)
            EXPECT_TRUE(Werkzeug(i).Aktiv) << i;
    }
    // Address, cycles and what is selected.
    void Erwarte_Stelle(std::int32_t PC, std::int32_t Zyklen, const std::string& Code) const
    {
        EXPECT_EQ(Sim_PC, PC);
        EXPECT_EQ(Sim_Zyklen, Zyklen);
        EXPECT_EQ(Auswahl(), Code);
    }
};

// --- Daten vorbereiten ---

TEST_F(Sitzung_Test, Without_a_session_everything_of_it_is_off) { Erwarte_Aus(); }

TEST_F(Sitzung_Test, Preparing_leads_to_the_first_line_of_code)
{
    ASSERT_TRUE(Programm(Kleines));
    Erwarte_Angehalten();
    Erwarte_Stelle(0, 0, "MOV A,#5");
    EXPECT_EQ(Zeile(), 4);
    EXPECT_TRUE(Box.Meldungen.empty());
    EXPECT_EQ(Text.Ungesperrte, 0);
}

TEST_F(Sitzung_Test, Preparing_puts_the_machine_to_its_start)
{
    Sim_RAM.fill(1);
    Sim_XRAM.fill(2);
    Sim_Pins   = {1, 0, 1, 0, 1, 1};
    Sim_Zyklen = 99;
    Sim_PC     = 77;
    Sim_Prio   = 1;
    ASSERT_TRUE(Programm(Kleines));
    EXPECT_EQ(Sim_Prio, -1);
    EXPECT_EQ(Sim_Zyklen, 0);
    EXPECT_EQ(Sim_PC, 0);
    EXPECT_EQ(Byte(0), 255);
    EXPECT_EQ(Byte(127), 255);
    EXPECT_EQ(Byte(256), 255);
    EXPECT_EQ(Byte(383), 255);
    EXPECT_EQ(Byte(SFR::SP), 7);
    EXPECT_EQ(Byte(SFR::ACC), 0);
    EXPECT_EQ(Byte(SFR::T2CON), 255) << "not declared by this processor file";
    EXPECT_TRUE(std::all_of(Sim_XRAM.begin(), Sim_XRAM.end(), [](auto b) { return b == 255; }));
    EXPECT_EQ(Sim_Pins, (std::array<std::int16_t, 6>{1, 0, 1, 0, 1, 1})) << "kept";
}

TEST_F(Sitzung_Test, Preparing_assembles_in_debugging_mode)
{
    ASSERT_TRUE(Programm("#IF DEBUGGING\n"
                         "MOV A,#1\n"
                         "#END IF\n"
                         "#IF NOT DEBUGGING\n"
                         "MOV A,#2\n"
                         "#END IF\n"
                         "STOP\n"));
    EXPECT_EQ(Hex_Text(0, 4), "74 01 A5 FF");
    Debug_Beenden();
    Assemblieren();
    EXPECT_EQ(Hex_Text(0, 4), "74 02 FF FF") << "outside a session the word emits nothing";
}

TEST_F(Sitzung_Test, Preparing_ends_with_the_mark_above_every_address)
{
    ASSERT_TRUE(Programm(Kleines));
    EXPECT_EQ(Quell_Zeilen.back().Adresse, 65536);
}

TEST_F(Sitzung_Test, An_assembler_error_leaves_the_mode_off_and_the_editor_unlocked)
{
    EXPECT_FALSE(Programm("MOV A,#5\nNONSENSE\n"));
    Erwarte_Aus();
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_EQ(Box.Meldungen.size(), 1U) << "the assembler's own";
    EXPECT_EQ(Auswahl(), "NONSENSE");
}

TEST_F(Sitzung_Test, A_cancelled_assembly_starts_no_session)
{
    In_Runde(2, [] { Abbruch = true; });
    Text.Text_Setzen(Mit_CRLF("INCLUDE 8051.mc\nNOP\n"));
    Debug_Vorbereiten();
    Erwarte_Aus();
    EXPECT_EQ(Assembler_Fehler, 0);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Sitzung_Test, A_program_without_a_processor_file_gets_the_message_and_no_session)
{
    Include_Datei("defs.inc", "WERT EQU 5\n");
    for (const char* Programm : {"NOP\n", "", "INCLUDE defs.inc\nNOP\n"})
        for (const auto& [Kennung, Meldung] :
             {std::pair{"D", Kein_Include_D}, std::pair{"E", Kein_Include_E}}) {
            Sprache = Kennung;
            Box.Meldungen.clear();
            EXPECT_FALSE(Beginne(Programm));
            Erwarte_Aus();
            EXPECT_EQ(Letzte_Meldung(), Meldung);
            EXPECT_EQ(Box.Meldungen.size(), 1U);
            EXPECT_EQ(Assembler_Fehler, 0);
        }
}

TEST_F(Sitzung_Test, Without_a_known_language_there_is_no_box_and_no_session_either)
{
    Sprache = "X";
    EXPECT_FALSE(Beginne("NOP\n"));
    Erwarte_Aus();
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Sitzung_Test, Any_processor_file_will_do_by_folder_or_by_extension)
{
    Include_Datei("defs.inc", "WERT EQU 5\n");
    Include_Datei("own.mc", "MYPORT DATA 90h\n");
    EXPECT_TRUE(Beginne("INCLUDE 80c552.mc\nNOP\n"));
    EXPECT_TRUE(Beginne("NOP\nINCLUDE defs.inc\nInclude \"own.mc\"\n"));
    EXPECT_TRUE(Beginne("; nothing else\ninclude 8052.MC"));
}

TEST_F(Sitzung_Test, Preparing_anew_runs_the_whole_sequence)
{
    ASSERT_TRUE(Programm(Kleines));
    const std::uint64_t Erste = Sim_Ansichten.Erste_Zelle;
    Schritte(2);
    Byte(0x30) = 1;
    Debug_Vorbereiten();
    Erwarte_Angehalten();
    Erwarte_Stelle(0, 0, "MOV A,#5");
    EXPECT_EQ(Byte(0x30), 255);
    EXPECT_EQ(ACC(), 0);
    EXPECT_EQ(Sim_Ansichten.Erste_Zelle, Erste + 1) << "each view at its first cell";
}

TEST_F(Sitzung_Test, A_session_that_can_not_begin_anew_ends)
{
    for (const char* Neues : {"INCLUDE 8051.mc\nNONSENSE\n", "NOP\n"}) {
        Fenster_Wert(1, Fenster_RAM, Feld::Sichtbar) = -1;
        ASSERT_TRUE(Programm(Kleines));
        Text.Inhalt = Mit_CRLF(Neues);
        Debug_Vorbereiten();
        Erwarte_Aus();
    }
}

TEST_F(Sitzung_Test, The_way_to_the_first_code_executes_nothing_and_counts_nothing)
{
    ASSERT_TRUE(Programm("MARK:\n(123h): MOV A,#1\n"));
    Erwarte_Stelle(0x123, 0, "(123h): MOV A,#1");
    EXPECT_EQ(Byte(7), 255) << "FFh would have been MOV R7,A";
    EXPECT_EQ(ACC(), 0);
}

TEST_F(Sitzung_Test, A_definition_or_an_ORG_at_0_counts_as_a_line_to_begin_at)
{
    ASSERT_TRUE(Programm("; here\nORG 100h\nMOV A,#1\n"));
    Erwarte_Stelle(0, 0, "ORG 100h");
    Debug_Schritt();
    Erwarte_Stelle(0x100, 256, "MOV A,#1");
}

TEST_F(Sitzung_Test, A_program_without_any_code_has_its_session)
{
    for (const char* Zeilen :
         {"", "\n", "; nothing\n", "LABEL:\n\n\n", "END\n", "; a\nEND\nb\nc\n"}) {
        ASSERT_TRUE(Programm(Zeilen)) << Zeilen;
        Erwarte_Angehalten();
        EXPECT_EQ(Sim_PC, 0);
        EXPECT_EQ(Sim_Zyklen, 0);
        Debug_Runter();
        Debug_Hoch();
        Cursor_In(1);
        Debug_Cursor();
        Debug_Reset_PC();
        EXPECT_EQ(Sim_PC, 0);
        Erwarte_Angehalten();
    }
}

TEST_F(Sitzung_Test, Without_any_code_the_last_row_ahead_of_the_end_mark_is_shown)
{
    ASSERT_TRUE(Programm(""));
    EXPECT_EQ(Auswahl(), "INCLUDE 8051.mc");
    ASSERT_TRUE(Programm("; comment\nEND\n"));
    EXPECT_EQ(Auswahl(), "END");
}

// --- Beenden ---

TEST_F(Sitzung_Test, Leaving_puts_everything_off)
{
    Fenster_Wert(1, Fenster_RAM, Feld::Sichtbar)     = -1;
    Fenster_Wert(1, Fenster_CONTROL, Feld::Sichtbar) = -1;
    ASSERT_TRUE(Programm(Kleines));
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_RAM));
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_CONTROL));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_SFR));
    Debug_Beenden();
    Erwarte_Aus();
    EXPECT_TRUE(Menue("MNU_RAM").Haken) << "remembered for the next session";
}

TEST_F(Sitzung_Test, Sitzung_Beenden_ends_a_session_and_leaves_the_rest_alone)
{
    Fenster.Protokoll.clear();
    Sitzung_Beenden();
    EXPECT_TRUE(Fenster.Protokoll.empty());
    ASSERT_TRUE(Programm(Kleines));
    Sitzung_Beenden();
    Erwarte_Aus();
}

TEST_F(Sitzung_Test, Simulieren_does_nothing_without_a_session)
{
    ASSERT_TRUE(Programm(Kleines));
    Debug_Beenden();
    const auto Vorher = Sim_RAM;
    Simulieren();
    EXPECT_EQ(Sim_RAM, Vorher);
    EXPECT_EQ(Sim_PC, 0);
}

// --- windows ---

TEST_F(Sitzung_Test, The_windows_ticked_for_the_mode_come_with_the_session)
{
    for (int Maske = 0; Maske < 16; ++Maske) {
        for (int i = 0; i < 4; ++i)
            Fenster_Wert(1, Fenster_RAM + i, Feld::Sichtbar) = (Maske >> i & 1) != 0 ? -1 : 0;
        ASSERT_TRUE(Programm(Kleines));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(Fenster.Sichtbar(Fenster_RAM + i), (Maske >> i & 1) != 0) << Maske << i;
        Debug_Beenden();
        Erwarte_Aus();
    }
}

TEST_F(Sitzung_Test, The_menu_toggles_the_windows_only_in_a_session)
{
    struct Fall {
        int Nummer;
        void (*Befehl)();
        Menue_Zustand_T& Eintrag;
    };
    const Fall Faelle[] = {{Fenster_RAM, MNU_RAM_Click, Menue("MNU_RAM")},
                           {Fenster_SFR, MNU_SFR_Click, Menue("MNU_SFR")},
                           {Fenster_EXRAM, MNU_EXRAM_Click, Menue("MNU_EXRAM")},
                           {Fenster_CONTROL, MNU_CONTROL_Click, Menue("MNU_CONTROL")}};
    for (const Fall& f : Faelle) {
        const auto Erwarte = [&](bool An) {
            EXPECT_EQ(Fenster.Sichtbar(f.Nummer), An && Debugger_Aktiv) << f.Nummer;
            EXPECT_EQ(f.Eintrag.Haken, An) << f.Nummer;
            EXPECT_EQ(Fenster_Wert(1, f.Nummer, Feld::Sichtbar), An ? -1 : 0) << f.Nummer;
        };
        f.Befehl();
        Erwarte(false);
        ASSERT_TRUE(Programm(Kleines));
        f.Befehl();
        Erwarte(true);
        f.Befehl();
        Erwarte(false);
        f.Befehl();
        Debug_Beenden();
        Erwarte(true);
        f.Befehl();
        Erwarte(true);
        ASSERT_TRUE(Programm(Kleines));
        Erwarte(true);
        Fenster_Geschlossen(f.Nummer); // by its close box
        Erwarte(false);
        Debug_Beenden();
        ASSERT_TRUE(Programm(Kleines));
        Erwarte(false);
        Debug_Beenden();
    }
}

// --- single step ---

TEST_F(Sitzung_Test, A_step_executes_one_line)
{
    ASSERT_TRUE(Programm(Kleines));
    Debug_Schritt();
    Erwarte_Stelle(2, 1, "INC A");
    EXPECT_EQ(ACC(), 5);
    Debug_Schritt();
    Erwarte_Stelle(3, 2, "STOP");
    EXPECT_EQ(ACC(), 6);
    Erwarte_Angehalten();
    EXPECT_EQ(Text.Ungesperrte, 0);
}

TEST_F(Sitzung_Test, The_stop_word_takes_a_step_of_its_own_at_no_cycles)
{
    ASSERT_TRUE(Programm(Kleines));
    MNU_CONTROL_Click();
    Schritte(2);
    const std::string Zaehler = Sim_Ansichten.L_Zyklen;
    Debug_Schritt();
    Erwarte_Stelle(4, 2, "MOV R0,A");
    EXPECT_EQ(Sim_Ansichten.L_Zyklen, Zaehler);
    EXPECT_EQ(Byte(0), 255);
    Erwarte_Angehalten();
    Debug_Schritt();
    Erwarte_Stelle(5, 3, "SJMP START");
    EXPECT_EQ(Byte(0), 6);
}

TEST_F(Sitzung_Test, Each_of_two_stop_words_takes_its_step)
{
    ASSERT_TRUE(Programm("STOP\nSTOP\nNOP\n"));
    Erwarte_Stelle(0, 0, "STOP");
    EXPECT_EQ(Zeile(), 1);
    Debug_Schritt();
    Erwarte_Stelle(1, 0, "STOP");
    EXPECT_EQ(Zeile(), 2);
    Debug_Schritt();
    Erwarte_Stelle(2, 0, "NOP");
}

TEST_F(Sitzung_Test, A_call_into_an_included_routine_is_stepped_over_as_a_whole)
{
    Include_Datei("sub.inc", Routine);
    ASSERT_TRUE(Programm(Mit_Routine));
    Schritte(2);
    Erwarte_Stelle(5, 7, "INC R3");
    EXPECT_EQ(Byte(1), 2);
    EXPECT_EQ(Byte(SFR::SP), 7);
}

TEST_F(Sitzung_Test, A_call_of_a_routine_in_the_main_text_is_followed)
{
    ASSERT_TRUE(Programm("LCALL SUB1\nSTOP\nSUB1: INC R1\nRET\n"));
    Debug_Schritt();
    Erwarte_Stelle(4, 2, "SUB1: INC R1");
    Schritte(2);
    Erwarte_Stelle(3, 5, "STOP");
}

TEST_F(Sitzung_Test, A_line_of_several_instructions_is_one_step)
{
    ASSERT_TRUE(Programm("MOV A,#5\nIF A = #5 THEN MOV R2,#9\nSTOP\n"));
    Schritte(2);
    EXPECT_EQ(Auswahl(), "STOP");
    EXPECT_EQ(Byte(2), 9);
    EXPECT_EQ(Byte_An(Sim_PC), 0xA5);
}

TEST_F(Sitzung_Test, At_full_speed_a_step_is_one_instruction)
{
    Include_Datei("sub.inc", Routine);
    ASSERT_TRUE(Programm(Mit_Routine));
    Check2_Click(true);
    Schritte(2);
    EXPECT_EQ(Sim_PC, 6);
    EXPECT_EQ(Sim_Zyklen, 3);
    Debug_Schritt();
    EXPECT_EQ(Sim_PC, 7);
    EXPECT_EQ(Byte(1), 1);
    EXPECT_EQ(Sim_Ansichten.RAM[1], 1) << "shown: nothing runs";
    EXPECT_EQ(Auswahl(), "INCLUDE sub.inc");
    Schritte(2);
    Erwarte_Stelle(5, 7, "INC R3");
}

TEST_F(Sitzung_Test, From_the_midst_of_a_line_a_step_runs_on_to_the_next_start)
{
    ASSERT_TRUE(Programm("MOV A,#4\nINC A\nSTOP\n")); // 74 04 04 A5
    Sim_PC = 1;                                       // 04 is INC A
    Debug_Schritt();
    Erwarte_Stelle(2, 1, "INC A");
}

TEST_F(Sitzung_Test, Comments_blank_lines_and_labels_have_no_step)
{
    ASSERT_TRUE(Programm("INC A\n\n; one\nLABEL1:\n\t ; two\nINC A\nLABEL2:\n\nSTOP"));
    Debug_Schritt();
    Erwarte_Stelle(1, 1, "INC A");
    EXPECT_EQ(Zeile(), 6);
    Debug_Schritt();
    Erwarte_Stelle(2, 2, "STOP");
    EXPECT_EQ(Zeile(), 9);
}

TEST_F(Sitzung_Test, Behind_address_65535_the_program_goes_on_at_0)
{
    ASSERT_TRUE(Programm("LJMP LAST\nORG 0FFFFh\nLAST: NOP\n"));
    Debug_Schritt();
    Erwarte_Stelle(0xFFFF, 2, "LAST: NOP");
    Debug_Schritt();
    Erwarte_Stelle(0, 3, "LJMP LAST");
}

TEST_F(Sitzung_Test, Running_off_the_end_executes_what_stands_there)
{
    ASSERT_TRUE(Programm("NOP\n"));
    Debug_Schritt();
    Erwarte_Stelle(0, 65536, "NOP"); // 65535 times MOV R7,A
    EXPECT_EQ(Byte(7), 0);
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Sitzung_Test, Code_behind_an_ORG_is_followed)
{
    ASSERT_TRUE(Programm("LJMP MAIN1\n"
                         "ORG 100h\n"
                         "MAIN2: MOV A,#2\n"
                         "STOP\n"
                         "ORG 200h\n"
                         "MAIN1: MOV A,#1\n"
                         "LJMP MAIN2\n"
                         "END\n"
                         "what stands here is never read\n"
                         "\n"
                         "\n"));
    for (const char* Code : {"MAIN1: MOV A,#1", "LJMP MAIN2", "MAIN2: MOV A,#2", "STOP"}) {
        Debug_Schritt();
        EXPECT_EQ(Auswahl(), Code);
    }
    EXPECT_EQ(ACC(), 2);
    EXPECT_EQ(Sim_Zyklen, 6);
}

TEST_F(Sitzung_Test, Code_behind_an_ORG_that_leads_back_runs_to_its_end)
{
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm("ORG 200h\n"
                             "MAIN1: MOV A,#1\n"
                             "LJMP MAIN2\n"
                             "ORG 100h\n"
                             "MAIN2: INC A\n"
                             "STOP\n"
                             "ORG 0\n"
                             "LJMP MAIN1\n"));
        Check2_Click(Vollgas);
        Debug_Start_Stop();
        Erwarte_Angehalten();
        EXPECT_EQ(Sim_PC, 0x101);
        EXPECT_EQ(ACC(), 2);
        EXPECT_EQ(Sim_Zyklen, 6);
        Debug_Schritt();
        Debug_Schritt();
        EXPECT_GE(Sim_PC, 0);
        Erwarte_Angehalten();
    }
}

TEST_F(Sitzung_Test, A_long_line_lets_a_stop_through)
{
    Include_Datei("sub.inc", "; endless\nSUB1: SJMP SUB1\n");
    ASSERT_TRUE(Programm("LCALL SUB1\nINCLUDE sub.inc\n"));
    In_Runde(3, Debug_Start_Stop);
    Debug_Schritt();
    Erwarte_Angehalten();
    EXPECT_EQ(Sim_PC, 3);
    EXPECT_EQ(Auswahl(), "INCLUDE sub.inc");
}

TEST_F(Sitzung_Test, A_long_line_lets_the_session_end)
{
    Include_Datei("sub.inc", "; endless\nSUB1: SJMP SUB1\n");
    ASSERT_TRUE(Programm("LCALL SUB1\nINCLUDE sub.inc\n"));
    In_Runde(2, Debug_Beenden);
    Debug_Schritt();
    Erwarte_Aus();
}

// --- the free run ---

TEST_F(Sitzung_Test, A_run_that_hits_STOP_ends_with_its_line_selected_and_the_counter_unchanged)
{
    ASSERT_TRUE(Programm(Kleines));
    Debug_Start_Stop();
    Erwarte_Angehalten();
    Erwarte_Stelle(3, 2, "STOP");
    EXPECT_EQ(ACC(), 6);
    EXPECT_EQ(Text.Ungesperrte, 0);
}

TEST_F(Sitzung_Test, A_start_on_a_stop_point_leaves_it)
{
    ASSERT_TRUE(Programm(Kleines));
    Debug_Start_Stop();
    Debug_Start_Stop();
    Erwarte_Stelle(3, 7, "STOP");
    EXPECT_EQ(Byte(0), 6) << "from behind the stop byte once round";
}

TEST_F(Sitzung_Test, A_start_leaves_one_stop_point_only)
{
    ASSERT_TRUE(Programm("STOP\nSTOP\nNOP\nSTOP\n"));
    for (const int Adresse : {1, 3}) {
        Debug_Start_Stop();
        EXPECT_EQ(Sim_PC, Adresse);
        EXPECT_EQ(Auswahl(), "STOP");
    }
    EXPECT_EQ(Sim_Zyklen, 1);
}

TEST_F(Sitzung_Test, Stop_points_work_wherever_they_stand)
{
    Include_Datei("sub.inc", "SUB1: INC R1\nSTOP\nRET\n");
    ASSERT_TRUE(Programm("LCALL SUB1\nSTOP\nINCLUDE sub.inc\n"));
    Debug_Start_Stop();
    Erwarte_Stelle(5, 3, "INCLUDE sub.inc");
    Debug_Start_Stop();
    Erwarte_Stelle(3, 5, "STOP");
}

TEST_F(Sitzung_Test, A_last_line_without_a_line_end_is_followed_like_any_other)
{
    ASSERT_TRUE(Programm("INC A\nSTOP"));
    Debug_Schritt();
    Erwarte_Stelle(1, 1, "STOP");
    Debug_Reset_PC();
    Debug_Start_Stop();
    Erwarte_Stelle(1, 2, "STOP");
    ASSERT_TRUE(Programm("LOOP: INC A\nSJMP LOOP"));
    Debug_Schritt();
    Erwarte_Stelle(1, 1, "SJMP LOOP");
    Debug_Schritt();
    Erwarte_Stelle(0, 3, "LOOP: INC A");
}

TEST_F(Sitzung_Test, A_second_press_stops_the_run_behind_one_more_line)
{
    ASSERT_TRUE(Programm(Endloses));
    In_Runde(1, [this] {
        EXPECT_TRUE(Debug_Laeuft);
        EXPECT_EQ(Sim_PC, 1);
        Debug_Start_Stop();
        EXPECT_TRUE(Debug_Stop);
        EXPECT_TRUE(Debug_Laeuft) << "it ends at its next look";
    });
    Debug_Start_Stop();
    Erwarte_Angehalten();
    Erwarte_Stelle(0, 3, "LOOP: INC A");
}

TEST_F(Sitzung_Test, At_full_speed_the_closing_call_is_one_instruction)
{
    ASSERT_TRUE(Programm(Endloses));
    Check2_Click(true);
    std::int32_t Zyklen = 0;
    In_Runde(1, [&] {
        Zyklen = Sim_Zyklen;
        Debug_Start_Stop();
    });
    Debug_Start_Stop();
    Erwarte_Angehalten();
    EXPECT_GT(Zyklen, 0);
    EXPECT_EQ(Sim_Zyklen - Zyklen, Sim_PC == 1 ? 1 : 2);
    EXPECT_EQ(Auswahl(), Sim_PC == 1 ? "SJMP LOOP" : "LOOP: INC A");
}

TEST_F(Sitzung_Test, The_start_command_reads_stop_while_it_runs)
{
    for (const auto& [Kennung, Starten, Stoppen] :
         {std::array{"D", "Starten", "Stoppen"}, std::array{"E", "Start", "Stop"}}) {
        Sprache = Kennung;
        ASSERT_TRUE(Programm(Endloses));
        In_Runde(1, [&, Text_Im_Lauf = std::string(Stoppen)] {
            EXPECT_EQ(Menue("MNU_deb_Starten").Titel, Text_Im_Lauf);
            EXPECT_EQ(Werkzeug(24).Hinweis, Text_Im_Lauf);
            Debug_Start_Stop();
        });
        Debug_Start_Stop();
        EXPECT_EQ(Menue("MNU_deb_Starten").Titel, Starten);
        EXPECT_EQ(Werkzeug(24).Hinweis, Starten);
    }
}

TEST_F(Sitzung_Test, The_start_command_reads_stop_while_a_step_takes_long)
{
    Include_Datei("sub.inc", "; endless\nSUB1: SJMP SUB1\n");
    for (const auto& [Kennung, Stop, Start] :
         {std::tuple{"D", "Stoppen", "Starten"}, std::tuple{"E", "Stop", "Start"}}) {
        Sprache = Kennung;
        ASSERT_TRUE(Programm("LCALL SUB1\nINCLUDE sub.inc\n"));
        std::string Titel;
        In_Runde(3, [&] {
            Titel = Menue("MNU_deb_Starten").Titel;
            EXPECT_EQ(Werkzeug(24).Hinweis, Stop);
            Debug_Start_Stop();
        });
        Debug_Schritt();
        EXPECT_EQ(Titel, Stop);
        EXPECT_EQ(Menue("MNU_deb_Starten").Titel, Start);
        EXPECT_EQ(Werkzeug(24).Hinweis, Start);
    }
}

TEST_F(Sitzung_Test, A_step_that_is_soon_through_takes_no_turn)
{
    Include_Datei("sub.inc", "; 511 instructions\nSUB1: DJNZ R0,SUB1\nSUB2: DJNZ R0,SUB2\n RET\n");
    ASSERT_TRUE(Programm("LOOP: LCALL SUB1\nSJMP LOOP\nINCLUDE sub.inc\n"));
    Ereignisse.Je_Blick = 0.001;
    for (int i = 0; i < 3; ++i) {
        Ereignisse.Uhrzeit += 10; // the user thinks it over
        const int Runden = Ereignisse.Runden;
        Debug_Schritt();
        Erwarte_Stelle(3, Sim_Zyklen, "SJMP LOOP");
        Debug_Schritt();
        EXPECT_EQ(Ereignisse.Runden, Runden) << "the button would flash";
    }
    EXPECT_GT(Sim_Zyklen, 3 * 511);
    Ereignisse.Je_Blick = 0.015; // the second look is due
    Ereignisse.Uhrzeit += 10;
    const int Runden = Ereignisse.Runden;
    Debug_Schritt();
    EXPECT_EQ(Ereignisse.Runden, Runden + 1);
}

TEST_F(Sitzung_Test, A_run_shows_the_control_panel)
{
    ASSERT_TRUE(Programm(Kleines));
    EXPECT_FALSE(Fenster.Sichtbar(Fenster_CONTROL));
    Debug_Start_Stop();
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_CONTROL));
    EXPECT_TRUE(Menue("MNU_CONTROL").Haken);
    EXPECT_EQ(Fenster_Wert(1, Fenster_CONTROL, Feld::Sichtbar), -1);
    Debug_Start_Stop();
    EXPECT_TRUE(Fenster.Sichtbar(Fenster_CONTROL)) << "shown, not toggled";
}

TEST_F(Sitzung_Test, Running_from_a_stop_through_the_wrap)
{
    ASSERT_TRUE(Programm("MOV A,#1\nLJMP LAST\nORG 0FFFEh\nLAST: STOP\nINC A\n"));
    Debug_Start_Stop();
    Erwarte_Stelle(0xFFFE, 3, "LAST: STOP");
    Byte(SFR::ACC) = 7;
    Debug_Start_Stop();
    Erwarte_Stelle(0xFFFE, 7, "LAST: STOP");
    EXPECT_EQ(ACC(), 1);
}

TEST_F(Sitzung_Test, A_stop_point_at_the_last_address_is_left_to_address_0)
{
    ASSERT_TRUE(Programm("INC A\nLJMP LAST\nORG 0FFFFh\nLAST: STOP\n"));
    Debug_Start_Stop();
    Erwarte_Stelle(0xFFFF, 3, "LAST: STOP");
    Debug_Start_Stop();
    EXPECT_EQ(Sim_PC, 0xFFFF);
    EXPECT_EQ(ACC(), 2);
}

TEST_F(Sitzung_Test, A_stop_point_at_the_last_address_is_stepped_over_to_address_0)
{
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm("INC A\nLJMP LAST\nORG 0FFFFh\nLAST: STOP\n"));
        Check2_Click(Vollgas);
        Debug_Start_Stop();
        Erwarte_Stelle(0xFFFF, 3, "LAST: STOP");
        Debug_Schritt();
        Erwarte_Stelle(0, 3, "INC A");
        Debug_Start_Stop();
        Erwarte_Stelle(0xFFFF, 6, "LAST: STOP");
        EXPECT_EQ(ACC(), 2);
    }
}

TEST_F(Sitzung_Test, An_instruction_that_wraps_round_comes_to_a_stop_point_at_address_0)
{
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm("STOP\nLJMP LAST\nORG 0FFFFh\nLAST: INC A\n"));
        Check2_Click(Vollgas);
        Debug_Start_Stop();
        Erwarte_Stelle(0, 3, "STOP");
        EXPECT_EQ(ACC(), 1);
    }
}

TEST_F(Sitzung_Test, The_delay_comes_behind_each_call_of_a_run)
{
    ASSERT_TRUE(Programm(Kleines));
    Check1_Click(true);
    const double Vorher = Ereignisse.Gewartet;
    Debug_Start_Stop(); // MOV, INC, STOP
    EXPECT_NEAR(Ereignisse.Gewartet - Vorher, 3 * 0.2, 1e-6);
    Debug_Schritt();
    Debug_Schritt();
    EXPECT_NEAR(Ereignisse.Gewartet - Vorher, 3 * 0.2, 1e-6) << "not behind a single step";
    Erwarte_Stelle(5, 3, "SJMP START");
}

TEST_F(Sitzung_Test, A_delayed_run_shows_each_line_and_can_be_stopped)
{
    Pausen_Schleife Schleife;
    Plattform.Ereignisse = &Schleife;
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm(Endloses));
        Check1_Click(true);
        Check2_Click(Vollgas);
        std::vector<std::string> Gesehen;
        Schleife.Bei_Runde = [&](int) {
            if (!Debug_Laeuft)
                return;
            Gesehen.push_back(Auswahl());
            if (Gesehen.size() == 4)
                Debug_Start_Stop();
        };
        Debug_Start_Stop();
        Schleife.Bei_Runde  = {};
        const std::string a = "LOOP: INC A";
        const std::string b = "SJMP LOOP";
        EXPECT_EQ(Gesehen,
                  (Vollgas ? std::vector<std::string>{a, a, a, a}
                           : std::vector<std::string>{b, a, b, a}));
        Erwarte_Stelle(1, 7, b);
        Debug_Beenden();
    }
}

TEST_F(Sitzung_Test, A_run_has_its_turns_at_least_25_times_a_second)
{
    Ereignisse.Je_Blick = 0.001;
    ASSERT_TRUE(Programm(Endloses));
    double Zuletzt = Ereignisse.Uhrzeit;
    In_Jeder_Runde([&](int Runde) {
        EXPECT_LE(Ereignisse.Uhrzeit - Zuletzt, 0.04);
        EXPECT_EQ(Auswahl(), Sim_PC == 0 ? "LOOP: INC A" : "SJMP LOOP") << "and its place shown";
        EXPECT_EQ(Sim_Ansichten.SFR[SFR::ACC], ACC());
        if (Runde == 20)
            Ereignisse.Uhrzeit = 0.5; // midnight
        Zuletzt = Ereignisse.Uhrzeit;
        if (Runde == 40)
            Debug_Start_Stop();
    });
    Debug_Start_Stop();
    Erwarte_Angehalten();
}

TEST_F(Sitzung_Test, A_run_inside_an_endless_included_routine_can_be_stopped)
{
    Include_Datei("sub.inc", "; endless\nSUB1: SJMP SUB1\n");
    ASSERT_TRUE(Programm("LCALL SUB1\nINCLUDE sub.inc\n"));
    int Tiefe    = 0;
    int Tiefstes = 0;
    In_Jeder_Runde([&](int Runde) {
        Tiefstes = std::max(Tiefstes, ++Tiefe);
        if (Runde >= 2)
            Debug_Start_Stop(); // the user presses again and again
        --Tiefe;
    });
    Debug_Start_Stop();
    Erwarte_Angehalten();
    EXPECT_EQ(Tiefstes, 1) << "no run inside the other";
    EXPECT_EQ(Sim_PC, 3);
}

// --- below address 0 ---

TEST_F(Sitzung_Test, Below_address_0_the_message_comes_once_and_the_session_stays)
{
    for (const bool Vollgas : {false, true})
        for (const auto& [Kennung, Meldung] :
             {std::pair{"D", Unter_Null_D}, std::pair{"E", Unter_Null_E}}) {
            Sprache = Kennung;
            Box.Meldungen.clear();
            ASSERT_TRUE(Programm("DB 80h,80h\n")); // SJMP to -126
            Check2_Click(Vollgas);
            Debug_Start_Stop();
            Erwarte_Angehalten();
            EXPECT_EQ(Sim_PC, -126);
            EXPECT_EQ(Letzte_Meldung(), Meldung);
            EXPECT_EQ(Box.Meldungen.size(), 1U);
            EXPECT_EQ(Sim_Ansichten.L_Adr, "00126 / FFFFFF82h") << "where it stands";
            EXPECT_EQ(Sim_Ansichten.L_Zyklen, "00002 / 00002h");
            Debug_Reset_PC();
            Erwarte_Stelle(0, 2, "DB 80h,80h");
        }
}

TEST_F(Sitzung_Test, Below_address_0_each_further_command_keeps_the_place_or_leaves_it)
{
    ASSERT_TRUE(Programm("DB 80h,80h\n"));
    Debug_Schritt();
    EXPECT_EQ(Box.Meldungen.size(), 1U);
    Debug_Schritt();
    EXPECT_EQ(Box.Meldungen.size(), 2U);
    Debug_Start_Stop();
    EXPECT_EQ(Box.Meldungen.size(), 3U);
    Debug_Hoch();
    EXPECT_EQ(Sim_PC, -126);
    EXPECT_EQ(Sim_Zyklen, 2);
    Debug_Runter();
    Erwarte_Stelle(0, 2, "DB 80h,80h");
    Debug_Schritt();
    Cursor_In(1);
    Debug_Cursor();
    EXPECT_EQ(Sim_PC, 0);
}

// --- moves ---

TEST_F(Sitzung_Test, Upwards_goes_to_the_row_above_and_executes_nothing)
{
    ASSERT_TRUE(Programm(Kleines));
    MNU_CONTROL_Click();
    Schritte(2);
    const auto RAM = Sim_RAM;
    Debug_Hoch();
    Erwarte_Stelle(2, 2, "INC A");
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00002 / 00002h");
    Debug_Hoch();
    Erwarte_Stelle(0, 2, "MOV A,#5");
    EXPECT_EQ(Sim_RAM, RAM);
}

TEST_F(Sitzung_Test, Upwards_at_address_0_does_nothing)
{
    ASSERT_TRUE(Programm(Kleines));
    Cursor_In(2);
    Debug_Hoch();
    EXPECT_EQ(Sim_PC, 0);
    EXPECT_EQ(Zeile(), 2) << "not even the selection moves";
}

TEST_F(Sitzung_Test, Upwards_from_the_midst_of_an_instruction_goes_to_its_start)
{
    ASSERT_TRUE(Programm(Kleines));
    Sim_PC = 1;
    Debug_Hoch();
    EXPECT_EQ(Sim_PC, 0);
}

TEST_F(Sitzung_Test, Upwards_from_below_the_first_row_goes_to_its_address)
{
    ASSERT_TRUE(Beginne("(100h): MOV A,#1\nINC A\nINCLUDE 8051.mc\n"));
    Sim_PC = 0x50;
    Debug_Hoch();
    Erwarte_Stelle(0x100, 0, "(100h): MOV A,#1");
}

TEST_F(Sitzung_Test, Upwards_goes_into_an_included_file_row_by_row)
{
    Include_Datei("sub.inc", Routine);
    ASSERT_TRUE(Programm(Mit_Routine));
    Cursor_In(5);
    Debug_Cursor();
    ASSERT_EQ(Sim_PC, 9);
    for (const int Adresse : {8, 7, 6, 5, 2, 0, 0}) {
        Debug_Hoch();
        EXPECT_EQ(Sim_PC, Adresse);
        EXPECT_EQ(Auswahl() == "INCLUDE sub.inc", Adresse >= 6);
    }
}

TEST_F(Sitzung_Test, Downwards_passes_one_line_and_executes_nothing)
{
    Include_Datei("sub.inc", Routine);
    ASSERT_TRUE(Programm(Mit_Routine));
    MNU_CONTROL_Click();
    const auto RAM = Sim_RAM;
    Debug_Runter();
    Erwarte_Stelle(2, 0, "LCALL SUB1");
    Debug_Runter();
    Erwarte_Stelle(5, 0, "INC R3");
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00005 / 00005h");
    Debug_Runter();
    Erwarte_Stelle(9, 0, "NOP");
    EXPECT_EQ(Sim_RAM, RAM);
}

TEST_F(Sitzung_Test, Downwards_behind_the_last_line_comes_round_to_the_first)
{
    ASSERT_TRUE(Programm("MOV A,#1\nINC A\n"));
    Debug_Runter();
    EXPECT_EQ(Sim_PC, 2);
    Debug_Runter();
    Erwarte_Stelle(0, 0, "MOV A,#1");
}

TEST_F(Sitzung_Test, Downwards_passes_a_stop_point_as_one_byte)
{
    ASSERT_TRUE(Programm("STOP\nINC A\n"));
    Debug_Runter();
    Erwarte_Stelle(1, 0, "INC A");
}

TEST_F(Sitzung_Test, Downwards_ends_where_no_line_can_be_met)
{
    Include_Datei("all.inc", "LOOP: INC A\nSJMP LOOP\n");
    ASSERT_TRUE(Beginne("INCLUDE 8051.mc\nINCLUDE all.inc"));
    Debug_Runter();
    Erwarte_Angehalten();
    EXPECT_EQ(Sim_Zyklen, 0);
}

TEST_F(Sitzung_Test, Downwards_from_the_last_address_comes_round_to_the_first_line)
{
    for (const char* Letzte : {"NOP", "INC 30h", "LJMP LAST"}) {
        ASSERT_TRUE(Programm("INC A\nORG 0FFFFh\nLAST: " + std::string(Letzte) + "\n"));
        MNU_CONTROL_Click();
        Sim_PC = 0xFFFF;
        Debug_Runter();
        Erwarte_Stelle(0, 0, "INC A");
        EXPECT_EQ(Sim_Ansichten.L_Adr, "00000 / 00000h");
        Debug_Schritt();
        EXPECT_EQ(ACC(), 1);
        Debug_Beenden();
        Fenster_Wert(1, Fenster_CONTROL, Feld::Sichtbar) = 0;
    }
}

TEST_F(Sitzung_Test, Downwards_from_the_last_address_passes_a_first_routine_that_is_included)
{
    Include_Datei("sub.inc", "SUB1: INC R1\nRET\n");
    ASSERT_TRUE(Programm("INCLUDE sub.inc\nINC A\nORG 0FFFFh\nNOP\n"));
    Sim_PC = 0xFFFF;
    Debug_Runter();
    Erwarte_Stelle(2, 0, "INC A");
}

// --- jump to cursor ---

TEST_F(Sitzung_Test, The_cursor_on_a_comment_line_leads_to_the_next_code)
{
    ASSERT_TRUE(Programm("INC A\n; comment\n\nLABEL:\nINC A\nSTOP\n"));
    MNU_CONTROL_Click();
    const auto RAM = Sim_RAM;
    for (const int Nummer : {2, 3, 4, 5}) {
        Cursor_In(Nummer);
        Debug_Cursor();
        Erwarte_Stelle(1, 0, "INC A");
        EXPECT_EQ(Zeile(), 5) << Nummer;
        EXPECT_EQ(Sim_Ansichten.L_Adr, "00001 / 00001h");
    }
    EXPECT_EQ(Sim_RAM, RAM);
    Debug_Schritt();
    Erwarte_Stelle(2, 1, "STOP");
}

TEST_F(Sitzung_Test, The_cursor_finds_its_line_behind_several_includes)
{
    Include_Datei("sub.inc", Routine);
    Include_Datei("two.inc", "; two\nINC R2\n");
    ASSERT_TRUE(Beginne("MOV A,#1\n"        // 0
                        "INCLUDE 8051.mc\n" // 1
                        "INC A\n"           // 2
                        "INCLUDE sub.inc\n" // 3 to 5
                        "DEC A\n"           // 6
                        "INCLUDE two.inc\n" // 7
                        "; end\n"           //
                        "CPL A\n"));        // 8
    const std::pair<int, int> Faelle[] = {
        {0, 0}, {1, 2}, {2, 2}, {3, 3}, {4, 6}, {5, 7}, {6, 8}, {7, 8}};
    for (const auto& [Nummer, Adresse] : Faelle) {
        Cursor_In(Nummer);
        Debug_Cursor();
        EXPECT_EQ(Sim_PC, Adresse) << Nummer;
    }
    EXPECT_EQ(Auswahl(), "CPL A");
}

TEST_F(Sitzung_Test, The_cursor_anywhere_in_the_text_gives_an_address)
{
    ASSERT_TRUE(Programm("INC A\nEND\nINC A\nnonsense\n"));
    for (std::int64_t i = 0; i <= Text.Laenge(); ++i) {
        Text.Auswaehlen(i, 0);
        Debug_Cursor();
        EXPECT_GE(Sim_PC, 0);
        EXPECT_LE(Sim_PC, 65535);
        Erwarte_Angehalten();
    }
    Schritte(2);
    EXPECT_LE(Sim_PC, 65535);
}

TEST_F(Sitzung_Test, The_cursor_behind_the_end_leads_to_the_first_line)
{
    for (const auto& [Ende, Nummer] : {std::pair{"END\nINC R0\nnonsense\n", 4},
                                       std::pair{"END\nINC R0\nnonsense", 5},
                                       std::pair{"", 3}})
        for (const bool Vollgas : {false, true}) {
            ASSERT_TRUE(Programm("INC A\nINC A\n" + std::string(Ende)));
            Check2_Click(Vollgas);
            Debug_Schritt();
            Cursor_In(Nummer);
            Debug_Cursor();
            Erwarte_Stelle(0, 1, "INC A");
            EXPECT_EQ(Zeile(), 1);
            Debug_Schritt();
            Erwarte_Stelle(1, 2, "INC A");
            EXPECT_EQ(ACC(), 2);
        }
}

// --- resets ---

TEST_F(Sitzung_Test, The_reset_of_the_address_keeps_the_rest)
{
    ASSERT_TRUE(Programm(Kleines));
    MNU_CONTROL_Click();
    Schritte(2);
    Sim_Prio       = 1;
    const auto RAM = Sim_RAM;
    Debug_Reset_PC();
    Erwarte_Stelle(0, 2, "MOV A,#5");
    EXPECT_EQ(Sim_Ansichten.L_Adr, "00000 / 00000h");
    EXPECT_EQ(Sim_Prio, 1);
    EXPECT_EQ(Sim_RAM, RAM);
}

TEST_F(Sitzung_Test, The_reset_of_the_memories_keeps_address_and_counter)
{
    ASSERT_TRUE(Programm("MOV SP,#40h\nMOV PSW,#18h\nPUSH ACC\nSTOP\n"));
    Schritte(2);
    EXPECT_EQ(Sim_Bank, 3);
    Sim_Prio     = 1;
    Byte(300)    = 1;
    Sim_XRAM[99] = 1;
    Debug_Reset_Speicher();
    Erwarte_Stelle(6, 4, "PUSH ACC");
    EXPECT_EQ(Sim_Prio, -1);
    EXPECT_EQ(Byte(300), 255);
    EXPECT_EQ(Sim_XRAM[99], 255);
    EXPECT_EQ(Sim_Ansichten.RAM[300], 255);
    EXPECT_EQ(Sim_Ansichten.XRAM[99], 255);
    EXPECT_EQ(Sim_Ansichten.SFR[SFR::SP], 7);
    EXPECT_EQ(Sim_Ansichten.RAM_Namen[0], "R0") << "the names go back with PSW";
    Debug_Schritt();
    EXPECT_EQ(Byte(SFR::SP), 8);
    EXPECT_EQ(Byte(8), 0);
}

// --- commands that arrive while a program runs ---

TEST_F(Sitzung_Test, A_step_does_nothing_while_a_program_runs)
{
    ASSERT_TRUE(Programm(Endloses));
    In_Runde(1, [] {
        const auto RAM = Sim_RAM;
        Debug_Schritt();
        EXPECT_EQ(Sim_RAM, RAM);
        EXPECT_EQ(Sim_PC, 1);
        Debug_Start_Stop();
        Debug_Schritt();
        EXPECT_TRUE(Debug_Stop) << "nor takes it the stop back";
    });
    Debug_Start_Stop();
    Erwarte_Stelle(0, 3, "LOOP: INC A");
}

TEST_F(Sitzung_Test, A_new_address_counts_from_the_next_instruction_on)
{
    struct Fall {
        std::function<void()> Befehl; // behind the first INC A
        int                   ACC;
        std::int32_t          Zyklen;
    };
    const auto Zum_Cursor = [this] {
        Cursor_In(4);
        Debug_Cursor();
    };
    const Fall Faelle[] = {{Debug_Reset_PC, 112, 5},
                           {Debug_Hoch, 112, 5},
                           {Debug_Runter, 111, 3},
                           {Zum_Cursor, 101, 2}};
    for (const Fall& f : Faelle) {
        ASSERT_TRUE(Programm("INC A\nNOP\nADD A,#10\nADD A,#100\nSTOP\n"));
        In_Runde(1, f.Befehl);
        Debug_Start_Stop();
        Erwarte_Stelle(6, f.Zyklen, "STOP");
        EXPECT_EQ(ACC(), f.ACC);
    }
}

TEST_F(Sitzung_Test, The_memories_can_be_reset_while_a_program_runs)
{
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm("MOV 30h,#1\nLOOP: SJMP LOOP\n"));
        Check2_Click(Vollgas);
        In_Runde(1, [] {
            Debug_Reset_Speicher();
            EXPECT_EQ(Byte(0x30), 255);
            EXPECT_EQ(Sim_Ansichten.RAM[0x30], 255) << "shown, also at full speed";
            EXPECT_TRUE(Debug_Laeuft);
            Debug_Start_Stop();
        });
        Debug_Start_Stop();
        Erwarte_Angehalten();
        EXPECT_EQ(Byte(0x30), 255);
        EXPECT_EQ(Auswahl(), "LOOP: SJMP LOOP");
    }
}

TEST_F(Sitzung_Test, Leaving_the_session_ends_a_run)
{
    for (const bool Vollgas : {false, true}) {
        ASSERT_TRUE(Programm(Endloses));
        Check2_Click(Vollgas);
        std::int32_t Zyklen = 0;
        In_Runde(1, [&] {
            Zyklen = Sim_Zyklen;
            Cursor_In(0);
            Debug_Beenden();
        });
        Debug_Start_Stop();
        Erwarte_Aus();
        EXPECT_EQ(Sim_Zyklen, Zyklen) << "nothing more was executed";
        EXPECT_EQ(Zeile(), 0) << "nor shown";
        EXPECT_EQ(Menue("MNU_deb_Starten").Titel, "Start");
    }
}

TEST_F(Sitzung_Test, Preparing_while_a_program_runs_leads_to_the_first_line)
{
    Include_Datei("sub.inc", "; endless\nSUB1: SJMP SUB1\n");
    for (const char* Zeilen : {Endloses, "LCALL SUB1\nINCLUDE sub.inc\n"})
        for (const bool Vollgas : {false, true}) {
            ASSERT_TRUE(Programm(Zeilen));
            Check2_Click(Vollgas);
            const std::string Erste = Auswahl();
            In_Runde(3, Debug_Vorbereiten);
            Debug_Start_Stop();
            Erwarte_Angehalten();
            Erwarte_Stelle(0, 0, Erste);
        }
}

TEST_F(Sitzung_Test, Preparing_in_a_long_step_leads_to_the_first_line)
{
    Include_Datei("sub.inc", "; endless\nSUB1: SJMP SUB1\n");
    ASSERT_TRUE(Programm("INC A\nLCALL SUB1\nINCLUDE sub.inc\n"));
    Debug_Schritt();
    In_Runde(2, Debug_Vorbereiten);
    Debug_Schritt();
    Erwarte_Angehalten();
    Erwarte_Stelle(0, 0, "INC A");
}

TEST_F(Sitzung_Test, Preparing_a_broken_text_while_a_program_runs_ends_the_session)
{
    ASSERT_TRUE(Programm(Endloses));
    In_Runde(2, [this] {
        Text.Inhalt = Mit_CRLF("INCLUDE 8051.mc\nNONSENSE\n");
        Debug_Vorbereiten();
    });
    Debug_Start_Stop();
    Erwarte_Aus();
}

TEST_F(Sitzung_Test, Leaving_and_preparing_in_one_turn_leads_to_the_first_line)
{
    ASSERT_TRUE(Programm(Endloses));
    In_Runde(2, [] {
        Debug_Beenden();
        Debug_Vorbereiten();
    });
    Debug_Start_Stop();
    Erwarte_Angehalten();
    Erwarte_Stelle(0, 0, "LOOP: INC A");
}

TEST_F(Sitzung_Test, An_edit_while_a_program_runs_counts_from_the_next_instruction_on)
{
    ASSERT_TRUE(Programm("LOOP: MOV A,30h\nCJNE A,#12h,LOOP\nSTOP\n"));
    In_Runde(5, [] { Hex_Uebernehmen(Sicht::RAM, "30", "12"); });
    Debug_Start_Stop();
    Erwarte_Angehalten();
    EXPECT_EQ(Auswahl(), "STOP");
    EXPECT_EQ(ACC(), 0x12);
}

TEST_F(Sitzung_Test, The_switches_can_change_while_a_program_runs)
{
    Pausen_Schleife Schleife;
    Plattform.Ereignisse = &Schleife;
    ASSERT_TRUE(Programm(Endloses));
    int Im_Lauf        = 0;
    Schleife.Bei_Runde = [&](int) {
        if (!Debug_Laeuft)
            return;
        ++Im_Lauf;
        Check2_Click(Im_Lauf % 2 != 0);
        Check1_Click(Im_Lauf % 3 == 0);
        if (Im_Lauf == 12)
            Debug_Start_Stop();
    };
    Debug_Start_Stop();
    EXPECT_EQ(Im_Lauf, 12);
    Erwarte_Angehalten();
    EXPECT_EQ(ACC(), (Sim_Zyklen + 2) / 3 % 256) << "three cycles a round, INC A first";
}

// --- full speed and steps end in the same state ---

// A program that ends at STOP: straight pieces, loops, calls, both memories, stack and banks.
std::string Zufalls_Zeilen(bool Interrupt)
{
    constexpr std::array Vorlagen = {"MOV A,#%",
                                     "ADD A,#%",
                                     "ADDC A,#%",
                                     "SUBB A,#%",
                                     "INC A",
                                     "DEC A",
                                     "MOV R0,#%",
                                     "MOV R1,A",
                                     "MOV @R0,A",
                                     "MOV A,@R0",
                                     "INC @R0",
                                     "XCH A,R1",
                                     "MOV DPTR,#%",
                                     "INC DPTR",
                                     "MOVX @DPTR,A",
                                     "MOVX A,@DPTR",
                                     "MUL AB",
                                     "DIV AB",
                                     "DA A",
                                     "SETB RS0",
                                     "CLR RS0",
                                     "CPL C",
                                     "RLC A",
                                     "PUSH ACC\nPOP B",
                                     "LCALL SUB1",
                                     "LCALL SUB2",
                                     "; comment",
                                     "",
                                     "CJNE A,#%,MX!\nMX!:",
                                     "JNB ACC.3,MX!\nINC R3\nMX!:",
                                     "MOV 7Fh,#3\nMX!: INC R2\nDJNZ 7Fh,MX!",
                                     "IF A = % THEN INC R4"};
    const auto           Wahl     = *rc::gen::container<std::vector<int>>(
        30, rc::gen::inRange(0, static_cast<int>(Vorlagen.size())));
    std::string Zeilen = Interrupt ? "LJMP MAIN\nORG 0Bh\nINC 40h\nRETI\nMAIN: MOV TMOD,#2\n"
                                     "MOV TH0,#0F0h\nMOV IE,#82h\nSETB TR0\n"
                                   : "";
    int         Nummer = 100;
    for (const int w : Wahl) {
        for (const char c : std::string(Vorlagen[static_cast<std::size_t>(w)]) + "\n")
            Zeilen += c == '%'   ? std::to_string(*rc::gen::inRange(0, 256))
                      : c == '!' ? std::to_string(Nummer)
                                 : std::string(1, c);
        ++Nummer;
    }
    return Zeilen + "STOP\nSUB1: INC R5\nRET\nINCLUDE sub2.inc\n";
}

RC_GTEST_FIXTURE_PROP(Sitzung_Test, Full_speed_run_and_steps_end_in_the_same_state, ())
{
    Include_Datei("sub2.inc", "SUB2: INC R6\nMOV A,R6\nSUB3: RET\n");
    const std::string Zeilen = Zufalls_Zeilen(*rc::gen::arbitrary<bool>());
    const auto        Enden  = [&](const std::function<void()>& Laufen) {
        RC_ASSERT(Programm(Zeilen));
        Sim_Pins = {};
        Laufen();
        Check2_Click(false);
        RC_ASSERT(Auswahl() == "STOP");
        RC_ASSERT(Sim_Ansichten.SFR == Sim_RAM);
        RC_ASSERT(Sim_Ansichten.XRAM == Sim_XRAM);
        Maschine_T Ende = Maschine;
        Ende.Sim_Bits   = {}; // scratch
        return Ende;
    };
    const auto Gleich = [](const Maschine_T& a, const Maschine_T& b) {
        return a.Sim_RAM == b.Sim_RAM && a.Sim_XRAM == b.Sim_XRAM && a.Sim_PC == b.Sim_PC &&
               a.Sim_Zyklen == b.Sim_Zyklen && a.Sim_Pins == b.Sim_Pins &&
               a.Sim_Prio == b.Sim_Prio && a.Sim_Bank == b.Sim_Bank && a.Sim_Zeile == b.Sim_Zeile;
    };
    const Maschine_T Lauf_Normal  = Enden(Debug_Start_Stop);
    const Maschine_T Lauf_Vollgas = Enden([] {
        Check2_Click(true);
        Debug_Start_Stop();
    });
    const Maschine_T Schrittweise = Enden([] {
        for (int i = 0; i < 5000 && Byte_An(Sim_PC) != 0xA5; ++i)
            Debug_Schritt();
    });
    const Maschine_T Befehlsweise = Enden([] {
        Check2_Click(true);
        for (int i = 0; i < 5000 && Byte_An(Sim_PC) != 0xA5; ++i)
            Debug_Schritt();
    });
    const Maschine_T Gewechselt   = Enden([this] {
        In_Jeder_Runde([](int n) { Check2_Click(n == 5); });
        Debug_Start_Stop();
    });
    RC_ASSERT(Gleich(Lauf_Normal, Lauf_Vollgas));
    RC_ASSERT(Gleich(Lauf_Normal, Schrittweise));
    RC_ASSERT(Gleich(Lauf_Normal, Befehlsweise));
    RC_ASSERT(Gleich(Lauf_Normal, Gewechselt));
}

} // namespace
} // namespace varnholt::test
