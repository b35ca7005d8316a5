// Printing: what a page of the image and a page of the source text look like, line by line. The
// printer itself stands behind the wall.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

// What stands on every page. Date 10, time 8 characters (UTF-8).
struct Druck_Kopf {
    std::string Pfad{};
    std::string Datum{};
    std::string Uhrzeit{};
};

inline constexpr int Hex_Zeilen_Je_Seite = 50; // rows of 16 bytes
inline constexpr int Hex_Fuss_Zeile      = 51; // the last page is filled up to this row

// The frame with path, date and page, set in by that many blanks: 10 in a header, 7 in a footer.
std::vector<std::string> Hex_Rahmen(const Druck_Kopf& Kopf, int Seite, int Einzug);
// One row of 16 bytes of the image from that address on, without blanks at its end (UTF-8).
std::string Hex_Druckzeile(std::int32_t Adresse);
// The two lines at the end of a page of text.
std::vector<std::string> Text_Fuss(const Druck_Kopf& Kopf, int Seite);

// The `status` dialog of a printout, open as long as it lives.
class Druckfortgang {
public:
    Druckfortgang(); // sets: Abbruch
    ~Druckfortgang();
    Druckfortgang(const Druckfortgang&)            = delete;
    Druckfortgang& operator=(const Druckfortgang&) = delete;

    // Tells that a part of a whole is done, and lets the user act. False: the user has given up.
    bool Weiter(std::size_t Teil, std::size_t Ganzes);

private:
    int Prozent = 0;
};

// Both stop between two pages, or two lines of text, when the user gives up, and when the printer
// fails.
void Hex_Drucken();  // reads: Hex_Daten, Datei_Name   sets: Abbruch, Druckauftrag
void Text_Drucken(); // reads: Edit, the font of Edit, Druckauftrag   sets: Abbruch, Druckauftrag

// The last choice of the print dialog, and how far its document came.
inline struct Druckauftrag_T {
    bool Markierung = false; // only the selection
    bool Ganz       = false; // the last line has gone to the printer
    int  Zu_Breit   = 0;     // lines that didn't fit between the margins
} Druckauftrag;

} // namespace varnholt
