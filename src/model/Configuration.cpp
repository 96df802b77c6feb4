#include "model/Configuration.h"

#include "base/ProgramFault.h"

namespace kestrel {

std::uint8_t& PinRecord::P(int n)
{
    checkIndex(n - 1, 12, "configuration parameter");
    return ConfigParams[n - 1];
}

std::uint8_t PinRecord::P(int n) const
{
    checkIndex(n - 1, 12, "configuration parameter");
    return ConfigParams[n - 1];
}

LayoutSlots layoutSlots(int aspectLayout)
{
    if (aspectLayout == 3)
        return {4, 9};
    if (aspectLayout == 2)
        return {12, 3};
    return {0, 0};
}

Configuration::Configuration()
{
    for (int p = 0; p < kPinCount; ++p) {
        Pins[p].PinMarkA = 0;
        Pins[p].PinMarkC = 0;
        for (int a = 0; a < 12; ++a)
            Pins[p].Aspects[a].AspectMark = 0;
    }
}

PinRecord& Configuration::pin(int p)
{
    checkIndex(p, kPinRecords, "pin");
    return Pins[p];
}

const PinRecord& Configuration::pin(int p) const
{
    checkIndex(p, kPinRecords, "pin");
    return Pins[p];
}

AspectRecord& Configuration::aspect(int p, int a)
{
    checkIndex(a, kAspectRecords, "aspect");
    return pin(p).Aspects[a];
}

StepRecord& Configuration::step(int p, int a, int s)
{
    checkIndex(s, kStepRecords, "step");
    return aspect(p, a).Steps[s];
}

EventRecord& Configuration::events(int p)
{
    checkIndex(p, kPinRecords, "event record");
    return EventMap[p];
}

const AspectRecord& Configuration::aspect(int p, int a) const
{
    checkIndex(a, kAspectRecords, "aspect");
    return pin(p).Aspects[a];
}

const StepRecord& Configuration::step(int p, int a, int s) const
{
    checkIndex(s, kStepRecords, "step");
    return aspect(p, a).Steps[s];
}

const EventRecord& Configuration::events(int p) const
{
    checkIndex(p, kPinRecords, "event record");
    return EventMap[p];
}

} // namespace kestrel
