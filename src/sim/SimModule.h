#pragma once
#include "sim/ModuleMemory.h"
#include "sim/SimFraming.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace kestrel::sim {

// A request as the module sees it, whichever route brought it.
struct KestrelRequest {
    bool bidirectional = true;            // header bit 5: the sender waits for a reply
    std::optional<std::uint8_t> xaddress; // eXtended address byte, when the header had bit 4
    Bytes data;                           // command, item or pin, parameters (7-bit values)
};

// A reply before framing.
struct KestrelReply {
    int address = 0;                      // bus address the reply claims to come from
    std::optional<std::uint8_t> xaddress; // echoed when the request carried one
    Bytes data;                           // echo of command and item or pin, then values
};

// How a refused command is (mis)answered, for the "Function not supported" paths.
enum class Refusal {
    NoReply,     // the reply is suppressed
    WrongEcho,   // the first data byte (the echoed command) is changed to command + 1
    WrongLength, // one extra data byte 0 is appended (the last one dropped at 15 bytes)
};

// Misbehaviour on demand. Plain values: set them directly on SimModule::faults.
struct ModuleFaults {
    int dropReplies = 0;         // the next N replies are not sent (requests still carried out)
    int corruptCopies = 0;       // the next N bus replies are preceded by a copy with a bad check byte
    Bytes garbage;               // bytes sent before every bus reply frame (bit 7 forced on)
    std::optional<int> answerAs; // replies claim to come from this bus address
    // Refused commands, keyed by (command, item or pin); item -1 refuses the command for
    // every item. A refused request is still carried out; only its reply is altered.
    std::map<std::pair<int, int>, Refusal> refused;

    void refuse(int command, Refusal how, int item = -1) { refused[{command, item}] = how; }
};

// Counters of one module.
struct ModuleStats {
    long framesAccepted = 0; // valid frames addressed to this module
    long requests = 0;       // of those, frames with at least one data byte (not the empty frame)
    long checksumErrors = 0; // frames dropped for their check byte (any address)
    long repliesSent = 0;
    long repliesDropped = 0;
    long unknownRequests = 0; // accepted frames that the module does not answer as a command
    long erases = 0;
};

// One simulated module.
//
// Addressing: bus address 0..31; the bus route reaches only 0..15 (address byte & 63 =
// address * 4 + 3), higher addresses only through the Corvid tunnel. A module built
// with an eXtended address answers a frame that carries an eXtended address byte only
// when the byte equals its stored eXtended address (general setting item 2, so a write
// of item 2 re-addresses it); a module built without one ignores every frame that
// carries an eXtended address byte. Frames without the byte are answered by both kinds.
//
// Replies: only to frames with the bidirectional bit. A read answers with the echoed
// command and item or pin followed by the values. A write that the module accepts is
// carried out whatever the bidirectional bit, and when the bit is set it is acknowledged
// with the two bytes command, item or pin (live commands: 0, sub-command). Unknown
// commands, wrong lengths, pins above 31 and refused erase confirmations are not
// answered and change nothing.
class SimModule {
public:
    explicit SimModule(int busAddress, std::optional<std::uint8_t> xaddress = std::nullopt,
                       std::array<std::uint8_t, 4> firmwareVersion = {1, 2, 3, 4});

    int busAddress() const { return busAddress_; }
    bool hasXAddress() const { return hasXAddress_; }

    // What it stores. One that is given a new memory (seeded, loaded) starts again with
    // memory().powerUp(), as after switching it off and on.
    ModuleMemory& memory() { return memory_; }
    const ModuleMemory& memory() const { return memory_; }
    // The state an erase returns to: factory values with this module's version and
    // eXtended address.
    const ModuleMemory& factoryMemory() const { return factory_; }
    void setFirmwareVersion(std::array<std::uint8_t, 4> v);

    // Bus route: takes one byte from the wire; bytes to send back are appended to out.
    void receiveByte(std::uint8_t b, Bytes& out);
    // Both routes: addressing by eXtended address, the command, the reply faults.
    // No value when the module stays silent. The bus address is matched by the caller.
    std::optional<KestrelReply> handle(const KestrelRequest& request);

    // Order in which the three tagged bytes of the 118 reply are sent: rotated left by
    // this many places from (DCC, serial, device), to exercise receivers that accept
    // any order.
    int addressConfigRotation = 0;

    // Last live command (command 0) received: sub-command, pin, value.
    struct LiveCommand {
        int subCommand = -1, pin = -1, value = -1;
    } lastLive;

    ModuleFaults faults;
    const ModuleStats& stats() const { return stats_; }

private:
    std::optional<Bytes> execute(const Bytes& d);
    void frameComplete(Bytes& out);

    int busAddress_;
    bool hasXAddress_;
    ModuleMemory memory_;
    ModuleMemory factory_;
    ModuleStats stats_;

    enum class Rx { Idle, Header, XAddress, Data, Check } rx_ = Rx::Idle;
    Bytes frame_;
    int remaining_ = 0;
};

} // namespace kestrel::sim
