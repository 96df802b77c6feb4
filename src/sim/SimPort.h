#pragma once
#include "base/SerialPort.h"
#include "sim/SimEndpoint.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrel::sim {

// The client's serial port, wired in process to a simulated bus or Corvid system.
// A reply is readable as soon as the byte that completes its request is written.
//
// waitForBytes never blocks by default: in process nothing can arrive later, so it
// returns at once (true when bytes are waiting). When nothing is waiting it first calls
// the wait hook with the time-out, so a test with a fake clock can let the time pass:
//     port.setWaitHook([&](int ms) { clock.advance(ms / 1000.0); });
// With setRealTimeWaits(true) and no hook it sleeps the time-out for real instead, as a
// real port would, for clients that run on the machine's clock.
class SimPort : public kestrel::SerialPort {
public:
    explicit SimPort(SimEndpoint& endpoint) : endpoint_(endpoint) {}

    void select(const std::string& name) override { name_ = name; }
    std::string selected() const override { return name_; }
    // Opening discards whatever was waiting from before. Fails while vanished.
    bool open() override;
    void close() override { open_ = false; }
    bool isOpen() const override { return open_ && !vanished_; }
    void setSettings(const std::string& settings) override { settings_ = settings; }
    std::string settings() const override { return settings_; }
    bool writeByte(std::uint8_t b) override;
    int bytesWaiting() override;
    int readByte() override;
    bool waitForBytes(int timeoutMs) override;
    std::string errorString() const override { return error_; }

    void setWaitHook(std::function<void(int timeoutMs)> hook) { waitHook_ = std::move(hook); }
    void setRealTimeWaits(bool on) { realTimeWaits_ = on; }
    // The port disappears (an unplugged adapter): writes fail, isOpen is false and open
    // fails until it comes back.
    void setVanished(bool vanished);

    // Every byte written while open, in order (take() empties it).
    const std::vector<std::uint8_t>& written() const { return written_; }
    std::vector<std::uint8_t> take();
    // Waits that found nothing waiting (time-outs seen by the client).
    int emptyWaits() const { return emptyWaits_; }

private:
    SimEndpoint& endpoint_;
    std::string name_ = "sim";
    std::string settings_ = "19200,o,8,1";
    std::string error_;
    bool open_ = false;
    bool vanished_ = false;
    bool realTimeWaits_ = false;
    std::function<void(int)> waitHook_;
    std::vector<std::uint8_t> written_;
    int emptyWaits_ = 0;
};

} // namespace kestrel::sim
