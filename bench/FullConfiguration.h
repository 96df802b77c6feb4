#pragma once
// A fully populated configuration for the benchmarks: every general setting used, every
// event entry set, and all 32 pins with a description, a device, a configuration mode
// and 36 steps (even pins 12 aspects of 3 steps, odd pins 4 aspects of 9), each step a
// real instruction with its parameters and every aspect with a description.
#include "model/Configuration.h"
#include "model/InstructionSet.h"
#include "session/GeneralSettings.h"

#include <string>
#include <vector>

namespace kestrel::bench {

inline void fillFullConfiguration(Configuration& c, GeneralSettings& g)
{
    g.TextGenIDString = "Bench 32x36";
    g.TextGenDCCAddress = "201";
    g.TextGenXDCCAddress = "1017";
    g.OptGenDCC_PRP = 2;
    g.ChkGenDCC_BPSI = 1;
    g.ChkGenDCCAllow0 = 1;
    g.CheckGenKestrelNative = 1;
    g.CheckGenLynxaddr = 0;
    g.ExtendedAddress = 17;
    g.TextGenXaddr = "17";
    for (int i = 0; i < 16; ++i)
        g.CheckGenXGM[i] = (i % 3) == 0;
    for (int i = 0; i < 4; ++i) {
        g.ChkGenHWCSink[i] = i & 1;
        g.ChkGenHWCSource[i] = (i >> 1) & 1;
    }
    for (int k = 0; k < 7; ++k) {
        g.CheckLCGreen[k] = k % 2;
        g.CheckLCOrange[k] = (k + 1) % 2;
    }
    g.CheckGenSerialEnable = 1;
    g.ComboGenBaud = 2;
    g.OptionGenSerialDatabits = 1;
    g.OptionGenSerialParity = 2;
    g.OptionGenSerialStop = 1;

    // Instruction codes with a name that the step encoding carries as they are.
    std::vector<int> codes;
    for (int code = 1; code < 64; ++code)
        if (!instructionInfo(code).Name.empty() && (code < 16 || code > 18))
            codes.push_back(code);

    int n = 0;
    for (int p = 0; p < kPinCount; ++p) {
        PinRecord& pin = c.pin(p);
        pin.Description = "Pin " + std::to_string(p) + " lamp group";
        pin.AspectLayout = (p % 2 == 0) ? 2 : 3;
        pin.InitAspect = 1 + p % 4;
        // Devices of four pins: the head at a multiple of 4, the members refer back to it.
        pin.DeviceOffset = static_cast<std::int16_t>(-(p % 4));
        pin.DeviceDescription = pin.DeviceOffset == 0 ? "Signal group " + std::to_string(p / 4) : "";
        pin.DccCount = 1 + p % 3;
        pin.XDccCount = p % 2;
        pin.LynxCount = 1 + p % 2;
        switch (p % 3) {
        case 0: // servo
            pin.ConfigMode = 1;
            for (int k = 1; k <= 11; ++k)
                pin.P(k) = static_cast<std::uint8_t>(k == 2 ? 8 : 10 + k * 5);
            break;
        case 1: // PWM
            pin.ConfigMode = 2;
            for (int k = 1; k <= 5; ++k)
                pin.P(k) = static_cast<std::uint8_t>(k * 6);
            break;
        default: // input
            pin.ConfigMode = 4;
            for (int k = 1; k <= 4; ++k)
                pin.P(k) = static_cast<std::uint8_t>(k * 3);
            break;
        }
        pin.OutputValue = pin.P(1);
        const LayoutSlots slots = layoutSlots(pin.AspectLayout);
        for (int a = 0; a < slots.aspects; ++a) {
            AspectRecord& aspect = c.aspect(p, a);
            aspect.Description = "Aspect " + std::to_string(a);
            for (int s = 0; s < slots.steps; ++s) {
                StepRecord& step = c.step(p, a, s);
                step.Instruction = static_cast<std::uint8_t>(codes[n++ % codes.size()]);
                // Fade travels as bit 4 of the op and is read back for ops 19..63 only.
                const int code = step.Instruction;
                const bool fadeFits = !(code & 16) && code + 16 >= 19 && code + 16 <= 63;
                step.Fade = instructionInfo(code).FadeAllowed && fadeFits ? (n % 2) : 0;
                step.Par0 = static_cast<std::uint8_t>((p + s) % 32);
                step.Par1 = static_cast<std::uint8_t>((a * 7 + s) % 100);
                step.Par2 = static_cast<std::uint8_t>(s * 11 % 128);
                step.Par3 = static_cast<std::uint8_t>((p * 3 + a) % 128);
                normaliseStep(step);
            }
        }
        EventRecord& e = c.events(p);
        for (int i = 0; i < 4; ++i) {
            e.OnEvent[i] = static_cast<std::int16_t>((p + i) % 15);
            e.OffEvent[i] = static_cast<std::int16_t>((p + 2 * i) % 16 - 1); // -1 = no action, too
        }
    }
}

} // namespace kestrel::bench
