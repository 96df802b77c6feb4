#pragma once
// A session wired to one simulated module at bus address 0, on a fake clock that the
// port's time-outs advance; and a configuration that uses every setting, for round trips
// against it.
#include "FakeClock.h"
#include "RecordingDialogs.h"
#include "model/Configuration.h"
#include "session/GeneralSettings.h"
#include "session/Session.h"
#include "sim/SimBus.h"
#include "sim/SimPort.h"

#include <memory>
#include <string>
#include <vector>

namespace kestrel::test {

struct SimSession {
    sim::SimBus bus;
    sim::SimModule& module = bus.addModule(0);
    FakeClock clock;
    sim::SimPort port{bus};
    RecordingDialogs dialogs;
    std::unique_ptr<Session> owned = fresh();
    Session& session = *owned;

    // A new session on the same port, as after a restart of the program.
    std::unique_ptr<Session> fresh()
    {
        port.open();
        port.setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
        return std::make_unique<Session>(port, clock, dialogs);
    }
    sim::ModuleMemory& memory() { return module.memory(); }
    sim::PinMemory& modulePin(int p) { return module.memory().pins[p]; }
};

// The lines of the verification report.
inline std::vector<std::string> reportLines(const Session& session)
{
    std::vector<std::string> lines;
    const std::string& t = session.report.txtVerification;
    for (std::size_t at = 0, end; (end = t.find("\r\n", at)) != std::string::npos; at = end + 2)
        lines.push_back(t.substr(at, end - at));
    return lines;
}

// Every general setting away from its start-up value, in the form a read leaves it.
inline GeneralSettings fullGeneralSettings()
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
inline Configuration fullConfiguration()
{
    const auto u8 = [](int v) { return static_cast<std::uint8_t>(v); };
    Configuration c;
    for (int p = 0; p < kPinCount; ++p) {
        auto& pin = c.pin(p);
        pin.AspectLayout = u8(p % 3 == 0 ? 3 : p % 3 == 1 ? 2 : 0);
        const LayoutSlots slots = layoutSlots(pin.AspectLayout);
        for (int a = 0; a < slots.aspects; ++a)
            for (int s = 0; s < slots.steps; ++s)
                c.step(p, a, s) = pin.AspectLayout == 3
                                      ? StepRecord{7, 0, u8((p * 5 + a) % 100), u8(s + 1), u8(a), 1}
                                      : StepRecord{3, 1, u8(p), u8(a), u8(s + 1), 2};
        pin.InitAspect = u8(p % 4);
        pin.DccCount = u8(p % 8);
        pin.XDccCount = u8(p % 2);
        pin.LynxCount = u8((p / 2) % 8);
        for (int i = 0; i < 4; ++i) {
            c.events(p).OnEvent[i] = static_cast<std::int16_t>((p + 2 * i) % 13 - 1);
            c.events(p).OffEvent[i] = static_cast<std::int16_t>((3 * p + i) % 13 - 1);
        }
    }
    c.pin(6).DeviceOffset = -1;
    c.pin(7).DeviceOffset = -2;
    return c;
}

} // namespace kestrel::test
