#include "model/OdoStat.h"

#include <QElapsedTimer>
#include <QLoggingCategory>

#include <utility>

namespace ridelog {
namespace {

Q_LOGGING_CATEGORY(lcStatistics, "ridelog.statistics")

const Tours noTours;

} // namespace

OdoStat::OdoStat(WeekRule weekRule, const QDateTime& now, QObject* parent)
    : QObject(parent), _weekRule(weekRule), _toursArray(&noTours)
{
    setDate(now);
}

void OdoStat::setDate(const QDateTime& date)
{
    qCDebug(lcStatistics, "[setDate]");
    if (date == _date && date.timeZone() == _date.timeZone())
        return;
    const auto before = std::exchange(_date, date).date();
    const auto day = date.date();
    const bool isOtherYear = day.year() != before.year();
    if (isOtherYear)
        setYearStat(std::nullopt);
    if (isOtherYear || day.month() != before.month())
        setMonthStat(std::nullopt);
    setWeekStat(std::nullopt);
}

PeriodStatistics OdoStat::stat(Period period)
{
    auto& result = resultOf(period);
    if (!result.statistics)
        compute(period);
    return *result.statistics;
}

void OdoStat::setStat(Period period, const std::optional<PeriodStatistics>& statistics)
{
    resultOf(period).statistics = statistics;
    Q_EMIT statChanged(period);
}

void OdoStat::compute(Period period)
{
    switch (period) {
    case Period::all:
        return _calcGlobalStat();
    case Period::year:
        return _calcYearStat();
    case Period::month:
        return _calcMonthStat();
    case Period::week:
        return _calcWeekStat();
    }
}

void OdoStat::_calcGlobalStat()
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    qCDebug(lcStatistics, "[_calcGlobalStat]");
    addUp(Period::all);
    // Negative: where the start lies, seen from now.
    qCDebug(lcStatistics, "[_calcGlobalStat] stopped at:%1.3f",
            -static_cast<double>(sinceStart.nsecsElapsed()) / 1e9);
}

void OdoStat::_calcYearStat()
{
    qCDebug(lcStatistics, "[_calcYearStat]");
    addUp(Period::year);
}

void OdoStat::addUp(Period period)
{
    const PeriodDays days(period, _date.date(), _weekRule);
    TourSums sums;
    for (const auto& tour : *_toursArray) {
        if (!tour->removed() && days.contain(tour->date().date()))
            sums.add(*tour);
    }
    setFirstTour(period, sums.firstTour());
    setLastTour(period, sums.lastTour());
    resultOf(period).statistics = sums.statistics();
}

} // namespace ridelog
