#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // remembered settings go to a test folder, not the user's
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
