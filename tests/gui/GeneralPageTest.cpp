// The General page bound to a session on the built-in simulated module, driven by
// control names.
#include "files/DemoConfiguration.h"
#include "link/Clock.h"
#include "shell/BuiltInSim.h"
#include "shell/GeneralPage.h"
#include "support/RecordingDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

using namespace kestrel;

namespace {

struct BuiltInModule {
    std::unique_ptr<SerialPort> port = makeBuiltInSimPort();
    SystemClock clock;
    test::RecordingDialogs dialogs;
    std::unique_ptr<Session> session = open();

    std::unique_ptr<Session> open()
    {
        port->open();
        return std::make_unique<Session>(*port, clock, dialogs);
    }
};

template <typename W> W* child(QWidget& w, const QString& name)
{
    W* found = w.findChild<W*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
}

void click(QWidget& page, const char* button) { QTest::mouseClick(child<QPushButton>(page, button), Qt::LeftButton); }

bool checked(QWidget& page, const char* name, int index)
{
    return child<QAbstractButton>(page, QString("%1_%2").arg(name).arg(index))->isChecked();
}

} // namespace

TEST(GeneralPage, ReadsEveryFamilyOfTheDemonstrationModule)
{
    BuiltInModule m;
    GeneralPage page(*m.session);
    page.show();
    Configuration demoConfig;
    GeneralSettings demo;
    fillDemoConfiguration(demoConfig, demo);

    for (const char* read : {"CommandGenVersion", "CommandGenIDRead", "CommandGenDCCRead", "CommandGenAddrRead",
                             "CommandGenHWCRead", "CommandLCRead", "CommandGenSerialRead"})
        click(page, read);
    EXPECT_TRUE(m.dialogs.messages.empty()) << m.dialogs.messages[0].text;
    EXPECT_TRUE(m.dialogs.questions.empty());

    EXPECT_EQ(child<QLabel>(page, "LabelGenVersionString")->text(), "1.2.3.4");
    EXPECT_EQ(child<QLineEdit>(page, "TextGenIDString")->text(), "Demo layout");
    EXPECT_EQ(child<QLineEdit>(page, "TextGenDCCAddress")->text().toStdString(), demo.TextGenDCCAddress);
    EXPECT_EQ(child<QLineEdit>(page, "TextGenXDCCAddress")->text().toStdString(), demo.TextGenXDCCAddress);
    EXPECT_TRUE(checked(page, "OptGenDCC_PRP", demo.OptGenDCC_PRP));

    // Native mode: the flex-addressing box and its address are hidden.
    EXPECT_TRUE(child<QCheckBox>(page, "CheckGenKestrelNative")->isChecked());
    EXPECT_TRUE(child<QCheckBox>(page, "CheckGenLynxaddr")->isHidden());
    EXPECT_TRUE(child<QLineEdit>(page, "TextGenLynxaddr")->isHidden());
    EXPECT_TRUE(child<QLabel>(page, "LabelGenXA_4")->isHidden());
    EXPECT_EQ(child<QLineEdit>(page, "TextGenXaddr")->text().toStdString(), std::to_string(demo.ExtendedAddress));
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(checked(page, "CheckGenXGM", i), demo.CheckGenXGM[i] == 1) << i;

    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(checked(page, "ChkGenHWCSink", i), demo.ChkGenHWCSink[i] == 1) << i;
        EXPECT_EQ(checked(page, "ChkGenHWCSource", i), demo.ChkGenHWCSource[i] == 1) << i;
    }
    EXPECT_TRUE(checked(page, "ChkGenHWCSink", 0));

    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(checked(page, "CheckLCGreen", i), demo.CheckLCGreen[i] == 1) << i;
        EXPECT_EQ(checked(page, "CheckLCOrange", i), demo.CheckLCOrange[i] == 1) << i;
    }
    EXPECT_EQ(child<QCheckBox>(page, "CheckLCGreen_3")->text(), "Kestrel Message");
    EXPECT_TRUE(child<QCheckBox>(page, "CheckLCGreen_3")->isChecked());

    EXPECT_EQ(child<QComboBox>(page, "ComboGenBaud")->currentText(), "19200");
    EXPECT_TRUE(checked(page, "OptionGenSerialDatabits", 1));
    EXPECT_TRUE(checked(page, "OptionGenSerialParity", 0));
    EXPECT_TRUE(checked(page, "OptionGenSerialStop", 0));
    EXPECT_EQ(m.session->general.CheckGenSerialEnable, demo.CheckGenSerialEnable);
}

TEST(GeneralPage, WritersTakeTheControlsAsTheyAreAtTheClick)
{
    BuiltInModule m;
    GeneralPage page(*m.session);
    page.show();

    auto* id = child<QLineEdit>(page, "TextGenIDString");
    id->setText("Up Main Junction 7");
    click(page, "CommandGenIDWrite");
    EXPECT_EQ(id->text(), "Up Main Junc");
    id->setText("something else");
    click(page, "CommandGenIDRead");
    EXPECT_EQ(id->text(), "Up Main Junc");

    // The module's serial port (8 data bits in the demonstration): 7 bits, odd parity,
    // 2 stop bits, 57600, enabled.
    QTest::mouseClick(child<QCheckBox>(page, "CheckGenSerialEnable"), Qt::LeftButton);
    QTest::mouseClick(child<QRadioButton>(page, "OptionGenSerialDatabits_0"), Qt::LeftButton);
    child<QComboBox>(page, "ComboGenBaud")->setCurrentIndex(5);
    QTest::mouseClick(child<QRadioButton>(page, "OptionGenSerialParity_3"), Qt::LeftButton);
    QTest::mouseClick(child<QRadioButton>(page, "OptionGenSerialStop_1"), Qt::LeftButton);
    EXPECT_EQ(child<QRadioButton>(page, "OptionGenSerialParity_2")->text(), "Even");
    click(page, "CommandGenSerialWrite");
    m.session->general = GeneralSettings{};
    page.refresh();
    EXPECT_FALSE(child<QCheckBox>(page, "CheckGenSerialEnable")->isChecked());
    click(page, "CommandGenSerialRead");
    EXPECT_TRUE(child<QCheckBox>(page, "CheckGenSerialEnable")->isChecked());
    EXPECT_EQ(child<QComboBox>(page, "ComboGenBaud")->currentText(), "57600");
    EXPECT_TRUE(checked(page, "OptionGenSerialParity", 3));
    EXPECT_TRUE(checked(page, "OptionGenSerialStop", 1));
    EXPECT_TRUE(checked(page, "OptionGenSerialDatabits", 0));

    // A typed eXtended address beyond 95 is clamped, written and read back.
    auto* xaddr = child<QLineEdit>(page, "TextGenXaddr");
    xaddr->setText("300");
    click(page, "CommandGenAddrWrite");
    EXPECT_EQ(xaddr->text(), "95");
    xaddr->setText("7");
    page.commit();
    EXPECT_EQ(m.session->general.ExtendedAddress, 7);
    click(page, "CommandGenAddrRead");
    EXPECT_EQ(xaddr->text(), "95");
    EXPECT_TRUE(m.dialogs.messages.empty()) << m.dialogs.messages[0].text;
}

TEST(GeneralPage, FlexAddressingAsksFirstAndSwapsTheModeControls)
{
    BuiltInModule m;
    m.dialogs.answers = {Answer::Cancel, Answer::Ok};
    GeneralPage page(*m.session);
    page.show();
    auto* flex = child<QCheckBox>(page, "CheckGenLynxaddr");
    auto* native = child<QCheckBox>(page, "CheckGenKestrelNative");
    auto* flexAddress = child<QLineEdit>(page, "TextGenLynxaddr");
    EXPECT_TRUE(flexAddress->isHidden());

    QTest::mouseClick(flex, Qt::LeftButton); // the warning answered Cancel
    EXPECT_FALSE(flex->isChecked());
    EXPECT_FALSE(native->isHidden());
    QTest::mouseClick(flex, Qt::LeftButton); // answered OK
    ASSERT_EQ(m.dialogs.questions.size(), 2u);
    EXPECT_TRUE(flex->isChecked());
    EXPECT_TRUE(native->isHidden());
    EXPECT_FALSE(flexAddress->isHidden());
    EXPECT_FALSE(child<QLabel>(page, "LabelGenXA_4")->isHidden());

    // The flex-address is shown times 4: 41 becomes 40, address 10.
    flexAddress->setText("41");
    click(page, "CommandGenAddrWrite");
    EXPECT_EQ(flexAddress->text(), "40");
    EXPECT_EQ(m.session->general.LynxFlexAddress, 10);
    m.session->general = GeneralSettings{};
    page.refresh();
    click(page, "CommandGenAddrRead"); // no warning on the way in
    EXPECT_EQ(m.dialogs.questions.size(), 2u);
    EXPECT_TRUE(flex->isChecked());
    EXPECT_EQ(flexAddress->text(), "40");
}

TEST(GeneralPage, EraseNeedsOkThenCancel)
{
    BuiltInModule m;
    GeneralPage page(*m.session);
    page.show();

    m.dialogs.answers = {Answer::Ok, Answer::Ok}; // the second OK means "yes, cancel"
    click(page, "CommandGenEraseFlash");
    EXPECT_EQ(m.dialogs.questions.size(), 2u);
    click(page, "CommandGenIDRead");
    EXPECT_EQ(child<QLineEdit>(page, "TextGenIDString")->text(), "Demo layout");

    m.dialogs.clear();
    m.dialogs.answers = {Answer::Ok, Answer::Cancel};
    click(page, "CommandGenEraseFlash");
    ASSERT_EQ(m.dialogs.questions.size(), 2u);
    EXPECT_EQ(m.dialogs.questions[1].icon, Icon::Warning);
    EXPECT_TRUE(m.session->link.settings.CheckKestrelBD); // restored after the erase
    click(page, "CommandGenIDRead");
    EXPECT_EQ(child<QLineEdit>(page, "TextGenIDString")->text(), "");
    EXPECT_TRUE(m.dialogs.messages.empty()) << m.dialogs.messages[0].text;
}
