#pragma once
#include "link/Link.h"

#include <string>
#include <vector>

namespace kestrel {

// One frame of the traffic monitor, decoded.
struct DecodedFrame {
    // What the monitor's filter offers: the Kestrel command's name (also for its reply and
    // when tunnelled), the kind of a Corvid frame, "wake-up burst", or "(not decoded)".
    std::string command;
    // The Decoded column: the command, the item or pin, the data bytes (decimal), and
    // "(checksum error)" for a frame that fails its checksum.
    std::string text;
};

// A frame as Link::onFrame reports it. A Kestrel frame names its command (by the echo in
// a reply), the general item or the pin, and the data; a Corvid frame is a poll, an empty
// frame, a system version, interface unit or transparent mode request or its answer, or a
// tunnelled Kestrel frame. What fits none of these is "(not decoded)".
DecodedFrame decodeFrame(FrameDirection direction, FrameRoute route, const std::vector<int>& bytes);

// The bytes as two hex digits each, separated by spaces: "43 E2 F0 80 EB".
std::string frameBytesText(const std::vector<int>& bytes);

} // namespace kestrel
