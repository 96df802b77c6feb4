#pragma once
#include "base/SerialPort.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <string>
#include <vector>

namespace kestrel {

// The serial port through the Win32 communications calls: odd parity, 8 data bits,
// 1 stop bit at 9600, 19200 or 38400 bit/s, no flow control. Received bytes are taken
// from the system into a buffer; a wait blocks in ReadFile under a time-out that returns
// as soon as one byte arrives.
class WinSerialPort : public SerialPort {
public:
    WinSerialPort() = default;
    ~WinSerialPort() override;
    WinSerialPort(const WinSerialPort&) = delete;
    WinSerialPort& operator=(const WinSerialPort&) = delete;

    void select(const std::string& name) override { chosen = name; }
    std::string selected() const override { return chosen; }
    bool open() override;
    void close() override;
    bool isOpen() const override { return handle != INVALID_HANDLE_VALUE; }
    void setSettings(const std::string& settings) override;
    std::string settings() const override { return settingsText; }
    bool writeByte(std::uint8_t b) override;
    int bytesWaiting() override;
    int readByte() override;
    bool waitForBytes(int timeoutMs) override;
    bool flush() override;
    std::string errorString() const override { return error; }

    // The device a port name opens: "9" and "COM9" give \\.\COM9; anything else is taken
    // as the system's own name for the device.
    static std::wstring devicePath(const std::string& name);
    // The line as the module needs it at `baud` bit/s, into a DCB read from the port.
    static void lineSettings(DCB& dcb, unsigned long baud);
    // Read time-outs under which ReadFile returns at once with what has arrived (waitMs 0),
    // or waits up to waitMs for the bytes asked for.
    static COMMTIMEOUTS timeouts(unsigned long waitMs);

private:
    bool fail(const char* what);
    bool setWait(unsigned long waitMs);
    bool setAfterClearingParity(DCB& dcb);
    // Reads up to `most` bytes under the current read time-outs; false when the port failed.
    bool take(DWORD most = 512);
    HANDLE handle = INVALID_HANDLE_VALUE;
    std::string chosen;
    std::string settingsText = "19200,o,8,1";
    unsigned long baud = 19200;
    std::string error;
    std::vector<std::uint8_t> in; // received, not yet read
    std::size_t inPos = 0;
    std::vector<std::uint8_t> out; // written, not yet handed to the system
    unsigned long waitSet = ~0UL;  // the read wait the port has now
};

} // namespace kestrel
