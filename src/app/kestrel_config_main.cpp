#include "shell/AspectsPage.h"
#include "shell/CompareDialog.h"
#include "shell/EditTools.h"
#include "shell/HelpToolDialogs.h"
#include "shell/KestrelConfig.h"
#include "shell/TrafficMonitor.h"

#include <QAction>
#include <QMenu>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>
#include <cstring>

namespace {

// --screenshots DIR: the window on the simulated module after Read All, one picture a
// page (named after the page's objectName) and one a tool, then quit.
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
            QApplication::exit(0); // without asking about the configuration read
        });
        compared->start(100);
    });
    poll->start(100);
}

} // namespace

int main(int argc, char** argv)
{
    // --version: the program's version, without a window (and without a display).
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--version") == 0) {
            std::printf("kestrel-config %s\n", KESTREL_VERSION);
            return 0;
        }
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kestrel Config");
    QApplication::setApplicationDisplayName("Kestrel Config");
    QApplication::setWindowIcon(QIcon(":/kestrel-config.svg"));
    // --fresh: start as on a first start, forgetting the remembered port, addresses,
    // window and files.
    if (QApplication::arguments().contains("--fresh"))
        QSettings("Kestrel", "Kestrel Config").clear();
    kestrel::KestrelConfig window;
    const QStringList args = QApplication::arguments();
    // --size WxH: the window's size (for pictures of a small screen).
    if (const int size = args.indexOf("--size"); size > 0 && size + 1 < args.size()) {
        const QStringList wh = args[size + 1].split('x');
        if (wh.size() == 2)
            window.resize(wh[0].toInt(), wh[1].toInt());
    }
    window.show();

    // --screenshot FILE: save a picture of the window once it is drawn, then quit.
    const int at = args.indexOf("--screenshot");
    if (at > 0 && at + 1 < args.size()) {
        const QString file = args[at + 1];
        QTimer::singleShot(500, &window, [&window, file] {
            window.grab().save(file);
            QApplication::exit(0); // without asking about the configuration read
        });
    }
    const int all = args.indexOf("--screenshots");
    if (all > 0 && all + 1 < args.size())
        QTimer::singleShot(500, &window,
                           [&window, folder = args[all + 1]] { takeScreenshots(window, folder); });
    return app.exec();
}
