#include "files/TextFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace kestrel {

namespace fs = std::filesystem;

bool readTextFile(const std::string& path, std::string& content) {
    if (path.empty())
        return false;
    std::error_code ec;
    if (fs::is_directory(path, ec))
        return false;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        return false;
    content = std::move(text);
    return true;
}

std::string temporaryPathFor(const std::string& path) {
    const fs::path target(path);
    return (target.parent_path() / ("." + target.filename().string() + ".saving")).string();
}

bool replaceFile(const std::string& path, const std::string& content, std::string& error) {
    const std::string temporary = temporaryPathFor(path);
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out) {
            error = "Can not create " + temporary;
            return false;
        }
        out.write(content.data(), static_cast<std::streamsize>(content.size()));
        out.close();
        if (!out) {
            std::error_code ignored;
            fs::remove(temporary, ignored);
            error = "Can not write " + temporary;
            return false;
        }
    }
    std::error_code ec;
    fs::rename(temporary, path, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        error = "Can not replace " + path + ": " + ec.message();
        return false;
    }
    return true;
}

} // namespace kestrel
