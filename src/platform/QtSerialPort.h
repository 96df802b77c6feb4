#pragma once
#include "base/SerialPort.h"

#include <QSerialPort>
#include <memory>

namespace kestrel {

// The real serial port: odd parity, 8 data bits, 1 stop bit at 9600, 19200 or 38400 bit/s.
class QtSerialPort : public SerialPort {
public:
    QtSerialPort();
    ~QtSerialPort() override;

    void select(const std::string& name) override;
    std::string selected() const override { return name; }
    bool open() override;
    void close() override;
    bool isOpen() const override;
    void setSettings(const std::string& settings) override;
    std::string settings() const override { return settingsText; }
    bool writeByte(std::uint8_t b) override;
    int bytesWaiting() override;
    int readByte() override;
    bool waitForBytes(int timeoutMs) override;
    bool flush() override;
    void expectBytes(int count) override { expected = count; }
    std::string errorString() const override { return error; }

    // The ports the system reports, by name (e.g. "/dev/ttyUSB0" or "COM3").
    static std::vector<std::string> systemPorts();

private:
    bool failed();
    // Odd parity, 8 data bits, 1 stop bit, no flow control at the bit rate chosen.
    bool applySettings();
    // Takes the parity off the open port by the system's own call; false where that
    // cannot be done.
    bool clearParity();
    void flushWrites();
    // A new QSerialPort for every open: one that was closed cannot set odd parity on a
    // pseudo-terminal again ("Invalid argument"), so a reopened port would be refused.
    std::unique_ptr<QSerialPort> device = std::make_unique<QSerialPort>();
    QSerialPort& port() const { return *device; }
    std::string name;
    std::string settingsText = "19200,o,8,1";
    std::string error;
    int expected = 0; // bytes the frame being received still needs (a hint)
    int baud = 19200;
};

} // namespace kestrel
