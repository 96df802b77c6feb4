#pragma once
#include "ops/GeneralCommands.h"

namespace kestrel {

// The General page's companion handlers, without its widgets.

// CheckGenLynxaddr was clicked (its new value is already in general.CheckGenLynxaddr).
void CheckGenLynxaddr_Click(Session& session);

// CheckGenKestrelNative was clicked (its new value is already in the field).
void CheckGenKestrelNative_Click(Session& session);

// ChkGenDCCAllow0 was clicked: the address boxes show ranges that depend on it.
void ChkGenDCCAllow0_Click(Session& session);

} // namespace kestrel
