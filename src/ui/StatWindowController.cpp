#include "ui/StatWindowController.h"

#include "chart/BarChartView.h"
#include "chart/ChartSettings.h"
#include "exchange/TourTexts.h"
#include "library/DefaultsKeys.h"
#include "library/MyDocument.h"
#include "platform/Defaults.h"
#include "ui/ElidedLabel.h"
#include "ui/FileDrop.h"
#include "ui/Icons.h"
#include "ui/ManualHelp.h"
#include "ui/MessageLine.h"
#include "ui/PeriodStepper.h"
#include "ui/SegmentedControl.h"
#include "ui/StatValuesView.h"
#include "ui/UiLog.h"
#include "ui/WindowFrame.h"
#include "ui/WindowTitle.h"

#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace ridelog {
namespace {

constexpr QSize usualSize(960, 600);

/// The days that the date field takes, and with it the window.
const QDate firstDay(1000, 1, 1);
const QDate lastDay(9999, 12, 31);

std::size_t indexOf(Period period)
{
    return static_cast<std::size_t>(period);
}

} // namespace

StatWindowController::StatWindowController(ApplicationWindows& windows, MyDocument& document,
                                           Defaults& defaults)
    : _windows(windows), _defaults(defaults)
{
    qCDebug(lcUi, "[StatWindowController init]");
    new FileDrop(_windows, *this);
    setManualSection(*this, QStringLiteral("statistics.html"));
    _refresh.setSingleShot(true);
    _refresh.callOnTimeout(this, &StatWindowController::refresh);
    setOdoStat(std::make_unique<OdoStat>(WeekRule::ofLocale(QLocale())));

    // In this order Tab goes from one to the next.
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->addWidget(makeSteps());
    layout->addWidget(makeTabs());
    auto* page = new QHBoxLayout;
    layout->addLayout(page, 1);
    page->addWidget(makeValues());
    page->addWidget(makeChart(), 1);
    setCentralWidget(whole);
    _message = new MessageLine;
    statusBar()->addWidget(_message, 1);
    makeActions();

    windowDidLoad();
    connect(&document, &MyDocument::toursArrayChanged, this, &StatWindowController::discardResults);
    connect(&document.tourChanges(), &TourChanges::changed, this, &StatWindowController::discardResults);
    _chart->setFocus();
}

StatWindowController::~StatWindowController()
{
    storeFrame(*this, _defaults, DefaultsKeys::statWindowFrame);
    _defaults.setValue(DefaultsKeys::statTabViewIdentifier, _tabView->tabData(_tabView->currentIndex()));
    _defaults.setValue(DefaultsKeys::odoStatDate, _odoStat->date());
    _defaults.synchronize();
    // It speaks to this window for as long as it lives.
    delete centralWidget();
}

void StatWindowController::setToursArray(const Tours& tours)
{
    if (&tours == &toursArray())
        return;
    _odoStat->setToursArray(tours);
    _refresh.start();
}

void StatWindowController::setOdoStat(std::unique_ptr<OdoStat> odoStat)
{
    if (_odoStat)
        odoStat->setToursArray(toursArray());
    _odoStat = std::move(odoStat);
    connect(_odoStat.get(), &OdoStat::statChanged, &_refresh, qOverload<>(&QTimer::start));
    _refresh.start();
}

void StatWindowController::setDocumentName(const QString& name)
{
    setWindowTitle(titleWithName(tr("Statistics – %1").arg(name)));
}

// Set-up

QWidget* StatWindowController::makeSteps()
{
    auto* steps = new QWidget;
    auto* layout = new QHBoxLayout(steps);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto period : {Period::year, Period::month, Period::week}) {
        auto* stepper = new PeriodStepper(period);
        _steppers[indexOf(period)] = stepper;
        layout->addWidget(stepper);
        layout->addSpacing(12);
    }
    layout->addStretch();
    _todayButton = new QToolButton;
    _todayButton->setText(tr("Today"));
    _todayButton->setFocusPolicy(Qt::StrongFocus);
    _dateField = new QDateEdit;
    _dateField->setAccessibleName(tr("Date"));
    _dateField->setCalendarPopup(true);
    _dateField->setDateRange(firstDay, lastDay);
    _dateField->setDisplayFormat(shortDateFormat());
    // A year that is being typed is no date to go to.
    _dateField->setKeyboardTracking(false);
    connect(_dateField, &QDateEdit::dateChanged, this, &StatWindowController::moveToDay);
    layout->addWidget(_todayButton);
    layout->addWidget(_dateField);
    return steps;
}

QWidget* StatWindowController::makeTabs()
{
    _tabView = new QTabBar;
    _tabView->setAccessibleName(tr("Period"));
    _tabView->setExpanding(false);
    const QString names[]{tr("All"), tr("Year"), tr("Month"), tr("Week")};
    for (const auto& name : names) {
        const auto tab = _tabView->addTab(name);
        _tabView->setTabData(tab, QString::number(tab + 1));
    }
    connect(_tabView, &QTabBar::currentChanged, this, [this](int tab) {
        _pages->setCurrentIndex(tab);
        refreshChart();
    });
    _saveChartButton = new QToolButton;
    _saveChartButton->setText(tr("Save Chart…"));
    _saveChartButton->setIcon(actionIcon(QStringLiteral("save-chart")));
    _saveChartButton->setIconSize(QSize(16, 16));
    _saveChartButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    _saveChartButton->setFocusPolicy(Qt::StrongFocus);

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_tabView, 1);
    layout->addWidget(_saveChartButton);
    return row;
}

QWidget* StatWindowController::makeValues()
{
    _pages = new QStackedWidget;
    _pages->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
    for (const auto period : allPeriods) {
        auto* values = new StatValuesView;
        _values[indexOf(period)] = values;
        _pages->addWidget(values);
    }
    return _pages;
}

QWidget* StatWindowController::makeChart()
{
    _quantities = new SegmentedControl(SegmentedControl::Choice::one);
    for (const auto quantity : allStatQuantities)
        _quantities->addSegment(nameOf(quantity), static_cast<int>(quantity));
    _quantities->setSelected(0, true);
    connect(_quantities, &SegmentedControl::clicked, this, &StatWindowController::refreshChart);
    auto* controls = new QHBoxLayout;
    controls->addWidget(_quantities);
    controls->addStretch();

    _chart = new BarChartView;
    connect(_chart, &BarChartView::pointedAt, this, &StatWindowController::showReadout);
    connect(_chart, &BarChartView::chosen, this, &StatWindowController::barChosen);
    _readout = new ElidedLabel;
    // The chart does not move when there is nothing to be read.
    _readout->setFixedHeight(_readout->fontMetrics().height());
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(controls);
    layout->addWidget(_chart, 1);
    layout->addWidget(_readout);
    return whole;
}

void StatWindowController::windowDidLoad()
{
    qCDebug(lcUi, "[windowDidLoad]");
    if (!restoreFrame(*this, _defaults, DefaultsKeys::statWindowFrame))
        resize(fitting(usualSize, *screen()));
    const auto identifier = _defaults.textForKey(DefaultsKeys::statTabViewIdentifier);
    for (int tab = 0; tab < _tabView->count(); ++tab) {
        if (_tabView->tabData(tab) == identifier)
            _tabView->setCurrentIndex(tab);
    }
    const auto date = _defaults.dateForKey(DefaultsKeys::odoStatDate);
    if (date && firstDay <= date->date() && date->date() <= lastDay)
        _odoStat->setDate(*date);
    _defaults.observe(DefaultsKeys::useMiles, this, [this] { refresh(); });
    connect(&_defaults, &Defaults::changed, this, [this](const QString& key) {
        if (ChartSettings::isKey(key))
            refreshChart();
    });
}

// What it shows

Period StatWindowController::period() const
{
    return allPeriods[static_cast<std::size_t>(_tabView->currentIndex())];
}

void StatWindowController::selectPeriod(Period period)
{
    _tabView->setCurrentIndex(static_cast<int>(period));
}

StatQuantity StatWindowController::quantity() const
{
    return static_cast<StatQuantity>(_quantities->selectedTags().front());
}

/// The statistics keep what they have computed whatever happens to the tours. But a rider who removes a tour,
/// or takes one from the device, looks at this window to see what that makes: it shows no numbers of tours as
/// they were.
void StatWindowController::discardResults()
{
    for (const auto period : allPeriods)
        _odoStat->setStat(period, std::nullopt);
}

void StatWindowController::refresh()
{
    // Who does not see it needs no numbers: they are computed when it is shown.
    if (!isVisible())
        return;
    _refresh.stop();
    for (auto* stepper : _steppers) {
        if (stepper)
            stepper->showPeriod(day(), _odoStat->weekRule());
    }
    {
        const QSignalBlocker nobodyHasChosenIt(_dateField);
        _dateField->setDate(day());
    }
    for (const auto period : allPeriods)
        _values[indexOf(period)]->showValues(statValues(*_odoStat, period, _defaults));
    refreshChart();
    update();
}

void StatWindowController::refreshChart()
{
    if (!isVisible())
        return;
    _bars = StatBars(period(), *_odoStat, quantity(), _defaults);
    _chart->setChart(_bars.chart(), _bars.chosenBar());
}

void StatWindowController::showReadout(std::optional<int> bar)
{
    _readout->setText(bar ? _bars.textOf(*bar) : QString());
    _chart->setAccessibleDescription(_readout->text());
}

void StatWindowController::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT activated();
}

void StatWindowController::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    comeBackWhereItIs(*this);
}

void StatWindowController::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    refresh();
}

QLabel& StatWindowController::field(Period period, const char* key)
{
    return *_values[indexOf(period)]->findChild<QLabel*>(QString::fromLatin1(key));
}

PeriodStepper& StatWindowController::stepper(Period period)
{
    return *_steppers[indexOf(period)];
}

QString StatWindowController::readout() const
{
    return _readout->text();
}

QString StatWindowController::message() const
{
    return _message->text();
}

void StatWindowController::showMessage(const QString& message)
{
    _message->tell(message);
}

// Where it goes

bool StatWindowController::moveToDay(QDate day)
{
    const bool isWithinReach = firstDay <= day && day <= lastDay;
    if (isWithinReach)
        _odoStat->setDate(CalendarDate::onDay(_odoStat->date(), day));
    showMessage(isWithinReach ? QString()
                              : tr("This window goes from the year %1 to the year %2.")
                                    .arg(QString::number(firstDay.year()), QString::number(lastDay.year())));
    return isWithinReach;
}

void StatWindowController::goToToday()
{
    showMessage({});
    _odoStat->setDate(CalendarDate::now());
}

/// To the year of all, to the month of a year, to the week of a day.
void StatWindowController::barChosen(int bar)
{
    const auto smaller = period() == Period::all    ? Period::year
                         : period() == Period::year ? Period::month
                                                    : Period::week;
    if (moveToDay(_bars.firstDayOf(bar)))
        selectPeriod(smaller);
}

} // namespace ridelog
