#include "ops/Session.h"

namespace kestrel {

Session::Session(SerialPort& port, Clock& clock, UserDialogs& dialogs)
    : link(port, clock, dialogs), linkControl(link, config.NumberingBase)
{
}

} // namespace kestrel
