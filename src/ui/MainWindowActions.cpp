// Menus, tool bar and what they do.

#include "library/AppController.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/ApplicationWindows.h"
#include "ui/ConnectView.h"
#include "ui/Icons.h"
#include "ui/MainWindowController.h"
#include "ui/MenuEntries.h"
#include "ui/NumberedEntry.h"
#include "ui/SimulatedDevice.h"
#include "ui/TourTableView.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"
#include "ui/UndoActions.h"
#include "ui/WindowMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QToolBar>
#include <QUrl>

#include <algorithm>
#include <functional>
#include <utility>

namespace ridelog {
namespace {

/// A submenu that is filled when it is opened.
void addFilledMenu(QMenu& menu, const QString& title, std::function<void(QMenu&)> fill)
{
    auto* filled = menu.addMenu(title);
    QObject::connect(filled, &QMenu::aboutToShow, filled, [filled, fill = std::move(fill)] {
        filled->clear();
        fill(*filled);
    });
}

} // namespace

QAction* MainWindowController::addAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                                         void (MainWindowController::*slot)())
{
    auto* action = menu.addAction(text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, slot] {
        beginAction();
        (this->*slot)();
    });
    return action;
}

void MainWindowController::makeActions()
{
    makeFileMenu();
    makeEditMenu();
    makeTourMenu();
    makeDeviceMenu();
    makeWindowMenu();
    makeHelpMenu();
    makeToolBar();
}

void MainWindowController::makeFileMenu()
{
    using Window = MainWindowController;
    auto& menu = *menuBar()->addMenu(tr("&File"));
    addAction(menu, tr("&New"), QKeySequence::New, &Window::newDocument);
    addAction(menu, tr("&Open…"), QKeySequence::Open, &Window::openDocument);
    _recentMenu = menu.addMenu(tr("Open &Recent"));
    connect(_recentMenu, &QMenu::aboutToShow, this, &Window::fillRecentMenu);
    menu.addSeparator();
    _importAction = addAction(menu, tr("&Import Dump…"), Qt::CTRL | Qt::Key_I, &Window::importFile);
    _exportAction = addAction(menu, tr("&Export…"), Qt::CTRL | Qt::Key_E, &Window::exportTours);
    menu.addSeparator();
    _saveAction = addAction(menu, tr("&Save"), QKeySequence::Save, &Window::saveDocument);
    addAction(menu, tr("Save &As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, &Window::saveDocumentAs);
    _revertAction = addAction(menu, tr("Re&vert"), Qt::Key_F5, &Window::revertDocument);
    menu.addSeparator();
    _printAction = addAction(menu, tr("&Print…"), QKeySequence::Print, &Window::printTour);
    menu.addSeparator();
    auto* closeAction = menu.addAction(tr("&Close"), this, &QWidget::close);
    closeAction->setShortcut(QKeySequence::Close);
    auto* quitAction = menu.addAction(tr("&Quit"), &_windows, &ApplicationWindows::quit);
    quitAction->setShortcut(Qt::CTRL | Qt::Key_Q);
    quitAction->setMenuRole(QAction::QuitRole);
}

void MainWindowController::makeEditMenu()
{
    using Window = MainWindowController;
    auto& menu = *menuBar()->addMenu(tr("&Edit"));
    auto* undo = new UndoActions(menu, _document.undoManager());
    connect(undo, &UndoActions::chosen, this, &Window::beginAction);
    menu.addSeparator();
    _removeAction = addAction(menu, tr("Re&move Tour"), Qt::Key_Delete, &Window::deleteSelectedTour);
    _restoreAction =
        addAction(menu, tr("Re&store Tour"), Qt::CTRL | Qt::Key_Delete, &Window::undeleteSelectedTour);
    _showRemovedAction = menu.addAction(tr("S&how Removed Tours"));
    _showRemovedAction->setCheckable(true);
    _showRemovedAction->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    connect(_showRemovedAction, &QAction::toggled, this, &Window::showRemoved);
    menu.addSeparator();
    addAction(menu, tr("&Find"), QKeySequence::Find, &Window::find);
    addAction(menu, tr("Select &All"), QKeySequence::SelectAll, &Window::selectAll);
    menu.addSeparator();
    auto& units = *menu.addMenu(tr("Un&its"));
    auto* group = new QActionGroup(this);
    for (const bool miles : {false, true}) {
        auto* action =
            units.addAction(miles ? tr("&Miles, mph and Feet") : tr("&Kilometres, km/h and Metres"));
        action->setCheckable(true);
        action->setShortcut(Qt::CTRL | Qt::SHIFT | (miles ? Qt::Key_M : Qt::Key_K));
        group->addAction(action);
        const auto check = [this, action, miles] {
            action->setChecked(_defaults.boolForKey(DefaultsKeys::useMiles) == miles);
        };
        check();
        _defaults.observe(DefaultsKeys::useMiles, this, check);
        connect(action, &QAction::triggered, this,
                [this, miles] { _defaults.setValue(DefaultsKeys::useMiles, miles); });
    }
    addFilledMenu(menu, tr("&Columns"), [this](QMenu& columns) { _tableView->fillColumnsMenu(columns); });
    addFilledMenu(menu, tr("Sort &By"), [this](QMenu& orders) { _tableView->fillOrderMenu(orders); });
    menu.addSeparator();
    addAction(menu, tr("&Preferences…"), Qt::CTRL | Qt::Key_Comma, &Window::showPreferencesPanel)
        ->setMenuRole(QAction::PreferencesRole);
    // In a text field, and in the drawer, Delete means something else.
    for (auto* action : {_removeAction, _restoreAction})
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    _tableView->addActions({_removeAction, _restoreAction});
}

void MainWindowController::makeTourMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Tour"));
    _openTourAction = addAction(menu, tr("&Open"), Qt::Key_Return, &MainWindowController::showSummaryWindow);
    _openTourAction->setIconText(tr("Open Tour"));
    // In a title that is edited Return means something else.
    _openTourAction->setShortcutContext(Qt::WidgetShortcut);
    _editTitleAction = addAction(menu, tr("Edit &Title"), Qt::Key_F2, &MainWindowController::editTitle);
    _tableView->insertActions(_removeAction, {_openTourAction, _editTitleAction});
}

void MainWindowController::makeDeviceMenu()
{
    using Window = MainWindowController;
    auto& menu = *menuBar()->addMenu(tr("&Device"));
    _transferButton = menu.addAction(tr("Connect &Drawer"));
    _transferButton->setIconText(tr("Device"));
    _transferButton->setCheckable(true);
    _transferButton->setShortcut(Qt::CTRL | Qt::Key_D);
    connect(_transferButton, &QAction::triggered, this, &Window::toggleConnectDrawer);
    menu.addSeparator();
    _startTransferAction =
        addAction(menu, tr("&Start Transfer"), Qt::CTRL | Qt::Key_T, &Window::startTransfer);
    _stopTransferAction =
        addAction(menu, tr("S&top Transfer"), Qt::CTRL | Qt::Key_Period, &Window::stopTransfer);
    _stopTransferAction->setEnabled(false);
    menu.addSeparator();
    _simulatedDeviceAction = addAction(menu, tr("Simulated De&vice"), Qt::CTRL | Qt::SHIFT | Qt::Key_D,
                                       &Window::toggleSimulatedDevice);
    _simulatedDeviceAction->setCheckable(true);
    showSimulatedDevice();
    connect(&_windows.simulatedDevice(), &SimulatedDevice::changed, this, &Window::showSimulatedDevice);
    connect(&_connectView->connectButton(), &QPushButton::clicked, this, &Window::connectToOdo);
}

void MainWindowController::makeWindowMenu()
{
    _statisticsAction = new QAction(tr("&Statistics"), this);
    _statisticsAction->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
    connect(_statisticsAction, &QAction::triggered, this, [this] {
        beginAction();
        showStatWindow();
    });
    menuBar()->addMenu(new WindowMenu(_windows, *this, {_statisticsAction}));
}

void MainWindowController::makeHelpMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Help"));
    addManual(menu, *this);
    menu.addSeparator();
    addAction(menu, tr("&Check for Updates…"), Qt::CTRL | Qt::SHIFT | Qt::Key_U,
              &MainWindowController::checkForUpdates);
    addAction(menu, tr("Send &Feedback…"), Qt::CTRL | Qt::SHIFT | Qt::Key_F,
              &MainWindowController::sendFeedback);
    menu.addSeparator();
    auto* about =
        addAction(menu, tr("&About ridelog"), Qt::CTRL | Qt::Key_F1, &MainWindowController::showAbout);
    about->setMenuRole(QAction::AboutRole);
}

void MainWindowController::makeToolBar()
{
    auto& bar = *addToolBar(tr("Tool Bar"));
    bar.setObjectName(QStringLiteral("toolBar"));
    bar.setMovable(false);
    bar.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar.setIconSize(QSize(16, 16));
    bar.setContextMenuPolicy(Qt::PreventContextMenu);
    _importAction->setIconText(tr("Import"));
    const std::pair<QAction*, QString> symbols[]{{_transferButton, QStringLiteral("device")},
                                                 {_importAction, QStringLiteral("import")},
                                                 {_openTourAction, QStringLiteral("tour")},
                                                 {_statisticsAction, QStringLiteral("statistics")}};
    for (const auto& [action, symbol] : symbols) {
        action->setIcon(actionIcon(symbol));
        action->setIconVisibleInMenu(false);
        bar.addAction(action);
    }
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(space);

    _searchField = new QLineEdit;
    _searchField->setPlaceholderText(tr("Search"));
    _searchField->setAccessibleName(tr("Search"));
    _searchField->setMaximumWidth(240);
    connect(_searchField, &QLineEdit::textChanged, this, [this](const QString& text) {
        // Its icon is looked for among the desktop's, which a start need not wait for.
        _searchField->setClearButtonEnabled(true);
        _tourController.setSearchText(text);
    });
    auto* clear = new QAction(_searchField);
    clear->setShortcut(Qt::Key_Escape);
    clear->setShortcutContext(Qt::WidgetShortcut);
    connect(clear, &QAction::triggered, _searchField, &QLineEdit::clear);
    _searchField->addAction(clear);
    bar.addWidget(_searchField);
}

void MainWindowController::fillRecentMenu()
{
    _recentMenu->clear();
    const auto paths = _windows.controller().recentDocuments();
    int number = 0;
    for (const auto& path : paths) {
        const QFileInfo file(path);
        const auto name =
            QStringLiteral("%1  (%2)").arg(file.fileName(), QDir::toNativeSeparators(file.path()));
        auto* action = addNumberedEntry(*_recentMenu, ++number, name);
        connect(action, &QAction::triggered, this, [this, path] { _windows.openDocument(path, this); });
    }
    if (paths.isEmpty())
        _recentMenu->addAction(tr("No Documents Yet"))->setEnabled(false);
}

// What they do

void MainWindowController::finishEditing()
{
    _tableView->finishEditing();
    for (auto* window : _tourWindows)
        window->finishEditing();
}

void MainWindowController::beginAction()
{
    finishEditing();
    // What the last action led to has been read.
    showMessage({});
}

void MainWindowController::find()
{
    _searchField->setFocus(Qt::ShortcutFocusReason);
    _searchField->selectAll();
}

void MainWindowController::selectAll()
{
    if (_searchField->hasFocus())
        _searchField->selectAll();
    else
        _tableView->selectAll();
}

void MainWindowController::showSimulatedDevice()
{
    _simulatedDeviceAction->setChecked(_windows.simulatedDevice().isPluggedIn());
}

void MainWindowController::toggleSimulatedDevice()
{
    auto& device = _windows.simulatedDevice();
    if (device.isPluggedIn()) {
        device.unplug();
        return;
    }
    if (const auto error = device.plugIn()) {
        showSimulatedDevice();
        showMessage(tr("There is no simulated device: %1").arg(*error));
        return;
    }
    if (_connectDrawer->isHidden())
        toggleConnectDrawer();
    // Who waits in vain for another device is to have this one.
    if (isConnected() && _odoCom->odoData().isEmpty())
        endSession();
    if (isConnected())
        return;
    _connectView->selectPort(device.path());
    tell(tr("The simulated device is plugged in. Press Connect to take its tours."));
}

void MainWindowController::showPreferencesPanel()
{
    _windows.showPreferences();
}

void MainWindowController::checkForUpdates()
{
    _windows.checkForUpdates(*this);
}

void MainWindowController::sendFeedback()
{
    qCDebug(lcUi, "[sendFeedback]");
    const QUrl mail(QStringLiteral("mailto:%1?subject=[ridelog]%20Feedback")
                        .arg(QStringLiteral(RIDELOG_FEEDBACK_ADDRESS)));
    if (!QDesktopServices::openUrl(mail))
        showMessage(tr("No mail program could be started. Write to %1.")
                        .arg(QStringLiteral(RIDELOG_FEEDBACK_ADDRESS)));
}

void MainWindowController::showAbout()
{
    QMessageBox::about(this, tr("About ridelog"),
                       tr("<b>ridelog %1</b><br>Keeps the tours of a cycle computer for a lifetime.<br><br>"
                          "Free software under the MIT licence.")
                           .arg(QCoreApplication::applicationVersion()));
}

} // namespace ridelog
