// A text control that only remembers: the editor of the terminal, of tests and of the silent world.
#pragma once

#include "core/platform.h"

#include <utility>

namespace varnholt {

class Speicher_Text : public Textfeld {
public:
    std::string      Text() const override { return Inhalt; }
    std::string_view Text_Ansicht(std::string&) const override { return Inhalt; }
    void             Text_Setzen(std::string Neuer) override;
    std::string      Text_UTF8() const override;
    void             Text_Setzen_UTF8(std::string_view Neuer) override;
    std::int64_t     Laenge() const override { return static_cast<std::int64_t>(Inhalt.size()); }
    void             Auswaehlen(std::int64_t Anfang, std::int64_t Laenge_Der_Auswahl) override
    {
        Auswahl_Anfang = Anfang;
        Auswahl_Laenge = Laenge_Der_Auswahl;
    }
    Textstelle_T              Auswahl() const override;
    std::string               Auswahl_Text() const override;
    void                      Auswahl_Ersetzen(std::string_view Neuer) override;
    void                      Ersetzen(Textstelle_T Stueck, std::string_view Neuer) override;
    void                      Auswahl_Faerben(std::int32_t Farbe) override;
    void                      Faerben(std::span<const Farbstelle_T> Stellen) override;
    std::int32_t              Farbe_An(std::int64_t Stelle) const override;
    std::vector<Farbstelle_T> Farben(Textstelle_T Stueck) const override;
    std::int64_t              Zeile_Von(std::int64_t Stelle) const override;
    Textstelle_T              Zeile(std::int64_t Nummer) const override;
    std::int64_t              Zeilen_Anzahl() const override;
    std::int64_t              Erste_Zeile() const override { return Erste_Sichtbare; }
    void Zeichnen_Anhalten(bool Angehalten) override { Zeichnen_Steht = Angehalten; }
    void Sperren(bool Neu_Gesperrt) override { Gesperrt = Neu_Gesperrt; }
    void Fokus() override { Hat_Fokus = true; }

    std::string  Inhalt{};
    std::int64_t Auswahl_Anfang  = 0;
    std::int64_t Auswahl_Laenge  = 0;
    std::int64_t Erste_Sichtbare = 0;
    bool         Hat_Fokus       = false;
    bool         Zeichnen_Steht  = false;
    bool         Gesperrt        = false;

private:
    Textstelle_T Im_Text(Textstelle_T Stelle) const; // drawn into the text
    void         Farben_Angleichen() const;          // one colour a character

    mutable std::vector<std::int32_t> Zeichen_Farbe{}; // by character; shorter means colour 0
};

} // namespace varnholt
