// A folder for one test, and the bytes of files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

// A folder under the system's temporary one; anybody may enter and read it.
class Arbeitsordner {
public:
    Arbeitsordner();
    Arbeitsordner(const Arbeitsordner&)            = delete;
    Arbeitsordner& operator=(const Arbeitsordner&) = delete;
    ~Arbeitsordner();

    std::string Name(std::string_view Datei) const { return (Pfad / Datei).string(); }
    // Writes a file, with the folders in its name; its full name.
    std::string Anlegen(std::string_view Datei, std::string_view Bytes) const;
    // Names of all files in the folder, sorted; shows what a failed write has left behind.
    std::vector<std::string> Inhalt() const;

    std::filesystem::path Pfad{};
};

// The bytes of a file, "<missing>" without one.
std::string               Bytes_Von(const std::filesystem::path& Name);
std::vector<std::uint8_t> Als_Bytes(std::string_view Text);

} // namespace varnholt::test
