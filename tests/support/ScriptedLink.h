#pragma once
// The link and its controls on a scripted port and a fake clock.
#include "FakeClock.h"
#include "RecordingDialogs.h"
#include "ScriptedPort.h"
#include "link/CorvidControl.h"
#include "link/Link.h"
#include "link/LinkControl.h"

#include <gtest/gtest.h>

namespace kestrel::test {

struct ScriptedLink : ::testing::Test {
    FakeClock clock;
    ScriptedPort port{clock};
    RecordingDialogs dialogs;
    Link link{port, clock, dialogs};
    int base = 0; // the numbering base
    LinkControl control{link, base};
    CorvidControl corvid{link, control};
};

} // namespace kestrel::test
