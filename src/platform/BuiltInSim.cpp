#include "platform/BuiltInSim.h"

#include "link/LinkControl.h"
#include "seed/SimLayout.h"
#include "sim/SimPort.h"

#include <chrono>
#include <thread>

namespace kestrel {

namespace {

// The layout and a port on each of its two routes, built when a simulated port is first
// chosen: a program that talks to a real port never seeds it.
struct Routes {
    SimLayout layout;
    sim::SimPort direct{layout.bus};
    sim::SimPort corvid{layout.corvid};
    Routes()
    {
        // A missing reply costs the full time-out, as on a real line.
        direct.setRealTimeWaits(true);
        corvid.setRealTimeWaits(true);
    }
};

// The port of the name chosen: the bus itself, or the Corvid system in front of it.
class BuiltInSimPort : public SerialPort {
public:
    void select(const std::string& n) override
    {
        port().close();
        name = n;
        port().select(n);
        port().setSettings(chosenSettings);
    }
    std::string selected() const override { return name; }
    bool open() override { return port().open(); }
    void close() override
    {
        if (routes)
            port().close();
    }
    bool isOpen() const override { return routes && port().isOpen(); }
    void setSettings(const std::string& s) override
    {
        chosenSettings = s;
        if (routes)
            port().setSettings(s);
    }
    std::string settings() const override { return chosenSettings; }
    bool writeByte(std::uint8_t b) override { return port().writeByte(b); }
    int bytesWaiting() override { return port().bytesWaiting(); }
    int readByte() override { return port().readByte(); }
    bool waitForBytes(int timeoutMs) override { return port().waitForBytes(timeoutMs); }
    bool flush() override
    {
        // The Corvid system answers every poll at once in process: a frame takes a moment,
        // as on a wire, so that the polls for a module's reply do not keep a core busy.
        if (name == LinkControl::kSimCorvidPortName)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return port().flush();
    }
    std::string errorString() const override { return routes ? port().errorString() : std::string(); }

private:
    sim::SimPort& port() const
    {
        if (!routes)
            routes = std::make_unique<Routes>();
        return name == LinkControl::kSimCorvidPortName ? routes->corvid : routes->direct;
    }
    mutable std::unique_ptr<Routes> routes;
    std::string name = LinkControl::kSimPortName;
    std::string chosenSettings = "19200,o,8,1";
};

} // namespace

std::unique_ptr<SerialPort> makeBuiltInSimPort() { return std::make_unique<BuiltInSimPort>(); }

} // namespace kestrel
