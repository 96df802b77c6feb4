// Port, bit-rate and address handling of the link area.
#include "support/ScriptedLink.h"

using namespace kestrel;
using namespace kestrel::test;

namespace {
struct LinkControlFixture : ScriptedLink {
    LinkControlFixture() { port.opened = false; }
};
} // namespace

TEST_F(LinkControlFixture, AddressClampsWithNumberingAndTunneling)
{
    // Typed, shown, used; the tunnel reaches up to 31.
    const std::tuple<bool, int, const char*, const char*, int> cases[] = {{false, 1, "0", "1", 0},
                                                                          {false, 1, "20", "16", 15},
                                                                          {true, 1, "40", "32", 31},
                                                                          {true, 1, "abc", "1", 0}};
    for (const auto& [corvid, numbering, typed, shown, used] : cases) {
        link.settings.CheckCorvid = corvid;
        base = numbering;
        const std::string got = control.TextAddress_Click(typed);
        EXPECT_EQ(std::tuple(got, link.settings.TargetAddress), std::tuple(shown, used)) << typed;
    }
    base = 0;
    link.settings.CheckCorvid = false;
    link.state.LinkToggle = 0;
    EXPECT_EQ(control.TextAddress_Click("7"), "7");
    EXPECT_EQ(std::tuple(link.state.LinkToggle, control.addressText()), std::tuple(128, "7"));
}

TEST_F(LinkControlFixture, ExtendedAddressKeepsThe95To15PairingAndLeavesToggle)
{
    link.state.LinkToggle = 64;
    // Typed, numbering base, shown, used.
    const std::tuple<const char*, int, const char*, int> cases[] = {
        {"200", 0, "15", 15}, {"95", 0, "95", 95}, {"-4", 0, "0", 0}, {"97", 1, "16", 15}};
    for (const auto& [typed, numbering, shown, used] : cases) {
        base = numbering;
        const std::string got = control.txtXaddr_Click(typed);
        EXPECT_EQ(std::tuple(got, link.settings.TargetXAddress), std::tuple(shown, used)) << typed;
    }
    EXPECT_EQ(link.state.LinkToggle, 64);
}

TEST_F(LinkControlFixture, ExtendedAddressingAsksFirst)
{
    dialogs.answers = {Answer::Cancel, Answer::Ok};
    EXPECT_FALSE(control.CheckXaddress_Click(true));
    EXPECT_EQ(control.addressLabel(), "Module Address");
    EXPECT_TRUE(control.CheckXaddress_Click(true));
    EXPECT_EQ(control.addressLabel(), "Channel Number");
    ASSERT_EQ(dialogs.questions.size(), 2u);
    EXPECT_EQ(std::tuple(dialogs.questions[0].text, dialogs.questions[0].icon),
              std::tuple("eXtended Addressing is intended for\r\nexperienced users only!", Icon::Warning));
    EXPECT_FALSE(control.CheckXaddress_Click(false));
    EXPECT_EQ(dialogs.questions.size(), 2u);
}

TEST_F(LinkControlFixture, BitRateAndPortChoice)
{
    // No port chosen: only the settings string changes; nothing opens, the link is left alone.
    link.state.LinkToggle = 64;
    EXPECT_TRUE(control.OptionBitRate_Click(0));
    EXPECT_EQ(std::tuple(port.settings(), port.isOpen(), link.state.LinkToggle),
              std::tuple("9600,o,8,1", false, 64));

    EXPECT_TRUE(control.ComboPort_Click("/dev/pts/7"));
    EXPECT_EQ(std::tuple(port.selected(), port.isOpen(), link.state.LinkToggle, port.settings()),
              std::tuple("/dev/pts/7", true, 128, "9600,o,8,1"));

    link.state.LinkToggle = 0;
    EXPECT_TRUE(control.OptionBitRate_Click(2));
    EXPECT_EQ(std::tuple(port.settings(), port.isOpen(), link.state.LinkToggle),
              std::tuple("38400,o,8,1", true, 128));

    port.failOpen = true;
    EXPECT_FALSE(control.ComboPort_Click("/dev/ttyUSB9"));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text.rfind("Cannot open port /dev/ttyUSB9", 0), 0u);

    control.numberedPorts = false;
    control.systemPorts = [] { return std::vector<std::string>{"/dev/ttyS0", "/dev/ttyUSB0"}; };
    control.cmdRefreshComm_Click();
    EXPECT_EQ(control.ComboPort,
              (std::vector<std::string>{"/dev/ttyS0", "/dev/ttyUSB0", "sim", "sim (Corvid)"}));
    EXPECT_TRUE(control.ComboPortText.empty());

    // Numbered ports (Windows): the numbers 1..16 that open, the chosen port kept selected.
    control.numberedPorts = true;
    control.ScanPorts();
    EXPECT_EQ(control.ComboPort, (std::vector<std::string>{"sim", "sim (Corvid)"}));
    port.failOpen = false;
    control.ScanPorts();
    std::vector<std::string> numbers{"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",   "9",
                                     "10", "11", "12", "13", "14", "15", "16", "sim", "sim (Corvid)"};
    EXPECT_EQ(std::tuple(control.ComboPort, port.selected(), port.isOpen()),
              std::tuple(numbers, "/dev/ttyUSB9", false));
}
