#pragma once
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kestrel {

// A job's name as the dispatcher compares it. Only the names of the table below exist, so
// a misspelt job in the code does not compile; what is pending stays plain text, and an
// unknown text is still dropped without a word.
class JobName {
public:
    const char* text() const { return name; }

private:
    constexpr explicit JobName(const char* n) : name(n) {}
    const char* name;
    friend struct Jobs;
};

// The jobs, in the order they are compared.
struct Jobs {
    static constexpr JobName ReadAll{"ReadAll"};
    static constexpr JobName WriteAll{"WriteAll"};
    static constexpr JobName VerifyAll{"VerifyAll"};
    static constexpr JobName ReadPin{"ReadPin"};
    static constexpr JobName WritePin{"WritePin"};
    static constexpr JobName ReadDevice{"ReadDevice"};
    static constexpr JobName WriteDevice{"WriteDevice"};
    static constexpr JobName ReadAllPins{"ReadAllPins"};
    static constexpr JobName WriteAllPins{"WriteAllPins"};
    static constexpr JobName PAspReadPin{"PAspReadPin"};
    static constexpr JobName PAspWritePin{"PAspWritePin"};
    static constexpr JobName VerifyAllPins{"VerifyAllPins"};
    static constexpr JobName ECWriteAll{"ECWriteAll"};
    static constexpr JobName ECReadAll{"ECReadAll"};
    static constexpr JobName ECVerify{"ECVerify"};
    // The aspect page's "Write Aspect": the selected aspect's steps only.
    static constexpr JobName PAspWriteAspect{"PAspWriteAspect"};
    // Only what differs from the module's image; the module read beside the configuration.
    static constexpr JobName WriteChanges{"WriteChanges"};
    static constexpr JobName CompareModule{"CompareModule"};
    // Over every module of the layout.
    static constexpr JobName FindModules{"FindModules"};
    static constexpr JobName BackUpAll{"BackUpAll"};
    static constexpr JobName CheckAll{"CheckAll"};
};

// Long operations are not run in the button's handler: the handler shows the busy
// notice and names the job; the next timer tick takes the name, clears it and runs the
// job to its end. A second request before the tick replaces the first; an unknown name
// is dropped without a word.
class JobDispatcher {
public:
    // Job names in the order they are compared, each with its operation.
    void add(JobName name, std::function<void()> operation);

    // A button asks for a job.
    void request(JobName name) { PendingJob = name.text(); }

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
