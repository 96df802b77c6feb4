#pragma once
#include "session/Session.h"

#include <functional>
#include <string>

namespace kestrel {

// What the configuration, the general settings and the event entries are at one moment.
struct EditState {
    Configuration config;
    GeneralSettings general;
    EventControlPage eventControl;
    bool operator==(const EditState&) const = default;
};

// Every handler of the window that reaches the core runs inside a guard. A program fault
// (or any other exception) stops the handler, is shown once as "Program error, the
// operation was stopped: ...", and the configuration, the general settings and the
// event entries are put back as they were before the handler began: nothing typed or
// read can end the program. Guards nest; only the outermost one keeps the snapshot and
// calls `after` (the window's refresh of its title and status) and `done` (its undo).
class Guard {
public:
    explicit Guard(Session& session) : session(session) {}

    // Runs `handler`; false when it was stopped by a fault.
    bool operator()(const std::function<void()>& handler) { return (*this)(std::string(), handler); }
    // The same, saying what the user does ("typing in Description", "Read All"); `control`
    // is the box typed in, so that typing on in it can join the step before.
    bool operator()(const std::string& name, const std::function<void()>& handler,
                    const void* control = nullptr);
    // Names the outermost handler that is running (a tool names the command chosen in it).
    void name(const std::string& what)
    {
        if (depth > 0 && !what.empty())
            running = what;
    }

    // The name of the next outermost handler that is given none (the button just pressed).
    std::string nextName;

    // Called after every outermost handler, fault or not.
    std::function<void()> after;
    // Called after a fault has been shown and the model restored (the pages show it again).
    // A fault raised inside it (by a handler the refresh runs) is told once for the whole
    // refresh and does not start another refresh.
    std::function<void()> afterFault;
    // Called after every outermost handler that ended without fault, with the state before
    // it, what it was named and the control it was given.
    std::function<void(const EditState& before, const std::string& name, const void* control)> done;

private:
    Session& session;
    int depth = 0;
    bool refreshing = false;   // inside afterFault
    bool refreshFault = false; // a fault came up during this refresh
    std::string told;          // the fault that started it
    std::string running;
};

} // namespace kestrel
