#include "window/MainMenus.h"
#include "window/Language.h"
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
#include <QActionGroup>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
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
    QMenu* file = w.menuFile = w.menuBar()->addMenu(Lang::tr("&File"));
    add(
        file, Lang::tr("&Load File..."), [&w] { w.loadFile(QString()); }, QKeySequence::Open);
    w.actionSave = add(
        file, Lang::tr("&Save"), [&w] { w.saveFile(w.currentFile(), false); }, QKeySequence::Save);
    add(file, Lang::tr("Save &Compact..."), [&w] { w.saveFile(QString(), true); });
    add(
        file, Lang::tr("Save &As..."), [&w] { w.saveFile(QString(), false); }, QKeySequence::SaveAs);
    file->addSeparator();
    for (int i = 0; i < RememberedSettings::kRecentFiles; ++i) {
        w.actionRecent[i] = files.recentActions[i] = file->addAction(QString(), &w, [&w, i] {
            if (i < w.kept.recent.size())
                w.loadFile(w.kept.recent[i]);
        });
        w.actionRecent[i]->setVisible(false);
    }
    w.actionRestoreBackup = add(file, Lang::tr("&Restore from backup..."), [&w] { w.restoreFromBackup(); });
    file->addSeparator();
    add(file, Lang::tr("Reload &Device Definitions..."),
        [&w] { w.aspectsPage->reloadDeviceDefinitions(false); });
    add(file, Lang::tr("A&ppend Device Definitions..."),
        [&w] { w.aspectsPage->reloadDeviceDefinitions(true); });
    file->addSeparator();
    w.actionForgetSettings = add(file, Lang::tr("&Forget Remembered Settings"), [&w] {
        w.forgetSettings = true;
        RememberedSettings::forget();
        w.kept.recent.clear();
        w.files->showRecent();
        w.LabelStatusJob->setText(
            Lang::tr("The program starts afresh next time: port, addresses, window and files "
                     "are forgotten"));
    });
    add(
        file, Lang::tr("E&xit"), [&w] { w.close(); }, QKeySequence::Quit);

    QMenu* edit = w.menuEdit = w.menuBar()->addMenu(Lang::tr("&Edit"));
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

    QMenu* module = w.menuModule = w.menuBar()->addMenu(Lang::tr("&Module"));
    auto press = [](QAbstractButton* b) { return [b] { b->click(); }; };
    add(module, Lang::tr("Request &Version"), press(w.CommandGenVersion));
    add(module, Lang::tr("&Read All"), press(w.CommandReadAll), QKeySequence("Ctrl+R"));
    add(module, Lang::tr("&Write All"),
        press(w.CommandWriteAll)); // no key: a write starts only from a choice
    add(module, Lang::tr("Write Chan&ges"), press(w.CommandWriteChanges));
    add(module, Lang::tr("Verify &All"), press(w.CommandVerifyAll));
    add(module, Lang::tr("Compare wi&th Module..."), press(w.CommandCompare));
    add(module, Lang::tr("&Erase Flash..."), press(w.generalPage->CommandGenEraseFlash));
    module->addSeparator();
    add(module, Lang::tr("Read &Pin"), press(aspects.CommandReadPin));
    add(module, Lang::tr("Write P&in"), press(aspects.CommandWritePin));
    add(module, Lang::tr("Read &Device"), press(aspects.CommandReadDevice));
    add(module, Lang::tr("Write Devi&ce"), press(aspects.CommandWriteDevice));
    add(module, Lang::tr("Read Aspe&cts of the Pin"), press(aspects.CommandPAspReadPin));
    add(module, Lang::tr("Write Aspects o&f the Pin"), press(aspects.CommandPAspWritePin));
    add(module, Lang::tr("Write the Selected Asp&ect"), press(aspects.CommandPAspWriteAspect));
    add(module, Lang::tr("Read All Pi&ns"), press(w.CommandReadAllPins));
    add(module, Lang::tr("Write All Pin&s"), press(w.CommandWriteAllPins));
    add(module, Lang::tr("Verify All Pins"), press(w.CommandVerifyAllPins));
    module->addSeparator();
    add(module, Lang::tr("Read Event Control"), press(w.eventPage->CommandECRead));
    add(module, Lang::tr("Write Event Control"), press(w.eventPage->CommandECWrite));
    add(module, Lang::tr("Verify Event Control"), press(w.eventPage->CommandECVerify));
    module->addSeparator();
    add(module, Lang::tr("Find &Modules"), press(w.layoutPage->CommandFindModules));
    add(module, Lang::tr("Back &Up All"), press(w.layoutPage->CommandBackUpAll));
    add(module, Lang::tr("Chec&k All"), press(w.layoutPage->CommandCheckAll));

    QMenu* view = w.menuView = w.menuBar()->addMenu(Lang::tr("&View"));
    add(view, Lang::tr("&Corvid Log"), [&w] {
        ensureCorvidWindow(w);
        w.corvidLogDismissed = false;
        w.frmCorvidComm->show();
        w.frmCorvidComm->raise();
    });
    add(view, Lang::tr("&Traffic Monitor"), [&w] {
        if (!w.frmTrafficMonitor)
            w.frmTrafficMonitor = new TrafficMonitor(w.core->link, &w);
        w.frmTrafficMonitor->show();
        w.frmTrafficMonitor->raise();
    });
    add(view, Lang::tr("&Pin Overview"), [&w] { w.tabs->setCurrentWidget(w.pinOverviewPage); });
    add(view, Lang::tr("&Layout"), [&w] { w.tabs->setCurrentWidget(w.layoutPage); });
    // The language of the window, from the next start on (each in its own language).
    view->addSeparator();
    QMenu* language = view->addMenu(Lang::tr("L&anguage"));
    language->setObjectName("menuLanguage");
    auto* languages = new QActionGroup(language);
    for (const QString& code : Lang::codes()) {
        QAction* choice = language->addAction(Lang::name(code));
        choice->setCheckable(true);
        choice->setChecked(code == Lang::chosen());
        languages->addAction(choice);
        QObject::connect(choice, &QAction::triggered, &w, [&w, code] {
            if (code == Lang::chosen())
                return;
            Lang::choose(code);
            QMessageBox::information(&w, QApplication::applicationDisplayName(),
                                     Lang::tr("The language changes when Kestrel Config starts next."));
        });
    }

    w.menuHelp = w.menuBar()->addMenu(Lang::tr("&Help"));
    // The guide opens at the section of the page shown ("The Aspects page").
    add(
        w.menuHelp, Lang::tr("&User Guide"),
        [&w] {
            if (!w.frmUserGuide)
                w.frmUserGuide = new UserGuide(&w);
            // The guide is English: the tab's English name.
            w.frmUserGuide->showSection(
                QString("The %1 page").arg(w.tabs->tabBar()->tabData(w.tabs->currentIndex()).toString()));
        },
        QKeySequence::HelpContents);
    add(w.menuHelp, Lang::tr("&About Kestrel Config"), [&w] { w.about(); });
}

void MainMenus::about(QWidget* parent)
{
    QMessageBox box(parent);
    box.setObjectName("dlgAbout");
    box.setWindowTitle(Lang::tr("About Kestrel Config"));
    box.setIconPixmap(parent->windowIcon().pixmap(64, 64));
    box.setText(QString("<b>Kestrel Config %1</b>").arg(KESTREL_VERSION));
    box.setInformativeText(
        Lang::tr("Reads, edits, writes back and verifies what a Kestrel accessory module stores.<br><br>"
                 "Build: %1, Qt %2<br><br>"
                 "The user guide (Help &gt; User Guide) is also a file: "
                 "/usr/share/doc/kestrel-config/user-guide.md when installed from the Debian package, "
                 "user-guide.md in the program's folder on Windows (C:\\Program Files\\Kestrel Config "
                 "when installed). Its section \"Data files\" describes the data-file format, and "
                 "\"Readable configurations and differences\" every item of it; on Linux the manual page "
                 "kestrel-cli(1) describes the format too.")
            .arg(QString(KESTREL_BUILD_TYPE).isEmpty() ? Lang::tr("default") : QString(KESTREL_BUILD_TYPE),
                 qVersion()));
    box.exec();
}

} // namespace kestrel
