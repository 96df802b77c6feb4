#include "link/LinkControl.h"
#include "base/Translatable.h"
#include "base/Wire.h"

#include "base/Text.h"

namespace kestrel {

const char* const LinkControl::kBitRateSettings[3] = {"9600,o,8,1", "19200,o,8,1", "38400,o,8,1"};

LinkControl::LinkControl(Link& l, const int& numberingBase) : link(l), base(numberingBase)
{
    link.port().setSettings(kBitRateSettings[OptionBitRate]);
}

void LinkControl::ScanPorts()
{
    ComboPort.clear();
    if (numberedPorts) {
        SerialPort& port = link.port();
        // Numbered COM ports: try to open each of 1..16, keep those that open.
        const std::string keep = port.selected();
        for (int n = 1; n <= 16; ++n) {
            port.select(std::to_string(n));
            if (port.open()) {
                port.close();
                ComboPort.push_back(std::to_string(n));
            }
        }
        port.select(keep);
    } else if (systemPorts) {
        ComboPort = systemPorts();
    }
    ComboPort.push_back(kSimPortName);
    ComboPort.push_back(kSimCorvidPortName);
}

void LinkControl::cmdRefreshComm_Click()
{
    if (link.port().isOpen())
        link.port().close();
    ScanPorts();
    ComboPortText.clear();
}

bool LinkControl::openChosen()
{
    SerialPort& port = link.port();
    port.select(ComboPortText);
    const bool ok = port.open();
    link.state.LinkToggle = 128;
    if (!ok) {
        const std::string why = port.errorString();
        link.dialogs().message(
            "Cannot open port " + ComboPortText + (why.empty() ? std::string() : ": " + why), Icon::Warning);
    }
    return ok;
}

bool LinkControl::ComboPort_Click(const std::string& text)
{
    if (link.port().isOpen())
        link.port().close();
    ComboPortText = text;
    if (text.empty())
        return false;
    return openChosen();
}

bool LinkControl::OptionBitRate_Click(int index)
{
    if (index < 0 || index > 2)
        return false;
    if (link.port().isOpen())
        link.port().close();
    OptionBitRate = index;
    link.port().setSettings(kBitRateSettings[index]);
    if (ComboPortText.empty())
        return true;
    return openChosen();
}

int LinkControl::addressMaximum() const { return (link.settings.CheckCorvid ? 31 : 15) + base; }

int LinkControl::xAddressMaximum() const { return kExtendedAddressMax + base; }

std::string LinkControl::TextAddress_Click(const std::string& text)
{
    long v = valInt(text);
    if (v < base)
        v = base;
    const long limit = addressMaximum();
    if (v > limit)
        v = limit;
    link.settings.TargetAddress = static_cast<int>(v - base);
    link.state.LinkToggle = 128;
    return std::to_string(v);
}

void LinkControl::UpDownAddress_Change(int shownValue)
{
    link.settings.TargetAddress = shownValue - base;
    link.state.LinkToggle = 128;
}

std::string LinkControl::txtXaddr_Click(const std::string& text)
{
    long v = valInt(text);
    if (v < base)
        v = base;
    // The upper test is against the highest eXtended address, the value put in is 15: kept
    // as the module tools always did.
    if (v > kExtendedAddressMax + base)
        v = 15 + base;
    link.settings.TargetXAddress = static_cast<int>(v - base);
    return std::to_string(v);
}

void LinkControl::UpDownXaddr_Change(int shownValue) { link.settings.TargetXAddress = shownValue - base; }

bool LinkControl::CheckXaddress_Click(bool checked)
{
    if (checked) {
        const Answer a = link.dialogs().ask(
            KC_TRANSLATABLE("Messages", "eXtended Addressing is intended for\r\nexperienced users only!"),
            Buttons::OkCancel, Icon::Warning);
        if (a != Answer::Ok)
            checked = false;
    }
    link.settings.CheckXaddress = checked;
    return checked;
}

std::string LinkControl::addressLabel() const
{
    return link.settings.CheckXaddress ? KC_TRANSLATABLE("LinkControl", "Channel Number")
                                       : KC_TRANSLATABLE("LinkControl", "Module Address");
}

} // namespace kestrel
