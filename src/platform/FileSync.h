#pragma once
#include <cstdio>
#ifdef _WIN32
#include <io.h> // _commit
#else
#include <unistd.h> // fsync
#endif

namespace kestrel {

// Hands what was written to a file to the disk, so that a file renamed over an old one
// afterwards is whole even when the power fails.
inline bool syncToDisk(std::FILE* file)
{
    if (std::fflush(file) != 0)
        return false;
#ifdef _WIN32
    return _commit(_fileno(file)) == 0;
#else
    return ::fsync(fileno(file)) == 0;
#endif
}

} // namespace kestrel
