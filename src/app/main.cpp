#include "app/SingleInstance.h"
#include "library/AppController.h"
#include "platform/Defaults.h"
#include "platform/Log.h"
#include "platform/MainThread.h"
#include "ui/ApplicationWindows.h"
#include "update/ApplicationInfo.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCryptographicHash>

#include <csignal>
#include <cstdio>
#include <optional>

namespace {

using namespace ridelog;

const QString logName = QStringLiteral("log");
const QString simulatedDeviceName = QStringLiteral("simulated-device");
const QString updateUrlName = QStringLiteral("update-url");

std::optional<LogLevel> levelNamed(const QString& name)
{
    if (name == u"none")
        return LogLevel::none;
    if (name == u"errors")
        return LogLevel::errors;
    if (name == u"trace")
        return LogLevel::trace;
    return std::nullopt;
}

/// The same for programs that share their settings, and no longer than a socket's name may be.
QString instanceName(const Defaults& defaults)
{
    const auto hash = QCryptographicHash::hash(defaults.path().toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("ridelog-%1").arg(QString::fromLatin1(hash.toHex().left(16)));
}

} // namespace

int main(int argc, char* argv[])
{
    // A file beyond the size that is allowed is an error like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ridelog"));
    QCoreApplication::setApplicationVersion(runningApplication().version);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("ridelog"));
    QGuiApplication::setDesktopFileName(QStringLiteral("ridelog"));
    prepareMainThread();

    QCommandLineParser options;
    options.setApplicationDescription(
        QCoreApplication::translate("main", "Keeps the tours of a cycle computer."));
    options.addHelpOption();
    options.addVersionOption();
    options.addOption(
        {logName, QCoreApplication::translate("main", "What of the log is written: none, errors or trace."),
         QStringLiteral("LEVEL"), QStringLiteral("trace")});
    options.addOption({simulatedDeviceName,
                       QCoreApplication::translate("main", "Starts with the simulated device plugged in.")});
    options.addOption({updateUrlName,
                       QCoreApplication::translate("main", "Where newer versions are looked for."),
                       QStringLiteral("URL")});
    options.addPositionalArgument(
        QStringLiteral("FILE"),
        QCoreApplication::translate("main", "Documents to open and raw dumps to import."),
        QStringLiteral("[FILE...]"));
    options.process(application);
    const auto level = levelNamed(options.value(logName));
    if (!level) {
        std::fprintf(stderr, "ridelog: --log takes none, errors or trace\n");
        return 2;
    }
    setLogLevel(*level);

    Defaults defaults;
    SingleInstance instance(instanceName(defaults));
    const auto paths = options.positionalArguments();
    if (instance.handOver(paths))
        return 0;
    AppController controller(defaults);
    ApplicationWindows windows(controller, defaults);
    if (options.isSet(updateUrlName))
        windows.setUpdateUrl(options.value(updateUrlName));
    if (options.isSet(simulatedDeviceName))
        windows.simulatedDevice().plugIn();
    QObject::connect(&instance, &SingleInstance::started, &windows,
                     [&windows](const QStringList& files) { windows.takeFiles(files); });
    instance.listen();
    windows.start(paths);
    return QApplication::exec();
}
