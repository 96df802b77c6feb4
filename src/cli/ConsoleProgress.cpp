#include "cli/ConsoleProgress.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace kestrel {

namespace {
volatile std::sig_atomic_t interrupted = 0;
void onInterrupt(int) { interrupted = 1; }
} // namespace

ConsoleProgress::ConsoleProgress() : terminal(isatty(STDERR_FILENO) == 1)
{
    std::signal(SIGINT, onInterrupt);
}

ConsoleProgress::~ConsoleProgress() { finish(); }

void ConsoleProgress::step(int done, int total, const std::string& what)
{
    if (!terminal)
        return;
    std::fprintf(stderr, "\r\033[K%s %d/%d", what.c_str(), done, total);
    std::fflush(stderr);
    shown = true;
}

bool ConsoleProgress::cancelled() { return interrupted != 0; }

void ConsoleProgress::finish()
{
    if (shown) {
        std::fprintf(stderr, "\r\033[K");
        std::fflush(stderr);
        shown = false;
    }
}

} // namespace kestrel
