#include "ops/JobDispatcher.h"

namespace kestrel {

void JobDispatcher::add(JobName name, std::function<void()> operation)
{
    table.emplace_back(name.text(), std::move(operation));
}

bool JobDispatcher::Timer1_Timer()
{
    if (busy)
        return false;
    // The name is cleared first, so a job runs exactly once even if it fails or outlasts the interval.
    const std::string job = PendingJob;
    PendingJob.clear();
    for (const auto& [name, operation] : table) {
        if (name == job) {
            busy = true;
            try {
                operation();
            } catch (...) {
                busy = false;
                throw;
            }
            busy = false;
            return true;
        }
    }
    return false;
}

} // namespace kestrel
