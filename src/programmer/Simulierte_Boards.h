// The simulated boards by device, and a socket whose device is kept in a file.
#pragma once

#include "core/messages.h"
#include "programmer/Simulierter_Eprommer.h"

#include <filesystem>
#include <memory>

namespace varnholt {

// The board of the device's kind with an erased device in its socket; null when that board isn't
// simulated, or when the number is that of no device. Nummer -1 gives an Eprommer with an empty
// socket.
std::unique_ptr<Simuliertes_Board> Simuliertes_Board_Fuer(int Nummer);

// A socket file holds the bytes of the device, and one further byte with the lock level when that
// is above 0 (at most 4). Puts the contents of the file into the device. A file that isn't there
// leaves the erased device. The text tells what is wrong, and is empty when nothing is.
Text_Paar Sockel_Laden(Simuliertes_Board& Board, const std::filesystem::path& Datei);
// Writes the contents of the device; the text as above.
Text_Paar Sockel_Speichern(Simuliertes_Board& Board, const std::filesystem::path& Datei);

} // namespace varnholt
