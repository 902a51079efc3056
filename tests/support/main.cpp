#include "platform/Languages.h"
#include "platform/Log.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ridelog::setLogLevel(ridelog::LogLevel::none);
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    ridelog::speakLanguageOf(QLocale::c());
    return RUN_ALL_TESTS();
}
