#include "ui/TourWindowController.h"

#include "library/DefaultsKeys.h"
#include "library/MyDocument.h"
#include "platform/Defaults.h"
#include "ui/AltitudeRange.h"
#include "ui/DescriptionEdit.h"
#include "ui/FileDrop.h"
#include "ui/Icons.h"
#include "ui/ManualHelp.h"
#include "ui/MessageLine.h"
#include "ui/SampleTableModel.h"
#include "ui/ToggleButton.h"
#include "ui/TourSummaryView.h"
#include "ui/UiLog.h"
#include "ui/WindowFrame.h"

#include <QDockWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace ridelog {
namespace {

constexpr QSize usualSize(1000, 720);
constexpr QSize dataContentSize(200, 150);
constexpr QSize summaryContentSize(225, 250);
constexpr int usualDescriptionHeight = 110;

} // namespace

TourWindowController::TourWindowController(ApplicationWindows& windows, MyDocument& document,
                                           std::shared_ptr<OdoTour> tour, Defaults& defaults)
    : _windows(windows), _document(document), _odoTour(std::move(tour)), _defaults(defaults)
{
    qCDebug(lcUi, "[TourWindowController init]");
    qCDebug(lcUi, "[setOdoTour]");
    if (!_odoTour->undo())
        qCWarning(lcUi, "COULD NOT SET UNDOMANAGER");
    setAttribute(Qt::WA_DeleteOnClose);
    new FileDrop(_windows, *this);
    setManualSection(*this, QStringLiteral("tour-window.html"));

    auto* upper = new QWidget;
    auto* layout = new QVBoxLayout(upper);
    layout->addWidget(makeHead());
    layout->addWidget(makeControls());
    _altitudeRange = new AltitudeRange(_defaults);
    connect(_altitudeRange, &AltitudeRange::edited, this, &TourWindowController::showMessage);
    layout->addWidget(_altitudeRange);
    layout->addWidget(makeChart(), 1);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(upper);
    splitter->addWidget(makeDescription());
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({usualSize.height(), usualDescriptionHeight});
    setCentralWidget(splitter);
    // There are more summary values than columns of samples have to be wide.
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    makeDataDrawer();
    makeSummaryDrawer();
    _message = new MessageLine;
    statusBar()->addWidget(_message, 1);
    makeActions();
    qCDebug(lcUi, "Nib file is loaded");
    qCDebug(lcUi, "UndoManager %p", static_cast<const void*>(&_document.undoManager()));

    restoreAxes();
    readLabelsAndSetChartNames();
    if (!restoreFrame(*this, _defaults, DefaultsKeys::tourWindowFrame(_odoTour->description())))
        resize(fitting(usualSize, *screen()));
    setupGUI();
    connect(&_document.tourChanges(), &TourChanges::changed, this, [this](const OdoTour& changed) {
        if (&changed == _odoTour.get())
            tourDidChange();
    });
    tourDidChange();
    _chart->setFocus();
}

TourWindowController::~TourWindowController()
{
    qCDebug(lcUi, "--- TourWindowController dealloc ---");
    finishEditing();
    storeFrame(*this, _defaults, DefaultsKeys::tourWindowFrame(_odoTour->description()));
    // They speak to this window for as long as they live.
    delete _dataTableDrawer;
    delete _summaryDrawer;
    delete centralWidget();
}

// Set-up

QWidget* TourWindowController::makeHead()
{
    auto* head = new QWidget;
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(0, 0, 0, 0);
    _title = new QLineEdit;
    _title->setAccessibleName(tr("Title"));
    _title->setPlaceholderText(tr("Title"));
    _title->setAcceptDrops(false); // files are for the window
    _title->setMaxLength(std::numeric_limits<int>::max());
    _title->installEventFilter(this);
    connect(_title, &QLineEdit::editingFinished, this, &TourWindowController::commitTitle);
    _when = new ElidedLabel;
    _when->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(_title, 3);
    layout->addSpacing(12);
    layout->addWidget(_when, 2);
    return head;
}

QWidget* TourWindowController::makeControls()
{
    auto* controls = new QWidget;
    auto* layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    addAxisControls(*layout);
    layout->addSpacing(12);
    layout->addStretch();
    _dataButton = new ToggleButton(tr("Data"));
    _summaryButton = new ToggleButton(tr("Summary"));
    _saveChartButton = new QToolButton;
    _saveChartButton->setText(tr("Save Chart…"));
    _saveChartButton->setIcon(actionIcon(QStringLiteral("save-chart")));
    _saveChartButton->setIconSize(QSize(16, 16));
    _saveChartButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    _saveChartButton->setFocusPolicy(Qt::StrongFocus);
    for (auto* button : {_dataButton, _summaryButton, _saveChartButton})
        layout->addWidget(button);
    return controls;
}

QWidget* TourWindowController::makeChart()
{
    _chart = new ChartArrayView(_defaults);
    _chart->setFocusPolicy(Qt::StrongFocus);
    _chart->installEventFilter(this);
    _readout = new ElidedLabel;
    // The chart does not move when there is nothing to be read.
    _readout->setFixedHeight(_readout->fontMetrics().height());
    connect(_chart, &ChartArrayView::hovered, this,
            [this](std::optional<double> x) { showReadout(x ? nearestIndex(*x) : std::nullopt); });
    auto* both = new QWidget;
    auto* layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_chart, 1);
    layout->addWidget(_readout);
    return both;
}

QWidget* TourWindowController::makeDescription()
{
    _text = new DescriptionEdit;
    _text->setPlaceholderText(tr("Description"));
    connect(_text, &DescriptionEdit::edited, this, &TourWindowController::commitDescription);
    _styleBar = new QToolBar;
    _styleBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto* both = new QWidget;
    auto* layout = new QVBoxLayout(both);
    layout->setSpacing(2);
    layout->setContentsMargins(layout->contentsMargins().left(), 0, layout->contentsMargins().right(), 0);
    layout->addWidget(_styleBar);
    layout->addWidget(_text, 1);
    return both;
}

QDockWidget* TourWindowController::makeDrawer(const QString& title, const QString& name, QWidget& content,
                                              Qt::DockWidgetArea area, QSize size)
{
    auto* drawer = new QDockWidget(title, this);
    drawer->setObjectName(name);
    drawer->setWidget(&content);
    addDockWidget(area, drawer);
    drawer->hide();
    connect(
        drawer->toggleViewAction(), &QAction::toggled, this,
        [this, drawer, size] {
            resizeDocks({drawer}, {size.width()}, Qt::Horizontal);
            resizeDocks({drawer}, {size.height()}, Qt::Vertical);
        },
        Qt::SingleShotConnection);
    connect(drawer->toggleViewAction(), &QAction::toggled, this,
            [this, drawer] { drawerDidChange(*drawer); });
    return drawer;
}

void TourWindowController::makeDataDrawer()
{
    _samples = new SampleTableModel(_odoTour, _defaults, this);
    _dataTable = new QTableView;
    _dataTable->setAccessibleName(tr("Samples"));
    _dataTable->setModel(_samples);
    setManualSection(*_dataTable, QStringLiteral("values.html#a-sample"));
    _dataTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    _dataTable->setAlternatingRowColors(true);
    _dataTable->setShowGrid(false);
    _dataTable->setWordWrap(false);
    _dataTable->setTabKeyNavigation(false);
    _dataTable->verticalHeader()->hide();
    _dataTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    _dataTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    _dataTable->installEventFilter(this);
    auto& header = *_dataTable->horizontalHeader();
    header.setHighlightSections(false);
    for (int column = 0; column < sampleColumns; ++column)
        header.resizeSection(column, std::max(header.defaultSectionSize(), header.sectionSizeHint(column)));
    connect(_dataTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TourWindowController::tableViewSelectionDidChange);
    // Of several selected samples the one that was added last is marked.
    connect(_dataTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TourWindowController::showIndicator);
    _dataTableDrawer = makeDrawer(tr("Data"), QStringLiteral("dataTableDrawer"), *_dataTable,
                                  Qt::BottomDockWidgetArea, dataContentSize);
    connect(_dataButton, &QToolButton::clicked, this, [this] {
        qCDebug(lcUi, "[dataButtonPressed] %s", qPrintable(_dataTableDrawer->objectName()));
        toggleDrawer(*_dataTableDrawer);
    });
}

void TourWindowController::makeSummaryDrawer()
{
    _summary = new TourSummaryView(_odoTour, _defaults);
    setManualSection(*_summary, QStringLiteral("values.html#a-tour"));
    _summaryDrawer = makeDrawer(tr("Summary"), QStringLiteral("summaryDrawer"), *_summary,
                                Qt::RightDockWidgetArea, summaryContentSize);
    connect(_summaryButton, &QToolButton::clicked, this, [this] {
        qCDebug(lcUi, "[summaryButtonPressed] %s", qPrintable(_summaryDrawer->objectName()));
        toggleDrawer(*_summaryDrawer);
    });
}

void TourWindowController::setupGUI()
{
    qCDebug(lcUi, "[setupGUI]");
    useMilesDidChange();
    _defaults.observe(DefaultsKeys::useMiles, this, [this] { useMilesDidChange(); });
}

void TourWindowController::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT activated();
}

QLineEdit& TourWindowController::minRangeTextField()
{
    return _altitudeRange->minRangeTextField();
}

QLineEdit& TourWindowController::maxRangeTextField()
{
    return _altitudeRange->maxRangeTextField();
}

QString TourWindowController::message() const
{
    return _message->text();
}

void TourWindowController::showMessage(const QString& message)
{
    _message->tell(message);
}

} // namespace ridelog
