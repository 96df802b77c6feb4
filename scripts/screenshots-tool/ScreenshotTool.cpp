// kestrel-screenshots: the window as kestrel-config opens it, pictured for the
// documentation (scripts/screenshots). --screenshot FILE saves the window once shown;
// --screenshots FOLDER reads the simulated module and saves every page and tool, and the
// Layout page after Find Modules and Check All.
#include "window/AspectsPage.h"
#include "window/CompareDialog.h"
#include "window/EditTools.h"
#include "window/HelpToolDialogs.h"
#include "window/KestrelConfig.h"
#include "window/Language.h"
#include "window/LayoutPage.h"
#include "window/TrafficMonitor.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTimer>
#include <functional>

namespace {

// Once the window's job has ended, `then`.
void whenIdle(kestrel::KestrelConfig& window, std::function<void()> then)
{
    auto* poll = new QTimer(&window);
    QObject::connect(poll, &QTimer::timeout, &window, [&window, poll, then] {
        if (window.LabelAction->isVisible() || !window.jobs.PendingJob.empty())
            return;
        poll->deleteLater();
        poll->stop();
        then();
    });
    poll->start(100);
}

// The Layout page after Find Modules and Check All on the simulated layout (the module at 0
// has the backup of the Read All before), and Check All's summary; then quit.
void takeLayout(kestrel::KestrelConfig& window, const QString& folder)
{
    using namespace kestrel;
    LayoutPage& page = *window.layoutPage;
    page.CommandFindModules->click();
    whenIdle(window, [&window, &page, folder] {
        page.CommandCheckAll->click();
        whenIdle(window, [&window, &page, folder] {
            window.tabs->setCurrentWidget(&page);
            QApplication::processEvents();
            window.grab().save(folder + "/" + page.objectName() + ".png");
            page.frmLayoutSummary->resize(900, 300);
            QApplication::processEvents();
            page.frmLayoutSummary->grab().save(folder + "/" + page.frmLayoutSummary->objectName() + ".png");
            QApplication::exit(0); // without asking about the configuration read
        });
    });
}

// --screenshots DIR: the window on the simulated module after Read All, one picture a
// page (named after the page's objectName) and one a tool, then the Layout page.
void takeScreenshots(kestrel::KestrelConfig& window, const QString& folder)
{
    using namespace kestrel;
    QDir().mkpath(folder);
    window.ComboPort->setEditText("sim");
    window.ComboPort_Click();
    window.menuView->actions()[1]->trigger(); // the traffic monitor watches the read
    window.CommandReadAll->click();
    auto* poll = new QTimer(&window);
    QObject::connect(poll, &QTimer::timeout, &window, [&window, poll, folder] {
        if (window.LabelAction->isVisible() || !window.jobs.PendingJob.empty())
            return;
        poll->stop();
        AspectsPage& page = *window.aspectsPage;
        page.TextPAspOutput->setText("8"); // a turnout servo with a three-step program
        emit page.TextPAspOutput->editingFinished();
        for (int t = 0; t < window.tabs->count(); ++t) {
            window.tabs->setCurrentIndex(t);
            QApplication::processEvents();
            window.grab().save(folder + "/" + window.tabs->widget(t)->objectName() + ".png");
        }
        window.frmTrafficMonitor->resize(900, 500);
        QApplication::processEvents();
        window.frmTrafficMonitor->grab().save(folder + "/" + window.frmTrafficMonitor->objectName() + ".png");
        window.frmTrafficMonitor->close();
        Session& s = window.session();
        StepRecord step = s.config.step(3, 0, 0);
        StepRecord multibit{15, 0, 0, 37, 0, 0};
        StepRecord wait{102, 0, 0, 0, 50, 1};
        QList<QDialog*> tools{new EditPinDialog(s, &page),  new EditAspectDialog(s, &page),
                              new EditStepDialog(s, &page), new TimeToolDialog(&page),
                              new PatternToolDialog(&page), new EventPatternToolDialog(&page),
                              new LevelToolDialog(&page)};
        for (QDialog* tool : tools) {
            // Each tool shown as its run() shows it, grabbed, then closed from a timer.
            QTimer::singleShot(300, tool, [tool, folder] {
                tool->grab().save(folder + "/" + tool->objectName() + ".png");
                tool->reject();
            });
            if (auto* t = qobject_cast<TimeToolDialog*>(tool))
                t->run(wait);
            else if (auto* p = qobject_cast<PatternToolDialog*>(tool))
                p->run(multibit);
            else if (auto* e = qobject_cast<EventPatternToolDialog*>(tool))
                e->run(step);
            else if (auto* l = qobject_cast<LevelToolDialog*>(tool)) {
                int level = 37;
                l->run(level);
            } else
                tool->exec();
        }
        // Compare with Module after two edits: the ID string and the shown pin's first step.
        s.general.TextGenIDString = "Up Yard";
        s.config.step(3, 0, 0).Par0 ^= 1;
        window.CommandCompare->click();
        auto* compared = new QTimer(&window);
        QObject::connect(compared, &QTimer::timeout, &window, [&window, compared, folder] {
            if (window.LabelAction->isVisible() || !window.jobs.PendingJob.empty() || !window.frmCompare)
                return;
            compared->stop();
            QApplication::processEvents();
            window.frmCompare->grab().save(folder + "/" + window.frmCompare->objectName() + ".png");
            window.frmCompare->close();
            takeLayout(window, folder);
        });
        compared->start(100);
    });
    poll->start(100);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kestrel Config");
    QApplication::setApplicationDisplayName("Kestrel Config");
    QApplication::setWindowIcon(QIcon(":/kestrel-config.svg"));
    QCommandLineParser parser;
    const QCommandLineOption fresh("fresh", "Start as on a first start.");
    const QCommandLineOption size("size", "The window's size, e.g. 1280x690.", "WxH");
    const QCommandLineOption screenshot("screenshot", "Save a picture of the window once shown, then quit.",
                                        "FILE");
    const QCommandLineOption screenshots(
        "screenshots",
        "Read All from the simulated module, save a picture of every page and tool, then quit.", "FOLDER");
    // The documentation's pictures are English whatever the system's language.
    const QCommandLineOption language("language", "The window's language (de, nl; English when not given).",
                                      "CODE");
    parser.addOptions({fresh, size, screenshot, screenshots, language});
    parser.addHelpOption();
    parser.process(app);
    if (parser.isSet(fresh))
        QSettings("Kestrel", "Kestrel Config").clear();
    if (parser.isSet(language))
        kestrel::Lang::install(parser.value(language));
    kestrel::KestrelConfig window;
    if (const QStringList wh = parser.value(size).split('x'); wh.size() == 2)
        window.resize(wh[0].toInt(), wh[1].toInt());
    window.show();
    if (parser.isSet(screenshot))
        QTimer::singleShot(500, &window, [&window, file = parser.value(screenshot)] {
            window.grab().save(file);
            QApplication::exit(0); // without asking about the configuration read
        });
    if (parser.isSet(screenshots))
        QTimer::singleShot(
            500, &window, [&window, folder = parser.value(screenshots)] { takeScreenshots(window, folder); });
    return app.exec();
}
