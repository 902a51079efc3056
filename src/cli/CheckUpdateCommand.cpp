#include "cli/CheckUpdateCommand.h"

#include "cli/Wording.h"
#include "platform/Defaults.h"
#include "update/XMLUpdater.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QLocale>

namespace ridelog {
namespace {

const QString urlName = QStringLiteral("url");

/// The entry in one line behind a separator; nothing if there is none.
QString following(const QString& separator, const QString& entry)
{
    const auto line = printable(entry.simplified());
    return line.isEmpty() ? QString() : separator + line;
}

QString outcomeText(bool found, const XMLUpdater& updater, const ApplicationInfo& application)
{
    if (found)
        return QStringLiteral("new version found: %1 (this is %2)%3%4\n")
            .arg(printable(updater.applicationVersion()), application.version,
                 following(QStringLiteral(": "), updater.urlString()),
                 following(QStringLiteral("\n"),
                           updater.descriptionTextForLanguage(QLocale().uiLanguages().value(0))));
    if (updater.applicationIdentifier() == application.identifier)
        return QStringLiteral("no new version: %1 is the newest\n").arg(application.version);
    return QStringLiteral("no new version: the description is of another application, %1\n")
        .arg(printable(updater.applicationIdentifier()));
}

} // namespace

QString CheckUpdateCommand::name() const
{
    return QStringLiteral("check-update");
}

QString CheckUpdateCommand::description() const
{
    return QStringLiteral("Looks for a newer version of the application.");
}

QString CheckUpdateCommand::synopsis() const
{
    return QStringLiteral("[--url U]");
}

QList<QCommandLineOption> CheckUpdateCommand::options() const
{
    return {{urlName,
             QStringLiteral("Where the newest version is described (http, https or file); the address of "
                            "this build if not told."),
             QStringLiteral("U")}};
}

ExitStatus CheckUpdateCommand::execute(const CommandContext& context) const
{
    const auto application = runningApplication();
    auto url = application.urlForUpdateCheck;
    if (context.options.isSet(urlName)) {
        url = context.options.value(urlName);
        if (!DescriptionLoader::isLoadable(QUrl(url)))
            return wrongWords(*this,
                              QStringLiteral("--url takes an address of the web (http, https) or of a file"));
    }

    // Nobody's own choices: when the application looks by itself is not for this to change.
    Defaults defaults{QString()};
    const auto updater = XMLUpdater::initWithUrlString(url, application, defaults);
    QEventLoop loop;
    bool found = false;
    QObject::connect(updater.get(), &XMLUpdater::checked, &loop, [&](bool result) {
        found = result;
        loop.quit();
    });
    updater->checkForUpdate(context.now);
    loop.exec();
    if (const auto& failure = updater->failure()) {
        const bool isLoaded = failure->kind == UpdateFailure::Kind::notADescription;
        return (isLoaded ? refuse : fail)(url.isEmpty() ? name() : url, failure->reason);
    }
    return print(outcomeText(found, *updater, application));
}

} // namespace ridelog
