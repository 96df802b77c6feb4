#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

// The largest data or definitions file that is read: no real one comes near it, and a
// larger one is refused before it is read.
inline constexpr std::uintmax_t kTextFileLimit = std::uintmax_t{1024} * 1024;

// The whole content of a file, bytes as they stand. False, with error saying why ("No
// such file or directory", "Is a directory", "File too large: ... bytes, at most 1 MB"),
// when it cannot be read.
bool readTextFile(const std::string& path, std::string& content, std::string& error);

// The temporary file that replaceFile() writes beside the file it replaces.
std::string temporaryPathFor(const std::string& path);

// Writes content to path so that the file is either the old one or the complete new one,
// never a part: the text goes to a temporary file beside the target, which is then
// renamed over it. A symbolic link is followed and its target replaced; the new file
// keeps the old one's permissions. A target that exists and is not a regular file (a
// device, a FIFO, a folder) is refused, and so is a link that never ends in a file (a
// loop: "Too many levels of symbolic links"). On failure the target is untouched, the
// temporary file is removed, false is returned and error says what failed and why
// ("Can not write /x/.a.dat.saving: No space left on device").
bool replaceFile(const std::string& path, const std::string& content, std::string& error);

} // namespace kestrel
