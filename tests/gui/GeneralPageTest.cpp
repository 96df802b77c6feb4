// The General page on the built-in simulated module, driven by control names.
#include "window/GeneralPage.h"
#include "files/DemoConfiguration.h"
#include "gui/GuiRig.h"

#include <QCheckBox>
#include <QComboBox>

using namespace kestrel;
using namespace kestrel::test;

namespace {

void click(QWidget& page, const char* button)
{
    QTest::mouseClick(child<QPushButton>(page, button), Qt::LeftButton);
}

bool checked(QWidget& page, const char* name, int index)
{
    return child<QAbstractButton>(page, QString("%1_%2").arg(name).arg(index))->isChecked();
}

std::string text(QWidget& page, const char* name)
{
    return child<QWidget>(page, name)->property("text").toString().toStdString();
}

} // namespace

TEST(GeneralPage, ReadsEveryFamilyOfTheDemonstrationModule)
{
    PageRig<GeneralPage> m;
    GeneralPage& page = *m.page;
    Configuration demoConfig;
    GeneralSettings demo;
    fillDemoConfiguration(demoConfig, demo);

    for (const char* read :
         {"CommandGenVersion", "CommandGenIDRead", "CommandGenDCCRead", "CommandGenAddrRead",
          "CommandGenHWCRead", "CommandLCRead", "CommandGenSerialRead"})
        click(page, read);
    EXPECT_TRUE(m.dialogs.messages.empty()) << m.dialogs.messages[0].text;
    EXPECT_TRUE(m.dialogs.questions.empty());

    EXPECT_EQ(std::tuple(text(page, "LabelGenVersionString"), text(page, "TextGenIDString"),
                         text(page, "TextGenDCCAddress"), text(page, "TextGenXDCCAddress"),
                         text(page, "TextGenXaddr"), checked(page, "OptGenDCC_PRP", demo.OptGenDCC_PRP)),
              std::tuple("1.2.3.4", "Demo layout", demo.TextGenDCCAddress, demo.TextGenXDCCAddress,
                         std::to_string(demo.ExtendedAddress), true));

    // Native mode: the flex-addressing box and its address are hidden.
    EXPECT_EQ(std::tuple(child<QCheckBox>(page, "CheckGenKestrelNative")->isChecked(),
                         child<QCheckBox>(page, "CheckGenLynxaddr")->isHidden(),
                         child<QLineEdit>(page, "TextGenLynxaddr")->isHidden(),
                         child<QLabel>(page, "LabelGenXA_4")->isHidden()),
              std::tuple(true, true, true, true));
    // Each family of boxes as the module holds it (the demonstration checks some of each).
    const auto all = [](const auto& boxes) { return std::vector<int>(boxes.begin(), boxes.end()); };
    const std::pair<const char*, std::vector<int>> families[] = {
        {"CheckGenXGM", all(demo.CheckGenXGM)},
        {"ChkGenHWCSink", all(demo.ChkGenHWCSink)},
        {"ChkGenHWCSource", all(demo.ChkGenHWCSource)},
        {"CheckLCGreen", all(demo.CheckLCGreen)},
        {"CheckLCOrange", all(demo.CheckLCOrange)}};
    for (const auto& [name, values] : families)
        for (int i = 0; i < static_cast<int>(values.size()); ++i)
            EXPECT_EQ(checked(page, name, i), values[i] == 1) << name << i;
    EXPECT_TRUE(checked(page, "ChkGenHWCSink", 0) && checked(page, "CheckLCGreen", 3));

    EXPECT_EQ(std::tuple(child<QComboBox>(page, "ComboGenBaud")->currentText(),
                         checked(page, "OptionGenSerialDatabits", 1),
                         checked(page, "OptionGenSerialParity", 0), checked(page, "OptionGenSerialStop", 0),
                         m.session->general.CheckGenSerialEnable),
              std::tuple("19200", true, true, true, demo.CheckGenSerialEnable));
    // One option of each group, also where the module's value is not the one shown first.
    for (const char* group : {"OptionGenSerialDatabits", "OptionGenSerialStop", "OptGenDCC_PRP"}) {
        const auto buttons =
            page.findChildren<QAbstractButton*>(QRegularExpression(QString("^%1_").arg(group)));
        EXPECT_EQ(std::count_if(buttons.begin(), buttons.end(), [](auto* b) { return b->isChecked(); }), 1)
            << group;
    }
}

TEST(GeneralPage, FlexAddressingAsksFirstAndSwapsTheModeControls)
{
    PageRig<GeneralPage> m;
    m.dialogs.answers = {Answer::Cancel, Answer::Ok};
    GeneralPage& page = *m.page;
    auto* flex = child<QCheckBox>(page, "CheckGenLynxaddr");
    auto* native = child<QCheckBox>(page, "CheckGenKestrelNative");
    auto* flexAddress = child<QLineEdit>(page, "TextGenLynxaddr");
    EXPECT_TRUE(flexAddress->isHidden());

    QTest::mouseClick(flex, Qt::LeftButton); // the warning answered Cancel
    EXPECT_EQ(std::tuple(flex->isChecked(), native->isHidden()), std::tuple(false, false));
    QTest::mouseClick(flex, Qt::LeftButton); // answered OK
    EXPECT_EQ(std::tuple(m.dialogs.questions.size(), flex->isChecked(), native->isHidden(),
                         flexAddress->isHidden(), child<QLabel>(page, "LabelGenXA_4")->isHidden()),
              std::tuple(2u, true, true, false, false));

    // The flex-address is shown times 4: 41 becomes 40, address 10.
    flexAddress->setText("41");
    click(page, "CommandGenAddrWrite");
    EXPECT_EQ(std::tuple(flexAddress->text(), m.session->general.LynxFlexAddress), std::tuple("40", 10));
    m.session->general = GeneralSettings{};
    page.refresh();
    click(page, "CommandGenAddrRead"); // no warning on the way in
    EXPECT_EQ(std::tuple(m.dialogs.questions.size(), flex->isChecked(), flexAddress->text()),
              std::tuple(2u, true, "40"));
}
