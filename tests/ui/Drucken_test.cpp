// Printing through the window: the print dialog with real clicks, PDF files read back as text.
#include "Haupt_Welt.h"
#include "core/menu.h"
#include "core/settings.h"
#include "files/Drucken.h"
#include "support/scripted_platform.h"
#include "ui/Druck_Dialog.h"
#include "ui/Druck_Vorschau.h"
#include "ui/Qt_Drucker.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProgressBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStatusBar>

#include <sys/resource.h>

#include <csignal>
#include <utility>

namespace varnholt::test {
namespace {

class Drucken_Fenster : public Haupt_Welt {
protected:
    ~Drucken_Fenster() override { Waechter.stop(); }
    // The print dialog: a click on that button, behind what Vorher does.
    void Dialog_Beantworten(const char* Knopf, std::function<void(QDialog*)> Vorher = {})
    {
        Antworten.Naechstes([this, Knopf, Vorher](QWidget* w) {
            auto* Dialog = qobject_cast<Druck_Dialog*>(w);
            ASSERT_NE(Dialog, nullptr);
            Titel       = Dialog->windowTitle();
            auto* Liste = Dialog->findChild<QComboBox*>(QStringLiteral("Geraete"));
            Liste->addItem(QStringLiteral("Zeilendrucker"), QStringLiteral("Zeilendrucker"));
            Liste->setCurrentIndex(Liste->findData(Ziel));
            if (Vorher)
                Vorher(Dialog);
            auto* b = Dialog->findChild<QPushButton*>(QLatin1String(Knopf));
            ASSERT_NE(b, nullptr);
            QTest::mouseClick(b, Qt::LeftButton);
        });
    }
    void Datei_Beantworten(const QString& Name)
    {
        Antworten.Naechstes([Name](QWidget* w) {
            auto* Dialog = qobject_cast<QFileDialog*>(w);
            ASSERT_NE(Dialog, nullptr);
            auto* Feld = Dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            Feld->setText(Name);
            QTest::keyClick(Feld, Qt::Key_Return);
        });
    }
    QString PDF() const { return Ordner.filePath(QStringLiteral("druck.pdf")); }
    QString PDF_Text() const
    {
        QProcess Leser;
        Leser.start(QStringLiteral("pdftotext"),
                    {QStringLiteral("-layout"), PDF(), QStringLiteral("-")});
        EXPECT_TRUE(Leser.waitForFinished());
        return QString::fromUtf8(Leser.readAllStandardOutput());
    }
    void Drucken_Waehlen() { Aktion("MNU_PrintDialog")->trigger(); }
    void In_PDF_Drucken()
    {
        Dialog_Beantworten("Drucken");
        Datei_Beantworten(PDF());
        Drucken_Waehlen();
    }
    // The button of the preview.
    void Vorschau_Beantworten(const char* Knopf, std::function<void(Druck_Vorschau*)> Vorher = {})
    {
        Antworten.Naechstes([Knopf, Vorher](QWidget* w) {
            auto* Dialog = qobject_cast<Druck_Vorschau*>(w);
            ASSERT_NE(Dialog, nullptr);
            QApplication::processEvents(); // its pages
            if (Vorher)
                Vorher(Dialog);
            auto* b = Dialog->findChild<QPushButton*>(QLatin1String(Knopf));
            // What opens now is answered by another turn of the same clock.
            QTimer::singleShot(0, b, [b] { QTest::mouseClick(b, Qt::LeftButton); });
        });
    }
    // The setup of the sheet: a size by its name, and Enter.
    void Blatt_Beantworten(const QString& Name)
    {
        Antworten.Naechstes([Name](QWidget* w) {
            auto* Blatt = qobject_cast<QPageSetupDialog*>(w);
            ASSERT_NE(Blatt, nullptr);
            for (auto* Liste : Blatt->findChildren<QComboBox*>())
                for (int i = 0; i < Liste->count(); ++i)
                    if (Liste->itemText(i) == Name)
                        Liste->setCurrentIndex(i);
            QTest::keyClick(Blatt, Qt::Key_Return);
        });
    }
    // The status dialog's button, when the bar has come that far.
    void Abbrechen_Bei(int Prozent)
    {
        Waechter.setInterval(0);
        QObject::connect(&Waechter, &QTimer::timeout, Fenster.get(), [this, Prozent] {
            auto* Status = QApplication::activeModalWidget();
            if (Status == nullptr || Status->objectName() != QStringLiteral("status") ||
                Status->findChild<QProgressBar*>()->value() < Prozent)
                return;
            Status_Text = Status->findChild<QLabel*>(QStringLiteral("Text"))->text();
            Waechter.stop();
            QTest::mouseClick(Status->findChild<QPushButton*>(QStringLiteral("Abbrechen")),
                              Qt::LeftButton);
        });
        Waechter.start();
    }
    QString Statuszeile() const
    {
        for (const QLabel* l : Fenster->statusBar()->findChildren<QLabel*>())
            if (l->text().contains(QStringLiteral("rint")) ||
                l->text().contains(QStringLiteral("Druck")) ||
                l->text().contains(QStringLiteral("druckt")))
                return l->text();
        return {};
    }
    void Zeilen_Setzen(int Anzahl)
    {
        std::string Text;
        for (int i = 1; i <= Anzahl; ++i)
            Text += "Zeile_" + std::to_string(i) + ":\r\n";
        Edit()->Text_Setzen_UTF8(Text);
    }
    static Qt_Drucker& Papier() { return dynamic_cast<Qt_Drucker&>(*Plattform.Druck); }

    QString Titel{};
    QString Ziel{}; // the PDF file
    QString Status_Text{};
    QTimer  Waechter{};
};

int Seitenzahl(const QString& Datei)
{
    QProcess Leser;
    Leser.start(QStringLiteral("pdfinfo"), {Datei});
    EXPECT_TRUE(Leser.waitForFinished());
    const QRegularExpression Muster(QStringLiteral("Pages:\\s+(\\d+)"));
    return Muster.match(QString::fromUtf8(Leser.readAllStandardOutput())).captured(1).toInt();
}

// How far right the words of a PDF file reach, and how wide its sheet is; points.
std::pair<double, double> Rechter_Rand(const QString& Datei)
{
    QProcess Leser;
    Leser.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), Datei, QStringLiteral("-")});
    EXPECT_TRUE(Leser.waitForFinished());
    const QString            t = QString::fromUtf8(Leser.readAllStandardOutput());
    const QRegularExpression Wort(QStringLiteral("xMax=\"([0-9.]+)\""));
    const QRegularExpression Blatt(QStringLiteral("page width=\"([0-9.]+)\""));
    double                   Rechts = 0;
    for (auto i = Wort.globalMatch(t); i.hasNext();)
        Rechts = std::max(Rechts, i.next().captured(1).toDouble());
    return {Rechts, Blatt.match(t).captured(1).toDouble()};
}

// A printer that isn't there: what it prints goes to a file, and behind some pages it fails.
class Pruefdrucker : public QPrinter {
public:
    Pruefdrucker(const QString& Datei, int Hoechstens)
        : QPrinter(QPrinter::HighResolution), Noch(Hoechstens)
    {
        setOutputFormat(QPrinter::PdfFormat);
        setOutputFileName(Datei);
    }
    bool newPage() override { return Noch-- > 1 && QPrinter::newPage(); }

private:
    int Noch;
};

class Drucker_Am_Pruefstand : public Qt_Drucker {
public:
    explicit Drucker_Am_Pruefstand(const QString& Datei, int Hoechstens = 1000)
        : Qt_Drucker(nullptr, std::make_unique<Pruefdrucker>(Datei, Hoechstens))
    {
    }
    QString Eingestellt{};

protected:
    bool Drucker_Einstellen(const QString& Name) override
    {
        Eingestellt = Name;
        return true;
    }
};

TEST_F(Drucken_Fenster, a_text_goes_to_a_pdf_file_line_by_line_with_its_footer)
{
    Starten("D");
    Edit()->Text_Setzen_UTF8("Anfang: MOV A,#5 ; grün\r\n\tSJMP Anfang\r\n");
    Dialog_Beantworten("Drucken");
    Datei_Beantworten(PDF());
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Titel, QStringLiteral("Drucken"));
    const QString t = PDF_Text();
    EXPECT_TRUE(t.contains(QStringLiteral("Anfang: MOV A,#5 ; grün"))) << Nach_Std(t);
    EXPECT_TRUE(t.contains(QStringLiteral("SJMP Anfang")));
    EXPECT_TRUE(t.contains(QStringLiteral("Seite: 1     Zeit: "))) << Nach_Std(t);
}

TEST_F(Drucken_Fenster, a_selection_goes_to_the_pdf_file_alone)
{
    Starten("E");
    Edit()->Text_Setzen_UTF8("eins\r\nzwei\r\ndrei\r\n");
    Edit()->Auswaehlen(6, 4);
    Dialog_Beantworten("Drucken", [](QDialog* d) {
        auto* m = d->findChild<QRadioButton*>(QStringLiteral("Markierung"));
        ASSERT_TRUE(m->isEnabled());
        m->setChecked(true);
    });
    Datei_Beantworten(PDF());
    Drucken_Waehlen();
    const QString t = PDF_Text();
    EXPECT_TRUE(t.contains(QStringLiteral("zwei")));
    EXPECT_FALSE(t.contains(QStringLiteral("eins")));
    EXPECT_FALSE(t.contains(QStringLiteral("drei")));
    EXPECT_TRUE(t.contains(QStringLiteral("Page: 1")));
}

TEST_F(Drucken_Fenster, an_image_goes_to_the_pdf_file_with_header_rows_and_footer)
{
    Starten("E", Modus_Hex);
    Hex_Daten[0] = 0x4B;
    Dialog_Beantworten("Drucken");
    Datei_Beantworten(PDF());
    Drucken_Waehlen();
    const QString t = PDF_Text().simplified(); // columns are told by distances
    EXPECT_TRUE(t.contains(QStringLiteral("---Datum "))) << Nach_Std(t);
    EXPECT_TRUE(t.contains(QStringLiteral("000000 000000 4B FF FF"))) << Nach_Std(t);
    EXPECT_EQ(t.count(QStringLiteral("Seite:1")), 2);
}

TEST_F(Drucken_Fenster, a_cancelled_dialog_and_a_cancelled_file_name_print_nothing)
{
    Starten("E");
    Antworten.Naechstes([](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    Drucken_Waehlen();
    Dialog_Beantworten("Drucken");
    Antworten.Naechstes([](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_FALSE(QFile::exists(PDF()));
}

// --- the dialog ---

TEST_F(Drucken_Fenster, without_a_printer_the_dialog_says_so_and_offers_the_pdf_file)
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "this computer has printers";
    for (const auto& [Welche, Text] :
         {std::pair{"D",
                    "Auf diesem Rechner ist kein Drucker eingerichtet.\n"
                    "Gedruckt wird in eine PDF-Datei."},
          std::pair{"E",
                    "No printer is set up on this computer.\n"
                    "You can print into a PDF file."}}) {
        Starten(Welche);
        Antworten.Naechstes([Text = Text](QWidget* w) {
            auto* Hinweis = w->findChild<QLabel*>(QStringLiteral("Kein_Drucker"));
            ASSERT_NE(Hinweis, nullptr);
            EXPECT_EQ(Nach_Std(Hinweis->text()), Text);
            EXPECT_TRUE(Hinweis->isVisible());
            auto* Liste = w->findChild<QComboBox*>(QStringLiteral("Geraete"));
            EXPECT_EQ(Liste->count(), 1);
            EXPECT_TRUE(Liste->currentText().contains(QStringLiteral("PDF")));
            QTest::keyClick(w, Qt::Key_Escape);
        });
        Drucken_Waehlen();
    }
}

TEST_F(Drucken_Fenster, only_a_printer_makes_copies)
{
    Starten("E");
    Dialog_Beantworten("Abbrechen", [](QDialog* d) {
        auto* Liste  = d->findChild<QComboBox*>(QStringLiteral("Geraete"));
        auto* Kopien = d->findChild<QSpinBox*>(QStringLiteral("Kopien"));
        EXPECT_FALSE(Kopien->isEnabled()); // a PDF file
        Liste->setCurrentIndex(Liste->count() - 1);
        EXPECT_TRUE(Kopien->isEnabled());
        EXPECT_EQ(Kopien->value(), 1);
    });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Drucken_Fenster, the_number_of_copies_goes_to_the_printer)
{
    Starten("E");
    Zeilen_Setzen(3);
    Drucker_Am_Pruefstand Druck(PDF());
    Drucker* const        Vorher = std::exchange(Plattform.Druck, &Druck);
    Ziel                         = QStringLiteral("Zeilendrucker");
    Dialog_Beantworten("Drucken", [](QDialog* d) {
        auto* Kopien = d->findChild<QSpinBox*>(QStringLiteral("Kopien"));
        Kopien->setFocus();
        Kopien->selectAll();
        QTest::keyClicks(Kopien, QStringLiteral("3"));
    });
    Drucken_Waehlen();
    EXPECT_EQ(Druck.Geraet().copyCount(), 3);
    EXPECT_EQ(Druck.Eingestellt, QStringLiteral("Zeilendrucker"));
    EXPECT_TRUE(PDF_Text().contains(QStringLiteral("Zeile_3:")));
    Plattform.Druck = Vorher;
}

TEST_F(Drucken_Fenster, the_selection_cant_be_chosen_where_there_is_none)
{
    Starten("E");
    Zeilen_Setzen(3);
    Dialog_Beantworten("Abbrechen", [](QDialog* d) {
        EXPECT_FALSE(d->findChild<QRadioButton*>(QStringLiteral("Markierung"))->isEnabled());
    });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
}

// --- the pdf file ---

TEST_F(Drucken_Fenster, an_existing_file_is_replaced_only_when_the_user_agrees)
{
    for (const bool Deutsch : {true, false}) {
        Starten(Deutsch ? "D" : "E");
        Zeilen_Setzen(3);
        Datei_Anlegen(Nach_Std(PDF()), "an older printout");
        Dialog_Beantworten("Drucken");
        Datei_Beantworten(PDF());
        Antworten.Taste(QMessageBox::No);
        Antworten.Naechstes([](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); }); // asks again
        Drucken_Waehlen();
        EXPECT_EQ(Antworten.Texte.back(),
                  Deutsch
                      ? "Die Datei " + Nach_Std(PDF()) + " gibt es schon. Soll sie ersetzt werden?"
                      : "The file " + Nach_Std(PDF()) + " exists already. Replace it?");
        EXPECT_EQ(Datei_Inhalt(Nach_Std(PDF())), "an older printout");
        Dialog_Beantworten("Drucken");
        Datei_Beantworten(PDF());
        Antworten.Taste(QMessageBox::Yes);
        Drucken_Waehlen();
        EXPECT_TRUE(PDF_Text().contains(QStringLiteral("Zeile_3:")));
        EXPECT_TRUE(Antworten.Fertig());
    }
}

TEST_F(Drucken_Fenster, a_name_that_isnt_to_be_replaced_stands_there_again_with_its_folder)
{
    Starten("E");
    Datei_Name = Heim + "blinker.asm";
    std::filesystem::create_directory(Heim + "papiere");
    const QString Alt = Ordner.filePath(QStringLiteral("papiere/blatt.pdf"));
    Datei_Anlegen(Nach_Std(Alt), "an older printout");
    Dialog_Beantworten("Drucken");
    Datei_Beantworten(Alt);
    Antworten.Taste(QMessageBox::No);
    Antworten.Naechstes([this](QWidget* w) {
        EXPECT_EQ(w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                  QStringLiteral("blatt.pdf"));
        EXPECT_EQ(qobject_cast<QFileDialog*>(w)->directory().canonicalPath(),
                  QDir(Ordner.filePath(QStringLiteral("papiere"))).canonicalPath());
        QTest::keyClick(w, Qt::Key_Escape);
    });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Datei_Inhalt(Nach_Std(Alt)), "an older printout");
}

TEST_F(Drucken_Fenster, the_document_s_name_is_proposed)
{
    Starten("E");
    Datei_Name = Heim + "blinker.1.asm";
    Dialog_Beantworten("Drucken");
    Antworten.Naechstes([this](QWidget* w) {
        EXPECT_EQ(w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                  QStringLiteral("blinker.1.pdf"));
        EXPECT_EQ(qobject_cast<QFileDialog*>(w)->directory().canonicalPath(),
                  QDir(Ordner.path()).canonicalPath());
        QTest::keyClick(w, Qt::Key_Escape);
    });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
}

TEST_F(Drucken_Fenster, a_file_that_cant_be_written_is_told_with_the_reason)
{
    for (const bool Deutsch : {true, false}) {
        Starten(Deutsch ? "D" : "E");
        Dialog_Beantworten("Drucken");
        Datei_Beantworten(QStringLiteral("/proc/druck.pdf"));
        Antworten.Taste(QMessageBox::Ok);
        Drucken_Waehlen();
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_EQ(Antworten.Texte.back(),
                  Deutsch
                      ? "Die Datei /proc/druck.pdf konnte nicht geschrieben werden: der Ordner ist "
                        "nicht vorhanden."
                      : "The file /proc/druck.pdf could not be written: the folder does not "
                        "exist.");
    }
}

TEST_F(Drucken_Fenster, a_device_that_is_full_is_told_in_both_languages)
{
    std::filesystem::create_symlink("/dev/full", Nach_Std(PDF()));
    for (const bool Deutsch : {true, false}) {
        Starten(Deutsch ? "D" : "E");
        Dialog_Beantworten("Drucken");
        Datei_Beantworten(PDF());
        Antworten.Taste(QMessageBox::Yes);
        Antworten.Taste(QMessageBox::Ok);
        Drucken_Waehlen();
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_TRUE(Antworten.Texte.back().ends_with(
            Deutsch ? " konnte nicht geschrieben werden: der Datenträger ist voll."
                    : " could not be written: the disk is full."))
            << Antworten.Texte.back();
    }
}

TEST_F(Drucken_Fenster, a_full_disk_keeps_the_old_file_and_leaves_no_half_one)
{
    Starten("E");
    Zeilen_Setzen(2000);
    Datei_Anlegen(Nach_Std(PDF()), "an older printout");
    const auto Anzahl = QDir(Ordner.path()).count();
    Dialog_Beantworten("Drucken");
    Datei_Beantworten(PDF());
    Antworten.Taste(QMessageBox::Yes);
    Antworten.Taste(QMessageBox::Ok);
    rlimit Vorige{};
    getrlimit(RLIMIT_FSIZE, &Vorige);
    const rlimit Knapp{4096, Vorige.rlim_max};
    const auto   Signal = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &Knapp);
    Drucken_Waehlen();
    setrlimit(RLIMIT_FSIZE, &Vorige);
    std::signal(SIGXFSZ, Signal);
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_TRUE(QString::fromStdString(Antworten.Texte.back())
                    .contains(QStringLiteral("could not be written: ")));
    EXPECT_EQ(Datei_Inhalt(Nach_Std(PDF())), "an older printout");
    EXPECT_EQ(QDir(Ordner.path()).count(), Anzahl);
}

// --- given up ---

TEST_F(Drucken_Fenster, a_click_on_abbrechen_ends_the_text_and_writes_no_half_file)
{
    for (const bool Deutsch : {true, false}) {
        Starten(Deutsch ? "D" : "E");
        Zeilen_Setzen(3000);
        Abbrechen_Bei(20);
        In_PDF_Drucken();
        EXPECT_FALSE(QFile::exists(PDF()));
        EXPECT_EQ(Status_Text,
                  Deutsch ? QStringLiteral(" Text wird gedruckt...")
                          : QStringLiteral(" Printing text..."));
        EXPECT_EQ(Statuszeile(),
                  Deutsch ? QStringLiteral("Das Drucken wurde abgebrochen.")
                          : QStringLiteral("Printing was cancelled."));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_TRUE(Edit()->updatesEnabled());
    }
}

TEST_F(Drucken_Fenster, a_click_on_abbrechen_ends_the_image_and_writes_no_half_file)
{
    Starten("E", Modus_Hex);
    std::fill_n(Hex_Daten.begin(), 100000, std::uint8_t{0x41});
    Abbrechen_Bei(20);
    In_PDF_Drucken();
    EXPECT_EQ(Status_Text, QStringLiteral(" Printing hex data..."));
    EXPECT_EQ(Statuszeile(), QStringLiteral("Printing was cancelled."));
    EXPECT_FALSE(QFile::exists(PDF()));
}

TEST_F(Drucken_Fenster, a_printer_keeps_the_pages_that_it_had_when_the_user_gave_up)
{
    Starten("E", Modus_Hex);
    std::fill_n(Hex_Daten.begin(), 100000, std::uint8_t{0x41}); // 125 pages
    Drucker_Am_Pruefstand Druck(PDF());
    Drucker* const        Vorher = std::exchange(Plattform.Druck, &Druck);
    Ziel                         = QStringLiteral("Zeilendrucker");
    Abbrechen_Bei(20);
    Dialog_Beantworten("Drucken");
    Drucken_Waehlen();
    const int n = Seitenzahl(PDF());
    EXPECT_GE(n, 20);
    EXPECT_LE(n, 30);
    EXPECT_EQ(PDF_Text().count(QStringLiteral("Seite:")), n); // whole ones, no footer
    Plattform.Druck = Vorher;
}

TEST_F(Drucken_Fenster, an_abandoned_printout_shows_no_preview)
{
    Starten("E");
    Zeilen_Setzen(3000);
    Abbrechen_Bei(20);
    Dialog_Beantworten("Vorschau");
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Statuszeile(), QStringLiteral("Printing was cancelled."));
}

// --- printers ---

TEST_F(Drucken_Fenster, a_printer_that_fails_ends_the_job_and_is_told)
{
    for (const bool Deutsch : {true, false}) {
        Starten(Deutsch ? "D" : "E");
        Zeilen_Setzen(1000);
        Drucker_Am_Pruefstand Druck(PDF(), 3);
        Drucker* const        Vorher = std::exchange(Plattform.Druck, &Druck);
        Ziel                         = QStringLiteral("Zeilendrucker");
        Dialog_Beantworten("Drucken");
        Antworten.Taste(QMessageBox::Ok);
        Drucken_Waehlen();
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_EQ(Antworten.Texte.back(),
                  Deutsch ? "Der Drucker hat nicht alle Seiten angenommen. Der Ausdruck ist "
                            "unvollständig."
                          : "The printer didn't take all pages. The printout is incomplete.");
        EXPECT_EQ(Seitenzahl(PDF()), 3);
        Plattform.Druck = Vorher;
    }
}

TEST_F(Drucken_Fenster, a_printer_that_is_gone_is_told)
{
    Starten("E");
    Ziel = QStringLiteral("Zeilendrucker");
    Dialog_Beantworten("Drucken");
    Antworten.Taste(QMessageBox::Ok);
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    ASSERT_FALSE(Antworten.Texte.empty());
    EXPECT_EQ(Antworten.Texte.back(), "Printing could not be started.");
}

TEST_F(Drucken_Fenster, a_pdf_file_and_the_setup_behind_it_leave_the_printer_as_it_was)
{
    Starten("E");
    Zeilen_Setzen(3);
    const QPrinter Frisch(QPrinter::HighResolution);
    In_PDF_Drucken();
    Antworten.Naechstes([](QWidget* w) {
        EXPECT_NE(qobject_cast<QPageSetupDialog*>(w), nullptr);
        QTest::keyClick(w, Qt::Key_Return);
    });
    Aktion("MNU_PrinterConfig")->trigger();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Papier().Geraet().outputFormat(), Frisch.outputFormat());
    EXPECT_TRUE(Papier().Geraet().outputFileName().isEmpty());
    EXPECT_EQ(Papier().Geraet().printerName(), Frisch.printerName());
}

TEST_F(Drucken_Fenster, a_printer_prints_after_a_pdf_file)
{
    Starten("E");
    Zeilen_Setzen(3);
    const QString         Anderes = Ordner.filePath(QStringLiteral("papier.pdf"));
    Drucker_Am_Pruefstand Druck(Anderes);
    Drucker* const        Vorher = std::exchange(Plattform.Druck, &Druck);
    In_PDF_Drucken();
    EXPECT_TRUE(QFile::exists(PDF()));
    EXPECT_FALSE(QFile::exists(Anderes));
    QFile::remove(PDF());
    Ziel = QStringLiteral("Zeilendrucker");
    Dialog_Beantworten("Drucken");
    Drucken_Waehlen();
    EXPECT_FALSE(QFile::exists(PDF()));
    EXPECT_EQ(Seitenzahl(Anderes), 1);
    Plattform.Druck = Vorher;
}

// --- sheets ---

TEST_F(Drucken_Fenster, no_row_of_an_image_is_cut_on_any_sheet)
{
    Starten("E", Modus_Hex);
    std::fill_n(Hex_Daten.begin(), 60 * 16, std::uint8_t{'W'});
    const QPageSize Streifen(QSizeF(100, 297), QPageSize::Millimeter); // its width counts
    for (const QPageSize& Groesse : {QPageSize(QPageSize::A4),
                                     QPageSize(QPageSize::A5),
                                     QPageSize(QPageSize::A6),
                                     QPageSize(QPageSize::Letter),
                                     Streifen}) {
        for (const auto Lage : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            Papier().Geraet().setPageSize(Groesse);
            Papier().Geraet().setPageOrientation(Lage);
            QFile::remove(PDF());
            In_PDF_Drucken();
            const auto [Rechts, Breite] = Rechter_Rand(PDF());
            const double Rand           = 8 / 25.4 * 72; // points
            EXPECT_LE(Rechts, Breite - Rand + 0.5) << Nach_Std(Groesse.name()) << Lage;
            EXPECT_EQ(Seitenzahl(PDF()), 2) << Nach_Std(Groesse.name()) << Lage;
            EXPECT_EQ(PDF_Text().count(QStringLiteral("WWWWWWWWWWWWWWWW")), 60);
            EXPECT_EQ(Statuszeile(), QString()) << Nach_Std(Groesse.name()) << Lage;
        }
    }
}

TEST_F(Drucken_Fenster, bytes_without_a_picture_leave_their_column_blank)
{
    Starten("E", Modus_Hex);
    Hex_Daten[0] = 0x0B;
    Hex_Daten[1] = 0x7F;
    Hex_Daten[2] = 0x81;
    std::fill_n(Hex_Daten.begin() + 3, 13, std::uint8_t{'W'});
    In_PDF_Drucken();
    const QString t = PDF_Text();
    EXPECT_TRUE(t.contains(QStringLiteral("0B 7F 81 57 57 57"))) << Nach_Std(t);
    EXPECT_TRUE(t.contains(QStringLiteral(" WWWWWWWWWWWWW\n")));
    EXPECT_FALSE(t.contains(QChar(0x81)) || t.contains(QChar(0x7F)) || t.contains(QChar(0x0B)));
}

TEST_F(Drucken_Fenster, a_line_of_text_that_is_too_wide_for_the_sheet_is_told)
{
    Starten("E");
    Edit()->Text_Setzen_UTF8("NOP ; " + std::string(150, 'x') + "\r\nRET\r\n");
    In_PDF_Drucken();
    EXPECT_EQ(
        Statuszeile(),
        QStringLiteral("Printed. Lines too wide for the paper, whose ends may be missing: 1."));
}

TEST_F(Drucken_Fenster, a_path_is_cut_only_where_it_doesnt_fit_in_the_font_of_the_editor)
{
    Starten("E");
    Schriften[static_cast<std::size_t>(Schrift_Edit)] = {"DejaVu Sans", false, false, 10};
    Zeilen_Setzen(1);
    Datei_Name = "/" + std::string(80, 'i') + ".asm";
    In_PDF_Drucken();
    EXPECT_TRUE(PDF_Text().contains(Qt_Text(Datei_Name))) << Nach_Std(PDF_Text());
    EXPECT_EQ(Statuszeile(), QString());
    QFile::remove(PDF());
    Datei_Name = "/" + std::string(400, 'W') + ".asm";
    In_PDF_Drucken();
    const QString t = PDF_Text();
    EXPECT_TRUE(t.contains(QStringLiteral("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW.asm"))) << Nach_Std(t);
    EXPECT_FALSE(t.contains(QStringLiteral("/W"))) << Nach_Std(t);
    EXPECT_EQ(Statuszeile(), QString());
}

TEST_F(Drucken_Fenster, characters_of_two_places_dont_shift_the_colours_behind_them)
{
    Starten("E");
    Edit()->Text_Setzen_UTF8("NOP ;\xF0\x9F\x98\x80\r\nRET ;yz\r\n");
    Edit()->Faerben(std::vector<Farbstelle_T>{{4, 3, 0x119911}, {13, 3, 0xDD1111}});
    test::Skript_Drucker Druck;
    Drucker* const       Vorher = std::exchange(Plattform.Druck, &Druck);
    Drucken_Waehlen();
    EXPECT_EQ(Druck.Alle_Farben[0], (std::vector<Farbstelle_T>{{4, 3, 0x119911}}));
    EXPECT_EQ(Druck.Alle_Farben[1], (std::vector<Farbstelle_T>{{4, 3, 0xDD1111}}));
    Plattform.Druck = Vorher;
}

// --- the preview ---

TEST_F(Drucken_Fenster, the_preview_shows_the_pages_and_prints_nothing_by_itself)
{
    for (const bool Deutsch : {true, false}) {
        Starten(Deutsch ? "D" : "E");
        Zeilen_Setzen(200);
        Dialog_Beantworten("Vorschau");
        Vorschau_Beantworten("Schliessen", [Deutsch](Druck_Vorschau* v) {
            EXPECT_EQ(v->windowTitle(),
                      Deutsch ? QStringLiteral("Druckvorschau") : QStringLiteral("Print preview"));
            auto*     Bild    = v->findChild<QPrintPreviewWidget*>();
            auto*     Seite   = v->findChild<QLabel*>(QStringLiteral("Seite"));
            auto*     Vor     = v->findChild<QPushButton*>(QStringLiteral("Vor"));
            auto*     Zurueck = v->findChild<QPushButton*>(QStringLiteral("Zurueck"));
            const int n       = Bild->pageCount();
            EXPECT_GE(n, 3);
            EXPECT_FALSE(Zurueck->isEnabled());
            QTest::mouseClick(Vor, Qt::LeftButton);
            EXPECT_EQ(Bild->currentPage(), 2);
            EXPECT_EQ(Nach_Std(Seite->text()),
                      (Deutsch ? "Seite 2 von " : "Page 2 of ") + std::to_string(n));
            QTest::mouseClick(Zurueck, Qt::LeftButton);
            EXPECT_EQ(Bild->currentPage(), 1);
        });
        Drucken_Waehlen();
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_FALSE(QFile::exists(PDF()));
    }
}

TEST_F(Drucken_Fenster, what_the_preview_shows_can_be_printed_from_it)
{
    Starten("E");
    Zeilen_Setzen(200);
    In_PDF_Drucken();
    const QString t = PDF_Text();
    QFile::remove(PDF());
    Dialog_Beantworten("Vorschau");
    Vorschau_Beantworten("Drucken");
    Datei_Beantworten(PDF());
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    const QRegularExpression Uhr(QStringLiteral("Time: [0-9:]+"));
    EXPECT_EQ(PDF_Text().remove(Uhr), QString(t).remove(Uhr));
}

TEST_F(Drucken_Fenster, a_preview_that_is_closed_tells_nothing_of_a_printout)
{
    Starten("E");
    Edit()->Text_Setzen_UTF8(std::string(150, 'x'));
    Dialog_Beantworten("Vorschau");
    Vorschau_Beantworten("Schliessen");
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Statuszeile(), QString());
}

TEST_F(Drucken_Fenster, a_file_name_cancelled_behind_the_preview_prints_nothing)
{
    Starten("E");
    Edit()->Text_Setzen_UTF8(std::string(150, 'x'));
    Dialog_Beantworten("Vorschau");
    Vorschau_Beantworten("Drucken");
    Antworten.Naechstes([](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_FALSE(QFile::exists(PDF()));
    EXPECT_EQ(Statuszeile(), QString());
}

TEST_F(Drucken_Fenster, a_click_on_abbrechen_ends_the_printing_from_the_preview)
{
    for (const int m : {Modus_MC, Modus_Hex}) {
        Starten("E", m);
        Zeilen_Setzen(3000);
        std::fill_n(Hex_Daten.begin(), 50000, std::uint8_t{0x41});
        Status_Text.clear();
        Dialog_Beantworten("Vorschau");
        Vorschau_Beantworten("Drucken", [this](Druck_Vorschau*) { Abbrechen_Bei(20); });
        Datei_Beantworten(PDF());
        Drucken_Waehlen();
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_EQ(Status_Text,
                  m == Modus_MC ? QStringLiteral(" Printing text...")
                                : QStringLiteral(" Printing hex data..."));
        EXPECT_EQ(Statuszeile(), QStringLiteral("Printing was cancelled."));
        EXPECT_FALSE(QFile::exists(PDF()));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

TEST_F(Drucken_Fenster, a_printer_keeps_the_pages_from_the_preview_when_the_user_gives_up)
{
    Starten("E", Modus_Hex);
    std::fill_n(Hex_Daten.begin(), 80000, std::uint8_t{0x41}); // 100 pages
    Drucker_Am_Pruefstand Druck(PDF());
    Drucker* const        Vorher = std::exchange(Plattform.Druck, &Druck);
    Ziel                         = QStringLiteral("Zeilendrucker");
    Dialog_Beantworten("Vorschau");
    Vorschau_Beantworten("Drucken", [this](Druck_Vorschau*) { Abbrechen_Bei(20); });
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    const int n = Seitenzahl(PDF());
    EXPECT_GE(n, 18);
    EXPECT_LE(n, 30);
    EXPECT_EQ(Statuszeile(), QStringLiteral("Printing was cancelled."));
    Plattform.Druck = Vorher;
}

TEST_F(Drucken_Fenster, lines_too_wide_are_counted_for_the_sheet_chosen_in_the_preview)
{
    for (const bool Eine_Bleibt : {false, true}) {
        Starten("E");
        Schriften[static_cast<std::size_t>(Schrift_Edit)] = {"DejaVu Sans Mono", false, false, 10};
        Papier().Geraet().setPageSize(QPageSize(QPageSize::A5));
        Edit()->Text_Setzen_UTF8(std::string(75, 'x') + "\r\nNOP\r\n" +
                                 std::string(Eine_Bleibt ? 150 : 74, 'y') + "\r\n");
        Dialog_Beantworten("Vorschau");
        Vorschau_Beantworten("Papier");
        Blatt_Beantworten(QStringLiteral("A4"));
        Vorschau_Beantworten("Drucken");
        Datei_Beantworten(PDF());
        Drucken_Waehlen();
        EXPECT_TRUE(Antworten.Fertig());
        EXPECT_TRUE(PDF_Text().contains(QString(75, u'x')));
        EXPECT_EQ(Statuszeile(),
                  Eine_Bleibt ? QStringLiteral("Printed. Lines too wide for the paper, whose ends "
                                               "may be missing: 1.")
                              : QString());
        QFile::remove(PDF());
    }
}

TEST_F(Drucken_Fenster, lines_too_wide_stay_so_where_the_pages_shrink)
{
    Starten("E");
    Schriften[static_cast<std::size_t>(Schrift_Edit)] = {"DejaVu Sans Mono", false, false, 10};
    Edit()->Text_Setzen_UTF8(std::string(75, 'x') + "\r\n" + std::string(150, 'y') + "\r\n");
    Dialog_Beantworten("Vorschau");
    Vorschau_Beantworten("Papier");
    Blatt_Beantworten(QStringLiteral("A5"));
    Vorschau_Beantworten("Drucken");
    Datei_Beantworten(PDF());
    Drucken_Waehlen();
    EXPECT_EQ(
        Statuszeile(),
        QStringLiteral("Printed. Lines too wide for the paper, whose ends may be missing: 1."));
}

TEST_F(Drucken_Fenster, a_printer_that_fails_behind_the_preview_is_told)
{
    Starten("E");
    Zeilen_Setzen(1000);
    Drucker_Am_Pruefstand Druck(PDF(), 3);
    Drucker* const        Vorher = std::exchange(Plattform.Druck, &Druck);
    Ziel                         = QStringLiteral("Zeilendrucker");
    Dialog_Beantworten("Vorschau");
    // The preview looks at all pages first: what it takes doesn't count.
    Antworten.Naechstes([](QWidget* w) {
        QTest::mouseClick(w->findChild<QPushButton*>(QStringLiteral("Drucken")), Qt::LeftButton);
    });
    Antworten.Taste(QMessageBox::Ok);
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    EXPECT_EQ(Antworten.Texte.back(),
              "The printer didn't take all pages. The printout is incomplete.");
    Plattform.Druck = Vorher;
}

TEST_F(Drucken_Fenster, pages_shrink_to_a_smaller_sheet_chosen_in_the_preview)
{
    Starten("E", Modus_Hex);
    std::fill_n(Hex_Daten.begin(), 60 * 16, std::uint8_t{'W'});
    Dialog_Beantworten("Vorschau");
    Vorschau_Beantworten("Papier");
    Blatt_Beantworten(QStringLiteral("A5"));
    Vorschau_Beantworten("Drucken");
    Datei_Beantworten(PDF());
    Drucken_Waehlen();
    EXPECT_TRUE(Antworten.Fertig());
    const auto [Rechts, Breite] = Rechter_Rand(PDF());
    EXPECT_NEAR(Breite, 148 / 25.4 * 72, 2);
    EXPECT_LE(Rechts, Breite);
    EXPECT_EQ(Seitenzahl(PDF()), 2);
    EXPECT_EQ(PDF_Text().count(QStringLiteral("WWWWWWWWWWWWWWWW")), 60);
    EXPECT_EQ(PDF_Text().count(QStringLiteral("Seite:2")), 2); // the footer is there
}

} // namespace
} // namespace varnholt::test
