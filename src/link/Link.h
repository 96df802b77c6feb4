#pragma once
#include "base/SerialPort.h"
#include "base/Translatable.h"
#include "base/UserDialogs.h"
#include "link/Clock.h"
#include "link/Progress.h"

#include <array>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace kestrel {

// Seconds a reply is awaited (and, on the tunnel route, each answer of the Corvid system).
inline constexpr double kReplyTimeout = 2.0;

// What the user chose for the link (the check boxes and address boxes of the main window).
struct LinkSettings {
    bool CheckKestrelBD = true; // "Bidirectional Comm.": wait for and check replies
    bool CheckCorvid = false;   // "Use Corvid Tunneling"
    bool CheckXaddress = false; // "Use eXtended Addr"
    int TargetAddress = 0;      // 0..15 direct, 0..31 tunnelled
    int TargetXAddress = 0;     // 0..kExtendedAddressMax
};

// What the link remembers between calls.
struct LinkState {
    int LinkToggle = 128; // 128 = not synchronised, else 0 or 64
    int CorvidToggle = 0; // 0 or 1
    bool CorvidFlagA = false;
    bool CorvidFlagB = false;
    std::array<int, 21> ReplyBuffer{};
    bool ReplyValid = false;
};

// A reply as the module sent it, read from ReplyBuffer (which keeps its meaning for what
// shows it): the address byte, the header, and the data from the echoed command on.
struct KestrelReply {
    bool valid = false; // a reply arrived and passed the transport's checks
    bool sent = false;  // the request went out (false: no port, cancelled, a failed tunnel)
    std::array<int, 21> bytes{};

    int address() const { return bytes[0]; }
    int header() const { return bytes[1]; }
    int length() const { return bytes[1] & 15; } // bytes from the echoed command on
    int command() const { return bytes[2]; }
    int item() const { return bytes[3]; }
    // Data byte i after the echoed command and item (ReplyBuffer[4 + i]).
    int data(int i) const { return bytes[4 + static_cast<std::size_t>(i)]; }
    // The one check of a reply: `n` bytes from the command on, echoing command c and item i.
    bool echoes(int c, int i) const { return command() == c && item() == i; }
    bool is(int n, int c, int i) const { return valid && length() == n && echoes(c, i); }
};

// A whole frame on the wire, for the traffic monitor: which way it went and on which
// route (a Kestrel frame on the serial bus, or a Corvid frame).
enum class FrameDirection { Out, In };
enum class FrameRoute { Direct, Corvid };

// Counters for benchmarks and the curious.
struct LinkStats {
    long exchanges = 0;
    long bytesOut = 0;
    long bytesIn = 0;
};

// The one transport to a Kestrel module: direct on the serial bus, or tunnelled
// through the Corvid system. Every call blocks until its reply or its time-out.
class Link {
public:
    Link(SerialPort& port, Clock& clock, UserDialogs& dialogs);

    LinkSettings settings;
    LinkState state;
    LinkStats stats;
    // When set, a reply that goes missing fails the call, so that a job stops there
    // instead of going on one-way: on the direct route after the message, with
    // CheckKestrelBD unchecked as always; on the tunnel route, where every request and
    // write then waits for the module's reply, after a message of its own. The batch tool
    // sets it when it asked for replies.
    bool missingReplyFails = false;
    // The last send's reply was awaited and did not come.
    bool replyMissing = false;
    // Seconds a reply is awaited. Only the bus scan shortens it, for its own exchanges.
    double replyTimeout = kReplyTimeout;
    // While set (the bus scan, asking addresses where no module may be), a reply that does
    // not come is no fault: nothing is shown, "Bidirectional Comm." stays checked, the reply
    // is not valid, and the direct route goes back to the unsynchronised state, so that the
    // next frame begins with the wake-up again.
    bool quietMissingReply = false;

    SerialPort& port() { return serial; }
    Clock& clock() { return time; }
    UserDialogs& dialogs() { return ui; }
    void setProgress(Progress* p) { progress = p; }
    Progress* currentProgress() const { return progress; }

    // Observers: the last raw reply (TextResponse), each Corvid log line, and a
    // change that the link made to its own settings (CheckKestrelBD unchecked or checked).
    std::function<void(const std::string&)> onTextResponse;
    std::function<void(const std::string&)> onCorvidLog;
    std::function<void()> onSettingsChanged;
    // Every frame written (the wake-up burst counts as one) and every frame read, byte for
    // byte as on the wire. A received frame is reported once its checksum byte arrived,
    // before the checksum is judged, so that a frame that fails it is reported too; bytes
    // read outside a whole frame (a frame cut short, stray bytes, what was drained before
    // a Corvid frame) are reported as one piece each. Unset, nothing is collected.
    std::function<void(FrameDirection, FrameRoute, const std::vector<int>& bytes)> onFrame;
    // Every request and send once it has ended: its bytes, whether a reply was awaited, and
    // whether it succeeded (the reply arrived valid; the frames went out). The session keeps
    // its image of the module by it.
    std::function<void(const std::vector<int>& bytes, bool expectReply, bool ok)> onExchange;
    // While set, send() only appends its bytes here and succeeds, touching nothing else, so
    // that a writer tells which frames it would send; a request() is then a ProgramFault.
    std::vector<std::vector<int>>* recording = nullptr;

    std::string TextResponse;           // "[43] [66] [70] ..." of the last direct reply
    std::string txtCorvidCommunication; // the Corvid log, lines ended by CR LF

    // Frames and sends Size bytes B0.. (each 0..127), waits for the reply when one
    // is expected and leaves it in ReplyBuffer / ReplyValid. Returns False when
    // nothing could be sent (or the tunnel exchange failed).
    bool SendKestrelMessage(bool expectReply, int size, std::initializer_list<int> bytes);
    bool SendKestrelMessage(bool expectReply, int size, const std::array<int, 15>& bytes);

    // Every request of the operations goes through these two, the size taken from the
    // bytes given. request() waits for the reply and returns it (not valid when none came);
    // send() awaits nothing and returns false when nothing could be sent.
    KestrelReply request(const std::vector<int>& bytes);
    bool send(const std::vector<int>& bytes);
    // The last reply, as request() returned it.
    KestrelReply lastReply() const { return {state.ReplyValid, lastSent, state.ReplyBuffer}; }

    // The older fixed four-byte message; no reply is awaited.
    void SendLynxMessage(int first, int d1, int d2, int d3);

    // One Corvid frame with the first `length` of `data`, and its reply into ReplyBuffer.
    bool CorvidExchange(int length, std::initializer_list<int> data = {});
    bool CorvidExchange(int length, const std::array<int, 19>& data);
    // Receives one Corvid frame; its log line, or "" when no valid frame arrived.
    std::string CorvidReceive();

    // "Request Version": fills VersionText ("Unknown" or "a.b.c.d").
    bool GetVersion();
    std::string VersionText = KC_TRANSLATABLE("GeneralSettings", "Unknown");

    // Sets CheckKestrelBD and tells the observers when it changed.
    void setBidirectional(bool on);

    // The address byte A of the direct route (TargetAddress * 4 + 3).
    int addressByte() const;

private:
    bool writeByte(int value);
    // The traffic monitor's frames: a byte read is kept, a frame is handed on and cleared.
    void keepIn(int b)
    {
        if (onFrame)
            inFrame.push_back(b);
    }
    void endFrame(FrameDirection direction);
    bool flushFrame();
    int takeUnsent(); // bytes written since the last reply wait began
    // The next byte of a reply, read while the wait begun at `start` lasts and kept for the
    // traffic monitor (one below 128 starts a frame): the byte, or kTimeUp, or kPortGone
    // (the port lost, said once). `expected` gives the port the bytes still to come,
    // before every wait.
    static constexpr int kTimeUp = -1;
    static constexpr int kPortGone = -2;
    int replyByte(double start, const std::function<int()>& expected);
    bool receiveDirect();
    bool sendTunnelled(bool expectReply, int size, const std::array<int, 15>& bytes);
    bool wakeUp();
    void appendCorvidLog(const std::string& line);
    bool portLost();
    void noteExchange();
    // Seconds left of a 2.0 s wait begun at `start`; <= 0 once over (or past midnight).
    double remaining(double start);

    SerialPort& serial;
    Clock& time;
    UserDialogs& ui;
    Progress* progress = nullptr;
    bool lostReported = false;
    bool lastSent = false;
    int unsentOnWire = 0;
    bool tunnelStale = false;                  // a tunnelled exchange was cut short; poll before the next
    FrameRoute wireRoute = FrameRoute::Direct; // of the frames now written and read
    std::vector<int> outFrame, inFrame;
};

// The running-sum checksum of both routes: the sum starts with the first byte,
// each later byte is added and 256 subtracted whenever the sum exceeds 256; the
// checksum is 256 - sum, plus 128 when that is below 128.
class FrameChecksum {
public:
    explicit FrameChecksum(int first) : sum(first) {}
    void add(int b)
    {
        sum += b;
        if (sum > 256)
            sum -= 256;
    }
    int value() const
    {
        const int c = 256 - sum;
        return c < 128 ? c + 128 : c;
    }

private:
    int sum;
};

} // namespace kestrel
