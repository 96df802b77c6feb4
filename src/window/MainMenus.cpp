#include "window/MainMenus.h"
#include "window/LogWindows.h"

#include "window/AspectsPage.h"
#include "window/EditHistory.h"
#include "window/EventPage.h"
#include "window/FileActions.h"
#include "window/GeneralPage.h"
#include "window/KestrelConfig.h"
#include "window/LayoutPage.h"
#include "window/PinOverview.h"
#include "window/TrafficMonitor.h"
#include "window/UserGuide.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>

namespace kestrel {

void MainMenus::build(KestrelConfig& w)
{
    auto add = [&w](QMenu* menu, const QString& text, auto handler, const QKeySequence& keys = {}) {
        QAction* action = menu->addAction(text, &w, handler);
        action->setShortcut(keys);
        return action;
    };
    FileActions& files = *w.files;
    QMenu* file = w.menuFile = w.menuBar()->addMenu("&File");
    add(
        file, "&Load File...", [&w] { w.loadFile(QString()); }, QKeySequence::Open);
    w.actionSave = add(
        file, "&Save", [&w] { w.saveFile(w.currentFile(), false); }, QKeySequence::Save);
    add(file, "Save &Compact...", [&w] { w.saveFile(QString(), true); });
    add(
        file, "Save &As...", [&w] { w.saveFile(QString(), false); }, QKeySequence::SaveAs);
    file->addSeparator();
    for (int i = 0; i < RememberedSettings::kRecentFiles; ++i) {
        w.actionRecent[i] = files.recentActions[i] = file->addAction(QString(), &w, [&w, i] {
            if (i < w.kept.recent.size())
                w.loadFile(w.kept.recent[i]);
        });
        w.actionRecent[i]->setVisible(false);
    }
    w.actionRestoreBackup = add(file, "&Restore from backup...", [&w] { w.restoreFromBackup(); });
    file->addSeparator();
    add(file, "Reload &Device Definitions...", [&w] { w.aspectsPage->reloadDeviceDefinitions(false); });
    add(file, "A&ppend Device Definitions...", [&w] { w.aspectsPage->reloadDeviceDefinitions(true); });
    file->addSeparator();
    w.actionForgetSettings = add(file, "&Forget Remembered Settings", [&w] {
        w.forgetSettings = true;
        RememberedSettings::forget();
        w.kept.recent.clear();
        w.files->showRecent();
        w.LabelStatusJob->setText("The program starts afresh next time: port, addresses, window and files "
                                  "are forgotten");
    });
    add(
        file, "E&xit", [&w] { w.close(); }, QKeySequence::Quit);

    QMenu* edit = w.menuEdit = w.menuBar()->addMenu("&Edit");
    w.actionUndo = w.history->undoAction();
    w.actionRedo = w.history->redoAction();
    edit->addAction(w.actionUndo);
    edit->addAction(w.actionRedo);
    // The menu names the step a typed but unfinished entry makes.
    QObject::connect(edit, &QMenu::aboutToShow, &w, [&w] { w.commitAll(); });
    // The copy, paste, clear, insert and delete tools of the Aspects page, from the keyboard.
    edit->addSeparator();
    AspectsPage& aspects = *w.aspectsPage;
    for (QAction* tool : {aspects.actionPinTool, aspects.actionAspectTool, aspects.actionStepTool})
        edit->addAction(tool);

    QMenu* module = w.menuModule = w.menuBar()->addMenu("&Module");
    auto press = [](QAbstractButton* b) { return [b] { b->click(); }; };
    add(module, "Request &Version", press(w.CommandGenVersion));
    add(module, "&Read All", press(w.CommandReadAll), QKeySequence("Ctrl+R"));
    add(module, "&Write All", press(w.CommandWriteAll)); // no key: a write starts only from a choice
    add(module, "Write Chan&ges", press(w.CommandWriteChanges));
    add(module, "Verify &All", press(w.CommandVerifyAll));
    add(module, "Compare wi&th Module...", press(w.CommandCompare));
    add(module, "&Erase Flash...", press(w.generalPage->CommandGenEraseFlash));
    module->addSeparator();
    add(module, "Read &Pin", press(aspects.CommandReadPin));
    add(module, "Write P&in", press(aspects.CommandWritePin));
    add(module, "Read &Device", press(aspects.CommandReadDevice));
    add(module, "Write Devi&ce", press(aspects.CommandWriteDevice));
    add(module, "Read Aspe&cts of the Pin", press(aspects.CommandPAspReadPin));
    add(module, "Write Aspects o&f the Pin", press(aspects.CommandPAspWritePin));
    add(module, "Write the Selected Asp&ect", press(aspects.CommandPAspWriteAspect));
    add(module, "Read All Pi&ns", press(w.CommandReadAllPins));
    add(module, "Write All Pin&s", press(w.CommandWriteAllPins));
    add(module, "Verify All Pins", press(w.CommandVerifyAllPins));
    module->addSeparator();
    add(module, "Read Event Control", press(w.eventPage->CommandECRead));
    add(module, "Write Event Control", press(w.eventPage->CommandECWrite));
    add(module, "Verify Event Control", press(w.eventPage->CommandECVerify));
    module->addSeparator();
    add(module, "Find &Modules", press(w.layoutPage->CommandFindModules));
    add(module, "Back &Up All", press(w.layoutPage->CommandBackUpAll));
    add(module, "Chec&k All", press(w.layoutPage->CommandCheckAll));

    QMenu* view = w.menuView = w.menuBar()->addMenu("&View");
    add(view, "&Corvid Log", [&w] {
        ensureCorvidWindow(w);
        w.corvidLogDismissed = false;
        w.frmCorvidComm->show();
        w.frmCorvidComm->raise();
    });
    add(view, "&Traffic Monitor", [&w] {
        if (!w.frmTrafficMonitor)
            w.frmTrafficMonitor = new TrafficMonitor(w.core->link, &w);
        w.frmTrafficMonitor->show();
        w.frmTrafficMonitor->raise();
    });
    add(view, "&Pin Overview", [&w] { w.tabs->setCurrentWidget(w.pinOverviewPage); });
    add(view, "&Layout", [&w] { w.tabs->setCurrentWidget(w.layoutPage); });

    w.menuHelp = w.menuBar()->addMenu("&Help");
    // The guide opens at the section of the page shown ("The Aspects page").
    add(
        w.menuHelp, "&User Guide",
        [&w] {
            if (!w.frmUserGuide)
                w.frmUserGuide = new UserGuide(&w);
            w.frmUserGuide->showSection(QString("The %1 page").arg(w.tabs->tabText(w.tabs->currentIndex())));
        },
        QKeySequence::HelpContents);
    add(w.menuHelp, "&About Kestrel Config", [&w] { w.about(); });
}

void MainMenus::about(QWidget* parent)
{
    QMessageBox box(parent);
    box.setObjectName("dlgAbout");
    box.setWindowTitle("About Kestrel Config");
    box.setIconPixmap(parent->windowIcon().pixmap(64, 64));
    box.setText(QString("<b>Kestrel Config %1</b>").arg(KESTREL_VERSION));
    box.setInformativeText(
        QString("Reads, edits, writes back and verifies what a Kestrel accessory module stores.<br><br>"
                "Build: %1, Qt %2<br><br>"
                "The user guide (Help &gt; User Guide) is also a file: "
                "/usr/share/doc/kestrel-config/user-guide.md when installed from the Debian package, "
                "user-guide.md in the program's folder on Windows (C:\\Program Files\\Kestrel Config "
                "when installed). Its section \"Data files\" describes the data-file format, and "
                "\"Readable configurations and differences\" every item of it; on Linux the manual page "
                "kestrel-cli(1) describes the format too.")
            .arg(QString(KESTREL_BUILD_TYPE).isEmpty() ? QString("default") : QString(KESTREL_BUILD_TYPE),
                 qVersion()));
    box.exec();
}

} // namespace kestrel
