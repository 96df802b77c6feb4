#pragma once
#include "link/Link.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrel {

// The link area of the main window without its widgets: the port list, the bit
// rate, the module and eXtended addresses. Every handler returns what the box must
// show after clamping; every change of port, bit rate or module address puts the
// direct route back into the unsynchronised state.
class LinkControl {
public:
    static constexpr const char* kSimPortName = "sim";
    // The same simulated modules behind a simulated Corvid system.
    static constexpr const char* kSimCorvidPortName = "sim (Corvid)";
    static const char* const kBitRateSettings[3]; // "9600,o,8,1", "19200,o,8,1", "38400,o,8,1"

    // `numberingBase` is the session's NumberingBase (0 or 1), read at every call.
    LinkControl(Link& link, const int& numberingBase);

    // Numbered serial ports (COM1..COM16, as on Windows): the list is the numbers 1..16
    // that open. Otherwise it is what systemPorts reports. The program sets both for the
    // system it runs on.
    bool numberedPorts = false;
    std::function<std::vector<std::string>()> systemPorts;

    std::vector<std::string> ComboPort; // the port list
    std::string ComboPortText;          // the chosen port, "" for none
    int OptionBitRate = 1;              // 0 = 9k6, 1 = 19k2, 2 = 38k4

    void ScanPorts();
    void cmdRefreshComm_Click();
    // Opens the chosen port (a listed name or a typed path). False when it cannot be
    // opened; the user has then been told which port and why.
    bool ComboPort_Click(const std::string& text);
    bool OptionBitRate_Click(int index);

    std::string TextAddress_Click(const std::string& text);
    void UpDownAddress_Change(int shownValue);
    std::string txtXaddr_Click(const std::string& text);
    void UpDownXaddr_Change(int shownValue);
    // Returns the box's state after the warning question.
    bool CheckXaddress_Click(bool checked);

    int addressMaximum() const;       // spinner limit of TextAddress, as shown
    int xAddressMaximum() const;      // spinner limit of txtXaddr, as shown
    std::string addressLabel() const; // "Module Address" or "Channel Number"
    std::string addressText() const { return std::to_string(link.settings.TargetAddress + base); }
    std::string xAddressText() const { return std::to_string(link.settings.TargetXAddress + base); }

private:
    bool openChosen();
    Link& link;
    const int& base;
};

} // namespace kestrel
