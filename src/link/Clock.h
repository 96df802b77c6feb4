#pragma once

namespace kestrel {

// Time as the link needs it: seconds since midnight with sub-second resolution,
// and a pause (the 100 ms pacing of writes when no reply paces the sender).
class Clock {
public:
    virtual ~Clock() = default;
    virtual double secondsSinceMidnight() = 0;
    virtual void sleepMs(int ms) = 0;
};

// The machine's local clock.
class SystemClock : public Clock {
public:
    double secondsSinceMidnight() override;
    void sleepMs(int ms) override;
};

} // namespace kestrel
