// Newer versions of the application.

#include "platform/CalendarDate.h"
#include "ui/ApplicationWindows.h"
#include "ui/MainWindowController.h"
#include "ui/Sheet.h"
#include "ui/UiLog.h"
#include "update/UpdateAlerts.h"
#include "update/XMLUpdater.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QRegularExpression>

#include <utility>

namespace ridelog {
namespace {

/// The beginning of what others have written, as much as there is room for: a text of a megabyte takes
/// minutes to lay out, and one of a thousand lines pushes the buttons off the screen.
QString fitting(const QString& text, qsizetype characters, qsizetype lines)
{
    static const QRegularExpression lineBreak(QStringLiteral("\\R"));
    const auto all = text.left(characters).split(lineBreak);
    const auto shown = all.mid(0, lines).join(u'\n');
    return all.size() > lines || text.size() > characters ? shown + u'…' : shown;
}

/// For the window's message line.
QString inOneLine(const QString& text)
{
    return fitting(text.trimmed(), 200, 1);
}

/// Asks over a window.
class AlertsOver : public UpdateAlerts {
public:
    explicit AlertsOver(QWidget& window) : _window(window) {}

    bool runModal(const UpdateAlert& alert) override
    {
        // A window that is closed meanwhile takes the box along.
        const QPointer box(
            new Sheet(&_window, QMessageBox::Information, alert.title, fitting(alert.message, 1500, 20)));
        auto* usual = box->addButton(alert.defaultButton, QMessageBox::AcceptRole);
        box->setDefaultButton(usual);
        box->setEscapeButton(usual);
        const QAbstractButton* other = nullptr;
        if (!alert.otherButton.isEmpty())
            other = box->addButton(alert.otherButton, QMessageBox::ActionRole);
        box->exec();
        const bool isOther = box && other && box->clickedButton() == other;
        delete box;
        return isOther;
    }

private:
    QWidget& _window;
};

void offer(const XMLUpdater& updater, MainWindowController& window)
{
    qCDebug(lcUi, "Newer version available");
    AlertsOver alerts(window);
    if (!updater.shouldDownloadNewVersionDependingOn(true, alerts))
        return;
    qCDebug(lcUi, "Try to download new version");
    if (!updater.startDownloadingNewVersion([](const QUrl& url) { return QDesktopServices::openUrl(url); }))
        window.showMessage(
            ApplicationWindows::tr("The download address “%1” could not be opened in a browser.")
                .arg(inOneLine(updater.urlString())));
}

void tellNoneFound(const XMLUpdater& updater, MainWindowController& window)
{
    qCDebug(lcUi, "Version is up-to-date");
    if (const auto& failure = updater.failure())
        window.showMessage(ApplicationWindows::tr("Newer versions could not be looked for: %1")
                               .arg(inOneLine(failure->reason)));
    AlertsOver alerts(window);
    updater.shouldDownloadNewVersionDependingOn(false, alerts);
}

} // namespace

ApplicationInfo ApplicationWindows::applicationToUpdate() const
{
    auto application = runningApplication();
    application.urlForUpdateCheck = _updateUrl.value_or(application.urlForUpdateCheck);
    return application;
}

void ApplicationWindows::makeUpdater()
{
    _updater = std::make_unique<XMLUpdater>(applicationToUpdate(), _defaults);
    // The user is asked when the updater has finished its work, not in the middle of it.
    connect(_updater.get(), &XMLUpdater::checked, this, &ApplicationWindows::tellUpdate,
            Qt::QueuedConnection);
}

void ApplicationWindows::checkForUpdatesIfDue()
{
    // A build without an address never finds anything: only who asks is told so.
    if (_updater || applicationToUpdate().urlForUpdateCheck.isEmpty())
        return;
    makeUpdater();
    if (!_updater->checkForUpdateAfterTimePeriod(CalendarDate::now()))
        _updater.reset();
}

void ApplicationWindows::checkForUpdates(MainWindowController& asker)
{
    qCDebug(lcUi, "[checkForUpdates]");
    asker.showMessage(tr("Looking for newer versions…"));
    _updateAsker = &asker;
    // A check that is under way already has the answer soon.
    if (_updater)
        return;
    makeUpdater();
    _updater->checkForUpdate(CalendarDate::now());
}

void ApplicationWindows::tellUpdate(bool found)
{
    const auto asker = std::exchange(_updateAsker, nullptr);
    if (asker)
        asker->showMessage({});
    auto* window = asker ? asker.get() : windowInFront();
    if (found && window)
        offer(*_updater, *window);
    else if (asker)
        tellNoneFound(*_updater, *asker);
    _updater.reset();
}

} // namespace ridelog
