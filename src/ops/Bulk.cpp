#include "ops/Bulk.h"

#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"
#include "ops/PinTransfer.h"
#include "ops/VerifyGeneral.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kestrel {

namespace {

using Step = std::pair<const char*, std::function<bool()>>;

// Runs the steps in order until one fails; reports each through the job's progress.
bool runSteps(Session& session, const std::vector<Step>& steps)
{
    const int total = static_cast<int>(steps.size());
    for (int i = 0; i < total; ++i) {
        if (auto* p = session.link.currentProgress())
            p->step(i, total, steps[i].first);
        if (!steps[i].second())
            return false;
    }
    if (auto* p = session.link.currentProgress())
        p->step(total, total, "Done");
    return true;
}

} // namespace

bool ReadAll(Session& session)
{
    Session& s = session;
    const bool ok = runSteps(s, {
        {"Request version", [&] { return RequestVersion(s); }},
        {"Reading ID string", [&] { return ReadIDString(s); }},
        {"Reading DCC settings", [&] { return ReadDCCSettings(s); }},
        {"Reading serial addressing", [&] { return CommandGenAddrRead_Click(s); }},
        {"Reading LED control", [&] { return ReadLEDControl(s); }},
        {"Reading hardware configuration", [&] { return ReadHardwareConfig(s); }},
        {"Reading serial port", [&] { return ReadSerialPortSettings(s); }},
        {"Reading pins", [&] { return ReadAllPins(s); }},
        {"Reading events", [&] { return ReadAllEvents(s); }},
        {"Reading enable maps", [&] { return ReadEnableMaps(s); }},
    });
    if (s.onConfigurationChanged)
        s.onConfigurationChanged();
    return ok;
}

bool WriteAll(Session& session, bool withPinConfig)
{
    Session& s = session;
    return runSteps(s, {
        {"Writing ID string", [&] { return WriteIDString(s); }},
        {"Writing DCC settings", [&] { return WriteDCCSettings(s); }},
        {"Writing LED control", [&] { return WriteLEDControl(s); }},
        {"Writing hardware configuration", [&] { return WriteHardwareConfig(s); }},
        {"Writing serial port", [&] { return WriteSerialPortSettings(s); }},
        {"Writing pins", [&] { return WriteAllPins(s, withPinConfig); }},
        {"Writing events", [&] { return WriteAllEvents(s); }},
        {"Writing enable maps", [&] { return WriteEnableMaps(s); }},
        {"Writing serial addressing", [&] { return WriteSerialAddressing(s); }},
    });
}

bool VerifyAll(Session& session)
{
    Session& s = session;
    s.report.clear();
    const bool ok = runSteps(s, {
        {"Verifying general settings", [&] { return VerifyGeneralSettings(s); }},
        {"Verifying event control", [&] { return VerifyEventControl(s); }},
        {"Verifying pins", [&] { return VerifyAllPins(s); }},
    });
    s.report.line(ok ? "Verify OK" : "Verification Stopped");
    if (s.onShowVerification)
        s.onShowVerification();
    return ok;
}

} // namespace kestrel
