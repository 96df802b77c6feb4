#include "forms/ConfigDiff.h"

#include "base/ProgramFault.h"
#include "forms/AspectEditor.h"
#include "forms/PinOverview.h"
#include "model/AddressIndex.h"
#include "model/InstructionSet.h"
#include "model/StepDisplay.h"
#include "pins/PinConfig.h"

#include <algorithm>
#include <unordered_map>

namespace kestrel {

namespace {

using Take =
    std::function<void(const Configuration&, const GeneralSettings&, Configuration&, GeneralSettings&)>;

// One item of a configuration: what it is, how the text shows it, its value, and how it is taken.
struct Field {
    DiffGroup group = DiffGroup::General;
    int pin = -1, aspect = -1, step = -1;
    std::string item;  // the whole name, as a difference line shows it
    std::string label; // as its line in the text starts
    int depth = 1;     // indentation level in the text
    std::string value;
    Take take;
};
using Fields = std::vector<Field>;

std::string quoted(const std::string& text) { return "\"" + text + "\""; }
std::string box(int value) { return value == 1 ? "checked" : "unchecked"; }
std::string number(int value) { return std::to_string(value); }
std::string pinNumber(int pin, int base) { return std::to_string(pin + base); }

// ---- General settings ----

template <typename T> Take copyGeneral(T GeneralSettings::*member)
{
    return [member](const Configuration&, const GeneralSettings& from, Configuration&, GeneralSettings& to) {
        to.*member = from.*member;
    };
}

template <typename T, std::size_t N>
Take copyGeneralElement(std::array<T, N> GeneralSettings::*member, std::size_t i)
{
    return [member, i](const Configuration&, const GeneralSettings& from, Configuration&,
                       GeneralSettings& to) { (to.*member)[i] = (from.*member)[i]; };
}

// Serial addressing also decides which of its controls the page shows, as a reader sets them.
Take withAddressingShown(const Take& take)
{
    return [take](const Configuration& c, const GeneralSettings& gf, Configuration& t, GeneralSettings& g) {
        take(c, gf, t, g);
        applyAddressingVisibility(g);
    };
}

void addGeneral(Fields& out, const std::string& label, std::string value, Take take)
{
    out.push_back(
        {DiffGroup::General, -1, -1, -1, "general " + label, label, 1, std::move(value), std::move(take)});
}

const char* const kPeriods[4] = {"500ms", "250ms", "125ms", "62.5ms"};
const char* const kGreen[7] = {"Basic DCC Packet", "eXtd DCC Packet", "Lynx Message", "Kestrel Message",
                               "Green 4",          "Green 5",         "Green 6"};
const char* const kOrange[7] = {"DCC Checksum Error", "Orange 1", "Orange 2", "Orange 3",
                                "Orange 4",           "Orange 5", "Orange 6"};

std::string optionText(int index, const char* const* captions, int count)
{
    return index >= 0 && index < count ? captions[index] : number(index);
}

// ID string, DCC settings, LED control, hardware configuration, serial port.
void generalFields(Fields& out, const GeneralSettings& g, int base)
{
    addGeneral(out, "ID String", quoted(g.TextGenIDString), copyGeneral(&GeneralSettings::TextGenIDString));
    addGeneral(out, "DCC Address", g.TextGenDCCAddress, copyGeneral(&GeneralSettings::TextGenDCCAddress));
    addGeneral(out, "eXtended DCC Address", g.TextGenXDCCAddress,
               copyGeneral(&GeneralSettings::TextGenXDCCAddress));
    addGeneral(out, "Packet Repeat Period", optionText(g.OptGenDCC_PRP, kPeriods, 4),
               copyGeneral(&GeneralSettings::OptGenDCC_PRP));
    addGeneral(out, "Basic Packet State Invert", box(g.ChkGenDCC_BPSI),
               copyGeneral(&GeneralSettings::ChkGenDCC_BPSI));
    addGeneral(out, "Allow Address 0", box(g.ChkGenDCCAllow0),
               copyGeneral(&GeneralSettings::ChkGenDCCAllow0));
    // Only the seven boxes of each LED that the module and the file carry.
    for (std::size_t i = 0; i < 7; ++i)
        addGeneral(out, std::string("Green LED ") + kGreen[i], box(g.CheckLCGreen[i]),
                   copyGeneralElement(&GeneralSettings::CheckLCGreen, i));
    for (std::size_t i = 0; i < 7; ++i)
        addGeneral(out, std::string("Orange LED ") + kOrange[i], box(g.CheckLCOrange[i]),
                   copyGeneralElement(&GeneralSettings::CheckLCOrange, i));
    for (int r = 0; r < 2; ++r)
        for (std::size_t i = 0; i < 4; ++i) {
            const int first = 8 * static_cast<int>(i) + base;
            const std::string label = std::string(r == 0 ? "Sink" : "Source") + " driver pins " +
                                      number(first) + ".." + number(first + 7);
            auto member = r == 0 ? &GeneralSettings::ChkGenHWCSink : &GeneralSettings::ChkGenHWCSource;
            addGeneral(out, label, box((g.*member)[i]), copyGeneralElement(member, i));
        }
    addGeneral(out, "Serial Port Enable", box(g.CheckGenSerialEnable),
               copyGeneral(&GeneralSettings::CheckGenSerialEnable));
    addGeneral(out, "Baud",
               optionText(g.ComboGenBaud, kGenBaudList.data(), static_cast<int>(kGenBaudList.size())),
               copyGeneral(&GeneralSettings::ComboGenBaud));
    const char* const dataBits[2] = {"7 bits", "8 bits"};
    const char* const stopBits[2] = {"1 bit", "2 bits"};
    addGeneral(out, "Data Bits", optionText(g.OptionGenSerialDatabits, dataBits, 2),
               copyGeneral(&GeneralSettings::OptionGenSerialDatabits));
    addGeneral(out, "Stop Bits", optionText(g.OptionGenSerialStop, stopBits, 2),
               copyGeneral(&GeneralSettings::OptionGenSerialStop));
    const int parity = g.OptionGenSerialParity;
    addGeneral(out, "Parity",
               parity == 2   ? "Even"
               : parity == 3 ? "Odd"
                             : "None",
               copyGeneral(&GeneralSettings::OptionGenSerialParity));
}

// Serial addressing, which Write All sends last.
void addressingFields(Fields& out, const GeneralSettings& g, int base)
{
    addGeneral(out, "Enable Native Kestrel Mode", box(g.CheckGenKestrelNative),
               withAddressingShown(copyGeneral(&GeneralSettings::CheckGenKestrelNative)));
    addGeneral(out, "Enable Lynx Flex-Addresss", box(g.CheckGenLynxaddr),
               withAddressingShown(copyGeneral(&GeneralSettings::CheckGenLynxaddr)));
    // The flex-address is carried only while flex-addressing is on.
    addGeneral(out, "Flex-Address",
               g.CheckGenLynxaddr == 1 ? number(4 * g.LynxFlexAddress + base) : "not in use",
               [](const Configuration&, const GeneralSettings& from, Configuration&, GeneralSettings& to) {
                   to.LynxFlexAddress = from.LynxFlexAddress;
                   to.TextGenLynxaddr = from.TextGenLynxaddr;
               });
    addGeneral(out, "eXtended Address", number(g.ExtendedAddress + base),
               [](const Configuration&, const GeneralSettings& from, Configuration&, GeneralSettings& to) {
                   to.ExtendedAddress = from.ExtendedAddress;
                   to.TextGenXaddr = from.TextGenXaddr;
               });
    for (std::size_t i = 0; i < 16; ++i)
        addGeneral(out, "eXtended Group Mask " + number(static_cast<int>(i)), box(g.CheckGenXGM[i]),
                   copyGeneralElement(&GeneralSettings::CheckGenXGM, i));
}

// ---- Pins ----

// Modes whose parameters mean the same: not configured, servo, PWM, input, each unknown mode.
int modeKind(int mode)
{
    const auto page = static_cast<int>(pageOfMode(mode));
    return page >= 0 ? page : 10 + mode;
}

// One parameter of the pin configuration page: the bits of Pn it shows and how.
struct Parameter {
    const char* caption;
    int n;
    int mask;
    std::string (*show)(int pn);
};

std::string plain(int v) { return number(v); }
std::string signedValue(int v) { return number(shownSigned(v)); }
std::string servoRange(int v) { return number(v & 7); }
std::string bit4(int v) { return box((v >> 4) & 1); }
std::string bit5(int v) { return box((v >> 5) & 1); }
std::string driveMode(int v) { return (v & 1) ? "Logaritmic" : "Linear"; }
std::string accelMode(int v) { return (v & 2) ? "Logaritmic" : "Linear"; }

const std::vector<Parameter>& parametersOf(int kind)
{
    static const std::vector<Parameter> none;
    static const std::vector<Parameter> servo = {
        {"Initial Position", 1, 255, signedValue},
        {"Range", 2, 7, servoRange},
        {"Auto Suspend", 2, 16, bit4},
        {"Suspended", 2, 32, bit5},
        {"Midpoint", 3, 255, signedValue},
        {"1/Mass", 4, 255, plain},
        {"Damping", 5, 255, plain},
        {"MaxSpd", 6, 255, plain},
        {"MaxAcc", 7, 255, plain},
        {"BounceDown", 8, 255, signedValue},
        {"BounceDownFactor", 9, 255, plain},
        {"BounceUp", 10, 255, signedValue},
        {"BounceUpFactor", 11, 255, plain},
    };
    static const std::vector<Parameter> pwm = {
        {"Initial Level", 1, 255, plain},       {"Drive Mode", 2, 1, driveMode},
        {"Acceleration Mode", 2, 2, accelMode}, {"Acceleration", 3, 255, plain},
        {"Off - Level", 4, 255, plain},         {"On-Level", 5, 255, plain},
    };
    // The page shows the delays only; the first two parameters travel all the same.
    static const std::vector<Parameter> input = {
        {"Configuration parameter 1", 1, 255, plain},
        {"Configuration parameter 2", 2, 255, plain},
        {"ON-delay (debounce)", 3, 255, plain},
        {"OFF-delay (debounce)", 4, 255, plain},
    };
    switch (kind) {
    case 1:
        return servo;
    case 2:
        return pwm;
    case 3:
        return input;
    default:
        return none;
    }
}

std::string deviceValue(const PinRecord& pin, int p, int base)
{
    if (pin.DeviceOffset == 0 && pin.DeviceDescription.empty())
        return "none";
    std::string text = "first pin " + pinNumber(p + pin.DeviceOffset, base);
    if (pin.DeviceOffset == 0 || !pin.DeviceDescription.empty())
        text += " " + quoted(pin.DeviceDescription);
    return text;
}

std::string layoutValue(int aspectLayout)
{
    const char* const captions[3] = {"0", "4", "12"};
    return captions[optionOfLayout(aspectLayout)];
}

std::string stepValue(const StepRecord& step, int pin, int base)
{
    if (step.Instruction >= kInstructionCodes || instructionInfo(step.Instruction).Name.empty())
        return "code " + number(step.Instruction) + (step.Fade ? " Fade" : "");
    const InstructionInfo& info = instructionInfo(step.Instruction);
    std::string text = quoted(info.Name);
    for (int par = 0; par < 4; ++par) {
        if (!info.used(par))
            continue;
        const std::string& caption = info.caption(par);
        text += " " + (caption.empty() ? "Parameter " + number(par) : caption) + " " +
                showParameter(step, par, pin, base).text;
    }
    if (step.Fade)
        text += " Fade";
    if (step.Instruction > 63)
        text += " " + stepTimeText(step);
    return text;
}

const char* const kCountLabels[3] = {"DCC address count", "eXtended DCC address count",
                                     "Serial address count"};
const AddressKind kKinds[3] = {AddressKind::Dcc, AddressKind::XDcc, AddressKind::Lynx};

void pinFields(Fields& out, const Configuration& config, int p, int base)
{
    const PinRecord& pin = config.pin(p);
    const std::string prefix = "pin " + pinNumber(p, base) + " ";
    auto add = [&](DiffGroup group, int aspect, int step, const std::string& label, int depth,
                   std::string value, Take take) {
        std::string item = prefix;
        if (aspect >= 0)
            item += "aspect " + number(aspect) + " ";
        out.push_back(
            {group, p, aspect, step, item + label, label, depth, std::move(value), std::move(take)});
    };
    auto addPin = [&](const std::string& label, int depth, std::string value, Take take) {
        add(DiffGroup::Pin, -1, -1, label, depth, std::move(value), std::move(take));
    };

    addPin("description", 1, quoted(pin.Description),
           [p](const Configuration& from, const GeneralSettings&, Configuration& to, GeneralSettings&) {
               to.pin(p).Description = from.pin(p).Description;
           });
    addPin("device", 1, deviceValue(pin, p, base),
           [p](const Configuration& from, const GeneralSettings&, Configuration& to, GeneralSettings&) {
               to.pin(p).DeviceOffset = from.pin(p).DeviceOffset;
               to.pin(p).DeviceDescription = from.pin(p).DeviceDescription;
           });
    addPin("mode", 1, modeName(pin.ConfigMode),
           [p](const Configuration& from, const GeneralSettings&, Configuration& to, GeneralSettings&) {
               const PinRecord& f = from.pin(p);
               PinRecord& t = to.pin(p);
               if (modeKind(f.ConfigMode) != modeKind(t.ConfigMode)) {
                   t.ConfigParams = f.ConfigParams;
                   t.OutputValue = f.OutputValue;
               }
               t.ConfigMode = f.ConfigMode;
           });
    for (const Parameter& par : parametersOf(modeKind(pin.ConfigMode)))
        addPin(par.caption, 2, par.show(pin.P(par.n)),
               [p, n = par.n, mask = par.mask](const Configuration& from, const GeneralSettings&,
                                               Configuration& to, GeneralSettings&) {
                   std::uint8_t& t = to.pin(p).P(n);
                   t = static_cast<std::uint8_t>((t & ~mask) | (from.pin(p).P(n) & mask));
               });
    addPin("layout", 1, layoutValue(pin.AspectLayout),
           [p](const Configuration& from, const GeneralSettings&, Configuration& to, GeneralSettings&) {
               const LayoutSlots f = layoutSlots(from.pin(p).AspectLayout);
               const LayoutSlots t = layoutSlots(to.pin(p).AspectLayout);
               const int aspects = std::min(f.aspects, t.aspects), steps = std::min(f.steps, t.steps);
               for (int a = 0; a < kAspectRecords - 1; ++a) {
                   if (a >= aspects)
                       to.aspect(p, a).Description = from.aspect(p, a).Description;
                   for (int s = 0; s < kStepRecords - 1; ++s)
                       if (a >= aspects || s >= steps)
                           to.step(p, a, s) = from.step(p, a, s);
               }
               to.pin(p).AspectLayout = from.pin(p).AspectLayout;
           });
    const LayoutSlots slots = layoutSlots(pin.AspectLayout);
    for (int a = 0; a < slots.aspects; ++a) {
        add(DiffGroup::Aspect, a, -1, "description", 2, quoted(config.aspect(p, a).Description),
            [p, a](const Configuration& from, const GeneralSettings&, Configuration& to, GeneralSettings&) {
                to.aspect(p, a).Description = from.aspect(p, a).Description;
            });
        for (int s = 0; s < slots.steps; ++s)
            add(DiffGroup::Aspect, a, s, "step " + number(s), 2, stepValue(config.step(p, a, s), p, base),
                [p, a, s](const Configuration& from, const GeneralSettings&, Configuration& to,
                          GeneralSettings&) { to.step(p, a, s) = from.step(p, a, s); });
    }
    addPin("initial aspect", 1, number(pin.InitAspect - 1),
           [p](const Configuration& from, const GeneralSettings&, Configuration& to, GeneralSettings&) {
               to.pin(p).InitAspect = from.pin(p).InitAspect;
           });
    for (int k = 0; k < 3; ++k)
        addPin(kCountLabels[k], 1, number(addressCount(pin, kKinds[k])),
               [p, kind = kKinds[k]](const Configuration& from, const GeneralSettings&, Configuration& to,
                                     GeneralSettings&) {
                   addressCount(to.pin(p), kind) = addressCount(from.pin(p), kind);
                   RecalcAddressIndex(to, kind);
               });
}

// ---- Events ----

void eventFields(Fields& out, const Configuration& config, int base)
{
    for (int p = 0; p < kPinCount; ++p)
        for (int slot = 0; slot < 4; ++slot) {
            const EventRecord& e = config.events(p);
            const std::string label = "pin " + pinNumber(p, base) + " events on input " + number(slot + 1);
            out.push_back({DiffGroup::Events, p, -1, -1, label, label, 1,
                           "Event-On " + number(e.OnEvent[slot]) + " Event-Off " + number(e.OffEvent[slot]),
                           [p, slot](const Configuration& from, const GeneralSettings&, Configuration& to,
                                     GeneralSettings&) {
                               to.events(p).OnEvent[slot] = from.events(p).OnEvent[slot];
                               to.events(p).OffEvent[slot] = from.events(p).OffEvent[slot];
                           }});
        }
}

// The items the lines above show control by control; every other item that the data file
// carries is one line of its own, named after its row of kGeneralItems, with its data bytes.
constexpr GeneralItem kShownByControl[] = {
    kItemIdString,         kItemDccAddress,      kItemXDccAddress,    kItemDccOptions,
    kItemGreenLed,         kItemOrangeLed,       kItemHardwareConfig, kItemSerialPort,
    kItemSerialAddressing, kItemExtendedAddress, kItemGroupMask,
};

void itemFields(Fields& out, const GeneralSettings& g)
{
    for (const GeneralItemCodec& row : kGeneralCodecs) {
        if (*row.record == '\0' || std::find(std::begin(kShownByControl), std::end(kShownByControl),
                                             row.item) != std::end(kShownByControl))
            continue;
        std::string value;
        for (int b : row.encode(g))
            value += (value.empty() ? "" : " ") + number(b);
        addGeneral(out, generalItemInfo(row.item)->name, value,
                   [&row](const Configuration&, const GeneralSettings& from, Configuration& c,
                          GeneralSettings& to) { row.decode(to, row.encode(from), c.NumberingBase); });
    }
}

// Every item in the order Write All sends it.
Fields writeOrder(const Configuration& config, const GeneralSettings& general, int base)
{
    Fields fields;
    generalFields(fields, general, base);
    itemFields(fields, general);
    for (int p = 0; p < kPinCount; ++p)
        pinFields(fields, config, p, base);
    eventFields(fields, config, base);
    addressingFields(fields, general, base);
    return fields;
}

bool unused(const PinRecord& pin)
{
    return hasMode(pin, PinMode::None) && pin.Description.empty() && optionOfLayout(pin.AspectLayout) == 0 &&
           pin.DeviceOffset == 0 && pin.DeviceDescription.empty() && pin.InitAspect == 0 &&
           pin.DccCount == 0 && pin.XDccCount == 0 && pin.LynxCount == 0;
}

bool aspectUsed(const Configuration& config, int p, int a)
{
    const AspectRecord& aspect = config.aspect(p, a);
    if (!aspect.Description.empty())
        return true;
    const int steps = layoutSlots(config.pin(p).AspectLayout).steps;
    for (int s = 0; s < steps; ++s)
        if (aspect.Steps[s].Instruction != 0)
            return true;
    return false;
}

std::string line(int depth, const std::string& text)
{
    return std::string(2 * static_cast<std::size_t>(depth), ' ') + text + "\n";
}

} // namespace

std::vector<Difference> differences(const Configuration& first, const GeneralSettings& gfirst,
                                    const Configuration& second, const GeneralSettings& gsecond,
                                    int numberingBase)
{
    const Fields a = writeOrder(first, gfirst, numberingBase);
    const Fields b = writeOrder(second, gsecond, numberingBase);
    std::unordered_map<std::string, const Field*> inSecond;
    for (const Field& f : b)
        inSecond.emplace(f.item, &f);
    std::vector<Difference> out;
    for (const Field& f : a) {
        // An item that only one has (another kind of mode, a larger layout) is its mode's or layout's line.
        const auto other = inSecond.find(f.item);
        if (other == inSecond.end() || other->second->value == f.value)
            continue;
        out.push_back({f.group, f.pin, f.aspect, f.step, f.item, f.value, other->second->value, f.take});
    }
    return out;
}

std::string differenceLine(const Difference& d, const std::string& firstName, const std::string& secondName)
{
    return d.item + ": " + firstName + " " + d.first + ", " + secondName + " " + d.second;
}

std::string configurationText(const Configuration& config, const GeneralSettings& general, int numberingBase)
{
    const int base = numberingBase;
    std::string text = "general\n";
    Fields general0;
    generalFields(general0, general, base);
    itemFields(general0, general);
    addressingFields(general0, general, base);
    for (const Field& f : general0)
        text += line(1, f.label + ": " + f.value);

    // The overview's addresses, with this numbering.
    Configuration numbered = config;
    numbered.NumberingBase = base;
    for (int p = 0; p < kPinCount; ++p) {
        if (unused(config.pin(p))) {
            text += "pin " + pinNumber(p, base) + ": unused\n";
            continue;
        }
        text += "pin " + pinNumber(p, base) + "\n";
        Fields fields;
        pinFields(fields, config, p, base);
        int shownAspect = -1;
        for (const Field& f : fields) {
            if (f.aspect >= 0) {
                if (!aspectUsed(config, p, f.aspect))
                    continue;
                if (f.aspect != shownAspect) {
                    text += line(1, "aspect " + number(f.aspect));
                    shownAspect = f.aspect;
                }
                if (f.step >= 0 && f.value == quoted("-"))
                    continue;
            }
            text += line(f.depth, f.label + ": " + f.value);
        }
        const char* const addressLabels[3] = {"DCC addresses", "eXtended DCC addresses", "Serial addresses"};
        for (int k = 0; k < 3; ++k)
            text +=
                line(1, std::string(addressLabels[k]) + ": " + addressText(numbered, general, p, kKinds[k]));
    }

    text += "events\n";
    Fields events;
    eventFields(events, config, base);
    for (std::size_t i = 0; i < events.size(); ++i) {
        const EventRecord& e = config.events(events[i].pin);
        const std::size_t slot = i % 4; // four inputs a pin, in order
        if (e.OnEvent[slot] == -1 && e.OffEvent[slot] == -1)
            continue;
        text += line(1, events[i].label + ": " + events[i].value);
    }
    return text;
}

} // namespace kestrel
