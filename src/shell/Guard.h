#pragma once
#include "session/Session.h"

#include <functional>
#include <string>

namespace kestrel {

// Every handler of the window that reaches the core runs inside a guard. A program fault
// (or any other exception) stops the handler, is shown once as "Program error, the
// operation was stopped: ...", and the configuration, the general settings and the
// event entries are put back as they were before the handler began: nothing typed or
// read can end the program. Guards nest; only the outermost one keeps the snapshot and
// calls `after` (the window's refresh of its title and status).
class Guard {
public:
    explicit Guard(Session& session) : session(session) {}

    // Runs `handler`; false when it was stopped by a fault.
    bool operator()(const std::function<void()>& handler);

    // Called after every outermost handler, fault or not.
    std::function<void()> after;
    // Called after a fault has been shown and the model restored (the pages show it again).
    std::function<void()> afterFault;

private:
    Session& session;
    int depth = 0;
};

} // namespace kestrel
