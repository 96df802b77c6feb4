#pragma once
#include <cstdio>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace kestrel {

// Standard output and error carry exactly the bytes the program writes, as on other
// systems: Windows would otherwise put a CR before every LF, also where a report's lines
// already end in CR LF.
inline void keepOutputBytes()
{
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
#endif
}

} // namespace kestrel
