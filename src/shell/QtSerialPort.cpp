#include "shell/QtSerialPort.h"

#include <QSerialPortInfo>
#include <QStringList>

#ifndef _WIN32
#include <poll.h>
#endif

namespace kestrel {

QtSerialPort::QtSerialPort() = default;
QtSerialPort::~QtSerialPort() { close(); }

void QtSerialPort::select(const std::string& n)
{
    name = n;
}

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
    if (port.isOpen())
        port.close();
    if (name.empty()) {
        error = "no port chosen";
        return false;
    }
    port.setPortName(portPath(name));
    const QStringList parts = QString::fromStdString(settingsText).split(',');
    const int baud = parts.value(0).toInt();
    if (!port.open(QIODevice::ReadWrite)) {
        error = port.errorString().toStdString();
        return false;
    }
    if (!port.setBaudRate(baud > 0 ? baud : 19200) || !port.setParity(QSerialPort::OddParity) ||
        !port.setDataBits(QSerialPort::Data8) || !port.setStopBits(QSerialPort::OneStop) ||
        !port.setFlowControl(QSerialPort::NoFlowControl)) {
        error = "cannot set " + settingsText + ": " + port.errorString().toStdString();
        port.close();
        return false;
    }
    port.clear();
    return true;
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
    if (port.isOpen())
        port.close();
}

bool QtSerialPort::isOpen() const
{
    return port.isOpen();
}

void QtSerialPort::setSettings(const std::string& s)
{
    settingsText = s;
    if (port.isOpen())
        port.setBaudRate(QString::fromStdString(s).split(',').value(0).toInt());
}

bool QtSerialPort::failed()
{
    const auto e = port.error();
    if (e == QSerialPort::ResourceError || e == QSerialPort::PermissionError || e == QSerialPort::DeviceNotFoundError) {
        error = port.errorString().toStdString();
        return true;
    }
    return false;
}

bool QtSerialPort::writeByte(std::uint8_t b)
{
    if (!port.isOpen() || failed())
        return false;
    if (!port.putChar(static_cast<char>(b)))
    {
        failed();
        return false;
    }
    // Hand the byte to the system at once; the wire paces it, not us.
    port.flush();
    return !failed();
}

void QtSerialPort::flushWrites()
{
    if (port.bytesToWrite() > 0)
        port.waitForBytesWritten(100);
}

int QtSerialPort::bytesWaiting()
{
    if (!port.isOpen())
        return 0;
    flushWrites();
    if (port.bytesAvailable() == 0)
        port.waitForReadyRead(0); // take in what the system holds, without blocking
    return static_cast<int>(port.bytesAvailable());
}

int QtSerialPort::readByte()
{
    char c;
    if (!port.isOpen() || !port.getChar(&c))
        return -1;
    return static_cast<unsigned char>(c);
}

bool QtSerialPort::waitForBytes(int timeoutMs)
{
    if (!port.isOpen())
        return false;
    flushWrites();
    if (port.bytesAvailable() > 0)
        return true;
    // Blocks in the system's wait until a byte arrives or the time is up.
    const bool ready = port.waitForReadyRead(timeoutMs);
    if (!ready && failed()) {
        port.close();
    } else if (!ready && hungUp(port)) {
        error = "the port hung up";
        port.close();
    }
    return ready && port.bytesAvailable() > 0;
}

std::vector<std::string> QtSerialPort::systemPorts()
{
    std::vector<std::string> out;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        out.push_back(info.systemLocation().toStdString());
    return out;
}

} // namespace kestrel
