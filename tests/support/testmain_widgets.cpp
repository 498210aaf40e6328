// Test entry for widget tests: an application with widgets on the offscreen platform, and the
// standard paths in test mode so that no test touches the user's own settings or files.
#include "generators/painters.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    tf::registerAllPanels();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
