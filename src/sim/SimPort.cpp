#include "sim/SimPort.h"

#include <chrono>
#include <thread>

namespace kestrel::sim {

bool SimPort::open()
{
    if (vanished_) {
        error_ = "Port " + name_ + ": the simulated port has gone away";
        return false;
    }
    while (endpoint_.available())
        endpoint_.read();
    open_ = true;
    error_.clear();
    return true;
}

bool SimPort::writeByte(std::uint8_t b)
{
    if (!isOpen()) {
        error_ = vanished_ ? "Port " + name_ + ": the simulated port has gone away"
                           : "Port " + name_ + " is not open";
        return false;
    }
    written_.push_back(b);
    endpoint_.write(b);
    return true;
}

int SimPort::bytesWaiting() { return isOpen() ? static_cast<int>(endpoint_.available()) : 0; }

int SimPort::readByte() { return isOpen() ? endpoint_.read() : -1; }

bool SimPort::waitForBytes(int timeoutMs)
{
    if (bytesWaiting() > 0)
        return true;
    ++emptyWaits_;
    if (waitHook_)
        waitHook_(timeoutMs);
    else if (realTimeWaits_ && timeoutMs > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(timeoutMs));
    return bytesWaiting() > 0;
}

void SimPort::setVanished(bool vanished)
{
    vanished_ = vanished;
    if (vanished)
        error_ = "Port " + name_ + ": the simulated port has gone away";
}

std::vector<std::uint8_t> SimPort::take()
{
    auto out = std::move(written_);
    written_.clear();
    return out;
}

} // namespace kestrel::sim
