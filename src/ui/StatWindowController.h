#pragma once

#include "exchange/ExportFormat.h"
#include "model/OdoStat.h"
#include "ui/StatBars.h"

#include <QMainWindow>
#include <QTimer>

#include <array>
#include <memory>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QDateEdit;
class QLabel;
class QStackedWidget;
class QTabBar;
class QToolButton;
QT_END_NAMESPACE

namespace ridelog {

class ApplicationWindows;
class BarChartView;
class Defaults;
class ElidedLabel;
class MessageLine;
class MyDocument;
class PeriodStepper;
class SegmentedControl;
class StatValuesView;

/// The statistics of a document's tours: of all, and of the year, month and week of a chosen date, on a tab
/// each, with a chart of the parts that the period is made of. Closing the window hides it; tab and date are
/// kept for the next one when it goes.
class StatWindowController : public QMainWindow {
    Q_OBJECT

public:
    /// Without tours. All three have to outlive it.
    StatWindowController(ApplicationWindows& windows, MyDocument& document, Defaults& defaults);
    ~StatWindowController() override;

    const Tours& toursArray() const { return _odoStat->toursArray(); }
    /// The list is not copied. What has been computed of another one stays until a step makes it stale.
    void setToursArray(const Tours& tours);
    void setToursArray(Tours&& tours) = delete;
    OdoStat& odoStat() { return *_odoStat; }
    /// It gets the list of tours, and is asked for everything from now on.
    void setOdoStat(std::unique_ptr<OdoStat> odoStat);
    /// For the window's title.
    void setDocumentName(const QString& name);

    // Steps of the date. Days that a month does not have become its last one; the time of day stays.

    void yearPlus() { moveToDay(day().addYears(1)); }
    void yearMinus() { moveToDay(day().addYears(-1)); }
    void monthPlus() { moveToDay(day().addMonths(1)); }
    void monthMinus() { moveToDay(day().addMonths(-1)); }
    void weekPlus() { moveToDay(day().addDays(7)); }
    void weekMinus() { moveToDay(day().addDays(-7)); }

    // What it is made of

    QTabBar& tabView() { return *_tabView; }
    /// The field of a value, by its key among the statistics, or "firstTour" or "lastTour".
    QLabel& field(Period period, const char* key);
    PeriodStepper& stepper(Period period);
    QDateEdit& dateField() { return *_dateField; }
    QToolButton& todayButton() { return *_todayButton; }
    SegmentedControl& quantities() { return *_quantities; }
    BarChartView& chart() { return *_chart; }
    /// What the marked bar says.
    QString readout() const;
    /// What has just happened, in words.
    QString message() const;
    void showMessage(const QString& message);

Q_SIGNALS:
    /// It is the one the rider works with.
    void activated();
    /// The rider wants a report of the period that is shown.
    void reportRequested(const ridelog::ChosenPeriod& period);

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // Set-up
    QWidget* makeSteps();
    QWidget* makeTabs();
    QWidget* makeValues();
    QWidget* makeChart();
    void makeActions();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeGoMenu();
    void windowDidLoad();

    // What it shows
    Period period() const;
    void selectPeriod(Period period);
    QDate day() const { return _odoStat->date().date(); }
    StatQuantity quantity() const;
    void discardResults();
    void refresh();
    void refreshChart();
    void showReadout(std::optional<int> bar);

    // Actions
    /// False, with word of it, for a day that the window does not go to.
    bool moveToDay(QDate day);
    void goToToday();
    void barChosen(int bar);
    void copyValues();
    void saveChart();

    ApplicationWindows& _windows;
    Defaults& _defaults;
    std::unique_ptr<OdoStat> _odoStat;
    StatBars _bars;
    QTimer _refresh; ///< follows what a step discards, or what happened to many tours at once, once

    std::array<PeriodStepper*, allPeriods.size()> _steppers = {}; ///< none for all tours
    std::array<StatValuesView*, allPeriods.size()> _values = {};
    QTabBar* _tabView = nullptr;
    QStackedWidget* _pages = nullptr;
    QToolButton* _todayButton = nullptr;
    QDateEdit* _dateField = nullptr;
    SegmentedControl* _quantities = nullptr;
    BarChartView* _chart = nullptr;
    QToolButton* _saveChartButton = nullptr;
    ElidedLabel* _readout = nullptr;
    MessageLine* _message = nullptr;
};

} // namespace ridelog
