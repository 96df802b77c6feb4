#pragma once
#include <array>

namespace kestrel {

// The module's command codes: the first data byte of every request the program sends.
// The simulated module keeps its own copy on purpose, so that the two sides are checked
// against each other.
enum Command : int {
    kPwmDirect = 38,           // a PWM pin's level at once
    kServoDirect = 39,         // a servo's position at once
    kPwmSlow = 54,             // a PWM pin's level through its acceleration
    kServoDynamic = 55,        // a servo's position through its dynamics
    kSendActiveConfig = 65,    // "A": a pin's configuration, active until power-down
    kReadActiveConfig = 81,    // "Q"
    kGeneralWrite = 96,        // a general item; item 0 with the erase sequence erases
    kSendFlashConfig = 97,     // "a": a pin's configuration, kept in flash
    kWriteLayout = 98,         // a pin's aspect layout (the first of the pin writes)
    kWriteStep = 99,           // one step of an aspect
    kWriteInitOrEventOn = 100, // length 3: the initial aspect; length 6: the Event-On slots
    kWriteEventOff = 101,      // the Event-Off slots
    kWriteAddrConfig = 102,    // a pin's address counts and device (the last of the pin writes)
    kGeneralRead = 112,        // "p": a general item; item 0 is the version
    kReadFlashConfig = 113,    // "q"
    kReadLayout = 114,         // "r"
    kReadStep = 115,           // "s"
    kReadEventOn = 116,        // "t": the Event-On slots with the initial aspect entry
    kReadEventOff = 117,       // "u"
    kReadAddrConfig = 118,     // "v"
};

// The general items of commands 96 and 112.
enum GeneralItem : int {
    kItemVersionErase = 0,
    kItemHardwareConfig = 1,
    kItemExtendedAddress = 2,
    kItemGroupMask = 3,
    kItemDccAddress = 4,
    kItemDccOptions = 5,
    kItemGreenLed = 6,
    kItemOrangeLed = 7,
    kItemSerialAddressing = 8,
    kItemIdString = 10,
    kItemEventEnable = 11,
    kItemXDccAddress = 12,
    kItemSerialPort = 13,
};

// What each general item holds, as the traffic shows it, and the length fields of the
// module's answer to its read and of its write (echoed command and item and the data; 0
// where it varies with the text). Item 0 reads the version and, written with the erase
// sequence, erases the configuration memory. The settings behind each item and their
// bytes are kGeneralCodecs (session/GeneralSettings.h).
struct GeneralItemInfo {
    GeneralItem item;
    const char* name;
    int replyLength;
    int writeLength;
};
inline constexpr std::array<GeneralItemInfo, 13> kGeneralItems = {{
    {kItemVersionErase, "version", 6, 10},
    {kItemHardwareConfig, "hardware configuration", 6, 6},
    {kItemExtendedAddress, "eXtended address", 3, 3},
    {kItemGroupMask, "eXtended group mask", 6, 6},
    {kItemDccAddress, "DCC address", 4, 4},
    {kItemDccOptions, "DCC options", 3, 3},
    {kItemGreenLed, "green LED", 3, 3},
    {kItemOrangeLed, "orange LED", 3, 3},
    {kItemSerialAddressing, "serial addressing", 4, 4},
    {kItemIdString, "ID string", 0, 0},
    {kItemEventEnable, "event enable maps", 4, 4},
    {kItemXDccAddress, "eXtended DCC address", 4, 4},
    {kItemSerialPort, "module serial port", 4, 4},
}};

// The row of an item; nullptr for a number that is no general item.
constexpr const GeneralItemInfo* generalItemInfo(int item)
{
    for (const GeneralItemInfo& info : kGeneralItems)
        if (info.item == item)
            return &info;
    return nullptr;
}

constexpr int generalReplyLength(GeneralItem item)
{
    const GeneralItemInfo* info = generalItemInfo(item);
    return info ? info->replyLength : 0;
}

constexpr int generalWriteLength(GeneralItem item)
{
    const GeneralItemInfo* info = generalItemInfo(item);
    return info ? info->writeLength : 0;
}

// The eXtended addresses a module answers at: 0..95 (the header's address byte).
inline constexpr int kExtendedAddressMax = 95;

// A Kestrel frame tunnelled through the Corvid system: 0, this plus the module's address,
// then the inner header, this alone or with the flag of a following eXtended address.
inline constexpr int kTunnelBase = 96;
inline constexpr int kTunnelExtendedFlag = 16;

// A write that no reply paces is followed by this pause, so that the module keeps up.
inline constexpr int kPacingMs = 100;

} // namespace kestrel
