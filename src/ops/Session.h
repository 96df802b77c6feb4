#pragma once
#include "link/Link.h"
#include "link/LinkControl.h"
#include "model/Configuration.h"
#include "ops/GeneralSettings.h"
#include "ops/Report.h"

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
    Report report;

    UserDialogs& dialogs() { return link.dialogs(); }
};

} // namespace kestrel
