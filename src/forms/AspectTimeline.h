#pragma once
#include "model/Configuration.h"

#include <string>
#include <vector>

namespace kestrel {

// The aspect program of the selected pin laid out over time: one row per aspect of its
// layout, one block per step up to the aspect's first empty step. A step takes the time
// its time label shows (Time x 8^Base ticks of 20 ms, for codes above 63); every other
// step passes at once and is a mark of no width.

struct TimelineBlock {
    int step = 0;
    std::string name;      // the instruction's name
    std::string key;       // its key parameter as "caption value", or the time label
    int start = 0;         // ticks from the start of the aspect
    int width = 0;         // ticks; 0 for a step that does not wait
    bool overflow = false; // the time does not fit the module's count; width is the largest count
    int jumpAspect = -1;   // a "Jump": the aspect and step it goes to, else -1
    int jumpStep = -1;

    bool waits() const { return width > 0; }
};

struct TimelineRow {
    int aspect = 0;
    std::vector<TimelineBlock> blocks;
    int length = 0; // ticks of the whole row
    int marks = 0;  // steps that do not wait
};

struct Timeline {
    std::vector<TimelineRow> rows;
    int longest = 0;   // the largest row length in ticks
    int mostMarks = 0; // the most marks in one row
};

// The timeline of CurrentPin; no rows for a pin without aspects.
Timeline aspectTimeline(const Configuration& config);

// The largest count of ticks a step can wait.
inline constexpr int kLongestStep = 32767;

} // namespace kestrel
