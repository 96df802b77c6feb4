#include "platform/ProgramSession.h"

#include "platform/BuiltInSim.h"
#include "platform/SystemPort.h"

namespace kestrel {

ProgramSession::ProgramSession(UserDialogs& dialogs)
    : port(makeSystemPort(), makeBuiltInSimPort()), session(std::make_unique<Session>(port, clock, dialogs))
{
    session->linkControl.numberedPorts = kNumberedPorts;
    session->linkControl.systemPorts = &systemPortNames;
    corvid = std::make_unique<CorvidControl>(session->link, session->linkControl);
}

ProgramSession::~ProgramSession()
{
    // The Corvid controls and the session's link refer to the port: they go first.
    corvid.reset();
    session.reset();
}

} // namespace kestrel
