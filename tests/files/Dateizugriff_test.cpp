// Whole files in and out: what is read, what is refused, and that a failed write leaves everything
// as it was.
#include "files/Dateizugriff.h"

#include "files/Dateien_Welt.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varnholt::test {
namespace {

namespace fs = std::filesystem;

class Dateizugriff : public Dateien_Welt {
protected:
    // A write that has to fail; the reason.
    std::string Scheitert(const std::string& Name)
    {
        std::string Grund;
        EXPECT_FALSE(Datei_Schreiben(Name, "new", Grund));
        return Grund;
    }
};

// Lets no file grow beyond so many bytes, as a full disk does.
class Grenze_Setzen {
public:
    explicit Grenze_Setzen(rlim_t Bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &Bisher);
        const rlimit Neu{Bytes, Bisher.rlim_max};
        setrlimit(RLIMIT_FSIZE, &Neu);
    }
    Grenze_Setzen(const Grenze_Setzen&)            = delete;
    Grenze_Setzen& operator=(const Grenze_Setzen&) = delete;
    ~Grenze_Setzen()
    {
        setrlimit(RLIMIT_FSIZE, &Bisher);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit Bisher{};
};

TEST_F(Dateizugriff, reads_a_file_of_just_the_limit_and_none_longer)
{
    const std::string Name = Ordner.Anlegen("a", "12345");
    EXPECT_EQ(Datei_Lesen(Name, 5), "12345");
    EXPECT_EQ(Datei_Lesen(Name, 4), std::nullopt);
}
TEST_F(Dateizugriff, reads_an_empty_file)
{
    EXPECT_EQ(Datei_Lesen(Ordner.Anlegen("a", ""), 5), "");
}
TEST_F(Dateizugriff, does_not_read_what_is_missing_a_folder_or_a_device)
{
    EXPECT_EQ(Datei_Lesen(Ordner.Name("missing"), 5), std::nullopt);
    EXPECT_EQ(Datei_Lesen(Ordner.Pfad, 5), std::nullopt);
    EXPECT_EQ(Datei_Lesen("/dev/zero", 5), std::nullopt);
}
TEST_F(Dateizugriff, does_not_wait_for_a_pipe_that_nobody_writes_to)
{
    ASSERT_EQ(mkfifo(Ordner.Name("pipe").c_str(), 0600), 0);
    EXPECT_EQ(Datei_Lesen(Ordner.Name("pipe"), 5), std::nullopt);
}
TEST_F(Dateizugriff, reads_the_beginning_of_a_longer_file_and_tells_its_size)
{
    std::string Grund;
    const auto  Anfang = Datei_Anfang_Lesen(Ordner.Anlegen("a", "12345"), 2, Grund);
    ASSERT_TRUE(Anfang);
    EXPECT_EQ(Anfang->Bytes, "12");
    EXPECT_EQ(Anfang->Groesse, 5u);
}
TEST_F(Dateizugriff, reads_the_beginning_of_a_file_far_longer_than_the_memory)
{
    const std::string Name = Ordner.Anlegen("a", "12345");
    fs::resize_file(Name, std::uintmax_t{1} << 40);
    std::string Grund;
    const auto  Anfang = Datei_Anfang_Lesen(Name, 6, Grund);
    ASSERT_TRUE(Anfang);
    EXPECT_EQ(Anfang->Bytes, std::string("12345\0", 6));
}
TEST_F(Dateizugriff, tells_in_both_languages_why_a_file_can_not_be_read)
{
    std::string Grund;
    EXPECT_FALSE(Datei_Anfang_Lesen(Ordner.Pfad, 5, Grund));
    EXPECT_EQ(Grund, "it is a folder");
    Sprache = "D";
    EXPECT_FALSE(Datei_Anfang_Lesen("/dev/null", 5, Grund));
    EXPECT_EQ(Grund, "das ist keine gewöhnliche Datei");
}

TEST_F(Dateizugriff, writes_a_new_file_and_leaves_nothing_else)
{
    std::string Grund;
    EXPECT_TRUE(Datei_Schreiben(Ordner.Name("a"), std::string_view("x\0y", 3), Grund));
    EXPECT_EQ(Bytes_Von(Ordner.Name("a")), std::string("x\0y", 3));
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"a"});
    EXPECT_EQ(Grund, "");
}
TEST_F(Dateizugriff, gives_a_new_file_the_permissions_that_the_user_has_set_for_new_files)
{
    const mode_t Bisher = umask(027);
    std::string  Grund;
    EXPECT_TRUE(Datei_Schreiben(Ordner.Name("a"), "x", Grund));
    umask(Bisher);
    EXPECT_EQ(fs::status(Ordner.Name("a")).permissions(), fs::perms(0640));
}
TEST_F(Dateizugriff, keeps_the_permissions_of_the_old_file)
{
    const std::string Name = Ordner.Anlegen("a", "old");
    fs::permissions(Name, fs::perms(0751));
    std::string Grund;
    EXPECT_TRUE(Datei_Schreiben(Name, "new", Grund));
    EXPECT_EQ(Bytes_Von(Name), "new");
    EXPECT_EQ(fs::status(Name).permissions(), fs::perms(0751));
}
TEST_F(Dateizugriff, writes_beside_a_file_that_has_the_temporary_name)
{
    const std::string Name = ".varnholt-" + std::to_string(getpid()) + "-0";
    Ordner.Anlegen(Name, "mine");
    std::string Grund;
    EXPECT_TRUE(Datei_Schreiben(Ordner.Name("a"), "x", Grund));
    EXPECT_EQ(Bytes_Von(Ordner.Name(Name)), "mine");
}
TEST_F(Dateizugriff, writes_a_name_of_the_greatest_length)
{
    const std::string Lang(255, 'a');
    std::string       Grund;
    EXPECT_TRUE(Datei_Schreiben(Ordner.Name(Lang), "x", Grund));
    EXPECT_EQ(Scheitert(Ordner.Name(Lang + "a")), "the name is too long");
}
TEST_F(Dateizugriff, writes_the_target_of_a_link_and_keeps_the_link)
{
    fs::create_directory(Ordner.Pfad / "sub");
    Ordner.Anlegen("sub/target", "old");
    fs::create_symlink("sub/second", Ordner.Pfad / "first");
    fs::create_symlink("target", Ordner.Pfad / "sub/second");
    std::string Grund;
    EXPECT_TRUE(Datei_Schreiben(Ordner.Name("first"), "new", Grund));
    EXPECT_EQ(Bytes_Von(Ordner.Name("sub/target")), "new");
    EXPECT_TRUE(fs::is_symlink(Ordner.Name("first")));
    EXPECT_TRUE(fs::is_symlink(Ordner.Name("sub/second")));
}
TEST_F(Dateizugriff, creates_the_missing_target_of_a_link)
{
    fs::create_symlink("target", Ordner.Pfad / "link");
    std::string Grund;
    EXPECT_TRUE(Datei_Schreiben(Ordner.Name("link"), "new", Grund));
    EXPECT_TRUE(fs::is_symlink(Ordner.Name("link")));
    EXPECT_EQ(Bytes_Von(Ordner.Name("target")), "new");
}
TEST_F(Dateizugriff, refuses_links_that_lead_in_a_circle)
{
    fs::create_symlink("b", Ordner.Pfad / "a");
    fs::create_symlink("a", Ordner.Pfad / "b");
    EXPECT_EQ(Scheitert(Ordner.Name("a")), "the links lead in a circle");
}
TEST_F(Dateizugriff, writes_a_device_directly)
{
    std::string Grund;
    EXPECT_TRUE(Datei_Schreiben("/dev/null", "x", Grund));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}
TEST_F(Dateizugriff, tells_that_the_disk_is_full)
{
    EXPECT_EQ(Scheitert("/dev/full"), "the disk is full");
    Sprache = "D";
    EXPECT_EQ(Scheitert("/dev/full"), "der Datenträger ist voll");
}
TEST_F(Dateizugriff, keeps_the_old_file_when_the_new_one_breaks_off)
{
    const std::string Name = Ordner.Anlegen("a", "old");
    {
        const Grenze_Setzen Grenze(4096);
        std::string         Grund;
        EXPECT_FALSE(Datei_Schreiben(Name, std::string(100000, 'x'), Grund));
        EXPECT_EQ(Grund, "the file is too large");
    }
    EXPECT_EQ(Bytes_Von(Name), "old");
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"a"});
}
TEST_F(Dateizugriff, leaves_no_file_when_a_first_one_breaks_off)
{
    {
        const Grenze_Setzen Grenze(4096);
        std::string         Grund;
        EXPECT_FALSE(Datei_Schreiben(Ordner.Name("a"), std::string(100000, 'x'), Grund));
    }
    EXPECT_TRUE(Ordner.Inhalt().empty());
}
TEST_F(Dateizugriff, tells_that_the_folder_is_gone)
{
    EXPECT_EQ(Scheitert(Ordner.Name("gone/a")), "the folder does not exist");
    Ordner.Anlegen("file", "");
    EXPECT_EQ(Scheitert(Ordner.Name("file/a")), "the folder does not exist");
}
TEST_F(Dateizugriff, does_not_replace_a_folder)
{
    fs::create_directory(Ordner.Pfad / "d");
    EXPECT_EQ(Scheitert(Ordner.Name("d")), "it is a folder");
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"d"});
}

// Runs a write as a user without rights, in a process of its own, since these tests may run as
// root. The process ends with 0 when the write failed for the lack of rights.
[[noreturn]] void Ohne_Rechte_Schreiben(const std::string& Name)
{
    if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
        _exit(2);
    std::string Grund;
    const bool  Geschrieben = Datei_Schreiben(Name, "new", Grund);
    _exit(!Geschrieben && Grund == "no permission" ? 0 : 1);
}

TEST_F(Dateizugriff, needs_the_right_to_write_into_the_folder)
{
    const std::string Name = Ordner.Anlegen("a", "old");
    fs::permissions(Name, fs::perms(0666));
    fs::permissions(Ordner.Pfad, fs::perms(0555));
    EXPECT_EXIT(Ohne_Rechte_Schreiben(Name), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(Bytes_Von(Name), "old");
}
TEST_F(Dateizugriff, does_not_replace_a_file_that_is_write_protected)
{
    const std::string Name = Ordner.Anlegen("a", "old");
    fs::permissions(Name, fs::perms(0444));
    fs::permissions(Ordner.Pfad, fs::perms(0777));
    EXPECT_EXIT(Ohne_Rechte_Schreiben(Name), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(Bytes_Von(Name), "old");
    EXPECT_EQ(Ordner.Inhalt(), std::vector<std::string>{"a"});
}

} // namespace
} // namespace varnholt::test
