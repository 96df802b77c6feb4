#pragma once
#include "link/Clock.h"
#include "link/CorvidControl.h"
#include "platform/PortRouter.h"
#include "session/Session.h"

#include <memory>

namespace kestrel {

// The session of a running program, wired the same way for the window and the command
// line: the system's serial ports (platform/SystemPort.h) beside the built-in simulated
// layout ("sim", "sim (Corvid)"), the system clock, the Corvid controls, and the dialogs
// the front end gives.
struct ProgramSession {
    explicit ProgramSession(UserDialogs& dialogs);
    ~ProgramSession();
    ProgramSession(const ProgramSession&) = delete;
    ProgramSession& operator=(const ProgramSession&) = delete;

    PortRouter port;
    SystemClock clock;
    std::unique_ptr<Session> session;
    std::unique_ptr<CorvidControl> corvid;
};

} // namespace kestrel
