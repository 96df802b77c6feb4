#pragma once
#include <stdexcept>
#include <string>

namespace kestrel {

// A program error inside the core (an index out of bounds, a byte sum above 255,
// a data byte above 127 handed to the link). Thrown, never shown as a user message
// by the core; the job boundary catches it and reports it once.
class ProgramFault : public std::runtime_error {
public:
    explicit ProgramFault(const std::string& what) : std::runtime_error(what) {}
};

// How every front end tells a program fault that stopped an operation, once.
inline std::string programFaultMessage(const std::string& what)
{
    return "Program error, the operation was stopped: " +
           (what.empty() ? std::string("unknown fault") : what);
}

// Throws ProgramFault unless 0 <= index < size.
inline void checkIndex(long index, long size, const char* what)
{
    if (index < 0 || index >= size)
        throw ProgramFault(std::string("Index out of range: ") + what + " = " + std::to_string(index));
}

} // namespace kestrel
