// The whole window as a user drives it, on the built-in module and on pseudo-terminals.
#include "base/ProgramFault.h"
#include "files/Backups.h"
#include "files/ConfigurationFile.h"
#include "gui/GuiRig.h"
#include "session/ModuleImage.h"
#include "support/Process.h"
#include "window/AspectsPage.h"
#include "window/BackupDialog.h"
#include "window/EventPage.h"
#include "window/GeneralPage.h"
#include "window/Guard.h"
#include "window/QtDialogs.h"

#include <QCheckBox>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <set>

using namespace kestrel;
using namespace kestrel::test;

TEST(Window, GeneralPageEditsReachWriteAllVerifyAllAndTheDataFile)
{
    Window m;
    QTest::mouseClick(m.w.CommandReadAll, Qt::LeftButton); // the job waits for the timer
    EXPECT_EQ(std::tuple(m.w.LabelAction->isVisible(), m.w.jobs.PendingJob), std::tuple(true, "ReadAll"));
    m.waitIdle();
    EXPECT_EQ(
        std::tuple(m.w.windowTitle(), m.w.LabelStatusModule->text()),
        std::tuple("untitled* - Kestrel Config", "The module holds what is shown")); // read, never saved
    GeneralPage& page = *m.w.generalPage;

    type(page.TextGenIDString, "Up Main Junction 7"); // the module keeps 12 characters: told, and cut
    EXPECT_EQ(m.dialogs.texts(), std::vector<std::string>{"ID string cut to 12 characters: Up Main Junc"});
    m.dialogs.clear();
    type(page.TextGenIDString, QString::fromUtf8("Yard é 9")); // é cannot be stored: not taken
    type(page.TextGenDCCAddress, "9000");                      // clamped
    type(page.TextGenXDCCAddress, "x12");                      // digits only
    EXPECT_EQ(std::tuple(page.TextGenIDString->text(), page.TextGenDCCAddress->text(),
                         page.TextGenXDCCAddress->text()),
              std::tuple("Yard  9", "8191", "12"));
    for (QAbstractButton* b : page.findChildren<QAbstractButton*>())
        if (b->isCheckable() && b->isVisible() && !b->isChecked())
            QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(8, b->height() / 2)); // on its indicator
    page.ComboGenBaud->setFocus();
    QTest::keyClick(page.ComboGenBaud, Qt::Key_Down);
    const GeneralSettings edited = m.w.session().general;
    EXPECT_EQ(std::tuple(edited.TextGenIDString, edited.TextGenDCCAddress, edited.CheckGenXGM[15],
                         edited.ChkGenHWCSource[3], edited.CheckLCOrange[6], edited.CheckGenSerialEnable),
              std::tuple("Yard  9", "8191", 1, 1, 1, 1));
    EXPECT_TRUE(m.w.windowTitle().startsWith("untitled*")) << m.w.windowTitle().toStdString();

    // Verify All compares what the user sees, so the module differs before the write and
    // holds every edit after it; the jobs keep them on screen.
    m.job(m.w.CommandVerifyAll);
    EXPECT_TRUE(m.w.frmKestrelVerification->isVisible());
    EXPECT_TRUE(m.report().startsWith("Start General Settings Verification") &&
                !m.report().endsWith("Verify OK"))
        << m.report().toStdString();
    EXPECT_TRUE(m.status().contains("the module differs")) << m.status().toStdString();
    m.job(m.w.CommandWriteAll);
    EXPECT_TRUE(m.status().startsWith("Write All done in")) << m.status().toStdString();
    EXPECT_EQ(
        std::tuple(m.w.windowTitle(), m.w.LabelStatusModule->text()),
        std::tuple("untitled* - Kestrel Config", "The module holds what is shown")); // written, not saved
    m.job(m.w.CommandVerifyAll);
    EXPECT_EQ(std::tuple(m.report().endsWith("Verify OK"), m.status(), page.TextGenIDString->text(),
                         m.w.session().general.CheckGenXGM),
              std::tuple(true, "Verify OK", "Yard  9", edited.CheckGenXGM));

    // Save File writes what the page shows; a typed ID not yet finished is taken too.
    QTemporaryDir dir;
    const QString path = dir.filePath("mylayout.dat");
    page.TextGenIDString->setFocus();
    QTest::keyClicks(page.TextGenIDString, "X");
    m.dialogs.fileNames = {path.toStdString()};
    QTest::mouseClick(m.w.CommandSave, Qt::LeftButton);
    EXPECT_EQ(m.w.windowTitle(), "mylayout.dat - Kestrel Config");
    Configuration config;
    GeneralSettings filed;
    test::RecordingDialogs quiet;
    ASSERT_EQ(loadConfigurationFile(path.toStdString(), config, filed, quiet), LoadResult::Loaded);
    EXPECT_EQ(
        std::tuple(filed.TextGenIDString, filed.TextGenDCCAddress, filed.CheckGenXGM, filed.ComboGenBaud),
        std::tuple("Yard  9X", "8191", edited.CheckGenXGM, edited.ComboGenBaud));

    // The numbering switch keeps every edit on screen.
    type(page.TextGenXaddr, "300");
    EXPECT_EQ(page.TextGenXaddr->text(), "95");
    QTest::mouseClick(m.w.CheckKLnumber, Qt::LeftButton);
    EXPECT_EQ(std::tuple(page.TextGenXaddr->text(), page.TextGenIDString->text()),
              std::tuple("96", "Yard  9X"));
    EXPECT_TRUE(m.dialogs.messages.empty()) << m.dialogs.messages[0].text;
}

TEST(Window, UnsavedChangesAreAskedAboutBeforeTheyAreLost)
{
    Window m;
    type(m.w.generalPage->TextGenIDString, "Changed");
    EXPECT_TRUE(m.w.unsavedChanges());
    // Cancel: the window stays, Read All does not start, nothing is loaded.
    m.dialogs.defaultAnswer = Answer::Cancel;
    EXPECT_FALSE(m.w.close());
    QTest::mouseClick(m.w.CommandReadAll, Qt::LeftButton);
    EXPECT_TRUE(m.w.jobs.PendingJob.empty());
    QTest::mouseClick(m.w.CommandLoad, Qt::LeftButton);
    EXPECT_EQ(std::tuple(m.dialogs.questions.size(), m.w.session().general.TextGenIDString),
              std::tuple(3u, "Changed"));
    // Save: asked for a file; a cancelled save dialog keeps the window open.
    m.dialogs.answers = {Answer::Save};
    EXPECT_FALSE(m.w.close());
    // Discard: Read All runs and puts the module's ID back; what was read was never saved.
    m.dialogs.defaultAnswer = Answer::Discard;
    m.job(m.w.CommandReadAll);
    EXPECT_EQ(std::tuple(m.w.generalPage->TextGenIDString->text(), m.w.unsavedChanges()),
              std::tuple("Demo layout", true));
    // Saved, then a description only the file keeps: writing the module does not save it,
    // and a compact file that leaves pins out does not either.
    QTemporaryDir dir;
    m.dialogs.fileNames = {dir.filePath("a.dat").toStdString(), dir.filePath("b.dat").toStdString()};
    m.activate();
    m.w.CommandSave->setFocus();
    QTest::keyClick(m.w.CommandSave, Qt::Key_Return); // Save File from the keyboard
    type(m.w.aspectsPage->TextPAspDesc, "Kept in the file only");
    for (QPushButton* write : {m.w.CommandWriteAll, m.w.CommandWriteChanges})
        m.job(write);
    m.activate();
    QTest::keyClick(&m.w, Qt::Key_S, Qt::AltModifier | Qt::ShiftModifier); // compact
    m.dialogs.clear();
    EXPECT_EQ(std::tuple(m.w.windowTitle(), m.w.LabelStatusModule->text()),
              std::tuple("b.dat* - Kestrel Config", "The module holds what is shown"));
    EXPECT_TRUE(m.w.close());
    EXPECT_EQ(m.dialogs.questions.size(), 1u);
}

TEST(Window, NothingTypedOrPressedEndsTheProgram)
{
    Window m;
    m.dialogs.defaultAnswer = Answer::Discard; // Read All and Load go ahead; warnings say no

    // Every entry box of every page gets out-of-range, negative and non-numeric text, then
    // every button of the page is pressed.
    const QStringList typed = {"99999", "-99999", "abc", QString::fromUtf8("é"), "-"};
    std::set<std::string> texts;
    for (int t = 0; t < m.w.tabs->count(); ++t) {
        m.w.tabs->setCurrentIndex(t);
        QWidget* page = m.w.tabs->widget(t);
        for (const QString& text : typed)
            for (QLineEdit* box : page->findChildren<QLineEdit*>())
                if (box->isVisible() && box->isEnabled() && !box->isReadOnly())
                    type(box, text);
        for (QPushButton* b : page->findChildren<QPushButton*>())
            if (b->isVisible() && b->isEnabled())
                m.job(b);
        for (const auto& shown : m.dialogs.messages)
            texts.insert(shown.text);
        m.dialogs.clear();
    }
    // Only messages the module's rules give, or the guard's.
    for (const std::string& text : texts) {
        const bool known = text.rfind(programFaultMessage("").substr(0, 40), 0) == 0 ||
                           text == "Select Devicename to load" || text.rfind("ID string cut", 0) == 0 ||
                           text.rfind("Unknown configuration", 0) == 0 ||
                           text == "No Device Configuration file selected" ||
                           text.rfind("The following Pin numbers were already used: ", 0) == 0;
        EXPECT_TRUE(known) << text;
    }
    EXPECT_TRUE(m.w.isVisible());
}

TEST(Window, PseudoTerminalsOpenAgainAtAnyRateAndAfterAnother)
{
    test::SimProcess first({"--version", "1.1.1.1"});
    test::SimProcess second({"--version", "2.2.2.2"});
    Window m;
    const auto version = [&] {
        m.w.LabelGenVersionString->clear();
        QTest::mouseClick(m.w.CommandGenVersion, Qt::LeftButton);
        return m.w.LabelGenVersionString->text().toStdString();
    };
    m.openPort(QString::fromStdString(first.pty()));
    EXPECT_EQ(version(), "1.1.1.1");
    EXPECT_TRUE(m.w.LabelStatusPort->text().contains("19200")) << m.w.LabelStatusPort->text().toStdString();
    QTest::mouseClick(m.w.OptionBitRate[2], Qt::LeftButton);
    EXPECT_EQ(version(), "1.1.1.1");
    EXPECT_TRUE(m.w.LabelStatusPort->text().contains("38400"));
    // The same port chosen again, another, and back.
    for (const auto& [sim, shown] :
         {std::pair{&first, "1.1.1.1"}, {&second, "2.2.2.2"}, {&first, "1.1.1.1"}}) {
        m.openPort(QString::fromStdString(sim->pty()));
        EXPECT_EQ(version(), shown);
    }
    EXPECT_TRUE(m.dialogs.messages.empty()) << m.dialogs.messages[0].text;
    EXPECT_GE(m.w.ComboPort->findText(QString::fromStdString(second.pty())), 0); // typed paths join the list

    // The other end goes away: told, the port is closed; another one opens at once.
    first.stop();
    EXPECT_NE(version(), "1.1.1.1");
    EXPECT_EQ(std::tuple(m.dialogs.messages.empty(), m.w.LabelStatusPort->text()),
              std::tuple(false, "Port closed"));
    m.openPort(QString::fromStdString(second.pty()));
    EXPECT_EQ(version(), "2.2.2.2");

    // A module that refuses one read: Read All goes on, and the status bar says what is missing.
    test::SimProcess refusing({"--refuse", "112,1:length"});
    m.openPort(QString::fromStdString(refusing.pty()));
    m.dialogs.defaultAnswer = Answer::Discard;
    QDir(backupRoot()).removeRecursively();
    m.job(m.w.CommandReadAll);
    EXPECT_TRUE(
        m.status().startsWith("Read All incomplete: 1 problem reported, the first: No valid response size"))
        << m.status().toStdString();
    const auto kept = listBackups(backupRoot().toStdString()); // only as an incomplete backup
    EXPECT_TRUE(kept.size() == 1 && kept[0].incomplete);
}

TEST(Window, AMessageDuringAJobIsAboveItsProgressDialog)
{
    // Real message boxes: nobody answers at address 9, after the progress dialog is up.
    KestrelConfig w;
    w.show();
    w.ComboPort->setEditText("sim");
    QTest::keyClick(w.ComboPort, Qt::Key_Return);
    w.TextAddress->setText("9");
    w.TextAddress_Click();
    QString seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        seen = box->text();
        EXPECT_TRUE(qobject_cast<QProgressDialog*>(box->parentWidget()))
            << "the box belongs to the progress dialog";
        QTest::keyClick(box, Qt::Key_Return); // answered from the keyboard
    });
    poll.start(50);
    QTest::mouseClick(w.CommandReadAll, Qt::LeftButton);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return !w.LabelAction->isVisible() && w.jobs.PendingJob.empty(); }, 20000));
    EXPECT_EQ(seen, "No response received, resetting bidirectional communication");
    EXPECT_TRUE(w.LabelStatusJob->text().startsWith("Read All stopped"))
        << w.LabelStatusJob->text().toStdString();
}

TEST(Window, MenusShortcutsAndWhatIsRememberedBetweenRuns)
{
    QTemporaryDir dir;
    const QString file = dir.filePath("layout.dat");
    {
        Window m;
        // Save As from the menu asks for a name; Ctrl+S then saves there without asking.
        m.dialogs.fileNames = {file.toStdString()};
        m.w.menuFile->actions()[3]->trigger(); // "Save As..."
        m.w.session().general.TextGenIDString = "Yard";
        m.activate();
        QTest::keyClick(&m.w, Qt::Key_S, Qt::ControlModifier);
        EXPECT_TRUE(m.dialogs.fileNames.empty());
        EXPECT_EQ(std::tuple(m.w.recentFiles(), m.w.actionRecent[0]->text(), m.w.windowTitle()),
                  std::tuple(QStringList{file}, "&1 layout.dat", "layout.dat - Kestrel Config"));
        // From the keyboard alone: Ctrl+R reads the whole module, Ctrl+O loads (here the
        // file just saved).
        QTest::keyClick(&m.w, Qt::Key_R, Qt::ControlModifier);
        m.waitIdle();
        EXPECT_TRUE(m.status().startsWith("Read All done")) << m.status().toStdString();
        m.dialogs.fileNames = {file.toStdString()};
        m.dialogs.defaultAnswer = Answer::Discard; // what was read is not kept
        m.activate();                              // back from the job's progress dialog
        QTest::keyClick(&m.w, Qt::Key_O, Qt::ControlModifier);
        EXPECT_EQ(std::tuple(m.w.session().general.TextGenIDString, m.status()),
                  std::tuple("Yard", "Loaded " + file));
        // A button's mnemonic presses it (a moment later, as a click is animated).
        m.w.tabs->setCurrentIndex(m.w.tabs->count() - 1);
        m.activate();
        m.w.tabs->setFocus();
        QTest::keyClick(m.w.tabs, Qt::Key_L, Qt::AltModifier); // "Read A&ll"
        // (The job may be asked for and run within one pass of the event loop, so its
        // end is awaited rather than its notice.)
        EXPECT_TRUE(QTest::qWaitFor([&] { return m.status().startsWith("Read All done"); }, 10000))
            << m.status().toStdString();
        m.waitIdle();
        // The file held module "Yard": the one read now makes the configuration untitled, so
        // that Ctrl+S cannot put it over another module's file.
        EXPECT_EQ(m.w.windowTitle(), "untitled* - Kestrel Config");
        type(m.w.TextAddress, "3");
        m.w.CheckKLnumber->click(); // shown numbers move
        m.w.OptionBitRate[2]->click();

        // The Corvid log shows itself when first written to, and stays closed once closed.
        m.w.session().link.onCorvidLog("poll");
        ASSERT_TRUE(m.w.frmCorvidComm->isVisible());
        m.w.frmCorvidComm->close();
        m.w.session().link.onCorvidLog("poll");
        EXPECT_FALSE(m.w.frmCorvidComm->isVisible());
        m.w.close();
    }
    KestrelConfig again; // a second run: the same port, rate, address, numbering and files
    EXPECT_EQ(std::tuple(again.ComboPort->currentText(), again.OptionBitRate[2]->isChecked(),
                         again.TextAddress->text(), again.CheckKLnumber->isChecked(), again.recentFiles()),
              std::tuple("sim", true, "4", true, QStringList{file})); // address 3 shown from 1
    again.actionRecent[0]->trigger();                                 // the last file, loaded from the menu
    EXPECT_EQ(again.session().general.TextGenIDString, "Yard");
    again.actionForgetSettings->trigger();
    EXPECT_TRUE(QSettings("Kestrel", "Kestrel Config").allKeys().isEmpty());
}

TEST(Window, AProgramFaultIsToldOnceAndLeavesTheConfigurationAsItWas)
{
    Window m;
    Session& s = m.w.session();
    s.config.pin(3).Description = "kept";
    Guard guard(s);
    int after = 0;
    guard.after = [&] { ++after; };
    EXPECT_FALSE(guard([&] {
        s.config.pin(3).Description = "half done";
        s.general.TextGenIDString = "half done";
        guard([&] { s.config.pin(99); }); // an inner handler's fault stops the outer one
        s.config.pin(4).Description = "never";
    }));
    EXPECT_EQ(std::tuple(s.config.pin(3).Description, s.config.pin(4).Description, s.general.TextGenIDString),
              std::tuple("kept", "", ""));
    ASSERT_EQ(m.dialogs.texts().size(), 1u);
    EXPECT_EQ(m.dialogs.texts()[0], "Program error, the operation was stopped: Index out of range: pin = 99");
    EXPECT_EQ(after, 1);
}

TEST(Window, RequestVersionTheLinkAreaAndTheExtendedAddress)
{
    Window m(false);
    m.w.ComboPort->setCurrentIndex(m.w.ComboPort->findText("sim"));
    m.w.ComboPort_Click();
    EXPECT_TRUE(m.w.session().link.port().isOpen());
    QTest::mouseClick(m.w.CommandGenVersion, Qt::LeftButton);
    EXPECT_EQ(std::tuple(m.w.LabelGenVersionString->text(), child<QLineEdit>(m.w, "TextResponse")->text()),
              std::tuple("1.2.3.4", "[43] [66] [70] [0] [1] [2] [3] [4]"));
    EXPECT_TRUE(m.dialogs.messages.empty());

    // Another address (clamped to 15) and no port: refused at once instead of waiting.
    m.w.TextAddress->setText("22");
    m.w.TextAddress_Click();
    EXPECT_EQ(m.w.TextAddress->text(), "15");
    m.w.session().link.port().close();
    QTest::mouseClick(m.w.CommandGenVersion, Qt::LeftButton);
    EXPECT_EQ(m.w.LabelGenVersionString->text(), "Unknown");
    EXPECT_EQ(m.dialogs.texts(), std::vector<std::string>{"Select communications port"});

    // Numbering from one moves the shown address, not the one used.
    m.w.TextAddress->setText("7");
    m.w.TextAddress_Click();
    QTest::mouseClick(m.w.CheckKLnumber, Qt::LeftButton);
    EXPECT_EQ(std::tuple(m.w.TextAddress->text(), m.w.session().link.settings.TargetAddress),
              std::tuple("8", 7));

    // A whole-module job without a port fails with one message.
    m.dialogs.clear();
    m.job(m.w.CommandWriteAll);
    EXPECT_EQ(m.dialogs.texts(), std::vector<std::string>{"Select communications port"});

    // The eXtended address controls follow their check box, which asks first.
    m.dialogs.answers = {Answer::Cancel, Answer::Ok};
    auto* check = child<QCheckBox>(m.w, "CheckXaddress");
    auto* x = child<QLineEdit>(m.w, "txtXaddr");
    EXPECT_FALSE(x->isVisible());
    QTest::mouseClick(check, Qt::LeftButton); // answered Cancel
    EXPECT_EQ(std::tuple(check->isChecked(), child<QLabel>(m.w, "LabelAddress")->text()),
              std::tuple(false, "Module Address"));
    QTest::mouseClick(check, Qt::LeftButton); // answered OK
    EXPECT_EQ(std::tuple(check->isChecked(), child<QLabel>(m.w, "LabelAddress")->text(), x->isVisible()),
              std::tuple(true, "Channel Number", true));
    x->setText("200");
    m.w.txtXaddr_Click();
    // Clamped to channel 15, shown numbered from one as the module address is.
    EXPECT_EQ(std::tuple(x->text(), m.w.session().link.settings.TargetXAddress), std::tuple("16", 15));

    // Names typed without a suffix get the filter's.
    EXPECT_EQ(std::tuple(QtDialogs::withDefaultSuffix("/tmp/mylayout", "Kestrel Config Data|*.dat"),
                         QtDialogs::withDefaultSuffix("/tmp/my.def", "Kestrel Config Data|*.dat"),
                         QtDialogs::withDefaultSuffix("dev", "Kestrel Device Definitions|*.def"),
                         QtDialogs::withDefaultSuffix("", "Kestrel Device Definitions|*.def")),
              std::tuple("/tmp/mylayout.dat", "/tmp/my.def", "dev.def", ""));
}

TEST(Window, ReadAllKeepsABackupThatRestoreFromBackupLoads)
{
    Window m;
    QDir(backupRoot()).removeRecursively();
    m.job(m.w.CommandReadAll);
    const Configuration read = m.w.session().config;
    EXPECT_EQ(m.w.LabelStatusJob->text().indexOf("backup"), -1); // saved without a word
    const auto backups = listBackups(backupRoot().toStdString());
    ASSERT_EQ(backups.size(), 1u);
    EXPECT_EQ(backups[0].id, "Demo layout");
    EXPECT_EQ(backups[0].version, m.w.LabelGenVersionString->text().toStdString());

    m.w.session().config.pin(3).Description = "Changed since";
    m.dialogs.defaultAnswer = Answer::Discard;
    clickInModal("dlgBackups", "CommandCancel");
    m.w.actionRestoreBackup->trigger();
    EXPECT_EQ(m.w.session().config.pin(3).Description, "Changed since");
    clickInModal("dlgBackups", "CommandLoad"); // the newest is chosen at first
    m.w.actionRestoreBackup->trigger();
    Configuration restored = m.w.session().config;
    for (int p = 0; p < kPinCount; ++p) // the live output value is not kept in a data file
        restored.pin(p).OutputValue = read.pin(p).OutputValue;
    EXPECT_TRUE(restored == read);
    // The backup opens untitled and joins no recent files: Save asks for a name, and the
    // backups folder is refused as a place for it.
    EXPECT_EQ(std::tuple(m.w.currentFile(), m.w.recentFiles(), m.w.unsavedChanges()),
              std::tuple("", QStringList(), false));
    m.dialogs.fileNames = {backups[0].path};
    m.activate();
    QTest::keyClick(&m.w, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(std::tuple(m.dialogs.fileNames.size(), m.dialogs.messages.size(), m.w.currentFile()),
              std::tuple(0u, 1u, ""));
}

TEST(Window, NoKeyWritesToTheModuleWithoutAQuestion)
{
    Window m;
    m.job(m.w.CommandReadAll);
    std::vector<std::vector<int>> writes;
    auto tracked = m.w.session().link.onExchange;
    m.w.session().link.onExchange = [&](const std::vector<int>& bytes, bool reply, bool ok) {
        if (changesModule(bytes))
            writes.push_back(bytes);
        tracked(bytes, reply, ok);
    };
    const auto press = [&](QKeyCombination keys) {
        m.activate();
        QTest::keyClick(&m.w, keys.key(), keys.keyboardModifiers());
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        QTest::qWait(150); // a mnemonic's click is animated
        m.waitIdle();
    };
    // Yes: the key goes on to write.
    m.dialogs.defaultAnswer = Answer::Yes;
    m.w.tabs->setCurrentIndex(m.w.tabs->count() - 1);
    press(QKeyCombination(Qt::AltModifier, Qt::Key_W)); // "&Write All"
    EXPECT_EQ(std::tuple(m.dialogs.questions.size(), m.status().left(14), writes.empty()),
              std::tuple(1u, "Write All done", false));
    writes.clear();
    m.dialogs.clear();
    m.dialogs.defaultAnswer = Answer::No; // no to every question: keep, do not write
    for (QAction* action : m.w.findChildren<QAction*>())
        for (const QKeySequence& keys : action->shortcuts())
            if (action->menu() == nullptr && !action->text().contains("About"))
                press(keys[0]);
    int asked = 0;
    for (int page = 0; page < m.w.tabs->count(); ++page) {
        m.w.tabs->setCurrentIndex(page);
        for (QAbstractButton* b : m.w.findChildren<QAbstractButton*>()) {
            const QKeySequence letter = QKeySequence::mnemonic(b->text());
            if (b->isVisibleTo(&m.w) && !letter.isEmpty() &&
                !QString("FEVMH").contains(letter.toString().back())) {
                press(QKeyCombination(Qt::AltModifier, letter[0].key()));
                asked += !m.dialogs.questions.empty();
                m.dialogs.clear();
            }
        }
    }
    EXPECT_TRUE(writes.empty()) << writes.size() << " writes, the first command " << writes[0][0];
    EXPECT_GE(asked, 3); // Write All, Write Changes and Write All Pins asked
}

TEST(Window, InputWaitsFromAJobsPressToItsEndAndTheKeyboardComesBack)
{
    Window m;
    // Refresh pressed after Read All would close the port under the job; Ctrl+S would ask.
    QTest::mouseClick(m.w.CommandReadAll, Qt::LeftButton);
    QTest::mouseClick(m.w.cmdRefreshComm, Qt::LeftButton);
    QTest::keyClick(&m.w, Qt::Key_S, Qt::ControlModifier);
    m.waitIdle();
    EXPECT_TRUE(m.status().startsWith("Read All done")) << m.status().toStdString();
    EXPECT_TRUE(m.w.LabelStatusPort->text().startsWith("Port sim open"));
    EXPECT_TRUE(m.dialogs.questions.empty() && m.dialogs.fileNames.empty());
    // Two job buttons pressed before the tick: only the later job runs.
    QTest::mouseClick(m.w.CommandWriteAll, Qt::LeftButton);
    QTest::mouseClick(m.w.CommandVerifyAll, Qt::LeftButton);
    m.waitIdle();
    EXPECT_EQ(m.status(), "Verify OK");

    // Two boxes in a row, then the keyboard is where it was.
    QtDialogs boxes(&m.w);
    m.activate();
    m.w.generalPage->TextGenIDString->setFocus();
    onModal("dlgQuestion", [](QDialog& d) {
        onModal("dlgMessage", [](QDialog& e) { e.accept(); });
        QTest::keyClick(&d, Qt::Key_N, Qt::AltModifier); // "&No"
    });
    EXPECT_EQ(boxes.ask("Write All instead?", Buttons::YesNo, Icon::Question), Answer::No);
    boxes.message("Nothing was written.", Icon::None);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m.w));
    EXPECT_EQ(QApplication::focusWidget(), m.w.generalPage->TextGenIDString);
}

TEST(Window, WhatIsWrittenVerifiesOrTheReportSaysHow)
{
    {
        // A remembered eXtended address comes back only through its question.
        QSettings("Kestrel", "Kestrel Config").setValue("link/extended", true);
        RecordingDialogs asked;
        asked.defaultAnswer = Answer::Cancel;
        KestrelConfig w(nullptr, &asked);
        ASSERT_EQ(asked.questions.size(), 1u);
        EXPECT_EQ(std::pair(asked.questions[0].text.substr(0, 28), w.CheckXaddress->isChecked()),
                  std::pair(std::string("eXtended Addressing is inten"), false));
    }
    Window m;
    m.job(m.w.CommandReadAll);
    m.w.session().config.pin(8).P(6) ^= 1; // the servo's 1/Mass, kept in flash
    ASSERT_TRUE(m.w.CheckWritePinConfig->isChecked());
    QTest::mouseClick(m.w.CheckWritePinConfig, Qt::LeftButton);
    m.job(m.w.CommandWriteAll);
    m.job(m.w.CommandVerifyAllPins);
    m.job(m.w.CommandVerifyAllPins); // a part's verification adds to the report
    const QStringList lines = m.report().split('\n');
    EXPECT_EQ(lines.filter("Pinconfig does not compare").size(), 2) << m.report().toStdString();
    EXPECT_TRUE(lines.back().startsWith("The pins' configurations were not written: check"));
    QTest::mouseClick(m.w.CheckWritePinConfig, Qt::LeftButton);
    m.job(m.w.CommandWriteAll);
    m.job(m.w.CommandVerifyAll);
    EXPECT_EQ(m.status(), "Verify OK");
}
