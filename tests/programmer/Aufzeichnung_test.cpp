// The recorder, and the ports that lead to hardware.
#include "core/settings.h"
#include "programmer/Aufzeichnung.h"
#include "programmer/Brenner_Welt.h"
#include "programmer/Brenner_Zustand.h"
#include "programmer/Port_direkt.h"
#include "programmer/Port_ppdev.h"
#include "programmer/Special.h"

#include <cerrno>
#include <cstring>

#include <linux/ppdev.h>
#include <sys/ioctl.h>

namespace varnholt::test {
namespace {

class Aufzeichnung_Test : public Brenner_Welt {
protected:
    Skript_Port        Port{};
    std::ostringstream Strom{};
    Aufzeichnung       Recorder{Port, Strom};
};

TEST_F(Aufzeichnung_Test, each_operation_is_a_line_and_is_handed_on)
{
    Port.Status_Wert = 0x8F;
    Recorder.KS_outpb(888, 0x5A);
    Recorder.KS_outpb(890, 0x0B);
    EXPECT_EQ(Recorder.KS_inpb(889), 0x8F);
    Recorder.Wartet(20);
    Recorder.Sleep(75);
    EXPECT_TRUE(Recorder.Abschliessen());
    EXPECT_EQ(Strom.str(), "W D 5A\nW C 0B\nR S 8F\nU 20\nM 75\n");
    EXPECT_EQ(
        Port.Rufe,
        (std::vector<std::string>{"out 888 90", "out 890 11", "in 889", "waits 20", "sleep 75"}));
}

TEST_F(Aufzeichnung_Test, registers_are_named_by_their_distance_from_the_base)
{
    Port_Basis = 0x278;
    Recorder.KS_outpb(0x278, 1);
    Recorder.KS_outpb(0x27A, 2);
    Recorder.KS_outpb(0x27B, 3);
    Recorder.KS_outpb(0x277, 4);
    Recorder.Abschliessen();
    EXPECT_EQ(Strom.str(), "W D 01\nW C 02\nW ? 03\nW ? 04\n");
}

TEST_F(Aufzeichnung_Test, seconds_have_a_point)
{
    for (const double s : {0.7, 0.1, 2.0, 0.02})
        Recorder.Sekunden_Wartet(s);
    Recorder.Abschliessen();
    EXPECT_EQ(Strom.str(), "S 0.7\nS 0.1\nS 2.0\nS 0.02\n");
}

TEST_F(Aufzeichnung_Test, clock_and_driver_calls_leave_no_line)
{
    std::int64_t  Stempel = 0;
    std::uint32_t Wert    = 0;
    Port.Oeffnen_Ergebnis = 9;
    EXPECT_EQ(Recorder.KS_openDriver(), 9);
    EXPECT_EQ(Recorder.KS_calibrateMachineTime(Wert), 0);
    EXPECT_EQ(Recorder.KS_enableIoRange(888, 3), 0);
    EXPECT_EQ(Recorder.KS_getMachineTime(Stempel), 0);
    EXPECT_EQ(Recorder.Sekunden_seit_Mitternacht(), 100.0);
    EXPECT_EQ(Recorder.KS_getErrorStringEx(1), "no driver");
    Recorder.Abschliessen();
    EXPECT_EQ(Strom.str(), "");
    EXPECT_EQ(Stempel, 1);
    EXPECT_EQ(Wert, 77u);
}

TEST_F(Aufzeichnung_Test, a_long_record_is_complete)
{
    for (int i = 0; i < 50000; ++i)
        Recorder.KS_outpb(888, 1);
    Recorder.Abschliessen();
    EXPECT_EQ(Strom.str().size(), 50000u * 7);
}

TEST_F(Aufzeichnung_Test, a_failing_stream_is_told)
{
    Recorder.KS_outpb(888, 1);
    Strom.setstate(std::ios::failbit);
    EXPECT_FALSE(Recorder.Abschliessen());
}

// ---- ppdev ----

// What the kernel was asked, and what it is to answer; plain functions can't hold it themselves.
struct Kern_T {
    std::vector<std::string> Rufe{};
    bool                     Oeffnen_Scheitert = false;
    unsigned long            Scheitert         = 0; // command that fails
    int                      Fehler            = 0; // with this errno
    unsigned char            Status            = 0x7F;
};
Kern_T Kern;

std::string Befehl_Name(unsigned long Nummer)
{
    switch (Nummer) {
    case PPCLAIM:
        return "claim";
    case PPRELEASE:
        return "release";
    case PPDATADIR:
        return "datadir";
    case PPWDATA:
        return "data";
    case PPWCONTROL:
        return "control";
    case PPRSTATUS:
        return "status";
    default:
        return "?";
    }
}

int Kern_Oeffnen(const char* Pfad)
{
    Kern.Rufe.push_back(std::string("open ") + Pfad);
    errno = Kern.Fehler;
    return Kern.Oeffnen_Scheitert ? -1 : 5;
}

int Kern_Befehl(int Griff, unsigned long Nummer, void* Argument)
{
    std::string Ruf = Befehl_Name(Nummer) + " " + std::to_string(Griff);
    if (Nummer == PPWDATA || Nummer == PPWCONTROL)
        Ruf += " " + std::to_string(*static_cast<unsigned char*>(Argument));
    if (Nummer == PPDATADIR)
        Ruf += " " + std::to_string(*static_cast<int*>(Argument));
    Kern.Rufe.push_back(Ruf);
    errno = Kern.Fehler;
    if (Nummer == Kern.Scheitert)
        return -1;
    if (Nummer == PPRSTATUS)
        *static_cast<unsigned char*>(Argument) = Kern.Status;
    return 0;
}

int Kern_Schliessen(int Griff)
{
    Kern.Rufe.push_back("close " + std::to_string(Griff));
    return 0;
}

class Ppdev_Test : public Brenner_Welt {
protected:
    Ppdev_Test() { Kern = {}; }
    static constexpr Ppdev_Griffe Griffe{Kern_Oeffnen, Kern_Befehl, Kern_Schliessen};
};

TEST_F(Ppdev_Test, the_port_is_claimed_for_output_used_raw_and_released)
{
    {
        Port_ppdev Port("/dev/parport0", Griffe);
        EXPECT_EQ(Port.KS_openDriver(), 0);
        EXPECT_EQ(Port.KS_enableIoRange(888, 3), 0);
        Port.KS_outpb(888, 0x5A);
        Port.KS_outpb(890, 0x0B);
        EXPECT_EQ(Port.KS_inpb(889), 0x7F);
    }
    EXPECT_EQ(Kern.Rufe,
              (std::vector<std::string>{"open /dev/parport0",
                                        "claim 5",
                                        "datadir 5 0",
                                        "data 5 90",
                                        "control 5 11",
                                        "status 5",
                                        "release 5",
                                        "close 5"}));
}

TEST_F(Ppdev_Test, a_missing_device_file_gives_an_error_with_text)
{
    Port_ppdev Port("/nonexistent/parport0");
    const int  Code = Port.KS_openDriver();
    EXPECT_EQ(Code, ENOENT);
    EXPECT_EQ(Port.KS_getErrorStringEx(Code),
              std::string("/nonexistent/parport0: ") + std::strerror(ENOENT));
    EXPECT_GT(Port.KS_enableIoRange(888, 3), 0);
    Port.KS_outpb(888, 1);
    EXPECT_EQ(Port.KS_inpb(889), 0xFF);
}

TEST_F(Ppdev_Test, a_file_that_is_no_port_gives_an_error)
{
    Port_ppdev Port("/dev/null");
    EXPECT_GT(Port.KS_openDriver(), 0);
}

TEST_F(Ppdev_Test, a_port_that_another_program_holds_gives_an_error_and_is_closed)
{
    Kern.Scheitert = PPCLAIM;
    Kern.Fehler    = ENXIO;
    {
        Port_ppdev Port("p", Griffe);
        EXPECT_EQ(Port.KS_openDriver(), ENXIO);
    }
    EXPECT_EQ(Kern.Rufe, (std::vector<std::string>{"open p", "claim 5", "close 5"}));
}

TEST_F(Ppdev_Test, a_failed_direction_gives_an_error_even_without_a_number)
{
    Kern.Scheitert = PPDATADIR;
    Port_ppdev Port("p", Griffe);
    EXPECT_EQ(Port.KS_openDriver(), EIO);
}

TEST_F(Ppdev_Test, a_status_that_cannot_be_read_floats)
{
    Kern.Scheitert = PPRSTATUS;
    Port_ppdev Port("p", Griffe);
    Port.KS_openDriver();
    Port.KS_enableIoRange(888, 3);
    EXPECT_EQ(Port.KS_inpb(889), 0xFF);
}

TEST_F(Ppdev_Test, other_addresses_do_not_reach_the_kernel)
{
    Port_ppdev Port("p", Griffe);
    Port.KS_openDriver();
    Port.KS_enableIoRange(888, 3);
    Kern.Rufe.clear();
    Port.KS_outpb(889, 1);
    Port.KS_outpb(891, 1);
    EXPECT_EQ(Port.KS_inpb(888), 0xFF);
    EXPECT_TRUE(Kern.Rufe.empty());
}

TEST_F(Ppdev_Test, opening_again_releases_the_first_claim)
{
    Port_ppdev Port("p", Griffe);
    Port.KS_openDriver();
    Port.KS_openDriver();
    EXPECT_EQ(Kern.Rufe,
              (std::vector<std::string>{"open p",
                                        "claim 5",
                                        "datadir 5 0",
                                        "release 5",
                                        "close 5",
                                        "open p",
                                        "claim 5",
                                        "datadir 5 0"}));
}

TEST_F(Ppdev_Test, its_clock_counts_forward_in_microseconds)
{
    Port_ppdev    Port("p", Griffe);
    std::uint32_t Wert = 0;
    std::int64_t  Erst = 0;
    std::int64_t  Dann = 0;
    EXPECT_EQ(Port.KS_calibrateMachineTime(Wert), 0);
    Port.KS_getMachineTime(Erst);
    Port.Sleep(2);
    Port.KS_getMachineTime(Dann);
    EXPECT_GE(Dann - Erst, 2000);
    EXPECT_GE(Port.Sekunden_seit_Mitternacht(), 0.0);
    EXPECT_LT(Port.Sekunden_seit_Mitternacht(), 86402.0);
}

TEST_F(Ppdev_Test, a_driver_that_cannot_be_opened_stops_the_program_from_nothing_else)
{
    Port_ppdev Port("/nonexistent/parport0");
    Plattform.Port = &Port;
    Porttreiber_Laden();
    EXPECT_FALSE(Porttreiber_OK);
    EXPECT_NE(Letzte_Meldung().find("/nonexistent/parport0: No such file"), std::string::npos);
}

// ---- direct access ----

TEST(Port_direkt_Test, a_range_outside_the_io_space_is_refused)
{
    Port_direkt Port;
    EXPECT_EQ(Port.KS_enableIoRange(-1, 3), EINVAL);
    EXPECT_EQ(Port.KS_enableIoRange(0xFFFE, 3), EINVAL);
    EXPECT_EQ(Port.KS_enableIoRange(0x378, 0), EINVAL);
    EXPECT_EQ(Port.KS_enableIoRange(0x378, 9), EINVAL);
}

TEST(Port_direkt_Test, without_an_unlocked_range_nothing_is_touched)
{
    Port_direkt Port;
    Port.KS_outpb(0x378, 1);
    EXPECT_EQ(Port.KS_inpb(0x379), 0xFF);
    Port.KS_enableIoRange(-1, 3);
    EXPECT_EQ(Port.KS_inpb(-1), 0xFF);
}

TEST(Port_direkt_Test, its_errors_have_texts)
{
    Port_direkt Port;
    EXPECT_NE(Port.KS_getErrorStringEx(EPERM).find("root"), std::string::npos);
    EXPECT_NE(Port.KS_getErrorStringEx(ENOSYS).find("not possible"), std::string::npos);
    EXPECT_EQ(Port.KS_getErrorStringEx(EINVAL), std::strerror(EINVAL));
}

} // namespace
} // namespace varnholt::test
