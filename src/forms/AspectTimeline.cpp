#include "forms/AspectTimeline.h"

#include "model/InstructionSet.h"
#include "model/StepDisplay.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

namespace {
constexpr int kJump = 1;

std::string parameterText(const StepRecord& step, int p, const Configuration& config)
{
    const std::string& caption = instructionInfo(step.Instruction).caption(p);
    return caption + " " + showParameter(step, p, config.CurrentPin, config.NumberingBase).text;
}

TimelineBlock blockOf(const StepRecord& step, int index, const Configuration& config)
{
    const InstructionInfo& info = instructionInfo(step.Instruction);
    TimelineBlock b;
    b.step = index;
    b.name = info.Name;
    if (step.Instruction > 63) {
        const double ticks = step.Par2 * std::pow(8.0, step.Par3);
        b.overflow = ticks > kLongestStep;
        b.width = b.overflow ? kLongestStep : durationTicks(step.Par2, step.Par3);
    }
    // The value that tells the steps of one instruction apart: Par1 where it is used, else
    // the time of a step that waits, else the pin offset.
    if (info.used(1))
        b.key = parameterText(step, 1, config);
    else if (b.width > 0)
        b.key = stepTimeText(step);
    else if (info.used(0))
        b.key = parameterText(step, 0, config);
    if (step.Instruction == kJump) {
        b.jumpAspect = step.Par1;
        b.jumpStep = step.Par2;
    }
    return b;
}
} // namespace

Timeline aspectTimeline(const Configuration& config)
{
    Timeline t;
    const LayoutSlots slots = layoutSlots(config.pin(config.CurrentPin).AspectLayout);
    for (int a = 0; a < slots.aspects; ++a) {
        TimelineRow row;
        row.aspect = a;
        for (int s = 0; s < slots.steps; ++s) {
            const StepRecord& step = config.step(config.CurrentPin, a, s);
            if (step.Instruction == 0 || instructionInfo(step.Instruction).Name.empty())
                break; // the program ends at its first empty step
            TimelineBlock b = blockOf(step, s, config);
            b.start = row.length;
            row.length += b.width;
            row.marks += b.waits() ? 0 : 1;
            row.blocks.push_back(std::move(b));
        }
        t.longest = std::max(t.longest, row.length);
        t.mostMarks = std::max(t.mostMarks, row.marks);
        t.rows.push_back(std::move(row));
    }
    return t;
}

} // namespace kestrel
