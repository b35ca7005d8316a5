// The printer behind the wall: a printer of the system, a PDF file, or a preview on the screen.
#pragma once

#include "core/platform.h"
#include "ui/Druck_Dialog.h"

#include <QFont>

#include <memory>
#include <string>
#include <vector>

class QPainter;
class QPrinter;
class QWidget;

namespace varnholt {

class Qt_Drucker : public Drucker {
public:
    explicit Qt_Drucker(QWidget* Eltern);
    ~Qt_Drucker() override;

    void In_PDF(const QString& Name); // the next document goes to that file

    void        Einrichten() override;
    bool        Waehlen(Druckwahl_T& Wahl) override;
    bool        Beginnen(std::string_view Titel) override;
    void        Schrift(const Schrift_T& Neue) override;
    int         Zeilen_Je_Seite() const override;
    void        Zeile(std::string_view Text, std::span<const Farbstelle_T> Farben) override;
    void        Neue_Seite() override;
    void        Beenden() override;
    std::string Datum() const override;
    std::string Uhrzeit() const override;

private:
    struct Zeile_T {
        QString                   Text{};
        std::vector<Farbstelle_T> Farben{};
        QFont                     Schrift{};
    };
    using Seite_T = std::vector<Zeile_T>;

    QPrinter& Geraet();
    bool      PDF_Datei_Waehlen();
    void      Zeile_Malen(QPainter& Pinsel, const Zeile_T& z, double y) const;
    double    Zeilenhoehe(const QFont& Welche) const;
    void      Vorschau_Zeigen();
    void      Seiten_Malen(QPrinter& Wohin) const;
    void      Seite_Malen(QPainter& Pinsel, QPrinter& Blatt, const Seite_T& s) const;

    QWidget*                  Fenster = nullptr;
    std::unique_ptr<QPrinter> Druck_Geraet{};
    std::unique_ptr<QPainter> Maler{}; // while a document goes to the printer
    Druck_Dialog::Ziel        Wohin = Druck_Dialog::Ziel::PDF;
    std::vector<Seite_T>      Seiten{}; // of the preview
    QFont                     Jetzige_Schrift{};
    double                    Hoehe = 0; // of the next line, device units from the top
};

} // namespace varnholt
