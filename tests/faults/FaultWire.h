#pragma once
// The wire to the simulated module (direct or through the Corvid system) with one fault let
// loose on the n-th request whose data begin with a given prefix. It is armed while that request is
// being written, so the simulator's fault switches hit its reply and nothing else; the faults the
// simulator has no switch for (the direct reply's only copy corrupted, garbage before a Corvid
// frame, the port vanishing) are done here.
#include "sim/SimBus.h"
#include "sim/SimCorvid.h"
#include "sim/SimPort.h"
#include "support/Frames.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace kestrel::test::faults {

enum class Fault {
    None,
    NoReply,           // the module stays silent (it still carries the request out)
    CorruptNoGoodCopy, // the reply's check byte is wrong and no good copy follows
    CorruptThenGood,   // a copy with a wrong check byte, then the good reply (direct route)
    Garbage,           // bytes with bit 7 set before the reply
    WrongEcho,         // the reply echoes another command
    WrongLength,       // the reply carries one data byte too many
    OtherAddress,      // the reply claims to come from bus address 5
    CorvidSilent,      // the Corvid system does not answer the request frame (tunnel only)
    PortGoneWaiting,   // the port disappears once the request is written, before the reply
    PortGoneWriting,   // the port disappears while the request is being written
};

inline const char* faultName(Fault f)
{
    static const char* const names[] = {
        "None",        "NoReply",      "CorruptNoGoodCopy", "CorruptThenGood", "Garbage",        "WrongEcho",
        "WrongLength", "OtherAddress", "CorvidSilent",      "PortGoneWaiting", "PortGoneWriting"};
    return names[static_cast<int>(f)];
}

// The bus address that a reply claims under Fault::OtherAddress.
constexpr int kOtherAddress = 5;

class FaultWire : public sim::SimEndpoint {
public:
    FaultWire(sim::SimBus& bus, sim::SimCorvid& corvid, sim::SimModule& module)
        : bus(bus), corvid(corvid), module(module)
    {
    }

    bool tunnel = false;          // bytes go to the Corvid system instead of the bus
    sim::SimPort* port = nullptr; // the port that vanishes under the PortGone faults

    void arm(Fault f, std::vector<int> requestPrefix, int occurrence = 1)
    {
        fault = f;
        prefix = std::move(requestPrefix);
        wanted = occurrence;
        seen = 0;
        hits = 0;
    }

    int hits = 0;      // requests the fault was let loose on (0 or 1)
    int hitFirst = -1; // first byte of that request frame (direct: address byte with toggle;
                       // tunnel: the Corvid header)

    void write(std::uint8_t b) override
    {
        const bool ends = parse(b);
        const std::size_t before = out.size();
        inner().write(b);
        drain();
        if (ends && hitInThisFrame)
            frameHit(before);
    }
    std::size_t available() const override { return out.size(); }
    int read() override
    {
        if (out.empty())
            return -1;
        const int b = out.front();
        out.pop_front();
        return b;
    }
    const sim::WireStats& stats() const override { return tunnel ? corvid.stats() : bus.stats(); }

private:
    // Follows the client's frames; true when b ends one (its check byte).
    bool parse(std::uint8_t b)
    {
        frames.corvid = tunnel;
        const std::size_t had = frames.data.size();
        const bool ends = frames.push(b);
        if (b < 128)
            hitInThisFrame = false;
        else if (frames.data.size() > had)
            matchRequest();
        return ends;
    }

    // The module's request inside the frame so far (the tunnel wraps it as 0, T, inner
    // header, [eXtended address], request).
    std::vector<int> request() const
    {
        const std::vector<int>& data = frames.data;
        if (!tunnel)
            return data;
        if (data.size() < 3 || data[0] != 0)
            return {};
        const std::size_t from = (data[2] & 16) ? 4 : 3;
        if (data.size() < from)
            return {};
        return std::vector<int>(data.begin() + static_cast<std::ptrdiff_t>(from), data.end());
    }

    void matchRequest()
    {
        if (fault == Fault::None || hits > 0 || prefix.empty())
            return;
        if (request() != prefix)
            return;
        if (++seen != wanted)
            return;
        ++hits;
        hitInThisFrame = true;
        hitFirst = frames.first;
        auto& mf = module.faults;
        switch (fault) {
        case Fault::NoReply:
            mf.dropReplies = 1;
            break;
        case Fault::CorruptNoGoodCopy:
            if (tunnel)
                corvid.faults.corruptReplies = 1;
            break;
        case Fault::CorruptThenGood:
            mf.corruptCopies = 1;
            break;
        case Fault::Garbage:
            if (!tunnel)
                mf.garbage = {0x80, 0xFF, 0x55, 0xAA};
            break;
        case Fault::WrongEcho:
            mf.refuse(prefix[0], sim::Refusal::WrongEcho, prefix.size() > 1 ? prefix[1] : -1);
            break;
        case Fault::WrongLength:
            mf.refuse(prefix[0], sim::Refusal::WrongLength, prefix.size() > 1 ? prefix[1] : -1);
            break;
        case Fault::OtherAddress:
            mf.answerAs = kOtherAddress;
            break;
        case Fault::CorvidSilent:
            corvid.faults.ignoreFrames = 1;
            break;
        case Fault::PortGoneWriting: // the rest of this frame never reaches the wire
            port->setVanished(true);
            hitInThisFrame = false;
            fault = Fault::None;
            break;
        case Fault::PortGoneWaiting:
        case Fault::None:
            break;
        }
    }

    // The request that the fault hit is complete and whatever it caused has been sent.
    void frameHit(std::size_t before)
    {
        hitInThisFrame = false;
        if (fault == Fault::CorruptNoGoodCopy && !tunnel && out.size() > before)
            out.back() ^= 1; // the check byte keeps bit 7, the sum no longer fits
        if (fault == Fault::Garbage && tunnel)
            out.insert(out.begin() + static_cast<std::ptrdiff_t>(before), {0x80, 0xFF, 0xD5, 0xAA});
        if (fault == Fault::PortGoneWaiting)
            port->setVanished(true);
        module.faults = {};
        corvid.faults = {};
        fault = Fault::None;
    }

    sim::SimEndpoint& inner() { return tunnel ? static_cast<sim::SimEndpoint&>(corvid) : bus; }
    void drain()
    {
        while (inner().available())
            out.push_back(static_cast<std::uint8_t>(inner().read()));
    }

    sim::SimBus& bus;
    sim::SimCorvid& corvid;
    sim::SimModule& module;
    std::deque<std::uint8_t> out;

    Fault fault = Fault::None;
    std::vector<int> prefix;
    int wanted = 1;
    int seen = 0;

    FrameReader frames;
    bool hitInThisFrame = false;
};

} // namespace kestrel::test::faults
