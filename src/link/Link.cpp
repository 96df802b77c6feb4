#include "link/Link.h"
#include "base/Wire.h"

#include <algorithm>

#include "base/ProgramFault.h"
#include "base/Text.h"

#include <cmath>

namespace kestrel {

namespace {

// The port's hint of how many bytes are awaited is cleared when a reply wait ends.
struct ExpectNothingAfter {
    SerialPort& port;
    explicit ExpectNothingAfter(SerialPort& p) : port(p) {}
    ExpectNothingAfter(const ExpectNothingAfter&) = delete;
    ExpectNothingAfter& operator=(const ExpectNothingAfter&) = delete;
    ~ExpectNothingAfter() { port.expectBytes(0); }
};
constexpr int kWakeUp[] = {0, 0, 0, 255, 255, 255, 170, 170, 170};
constexpr int kStalePolls = 8;          // polls at most to clear what a cut-short tunnel exchange left
constexpr int kLongestCorvidReply = 18; // data bytes; the checksum then sits at ReplyBuffer[19]

// The bytes given at the front of an array of N, zeros after them; more than N are a
// program fault, told as "<caller>: more than N data bytes given".
template <std::size_t N> std::array<int, N> toArray(std::initializer_list<int> bytes, const char* caller)
{
    if (bytes.size() > N)
        throw ProgramFault(std::string(caller) + ": more than " + std::to_string(N) + " data bytes given");
    std::array<int, N> out{};
    std::copy(bytes.begin(), bytes.end(), out.begin());
    return out;
}

// A data byte travels as 128 + value; a value outside 0..127 would overflow the byte.
int dataByte(int value)
{
    if (value < 0 || value > 127)
        throw ProgramFault("Overflow: data byte " + std::to_string(value) + " is outside 0..127");
    return 128 + value;
}
} // namespace

Link::Link(SerialPort& port, Clock& clock, UserDialogs& dialogs) : serial(port), time(clock), ui(dialogs) {}

int Link::addressByte() const
{
    const int a = settings.TargetAddress * 4 + 3;
    if (a < 0 || a > 127)
        throw ProgramFault("Overflow: module address " + std::to_string(settings.TargetAddress));
    return a;
}

void Link::setBidirectional(bool on)
{
    if (settings.CheckKestrelBD == on)
        return;
    settings.CheckKestrelBD = on;
    if (onSettingsChanged)
        onSettingsChanged();
}

double Link::remaining(double start)
{
    const double now = time.secondsSinceMidnight();
    if (now < start) // midnight passed: the wait ends
        return 0;
    return replyTimeout - (now - start);
}

bool Link::portLost()
{
    // The port went away under us (an adapter pulled out): say so once, close it,
    // and let the caller fail like any step without a reply.
    if (!lostReported)
        ui.message("Communications port lost: " + serial.selected() +
                       (serial.errorString().empty() ? std::string() : " (" + serial.errorString() + ")"),
                   Icon::Warning);
    lostReported = true;
    tunnelStale = true;
    serial.close();
    state.LinkToggle = 128;
    endFrame(FrameDirection::Out);
    endFrame(FrameDirection::In);
    return false;
}

void Link::endFrame(FrameDirection direction)
{
    auto& bytes = direction == FrameDirection::Out ? outFrame : inFrame;
    if (bytes.empty())
        return;
    const std::vector<int> frame = std::move(bytes);
    bytes.clear();
    if (onFrame)
        onFrame(direction, wireRoute, frame);
}

bool Link::writeByte(int value)
{
    if (value < 0 || value > 255) {
        endFrame(FrameDirection::Out); // the frame cut short, not prefixed to the next one
        throw ProgramFault("Overflow: byte value " + std::to_string(value));
    }
    if (!serial.writeByte(static_cast<std::uint8_t>(value)))
        return portLost();
    ++stats.bytesOut;
    ++unsentOnWire;
    if (onFrame)
        outFrame.push_back(value);
    return true;
}

bool Link::flushFrame()
{
    if (!serial.flush())
        return portLost();
    return true;
}

int Link::takeUnsent()
{
    const int n = unsentOnWire;
    unsentOnWire = 0;
    return n;
}

void Link::noteExchange()
{
    ++stats.exchanges;
    if (progress)
        progress->exchanged();
}

bool Link::wakeUp()
{
    wireRoute = FrameRoute::Direct;
    for (int b : kWakeUp)
        if (!writeByte(b))
            return false;
    endFrame(FrameDirection::Out);
    return true;
}

bool Link::SendKestrelMessage(bool expectReply, int size, std::initializer_list<int> bytes)
{
    return SendKestrelMessage(expectReply, size, toArray<15>(bytes, "SendKestrelMessage"));
}

namespace {
std::array<int, 15> fromVector(const std::vector<int>& bytes)
{
    if (bytes.size() > 15)
        throw ProgramFault("SendKestrelMessage: more than 15 data bytes given");
    std::array<int, 15> out{};
    std::copy(bytes.begin(), bytes.end(), out.begin());
    return out;
}
} // namespace

KestrelReply Link::request(const std::vector<int>& bytes)
{
    if (recording)
        throw ProgramFault("a request while the writes are only being listed");
    lastSent = SendKestrelMessage(true, static_cast<int>(bytes.size()), fromVector(bytes));
    if (onExchange)
        onExchange(bytes, true, state.ReplyValid);
    return lastReply();
}

bool Link::send(const std::vector<int>& bytes)
{
    if (recording) {
        fromVector(bytes); // the same limit as on the wire
        recording->push_back(bytes);
        return true;
    }
    replyMissing = false;
    const bool ok = SendKestrelMessage(false, static_cast<int>(bytes.size()), fromVector(bytes));
    // A write whose reply went missing may not have arrived: the rest goes out one-way, but
    // what the module holds is no longer known.
    if (onExchange)
        onExchange(bytes, false, ok && !replyMissing);
    return ok;
}

bool Link::SendKestrelMessage(bool expectReply, int size, const std::array<int, 15>& b)
{
    state.ReplyValid = false;
    if (size > 15) {
        ui.message("SendKestrelMessage: Message Size Overrun, size = " + std::to_string(size));
        return false;
    }
    if (size < 0)
        throw ProgramFault("SendKestrelMessage: negative size " + std::to_string(size));
    if (progress && progress->cancelled())
        return false;
    if (!serial.isOpen()) {
        ui.message("Select communications port");
        return false;
    }
    lostReported = false;
    // Every data byte is checked before the first byte goes out, so a caller error
    // never leaves half a frame on the wire.
    for (int i = 0; i < size; ++i)
        dataByte(b[i]);

    if (settings.CheckCorvid) {
        const bool ok = sendTunnelled(expectReply, size, b);
        noteExchange();
        return ok;
    }

    const int a = addressByte();
    wireRoute = FrameRoute::Direct;
    if (state.LinkToggle == 128) {
        if (!wakeUp())
            return false;
        // The empty frame: address byte without toggle, header 192 (size 0), checksum.
        if (!writeByte(a) || !writeByte(192) || !writeByte(192 - a))
            return false;
        endFrame(FrameDirection::Out);
        state.LinkToggle = 64;
    }

    const int first = state.LinkToggle + a;
    const int header =
        128 + 64 + 32 * (settings.CheckKestrelBD ? 1 : 0) + 16 * (settings.CheckXaddress ? 1 : 0) + size;
    FrameChecksum sum(first);
    if (!writeByte(first) || !writeByte(header))
        return false;
    sum.add(header);
    if (settings.CheckXaddress) {
        const int x = 128 + settings.TargetXAddress;
        if (settings.TargetXAddress < 0 || settings.TargetXAddress > 127)
            throw ProgramFault("Overflow: eXtended address " + std::to_string(settings.TargetXAddress));
        if (!writeByte(x))
            return false;
        sum.add(x);
    }
    for (int i = 0; i < size; ++i) {
        const int d = dataByte(b[i]);
        if (!writeByte(d))
            return false;
        sum.add(d);
    }
    if (!writeByte(sum.value()))
        return false;
    endFrame(FrameDirection::Out);
    if (!flushFrame())
        return false;

    if (settings.CheckKestrelBD) {
        if (!receiveDirect()) {
            // The port went away while the reply was awaited: that has been said once;
            // the call fails like one that could not send, so that the job ends here
            // instead of going on to "Select communications port" at its next request.
            if (!serial.isOpen())
                return false;
            replyMissing = true;
            if (quietMissingReply) {
                state.LinkToggle = 128;
                noteExchange();
                return true;
            }
            ui.message("No response received, resetting bidirectional communication");
            setBidirectional(false);
            if (missingReplyFails) {
                state.LinkToggle = (state.LinkToggle + 64) % 128;
                noteExchange();
                return false;
            }
        } else {
            const int n = state.ReplyBuffer[1] & 15;
            std::string text = "[" + hexUpper(state.ReplyBuffer[0]) + "]";
            for (int i = 1; i <= n + 1; ++i)
                text += " [" + hexUpper(state.ReplyBuffer[i]) + "]";
            TextResponse = text;
            if (onTextResponse)
                onTextResponse(TextResponse);
            if (state.ReplyBuffer[0] == state.LinkToggle + a && state.ReplyBuffer[1] >= 96) {
                state.ReplyValid = true;
            } else {
                ui.message("Invalid response received, \r\nReceived: Addr = " +
                           std::to_string(state.ReplyBuffer[0]) +
                           " Header = " + std::to_string(state.ReplyBuffer[1]) +
                           "\r\nExpected: Addr = " + std::to_string(a) + " Header > 95 ");
            }
        }
    }
    state.LinkToggle = (state.LinkToggle + 64) % 128;
    noteExchange();
    return true;
}

int Link::replyByte(double start, const std::function<int()>& expected)
{
    for (;;) {
        serial.expectBytes(expected());
        if (serial.bytesWaiting() <= 0) {
            const double left = remaining(start);
            if (left <= 0)
                return kTimeUp;
            if (!serial.isOpen()) {
                portLost();
                return kPortGone;
            }
            serial.waitForBytes(static_cast<int>(std::ceil(left * 1000.0)));
            continue;
        }
        const int b = serial.readByte();
        if (b < 0)
            continue;
        ++stats.bytesIn;
        if (b < 128) // a frame starts
            endFrame(FrameDirection::In);
        keepIn(b);
        return b;
    }
}

bool Link::receiveDirect()
{
    const double start = time.secondsSinceMidnight();
    int p = 0, r = 0, s = 0;
    auto& buf = state.ReplyBuffer;
    const ExpectNothingAfter hintReset{serial};
    // Before the reply can start, the request itself has to leave on the wire.
    int outgoing = takeUnsent();
    for (;;) {
        // What the wire still has to carry before the frame can be complete: the request,
        // then at least address, header and checksum; once the header is in, the data, the
        // eXtended address byte and the checksum it announced.
        const int b = replyByte(start, [&] {
            const int n = p == 0 ? outgoing + 3 : p == 1 ? 2 : r + 1 + (p == 50 ? 1 : 0);
            outgoing = 0;
            return n;
        });
        if (b == kTimeUp)
            endFrame(FrameDirection::In);
        if (b < 0)
            return false;
        if (b < 128) { // a frame starts, also in the middle of another one
            buf[0] = b;
            s = b;
            p = 1;
            r = 0;
            continue;
        }
        if (p == 0)
            continue;
        s += b & 127;
        if (p == 1) {
            buf[1] = b & 127;
            r = b & 15;
            p = (b & 16) ? 50 : 2;
        } else if (p == 50) {
            const int x = b & 127;
            if (settings.CheckXaddress && x != settings.TargetXAddress)
                ui.message("Incorrect eXtended Address byte \r\nReceived " + std::to_string(x) +
                           " Expected " + std::to_string(settings.TargetXAddress));
            else if (!settings.CheckXaddress)
                ui.message("Unexpected eXtended Address Byte " + std::to_string(x));
            p = 2;
        } else if (r > 0) {
            buf[p] = b & 127;
            ++p;
            --r;
        } else {
            endFrame(FrameDirection::In);
            if (s % 128 == 0)
                return true;
            p = 0;
            r = 0;
        }
    }
}

bool Link::sendTunnelled(bool expectReply, int size, const std::array<int, 15>& b)
{
    const int t = settings.TargetAddress + kTunnelBase;
    std::array<int, 19> data{};
    int n = 0;
    data[n++] = 0;
    data[n++] = t;
    if (settings.CheckXaddress) {
        data[n++] = kTunnelBase + kTunnelExtendedFlag;
        data[n++] = settings.TargetXAddress;
    } else {
        data[n++] = kTunnelBase;
    }
    for (int i = 0; i < size; ++i)
        data[n++] = b[i];
    if (tunnelStale) {
        // An exchange was cut short (the port lost, or a Corvid frame that failed): the
        // system may still hold the module's reply to it. Poll that away first, so that
        // it is not taken for the reply to this request.
        for (int i = 0; i < kStalePolls; ++i) {
            if (!CorvidExchange(0))
                return false;
            if (state.ReplyBuffer[0] == 0) // an empty frame: nothing is left
                break;
        }
        tunnelStale = false;
    }
    state.ReplyValid = CorvidExchange(n, data);
    if (!state.ReplyValid) {
        tunnelStale = true;
        return false;
    }
    // A write is answered by one poll; the module's acknowledgement is not waited for,
    // unless a missing reply is to fail the call and replies are wanted (the module then
    // acknowledges the write as it answers a request; nothing answers an erase, sent
    // with "Bidirectional Comm." unchecked).
    if (!expectReply && !(missingReplyFails && settings.CheckKestrelBD)) {
        state.ReplyValid = CorvidExchange(0);
        tunnelStale = !state.ReplyValid;
        return state.ReplyValid;
    }
    auto& buf = state.ReplyBuffer;
    const double start = time.secondsSinceMidnight();
    bool taken = false;
    while (state.ReplyValid) {
        if (buf[1] == 0 && buf[0] >= 4 && buf[2] == t) {
            taken = true;
            buf[0] = (buf[2] & 31) * 4 + 3;
            buf[1] = 0;
            if (buf[3] & 16) {
                if (settings.CheckXaddress && (buf[4] & 127) == settings.TargetXAddress) {
                    buf[1] = buf[3];
                    for (int i = 2; i <= 16; ++i)
                        buf[i] = buf[i + 3];
                } else if (settings.CheckXaddress) {
                    ui.message("Incorrect eXtended Address byte \r\nReceived " +
                               std::to_string(buf[4] & 127) + " Expected " +
                               std::to_string(settings.TargetXAddress));
                } else {
                    ui.message("Unexpected eXtended Address Byte " + std::to_string(buf[4] & 127));
                }
            } else {
                buf[1] = buf[3];
                for (int i = 2; i <= 16; ++i)
                    buf[i] = buf[i + 2];
            }
            break;
        }
        if (remaining(start) <= 0)
            break;
        state.ReplyValid = CorvidExchange(0);
    }
    // The Corvid system answered every poll, but the module never did: a time-out that
    // leaves the last poll's frame, which the callers reject by its size, unless a missing
    // reply fails the call.
    // Under quietMissingReply the call went through all the same, only without a reply.
    const bool quietlyMissing = state.ReplyValid && !taken && quietMissingReply;
    if (state.ReplyValid && !taken && (missingReplyFails || quietMissingReply)) {
        if (!quietMissingReply)
            ui.message("No response received from the module through the Corvid system");
        state.ReplyValid = false;
        replyMissing = true;
    }
    tunnelStale = !state.ReplyValid;
    return state.ReplyValid || quietlyMissing;
}

bool Link::CorvidExchange(int length, std::initializer_list<int> data)
{
    return CorvidExchange(length, toArray<19>(data, "CorvidExchange"));
}

bool Link::CorvidExchange(int length, const std::array<int, 19>& data)
{
    if (length < 0 || length > 19)
        throw ProgramFault("CorvidExchange: length " + std::to_string(length));
    for (int i = 0; i < length; ++i)
        dataByte(data[i]);
    wireRoute = FrameRoute::Corvid;
    while (serial.bytesWaiting() > 0) {
        const int b = serial.readByte();
        if (b < 0)
            break;
        keepIn(b);
    }
    endFrame(FrameDirection::In);
    const int toggle = 64 * state.CorvidToggle;
    int header;
    if (length < 8)
        header = 40 + length + toggle;
    else if (length < 16)
        header = (length - 8) + toggle;
    else
        header = length + toggle;
    std::string log = "> " + hexUpper(header);
    FrameChecksum sum(header);
    if (!writeByte(header))
        return false;
    for (int i = 0; i < length; ++i) {
        const int d = dataByte(data[i]);
        if (!writeByte(d))
            return false;
        sum.add(d);
        log += hexUpper(data[i]);
    }
    const int check = sum.value();
    if (!writeByte(check))
        return false;
    endFrame(FrameDirection::Out);
    if (!flushFrame())
        return false;
    log += hexUpper(check & 127);
    appendCorvidLog(log);
    state.CorvidToggle = 1 - state.CorvidToggle;
    if (CorvidReceive().empty()) {
        if (serial.isOpen())
            ui.message("No answer from Corvid", Icon::Warning);
        return false;
    }
    return true;
}

std::string Link::CorvidReceive()
{
    auto& buf = state.ReplyBuffer;
    for (int i = 0; i <= 19; ++i)
        buf[i] = 0;
    std::string log;
    std::string result;
    int position = 0; // 0 = waiting for a header
    int length = 0;
    bool flagA = false, flagB = false;
    const double start = time.secondsSinceMidnight();
    const ExpectNothingAfter hintReset{serial};
    int outgoing = takeUnsent();
    for (;;) {
        const int b = replyByte(start, [&] {
            const int n = position == 0 ? outgoing + 2 : length + 2 - position;
            outgoing = 0;
            return n;
        });
        if (b < 0)
            break;
        if (b < 128) {
            log = "< " + hexUpper(b);
            buf[0] = b;
            for (int i = 1; i <= 19; ++i)
                buf[i] = 0;
            position = 1;
            if (b & 8) {
                length = b & 7;
                flagA = (b & 16) != 0;
                flagB = (b & 32) != 0;
            } else {
                length = 8 + 8 * ((b >> 4) & 1) + (b & 7);
            }
            continue;
        }
        if (position == 0)
            continue;
        // A frame of 19 data bytes or more does not fit the reply buffer with its checksum:
        // it is received to its end and then refused like a bad checksum.
        if (position <= kLongestCorvidReply + 1)
            buf[position] = b & 127;
        log += hexUpper(b & 127);
        if (position++ <= length)
            continue;
        // That byte was the checksum: the frame is complete.
        endFrame(FrameDirection::In);
        int total = 0;
        for (int i = 0; i <= 19; ++i)
            total += buf[i];
        if (length <= kLongestCorvidReply && total % 128 == 0) {
            state.CorvidFlagA = flagA;
            state.CorvidFlagB = flagB;
            buf[0] = length;
            result = log;
        } else {
            ui.message("Checksum Error\r\nSize = " + std::to_string(length) + log);
            buf[0] = 0;
        }
        break;
    }
    endFrame(FrameDirection::In);
    appendCorvidLog(log);
    return result;
}

void Link::appendCorvidLog(const std::string& line)
{
    txtCorvidCommunication += line + "\r\n";
    if (onCorvidLog)
        onCorvidLog(line);
}

void Link::SendLynxMessage(int first, int d1, int d2, int d3)
{
    if (!serial.isOpen()) {
        ui.message("Select communications port");
        return;
    }
    if (first < 0 || first > 127)
        throw ProgramFault("Overflow: first byte " + std::to_string(first));
    dataByte(d1);
    dataByte(d2);
    dataByte(d3);
    lostReported = false;
    if (settings.CheckCorvid) {
        CorvidExchange(5, {0, first / 4 + kTunnelBase, d1, d2, d3});
        noteExchange();
        return;
    }
    wireRoute = FrameRoute::Direct;
    if (state.LinkToggle == 128) {
        // Burst, then the empty legacy frame: First, 128, 128, 128 and its checksum.
        FrameChecksum empty(first);
        if (!wakeUp() || !writeByte(first))
            return;
        for (int i = 0; i < 3; ++i) {
            writeByte(128);
            empty.add(128);
        }
        writeByte(empty.value());
        endFrame(FrameDirection::Out);
        state.LinkToggle = 64;
    }
    FrameChecksum sum(first);
    writeByte(first);
    for (int d : {d1, d2, d3}) {
        writeByte(128 + d);
        sum.add(128 + d);
    }
    writeByte(sum.value());
    endFrame(FrameDirection::Out);
    flushFrame();
    noteExchange();
}

bool Link::GetVersion()
{
    VersionText = KC_TRANSLATABLE("GeneralSettings", "Unknown");
    setBidirectional(true);
    SendKestrelMessage(true, 2, {kGeneralRead, kItemVersionErase});
    bool ok = false;
    if (state.ReplyValid) {
        const auto& r = state.ReplyBuffer;
        if ((r[1] & 15) != generalReplyLength(kItemVersionErase))
            ui.message("GetVersion: No valid response, size <> 6");
        else if (r[2] != kGeneralRead || r[3] != kItemVersionErase)
            ui.message("GetVersion: No valid response");
        else {
            VersionText = std::to_string(r[4]) + "." + std::to_string(r[5]) + "." + std::to_string(r[6]) +
                          "." + std::to_string(r[7]);
            ok = true;
        }
    }
    return ok;
}

} // namespace kestrel
