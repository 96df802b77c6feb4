#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <string>
#include <vector>

namespace kestrel {

class Session;

// Before the first byte of a write goes out, every value that the write will send is
// checked here against what the wire can carry, so that a write is sent whole or not at
// all. Each function returns "" when everything can be sent, else the message for the
// first value that cannot, naming the field and, for pins, the pin (as shown, with the
// numbering base), aspect and step: "DCC address 9000 cannot be sent: 0..8191".

// The General page's families, as their writers send them.
std::string unsendableIdString(const GeneralSettings& g);
std::string unsendableDcc(const GeneralSettings& g);
std::string unsendableSerialAddressing(const GeneralSettings& g);
// The items of one family, in the order its writer sends them.
std::string unsendableFamily(const GeneralSettings& g, GeneralFamily family);
// Every general item Write All sends, in the order of kGeneralCodecs (ID string, DCC,
// serial addressing, hardware, LED, serial port, enable maps).
std::string unsendableGeneral(const GeneralSettings& g);

// Layout, initial aspect, address configuration and the steps of the layout of each
// pin; with withPinConfig also the pin configuration to flash.
std::string unsendablePins(const Configuration& config, const std::vector<int>& pins, bool withPinConfig);
// The steps of one aspect of a pin, as WriteAspect sends them.
std::string unsendableAspect(const Configuration& config, int pin, int aspect);
// The pin configuration as SendPinConfig(target, pin) sends it.
std::string unsendablePinConfig(const Configuration& config, int pin, int target);
// The Event-On and Event-Off entries of each pin.
std::string unsendableEvents(const Configuration& config, const std::vector<int>& pins);

// All of Write All: general settings, every pin, every event.
std::string unsendableConfiguration(const Configuration& config, const GeneralSettings& g,
                                    bool withPinConfig);

// Pins 0..31.
std::vector<int> allPins();

// Shows `problem` through the session's dialogs when there is one; True when it is empty,
// that is when the write may go out.
bool sendable(Session& session, const std::string& problem);

} // namespace kestrel
