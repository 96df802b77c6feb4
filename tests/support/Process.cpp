#include "Process.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace kestrel::test {

namespace {
// Starts the program with the given descriptors as its stdin, stdout and stderr (-1: the test's own).
pid_t spawn(const std::string& program, const std::vector<std::string>& args, int in, int out, int err)
{
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const auto& a : args)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t io;
    posix_spawn_file_actions_init(&io);
    for (const auto& [from, to] : {std::pair{in, 0}, {out, 1}, {err, 2}})
        if (from >= 0)
            posix_spawn_file_actions_adddup2(&io, from, to);
    pid_t child = -1;
    const int failed = posix_spawn(&child, program.c_str(), &io, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&io);
    if (failed != 0)
        throw std::runtime_error("cannot start " + program);
    return child;
}

// What a child wrote to a temporary file; the file is closed.
std::string contents(std::FILE* file)
{
    std::string text;
    std::rewind(file);
    for (int c; (c = std::fgetc(file)) != EOF;)
        text += static_cast<char>(c);
    std::fclose(file);
    return text;
}
} // namespace

std::string binPath(const std::string& program)
{
    // KESTREL_BIN_DIR if set, else the folder of the running test (the build's bin/).
    if (const char* dir = std::getenv("KESTREL_BIN_DIR"))
        return std::string(dir) + "/" + program;
    char self[4096];
    const ssize_t n = readlink("/proc/self/exe", self, sizeof self - 1);
    std::string path = n > 0 ? std::string(self, static_cast<std::size_t>(n)) : std::string("./x");
    return path.substr(0, path.rfind('/')) + "/" + program;
}

SimProcess::SimProcess(const std::vector<std::string>& args) : err(std::tmpfile())
{
    int out[2];
    if (!err || pipe2(out, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe for kestrel-sim");
    pid = spawn(binPath("kestrel-sim"), args, -1, out[1], fileno(err));
    close(out[1]);
    // The first line of its output is the pseudo-terminal's path.
    pollfd p{out[0], POLLIN, 0};
    char c;
    while (poll(&p, 1, 10000) > 0 && read(out[0], &c, 1) == 1 && c != '\n')
        path += c;
    close(out[0]);
    if (path.empty()) {
        stop();
        throw std::runtime_error("kestrel-sim did not report its pseudo-terminal");
    }
}

SimProcess::~SimProcess() { stop(); }

std::string SimProcess::stop()
{
    if (pid > 0) {
        kill(pid, SIGTERM);
        waitpid(pid, nullptr, 0);
        pid = -1;
    }
    std::string text = err ? contents(err) : std::string();
    err = nullptr;
    return text;
}

CommandResult runProgram(const std::string& program, const std::vector<std::string>& args)
{
    std::FILE* out = std::tmpfile();
    std::FILE* err = std::tmpfile();
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    const pid_t child = spawn(program, args, nothing, fileno(out), fileno(err));
    close(nothing);
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents(out), contents(err)};
}

} // namespace kestrel::test
