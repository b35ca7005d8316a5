// The program's data folder: what the installed program brings along and the folder lacks, and what
// killed runs left behind in it.
#pragma once

#include <filesystem>
#include <string>

namespace varnholt {

// Name of a temporary file or folder of this process, which a rename brings to its place; Versuch
// from 0 to 99.
std::string Zwischen_Name(int Versuch);

// Copies what Vorlage has and Ordner hasn't: files, and folders as a whole. In a folder that both
// have, single files come too, but not among the samples: there the user has deleted them. Nothing
// that is there is changed, and a link is the user's own arrangement. What can't be copied stays
// away.
void Ordner_Ergaenzen(const std::filesystem::path& Vorlage, const std::filesystem::path& Ordner);

// Removes the temporary files of processes that have ended from the folder and from those of its
// folders in which the program or the user saves.
void Reste_Entfernen(const std::filesystem::path& Ordner);

} // namespace varnholt
