// Cases in files, tests/golden: a dropped file is a case of a parameterised test.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt::test {

// The files of a folder below tests/golden whose extension is wanted, sorted by name.
inline std::vector<std::filesystem::path>
Golden_Faelle(const char* Unterordner, const std::function<bool(std::string_view)>& Endung_Gewollt)
{
    const auto Ordner = std::filesystem::path(VARNHOLT_TEST_DATA) / "golden" / Unterordner;
    std::vector<std::filesystem::path> Dateien;
    for (const auto& e : std::filesystem::directory_iterator(Ordner))
        if (Endung_Gewollt(e.path().extension().string()))
            Dateien.push_back(e.path());
    std::sort(Dateien.begin(), Dateien.end());
    return Dateien;
}

// The name of the test: that of the file.
inline std::string Fall_Name(const ::testing::TestParamInfo<std::filesystem::path>& Fall)
{
    std::string Name = Fall.param.filename().string();
    std::replace_if(
        Name.begin(), Name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return Name;
}

} // namespace varnholt::test
