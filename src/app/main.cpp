#include "app/SingleInstance.h"
#include "library/AppController.h"
#include "platform/Defaults.h"
#include "platform/Languages.h"
#include "platform/Log.h"
#include "platform/MainThread.h"
#include "platform/StopSignals.h"
#include "ui/ApplicationWindows.h"
#include "ui/ChosenLanguage.h"
#include "ui/Contrast.h"
#include "ui/Icons.h"
#include "ui/MainWindowController.h"
#include "update/ApplicationInfo.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSessionManager>
#include <QUrl>

#include <algorithm>
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

/// Some file managers give addresses in place of paths.
QStringList pathsOf(const QStringList& words)
{
    QStringList paths;
    for (const auto& word : words) {
        const QUrl url(word);
        paths << (word.startsWith(u"file://") && url.isLocalFile() ? url.toLocalFile() : word);
    }
    return paths;
}

/// What a second start is asked for and does not hand over.
void tellLeftUndone(const QCommandLineParser& options)
{
    for (const auto& name : {logName, updateUrlName}) {
        if (options.isSet(name))
            std::fprintf(stderr, "ridelog: --%s was not heeded: ridelog runs already\n", qPrintable(name));
    }
}

void plugIn(SimulatedDevice& device)
{
    if (const auto error = device.plugIn())
        std::fprintf(stderr, "ridelog: there is no simulated device: %s\n", qPrintable(*error));
}

/// The user's session is about to end: asks what is to be saved, or keeps it aside where nobody may be asked.
void endWithSession(QSessionManager& session, ApplicationWindows& windows)
{
    if (!session.allowsInteraction()) {
        windows.controller().recovery().writeNow();
        return;
    }
    windows.quit();
    if (std::ranges::any_of(windows.mainWindows(), &QWidget::isVisible))
        session.cancel();
    session.release();
}

} // namespace

int main(int argc, char* argv[])
{
    // A file beyond the size that is allowed is an error like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ridelog"));
    QCoreApplication::setApplicationVersion(runningApplication().version);
    speakLanguageOf(QLocale());
    QGuiApplication::setApplicationDisplayName(QStringLiteral("ridelog"));
    QGuiApplication::setDesktopFileName(QStringLiteral("ridelog"));
    QGuiApplication::setWindowIcon(applicationIcon());
    prepareMainThread();
    keepColoursReadable();

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

    const StartRequest request{.paths = pathsOf(options.positionalArguments()),
                               .simulatedDevice = options.isSet(simulatedDeviceName)};
    // It goes last: the next start finds everything stored.
    SingleInstance instance(Defaults::userPath());
    switch (instance.begin(request)) {
    case SingleInstance::Role::first:
        break;
    case SingleInstance::Role::later:
        tellLeftUndone(options);
        return 0;
    case SingleInstance::Role::unanswered:
        std::fprintf(stderr, "ridelog: the ridelog that runs already does not answer; nothing was opened\n");
        return 3;
    }

    // Who ends the program from outside is not asked anything: the windows store what they know, and what is
    // not saved is kept for the next start.
    bool isToEnd = false;
    const StopSignals stopSignals([&isToEnd] {
        isToEnd = true;
        QCoreApplication::exit();
    });
    Defaults defaults;
    AppController controller(defaults);
    speakChosenLanguage(defaults);
    ApplicationWindows windows(controller, defaults);
    if (options.isSet(updateUrlName))
        windows.setUpdateUrl(options.value(updateUrlName));
    if (request.simulatedDevice)
        plugIn(windows.simulatedDevice());
    QObject::connect(&instance, &SingleInstance::started, &windows, [&windows](const StartRequest& later) {
        if (later.simulatedDevice)
            plugIn(windows.simulatedDevice());
        windows.takeFiles(later.paths);
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &windows,
                     [&windows](QSessionManager& session) { endWithSession(session, windows); });
    windows.start(request.paths);
    // A question of the start has an event loop of its own, which may have been ended.
    const int status = isToEnd ? 0 : QApplication::exec();
    // A start from now on waits for our end.
    instance.disconnect();
    return status;
}
