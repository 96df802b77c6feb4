// The device definitions reader and device loader, fed arbitrary text. The device list
// is read from the text, then each device it names (at most four) is placed onto the
// pins; finally the device at the head pin is written and its text read back.
//
// Input: [0] the head pin (0..31), then the text of the definitions file.
#include "FuzzSupport.h"
#include "base/ProgramFault.h"
#include "files/DeviceDefinitions.h"
#include "support/RecordingDialogs.h"

using namespace kestrel;

namespace {

// Texts that a definitions file cannot carry back: no escape exists for a double quote
// or a line end, and the device list is found by scanning every item, so a text that
// reads "Dev" or "End" is taken for that keyword (the format's own limit, kept).
bool storable(const std::string& text)
{
    return text.find_first_of("\"\r\n") == std::string::npos && text != "Dev" && text != "End";
}

// Runs f; any ProgramFault is a finding (a file's content never causes one).
template <typename F> bool guarded(F&& f)
{
    try {
        f();
        return true;
    } catch (const ProgramFault& fault) {
        fuzz::finding(std::string("ProgramFault: ") + fault.what());
        return false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::InputReader in(data, size);
    const int head = in.byte() % kPinCount;
    const std::string text = in.restAsText();

    test::RecordingDialogs dialogs;
    DeviceList list;
    const ListLoad listed = readDeviceListText(list, text, "fuzz.def", ListMode::Replace, dialogs);
    fuzz::expect(listed != ListLoad::CannotOpen, "text reader says it cannot open");
    fuzz::expect(list.cboDevice.size() == list.paths.size(), "device names and paths differ in number");
    if (listed != ListLoad::Loaded)
        return 0;

    Configuration config;
    config.CurrentPin = head;
    for (std::size_t i = 0; i < list.cboDevice.size() && i < 4; ++i) {
        bool found = false;
        if (!guarded([&] { found = loadDeviceFromText(text, list.cboDevice[i], config, dialogs); }))
            return 0;
        fuzz::expect(found, "a listed device is not found by the loader");
    }
    for (int p = 0; p < kPinCount; ++p) {
        const int offset = config.pin(p).DeviceOffset;
        fuzz::expect(offset > -kPinCount && offset < kPinCount, "device offset outside the pins");
    }

    // The device now headed at the head pin can be written, and its text lists it again.
    const PinRecord& h = config.pin(head);
    if (h.DeviceOffset != 0 || h.DeviceDescription.empty())
        return 0;
    std::string written;
    if (!guarded([&] { written = writeDeviceText(config, head); }))
        return 0;
    bool clean = storable(h.DeviceDescription);
    for (const auto& pin : config.Pins) {
        clean = clean && storable(pin.Description);
        for (const auto& aspect : pin.Aspects)
            clean = clean && storable(aspect.Description);
    }
    if (!clean)
        return 0;
    DeviceList again;
    test::RecordingDialogs quiet;
    if (readDeviceListText(again, written, "again.def", ListMode::Replace, quiet) != ListLoad::Loaded ||
        again.cboDevice.size() != 1 || !quiet.messages.empty()) {
        std::fprintf(stderr, "written text:\n%s\n", written.c_str());
        fuzz::finding("a written device does not list back");
    }
    Configuration placed;
    placed.CurrentPin = head;
    bool found = false;
    if (!guarded([&] { found = loadDeviceFromText(written, again.cboDevice[0], placed, quiet); }))
        return 0;
    fuzz::expect(found, "a written device is not found again");
    return 0;
}
