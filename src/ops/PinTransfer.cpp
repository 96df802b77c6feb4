#include "ops/PinTransfer.h"
#include "base/Translatable.h"

#include "model/AddressIndex.h"
#include "model/StepCodec.h"
#include "ops/GeneralCommands.h"
#include "ops/PinConfigTransfer.h"
#include "ops/SendCheck.h"

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace kestrel {

namespace {

const char* const kNoValidResponse = KC_TRANSLATABLE("Messages", "No valid response");
const char* const kAddrConfigInvalid = "Read Pin Address Configuration: Invalid Response";

// The five step bytes of a kReadStep reply, after the echoed aspect and step.
std::array<int, 5> stepBytes(const KestrelReply& r)
{
    return {r.data(2), r.data(3), r.data(4), r.data(5), r.data(6)};
}

// The tag (high nibble) of the initial aspect's entry among the Event-On slots.
constexpr int kInitEntryTag = 7;

// The initial aspect as stored (0 = none) from the tag-7 entry; 0 for any other tag.
int decodeInitEntry(int entry)
{
    if ((entry >> 4) != kInitEntryTag || (entry & 15) == 15)
        return 0;
    return (entry & 15) + 1;
}

int initEntry(const PinRecord& rec)
{
    return (kInitEntryTag << 4) + (rec.InitAspect == 0 ? 15 : rec.InitAspect - 1);
}

// An address configuration byte of tag 2 (bits 5 and 6: 64..95) carries the device pointer.
bool isDevicePointer(int b) { return (b >> 5) == 2; }

// DeviceOffset from the 5-bit device pointer of pin p: the head lies in 0..31.
int decodeDeviceOffset(int b, int pin) { return ((b & 31) + pin) % 32 - pin; }

// A write, followed by the pause that replaces a reply's pacing when none is awaited.
bool paced(Session& session, bool sent)
{
    if (sent && !session.link.settings.CheckKestrelBD)
        session.link.clock().sleepMs(kPacingMs);
    return sent;
}

std::string shownPin(const Session& session, int pin)
{
    return std::to_string(pin + session.config.NumberingBase);
}

// Sends kReadAddrConfig for the pin; the device pointer's head, or no value when the reply is
// missing, wrong, or carries no valid device byte. `answered` tells whether a valid
// reply arrived at all.
std::optional<int> readDeviceHead(Session& session, int pin, bool& answered)
{
    Link& link = session.link;
    link.setBidirectional(true);
    const KestrelReply r = link.request({kReadAddrConfig, pin});
    answered = r.valid;
    if (!answered || !r.is(5, kReadAddrConfig, pin))
        return std::nullopt;
    for (int i = 4; i <= 6; ++i) {
        const int b = r.bytes[i];
        if (isDevicePointer(b))
            return pin + decodeDeviceOffset(b, pin);
    }
    return std::nullopt;
}

// A read of the pin whose reply must be `n` bytes echoing the command and the pin: false
// when no valid reply came, and, told with `invalid`, when the reply was another.
bool readOfPin(Link& link, KestrelReply& r, int command, int pin, int n, const std::string& invalid)
{
    r = link.request({command, pin});
    if (!r.valid)
        return false;
    if (!r.is(n, command, pin)) {
        link.dialogs().message(invalid);
        return false;
    }
    return true;
}

// Steps 1 to 4 of every pin read.
bool readPinAspects(Session& session, int pin)
{
    Link& link = session.link;
    UserDialogs& ui = link.dialogs();
    PinRecord& rec = session.config.pin(pin);
    KestrelReply r;

    link.setBidirectional(true);
    if (!readOfPin(link, r, kReadLayout, pin, 3, kNoValidResponse))
        return false;
    rec.AspectLayout = static_cast<std::uint8_t>(r.data(0));

    const LayoutSlots slots = layoutSlots(rec.AspectLayout);
    for (int a = 0; a < slots.aspects; ++a) {
        for (int s = 0; s < slots.steps; ++s) {
            r = link.request({kReadStep, pin, a, s});
            if (!r.valid)
                return false;
            if (!r.is(9, kReadStep, pin) || r.data(0) != a || r.data(1) != s) {
                ui.message(kNoValidResponse);
                return false;
            }
            session.config.step(pin, a, s) = decodeStep(stepBytes(r));
        }
    }

    r = link.request({kReadEventOn, pin});
    if (!r.sent)
        return false;
    const bool initOk = r.is(7, kReadEventOn, pin);
    rec.InitAspect = static_cast<std::uint8_t>(initOk ? decodeInitEntry(r.data(0)) : 0);

    if (!readOfPin(link, r, kReadAddrConfig, pin, 5, kAddrConfigInvalid))
        return false;
    bool ok = true;
    for (int i = 4; i <= 6 && ok; ++i) {
        const int b = r.bytes[i];
        if (b < 16) {
            rec.DccCount = static_cast<std::uint8_t>(b & 7);
            rec.XDccCount = static_cast<std::uint8_t>((b >> 3) & 1);
        } else if (b < 32) {
            rec.LynxCount = static_cast<std::uint8_t>(b & 7);
        } else if (isDevicePointer(b)) {
            rec.DeviceOffset = static_cast<std::int16_t>(decodeDeviceOffset(b, pin));
        } else {
            ui.message(kAddrConfigInvalid);
            ok = false;
        }
    }
    RecalcAddressIndex(session.config);
    return ok;
}

// Steps 0 .. steps-1 of one aspect (kWriteStep), in order.
bool writeSteps(Session& session, int pin, int aspect, int steps)
{
    for (int s = 0; s < steps; ++s) {
        const auto b = encodeStep(session.config.step(pin, aspect, s));
        if (!paced(session, session.link.send({kWriteStep, pin, aspect, s, b[0], b[1], b[2], b[3], b[4]})))
            return false;
    }
    return true;
}

void reportStep(Session& session, int done, const std::string& what)
{
    session.reportStep(done, kPinCount, what);
}

} // namespace

bool PAspReadPin(Session& session, int pin) { return readPinAspects(session, pin); }

bool ReadPin(Session& session, int pin)
{
    return readPinAspects(session, pin) && ReadPinConfig(session, 1, pin);
}

namespace {

bool writePin(Session& session, int pin, bool withPinConfig)
{
    Link& link = session.link;
    const PinRecord& rec = session.config.pin(pin);
    if (!sendable(session, unsendablePins(session.config, {pin}, withPinConfig)))
        return false;
    if (!paced(session, link.send({kWriteLayout, pin, rec.AspectLayout})))
        return false;
    if (!paced(session, link.send({kWriteInitOrEventOn, pin, initEntry(rec)})))
        return false;
    const int counts = 8 * rec.XDccCount + rec.DccCount;
    if (!paced(session,
               link.send({kWriteAddrConfig, pin, counts, 16 + rec.LynxCount, 64 + (rec.DeviceOffset & 31)})))
        return false;
    const LayoutSlots slots = layoutSlots(rec.AspectLayout);
    for (int a = 0; a < slots.aspects; ++a)
        if (!writeSteps(session, pin, a, slots.steps))
            return false;
    if (withPinConfig && !paced(session, SendPinConfig(session, 1, pin)))
        return false;
    return true;
}

} // namespace

bool WritePin(Session& session, int pin, bool withPinConfig)
{
    return session.trackedWrite(
        [&] { return writePin(session, pin, withPinConfig); }, false,
        [&](ModuleImage& image) { image.takePin(session.config, pin, withPinConfig); });
}

bool WriteAspect(Session& session, int pin, int aspect)
{
    const LayoutSlots slots = layoutSlots(session.config.pin(pin).AspectLayout);
    if (aspect < 0 || aspect >= slots.aspects) {
        session.dialogs().message("Pin " + shownPin(session, pin) + " has no aspect " +
                                      std::to_string(aspect) + " in its layout: nothing was written",
                                  Icon::Warning);
        return false;
    }
    if (!sendable(session, unsendableAspect(session.config, pin, aspect)))
        return false;
    return session.trackedWrite([&] { return writeSteps(session, pin, aspect, slots.steps); }, false,
                                [&](ModuleImage& image) {
                                    image.config.aspect(pin, aspect).Steps =
                                        session.config.aspect(pin, aspect).Steps;
                                });
}

bool ReadAllPins(Session& session)
{
    for (int p = 0; p < kPinCount; ++p) {
        reportStep(session, p, "Reading pin " + shownPin(session, p));
        if (!ReadPin(session, p))
            return false;
    }
    reportStep(session, kPinCount, KC_TRANSLATABLE("Messages", "Pins read"));
    return true;
}

bool WriteAllPins(Session& session, bool withPinConfig)
{
    if (!sendable(session, unsendablePins(session.config, allPins(), withPinConfig)))
        return false;
    for (int p = 0; p < kPinCount; ++p) {
        reportStep(session, p, "Writing pin " + shownPin(session, p));
        if (!WritePin(session, p, withPinConfig))
            return false;
    }
    reportStep(session, kPinCount, KC_TRANSLATABLE("Messages", "Pins written"));
    return true;
}

namespace {

std::optional<int> deviceHeadOfCurrentPin(Session& session)
{
    const int current = session.config.CurrentPin;
    bool answered = false;
    const auto head = readDeviceHead(session, current, answered);
    if (!head)
        session.dialogs().message("Cannot read DevicePointer from Pin " + shownPin(session, current));
    return head;
}

} // namespace

bool ReadDevice(Session& session)
{
    const auto head = deviceHeadOfCurrentPin(session);
    if (!head)
        return false;
    if (!ReadPin(session, *head))
        return false;
    // Every other pin is asked, from the head onward and round past pin 31, so that a
    // device that wraps or has a gap is read whole.
    for (int i = 1; i < kPinCount; ++i) {
        const int p = (*head + i) % kPinCount;
        bool answered = false;
        const auto memberOf = readDeviceHead(session, p, answered);
        if (!answered)
            return false;
        if (memberOf == head && !ReadPin(session, p))
            return false;
    }
    return true;
}

bool WriteDevice(Session& session)
{
    const auto head = deviceHeadOfCurrentPin(session);
    if (!head)
        return false;
    std::vector<int> members{*head};
    for (int i = 1; i < kPinCount; ++i) {
        const int p = (*head + i) % kPinCount;
        if (p + session.config.pin(p).DeviceOffset == *head)
            members.push_back(p);
    }
    if (!sendable(session, unsendablePins(session.config, members, false)))
        return false;
    for (int p : members)
        if (!WritePin(session, p))
            return false;
    return true;
}

namespace {

// Verification of one pin. Returns False with stopped = true when a request went
// unanswered or a reply could not be used; False alone for a mismatch.
bool verifyPin(Session& session, int pin, bool& stopped)
{
    Link& link = session.link;
    Report& report = session.report;
    const PinRecord& rec = session.config.pin(pin);
    KestrelReply r;
    const std::string prefix = "Pin " + shownPin(session, pin);
    bool same = true;
    auto mismatch = [&](const std::string& what) {
        report.line(prefix + what);
        same = false;
    };
    auto stop = [&] {
        report.line(kNoValidResponse);
        stopped = true;
        return false;
    };

    // The pin configuration comes first, then what ReadPin reads, in its order.
    r = link.request({kReadFlashConfig, pin});
    if (!r.valid)
        return stop();
    const int lengthField = r.length();
    if (lengthField < 3 || r.command() != kReadFlashConfig || r.item() != pin)
        return stop();
    PinRecord flash; // a cleared record, filled as ReadPinConfig(1, pin) would fill it
    storePinConfigReply(flash, 1, std::vector<int>(r.bytes.begin() + 4, r.bytes.begin() + 2 + lengthField),
                        lengthField);
    if (pinConfigBytes(flash, 1) != pinConfigBytes(rec, 1))
        mismatch(": Pinconfig does not compare");

    r = link.request({kReadLayout, pin});
    if (!r.valid || !r.is(3, kReadLayout, pin))
        return stop();
    if (r.data(0) != rec.AspectLayout) {
        mismatch(": Aspectconfig does not compare");
    } else {
        const LayoutSlots slots = layoutSlots(rec.AspectLayout);
        for (int a = 0; a < slots.aspects; ++a) {
            bool aspectSame = true;
            for (int s = 0; s < slots.steps; ++s) {
                r = link.request({kReadStep, pin, a, s});
                if (!r.valid || !r.is(9, kReadStep, pin) || r.data(0) != a || r.data(1) != s)
                    return stop();
                if (stepBytes(r) != encodeStep(session.config.step(pin, a, s)))
                    aspectSame = false;
            }
            if (!aspectSame)
                mismatch(": Aspect " + std::to_string(a) + " does not compare");
        }
    }

    r = link.request({kReadEventOn, pin});
    if (!r.valid)
        return stop();
    const int init = r.is(7, kReadEventOn, pin) ? decodeInitEntry(r.data(0)) : 0;
    if (init != rec.InitAspect)
        mismatch(": Init does not compare");

    r = link.request({kReadAddrConfig, pin});
    if (!r.valid)
        return stop();
    if (!r.is(5, kReadAddrConfig, pin)) {
        report.line("Pin Address Configuration: Invalid Response, expected 5," +
                    std::to_string(kReadAddrConfig) + "," + std::to_string(pin) + ", received " +
                    std::to_string(r.length()) + "," + std::to_string(r.command()) + "," +
                    std::to_string(r.item()));
        same = false;
    } else {
        std::optional<int> dcc, lynx, device;
        for (int i = 4; i <= 6; ++i) {
            const int b = r.bytes[i];
            if (b < 16)
                dcc = b;
            else if (b < 32)
                lynx = b & 7;
            else if (isDevicePointer(b))
                device = b & 31;
            else {
                report.line("Pin Address Configuration: Invalid Response " + std::to_string(b));
                same = false;
            }
        }
        if (dcc != 8 * rec.XDccCount + rec.DccCount)
            mismatch(": DCC Address Configuration does not compare");
        if (lynx != rec.LynxCount)
            mismatch(": Serial Address Configuration does not compare");
        if (device != (rec.DeviceOffset & 31))
            mismatch(": Device Pointer does not compare");
    }

    return same;
}

} // namespace

bool VerifyAllPins(Session& session)
{
    startVerification(session, "Start Pin Verification");
    bool result = true;
    for (int p = 0; p < kPinCount; ++p) {
        reportStep(session, p, "Verifying pin " + shownPin(session, p));
        bool stopped = false;
        if (!verifyPin(session, p, stopped))
            result = false;
        if (stopped)
            return false;
    }
    reportStep(session, kPinCount, KC_TRANSLATABLE("Messages", "Pins verified"));
    return result;
}

} // namespace kestrel
