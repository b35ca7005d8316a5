// Base of the file tests: the scripted world with a folder of its own that goes with the test.
#pragma once

#include "core/shared_state.h"
#include "files/Datei_Zustand.h"
#include "support/Arbeitsordner.h"
#include "support/scripted_platform.h"

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

class Dateien_Welt : public Welt {
protected:
    Dateien_Welt() { Modus = Modus_Hex; }

    // Writes the bytes under that name into the folder and loads them.
    void Laden(std::string_view Datei, std::string_view Bytes);
    // The same as an import at an address.
    void Importieren(std::string_view Datei, std::string_view Bytes, std::int32_t Adresse);
    // Saves the document under that name in the folder; the bytes of the file.
    std::string Speichern(std::string_view Datei);
    // Compares with a file of those bytes.
    std::optional<std::int32_t> Vergleichen(std::string_view Datei, std::string_view Bytes);

    // Sets bytes of the image from an address on.
    static void Setzen(std::int32_t Adresse, std::initializer_list<int> Bytes);
    // Whether the image is FFh but for these bytes from an address on.
    static bool Nur_Bytes(std::int32_t Adresse, std::initializer_list<int> Bytes);
    static int  Byte(std::int32_t Adresse) { return Hex_Daten[static_cast<std::size_t>(Adresse)]; }

    Arbeitsordner Ordner{};
};

} // namespace varnholt::test
