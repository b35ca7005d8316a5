// Printing through the window: the print dialog with real clicks, PDF files read back as text.
#include "Haupt_Welt.h"
#include "core/menu.h"
#include "ui/Druck_Dialog.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QProcess>
#include <QRadioButton>

namespace varnholt::test {
namespace {

class Drucken_Fenster : public Haupt_Welt {
protected:
    // The print dialog: a click on that button, behind what Vorher does.
    void Dialog_Beantworten(const char* Knopf, std::function<void(QDialog*)> Vorher = {})
    {
        Antworten.Naechstes([this, Knopf, Vorher](QWidget* w) {
            auto* Dialog = qobject_cast<Druck_Dialog*>(w);
            ASSERT_NE(Dialog, nullptr);
            Titel       = Dialog->windowTitle();
            auto* Liste = Dialog->findChild<QComboBox*>(QStringLiteral("Geraete"));
            Liste->setCurrentIndex(Liste->count() - 1); // the PDF file
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

    QString Titel{};
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

TEST_F(Drucken_Fenster, the_preview_shows_the_pages_and_prints_nothing_by_itself)
{
    Starten("D");
    Edit()->Text_Setzen_UTF8("NOP\r\n");
    Dialog_Beantworten("Vorschau");
    bool Gesehen = false;
    Antworten.Naechstes([&](QWidget* w) {
        Gesehen = qobject_cast<QPrintPreviewDialog*>(w) != nullptr;
        EXPECT_EQ(w->windowTitle(), QStringLiteral("Druckvorschau"));
        w->close();
    });
    Drucken_Waehlen();
    EXPECT_TRUE(Gesehen);
    EXPECT_FALSE(QFile::exists(PDF()));
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

TEST_F(Drucken_Fenster, a_file_that_cant_be_written_is_told)
{
    Starten("E");
    Dialog_Beantworten("Drucken");
    Datei_Beantworten(QStringLiteral("/proc/druck.pdf"));
    Antworten.Taste(QMessageBox::Ok);
    Drucken_Waehlen();
    ASSERT_FALSE(Antworten.Texte.empty());
    EXPECT_EQ(Antworten.Texte.back(), "Printing could not be started.");
}

} // namespace
} // namespace varnholt::test
