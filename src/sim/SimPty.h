#pragma once
#include "sim/SimEndpoint.h"

namespace kestrel::sim {

// Offers `endpoint` (a bus of simulated modules, or the Corvid system in front of them) on
// a new pseudo-terminal until SIGINT or SIGTERM: the terminal's path is the first line of
// stdout; replies go out no faster than a wire at `paceBaud` would carry them (0: at once).
// On the way out the statistics go to stderr, as a sentence and as a "kestrel-sim-stats:"
// line of key=value pairs. Returns the program's exit status.
int serveOnPty(SimEndpoint& endpoint, int paceBaud);

} // namespace kestrel::sim
