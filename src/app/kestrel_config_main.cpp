#include "window/AspectsPage.h"
#include "window/CompareDialog.h"
#include "window/EditTools.h"
#include "window/HelpToolDialogs.h"
#include "window/KestrelConfig.h"
#include "window/TrafficMonitor.h"

#include <QAction>
#include <QMenu>

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>

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

// Whether a window can be shown: on X11 and Wayland systems a display must be named, or
// a platform chosen (QT_QPA_PLATFORM or -platform); elsewhere there always is one.
bool displayNamed(bool platformOption)
{
    if (!KESTREL_DISPLAY_FROM_ENVIRONMENT || platformOption)
        return true;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Reads, edits, writes back and verifies the configuration of\n"
                                     "Kestrel accessory controller modules in a window.");
    // Qt's own options come with one dash (-platform offscreen).
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help(QStringList{"h", "help"}, "Show this help and exit.");
    const QCommandLineOption version("version", "Show the program's version and exit.");
    const QCommandLineOption fresh("fresh", "Start as on a first start: forget the remembered port, "
                                            "addresses, window and files.");
    const QCommandLineOption size("size", "The window's size, e.g. 1280x690.", "WxH");
    const QCommandLineOption screenshot("screenshot", "Save a picture of the window once shown, then quit.",
                                        "FILE");
    const QCommandLineOption screenshots(
        "screenshots",
        "Read All from the simulated module, save a picture of every page and tool, then quit.", "FOLDER");
    QCommandLineOption platform("platform", "Qt's platform plugin.", "NAME");
    platform.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({help, version, fresh, size, screenshot, screenshots, platform});
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    // Answered before the application exists (so without a display), which the help
    // text shows as <executable_name>.
    if (!parser.parse(arguments) || !parser.positionalArguments().isEmpty()) {
        const QString error = parser.positionalArguments().isEmpty()
                                  ? parser.errorText()
                                  : "Unexpected argument '" + parser.positionalArguments().first() + "'.";
        std::fprintf(stderr, "kestrel-config: %s\nTry 'kestrel-config --help'.\n", qPrintable(error));
        return 2;
    }
    if (parser.isSet(help)) {
        std::printf("%s", qPrintable(parser.helpText().replace("<executable_name>", "kestrel-config")));
        return 0;
    }
    if (parser.isSet(version)) {
        std::printf("kestrel-config %s\n", KESTREL_VERSION);
        return 0;
    }
    if (!displayNamed(parser.isSet(platform))) {
        std::fprintf(stderr, "kestrel-config: no display to show the window on (neither DISPLAY nor "
                             "WAYLAND_DISPLAY is set); kestrel-cli works without one\n");
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kestrel Config");
    QApplication::setApplicationDisplayName("Kestrel Config");
    QApplication::setWindowIcon(QIcon(":/kestrel-config.svg"));
    if (parser.isSet(fresh))
        QSettings("Kestrel", "Kestrel Config").clear();
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
