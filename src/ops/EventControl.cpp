#include "ops/EventControl.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "ops/GeneralCommands.h"
#include "ops/SendCheck.h"

#include <algorithm>
#include <string>

namespace kestrel {

namespace {

constexpr int kNoAction = 15;

struct SideInfo {
    int readCommand;
    int writeCommand;
    int replyLength;
    int firstSlot; // index in ReplyBuffer of slot 0
    const char* name;
};

// The Event-On reply carries one byte more (the initial aspect) before its slots.
const SideInfo& info(EventSide side)
{
    static const SideInfo on{kReadEventOn, kWriteInitOrEventOn, 7, 5, "Event-On"};
    static const SideInfo off{kReadEventOff, kWriteEventOff, 6, 4, "Event-Off"};
    return side == EventSide::On ? on : off;
}

std::array<std::int16_t, 5>& entries(Session& s, EventSide side, int pin)
{
    auto& e = s.config.events(pin);
    return side == EventSide::On ? e.OnEvent : e.OffEvent;
}

std::string notSupported(EventSide side)
{
    return std::string("Read ") + info(side).name + ": Function not supported by Device";
}

// Reads one pin's slots of one side; `slots` is filled only for EventRead::Ok.
EventRead readSlots(Session& s, EventSide side, int pin, std::array<int, kEventSlots>& slots)
{
    const auto& si = info(side);
    const KestrelReply r = s.link.request({si.readCommand, pin});
    if (!r.valid)
        return EventRead::NoReply;
    if (!r.is(si.replyLength, si.readCommand, pin))
        return EventRead::WrongReply;
    for (int i = 0; i < kEventSlots; ++i)
        slots[i] = decodeEventSlot(i, r.bytes[si.firstSlot + i]);
    return EventRead::Ok;
}

void reportStep(Session& s, int done, int total, const std::string& what) { s.reportStep(done, total, what); }

// Reads all 32 pins of one side; false only when a request got no valid reply.
bool readSide(Session& s, EventSide side, int progressOffset)
{
    for (int p = 0; p < kPinCount; ++p) {
        reportStep(s, progressOffset + p, 2 * kPinCount, std::string("Reading ") + info(side).name);
        const EventRead r = ReadPinEvents(s, side, p);
        if (r == EventRead::NoReply)
            return false;
        if (r == EventRead::WrongReply) {
            s.dialogs().message(notSupported(side), Icon::None);
            break;
        }
    }
    return true;
}

bool writeSide(Session& s, EventSide side, int progressOffset)
{
    for (int p = 0; p < kPinCount; ++p) {
        reportStep(s, progressOffset + p, 2 * kPinCount, std::string("Writing ") + info(side).name);
        if (!WritePinEvents(s, side, p))
            return false;
    }
    return true;
}

// Verifies one side of all pins; false when anything differed or could not be read,
// `ended` set when a request got no valid reply.
bool verifySide(Session& s, EventSide side, bool& ended)
{
    bool ok = true;
    const int base = s.config.NumberingBase;
    for (int p = 0; p < kPinCount; ++p) {
        reportStep(s, p, kPinCount, std::string("Verifying ") + info(side).name);
        std::array<int, kEventSlots> read{};
        const EventRead r = readSlots(s, side, p, read);
        if (r == EventRead::NoReply) {
            ended = true;
            return false;
        }
        if (r == EventRead::WrongReply) {
            s.report.line(notSupported(side));
            return false;
        }
        const auto& configured = entries(s, side, p);
        for (int i = 0; i < kEventSlots; ++i) {
            if (configured[i] == read[i])
                continue;
            s.report.line(std::string(info(side).name) + "(" + std::to_string(i) + ") for pin " +
                          std::to_string(p + base) +
                          " does not compare: " + "Configured Action = " + std::to_string(configured[i]) +
                          ", " + "Kestrel Reply = " + std::to_string(read[i]));
            ok = false;
        }
    }
    return ok;
}

void pace(Session& s)
{
    if (!s.link.settings.CheckKestrelBD)
        s.link.clock().sleepMs(kPacingMs);
}

} // namespace

int encodeEventSlot(int slot, int action) { return slot * 16 + (action == -1 ? kNoAction : action); }

int decodeEventSlot(int slot, int byte)
{
    if ((byte >> 4) != slot || (byte & 15) == kNoAction)
        return -1;
    return byte & 15;
}

EventRead ReadPinEvents(Session& session, EventSide side, int pin)
{
    std::array<int, kEventSlots> slots{};
    const EventRead r = readSlots(session, side, pin, slots);
    if (r == EventRead::Ok) {
        auto& e = entries(session, side, pin);
        for (int i = 0; i < kEventSlots; ++i)
            e[i] = static_cast<std::int16_t>(slots[i]);
    }
    return r;
}

bool WritePinEvents(Session& session, EventSide side, int pin)
{
    if (!sendable(session, unsendableEvents(session.config, {pin})))
        return false;
    const auto& e = entries(session, side, pin);
    const bool ok =
        session.link.send({info(side).writeCommand, pin, encodeEventSlot(0, e[0]), encodeEventSlot(1, e[1]),
                           encodeEventSlot(2, e[2]), encodeEventSlot(3, e[3])});
    if (ok)
        pace(session);
    return ok;
}

bool ReadAllEvents(Session& session)
{
    session.link.setBidirectional(true);
    return readSide(session, EventSide::On, 0) && readSide(session, EventSide::Off, kPinCount);
}

bool WriteAllEvents(Session& session)
{
    if (!sendable(session, unsendableEvents(session.config, allPins())))
        return false;
    return writeSide(session, EventSide::On, 0) && writeSide(session, EventSide::Off, kPinCount);
}

bool ReadEnableMaps(Session& session) { return readFamily(session, GeneralFamily::EventEnable); }

bool WriteEnableMaps(Session& session) { return writeFamily(session, GeneralFamily::EventEnable); }

bool VerifyEventControl(Session& session)
{
    auto& report = session.report;
    startVerification(session, "Start EC Verification");

    bool ok = true;
    bool ended = false;
    for (EventSide side : {EventSide::On, EventSide::Off}) {
        if (!verifySide(session, side, ended))
            ok = false;
        if (ended)
            return false;
    }

    const KestrelReply reply = session.link.request({kGeneralRead, kItemEventEnable});
    if (!reply.valid)
        return false;
    if (const std::string bad = verifierReplyText(reply, kItemEventEnable); !bad.empty()) {
        report.line(bad);
        return false;
    }
    const auto& r = reply.bytes;
    if (r[4] != enableMapOn(session.general)) {
        report.line("ECInit: ON-mask does not compare");
        ok = false;
    }
    if (r[5] != enableMapOff(session.general)) {
        report.line("ECInit: OFF-mask does not compare");
        ok = false;
    }
    return ok;
}

} // namespace kestrel
