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
    base = 1;
    EXPECT_EQ(control.TextAddress_Click("0"), "1");
    EXPECT_EQ(link.settings.TargetAddress, 0);
    EXPECT_EQ(control.TextAddress_Click("20"), "16");
    EXPECT_EQ(link.settings.TargetAddress, 15);
    link.settings.CheckCorvid = true;
    EXPECT_EQ(control.TextAddress_Click("40"), "32");
    EXPECT_EQ(link.settings.TargetAddress, 31);
    EXPECT_EQ(control.TextAddress_Click("abc"), "1");

    base = 0;
    link.settings.CheckCorvid = false;
    link.state.LinkToggle = 0;
    EXPECT_EQ(control.TextAddress_Click("7"), "7");
    EXPECT_EQ(link.state.LinkToggle, 128);
    EXPECT_EQ(control.addressText(), "7");
}

TEST_F(LinkControlFixture, ExtendedAddressKeepsThe95To15PairingAndLeavesToggle)
{
    link.state.LinkToggle = 64;
    EXPECT_EQ(control.txtXaddr_Click("200"), "15");
    EXPECT_EQ(link.settings.TargetXAddress, 15);
    EXPECT_EQ(control.txtXaddr_Click("95"), "95");
    EXPECT_EQ(link.settings.TargetXAddress, 95);
    EXPECT_EQ(control.txtXaddr_Click("-4"), "0");
    base = 1;
    EXPECT_EQ(control.txtXaddr_Click("97"), "16");
    EXPECT_EQ(link.settings.TargetXAddress, 15);
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
    EXPECT_EQ(dialogs.questions[0].text, "eXtended Addressing is intended for\r\nexperienced users only!");
    EXPECT_EQ(dialogs.questions[0].icon, Icon::Warning);
    EXPECT_FALSE(control.CheckXaddress_Click(false));
    EXPECT_EQ(dialogs.questions.size(), 2u);
}

TEST_F(LinkControlFixture, BitRateAndPortChoice)
{
    // No port chosen: only the settings string changes; nothing opens, the link is left alone.
    link.state.LinkToggle = 64;
    EXPECT_TRUE(control.OptionBitRate_Click(0));
    EXPECT_EQ(port.settings(), "9600,o,8,1");
    EXPECT_FALSE(port.isOpen());
    EXPECT_EQ(link.state.LinkToggle, 64);

    EXPECT_TRUE(control.ComboPort_Click("/dev/pts/7"));
    EXPECT_EQ(port.selected(), "/dev/pts/7");
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(link.state.LinkToggle, 128);
    EXPECT_EQ(port.settings(), "9600,o,8,1");

    link.state.LinkToggle = 0;
    EXPECT_TRUE(control.OptionBitRate_Click(2));
    EXPECT_EQ(port.settings(), "38400,o,8,1");
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(link.state.LinkToggle, 128);

    port.failOpen = true;
    EXPECT_FALSE(control.ComboPort_Click("/dev/ttyUSB9"));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text.rfind("Cannot open port /dev/ttyUSB9", 0), 0u);

    control.systemPorts = [] { return std::vector<std::string>{"/dev/ttyS0", "/dev/ttyUSB0"}; };
    control.cmdRefreshComm_Click();
    EXPECT_EQ(control.ComboPort, (std::vector<std::string>{"/dev/ttyS0", "/dev/ttyUSB0", "sim"}));
    EXPECT_TRUE(control.ComboPortText.empty());
}
