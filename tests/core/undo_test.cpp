// The ring of snapshots, undo and redo, the autosave series.
#include "core/commands.h"
#include "core/instance.h"
#include "core/menu.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "core/undo.h"
#include "core/undo_file.h"
#include "files/Dateien_Welt.h"
#include "files/Textdatei.h"
#include "support/Tippen.h"

#include <csignal>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <sys/resource.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// A text control that notes where the caret was put, and may show more than Windows-1252.
class Merk_Text : public Speicher_Text {
public:
    void Auswaehlen(std::int64_t Anfang, std::int64_t Laenge_Der_Auswahl) override
    {
        Wege.emplace_back(Anfang, Laenge_Der_Auswahl);
        Speicher_Text::Auswaehlen(Anfang, Laenge_Der_Auswahl);
    }
    void Text_Setzen(std::string Neuer) override
    {
        Gesperrt_Beim_Setzen   = Text_Sperre;
        Gezeichnet_Beim_Setzen = !Zeichnen_Steht;
        Speicher_Text::Text_Setzen(std::move(Neuer));
    }
    std::string Text_UTF8() const override
    {
        return Mehr.empty() ? Speicher_Text::Text_UTF8() : Mehr;
    }

    std::vector<std::pair<std::int64_t, std::int64_t>> Wege{};
    std::string Mehr{}; // the text in UTF-8 where Windows-1252 doesn't do
    bool        Gesperrt_Beim_Setzen   = false;
    bool        Gezeichnet_Beim_Setzen = true;
};

class Undo_Test : public Welt {
protected:
    Undo_Test()
    {
        Programm_Pfad = Ordner.Name("");
        fs::create_directory(Ordner.Pfad / "Undo");
        fs::create_directory(Ordner.Pfad / "Autosave");
        Ereignisse.Je_Blick = 0;
        Autosave_Zeit       = Ereignisse.Uhrzeit;
        Plattform.Edit      = &Feld;
        Modus               = Modus_MC;
        Undo_Zuruecksetzen();
    }

    void        Tippen(const std::string& Neuer) { Tippen_In(Feld, Neuer); }
    static void Verlassen() { Zeile_Verlassen(); }
    void        Zeile_Schreiben(const std::string& Neuer)
    {
        Tippen(Neuer);
        Verlassen();
    }

    std::string Platz(int Nummer) const
    {
        return Ordner.Name("Undo/Undo " + std::to_string(Nummer) + ".rtf");
    }
    std::string Autosave(int Nummer) const
    {
        return Ordner.Name("Autosave/autosave" + std::to_string(Nummer) + ".asm");
    }
    static bool Undo_An() { return Menue("MNU_Undo").Aktiv && Werkzeug(14).Aktiv; }
    static bool Undo_Aus() { return !Menue("MNU_Undo").Aktiv && !Werkzeug(14).Aktiv; }
    static bool Redo_An() { return Menue("MNU_Redo").Aktiv && Werkzeug(15).Aktiv; }
    static bool Redo_Aus() { return !Menue("MNU_Redo").Aktiv && !Werkzeug(15).Aktiv; }

    Arbeitsordner Ordner{};
    Merk_Text     Feld{};
};

// --- the reset state ---

TEST_F(Undo_Test, a_new_document_has_nothing_to_undo_or_redo)
{
    Undo_Index = 7, Undo_Ende = 3, Undo_Oben = 9, Undo_Begonnen = Text_Veraendert = true;
    Undo_Max = 12;
    Undo_Zuruecksetzen();
    EXPECT_EQ(Undo_Ende, 12);
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_EQ(Undo_Oben, 1);
    EXPECT_FALSE(Undo_Begonnen);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_TRUE(Undo_Aus());
    EXPECT_TRUE(Redo_Aus());
}

TEST_F(Undo_Test, a_highest_slot_above_998_counts_as_998_and_one_below_minus_1_as_minus_1)
{
    Undo_Max = 30000;
    Undo_Zuruecksetzen();
    EXPECT_EQ(Undo_Ende, 998);
    Undo_Max = -7;
    Undo_Zuruecksetzen();
    EXPECT_EQ(Undo_Ende, -1);
}

// --- a snapshot ---

TEST_F(Undo_Test, a_snapshot_goes_to_the_file_of_its_slot_with_a_blank_before_the_number)
{
    Undo_Index = 12;
    Undo_Schritt_speichern();
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "Undo" / "Undo 12.rtf"));
    EXPECT_EQ(Undo_Index, 13);
}

TEST_F(Undo_Test, a_snapshot_enables_undo_and_disables_redo)
{
    Menue("MNU_Redo").Aktiv = Werkzeug(15).Aktiv = true;
    Undo_Schritt_speichern();
    EXPECT_TRUE(Undo_An());
    EXPECT_TRUE(Redo_Aus());
}

TEST_F(Undo_Test, a_snapshot_keeps_first_visible_line_caret_and_selection)
{
    Feld.Text_Setzen("NOP\r\nRET\r\n");
    Feld.Auswaehlen(5, 3);
    Feld.Erste_Sichtbare = 1;
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo.Undo_Zeile[0], 1);
    EXPECT_EQ(Undo.Undo_SelStart[0], 5);
    EXPECT_EQ(Undo.Undo_SelLength[0], 3);
}

TEST_F(Undo_Test, without_undo_no_snapshot_is_taken_and_no_autosave_either)
{
    Undo_Max      = -1;
    Autosave_Zeit = 0;
    Undo_Schritt_speichern();
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad / "Undo"));
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad / "Autosave"));
    EXPECT_EQ(Undo_Index, 0);
}

TEST_F(Undo_Test, the_highest_slot_is_followed_by_slot_0)
{
    Undo_Max   = 3;
    Undo_Ende  = 1;
    Undo_Index = 3;
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Index, 0);
    EXPECT_TRUE(fs::exists(Platz(3)));
}

TEST_F(Undo_Test, a_snapshot_into_the_oldest_slot_gives_that_step_up)
{
    Undo_Max  = 3;
    Undo_Ende = Undo_Index = 2;
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Ende, 3);
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Ende, 0);
}

TEST_F(Undo_Test, a_snapshot_that_cannot_be_written_changes_nothing_and_is_told_once)
{
    fs::remove(Ordner.Pfad / "Undo");
    const Undo_T Vorher = Undo;
    for (int i = 0; i < 3; ++i)
        Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Index, Vorher.Undo_Index);
    EXPECT_EQ(Undo_Ende, Vorher.Undo_Ende);
    EXPECT_EQ(Undo_Oben, Vorher.Undo_Oben);
    EXPECT_TRUE(Undo_Aus());
    EXPECT_EQ(Box.Hinweise,
              (std::vector<std::string>{"Undo isn't possible: " + Ordner.Name("Undo") +
                                        " can't be written."}));
    EXPECT_TRUE(Box.Meldungen.empty());
}

TEST_F(Undo_Test, a_failure_after_a_success_is_told_again_in_german_too)
{
    Sprache = "D";
    fs::remove(Ordner.Pfad / "Undo");
    Undo_Schritt_speichern();
    fs::create_directory(Ordner.Pfad / "Undo");
    Undo_Schritt_speichern();
    fs::remove_all(Ordner.Pfad / "Undo");
    Undo_Schritt_speichern();
    ASSERT_EQ(Box.Hinweise.size(), 2u);
    EXPECT_EQ(Box.Hinweise[1],
              "Rückgängig ist nicht möglich: " + Ordner.Name("Undo") + " ist nicht beschreibbar.");
}

TEST_F(Undo_Test, a_run_beside_another_one_uses_its_own_folder)
{
    Undo_Ordner = "Undo-2";
    fs::create_directory(Ordner.Pfad / "Undo-2");
    Undo_Schritt_speichern();
    EXPECT_TRUE(fs::exists(Ordner.Pfad / "Undo-2" / "Undo 0.rtf"));
    EXPECT_TRUE(fs::is_empty(Ordner.Pfad / "Undo"));
}

// --- undo ---

TEST_F(Undo_Test, undo_right_after_typing_saves_the_present_text_so_that_redo_brings_it_back)
{
    Feld.Text_Setzen("old");
    Tippen("new");
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "old");
    EXPECT_FALSE(Undo_Taste);
    EXPECT_TRUE(Redo_An());
    EXPECT_TRUE(Undo_Aus()); // nothing older
    MNU_Redo_Click();
    EXPECT_EQ(Feld.Inhalt, "new");
    EXPECT_TRUE(Redo_Aus());
    EXPECT_TRUE(Undo_An());
}

TEST_F(Undo_Test, undo_and_redo_walk_through_all_steps_in_both_directions)
{
    Feld.Text_Setzen("0");
    for (const char* Text : {"1", "2", "3"})
        Zeile_Schreiben(Text);
    std::string Weg;
    for (int i = 0; i < 6; ++i) {
        MNU_Undo_Click();
        Weg += Feld.Inhalt;
    }
    EXPECT_EQ(Weg, "321000");
    EXPECT_TRUE(Undo_Aus());
    Weg.clear();
    for (int i = 0; i < 6; ++i) {
        MNU_Redo_Click();
        Weg += Feld.Inhalt;
    }
    EXPECT_EQ(Weg, "123333");
    EXPECT_TRUE(Redo_Aus());
}

TEST_F(Undo_Test, undo_puts_text_and_image_out_of_step_and_leaves_no_change_pending)
{
    Feld.Text_Setzen("old");
    Tippen("new");
    Text_Aktuell = true;
    MNU_Undo_Click();
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_FALSE(Text_Sperre);
    Text_Aktuell = Text_Veraendert = true;
    MNU_Redo_Click();
    EXPECT_FALSE(Text_Aktuell);
    EXPECT_FALSE(Text_Veraendert);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_FALSE(Undo_Begonnen);
}

TEST_F(Undo_Test, the_editor_is_held_off_and_not_drawn_while_a_text_is_put_back)
{
    Feld.Text_Setzen("old");
    Tippen("new");
    MNU_Undo_Click();
    EXPECT_TRUE(Feld.Gesperrt_Beim_Setzen);
    EXPECT_FALSE(Feld.Gezeichnet_Beim_Setzen);
    EXPECT_FALSE(Feld.Zeichnen_Steht);
    Feld.Gesperrt_Beim_Setzen = false, Feld.Gezeichnet_Beim_Setzen = true;
    MNU_Redo_Click();
    EXPECT_TRUE(Feld.Gesperrt_Beim_Setzen);
    EXPECT_FALSE(Feld.Gezeichnet_Beim_Setzen);
    EXPECT_FALSE(Feld.Zeichnen_Steht);
}

TEST_F(Undo_Test, undo_restores_first_visible_line_caret_selection_and_colours)
{
    Feld.Text_Setzen("NOP\r\nRET\r\nEND\r\n");
    const Farbstelle_T Blau{5, 3, 0xDD1111};
    Feld.Faerben({&Blau, 1});
    Feld.Auswaehlen(10, 2);
    Feld.Erste_Sichtbare = 1;
    Tippen("x");
    Feld.Wege.clear();
    MNU_Undo_Click();
    const std::vector<std::pair<std::int64_t, std::int64_t>> Erwartet = {
        {0, 0}, {15, 0}, {5, 0}, {10, 2}}; // the text itself, its end, the line, the selection
    EXPECT_EQ(Feld.Wege, Erwartet);
    EXPECT_EQ(Feld.Farben({0, 100}), (std::vector<Farbstelle_T>{Blau}));
}

TEST_F(Undo_Test, redo_restores_first_visible_line_caret_and_selection)
{
    Feld.Text_Setzen("a");
    Tippen("NOP\r\nRET\r\n");
    Feld.Auswaehlen(6, 1);
    Feld.Erste_Sichtbare = 1;
    MNU_Undo_Click();
    Feld.Wege.clear();
    MNU_Redo_Click();
    const std::vector<std::pair<std::int64_t, std::int64_t>> Erwartet = {
        {0, 0}, {10, 0}, {5, 0}, {6, 1}};
    EXPECT_EQ(Feld.Wege, Erwartet);
}

TEST_F(Undo_Test, characters_outside_windows_1252_are_kept)
{
    Feld.Mehr = "; \xCE\xA9";
    Undo_Schritt_speichern();
    const auto Aufnahme = Aufnahme_Lesen(Platz(0));
    ASSERT_TRUE(Aufnahme);
    EXPECT_EQ(Aufnahme->Text, "; \xCE\xA9");
}

TEST_F(Undo_Test, a_ring_of_one_slot_finds_nothing_to_undo)
{
    Undo_Max = 0;
    Undo_Zuruecksetzen();
    Feld.Text_Setzen("old");
    Tippen("new");
    EXPECT_EQ(Undo_Index, 0);
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "new");
    EXPECT_TRUE(Undo_Aus());
    EXPECT_EQ(Undo_Index, 0);
}

TEST_F(Undo_Test, a_ring_of_one_slot_offers_no_step_of_an_earlier_document)
{
    Undo_Max = 0;
    Undo_Zuruecksetzen();
    Undo_Knoepfe_Stellen(); // as at the end of a debugger session
    EXPECT_TRUE(Undo_Aus());
    EXPECT_TRUE(Redo_Aus());
}

TEST_F(Undo_Test, after_undo_a_changed_line_goes_into_the_slot_on_display_and_ends_redo)
{
    Feld.Text_Setzen("0");
    Zeile_Schreiben("1");
    Zeile_Schreiben("2");
    MNU_Undo_Click(); // the newest step is the text on display
    MNU_Undo_Click();
    const int Angezeigt = Undo_Index;
    ASSERT_EQ(Feld.Inhalt, "1");
    Zeile_Schreiben("other");
    EXPECT_EQ(Aufnahme_Lesen(Platz(Angezeigt))->Text, "other");
    EXPECT_TRUE(Redo_Aus());
    EXPECT_TRUE(Undo_An());
}

TEST_F(Undo_Test, with_100_steps_the_101st_snapshot_moves_the_end_and_100_undos_disable_it)
{
    for (int i = 0; i < 99; ++i)
        Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Ende, 99); // not moved yet
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Ende, 0);
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Ende, 1);
    EXPECT_EQ(Undo_Index, 1);
    for (int i = 0; i < 98; ++i)
        MNU_Undo_Click();
    EXPECT_TRUE(Undo_An());
    MNU_Undo_Click();
    MNU_Undo_Click();
    EXPECT_TRUE(Undo_Aus());
    EXPECT_EQ(Undo_Index, 2); // the slot above the end
}

TEST_F(Undo_Test, undo_and_redo_are_dead_without_slots)
{
    Feld.Text_Setzen("text");
    Undo_Max                = -1;
    Menue("MNU_Undo").Aktiv = Werkzeug(14).Aktiv = true;
    Menue("MNU_Redo").Aktiv = Werkzeug(15).Aktiv = true;
    MNU_Undo_Click();
    EXPECT_TRUE(Undo_Aus());
    EXPECT_TRUE(Redo_An());
    MNU_Redo_Click();
    EXPECT_TRUE(Redo_Aus());
    EXPECT_EQ(Feld.Inhalt, "text");
    EXPECT_FALSE(Feld.Zeichnen_Steht);
}

TEST_F(Undo_Test, undo_that_cannot_save_the_present_text_keeps_it_on_display)
{
    Feld.Text_Setzen("old");
    Tippen("new");
    fs::remove_all(Ordner.Pfad / "Undo");
    const int Vorher = Undo_Index;
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "new");
    EXPECT_EQ(Undo_Index, Vorher);
    EXPECT_TRUE(Undo_Taste);
    EXPECT_FALSE(Text_Sperre);
    EXPECT_EQ(Box.Hinweise.size(), 1u);
}

TEST_F(Undo_Test, a_missing_slot_is_skipped_with_a_notice_on_redo)
{
    Feld.Text_Setzen("0");
    for (const char* Text : {"1", "2"})
        Zeile_Schreiben(Text);
    for (int i = 0; i < 4; ++i)
        MNU_Undo_Click();
    ASSERT_EQ(Feld.Inhalt, "0");
    fs::remove(Platz(1));
    MNU_Redo_Click();
    EXPECT_EQ(Feld.Inhalt, "0");
    EXPECT_EQ(Box.Hinweise, (std::vector<std::string>{"Step 1 is missing and is skipped."}));
    MNU_Redo_Click();
    EXPECT_EQ(Feld.Inhalt, "2");
}

TEST_F(Undo_Test, a_damaged_slot_is_skipped_with_a_notice_on_undo)
{
    Sprache = "D";
    Feld.Text_Setzen("0");
    for (const char* Text : {"1", "2"})
        Zeile_Schreiben(Text);
    Ordner.Anlegen("Undo/Undo 1.rtf", "no snapshot at all");
    Undo_Taste = false;
    MNU_Undo_Click();
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "2");
    EXPECT_EQ(Box.Hinweise,
              (std::vector<std::string>{"Der Schritt 1 fehlt und wird übersprungen."}));
    MNU_Undo_Click();
    EXPECT_EQ(Feld.Inhalt, "0");
}

TEST_F(Undo_Test, counters_beyond_a_ring_that_shrank_are_brought_back_into_it)
{
    Undo_Max = 50;
    Undo_Zuruecksetzen();
    for (int i = 0; i < 3; ++i)
        Undo_Schritt_speichern();
    Undo_Max = 5;
    MNU_Undo_Click();
    EXPECT_EQ(Undo_Ende, 5);
    EXPECT_EQ(Undo_Index, 2);
    Undo_Max = 1;
    MNU_Redo_Click();
    EXPECT_LE(Undo_Index, 1);
    Undo_Index = 40;
    Undo_Schritt_speichern();
    EXPECT_TRUE(fs::exists(Platz(0)));
    EXPECT_FALSE(fs::exists(Platz(40)));
}

TEST_F(Undo_Test, the_files_of_the_ring_are_removed_and_no_others)
{
    for (int i = 0; i < 3; ++i)
        Undo_Schritt_speichern();
    Ordner.Anlegen("Undo/Undone.txt", "");
    Ordner.Anlegen("Undo/Undo 7", "");
    Undo_Dateien_Loeschen();
    std::vector<std::string> Rest;
    for (const auto& e : fs::directory_iterator(Ordner.Pfad / "Undo"))
        Rest.push_back(e.path().filename().string());
    EXPECT_EQ(Rest, (std::vector<std::string>{"Undone.txt"}));
}

TEST_F(Undo_Test, removing_the_files_of_a_missing_folder_does_nothing)
{
    fs::remove(Ordner.Pfad / "Undo");
    Undo_Dateien_Loeschen();
    EXPECT_TRUE(Box.Hinweise.empty());
}

// --- the file of a snapshot ---

const Momentaufnahme_T Beispiel = {"MOV A,#1\r\n; \xC3\xA4\r\n",
                                   {{0, 3, 0xDD1111}, {4, 1, 1}, {5, 2, 0xFFFFFF}, {10, 4, -1}}};

TEST(Undo_File, a_snapshot_comes_back_as_it_was)
{
    for (const Momentaufnahme_T& a : {Momentaufnahme_T{}, Momentaufnahme_T{"text", {}}, Beispiel}) {
        const auto Gelesen = Aufnahme_Auspacken(Aufnahme_Verpacken(a));
        ASSERT_TRUE(Gelesen);
        EXPECT_EQ(*Gelesen, a);
    }
}

TEST(Undo_File, a_text_of_a_megabyte_with_many_colours_comes_back_as_it_was)
{
    Momentaufnahme_T a{std::string(1 << 20, 'x'), {}};
    for (std::int64_t i = 0; i + 3 < (1 << 20); i += 5)
        a.Farben.push_back({i, 3, static_cast<std::int32_t>(i)});
    const std::string Bytes = Aufnahme_Verpacken(a);
    EXPECT_LT(Bytes.size(), (1u << 20) + a.Farben.size() * 6);
    EXPECT_EQ(Aufnahme_Auspacken(Bytes), a);
}

TEST(Undo_File, every_single_damaged_byte_is_noticed)
{
    const std::string Bytes = Aufnahme_Verpacken(Beispiel);
    for (std::size_t i = 0; i < Bytes.size(); ++i) {
        std::string Schaden = Bytes;
        Schaden[i]          = static_cast<char>(Schaden[i] ^ 0x10);
        EXPECT_FALSE(Aufnahme_Auspacken(Schaden)) << i;
    }
}

TEST(Undo_File, every_shortened_file_is_noticed)
{
    const std::string Bytes = Aufnahme_Verpacken(Beispiel);
    for (std::size_t n = 0; n < Bytes.size(); ++n)
        EXPECT_FALSE(Aufnahme_Auspacken(std::string_view(Bytes).substr(0, n))) << n;
}

TEST(Undo_File, colours_far_outside_the_text_are_no_snapshot)
{
    EXPECT_FALSE(Aufnahme_Auspacken(Aufnahme_Verpacken({"text", {{0, 9, 1}}})));
    EXPECT_FALSE(Aufnahme_Auspacken(Aufnahme_Verpacken({"text", {{9, 1, 1}}})));
    EXPECT_TRUE(Aufnahme_Auspacken(Aufnahme_Verpacken({"text", {{0, 8, 1}}})));
}

// --- autosave ---

TEST_F(Undo_Test, autosave_counts_up_to_the_first_free_number)
{
    Ordner.Anlegen("Autosave/autosave0.asm", "");
    Ordner.Anlegen("Autosave/autosave1.asm", "");
    Ordner.Anlegen("Autosave/autosave3.asm", "");
    EXPECT_EQ(Autosave_Vorhanden(), 2);
    Feld.Text_Setzen("NOP\r\n");
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Autosave(2)), "NOP\r\n");
    EXPECT_EQ(Autosave_Nummer, 3);
    EXPECT_EQ(Bytes_Von(Autosave(3)), "");
}

TEST_F(Undo_Test, after_20_autosaves_the_series_holds_the_first_and_the_19_newest)
{
    for (int i = 0; i < 20; ++i) {
        Feld.Text_Setzen(std::to_string(i));
        Autosave_Speichern();
    }
    EXPECT_EQ(Autosave_Nummer, 0);
    EXPECT_EQ(Bytes_Von(Autosave(0)), "0");
    EXPECT_EQ(Bytes_Von(Autosave(19)), "19");
    EXPECT_EQ(Autosave_Vorhanden(), 20);
    Feld.Text_Setzen("20");
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Autosave(0)), "0");
    for (int i = 1; i < 20; ++i)
        EXPECT_EQ(Bytes_Von(Autosave(i)), std::to_string(i + 1)) << i;
    EXPECT_EQ(Bytes_Von(Autosave(20)), "<missing>");
    EXPECT_EQ(Autosave_Nummer, 0);
}

// A disk that is full: no file may grow beyond some bytes.
class Voller_Datentraeger {
public:
    explicit Voller_Datentraeger(rlim_t Bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &Vorher);
        std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
        const rlimit Eng{Bytes, Vorher.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &Eng);
    }
    ~Voller_Datentraeger()
    {
        ::setrlimit(RLIMIT_FSIZE, &Vorher);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    Voller_Datentraeger(const Voller_Datentraeger&)            = delete;
    Voller_Datentraeger& operator=(const Voller_Datentraeger&) = delete;

private:
    rlimit Vorher{};
};

TEST_F(Undo_Test, a_full_series_has_the_file_of_the_marker_at_every_moment)
{
    for (int i = 0; i < 20; ++i) {
        Feld.Text_Setzen("text " + std::to_string(i));
        Autosave_Speichern();
    }
    ASSERT_EQ(Bytes_Von(Ordner.Name("startup")), Autosave(19) + "\r\n");
    Feld.Text_Setzen(std::string(5000, ';'));
    {
        const Voller_Datentraeger Platte(100); // ends between the shift and the new file
        Autosave_Speichern();
    }
    EXPECT_EQ(Bytes_Von(Autosave(19)), "text 19") << "the marker's file is still the last one";
    EXPECT_EQ(Bytes_Von(Autosave(18)), "text 19");
    EXPECT_EQ(Bytes_Von(Autosave(0)), "text 0");
    EXPECT_EQ(Box.Hinweise.size(), 1u);
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Autosave(19)), std::string(5000, ';'));
    for (int i = 1; i < 19; ++i)
        EXPECT_EQ(Bytes_Von(Autosave(i)), "text " + std::to_string(i + 1)) << "shifted once";
}

TEST_F(Undo_Test, the_text_that_filled_a_gap_outlives_the_next_shift)
{
    for (const int i : {0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19})
        Ordner.Anlegen("Autosave/autosave" + std::to_string(i) + ".asm", "old");
    Feld.Text_Setzen("newest");
    Autosave_Speichern();
    ASSERT_EQ(Bytes_Von(Ordner.Name("startup")), Autosave(1) + "\r\n");
    Feld.Text_Setzen(std::string(5000, ';'));
    const std::string Zuflucht = Ordner.Name("Autosave/autosave-last.asm");
    for (int i = 0; i < 2; ++i) {
        const Voller_Datentraeger Platte(200);
        Autosave_Speichern();
        EXPECT_EQ(Bytes_Von(Ordner.Name("startup")), Zuflucht + "\r\n");
        EXPECT_EQ(Bytes_Von(Zuflucht), "newest");
    }
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Ordner.Name("startup")), Autosave(19) + "\r\n");
    EXPECT_EQ(Bytes_Von(Autosave(19)), std::string(5000, ';'));
    EXPECT_FALSE(fs::exists(Zuflucht));
}

TEST_F(Undo_Test, on_a_full_disk_a_snapshot_is_told_and_costs_nothing_else)
{
    Zeile_Schreiben("one");
    const Undo_T Vorher = Undo;
    Feld.Text_Setzen(std::string(5000, 'x'));
    Feld.Auswaehlen(17, 4);
    Text_Veraendert = true;
    {
        const Voller_Datentraeger Platte(100);
        Undo_Schritt_speichern();
    }
    EXPECT_EQ(Feld.Text(), std::string(5000, 'x'));
    EXPECT_EQ(Feld.Auswahl().Anfang, 17);
    EXPECT_EQ(Undo_Index, Vorher.Undo_Index);
    EXPECT_EQ(Undo_Ende, Vorher.Undo_Ende);
    EXPECT_EQ(Undo_Oben, Vorher.Undo_Oben);
    EXPECT_TRUE(Text_Veraendert);
    EXPECT_TRUE(Undo_An()) << "the steps before stay";
    EXPECT_EQ(Box.Hinweise.size(), 1u);
    EXPECT_TRUE(Box.Meldungen.empty());
    Undo_Schritt_speichern();
    EXPECT_EQ(Undo_Index, Vorher.Undo_Index + 1) << "there is room again";
}

TEST_F(Undo_Test, autosave_writes_the_crash_marker_with_the_full_path)
{
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Ordner.Name("startup")), Autosave(0) + "\r\n");
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Ordner.Name("startup")), Autosave(1) + "\r\n");
}

TEST_F(Undo_Test, autosave_leaves_the_crash_marker_of_another_run_alone)
{
    Datei_Sperre Andere;
    ASSERT_EQ(Andere.Nehmen(Ordner.Pfad / "Varnholt.lock"), Datei_Sperre::Ergebnis::Genommen);
    Ordner.Anlegen("startup", "other");
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Ordner.Name("startup")), "other");
    EXPECT_TRUE(fs::exists(Autosave(0)));
    Andere.Loesen();
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Ordner.Name("startup")), Autosave(1) + "\r\n");
}

TEST_F(Undo_Test, autosave_keeps_encoding_and_line_ends_of_the_loaded_file)
{
    Quell_Datei = Text_Entschluesseln("; \xE4\nNOP\n"); // Windows-1252, lines end in LF
    Feld.Text_Setzen(Quell_Datei.Text);
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Autosave(0)), "; \xE4\nNOP\n");
}

TEST_F(Undo_Test, autosave_keeps_characters_outside_windows_1252)
{
    Feld.Text_Setzen("; ?\r\n");
    Feld.Mehr = "; \xCE\xA9\r\n";
    Autosave_Speichern();
    EXPECT_EQ(Bytes_Von(Autosave(0)), "; \xCE\xA9\r\n");
}

TEST_F(Undo_Test, an_autosave_that_fails_is_told_and_leaves_no_marker)
{
    fs::remove(Ordner.Pfad / "Autosave");
    Autosave_Zeit = 0;
    Autosave_Speichern();
    ASSERT_EQ(Box.Hinweise.size(), 1u);
    EXPECT_TRUE(
        Box.Hinweise[0].starts_with("AutoSave: " + Autosave(0) + " could not be written: "));
    EXPECT_FALSE(fs::exists(Ordner.Pfad / "startup"));
    EXPECT_EQ(Autosave_Zeit, Ereignisse.Uhrzeit); // not again at the next key
    Sprache = "D";
    Autosave_Speichern();
    EXPECT_TRUE(Box.Hinweise[1].starts_with("AutoSave: " + Autosave(0) +
                                            " konnte nicht geschrieben werden: "));
}

struct Faellig_Fall {
    double Vergangen;
    bool   Faellig;
};

class Autosave_Faellig_Test : public Undo_Test,
                              public ::testing::WithParamInterface<Faellig_Fall> {};

TEST_P(Autosave_Faellig_Test, a_snapshot_saves_when_sixty_seconds_or_midnight_have_passed)
{
    Autosave_Zeit = Ereignisse.Uhrzeit - GetParam().Vergangen;
    Undo_Schritt_speichern();
    EXPECT_EQ(fs::exists(Autosave(0)), GetParam().Faellig);
    EXPECT_EQ(Autosave_Zeit == Ereignisse.Uhrzeit, GetParam().Faellig || GetParam().Vergangen == 0);
}

INSTANTIATE_TEST_SUITE_P(Limits,
                         Autosave_Faellig_Test,
                         ::testing::Values(Faellig_Fall{-0.5, true},
                                           Faellig_Fall{0, false},
                                           Faellig_Fall{59.5, false},
                                           Faellig_Fall{60, true},
                                           Faellig_Fall{4000, true}));

TEST_F(Undo_Test, without_its_option_no_timed_autosave_runs)
{
    Autosave_Zeitlich = false;
    Autosave_Zeit     = 0;
    Undo_Schritt_speichern();
    EXPECT_FALSE(fs::exists(Autosave(0)));
}

} // namespace
} // namespace varnholt::test
