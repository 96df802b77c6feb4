#pragma once
#include <string>

namespace kestrel {

// The whole content of a file, bytes as they stand. False when it cannot be opened or read.
bool readTextFile(const std::string& path, std::string& content);

// The temporary file that replaceFile() writes beside the target before renaming it.
std::string temporaryPathFor(const std::string& path);

// Writes content to path so that the file is either the old one or the complete new
// one, never a part: the text goes to a temporary file beside the target, which is then
// renamed over it. On failure the target is untouched, the temporary file is removed,
// false is returned and error says what failed.
bool replaceFile(const std::string& path, const std::string& content, std::string& error);

} // namespace kestrel
