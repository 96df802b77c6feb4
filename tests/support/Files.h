#pragma once
#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <string>
#include <unistd.h>

namespace kestrel::test {

// A fresh directory under the system's temporary folder, removed at the end of the test.
struct ScratchDir {
    std::filesystem::path path;
    explicit ScratchDir(const std::string& name)
        // One per process: ctest runs tests of this executable side by side.
        : path(std::filesystem::temp_directory_path() /
               ("kestrel-test-" + name + "-" + std::to_string(::getpid())))
    {
        std::filesystem::remove_all(path);
        std::filesystem::create_directories(path);
    }
    ~ScratchDir() { std::filesystem::remove_all(path); }
    std::string file(const std::string& name) const { return (path / name).string(); }
};

inline std::string slurp(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

inline void spit(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

// Lines joined with CR LF, each line ended by one.
inline std::string crlf(std::initializer_list<std::string> lines)
{
    std::string out;
    for (const auto& l : lines)
        out += l + "\r\n";
    return out;
}

// While it lives, streams made afterwards print numbers with a decimal comma and thousands
// grouped by points (a global facet, as no such locale is installed on every machine).
struct CommaDecimalLocale {
    struct Punct : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale old = std::locale::global(std::locale(std::locale::classic(), new Punct));
    ~CommaDecimalLocale() { std::locale::global(old); }
};

} // namespace kestrel::test
