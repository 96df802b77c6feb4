#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    // Each test process has a home of its own, so that the settings and backups of tests
    // run side by side (ctest -j) never meet.
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // remembered settings go to a test folder, not the user's
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
