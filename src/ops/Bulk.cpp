#include "ops/Bulk.h"

#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"
#include "ops/PinTransfer.h"
#include "ops/SendCheck.h"
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
        session.reportStep(i, total, steps[i].first);
        if (!steps[i].second())
            return false;
    }
    session.reportStep(total, total, "Done");
    return true;
}

// Runs a bulk job as one job of the session: its outcome is noted for the front end.
bool asJob(Session& session, const char* name, const std::function<bool()>& job)
{
    session.beginJob(name);
    bool ok = false;
    try {
        ok = job();
    } catch (...) {
        session.endJob(false);
        throw;
    }
    session.endJob(ok);
    return ok;
}

} // namespace

bool ReadAll(Session& session)
{
    Session& s = session;
    const bool ok = asJob(s, "Read All", [&] {
        return runSteps(s, {
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
    });
    if (s.onConfigurationChanged)
        s.onConfigurationChanged();
    return ok;
}

bool WriteAll(Session& session, bool withPinConfig)
{
    Session& s = session;
    return asJob(s, "Write All", [&] {
        // Everything is checked before the first byte, so that the module is written whole or not at all.
        if (!sendable(s, unsendableConfiguration(s.config, s.general, withPinConfig)))
            return false;
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
    });
}

bool VerifyAll(Session& session)
{
    Session& s = session;
    s.report.clear();
    bool ok = false;
    // A verification that stops at a difference has done its job: the report says what
    // it found. The job's outcome only notes what kept it from comparing (messages, Cancel).
    asJob(s, "Verify All", [&] {
        ok = runSteps(s, {
                             {"Verifying general settings", [&] { return VerifyGeneralSettings(s); }},
                             {"Verifying event control", [&] { return VerifyEventControl(s); }},
                             {"Verifying pins", [&] { return VerifyAllPins(s); }},
                         });
        return true;
    });
    s.report.line(ok ? "Verify OK" : "Verification Stopped");
    if (s.onShowVerification)
        s.onShowVerification();
    return ok;
}

} // namespace kestrel
