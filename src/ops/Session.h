#pragma once
#include "link/Link.h"
#include "link/LinkControl.h"
#include "model/Configuration.h"
#include "ops/EventControlPage.h"
#include "ops/GeneralSettings.h"
#include "ops/Report.h"

#include <functional>

namespace kestrel {

// Everything the program holds for its whole life about the one module it talks
// to: the configuration, the link and its settings. Both front ends own one.
class Session {
public:
    Session(SerialPort& port, Clock& clock, UserDialogs& dialogs);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Configuration config;
    Link link;
    LinkControl linkControl; // follows config.NumberingBase
    GeneralSettings general;
    EventControlPage eventControl;
    Report report;

    UserDialogs& dialogs() { return link.dialogs(); }

    // Observers for the window. Each is optional.
    // Read All has finished: refresh every display that shows the configuration
    // (general settings labels, address displays, aspect view, current pin).
    std::function<void()> onConfigurationChanged;
    // TextGenDCCAddress or TextGenXDCCAddress was set by a reader (their click
    // handlers refresh the address labels).
    std::function<void()> onDccAddressChanged;
    // The serial addressing mode changed: refresh the address display of the pin list.
    std::function<void()> onPinAddressDisplayChanged;
    // Verify All has written its report: show the verification window.
    std::function<void()> onShowVerification;
};

} // namespace kestrel
