#pragma once
#include "link/Link.h"
#include "link/LinkControl.h"

namespace kestrel {

// Switching the Corvid tunnel on and off, and putting an interface unit of the Corvid
// system into transparent mode.
class CorvidControl {
public:
    CorvidControl(Link& link, LinkControl& linkControl);

    // The user clicked "Use Corvid Tunneling"; returns the box's state afterwards.
    bool CheckCorvid_Click(bool checked);
    // "Activate Transparent Mode"; true when the unit was switched.
    bool cmdSetTM_Click();

    bool cmdSetTMVisible = true;

    // A four-digit version from its two bytes: (x >> 3) x 1000 + (x & 7) x 100 + (y >> 3) x 10 + (y & 7).
    static int versionFrom(int x, int y);

private:
    bool poll() { return link.CorvidExchange(0); }
    bool requestSystemVersion() { return link.CorvidExchange(2, {1, 2}); }
    bool systemVersionValid() const;
    Link& link;
    LinkControl& control;
};

} // namespace kestrel
