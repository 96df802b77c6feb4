#include "shell/Guard.h"

#include "base/ProgramFault.h"

#include <exception>

namespace kestrel {

bool Guard::operator()(const std::function<void()>& handler)
{
    if (depth > 0) { // a handler run by another: the outermost guard catches
        handler();
        return true;
    }
    const Configuration config = session.config;
    const GeneralSettings general = session.general;
    const EventControlPage eventControl = session.eventControl;
    std::string fault;
    ++depth;
    try {
        handler();
    } catch (const std::exception& e) {
        fault = programFaultMessage(e.what());
    } catch (...) {
        fault = programFaultMessage("");
    }
    --depth;
    if (!fault.empty()) {
        session.config = config;
        session.general = general;
        session.eventControl = eventControl;
        session.dialogs().message(fault, Icon::Warning);
        if (afterFault)
            afterFault();
    }
    if (after)
        after();
    return fault.empty();
}

} // namespace kestrel
