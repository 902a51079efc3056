// Menus of the statistics window, and what they do.

#include "chart/BarChartView.h"
#include "exchange/StatValues.h"
#include "ui/ApplicationWindows.h"
#include "ui/ChartSaving.h"
#include "ui/MenuEntries.h"
#include "ui/PeriodStepper.h"
#include "ui/SegmentedControl.h"
#include "ui/StatWindowController.h"
#include "ui/WindowMenu.h"

#include <QClipboard>
#include <QDateEdit>
#include <QGuiApplication>
#include <QMenuBar>
#include <QTabBar>
#include <QToolButton>

namespace ridelog {

void StatWindowController::makeActions()
{
    // What the last action led to has been read.
    connect(menuBar(), &QMenuBar::triggered, this, [this] { showMessage({}); });
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeGoMenu();
    menuBar()->addMenu(new WindowMenu(_windows, *this));
    addManual(*menuBar()->addMenu(tr("&Help")), *this);
}

void StatWindowController::makeFileMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&File"));
    auto* saveChartAction = addEntry(menu, tr("Save C&hart…"), Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    connect(saveChartAction, &QAction::triggered, this, &StatWindowController::saveChart);
    connect(_saveChartButton, &QToolButton::clicked, saveChartAction, &QAction::trigger);
    auto* saveReportAction = addEntry(menu, tr("Save &Report…"), Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    connect(saveReportAction, &QAction::triggered, this, [this] {
        Q_EMIT reportRequested({period(), day(), _odoStat->weekRule()});
    });
    menu.addSeparator();
    addCloseAndQuit(menu, *this, _windows);
}

void StatWindowController::makeEditMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Edit"));
    connect(addEntry(menu, tr("&Copy Values"), Qt::CTRL | Qt::SHIFT | Qt::Key_C), &QAction::triggered, this,
            &StatWindowController::copyValues);
    menu.addSeparator();
    addPreferences(menu, _windows);
}

void StatWindowController::makeViewMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&View"));
    for (int tab = 0; tab < _tabView->count(); ++tab) {
        auto* action =
            addEntry(menu, _tabView->tabText(tab), Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab));
        action->setCheckable(true);
        const auto show = [this, action, tab] { action->setChecked(_tabView->currentIndex() == tab); };
        connect(&menu, &QMenu::aboutToShow, action, show);
        connect(action, &QAction::triggered, _tabView, [this, tab, show] {
            _tabView->setCurrentIndex(tab);
            show();
        });
    }
    menu.addSeparator();
    addSegments(menu, *_quantities, Qt::Key_5);
}

void StatWindowController::makeGoMenu()
{
    using Window = StatWindowController;
    auto& menu = *menuBar()->addMenu(tr("&Go"));
    const auto addStep = [&](const QString& text, const QKeySequence& keys, QToolButton& button,
                             void (Window::*step)()) {
        auto* action = addEntry(menu, text, keys);
        connect(action, &QAction::triggered, this, step);
        connect(&button, &QToolButton::clicked, action, &QAction::trigger);
        button.setAccessibleName(action->text().remove(u'&'));
        button.setToolTip(button.accessibleName());
    };
    const auto minus = [this](Period period) -> QToolButton& { return stepper(period).minus(); };
    const auto plus = [this](Period period) -> QToolButton& { return stepper(period).plus(); };
    constexpr auto yearKeys = Qt::ALT | Qt::SHIFT;
    addStep(tr("&Previous Year"), yearKeys | Qt::Key_PageUp, minus(Period::year), &Window::yearMinus);
    addStep(tr("&Next Year"), yearKeys | Qt::Key_PageDown, plus(Period::year), &Window::yearPlus);
    menu.addSeparator();
    addStep(tr("P&revious Month"), Qt::ALT | Qt::Key_PageUp, minus(Period::month), &Window::monthMinus);
    addStep(tr("Ne&xt Month"), Qt::ALT | Qt::Key_PageDown, plus(Period::month), &Window::monthPlus);
    menu.addSeparator();
    addStep(tr("Pre&vious Week"), Qt::ALT | Qt::Key_Left, minus(Period::week), &Window::weekMinus);
    addStep(tr("Next &Week"), Qt::ALT | Qt::Key_Right, plus(Period::week), &Window::weekPlus);
    menu.addSeparator();
    addStep(tr("&Today"), Qt::CTRL | Qt::Key_T, *_todayButton, &Window::goToToday);
    connect(addEntry(menu, tr("&Date…"), Qt::CTRL | Qt::Key_G), &QAction::triggered, _dateField, [this] {
        _dateField->setFocus(Qt::ShortcutFocusReason);
        _dateField->setSelectedSection(_dateField->sectionAt(0));
    });
}

void StatWindowController::copyValues()
{
    QGuiApplication::clipboard()->setText(statText(*_odoStat, _defaults));
    showMessage(tr("The statistics are copied."));
}

void StatWindowController::saveChart()
{
    askToSaveChart(
        *this, _defaults, _bars.pictureName(), _chart->size(),
        [this](QSize size) { return _chart->picture(size); },
        [this](const QString& outcome) { showMessage(outcome); });
}

} // namespace ridelog
