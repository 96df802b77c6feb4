#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace kestrel {

// The serial port as the link sees it: one byte at a time, and a wait that blocks
// (without spinning) until a byte is waiting or the time-out has passed.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    // Selects the port by name: a number "1".."16" on Windows, a device path
    // such as "/dev/ttyUSB0" or a pseudo-terminal, or "sim" for the built-in module.
    virtual void select(const std::string& name) = 0;
    virtual std::string selected() const = 0;

    // Opens the selected port with the current settings; false when it cannot,
    // errorString() then tells why.
    virtual bool open() = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;

    // "9600,o,8,1", "19200,o,8,1" or "38400,o,8,1".
    virtual void setSettings(const std::string& settings) = 0;
    virtual std::string settings() const = 0;

    // Writes one byte; false when the port is gone.
    virtual bool writeByte(std::uint8_t b) = 0;
    virtual int bytesWaiting() = 0;
    // Reads one waiting byte; -1 when none is waiting.
    virtual int readByte() = 0;
    // Blocks until at least one byte is waiting or timeoutMs has passed; true when
    // a byte is waiting. Never spins the CPU.
    virtual bool waitForBytes(int timeoutMs) = 0;

    // Hands the bytes written so far to the wire (a port may gather a frame's bytes and
    // write them at once); false when the port is gone.
    virtual bool flush() { return true; }
    // A hint before a wait: the frame being received needs `count` more bytes. A port may
    // then sleep for most of the time the wire needs to carry them instead of waking up
    // for every byte.
    virtual void expectBytes(int count) { (void)count; }

    virtual std::string errorString() const = 0;
};

} // namespace kestrel
