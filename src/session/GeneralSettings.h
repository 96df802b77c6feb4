#pragma once
#include <array>
#include <string>

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

    std::string LabelGenVersionString = "Unknown";

    bool operator==(const GeneralSettings&) const = default;
};

// The baud list of the module's own serial port, index = code.
inline const std::array<const char*, 8> kGenBaudList = {"9600",  "14400", "19200", "28800",
                                                        "38400", "57600", "76800", "115200"};

} // namespace kestrel
