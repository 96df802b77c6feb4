#pragma once
#include "sim/SimEndpoint.h"
#include "sim/SimModule.h"

#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace kestrel::sim {

// The modules' serial bus. Every byte written reaches every module; what they send
// back is queued in the order it was sent. Exchanges count the requests that a module
// accepted (valid check byte, its address and eXtended address, at least one data byte).
//
//     SimBus bus;
//     SimModule& m = bus.addModule(0);            // bus address 0, no eXtended address
//     SimModule& x = bus.addModule(3, 17);        // bus address 3, eXtended address 17
//     SimPort port(bus);                          // the client's SerialPort
class SimBus : public SimEndpoint {
public:
    SimModule& addModule(int busAddress, std::optional<std::uint8_t> xaddress = std::nullopt,
                         std::array<std::uint8_t, 4> firmwareVersion = {1, 2, 3, 4});
    // First module with this bus address, or nullptr.
    SimModule* module(int busAddress);
    std::vector<SimModule*> modules();

    void write(std::uint8_t b) override;
    std::size_t available() const override { return out_.size(); }
    int read() override;
    const WireStats& stats() const override { return stats_; }
    // Starts the counts afresh (after the modules were given their starting configuration).
    void resetStats();

    // A request that reached the bus by another way (the Corvid tunnel): offered to the
    // modules with this bus address; the first answer is returned.
    std::optional<KestrelReply> deliver(int busAddress, const KestrelRequest& request);

private:
    void countExchanges();

    std::vector<std::unique_ptr<SimModule>> modules_;
    std::deque<std::uint8_t> out_;
    WireStats stats_;
    long exchangeBase_ = 0; // module requests before the last resetStats()
};

} // namespace kestrel::sim
