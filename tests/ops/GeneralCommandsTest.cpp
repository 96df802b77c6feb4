// General page readers and writers on a scripted module: requests, reply checks, messages.
#include "ops/GeneralCommands.h"
#include "forms/GeneralForm.h"
#include "support/ScriptedModule.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

struct GeneralCommands : ::testing::Test {
    ScriptedModule m;
    Session& s = m.session;
    GeneralSettings& g = m.session.general;
    std::vector<std::string> messages() const { return m.dialogs.texts(); }
};

} // namespace

TEST_F(GeneralCommands, IdStringIsCutToTwelveSentWithItsLengthAndReadAsLengthMinusTwo)
{
    g.TextGenIDString = "Signalbox East1"; // 15 characters
    EXPECT_TRUE(WriteIDString(s));
    EXPECT_EQ(g.TextGenIDString, "Signalbox Ea");
    g.TextGenIDString.clear();
    WriteIDString(s);
    EXPECT_EQ(m.take(), (std::vector<Data>{
                            {96, 10, 'S', 'i', 'g', 'n', 'a', 'l', 'b', 'o', 'x', ' ', 'E', 'a'}, {96, 10}}));

    s.link.settings.CheckKestrelBD = false; // every reader switches replies on
    m.answer({112, 10, 'Y', 'a', 'r', 'd'});
    EXPECT_TRUE(ReadIDString(s));
    EXPECT_EQ(std::tuple(m.requests[0], m.waited[0], g.TextGenIDString),
              std::tuple(Data{112, 10}, true, "Yard"));

    m.answer({112}); // length field 1
    EXPECT_FALSE(ReadIDString(s));
    m.answer({112, 11, 'X'});
    EXPECT_FALSE(ReadIDString(s));
    EXPECT_EQ(messages(), (std::vector<std::string>{"No valid response", "No valid response"}));
    EXPECT_EQ(g.TextGenIDString, "Yard");
    m.silence(); // no reply at all
    EXPECT_FALSE(ReadIDString(s));
}

TEST_F(GeneralCommands, DccAddressIsSixBitsLowAndTheRestHighBothWays)
{
    m.answer({112, 5, 2 + 4 + 8}); // 125ms, inverted basic packet state, address 0 allowed
    m.answer({112, 4, 10, 3});     // 3 * 64 + 10 = 202
    m.answer({112, 12, 5, 1});     // 69
    EXPECT_TRUE(ReadDCCSettings(s));
    EXPECT_EQ(m.take(), (std::vector<Data>{{112, 5}, {112, 4}, {112, 12}}));
    EXPECT_EQ(std::tuple(g.OptGenDCC_PRP, g.ChkGenDCC_BPSI, g.ChkGenDCCAllow0, g.TextGenDCCAddress,
                         g.TextGenXDCCAddress),
              std::tuple(2, 1, 1, "202", "69"));

    g.ChkGenDCC_BPSI = 0;
    EXPECT_TRUE(WriteDCCSettings(s));
    EXPECT_EQ(m.requests, (std::vector<Data>{{96, 5, 2 + 8}, {96, 4, 10, 3}, {96, 12, 5, 1}}));
}

TEST_F(GeneralCommands, DccOptionsAndExtendedAddressErrorsAreToldAndTheReaderGoesOn)
{
    // The address item's errors and a missing reply: FaultMatrix GeneralRead_*.
    m.answer({{112, 5}, {112, 4, 10, 3}, {112, 12, 5}}); // the first and the last one byte short
    EXPECT_TRUE(ReadDCCSettings(s));
    m.answer({{113, 5, 0}, {112, 4, 10, 3}, {112, 12, 5, 1}});
    EXPECT_TRUE(ReadDCCSettings(s));
    EXPECT_EQ(messages(),
              (std::vector<std::string>{"Received Address, cannot read DCC options", "No valid response",
                                        "Received Address: No valid response"}));
}

TEST_F(GeneralCommands, SerialAddressingNativeBitOnlyCountsWithFlexAddressingOffAndReplyErrorsAreTold)
{
    s.config.NumberingBase = 1;
    m.answer({{112, 8, 0, 64}, {112, 2, 17}, {112, 3, 1, 2 + 16, 4, 8}}); // bit 4 of group 2 is ignored
    EXPECT_TRUE(ReadSerialAddressing(s));
    EXPECT_EQ(m.requests, (std::vector<Data>{{112, 8}, {112, 2}, {112, 3}}));
    // The two modes exclude each other; addresses are shown with the numbering base.
    EXPECT_EQ(std::tuple(g.CheckGenKestrelNative, g.CheckGenLynxaddr, g.LynxFlexAddress, g.TextGenLynxaddr,
                         g.TextGenLynxaddrVisible, g.CheckGenLynxaddrVisible, g.ExtendedAddress,
                         g.TextGenXaddr, g.CheckGenXGM),
              std::tuple(1, 0, 0, "1", false, false, 17, "18",
                         std::array<int, 16>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));

    // Flex-addressing on: bit 6 is not looked at, the whole byte is the flex-address.
    m.answer({{112, 8, 1, 64 + 5}, {112, 2, 17}, {112, 3, 0, 0, 0, 0}});
    EXPECT_TRUE(ReadSerialAddressing(s));
    EXPECT_EQ(std::tuple(g.CheckGenLynxaddr, g.CheckGenKestrelNative, g.LynxFlexAddress, g.TextGenLynxaddr,
                         g.TextGenLynxaddrVisible, g.CheckGenKestrelNativeVisible),
              std::tuple(1, 0, 69, "277", true, false)); // 69 * 4 + 1
    EXPECT_TRUE(messages().empty());

    // Each wrong reply is told, and the reader goes on.
    m.answer({{112, 8, 0}, {112, 9, 5}, {112, 3, 0, 0, 0, 0, 0}}); // length 3, wrong echo, length 7
    EXPECT_TRUE(ReadSerialAddressing(s));
    EXPECT_EQ(messages(), (std::vector<std::string>{"No valid response, size = 3 expected = 4",
                                                    "No valid response, msg = 112,9 expected = 112,2",
                                                    "No valid response, size = 7 expected = 6"}));
}

TEST_F(GeneralCommands, SerialAddressingWritesChainOnSuccess)
{
    g.CheckGenKestrelNative = 1;
    g.LynxFlexAddress = 9;
    g.ExtendedAddress = 33;
    g.CheckGenXGM = {1, 1, 1, 1, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 1};
    EXPECT_TRUE(WriteSerialAddressing(s));
    EXPECT_EQ(m.take(), (std::vector<Data>{{96, 8, 0, 64}, {96, 3, 15, 2, 0, 9}, {96, 2, 33}}));

    g.CheckGenKestrelNative = 0;
    g.CheckGenLynxaddr = 1;
    WriteSerialAddressing(s);
    EXPECT_EQ(m.requests.front(), (Data{96, 8, 1, 9}));
}

TEST_F(GeneralCommands, FlexAddressingWarningUnlessSuppressed)
{
    m.dialogs.answers = {Answer::Cancel};
    g.CheckGenLynxaddr = 1;
    CheckGenLynxaddr_Click(s);
    EXPECT_EQ(std::tuple(m.dialogs.questions, g.CheckGenLynxaddr, g.CheckGenKestrelNativeVisible),
              std::tuple(std::vector<Shown>{{"Lynx Flexible Addressing is a complex concept !!\r\n"
                                             "It should only be activated by experienced users\r\n"
                                             "that understand the details very well !",
                                             Icon::Warning}},
                         0, true));

    g.CheckGenLynxaddr = 1;
    CheckGenLynxaddr_Click(s); // answered OK
    EXPECT_EQ(std::tuple(g.CheckGenLynxaddr, g.CheckGenKestrelNativeVisible, g.TextGenLynxaddrVisible),
              std::tuple(1, false, true));

    g.SuppressAddrWarning = true;
    CheckGenLynxaddr_Click(s);
    EXPECT_EQ(m.dialogs.questions.size(), 2u);

    g.CheckGenKestrelNative = 1;
    CheckGenKestrelNative_Click(s);
    EXPECT_FALSE(g.CheckGenLynxaddrVisible);

    // The read button suppresses the warning only for the read.
    m.answer({{112, 8, 1, 3}, {112, 2, 0}, {112, 3, 0, 0, 0, 0}});
    g.SuppressAddrWarning = false;
    EXPECT_TRUE(CommandGenAddrRead_Click(s));
    EXPECT_EQ(std::tuple(m.dialogs.questions.size(), g.SuppressAddrWarning), std::tuple(2u, false));
}

TEST_F(GeneralCommands, HardwareConfigurationBadByteStopsAndKeepsEarlierGroupsOtherErrorsAreOnlyTold)
{
    g.ChkGenHWCSink = {0, 1, 0, 1};
    g.ChkGenHWCSource = {0, 0, 0, 1};
    m.answer({112, 1, 1, 2, 4, 0}); // group 2 carries 4
    EXPECT_FALSE(ReadHardwareConfig(s));
    EXPECT_EQ(std::tuple(g.ChkGenHWCSink, g.ChkGenHWCSource),
              std::tuple(std::array<int, 4>{1, 0, 0, 1}, std::array<int, 4>{0, 1, 0, 1}));

    m.answer({112, 1, 0, 1, 2, 3});
    EXPECT_TRUE(ReadHardwareConfig(s));
    EXPECT_EQ(std::tuple(g.ChkGenHWCSink, g.ChkGenHWCSource),
              std::tuple(std::array<int, 4>{0, 1, 0, 1}, std::array<int, 4>{0, 0, 1, 1}));

    m.requests.clear();
    EXPECT_TRUE(WriteHardwareConfig(s));
    EXPECT_EQ(m.requests, (std::vector<Data>{{96, 1, 0, 1, 2, 3}}));

    // A wrong size or type is told, and the read still counts as done.
    m.answer({112, 1, 0, 0, 0});
    EXPECT_TRUE(ReadHardwareConfig(s));
    m.answer({112, 2, 0, 0, 0, 0});
    EXPECT_TRUE(ReadHardwareConfig(s));
    EXPECT_EQ(messages(), (std::vector<std::string>{"No valid response byte", "No valid response size",
                                                    "No valid response type"}));
    m.silence();
    EXPECT_FALSE(ReadHardwareConfig(s));
}

TEST_F(GeneralCommands, LedByteZeroMeansElementSevenAndBitSevenIsIgnored)
{
    g.CheckLCGreen = {1, 1, 1, 1, 1, 1, 1, 0};
    g.CheckLCOrange = {1, 0, 1, 0, 1, 0, 1, 1};
    m.answer({{112, 6, 0}, {112, 7, 5}});
    EXPECT_TRUE(ReadLEDControl(s));
    EXPECT_EQ(std::tuple(m.requests, g.CheckLCGreen, g.CheckLCOrange),
              std::tuple(std::vector<Data>{{112, 6}, {112, 7}}, std::array<int, 8>{0, 0, 0, 0, 0, 0, 0, 1},
                         std::array<int, 8>{1, 0, 1, 0, 0, 0, 0, 0}));
    // A byte of 128 (bit 7 only) checks nothing among 0..6 and unchecks element 7.
    std::array<int, 8> boxes{1, 1, 1, 1, 1, 1, 1, 1};
    setLedBoxes(boxes, 128);
    EXPECT_EQ(boxes, (std::array<int, 8>{0, 0, 0, 0, 0, 0, 0, 0}));

    m.answer({{112, 6, 1 + 8 + 64}, {112, 6, 3}}); // orange echoed wrong: a message, green kept
    EXPECT_TRUE(ReadLEDControl(s));
    EXPECT_EQ(g.CheckLCGreen, (std::array<int, 8>{1, 0, 0, 1, 0, 0, 1, 0}));
    EXPECT_EQ(messages(), (std::vector<std::string>{"No valid response"}));

    // Element 7 is not written: "Idle Flash" is the byte 0.
    m.requests.clear();
    g.CheckLCGreen = {0, 0, 0, 0, 0, 0, 0, 1};
    g.CheckLCOrange = {0, 1, 0, 0, 0, 0, 1, 1};
    EXPECT_TRUE(WriteLEDControl(s));
    EXPECT_EQ(m.requests, (std::vector<Data>{{96, 6, 0}, {96, 7, 2 + 64}}));
}

namespace {
// Refuses the first call of a job, to show what a writer does after a failed frame.
struct RefuseFirstCall : Progress {
    void step(int, int, const std::string&) override {}
    bool cancelled() override { return calls++ == 0; }
    int calls = 0;
};
} // namespace

TEST_F(GeneralCommands, MultiFrameWritersSendEveryFrameUnlessTheyChainOnSuccess)
{
    g.OptGenDCC_PRP = 1;
    g.TextGenDCCAddress = "202"; // low 10, high 3
    g.TextGenXDCCAddress = "69"; // low 5, high 1
    g.CheckLCGreen = {0, 0, 0, 1, 0, 0, 0, 0};
    g.CheckLCOrange = {1, 0, 0, 0, 0, 0, 0, 0};
    g.ExtendedAddress = 33;
    // The other writers send every frame; the serial addressing ones chain on success. The writer,
    // and the frames it sends when the first one was not taken.
    const std::tuple<const char*, bool (*)(Session&), std::vector<Data>> writers[] = {
        {"WriteDCCSettings", WriteDCCSettings, {{96, 4, 10, 3}, {96, 12, 5, 1}}},
        {"WriteLEDControl", WriteLEDControl, {{96, 7, 1}}},
        {"WriteSerialAddressing", WriteSerialAddressing, {}},
    };
    for (const auto& [name, write, afterFailedFirst] : writers) {
        SCOPED_TRACE(name);
        RefuseFirstCall refuse;
        s.link.setProgress(&refuse);
        EXPECT_FALSE(write(s));
        s.link.setProgress(nullptr);
        EXPECT_EQ(m.take(), afterFailedFirst);
        EXPECT_TRUE(messages().empty());
    }
}

TEST_F(GeneralCommands, SerialPortLineByteAndParityCodes)
{
    // Baud code 4 ("38400"), 8 = data bits index 1, 32 = parity 2, 64 = stop index 1.
    m.answer({112, 13, 1, 4 + 8 + 32 + 64});
    EXPECT_TRUE(ReadSerialPortSettings(s));
    EXPECT_EQ(std::tuple(m.take(), g.CheckGenSerialEnable, g.ComboGenBaud, g.OptionGenSerialDatabits,
                         g.OptionGenSerialStop, g.OptionGenSerialParity),
              std::tuple(std::vector<Data>{{112, 13}}, 1, 4, 1, 1, 2));

    WriteSerialPortSettings(s);
    g.OptionGenSerialParity = 3;
    g.OptionGenSerialStop = 0;
    g.ComboGenBaud = 7;
    WriteSerialPortSettings(s);
    g.OptionGenSerialParity = 0;
    g.OptionGenSerialDatabits = 0;
    g.CheckGenSerialEnable = 0;
    WriteSerialPortSettings(s);
    EXPECT_EQ(m.requests, (std::vector<Data>{{96, 13, 1, 108}, {96, 13, 1, 7 + 8 + 48}, {96, 13, 0, 7}}));

    m.answer({112, 13, 1});
    EXPECT_FALSE(ReadSerialPortSettings(s));
    m.answer({112, 12, 1, 0});
    EXPECT_FALSE(ReadSerialPortSettings(s));
    EXPECT_EQ(messages(), (std::vector<std::string>{"No valid response, size = 3 expected = 4",
                                                    "No valid response, msg = 112,12 expected = 112,13"}));
}

TEST_F(GeneralCommands, EraseAsksTwiceSendsTheConfirmationWithoutWaitingAndRestoresBidirectional)
{
    m.dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(EraseFlash(s));
    m.dialogs.answers = {Answer::Ok, Answer::Ok};
    EXPECT_FALSE(EraseFlash(s));
    EXPECT_TRUE(m.requests.empty());
    ASSERT_EQ(m.dialogs.questions.size(), 3u);
    EXPECT_EQ(
        std::tuple(m.dialogs.questions[0].text, m.dialogs.questions[2].text, m.dialogs.questions[2].icon),
        std::tuple("WARNING !!\r\nThis operation will erase the Kestrel Configuration Memory\r\nContinue?",
                   "WARNING !!\r\nThis operation will erase the Kestrel Configuration Memory\r\n"
                   "The green LED on the Kestrel will be ON during this process\r\n"
                   "The erase process may take up to 45 seconds, please be patient\r\n\r\n"
                   "Do you want to cancel this operation?",
                   Icon::Warning));

    // Cancel at the second: the confirmation goes out without waiting for a reply.
    int changes = 0;
    s.link.onSettingsChanged = [&] { ++changes; };
    m.dialogs.answers = {Answer::Ok, Answer::Cancel};
    EXPECT_TRUE(EraseFlash(s));
    // Bidirectional communication is unchecked for the frame and checked again after it.
    EXPECT_EQ(std::tuple(m.requests, m.waited[0], s.link.settings.CheckKestrelBD, changes, messages().size()),
              std::tuple(std::vector<Data>{{96, 0, 61, 17, 92, 8, 33, 70, 15, 44}}, false, true, 2, 0u));

    s.link.settings.CheckKestrelBD = false;
    m.dialogs.answers = {Answer::Ok, Answer::Cancel};
    EraseFlash(s);
    EXPECT_FALSE(s.link.settings.CheckKestrelBD);
}
