// The guided hardware tests of both boards: every box in both languages, the port bytes of every
// step, every way out.
#include "programmer/Hardware_Tests.h"

#include "core/commands.h"
#include "core/settings.h"
#include "core/shared_state.h"
#include "programmer/Board_Ansicht.h"
#include "programmer/Geraetemenue.h"
#include "programmer/MC_Welt.h"
#include "programmer/Port_Einrichtung.h"
#include "programmer/Special.h"

#include <filesystem>

#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

// Notes what went over the port ahead of each box.
class Box_Mit_Spur : public Skript_Box {
public:
    int Zeigen(const Meldung_T& Meldung) override
    {
        Spuren.push_back(Spur());
        Baustein.push_back(IC_Nummer);
        return Skript_Box::Zeigen(Meldung);
    }
    std::function<std::string()> Spur{};
    std::vector<std::string>     Spuren{};
    std::vector<int>             Baustein{}; // IC_Nummer while each box was shown
};

std::string Daten(std::initializer_list<int> Werte)
{
    std::string s;
    for (const int w : Werte) {
        const char* z = "0123456789ABCDEF";
        s += std::string("W D ") + z[w >> 4] + z[w & 15] + "\n";
    }
    return s;
}

// What a box is to be: its kind, the beginning of its text in both languages.
struct Kasten {
    Knoepfe     Tasten = Knoepfe::Ok;
    std::string D{}, E{}, Titel_D{}, Titel_E{};
};

constexpr auto Ok_Abbr = Knoepfe::Ok_Abbrechen;
constexpr auto Ja_Nein = Knoepfe::Ja_Nein_Abbrechen;

const std::string Zaehler_Reset = "W C 09\nM 1\nW C 0B\nM 1\n";

class Hardware_Test_Welt : public MC_Welt {
protected:
    Hardware_Test_Welt()
    {
        fs::create_directories(Ordner);
        Programm_Pfad    = (Ordner / "").string();
        Eprommer_Version = 32;
        Tessel2_Version  = 12;
        Plattform.Box    = &Kaesten;
        Kaesten.Spur     = [this] { return Port_Spur(); };
    }
    ~Hardware_Test_Welt() override
    {
        fs::remove_all(Ordner);
        Plattform.Box = &Box;
    }

    void Eprommer()
    {
        Geraet("27C256", 32768);
        Board_Anschliessen();
        Aufzeichnen(Brenner_Welt::Board());
    }
    void Tessel2()
    {
        Einsetzen("89C51", 4096);
        Board().Im_Sockel.reset(); // as the test asks for
        Aufzeichnen(Board());
    }
    void Aufzeichnen(Porttreiber& Brett)
    {
        Das_Brett      = &Brett;
        Schreiber      = std::make_unique<Aufzeichnung>(Brett, Strom);
        Plattform.Port = Schreiber.get();
        Porttreiber_Laden();
        Port_Spur();
    }
    std::string Port_Spur()
    {
        Schreiber->Abschliessen();
        std::string s = Strom.str();
        Strom.str({});
        return s;
    }

    // The sequence from its command on, answered so; then with OK or Yes, up to Hoechstens boxes.
    void Laufen(void (*Befehl)(), const std::string& In, const std::deque<int>& Antworten)
    {
        Sprache = In;
        Kaesten.Meldungen.clear();
        Kaesten.Spuren.clear();
        Kaesten.Baustein.clear();
        Kaesten.Antworten = Antworten;
        Befehl();
    }
    static std::deque<int> Gute(const std::vector<Kasten>& Folge, std::size_t Anzahl)
    {
        std::deque<int> a;
        for (std::size_t i = 0; i < Anzahl; ++i)
            a.push_back(Folge[i].Tasten == Ja_Nein ? Antwort_Ja : Antwort_Ok);
        return a;
    }
    void Wie(const std::vector<Kasten>& Folge, bool Deutsch)
    {
        ASSERT_EQ(Kaesten.Meldungen.size(), Folge.size());
        for (std::size_t i = 0; i < Folge.size(); ++i) {
            SCOPED_TRACE(i);
            const Meldung_T& m = Kaesten.Meldungen[i];
            EXPECT_EQ(m.Tasten, Folge[i].Tasten);
            EXPECT_TRUE(m.Text.starts_with(Deutsch ? Folge[i].D : Folge[i].E)) << m.Text;
            const std::string& Titel = Deutsch ? Folge[i].Titel_D : Folge[i].Titel_E;
            if (!Titel.empty()) {
                EXPECT_EQ(m.Titel, Titel);
            }
        }
    }
    // Both languages through to the end.
    void Beide_Sprachen(void (*Befehl)(), const std::vector<Kasten>& Folge)
    {
        for (const char* In : {"D", "E"}) {
            Laufen(Befehl, In, Gute(Folge, Folge.size()));
            Wie(Folge, In[0] == 'D');
        }
    }
    // Given up at each of the boxes: it is the last one, and the selection is that from before.
    void Ueberall_Abbrechen(void (*Befehl)(), const std::vector<Kasten>& Folge)
    {
        for (const int Vorher : {0, -1})
            for (std::size_t i = 0; i < Folge.size(); ++i) {
                SCOPED_TRACE(i);
                if (Folge[i].Tasten == Knoepfe::Ok)
                    continue;
                IC_Nummer         = Vorher;
                std::deque<int> a = Gute(Folge, i);
                a.push_back(Antwort_Abbrechen);
                Laufen(Befehl, "E", a);
                EXPECT_EQ(Kaesten.Meldungen.size(), i + 1);
                EXPECT_EQ(IC_Nummer, Vorher);
                EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_Jumper));
            }
    }
    // No to question Nummer: the next box is the last, with that title and text.
    void Nein_Bei(void (*Befehl)(),
                  const std::vector<Kasten>& Folge,
                  std::size_t                Nummer,
                  const Kasten&              Erwartet)
    {
        for (const char* In : {"D", "E"}) {
            std::deque<int> a = Gute(Folge, Nummer);
            a.push_back(Antwort_Nein);
            Laufen(Befehl, In, a);
            std::vector<Kasten> Ganz(Folge.begin(),
                                     Folge.begin() + static_cast<std::ptrdiff_t>(Nummer) + 1);
            Ganz.push_back(Erwartet);
            Wie(Ganz, In[0] == 'D');
            EXPECT_EQ(IC_Nummer, 0);
        }
    }
    void Spur_Vor(std::size_t Kasten_Nummer, const std::string& Erwartet)
    {
        ASSERT_LT(Kasten_Nummer, Kaesten.Spuren.size());
        EXPECT_TRUE(Kaesten.Spuren[Kasten_Nummer] == Erwartet)
            << "box " << Kasten_Nummer << ":\n"
            << Kaesten.Spuren[Kasten_Nummer].substr(0, 300);
    }

    Box_Mit_Spur                  Kaesten{};
    Porttreiber*                  Das_Brett = nullptr;
    std::ostringstream            Strom{};
    std::unique_ptr<Aufzeichnung> Schreiber{};
    fs::path Ordner = fs::temp_directory_path() / ("varnholt-hw-" + std::to_string(getpid()));
};

// --- the boxes ---

std::vector<Kasten> Anfang(const char* D, const char* E)
{
    return {{Ok_Abbr,
             "Der Hardware Test kann zwar nicht alle aber doch die meisten gängigen Probleme "
             "aufspüren.",
             "The hardware test can not find all possible problems, but it will find the most "
             "probably."},
            {Ok_Abbr, D, E}};
}

const Kasten Test1_Gut{Ok_Abbr,
                       "Soeben wurde ein automatischer Testlauf durchgeführt, bei dem 256 Bytes "
                       "durch den 74HC595 und den 74HC157 geschoben und wieder eingelesen wurden. "
                       "Alle Daten wurden wieder richtig eingelesen, ",
                       "Just in this moment, a automatic test was finished sucessfully.",
                       "TEST 1 OKAY!",
                       "TEST 1 OKAY!"};
const Kasten Test1_Schlecht{Ok_Abbr,
                            "Soeben wurde ein automatischer Testlauf durchgeführt",
                            "Just in this moment, a automatic test has failed!",
                            "TEST 1 FAILED!",
                            "TEST 1 Failed!"};
const Kasten Test2_Gut{Ok_Abbr,
                       "Die Brennspannung wird korrekt eingestellt,",
                       "The programming voltage is regulated correctly",
                       "TEST 2 OKAY!",
                       "TEST 2 OKAY!"};
const Kasten Fertig{Knoepfe::Ok,
                    "Der Testlauf wurde abgeschlossen und es konnten keine Fehler festgestellt "
                    "werden.",
                    "The hardware test was successfully finished!",
                    "TEST 4 OKAY",
                    "TEST 4 OKAY"};

Kasten Frage(const std::string& D, const std::string& E, const char* Titel_D, const char* Titel_E)
{
    return {Ja_Nein, D, E, Titel_D, Titel_E};
}
Kasten Messung(int Test, bool Erneut, const std::string& Pins_D, const std::string& Pins_E)
{
    return Frage(
        std::string("Bitte messen Sie ") + (Erneut ? "ERNEUT " : "") + "die Spannung " + Pins_D,
        std::string("Please measure ") + (Erneut ? "AGAIN " : "") + "the voltage " + Pins_E,
        Test == 2   ? "2. TEST"
        : Test == 3 ? "3. TEST"
                    : "4. TEST",
        Test == 2   ? "TEST 2"
        : Test == 3 ? "TEST 3"
                    : "TEST 4");
}

const Kasten Umstecken{Ok_Abbr,
                       "Stecken Sie die Jumper nun bitte so um, wie es die Grafik zeigt.",
                       "Please connect the jumper now as shown"};

std::vector<Kasten> Eprommer_Anfang()
{
    auto f =
        Anfang("Bitte nehmen Sie UNBEDINGT ein ev. eingestecktes E(E)prom aus der Brennfassung",
               "If you have inserted an e(e)prom, please take it out!");
    f.push_back({Ok_Abbr,
                 "Stecken Sie die Jumper bitte so, wie es die Grafik zeigt.",
                 "Please connect the jumper as shown on the grafik above."});
    return f;
}

// The boxes of a sound Eprommer.
std::vector<Kasten> Eprommer_Gut()
{
    auto              f   = Eprommer_Anfang();
    const std::string P2D = "an den Pins 1, 3 und 24 der Brennfassung.",
                      P2E = "at the pins 1, 3 and 24 of the socket.";
    const std::string P3D = "an den Pins 3 bis 12 und 25 bis 29 der Brennfassung.",
                      P3E = "at the pins 3 to 12 and 25 to 29 of the socket.";
    const std::string P4D = "an den Pins 2, 24, 29, 30 und 31 der Brennfassung.",
                      P4E = "at the pins 2, 24, 29, 30 and 31 of the socket.";
    f.insert(f.end(),
             {Test1_Gut,
              Messung(2, false, P2D, P2E),
              Messung(2, true, P2D, P2E),
              Messung(2, true, P2D, P2E),
              Test2_Gut,
              Umstecken,
              Messung(3, false, P3D, P3E),
              Messung(3, true, P3D, P3E),
              Umstecken,
              Messung(4, false, P4D, P4E),
              Messung(4, true, P4D, P4E),
              Fertig});
    return f;
}

std::vector<Kasten> Tessel2_Anfang()
{
    auto f = Anfang("Bitte nehmen Sie UNBEDINGT einen ev. eingesteckten Mikrocontroller aus der "
                    "Brennfassung,",
                    "If you have inserted a microcontroller, please take it out!");
    f.push_back({Ok_Abbr,
                 "Bitte entnehmen Sie den Jumper J1, falls dieser noch stecken sollte",
                 "Please take jumper J1 out if it's inserted."});
    return f;
}

std::vector<Kasten> Tessel2_Gut()
{
    auto              f   = Tessel2_Anfang();
    const std::string P2D = "am Pin 31 der Brennfassung.", P2E = "at the pin 31 of the socket.";
    const std::string P3D = "an den Pins 1 bis 8, 10 und 21 bis 26 der Brennfassung.",
                      P3E = "at the pins 1 to 8, 10 and 21 to 26 of the socket.";
    const std::string P4D = "an den Pins 16, 17, 27, 28 und 30 der Brennfassung.",
                      P4E = "at the pins 16, 17, 27, 28 and 30 of the socket.";
    f.insert(f.end(),
             {Test1_Gut,
              Messung(2, false, P2D, P2E),
              Messung(2, true, P2D, P2E),
              Test2_Gut,
              Messung(3, false, P3D, P3E),
              Messung(3, true, P3D, P3E),
              Messung(4, false, P4D, P4E),
              Messung(4, true, P4D, P4E),
              Fertig});
    return f;
}

// The boxes of a board whose data don't come back, all questions answered with Yes.
std::vector<Kasten> Diagnose_Folge(std::vector<Kasten> f)
{
    const char *T_D = "DIAGNOSE", *T_E = "DIAGNOSIS";
    f.push_back(Test1_Schlecht);
    f.push_back(Frage("Bitte messen Sie die Spannung an den Pins 11, 12, 13 und 14 des 74HC595 und "
                      "zudem die Spannung am Pin 1 des 74HC157. Alle Spannungen sollten zwischen "
                      "3-5 Volt betragen. Ist dieses der Fall?",
                      "Please measure the voltage at the pins 11, 12, 13 and 14 of the ic 74HC595 "
                      "and additionally the voltage at the pin 1 of the ic 74HC157. Is the voltage "
                      "at all of these pins between 3 and 5 volt?",
                      T_D,
                      T_E));
    f.push_back(Frage("Bitte messen Sie ERNEUT die Spannung an den Pins 11, 12, 13 und 14 des "
                      "74HC595 und zudem die Spannung am Pin 1 des 74HC157. Alle Spannungen "
                      "sollten nun ca. 0 Volt betragen.",
                      "Please measure AGAIN the voltage at the pins 11, 12, 13 and 14 of the ic "
                      "74HC595 and additionally the voltage at the pin 1 of the ic 74HC157. Is the "
                      "voltage at all of these pins about 0 volt?",
                      T_D,
                      T_E));
    f.push_back(Frage("Soeben wurden Daten in den 74HC595 geschoben. Bitte messen Sie die "
                      "Ausgangspins des 74HC595. Pin 1, 3, 5 und 7 sollten auf ca. 5 Volt liegen, "
                      "Pin 2, 4, 6 und 15 sollten auf 0 Volt liegen. Ist dieses der Fall?",
                      "There were just pushed some bits into the 74HC595.",
                      T_D,
                      T_E));
    f.push_back(Frage("Gerade wurden ERNEUT Daten in den 74HC595 geschoben.",
                      "There were just pushed AGAIN some bits into the 74HC595.",
                      T_D,
                      T_E));
    f.push_back({Knoepfe::Ok,
                 "Der 74HC595 scheint korrekt zu arbeiten. Da die Daten nicht korrekt eingelesen "
                 "wurden, scheint der 74HC157 oder eine der Verbindungen defekt zu sein.",
                 "The 74HC595 seems to work correct. Because of the bits were read not correctly, "
                 "the 74HC595 or one of it's connections seems to be defect.",
                 T_D,
                 T_E});
    return f;
}

const Kasten Rat_Kabel{Knoepfe::Ok,
                       "Bitte überprüfen Sie die Verbindung des Parallelportkabels.",
                       "Please check the parallel port cable."};
const Kasten Rat_595_{Knoepfe::Ok,
                      "Der 74HC595 oder eine der Verbindungen scheint defekt zu sein.",
                      "The 74HC595 or one of it's connections seems to be defect."};

// --- the version first ---

TEST_F(Hardware_Test_Welt, the_version_is_asked_first_and_then_the_test_starts)
{
    Eprommer();
    Eprommer_Version     = 0;
    Fenster.Bei_Formular = [this](Formular f) {
        if (f == Formular::F_Wahl_Eprommer_Version) {
            EXPECT_TRUE(Kaesten.Meldungen.empty());
            Wahl_Eprommer_Version_Click(1);
        }
    };
    Laufen(MNU_Eprommer_Test_Click, "E", {});
    EXPECT_EQ(Eprommer_Version, 31);
    EXPECT_EQ(Kaesten.Meldungen.size(), 1u);
}

TEST_F(Hardware_Test_Welt, the_other_board_asks_for_its_own_version)
{
    Tessel2();
    Tessel2_Version      = 0;
    Fenster.Bei_Formular = [](Formular f) {
        if (f == Formular::F_Wahl_Tessel2_Version)
            Wahl_Tessel2_Version_Click(0);
    };
    Laufen(MNU_Tessel2_Test_Click, "E", {});
    EXPECT_EQ(Tessel2_Version, 10);
    EXPECT_EQ(Kaesten.Meldungen.size(), 1u);
}

TEST_F(Hardware_Test_Welt, a_known_version_is_not_asked_again_and_an_unanswered_one_starts_nothing)
{
    Eprommer();
    Laufen(MNU_Eprommer_Test_Click, "E", {});
    Laufen(MNU_Tessel2_Test_Click, "E", {});
    for (const std::string& z : Fenster.Protokoll)
        EXPECT_EQ(z.find("Wahl"), std::string::npos) << z;
    Eprommer_Version = Tessel2_Version = 0;
    Laufen(MNU_Eprommer_Test_Click, "E", {});
    EXPECT_TRUE(Kaesten.Meldungen.empty());
    Laufen(MNU_Tessel2_Test_Click, "E", {});
    EXPECT_TRUE(Kaesten.Meldungen.empty());
}

// --- the Eprommer ---

TEST_F(Hardware_Test_Welt, a_sound_eprommer_passes_all_four_tests_in_both_languages)
{
    Eprommer();
    Beide_Sprachen(MNU_Eprommer_Test_Click, Eprommer_Gut());
    EXPECT_EQ(IC_Nummer, 0);
    EXPECT_FALSE(fs::exists(Ordner / "AutoTest_failed.txt"));
}

TEST_F(Hardware_Test_Welt, the_port_bytes_of_each_step_of_the_eprommer)
{
    Eprommer();
    const auto Folge = Eprommer_Gut();
    Laufen(MNU_Eprommer_Test_Click, "E", Gute(Folge, Folge.size()));
    ASSERT_EQ(Kaesten.Spuren.size(), 15u);
    for (const std::size_t i : {0, 1, 2, 8, 11, 14})
        Spur_Vor(i, "");
    EXPECT_TRUE(Kaesten.Spuren[3].starts_with(Zaehler_Reset + Daten({91, 123})));
    Spur_Vor(4, Daten({91}));
    Spur_Vor(5, Daten({90}));
    Spur_Vor(6, Daten({88}));
    Spur_Vor(7, Daten({90, 91}));
    std::string Schritte = Zaehler_Reset;
    for (int i = 0; i < 65535; ++i)
        Schritte += "W D 5A\nW D 5E\nW D 5A\n";
    Spur_Vor(9, Schritte);
    Spur_Vor(10, Zaehler_Reset);
    Spur_Vor(12, Daten({91}) + "W C 06\n");
    Spur_Vor(13, Daten({67}) + "W C 0B\n");
}

TEST_F(Hardware_Test_Welt, the_jumpers_of_the_steps_are_shown_and_the_picture_goes_at_the_end)
{
    Eprommer();
    std::vector<std::array<int, 5>> Gezeigt;
    Fenster.Bei_Formular = [&](Formular f) {
        if (f == Formular::F_Jumper)
            Gezeigt.push_back(Jumper.Stellung);
    };
    const auto Folge = Eprommer_Gut();
    Laufen(MNU_Eprommer_Test_Click, "E", Gute(Folge, Folge.size()));
    ASSERT_EQ(Gezeigt.size(), 3u);
    EXPECT_EQ(Gezeigt[0], (std::array<int, 5>{1, 1, 2, 1, 1}));
    EXPECT_EQ(Kaesten.Baustein[2], 610);
    EXPECT_EQ(Kaesten.Baustein[8], 611);
    EXPECT_EQ(Kaesten.Baustein[11], 612);
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_Jumper));
}

TEST_F(Hardware_Test_Welt, the_eprommer_test_can_be_given_up_at_every_box)
{
    Eprommer();
    Ueberall_Abbrechen(MNU_Eprommer_Test_Click, Eprommer_Gut());
}

TEST_F(Hardware_Test_Welt, a_voltage_test_that_is_given_up_leaves_the_data_lines_at_91)
{
    Eprommer();
    for (std::size_t i = 4; i <= 6; ++i) {
        std::deque<int> a = Gute(Eprommer_Gut(), i);
        a.push_back(Antwort_Abbrechen);
        Laufen(MNU_Eprommer_Test_Click, "E", a);
        EXPECT_EQ(Port_Spur(), Daten({90, 91}));
    }
}

TEST_F(Hardware_Test_Welt, a_no_at_any_voltage_of_the_eprommer_fails_test_2)
{
    Eprommer();
    for (std::size_t i = 4; i <= 6; ++i)
        Nein_Bei(MNU_Eprommer_Test_Click,
                 Eprommer_Gut(),
                 i,
                 {Knoepfe::Ok,
                  "Die Brennspannung wird nicht korrekt eingestellt. Bitte überprüfen Sie den "
                  "korrekten Einbau der Transitoren und Dioden, sowie die Werte der Widerstände "
                  "(R1-R4 und R6)",
                  "The programming voltage is NOT regulated correctly! Please check the "
                  "transistors, diodes and the values of the resistors R1-R4 and R6.",
                  "TEST 2 FAILED!",
                  "TEST 2 FAILED!"});
}

TEST_F(Hardware_Test_Welt, a_no_at_the_counters_fails_test_3)
{
    Eprommer();
    for (const std::size_t i : {9, 10})
        Nein_Bei(MNU_Eprommer_Test_Click,
                 Eprommer_Gut(),
                 i,
                 {Knoepfe::Ok,
                  "Beide oder einer der 74HC393 arbeiten nicht richtig.",
                  "One or both of the 74HC393 or one of it's connections seems to be defect.",
                  "TEST 3 FAILED",
                  "TEST 3 FAILED"});
}

TEST_F(Hardware_Test_Welt, a_no_at_the_connections_fails_test_4)
{
    Eprommer();
    for (const std::size_t i : {12, 13})
        Nein_Bei(MNU_Eprommer_Test_Click,
                 Eprommer_Gut(),
                 i,
                 {Knoepfe::Ok,
                  "Das Problem liegt also an den bzw. der Leitung,",
                  "Please check the connections of the pin, which voltage was wrong at the last "
                  "test!",
                  "TEST 4 FAILED",
                  "TEST 4 FAILED"});
}

// --- the diagnosis ---

TEST_F(Hardware_Test_Welt, a_faulty_eprommer_is_diagnosed_in_both_languages)
{
    Eprommer();
    Brenner_Welt::Board().Fehler.Klemmt_Auf_0 = 1;
    Beide_Sprachen(MNU_Eprommer_Test_Click, Diagnose_Folge(Eprommer_Anfang()));
    EXPECT_EQ(IC_Nummer, 0);
    EXPECT_TRUE(fs::exists(Ordner / "AutoTest_failed.txt"));
}

TEST_F(Hardware_Test_Welt, the_port_bytes_of_the_diagnosis_of_the_eprommer)
{
    Eprommer();
    Brenner_Welt::Board().Fehler.Klemmt_Auf_0 = 1;
    const auto Folge                          = Diagnose_Folge(Eprommer_Anfang());
    Laufen(MNU_Eprommer_Test_Click, "E", Gute(Folge, Folge.size()));
    Spur_Vor(4, Daten({251}));
    Spur_Vor(5, Daten({27}));
    for (const int Erstes : {128, 0}) {
        std::string s;
        for (int i = 0; i < 8; ++i) {
            const int b = i % 2 == 0 ? Erstes : 128 - Erstes;
            s += Daten({91 + b, 123 + b, 27, 91, 27});
        }
        Spur_Vor(Erstes == 128 ? 6 : 7, s);
    }
    Spur_Vor(8, "");
}

TEST_F(Hardware_Test_Welt, the_patterns_stand_at_the_outputs_that_the_questions_name)
{
    // Pins 15, 1 to 7 are the outputs A to H; what goes in first comes out at H, which is bit 7.
    Tessel2();
    Board().Fehler.Klemmt_Auf_0 = 1;
    const auto       Folge      = Diagnose_Folge(Tessel2_Anfang());
    std::vector<int> Ausgaenge;
    const auto       Vorige = Kaesten.Spur;
    Kaesten.Spur            = [&] {
        Ausgaenge.push_back(Board().Speicher_595());
        return Vorige();
    };
    Laufen(MNU_Tessel2_Test_Click, "E", Gute(Folge, Folge.size()));
    ASSERT_EQ(Ausgaenge.size(), 9u);
    EXPECT_EQ(Ausgaenge[6], 0xAA);
    EXPECT_EQ(Ausgaenge[7], 0x55);
}

TEST_F(Hardware_Test_Welt, the_diagnosis_can_be_given_up_at_every_box)
{
    Eprommer();
    Brenner_Welt::Board().Fehler.Klemmt_Auf_0 = 1;
    Ueberall_Abbrechen(MNU_Eprommer_Test_Click, Diagnose_Folge(Eprommer_Anfang()));
}

TEST_F(Hardware_Test_Welt, a_no_in_the_diagnosis_of_the_eprommer_gives_its_advice)
{
    Eprommer();
    Brenner_Welt::Board().Fehler.Klemmt_Auf_0 = 1;
    const auto Folge                          = Diagnose_Folge(Eprommer_Anfang());
    Nein_Bei(MNU_Eprommer_Test_Click, Folge, 4, Rat_Kabel);
    EXPECT_NE(Kaesten.Meldungen.back().Text.find("eprommer"), std::string::npos);
    EXPECT_EQ(Kaesten.Meldungen.back().Text.find("between the two ics"), std::string::npos);
    Nein_Bei(MNU_Eprommer_Test_Click, Folge, 5, Rat_Kabel);
    EXPECT_NE(Kaesten.Meldungen.back().Text.find("between the two ics"), std::string::npos);
    Nein_Bei(MNU_Eprommer_Test_Click, Folge, 6, Rat_595_);
    Nein_Bei(MNU_Eprommer_Test_Click, Folge, 7, Rat_595_);
}

// --- the Tessel2 board ---

TEST_F(Hardware_Test_Welt, a_sound_tessel2_board_passes_all_four_tests_in_both_languages)
{
    Tessel2();
    Beide_Sprachen(MNU_Tessel2_Test_Click, Tessel2_Gut());
    EXPECT_EQ(IC_Nummer, 0);
    for (const int n : Kaesten.Baustein)
        EXPECT_EQ(n, 0) << "no picture of jumpers";
    EXPECT_FALSE(Fenster.Formular_Sichtbar(Formular::F_Jumper));
}

TEST_F(Hardware_Test_Welt, the_tessel2_test_needs_no_chosen_device)
{
    Tessel2();
    IC_Nummer = -1;
    Laufen(MNU_Tessel2_Test_Click, "E", Gute(Tessel2_Gut(), Tessel2_Gut().size()));
    Wie(Tessel2_Gut(), false);
    EXPECT_EQ(IC_Nummer, -1);
}

TEST_F(Hardware_Test_Welt, the_port_bytes_of_each_step_of_the_tessel2_board)
{
    Tessel2();
    const auto Folge = Tessel2_Gut();
    Laufen(MNU_Tessel2_Test_Click, "E", Gute(Folge, Folge.size()));
    ASSERT_EQ(Kaesten.Spuren.size(), 12u);
    for (const std::size_t i : {0, 1, 2})
        Spur_Vor(i, "");
    EXPECT_TRUE(Kaesten.Spuren[3].starts_with(Zaehler_Reset + Daten({85, 117, 85, 117})));
    EXPECT_NE(Kaesten.Spuren[3].find(Daten({85 + 128, 117 + 128, 21, 85, 21})), std::string::npos);
    Spur_Vor(4, Daten({4}));
    Spur_Vor(5, Daten({64}));
    Spur_Vor(6, Daten({69})); // the 12 V are gone
    const std::string Reset    = "W D 43\nM 1\nW D 41\nM 1\nW D 49\nW D 41\n";
    std::string       Schritte = Reset;
    for (int i = 0; i < 65535; ++i)
        Schritte += "W D 43\nW D 41\n";
    Spur_Vor(7, Schritte);
    Spur_Vor(8, Reset);
    Spur_Vor(9, Daten({4}) + "W C 06\n");
    Spur_Vor(10, Daten({64}) + "W C 0B\n");
    Spur_Vor(11, Daten({69})); // the 12 V are gone here too
}

TEST_F(Hardware_Test_Welt, the_89S_parts_shift_with_a_0_on_the_lowest_data_line)
{
    for (const char* Name : {"89S53", "89S8252", "89C55"}) {
        Tessel2();
        Geraete_Tabelle[0].Name = Name;
        Laufen(MNU_Tessel2_Test_Click, "E", {1, 1, 1, 2});
        EXPECT_EQ(Kaesten.Meldungen.back().Titel, "TEST 1 OKAY!");
        const bool S = Name[2] == 'S';
        EXPECT_TRUE(Kaesten.Spuren[3].starts_with(Zaehler_Reset +
                                                  (S ? Daten({84, 116}) : Daten({85, 117}))));
    }
}

TEST_F(Hardware_Test_Welt, the_tessel2_test_can_be_given_up_at_every_box)
{
    Tessel2();
    Ueberall_Abbrechen(MNU_Tessel2_Test_Click, Tessel2_Gut());
}

TEST_F(Hardware_Test_Welt, every_cancel_of_the_tessel2_test_ends_with_the_byte_of_rest)
{
    for (const bool Gesund : {true, false}) {
        Tessel2();
        Board().Fehler.Klemmt_Auf_0 = Gesund ? 0 : 1;
        const auto Folge            = Gesund ? Tessel2_Gut() : Diagnose_Folge(Tessel2_Anfang());
        for (std::size_t i = 0; i < Folge.size(); ++i) {
            SCOPED_TRACE(i);
            std::deque<int> a = Gute(Folge, i);
            a.push_back(Antwort_Abbrechen); // the last box knows OK only
            Laufen(MNU_Tessel2_Test_Click, "E", a);
            const std::string Ende = Port_Spur();
            if (i < 3) // another board may still be at the port
                EXPECT_EQ(Ende, "");
            else
                EXPECT_TRUE(Ende.ends_with(Daten({69}))) << Ende;
        }
    }
}

TEST_F(Hardware_Test_Welt, every_no_of_the_tessel2_test_ends_with_the_byte_of_rest)
{
    for (const bool Gesund : {true, false}) {
        Tessel2();
        Board().Fehler.Klemmt_Auf_0 = Gesund ? 0 : 1;
        const auto Folge            = Gesund ? Tessel2_Gut() : Diagnose_Folge(Tessel2_Anfang());
        for (std::size_t i = 0; i < Folge.size(); ++i) {
            if (Folge[i].Tasten != Ja_Nein)
                continue;
            SCOPED_TRACE(i);
            std::deque<int> a = Gute(Folge, i);
            a.push_back(Antwort_Nein);
            Laufen(MNU_Tessel2_Test_Click, "E", a);
            EXPECT_EQ(Port_Spur(), Daten({69})) << "behind the box of the failure";
        }
    }
}

TEST_F(Hardware_Test_Welt, the_eprommer_test_has_no_byte_of_rest_of_its_own)
{
    Eprommer();
    const auto Folge = Eprommer_Gut();
    Laufen(MNU_Eprommer_Test_Click, "E", Gute(Folge, Folge.size()));
    EXPECT_EQ(Port_Spur(), "");
}

TEST_F(Hardware_Test_Welt, a_faulty_tessel2_board_is_diagnosed_with_its_own_bytes)
{
    Tessel2();
    Board().Fehler.Klemmt_Auf_1 = 128;
    const auto Folge            = Diagnose_Folge(Tessel2_Anfang());
    Beide_Sprachen(MNU_Tessel2_Test_Click, Folge);
    Spur_Vor(4, Daten({128 + 85}));
    Spur_Vor(5, Daten({21}));
    std::string s;
    for (int i = 0; i < 8; ++i) {
        const int b = i % 2 == 0 ? 128 : 0;
        s += Daten({85 + b, 117 + b, 21, 85, 21});
    }
    Spur_Vor(6, s);
    Nein_Bei(MNU_Tessel2_Test_Click, Folge, 4, Rat_Kabel);
    EXPECT_EQ(Kaesten.Meldungen.back().Text.find("eprommer"), std::string::npos);
    EXPECT_NE(Kaesten.Meldungen.back().Text.find("programmer"), std::string::npos);
    Nein_Bei(MNU_Tessel2_Test_Click, Folge, 7, Rat_595_);
}

TEST_F(Hardware_Test_Welt, a_no_on_the_tessel2_board_fails_the_test)
{
    Tessel2();
    for (const std::size_t i : {4, 5})
        Nein_Bei(MNU_Tessel2_Test_Click,
                 Tessel2_Gut(),
                 i,
                 {Knoepfe::Ok,
                  "Die Brennspannung wird nicht korrekt eingestellt.",
                  "The programming voltage is NOT regulated correctly!",
                  "TEST 2 FAILED!",
                  "TEST 2 FAILED!"});
    EXPECT_NE(Kaesten.Meldungen.back().Text.find("R9-R11"), std::string::npos);
    for (const std::size_t i : {7, 8})
        Nein_Bei(MNU_Tessel2_Test_Click,
                 Tessel2_Gut(),
                 i,
                 {Knoepfe::Ok,
                  "Beide oder einer der 74HC393 arbeiten nicht richtig.",
                  "One or both of the 74HC393",
                  "TEST 3 FAILED",
                  "TEST 3 FAILED"});
    for (const std::size_t i : {9, 10})
        Nein_Bei(MNU_Tessel2_Test_Click,
                 Tessel2_Gut(),
                 i,
                 {Knoepfe::Ok,
                  "Das Problem liegt also an den bzw. der Leitung,",
                  "Please check the connections of the pin",
                  "TEST 4 FAILED",
                  "TEST 4 FAILED"});
}

TEST_F(Hardware_Test_Welt, a_running_test_writes_its_file_anew)
{
    Tessel2();
    Board().Fehler.Klemmt_Auf_0 = 1;
    const auto Alter            = [this] { return fs::file_size(Ordner / "AutoTest_failed.txt"); };
    Laufen(MNU_Tessel2_Test_Click, "E", {1, 1, 1, 2});
    const auto Groesse = Alter();
    Laufen(MNU_Tessel2_Test_Click, "E", {1, 1, 1, 2});
    EXPECT_EQ(Alter(), Groesse) << "not appended";
    EXPECT_EQ(Kaesten.Meldungen.size(), 4u) << "cancel ends it without a diagnosis";
}

// --- the simulated port of the program ---

class Simulierter_Port_Test : public Hardware_Test_Welt {
protected:
    Simulierter_Port_Test()
    {
        Port_Art     = Art_Simuliert;
        Kaesten.Spur = [] {
            const Board_Bild b = Board_Ansehen();
            return b.Board + (b.Hat_Baustein ? ", a part" : ", empty");
        };
    }
    ~Simulierter_Port_Test() override
    {
        Plattform.Port = nullptr;
        Port_Einrichtung_Zuruecksetzen();
    }
    // A device of that board is chosen; its part in the socket begins with 12h.
    void Gewaehlt(const char* Name, int Brett)
    {
        Geraet(Name, 16).Programmer = Brett;
        Port_Neu_Oeffnen();
        Der_Baustein().Inhalt[0] = 0x12;
    }
    static Simulierter_Baustein& Der_Baustein()
    {
        return *dynamic_cast<Simuliertes_Board&>(*Plattform.Port).Baustein();
    }
    void Alle_Auf(const std::string& Erwartet) const
    {
        for (const std::string& s : Kaesten.Spuren)
            EXPECT_EQ(s, Erwartet);
    }
};

TEST_F(Simulierter_Port_Test, each_test_has_its_own_board_whatever_device_is_chosen)
{
    for (const int Brett : {1, 2, 3}) {
        SCOPED_TRACE(Brett);
        Gewaehlt(Brett == 1 ? "27C256" : Brett == 2 ? "89C2051" : "89C51", Brett);
        const std::string Vorher = Board_Ansehen().Board;
        Laufen(MNU_Eprommer_Test_Click, "E", Gute(Eprommer_Gut(), Eprommer_Gut().size()));
        Wie(Eprommer_Gut(), false);
        Alle_Auf("Eprommer, empty");
        EXPECT_EQ(Board_Ansehen().Board, Vorher);
        Laufen(MNU_Tessel2_Test_Click, "E", Gute(Tessel2_Gut(), Tessel2_Gut().size()));
        Wie(Tessel2_Gut(), false);
        Alle_Auf("Tessel2, empty");
        EXPECT_EQ(Board_Ansehen().Board, Vorher);
        EXPECT_EQ(Der_Baustein().Inhalt[0], 0x12);
    }
}

TEST_F(Simulierter_Port_Test, the_tests_need_no_device_either)
{
    IC_Nummer = -1;
    Port_Neu_Oeffnen();
    Laufen(MNU_Tessel2_Test_Click, "E", Gute(Tessel2_Gut(), Tessel2_Gut().size()));
    Wie(Tessel2_Gut(), false);
    EXPECT_EQ(Board_Ansehen().Board, "Eprommer");
}

TEST_F(Simulierter_Port_Test, a_test_that_is_given_up_brings_the_part_back_too)
{
    Gewaehlt("27C256", 1);
    for (std::size_t i = 0; i + 1 < Tessel2_Gut().size(); ++i) {
        std::deque<int> a = Gute(Tessel2_Gut(), i);
        a.push_back(Antwort_Abbrechen);
        Laufen(MNU_Tessel2_Test_Click, "E", a);
        EXPECT_EQ(Kaesten.Spuren.back(), "Tessel2, empty");
        EXPECT_EQ(Board_Ansehen().Board, "Eprommer");
        EXPECT_EQ(Der_Baustein().Inhalt[0], 0x12);
    }
}

TEST_F(Simulierter_Port_Test, a_fault_of_the_board_shows_in_its_own_test_only)
{
    for (const int Brett : {1, 3}) {
        Gewaehlt("27C256", Brett);
        Board_Stoeren(Board_Stoerung::D0_Auf_0, true);
        Laufen(MNU_Eprommer_Test_Click, "E", {1, 1, 1, 2});
        EXPECT_EQ(Kaesten.Meldungen.back().Titel, Brett == 1 ? "TEST 1 Failed!" : "TEST 1 OKAY!");
        Laufen(MNU_Tessel2_Test_Click, "E", {1, 1, 1, 2});
        EXPECT_EQ(Kaesten.Meldungen.back().Titel, Brett == 3 ? "TEST 1 Failed!" : "TEST 1 OKAY!");
        EXPECT_TRUE(Board_Gestoert(Board_Stoerung::D0_Auf_0));
    }
}

TEST_F(Simulierter_Port_Test, the_part_can_be_read_as_before_behind_a_test)
{
    Gewaehlt("27C256", 1);
    Laufen(MNU_Tessel2_Test_Click, "E", {1, 1, 1, 2});
    Hex_Puffer.assign(16, 0);
    C_Brenner = false;
    MNU_IC_Lesen_Click();
    EXPECT_EQ(Hex_Daten[0], 0x12);
    EXPECT_EQ(Hex_Daten[1], 0xFF);
}

} // namespace
} // namespace varnholt::test
