#include "shell/Guard.h"

#include "base/ProgramFault.h"

#include <exception>
#include <utility>

namespace kestrel {

bool Guard::operator()(const std::string& name, const std::function<void()>& handler, const void* control)
{
    if (depth > 0) { // a handler run by another: the outermost guard catches
        handler();
        return true;
    }
    const EditState before{session.config, session.general, session.eventControl};
    running = name.empty() ? std::exchange(nextName, std::string()) : name;
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
        session.config = before.config;
        session.general = before.general;
        session.eventControl = before.eventControl;
        session.dialogs().message(fault, Icon::Warning);
        if (afterFault)
            afterFault();
    } else if (done) {
        done(before, std::exchange(running, std::string()), control);
    }
    if (after)
        after();
    return fault.empty();
}

} // namespace kestrel
