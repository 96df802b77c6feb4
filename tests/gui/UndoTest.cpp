// Undo and redo: every change is one named step, put back without a word to the module.
#include "gui/GuiRig.h"
#include "window/AspectsPage.h"
#include "window/GeneralPage.h"

#include <QRadioButton>
#include <QTemporaryDir>

using namespace kestrel;
using namespace kestrel::test;

TEST(Undo, TypingAndToolsOnTheAspectPage)
{
    Window m;
    AspectsPage& page = *m.w.aspectsPage;
    m.w.tabs->setCurrentWidget(&page);
    m.activate();
    QTest::mouseClick(page.OptionPAspConf[1], Qt::LeftButton); // "4" aspects
    const Configuration laidOut = m.w.session().config;
    const PinRecord& pin = m.w.session().config.pin(0);

    page.TextPAspDesc->setFocus();
    QTest::keyClicks(page.TextPAspDesc, "Yard"); // four keys, one step
    page.TextPAspInit->setFocus();
    page.TextPAspInit->selectAll();
    QTest::keyClicks(page.TextPAspInit, "2"); // not yet finished when Ctrl+Z comes
    QTest::keyClick(page.TextPAspInit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(std::tuple(pin.Description, int(pin.InitAspect), page.TextPAspInit->text(),
                         m.w.actionUndo->text(), m.w.actionRedo->text()),
              std::tuple("Yard", 0, "-1", "Undo typing in Description", "Redo typing in Initial aspect"));
    QTest::keyClick(page.TextPAspInit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(m.w.session().config == laidOut);
    EXPECT_EQ(page.TextPAspDesc->text(), "");
    m.w.actionRedo->trigger();
    QTest::keyClick(page.TextPAspInit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(std::tuple(pin.Description, int(pin.InitAspect), page.TextPAspDesc->text(),
                         page.TextPAspInit->text()),
              std::tuple("Yard", 3, "Yard", "2"));

    // A pasted aspect is taken back as a whole.
    type(page.TextPAspAspDesc, "Clear");
    clickInModal("dlgEditAspect", "CommandCopy");
    QTest::mouseClick(page.LabelPAspAspect, Qt::LeftButton);
    type(page.TextPAspAspect, "1");
    const Configuration beforePaste = m.w.session().config;
    clickInModal("dlgEditAspect", "CommandPaste");
    QTest::mouseClick(page.LabelPAspAspect, Qt::LeftButton);
    EXPECT_EQ(std::tuple(pin.Aspects[1].Description, m.w.actionUndo->text()),
              std::tuple("Clear", "Undo Paste Aspect"));
    m.w.actionUndo->trigger();
    EXPECT_TRUE(m.w.session().config == beforePaste);
    EXPECT_EQ(page.TextPAspAspDesc->text(), "");
}

TEST(Undo, LoadFileAndReadAllAreTakenBackWithoutAFrameSent)
{
    QTemporaryDir dir;
    const QString file = dir.filePath("yard.dat");
    Window m;
    Session& s = m.w.session();
    QLineEdit* id = m.w.generalPage->TextGenIDString;
    type(id, "Yard");
    m.w.saveFile(file, false);
    type(id, "Junction");
    const Configuration config = s.config;
    const GeneralSettings general = s.general;

    m.dialogs.defaultAnswer = Answer::Discard; // Load File and Read All go ahead over the changes
    m.w.loadFile(file);
    ASSERT_EQ(s.general.TextGenIDString, "Yard");
    m.w.actionUndo->trigger();
    EXPECT_EQ(std::tuple(s.config == config, s.general == general, id->text(), m.w.windowTitle()),
              std::tuple(true, true, "Junction", "yard.dat* - Kestrel Config"));

    m.job(m.w.CommandReadAll);
    ASSERT_FALSE(s.config == config);
    const LinkStats sent = s.link.stats;
    EXPECT_EQ(m.w.actionUndo->text(), "Undo Read All");
    m.w.actionUndo->trigger();
    GeneralSettings restored = s.general;
    restored.LabelGenVersionString = general.LabelGenVersionString; // what the module told of itself stays
    EXPECT_EQ(
        std::tuple(s.config == config, restored == general, s.link.stats.exchanges, s.link.stats.bytesOut),
        std::tuple(true, true, sent.exchanges, sent.bytesOut));
}
