#include "shell/ProgramSession.h"

#include "shell/BuiltInSim.h"
#include "shell/QtSerialPort.h"

namespace kestrel {

ProgramSession::ProgramSession(UserDialogs& dialogs)
    : port(std::make_unique<QtSerialPort>(), makeBuiltInSimPort()),
      session(std::make_unique<Session>(port, clock, dialogs))
{
    session->linkControl.systemPorts = &QtSerialPort::systemPorts;
    corvid = std::make_unique<CorvidControl>(session->link, session->linkControl);
}

ProgramSession::~ProgramSession()
{
    // The Corvid controls and the session's link refer to the port: they go first.
    corvid.reset();
    session.reset();
}

} // namespace kestrel
