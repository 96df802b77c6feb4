#include "forms/PinOverview.h"
#include "base/Translatable.h"

#include "base/Text.h"
#include "forms/AspectEditor.h"
#include "model/PinTools.h"
#include "model/WireLimits.h"

#include <algorithm>

namespace kestrel {

namespace {

constexpr long kLynxAddressMax = 127 * 4 + 3; // flex-address 0..127 in units of 4

std::uint8_t firstIndexOf(const Configuration& config, int pin, AddressKind kind)
{
    switch (kind) {
    case AddressKind::Dcc:
        return config.DccFirstIndex.at(pin);
    case AddressKind::XDcc:
        return config.XDccFirstIndex.at(pin);
    case AddressKind::Lynx:
        return config.LynxFirstIndex.at(pin);
    }
    return 0;
}

// True when some device takes in the pin: it heads one, or it or another pin refers to a head.
bool inDevice(const Configuration& config, int pin)
{
    const PinRecord& rec = config.pin(pin);
    if (rec.DeviceOffset != 0 || !rec.DeviceDescription.empty())
        return true;
    for (int p = 0; p < kPinCount; ++p)
        if (p != pin && config.pin(p).DeviceOffset != 0 && deviceHead(config, p) == pin)
            return true;
    return false;
}

std::string deviceText(const Configuration& config, int pin)
{
    if (!inDevice(config, pin))
        return "";
    const std::string head = std::to_string(deviceHead(config, pin) + config.NumberingBase);
    const std::string description = deviceDescriptionText(config, pin);
    return description.empty() ? head : head + ": " + description;
}

} // namespace

long largestAddress(AddressKind kind) { return kind == AddressKind::Lynx ? kLynxAddressMax : kDccAddressMax; }

long baseAddress(const GeneralSettings& general, AddressKind kind)
{
    if (kind == AddressKind::Lynx)
        return general.CheckGenLynxaddr == 1 ? 4L * general.LynxFlexAddress : 0;
    const long typed =
        valInt(kind == AddressKind::Dcc ? general.TextGenDCCAddress : general.TextGenXDCCAddress);
    return std::max(typed, general.ChkGenDCCAllow0 == 1 ? 0L : 1L);
}

std::string addressText(const Configuration& config, const GeneralSettings& general, int pin,
                        AddressKind kind)
{
    const int count = addressCount(config.pin(pin), kind);
    if (count == 0)
        return KC_TRANSLATABLE("PinOverview", "No addr in use");
    const long first = baseAddress(general, kind) + firstIndexOf(config, pin, kind);
    const long last = first + count - 1;
    const long shown = kind == AddressKind::Lynx ? config.NumberingBase : 0;
    if (last > largestAddress(kind))
        return std::to_string(first + shown) + " .. OVFLOW";
    if (count == 1)
        return std::to_string(first + shown);
    return std::to_string(first + shown) + " .. " + std::to_string(last + shown);
}

std::array<PinOverviewRow, kPinCount> pinOverview(const Configuration& config, const GeneralSettings& general)
{
    static const char* const layoutCaptions[3] = {"0", "4", "12"}; // OptionPAspConf
    std::array<PinOverviewRow, kPinCount> rows;
    for (int p = 0; p < kPinCount; ++p) {
        const PinRecord& rec = config.pin(p);
        rows[p] = {std::to_string(p + config.NumberingBase),
                   rec.Description,
                   modeName(rec.ConfigMode),
                   layoutCaptions[optionOfLayout(rec.AspectLayout)],
                   deviceText(config, p),
                   addressText(config, general, p, AddressKind::Dcc),
                   addressText(config, general, p, AddressKind::XDcc),
                   addressText(config, general, p, AddressKind::Lynx)};
    }
    return rows;
}

} // namespace kestrel
