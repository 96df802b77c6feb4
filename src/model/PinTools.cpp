#include "model/PinTools.h"
#include "base/Translatable.h"

#include "base/ProgramFault.h"
#include "base/UserDialogs.h"

namespace kestrel {

namespace {

std::int16_t toInt16(long value, const char* what)
{
    if (value < -32768 || value > 32767)
        throw ProgramFault(std::string("Overflow: ") + what + " = " + std::to_string(value));
    return static_cast<std::int16_t>(value);
}

} // namespace

int deviceHead(const Configuration& config, int pin)
{
    const long head = toInt16(static_cast<long>(pin) + config.pin(pin).DeviceOffset, "device head");
    checkIndex(head, kPinRecords, "device head");
    return static_cast<int>(head);
}

std::string deviceDescriptionText(const Configuration& config, int pin)
{
    const PinRecord& head = config.pin(deviceHead(config, pin));
    if (head.DeviceOffset != 0)
        return "<Referral is no Device !>";
    return head.DeviceDescription;
}

void clearAspectSteps(AspectRecord& aspect)
{
    for (int s = 0; s <= 8; ++s)
        aspect.Steps[s] = StepRecord{};
}

void clearPin(Configuration& config, int pin)
{
    PinRecord& p = config.pin(pin);
    p.Description.clear();
    p.DeviceDescription.clear();
    p.InitAspect = 0;
    p.PinMarkA = kAllOnes;
    p.PinMarkB = kAllOnes;
    p.PinMarkC = kAllOnes;
    p.AspectLayout = 0;
    p.DeviceOffset = 0;
    p.ConfigMode = 0;
    p.ConfigParams.fill(0);
    for (int a = 0; a <= 11; ++a) {
        AspectRecord& aspect = p.Aspects[a];
        aspect.Description.clear();
        aspect.AspectMark = kAllOnes;
        clearAspectSteps(aspect);
    }
}

void PinTool::copy(const Configuration& config)
{
    clipboard = config.pin(config.CurrentPin);
    source = config.CurrentPin;
    filled = true;
}

bool PinTool::paste(Configuration& config, UserDialogs& dialogs) const
{
    if (!filled) {
        dialogs.message(KC_TRANSLATABLE("Messages", "Nothing to Paste"));
        return false;
    }
    PinRecord pasted = clipboard;
    if (pasted.DeviceOffset != 0)
        pasted.DeviceOffset =
            toInt16(static_cast<long>(pasted.DeviceOffset) + source - config.CurrentPin, "device offset");
    config.pin(config.CurrentPin) = pasted;
    return true;
}

void PinTool::clear(Configuration& config) const { clearPin(config, config.CurrentPin); }

} // namespace kestrel
