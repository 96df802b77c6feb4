#include "sim/ModuleMemory.h"

namespace kestrel::sim {

void PinMemory::setOutputValue(std::uint8_t v)
{
    if (activeConfig.size() < 2)
        activeConfig.resize(2, 0);
    activeConfig[1] = v;
}

void ModuleMemory::powerUp()
{
    for (PinMemory& pin : pins)
        pin.activeConfig = pin.flashConfig;
}

std::map<int, std::vector<std::uint8_t>> ModuleMemory::moreItems()
{
    // Item number and the bytes a new module holds; none beyond the fields so far.
    return {};
}

bool ModuleMemory::readItem(int item, std::vector<std::uint8_t>& data) const
{
    if (const auto more = plainItems.find(item); more != plainItems.end()) {
        data = more->second;
        return true;
    }
    switch (item) {
    case 0:
        data.assign(firmwareVersion.begin(), firmwareVersion.end());
        return true;
    case 1:
        data.assign(hardwareConfig.begin(), hardwareConfig.end());
        return true;
    case 2:
        data = {extendedAddress};
        return true;
    case 3:
        data.assign(groupMask.begin(), groupMask.end());
        return true;
    case 4:
        data = {dccAddressLow, dccAddressHigh};
        return true;
    case 5:
        data = {dccOptions};
        return true;
    case 6:
        data = {greenLed};
        return true;
    case 7:
        data = {orangeLed};
        return true;
    case 8:
        data = {flexEnable, addressMode};
        return true;
    case 10:
        data.assign(idString.begin(), idString.end());
        return true;
    case 11:
        data = {eventOnEnable, eventOffEnable};
        return true;
    case 12:
        data = {xdccAddressLow, xdccAddressHigh};
        return true;
    case 13:
        data = {serialEnable, serialLine};
        return true;
    default:
        return false;
    }
}

namespace {
template <std::size_t N> bool store(std::array<std::uint8_t, N>& into, const std::vector<std::uint8_t>& data)
{
    if (data.size() != N)
        return false;
    for (std::size_t i = 0; i < N; ++i)
        into[i] = data[i];
    return true;
}

bool store(std::uint8_t& a, const std::vector<std::uint8_t>& data)
{
    if (data.size() != 1)
        return false;
    a = data[0];
    return true;
}

bool store(std::uint8_t& a, std::uint8_t& b, const std::vector<std::uint8_t>& data)
{
    if (data.size() != 2)
        return false;
    a = data[0];
    b = data[1];
    return true;
}
} // namespace

bool ModuleMemory::writeItem(int item, const std::vector<std::uint8_t>& data)
{
    if (const auto more = plainItems.find(item); more != plainItems.end()) {
        if (data.size() != more->second.size())
            return false;
        more->second = data;
        return true;
    }
    switch (item) {
    case 1:
        return store(hardwareConfig, data);
    case 2:
        return store(extendedAddress, data);
    case 3:
        return store(groupMask, data);
    case 4:
        return store(dccAddressLow, dccAddressHigh, data);
    case 5:
        return store(dccOptions, data);
    case 6:
        return store(greenLed, data);
    case 7:
        return store(orangeLed, data);
    case 8:
        return store(flexEnable, addressMode, data);
    case 10:
        if (data.size() > kIdStringMax)
            return false;
        idString.assign(data.begin(), data.end());
        return true;
    case 11:
        return store(eventOnEnable, eventOffEnable, data);
    case 12:
        return store(xdccAddressLow, xdccAddressHigh, data);
    case 13:
        return store(serialEnable, serialLine, data);
    default:
        return false;
    }
}

} // namespace kestrel::sim
