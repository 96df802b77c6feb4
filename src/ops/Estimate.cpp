#include "ops/Estimate.h"
#include "base/Wire.h"

#include "model/WireLimits.h"
#include "pins/PinConfig.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

namespace {

// The module's turnaround, the time an exchange takes beyond its bytes: 0.25 ms. Measured
// with the wire benchmark (scripts/bench --wire-only: kestrel-cli against kestrel-sim
// pacing its bytes at the bit rate on a pseudo-terminal), where wall time less the bytes'
// time came to 0.26, 0.24 and 0.24 ms an exchange at 9600, 19200 and 38400 baud for all
// of Read All, Write All and Verify All of the fully populated configuration.
constexpr double kTurnaroundSeconds = 0.00025;
// The pause after each write of a one-way link (PinTransfer, EventControl).
constexpr double kPacingSeconds = kPacingMs / 1000.0;
constexpr double kBitsPerByte = 11;
// The measured pace is trusted after this many exchanges.
constexpr long kPaceExchanges = 20;

// A frame: address byte, header, the eXtended address when used, the data, the checksum.
class Counter {
public:
    Counter(const LinkSettings& link) : extra(link.CheckXaddress ? 1 : 0), replies(link.CheckKestrelBD) {}

    // `times` requests of `out` data bytes, each answered with `in` data bytes.
    void read(int out, int in, long times = 1)
    {
        t.exchanges += times;
        t.bytesOut += times * frame(out);
        t.bytesIn += times * frame(in);
    }
    // A write: acknowledged by its command and item, or paced when no reply is awaited.
    void write(int out, long times = 1)
    {
        t.exchanges += times;
        t.bytesOut += times * frame(out);
        if (replies)
            t.bytesIn += times * frame(2);
        else
            t.pacedWrites += times;
    }
    JobTraffic traffic() const { return t; }

private:
    int frame(int data) const { return data + 3 + extra; }
    int extra;
    bool replies;
    JobTraffic t;
};

int idLength(const GeneralSettings& g)
{
    return static_cast<int>(std::min(g.TextGenIDString.size(), kIdStringLength));
}

int configLength(const PinRecord& rec) { return static_cast<int>(pinConfigBytes(rec, 1).size()); }

// An item's read and write counted from its row: the length fields, or the ID string's
// characters where the length varies.
int replyLength(const GeneralItemCodec& row, const GeneralSettings& g)
{
    const int n = generalReplyLength(row.item);
    return n != 0 ? n : 2 + idLength(g);
}

int writeLength(const GeneralItemCodec& row, const GeneralSettings& g)
{
    const int n = generalWriteLength(row.item);
    return n != 0 ? n : 2 + idLength(g);
}

// The general items read back (Read All adds the version first); the enable maps are
// read with the events.
void readGeneral(Counter& c, const GeneralSettings& g)
{
    for (const GeneralItemCodec& row : kGeneralCodecs)
        if (row.family != GeneralFamily::EventEnable)
            c.read(2, replyLength(row, g));
}

void writeGeneral(Counter& c, const GeneralSettings& g, bool enableMaps)
{
    for (const GeneralItemCodec& row : kGeneralCodecs)
        if ((row.family == GeneralFamily::EventEnable) == enableMaps)
            c.write(writeLength(row, g));
}

// Every pin read whole: layout, its steps, initial aspect, address configuration and the
// configuration in flash (a verification reads the same).
void readPins(Counter& c, const Configuration& config)
{
    for (int p = 0; p < kPinCount; ++p) {
        const PinRecord& rec = config.pin(p);
        const LayoutSlots slots = layoutSlots(rec.AspectLayout);
        c.read(2, 3);
        c.read(4, 9, static_cast<long>(slots.aspects) * slots.steps);
        c.read(2, 7);
        c.read(2, 5);
        c.read(2, 2 + configLength(rec));
    }
}

// Event-On and Event-Off of every pin, then the enable maps.
void readEvents(Counter& c)
{
    c.read(2, 7, kPinCount);
    c.read(2, 6, kPinCount);
    c.read(2, generalReplyLength(kItemEventEnable));
}

void writePins(Counter& c, const Configuration& config, bool withPinConfig)
{
    for (int p = 0; p < kPinCount; ++p) {
        const PinRecord& rec = config.pin(p);
        const LayoutSlots slots = layoutSlots(rec.AspectLayout);
        c.write(3); // layout
        c.write(3); // initial aspect
        c.write(5); // address configuration
        c.write(9, static_cast<long>(slots.aspects) * slots.steps);
        if (withPinConfig)
            c.write(2 + configLength(rec));
    }
}

} // namespace

JobTraffic jobTraffic(LongJob job, const Configuration& config, const GeneralSettings& general,
                      const LinkSettings& link, bool withPinConfig)
{
    Counter c(link);
    switch (job) {
    case LongJob::ReadAll:
        c.read(2, generalReplyLength(kItemVersionErase));
        readGeneral(c, general);
        readPins(c, config);
        readEvents(c);
        break;
    case LongJob::VerifyAll:
        readGeneral(c, general);
        readEvents(c);
        readPins(c, config);
        break;
    case LongJob::WriteAll:
        writeGeneral(c, general, false);
        writePins(c, config, withPinConfig);
        c.write(6, 2L * kPinCount); // events
        writeGeneral(c, general, true);
        break;
    case LongJob::ReadAllPins:
    case LongJob::VerifyAllPins:
        readPins(c, config);
        break;
    case LongJob::WriteAllPins:
        writePins(c, config, withPinConfig);
        break;
    }
    return c.traffic();
}

double wireSeconds(const JobTraffic& traffic, int baud)
{
    const double bytes = static_cast<double>(traffic.bytesOut + traffic.bytesIn);
    return bytes * kBitsPerByte / baud + static_cast<double>(traffic.exchanges) * kTurnaroundSeconds +
           static_cast<double>(traffic.pacedWrites) * kPacingSeconds;
}

std::optional<double> secondsLeft(const JobTraffic& traffic, int baud, long done, double elapsed)
{
    const long left = traffic.exchanges - done;
    if (left <= 0)
        return std::nullopt;
    const double pace = done >= kPaceExchanges && elapsed > 0
                            ? elapsed / static_cast<double>(done)
                            : wireSeconds(traffic, baud) / static_cast<double>(traffic.exchanges);
    return pace * static_cast<double>(left);
}

std::string durationText(double seconds)
{
    const long whole = std::max(1L, std::lround(seconds));
    if (whole < 60)
        return std::to_string(whole) + " s";
    const std::string min = std::to_string(whole / 60) + " min";
    return whole % 60 == 0 ? min : min + " " + std::to_string(whole % 60) + " s";
}

} // namespace kestrel
