#include "platform/WinSerialPort.h"

#include "platform/SystemPort.h"

#include <algorithm>
#include <cstdlib>

namespace kestrel {

namespace {

// The system's text for an error code, in one line.
std::string systemMessage(DWORD code)
{
    char* text = nullptr;
    const DWORD n = FormatMessageA(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                                       FORMAT_MESSAGE_IGNORE_INSERTS,
                                   nullptr, code, 0, reinterpret_cast<char*>(&text), 0, nullptr);
    std::string out = n && text ? std::string(text, n) : "system error " + std::to_string(code);
    if (text)
        LocalFree(text);
    while (!out.empty() &&
           (out.back() == '\r' || out.back() == '\n' || out.back() == ' ' || out.back() == '.'))
        out.pop_back();
    return out;
}

// A write of a frame may take as long as the wire needs (about 1 ms a byte at 9600
// bit/s) and a little more; a port that takes longer is gone.
constexpr DWORD kWriteMsPerByte = 2;
constexpr DWORD kWriteMsExtra = 1000;

} // namespace

WinSerialPort::~WinSerialPort() { close(); }

std::wstring WinSerialPort::devicePath(const std::string& name)
{
    std::string device = name;
    const bool numeric = !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
    const bool com = name.size() > 3 && (name[0] == 'C' || name[0] == 'c') &&
                     (name[1] == 'O' || name[1] == 'o') && (name[2] == 'M' || name[2] == 'm') &&
                     name.find_first_not_of("0123456789", 3) == std::string::npos;
    if (numeric)
        device = "\\\\.\\COM" + name;
    else if (com)
        device = "\\\\.\\COM" + name.substr(3);
    const int n = MultiByteToWideChar(CP_UTF8, 0, device.c_str(), -1, nullptr, 0);
    std::wstring wide(n > 0 ? n - 1 : 0, L'\0');
    if (n > 1)
        MultiByteToWideChar(CP_UTF8, 0, device.c_str(), -1, wide.data(), n);
    return wide;
}

void WinSerialPort::lineSettings(DCB& dcb, unsigned long rate)
{
    dcb.DCBlength = sizeof(DCB);
    dcb.BaudRate = rate;
    dcb.ByteSize = 8;
    dcb.Parity = ODDPARITY;
    dcb.StopBits = ONESTOPBIT;
    dcb.fBinary = TRUE;
    dcb.fParity = TRUE;
    // No flow control; DTR and RTS held on, as the port is on other systems once opened.
    dcb.fOutxCtsFlow = FALSE;
    dcb.fOutxDsrFlow = FALSE;
    dcb.fDtrControl = DTR_CONTROL_ENABLE;
    dcb.fRtsControl = RTS_CONTROL_ENABLE;
    dcb.fDsrSensitivity = FALSE;
    dcb.fOutX = FALSE;
    dcb.fInX = FALSE;
    // Every byte as it came: none replaced, none dropped, no stop on a line error.
    dcb.fErrorChar = FALSE;
    dcb.fNull = FALSE;
    dcb.fAbortOnError = FALSE;
}

COMMTIMEOUTS WinSerialPort::timeouts(unsigned long waitMs)
{
    COMMTIMEOUTS t{};
    // An interval of MAXDWORD without a total: return at once with what is there. Only a
    // total: return when the bytes asked for are there (one, by waitForBytes), or after it.
    t.ReadIntervalTimeout = waitMs ? 0 : MAXDWORD;
    t.ReadTotalTimeoutMultiplier = 0;
    t.ReadTotalTimeoutConstant = waitMs;
    t.WriteTotalTimeoutMultiplier = kWriteMsPerByte;
    t.WriteTotalTimeoutConstant = kWriteMsExtra;
    return t;
}

bool WinSerialPort::fail(const char* what)
{
    const DWORD code = GetLastError();
    error = std::string(what) + systemMessage(code);
    if (isOpen()) {
        CloseHandle(handle);
        handle = INVALID_HANDLE_VALUE;
    }
    out.clear();
    return false;
}

bool WinSerialPort::open()
{
    close();
    error.clear();
    if (chosen.empty()) {
        error = "no port chosen";
        return false;
    }
    handle = CreateFileW(devicePath(chosen).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                         0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return fail("");
    DCB dcb{};
    dcb.DCBlength = sizeof(DCB);
    if (!GetCommState(handle, &dcb))
        return fail("");
    lineSettings(dcb, baud);
    if (!SetCommState(handle, &dcb) && !setAfterClearingParity(dcb)) {
        const std::string what = "cannot set " + settingsText + ": ";
        return fail(what.c_str());
    }
    waitSet = ~0UL;
    if (!setWait(0))
        return false;
    PurgeComm(handle, PURGE_RXCLEAR | PURGE_TXCLEAR);
    in.clear();
    inPos = 0;
    out.clear();
    return true;
}

bool WinSerialPort::setAfterClearingParity(DCB& dcb)
{
    // A terminal left with odd parity by the program before (a pseudo-terminal under Wine)
    // refuses odd parity once more: no parity first, then the line as it must be.
    DCB plain = dcb;
    plain.Parity = NOPARITY;
    plain.fParity = FALSE;
    return SetCommState(handle, &plain) && SetCommState(handle, &dcb);
}

void WinSerialPort::close()
{
    if (!isOpen())
        return;
    flush(); // what was written still goes out (an erase frame is the last thing sent)
    if (isOpen())
        CloseHandle(handle);
    handle = INVALID_HANDLE_VALUE;
    in.clear();
    inPos = 0;
}

void WinSerialPort::setSettings(const std::string& s)
{
    settingsText = s;
    const long rate = std::strtol(s.c_str(), nullptr, 10);
    baud = rate > 0 ? static_cast<unsigned long>(rate) : 19200;
    DCB dcb{};
    dcb.DCBlength = sizeof(DCB);
    if (isOpen() && GetCommState(handle, &dcb)) {
        lineSettings(dcb, baud);
        if (!SetCommState(handle, &dcb))
            setAfterClearingParity(dcb);
    }
}

bool WinSerialPort::setWait(unsigned long waitMs)
{
    if (waitMs == waitSet)
        return true;
    COMMTIMEOUTS t = timeouts(waitMs);
    if (!SetCommTimeouts(handle, &t))
        return fail("");
    waitSet = waitMs;
    return true;
}

bool WinSerialPort::writeByte(std::uint8_t b)
{
    if (!isOpen())
        return false;
    // The frame's bytes are gathered and handed to the system together by flush().
    out.push_back(b);
    return true;
}

bool WinSerialPort::flush()
{
    if (!isOpen())
        return false;
    if (out.empty())
        return true;
    DWORD written = 0;
    if (!WriteFile(handle, out.data(), static_cast<DWORD>(out.size()), &written, nullptr))
        return fail("");
    if (written != out.size()) {
        SetLastError(ERROR_TIMEOUT);
        return fail("");
    }
    out.clear();
    return true;
}

bool WinSerialPort::take(DWORD most)
{
    if (inPos == in.size()) {
        in.clear();
        inPos = 0;
    }
    std::uint8_t buffer[512];
    DWORD got = 0;
    if (!ReadFile(handle, buffer, std::min<DWORD>(most, sizeof buffer), &got, nullptr))
        return fail("");
    in.insert(in.end(), buffer, buffer + got);
    return true;
}

int WinSerialPort::bytesWaiting()
{
    if (!isOpen() || !flush())
        return 0;
    if (inPos == in.size() && setWait(0))
        take();
    return static_cast<int>(in.size() - inPos);
}

int WinSerialPort::readByte()
{
    if (inPos == in.size() && (!isOpen() || !setWait(0) || !take()))
        return -1;
    if (inPos == in.size())
        return -1;
    return in[inPos++];
}

bool WinSerialPort::waitForBytes(int timeoutMs)
{
    if (!isOpen() || !flush())
        return false;
    if (inPos < in.size())
        return true;
    // Blocks in the system's read until a byte arrives or the time is up, then takes what
    // came with it.
    if (!setWait(timeoutMs > 0 ? static_cast<unsigned long>(timeoutMs) : 0) || !take(1))
        return false;
    if (inPos < in.size() && setWait(0))
        take();
    return inPos < in.size();
}

std::unique_ptr<SerialPort> makeSystemPort() { return std::make_unique<WinSerialPort>(); }

std::vector<std::string> systemPortNames() { return {}; }

} // namespace kestrel
