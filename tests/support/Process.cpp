#include "Process.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrel::test {

namespace {
std::string readAll(int fd)
{
    std::string out;
    char buf[4096];
    for (ssize_t n; (n = read(fd, buf, sizeof buf)) > 0 || (n < 0 && errno == EINTR);)
        if (n > 0)
            out.append(buf, static_cast<std::size_t>(n));
    return out;
}

// Starts the program with its stdout and stderr on pipes, and stdin empty when asked.
pid_t spawn(const std::string& program, const std::vector<std::string>& args, int& outFd, int& errFd,
            bool emptyInput)
{
    int outPipe[2], errPipe[2];
    if (pipe(outPipe) != 0 || pipe(errPipe) != 0)
        throw std::runtime_error("pipe failed");
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const auto& a : args)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (emptyInput)
            dup2(open("/dev/null", O_RDONLY), 0);
        dup2(outPipe[1], 1);
        dup2(errPipe[1], 2);
        close(outPipe[0]);
        close(errPipe[0]);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    close(outPipe[1]);
    close(errPipe[1]);
    outFd = outPipe[0];
    errFd = errPipe[0];
    return child;
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

SimProcess::SimProcess(const std::vector<std::string>& args)
{
    int outFd = -1;
    pid = spawn(binPath("kestrel-sim"), args, outFd, errFd, false);
    // The first line of its output is the pseudo-terminal's path.
    pollfd p{outFd, POLLIN, 0};
    char c;
    while (poll(&p, 1, 10000) > 0 && read(outFd, &c, 1) == 1 && c != '\n')
        path += c;
    close(outFd);
    if (path.empty()) {
        stop();
        throw std::runtime_error("kestrel-sim did not report its pseudo-terminal");
    }
}

SimProcess::~SimProcess() { stop(); }

std::string SimProcess::stop()
{
    std::string err;
    if (pid > 0) {
        kill(pid, SIGTERM);
        int status;
        waitpid(pid, &status, 0);
        pid = -1;
    }
    if (errFd >= 0) {
        err = readAll(errFd);
        close(errFd);
        errFd = -1;
    }
    return err;
}

CommandResult runProgram(const std::string& program, const std::vector<std::string>& args)
{
    int outFd = -1, errFd = -1;
    const pid_t child = spawn(program, args, outFd, errFd, true);
    CommandResult r;
    // Read both pipes together so neither can fill up and stall the child.
    pollfd fds[2] = {{outFd, POLLIN, 0}, {errFd, POLLIN, 0}};
    int open = 2;
    char buf[4096];
    while (open > 0) {
        if (poll(fds, 2, -1) < 0 && errno != EINTR)
            break;
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || !(fds[i].revents & (POLLIN | POLLHUP)))
                continue;
            const ssize_t n = read(fds[i].fd, buf, sizeof buf);
            if (n > 0) {
                (i == 0 ? r.out : r.err).append(buf, static_cast<std::size_t>(n));
            } else {
                close(fds[i].fd);
                fds[i].fd = -1;
                --open;
            }
        }
    }
    int status;
    waitpid(child, &status, 0);
    r.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return r;
}

} // namespace kestrel::test
