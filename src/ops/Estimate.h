#pragma once
#include "link/Link.h"
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <optional>
#include <string>

namespace kestrel {

// The jobs long enough to be worth a time estimate.
enum class LongJob { ReadAll, WriteAll, VerifyAll, ReadAllPins, WriteAllPins, VerifyAllPins };

// What a job puts on the wire: its exchanges, the bytes of its frames each way, and the
// writes paced by a pause instead of a reply.
struct JobTraffic {
    long exchanges = 0;
    long bytesOut = 0;
    long bytesIn = 0;
    long pacedWrites = 0;
};

// The traffic of a job for the configuration and general settings as they stand, on the
// direct route with the link's settings (eXtended addressing adds a byte each way, a
// one-way link gets no replies and paces its writes). Reads cannot know the module's
// layouts, ID string or pin modes before reading them, so they are counted with the
// configuration's own: after a first read of the same module the count is exact, and
// before it a read of an empty configuration is counted short (the time left then
// follows the pace measured).
JobTraffic jobTraffic(LongJob job, const Configuration& config, const GeneralSettings& general,
                      const LinkSettings& link, bool withPinConfig = false);

// Seconds the traffic takes at `baud`: every byte at 11 bits (start, 8 data, odd parity,
// stop: what the serial port is set to), plus the turnaround of each exchange and the
// pauses of paced writes.
double wireSeconds(const JobTraffic& traffic, int baud);

// The seconds still to go after `done` exchanges in `elapsed` seconds: the exchanges left
// at the pace measured so far once there is enough of it, else at the estimated pace.
// Nothing once the estimated exchanges are all done.
std::optional<double> secondsLeft(const JobTraffic& traffic, int baud, long done, double elapsed);

// "1 min 20 s", "35 s" (whole seconds, at least 1).
std::string durationText(double seconds);

} // namespace kestrel
