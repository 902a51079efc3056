#include "platform/Languages.h"
#include "platform/Log.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

/// For tests of what is drawn: without a screen, unless one is asked for.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", RIDELOG_SOURCE "/tests/support/fonts.conf");
    // Texts are compared with those of one language, whatever the machine speaks.
    QLocale::setDefault(QLocale::c());
    ridelog::setLogLevel(ridelog::LogLevel::none);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    ridelog::speakLanguageOf(QLocale::c());
    return RUN_ALL_TESTS();
}
