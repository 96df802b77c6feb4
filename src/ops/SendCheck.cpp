#include "ops/SendCheck.h"

#include "base/Text.h"
#include "model/StepCodec.h"
#include "model/WireLimits.h"
#include "ops/EventControl.h"
#include "pins/PinConfig.h"
#include "session/Session.h"

#include <algorithm>
#include <numeric>

namespace kestrel {

namespace {

std::string outside(std::string_view what, long value, long lo, long hi)
{
    return value < lo || value > hi ? cannotSendText(what, value, lo, hi) : std::string();
}

std::string dataByte(std::string_view what, long value) { return outside(what, value, 0, kDataByteMax); }

// The first problem of a list, or "".
std::string first(std::initializer_list<std::string> problems)
{
    for (const auto& p : problems)
        if (!p.empty())
            return p;
    return {};
}

std::string shownPin(const Configuration& config, int pin)
{
    return "Pin " + std::to_string(pin + config.NumberingBase);
}

std::string withPlace(const std::string& place, const std::string& problem)
{
    return problem.empty() ? problem : place + ": " + problem;
}

std::string unsendableStep(const StepRecord& step)
{
    const auto b = encodeStep(step);
    if (b[0] > kDataByteMax)
        return cannotSendText("instruction code", b[0], 0, kDataByteMax);
    // SendSerial 1 and 2 carry Par1 and Par2 as 8-bit values; Par0 is not sent.
    const bool packed = step.Instruction == 4 || step.Instruction == 5;
    return first({packed ? "" : dataByte("Par0", step.Par0),
                  packed ? outside("Par1", step.Par1, 0, 255) : dataByte("Par1", step.Par1),
                  packed ? outside("Par2", step.Par2, 0, 255) : dataByte("Par2", step.Par2),
                  dataByte("Par3", step.Par3)});
}

std::string unsendablePin(const Configuration& config, int p, bool withPinConfig)
{
    const PinRecord& r = config.pin(p);
    const std::string place = shownPin(config, p);
    std::string problem = first({dataByte("aspect layout", r.AspectLayout),
                                 outside("initial aspect", r.InitAspect, 0, kInitAspectMax),
                                 outside("DCC address count", r.DccCount, 0, kDccCountMax),
                                 outside("eXtended DCC address count", r.XDccCount, 0, kXDccCountMax),
                                 outside("serial address count", r.LynxCount, 0, kLynxCountMax)});
    if (!problem.empty())
        return withPlace(place, problem);
    const LayoutSlots slots = layoutSlots(r.AspectLayout);
    for (int a = 0; a < slots.aspects; ++a) {
        problem = unsendableAspect(config, p, a);
        if (!problem.empty())
            return problem;
    }
    return withPinConfig ? unsendablePinConfig(config, p, 1) : std::string();
}

} // namespace

std::string unsendableAspect(const Configuration& config, int pin, int aspect)
{
    const LayoutSlots slots = layoutSlots(config.pin(pin).AspectLayout);
    for (int s = 0; s < slots.steps; ++s) {
        const std::string problem = unsendableStep(config.step(pin, aspect, s));
        if (!problem.empty())
            return withPlace(shownPin(config, pin) + ", aspect " + std::to_string(aspect) + ", step " +
                                 std::to_string(s),
                             problem);
    }
    return {};
}

std::vector<int> allPins()
{
    std::vector<int> pins(kPinCount);
    std::iota(pins.begin(), pins.end(), 0);
    return pins;
}

std::string unsendableIdString(const GeneralSettings& g)
{
    const IdStringCheck id = checkIdString(g.TextGenIDString);
    return id.refused ? id.message : std::string();
}

namespace {

std::string dccAddress(std::string_view what, const std::string& text)
{
    return outside(what, valInt(text), 0, kDccAddressMax);
}

// Items whose values are checked under names of their own, or as a whole; every other
// item has each data byte checked under its name in kGeneralItems.
using ItemCheck = std::string (*)(const GeneralSettings&);
const std::pair<GeneralItem, ItemCheck> kItemChecks[] = {
    {kItemIdString, unsendableIdString},
    {kItemDccAddress,
     [](const GeneralSettings& g) { return dccAddress("DCC address", g.TextGenDCCAddress); }},
    {kItemXDccAddress,
     [](const GeneralSettings& g) { return dccAddress("eXtended DCC address", g.TextGenXDCCAddress); }},
    {kItemSerialAddressing,
     [](const GeneralSettings& g) { return dataByte("Lynx flex-address", serialAddressModeByte(g)); }},
    {kItemHardwareConfig,
     [](const GeneralSettings& g) {
         const auto h = hardwareConfigBytes(g);
         return dataByte("hardware configuration", std::max({h[0], h[1], h[2], h[3]}));
     }},
    {kItemGreenLed,
     [](const GeneralSettings& g) { return dataByte("green LED function", ledByte(g.CheckLCGreen)); }},
    {kItemOrangeLed,
     [](const GeneralSettings& g) { return dataByte("orange LED function", ledByte(g.CheckLCOrange)); }},
    {kItemSerialPort,
     [](const GeneralSettings& g) {
         return first({dataByte("serial port enable", g.CheckGenSerialEnable),
                       dataByte("serial port settings", serialPortByte(g))});
     }},
    {kItemEventEnable,
     [](const GeneralSettings& g) {
         return first(
             {dataByte("event enable map", enableMapOn(g)), dataByte("event enable map", enableMapOff(g))});
     }},
};

std::string unsendableItem(const GeneralSettings& g, const GeneralItemCodec& row)
{
    for (const auto& [item, check] : kItemChecks)
        if (item == row.item)
            return check(g);
    const GeneralItemInfo* info = generalItemInfo(row.item);
    for (int b : row.encode(g))
        if (std::string problem = dataByte(info ? info->name : "general item", b); !problem.empty())
            return problem;
    return {};
}

} // namespace

std::string unsendableFamily(const GeneralSettings& g, GeneralFamily family)
{
    for (const GeneralItemCodec* row : familyWriteOrder(family))
        if (std::string problem = unsendableItem(g, *row); !problem.empty())
            return problem;
    return {};
}

std::string unsendableDcc(const GeneralSettings& g) { return unsendableFamily(g, GeneralFamily::Dcc); }

std::string unsendableSerialAddressing(const GeneralSettings& g)
{
    return unsendableFamily(g, GeneralFamily::Addressing);
}

std::string unsendableGeneral(const GeneralSettings& g)
{
    for (const GeneralItemCodec& row : kGeneralCodecs)
        if (std::string problem = unsendableItem(g, row); !problem.empty())
            return problem;
    return {};
}

std::string unsendablePins(const Configuration& config, const std::vector<int>& pins, bool withPinConfig)
{
    for (int p : pins) {
        std::string problem = unsendablePin(config, p, withPinConfig);
        if (!problem.empty())
            return problem;
    }
    return {};
}

std::string unsendablePinConfig(const Configuration& config, int pin, int target)
{
    const std::vector<int> bytes = pinConfigBytes(config.pin(pin), target);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::string what =
            i == 0 ? std::string("configuration mode") : "configuration parameter " + std::to_string(i);
        const std::string problem = dataByte(what, bytes[i]);
        if (!problem.empty())
            return withPlace(shownPin(config, pin), problem);
    }
    return {};
}

std::string unsendableEvents(const Configuration& config, const std::vector<int>& pins)
{
    for (int p : pins)
        for (const EventSide side : {EventSide::On, EventSide::Off}) {
            const auto& e = side == EventSide::On ? config.events(p).OnEvent : config.events(p).OffEvent;
            for (int slot = 0; slot < kEventSlots; ++slot) {
                const std::string what = std::string(side == EventSide::On ? "Event-On(" : "Event-Off(") +
                                         std::to_string(slot) + ") action";
                const std::string problem = outside(what, e[slot], kEventActionMin, kEventActionWireMax);
                if (!problem.empty())
                    return withPlace(shownPin(config, p), problem);
            }
        }
    return {};
}

std::string unsendableConfiguration(const Configuration& config, const GeneralSettings& g, bool withPinConfig)
{
    return first({unsendableGeneral(g), unsendablePins(config, allPins(), withPinConfig),
                  unsendableEvents(config, allPins())});
}

bool sendable(Session& session, const std::string& problem)
{
    if (problem.empty())
        return true;
    session.dialogs().message(problem, Icon::Warning);
    return false;
}

} // namespace kestrel
