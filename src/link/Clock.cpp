#include "link/Clock.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace kestrel {

double SystemClock::secondsSinceMidnight()
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t t = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&t, &local);
    const double frac = duration<double>(now.time_since_epoch()).count() - static_cast<double>(t);
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + frac;
}

void SystemClock::sleepMs(int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }

} // namespace kestrel
