#include "ui/MainWindowController.h"

#include "chart/ChartArrayView.h"
#include "format/ReadableUnits.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "model/SeriesNames.h"
#include "platform/Defaults.h"
#include "ui/ApplicationWindows.h"
#include "ui/ConnectView.h"
#include "ui/ElidedLabel.h"
#include "ui/EmptyDocumentView.h"
#include "ui/FileDrop.h"
#include "ui/ManualHelp.h"
#include "ui/MessageLine.h"
#include "ui/StatWindowController.h"
#include "ui/TourTableModel.h"
#include "ui/TourTableView.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"
#include "ui/WindowFrame.h"
#include "ui/WindowTitle.h"

#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcUi, "ridelog.ui")

namespace {

constexpr QSize usualSize(1280, 820);

/// A field that shows a value of the selected tour, next to what the value is.
QLabel* addField(QHBoxLayout& layout, const QString& name)
{
    layout.addWidget(new QLabel(name));
    auto* field = new QLabel;
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field->setFocusPolicy(Qt::StrongFocus);
    field->setAccessibleDescription(name);
    auto font = field->font();
    font.setBold(true);
    field->setFont(font);
    layout.addWidget(field);
    return field;
}

} // namespace

int MainWindowController::unusedNumber(const ApplicationWindows& windows)
{
    const auto others = windows.mainWindows();
    int number = 1;
    while (std::ranges::count_if(others, [number](const auto* other) {
        return other->_document.path().isEmpty() && other->_untitledNumber == number;
    }))
        ++number;
    return number;
}

MainWindowController::MainWindowController(ApplicationWindows& windows, MyDocument& document,
                                           Defaults& defaults)
    : _windows(windows),
      _document(document),
      _defaults(defaults),
      _tourController(document),
      _untitledNumber(unusedNumber(windows))
{
    qCDebug(lcUi, "-- awakeFromNib --");
    new FileDrop(_windows, *this);
    setManualSection(*this, QStringLiteral("main-window.html"));
    setAttribute(Qt::WA_DeleteOnClose);
    _tourController.setSortDescriptors(
        sortDescriptorsFromText(_defaults.textForKey(DefaultsKeys::sortDesc).value_or(QString())));

    makeTable();
    makeChart();
    _splitter = new QSplitter(Qt::Vertical);
    _splitter->setObjectName(QStringLiteral("splitter"));
    _splitter->setChildrenCollapsible(false);
    _splitter->addWidget(_tableOrHint);
    _splitter->addWidget(_chartView->parentWidget());
    _splitter->setStretchFactor(0, 3);
    _splitter->setStretchFactor(1, 2);
    _splitter->setSizes({3000, 2000});
    setCentralWidget(_splitter);
    makeConnectDrawer();
    makeActions();

    _message = new MessageLine;
    _summary = new QLabel;
    statusBar()->addWidget(_message, 1);
    statusBar()->addPermanentWidget(_summary);

    // From the top to the bottom, then the drawer.
    setTabOrder(_searchField, _tableView);
    setTabOrder(_tableView, _distanceField);
    setTabOrder(_distanceField, _speedField);
    setTabOrder(_speedField, &_connectView->portsPopUp());
    setTabOrder(&_connectView->portsPopUp(), &_connectView->connectButton());
    setTabOrder(&_connectView->connectButton(), &_connectView->troubleButton());
    _tableView->setFocus();

    restoreWindow();
    configureFormatters();
    _tourController.selectRow(_defaults.integerForKey(DefaultsKeys::selectedRow));
    _tableView->scrollToSelection();

    connect(&_tourController, &TourArrayController::selectionChanged, this,
            &MainWindowController::tableViewSelectionDidChange);
    connect(&_tourController, &TourArrayController::rearranged, this, &MainWindowController::showTours);
    _tourChanges.setSingleShot(true);
    connect(&_tourController, &TourArrayController::tourChanged, &_tourChanges, qOverload<>(&QTimer::start));
    _tourChanges.callOnTimeout(this, [this] {
        showSelectedTour();
        enableActions();
    });
    connect(&_document, &MyDocument::toursArrayChanged, this, &MainWindowController::showTours);
    connect(&_document.undoManager(), &UndoManager::cleanChanged, this, &MainWindowController::showTitle);
    _defaults.observe(DefaultsKeys::useMiles, this, [this] { configureFormatters(); });
    showTours();
    tableViewSelectionDidChange();
    showTitle();
    enableActions();
    if (_document.isReadOnly())
        showMessage(tr("The document can only be read: %1").arg(_document.readOnlyReason()));
    if (_defaults.boolForKey(DefaultsKeys::automaticCheck))
        _windows.checkForUpdatesIfDue();
}

MainWindowController::~MainWindowController()
{
    // The program may be ended in the middle of a transfer, or of a title.
    finishEditing();
    stopTransfer();
    storeWindow();
    for (auto* window : std::exchange(_tourWindows, {})) {
        window->disconnect(this);
        delete window;
    }
    delete _swc;
    // They speak to this window and to its list for as long as they live.
    delete _connectDrawer;
    delete _splitter;
}

// Set-up

void MainWindowController::makeTable()
{
    _tableModel = new TourTableModel(_tourController, _defaults, this);
    _tableView = new TourTableView(_tourController, *_tableModel, _defaults);
    // An edited title takes its place when control is back: not while the field is still open.
    connect(_tableModel, &TourTableModel::textEdited, &_tourController,
            &TourArrayController::rearrangeObjects, Qt::QueuedConnection);
    connect(_tableView, &QTableView::doubleClicked, this, &MainWindowController::tableElementDoubleClicked);
    auto* hint = new EmptyDocumentView;
    connect(hint, &EmptyDocumentView::connectDeviceRequested, this, &MainWindowController::startTransfer);
    connect(hint, &EmptyDocumentView::importDumpRequested, this, &MainWindowController::importFile);
    _tableOrHint = new QStackedWidget;
    _tableOrHint->addWidget(_tableView);
    _tableOrHint->addWidget(hint);
}

void MainWindowController::makeChart()
{
    _tourField = new ElidedLabel;
    auto* line = new QHBoxLayout;
    line->setContentsMargins(8, 4, 8, 0);
    line->addWidget(_tourField, 1);
    line->addSpacing(12);
    _distanceField = addField(*line, tr("Distance:"));
    line->addSpacing(12);
    _speedField = addField(*line, tr("Average speed:"));

    _chartView = new ChartArrayView(_defaults);
    _chartView->setShowNames({SeriesNames::altitude});
    auto* lower = new QWidget;
    auto* layout = new QVBoxLayout(lower);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addWidget(_chartView, 1);
}

void MainWindowController::makeConnectDrawer()
{
    _connectView = new ConnectView(_windows.simulatedDevice());
    _connectDrawer = new QDockWidget(tr("Device"), this);
    _connectDrawer->setObjectName(QStringLiteral("connectDrawer"));
    _connectDrawer->setWidget(_connectView);
    addDockWidget(Qt::RightDockWidgetArea, _connectDrawer);
}

void MainWindowController::restoreWindow()
{
    if (!restoreFrame(*this, _defaults, DefaultsKeys::mainWindowFrame))
        resize(fitting(usualSize, *screen()));
    restoreState(_defaults.valueForKey(DefaultsKeys::mainWindowState).toByteArray());
    _splitter->restoreState(_defaults.valueForKey(DefaultsKeys::mainSplitter).toByteArray());
    _connectDrawer->setVisible(_defaults.boolForKey(DefaultsKeys::drawerOpen));
    _transferButton->setChecked(!_connectDrawer->isHidden());
    if (!_connectDrawer->isHidden())
        fillPorts();
    connect(_connectDrawer->toggleViewAction(), &QAction::toggled, this,
            &MainWindowController::drawerDidChange);
}

void MainWindowController::storeWindow()
{
    // The selected row is one of the list as the next start shows it.
    _searchField->clear();
    _showRemovedAction->setChecked(false);
    storeFrame(*this, _defaults, DefaultsKeys::mainWindowFrame);
    _defaults.setValue(DefaultsKeys::mainWindowState, saveState());
    _defaults.setValue(DefaultsKeys::mainSplitter, _splitter->saveState());
    _tableView->storeColumns();
    _defaults.setValue(DefaultsKeys::sortDesc, textOfSortDescriptors(_tourController.sortDescriptors()));
    _defaults.synchronize();
}

// What it shows

void MainWindowController::tableViewSelectionDidChange()
{
    qCDebug(lcUi, "[MainWindowController::tableViewSelectionDidChange]");
    enableActions();
    const auto tour = _tourController.selectedTour();
    // Without a single tour the chart goes on showing the last one.
    if (!tour)
        return;
    qCDebug(lcUi, "Save selectedRow");
    _defaults.setValue(DefaultsKeys::selectedRow, _tourController.selectedRows().front());
    tour->setNameForXValue(SeriesNames::distance);
    _chartView->setDataProvider(tour);
    _chartView->update();
    showSelectedTour();
}

std::shared_ptr<const OdoTour> MainWindowController::shownTour() const
{
    return std::dynamic_pointer_cast<const OdoTour>(_chartView->dataProvider());
}

void MainWindowController::showSelectedTour()
{
    const auto tour = shownTour();
    _chartView->parentWidget()->setVisible(tour != nullptr);
    if (!tour)
        return;
    const auto date = QLocale().toString(tour->date(), QLocale::ShortFormat);
    const auto title = tour->shownTitle();
    _tourField->setText(title.isEmpty() ? date : QStringLiteral("%1 – %2").arg(title, date));
    _distanceField->setText(
        UnitFormatters::mainDistance(_defaults).stringForObjectValue(tour->totalDistance()));
    _speedField->setText(UnitFormatters::mainSpeed(_defaults).stringForObjectValue(tour->avgSpeed()));
}

void MainWindowController::configureFormatters()
{
    _chartView->setMpFormatterForXAxis(UnitFormatters::chartXAxis(_defaults));
    _chartView->setMpFormatterForYAxis(UnitFormatters::chartYAxis(_defaults, SeriesNames::altitude));
    _chartView->update();
    _tableModel->reformat();
    showSelectedTour();
    showSummary();
}

void MainWindowController::showTours()
{
    const auto& tours = _document.toursArray();
    _tableOrHint->setCurrentIndex(tours.empty() ? 1 : 0);
    // The chart keeps a tour that is not listed any more, but none that has left the document.
    if (shownTour() && !std::ranges::count(tours, shownTour())) {
        _chartView->setDataProvider(nullptr);
        _chartView->update();
        showSelectedTour();
    }
    // A selected tour keeps its selection when rows move, but not its row.
    if (_tourController.selectedTour())
        _defaults.setValue(DefaultsKeys::selectedRow, _tourController.selectedRows().front());
    closeWindowsOfLostTours();
    showSummary();
    enableActions();
}

void MainWindowController::showSummary()
{
    const auto& tours = _tourController.arrangedObjects();
    const auto kilometres =
        std::accumulate(tours.begin(), tours.end(), 0.0, [](double sum, const auto& tour) {
            return sum + static_cast<double>(tour->totalDistance());
        });
    const auto distance = UnitFormatters::mainDistance(_defaults).stringForObjectValue(kilometres);
    _summary->setText(tr("%Ln tour(s)", nullptr, static_cast<int>(tours.size())) + QStringLiteral(", ") +
                      distance);
}

QString MainWindowController::documentName() const
{
    if (!_document.path().isEmpty())
        return QFileInfo(_document.path()).fileName();
    return _untitledNumber == 1 ? tr("Untitled") : tr("Untitled %1").arg(_untitledNumber);
}

QString MainWindowController::nameWithoutEnding() const
{
    auto name = documentName();
    if (name.endsWith(u'.' + MyDocument::extension))
        name.chop(1 + MyDocument::extension.size());
    return name;
}

/// The document as windows are titled with it.
QString MainWindowController::shownName() const
{
    const auto name = nameWithoutEnding();
    return _document.isReadOnly() ? tr("%1 (read-only)").arg(name) : name;
}

void MainWindowController::showTitle()
{
    // The platform adds the application's name, but only to titles that do not end with it already.
    setWindowTitle(titleWithName(shownName()) + placeOfMark);
    setWindowFilePath(_document.path());
    setWindowModified(_document.isChanged());
    if (_swc)
        _swc->setDocumentName(shownName());
    _revertAction->setEnabled(!_document.path().isEmpty());
}

void MainWindowController::enableActions()
{
    const auto removed = removedInSelection();
    _removeAction->setEnabled(removed < static_cast<qsizetype>(_tourController.selectedRows().size()));
    _restoreAction->setEnabled(removed > 0);
    const bool isAnyToExport =
        std::ranges::any_of(_document.toursArray(), [](const auto& tour) { return !tour->removed(); });
    _exportAction->setEnabled(isAnyToExport);
    const bool isOne = _tourController.selectedTour() != nullptr;
    for (auto* action : {_editTitleAction, _openTourAction, _printAction})
        action->setEnabled(isOne);
}

QString MainWindowController::message() const
{
    return _message->text();
}

void MainWindowController::showMessage(const QString& message)
{
    _message->tell(message);
}

void MainWindowController::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT activated();
}

} // namespace ridelog
