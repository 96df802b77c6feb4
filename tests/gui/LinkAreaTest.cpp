// The main window's link area and "Request Version", driven by control names.
#include "shell/KestrelConfig.h"
#include "support/RecordingDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace kestrel;

namespace {
template <typename W> W* child(QWidget& w, const char* name)
{
    W* found = w.findChild<W*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
}
} // namespace

TEST(MainWindow, RequestVersionFromTheBuiltInModule)
{
    test::RecordingDialogs dialogs;
    KestrelConfig window(nullptr, &dialogs);
    window.show();
    EXPECT_EQ(window.windowTitle(), "Kestrel Config");

    auto* port = child<QComboBox>(window, "ComboPort");
    const int simIndex = port->findText("sim");
    ASSERT_GE(simIndex, 0);
    port->setCurrentIndex(simIndex);
    window.ComboPort_Click();
    EXPECT_TRUE(window.session().link.port().isOpen());

    QTest::mouseClick(child<QPushButton>(window, "CommandGenVersion"), Qt::LeftButton);
    EXPECT_EQ(child<QLabel>(window, "LabelGenVersionString")->text(), "1.2.3.4");
    EXPECT_EQ(child<QLineEdit>(window, "TextResponse")->text(), "[43] [66] [70] [0] [1] [2] [3] [4]");
    EXPECT_TRUE(dialogs.messages.empty());

    // Another address: nobody answers; the time-out unchecks "Bidirectional Comm.".
    auto* address = child<QLineEdit>(window, "TextAddress");
    address->setText("22");
    window.TextAddress_Click();
    EXPECT_EQ(address->text(), "15");
    window.session().link.port().close(); // no port: refused at once instead of waiting
    QTest::mouseClick(child<QPushButton>(window, "CommandGenVersion"), Qt::LeftButton);
    EXPECT_EQ(child<QLabel>(window, "LabelGenVersionString")->text(), "Unknown");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "Select communications port");
}

TEST(MainWindow, ExtendedAddressControlsFollowTheCheckBox)
{
    test::RecordingDialogs dialogs;
    dialogs.answers = {Answer::Cancel, Answer::Ok};
    KestrelConfig window(nullptr, &dialogs);
    window.show();
    auto* check = child<QCheckBox>(window, "CheckXaddress");
    auto* label = child<QLabel>(window, "LabelAddress");
    auto* x = child<QLineEdit>(window, "txtXaddr");
    EXPECT_FALSE(x->isVisible());

    QTest::mouseClick(check, Qt::LeftButton); // answered Cancel
    EXPECT_FALSE(check->isChecked());
    EXPECT_EQ(label->text(), "Module Address");
    QTest::mouseClick(check, Qt::LeftButton); // answered OK
    EXPECT_TRUE(check->isChecked());
    EXPECT_EQ(label->text(), "Channel Number");
    EXPECT_TRUE(x->isVisible());

    x->setText("200");
    window.txtXaddr_Click();
    EXPECT_EQ(x->text(), "15");
    EXPECT_EQ(window.session().link.settings.TargetXAddress, 15);
}

TEST(MainWindow, NumberingFromOneMovesTheShownAddresses)
{
    test::RecordingDialogs dialogs;
    KestrelConfig window(nullptr, &dialogs);
    window.show();
    auto* address = child<QLineEdit>(window, "TextAddress");
    address->setText("7");
    window.TextAddress_Click();
    QTest::mouseClick(child<QCheckBox>(window, "CheckKLnumber"), Qt::LeftButton);
    EXPECT_EQ(address->text(), "8");
    EXPECT_EQ(window.session().link.settings.TargetAddress, 7);
    address->setText("0");
    window.TextAddress_Click();
    EXPECT_EQ(address->text(), "1");
    EXPECT_EQ(window.session().link.settings.TargetAddress, 0);
}
