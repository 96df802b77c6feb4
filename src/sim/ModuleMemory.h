#pragma once
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace kestrel::sim {

constexpr int kModulePins = 32;
constexpr int kStepAspects = 12; // step slots: 12 aspects ...
constexpr int kStepSteps = 9;    // ... of 9 steps, whatever the layout
constexpr std::size_t kIdStringMax = 12;

// Everything one pin of a module stores. Values are kept as the requests carried them.
struct PinMemory {
    std::uint8_t aspectLayout = 0;
    // Step slots [aspect][step], five bytes each, byte for byte as written by command 99.
    std::array<std::array<std::array<std::uint8_t, 5>, kStepSteps>, kStepAspects> steps{};
    std::uint8_t initialAspect = 15; // low nibble of the tag-7 entry; 15 = none
    std::uint8_t dccCount = 0;       // 0..7
    bool xdcc = false;               // one eXtended DCC address
    std::uint8_t lynxCount = 0;      // 0..7
    std::uint8_t deviceOffset = 0;   // 5 bits: (first pin of the device - pin) mod 32
    // Event-On and Event-Off slot bytes (slot * 16 + action, 15 = none), as written.
    std::array<std::uint8_t, 4> eventOn{0x0F, 0x1F, 0x2F, 0x3F};
    std::array<std::uint8_t, 4> eventOff{0x0F, 0x1F, 0x2F, 0x3F};
    // Pin configuration: the mode byte followed by the parameter bytes, exactly as the
    // last "a" (flash) or "A" (active) request carried them (at most 13 bytes). In the
    // active set the byte after the mode is the current output value (servo position
    // + 64 or PWM level), which the live commands change.
    std::vector<std::uint8_t> flashConfig{0};
    std::vector<std::uint8_t> activeConfig{0};

    std::uint8_t outputValue() const { return activeConfig.size() > 1 ? activeConfig[1] : 0; }
    void setOutputValue(std::uint8_t v);

    bool operator==(const PinMemory&) const = default;
};

// Everything a module stores, in the form of the general setting items.
struct ModuleMemory {
    static std::map<int, std::vector<std::uint8_t>> moreItems();

    std::string idString;                         // item 10, at most 12 characters
    std::array<std::uint8_t, 4> hardwareConfig{}; // item 1, one byte per group of 8 pins
    std::uint8_t extendedAddress = 0;             // item 2
    std::array<std::uint8_t, 4> groupMask{};      // item 3
    std::uint8_t dccAddressLow = 0;               // item 4: address = high * 64 + low
    std::uint8_t dccAddressHigh = 0;
    std::uint8_t dccOptions = 0;     // item 5
    std::uint8_t greenLed = 0;       // item 6
    std::uint8_t orangeLed = 0;      // item 7
    std::uint8_t flexEnable = 0;     // item 8, first byte
    std::uint8_t addressMode = 64;   // item 8, second byte (64 = native mode)
    std::uint8_t xdccAddressLow = 0; // item 12
    std::uint8_t xdccAddressHigh = 0;
    std::uint8_t serialEnable = 0; // item 13
    std::uint8_t serialLine = 0;
    std::uint8_t eventOnEnable = 0; // item 11, bit set = input disabled
    std::uint8_t eventOffEnable = 0;
    std::array<std::uint8_t, 4> firmwareVersion{1, 2, 3, 4}; // item 0 (read only)
    // The items the module keeps just as they are written, by number, as the factory
    // leaves them (moreItems in ModuleMemory.cpp lists them); a write must keep the length.
    std::map<int, std::vector<std::uint8_t>> plainItems = moreItems();
    std::array<PinMemory, kModulePins> pins{};

    // What the module does when it starts: every pin takes its flash configuration as
    // the active one, the output starting where the flash set puts it (a servo's start
    // position, a PWM pin's level).
    void powerUp();

    int dccAddress() const { return dccAddressHigh * 64 + dccAddressLow; }
    int xdccAddress() const { return xdccAddressHigh * 64 + xdccAddressLow; }

    // Reply data of a general-setting read (without the echo), or false for an item the
    // module does not have.
    bool readItem(int item, std::vector<std::uint8_t>& data) const;
    // Stores a general-setting write; false (nothing changed) for an unknown item or a
    // wrong number of data bytes. Item 0 (erase) is handled by the module.
    bool writeItem(int item, const std::vector<std::uint8_t>& data);

    bool operator==(const ModuleMemory&) const = default;
};

// The eight confirmation bytes that must follow write item 0 for an erase.
constexpr std::array<std::uint8_t, 8> kEraseConfirmation{61, 17, 92, 8, 33, 70, 15, 44};

} // namespace kestrel::sim
