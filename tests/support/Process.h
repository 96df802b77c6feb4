#pragma once
#include <cstdio>
#include <string>
#include <vector>

namespace kestrel::test {

// Path of a built program (CTest sets KESTREL_BIN_DIR).
std::string binPath(const std::string& program);

// kestrel-sim running as its own process on a pseudo-terminal.
class SimProcess {
public:
    explicit SimProcess(const std::vector<std::string>& args = {});
    ~SimProcess();
    SimProcess(const SimProcess&) = delete;
    SimProcess& operator=(const SimProcess&) = delete;

    const std::string& pty() const { return path; }
    // Stops it (SIGTERM) and returns what it wrote on stderr.
    std::string stop();

private:
    int pid = -1;
    std::FILE* err = nullptr; // its stderr
    std::string path;
};

struct CommandResult {
    int status = -1; // exit status, or -1 when it did not exit normally
    std::string out;
    std::string err;
};

// Runs a program to its end with the given arguments; stdin is empty.
CommandResult runProgram(const std::string& program, const std::vector<std::string>& args);

} // namespace kestrel::test
