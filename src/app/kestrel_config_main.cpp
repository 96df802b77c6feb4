#include "platform/WindowStart.h"
#include "window/KestrelConfig.h"
#include "window/Language.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QSettings>

#include <cstdio>

namespace {

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
    kestrel::useParentConsole();
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
    QCommandLineOption platform("platform", "Qt's platform plugin.", "NAME");
    platform.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({help, version, fresh, size, platform});
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
    kestrel::chooseFontEngine();
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kestrel Config");
    QApplication::setApplicationDisplayName("Kestrel Config");
    QApplication::setWindowIcon(QIcon(":/kestrel-config.svg"));
    if (parser.isSet(fresh))
        QSettings("Kestrel", "Kestrel Config").clear();
    // The window in the language chosen in View > Language, else the system's.
    kestrel::Lang::install(kestrel::Lang::chosen());
    kestrel::KestrelConfig window;
    if (const QStringList wh = parser.value(size).split('x'); wh.size() == 2)
        window.resize(wh[0].toInt(), wh[1].toInt());
    window.show();
    return app.exec();
}
