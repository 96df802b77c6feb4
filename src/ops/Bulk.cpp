#include "ops/Bulk.h"
#include "base/Translatable.h"

#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"
#include "ops/PinTransfer.h"
#include "ops/SendCheck.h"
#include "ops/VerifyGeneral.h"

#include "model/WireLimits.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
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
    session.reportStep(total, total, KC_TRANSLATABLE("Messages", "Done"));
    return true;
}

} // namespace

bool ReadAll(Session& session)
{
    Session& s = session;
    const bool ok = s.asJob("Read All", [&] {
        return runSteps(
            s, {
                   {"Request version", [&] { return RequestVersion(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading ID string"), [&] { return ReadIDString(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading DCC settings"), [&] { return ReadDCCSettings(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading serial addressing"),
                    [&] { return CommandGenAddrRead_Click(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading LED control"), [&] { return ReadLEDControl(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading hardware configuration"),
                    [&] { return ReadHardwareConfig(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading serial port"),
                    [&] { return ReadSerialPortSettings(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading pins"), [&] { return ReadAllPins(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading events"), [&] { return ReadAllEvents(s); }},
                   {KC_TRANSLATABLE("Messages", "Reading enable maps"), [&] { return ReadEnableMaps(s); }},
               });
    });
    // A read that ran through without a word shows what the module holds.
    if (ok && s.lastJob().problems.empty())
        s.imageHolds(s.config, s.general);
    return ok;
}

bool ReadAllInto(Session& session, Configuration& module, GeneralSettings& gmodule)
{
    Session& s = session;
    struct Shown {
        Session& s;
        Configuration config = s.config;
        GeneralSettings general = s.general;
        EventControlPage eventControl = s.eventControl;
        ~Shown()
        {
            general.LabelGenVersionString = s.general.LabelGenVersionString;
            s.config = std::move(config);
            s.general = std::move(general);
            s.eventControl = std::move(eventControl);
        }
    } shown{s};
    const bool ok = ReadAll(s);
    module = s.config;
    gmodule = s.general;
    return ok;
}

std::vector<std::pair<const char*, std::function<bool()>>> writeAllSteps(Session& s, bool withPinConfig)
{
    return {
        {KC_TRANSLATABLE("Messages", "Writing ID string"), [&s] { return WriteIDString(s); }},
        {KC_TRANSLATABLE("Messages", "Writing DCC settings"), [&s] { return WriteDCCSettings(s); }},
        {KC_TRANSLATABLE("Messages", "Writing LED control"), [&s] { return WriteLEDControl(s); }},
        {KC_TRANSLATABLE("Messages", "Writing hardware configuration"),
         [&s] { return WriteHardwareConfig(s); }},
        {KC_TRANSLATABLE("Messages", "Writing serial port"), [&s] { return WriteSerialPortSettings(s); }},
        {KC_TRANSLATABLE("Messages", "Writing pins"),
         [&s, withPinConfig] { return WriteAllPins(s, withPinConfig); }},
        {KC_TRANSLATABLE("Messages", "Writing events"), [&s] { return WriteAllEvents(s); }},
        {KC_TRANSLATABLE("Messages", "Writing enable maps"), [&s] { return WriteEnableMaps(s); }},
        {KC_TRANSLATABLE("Messages", "Writing serial addressing"), [&s] { return WriteSerialAddressing(s); }},
    };
}

bool WriteAll(Session& session, bool withPinConfig)
{
    Session& s = session;
    return s.asJob("Write All", [&] {
        // Everything is checked before the first byte, so that the module is written whole or not at all.
        if (!sendable(s, unsendableConfiguration(s.config, s.general, withPinConfig)))
            return false;
        // The module then holds what was shown, its pins' flash configurations only when sent.
        return s.trackedWrite([&] { return runSteps(s, writeAllSteps(s, withPinConfig)); }, true,
                              [&](ModuleImage& image) { image.take(s.config, s.general, withPinConfig); });
    });
}

namespace {

// What a frame sets in the module: the command and item (pin), the slot of a step, and the
// length where it tells two settings apart.
std::vector<int> frameItem(const std::vector<int>& frame)
{
    if (frame.size() >= 4 && frame[0] == kWriteStep)
        return {frame.begin(), frame.begin() + 4};
    std::vector<int> item(frame.begin(), frame.begin() + std::min<std::size_t>(2, frame.size()));
    if (frame[0] == kWriteInitOrEventOn)
        item.push_back(static_cast<int>(frame.size()));
    return item;
}

// Swaps a configuration into the session for listing its writes, and everything back.
class Planning {
public:
    Planning(Session& s, const Configuration& c, const GeneralSettings& g,
             std::vector<std::vector<int>>& frames)
        : s(s), config(c), general(g), bidirectional(s.link.settings.CheckKestrelBD),
          progress(s.link.currentProgress())
    {
        std::swap(s.config, config);
        std::swap(s.general, general);
        s.link.settings.CheckKestrelBD = true; // no pauses: nothing goes out
        s.link.setProgress(nullptr);
        s.link.recording = &frames;
    }
    ~Planning()
    {
        std::swap(s.config, config);
        std::swap(s.general, general);
        s.link.settings.CheckKestrelBD = bidirectional;
        s.link.setProgress(progress);
        s.link.recording = nullptr;
    }
    Planning(const Planning&) = delete;
    Planning& operator=(const Planning&) = delete;

private:
    Session& s;
    Configuration config;
    GeneralSettings general;
    bool bidirectional;
    Progress* progress;
};

bool offerWriteAll(Session& s, const std::string& why, bool withPinConfig)
{
    if (s.dialogs().ask(why + "\r\nWrite All instead?", Buttons::YesNo, Icon::Question) != Answer::Yes)
        return false;
    return WriteAll(s, withPinConfig);
}

} // namespace

std::vector<std::vector<int>> plannedWrites(Session& session, const Configuration& config,
                                            const GeneralSettings& general)
{
    std::vector<std::vector<int>> frames;
    Planning planning(session, config, general, frames);
    for (const auto& step : writeAllSteps(session, true))
        if (!step.second())
            break;
    return frames;
}

std::vector<std::vector<int>> changedWrites(Session& session, const ModuleImage& image)
{
    std::map<std::vector<int>, std::vector<int>> held;
    for (auto& frame : plannedWrites(session, image.config, image.general))
        held[frameItem(frame)] = std::move(frame);
    std::vector<std::vector<int>> changed;
    std::array<bool, kPinRecords> relaid{};
    for (auto& frame : plannedWrites(session, session.config, session.general)) {
        const int command = frame[0];
        const int pin = frame.size() > 1 ? frame[1] : 0;
        const auto found = held.find(frameItem(frame));
        bool differs = found == held.end() || found->second != frame;
        if (command == kSendFlashConfig && pin < kPinCount && !image.pinConfigKnown[pin])
            differs = true;
        if (command == kWriteLayout && differs && pin < kPinRecords)
            relaid[pin] = true;
        if (command == kWriteStep && pin < kPinRecords && relaid[pin])
            differs = true;
        if (differs)
            changed.push_back(std::move(frame));
    }
    return changed;
}

bool WriteChanges(Session& session, bool withPinConfig)
{
    Session& s = session;
    return s.asJob("Write Changes", [&] {
        if (!s.moduleImage())
            return offerWriteAll(
                s,
                "What the module holds is not known: it has not been read, written or verified "
                "since, or an exchange with it failed.",
                withPinConfig);
        if (!sendable(s, unsendableConfiguration(s.config, s.general, true)))
            return false;
        // The ID string shows whether the module of the image still answers at this address.
        if (s.link.settings.CheckKestrelBD) {
            const std::string expected = s.moduleImage()->general.TextGenIDString;
            const auto id = requestIDString(s);
            if (!id)
                return false;
            if (!s.moduleImage())
                return offerWriteAll(s,
                                     "Another module answers at this address: its ID string is " +
                                         quoteForMessage(*id) + ", not " + quoteForMessage(expected) + ".",
                                     withPinConfig);
        }
        const auto frames = changedWrites(s, *s.moduleImage());
        if (frames.empty()) {
            s.dialogs().message(
                KC_TRANSLATABLE("Messages", "Nothing to write: the module holds this configuration."),
                Icon::Information);
            return true;
        }
        const int total = static_cast<int>(frames.size());
        return s.trackedWrite(
            [&] {
                for (int i = 0; i < total; ++i) {
                    s.reportStep(i, total,
                                 "Writing change " + std::to_string(i + 1) + " of " + std::to_string(total));
                    if (!s.link.send(frames[i]))
                        return false;
                    // Pin and event writes are paced when no reply paces the sender, as in Write All.
                    if (frames[i][0] != kGeneralWrite && !s.link.settings.CheckKestrelBD)
                        s.link.clock().sleepMs(kPacingMs);
                }
                s.reportStep(total, total, KC_TRANSLATABLE("Messages", "Done"));
                return true;
            },
            false, [&](ModuleImage& image) { image.take(s.config, s.general, true); });
    });
}

bool VerifyAll(Session& session)
{
    Session& s = session;
    s.report.clear();
    bool ok = false;
    // A verification that stops at a difference has done its job: the report says what
    // it found. The job's outcome only notes what kept it from comparing (messages, Cancel).
    s.asJob("Verify All", [&] {
        ok =
            runSteps(s, {
                            {KC_TRANSLATABLE("Messages", "Verifying general settings"),
                             [&] { return VerifyGeneralSettings(s); }},
                            {KC_TRANSLATABLE("Messages", "Verifying event control"),
                             [&] { return VerifyEventControl(s); }},
                            {KC_TRANSLATABLE("Messages", "Verifying pins"), [&] { return VerifyAllPins(s); }},
                        });
        return true;
    });
    s.report.line(ok ? "Verify OK" : "Verification Stopped");
    if (ok && s.lastJob().problems.empty())
        s.imageHolds(s.config, s.general);
    if (s.onShowVerification)
        s.onShowVerification();
    return ok;
}

} // namespace kestrel
