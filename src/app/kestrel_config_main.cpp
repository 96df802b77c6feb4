#include "shell/KestrelConfig.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kestrel Config");
    QApplication::setApplicationDisplayName("Kestrel Config");
    kestrel::KestrelConfig window;
    window.show();

    // --screenshot FILE: save a picture of the window once it is drawn, then quit.
    const QStringList args = QApplication::arguments();
    const int at = args.indexOf("--screenshot");
    if (at > 0 && at + 1 < args.size()) {
        const QString file = args[at + 1];
        QTimer::singleShot(500, &window, [&window, file] {
            window.grab().save(file);
            QApplication::quit();
        });
    }
    return app.exec();
}
