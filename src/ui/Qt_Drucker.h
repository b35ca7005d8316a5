// The printer behind the wall: a printer of the system, a PDF file, or a preview on the screen.
#pragma once

#include "core/platform.h"
#include "files/Drucken.h"

#include <QFont>
#include <QRectF>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QBuffer;
class QPagedPaintDevice;
class QPainter;
class QPdfWriter;
class QPrinter;
class QWidget;

namespace varnholt {

class Qt_Drucker : public Drucker {
public:
    explicit Qt_Drucker(QWidget* Eltern);
    ~Qt_Drucker() override;

    void      In_PDF(const QString& Name); // the next document goes to that file
    QPrinter& Geraet();                    // holds the sheet and its margins for every target

    void Einrichten() override;
    bool Waehlen(Druckwahl_T& Wahl) override;
    bool Beginnen(std::string_view Name) override;
    void Schrift(const Schrift_T& Neue) override;
    int  Zeilen_Je_Seite() const override;
    bool Zeile(std::string_view Text, std::span<const Farbstelle_T> Farben) override;
    bool Passt(std::string_view Text) const override;
    bool Neue_Seite() override;
    // False too when nothing was printed since the preview was closed. Printing from it renews
    // Druckauftrag.Ganz and .Zu_Breit, for it may be given up and go to another sheet.
    bool        Beenden(bool Ganz) override;
    std::string Datum() const override;
    std::string Uhrzeit() const override;

protected:
    Qt_Drucker(QWidget* Eltern, std::unique_ptr<QPrinter> Anderes_Geraet);

    // Takes the printer of that name; false when the system has it no longer.
    virtual bool Drucker_Einstellen(const QString& Name);

private:
    struct Zeile_T {
        QString                   Text{};
        std::vector<Farbstelle_T> Farben{};
        QFont                     Schrift{};
    };
    using Seite_T = std::vector<Zeile_T>;

    QRectF Druckbereich() const; // in device units, from its own corner
    bool   Ziel_Bestimmen();
    bool   PDF_Datei_Waehlen();

    bool Blatt_Oeffnen();
    void PDF_Blatt_Bauen();
    bool Blatt_Schliessen(bool Ganz);
    bool PDF_Schreiben();

    using Weiter_T = std::function<bool(std::size_t)>; // asked before each page

    bool Vorschau_Zeigen();
    void Vorschau_Malen(QPrinter& Papier);
    bool Seiten_Drucken();
    bool Seiten_Malen(QPainter& Pinsel, QPagedPaintDevice& Papier, const Weiter_T& Weiter);

    static double Zeile_Malen(QPainter& Pinsel, const Zeile_T& z, double y);
    static int    Seite_Malen(QPainter& Pinsel, const Seite_T& s, double Rand);

    QWidget*                  Fenster = nullptr;
    std::unique_ptr<QPrinter> Druck_Geraet{};

    QString Drucker_Name{}; // where the document goes; empty: to the PDF file
    QString PDF_Datei{};
    QString Titel{};
    bool    Vorschau = false; // it is shown first

    std::unique_ptr<QBuffer>    PDF_Puffer{}; // the file, as long as it isn't whole
    std::unique_ptr<QPdfWriter> PDF_Blatt{};
    std::unique_ptr<QPainter>   Maler{}; // while a document goes to Blatt
    QPagedPaintDevice*          Blatt       = nullptr;
    bool                        Gescheitert = false; // the document on Blatt

    std::vector<Seite_T> Seiten{};        // of the preview
    QSizeF               Blatt_Groesse{}; // for which these were cut, between the margins; points
    int                  Zu_Breit = 0;    // their lines that ran over the sheet last painted on
    QFont                Jetzige_Schrift{};
    double               Hoehe = 0; // of the next line, device units from the top
};

} // namespace varnholt
