#pragma once
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kestrel {

// Long operations are not run in the button's handler: the handler shows the busy
// notice and names the job; the next timer tick takes the name, clears it and runs the
// job to its end. A second request before the tick replaces the first; an unknown name
// is dropped without a word.
class JobDispatcher {
public:
    // Job names in the order they are compared, each with its operation.
    void add(std::string name, std::function<void()> operation);

    // A button asks for a job.
    void request(const std::string& name) { PendingJob = name; }

    // The timer tick: returns true when a job ran. A tick that arrives while a job is
    // still running (the window keeps its events going) does nothing.
    bool Timer1_Timer();

    bool running() const { return busy; }
    std::string PendingJob;

private:
    std::vector<std::pair<std::string, std::function<void()>>> table;
    bool busy = false;
};

} // namespace kestrel
