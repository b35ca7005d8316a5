// Base of the file tests: folder, loading, saving and comparing with few words.
#include "files/Dateien_Welt.h"

#include "core/commands.h"
#include "files/Laden.h"
#include "files/Speichern.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdlib.h>

namespace varnholt::test {

namespace fs = std::filesystem;

void Dateien_Welt::Laden(std::string_view Datei, std::string_view Bytes)
{
    Dialog_Name = Ordner.Anlegen(Datei, Bytes);
    Datei_Laden();
}

void Dateien_Welt::Importieren(std::string_view Datei, std::string_view Bytes, std::int32_t Adresse)
{
    Dialog_Name = Ordner.Anlegen(Datei, Bytes);
    Datei_Importieren(Adresse);
}

std::string Dateien_Welt::Speichern(std::string_view Datei)
{
    Datei_Name = Ordner.Name(Datei);
    Datei_Speichern();
    return Bytes_Von(Datei_Name);
}

std::optional<std::int32_t> Dateien_Welt::Vergleichen(std::string_view Datei,
                                                      std::string_view Bytes)
{
    Dialog_Name = Ordner.Anlegen(Datei, Bytes);
    return Hexdaten_Vergleichen();
}

void Dateien_Welt::Setzen(std::int32_t Adresse, std::initializer_list<int> Bytes)
{
    for (const int b : Bytes)
        Hex_Daten.at(static_cast<std::size_t>(Adresse++)) = static_cast<std::uint8_t>(b);
}

bool Dateien_Welt::Nur_Bytes(std::int32_t Adresse, std::initializer_list<int> Bytes)
{
    std::vector<std::uint8_t> Soll(Hex_Daten.size(), 0xFF);
    for (const int b : Bytes)
        Soll.at(static_cast<std::size_t>(Adresse++)) = static_cast<std::uint8_t>(b);
    return std::equal(Soll.begin(), Soll.end(), Hex_Daten.begin());
}

} // namespace varnholt::test
