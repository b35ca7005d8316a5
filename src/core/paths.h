// Paths of the platform: the program folder, and names that come out of texts.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// A UTF-8 text as a path; `\` separates folders as `/` does.
std::filesystem::path Pfad_Aus_Text(std::string_view UTF8);
// The regular file Name in Ordner; without an exact match one whose name differs only in case.
std::optional<std::filesystem::path> Datei_Suchen(const std::filesystem::path& Ordner,
                                                  std::string_view             Name);
// The entry Name below Ordner, a file or a folder, each part looked up as above; a part that isn't
// there stays as it is written.
std::filesystem::path Pfad_Suchen(const std::filesystem::path& Ordner, std::string_view Name);
// Programm_Pfad by the rules of the house, with a final separator: VARNHOLT_HOME; the folder of
// the executable when it holds the program's files and can be written; else the user's data folder,
// which gets from the installed files what it lacks (core/data_folder.h).
std::string Programm_Pfad_Bestimmen();

} // namespace varnholt
