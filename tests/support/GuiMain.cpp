#include "platform/Log.h"

#include <QApplication>

#include <gtest/gtest.h>

/// For tests of what is drawn: without a screen, unless one is asked for.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", RIDELOG_SOURCE "/tests/support/fonts.conf");
    ridelog::setLogLevel(ridelog::LogLevel::none);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
