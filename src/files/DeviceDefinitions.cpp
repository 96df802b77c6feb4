#include "files/DeviceDefinitions.h"
#include "base/Translatable.h"

#include "base/UserDialogs.h"
#include "files/FileRecords.h"
#include "files/ItemStream.h"
#include "files/TextFile.h"
#include "model/AddressIndex.h"
#include "model/PinTools.h"
#include "model/WireLimits.h"
#include "pins/PinMode.h"

#include <array>
#include <filesystem>
#include <optional>

namespace kestrel {

namespace {

std::string formatFault(const FileFormatError& e)
{
    return std::string("Error in device definitions file: ") + e.what();
}

int wrapPin(int n) { return ((n % kPinCount) + kPinCount) % kPinCount; }

} // namespace

// ---- The list ----

ListLoad readDeviceListText(DeviceList& list, const std::string& text, const std::string& path, ListMode mode,
                            UserDialogs& dialogs)
{
    ItemReader in(text);
    const std::string keyword = kDeviceFileKeyword;
    const std::string header = in.firstItem();
    if (header.compare(0, keyword.size(), keyword) != 0) {
        dialogs.message(KC_TRANSLATABLE("Messages", "Invalid definition file"), Icon::Warning);
        return ListLoad::Invalid;
    }
    const std::string version = header.size() > keyword.size() + 1 ? header.substr(keyword.size() + 1) : "";

    if (mode == ListMode::Replace) {
        list.cboDevice.clear();
        list.paths.clear();
        list.selected = -1;
        list.lblDDVersion = version;
    } else {
        list.lblDDVersion += " + " + version;
        if (list.lblDDVersion.size() > 50)
            list.lblDDVersion = ".." + list.lblDDVersion.substr(list.lblDDVersion.size() - 48);
    }

    try {
        for (;;) {
            const std::string item = in.next();
            if (item == "End")
                break;
            if (item == "Dev") {
                list.cboDevice.push_back(in.next());
                list.paths.resize(list.cboDevice.size());
                list.paths.back() = path;
            }
        }
    } catch (const FileFormatError& e) {
        dialogs.message(formatFault(e), Icon::Warning);
    }
    if (list.selected < 0 && !list.cboDevice.empty())
        list.selected = 0;
    return ListLoad::Loaded;
}

ListLoad readDeviceList(DeviceList& list, const std::string& path, ListMode mode, UserDialogs& dialogs)
{
    std::string text;
    std::string error;
    if (!readTextFile(path, text, error)) {
        // A file that is there but cannot be taken says why; a missing one is the caller's to report.
        if (!path.empty() && std::filesystem::exists(path))
            dialogs.message("Can not open " + path + ": " + error, Icon::Warning);
        return ListLoad::CannotOpen;
    }
    return readDeviceListText(list, text, path, mode, dialogs);
}

// ---- Placing a device ----

void dissolveDevice(Configuration& config, int p)
{
    if (config.pin(p).DeviceOffset != 0)
        return;
    for (int q = 0; q < kPinCount; ++q) {
        PinRecord& r = config.pin(q);
        if (q + r.DeviceOffset == p) {
            r.DeviceOffset = 0;
            r.DeviceDescription.clear();
        }
    }
}

namespace {

class DeviceLoader {
public:
    DeviceLoader(ItemReader& in, Configuration& config) : in(in), config(config), head(config.CurrentPin) {}

    // Reads records of the device block until "Dev", "End" or a fault.
    void run(const std::string& name)
    {
        dissolveDevice(config, head);
        config.pin(head).DeviceDescription = name;
        target = head;
        for (;;) {
            std::string keyword;
            if (pending) {
                keyword = std::move(*pending);
                pending.reset();
            } else {
                keyword = in.next();
            }
            if (keyword == "Dev" || keyword == "End")
                return;
            if (keyword == "Pin")
                readPin(wrapPin(head + in.nextByte()));
            else if (keyword == "Pab")
                readPin(wrapPin(in.nextByte()));
            else if (keyword == "PAM")
                readPam();
            else if (keyword == "Cfg")
                readCfg();
            else if (keyword == "Asp")
                readAsp();
            else if (keyword == "Ins")
                readIns();
            // Anything else, parameters of other modes included, is passed over.
        }
    }

    std::array<bool, kPinCount> used{};

private:
    void readPin(int t)
    {
        if (t != head)
            dissolveDevice(config, t);
        PinRecord& r = config.pin(t);
        r.DeviceOffset = static_cast<std::int16_t>(head - t);
        if (!r.Description.empty())
            used[t] = true;
        target = t;
        r.AspectLayout = static_cast<std::uint8_t>(in.nextSendable(0, kDataByteMax, "Aspect layout"));
        r.InitAspect = static_cast<std::uint8_t>(in.nextSendable(0, kInitAspectMax, "Initial aspect"));
        r.Description = in.next();
        for (int a = 0; a < 12; ++a) {
            r.Aspects[a].Description.clear();
            clearAspectSteps(r.Aspects[a]);
        }
        r.DccCount = 1;
        r.XDccCount = 1;
        r.LynxCount = 1;
    }

    void readPam()
    {
        const int xdcc = in.nextSendable(0, kXDccCountMax, "eXtended DCC address count");
        const int dcc = in.nextSendable(0, kDccCountMax, "DCC address count");
        const int lynx = in.nextSendable(0, kLynxCountMax, "Serial address count");
        PinRecord& r = config.pin(target);
        r.XDccCount = static_cast<std::uint8_t>(xdcc);
        r.DccCount = static_cast<std::uint8_t>(dcc);
        r.LynxCount = static_cast<std::uint8_t>(lynx);
    }

    void readCfg()
    {
        PinRecord& r = config.pin(target);
        r.ConfigMode = static_cast<std::uint8_t>(in.nextByte());
        // Parameters go to the module as they are, but for a servo's parameter 2, which
        // loses its top bits on the way.
        auto parameter = [&](int n) {
            return static_cast<std::uint8_t>(in.nextSendable(0, kDataByteMax, kConfigParameterNames[n]));
        };
        if (hasMode(r, PinMode::Servo)) {
            for (int n = 1; n <= 11; ++n)
                r.P(n) = n == 2 ? static_cast<std::uint8_t>(in.nextByte()) : parameter(n);
        } else if (hasMode(r, PinMode::Pwm)) {
            for (int n = 1; n <= 3; ++n)
                r.P(n) = parameter(n);
            std::string item = in.next();
            if (isNumberItem(item)) {
                const int p4 = checkedByte(item);
                if (p4 > kDataByteMax)
                    in.fail(cannotSendText("Configuration parameter 4", p4, 0, kDataByteMax));
                r.P(4) = static_cast<std::uint8_t>(p4);
                r.P(5) = parameter(5);
            } else {
                // The older three-parameter form: this item is already the next keyword.
                pending = std::move(item);
            }
        }
    }

    int checkedByte(const std::string& item)
    {
        // An item already taken from the stream, checked like nextByte() would.
        ItemReader one(item);
        try {
            return one.nextByte();
        } catch (const FileFormatError&) {
            in.fail("Byte value 0..255 expected, found " + quoteForMessage(item));
        }
    }

    void readAsp() { aspect = readAspRecord(in, config, target); }

    void readIns() { readInsRecord(in, config, target, aspect); }

    ItemReader& in;
    Configuration& config;
    const int head;
    int target = 0;
    int aspect = 0;
    std::optional<std::string> pending;
};

} // namespace

bool loadDeviceFromText(const std::string& text, const std::string& name, Configuration& config,
                        UserDialogs& dialogs)
{
    ItemReader in(text);
    // Find the block: items until a "Dev" with this name.
    for (;;) {
        if (in.atEnd()) {
            dialogs.message(KC_TRANSLATABLE("Messages", "No match found"), Icon::Warning);
            return false;
        }
        const std::string item = in.next();
        if (item == "End") {
            dialogs.message(KC_TRANSLATABLE("Messages", "No match found"), Icon::Warning);
            return false;
        }
        if (item == "Dev" && !in.atEnd() && in.next() == name)
            break;
    }

    DeviceLoader loader(in, config);
    bool complete = true;
    try {
        loader.run(name);
    } catch (const FileFormatError& e) {
        dialogs.message(formatFault(e) + "\r\nLoading stopped; what was placed before is kept.",
                        Icon::Warning);
        complete = false;
    }
    RecalcAddressIndex(config);

    if (complete) {
        std::string pins;
        for (int t = 0; t < kPinCount; ++t) {
            if (!loader.used[t])
                continue;
            if (!pins.empty())
                pins += ",";
            pins += " " + std::to_string(t + config.NumberingBase);
        }
        if (!pins.empty())
            dialogs.message("The following Pin numbers were already used: \r\n" + pins, Icon::Warning);
    }
    return true;
}

// ---- Saving a device ----

std::string writeDeviceText(Configuration& config, int head)
{
    const std::string name = config.pin(head).DeviceDescription;
    ItemWriter w;
    w.line().text(std::string(kDeviceFileKeyword) + " " + name).end();
    w.line().text("Dev").text(name).end();

    std::vector<int> pins{head};
    for (int q = 0; q < kPinCount; ++q)
        if (q != head && q + config.pin(q).DeviceOffset == head)
            pins.push_back(q);

    for (int q : pins) {
        PinRecord& r = config.pin(q);
        w.line(2)
            .text("Pin")
            .number(wrapPin(q - head))
            .number(r.AspectLayout)
            .number(r.InitAspect)
            .text(r.Description)
            .end();
        writeCfgRecord(w, 4, r);
        w.line(4).text("PAM").number(r.XDccCount).number(r.DccCount).number(r.LynxCount).end();
        const LayoutSlots slots = layoutSlots(r.AspectLayout);
        for (int a = 0; a < slots.aspects; ++a) {
            const AspectRecord& aspect = r.Aspects[a];
            if (aspect.Description.empty())
                continue;
            w.line(4).text("Asp").number(a).text(aspect.Description).end();
            for (int s = 0; s < slots.steps; ++s)
                if (aspect.Steps[s].Instruction != 0)
                    writeInsRecord(w, 6, s, aspect.Steps[s]);
        }
    }
    w.line().text("End").end();
    return w.result();
}

bool saveDeviceFile(const std::string& path, Configuration& config, int head, std::string& error)
{
    Configuration copy = config;
    const std::string text = writeDeviceText(copy, head);
    if (!replaceFile(path, text, error))
        return false;
    config = std::move(copy);
    return true;
}

} // namespace kestrel
