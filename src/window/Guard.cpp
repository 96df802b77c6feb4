#include "window/Guard.h"

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
        // Within the refresh after a fault, the handlers it runs are guarded as ever, but
        // only one fault is told (none that repeats the one that caused the refresh), and
        // none starts another refresh.
        if (!refreshing || (!std::exchange(refreshFault, true) && fault != told))
            session.dialogs().message(fault, Icon::Warning);
        if (afterFault && !refreshing) {
            refreshing = true;
            refreshFault = false;
            told = fault;
            try {
                afterFault();
            } catch (const std::exception& e) { // outside the refresh's guards: told the same way
                const std::string again = programFaultMessage(e.what());
                if (!std::exchange(refreshFault, true) && again != told)
                    session.dialogs().message(again, Icon::Warning);
            }
            refreshing = false;
        }
    } else if (done) {
        done(before, std::exchange(running, std::string()), control);
    }
    if (after)
        after();
    return fault.empty();
}

} // namespace kestrel
