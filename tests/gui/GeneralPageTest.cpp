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
