#pragma once
#include "base/SerialPort.h"

#include <functional>
#include <memory>

namespace kestrel {

// The port the link talks to: the built-in simulated layout when "sim" or "sim (Corvid)"
// is chosen, the real serial port for any other name.
class PortRouter : public SerialPort {
public:
    PortRouter(std::unique_ptr<SerialPort> real, std::unique_ptr<SerialPort> simulated);

    void select(const std::string& name) override;
    std::string selected() const override { return name; }
    bool open() override { return active().open(); }
    void close() override;
    bool isOpen() const override { return active().isOpen(); }
    void setSettings(const std::string& s) override;
    std::string settings() const override { return real->settings(); }
    bool writeByte(std::uint8_t b) override { return active().writeByte(b); }
    int bytesWaiting() override { return active().bytesWaiting(); }
    int readByte() override { return active().readByte(); }
    bool waitForBytes(int timeoutMs) override { return active().waitForBytes(timeoutMs); }
    bool flush() override { return active().flush(); }
    void expectBytes(int count) override { active().expectBytes(count); }
    std::string errorString() const override { return active().errorString(); }

    bool simulatedChosen() const;
    SerialPort& simulatedPort() { return *sim; }

private:
    SerialPort& active() const;
    std::unique_ptr<SerialPort> real;
    std::unique_ptr<SerialPort> sim;
    std::string name;
};

} // namespace kestrel
