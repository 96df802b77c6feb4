#include "forms/GeneralForm.h"

#include "session/Session.h"

namespace kestrel {

void CheckGenLynxaddr_Click(Session& session)
{
    auto& g = session.general;
    if (g.CheckGenLynxaddr == 1 && !g.SuppressAddrWarning) {
        const Answer a = session.dialogs().ask("Lynx Flexible Addressing is a complex concept !!\r\n"
                                               "It should only be activated by experienced users\r\n"
                                               "that understand the details very well !",
                                               Buttons::OkCancel, Icon::Warning);
        if (a != Answer::Ok)
            g.CheckGenLynxaddr = 0;
    }
    applyAddressingVisibility(g);
    session.pinAddressDisplayChanged();
}

void CheckGenKestrelNative_Click(Session& session)
{
    auto& g = session.general;
    g.CheckGenLynxaddrVisible = g.CheckGenKestrelNative != 1;
    session.pinAddressDisplayChanged();
}

void ChkGenDCCAllow0_Click(Session& session) { session.dccAddressChanged(); }

} // namespace kestrel
