#include "ui/ApplicationWindows.h"

#include "library/AppController.h"
#include "platform/Defaults.h"
#include "ui/MainWindowController.h"
#include "ui/ManualHelp.h"
#include "ui/ManualWindow.h"
#include "ui/PreferencesController.h"
#include "ui/Sheet.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"
#include "update/XMLUpdater.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace ridelog {
namespace {

/// Whether this window shows a new document that nobody has done anything with.
bool isUntouched(MainWindowController& window)
{
    const auto& document = window.myDocument();
    return document.path().isEmpty() && document.toursArray().empty() && !document.isChanged() &&
           !window.isConnected() && !window.isAsking();
}

/// Whether a file is opened and not imported: for what it holds, for its name, which damage does not change,
/// or because there is none, which opening it says best.
bool isToBeOpened(const QString& path)
{
    const QFileInfo file(path);
    return !file.isFile() || file.suffix() == MyDocument::extension || MyDocument::isDocumentFile(path);
}

QString nameOf(const Leftover& leftover)
{
    return leftover.path.isEmpty() ? ApplicationWindows::tr("a document without a name") : leftover.path;
}

} // namespace

ApplicationWindows::ApplicationWindows(AppController& controller, Defaults& defaults, QObject* parent)
    : QObject(parent), _controller(controller), _defaults(defaults)
{
    connect(&_controller, &AppController::documentOpened, this,
            [this](MyDocument* document) { addWindow(*document); });
    connect(&_controller, &AppController::openFailed, this, &ApplicationWindows::showFailure);
    connect(&_controller, &AppController::recoveryFailed, this, &ApplicationWindows::tellRefused);
    connect(new ManualRequests(this), &ManualRequests::asked, this, &ApplicationWindows::showManual);
    connect(&_controller.recovery(), &DocumentRecovery::failed, this,
            [this](const MyDocument* document, const QString& reason) {
                if (auto* window = windowOf(*document))
                    window->showMessage(
                        tr("Changes that are not saved cannot be kept aside: %1").arg(reason));
            });
}

ApplicationWindows::~ApplicationWindows()
{
    // Nobody has closed them: what is not saved of their documents is kept for the next start.
    for (auto* window : mainWindows()) {
        window->disconnect(this);
        delete window;
    }
    delete _startWindow;
}

std::vector<MainWindowController*> ApplicationWindows::mainWindows() const
{
    return _mainWindows;
}

std::vector<QWidget*> ApplicationWindows::openWindows() const
{
    std::vector<QWidget*> windows;
    for (auto* window : _mainWindows) {
        windows.push_back(window);
        std::ranges::copy(window->furtherWindows(), std::back_inserter(windows));
    }
    return windows;
}

void ApplicationWindows::addWindow(MyDocument& document)
{
    auto* window = new MainWindowController(*this, document, _defaults);
    _mainWindows.push_back(window);
    connect(window, &QObject::destroyed, this, [this, window, &document] {
        std::erase(_mainWindows, window);
        _controller.closeDocument(document);
    });
    connect(window, &MainWindowController::activated, this, [this, window] { _lastInFront = window; });
    _lastInFront = window;
    qCDebug(lcUi, "windowControllerDidLoadNib");
    window->show();
    if (_startWindow) {
        window->showMessage((_startWindow->message() + u' ' + window->message()).trimmed());
        _startWindow->close();
    }
}

MainWindowController* ApplicationWindows::windowInFront() const
{
    if (_lastInFront)
        return _lastInFront;
    return _mainWindows.empty() ? nullptr : _mainWindows.back();
}

MainWindowController* ApplicationWindows::windowOf(const MyDocument& document) const
{
    const auto found = std::ranges::find_if(
        _mainWindows, [&](const auto* window) { return &window->myDocument() == &document; });
    return found == _mainWindows.end() ? nullptr : *found;
}

MainWindowController* ApplicationWindows::mainWindowOf(const QWidget* window) const
{
    const auto found = std::ranges::find_if(_mainWindows, [window](auto* one) {
        return one == window || std::ranges::count(one->furtherWindows(), window);
    });
    return found == _mainWindows.end() ? nullptr : *found;
}

void ApplicationWindows::bringToFront(QWidget& window)
{
    if (window.isMinimized())
        window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
}

void ApplicationWindows::showPreferences()
{
    if (!_preferences)
        _preferences = std::make_unique<PreferencesController>(_defaults);
    bringToFront(*_preferences);
}

void ApplicationWindows::showManual(const QString& section)
{
    // An open menu would keep the keys.
    while (auto* menu = QApplication::activePopupWidget())
        menu->close();
    if (!_manual)
        _manual = std::make_unique<ManualWindow>(_defaults);
    _manual->showSection(section);
}

// What a crash has left

void ApplicationWindows::offerLeftovers()
{
    const auto refused = _controller.recovery().refusedLeftovers();
    for (const auto& leftover : refused)
        tellRefused(leftover, leftover.refusal);
    const auto leftovers = _controller.recovery().leftovers();
    for (const auto& leftover : leftovers) {
        // Later means all of them: there may be many.
        if (!offerLeftover(leftover))
            return;
    }
}

bool ApplicationWindows::offerLeftover(const Leftover& leftover)
{
    const auto date = QLocale().toString(leftover.written.toLocalTime(), QLocale::ShortFormat);
    auto kept = tr("The document as it was on %1, with %Ln tour(s), was kept.", "date",
                   static_cast<int>(leftover.tours))
                    .arg(date);
    if (!leftover.fileChange.isEmpty())
        kept += u' ' + tr("Meanwhile %1.").arg(leftover.fileChange);
    Sheet sheet(nullptr, QMessageBox::Question,
                tr("ridelog ended before %1 was saved.").arg(nameOf(leftover)), kept);
    const QAbstractButton* recover = sheet.addButton(tr("&Recover"), QMessageBox::AcceptRole);
    const QAbstractButton* discard = sheet.addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    sheet.addButton(tr("Ask Me &Later"), QMessageBox::RejectRole);
    setManualSection(sheet, QStringLiteral("main-window.html#after-a-crash"));
    sheet.exec();
    if (sheet.clickedButton() == recover)
        _controller.recoverDocument(leftover);
    else if (sheet.clickedButton() == discard)
        discardLeftover(leftover);
    return sheet.clickedButton() == recover || sheet.clickedButton() == discard;
}

void ApplicationWindows::tellRefused(const Leftover& leftover, const QString& reason)
{
    Sheet sheet(nullptr, QMessageBox::Warning,
                tr("What ridelog kept of %1 could not be recovered.").arg(nameOf(leftover)),
                tr("%1\n\nIt is in %2, and stays there until it is discarded.")
                    .arg(reason, QDir::toNativeSeparators(leftover.folder)));
    const QAbstractButton* discard = sheet.addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    sheet.setDefaultButton(sheet.addButton(tr("&Keep"), QMessageBox::RejectRole));
    sheet.exec();
    if (sheet.clickedButton() == discard)
        discardLeftover(leftover);
}

void ApplicationWindows::discardLeftover(const Leftover& leftover)
{
    if (const auto error = _controller.recovery().discard(leftover))
        Sheet(nullptr, QMessageBox::Warning,
              tr("What was kept of %1 was not discarded.").arg(nameOf(leftover)), *error)
            .exec();
}

// Opening

void ApplicationWindows::start(const QStringList& paths)
{
    offerLeftovers();
    if (!paths.isEmpty())
        takeFiles(paths);
    else if (_mainWindows.empty() && _controller.applicationShouldOpenUntitledFile())
        _controller.newDocument();
    if (_mainWindows.empty() && !_startWindow)
        _controller.newDocument();
}

void ApplicationWindows::takeFiles(const QStringList& paths, QWidget* over)
{
    _failures.clear();
    auto* target = mainWindowOf(over);
    if (!target)
        target = windowInFront();
    QStringList dumps;
    for (const auto& path : paths) {
        if (!isToBeOpened(path))
            dumps << path;
        else if (auto* opened = open(path, target))
            target = opened;
    }
    const bool isNothingToShow = _mainWindows.empty() && !_startWindow;
    if (!target && (!dumps.isEmpty() || isNothingToShow))
        target = windowOf(_controller.newDocument());
    if (!dumps.isEmpty())
        target->importDumps(dumps, _failures);
    else if (target && !_failures.isEmpty())
        target->showMessage(_failures.join(u' '));
    if (target)
        bringToFront(*target);
    else if (_startWindow)
        bringToFront(*_startWindow);
}

void ApplicationWindows::openDocument(const QString& path, MainWindowController* over)
{
    _failures.clear();
    open(path, over);
}

MainWindowController* ApplicationWindows::open(const QString& path, MainWindowController* over)
{
    const auto* document = _controller.openDocument(path);
    if (!document)
        return nullptr;
    auto* window = windowOf(*document);
    bringToFront(*window);
    _lastInFront = window;
    if (over && over != window && isUntouched(*over))
        over->close();
    return window;
}

void ApplicationWindows::askForDocument(QWidget* over)
{
    auto* panel = new QFileDialog(over, tr("Open"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilters({tr("Tours (*.%1)").arg(MyDocument::extension), tr("All files (*)")});
    // When the panel has gone: it lies over a window that may go as well.
    connect(
        panel, &QFileDialog::fileSelected, this,
        [this, over = QPointer(over)](const QString& path) { takeFiles({path}, over); },
        Qt::QueuedConnection);
    panel->open();
}

void ApplicationWindows::showFailure(const QString& path, const QString& reason)
{
    // Of several files the last one is not the only one to be told of.
    _failures << tr("%1 could not be opened: %2").arg(path, reason);
    const auto message = _failures.join(u' ');
    if (auto* window = windowInFront()) {
        window->showMessage(message);
        return;
    }
    if (!_startWindow) {
        _startWindow = new StartWindow(*this);
        _startWindow->setAttribute(Qt::WA_DeleteOnClose);
    }
    _startWindow->showMessage(message);
    bringToFront(*_startWindow);
}

void ApplicationWindows::quit()
{
    // Each takes its further windows along, which stay where it stays.
    const auto all = mainWindows();
    // A question may last, and other windows go meanwhile.
    const std::vector<QPointer<MainWindowController>> left(all.begin(), all.end());
    for (const auto& window : left) {
        if (window && !window->close())
            return;
    }
    if (_startWindow)
        _startWindow->close();
}

} // namespace ridelog
