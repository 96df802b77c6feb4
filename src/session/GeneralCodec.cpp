#include "session/GeneralSettings.h"

#include "base/ProgramFault.h"
#include "base/Text.h"

#include <algorithm>

namespace kestrel {

namespace {
int bit(int value, int k) { return (value >> k) & 1; }
} // namespace

int dccOptionsByte(const GeneralSettings& g)
{
    return g.OptGenDCC_PRP + 4 * g.ChkGenDCC_BPSI + 8 * g.ChkGenDCCAllow0;
}

void setDccOptions(GeneralSettings& g, int b)
{
    g.OptGenDCC_PRP = b & 3;
    g.ChkGenDCC_BPSI = bit(b, 2);
    g.ChkGenDCCAllow0 = bit(b, 3);
}

std::array<int, 2> dccAddressBytes(const std::string& text)
{
    const long a = valInt(text);
    // Floor division, so that low stays 0..63 whatever the sign (a negative address
    // gives a negative high byte, which the link refuses as a data byte).
    long high = a / 64;
    long low = a % 64;
    if (low < 0) {
        low += 64;
        --high;
    }
    return {static_cast<int>(low), static_cast<int>(high)};
}

int serialAddressModeByte(const GeneralSettings& g)
{
    return g.CheckGenKestrelNative == 1 ? 64 : g.LynxFlexAddress;
}

std::array<int, 4> groupMaskBytes(const GeneralSettings& g)
{
    std::array<int, 4> m{};
    for (std::size_t grp = 0; grp < 4; ++grp)
        for (std::size_t k = 0; k < 4; ++k)
            m[grp] += g.CheckGenXGM[4 * grp + k] * (1 << k);
    return m;
}

std::array<int, 4> hardwareConfigBytes(const GeneralSettings& g)
{
    std::array<int, 4> b{};
    for (int grp = 0; grp < 4; ++grp)
        b[grp] = g.ChkGenHWCSink[grp] + 2 * g.ChkGenHWCSource[grp];
    return b;
}

int ledByte(const std::array<int, 8>& boxes)
{
    int b = 0;
    for (int i = 6; i >= 0; --i)
        b = b * 2 + boxes[i];
    return b;
}

void setLedBoxes(std::array<int, 8>& boxes, int b)
{
    if (b == 0) {
        boxes.fill(0);
        boxes[7] = 1;
        return;
    }
    for (int i = 0; i < 7; ++i)
        boxes[i] = bit(b, i);
    boxes[7] = 0;
}

int serialPortByte(const GeneralSettings& g)
{
    int s = g.ComboGenBaud;
    if (g.OptionGenSerialDatabits == 1)
        s += 8;
    if (g.OptionGenSerialStop == 1)
        s += 64;
    if (g.OptionGenSerialParity == 2)
        s += 32;
    if (g.OptionGenSerialParity == 3)
        s += 48;
    return s;
}

int fileAddressModeByte(const GeneralSettings& g)
{
    return g.CheckGenLynxaddr == 1 ? g.LynxFlexAddress : (g.CheckGenKestrelNative == 1 ? 64 : 0);
}

int enableMapOn(const GeneralSettings& g)
{
    int map = 0;
    for (int box = 3; box >= 0; --box)
        map = map * 2 + 1 - g.CheckInitEE[box];
    return map;
}

int enableMapOff(const GeneralSettings& g)
{
    int map = 0;
    for (int box = 7; box >= 4; --box)
        map = map * 2 + 1 - g.CheckInitEE[box];
    return map;
}

void applyAddressingVisibility(GeneralSettings& g)
{
    g.TextGenLynxaddrVisible = g.CheckGenLynxaddr == 1;
    g.CheckGenKestrelNativeVisible = g.CheckGenLynxaddr != 1;
    g.CheckGenLynxaddrVisible = g.CheckGenKestrelNative != 1;
}

const GeneralItemCodec& generalCodec(GeneralItem item)
{
    for (const GeneralItemCodec& row : kGeneralCodecs)
        if (row.item == item)
            return row;
    throw ProgramFault("no codec for general item " + std::to_string(item));
}

std::vector<const GeneralItemCodec*> familyWriteOrder(GeneralFamily family)
{
    std::vector<const GeneralItemCodec*> rows;
    for (const GeneralItemCodec& row : kGeneralCodecs)
        if (row.family == family)
            rows.push_back(&row);
    return rows;
}

std::vector<const GeneralItemCodec*> familyReadOrder(GeneralFamily family)
{
    auto rows = familyWriteOrder(family);
    std::stable_sort(rows.begin(), rows.end(), [](const GeneralItemCodec* a, const GeneralItemCodec* b) {
        return a->readAt < b->readAt;
    });
    return rows;
}

} // namespace kestrel
