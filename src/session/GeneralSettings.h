#pragma once
#include "base/Translatable.h"
#include "base/Wire.h"
#include "model/WireLimits.h"

#include <array>
#include <string>
#include <vector>

namespace kestrel {

// The General page as plain values, one field per control, named after it. Check
// boxes hold 0 or 1 (a box counts as checked only when its value is 1); option
// groups hold the index of the selected button; text boxes hold their text.
struct GeneralSettings {
    std::string TextGenIDString;

    std::string TextGenDCCAddress = "0";
    std::string TextGenXDCCAddress = "0";
    int OptGenDCC_PRP = 0; // 0..3: "500ms", "250ms", "125ms", "62.5ms"
    int ChkGenDCC_BPSI = 0;
    int ChkGenDCCAllow0 = 0;

    int CheckGenKestrelNative = 0;
    int CheckGenLynxaddr = 0;
    std::string TextGenLynxaddr = "0";
    std::string TextGenXaddr = "0";
    std::array<int, 16> CheckGenXGM{};

    std::array<int, 4> ChkGenHWCSink{};
    std::array<int, 4> ChkGenHWCSource{};

    std::array<int, 8> CheckLCGreen{};
    std::array<int, 8> CheckLCOrange{};

    int CheckGenSerialEnable = 0;
    int ComboGenBaud = 0;            // list index 0..7 = "9600" .. "115200"
    int OptionGenSerialDatabits = 0; // 0 or 1
    int OptionGenSerialStop = 0;     // 0 or 1
    int OptionGenSerialParity = 0;   // 0, 2 or 3

    // Event enables: 0..3 Event-On, 4..7 Event-Off. They start checked, as a module
    // leaves the factory with every input enabled; the data file does not carry them.
    std::array<int, 8> CheckInitEE{1, 1, 1, 1, 1, 1, 1, 1};

    // Form-level values.
    int LynxFlexAddress = 0;
    int ExtendedAddress = 0;
    bool SuppressAddrWarning = false;

    // Visibility that the serial-addressing rules decide.
    bool TextGenLynxaddrVisible = false;
    bool CheckGenKestrelNativeVisible = true;
    bool CheckGenLynxaddrVisible = true;

    std::string LabelGenVersionString = KC_TRANSLATABLE("GeneralSettings", "Unknown");

    bool operator==(const GeneralSettings&) const = default;
};

// The baud list of the module's own serial port, index = code.
inline const std::array<const char*, 8> kGenBaudList = {"9600",  "14400", "19200", "28800",
                                                        "38400", "57600", "76800", "115200"};

// ---- The bytes of the general items ----

// The page's frames, each with its Read and Write buttons: the readers and writers work
// on the items of one family, Read All, Write All and Verify All go through the families.
enum class GeneralFamily { IdString, Dcc, Addressing, Hardware, Led, SerialPort, EventEnable };

// The data bytes of an item (after the command and the item).
using GeneralBytes = std::vector<int>;

// One general item between the page and the wire: what its write sends (encode, from the
// current values of the page) and what its read sets (decode, from the module's reply;
// false at a byte the item cannot hold, with the boxes before it already set). The
// module image, the verification, the send checks, the estimate, the data file and the
// comparison all go through these rows.
struct GeneralItemCodec {
    GeneralItem item;
    GeneralFamily family;
    const char* record; // the data file's record that carries it; "" when the file does not
    int readAt;         // its place when read (Read All and the page's Read buttons)
    int verifyAt;       // its place in the verification; -1: verified with the events
    GeneralBytes (*encode)(const GeneralSettings& g);
    bool (*decode)(GeneralSettings& g, const GeneralBytes& data, int base);
};

// The pieces the rows share (session/GeneralCodec.cpp).
int dccOptionsByte(const GeneralSettings& g);
void setDccOptions(GeneralSettings& g, int b);
// An address text split as the module stores it: low 6 bits, then the rest.
std::array<int, 2> dccAddressBytes(const std::string& text);
int serialAddressModeByte(const GeneralSettings& g);
std::array<int, 4> groupMaskBytes(const GeneralSettings& g);
std::array<int, 4> hardwareConfigBytes(const GeneralSettings& g);
int ledByte(const std::array<int, 8>& boxes);
// How a reader shows an LED byte: 0 checks element 7 alone, anything else sets
// elements 0..6 from bits 0..6 (bit 7 ignored) and unchecks element 7.
void setLedBoxes(std::array<int, 8>& boxes, int b);
int serialPortByte(const GeneralSettings& g);
// The enable maps: a set bit disables the input; 0..3 Event-On, 4..7 Event-Off.
int enableMapOn(const GeneralSettings& g);
int enableMapOff(const GeneralSettings& g);
// Shows the serial addressing controls that the current modes allow.
void applyAddressingVisibility(GeneralSettings& g);
// The data file's address mode: the flex-address while flex-addressing is on, else 64 for
// native mode and 0 for neither. The wire sends the flex-address whenever native mode is
// off (the module ignores it then); the file writes 0 instead, so that a file does not keep
// a flex-address that is not in use.
int fileAddressModeByte(const GeneralSettings& g);
// An item whose bytes one of the pieces above gives.
template <std::array<int, 4> (*Bytes)(const GeneralSettings&)>
GeneralBytes encodeBytes(const GeneralSettings& g)
{
    const auto b = Bytes(g);
    return GeneralBytes(b.begin(), b.end());
}
// The DCC and eXtended DCC address items: the address text split as the module stores it,
// and joined again from the two bytes.
template <std::string GeneralSettings::*Address> GeneralBytes encodeDccAddress(const GeneralSettings& g)
{
    const auto b = dccAddressBytes(g.*Address);
    return GeneralBytes{b[0], b[1]};
}
template <std::string GeneralSettings::*Address>
bool decodeDccAddress(GeneralSettings& g, const GeneralBytes& d, int /*base*/)
{
    g.*Address = std::to_string(d[1] * 64 + d[0]);
    return true;
}

// Every general item the program reads and writes, in the order of the data file and of
// the send checks; a family's items are written in this order too.
inline const std::array<GeneralItemCodec, 12> kGeneralCodecs = {{
    {kItemIdString, GeneralFamily::IdString, "ID$", 0, 0,
     [](const GeneralSettings& g) {
         const std::string text = g.TextGenIDString.substr(0, kIdStringLength);
         GeneralBytes b;
         for (char c : text)
             b.push_back(static_cast<unsigned char>(c));
         return b;
     },
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         g.TextGenIDString.clear();
         for (int c : d)
             g.TextGenIDString += static_cast<char>(static_cast<unsigned char>(c));
         return true;
     }},
    {kItemDccOptions, GeneralFamily::Dcc, "DCC", 1, 4,
     [](const GeneralSettings& g) { return GeneralBytes{dccOptionsByte(g)}; },
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         setDccOptions(g, d[0]);
         return true;
     }},
    {kItemDccAddress, GeneralFamily::Dcc, "DCC", 2, 2, encodeDccAddress<&GeneralSettings::TextGenDCCAddress>,
     decodeDccAddress<&GeneralSettings::TextGenDCCAddress>},
    {kItemXDccAddress, GeneralFamily::Dcc, "DCC", 3, 3,
     encodeDccAddress<&GeneralSettings::TextGenXDCCAddress>,
     decodeDccAddress<&GeneralSettings::TextGenXDCCAddress>},
    {kItemSerialAddressing, GeneralFamily::Addressing, "XAD", 4, 5,
     [](const GeneralSettings& g) {
         return GeneralBytes{g.CheckGenLynxaddr == 1 ? 1 : 0, serialAddressModeByte(g)};
     },
     [](GeneralSettings& g, const GeneralBytes& d, int base) {
         const bool flex = d[0] != 0;
         g.CheckGenLynxaddr = flex ? 1 : 0;
         g.CheckGenKestrelNative = flex ? 0 : (d[1] >> 6) & 1;
         g.LynxFlexAddress = flex ? d[1] : 0;
         g.TextGenLynxaddr = std::to_string(g.LynxFlexAddress * 4 + base);
         applyAddressingVisibility(g);
         return true;
     }},
    {kItemGroupMask, GeneralFamily::Addressing, "XAD", 6, 7, encodeBytes<groupMaskBytes>,
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         for (int grp = 0; grp < 4; ++grp)
             for (int k = 0; k < 4; ++k)
                 g.CheckGenXGM[4 * grp + k] = (d[grp] >> k) & 1;
         return true;
     }},
    {kItemExtendedAddress, GeneralFamily::Addressing, "XAD", 5, 6,
     [](const GeneralSettings& g) { return GeneralBytes{g.ExtendedAddress}; },
     [](GeneralSettings& g, const GeneralBytes& d, int base) {
         g.ExtendedAddress = d[0];
         g.TextGenXaddr = std::to_string(g.ExtendedAddress + base);
         return true;
     }},
    {kItemHardwareConfig, GeneralFamily::Hardware, "HWC", 9, 1, encodeBytes<hardwareConfigBytes>,
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         for (int grp = 0; grp < 4; ++grp) {
             if (d[grp] < 0 || d[grp] > 3)
                 return false;
             g.ChkGenHWCSink[grp] = d[grp] & 1;
             g.ChkGenHWCSource[grp] = (d[grp] >> 1) & 1;
         }
         return true;
     }},
    {kItemGreenLed, GeneralFamily::Led, "LED", 7, 8,
     [](const GeneralSettings& g) { return GeneralBytes{ledByte(g.CheckLCGreen)}; },
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         setLedBoxes(g.CheckLCGreen, d[0]);
         return true;
     }},
    {kItemOrangeLed, GeneralFamily::Led, "LED", 8, 9,
     [](const GeneralSettings& g) { return GeneralBytes{ledByte(g.CheckLCOrange)}; },
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         setLedBoxes(g.CheckLCOrange, d[0]);
         return true;
     }},
    {kItemSerialPort, GeneralFamily::SerialPort, "SPC", 10, 10,
     [](const GeneralSettings& g) {
         return GeneralBytes{g.CheckGenSerialEnable, serialPortByte(g)};
     },
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         g.CheckGenSerialEnable = d[0] != 0 ? 1 : 0;
         g.ComboGenBaud = d[1] & 7;
         g.OptionGenSerialDatabits = (d[1] >> 3) & 1;
         g.OptionGenSerialStop = (d[1] >> 6) & 1;
         g.OptionGenSerialParity = (d[1] >> 4) & 3;
         return true;
     }},
    {kItemEventEnable, GeneralFamily::EventEnable, "", 11, -1,
     [](const GeneralSettings& g) {
         return GeneralBytes{enableMapOn(g), enableMapOff(g)};
     },
     [](GeneralSettings& g, const GeneralBytes& d, int) {
         for (int i = 0; i < 4; ++i) {
             g.CheckInitEE[i] = 1 - ((d[0] >> i) & 1);
             g.CheckInitEE[4 + i] = 1 - ((d[1] >> i) & 1);
         }
         return true;
     }},
}};

// The row of an item; a ProgramFault for an item without one.
const GeneralItemCodec& generalCodec(GeneralItem item);
// The rows of a family in the order they are read, or written (the table's order).
std::vector<const GeneralItemCodec*> familyReadOrder(GeneralFamily family);
std::vector<const GeneralItemCodec*> familyWriteOrder(GeneralFamily family);

} // namespace kestrel
