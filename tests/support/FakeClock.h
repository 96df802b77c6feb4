#pragma once
#include "link/Clock.h"

namespace kestrel::test {

// A clock that only moves when told to (or when a port waits on it).
class FakeClock : public Clock {
public:
    double now = 12 * 3600.0;
    bool wrapAtMidnight = false;
    double tick = 0; // seconds that pass at every reading (an exchange takes time on a real wire)
    double secondsSinceMidnight() override
    {
        now += tick;
        return wrapAtMidnight && now >= 86400.0 ? now - 86400.0 : now;
    }
    void sleepMs(int ms) override
    {
        now += ms / 1000.0;
        slept += ms;
    }
    void advance(double seconds) { now += seconds; }
    long slept = 0; // total ms asked for by sleepMs
};

} // namespace kestrel::test
