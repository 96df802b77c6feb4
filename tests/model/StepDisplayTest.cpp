#include "model/StepDisplay.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>

using namespace kestrel;

namespace {

std::string shown(const StepRecord& s, int par, int pin, int base = 0)
{
    return showParameter(s, par, pin, base).text;
}

} // namespace

TEST(StepDisplay, ShowRules)
{
    // Step, parameter, pin, numbering base, shown.
    const std::tuple<StepRecord, int, int, int, const char*> cases[] = {
        {{9, 0, 31, 0, 0, 0}, 0, 31, 0, "-1"}, // pin 31: offset 31 reaches pin 30
        {{9, 0, 31, 0, 0, 0}, 0, 0, 0, "31"},   {{96, 0, 127, 0, 0, 0}, 0, 5, 0, "-1"},
        {{96, 0, 12, 0, 0, 0}, 0, 5, 0, "12"},  {{18, 0, 0, 0, 0, 0}, 0, 3, 1, "1"},
        {{18, 0, 31, 0, 0, 0}, 0, 3, 1, "32"},  {{7, 0, 0, 0, 0, 0}, 1, 3, 1, "1"},
        {{7, 0, 0, 31, 0, 0}, 1, 3, 1, "32"},   {{7, 0, 0, 31, 0, 0}, 1, 3, 0, "31"},
        {{39, 0, 0, 0, 0, 0}, 1, 0, 0, "-64"},  {{39, 0, 0, 127, 0, 0}, 1, 0, 0, "63"},
        {{102, 0, 0, 0, 40, 2}, 2, 0, 0, "40"}, {{102, 0, 0, 0, 40, 2}, 3, 0, 0, "2"}};
    for (const auto& [step, par, pin, base, text] : cases)
        EXPECT_EQ(shown(step, par, pin, base), text)
            << int(step.Instruction) << " par " << par << " pin " << pin;
    const StepRecord on{9, 0, 31, 0, 0, 0};

    const ParameterBox unused = showParameter({102, 0, 0, 0, 40, 2}, 0, 0, 0);
    EXPECT_EQ(std::tuple(unused.used, unused.text), std::tuple(false, "0"));
    EXPECT_THROW(showParameter(on, 4, 0, 0), ProgramFault);
    EXPECT_THROW(showParameter(on, 0, 32, 0), ProgramFault);
}

TEST(StepDisplay, AcceptRules)
{
    // Code, parameter, pin, numbering base, typed, shown afterwards, stored.
    const std::tuple<int, int, int, int, const char*, const char*, int> cases[] = {
        {9, 0, 1, 0, "-3", "-1", 31},   // P.O. on pin 1 cannot reach below pin 0
        {9, 0, 30, 0, "5", "1", 1},     // ... nor above pin 31 from pin 30
        {9, 0, 5, 0, "-2", "-2", 30},   // in range: text kept, five-bit complement stored
        {96, 0, 5, 0, "-1", "-1", 127}, // Accel
        {96, 0, 5, 0, "-7", "-1", 127},  {96, 0, 5, 0, "40", "31", 31},
        {18, 0, 5, 1, "0", "1", 0}, // MXpin numbered from 1
        {18, 0, 5, 1, "33", "32", 31},   {18, 0, 5, 1, "17", "17", 16},
        {7, 1, 5, 1, "0", "1", 0}, // Clone source numbered from 1
        {7, 1, 5, 1, "40", "32", 31},    {7, 1, 5, 0, "40", "31", 31},
        {39, 1, 0, 0, "-100", "-64", 0}, // Set Servo
        {39, 1, 0, 0, "63", "63", 127},  {39, 1, 0, 0, "99", "63", 127},
        {4, 1, 0, 0, "200", "200", 200},                            // SendSerial full byte
        {17, 1, 0, 0, "12", "11", 11},   {1, 2, 0, 0, "9", "8", 8}, // Par2 bounds
        {5, 2, 0, 0, "300", "255", 255}, {18, 2, 0, 0, "40", "31", 31},
        {102, 2, 0, 0, "64", "63", 63},  {102, 2, 0, 0, "-1", "0", 0},
        {102, 3, 0, 0, "5", "3", 3},                                  // Base
        {102, 3, 0, 0, "-2", "0", 0},    {102, 0, 4, 0, "7", "0", 0}, // unused parameter
    };
    for (const auto& [code, par, pin, base, typed, text, stored] : cases) {
        const StepRecord step{static_cast<std::uint8_t>(code), 0, 0, 0, 0, 0};
        const AcceptedParameter a = acceptParameter(step, par, typed, pin, base);
        EXPECT_EQ(std::tuple(a.text, a.stored), std::tuple(text, stored))
            << code << " par " << par << " " << typed;
    }
}

TEST(StepDisplay, StoredValuesReadBackAsTyped)
{
    // "If" values -64..63, Accel -1..31 and P.O. within the pins read back as typed.
    for (int code = 104; code <= 107; ++code)
        for (int v = -64; v <= 63; ++v) {
            StepRecord s{static_cast<std::uint8_t>(code), 0, 0, 0, 0, 0};
            const auto a = acceptParameter(s, 1, std::to_string(v), 0, 0);
            EXPECT_LE(a.stored, 127); // fits the module's seven-bit byte
            s.Par1 = a.stored;
            EXPECT_EQ(shown(s, 1, 0), std::to_string(v));
        }
    EXPECT_EQ(acceptParameter({104, 0, 0, 0, 0, 0}, 1, "-70", 0, 0).text, "-64");
    for (int pin = 0; pin < 32; ++pin)
        for (int v = -pin; v <= 31 - pin; ++v) {
            StepRecord s{9, 0, 0, 0, 0, 0};
            s.Par0 = acceptParameter(s, 0, std::to_string(v), pin, 0).stored;
            EXPECT_EQ(shown(s, 0, pin), std::to_string(v)) << pin;
        }
}

TEST(StepDisplay, StepTime)
{
    // 32256 and 424 ticks; codes up to 63 have no time.
    EXPECT_EQ(std::tuple(stepTimeText({102, 0, 0, 0, 63, 3}), stepTimeText({102, 0, 0, 0, 0, 3}),
                         stepTimeText({112, 0, 0, 0, 53, 1}), stepTimeText({9, 0, 0, 0, 63, 3})),
              std::tuple("10:45.12", "00:00.00", "00:08.48", "00:00.00"));
    EXPECT_EQ(std::tuple(durationText(1325), durationText(50), durationText(3049)),
              std::tuple("00:26.50", "00:01.00", "01:00.98"));
    EXPECT_EQ(std::tuple(stepTimeText({102, 0, 0, 0, 100, 3}), stepTimeText({102, 0, 0, 0, 255, 4})),
              std::tuple("OVFLOW", "OVFLOW")); // above 32767 ticks
    EXPECT_THROW(durationTicks(255, 4), ProgramFault);
}
