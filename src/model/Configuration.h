#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace kestrel {

constexpr int kPinCount = 32;      // the module's pins 0..31
constexpr int kPinRecords = 33;    // plus the spare record 32
constexpr int kAspectRecords = 13; // only 0..11 are used
constexpr int kStepRecords = 10;   // only 0..8 are used
constexpr std::int16_t kAllOnes = -1;

// One step of an aspect program, six bytes in this order.
struct StepRecord {
    std::uint8_t Instruction = 0; // 0 = the empty step "-"
    std::uint8_t Fade = 0;        // 1 = fade flag set
    std::uint8_t Par0 = 0;
    std::uint8_t Par1 = 0;
    std::uint8_t Par2 = 0;
    std::uint8_t Par3 = 0;
    bool operator==(const StepRecord&) const = default;
};

struct AspectRecord {
    std::string Description;
    std::int16_t AspectMark = 0;
    std::array<StepRecord, kStepRecords> Steps{};
    bool operator==(const AspectRecord&) const = default;
};

struct PinRecord {
    std::string Description;
    std::string DeviceDescription;
    std::int16_t DeviceOffset = 0;
    std::uint8_t ConfigMode = 0; // 0 not configured; the modes and their meaning are pins/'s
    // P1..P11 are ConfigParams[0..10]; ConfigParams[11] is the twelfth byte (P12)
    // that a long configuration reply can fill but no page shows.
    std::array<std::uint8_t, 12> ConfigParams{};
    std::uint8_t OutputValue = 0; // current servo position (+64) or PWM level
    std::int16_t PinMarkA = 0;
    std::uint8_t InitAspect = 0; // initial aspect + 1; 0 = none
    std::uint8_t DccCount = 0;
    std::uint8_t XDccCount = 0;
    std::uint8_t LynxCount = 0;
    std::int16_t PinMarkB = 0;
    std::uint8_t AspectLayout = 0; // 2 = 12 aspects of 3 steps, 3 = 4 of 9, else none
    std::int16_t PinMarkC = 0;
    std::array<AspectRecord, kAspectRecords> Aspects{};
    bool operator==(const PinRecord&) const = default;

    // Parameter Pn (n = 1..12) of the configuration block.
    std::uint8_t& P(int n);
    std::uint8_t P(int n) const;
};

// Event-On and Event-Off actions of one pin: entries for input slots 0..3 (a fifth is
// never used); -1 = no action. All entries start at 0.
struct EventRecord {
    std::array<std::int16_t, 5> OnEvent{};
    std::array<std::int16_t, 5> OffEvent{};
    bool operator==(const EventRecord&) const = default;
};

// The aspects and steps that a layout uses: (aspects, steps per aspect); (0, 0) for none.
struct LayoutSlots {
    int aspects = 0;
    int steps = 0;
};
LayoutSlots layoutSlots(int aspectLayout);

// One module's configuration as the program holds it.
struct Configuration {
    Configuration(); // start-up values

    std::array<PinRecord, kPinRecords> Pins{};
    std::array<EventRecord, kPinRecords> EventMap{};

    std::array<std::uint8_t, kPinRecords> DccFirstIndex{};
    std::array<std::uint8_t, kPinRecords> XDccFirstIndex{};
    std::array<std::uint8_t, kPinRecords> LynxFirstIndex{};
    std::uint8_t DccTotal = 0;
    std::uint8_t XDccTotal = 0;
    std::uint8_t LynxTotal = 0;

    int CurrentPin = 0;    // 0..31
    int CurrentAspect = 0; // 0..11
    int CurrentStep = 0;   // 0..8
    int NumberingBase = 0; // 0, or 1 while "Start numbering at 1" is checked

    bool operator==(const Configuration&) const = default;

    // Range-checked access: a bad index is a ProgramFault.
    PinRecord& pin(int p);
    const PinRecord& pin(int p) const;
    AspectRecord& aspect(int p, int a);
    const AspectRecord& aspect(int p, int a) const;
    StepRecord& step(int p, int a, int s);
    const StepRecord& step(int p, int a, int s) const;
    EventRecord& events(int p);
    const EventRecord& events(int p) const;
};

} // namespace kestrel
