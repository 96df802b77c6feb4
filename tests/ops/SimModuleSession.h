#pragma once
// A session wired to one simulated module at bus address 0, on a fake clock that the
// port's time-outs advance.
#include "ops/Session.h"
#include "sim/SimBus.h"
#include "sim/SimPort.h"
#include "support/FakeClock.h"
#include "support/RecordingDialogs.h"

#include <memory>

namespace kestrel::test::ops {

struct SimModuleSession {
    sim::SimBus bus;
    sim::SimModule& module = bus.addModule(0);
    FakeClock clock;
    sim::SimPort port{bus};
    RecordingDialogs dialogs;
    std::unique_ptr<Session> session = fresh();

    // A new session on the same port, as after a restart of the program.
    std::unique_ptr<Session> fresh()
    {
        port.open();
        port.setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
        return std::make_unique<Session>(port, clock, dialogs);
    }
    sim::ModuleMemory& memory() { return module.memory(); }
};

} // namespace kestrel::test::ops
