#include "update/XMLUpdater.h"

#include "platform/Defaults.h"
#include "platform/UpdateKeys.h"
#include "update/RecordKeys.h"
#include "update/UpdateAlerts.h"
#include "update/UpdateLog.h"

#include <QLocale>
#include <QXmlStreamReader>

#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcUpdate, "ridelog.update")

namespace {

const QString fallbackLanguage = QStringLiteral("en");

/// "de-Latn-DE" stands for itself, then "de-Latn", "de-DE" and "de".
QStringList candidatesFor(const QString& language)
{
    const auto parts = language.split(u'-');
    QStringList candidates{language};
    if (parts.size() > 2)
        candidates << parts[0] + u'-' + parts[1] << parts[0] + u'-' + parts.last();
    return candidates << parts[0] << fallbackLanguage;
}

/// Whether the last check is so far back that the next one is due.
bool isDue(const Defaults& defaults, const QDateTime& now)
{
    const auto last = defaults.dateForKey(UpdateKeys::checkedForUpdateOn);
    if (!last)
        return true;
    if (!defaults.contains(UpdateKeys::checkForUpdateAfterDays))
        return false;
    const auto elapsed = static_cast<double>(last->msecsTo(now)) / 1000.0 / 86400.0; // days
    return elapsed > 0 && elapsed >= defaults.integerForKey(UpdateKeys::checkForUpdateAfterDays);
}

} // namespace

XMLUpdater::XMLUpdater(ApplicationInfo application, Defaults& defaults, QObject* parent)
    : QObject(parent),
      _application(std::move(application)),
      _defaults(defaults),
      _url(_application.urlForUpdateCheck)
{
    connect(&_loader, &DescriptionLoader::loaded, this, [this](const QByteArray& bytes) {
        if (const auto error = _parse(bytes))
            _fail({UpdateFailure::Kind::notADescription, *error});
        else
            _finish(_compare());
    });
    connect(&_loader, &DescriptionLoader::failed, this, [this](const UpdateFailure& why) {
        _parseErrorOccurred(QXmlStreamReader::CustomError, why.reason, 0, 0);
        _fail(why);
    });
}

std::unique_ptr<XMLUpdater> XMLUpdater::initWithUrlString(const QString& urlString,
                                                          ApplicationInfo application, Defaults& defaults)
{
    application.urlForUpdateCheck = urlString;
    return std::make_unique<XMLUpdater>(std::move(application), defaults);
}

void XMLUpdater::checkForUpdate(const QDateTime& now)
{
    if (_checking)
        return;
    qCDebug(lcUpdate, "Trying to access: %s", qUtf8Printable(_url.toString()));
    _checking = now;
    _failure.reset();
    _loader.load(_url);
}

bool XMLUpdater::checkForUpdateAfterTimePeriod(const QDateTime& now)
{
    if (!isDue(_defaults, now))
        return false;
    checkForUpdate(now);
    return true;
}

void XMLUpdater::_fail(const UpdateFailure& why)
{
    qCWarning(lcUpdate, "ERROR in XML");
    _failure = why;
    _finish(false);
}

void XMLUpdater::_finish(bool found)
{
    _defaults.setValue(UpdateKeys::checkedForUpdateOn, *std::exchange(_checking, std::nullopt));
    Q_EMIT checked(found);
}

/// Any other version counts as an update, an older one as well.
bool XMLUpdater::_compare()
{
    const auto missing = [this](const QString& reason) {
        _failure = {UpdateFailure::Kind::notADescription, reason};
        return false;
    };
    if (applicationIdentifier().isEmpty())
        return missing(tr("it names no application"));
    if (applicationIdentifier() != _application.identifier)
        return false;
    qCDebug(lcUpdate, "found %s", qUtf8Printable(_application.identifier));
    if (applicationVersion().isEmpty())
        return missing(tr("it names no version"));
    if (applicationVersion() == _application.version)
        return false;
    qCDebug(lcUpdate, "found update %s", qUtf8Printable(applicationVersion()));
    return true;
}

bool XMLUpdater::shouldDownloadNewVersionDependingOn(bool found, UpdateAlerts& alerts) const
{
    const auto languages = QLocale().uiLanguages();
    const auto language = languages.value(0);
    qCDebug(lcUpdate, "%s", qUtf8Printable(found ? language : languages.join(QStringLiteral(", "))));
    if (found)
        return alerts.runModal({.title = tr("New version found"),
                                .message = descriptionTextForLanguage(language),
                                .defaultButton = tr("Ok"),
                                .otherButton = tr("Download")});
    alerts.runModal({.title = tr("No new version found"),
                     .message = tr("No new version available."),
                     .defaultButton = tr("Ok"),
                     .otherButton = {}});
    return false;
}

bool XMLUpdater::startDownloadingNewVersion(const std::function<bool(const QUrl&)>& open) const
{
    const QUrl url(urlString().trimmed());
    return DescriptionLoader::isWebAddress(url) && open(url);
}

QString XMLUpdater::applicationIdentifier() const
{
    return _applicationDict.value(RecordKeys::name);
}

QString XMLUpdater::applicationVersion() const
{
    return _applicationDict.value(RecordKeys::version);
}

QString XMLUpdater::urlString() const
{
    return _applicationDict.value(RecordKeys::url);
}

QString XMLUpdater::descriptionTextForLanguage(const QString& language) const
{
    for (const auto& candidate : candidatesFor(language)) {
        if (const auto text = _applicationDict.find(candidate); text != _applicationDict.end())
            return *text;
    }
    return {};
}

} // namespace ridelog
