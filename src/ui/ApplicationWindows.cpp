#include "ui/ApplicationWindows.h"

#include "library/AppController.h"
#include "platform/Defaults.h"
#include "ui/Counted.h"
#include "ui/MainWindowController.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace ridelog {
namespace {

/// A new document that nobody has done anything with.
bool isUntouched(const MyDocument& document)
{
    return document.path().isEmpty() && document.toursArray().empty() && !document.isChanged();
}

} // namespace

ApplicationWindows::ApplicationWindows(AppController& controller, Defaults& defaults, QObject* parent)
    : QObject(parent), _controller(controller), _defaults(defaults)
{
    connect(&_controller, &AppController::documentOpened, this,
            [this](MyDocument* document) { addWindow(*document); });
    connect(&_controller, &AppController::openFailed, this, &ApplicationWindows::showFailure);
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

void ApplicationWindows::addWindow(MyDocument& document)
{
    auto* window = new MainWindowController(*this, document, _defaults);
    _mainWindows.push_back(window);
    connect(window, &QObject::destroyed, this, [this, window, &document] {
        std::erase(_mainWindows, window);
        _controller.closeDocument(document);
    });
    if (_mainWindows.size() > 1)
        window->move(_mainWindows[_mainWindows.size() - 2]->pos() + QPoint(30, 30));
    window->show();
    if (_startWindow)
        _startWindow->close();
}

MainWindowController* ApplicationWindows::windowInFront() const
{
    const auto active = std::ranges::find_if(_mainWindows, &QWidget::isActiveWindow);
    if (active != _mainWindows.end())
        return *active;
    return _mainWindows.empty() ? nullptr : _mainWindows.back();
}

MainWindowController* ApplicationWindows::windowOf(const MyDocument& document) const
{
    const auto found = std::ranges::find_if(
        _mainWindows, [&](const auto* window) { return &window->myDocument() == &document; });
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

void ApplicationWindows::offerLeftovers()
{
    const auto leftovers = _controller.recovery().leftovers();
    for (const auto& leftover : leftovers) {
        const auto name = leftover.path.isEmpty() ? tr("a document without a name") : leftover.path;
        QMessageBox box(QMessageBox::Question, QString(), tr("ridelog ended before %1 was saved.").arg(name));
        const auto tours = counted(leftover.tours, tr("1 tour"), tr("%1 tours"));
        const auto date = QLocale().toString(leftover.written, QLocale::ShortFormat);
        auto kept = tr("The document as it was on %1, with %2, was kept.").arg(date, tours);
        if (!leftover.fileChange.isEmpty())
            kept += u' ' + tr("Meanwhile %1.").arg(leftover.fileChange);
        box.setInformativeText(kept);
        box.setTextFormat(Qt::PlainText);
        const QAbstractButton* recover = box.addButton(tr("&Recover"), QMessageBox::AcceptRole);
        const QAbstractButton* discard = box.addButton(tr("&Discard"), QMessageBox::DestructiveRole);
        box.addButton(tr("Ask Me &Later"), QMessageBox::RejectRole);
        box.exec();
        if (box.clickedButton() == recover)
            _controller.recoverDocument(leftover);
        else if (box.clickedButton() == discard)
            _controller.recovery().discard(leftover);
    }
}

void ApplicationWindows::takeFiles(const QStringList& paths)
{
    QStringList dumps;
    for (const auto& path : paths) {
        if (MyDocument::isDocumentFile(path) || !QFileInfo(path).isFile())
            openDocument(path, windowInFront());
        else
            dumps << path;
    }
    if (_mainWindows.empty() && !_startWindow)
        _controller.newDocument();
    for (const auto& dump : std::as_const(dumps)) {
        if (auto* window = windowInFront())
            window->importDump(dump);
    }
    if (auto* window = windowInFront())
        bringToFront(*window);
}

void ApplicationWindows::openDocument(const QString& path, QWidget* over)
{
    const auto* document = _controller.openDocument(path);
    if (!document)
        return;
    if (auto* window = windowOf(*document))
        bringToFront(*window);
    // A window that asks something right now stays.
    if (auto* replaced = qobject_cast<MainWindowController*>(over);
        replaced && !QApplication::activeModalWidget() && &replaced->myDocument() != document &&
        isUntouched(replaced->myDocument()))
        replaced->close();
}

void ApplicationWindows::askForDocument(QWidget* over)
{
    auto* panel = new QFileDialog(over, tr("Open"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilters({tr("Tours (*.%1)").arg(MyDocument::extension), tr("All files (*)")});
    connect(panel, &QFileDialog::fileSelected, this, [this, over = QPointer(over)](const QString& path) {
        if (MyDocument::isDocumentFile(path) || !qobject_cast<MainWindowController*>(over))
            openDocument(path, over);
        else
            qobject_cast<MainWindowController*>(over)->importDump(path);
    });
    panel->open();
}

void ApplicationWindows::showFailure(const QString& path, const QString& reason)
{
    const auto message = tr("%1 could not be opened: %2").arg(path, reason);
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
    QApplication::closeAllWindows();
}

} // namespace ridelog
