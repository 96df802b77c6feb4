#pragma once
#include "sim/SimBus.h"
#include "sim/SimEndpoint.h"
#include "sim/SimFraming.h"

#include <deque>

namespace kestrel::sim {

// Interface unit types reported by the interface unit request.
enum class CorvidUnit : std::uint8_t { HubA = 2, HubB = 3, Linkbox = 10 };

// Misbehaviour of the Corvid system on demand.
struct CorvidFaults {
    int ignoreFrames = 0;   // the next N valid frames get no answer at all
    int corruptReplies = 0; // the next N answers carry a bad check byte
};

// The simulated Corvid system in front of a module bus.
//
// It answers every valid Corvid frame with exactly one frame, in the header form of its
// length (short form 40 + length below 8, long forms otherwise), with the toggle bit of
// the request. A frame with a bad check byte gets no answer.
//   poll (no data):            the oldest pending module reply, else an empty frame
//   1, 2   system version:     1, 2, x, y
//   1, 10  interface unit:     1, 10, type, x, y
//   1, 5, 16 transparent mode: 1, 5, 16; from then on bytes pass straight to the bus
//                              and the bus's bytes straight back
//   0, T, inner header, [xaddr], request: the request goes to the module with bus address
//                              T - 96 (0..31); the frame itself is answered with an empty
//                              frame and the module's reply, if any, waits for a later
//                              poll: 0, 96 + address, 96 + N (or 112 + N, xaddr), data
//   anything else:             an empty frame
class SimCorvid : public SimEndpoint {
public:
    explicit SimCorvid(SimBus& bus);

    // Four-digit versions, carried as two bytes (see encodeCorvidVersion); throws
    // std::invalid_argument for a number that cannot be carried.
    void setSystemVersion(int v);
    int systemVersion() const { return decodeCorvidVersion(systemX_, systemY_); }
    void setUnit(CorvidUnit type, int version);
    // The two version bytes sent as they are, for numbers the digit form cannot carry
    // exactly (the nearest below 1020 is 1017, for instance).
    void setSystemVersionBytes(std::uint8_t x, std::uint8_t y)
    {
        systemX_ = x & 127;
        systemY_ = y & 127;
    }
    void setUnitVersionBytes(std::uint8_t x, std::uint8_t y)
    {
        unitX_ = x & 127;
        unitY_ = y & 127;
    }
    int unitVersion() const { return decodeCorvidVersion(unitX_, unitY_); }
    // Unit type byte sent as it is (to try types the client does not know).
    void setUnitType(std::uint8_t type) { unitType_ = type; }
    // A module reply is handed out by the n-th poll after its request (default 1).
    void setReplyDelayPolls(int n) { replyDelayPolls_ = n < 1 ? 1 : n; }

    bool transparent() const { return transparent_; }
    int transparentRequests() const { return transparentRequests_; }
    std::size_t pendingReplies() const { return pending_.size(); }
    long framesAnswered() const { return framesAnswered_; }
    long checksumErrors() const { return checksumErrors_; }
    long polls() const { return polls_; }

    CorvidFaults faults;

    void write(std::uint8_t b) override;
    std::size_t available() const override { return out_.size(); }
    int read() override;
    // Exchanges: Corvid frames answered, plus the bus exchanges in transparent mode.
    const WireStats& stats() const override { return stats_; }

private:
    void frameComplete();
    void answer(const Bytes& data, bool toggle);
    void tunnel(const Bytes& data);

    SimBus& bus_;
    std::uint8_t systemX_ = 0, systemY_ = 0;
    std::uint8_t unitType_ = static_cast<std::uint8_t>(CorvidUnit::HubA);
    std::uint8_t unitX_ = 0, unitY_ = 0;
    int replyDelayPolls_ = 1;
    bool transparent_ = false;
    int transparentRequests_ = 0;
    long framesAnswered_ = 0, checksumErrors_ = 0, polls_ = 0;
    long busExchangesBefore_ = 0; // bus exchanges before transparent mode began

    struct Pending {
        int pollsToWait;
        Bytes data;
    };
    std::deque<Pending> pending_;

    bool receiving_ = false;
    std::size_t remaining_ = 0;
    Bytes frame_;
    std::deque<std::uint8_t> out_;
    WireStats stats_;
};

} // namespace kestrel::sim
