#include "shell/KestrelConfig.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kestrel Config");
    QApplication::setApplicationDisplayName("Kestrel Config");
    kestrel::KestrelConfig window;
    window.show();
    return app.exec();
}
