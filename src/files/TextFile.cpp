#include "files/TextFile.h"

#include "platform/FileSync.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace kestrel {

namespace fs = std::filesystem;

namespace {

std::string because(int error) { return std::strerror(error); }

// The file that a save to path really replaces: the final target of a symbolic link
// (relative links resolved from the link's folder), or path itself.
std::string finalTarget(const std::string& path)
{
    fs::path p(path);
    for (int hops = 0; hops < 40; ++hops) {
        std::error_code ec;
        if (!fs::is_symlink(fs::symlink_status(p, ec)))
            return p.string();
        const fs::path next = fs::read_symlink(p, ec);
        if (ec)
            return p.string();
        p = next.is_absolute() ? next : p.parent_path() / next;
    }
    return p.string(); // a loop: still a link, which replaceFile() refuses
}

} // namespace

bool readTextFile(const std::string& path, std::string& content, std::string& error)
{
    if (path.empty()) {
        error = "No file name";
        return false;
    }
    // The kind of file is known before it is opened, so that a FIFO or device is never
    // waited on.
    std::error_code ec;
    const fs::file_status st = fs::status(path, ec);
    if (ec) {
        error = because(ec.value());
        return false;
    }
    if (fs::is_directory(st)) {
        error = because(EISDIR);
        return false;
    }
    if (!fs::is_regular_file(st)) {
        error = "Not a regular file";
        return false;
    }
    const std::uintmax_t size = fs::file_size(path, ec);
    if (!ec && size > kTextFileLimit) {
        error = "File too large: " + std::to_string(size) + " bytes, at most 1 MB";
        return false;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = because(errno);
        return false;
    }
    std::string text(ec ? 0 : static_cast<std::size_t>(size), '\0');
    std::size_t got = 0;
    for (;;) {
        if (got == text.size())
            text.resize(text.size() + 4096); // the file may have grown since
        in.read(text.data() + got, static_cast<std::streamsize>(text.size() - got));
        got += static_cast<std::size_t>(in.gcount());
        if (in.bad()) {
            error = because(EIO);
            return false;
        }
        if (got > kTextFileLimit) {
            error = "File too large: more than 1 MB";
            return false;
        }
        if (in.eof())
            break;
    }
    text.resize(got);
    content = std::move(text);
    return true;
}

std::string temporaryPathFor(const std::string& path)
{
    const fs::path target(finalTarget(path));
    return (target.parent_path() / ("." + target.filename().string() + ".saving")).string();
}

bool replaceFile(const std::string& path, const std::string& content, std::string& error)
{
    const std::string target = finalTarget(path);
    std::error_code ec;
    // Links that lead back to themselves (or on too long): nothing to replace, and the
    // link itself is never replaced in its place.
    if (fs::is_symlink(fs::symlink_status(target, ec))) {
        error = "Can not replace " + path + ": " +
                std::make_error_code(std::errc::too_many_symbolic_link_levels).message();
        return false;
    }
    const fs::file_status old = fs::status(target, ec);
    const bool exists = fs::exists(old);
    if (exists && !fs::is_regular_file(old)) {
        error = "Can not replace " + path + ": " +
                (fs::is_directory(old) ? because(EISDIR) : std::string("Not a regular file"));
        return false;
    }
    const std::string temporary = temporaryPathFor(path);
    auto fail = [&](const std::string& what, int cause) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        error = what + ": " + because(cause);
        return false;
    };
    // Never written through a link that someone left at the temporary name.
    if (fs::is_symlink(fs::symlink_status(temporary, ec)))
        fs::remove(temporary, ec);
    std::FILE* out = std::fopen(temporary.c_str(), "wb");
    if (!out) {
        const int cause = errno;
        error = "Can not create " + temporary + ": " + because(cause);
        return false;
    }
    const bool written = std::fwrite(content.data(), 1, content.size(), out) == content.size();
    const bool synced = written && syncToDisk(out);
    const int cause = errno;
    if (std::fclose(out) != 0 || !synced)
        return fail("Can not write " + temporary, synced ? errno : cause);
    if (exists) {
        fs::permissions(temporary, old.permissions(), ec);
        if (ec)
            return fail("Can not set the permissions of " + temporary, ec.value());
    }
    // Replaces the old file in one step (std::filesystem does so on Windows too).
    fs::rename(temporary, target, ec);
    if (ec)
        return fail("Can not replace " + path, ec.value());
    return true;
}

} // namespace kestrel
