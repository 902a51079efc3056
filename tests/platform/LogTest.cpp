#include "platform/Log.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

TEST(Log, LevelsLetThroughWhatTheyName)
{
    const QLoggingCategory category("ridelog.anything");
    setLogLevel(LogLevel::trace);
    EXPECT_TRUE(category.isDebugEnabled());
    EXPECT_TRUE(category.isWarningEnabled());
    setLogLevel(LogLevel::errors);
    EXPECT_FALSE(category.isDebugEnabled());
    EXPECT_TRUE(category.isWarningEnabled());
    setLogLevel(LogLevel::none);
    EXPECT_FALSE(category.isDebugEnabled());
    EXPECT_FALSE(category.isWarningEnabled());
}

} // namespace
} // namespace ridelog
