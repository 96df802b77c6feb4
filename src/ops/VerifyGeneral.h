#pragma once
#include "session/Session.h"

namespace kestrel {

// Compares the module's general settings with what the General page would write, in the
// rows' verifyAt order: ID string, hardware configuration, DCC address, eXtended DCC
// address, DCC options, serial addressing, eXtended address, eXtended group mask, LED
// control, serial port. Lines go to session.report. A mismatch adds its line and the run
// goes on; a wrong reply adds its line and ends the run (the DCC address lengths excepted);
// a request without a valid reply ends it without a line. True only when every item
// was read and compared equal.
bool VerifyGeneralSettings(Session& session);

} // namespace kestrel
