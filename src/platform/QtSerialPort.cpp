#include "platform/QtSerialPort.h"

#include "platform/SystemPort.h"

#include <QSerialPortInfo>

#include <algorithm>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <QStringList>
#include <chrono>
#include <thread>

#ifndef _WIN32
#include <poll.h>
#include <termios.h>
#endif

namespace kestrel {

QtSerialPort::QtSerialPort()
{
#ifdef __linux__
    // The waits sleep for a wire time of a few hundred microseconds; the default timer slack
    // of 50 us would add a tenth to each of them.
    prctl(PR_SET_TIMERSLACK, 1000UL, 0, 0, 0);
#endif
}
QtSerialPort::~QtSerialPort() { close(); }

void QtSerialPort::select(const std::string& n) { name = n; }

static QString portPath(const std::string& name)
{
#ifdef _WIN32
    // The numbered ports of the list are COM ports.
    bool numeric = !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
    if (numeric)
        return QStringLiteral("COM") + QString::fromStdString(name);
#endif
    return QString::fromStdString(name);
}

bool QtSerialPort::open()
{
    error.clear();
    if (port().isOpen())
        port().close();
    device = std::make_unique<QSerialPort>();
    if (name.empty()) {
        error = "no port chosen";
        return false;
    }
    port().setPortName(portPath(name));
    if (!port().open(QIODevice::ReadWrite)) {
        error = port().errorString().toStdString();
        return false;
    }
    if (!applySettings() && !(clearParity() && applySettings())) {
        error = "cannot set " + settingsText + ": " + port().errorString().toStdString();
        port().close();
        return false;
    }
    port().clear();
    return true;
}

bool QtSerialPort::applySettings()
{
    return port().setBaudRate(baud) && port().setParity(QSerialPort::OddParity) &&
           port().setDataBits(QSerialPort::Data8) && port().setStopBits(QSerialPort::OneStop) &&
           port().setFlowControl(QSerialPort::NoFlowControl);
}

bool QtSerialPort::clearParity()
{
#ifndef _WIN32
    // A program that ended without closing the port (killed) leaves a pseudo-terminal with
    // odd parity, which it cannot be set to again ("Invalid argument"): no parity first.
    termios t{};
    const int fd = static_cast<int>(port().handle());
    if (::tcgetattr(fd, &t) != 0)
        return false;
    t.c_cflag &= ~static_cast<tcflag_t>(PARENB | PARODD);
    return ::tcsetattr(fd, TCSANOW, &t) == 0;
#else
    return false;
#endif
}

// True when the other end has gone (an adapter pulled out, a pseudo-terminal whose other
// side closed). The system then reports a hang-up at once on every wait while reads
// return nothing, and QSerialPort reports no error of its own: a wait for a reply would
// spin to its time-out and end as "no response" instead of a lost port.
static bool hungUp(QSerialPort& port)
{
#ifndef _WIN32
    pollfd p{static_cast<int>(port.handle()), POLLIN, 0};
    return ::poll(&p, 1, 0) > 0 && (p.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
#else
    (void)port;
    return false;
#endif
}

void QtSerialPort::close()
{
    if (port().isOpen()) {
        flushWrites(); // what was written still goes out (an erase frame is the last thing sent)
        port().close();
    }
}

bool QtSerialPort::isOpen() const { return port().isOpen(); }

void QtSerialPort::setSettings(const std::string& s)
{
    settingsText = s;
    const int rate = QString::fromStdString(s).split(',').value(0).toInt();
    baud = rate > 0 ? rate : 19200;
    if (port().isOpen())
        port().setBaudRate(baud);
}

bool QtSerialPort::failed()
{
    const auto e = port().error();
    if (e == QSerialPort::ResourceError || e == QSerialPort::PermissionError ||
        e == QSerialPort::DeviceNotFoundError) {
        error = port().errorString().toStdString();
        return true;
    }
    return false;
}

bool QtSerialPort::writeByte(std::uint8_t b)
{
    if (!port().isOpen() || failed())
        return false;
    if (!port().putChar(static_cast<char>(b))) {
        failed();
        return false;
    }
    // The frame's bytes are gathered and handed to the system together by flush().
    return true;
}

bool QtSerialPort::flush()
{
    if (!port().isOpen())
        return false;
    port().flush();
    return !failed();
}

void QtSerialPort::flushWrites()
{
    if (port().bytesToWrite() > 0)
        port().waitForBytesWritten(100);
}

int QtSerialPort::bytesWaiting()
{
    if (!port().isOpen())
        return 0;
    flushWrites();
    // Take in what the system holds, without blocking; when a frame needs several more
    // bytes the coming wait does that after letting them arrive.
    if (port().bytesAvailable() == 0 && expected <= 1)
        port().waitForReadyRead(0);
    return static_cast<int>(port().bytesAvailable());
}

int QtSerialPort::readByte()
{
    char c;
    if (!port().isOpen() || !port().getChar(&c))
        return -1;
    return static_cast<unsigned char>(c);
}

bool QtSerialPort::waitForBytes(int timeoutMs)
{
    if (!port().isOpen())
        return false;
    flushWrites();
    if (port().bytesAvailable() > 0)
        return true;
    // When the frame still needs several bytes, sleep while the wire carries all but the
    // last of them, then wait for that one: a few wake-ups a reply instead of one a byte.
    const int missing = expected;
    expected = 0;
    if (missing > 1 && baud > 0) {
        const long us = std::min<long>(1000L * timeoutMs, (missing - 1) * 11L * 1000000L / baud);
        std::this_thread::sleep_for(std::chrono::microseconds(us));
        timeoutMs -= static_cast<int>(us / 1000);
        if (port().waitForReadyRead(0) || port().bytesAvailable() > 0)
            return true;
    }
    // Blocks in the system's wait until a byte arrives or the time is up.
    const bool ready = port().waitForReadyRead(timeoutMs);
    if (!ready && failed()) {
        port().close();
    } else if (!ready && hungUp(port())) {
        error = "the port hung up";
        port().close();
    }
    return ready && port().bytesAvailable() > 0;
}

std::vector<std::string> QtSerialPort::systemPorts()
{
    std::vector<std::string> out;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        out.push_back(info.systemLocation().toStdString());
    return out;
}

// Qt's serial port is the system port wherever the program is built with it.
std::unique_ptr<SerialPort> makeSystemPort() { return std::make_unique<QtSerialPort>(); }

std::vector<std::string> systemPortNames() { return QtSerialPort::systemPorts(); }

} // namespace kestrel
