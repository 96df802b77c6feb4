#pragma once
// A session wired through a FaultWire to one simulated module at bus address 0 (directly,
// or through the simulated Corvid system), on a fake clock that the port's waits advance.
// The module starts with a full configuration, written to it by the program's own Write
// All; `source` and `sourceGeneral` keep what was written, `seeded` the module's memory
// afterwards.
#include "FaultWire.h"
#include "link/CorvidControl.h"
#include "ops/Bulk.h"
#include "ops/Session.h"
#include "support/FakeClock.h"
#include "support/RecordingDialogs.h"

#include <gtest/gtest.h>

#include <memory>

namespace kestrel::test::faults {

// Every general setting away from its start-up value, in the form a read leaves it.
inline GeneralSettings sourceGeneralSettings()
{
    GeneralSettings g;
    g.TextGenIDString = "Up Main 7";
    g.TextGenDCCAddress = "202";
    g.TextGenXDCCAddress = "1025";
    g.OptGenDCC_PRP = 2;
    g.ChkGenDCC_BPSI = 1;
    g.ChkGenDCCAllow0 = 0;
    g.CheckGenKestrelNative = 0;
    g.CheckGenLynxaddr = 1;
    g.LynxFlexAddress = 12;
    g.TextGenLynxaddr = "48";
    g.ExtendedAddress = 41;
    g.TextGenXaddr = "41";
    g.CheckGenXGM = {1, 0, 0, 1, 0, 1, 1, 0, 1, 1, 1, 1, 0, 0, 0, 1};
    g.ChkGenHWCSink = {1, 0, 1, 0};
    g.ChkGenHWCSource = {1, 1, 0, 0};
    g.CheckLCGreen = {0, 1, 0, 1, 0, 0, 1, 0};
    g.CheckLCOrange = {0, 0, 0, 0, 0, 0, 0, 1};
    g.CheckGenSerialEnable = 1;
    g.ComboGenBaud = 5;
    g.OptionGenSerialDatabits = 1;
    g.OptionGenSerialStop = 1;
    g.OptionGenSerialParity = 3;
    g.CheckInitEE = {1, 0, 1, 0, 0, 1, 1, 1};
    g.TextGenLynxaddrVisible = true;
    g.CheckGenKestrelNativeVisible = false;
    g.CheckGenLynxaddrVisible = true;
    g.LabelGenVersionString = "1.2.3.4"; // the simulated module's version
    return g;
}

// Every pin used: layouts 3, 2 and none in turn, every step of a layout filled, distinct
// initial aspects, address counts and events, and one device of three pins (5 to 7).
inline Configuration sourceConfiguration()
{
    Configuration c;
    for (int p = 0; p < kPinCount; ++p) {
        auto& pin = c.pin(p);
        pin.AspectLayout = static_cast<std::uint8_t>(p % 3 == 0 ? 3 : p % 3 == 1 ? 2 : 0);
        const LayoutSlots slots = layoutSlots(pin.AspectLayout);
        for (int a = 0; a < slots.aspects; ++a)
            for (int s = 0; s < slots.steps; ++s)
                c.step(p, a, s) = pin.AspectLayout == 3
                                      ? StepRecord{7, 0, static_cast<std::uint8_t>((p * 5 + a) % 100),
                                                   static_cast<std::uint8_t>(s + 1), static_cast<std::uint8_t>(a), 1}
                                      : StepRecord{3, 1, static_cast<std::uint8_t>(p), static_cast<std::uint8_t>(a),
                                                   static_cast<std::uint8_t>(s + 1), 2};
        pin.InitAspect = static_cast<std::uint8_t>(p % 4);
        pin.DccCount = static_cast<std::uint8_t>(p % 8);
        pin.XDccCount = static_cast<std::uint8_t>(p % 2);
        pin.LynxCount = static_cast<std::uint8_t>((p / 2) % 8);
        for (int i = 0; i < 4; ++i) {
            c.events(p).OnEvent[i] = static_cast<std::int16_t>((p + 2 * i) % 13 - 1);
            c.events(p).OffEvent[i] = static_cast<std::int16_t>((3 * p + i) % 13 - 1);
        }
    }
    c.pin(6).DeviceOffset = -1;
    c.pin(7).DeviceOffset = -2;
    return c;
}

struct FaultRig {
    sim::SimBus bus;
    sim::SimModule& module = bus.addModule(0);
    sim::SimCorvid corvid{bus};
    FaultWire wire{bus, corvid, module};
    sim::SimPort port{wire};
    FakeClock clock;
    RecordingDialogs dialogs;
    Session session{port, clock, dialogs};

    const Configuration source = sourceConfiguration();
    const GeneralSettings sourceGeneral = sourceGeneralSettings();
    sim::ModuleMemory seeded;
    int configurationShown = 0; // calls of onConfigurationChanged

    // Seeds the module, then switches to the tunnel when asked. Check `ready` after.
    explicit FaultRig(bool tunnel)
    {
        wire.port = &port;
        port.setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
        session.onConfigurationChanged = [this] { ++configurationShown; };
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
};

} // namespace kestrel::test::faults
