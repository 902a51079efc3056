// Newer versions of the application.

#include "platform/CalendarDate.h"
#include "platform/Defaults.h"
#include "ui/ApplicationWindows.h"
#include "ui/MainWindowController.h"
#include "ui/UiLog.h"
#include "update/UpdateAlerts.h"
#include "update/XMLUpdater.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>

namespace ridelog {
namespace {

/// Asks over a window.
class AlertsOver : public UpdateAlerts {
public:
    explicit AlertsOver(QWidget& window) : _window(window) {}

    bool runModal(const UpdateAlert& alert) override
    {
        QMessageBox box(QMessageBox::Information, alert.title, alert.title, QMessageBox::NoButton, &_window);
        box.setInformativeText(alert.message);
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(box.addButton(alert.defaultButton, QMessageBox::AcceptRole));
        const QAbstractButton* other = nullptr;
        if (!alert.otherButton.isEmpty())
            other = box.addButton(alert.otherButton, QMessageBox::ActionRole);
        box.exec();
        return other && box.clickedButton() == other;
    }

private:
    QWidget& _window;
};

void offer(XMLUpdater& updater, QWidget& over)
{
    qCDebug(lcUi, "Newer version available");
    AlertsOver alerts(over);
    if (!updater.shouldDownloadNewVersionDependingOn(true, alerts))
        return;
    qCDebug(lcUi, "Try to download new version");
    updater.startDownloadingNewVersion([](const QUrl& url) { return QDesktopServices::openUrl(url); });
}

} // namespace

/// Lives as long as the window, or until the check is over.
XMLUpdater& ApplicationWindows::newUpdater(QWidget& over) const
{
    auto application = runningApplication();
    application.urlForUpdateCheck = _updateUrl.value_or(application.urlForUpdateCheck);
    auto* updater = new XMLUpdater(application, _defaults, &over);
    connect(updater, &XMLUpdater::checked, updater, &QObject::deleteLater);
    return *updater;
}

void ApplicationWindows::checkForUpdatesIfDue(QWidget& over)
{
    // A build without an address never finds anything: only who asks is told so.
    if (_updateUrl.value_or(runningApplication().urlForUpdateCheck).isEmpty())
        return;
    auto& updater = newUpdater(over);
    connect(&updater, &XMLUpdater::checked, &over, [&updater, &over](bool found) {
        if (found)
            offer(updater, over);
    });
    updater.checkForUpdateAfterTimePeriod(CalendarDate::now());
}

void ApplicationWindows::checkForUpdates(QWidget& over)
{
    qCDebug(lcUi, "[checkForUpdates]");
    auto& updater = newUpdater(over);
    connect(&updater, &XMLUpdater::checked, &over, [&updater, &over](bool found) {
        if (found) {
            offer(updater, over);
            return;
        }
        qCDebug(lcUi, "Version is up-to-date");
        if (auto* window = qobject_cast<MainWindowController*>(&over); window && updater.failure())
            window->showMessage(
                tr("Newer versions could not be looked for: %1").arg(updater.failure()->reason));
        AlertsOver alerts(over);
        updater.shouldDownloadNewVersionDependingOn(false, alerts);
    });
    updater.checkForUpdate(CalendarDate::now());
}

} // namespace ridelog
