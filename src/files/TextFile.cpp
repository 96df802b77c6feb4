#include "files/TextFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kestrel {

namespace fs = std::filesystem;

namespace {

std::string because(int error) { return std::strerror(error); }

// Closes a descriptor when it goes out of scope.
struct Descriptor {
    int fd = -1;
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }
    int release()
    {
        const int f = fd;
        fd = -1;
        return f;
    }
};

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
    return p.string(); // a loop: the rename below reports it
}

} // namespace

bool readTextFile(const std::string& path, std::string& content, std::string& error)
{
    if (path.empty()) {
        error = "No file name";
        return false;
    }
    Descriptor in{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    struct stat st {};
    if (in.fd < 0 || ::fstat(in.fd, &st) != 0) {
        error = because(errno);
        return false;
    }
    if (S_ISDIR(st.st_mode)) {
        error = because(EISDIR);
        return false;
    }
    if (!S_ISREG(st.st_mode)) {
        error = "Not a regular file";
        return false;
    }
    if (static_cast<std::uintmax_t>(st.st_size) > kTextFileLimit) {
        error = "File too large: " + std::to_string(st.st_size) + " bytes, at most 1 MB";
        return false;
    }
    std::string text(static_cast<std::size_t>(st.st_size), '\0');
    std::size_t got = 0;
    for (;;) {
        if (got == text.size())
            text.resize(text.size() + 4096); // the file may have grown since
        const ssize_t n = ::read(in.fd, text.data() + got, text.size() - got);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            error = because(errno);
            return false;
        }
        if (n == 0)
            break;
        got += static_cast<std::size_t>(n);
        if (got > kTextFileLimit) {
            error = "File too large: more than 1 MB";
            return false;
        }
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
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && !S_ISREG(old.st_mode)) {
        error = "Can not replace " + path + ": " +
                (S_ISDIR(old.st_mode) ? because(EISDIR) : std::string("Not a regular file"));
        return false;
    }
    const std::string temporary = temporaryPathFor(path);
    auto fail = [&](const std::string& what, int cause) {
        ::unlink(temporary.c_str());
        error = what + ": " + because(cause);
        return false;
    };
    // Never written through a link that someone left at the temporary name.
    Descriptor out{::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666)};
    if (out.fd < 0) {
        const int cause = errno;
        error = "Can not create " + temporary + ": " + because(cause);
        return false;
    }
    if (exists && ::fchmod(out.fd, old.st_mode & 07777) != 0)
        return fail("Can not set the permissions of " + temporary, errno);
    std::size_t written = 0;
    while (written < content.size()) {
        const ssize_t n = ::write(out.fd, content.data() + written, content.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return fail("Can not write " + temporary, errno);
        written += static_cast<std::size_t>(n);
    }
    if (::fsync(out.fd) != 0)
        return fail("Can not write " + temporary, errno);
    if (::close(out.release()) != 0)
        return fail("Can not write " + temporary, errno);
    if (::rename(temporary.c_str(), target.c_str()) != 0)
        return fail("Can not replace " + path, errno);
    return true;
}

} // namespace kestrel
