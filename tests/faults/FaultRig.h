#pragma once
// A session wired through a FaultWire to a simulated module at address 0 (direct or tunnelled),
// seeded with a full configuration by the program's own Write All; `seeded` is its memory after.
#include "FaultWire.h"
#include "link/CorvidControl.h"
#include "ops/Bulk.h"
#include "session/Session.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

namespace kestrel::test::faults {

inline const std::string kPortLost =
    "Communications port lost: sim (Port sim: the simulated port has gone away)";

struct FaultRig {
    sim::SimBus bus;
    sim::SimModule& module = bus.addModule(0);
    sim::SimCorvid corvid{bus};
    FaultWire wire{bus, corvid, module};
    sim::SimPort port{wire};
    FakeClock clock;
    RecordingDialogs dialogs;
    Session session{port, clock, dialogs};

    const Configuration source = fullConfiguration();
    const GeneralSettings sourceGeneral = fullGeneralSettings();
    sim::ModuleMemory seeded;

    // Seeds the module, then switches to the tunnel when asked. Check `ready` after.
    explicit FaultRig(bool tunnel)
    {
        wire.port = &port;
        port.setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
        if (!session.linkControl.ComboPort_Click("sim"))
            return;
        session.config = source;
        session.general = sourceGeneral;
        if (!WriteAll(session))
            return;
        seeded = module.memory();
        if (tunnel) {
            wire.tunnel = true;
            // Each reading of the clock takes a moment, as every poll does on a real wire;
            // without it a tunnel that keeps polling would never see its time-out.
            clock.tick = 0.001;
            CorvidControl control(session.link, session.linkControl);
            if (!control.CheckCorvid_Click(true))
                return;
        }
        ready = dialogs.messages.empty() && session.link.settings.CheckKestrelBD;
        dialogs.clear();
    }
    bool ready = false;

    // The program as just started: nothing read yet.
    void forgetModel()
    {
        session.config = Configuration{};
        session.general = GeneralSettings{};
    }
    // The module as from the factory, the program holding the configuration to write.
    void eraseModule() { module.memory() = module.factoryMemory(); }
    // The adapter plugged back in and chosen again.
    void bringBack()
    {
        port.setVanished(false);
        ASSERT_TRUE(session.linkControl.ComboPort_Click("sim"));
        dialogs.clear();
    }
    void expectWholeModel() const
    {
        EXPECT_EQ(session.general, sourceGeneral);
        for (int p = 0; p < kPinCount; ++p)
            EXPECT_EQ(std::tuple(session.config.pin(p), session.config.events(p)),
                      std::tuple(source.pin(p), source.events(p)))
                << p;
    }
};

} // namespace kestrel::test::faults
