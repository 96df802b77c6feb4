#include "platform/WinSerialPort.h"

#include <gtest/gtest.h>

namespace kestrel {

TEST(WinSerialPort, NamesOpenTheNumberedComDevices)
{
    EXPECT_EQ(WinSerialPort::devicePath("9"), L"\\\\.\\COM9");
    EXPECT_EQ(WinSerialPort::devicePath("COM12"), L"\\\\.\\COM12");
    EXPECT_EQ(WinSerialPort::devicePath("com3"), L"\\\\.\\COM3");
    EXPECT_EQ(WinSerialPort::devicePath("\\\\.\\CNCA0"), L"\\\\.\\CNCA0");
}

TEST(WinSerialPort, LineIsOddParityEightDataBitsOneStopBitWithoutFlowControl)
{
    for (unsigned long baud : {9600UL, 19200UL, 38400UL}) {
        DCB dcb{};
        dcb.fOutxCtsFlow = dcb.fOutX = dcb.fInX = dcb.fNull = dcb.fAbortOnError = TRUE;
        WinSerialPort::lineSettings(dcb, baud);
        EXPECT_EQ(dcb.BaudRate, baud);
        EXPECT_EQ(dcb.ByteSize, 8);
        EXPECT_EQ(dcb.Parity, ODDPARITY);
        EXPECT_TRUE(dcb.fParity);
        EXPECT_EQ(dcb.StopBits, ONESTOPBIT);
        EXPECT_FALSE(dcb.fOutxCtsFlow || dcb.fOutxDsrFlow || dcb.fOutX || dcb.fInX);
        EXPECT_FALSE(dcb.fNull || dcb.fErrorChar || dcb.fAbortOnError);
    }
}

TEST(WinSerialPort, ReadsReturnAtOnceOrWaitForTheBytesAskedFor)
{
    const COMMTIMEOUTS now = WinSerialPort::timeouts(0);
    EXPECT_EQ(now.ReadIntervalTimeout, MAXDWORD);
    EXPECT_EQ(now.ReadTotalTimeoutMultiplier, 0u);
    EXPECT_EQ(now.ReadTotalTimeoutConstant, 0u);
    const COMMTIMEOUTS wait = WinSerialPort::timeouts(250);
    EXPECT_EQ(wait.ReadIntervalTimeout, 0u);
    EXPECT_EQ(wait.ReadTotalTimeoutMultiplier, 0u);
    EXPECT_EQ(wait.ReadTotalTimeoutConstant, 250u);
    EXPECT_GT(wait.WriteTotalTimeoutConstant, 0u);
}

TEST(WinSerialPort, APortThatIsNotThereDoesNotOpenAndSaysWhy)
{
    WinSerialPort port;
    port.select("COM250");
    EXPECT_FALSE(port.open());
    EXPECT_FALSE(port.isOpen());
    EXPECT_FALSE(port.errorString().empty());
    EXPECT_FALSE(port.writeByte(1));
    EXPECT_FALSE(port.waitForBytes(10));
}

} // namespace kestrel
