#include "cli/CommandLine.h"
#include "platform/Log.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    // Before the toolkit starts, so that it is as quiet as the application.
    ridelog::setLogLevel(ridelog::LogLevel::none);
    const QCoreApplication application(argc, argv);
    return static_cast<int>(ridelog::runCommandLine(QCoreApplication::arguments()));
}
