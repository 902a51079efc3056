#pragma once

#include "model/Period.h"
#include "model/PeriodStatistics.h"

#include <QDateTime>
#include <QObject>

#include <array>
#include <optional>

namespace ridelog {

/// Totals and averages of the tours of four periods: all, and the calendar year, month and week of a chosen
/// date. Removed tours are never counted. Each period is computed on first request and then kept as it is,
/// whatever happens to the tours, until the date moves out of it or somebody discards it.
class OdoStat : public QObject {
    Q_OBJECT

public:
    /// Without tours; `now` is the first chosen date.
    explicit OdoStat(WeekRule weekRule, const QDateTime& now = CalendarDate::now(),
                     QObject* parent = nullptr);

    WeekRule weekRule() const { return _weekRule; }
    const QDateTime& date() const { return _date; }
    /// Discards the periods that the date has moved out of; another date always discards the week.
    void setDate(const QDateTime& date);
    const Tours& toursArray() const { return *_toursArray; }
    /// The list is not copied, so it has to live as long as anything is asked for. Discards nothing.
    void setToursArray(const Tours& tours) { _toursArray = &tours; }
    void setToursArray(Tours&& tours) = delete;

    // Results

    /// Computes what is not held.
    PeriodStatistics stat(Period period);
    PeriodStatistics globalStat() { return stat(Period::all); }
    PeriodStatistics yearStat() { return stat(Period::year); }
    PeriodStatistics monthStat() { return stat(Period::month); }
    PeriodStatistics weekStat() { return stat(Period::week); }

    /// None discards the result: the next request computes it anew.
    void setStat(Period period, const std::optional<PeriodStatistics>& statistics);
    void setGlobalStat(const std::optional<PeriodStatistics>& stat) { setStat(Period::all, stat); }
    void setYearStat(const std::optional<PeriodStatistics>& stat) { setStat(Period::year, stat); }
    void setMonthStat(const std::optional<PeriodStatistics>& stat) { setStat(Period::month, stat); }
    void setWeekStat(const std::optional<PeriodStatistics>& stat) { setStat(Period::week, stat); }

    // Start of the earliest and of the latest tour of a period, set when its result is computed: ask for that
    // first. None if there was no tour.

    using Date = std::optional<QDateTime>;
    const Date& firstTour(Period period) const { return resultOf(period).firstTour; }
    const Date& lastTour(Period period) const { return resultOf(period).lastTour; }
    const Date& firstTourGlobal() const { return firstTour(Period::all); }
    const Date& lastTourGlobal() const { return lastTour(Period::all); }
    const Date& firstTourYear() const { return firstTour(Period::year); }
    const Date& lastTourYear() const { return lastTour(Period::year); }
    const Date& firstTourMonth() const { return firstTour(Period::month); }
    const Date& lastTourMonth() const { return lastTour(Period::month); }
    const Date& firstTourWeek() const { return firstTour(Period::week); }
    const Date& lastTourWeek() const { return lastTour(Period::week); }

    void setFirstTour(Period period, const Date& date) { resultOf(period).firstTour = date; }
    void setLastTour(Period period, const Date& date) { resultOf(period).lastTour = date; }
    void setFirstTourGlobal(const Date& date) { setFirstTour(Period::all, date); }
    void setLastTourGlobal(const Date& date) { setLastTour(Period::all, date); }
    void setFirstTourYear(const Date& date) { setFirstTour(Period::year, date); }
    void setLastTourYear(const Date& date) { setLastTour(Period::year, date); }
    void setFirstTourMonth(const Date& date) { setFirstTour(Period::month, date); }
    void setLastTourMonth(const Date& date) { setLastTour(Period::month, date); }
    void setFirstTourWeek(const Date& date) { setFirstTour(Period::week, date); }
    void setLastTourWeek(const Date& date) { setLastTour(Period::week, date); }

Q_SIGNALS:
    /// The result was discarded, or another one was set; not told of one that a request computed.
    void statChanged(ridelog::Period period);

private:
    struct Result {
        std::optional<PeriodStatistics> statistics;
        Date firstTour;
        Date lastTour;
    };

    const Result& resultOf(Period period) const { return _results[static_cast<std::size_t>(period)]; }
    Result& resultOf(Period period) { return _results[static_cast<std::size_t>(period)]; }
    void compute(Period period);
    void _calcGlobalStat();
    void _calcYearStat();
    void _calcMonthStat() { addUp(Period::month); }
    void _calcWeekStat() { addUp(Period::week); }
    void addUp(Period period);

    WeekRule _weekRule;
    QDateTime _date;
    const Tours* _toursArray;
    std::array<Result, allPeriods.size()> _results;
};

} // namespace ridelog
